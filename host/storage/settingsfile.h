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

/// The file behind Settings. One thread reads and writes it; any thread may ask for its state().
class FILARIX_HOST_EXPORT SettingsFile
{
public:
    enum Trouble { None, PutAside, NotPutAside, NotStored };

    /// What is known of the file.
    struct State
    {
        QMap<QString, QString> values;
        QString asidePath;
        Trouble trouble = None;
        bool isRead = false;
    };

    explicit SettingsFile(const QString &path) : m_path(path) {}

    void read();
    /// Renames a file to a name that nothing has yet.
    void putAside();
    /// Stores the choices: those of General are replaced by \a values, all else in the file stays.
    /// An empty value takes its key away.
    void store(const QMap<QString, QString> &values);

    /// What is known of the file by now. A trouble is told once.
    State takeState();

    /// Each begin() is followed by an end() in the thread; settle() waits until all ends have come.
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
