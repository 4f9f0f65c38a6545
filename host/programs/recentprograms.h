// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef RECENTPROGRAMS_H
#define RECENTPROGRAMS_H

#include "base/filarixhostglobal.h"
#include "storage/filethread.h"

#include <QObject>
#include <QStringList>

#include <memory>

class SettingsFile;

/// The programs that were used last, in a file that outlives the program.
///
///     RecentPrograms recent("/home/hmi/hmi/recent.ini");
///     recent.note("coil.cnc");
///
/// The file is read and written beside the event loop. Where nothing can be written, or the file
/// holds something else, the names last until the program ends. No operator has to know of that.
class FILARIX_HOST_EXPORT RecentPrograms : public QObject
{
    Q_OBJECT

public:
    /// How many names are kept.
    static const int most = 10;

    /// \a path need not exist. With an empty one nothing is read or kept.
    explicit RecentPrograms(const QString &path, QObject *parent = nullptr);
    /// Waits a second at the most until the names are stored.
    ~RecentPrograms() override;

    /// Bare names, the last one first. What the file holds comes in time, see changed().
    QStringList names() const { return m_names; }
    /// The program was used just now. An empty name does nothing.
    void note(const QString &name);
    /// The program is gone.
    void forget(const QString &name);
    /// Waits until all is read and stored; false when \a ms are over before.
    bool settle(int ms);

Q_SIGNALS:
    /// names() gives something else now.
    void changed();

private:
    void ask(const std::function<void(SettingsFile *)> &work);
    void takeIn();
    void store();

    QStringList m_names;
    /// Before the file has come.
    QStringList m_forgotten;
    std::shared_ptr<SettingsFile> m_file;
    bool m_isRead = false;
    FileThread m_thread;
};

#endif // RECENTPROGRAMS_H
