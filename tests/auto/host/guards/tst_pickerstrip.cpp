// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "devicelog.h"
#include "filarixtest.h"
#include "guards/pickerstrip.h"

#include <QLabel>
#include <QLineEdit>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QToolButton>

#include <cmath>

class TestPickerStrip : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void wideStripHasAKeyForEachOrder();
    void narrowStripGoesFromOrderToOrder();
    void narrowStripTakesTheFilterAway();
    void heightIsThatOfItsRows_data();
    void heightIsThatOfItsRows();
    void keysAreForAGlove_data();
    void keysAreForAGlove();
    void pagesAreAskedFor();
    void countsAreTold();
    void nothingIsWithoutAName();
    void whiteStandsOutFromBothGrounds_data();
    void whiteStandsOutFromBothGrounds();

private:
    QList<QToolButton *> keys(const char *name) const
    {
        return m_strip->findChildren<QToolButton *>(name);
    }
    QLineEdit *filter() const { return m_strip->findChild<QLineEdit *>(); }
    QString count() const { return m_strip->findChild<QLabel *>("pickerCount")->text(); }

    QScopedPointer<PickerStrip> m_strip;
};

void TestPickerStrip::init()
{
    FilarixTest::init();
    DeviceLog::reset();
    m_strip.reset(new PickerStrip(WindowDialogs::OpenPicker, nullptr));
    m_strip->show();
}

void TestPickerStrip::cleanup()
{
    qApp->setProperty("hmiDotsPerInch", QVariant());
    m_strip.reset();
    FilarixTest::cleanup();
}

void TestPickerStrip::wideStripHasAKeyForEachOrder()
{
    m_strip->fit(800);
    QCOMPARE(keys("pickerOrder").size(), 4);
    QVERIFY(keys("pickerOrder").at(0)->isChecked());
    QVERIFY(!keys("pickerNextOrder").first()->isVisible());
    QSignalSpy chosen(m_strip.data(), SIGNAL(orderChosen()));
    for (int i = 0; i < 4; ++i) {
        QVERIFY(keys("pickerOrder").at(i)->isVisible());
        keys("pickerOrder").at(i)->click();
        QCOMPARE(int(m_strip->order()), i);
        QVERIFY(keys("pickerOrder").at(i)->isChecked());
        QVERIFY(!keys("pickerOrder").at((i + 1) % 4)->isChecked());
    }
    // Pressed once more it stays.
    keys("pickerOrder").at(3)->click();
    QVERIFY(keys("pickerOrder").at(3)->isChecked());
    QCOMPARE(chosen.count(), 5);
}

void TestPickerStrip::narrowStripGoesFromOrderToOrder()
{
    m_strip->fit(480);
    QVERIFY(!keys("pickerOrder").first()->isVisible());
    QToolButton *key = keys("pickerNextOrder").first();
    QStringList texts;
    for (int i = 0; i < 5; ++i) {
        texts.append(key->text());
        key->click();
    }
    QCOMPARE(texts, QStringList() << "Last used"
                                  << "Name"
                                  << "Date"
                                  << "Size"
                                  << "Last used");
}

void TestPickerStrip::narrowStripTakesTheFilterAway()
{
    m_strip->fit(480);
    QToolButton *all = keys("pickerAll").first();
    QVERIFY(!all->isVisible());
    QSignalSpy changed(m_strip.data(), SIGNAL(filterChanged()));
    m_strip->look("coil");
    QCOMPARE(m_strip->filter(), QString("coil"));
    QVERIFY(all->isVisible());
    QVERIFY(!keys("pickerNextOrder").first()->isVisible());
    all->click();
    QCOMPARE(m_strip->filter(), QString());
    QVERIFY(!all->isVisible());
    QCOMPARE(changed.count(), 2);
}

void TestPickerStrip::heightIsThatOfItsRows_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<bool>("isHigh");
    QTest::newRow("upright") << 272 << true;
    QTest::newRow("small") << 480 << false;
    QTest::newRow("wide") << 800 << false;
}

void TestPickerStrip::heightIsThatOfItsRows()
{
    QFETCH(int, width);
    QFETCH(bool, isHigh);
    m_strip->fit(width);
    QCOMPARE(m_strip->sizeHint().height() > 60, isHigh);
    QVERIFY(m_strip->minimumSizeHint().width() <= width);
}

void TestPickerStrip::keysAreForAGlove_data()
{
    QTest::addColumn<double>("dotsPerInch");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("side");
    QTest::newRow("nothing told") << 0.0 << 800 << 48;
    QTest::newRow("no sensible number") << 4000.0 << 800 << 48;
    QTest::newRow("coarse") << 85.0 << 800 << 48;
    QTest::newRow("4.3 inches, upright") << 128.0 << 272 << 48;
    QTest::newRow("5 inches, upright") << 187.0 << 480 << 67;
    QTest::newRow("7 inches") << 170.0 << 1024 << 61;
    QTest::newRow("finer than there is room") << 350.0 << 480 << 68;
}

void TestPickerStrip::keysAreForAGlove()
{
    QFETCH(double, dotsPerInch);
    QFETCH(int, width);
    QFETCH(int, side);
    if (dotsPerInch > 0)
        qApp->setProperty("hmiDotsPerInch", dotsPerInch);
    m_strip->fit(width);
    const QList<QToolButton *> all = m_strip->findChildren<QToolButton *>();
    for (const QToolButton *key : all)
        QVERIFY(key->width() >= side && key->height() == side);
    QCOMPARE(keys("pickerPage").first()->size(), QSize(side, side));
    QCOMPARE(filter()->height(), side);
    QVERIFY(m_strip->sizeHint().height() >= side);
    QVERIFY2(m_strip->minimumSizeHint().width() <= width,
             qPrintable(QString::number(m_strip->minimumSizeHint().width())));
}

void TestPickerStrip::pagesAreAskedFor()
{
    QSignalSpy wanted(m_strip.data(), SIGNAL(pageWanted(int)));
    const QList<QToolButton *> pages = keys("pickerPage");
    m_strip->setPaging(false, true);
    pages.first()->click();
    pages.last()->click();
    m_strip->setPaging(true, false);
    pages.first()->click();
    pages.last()->click();
    QCOMPARE(wanted.count(), 2);
    QCOMPARE(wanted.at(0).first().toInt(), 1);
    QCOMPARE(wanted.at(1).first().toInt(), -1);
}

void TestPickerStrip::countsAreTold()
{
    m_strip->setCount(3, 3);
    QCOMPARE(count(), QString("Programs: 3"));
    m_strip->setCount(1, 3);
    QCOMPARE(count(), QString("1 of 3 programs"));
    m_strip->setReadOnly();
    m_strip->setCount(2, 3);
    QCOMPARE(count(), QString("The folder is read-only."));
}

void TestPickerStrip::nothingIsWithoutAName()
{
    const QList<QToolButton *> all = m_strip->findChildren<QToolButton *>();
    for (const QToolButton *key : all)
        QVERIFY(!key->text().isEmpty() || !key->accessibleName().isEmpty());
    QVERIFY(!filter()->accessibleName().isEmpty());
}

void TestPickerStrip::whiteStandsOutFromBothGrounds_data()
{
    QTest::addColumn<int>("picker");
    QTest::newRow("open") << int(WindowDialogs::OpenPicker);
    QTest::newRow("remove") << int(WindowDialogs::RemovePicker);
}

void TestPickerStrip::whiteStandsOutFromBothGrounds()
{
    QFETCH(int, picker);
    const PickerStrip strip(WindowDialogs::Picker(picker), nullptr);
    const QColor ground = strip.palette().color(QPalette::Window);
    const auto linear = [](qreal part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    const qreal light = 0.2126 * linear(ground.redF()) + 0.7152 * linear(ground.greenF())
                        + 0.0722 * linear(ground.blueF());
    QVERIFY(1.05 / (light + 0.05) >= 4.5);
    QCOMPARE(strip.palette().color(QPalette::WindowText), QColor(Qt::white));
}

FILARIX_TEST_MAIN(TestPickerStrip)
#include "tst_pickerstrip.moc"
