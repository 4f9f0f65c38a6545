// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef STORECHECK_H
#define STORECHECK_H

#include "base/filarixhostglobal.h"
#include "storage/filestamp.h"

#include <QObject>
#include <QString>

#include <functional>

class FileTaskQueue;
class Questioner;
class QTextDocument;

/// Follows up one save of a document until the disk has the document, or the operator lets it be.
/// Reads the file back, and offers to write the document again or elsewhere where the two differ.
///
/// A document whose save failed is modified again. ProgramGuard has one for its window; one save at
/// a time, until ended().
///
///     StoreCheck check(editor->document(), &queue, &questioner);
///     check.check(path, editor->toPlainText());
class FILARIX_HOST_EXPORT StoreCheck : public QObject
{
    Q_OBJECT

public:
    enum Outcome {
        Stored,
        StoredElsewhere, ///< Beside the failed one: see otherPath().
        NotStored
    };

    /// All of them must outlive the check.
    StoreCheck(QTextDocument *document, FileTaskQueue *jobs, Questioner *questioner,
               QObject *parent = nullptr);

    /// \a folder gives a folder on another disk to save to, or nothing; it is called in a thread.
    void setOtherPlace(const std::function<QString()> &folder) { m_otherPlace = folder; }

    bool isRunning() const { return m_isRunning; }
    /// Checks the file at \a path, to which the library has just written \a text.
    void check(const QString &path, const QString &text);
    /// Writes \a text to the file at \a path once more, by the safe way.
    void write(const QString &path, const QString &text);

    QString path() const { return m_path; }
    /// The stamp of the file that was stored; invalid when none was.
    FileStamp stamp() const { return m_stamp; }
    QString text() const { return m_text; }
    /// Whether the files' encoding has all characters of the text.
    bool isFaithful() const { return m_isFaithful; }
    /// Why the document is not stored, in the system's words.
    QString reason() const { return m_reason; }
    QString otherPath() const { return m_otherPath; }

Q_SIGNALS:
    /// The bytes on the disk are not those of the document. The question comes next.
    void missed();
    void ended(StoreCheck::Outcome outcome);

private:
    void begin(const QString &path, const QString &text);
    void miss(const QString &reason);
    void lookForOtherPlace();
    void ask(const QString &otherFolder);
    void writeAgain();
    void lookAndWriteElsewhere(const QString &folder);
    void writeElsewhere(const QString &folder);
    void end(Outcome outcome);

    QTextDocument *m_document;
    FileTaskQueue *m_jobs;
    Questioner *m_questioner;
    std::function<QString()> m_otherPlace;
    FileStamp m_stamp;
    QString m_path;
    QString m_text;
    int m_revision = 0;
    bool m_isRunning = false;
    bool m_isFaithful = true;
    QString m_reason;
    QString m_otherPath;
};

#endif // STORECHECK_H
