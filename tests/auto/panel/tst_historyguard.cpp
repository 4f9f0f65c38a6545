// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "devicelog.h"
#include "filarixtest.h"
#include "historyguard.h"
#include "importmanage.h"
#include "messagebox.h"
#include "modaldriver.h"
#include "programhistory.h"

#include <QDialog>
#include <QPushButton>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QToolButton>

#include <functional>

class TestHistoryGuard : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void dialogMakesTheHistoryLook();
    void touchThatLosesAVersionWaits_data();
    void touchThatLosesAVersionWaits();
    void otherTouchesGoThrough_data();
    void otherTouchesGoThrough();

private:
    void unsettle();

    QScopedPointer<ProgramHistory> m_history;
    QScopedPointer<HistoryGuard> m_guard;
    QScopedPointer<QSignalSpy> m_told;
};

void TestHistoryGuard::init()
{
    FilarixTest::init();
    DeviceLog::reset();
    programDir();
    m_history.reset(new ProgramHistory(programDir(), home() + "/hmi/history"));
    m_guard.reset(new HistoryGuard(m_history.data()));
    qRegisterMetaType<Message::Tone>();
    m_told.reset(new QSignalSpy(m_guard.data(), SIGNAL(told(QString, Message::Tone, QString))));
    QTRY_VERIFY(m_history->isSettled());
}

void TestHistoryGuard::cleanup()
{
    m_told.reset();
    m_guard.reset();
    m_history.reset();
    const QWidgetList topLevels = QApplication::topLevelWidgets();
    for (QWidget *widget : topLevels) {
        // The window leaves the buttons that no bar takes to nobody.
        if (qobject_cast<QToolButton *>(widget))
            delete widget;
    }
    FilarixTest::cleanup();
}

// Until the event loop runs again, and a while longer: a program was saved just now.
void TestHistoryGuard::unsettle()
{
    writeFile(programDir() + "/coil.cnc", "just saved\n");
    m_history->scan();
    QVERIFY(!m_history->isSettled());
}

void TestHistoryGuard::dialogMakesTheHistoryLook()
{
    QDialog dialog;
    writeFile(programDir() + "/coil.cnc", "one\n");
    dialog.show();
    QVERIFY(!m_history->isSettled());
    QTRY_VERIFY(m_history->isSettled());
    QCOMPARE(m_history->versions().size(), 1);
}

typedef std::function<int()> Ask;
Q_DECLARE_METATYPE(Ask)

void TestHistoryGuard::touchThatLosesAVersionWaits_data()
{
    QTest::addColumn<Ask>("ask");
    QTest::addColumn<int>("answer");
    QTest::newRow("cover or delete in the manager") << Ask([] {
        ImportManage manager(nullptr);
        return MessageBox::warning(&manager, "Hmi Delete", "Are you sure to delete a?",
                                   QMessageBox::Yes | QMessageBox::No, QMessageBox::NoButton);
    }) << int(QMessageBox::Yes);
}

void TestHistoryGuard::touchThatLosesAVersionWaits()
{
    StrictMessages::expect("slot_checkUSB");
    QFETCH(Ask, ask);
    QFETCH(int, answer);
    ModalDriver driver;
    driver.then([&](QWidget *widget) {
        QMessageBox *box = qobject_cast<QMessageBox *>(widget);
        QAbstractButton *button = box->button(QMessageBox::StandardButton(answer));
        unsettle();
        QTest::mouseClick(button, Qt::LeftButton);
        QTest::keyClick(button, Qt::Key_Space);
        QVERIFY(box->isVisible());
        QCOMPARE(m_told->size(), 2);
        QTRY_VERIFY(m_history->isSettled());
        // The one that would have been lost is kept now.
        QCOMPARE(m_history->versions().size(), 1);
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY(!box->isVisible());
    });
    QCOMPARE(ask(), answer);
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(m_told->size(), 2);
}

void TestHistoryGuard::otherTouchesGoThrough_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<int>("answer");
    QTest::newRow("another question") << "Rename" << int(QMessageBox::Yes);
}

void TestHistoryGuard::otherTouchesGoThrough()
{
    QFETCH(QString, title);
    QFETCH(int, answer);
    ModalDriver driver;
    driver.then([&](QWidget *widget) {
        QMessageBox *box = qobject_cast<QMessageBox *>(widget);
        unsettle();
        QTest::mouseClick(box->button(QMessageBox::StandardButton(answer)), Qt::LeftButton);
    });
    QCOMPARE(int(QMessageBox::question(nullptr, title, "Text", QMessageBox::Yes | QMessageBox::No)),
             answer);
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(m_told->size(), 0);
}

FILARIX_TEST_MAIN(TestHistoryGuard)
#include "tst_historyguard.moc"
