// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "programs/unsavedoffer.h"

#include "base/hostcompat.h"
#include "base/questioner.h"
#include "programs/programname.h"
#include "programs/programopener.h"
#include "programs/unsavedrows.h"
#include "programs/unsavedstore.h"
#include "programs/unsavedwork.h"
#include "wgcodeediter.h"
#include "wmmainwindow.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>

namespace {

const int waitMs = 300;

QString incomplete()
{
    return QLatin1String("incomplete");
}

/// A program that was saved a moment before the panel ended.
bool isStored(const KeptWork &work)
{
    if (work.subject != UnsavedWork::program() || !work.isFileThere)
        return false;
    QFile file(work.head.path);
    if (file.size() > 4 * qint64(work.text.size())
        || !file.open(QIODevice::ReadOnly | QIODevice::Text))
        return false;
    return QTextStream(&file).readAll() == work.text;
}

/// Another host may have lists that this one knows nothing of: their work stays, and so does the
/// folder.
void removeIfEmpty(const UnsavedSession::Pointer &session)
{
    const QStringList kept(QLatin1String("*.kept"));
    if (QDir(session->path()).entryList(kept, QDir::AllEntries | QDir::System).isEmpty())
        session->remove();
}

void removeWorks(const UnsavedSession::Pointer &session, const QList<KeptWork> &works)
{
    for (const KeptWork &work : works)
        UnsavedStore::remove(*session, work.subject);
    removeIfEmpty(session);
}

} // namespace

UnsavedOffer::UnsavedOffer(const QString &folder, UnsavedWork *work, Questioner *questioner,
                           QObject *parent)
    : QObject(parent), m_folder(folder), m_work(work), m_questioner(questioner)
{}

UnsavedOffer::~UnsavedOffer() = default;

void UnsavedOffer::setProgram(const Program &program)
{
    delete m_opener;
    m_program = program;
    m_opener = new ProgramOpener(program.window, program.isBusy, this);
}

void UnsavedOffer::addRows(const QString &subject, UnsavedRows *list)
{
    m_rows.insert(subject, list);
}

KeptHead UnsavedOffer::headOf(const WMMainWindow *window, bool isIncomplete)
{
    KeptHead head;
    head.path = window->getCurrentFile();
    head.cursor = window->findChild<WGCodeEditer *>()->textCursor().position();
    if (isIncomplete)
        head.state.insert(incomplete(), QString());
    return head;
}

void UnsavedOffer::start()
{
    const QString folder = m_folder;
    QStringList subjects = m_rows.keys();
    if (m_program.window)
        subjects.prepend(UnsavedWork::program());
    const std::shared_ptr<QList<Found>> found = std::make_shared<QList<Found>>();
    m_thread.post([folder, subjects, found] { *found = find(folder, subjects); },
                  [this, found] { takeIn(*found); });
}

QList<UnsavedOffer::Found> UnsavedOffer::find(const QString &folder, const QStringList &subjects)
{
    QList<Found> all;
    const QList<UnsavedSession::Pointer> sessions = UnsavedSession::left(folder);
    for (const UnsavedSession::Pointer &session : sessions) {
        const Found found = look(session, subjects);
        if (found.works.isEmpty())
            removeIfEmpty(session);
        if (!found.works.isEmpty() || !found.aside.isEmpty())
            all.append(found);
    }
    return all;
}

UnsavedOffer::Found UnsavedOffer::look(const UnsavedSession::Pointer &session,
                                       const QStringList &subjects)
{
    Found found;
    found.session = session;
    for (const QString &subject : subjects) {
        KeptWork work;
        const UnsavedStore::Reading reading = UnsavedStore::read(*session, subject, &work);
        if (reading == UnsavedStore::Broken)
            found.aside.append(UnsavedStore::putAside(*session, subject));
        else if (reading == UnsavedStore::Whole && isStored(work))
            UnsavedStore::remove(*session, subject);
        else if (reading == UnsavedStore::Whole)
            found.works.append(work);
    }
    return found;
}

void UnsavedOffer::takeIn(const QList<Found> &found)
{
    m_found = found;
    QStringList aside;
    for (const Found &one : found)
        aside += one.aside;
    if (!aside.isEmpty())
        Q_EMIT told(tr("Unsaved work of an earlier run cannot be read. It was put aside: %1.")
                        .arg(aside.join(QLatin1String(", "))),
                    Message::Warning);
    askNext();
}

/// The offer never covers a question that the operator reads, and never changes a program that is
/// being loaded or saved. The offer also waits for lists to fill.
bool UnsavedOffer::mayAsk() const
{
    if (QApplication::activeModalWidget() || ProgramOpener::isLoading()
        || (m_program.isBusy && m_program.isBusy()))
        return false;
    for (const UnsavedRows *list : m_rows) {
        if (list->isLoading())
            return false;
    }
    return true;
}

void UnsavedOffer::askNext()
{
    if (!mayAsk())
        return HostCompat::callAfter(waitMs, this, [this] { askNext(); });
    while (!m_found.isEmpty() && m_found.first().works.isEmpty())
        m_found.removeFirst();
    if (m_found.isEmpty()) {
        Q_EMIT ended();
        return;
    }
    const Found found = m_found.takeFirst();
    const QPointer<UnsavedOffer> self(this);
    const Answer answer = ask(found);
    if (!self)
        return;
    if (answer == BringBack)
        return bringBack(found);
    if (answer == ThrowAway)
        throwAway(found);
    askNext();
}

/// What is thrown away is asked about twice: there is no way back.
UnsavedOffer::Answer UnsavedOffer::ask(const Found &found)
{
    const QPointer<UnsavedOffer> self(this);
    Answer answer = askOnce(found);
    while (self && answer == ThrowAway) {
        const int isMeant =
            m_questioner->ask({tr("Unsaved work"), tr("Throw the unsaved work away for good?"),
                               QStringList() << tr("Cancel") << tr("Throw away")});
        if (!self || isMeant == 1)
            return answer;
        answer = askOnce(found);
    }
    return answer;
}

UnsavedOffer::Answer UnsavedOffer::askOnce(const Found &found)
{
    QStringList lines;
    for (const KeptWork &work : found.works)
        lines.append(shown(work));
    const int answer = m_questioner->ask(
        {tr("Unsaved work"), tr("This was not saved when the panel ended. Bring it back?"),
         QStringList() << tr("Keep for later") << tr("Bring back") << tr("Throw away"), lines});
    return answer == BringBack || answer == ThrowAway ? Answer(answer) : Later;
}

/// Work that is older still would cover this: it waits for the next start.
void UnsavedOffer::bringBack(const Found &found)
{
    m_found.clear();
    m_brought = Found();
    m_brought.session = found.session;
    const QPointer<UnsavedOffer> self(this);
    for (const KeptWork &work : found.works) {
        const bool isBack = bringBack(work);
        if (!self)
            return;
        if (isBack)
            m_brought.works.append(work);
        else
            Q_EMIT told(tr("%1 was not brought back. It is offered again at the next start.")
                            .arg(shownName(work)),
                        Message::Warning);
    }
    connect(m_work, SIGNAL(settled()), this, SLOT(removeOld()));
    m_work->keepNow();
}

bool UnsavedOffer::bringBack(const KeptWork &work)
{
    return work.subject == UnsavedWork::program() ? bringProgramBack(work) : bringRowsBack(work);
}

bool UnsavedOffer::bringRowsBack(const KeptWork &work)
{
    UnsavedRows *list = m_rows.value(work.subject);
    if (list->lookForChanges() || !list->bringBack(work.head.path, work.rows))
        return false;
    Q_EMIT told(tr("%1: brought back, not stored yet.").arg(shownName(work)), Message::Information);
    return true;
}

bool UnsavedOffer::bringProgramBack(const KeptWork &work)
{
    const QPointer<UnsavedOffer> self(this);
    // With a front part of it in the editor, Save must not reach the whole program.
    const bool wasWhole = !work.head.state.contains(incomplete());
    const bool isOpen = work.isFileThere && wasWhole && m_opener->open(work.head.path);
    if (!self)
        return false;
    if (!isOpen && m_opener->isModified())
        return false;
    if (!isOpen)
        QMetaObject::invokeMethod(m_program.window, "newFile");
    if (!isOpen && m_program.noteNew)
        m_program.noteNew();
    m_opener->put(work.text, work.head.cursor);
    tellOfProgram(work, isOpen);
    return true;
}

void UnsavedOffer::tellOfProgram(const KeptWork &work, bool isOpen)
{
    const QString name = shownName(work);
    if (work.head.state.contains(incomplete()))
        Q_EMIT told(
            tr("%1 had not been loaded whole. What was not saved of it is a new program now.")
                .arg(name),
            Message::Warning);
    else if (!isOpen && !work.head.path.isEmpty())
        Q_EMIT told(tr("%1 is not there any more. What was not saved of it is a new program now.")
                        .arg(name),
                    Message::Warning);
    else if (work.isFileChanged && isOpen)
        Q_EMIT told(tr("%1: brought back, not saved yet. The file has changed since then: Save "
                       "covers that.")
                        .arg(name),
                    Message::Warning);
    else
        Q_EMIT told(tr("%1: brought back, not saved yet.").arg(name), Message::Information);
}

/// This run keeps the old work by now, or the operator has saved it.
void UnsavedOffer::removeOld()
{
    disconnect(m_work, SIGNAL(settled()), this, SLOT(removeOld()));
    const Found brought = m_brought;
    m_brought = Found();
    m_thread.post([brought] { removeWorks(brought.session, brought.works); },
                  [this] { Q_EMIT ended(); });
}

void UnsavedOffer::throwAway(const Found &found)
{
    m_thread.post([found] { removeWorks(found.session, found.works); }, [] {});
}

QString UnsavedOffer::shownName(const KeptWork &work) const
{
    const UnsavedRows *list = m_rows.value(work.subject);
    const QString name =
        list ? list->nameOf(work.head.path) : QFileInfo(work.head.path).fileName().simplified();
    return name.isEmpty() ? ProgramName::unnamed() : name;
}

QString UnsavedOffer::shown(const KeptWork &work) const
{
    const QString time = work.time.toLocalTime().toString(QLatin1String("yyyy-MM-dd HH:mm"));
    const UnsavedRows *list = m_rows.value(work.subject);
    if (list)
        return list->describe(shownName(work), time, work.rows.size());
    return tr("%1, %2, lines: %3")
        .arg(shownName(work), time)
        .arg(work.text.count(QLatin1Char('\n')) + 1);
}
