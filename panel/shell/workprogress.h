// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef WORKPROGRESS_H
#define WORKPROGRESS_H

#include "shell/workestimate.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>

/// The long work that goes on: what, how much of it is done, how long it still takes, and how to
/// stop it.
///
/// Several pieces of work may go on at once. The one that began last stands in front: it is shown
/// and can be stopped. When it has ended, the one before it comes back.
///
///     works.report(screen, "copy", tr("%1 goes to the stick").arg(name), 40, [this] { stop(); });
///     works.end(screen, "copy");
class WorkProgress : public QObject
{
    Q_OBJECT

public:
    /// Milliseconds that never run back.
    typedef std::function<qint64()> Clock;

    /// In percent: nobody knows how much there is to do.
    static const int lengthUnknown = -1;

    explicit WorkProgress(QObject *parent = nullptr);
    explicit WorkProgress(const Clock &clock, QObject *parent = nullptr);

    /// The work \a name of \a owner goes on, or begins. \a stop is called at most once, when the
    /// operator wants that work to end; the work then ends in an end() of its own.
    void report(const QObject *owner, const QString &name, const QString &text, int percent,
                const std::function<void()> &stop);
    /// Does nothing for work that nobody told of.
    void end(const QObject *owner, const QString &name);

    int count() const { return m_works.size(); }
    /// Of the work in front, as all below; empty without any.
    QString text() const;
    int percent() const;
    /// "12 s left"; empty while nobody can say.
    QString left() const;
    /// Whether it was told to stop, and goes on for as long as its step in hand takes.
    bool isStopping() const;
    /// Another number for each piece of work; 0 without any.
    int number() const;

    /// Rounded as coarsely as an estimate deserves.
    static QString timeText(int seconds);

public Q_SLOTS:
    /// The operator pressed Stop.
    void stop();

Q_SIGNALS:
    /// What the functions above give is something else now.
    void changed();

private:
    struct Work
    {
        const QObject *owner;
        QString name;
        QString text;
        int percent;
        std::function<void()> stop;
        bool isStopping;
        int number;
        WorkEstimate estimate;
    };

    int indexOf(const QObject *owner, const QString &name) const;

    const Clock m_clock;
    QList<Work> m_works;
    QTimer m_tick;
    int m_lastNumber = 0;
};

#endif // WORKPROGRESS_H
