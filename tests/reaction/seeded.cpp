// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "stopwatch.h"
#include "watchedapplication.h"

#include <QMouseEvent>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTimer>
#include <QVBoxLayout>

namespace {

const int lateMs = 150;
const int never = -1;
// No fewer count as a measurement.
const int touches = 30;
const int windowSide = 300;
const int waitMs = 60000;

/// Shows a press after a while, or never.
class LateKey : public QPushButton
{
public:
    explicit LateKey(int afterMs) : QPushButton(QLatin1String("Late")), m_afterMs(afterMs) {}

protected:
    void mousePressEvent(QMouseEvent *) override
    {
        if (m_afterMs != never)
            QTimer::singleShot(m_afterMs, this, [this] { setDown(true); });
    }

private:
    const int m_afterMs;
};

/// Chooses the row that is touched after a while.
class LateTable : public QTableWidget
{
public:
    explicit LateTable(int afterMs) : QTableWidget(4, 1), m_afterMs(afterMs)
    {
        for (int row = 0; row < rowCount(); ++row)
            setItem(row, 0, new QTableWidgetItem(QString::number(row)));
    }

protected:
    void mousePressEvent(QMouseEvent *event) override
    {
        const int row = rowAt(event->pos().y());
        QTimer::singleShot(m_afterMs, this, [this, row] { selectRow(row); });
    }
    void mouseReleaseEvent(QMouseEvent *) override {}

private:
    const int m_afterMs;
};

} // namespace

/// Whether the stop watch finds what answers late, or not at all.
class TestSeeded : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void lateKeyIsTooSlow();
    void lateRowIsTooSlow();
    void missingAnswerIsNamed();
    void fewAnswersAreNoMeasurement();

private:
    static QStringList faultsOf(QWidget *touched, Stopwatch::Chooser choose, int count = touches);
};

/// Takes \a touched over.
QStringList TestSeeded::faultsOf(QWidget *touched, Stopwatch::Chooser choose, int count)
{
    QWidget window;
    (new QVBoxLayout(&window))->addWidget(touched);
    window.resize(windowSide, windowSide);
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
        return {"no window"};
    Stopwatch watch(static_cast<WatchedApplication *>(qApp));
    QSignalSpy measured(&watch, &Stopwatch::measured);
    watch.targets()->setWindow(&window);
    watch.measure(choose, count);
    if (!measured.wait(waitMs))
        return {"no end"};
    return watch.judge("seeded");
}

void TestSeeded::lateKeyIsTooSlow()
{
    QCOMPARE(faultsOf(new LateKey(lateMs), &Targets::key), QStringList("too slow: seeded"));
}

void TestSeeded::lateRowIsTooSlow()
{
    QCOMPARE(faultsOf(new LateTable(lateMs), &Targets::row), QStringList("too slow: seeded"));
}

void TestSeeded::missingAnswerIsNamed()
{
    const QStringList faults = faultsOf(new LateKey(never), &Targets::key);
    QCOMPARE(faults.value(0), QString("no answer to a touch of Late"));
    QVERIFY(faults.contains("too few: seeded"));
}

void TestSeeded::fewAnswersAreNoMeasurement()
{
    const QString fault("too few: seeded");
    QVERIFY(faultsOf(new QPushButton("Quick"), &Targets::key, touches - 1).contains(fault));
    QVERIFY(!faultsOf(new QPushButton("Quick"), &Targets::key).contains(fault));
}

int main(int argc, char **argv)
{
    WatchedApplication application(argc, argv);
    TestSeeded test;
    return filarixTestMain(&test, argc, argv);
}

#include "seeded.moc"
