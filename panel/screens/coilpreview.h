// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef COILPREVIEW_H
#define COILPREVIEW_H

#include "base/message.h"
#include "storage/filejob.h"
#include "winding/windingreview.h"

#include <QElapsedTimer>
#include <QObject>
#include <QSet>
#include <QTimer>

#include <functional>
#include <memory>

class QTextDocument;

/// The coil of the program in the editor, for the views of it: follows the document while a view is
/// up, beside the event loop.
///
/// The document is read when it has not changed for a while. From the begin of a new reading the
/// views get what is wound so far, several times a second.
class CoilPreview : public QObject
{
    Q_OBJECT

public:
    enum State {
        NotRead,      ///< Nothing is known yet.
        Empty,        ///< The program has no line that says anything.
        WindsNothing, ///< The guide may move all the same.
        Winds,
        NoProfile ///< The machine's file has faults; see profileFaults().
    };

    /// From the last change to the begin of a reading, in milliseconds.
    static const int pauseMs = 600;
    /// From the begin of a reading to the first growing picture; the next ones take longer.
    static const int growMs = 60;

    /// \a document must outlive the preview.
    explicit CoilPreview(QTextDocument *document, QObject *parent = nullptr);

    /// Reads the machine's profile beside the event loop. Without a file at \a path the samples'
    /// machine counts, unless the file \a isNeeded: that it is missing is a fault then.
    void readProfile(const QString &path, bool isNeeded = false);
    /// In the place of what a file says.
    void setProfile(const MachineProfile &profile);
    const MachineProfile &profile() const { return m_review.profile(); }
    QStringList profileFaults() const { return m_profileFaults; }

    /// Whether \a viewer shows the coil at this moment: only then is anything read.
    void setViewed(QObject *viewer, bool isViewed);
    void setPause(int ms) { m_pause.setInterval(ms); }

    State state() const;
    /// As far as it is read.
    const WindingModel &model() const { return m_model; }
    /// Whether the program is being read, and the model grows.
    bool isReading() const { return m_review.isRunning(); }
    int percent() const { return m_percent; }
    /// Milliseconds since the reading began.
    qint64 readingFor() const { return m_readFor.elapsed(); }
    /// Ends the reading. The next change, or a view that comes up, begins another one.
    void stop();
    /// Whether the operator has ended the last reading.
    bool isStopped() const { return m_isStopped; }
    /// Whether the model is that of the document as it is.
    bool isCurrent() const;
    /// Lines with something that neither the reader nor the machine knows, and the first of them.
    int unknownLines() const { return m_unknown.count; }
    int firstUnknownLine() const { return m_unknown.first; }

    /// Who else hears each reading's blocks, made anew for each: a check, say. Called at its begin.
    void setCompanion(const std::function<std::shared_ptr<BlockListener>()> &companion)
    {
        m_companion = companion;
    }

Q_SIGNALS:
    /// The model or the state is another one.
    void changed();
    /// How much of the program is read, 0 to 100.
    void progressed(int percent);
    /// A reading ended: model() is the whole coil.
    void settled();
    /// A reading was stopped, by a change of the program or by stop().
    void halted();
    void told(const QString &text, Message::Tone tone, const QString &cause);

private:
    class Growth;

    struct Unknown
    {
        int count = 0;
        int first = 0;
        bool hasWords = false;
    };

    void noteChange();
    void begin();
    void takeGrowth();
    void end();
    void takeProfile(const MachineProfile &profile, const QStringList &faults);

    QTextDocument *m_document;
    WindingReview m_review;
    WindingModel m_model;
    std::shared_ptr<Growth> m_growth;
    std::function<std::shared_ptr<BlockListener>()> m_companion;
    FileJob m_profileJob;
    QStringList m_profileFaults;
    QSet<QObject *> m_viewers;
    QTimer m_pause;
    QTimer m_grow;
    QElapsedTimer m_readFor;
    Unknown m_unknown;
    int m_percent = 0;
    int m_readRevision = -1;
    bool m_hasProfile = false;
    bool m_isStale = true;
    bool m_isStopped = false;
};

#endif // COILPREVIEW_H
