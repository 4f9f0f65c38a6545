// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "look/panelstyle.h"
#include "modaldriver.h"
#include "programs/downloadfacts.h"
#include "screens/downloadquestion.h"

#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>

class TestDownloadQuestion : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void showsWhatAProgramIsToldBy();
    void keysAnswer_data();
    void keysAnswer();
    void returnDoesNotSend();
    void forbiddenProgramHasItsKeyOff();
    void longNamesAreToldApartByTheirEnds();
    void keysAreForThumbs();
    void questionerAsksByThem();
};

static Question asked(const QString &name = "coil.cnc")
{
    DownloadFacts facts;
    facts.program.name = name;
    facts.program.lines = 20000;
    facts.program.hash = QByteArray::fromHex("3f2a91c0ffff");
    return facts.question();
}

static QString text(const DownloadQuestion &question, const char *name)
{
    return question.findChild<QLabel *>(name)->text();
}

void TestDownloadQuestion::initTestCase()
{
    QApplication::setStyle(new PanelStyle);
}

void TestDownloadQuestion::showsWhatAProgramIsToldBy()
{
    const DownloadQuestion question(asked());
    QCOMPARE(text(question, "name"), QString("coil.cnc"));
    QCOMPARE(text(question, "lines"), QString("20000"));
    QCOMPARE(text(question, "checksum"), QString("3F2A 91C0"));
}

void TestDownloadQuestion::keysAnswer_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("result");
    QTest::newRow("send") << "send" << int(QDialog::Accepted);
    QTest::newRow("cancel") << "cancel" << int(QDialog::Rejected);
}

void TestDownloadQuestion::keysAnswer()
{
    QFETCH(QString, key);
    DownloadQuestion question(asked());
    question.show();
    QTest::mouseClick(question.findChild<QPushButton *>(key), Qt::LeftButton);
    QVERIFY(!question.isVisible());
    QTEST(question.result(), "result");
}

void TestDownloadQuestion::returnDoesNotSend()
{
    DownloadQuestion question(asked());
    question.show();
    QTest::keyClick(&question, Qt::Key_Return);
    QCOMPARE(question.result(), int(QDialog::Rejected));
}

// The key stays where it is: another one in its place would be pressed for it.
void TestDownloadQuestion::forbiddenProgramHasItsKeyOff()
{
    DownloadFacts facts;
    facts.verdict.state = ProgramVerdict::Checked;
    facts.verdict.errors = 3;
    facts.verdict.forbidsSending = true;
    DownloadQuestion question(facts.question());
    question.show();
    QPushButton *send = question.findChild<QPushButton *>("send");
    QCOMPARE(send->text(), QString("Send"));
    QVERIFY(!send->isEnabled());
    QTest::mouseClick(send, Qt::LeftButton);
    QVERIFY(question.isVisible());
    QCOMPARE(text(question, "check"), QString("Errors: 3, warnings: 0"));
}

void TestDownloadQuestion::longNamesAreToldApartByTheirEnds()
{
    const QString name = QString("a").repeated(120);
    const DownloadQuestion first(asked(name + "-1.cnc"));
    const DownloadQuestion second(asked(name + "-2.cnc"));
    QVERIFY(text(first, "name").endsWith("-1.cnc"));
    QVERIFY(text(second, "name").endsWith("-2.cnc"));
    QVERIFY(first.sizeHint().width() <= QGuiApplication::primaryScreen()->size().width());
}

void TestDownloadQuestion::keysAreForThumbs()
{
    DownloadQuestion question(asked());
    // As small as on the smallest panel.
    question.resize(472, 264);
    question.show();
    QVERIFY(TestCompat::waitForExposed(&question));
    QCOMPARE(question.size(), QSize(472, 264));
    const QList<QPushButton *> keys = question.findChildren<QPushButton *>();
    QCOMPARE(keys.size(), 2);
    for (QPushButton *key : keys) {
        QVERIFY(key->height() >= 34 && key->width() >= 100);
        QVERIFY(question.rect().contains(key->geometry()));
    }
    const QList<QLabel *> labels = question.findChildren<QLabel *>();
    for (QLabel *label : labels) {
        QVERIFY2(label->width() >= label->sizeHint().width(), qPrintable(label->text()));
        QVERIFY2(label->height() >= label->fontMetrics().height(), qPrintable(label->text()));
    }
}

void TestDownloadQuestion::questionerAsksByThem()
{
    DownloadQuestioner questioner;
    ModalDriver driver;
    for (const char *key : {"send", "cancel"}) {
        driver.then([key](QWidget *dialog) {
            QVERIFY(qobject_cast<DownloadQuestion *>(dialog));
            QTest::mouseClick(dialog->findChild<QPushButton *>(key), Qt::LeftButton);
        });
    }
    QCOMPARE(questioner.ask(asked()), 1);
    QCOMPARE(questioner.ask(asked()), 0);
    // One that is closed by something else is answered harmlessly.
    driver.reject();
    QCOMPARE(questioner.ask(asked()), 0);
    // Without facts it is any other question.
    driver.then([](QWidget *dialog) {
        QVERIFY(qobject_cast<QuestionDialog *>(dialog));
        QTest::mouseClick(dialog->findChild<QPushButton *>("answer2"), Qt::LeftButton);
    });
    QCOMPARE(questioner.ask({"Save", "Save it?", {"No", "Yes", "Elsewhere"}}), 2);
    QVERIFY2(driver.finished(), driver.report());
}

FILARIX_TEST_MAIN(TestDownloadQuestion)
#include "tst_downloadquestion.moc"
