// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "messagebox.h"
#include "shell/questionkeeper.h"

#include <QDialog>
#include <QPushButton>
#include <QTimer>

#include <functional>

namespace {

typedef std::function<int(QWidget *parent)> Ask;
typedef std::function<void(QMessageBox *box, QDialog *parent)> End;

int askYesOrNo(QWidget *)
{
    return QMessageBox::question(nullptr, "Clear", "Remove all?",
                                 QMessageBox::Yes | QMessageBox::No);
}

int askYesOrCancel(QWidget *)
{
    return QMessageBox::warning(nullptr, "Application", "Open again?",
                                QMessageBox::Yes | QMessageBox::Cancel);
}

int askForChanges(QWidget *)
{
    return QMessageBox::warning(nullptr, "Application", "Save your changes?",
                                QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
}

int askOfTheLibrary(QWidget *parent)
{
    return MessageBox::warning(parent, "Delete", "Are you sure?",
                               QMessageBox::Yes | QMessageBox::No, QMessageBox::NoButton);
}

int askOfTheLibraryWithCancel(QWidget *parent)
{
    return MessageBox::warning(parent, "Delete", "Are you sure?",
                               QMessageBox::Yes | QMessageBox::Cancel, QMessageBox::NoButton);
}

int askByABox(QWidget *)
{
    QMessageBox box(QMessageBox::Warning, "File names", "Rename?",
                    QMessageBox::Yes | QMessageBox::No);
    return box.exec();
}

int tellOnly(QWidget *)
{
    return QMessageBox::information(nullptr, "Remove file", "Success.", QMessageBox::Yes);
}

/// The answer to a question that comes up in the program's loop and ends there by \a end.
int answerTo(const Ask &ask, const End &end)
{
    QDialog parent;
    int answer = 0;
    QTimer::singleShot(0, [&] {
        parent.show();
        QTimer::singleShot(0, [&] {
            end(qobject_cast<QMessageBox *>(QApplication::activeModalWidget()), &parent);
        });
        answer = ask(&parent);
        QCoreApplication::quit();
    });
    QCoreApplication::exec();
    return answer;
}

} // namespace

Q_DECLARE_METATYPE(Ask)
Q_DECLARE_METATYPE(End)

class TestQuestionKeeper : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void whatNobodyAnsweredIsHarmless_data();
    void whatNobodyAnsweredIsHarmless();
    void aQuestionAfterTheEndIsHarmless();
    void whatWasPressedCounts_data();
    void whatWasPressedCounts();
    void aBoxThatIsAskedTwiceForgetsTheFirstAnswer();
    void aButtonThatIsFirstOfItsKindCounts();
};

void TestQuestionKeeper::init()
{
    FilarixTest::init();
    // The parents here are shown before the toolkit's loop runs.
    QGuiApplication::setQuitOnLastWindowClosed(false);
}

void TestQuestionKeeper::whatNobodyAnsweredIsHarmless_data()
{
    QTest::addColumn<Ask>("ask");
    QTest::addColumn<End>("end");
    QTest::addColumn<QList<int>>("harmless");
    const struct
    {
        const char *name;
        Ask ask;
        QList<int> harmless;
    } questions[] = {
        {"yes or no", askYesOrNo, {QMessageBox::No, QMessageBox::NoButton}},
        {"yes or cancel", askYesOrCancel, {QMessageBox::Cancel}},
        {"unsaved changes", askForChanges, {QMessageBox::Cancel}},
        {"the library's", askOfTheLibrary, {QMessageBox::No}},
        {"the library's with cancel", askOfTheLibraryWithCancel, {QMessageBox::Cancel}},
        {"a box of its own", askByABox, {QMessageBox::No}},
        {"a piece of news", tellOnly, {QMessageBox::Cancel, QMessageBox::Yes}},
    };
    const struct
    {
        const char *name;
        End end;
    } ends[] = {
        {"quit", [](QMessageBox *, QDialog *) { QCoreApplication::quit(); }},
        {"hidden", [](QMessageBox *box, QDialog *) { box->hide(); }},
        {"rejected", [](QMessageBox *box, QDialog *) { box->reject(); }},
        {"closed", [](QMessageBox *box, QDialog *) { box->close(); }},
        {"Escape", [](QMessageBox *box, QDialog *) { QTest::keyClick(box, Qt::Key_Escape); }},
    };
    for (const auto &question : questions) {
        for (const auto &end : ends)
            QTest::addRow("%s, %s", question.name, end.name)
                << question.ask << end.end << question.harmless;
    }
    QTest::newRow("the library's, its parent rejected")
        << Ask(askOfTheLibrary) << End([](QMessageBox *, QDialog *parent) { parent->reject(); })
        << QList<int>{QMessageBox::No};
}

void TestQuestionKeeper::whatNobodyAnsweredIsHarmless()
{
    QFETCH(Ask, ask);
    QFETCH(End, end);
    QFETCH(QList<int>, harmless);
    const QuestionKeeper keeper;
    const int answer = answerTo(ask, end);
    QVERIFY2(harmless.contains(answer), QByteArray::number(answer, 16).constData());
}

// The program's loop has ended, and what asked goes on to its next question.
void TestQuestionKeeper::aQuestionAfterTheEndIsHarmless()
{
    const QuestionKeeper keeper;
    int first = 0;
    int second = 0;
    QDialog parent;
    QTimer::singleShot(0, [&] {
        QTimer::singleShot(0, [] { QCoreApplication::quit(); });
        first = askOfTheLibrary(&parent);
        second = askOfTheLibrary(&parent);
    });
    QCoreApplication::exec();
    QCOMPARE(first, int(QMessageBox::No));
    QCOMPARE(second, int(QMessageBox::No));
}

void TestQuestionKeeper::whatWasPressedCounts_data()
{
    QTest::addColumn<Ask>("ask");
    QTest::addColumn<int>("button");
    QTest::newRow("yes") << Ask(askYesOrNo) << int(QMessageBox::Yes);
    QTest::newRow("no") << Ask(askYesOrNo) << int(QMessageBox::No);
    QTest::newRow("save") << Ask(askForChanges) << int(QMessageBox::Save);
    QTest::newRow("discard") << Ask(askForChanges) << int(QMessageBox::Discard);
    QTest::newRow("the library's yes") << Ask(askOfTheLibrary) << int(QMessageBox::Yes);
    QTest::newRow("the library's no") << Ask(askOfTheLibrary) << int(QMessageBox::No);
    QTest::newRow("a box of its own") << Ask(askByABox) << int(QMessageBox::Yes);
}

void TestQuestionKeeper::whatWasPressedCounts()
{
    QFETCH(Ask, ask);
    QFETCH(int, button);
    const QuestionKeeper keeper;
    const int answer = answerTo(ask, [button](QMessageBox *box, QDialog *) {
        box->button(QMessageBox::StandardButton(button))->click();
    });
    QCOMPARE(answer, button);
}

void TestQuestionKeeper::aBoxThatIsAskedTwiceForgetsTheFirstAnswer()
{
    const QuestionKeeper keeper;
    QMessageBox box(QMessageBox::Question, "Twice", "Go on?", QMessageBox::Yes | QMessageBox::No);
    const Ask ask = [&box](QWidget *) { return box.exec(); };
    QCOMPARE(answerTo(ask, [](QMessageBox *asked,
                              QDialog *) { asked->button(QMessageBox::Yes)->click(); }),
             int(QMessageBox::Yes));
    QCOMPARE(answerTo(ask, [](QMessageBox *, QDialog *) { QCoreApplication::quit(); }),
             int(QMessageBox::No));
    QCOMPARE(answerTo(ask, [](QMessageBox *asked, QDialog *) { asked->reject(); }),
             int(QMessageBox::No));
}

void TestQuestionKeeper::aButtonThatIsFirstOfItsKindCounts()
{
    const QuestionKeeper keeper;
    QMessageBox box(QMessageBox::Question, "Kind", "Which?");
    QPushButton *first = box.addButton("First", QMessageBox::AcceptRole);
    box.addButton("Second", QMessageBox::RejectRole);
    const int answer = answerTo([&box](QWidget *) { return box.exec(); },
                                [first](QMessageBox *, QDialog *) { first->click(); });
    QCOMPARE(answer, 0);
    QCOMPARE(box.clickedButton(), static_cast<QAbstractButton *>(first));
}

FILARIX_TEST_MAIN(TestQuestionKeeper)
#include "tst_questionkeeper.moc"
