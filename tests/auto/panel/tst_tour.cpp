// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "display/panelglass.h"
#include "filarixtest.h"
#include "tour.h"

#include <QDialog>
#include <QDir>
#include <QImage>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>

class TestTour : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void stepsRunInTheirOrder();
    void aTouchPressesWhatIsThereThen();
    void whatIsNotThereIsAnError();
    void aStepWaitsForItsCondition();
    void aPictureWaitsForRest();
    void stepsGoOnWhileADialogWaits();
    void aDialogThatIsNotThereIsAnError();
    void picturesAreNumbered();
    void picturesAreToldWithoutAFolder();
    void aFolderThatCannotBeMadeIsAnError();

private:
    static void run(Tour *tour);
};

void TestTour::run(Tour *tour)
{
    QSignalSpy finished(tour, SIGNAL(finished()));
    tour->start(1);
    QTRY_COMPARE(finished.size(), 1);
}

void TestTour::stepsRunInTheirOrder()
{
    QWidget panel;
    Tour tour(&panel);
    QString order;
    tour.then([&order] { order += 'a'; });
    tour.then([&order] { order += 'b'; });
    QSignalSpy arrived(&tour, SIGNAL(arrived(QString)));
    tour.picture("first");
    tour.then([&order] { order += 'c'; });
    run(&tour);
    QCOMPARE(order, QString("abc"));
    QCOMPARE(arrived.size(), 1);
    QCOMPARE(arrived.at(0).at(0).toString(), QString("first"));
    QCOMPARE(tour.error(), QString());
}

void TestTour::aTouchPressesWhatIsThereThen()
{
    QWidget panel;
    QPushButton *key = nullptr;
    int presses = 0;
    Tour tour(&panel);
    tour.press([&key] { return key; });
    tour.then([] {});
    key = new QPushButton("key", &panel);
    connect(key, &QPushButton::clicked, this, [&presses] { ++presses; });
    run(&tour);
    QTRY_COMPARE(presses, 1);
    QCOMPARE(tour.error(), QString());
}

void TestTour::whatIsNotThereIsAnError()
{
    QWidget panel;
    Tour tour(&panel);
    bool wentOn = false;
    tour.press([] { return nullptr; });
    // The touch is made between two steps.
    tour.waitUntil([&tour] { return !tour.error().isEmpty(); });
    tour.then([&wentOn] { wentOn = true; });
    run(&tour);
    QVERIFY2(tour.error().contains("not on the screen"), qPrintable(tour.error()));
    QVERIFY(!wentOn);
}

void TestTour::aStepWaitsForItsCondition()
{
    QWidget panel;
    Tour tour(&panel);
    int asked = 0;
    int before = 0;
    tour.waitUntil([&asked] { return ++asked == 5; });
    tour.then([&] { before = asked; });
    run(&tour);
    QCOMPARE(before, 5);
    QCOMPARE(asked, 5);
}

void TestTour::aPictureWaitsForRest()
{
    QWidget panel;
    Tour tour(&panel);
    int asked = 0;
    int before = 0;
    tour.restBeforePictures([&asked] { return ++asked == 5; });
    connect(&tour, &Tour::arrived, this, [&] { before = asked; });
    tour.picture("rest");
    run(&tour);
    QCOMPARE(before, 5);
}

void TestTour::stepsGoOnWhileADialogWaits()
{
    QWidget panel;
    Tour tour(&panel);
    int result = -1;
    tour.then([&result] {
        QTimer::singleShot(0, qApp, [&result] {
            QDialog dialog;
            result = dialog.exec();
        });
    });
    tour.waitUntil([] { return QApplication::activeModalWidget() != nullptr; });
    tour.closeDialog();
    tour.waitUntil([&result] { return result >= 0; });
    run(&tour);
    QCOMPARE(result, int(QDialog::Rejected));
    QCOMPARE(tour.error(), QString());
}

void TestTour::aDialogThatIsNotThereIsAnError()
{
    QWidget panel;
    Tour tour(&panel);
    tour.closeDialog();
    run(&tour);
    QVERIFY2(tour.error().contains("expects a dialog"), qPrintable(tour.error()));
}

void TestTour::picturesAreNumbered()
{
    const QString folder = home() + "/pictures/here";
    PanelGlass glass(QSize(480, 272), 90);
    QWidget panel;
    panel.setPalette(QPalette(Qt::red));
    panel.setFixedSize(480, 272);
    glass.present(&panel);
    QVERIFY(TestCompat::waitForExposed(&panel));
    Tour tour(&panel, folder, &glass);
    tour.picture("one");
    tour.picture("two");
    run(&tour);
    QCOMPARE(tour.error(), QString());
    QCOMPARE(QDir(folder).entryList(QDir::Files), QStringList({"01-one.png", "02-two.png"}));
    const QImage picture(folder + "/01-one.png");
    QCOMPARE(picture.size(), QSize(272, 480));
    QCOMPARE(picture.pixelColor(100, 100), QColor(Qt::red));
}

void TestTour::picturesAreToldWithoutAFolder()
{
    PanelGlass glass(QSize(480, 272), 0);
    QWidget panel;
    panel.setFixedSize(480, 272);
    glass.present(&panel);
    QVERIFY(TestCompat::waitForExposed(&panel));
    Tour tour(&panel, QString(), &glass);
    QStringList told;
    connect(&tour, &Tour::taken, this, [&](const QString &name, const QImage &picture) {
        told.append(name);
        QCOMPARE(picture.size(), panel.size());
    });
    tour.picture("one");
    tour.picture("two");
    run(&tour);
    QCOMPARE(tour.error(), QString());
    QCOMPARE(told, QStringList({"one", "two"}));
}

void TestTour::aFolderThatCannotBeMadeIsAnError()
{
    writeFile(home() + "/file", QByteArray());
    QWidget panel;
    Tour tour(&panel, home() + "/file/pictures");
    QVERIFY2(tour.error().contains("/file/pictures"), qPrintable(tour.error()));
}

FILARIX_TEST_MAIN(TestTour)
#include "tst_tour.moc"
