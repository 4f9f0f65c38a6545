// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef SETTINGS_H
#define SETTINGS_H

#include "storage/filethread.h"

#include <QMap>
#include <QObject>
#include <QSharedPointer>
#include <QStringList>

class SettingsFile;

/// What the operator has chosen for the panel program, in one INI file.
///
/// A file that cannot be read as INI, or that holds an unknown value, is put aside under another
/// name, never over an earlier one. What is right in it is kept. Where nothing can be written, a
/// choice lasts until the program ends.
///
/// The file is read and written beside the event loop, in the order of the calls. A disk that hangs
/// never stops the panel, and of two choices the last one stays.
///
///     Settings settings("/home/panel/hmi/panel.ini");
///     const QString language = settings.choice("language", {"en", "de"});
class Settings : public QObject
{
    Q_OBJECT

public:
    /// Milliseconds that the constructor waits for the file.
    static const int patienceMs = 300;

    /// Reads the file \a path, which need not exist. A file that does not come in time is told by
    /// arrived() when it does. With an empty path nothing is read or kept.
    explicit Settings(const QString &path, QObject *parent = nullptr);
    /// Waits a second at the most until what was chosen is stored.
    ~Settings() override;

    /// The choice stored under \a key; empty for none, and for one that is not in \a known.
    QString choice(const QString &key, const QStringList &known);
    /// \a key and \a value are of letters, digits and "_.-" in ASCII.
    void setChoice(const QString &key, const QString &value);

    /// What the operator is to be told about the file, in the language of this moment. Empty when
    /// there is nothing new: each trouble is told once.
    QString takeTrouble();
    /// Waits until all that was asked of the file is done; false when \a ms are over before.
    bool settle(int ms);

Q_SIGNALS:
    /// The file has come after all: choice() may give something else now.
    void arrived();
    /// takeTrouble() has something new.
    void troubled();

private:
    void ask(const std::function<void(SettingsFile *)> &work);
    void takeIn();
    void store(const QMap<QString, QString> &values);

    const QString m_path;
    QString m_asidePath;
    /// What the file holds and what was chosen since; the latter wins.
    QMap<QString, QString> m_values;
    QMap<QString, QString> m_changes;
    QSharedPointer<SettingsFile> m_file;
    FileThread m_thread;
    int m_trouble = 0;
    bool m_isRead = false;
    bool m_isPutAside = false;
};

#endif // SETTINGS_H
