// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Holds WGCodeEditer and WCopyDialog: copy and paste of whole lines.

#include "devicelog.h"
#include "filarixtest.h"
#include "modaldriver.h"
#include "wcopydialog.h"
#include "wgcodeediter.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QTextBlock>

/// The editor's own copy and paste of whole lines, with the dialog that asks for their number.
class TestLineCopy : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theDialogShowsTheRowAndAllowsWhatIsLeft();
    void theBufferDiffersByCase_data();
    void theBufferDiffersByCase();
    void aCancelledDialogKeepsTheBuffer();
    void aCountBelowOneKeepsTheBuffer_data();
    void aCountBelowOneKeepsTheBuffer();
    void aCountBeyondTheEndTakesTheRest();
    void pasteReplacesTheStandingSelection();
    void aSingleLineJoinsTheTextAtTheCursor();
    void severalLinesComeAsLines();
    void anEmptyBufferOnlyDeletesASelection();
    void theClipboardStaysOutOfIt();
    void theCountComesFromTheKeypad();
};

namespace {

const QChar paragraphEnd(0x2029);

QString numbered(int lines)
{
    QStringList text;
    for (int i = 1; i <= lines; ++i)
        text << QString::fromLatin1("N%1 X%1").arg(i);
    return text.join(QLatin1String("\n"));
}

void goTo(WGCodeEditer &editor, int row, int column)
{
    QTextCursor cursor = editor.textCursor();
    cursor.setPosition(editor.document()->findBlockByNumber(row - 1).position() + column - 1);
    editor.setTextCursor(cursor);
}

void copyLines(WGCodeEditer &editor, const QString &count)
{
    ModalDriver driver;
    driver.then([count](QWidget *widget) {
        widget->findChild<QLineEdit *>()->setText(count);
        qobject_cast<WCopyDialog *>(widget)->accept();
    });
    editor.copy();
    QVERIFY2(driver.finished(), driver.report());
}

/// What paste() puts into an empty document.
QString pasted(WGCodeEditer &editor)
{
    editor.clear();
    editor.paste();
    return editor.toPlainText();
}

} // namespace

void TestLineCopy::init()
{
    FilarixTest::init();
    DeviceLog::reset();
}

void TestLineCopy::theDialogShowsTheRowAndAllowsWhatIsLeft()
{
    WGCodeEditer editor(nullptr);
    editor.setPlainText(numbered(7));
    goTo(editor, 3, 2);
    ModalDriver driver;
    QStringList seen;
    driver.then([&seen](QWidget *widget) {
        WCopyDialog *dialog = qobject_cast<WCopyDialog *>(widget);
        const QIntValidator *range =
            qobject_cast<const QIntValidator *>(dialog->findChild<QLineEdit *>()->validator());
        const QLayout *row = dialog->layout()->itemAt(0)->layout();
        seen << qobject_cast<QLabel *>(row->itemAt(1)->widget())->text()
             << QString::number(range->bottom()) << QString::number(range->top())
             << dialog->findChild<QLineEdit *>()->text();
        seen << QLatin1String(dialog->parent() ? "parent" : "no parent");
        dialog->reject();
    });
    editor.copy();
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(seen.join(QLatin1String(", ")), QString::fromLatin1("3, 1, 5, 1, no parent"));
}

void TestLineCopy::theBufferDiffersByCase_data()
{
    QTest::addColumn<int>("lines");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("selection");
    QTest::addColumn<QString>("text");
    const QString end(paragraphEnd);
    QTest::newRow("one line of several has no end") << 4 << 2 << 3 << 1 << "N2 X2"
                                                    << "N2 X2";
    QTest::newRow("the first line alone") << 4 << 1 << 1 << 1 << "N1 X1"
                                          << "N1 X1";
    QTest::newRow("the last line alone ends in a line end") << 4 << 4 << 6 << 1 << "N4 X4"
                                                            << "N4 X4\n";
    QTest::newRow("the only line") << 1 << 1 << 1 << 1 << "N1 X1"
                                   << "N1 X1\n";
    QTest::newRow("a run before the last line ends in a line end of the selection")
        << 4 << 1 << 4 << 2 << QString(QLatin1String("N1 X1") + end + QLatin1String("N2 X2") + end)
        << "N1 X1\nN2 X2\n";
    QTest::newRow("a run from the middle")
        << 5 << 2 << 1 << 3
        << QString(QLatin1String("N2 X2") + end + QLatin1String("N3 X3") + end
                   + QLatin1String("N4 X4") + end)
        << "N2 X2\nN3 X3\nN4 X4\n";
    QTest::newRow("a run to the last line ends in a line end")
        << 4 << 3 << 2 << 2 << QString(QLatin1String("N3 X3") + end + QLatin1String("N4 X4"))
        << "N3 X3\nN4 X4\n";
    QTest::newRow("everything") << 3 << 1 << 5 << 3
                                << QString(QLatin1String("N1 X1") + end + QLatin1String("N2 X2")
                                           + end + QLatin1String("N3 X3"))
                                << "N1 X1\nN2 X2\nN3 X3\n";
}

void TestLineCopy::theBufferDiffersByCase()
{
    QFETCH(int, lines);
    QFETCH(int, row);
    QFETCH(int, column);
    QFETCH(int, count);
    QFETCH(QString, selection);
    QFETCH(QString, text);
    WGCodeEditer editor(nullptr);
    editor.setPlainText(numbered(lines));
    goTo(editor, row, column);
    copyLines(editor, QString::number(count));
    // The operator sees the lines selected.
    QCOMPARE(editor.textCursor().selectedText(), selection);
    QCOMPARE(editor.toPlainText(), numbered(lines));
    QCOMPARE(pasted(editor), text);
}

void TestLineCopy::aCancelledDialogKeepsTheBuffer()
{
    WGCodeEditer editor(nullptr);
    editor.setPlainText(numbered(3));
    copyLines(editor, QLatin1String("1"));
    goTo(editor, 2, 1);
    ModalDriver driver;
    driver.reject();
    editor.copy();
    QVERIFY2(driver.finished(), driver.report());
    QVERIFY(!editor.textCursor().hasSelection());
    QCOMPARE(pasted(editor), QString::fromLatin1("N1 X1"));
}

void TestLineCopy::aCountBelowOneKeepsTheBuffer_data()
{
    QTest::addColumn<QString>("count");
    QTest::newRow("zero") << "0";
    QTest::newRow("negative") << "-1";
    QTest::newRow("empty") << "";
    QTest::newRow("no number") << "all";
}

void TestLineCopy::aCountBelowOneKeepsTheBuffer()
{
    QFETCH(QString, count);
    WGCodeEditer editor(nullptr);
    editor.setPlainText(numbered(3));
    copyLines(editor, QLatin1String("1"));
    goTo(editor, 2, 1);
    copyLines(editor, count);
    QVERIFY(!editor.textCursor().hasSelection());
    QCOMPARE(pasted(editor), QString::fromLatin1("N1 X1"));
}

void TestLineCopy::aCountBeyondTheEndTakesTheRest()
{
    WGCodeEditer editor(nullptr);
    editor.setPlainText(numbered(3));
    goTo(editor, 2, 1);
    copyLines(editor, QLatin1String("99"));
    QCOMPARE(pasted(editor), QString::fromLatin1("N2 X2\nN3 X3\n"));
}

void TestLineCopy::pasteReplacesTheStandingSelection()
{
    WGCodeEditer editor(nullptr);
    editor.setPlainText(numbered(4));
    goTo(editor, 2, 1);
    copyLines(editor, QLatin1String("2"));
    editor.paste();
    QCOMPARE(editor.toPlainText(), numbered(4));
    QVERIFY(!editor.textCursor().hasSelection());
    QCOMPARE(editor.getCurRowNumber(), 4);
    editor.paste();
    QCOMPARE(editor.toPlainText(), QString::fromLatin1("N1 X1\nN2 X2\nN3 X3\nN2 X2\nN3 X3\nN4 X4"));
}

void TestLineCopy::aSingleLineJoinsTheTextAtTheCursor()
{
    WGCodeEditer editor(nullptr);
    editor.setPlainText(numbered(3));
    copyLines(editor, QLatin1String("1"));
    goTo(editor, 2, 3);
    editor.paste();
    QCOMPARE(editor.toPlainText(), QString::fromLatin1("N1 X1\nN2N1 X1 X2\nN3 X3"));
}

void TestLineCopy::severalLinesComeAsLines()
{
    WGCodeEditer editor(nullptr);
    editor.setPlainText(numbered(4));
    copyLines(editor, QLatin1String("3"));
    goTo(editor, 4, 1);
    editor.paste();
    QCOMPARE(editor.toPlainText(),
             QString::fromLatin1("N1 X1\nN2 X2\nN3 X3\nN1 X1\nN2 X2\nN3 X3\nN4 X4"));
    QCOMPARE(editor.blockCount(), 7);
}

void TestLineCopy::anEmptyBufferOnlyDeletesASelection()
{
    WGCodeEditer editor(nullptr);
    editor.setPlainText(numbered(2));
    goTo(editor, 1, 3);
    editor.paste();
    QCOMPARE(editor.toPlainText(), numbered(2));
    QTextCursor cursor = editor.textCursor();
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    editor.setTextCursor(cursor);
    editor.paste();
    QCOMPARE(editor.toPlainText(), QString::fromLatin1("N1\nN2 X2"));
}

void TestLineCopy::theClipboardStaysOutOfIt()
{
    QApplication::clipboard()->setText(QLatin1String("from elsewhere"));
    WGCodeEditer editor(nullptr);
    editor.setPlainText(numbered(2));
    copyLines(editor, QLatin1String("1"));
    QCOMPARE(QApplication::clipboard()->text(), QString::fromLatin1("from elsewhere"));
    QCOMPARE(pasted(editor), QString::fromLatin1("N1 X1"));
}

void TestLineCopy::theCountComesFromTheKeypad()
{
    WGCodeEditer editor(nullptr);
    editor.setPlainText(numbered(5));
    goTo(editor, 2, 1);
    DeviceLog::acceptWith(QLatin1String("3"));
    ModalDriver driver;
    driver.then([](QWidget *widget) {
        QTest::mousePress(widget->findChild<QLineEdit *>(), Qt::LeftButton);
        qobject_cast<WCopyDialog *>(widget)->accept();
    });
    // The keypad is a dialog of its own and ends by its script.
    driver.then([](QWidget *) {});
    editor.copy();
    QVERIFY2(DeviceLog::keypadCalls().contains(
                 QLatin1String("NumericKeypad.setLimitToolTip( min:1, max:4)")),
             qPrintable(DeviceLog::keypadCalls().join(QLatin1String(", "))));
    QCOMPARE(pasted(editor), QString::fromLatin1("N2 X2\nN3 X3\nN4 X4\n"));
}

FILARIX_TEST_MAIN(TestLineCopy)
#include "tst_linecopy.moc"
