// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef REACTION_H
#define REACTION_H

#include "script.h"
#include "stopwatch.h"

#include <QObject>
#include <QStringList>

class PanelWindow;
class QAbstractButton;
class WatchedApplication;

/// Takes the panel through its screens in several conditions, and measures there how soon a touch
/// is answered.
///
/// Keys are pressed, and the finger slides off before it is lifted, so that nothing is triggered.
/// Rows, lines and keys that turn pages are touched for good: the answer is the row, the line or
/// the page. A machine that does something else meanwhile makes single measurements slower, never
/// all of them quicker: the best of three counts.
class Reaction : public QObject
{
    Q_OBJECT

public:
    explicit Reaction(WatchedApplication *application);

    /// Ends the application's loop when all is measured.
    void start() { m_script.start(); }
    /// What is too slow, or didn't work; a line each.
    QStringList faults() const { return m_faults; }

private:
    bool findPanel();
    void planPanel();
    void planKeypads();
    void planRowsAndPages();
    void planPicker();
    void planWaits();

    /// Measures what \a plan touches.
    void kind(const QString &name, const Script::Step &plan, int tries = mostTries);
    void measureAgain();
    void touchScreens();
    void touchWhileLoading();
    void touchWhileDownloading();
    void touchWhileStickHangs();
    void touchKeypad(const QString &opener, const char *secondPage, int keys);
    void touchList(int screen, Stopwatch::Chooser choose);
    void touchPoints();
    void touchPicker(Stopwatch::Chooser choose);

    void show(int screen);
    void click(const QString &name);
    void answer(const char *className, const QString &button);
    void openPicker();
    void open(const QString &name);
    void measure(Stopwatch::Chooser choose, int touches,
                 const Script::Condition &goesOn = Script::Condition());
    void giveUp(const QString &what);

    QAbstractButton *keyInView(const QString &name);

    static const int mostTries = 3;

    Stopwatch m_watch;
    bool m_isMeasuring = false;
    /// The kinds that were too slow.
    QList<Script::Step> m_again;
    Script m_script;
    PanelWindow *m_panel = nullptr;
    QStringList m_faults;
};

#endif // REACTION_H
