// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "look/panelkey.h"
#include "look/spokennames.h"
#include "look/taparea.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>

class TestSpokenNames : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aFieldIsCalledByItsLabel();
    void aTableIsCalledByItsWindow();
    void aNameThatWasGivenStays();
    void textsToTouchAreAKey();
    void aPressIsAClick();
    void aSignAloneIsNoName();

private:
    static QAccessibleInterface *access(QWidget *widget)
    {
        return QAccessible::queryAccessibleInterface(widget);
    }
};

void TestSpokenNames::initTestCase()
{
    new SpokenNames(qApp);
}

void TestSpokenNames::aFieldIsCalledByItsLabel()
{
    QWidget window;
    QHBoxLayout row(&window);
    QLabel *label = new QLabel("Name:");
    QLineEdit *field = new QLineEdit;
    row.addWidget(label);
    row.addWidget(field);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QEvent change(QEvent::LanguageChange);
    QApplication::sendEvent(field, &change);
    QCOMPARE(SpokenNames::nameOf(field), QString("Name:"));
    QCOMPARE(access(field)->role(), QAccessible::EditableText);
    // In the language that is shown.
    label->setText("Nome:");
    QApplication::sendEvent(field, &change);
    QCOMPARE(SpokenNames::nameOf(field), QString("Nome:"));
}

void TestSpokenNames::aTableIsCalledByItsWindow()
{
    QWidget window;
    QHBoxLayout row(&window);
    QTableWidget *table = new QTableWidget(1, 1);
    row.addWidget(table);
    window.setWindowTitle("History");
    window.show();
    QCOMPARE(SpokenNames::nameOf(table), QString("History"));
    window.setWindowTitle("Verlauf");
    QCOMPARE(SpokenNames::nameOf(table), QString("Verlauf"));
}

void TestSpokenNames::aNameThatWasGivenStays()
{
    QWidget window;
    window.setWindowTitle("History");
    QLineEdit *field = new QLineEdit(&window);
    field->setAccessibleName("Program");
    window.show();
    QCOMPARE(SpokenNames::nameOf(field), QString("Program"));
}

void TestSpokenNames::textsToTouchAreAKey()
{
    TapArea area;
    QHBoxLayout row(&area);
    row.addWidget(new QLabel("stator-coil.cnc"));
    QLabel *hidden = new QLabel("not seen");
    row.addWidget(hidden);
    hidden->hide();
    area.show();
    QCOMPARE(SpokenNames::nameOf(&area), QString("stator-coil.cnc"));
    QCOMPARE(access(&area)->role(), QAccessible::Button);
    QSignalSpy touches(&area, SIGNAL(touched()));
    access(&area)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    // Whoever pressed goes on at once.
    QCOMPARE(touches.size(), 0);
    QTRY_COMPARE(touches.size(), 1);
}

void TestSpokenNames::aPressIsAClick()
{
    PanelKey key(QString("Se&lect"));
    key.setCheckable(true);
    key.show();
    QSignalSpy clicks(&key, SIGNAL(clicked()));
    QAccessibleActionInterface *actions = access(&key)->actionInterface();
    QCOMPARE(actions->actionNames(), QStringList(QAccessibleActionInterface::pressAction()));
    actions->doAction(QAccessibleActionInterface::pressAction());
    QTRY_COMPARE(clicks.size(), 1);
    QVERIFY(access(&key)->state().checkable);
    QVERIFY(access(&key)->state().checked);
    QCOMPARE(SpokenNames::nameOf(&key), QString("Select"));
    key.setEnabled(false);
    QCOMPARE(actions->actionNames(), QStringList());
    actions->doAction(QAccessibleActionInterface::pressAction());
    QCoreApplication::processEvents();
    QCOMPARE(clicks.size(), 1);
}

void TestSpokenNames::aSignAloneIsNoName()
{
    QPushButton key(QString(QChar(0x25b2)));
    key.show();
    QCOMPARE(SpokenNames::nameOf(&key), QString());
    key.setAccessibleName("Page up");
    QCOMPARE(SpokenNames::nameOf(&key), QString("Page up"));
}

FILARIX_TEST_MAIN(TestSpokenNames)
#include "tst_spokennames.moc"
