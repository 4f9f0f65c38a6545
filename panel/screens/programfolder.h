// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PROGRAMFOLDER_H
#define PROGRAMFOLDER_H

#include "programs/programlisting.h"
#include "storage/filethread.h"

#include <QObject>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <memory>

/// The programs of a folder, looked at on request, in a thread of its own. A disk that hangs keeps
/// the thread waiting, and nobody else.
///
///     ProgramFolder folder(ProgramDirectory::path());
///     connect(&folder, &ProgramFolder::changed, this, &List::fill);
///     folder.look();
class ProgramFolder : public QObject
{
    Q_OBJECT

public:
    struct Contents
    {
        /// Why the folder cannot be read; empty when it could.
        QString error;
        /// As the library lists them: all files, but neither hidden ones nor links.
        QStringList names;
        std::shared_ptr<const ProgramListing> listing;
    };

    typedef std::function<Contents()> Probe;

    explicit ProgramFolder(const QString &folder, QObject *parent = nullptr);
    /// \a probe runs in the thread, which may outlive this object: it has to own what it uses.
    explicit ProgramFolder(const Probe &probe, QObject *parent = nullptr);
    ~ProgramFolder() override;

    /// What is in \a folder now. May wait for it.
    static Contents lookAt(const QString &folder);

    /// Before the first look has come back, nothing is known.
    bool isKnown() const { return bool(m_contents.listing); }
    const Contents &contents() const { return m_contents; }
    /// Whether a look has been under way for seconds.
    bool isOverdue() const { return m_isOverdue; }
    void setPatience(int ms) { m_patience.setInterval(ms); }

public Q_SLOTS:
    /// Looks, and once more if a look is under way.
    void look();

Q_SIGNALS:
    /// What the functions above give is something else now.
    void changed();

private:
    static bool isSame(const Contents &a, const Contents &b);
    void noteOverdue();
    void take(const Contents &contents);

    const Probe m_probe;
    Contents m_contents;
    QTimer m_patience;
    bool m_isLooking = false;
    bool m_looksAgain = false;
    bool m_isOverdue = false;
    /// Last, so that what runs in it ends first.
    FileThread m_thread;
};

#endif // PROGRAMFOLDER_H
