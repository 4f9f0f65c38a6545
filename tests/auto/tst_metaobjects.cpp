// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Holds the meta-object of each exported class.

#include "checkbox.h"
#include "combobox.h"
#include "combolineedit.h"
#include "conneditor.h"
#include "dataeditor.h"
#include "dialog.h"
#include "doublespinbox.h"
#include "filarixtest.h"
#include "filedialog.h"
#include "groupbox.h"
#include "hmidirmodel.h"
#include "importmanage.h"
#include "label.h"
#include "lineedit.h"
#include "messagebox.h"
#include "mjline.h"
#include "pushbutton.h"
#include "scrollbar.h"
#include "spinbox.h"
#include "tlistwidget.h"
#include "wcopydialog.h"
#include "wfiledialog.h"
#include "wfinddialog.h"
#include "wgcodeediter.h"
#include "whighlighter.h"
#include "wmmainwindow.h"

#include <QMetaMethod>
#include <QMetaProperty>

/// Hosts and device libraries reach the classes by name through the meta-object, and the order of
/// its entries fixes their indices: each class's own signals, slots, properties and enums are
/// pinned here, one row a class.
class TestMetaObjects : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void ownEntriesInOrder_data();
    void ownEntriesInOrder();
};

Q_DECLARE_METATYPE(const QMetaObject *)

namespace {

QString describe(const QMetaMethod &method)
{
    static const char *const kinds[] = {"method", "signal", "slot", "constructor"};
    static const char *const accesses[] = {"private", "protected", "public"};
    QString type = QLatin1String(method.typeName());
    if (type == QLatin1String("void"))
        type.clear();
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    const QByteArray signature = method.methodSignature();
#else
    const QByteArray signature = method.signature();
#endif
    // The toolkits differ in how they report the access of a signal.
    QString text = method.methodType() == QMetaMethod::Signal
                       ? QString()
                       : QLatin1String(accesses[method.access()]) + QLatin1Char(' ');
    text += QLatin1String(kinds[method.methodType()]) + QLatin1Char(' ');
    if (!type.isEmpty())
        text += type + QLatin1Char(' ');
    return text + QLatin1String(signature);
}

QStringList ownEntries(const QMetaObject *meta)
{
    QStringList entries;
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i)
        entries << describe(meta->method(i));
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        entries << QString::fromLatin1("property %1 %2%3%4")
                       .arg(QLatin1String(property.typeName()), QLatin1String(property.name()),
                            QLatin1String(property.isReadable() ? " read" : ""),
                            QLatin1String(property.isWritable() ? " write" : ""));
    }
    for (int i = meta->enumeratorOffset(); i < meta->enumeratorCount(); ++i)
        entries << QLatin1String("enum ") + QLatin1String(meta->enumerator(i).name());
    return entries;
}

void newClass(const char *base, const QMetaObject &meta, const QStringList &entries)
{
    QTest::newRow(meta.className()) << &meta << QByteArray(base) << entries;
}

} // namespace

void TestMetaObjects::ownEntriesInOrder_data()
{
    QTest::addColumn<const QMetaObject *>("meta");
    QTest::addColumn<QByteArray>("base");
    QTest::addColumn<QStringList>("entries");

    newClass("QDialog", Dialog::staticMetaObject, QStringList());
    newClass("QDirModel", HmiDirModel::staticMetaObject, QStringList());
    newClass("QDialog", ImportManage::staticMetaObject,
             QStringList() << "public slot slot_copyFromHmiToUsb()"
                           << "public slot slot_copyFromUsbToHmi()"
                           << "public slot slot_deleteFromHmi()"
                           << "public slot slot_deleteFromUsb()"
                           << "public slot slot_quit()"
                           << "public slot slot_checkUSB()");
    newClass("QMessageBox", MessageBox::staticMetaObject, QStringList());

    newClass("QCheckBox", CheckBox::staticMetaObject, QStringList());
    newClass("QComboBox", ComboBox::staticMetaObject, QStringList() << "signal showPop()");
    newClass("QDoubleSpinBox", DoubleSpinBox::staticMetaObject, QStringList());
    newClass("QGroupBox", GroupBox::staticMetaObject, QStringList());
    newClass("QLineEdit", LineEdit::staticMetaObject, QStringList());
    newClass("QPushButton", PushButton::staticMetaObject, QStringList());
    newClass("QScrollBar", ScrollBar::staticMetaObject, QStringList());
    newClass("QSpinBox", SpinBox::staticMetaObject, QStringList());

    newClass("Dialog", WCopyDialog::staticMetaObject,
             QStringList() << "public slot slot_minus()"
                           << "public slot slot_plus()"
                           << "property QString text read write");
    newClass("Dialog", WFileDialog::staticMetaObject,
             QStringList() << "private slot openFileOfItem(int,int)"
                           << "private slot on_applyButton_clicked()"
                           << "private slot on_cancelButton_clicked()"
                           << "property QString text read write");
    newClass("QDialog", WFindDialog::staticMetaObject,
             QStringList() << "signal findNext(QString,Qt::CaseSensitivity)"
                           << "signal findPrevious(QString,Qt::CaseSensitivity)"
                           << "signal replaceTxt(QString)"
                           << "private slot findClicked()"
                           << "private slot enableFindButton(QString)"
                           << "private slot replaceClicked()");
    newClass("QPlainTextEdit", WGCodeEditer::staticMetaObject,
             QStringList() << "public slot updateLineNumberAreaWidth(int)"
                           << "public slot highlightCurrentLine()"
                           << "public slot updateLineNumberArea(QRect,int)"
                           << "public slot gotoLine(int)"
                           << "public slot copy()"
                           << "public slot paste()"
                           << "public slot findAndReplace()"
                           << "public slot findNext(QString,Qt::CaseSensitivity)"
                           << "public slot findPrevious(QString,Qt::CaseSensitivity)"
                           << "public slot replaceTxt(QString)");
    newClass("QSyntaxHighlighter", WHighlighter::staticMetaObject, QStringList());

    newClass("QSplitter", WMMainWindow::staticMetaObject,
             QStringList() << "signal signal_download(QString)"
                           << "signal signal_copyFromTag()"
                           << "signal signal_softEditGCode(QString)"
                           << "signal gDataIsCorrect()"
                           << "private slot newFile()"
                           << "private slot open()"
                           << "private slot remove()"
                           << "private slot bool save()"
                           << "private slot bool saveAs()"
                           << "private slot bool importExport()"
                           << "private slot documentWasModified()"
                           << "private slot slot_updateTips()"
                           << "private slot bool download()"
                           << "private slot moveEvent()"
                           << "private slot softEditGcode()"
                           << "private slot insertRow()"
                           << "private slot insertBefore()"
                           << "private slot deleteRow()"
                           << "private slot copyFromTag()"
                           << "property QString text read write");

    newClass("QLineEdit", ComboLineEdit::staticMetaObject,
             QStringList() << "signal clicked()"
                           << "signal changed(QString)");
    newClass("QLabel", Label::staticMetaObject, QStringList() << "signal clicked()");
    newClass("QWidget", MJLine::staticMetaObject,
             QStringList() << "signal clicked(int)"
                           << "signal sizeChanged(bool)"
                           << "signal sg_jpos_update(int)"
                           << "signal sg_v_update(int)"
                           << "signal sg_content_change(int)"
                           << "public slot on_press_down()"
                           << "public slot on_press_up()"
                           << "public slot on_jpos_update()"
                           << "public slot on_v_update()"
                           << "public slot on_z_update()"
                           << "public slot on_t_update()"
                           << "public slot on_res_update()"
                           << "public slot on_lineEdit_clicked()"
                           << "public slot on_jpos_change(QString)"
                           << "public slot on_v_change(QString)"
                           << "public slot on_vars1_change(QString)");

    newClass("QDialog", ConnEditor::staticMetaObject,
             QStringList() << "public slot on_save_clicked()");
    newClass("QWidget", DataEditor::staticMetaObject,
             QStringList() << "signal clicked(int)"
                           << "signal sg_content_change(int)"
                           << "public slot on_editfinished()"
                           << "public slot on_content_change(QString)");
    newClass("QDialog", FileDialog::staticMetaObject,
             QStringList() << "public slot on_cdUp_click()"
                           << "public slot on_cdDown_click()"
                           << "public slot on_line_click()"
                           << "public slot on_cancel_click()"
                           << "public slot on_ok_click()");
    // Its base, a plain stack of widgets, has no meta-object of its own.
    newClass("QWidget", TListWidget::staticMetaObject,
             QStringList() << "signal clicked(int)"
                           << "signal sg_jpos_update(int)"
                           << "signal sg_v_update(int)"
                           << "signal sg_item_deleted(int)"
                           << "public slot on_jpos_update(int)"
                           << "public slot on_v_update(int)"
                           << "public slot on_line_changed(bool)"
                           << "public slot on_line_clicked(int)"
                           << "public slot on_content_change(int)");
}

void TestMetaObjects::ownEntriesInOrder()
{
    QFETCH(const QMetaObject *, meta);
    QFETCH(QByteArray, base);
    QFETCH(QStringList, entries);
    QCOMPARE(QByteArray(meta->superClass()->className()), base);
    QCOMPARE(ownEntries(meta), entries);
}

FILARIX_TEST_MAIN(TestMetaObjects)
#include "tst_metaobjects.moc"
