// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "contrast.h"
#include "filarixtest.h"
#include "guards/finddialogfitter.h"
#include "guards/finddialogguide.h"
#include "guards/programwalk.h"
#include "modaldriver.h"
#include "wgcodeediter.h"

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QScopedPointer>
#include <QScrollBar>
#include <QSignalSpy>

class TestFindDialogGuide : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void searchStartsAtTheCursor();
    void searchStartsWhereTheOperatorLooks();
    void backwardSearchStartsWhereTheOperatorLooks();
    void searchBehindALongLoadFindsTheFirst();
    void hitAtTheEndIsLeft();
    void searchGoesOnAtTheTopAfterAWord();
    void backwardSearchGoesOnAtTheEndAfterAWord();
    void wordEndsWithTheNextSearch();
    void whatIsNowhereIsToldByTheLibrary();
    void overlappingHitsComeInTurn();
    void caseCountsAsTheDialogSays();
    void replacementFollowsTheHit();
    void eachEditorKeepsItsOwnDialog();
    void dialogThatWasThereIsTaken();
    void hitCanBeRead_data();
    void hitCanBeRead();
    void readableColoursStay();
    void hitIsNotBelowTheDialog();
    void editorMayGoInTheLibrarysBox();

private:
    QWidget *dialog() const;
    void find(const QString &text, bool isBackward = false) const;
    int row() const { return m_editor->getCurRowNumber(); }
    QString selected() const { return m_editor->textCursor().selectedText(); }

    QScopedPointer<WGCodeEditer> m_editor;
    FindDialogGuide *m_guide;
    QScopedPointer<QSignalSpy> m_told;
};

namespace {

/// X1 to X\a count, and S450 on each hundredth line.
QString program(int count)
{
    QString text;
    for (int i = 1; i <= count; ++i)
        text += i % 100 == 0 ? QString("S450\n") : QString("G01 X%1\n").arg(i);
    return text;
}

QWidgetList dialogs()
{
    QWidgetList found;
    Q_FOREACH (QWidget *widget, QApplication::topLevelWidgets()) {
        if (widget->inherits("WFindDialog"))
            found.append(widget);
    }
    return found;
}

void enter(QWidget *dialog, const QString &text)
{
    dialog->findChild<QLineEdit *>()->setText(text);
    dialog->findChildren<QPushButton *>().first()->click();
}

} // namespace

void TestFindDialogGuide::init()
{
    FilarixTest::init();
    qRegisterMetaType<Message::Tone>("Message::Tone");
    m_editor.reset(new WGCodeEditer(nullptr));
    m_guide = new FindDialogGuide(m_editor.data());
    m_told.reset(new QSignalSpy(m_guide, SIGNAL(told(QString, Message::Tone, QString))));
    m_editor->setPlainText(program(1000));
    m_editor->setGeometry(0, 0, 400, 300);
    m_editor->show();
    QVERIFY(TestCompat::waitForExposed(m_editor.data()));
}

void TestFindDialogGuide::cleanup()
{
    m_told.reset();
    m_editor.reset();
    FilarixTest::cleanup();
}

QWidget *TestFindDialogGuide::dialog() const
{
    if (dialogs().isEmpty())
        FindDialogFitter::show(m_editor.data(), m_editor.data());
    return dialogs().first();
}

void TestFindDialogGuide::find(const QString &text, bool isBackward) const
{
    dialog()->findChildren<QCheckBox *>().at(1)->setChecked(isBackward);
    enter(dialog(), text);
}

void TestFindDialogGuide::searchStartsAtTheCursor()
{
    find("s450");
    QCOMPARE(row(), 100);
    QCOMPARE(selected(), QString("S450"));
    find("s450");
    QCOMPARE(row(), 200);
    find("s450", true);
    QCOMPARE(row(), 100);
    QCOMPARE(m_told->size(), 0);
}

void TestFindDialogGuide::searchStartsWhereTheOperatorLooks()
{
    m_editor->verticalScrollBar()->setValue(449);
    QVERIFY(!ProgramWalk::isCursorSeen(m_editor.data()));
    find("s450");
    QCOMPARE(row(), 500);
    QCOMPARE(m_told->size(), 0);
    // On the first visible line itself.
    m_editor->moveCursor(QTextCursor::End);
    m_editor->verticalScrollBar()->setValue(299);
    QCOMPARE(ProgramWalk::topLine(m_editor.data()), 300);
    find("s450");
    QCOMPARE(row(), 300);
}

void TestFindDialogGuide::backwardSearchStartsWhereTheOperatorLooks()
{
    m_editor->moveCursor(QTextCursor::End);
    m_editor->verticalScrollBar()->setValue(449);
    find("s450", true);
    QCOMPARE(row(), 400);
    m_editor->moveCursor(QTextCursor::End);
    m_editor->verticalScrollBar()->setValue(500 - ProgramWalk::bottomLine(m_editor.data())
                                            + ProgramWalk::topLine(m_editor.data()) - 1);
    find("s450", true);
    QCOMPARE(row(), 500);
    QCOMPARE(m_told->size(), 0);
}

// The load leaves cursor and view at the end, where the library finds nothing any more.
void TestFindDialogGuide::searchBehindALongLoadFindsTheFirst()
{
    m_editor->clear();
    m_editor->readGCode(program(5000));
    QVERIFY(m_editor->textCursor().atEnd());
    const int top = ProgramWalk::topLine(m_editor.data());
    find("G01");
    QCOMPARE(row(), top);
    QCOMPARE(m_told->size(), 0);
    m_editor->moveCursor(QTextCursor::End);
    find("X42");
    QCOMPARE(row(), 42);
    QCOMPARE(m_told->size(), 1);
}

// A hit at the end is no reason to begin in the same place again.
void TestFindDialogGuide::hitAtTheEndIsLeft()
{
    m_editor->setPlainText("S450\nG01\nS450");
    find("S450");
    find("S450");
    QCOMPARE(row(), 3);
    QVERIFY(m_editor->textCursor().atEnd());
    find("S450");
    QCOMPARE(row(), 1);
    QCOMPARE(m_told->size(), 1);
    find("S450", true);
    QCOMPARE(row(), 3);
    QCOMPARE(m_told->size(), 2);
}

void TestFindDialogGuide::searchGoesOnAtTheTopAfterAWord()
{
    m_editor->moveCursor(QTextCursor::End);
    find("x7");
    QCOMPARE(row(), 7);
    QCOMPARE(selected(), QString("X7"));
    QCOMPARE(m_told->size(), 1);
    QCOMPARE(m_told->at(0).at(0).toString(), QString("End reached, went on at the top: line 7."));
    QCOMPARE(m_told->at(0).at(1).value<Message::Tone>(), Message::Information);

    // The only one is found again.
    find("x999");
    QCOMPARE(m_told->size(), 1);
    find("x999");
    QCOMPARE(row(), 999);
    QCOMPARE(m_told->size(), 2);
}

void TestFindDialogGuide::backwardSearchGoesOnAtTheEndAfterAWord()
{
    find("s450", true);
    QCOMPARE(row(), 1000);
    QCOMPARE(m_told->size(), 1);
    QCOMPARE(m_told->at(0).at(0).toString(),
             QString("Start reached, went on at the end: line 1000."));
}

void TestFindDialogGuide::wordEndsWithTheNextSearch()
{
    QSignalSpy ended(m_guide, SIGNAL(causeEnded(QString)));
    find("s450", true);
    QCOMPARE(ended.size(), 0);
    find("s450", true);
    QCOMPARE(row(), 900);
    QCOMPARE(ended.size(), 1);
    QCOMPARE(ended.at(0).at(0).toString(), m_told->at(0).at(2).toString());
}

void TestFindDialogGuide::whatIsNowhereIsToldByTheLibrary()
{
    m_editor->verticalScrollBar()->setValue(449);
    QString text;
    ModalDriver driver;
    driver.press(QMessageBox::Ok);
    find("Z99");
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(driver.boxes().first().text, QString("Find finished!\n Can't find any information!"));
    // The operator stays where the program was looked at.
    QCOMPARE(row(), 1);
    QCOMPARE(ProgramWalk::topLine(m_editor.data()), 450);
    QCOMPARE(m_told->size(), 0);
}

// Backward, a hit may begin before the cursor and end behind it, as in the library.
void TestFindDialogGuide::overlappingHitsComeInTurn()
{
    const QString text = "x0000000x\n00x";
    const char *const words[] = {"00", "000", "x0", "0"};
    for (const char *word : words) {
        for (int position = 0; position <= text.size(); ++position) {
            for (bool isBackward : {false, true}) {
                m_editor->setPlainText(text);
                QTextCursor cursor = m_editor->textCursor();
                cursor.setPosition(position);
                const QTextDocument::FindFlags flags =
                    isBackward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
                const QTextCursor hit = m_editor->document()->find(word, cursor, flags);
                // At an end the guide starts at another place.
                if (hit.isNull() || cursor.atStart() || cursor.atEnd())
                    continue;
                m_editor->setTextCursor(cursor);
                find(word, isBackward);
                QCOMPARE(m_editor->textCursor().selectionStart(), hit.selectionStart());
                QCOMPARE(m_editor->textCursor().selectionEnd(), hit.selectionEnd());
            }
        }
    }
    QCOMPARE(m_told->size(), 0);
}

void TestFindDialogGuide::caseCountsAsTheDialogSays()
{
    dialog()->findChildren<QCheckBox *>().at(0)->setChecked(true);
    ModalDriver driver;
    driver.press(QMessageBox::Ok);
    find("s450");
    QVERIFY2(driver.finished(), driver.report());
    find("S450");
    QCOMPARE(row(), 100);
}

void TestFindDialogGuide::replacementFollowsTheHit()
{
    m_editor->moveCursor(QTextCursor::End);
    find("s450");
    QCOMPARE(row(), 1000);
    dialog()->findChildren<QLineEdit *>().at(1)->setText("S500");
    dialog()->findChildren<QPushButton *>().at(1)->click();
    QCOMPARE(m_editor->getLineText(999), QString("S500"));
}

void TestFindDialogGuide::eachEditorKeepsItsOwnDialog()
{
    WGCodeEditer other(nullptr);
    other.setPlainText("G00\nG28\n");
    other.findAndReplace();
    QWidget *const its = dialogs().first();
    ModalDriver driver;
    driver.press(QMessageBox::Ok);
    enter(its, "S450");
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(row(), 1);
    enter(its, "G28");
    QCOMPARE(other.getCurRowNumber(), 2);
    // Without a guide nothing goes on at the top.
    driver.press(QMessageBox::Ok);
    enter(its, "G00");
    QVERIFY2(driver.finished(), driver.report());
}

void TestFindDialogGuide::dialogThatWasThereIsTaken()
{
    WGCodeEditer editor(nullptr);
    editor.setPlainText("G00\nG28\n");
    editor.findAndReplace();
    QWidget *const its = dialogs().first();
    new FindDialogGuide(&editor);
    editor.moveCursor(QTextCursor::End);
    enter(its, "G00");
    QCOMPARE(editor.getCurRowNumber(), 1);
    QCOMPARE(editor.textCursor().selectedText(), QString("G00"));
}

void TestFindDialogGuide::hitCanBeRead_data()
{
    QTest::addColumn<QColor>("base");
    QTest::addColumn<QColor>("text");
    QTest::newRow("white letters") << QColor(Qt::white) << QColor(Qt::white);
    QTest::newRow("black letters") << QColor(Qt::black) << QColor(Qt::black);
}

// As it is drawn while the dialog has the focus.
void TestFindDialogGuide::hitCanBeRead()
{
    QFETCH(QColor, base);
    QFETCH(QColor, text);
    const QPalette before = QApplication::palette();
    QPalette palette = before;
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::HighlightedText, text);
    QApplication::setPalette(palette);
    WGCodeEditer editor(nullptr);
    new FindDialogGuide(&editor);
    editor.setPlainText("G01 X12.50\n");
    editor.resize(400, 200);
    editor.show();
    QVERIFY(TestCompat::waitForExposed(&editor));
    editor.findNext("G01 X12.50", Qt::CaseSensitive);
    m_editor->activateWindow();
    m_editor->setFocus();
    QTRY_VERIFY(!editor.hasFocus());
    QTextCursor cursor = editor.textCursor();
    cursor.setPosition(0);
    QRect hit = editor.cursorRect(cursor);
    hit = hit.united(editor.cursorRect());
    const double contrast = Contrast::drawn(editor.viewport(), hit.adjusted(1, 1, -2, -1));
    QApplication::setPalette(before);
    QVERIFY2(contrast >= Contrast::textContrast, qPrintable(QString::number(contrast)));
}

void TestFindDialogGuide::readableColoursStay()
{
    WGCodeEditer editor(nullptr);
    QPalette palette = editor.palette();
    palette.setColor(QPalette::Highlight, QColor(0, 0, 96));
    palette.setColor(QPalette::HighlightedText, QColor(255, 255, 128));
    editor.setPalette(palette);
    new FindDialogGuide(&editor);
    QCOMPARE(editor.palette().color(QPalette::Inactive, QPalette::HighlightedText),
             QColor(255, 255, 128));
    QCOMPARE(editor.palette().color(QPalette::Active, QPalette::HighlightedText),
             QColor(255, 255, 128));
}

void TestFindDialogGuide::hitIsNotBelowTheDialog()
{
    // Over the line on which the hit would come into view.
    dialog()->resize(160, dialog()->height());
    dialog()->move(m_editor->mapToGlobal(QPoint(0, 0)));
    find("s450");
    QCOMPARE(row(), 100);
    QTextCursor cursor = m_editor->textCursor();
    cursor.setPosition(cursor.selectionStart());
    QRect hit = m_editor->cursorRect(cursor);
    hit = hit.united(m_editor->cursorRect());
    hit.translate(m_editor->viewport()->mapToGlobal(QPoint()));
    QTRY_VERIFY(!dialog()->frameGeometry().intersects(hit));
}

void TestFindDialogGuide::editorMayGoInTheLibrarysBox()
{
    ModalDriver driver;
    driver.then([this](QWidget *box) {
        m_editor.take()->deleteLater();
        box->close();
    });
    find("Z99");
    QVERIFY2(driver.finished(), driver.report());
    QTRY_VERIFY(dialogs().isEmpty());
    QCOMPARE(m_told->size(), 0);
}

FILARIX_TEST_MAIN(TestFindDialogGuide)
#include "tst_finddialogguide.moc"
