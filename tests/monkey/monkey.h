// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef MONKEY_H
#define MONKEY_H

#include "hand.h"
#include "witness.h"

#include <QElapsedTimer>
#include <QMap>
#include <QObject>
#include <QStringList>

#include <functional>
#include <random>

class PanelKey;
class PanelWindow;

/// Touches the panel program and presses keys at random, wherever that leads; now and then it goes
/// on with what opens, saves or removes a program. At the end it leaves every dialog as an operator
/// would, and looks whether the program is still there for him.
///
/// It acts whenever an event loop comes round, the loops of modal dialogs and of a long load
/// included, and only when what it did before has been delivered: nothing waits on the clock.
class Monkey : public QObject
{
    Q_OBJECT

public:
    struct Plan
    {
        quint32 seed = 1;
        /// Gestures, keys pressed and sticks plugged, all counted alike.
        int actions = 2000;
        /// With a time the number of actions is what fits into it.
        int minutes = 0;
    };

    explicit Monkey(const Plan &plan);

    /// Needs the application object. The monkey begins with its event loop and ends it.
    void start();
    /// What is wrong, one thing a line; empty when nothing is.
    QStringList faults() const;
    /// To be called once the panel has ended: a program that was stored and is nowhere any more is
    /// a fault.
    void checkPrograms();
    /// Which dialogs it was in, and how often.
    QString report() const;

private:
    typedef std::function<void()> Step;

    int random(int count);
    bool chance(int percent);
    QPoint randomPoint();
    QWidget *front() const;

    void act();
    static void writePrograms();
    void choose();
    void then(const Step &step);
    void wait(int turns);
    void tap(const QPoint &point, Hand::Tool tool);
    void tap(QWidget *target);
    void workOnPrograms();
    void touchFileKey();
    void touchPicker(QWidget *picker);
    void touchTab(QWidget *tab);
    QList<PanelKey *> tabs() const;
    void chooseTouch(Hand::Tool tool);
    void chooseDrag(Hand::Tool tool);
    void chooseKey();
    void typeKey(int key, Qt::KeyboardModifiers modifiers, const QString &text);
    void changeStick();
    void bringProgram();
    void noteDialog();
    void noteMemory();

    bool isOver() const;
    void leave();
    bool leaveDialog();
    static bool isInterrupted();
    void checkScreens();
    void checkGrabs();
    void checkTyping();
    void closePanel();
    void fail(const QString &fault);

    const Plan m_plan;
    std::mt19937 m_random;
    QElapsedTimer m_clock;
    Hand m_hand;
    PanelWindow *m_panel = nullptr;
    QList<Step> m_steps;
    int m_actions = 0;
    int m_nextNote = 0;

    bool m_leaving = false;
    int m_triesToLeave = 0;
    int m_triesToClose = 0;
    int m_checkedScreens = 0;
    QPointer<QWidget> m_dialog;
    QMap<QString, int> m_dialogs;
    QStringList m_faults;
    Witness m_witness;
};

#endif // MONKEY_H
