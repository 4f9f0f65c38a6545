// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "programs/unsavedoffer.h"

#include "guards/programguard.h"
#include "programs/programopener.h"
#include "programs/unsavedstore.h"
#include "programs/unsavedwork.h"
#include "screens/programscreen.h"
#include "screens/teachscreen.h"
#include "screens/unsavedquestion.h"
#include "screens/variablesscreen.h"
#include "wgcodeediter.h"
#include "wmmainwindow.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>
#include <QTimer>

namespace {

const int waitMs = 300;

QStringList subjects()
{
    return {UnsavedWork::program(), UnsavedOffer::teach(), UnsavedOffer::variables()};
}

QString incomplete()
{
    return QLatin1String("incomplete");
}

// A program that was saved a moment before the panel ended.
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

} // namespace

UnsavedOffer::UnsavedOffer(const QString &folder, const Screens &screens, UnsavedWork *work,
                           QObject *parent)
    : QObject(parent)
    , m_folder(folder)
    , m_screens(screens)
    , m_work(work)
    , m_opener(new ProgramOpener(
          screens.program->programWindow(),
          [screens] { return screens.program->guard()->isBusy(); }, this))
{}

UnsavedOffer::~UnsavedOffer() = default;

KeptHead UnsavedOffer::headOf(const ProgramScreen *program)
{
    KeptHead head;
    head.path = program->programWindow()->getCurrentFile();
    head.cursor = program->editor()->textCursor().position();
    if (program->guard()->state().kind == ProgramState::Incomplete)
        head.state.insert(incomplete(), QString());
    return head;
}

QString UnsavedOffer::teach()
{
    return QLatin1String("teach");
}

QString UnsavedOffer::variables()
{
    return QLatin1String("variables");
}

void UnsavedOffer::start()
{
    const QString folder = m_folder;
    const std::shared_ptr<QList<Found>> found = std::make_shared<QList<Found>>();
    m_thread.post([folder, found] { *found = find(folder); }, [this, found] { takeIn(*found); });
}

QList<UnsavedOffer::Found> UnsavedOffer::find(const QString &folder)
{
    QList<Found> all;
    const QList<UnsavedSession::Pointer> sessions = UnsavedSession::left(folder);
    for (const UnsavedSession::Pointer &session : sessions) {
        const Found found = look(session);
        if (found.works.isEmpty())
            session->remove();
        if (!found.works.isEmpty() || !found.aside.isEmpty())
            all.append(found);
    }
    return all;
}

UnsavedOffer::Found UnsavedOffer::look(const UnsavedSession::Pointer &session)
{
    Found found;
    found.session = session;
    const QStringList all = subjects();
    for (const QString &subject : all) {
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

void UnsavedOffer::askNext()
{
    // Not over a question that the operator reads just now, nor into a program that is loaded or
    // saved, nor before there are lists to fill.
    if (QApplication::activeModalWidget() || m_screens.program->guard()->isBusy()
        || m_screens.teach->isLoading() || m_screens.variables->isLoading())
        return QTimer::singleShot(waitMs, this, &UnsavedOffer::askNext);
    while (!m_found.isEmpty() && m_found.first().works.isEmpty())
        m_found.removeFirst();
    if (m_found.isEmpty()) {
        Q_EMIT ended();
        return;
    }
    const Found found = m_found.takeFirst();
    QStringList lines;
    for (const KeptWork &work : found.works)
        lines.append(shown(work));
    const QPointer<UnsavedOffer> self(this);
    UnsavedQuestion question(lines);
    const int answer = question.exec();
    if (!self)
        return;
    if (answer == UnsavedQuestion::BringBack)
        return bringBack(found);
    if (answer == UnsavedQuestion::ThrowAway)
        throwAway(found);
    askNext();
}

// Work that is older still would cover this: it waits for the next start.
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
    connect(m_work, &UnsavedWork::settled, this, &UnsavedOffer::removeOld);
    m_work->keepNow();
}

bool UnsavedOffer::bringBack(const KeptWork &work)
{
    if (work.subject == UnsavedWork::program())
        return bringProgramBack(work);
    bool isBack = false;
    if (work.subject == teach())
        isBack =
            !m_screens.teach->hasChanges() && m_screens.teach->bringBack(work.head.path, work.rows);
    else
        isBack = !m_screens.variables->hasChanges() && m_screens.variables->bringBack(work.rows);
    if (isBack)
        Q_EMIT told(tr("%1: brought back, not stored yet.").arg(shownName(work)),
                    Message::Information);
    return isBack;
}

bool UnsavedOffer::bringProgramBack(const KeptWork &work)
{
    WMMainWindow *window = m_screens.program->programWindow();
    const QPointer<UnsavedOffer> self(this);
    // With a front part of it in the editor, Save must not reach the whole program.
    const bool wasWhole = !work.head.state.contains(incomplete());
    const bool isOpen = work.isFileThere && wasWhole && m_opener->open(work.head.path);
    if (!self)
        return false;
    if (!isOpen && window->isWindowModified())
        return false;
    if (!isOpen)
        QMetaObject::invokeMethod(window, "newFile");
    if (!isOpen)
        m_screens.program->guard()->noteNewProgram();
    m_opener->put(work.text, work.head.cursor);
    if (!wasWhole)
        Q_EMIT told(
            tr("%1 had not been loaded whole. What was not saved of it is a new program now.")
                .arg(shownName(work)),
            Message::Warning);
    else if (!isOpen && !work.head.path.isEmpty())
        Q_EMIT told(tr("%1 is not there any more. What was not saved of it is a new program now.")
                        .arg(shownName(work)),
                    Message::Warning);
    else if (work.isFileChanged && isOpen)
        Q_EMIT told(tr("%1: brought back, not saved yet. The file has changed since then: Save "
                       "covers that.")
                        .arg(shownName(work)),
                    Message::Warning);
    else
        Q_EMIT told(tr("%1: brought back, not saved yet.").arg(shownName(work)),
                    Message::Information);
    return true;
}

// This run keeps it by now, or the operator has saved it.
void UnsavedOffer::removeOld()
{
    disconnect(m_work, &UnsavedWork::settled, this, &UnsavedOffer::removeOld);
    const Found brought = m_brought;
    m_brought = Found();
    m_thread.post(
        [brought] {
            for (const KeptWork &work : brought.works)
                UnsavedStore::remove(*brought.session, work.subject);
            if (QDir(brought.session->path()).entryList({QLatin1String("*.kept")}).isEmpty())
                brought.session->remove();
        },
        [this] { Q_EMIT ended(); });
}

void UnsavedOffer::throwAway(const Found &found)
{
    const UnsavedSession::Pointer session = found.session;
    m_thread.post([session] { session->remove(); }, [] {});
}

QString UnsavedOffer::shownName(const KeptWork &work)
{
    if (work.subject == variables())
        return tr("Variables");
    const QString name = QFileInfo(work.head.path).fileName().simplified();
    return name.isEmpty() ? tr("New program") : name;
}

QString UnsavedOffer::shown(const KeptWork &work)
{
    const QString time = work.time.toLocalTime().toString(QLatin1String("yyyy-MM-dd HH:mm"));
    if (work.subject == UnsavedWork::program())
        return tr("%1, %2, lines: %3")
            .arg(shownName(work), time)
            .arg(work.text.count(QLatin1Char('\n')) + 1);
    if (work.subject == teach())
        return tr("%1, %2, instructions: %3").arg(shownName(work), time).arg(work.rows.size());
    return tr("%1, %2, values: %3").arg(shownName(work), time).arg(work.rows.size());
}
