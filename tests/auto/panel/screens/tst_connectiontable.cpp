// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "combolineedit.h"
#include "conneditor.h"
#include "devicelog.h"
#include "display/primarysurface.h"
#include "filarixtest.h"
#include "modaldriver.h"
#include "screens/connectiontable.h"

#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScopeGuard>
#include <QScopedPointer>
#include <QScreen>
#include <QScrollArea>

class TestConnectionTable : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void namesAndPortsStandBesideTheAddresses();
    void addressThatIsNotSetIsShownAsThat();
    void columnOfPortsIsThereForPortsOnly();
    void onlyEnteredAddressesAreChanges();
    void sameAddressEnteredAgainIsAChange();
    void cancelledTableIsNotAccepted();
    void keypadIsToldTheName();
    void namesAreWholeWhereOtherColumnsCanGiveWay();
    void fitsWithAllOfTheAddressInSight_data();
    void fitsWithAllOfTheAddressInSight();

private:
    QStringList texts(const QWidget *dialog, const char *name) const;
    void write(const QByteArray &ofSecond);

    QString m_file;
    ConnectionFile::Contents m_contents;
    QScopedPointer<ConnectionTable> m_table;
    QRect m_own;
};

void TestConnectionTable::init()
{
    FilarixTest::init();
    DeviceLog::reset();
    m_own = QGuiApplication::primaryScreen()->availableGeometry();
    m_file = home() + "/copy.ini";
    write("10.0.0.2:4001");
}

void TestConnectionTable::cleanup()
{
    m_table.reset();
    PrimarySurface::set(QGuiApplication::primaryScreen()->geometry(), m_own);
    FilarixTest::cleanup();
}

// A file of its own each time, for the toolkit's settings remember files by their paths.
void TestConnectionTable::write(const QByteArray &ofSecond)
{
    m_file += ".ini";
    writeFile(m_file, "[General]\nConnect%200=Spindle\nConnect%201=Tension\n"
                      "Spindlenew%20IP=10.0.0.1\nTensionnew%20IP="
                          + ofSecond + "\nconnect%20count=2\n");
    m_contents = ConnectionFile::read(m_file);
    m_table.reset(
        new ConnectionTable(m_file, m_contents, {"Heading", "Name", "TCP port", "Unset"}));
}

QStringList TestConnectionTable::texts(const QWidget *dialog, const char *name) const
{
    QStringList all;
    for (const QLabel *label : dialog->findChildren<QLabel *>(QLatin1String(name)))
        all.append(label->text());
    return all;
}

void TestConnectionTable::namesAndPortsStandBesideTheAddresses()
{
    ModalDriver driver;
    driver.then([this](QWidget *dialog) {
        const auto end = qScopeGuard([dialog] { dialog->close(); });
        QCOMPARE(texts(dialog, "heading"), QStringList("Heading"));
        QCOMPARE(texts(dialog, "connectionName"), QStringList({"Name", "Spindle", "Tension"}));
        QCOMPARE(texts(dialog, "port"), QStringList({"TCP port", "", ":4001"}));
        const QList<ComboLineEdit *> fields = dialog->findChildren<ComboLineEdit *>();
        QCOMPARE(fields.at(1)->text(), QString("10.0.0.2"));
        const QList<QLabel *> names = dialog->findChildren<QLabel *>("connectionName");
        const QList<QLabel *> ports = dialog->findChildren<QLabel *>("port");
        QCOMPARE(names.at(2)->parent(), fields.at(1)->parent());
        QVERIFY(names.at(2)->geometry().right() < fields.at(1)->geometry().left());
        QVERIFY(ports.at(2)->geometry().left() > fields.at(1)->geometry().right());
    });
    QVERIFY(!m_table->exec());
    QVERIFY2(driver.finished(), driver.report());
}

// The library fills in an address of its own.
void TestConnectionTable::addressThatIsNotSetIsShownAsThat()
{
    write("");
    DeviceLog::cancel();
    DeviceLog::acceptWith("10.0.0.7");
    ModalDriver driver;
    driver.then([this](QWidget *dialog) {
        const auto end = qScopeGuard([dialog] { dialog->close(); });
        ComboLineEdit *field = dialog->findChildren<ComboLineEdit *>().at(1);
        const QLabel *unset = field->findChild<QLabel *>("unset");
        QCOMPARE(texts(dialog, "unset"), QStringList("Unset"));
        QVERIFY(unset->isVisible());
        QCOMPARE(field->text(), QString());
        QVERIFY(field->rect().adjusted(1, 1, -1, -1).contains(unset->geometry()));
        QTest::mouseClick(field, Qt::LeftButton);
        QVERIFY(DeviceLog::calls().contains("CharacterKeypad.setText()")
                || DeviceLog::calls().contains("NumericKeypad.setText()"));
        QVERIFY(unset->isVisible());
        QTest::mouseClick(field, Qt::LeftButton);
        QCOMPARE(field->text(), QString("10.0.0.7"));
        QVERIFY(!unset->isVisible());
    });
    QVERIFY(!m_table->exec());
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(m_table->changes().size(), 1);
    QCOMPARE(m_table->changes().value(1), QString("10.0.0.7"));
}

void TestConnectionTable::columnOfPortsIsThereForPortsOnly()
{
    write("10.0.0.2");
    ModalDriver driver;
    driver.then([this](QWidget *dialog) {
        const auto end = qScopeGuard([dialog] { dialog->close(); });
        QCOMPARE(texts(dialog, "port"), QStringList());
    });
    m_table->exec();
    QVERIFY2(driver.finished(), driver.report());
}

void TestConnectionTable::onlyEnteredAddressesAreChanges()
{
    DeviceLog::acceptWith("10.0.0.9");
    ModalDriver driver;
    driver.then([](QWidget *dialog) {
        QTest::mouseClick(dialog->findChildren<ComboLineEdit *>().at(0), Qt::LeftButton);
        static_cast<ConnEditor *>(dialog)->on_save_clicked();
    });
    QVERIFY(m_table->exec());
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(m_table->changes().size(), 1);
    QCOMPARE(m_table->changes().value(0), QString("10.0.0.9"));
}

void TestConnectionTable::sameAddressEnteredAgainIsAChange()
{
    DeviceLog::acceptWith("10.0.0.2");
    ModalDriver driver;
    driver.then([](QWidget *dialog) {
        QTest::mouseClick(dialog->findChildren<ComboLineEdit *>().at(1), Qt::LeftButton);
        static_cast<ConnEditor *>(dialog)->on_save_clicked();
    });
    QVERIFY(m_table->exec());
    QCOMPARE(m_table->changes().value(1), QString("10.0.0.2"));
    QCOMPARE(ConnectionFile::changedAddresses(m_contents, m_table->changes()).at(1),
             QString("10.0.0.2:4001"));
}

void TestConnectionTable::cancelledTableIsNotAccepted()
{
    ModalDriver driver;
    driver.reject();
    QVERIFY(!m_table->exec());
    QVERIFY2(driver.finished(), driver.report());
}

void TestConnectionTable::keypadIsToldTheName()
{
    ModalDriver driver;
    driver.then([](QWidget *dialog) {
        const auto end = qScopeGuard([dialog] { dialog->close(); });
        const ComboLineEdit *field = dialog->findChildren<ComboLineEdit *>().at(1);
        QCOMPARE(field->property("hmiName").toString(), QString("Tension"));
        QCOMPARE(field->accessibleName(), QString("Tension"));
    });
    m_table->exec();
    QVERIFY2(driver.finished(), driver.report());
}

void TestConnectionTable::namesAreWholeWhereOtherColumnsCanGiveWay()
{
    const QRect upright(0, 0, 480, 800);
    PrimarySurface::set(upright, upright);
    m_file += ".ini";
    writeFile(m_file, "[General]\nConnect%200=Tension unit 2\n"
                      "Tension%20unit%202new%20IP=10.0.0.1:4001\nconnect%20count=1\n");
    m_contents = ConnectionFile::read(m_file);
    m_table.reset(
        new ConnectionTable(m_file, m_contents, {"Heading", "Name", "TCP port", "Unset"}));
    ModalDriver driver;
    driver.then([this](QWidget *dialog) {
        const auto end = qScopeGuard([dialog] { dialog->close(); });
        QCOMPARE(texts(dialog, "connectionName").last(), QString("Tension unit 2"));
    });
    m_table->exec();
    QVERIFY2(driver.finished(), driver.report());
}

void TestConnectionTable::fitsWithAllOfTheAddressInSight_data()
{
    QTest::addColumn<QSize>("panel");
    for (const QSize &size : {QSize(480, 272), QSize(272, 480), QSize(480, 800), QSize(800, 480)})
        QTest::addRow("%dx%d", size.width(), size.height()) << size;
}

void TestConnectionTable::fitsWithAllOfTheAddressInSight()
{
    QFETCH(QSize, panel);
    PrimarySurface::set(QRect(QPoint(), panel), QRect(QPoint(), panel));
    write("192.168.125.222:4001");
    ModalDriver driver;
    QStringList faults;
    driver.then([&](QWidget *dialog) {
        const auto end = qScopeGuard([dialog] { dialog->close(); });
        const auto expect = [&faults](bool isTrue, const char *what) {
            if (!isTrue)
                faults.append(what);
        };
        expect(dialog->width() <= panel.width() && dialog->height() <= panel.height(), "size");
        const ComboLineEdit *field = dialog->findChildren<ComboLineEdit *>().at(1);
        const QWidget *viewport = dialog->findChild<QScrollArea *>()->viewport();
        const int right = field->mapTo(viewport, QPoint(field->width(), 0)).x();
        expect(right <= viewport->width(), "the field is cut");
        expect(field->fontMetrics().horizontalAdvance(field->text()) < field->width(), "text");
        expect(field->height() >= 38, "height of a row");
        for (const QPushButton *button : dialog->findChildren<QPushButton *>()) {
            expect(button->height() >= 40, "height of a button");
            expect(dialog->rect().contains(button->geometry()), "place of a button");
        }
        // Beside the rows is room for the edge of the dialog.
        expect(viewport->mapTo(dialog, QPoint()).x() >= 2, "edge");
    });
    m_table->exec();
    QVERIFY2(driver.finished(), driver.report());
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(", ")));
}

FILARIX_TEST_MAIN(TestConnectionTable)
#include "tst_connectiontable.moc"
