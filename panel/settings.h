// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef SETTINGS_H
#define SETTINGS_H

#include <QObject>
#include <QStringList>
#include <QVariant>

/// What the operator has chosen for the panel program, in one INI file.
///
/// A file that cannot be read as INI, or that holds a value nobody knows, is put aside under
/// another name, never over an earlier one; what is right in it is kept. Where nothing can be
/// written, a choice lasts until the program ends.
///
///     Settings settings("/home/panel/hmi/panel.ini");
///     const QString language = settings.choice("language", {"en", "de"});
class Settings : public QObject
{
    Q_OBJECT

public:
    /// Reads the file \a path, which need not exist. With an empty path nothing is read or kept.
    explicit Settings(const QString &path, QObject *parent = nullptr);

    /// The choice stored under \a key; empty for none, and for one that is not in \a known.
    QString choice(const QString &key, const QStringList &known);
    void setChoice(const QString &key, const QString &value);

    /// What the operator is to be told about the file, in the language of this moment. Empty when
    /// there is nothing new: each trouble is told once.
    QString takeTrouble();

Q_SIGNALS:
    /// takeTrouble() has something new.
    void troubled();

private:
    enum Trouble { None, PutAside, NotPutAside, NotStored };

    bool read();
    void putAside();
    void store();
    void note(Trouble trouble);

    QString m_path;
    QString m_asidePath;
    QVariantMap m_values;
    Trouble m_trouble = None;
    bool m_mayStore = true;
    bool m_isFailureTold = false;
};

#endif // SETTINGS_H
