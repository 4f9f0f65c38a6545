// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Holds WFindDialog and WGCodeEditer: search and replacement.

#include "filarixtest.h"
#include "lineedit.h"
#include "marktranslator.h"
#include "modaldriver.h"
#include "wfinddialog.h"
#include "wgcodeediter.h"

#include <QCheckBox>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScopedPointer>
#include <QTextBlock>

/// Search and replacement as the operator sees them: through the find dialog.
class TestFind : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void theDialogIsMadeAtTheFirstUseAndKept();
    void theDialogGoesWithTheEditor();
    void findsFromTheCursorOnAndSelectsTheMatch();
    void backwardGoesTowardsTheStart();
    void matchCaseWorksInBothDirections_data();
    void matchCaseWorksInBothDirections();
    void theEndTellsAndDoesNotWrapAround();
    void theStartTellsInTheSameWords();
    void theWordsAreNotTranslated_data();
    void theWordsAreNotTranslated();
    void replaceBeforeAnySearchDoesNothing();
    void replaceAfterAHitReplacesOnceAndDoesNotSearchOn();
    void anEmptyReplacementDeletesTheMatch();
    void replaceAfterAFailedSearchDoesNothing();
    void replaceGoesToTheCursorIfThatWasMoved();
    void replaceCanBeUndone();
};

namespace {

const char program[] = "G01 X10 Y1\nG02 x10 Y2\nG03 X10 Y3";

struct Desk
{
    Desk() : editor(nullptr)
    {
        editor.setPlainText(QLatin1String(program));
        editor.findAndReplace();
        dialog = theDialog();
    }
    static WFindDialog *theDialog()
    {
        WFindDialog *found = nullptr;
        Q_FOREACH (QWidget *widget, QApplication::topLevelWidgets()) {
            if (WFindDialog *candidate = qobject_cast<WFindDialog *>(widget))
                found = candidate;
        }
        return found;
    }
    LineEdit *field(const char *label) const
    {
        Q_FOREACH (QLabel *candidate, dialog->findChildren<QLabel *>()) {
            if (candidate->text() == QLatin1String(label))
                return qobject_cast<LineEdit *>(candidate->buddy());
        }
        return nullptr;
    }
    void check(const char *text, bool on) const
    {
        Q_FOREACH (QCheckBox *box, dialog->findChildren<QCheckBox *>()) {
            if (box->text() == QLatin1String(text))
                box->setChecked(on);
        }
    }
    void click(const char *text) const
    {
        Q_FOREACH (QPushButton *button, dialog->findChildren<QPushButton *>()) {
            if (button->text() == QLatin1String(text))
                button->click();
        }
    }
    void find(const char *text) const
    {
        field("Find &what:")->setText(QLatin1String(text));
        click("&Find");
    }
    void replace(const char *text) const
    {
        field("Replace &what:")->setText(QLatin1String(text));
        click("&Replace");
    }
    void goTo(int position)
    {
        QTextCursor cursor = editor.textCursor();
        cursor.setPosition(position);
        editor.setTextCursor(cursor);
    }
    int row() const { return editor.textCursor().blockNumber(); }
    QString selected() const { return editor.textCursor().selectedText(); }
    QString line(int number) const { return editor.document()->findBlockByNumber(number).text(); }

    WGCodeEditer editor;
    WFindDialog *dialog;
};

} // namespace

void TestFind::theDialogIsMadeAtTheFirstUseAndKept()
{
    WGCodeEditer editor(nullptr);
    QVERIFY(!Desk::theDialog());
    editor.findAndReplace();
    WFindDialog *dialog = Desk::theDialog();
    QVERIFY(dialog);
    QVERIFY(dialog->isVisible());
    QVERIFY(!dialog->isModal());
    QVERIFY(!dialog->parent());
    dialog->close();
    QVERIFY(!dialog->isVisible());
    editor.findAndReplace();
    QVERIFY(dialog->isVisible());
    QCOMPARE(Desk::theDialog(), dialog);
}

void TestFind::theDialogGoesWithTheEditor()
{
    QScopedPointer<WGCodeEditer> editor(new WGCodeEditer(nullptr));
    editor->findAndReplace();
    const QPointer<WFindDialog> dialog(Desk::theDialog());
    QVERIFY(dialog);
    editor.reset();
    QVERIFY(!dialog);
}

void TestFind::findsFromTheCursorOnAndSelectsTheMatch()
{
    Desk desk;
    desk.find("Y");
    QCOMPARE(desk.row(), 0);
    QCOMPARE(desk.selected(), QString::fromLatin1("Y"));
    desk.find("Y");
    QCOMPARE(desk.row(), 1);
    desk.goTo(0);
    desk.find("Y3");
    QCOMPARE(desk.row(), 2);
    QCOMPARE(desk.selected(), QString::fromLatin1("Y3"));
    QCOMPARE(desk.editor.toPlainText(), QString::fromLatin1(program));
}

void TestFind::backwardGoesTowardsTheStart()
{
    Desk desk;
    desk.goTo(int(qstrlen(program)));
    desk.check("Search &backward", true);
    desk.find("Y");
    QCOMPARE(desk.row(), 2);
    desk.find("Y");
    QCOMPARE(desk.row(), 1);
    desk.check("Search &backward", false);
    desk.find("Y");
    QCOMPARE(desk.row(), 2);
}

void TestFind::matchCaseWorksInBothDirections_data()
{
    QTest::addColumn<bool>("backward");
    QTest::newRow("forward") << false;
    QTest::newRow("backward") << true;
}

void TestFind::matchCaseWorksInBothDirections()
{
    QFETCH(bool, backward);
    const int start = backward ? int(qstrlen(program)) : 0;
    Desk desk;
    desk.check("Search &backward", backward);
    desk.goTo(start);
    desk.find("x10");
    QCOMPARE(desk.row(), backward ? 2 : 0);
    QCOMPARE(desk.selected(), QString::fromLatin1("X10"));
    desk.goTo(start);
    desk.check("Match &case", true);
    desk.find("x10");
    QCOMPARE(desk.row(), 1);
    QCOMPARE(desk.selected(), QString::fromLatin1("x10"));
    desk.goTo(start);
    desk.find("X10");
    QCOMPARE(desk.row(), backward ? 2 : 0);
}

void TestFind::theEndTellsAndDoesNotWrapAround()
{
    Desk desk;
    desk.find("Y3");
    const int position = desk.editor.textCursor().position();
    // The same search fails again and again until the cursor moves.
    for (int i = 0; i < 2; ++i) {
        ModalDriver driver;
        driver.press(QMessageBox::Ok);
        desk.find("Y3");
        QVERIFY2(driver.finished(), driver.report());
        const ModalDriver::Box box = driver.boxes().first();
        QCOMPARE(box.title, QString::fromLatin1("Find"));
        QCOMPARE(box.text, QString::fromLatin1("Find finished!\n Can't find any information!"));
        QCOMPARE(box.icon, QMessageBox::Information);
        QCOMPARE(int(box.buttons), int(QMessageBox::Ok));
        QCOMPARE(box.parent, static_cast<QWidget *>(desk.dialog));
        QCOMPARE(desk.editor.textCursor().position(), position);
        QCOMPARE(desk.selected(), QString::fromLatin1("Y3"));
    }
    desk.goTo(0);
    ModalDriver driver;
    desk.find("Y3");
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(desk.row(), 2);
}

void TestFind::theStartTellsInTheSameWords()
{
    Desk desk;
    desk.check("Search &backward", true);
    desk.goTo(5);
    ModalDriver driver;
    driver.press(QMessageBox::Ok);
    desk.find("Y3");
    QVERIFY2(driver.finished(), driver.report());
    const ModalDriver::Box box = driver.boxes().first();
    QCOMPARE(box.title, QString::fromLatin1("Find"));
    QCOMPARE(box.text, QString::fromLatin1("Find finished!\n Can't find any information!"));
    QCOMPARE(box.icon, QMessageBox::Information);
    QCOMPARE(int(box.buttons), int(QMessageBox::Ok));
    QCOMPARE(box.parent, static_cast<QWidget *>(desk.dialog));
    QCOMPARE(desk.editor.textCursor().position(), 5);
}

void TestFind::theWordsAreNotTranslated_data()
{
    QTest::addColumn<bool>("backward");
    QTest::newRow("forward") << false;
    QTest::newRow("backward") << true;
}

void TestFind::theWordsAreNotTranslated()
{
    QFETCH(bool, backward);
    const MarkTranslator translator(QLatin1String("#"));
    // A host's own search, with no dialog made yet.
    WGCodeEditer editor(nullptr);
    ModalDriver driver;
    driver.press(QMessageBox::Ok);
    if (backward)
        editor.findPrevious(QLatin1String("X"), Qt::CaseInsensitive);
    else
        editor.findNext(QLatin1String("X"), Qt::CaseInsensitive);
    QVERIFY2(driver.finished(), driver.report());
    const ModalDriver::Box box = driver.boxes().first();
    QCOMPARE(box.title, QString::fromLatin1("Find"));
    QCOMPARE(box.text, QString::fromLatin1("Find finished!\n Can't find any information!"));
    QVERIFY(!box.parent);
    QVERIFY(!Desk::theDialog());
}

void TestFind::replaceBeforeAnySearchDoesNothing()
{
    Desk desk;
    desk.editor.selectAll();
    desk.field("Find &what:")->setText(QLatin1String("X10"));
    desk.replace("X20");
    QCOMPARE(desk.editor.toPlainText(), QString::fromLatin1(program));
}

void TestFind::replaceAfterAHitReplacesOnceAndDoesNotSearchOn()
{
    Desk desk;
    desk.find("X10");
    desk.replace("X20.5");
    QCOMPARE(desk.line(0), QString::fromLatin1("G01 X20.5 Y1"));
    QCOMPARE(desk.row(), 0);
    QCOMPARE(desk.selected(), QString());
    desk.replace("X20.5");
    QCOMPARE(desk.editor.toPlainText(),
             QString::fromLatin1("G01 X20.5 Y1\nG02 x10 Y2\nG03 X10 Y3"));
    desk.find("X10");
    desk.replace("X20.5");
    QCOMPARE(desk.line(1), QString::fromLatin1("G02 X20.5 Y2"));
}

void TestFind::anEmptyReplacementDeletesTheMatch()
{
    Desk desk;
    desk.find("X10 ");
    desk.replace("");
    QCOMPARE(desk.line(0), QString::fromLatin1("G01 Y1"));
}

void TestFind::replaceAfterAFailedSearchDoesNothing()
{
    Desk desk;
    desk.find("X10");
    ModalDriver driver;
    driver.press(QMessageBox::Ok);
    desk.find("Z");
    QVERIFY2(driver.finished(), driver.report());
    // The first match is still selected.
    QCOMPARE(desk.selected(), QString::fromLatin1("X10"));
    desk.replace("X20");
    QCOMPARE(desk.editor.toPlainText(), QString::fromLatin1(program));
}

void TestFind::replaceGoesToTheCursorIfThatWasMoved()
{
    Desk desk;
    desk.find("X10");
    desk.goTo(0);
    desk.replace("N1 ");
    QCOMPARE(desk.line(0), QString::fromLatin1("N1 G01 X10 Y1"));

    desk.find("X10");
    QTextCursor cursor = desk.editor.textCursor();
    cursor.setPosition(0);
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    desk.editor.setTextCursor(cursor);
    desk.replace("M30");
    QCOMPARE(desk.line(0), QString::fromLatin1("M30"));
}

void TestFind::replaceCanBeUndone()
{
    Desk desk;
    desk.find("X10");
    desk.replace("X20");
    desk.editor.undo();
    QCOMPARE(desk.editor.toPlainText(), QString::fromLatin1(program));
}

FILARIX_TEST_MAIN(TestFind)
#include "tst_find.moc"
