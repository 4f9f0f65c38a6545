// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "look/look.h"
#include "modaldriver.h"
#include "shell/questiondialog.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>

class TestQuestionDialog : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void keyIsTheAnswer();
    void anyOtherWayOutIsHarmless_data();
    void anyOtherWayOutIsHarmless();
    void keysAreForGloves();
    void thingsStandInLinesOfTheirOwn();
    void nameWithoutRoomLosesItsMiddle();

private:
    static Question question()
    {
        return {"Save", "coil.cnc is there already.", {"Cancel", "Write over it", "Other name"}};
    }
};

void TestQuestionDialog::keyIsTheAnswer()
{
    DialogQuestioner questioner;
    for (int i = 0; i < 3; ++i) {
        ModalDriver driver;
        driver.then([i](QWidget *dialog) {
            const QString name = QString("answer%1").arg(i);
            QTest::mouseClick(dialog->findChild<QPushButton *>(name), Qt::LeftButton);
        });
        QCOMPARE(questioner.ask(question()), i);
        QVERIFY2(driver.finished(), driver.report());
    }
}

void TestQuestionDialog::anyOtherWayOutIsHarmless_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("closed") << 0;
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Escape") << int(Qt::Key_Escape);
    QTest::newRow("quit") << -1;
}

void TestQuestionDialog::anyOtherWayOutIsHarmless()
{
    QFETCH(int, key);
    DialogQuestioner questioner;
    ModalDriver driver;
    driver.then([key](QWidget *dialog) {
        if (key > 0)
            QTest::keyClick(dialog, Qt::Key(key));
        else if (key == 0)
            dialog->close();
        else
            static_cast<QDialog *>(dialog)->reject();
    });
    QCOMPARE(questioner.ask(question()), 0);
    QVERIFY2(driver.finished(), driver.report());
}

void TestQuestionDialog::keysAreForGloves()
{
    QuestionDialog dialog(question());
    dialog.show();
    const QList<QPushButton *> keys = dialog.findChildren<QPushButton *>();
    QCOMPARE(keys.size(), 3);
    QVERIFY(keys.first()->isDefault());
    for (QPushButton *key : keys) {
        QVERIFY(key->height() >= Look::smallestTouch);
        QVERIFY(dialog.rect().contains(key->geometry()));
    }
}

void TestQuestionDialog::thingsStandInLinesOfTheirOwn()
{
    Question about = question();
    about.things = QStringList{"coil.cnc, lines: 4", "Variables, values: 24"};
    QuestionDialog dialog(about);
    dialog.show();
    const QList<QLabel *> lines = dialog.findChildren<QLabel *>("thing");
    QCOMPARE(lines.size(), 2);
    QCOMPARE(lines.at(0)->text(), about.things.at(0));
    QCOMPARE(lines.at(1)->text(), about.things.at(1));
    QVERIFY(lines.at(0)->geometry().bottom() < lines.at(1)->geometry().top());
    QVERIFY(dialog.findChild<QPushButton *>("answer0")->y() > lines.at(1)->geometry().bottom());
}

// Two names may differ at the end alone.
void TestQuestionDialog::nameWithoutRoomLosesItsMiddle()
{
    Question about = question();
    about.things = QStringList(QString(251, 'x') + "last.cnc");
    QuestionDialog dialog(about);
    const QString shown = dialog.findChild<QLabel *>("thing")->text();
    QVERIFY(shown.size() < about.things.first().size());
    QVERIFY2(shown.endsWith("last.cnc"), qPrintable(shown));
}

FILARIX_TEST_MAIN(TestQuestionDialog)
#include "tst_questiondialog.moc"
