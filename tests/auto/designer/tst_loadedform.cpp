// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Holds the Designer plugin: a form that a host loads at run time.

#include "checkbox.h"
#include "combobox.h"
#include "dataeditor.h"
#include "doublespinbox.h"
#include "filarixtest.h"
#include "groupbox.h"
#include "lineedit.h"
#include "listwidget.h"
#include "pushbutton.h"
#include "scrollbar.h"
#include "spinbox.h"
#include "tlistwidget.h"
#include "wgcodeediter.h"

#include <QFile>
#include <QScopedPointer>
#include <QTimer>
#include <QUiLoader>

/// A host with the library, and a device library, loads a form at run time.
class TestLoadedForm : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theWidgetsAreOfTheHostsClasses();
    void aFieldOpensTheHostsKeypad();

private:
    template<typename Widget>
    Widget *child(const char *name) const
    {
        return m_form->findChild<Widget *>(QLatin1String(name));
    }

    QScopedPointer<QWidget> m_form;
};

void TestLoadedForm::init()
{
    FilarixTest::init();
    QUiLoader loader;
    loader.addPluginPath(QLatin1String(FILARIX_PLUGINS "/designer"));
    QFile file(QLatin1String(FILARIX_FORM));
    QVERIFY(file.open(QIODevice::ReadOnly));
    m_form.reset(loader.load(&file, nullptr));
    QVERIFY2(m_form, qPrintable(loader.errorString()));
}

void TestLoadedForm::cleanup()
{
    m_form.reset();
    FilarixTest::cleanup();
}

void TestLoadedForm::theWidgetsAreOfTheHostsClasses()
{
    QVERIFY(child<PushButton>("pushButton"));
    QVERIFY(child<CheckBox>("checkBox"));
    QVERIFY(child<ComboBox>("comboBox"));
    QVERIFY(child<SpinBox>("spinBox"));
    QVERIFY(child<DoubleSpinBox>("doubleSpinBox"));
    QVERIFY(child<LineEdit>("lineEdit"));
    QVERIFY(child<GroupBox>("groupBox"));
    QVERIFY(child<ScrollBar>("scrollBar"));
    QVERIFY(child<TListWidget>("tListWidget"));
    QVERIFY(child<DataEditor>("dataEditor"));
    QVERIFY(child<WGCodeEditer>("wgCodeEditer"));
    QCOMPARE(child<SpinBox>("spinBox")->value(), 12);
    // It has no meta-object of its own to be asked for.
    ListWidget *stack = dynamic_cast<ListWidget *>(child<QWidget>("listWidget"));
    QVERIFY(stack);
    QCOMPARE(stack->QWidget::height(), 0);
    QPushButton *row = new QPushButton;
    row->resize(100, 40);
    stack->addWidget(row);
    QCOMPARE(stack->height(), 40);
}

void TestLoadedForm::aFieldOpensTheHostsKeypad()
{
    m_form->show();
    QStringList row = QStringList() << "7"
                                    << ""
                                    << "Tension"
                                    << "6.0";
    child<DataEditor>("dataEditor")->setData(row);
    QByteArray keypad;
    QTimer closer;
    connect(&closer, &QTimer::timeout, this, [&] {
        if (QWidget *opened = QApplication::activeModalWidget()) {
            keypad = opened->metaObject()->className();
            opened->close();
        }
    });
    closer.start(10);
    QTest::mouseClick(child<DataEditor>("dataEditor")->findChild<QLineEdit *>(), Qt::LeftButton);
    QVERIFY2(!keypad.isEmpty(), "no keypad came up");
    QCOMPARE(child<DataEditor>("dataEditor")->getData(), row);
}

FILARIX_TEST_MAIN(TestLoadedForm)

#include "tst_loadedform.moc"
