// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "programs/unsavedwork.h"

#include "programs/documentrecorder.h"
#include "programs/programopener.h"
#include "programs/unsavedrows.h"
#include "programs/unsavedstore.h"

#include <QEventLoop>
#include <QTextDocument>

#include <algorithm>

namespace {

const int rowsMs = 1000;
const int stallMs = 5000;
const int pauseMs = 5000;

QString troubleCause()
{
    return QLatin1String("unsaved");
}

} // namespace

const int UnsavedWork::delayMs;

UnsavedWork::UnsavedWork(const QString &folder, QObject *parent)
    : QObject(parent), m_store(std::make_shared<UnsavedStore>(folder))
{
    m_program.name = program();
    for (QTimer *timer : {&m_programTimer, &m_stall, &m_pause})
        timer->setSingleShot(true);
    m_programTimer.setInterval(delayMs);
    m_rowsTimer.setInterval(rowsMs);
    m_stall.setInterval(stallMs);
    m_pause.setInterval(pauseMs);
    connect(&m_programTimer, SIGNAL(timeout()), this, SLOT(lookAtProgram()));
    connect(&m_rowsTimer, SIGNAL(timeout()), this, SLOT(lookAtRows()));
    connect(&m_pause, SIGNAL(timeout()), this, SLOT(goOn()));
    connect(&m_stall, SIGNAL(timeout()), this, SLOT(tellStall()));
}

UnsavedWork::~UnsavedWork() = default;

QString UnsavedWork::program()
{
    return QLatin1String("program");
}

void UnsavedWork::watchProgram(QTextDocument *document, const std::function<KeptHead()> &head,
                               const std::function<bool()> &mayDrop)
{
    m_document = document;
    m_program.head = head;
    m_mayDrop = mayDrop;
    m_recorder = new DocumentRecorder(document, this);
    connect(m_recorder, SIGNAL(changed()), this, SLOT(noteProgram()));
    connect(m_recorder, SIGNAL(copied(QString)), this, SLOT(keepProgram(QString)));
    connect(document, SIGNAL(modificationChanged(bool)), this, SLOT(noteProgram()));
    noteProgram();
}

void UnsavedWork::watchRows(const QString &subject, UnsavedRows *list)
{
    std::unique_ptr<Rows> rows(new Rows);
    rows->name = subject;
    rows->head = [list] {
        KeptHead head;
        head.path = list->filePath();
        return head;
    };
    rows->list = list;
    m_rows.push_back(std::move(rows));
    m_rowsTimer.start();
}

void UnsavedWork::setDelay(int ms)
{
    m_programTimer.setInterval(ms);
    m_rowsTimer.setInterval(ms);
}

bool UnsavedWork::isSettled() const
{
    return !m_isWriting && !m_areRowsDue && isProgramSettled()
           && std::all_of(m_rows.begin(), m_rows.end(),
                          [](const std::unique_ptr<Rows> &rows) { return rows->isWritten; });
}

bool UnsavedWork::isProgramSettled() const
{
    return !m_recorder
           || (!m_programTimer.isActive() && !m_isProgramDue && !m_recorder->isCopying()
               && m_program.isWritten);
}

void UnsavedWork::keepNow()
{
    m_pause.stop();
    lookAtRows();
    if (m_programTimer.isActive() || m_isProgramDue) {
        m_programTimer.stop();
        lookAtProgram();
    }
    // From the event loop, so that whoever asked for it hears it.
    if (isSettled())
        QMetaObject::invokeMethod(this, "settled", Qt::QueuedConnection);
}

bool UnsavedWork::flush(int ms)
{
    keepNow();
    if (m_recorder)
        m_recorder->finishCopy();
    if (!isSettled())
        waitUntilSettled(ms);
    return isSettled();
}

void UnsavedWork::waitUntilSettled(int ms)
{
    QEventLoop loop;
    connect(this, SIGNAL(settled()), &loop, SLOT(quit()));
    QTimer::singleShot(ms, &loop, SLOT(quit()));
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

/// The work is removed behind what is being written just now, and no write comes after.
void UnsavedWork::giveUp(int ms)
{
    m_isOver = true;
    m_programTimer.stop();
    m_rowsTimer.stop();
    if (m_recorder)
        m_recorder->stop();
    QStringList subjects{m_program.name};
    for (const std::unique_ptr<Rows> &rows : m_rows)
        subjects.append(rows->name);
    const std::shared_ptr<UnsavedStore> store = m_store;
    m_thread.post(
        [store, subjects] {
            for (const QString &subject : subjects)
                store->drop(subject);
        },
        [this] { Q_EMIT settled(); });
    waitUntilSettled(ms);
}

void UnsavedWork::noteProgram()
{
    if (!m_isOver && !m_programTimer.isActive())
        m_programTimer.start();
}

void UnsavedWork::lookAtProgram()
{
    // A program that is being opened is no work of the operator's.
    if (ProgramOpener::isLoading())
        return noteProgram();
    m_isProgramDue = !mayStart();
    if (m_isProgramDue)
        return;
    if (m_document->isModified()) {
        if (m_recorder->isRecording())
            appendChanges();
        else if (!m_recorder->isCopying())
            m_recorder->copy();
        return;
    }
    if (m_mayDrop && !m_mayDrop())
        return noteProgram();
    m_recorder->stop();
    drop(&m_program);
}

void UnsavedWork::keepProgram(const QString &text)
{
    if (m_isWriting) {
        // The text of later will do.
        m_recorder->stop();
        m_isProgramDue = true;
        return;
    }
    KeptWork work;
    work.subject = m_program.name;
    work.head = m_program.keptHead = m_program.head();
    work.time = QDateTime::currentDateTimeUtc();
    work.text = text;
    start(&m_program, true, [work](UnsavedStore *store) { return store->keep(work); });
}

void UnsavedWork::appendChanges()
{
    const KeptHead head = m_program.head();
    if (!m_recorder->hasChanges() && head == m_program.keptHead)
        return;
    m_program.keptHead = head;
    const QString subject = m_program.name;
    const QList<TextChange> changes = m_recorder->takeChanges();
    start(&m_program, true, [subject, head, changes](UnsavedStore *store) {
        return store->append(subject, head, changes);
    });
}

void UnsavedWork::lookAtRows()
{
    if (m_isOver)
        return;
    m_areRowsDue = false;
    for (const std::unique_ptr<Rows> &rows : m_rows)
        lookAt(rows.get());
}

void UnsavedWork::lookAt(Rows *rows)
{
    if (rows->list->isLoading())
        return;
    const bool hasChanges = rows->list->lookForChanges();
    const QList<QStringList> now = hasChanges ? rows->list->rows() : QList<QStringList>();
    const KeptHead head = hasChanges ? rows->head() : KeptHead();
    const bool isKept = rows->mayBeKept && rows->isWritten;
    if (hasChanges ? isKept && now == rows->kept && head == rows->keptHead : !rows->mayBeKept)
        return;
    if (!mayStart()) {
        m_areRowsDue = true;
        return;
    }
    rows->kept = now;
    rows->keptHead = head;
    if (!hasChanges)
        return drop(rows);
    KeptWork work;
    work.subject = rows->name;
    work.head = head;
    work.time = QDateTime::currentDateTimeUtc();
    work.rows = now;
    start(rows, true, [work](UnsavedStore *store) { return store->keep(work); });
}

bool UnsavedWork::mayStart() const
{
    return !m_isWriting && !m_pause.isActive();
}

void UnsavedWork::start(Subject *subject, bool keeps, const Job &job)
{
    subject->mayBeKept = true;
    subject->isWritten = false;
    m_isWriting = true;
    m_stall.start();
    struct Result
    {
        bool isDone = false;
        QString reason;
    };
    const std::shared_ptr<Result> result = std::make_shared<Result>();
    const std::shared_ptr<UnsavedStore> store = m_store;
    m_thread.post(
        [store, job, result] {
            result->isDone = job(store.get());
            result->reason = store->errorString();
        },
        [this, subject, keeps, result] {
            if (result->isDone)
                subject->mayBeKept = keeps;
            end(subject, result->isDone, result->reason);
        });
}

void UnsavedWork::drop(Subject *subject)
{
    if (!subject->mayBeKept)
        return;
    const QString name = subject->name;
    start(subject, false, [name](UnsavedStore *store) { return store->drop(name); });
}

void UnsavedWork::end(Subject *subject, bool isDone, const QString &reason)
{
    m_isWriting = false;
    m_stall.stop();
    if (m_isOver)
        return;
    subject->isWritten = isDone;
    if (isDone) {
        endTrouble();
    } else {
        if (subject == &m_program) {
            m_recorder->stop();
            m_isProgramDue = true;
        }
        if (!reason.isEmpty()) {
            tellTrouble(reason);
            m_pause.start();
        }
    }
    goOn();
    if (isSettled())
        Q_EMIT settled();
}

void UnsavedWork::goOn()
{
    if (m_isProgramDue)
        lookAtProgram();
    if (m_areRowsDue)
        lookAtRows();
}

/// The work in hand is not given up: two writers would get in each other's way.
void UnsavedWork::tellStall()
{
    tellTrouble(tr("the storage does not answer"));
}

void UnsavedWork::tellTrouble(const QString &text)
{
    if (m_isTroubled)
        return;
    m_isTroubled = true;
    Q_EMIT told(tr("What is not saved cannot be kept for a power cut: %1. Save soon.").arg(text),
                Message::Warning, troubleCause());
}

void UnsavedWork::endTrouble()
{
    if (!m_isTroubled)
        return;
    m_isTroubled = false;
    Q_EMIT causeEnded(troubleCause());
}
