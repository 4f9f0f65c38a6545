// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "storage/settingsfile.h"

#include "storage/durablefile.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

namespace {

// A larger file is none of ours; reading it would cost the panel its memory.
const qint64 largestFile = qint64(64) * 1024;
const int mostAside = 99;
const char generalSection[] = "[General]";

bool isThere(const QString &path)
{
    const QFileInfo file(path);
    return file.exists() || file.isSymLink();
}

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(largestFile + 1) : QByteArray();
}

bool isGeneral(const QByteArray &section)
{
    return qstricmp(section.constData(), generalSection) == 0;
}

QByteArray joined(const QList<QByteArray> &lines)
{
    QByteArray text;
    for (const QByteArray &line : lines)
        text += line + '\n';
    text.chop(1);
    return text;
}

} // namespace

void SettingsFile::read()
{
    QMap<QString, QString> values;
    const bool isBroken = isThere(m_path) && !parse(&values);
    if (isBroken) {
        values.clear();
        m_text.clear();
        putAside();
    }
    const QMutexLocker lock(&m_mutex);
    m_state.values = values;
    m_state.isRead = true;
}

bool SettingsFile::parse(QMap<QString, QString> *values)
{
    const QFileInfo file(m_path);
    // A directory, or a pipe that would keep us waiting.
    if ((file.exists() && !file.isFile()) || file.size() > largestFile)
        return false;
    const QSettings ini(m_path, QSettings::IniFormat);
    const QStringList keys = ini.allKeys();
    for (const QString &key : keys)
        values->insert(key, ini.value(key).toString());
    m_text = bytesOf(m_path);
    return ini.status() == QSettings::NoError && m_text.size() <= largestFile;
}

void SettingsFile::putAside()
{
    for (int i = 1; i <= mostAside; ++i) {
        QString aside = m_path + QLatin1String(".broken");
        if (i > 1)
            aside += QLatin1Char('.') + QString::number(i);
        if (isThere(aside))
            continue;
        if (!QDir().rename(m_path, aside))
            break;
        const QMutexLocker lock(&m_mutex);
        m_state.asidePath = aside;
        m_state.trouble = PutAside;
        return;
    }
    // What it holds may be worth something to somebody.
    m_mayStore = false;
    note(NotPutAside);
}

void SettingsFile::store(const QMap<QString, QString> &values)
{
    if (!m_mayStore)
        return;
    for (auto entry = values.constBegin(); entry != values.constEnd(); ++entry)
        m_text = changed(m_text, entry.key(), entry.value());
    if (write() || m_isFailureTold)
        return;
    m_isFailureTold = true;
    note(NotStored);
}

/// What the disk holds counts, not what the calls said.
bool SettingsFile::write()
{
    QDir().mkpath(QFileInfo(m_path).path());
    DurableFile file(m_path);
    return file.open() && file.write(m_text) && file.commit() && bytesOf(m_path) == m_text;
}

QByteArray SettingsFile::changed(const QByteArray &ini, const QString &key, const QString &value)
{
    const QByteArray name = key.toLatin1();
    const QByteArray line = value.isEmpty() ? QByteArray() : name + '=' + value.toLatin1();
    QList<QByteArray> lines;
    QByteArray section = generalSection;
    int place = -1;
    const QList<QByteArray> before = ini.split('\n');
    for (const QByteArray &old : before) {
        const QByteArray words = old.trimmed();
        if (words.startsWith('['))
            section = words;
        if (isGeneral(section) && words.left(words.indexOf('=')).trimmed() == name)
            continue;
        lines.append(old);
        if (isGeneral(words))
            place = lines.size();
    }
    if (line.isEmpty())
        return joined(lines);
    if (place < 0) {
        // What stands before the first section is General's, too.
        lines.insert(0, generalSection);
        place = 1;
    }
    lines.insert(place, line);
    return joined(lines);
}

SettingsFile::State SettingsFile::takeState()
{
    const QMutexLocker lock(&m_mutex);
    State state = m_state;
    m_state.trouble = None;
    return state;
}

void SettingsFile::note(Trouble trouble)
{
    const QMutexLocker lock(&m_mutex);
    m_state.trouble = trouble;
}

void SettingsFile::begin()
{
    const QMutexLocker lock(&m_mutex);
    ++m_running;
}

void SettingsFile::end()
{
    const QMutexLocker lock(&m_mutex);
    --m_running;
    m_ended.wakeAll();
}

bool SettingsFile::settle(int ms)
{
    QElapsedTimer time;
    time.start();
    const QMutexLocker lock(&m_mutex);
    while (m_running > 0) {
        const qint64 left = ms - time.elapsed();
        if (left <= 0)
            return false;
        m_ended.wait(&m_mutex, static_cast<unsigned long>(left));
    }
    return true;
}
