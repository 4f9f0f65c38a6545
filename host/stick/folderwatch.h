// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FOLDERWATCH_H
#define FOLDERWATCH_H

#include "base/filarixhostglobal.h"
#include "storage/filethread.h"

#include <QObject>
#include <QStringList>
#include <QTimer>

/// What a screen shows of a folder.
struct FolderState
{
    /// Whether anything below is true: not so before the first look.
    bool isKnown = false;
    bool isThere = false;
    /// Files and links to such, neither hidden ones nor those of folders in it.
    int files = 0;
    /// The sum of their sizes.
    qint64 bytes = 0;
    /// Files whose names the transfer would not take for what they are.
    int unsafeNames = 0;
};

/// Looks at a folder on request, in a thread of its own: a stick that hangs keeps the thread
/// waiting, and nobody else.
///
///     FolderWatch watch([dir] { return FolderWatch::lookAt(dir); });
///     connect(&watch, SIGNAL(changed()), ...);
///     watch.look();
class FILARIX_HOST_EXPORT FolderWatch : public QObject
{
    Q_OBJECT

public:
    typedef std::function<FolderState()> Probe;

    /// \a probe runs in the thread, which may outlive the watch: it has to own what it uses.
    explicit FolderWatch(const Probe &probe, QObject *parent = nullptr);
    ~FolderWatch() override;

    /// The files in \a folder, now. May wait for it.
    static FolderState lookAt(const QString &folder);

    /// As of the last look that has come back.
    FolderState state() const { return m_state; }
    /// Whether a look has been under way for seconds.
    bool isOverdue() const { return m_isOverdue; }
    /// Milliseconds after which a look is overdue.
    void setPatience(int ms) { m_patience.setInterval(ms); }

public Q_SLOTS:
    /// Looks, and once more if a look is under way.
    void look();

Q_SIGNALS:
    /// A look has ended or is overdue.
    void changed();

private Q_SLOTS:
    void noteOverdue();

private:
    void take(const FolderState &state);

    const Probe m_probe;
    FileThread m_thread;
    FolderState m_state;
    QTimer m_patience;
    bool m_isLooking = false;
    bool m_looksAgain = false;
    bool m_isOverdue = false;
};

#endif // FOLDERWATCH_H
