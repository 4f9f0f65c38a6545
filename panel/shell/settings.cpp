// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "shell/settings.h"

#include "storage/settingsfile.h"

const int Settings::patienceMs;

namespace {

const int lastPatienceMs = 1000;

} // namespace

Settings::Settings(const QString &path, QObject *parent)
    : QObject(parent), m_path(path), m_file(new SettingsFile(path)), m_isRead(path.isEmpty())
{
    if (m_isRead)
        return;
    ask([](SettingsFile *file) { file->read(); });
    settle(patienceMs);
}

Settings::~Settings()
{
    if (!settle(lastPatienceMs))
        m_thread.giveUp();
}

void Settings::ask(const std::function<void(SettingsFile *)> &work)
{
    const QSharedPointer<SettingsFile> file = m_file;
    file->begin();
    m_thread.post(
        [file, work] {
            work(file.data());
            file->end();
        },
        [this] { takeIn(); });
}

bool Settings::settle(int ms)
{
    const bool isSettled = m_file->settle(ms);
    takeIn();
    return isSettled;
}

void Settings::takeIn()
{
    const SettingsFile::State state = m_file->takeState();
    if (!state.asidePath.isEmpty())
        m_isPutAside = true;
    m_asidePath = state.asidePath;
    if (state.isRead && !m_isRead) {
        m_isRead = true;
        m_values = state.values;
        for (auto change = m_changes.constBegin(); change != m_changes.constEnd(); ++change)
            m_values[change.key()] = change.value();
        Q_EMIT arrived();
    }
    if (state.trouble == SettingsFile::None)
        return;
    m_trouble = state.trouble;
    Q_EMIT troubled();
}

QString Settings::choice(const QString &key, const QStringList &known)
{
    QString value = m_values.value(key);
    if (value.isEmpty() && !m_values.contains(key))
        return QString();
    if (known.contains(value))
        return value;
    m_values.remove(key);
    if (!m_isPutAside)
        ask([](SettingsFile *file) { file->putAside(); });
    m_isPutAside = true;
    store({{key, QString()}});
    return QString();
}

/// Success needs no word: the whole panel shows the choice at once. The disk's bytes are compared
/// all the same, and a difference is told.
void Settings::setChoice(const QString &key, const QString &value)
{
    m_values[key] = value;
    // Until the file has come; what it holds must not win.
    if (!m_isRead)
        m_changes[key] = value;
    store({{key, value}});
}

void Settings::store(const QMap<QString, QString> &values)
{
    if (!m_path.isEmpty())
        ask([values](SettingsFile *file) { file->store(values); });
}

QString Settings::takeTrouble()
{
    const int trouble = m_trouble;
    m_trouble = SettingsFile::None;
    switch (trouble) {
    case SettingsFile::PutAside:
        return tr("The settings file had errors and is now named %1. Please look over your "
                  "settings.")
            .arg(m_asidePath);
    case SettingsFile::NotPutAside:
        return tr("The settings file %1 has errors and cannot be renamed. What you choose lasts "
                  "until the program ends.")
            .arg(m_path);
    case SettingsFile::NotStored:
        return tr("The settings cannot be stored in %1. What you choose lasts until the program "
                  "ends.")
            .arg(m_path);
    case SettingsFile::None:
        break;
    }
    return QString();
}
