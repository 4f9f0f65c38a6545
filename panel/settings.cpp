// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "settings.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

namespace {

// A larger file is none of ours; reading it would cost the panel its memory.
const qint64 kLargestFile = 64 * 1024;
const int kMostAside = 99;

bool isThere(const QString &path)
{
    const QFileInfo file(path);
    return file.exists() || file.isSymLink();
}

} // namespace

Settings::Settings(const QString &path, QObject *parent) : QObject(parent), m_path(path)
{
    if (!m_path.isEmpty() && isThere(m_path) && !read()) {
        m_values.clear();
        putAside();
    }
}

bool Settings::read()
{
    const QFileInfo file(m_path);
    // A directory, or a pipe that would keep us waiting.
    if ((file.exists() && !file.isFile()) || file.size() > kLargestFile)
        return false;
    const QSettings ini(m_path, QSettings::IniFormat);
    const QStringList keys = ini.allKeys();
    for (const QString &key : keys)
        m_values[key] = ini.value(key);
    return ini.status() == QSettings::NoError;
}

void Settings::putAside()
{
    for (int i = 1; i <= kMostAside; ++i) {
        m_asidePath = m_path + QLatin1String(".broken");
        if (i > 1)
            m_asidePath += QLatin1Char('.') + QString::number(i);
        if (!isThere(m_asidePath)) {
            if (!QDir().rename(m_path, m_asidePath))
                break;
            return note(PutAside);
        }
    }
    // What it holds may be worth something to somebody.
    m_mayStore = false;
    note(NotPutAside);
}

QString Settings::choice(const QString &key, const QStringList &known)
{
    if (!m_values.contains(key))
        return QString();
    const QString value = m_values.value(key).toString();
    if (known.contains(value))
        return value;
    m_values.remove(key);
    if (m_asidePath.isEmpty())
        putAside();
    store();
    return QString();
}

void Settings::setChoice(const QString &key, const QString &value)
{
    m_values[key] = value;
    store();
}

void Settings::store()
{
    if (m_path.isEmpty() || !m_mayStore)
        return;
    QDir().mkpath(QFileInfo(m_path).path());
    QSettings ini(m_path, QSettings::IniFormat);
    ini.clear();
    for (auto entry = m_values.constBegin(); entry != m_values.constEnd(); ++entry)
        ini.setValue(entry.key(), entry.value());
    ini.sync();
    if (ini.status() == QSettings::NoError || m_isFailureTold)
        return;
    m_isFailureTold = true;
    note(NotStored);
}

void Settings::note(Trouble trouble)
{
    m_trouble = trouble;
    Q_EMIT troubled();
}

QString Settings::takeTrouble()
{
    const Trouble trouble = m_trouble;
    m_trouble = None;
    switch (trouble) {
    case PutAside:
        return tr("The settings file had errors and is now named %1. Please look over your "
                  "settings.")
            .arg(m_asidePath);
    case NotPutAside:
        return tr("The settings file %1 has errors and cannot be renamed. What you choose lasts "
                  "until the program ends.")
            .arg(m_path);
    case NotStored:
        return tr("The settings cannot be stored in %1. What you choose lasts until the program "
                  "ends.")
            .arg(m_path);
    case None:
        break;
    }
    return QString();
}
