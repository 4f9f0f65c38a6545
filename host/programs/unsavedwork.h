// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef UNSAVEDWORK_H
#define UNSAVEDWORK_H

#include "base/filarixhostglobal.h"
#include "base/message.h"
#include "programs/keptwork.h"
#include "storage/filethread.h"

#include <QTimer>

#include <functional>
#include <memory>
#include <vector>

class DocumentRecorder;
class QTextDocument;
class UnsavedRows;
class UnsavedStore;

/// Keeps the unsaved work of all screens on the disk, at most two seconds behind the operator.
///
/// Nothing is written while nothing changes, and what is saved is dropped. The disk is written to
/// beside the event loop, one thing at a time. A disk that is full or hangs is told once, and holds
/// nobody up. UnsavedOffer brings the work back at the next start.
///
///     UnsavedWork work("/home/hmi/hmi/unsaved");
///     work.watchProgram(editor->document(),
///                       [window] { return UnsavedOffer::headOf(window, false); });
class FILARIX_HOST_EXPORT UnsavedWork : public QObject
{
    Q_OBJECT

public:
    /// Milliseconds from a change to the begin of its writing.
    static const int delayMs = 700;

    /// Work is kept in \a folder.
    explicit UnsavedWork(const QString &folder, QObject *parent = nullptr);
    ~UnsavedWork() override;

    /// Watches the program's text from now on. \a head says what the text belongs to; \a mayDrop,
    /// if given, whether a text without changes is surely stored. The document must outlive this.
    void watchProgram(QTextDocument *document, const std::function<KeptHead()> &head,
                      const std::function<bool()> &mayDrop = std::function<bool()>());
    /// Watches the rows of a list from now on, under the name \a subject: a word of small letters.
    /// The list must outlive this.
    void watchRows(const QString &subject, UnsavedRows *list);

    /// Whether all that is not saved is on the disk.
    bool isSettled() const;
    /// Begins to write what is not yet written; settled() comes when that is done.
    void keepNow();
    /// Writes at once what is not yet written, and waits for the disk, \a ms milliseconds at most.
    /// True if all of it is on the disk then.
    bool flush(int ms);
    /// The operator has given up all that is not saved; waits until it is gone, \a ms milliseconds
    /// at most. Nothing is watched any more.
    void giveUp(int ms);
    /// From a change of the program to the begin of its writing, and from one look at the rows to
    /// the next, in milliseconds.
    void setDelay(int ms);
    /// After a failure the disk is left alone for \a ms milliseconds.
    void setPause(int ms) { m_pause.setInterval(ms); }
    /// Milliseconds after which a disk that still works on one thing is reported.
    void setStallTime(int ms) { m_stall.setInterval(ms); }

    /// The subject that watchProgram() is about.
    static QString program();

Q_SIGNALS:
    /// All that was not saved is on the disk.
    void settled();
    void told(const QString &text, Message::Tone tone, const QString &cause);
    void causeEnded(const QString &cause);

private Q_SLOTS:
    void noteProgram();
    void lookAtProgram();
    void keepProgram(const QString &text);
    void lookAtRows();
    void goOn();
    void tellStall();

private:
    typedef std::function<bool(UnsavedStore *)> Job;

    /// Where a subject's work stands.
    struct Subject
    {
        QString name;
        std::function<KeptHead()> head;
        /// The head that was written last.
        KeptHead keptHead;
        /// There may be files of the subject.
        bool mayBeKept = false;
        /// What was to be written last is.
        bool isWritten = true;
    };

    struct Rows : Subject
    {
        UnsavedRows *list = nullptr;
        QList<QStringList> kept;
    };

    void appendChanges();
    void lookAt(Rows *rows);
    bool isProgramSettled() const;
    void waitUntilSettled(int ms);
    bool mayStart() const;
    /// Whether the subject is kept afterwards: \a keeps.
    void start(Subject *subject, bool keeps, const Job &job);
    void drop(Subject *subject);
    void end(Subject *subject, bool isDone, const QString &reason);
    void tellTrouble(const QString &text);
    void endTrouble();

    std::shared_ptr<UnsavedStore> m_store;
    QTextDocument *m_document = nullptr;
    DocumentRecorder *m_recorder = nullptr;
    Subject m_program;
    std::function<bool()> m_mayDrop;
    std::vector<std::unique_ptr<Rows>> m_rows;
    QTimer m_programTimer;
    QTimer m_rowsTimer;
    QTimer m_stall;
    /// After a failure the disk is left alone for a while.
    QTimer m_pause;
    bool m_isProgramDue = false;
    bool m_areRowsDue = false;
    bool m_isWriting = false;
    bool m_isOver = false;
    bool m_isTroubled = false;
    /// Last, so that what runs in it ends first.
    FileThread m_thread;
};

#endif // UNSAVEDWORK_H
