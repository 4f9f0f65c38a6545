// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "programs/recentprograms.h"

#include "storage/settingsfile.h"

#include <QMap>
#include <QUrl>

const int RecentPrograms::most;

namespace {

const int lastPatienceMs = 1000;

QString keyOf(int index)
{
    return QString::fromLatin1("program%1").arg(index + 1, 2, 10, QLatin1Char('0'));
}

/// A name may hold what an INI file takes for its own signs, line ends too.
QString encoded(const QString &name)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(name).constData());
}

QString decoded(const QString &value)
{
    return QUrl::fromPercentEncoding(value.toLatin1());
}

} // namespace

RecentPrograms::RecentPrograms(const QString &path, QObject *parent)
    : QObject(parent), m_file(std::make_shared<SettingsFile>(path)), m_isRead(path.isEmpty())
{
    if (m_isRead)
        m_file.reset();
    else
        ask([](SettingsFile *file) { file->read(); });
}

RecentPrograms::~RecentPrograms()
{
    if (!settle(lastPatienceMs))
        m_thread.giveUp();
}

void RecentPrograms::ask(const std::function<void(SettingsFile *)> &work)
{
    const std::shared_ptr<SettingsFile> file = m_file;
    file->begin();
    m_thread.post(
        [file, work] {
            work(file.get());
            file->end();
        },
        [this] { takeIn(); });
}

bool RecentPrograms::settle(int ms)
{
    if (!m_file)
        return true;
    // What was noted before the file came is stored behind that.
    const bool isRead = m_file->settle(ms);
    takeIn();
    return isRead && m_file->settle(ms);
}

void RecentPrograms::takeIn()
{
    if (m_isRead)
        return;
    const SettingsFile::State state = m_file->takeState();
    if (!state.isRead)
        return;
    m_isRead = true;
    const QStringList noted = m_names;
    for (int i = 0; i < most; ++i) {
        const QString name = decoded(state.values.value(keyOf(i)));
        if (!name.isEmpty() && !m_names.contains(name) && !m_forgotten.contains(name))
            m_names.append(name);
    }
    m_names = m_names.mid(0, most);
    if (!noted.isEmpty() || !m_forgotten.isEmpty())
        store();
    if (m_names != noted)
        Q_EMIT changed();
}

void RecentPrograms::note(const QString &name)
{
    if (name.isEmpty() || (!m_names.isEmpty() && m_names.first() == name))
        return;
    m_names.removeAll(name);
    m_names.prepend(name);
    m_names = m_names.mid(0, most);
    m_forgotten.removeAll(name);
    store();
    Q_EMIT changed();
}

void RecentPrograms::forget(const QString &name)
{
    if (!m_isRead)
        m_forgotten.append(name);
    if (m_names.removeAll(name) == 0)
        return;
    store();
    Q_EMIT changed();
}

void RecentPrograms::store()
{
    if (!m_file || !m_isRead)
        return;
    QMap<QString, QString> values;
    for (int i = 0; i < most; ++i)
        values.insert(keyOf(i), encoded(m_names.value(i)));
    ask([values](SettingsFile *file) { file->store(values); });
}
