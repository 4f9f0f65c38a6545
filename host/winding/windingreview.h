// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef WINDINGREVIEW_H
#define WINDINGREVIEW_H

#include "base/filarixhostglobal.h"
#include "storage/filetaskrunner.h"
#include "winding/programreading.h"

#include <QObject>
#include <QPointer>
#include <QTextDocument>

/// Reviews a program beside the event loop.
///
///     m_review.setListenerMaker(makeCheck); // a std::shared_ptr<BlockListener> each time
///     connect(&m_review, SIGNAL(reviewed()), this, SLOT(showCoil()));
///     m_review.start(editor->document());
///
/// Each start() ends in exactly one reviewed(), stopped() or failed(), never before start() has
/// returned. A start() while a review is under way takes its place, and of the old review nothing
/// more is told.
class FILARIX_HOST_EXPORT WindingReview : public QObject
{
    Q_OBJECT

public:
    typedef std::function<std::shared_ptr<BlockListener>()> ListenerMaker;

    /// Time that one piece of a document may be copied in the thread of the screen, in ms.
    static const int copyMs = 8;

    explicit WindingReview(QObject *parent = nullptr);
    /// Leaves a review under way behind; it changes nothing any more.
    ~WindingReview() override;

    /// For programs to come; the samples' profile before.
    void setProfile(const MachineProfile &profile) { m_profile = profile; }
    const MachineProfile &profile() const { return m_profile; }
    /// Called at the beginning of each review, in this object's thread. What it makes hears the
    /// blocks in a thread of its own, and nobody else may touch it before reviewed(). Without a
    /// maker nobody hears.
    void setListenerMaker(const ListenerMaker &maker) { m_maker = maker; }

    /// Reads the file piece by piece; nothing of it is kept.
    void start(const QString &path);
    /// Copies the document's text in pieces of copyMs, and does all else in a thread. When the
    /// document changes before all is copied, the review begins again with the new text.
    void start(QTextDocument *document);
    bool isRunning() const { return bool(m_run); }
    /// In milliseconds: how long a file may give no answer.
    void setStallTime(int ms) { m_stallMs = ms; }

    /// The coil of the program that was reviewed last; an empty one before.
    const WindingModel &model() const { return m_model; }
    /// In a slot of progressed(): the coil as far as it is wound by then. The next piece has to
    /// copy it: ask for it a few times a second at most. At any other moment an empty one.
    WindingModel modelSoFar() const;
    /// Who heard that program; null without a maker.
    std::shared_ptr<BlockListener> listener() const { return m_listener; }
    /// QTextDocument::revision() of that program; -1 for a file.
    int revision() const { return m_revision; }

    /// Reviews a file in the calling thread. False with \a error, in words, when it cannot be read.
    static bool read(const QString &path, ProgramReading *reading, QString *error);

public Q_SLOTS:
    /// Ends the review under way, with stopped(); what the one before gave stays.
    void stop();

Q_SIGNALS:
    /// 0 to 100.
    void progressed(int percent);
    void reviewed();
    void stopped();
    /// \a reason is a sentence for the operator.
    void failed(const QString &reason);

private Q_SLOTS:
    void endFile();
    void endStalled();
    void tellProgress(int percent);
    void followChange();

private:
    struct Run;
    class FileReview;

    std::shared_ptr<Run> makeRun();
    void abandon();
    void leaveFile();
    void take(const Run &run);
    void beginCopy();
    void copyLater(const std::shared_ptr<Run> &run);
    void copy();
    QString copyPiece();
    void endPiece(const std::shared_ptr<Run> &run, bool isLast);

    MachineProfile m_profile;
    ListenerMaker m_maker;
    std::shared_ptr<Run> m_run;
    std::shared_ptr<FileReview> m_file;
    FileTaskRunner *m_files = nullptr;
    int m_stallMs = FileTaskRunner::stallMs;
    QScopedPointer<FileThread> m_thread;
    QPointer<QTextDocument> m_document;
    bool m_hasChanged = false;
    /// Progress is being told: the thread has nothing to do.
    bool m_isBetweenPieces = false;
    WindingModel m_model;
    std::shared_ptr<BlockListener> m_listener;
    int m_revision = -1;
};

#endif // WINDINGREVIEW_H
