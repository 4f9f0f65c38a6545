// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "guards/finddialogfitter.h"
#include "wgcodeediter.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QVBoxLayout>
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
#include <QWindow>
#endif

class TestFindDialogFitter : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsDoneWithoutADialog();
    void dialogFollowsTheLanguage();
    void dialogStandsInTheCornerOfItsHost();
    void hiddenDialogStaysWhereItIs();

private:
    static QWidget *dialog();
    static QStringList texts();
};

QWidget *TestFindDialogFitter::dialog()
{
    const QWidgetList topLevels = QApplication::topLevelWidgets();
    for (QWidget *widget : topLevels) {
        if (widget->inherits("WFindDialog"))
            return widget;
    }
    return nullptr;
}

QStringList TestFindDialogFitter::texts()
{
    QStringList texts(dialog()->windowTitle());
    const QList<QLabel *> labels = dialog()->findChildren<QLabel *>();
    for (const QLabel *label : labels)
        texts.append(label->text());
    const QList<QAbstractButton *> buttons = dialog()->findChildren<QAbstractButton *>();
    for (const QAbstractButton *button : buttons)
        texts.append(button->text());
    return texts;
}

void TestFindDialogFitter::nothingIsDoneWithoutADialog()
{
    QWidget host;
    FindDialogFitter::retranslate();
    FindDialogFitter::place(&host);
    QVERIFY(!dialog());
}

// All of what the library writes there, and nothing in another place.
void TestFindDialogFitter::dialogFollowsTheLanguage()
{
    WGCodeEditer editor(nullptr);
    editor.findAndReplace();
    QVERIFY(dialog());
    const QStringList made = texts();
    QVERIFY(made.size() >= 8);
    QStringList marked;
    for (const QString &text : made)
        marked.append(text + '*');
    {
        const TestCompat::MarkingTranslator translator("WFindDialog");
        FindDialogFitter::retranslate();
        QCOMPARE(texts(), marked);
    }
    FindDialogFitter::retranslate();
    QCOMPARE(texts(), made);
}

void TestFindDialogFitter::dialogStandsInTheCornerOfItsHost()
{
    QWidget host;
    QVBoxLayout layout(&host);
    WGCodeEditer editor(nullptr);
    layout.addWidget(&editor);
    host.setGeometry(20, 20, 500, 400);
    host.show();
    QVERIFY(TestCompat::waitForExposed(&host));
    editor.findAndReplace();
    FindDialogFitter::place(&editor);
    QWidget *find = dialog();
    QVERIFY(find && find->isVisible());
    const QPoint corner = editor.mapToGlobal(QPoint(editor.width(), editor.height()));
    QTRY_COMPARE(find->pos() + QPoint(find->width(), find->height()), corner);
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    QCOMPARE(find->windowHandle()->transientParent(), host.windowHandle());
#endif
    find->hide();
}

void TestFindDialogFitter::hiddenDialogStaysWhereItIs()
{
    WGCodeEditer editor(nullptr);
    editor.findAndReplace();
    dialog()->hide();
    const QPoint before = dialog()->pos();
    QWidget host;
    host.setGeometry(0, 0, 50, 50);
    FindDialogFitter::place(&host);
    QCOMPARE(dialog()->pos(), before);
    QVERIFY(!dialog()->isVisible());
}

FILARIX_TEST_MAIN(TestFindDialogFitter)
#include "tst_finddialogfitter.moc"
