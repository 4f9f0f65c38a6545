// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "messagebox.h"
#include "modaldriver.h"

#include <QDialog>
#include <QPointer>

class TestMessageBox : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void eachFunctionShowsItsOwnBox_data();
    void eachFunctionShowsItsOwnBox();
    void emptyTitleBecomesTheModulesOwn_data();
    void emptyTitleBecomesTheModulesOwn();
    void ownTitleIsTranslatedInTheClassesContext();
    void criticalIgnoresTheButtonsGiven();
    void warningLeavesTheDefaultToTheToolkit();
    void warningGivesTheButtonPressed_data();
    void warningGivesTheButtonPressed();
    void boxesAreModalAndDeleteThemselves_data();
    void boxesAreModalAndDeleteThemselves();
    void boxClosesWithItsParentDialog();
    void boxDeletedWithItsParentGivesNoButton();
    void parentWithoutRejectedIsRefusedWithAWarning();
    void noParentIsNoReasonForAWarning();
};

namespace {

enum Function { About, Critical, Warning };

int show(int function, QWidget *parent, const QString &title)
{
    switch (function) {
    case About:
        MessageBox::about(parent, title, "Text.");
        return 0;
    case Critical:
        MessageBox::critical(parent, title, "Text.", QMessageBox::Ok, QMessageBox::NoButton);
        return 0;
    default:
        return MessageBox::warning(parent, title, "Text.", QMessageBox::Ok, QMessageBox::NoButton);
    }
}

void addFunctionRows()
{
    QTest::addColumn<int>("function");
    QTest::addColumn<int>("icon");
    QTest::newRow("about") << int(About) << int(QMessageBox::NoIcon);
    QTest::newRow("critical") << int(Critical) << int(QMessageBox::Critical);
    QTest::newRow("warning") << int(Warning) << int(QMessageBox::Warning);
}

} // namespace

void TestMessageBox::eachFunctionShowsItsOwnBox_data()
{
    addFunctionRows();
}

void TestMessageBox::eachFunctionShowsItsOwnBox()
{
    QFETCH(int, function);
    QFETCH(int, icon);
    QDialog parent;
    ModalDriver driver;
    driver.press(QMessageBox::Ok);
    show(function, &parent, "Title");
    QVERIFY2(driver.finished(), driver.report());
    const ModalDriver::Box box = driver.boxes().value(0);
    QCOMPARE(box.title, QString("Title"));
    QCOMPARE(box.text, QString("Text."));
    QCOMPARE(int(box.icon), icon);
    QCOMPARE(int(box.buttons), int(QMessageBox::Ok));
    QCOMPARE(box.parent, static_cast<QWidget *>(&parent));
}

void TestMessageBox::emptyTitleBecomesTheModulesOwn_data()
{
    addFunctionRows();
}

void TestMessageBox::emptyTitleBecomesTheModulesOwn()
{
    QFETCH(int, function);
    ModalDriver driver;
    driver.press(QMessageBox::Ok);
    driver.press(QMessageBox::Ok);
    show(function, nullptr, QString());
    show(function, nullptr, "");
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(driver.boxes().value(0).title, QString("About Corvane"));
    QCOMPARE(driver.boxes().value(1).title, QString("About Corvane"));
}

void TestMessageBox::ownTitleIsTranslatedInTheClassesContext()
{
    const TestCompat::MarkingTranslator translator("MessageBox");
    ModalDriver driver;
    driver.press(QMessageBox::Ok);
    MessageBox::about(nullptr, QString(), "Text.");
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(driver.boxes().value(0).title, QString("About Corvane*"));
}

void TestMessageBox::criticalIgnoresTheButtonsGiven()
{
    ModalDriver driver;
    driver.press(QMessageBox::Ok);
    MessageBox::critical(nullptr, "Title", "Text.", QMessageBox::Yes | QMessageBox::No,
                         QMessageBox::No);
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(int(driver.boxes().value(0).buttons), int(QMessageBox::Ok));
}

// The button does not exist yet when it is named, so what Return presses is what it would press
// without a name.
void TestMessageBox::warningLeavesTheDefaultToTheToolkit()
{
    ModalDriver driver;
    driver.press(QMessageBox::No);
    driver.press(QMessageBox::No);
    MessageBox::warning(nullptr, "Title", "Text.", QMessageBox::Yes | QMessageBox::No,
                        QMessageBox::No);
    MessageBox::warning(nullptr, "Title", "Text.", QMessageBox::Yes | QMessageBox::No,
                        QMessageBox::NoButton);
    QVERIFY2(driver.finished(), driver.report());
    const ModalDriver::Box named = driver.boxes().value(0);
    QCOMPARE(int(named.buttons), int(QMessageBox::Yes | QMessageBox::No));
    QVERIFY(named.defaultButton != QMessageBox::No);
    QCOMPARE(int(named.defaultButton), int(driver.boxes().value(1).defaultButton));
}

void TestMessageBox::warningGivesTheButtonPressed_data()
{
    QTest::addColumn<int>("button");
    QTest::newRow("yes") << int(QMessageBox::Yes);
    QTest::newRow("no") << int(QMessageBox::No);
    QTest::newRow("cancel") << int(QMessageBox::Cancel);
}

void TestMessageBox::warningGivesTheButtonPressed()
{
    QFETCH(int, button);
    ModalDriver driver;
    driver.press(QMessageBox::StandardButton(button));
    const int answer = MessageBox::warning(nullptr, "Title", "Text.",
                                           QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel,
                                           QMessageBox::NoButton);
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(answer, button);
}

void TestMessageBox::boxesAreModalAndDeleteThemselves_data()
{
    addFunctionRows();
}

void TestMessageBox::boxesAreModalAndDeleteThemselves()
{
    QFETCH(int, function);
    QPointer<QWidget> box;
    ModalDriver driver;
    driver.then([&box](QWidget *widget) {
        box = widget;
        QVERIFY(widget->isModal());
        QCOMPARE(QByteArray(widget->metaObject()->className()), QByteArray("MessageBox"));
        static_cast<QDialog *>(widget)->reject();
    });
    show(function, nullptr, "Title");
    QVERIFY2(driver.finished(), driver.report());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(box.isNull());
}

void TestMessageBox::boxClosesWithItsParentDialog()
{
    QDialog parent;
    parent.show();
    ModalDriver driver;
    driver.then([&parent](QWidget *) { parent.reject(); });
    const int answer = MessageBox::warning(
        &parent, "Title", "Text.", QMessageBox::Yes | QMessageBox::No, QMessageBox::NoButton);
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(answer, 0);
    QVERIFY(!parent.isVisible());
}

void TestMessageBox::boxDeletedWithItsParentGivesNoButton()
{
    QDialog *parent = new QDialog;
    ModalDriver driver;
    driver.then([parent](QWidget *) { delete parent; });
    const int answer = MessageBox::warning(
        parent, "Title", "Text.", QMessageBox::Yes | QMessageBox::No, QMessageBox::NoButton);
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(answer, 0);
}

void TestMessageBox::parentWithoutRejectedIsRefusedWithAWarning()
{
    StrictMessages::expect("QWidget::rejected()");
    QWidget parent;
    ModalDriver driver;
    driver.press(QMessageBox::Yes);
    const int answer = MessageBox::warning(
        &parent, "Title", "Text.", QMessageBox::Yes | QMessageBox::No, QMessageBox::NoButton);
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(answer, int(QMessageBox::Yes));
    QCOMPARE(StrictMessages::expectedSeen().size(), 1);
}

// cleanup() fails this test if there is one.
void TestMessageBox::noParentIsNoReasonForAWarning()
{
    ModalDriver driver;
    driver.press(QMessageBox::Ok);
    MessageBox::about(nullptr, "Title", "Text.");
    QVERIFY2(driver.finished(), driver.report());
    QVERIFY(!driver.boxes().value(0).parent);
}

FILARIX_TEST_MAIN(TestMessageBox)
#include "tst_messagebox.moc"
