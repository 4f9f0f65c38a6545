// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/programfolder.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <cerrno>

#include <dirent.h>

namespace {

const int patienceMs = 3000;

/// The toolkit lists a folder that cannot be read as an empty one.
QString complaintAbout(const QString &folder)
{
    DIR *const opened = ::opendir(QFile::encodeName(folder).constData());
    if (!opened)
        return qt_error_string(errno);
    ::closedir(opened);
    return QString();
}

} // namespace

ProgramFolder::ProgramFolder(const QString &folder, QObject *parent)
    : ProgramFolder([folder] { return lookAt(folder); }, parent)
{}

ProgramFolder::ProgramFolder(const Probe &probe, QObject *parent) : QObject(parent), m_probe(probe)
{
    m_patience.setSingleShot(true);
    m_patience.setInterval(patienceMs);
    connect(&m_patience, &QTimer::timeout, this, &ProgramFolder::noteOverdue);
}

ProgramFolder::~ProgramFolder()
{
    if (m_isLooking)
        m_thread.giveUp();
}

ProgramFolder::Contents ProgramFolder::lookAt(const QString &folder)
{
    Contents contents;
    contents.error = complaintAbout(folder);
    if (contents.error.isEmpty())
        contents.names = QDir(folder).entryList(QDir::Files | QDir::NoSymLinks, QDir::Name);
    const std::shared_ptr<ProgramListing> listing =
        std::make_shared<ProgramListing>(folder, contents.names);
    while (listing->step()) {
    }
    contents.listing = listing;
    return contents;
}

void ProgramFolder::look()
{
    m_looksAgain = m_isLooking;
    if (m_isLooking)
        return;
    m_isLooking = true;
    m_patience.start();
    const Probe probe = m_probe;
    const std::shared_ptr<Contents> contents = std::make_shared<Contents>();
    m_thread.post([probe, contents] { *contents = probe(); },
                  [this, contents] { take(*contents); });
}

void ProgramFolder::noteOverdue()
{
    m_isOverdue = true;
    Q_EMIT changed();
}

void ProgramFolder::take(const Contents &contents)
{
    m_patience.stop();
    m_isLooking = false;
    const bool isNews = m_isOverdue || !isKnown() || !isSame(contents, m_contents);
    m_isOverdue = false;
    m_contents = contents;
    if (m_looksAgain)
        look();
    if (isNews)
        Q_EMIT changed();
}

bool ProgramFolder::isSame(const Contents &a, const Contents &b)
{
    if (a.error != b.error || a.names != b.names)
        return false;
    return std::all_of(a.names.begin(), a.names.end(), [&](const QString &name) {
        const ProgramListing::Entry one = a.listing->entries().value(name);
        const ProgramListing::Entry other = b.listing->entries().value(name);
        return one.size == other.size && one.written == other.written;
    });
}
