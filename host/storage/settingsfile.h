// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef SETTINGSFILE_H
#define SETTINGSFILE_H

#include "base/filarixhostglobal.h"

#include <QByteArray>
#include <QMap>
#include <QMutex>
#include <QString>
#include <QWaitCondition>

/// A program's own choices in one file, INI format, which outlive a power cut. One thread reads and
/// writes it, a FileThread say; any thread may ask for its state by takeState().
///
///     auto file = std::make_shared<SettingsFile>("/home/hmi/hmi/host.ini");
///     thread.post([file] { file->read(); }, [this, file] { apply(file->takeState().values); });
///     thread.post([file] { file->store({{"language", "de"}}); }, [] {});
class FILARIX_HOST_EXPORT SettingsFile
{
public:
    enum Trouble {
        None,
        PutAside,    ///< The file could not be read, and lies at asidePath now.
        NotPutAside, ///< Nor could it be renamed: nothing is stored from then on.
        NotStored    ///< A write failed.
    };

    /// What is known of the file.
    struct State
    {
        /// By their keys; those of other sections than General as "section/key".
        QMap<QString, QString> values;
        QString asidePath;
        Trouble trouble = None;
        bool isRead = false;
    };

    explicit SettingsFile(const QString &path) : m_path(path) {}

    /// In the thread. A file that is missing gives no values and is no trouble.
    void read();
    /// Renames a file to a name that nothing has yet.
    void putAside();
    /// Stores the choices: those of General are replaced by \a values, all else in the file stays.
    /// An empty value takes its key away.
    void store(const QMap<QString, QString> &values);

    /// What is known of the file by now. A trouble is told once.
    State takeState();

    /// Each begin() is followed by an end() in the thread. settle() waits for all ends, \a ms
    /// milliseconds at most, and says whether all have come.
    void begin();
    void end();
    bool settle(int ms);

    /// \a ini with \a key of its section General set to \a value, or without it.
    static QByteArray changed(const QByteArray &ini, const QString &key, const QString &value);

private:
    Q_DISABLE_COPY(SettingsFile)

    bool parse(QMap<QString, QString> *values);
    bool write();
    void note(Trouble trouble);

    const QString m_path;
    // The thread's own.
    QByteArray m_text;
    bool m_mayStore = true;
    bool m_isFailureTold = false;

    QMutex m_mutex;
    QWaitCondition m_ended;
    int m_running = 0;
    State m_state;
};

#endif // SETTINGSFILE_H
