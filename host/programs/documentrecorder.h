// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef DOCUMENTRECORDER_H
#define DOCUMENTRECORDER_H

#include "programs/keptwork.h"

#include <QObject>
#include <QTimer>

class QTextDocument;

/// Takes down what becomes of a document: first its whole text, then each change.
///
/// A long text is copied in pieces from the event loop, so that the screen never waits. What
/// changes meanwhile is changed in the copy as well.
///
///     recorder.copy();                          // copied() brings the text
///     ...
///     append(recorder.takeChanges());           // whenever changed() has come
class DocumentRecorder : public QObject
{
    Q_OBJECT

public:
    /// \a document must outlive the recorder.
    explicit DocumentRecorder(QTextDocument *document, QObject *parent = nullptr);

    /// Begins the copy anew. The copy has the changes in it that were not taken.
    void copy();
    /// Forgets the copy and the changes, and takes nothing down until copy() is called again.
    void stop();
    /// Ends a copy that is still being made, at once.
    void finishCopy();
    bool isCopying() const { return m_state == Copying; }
    /// Whether there was a copy, and all changes since are known.
    bool isRecording() const { return m_state == Recording; }
    bool hasChanges() const { return !m_changes.isEmpty(); }
    /// The changes since copied() or the last call.
    QList<TextChange> takeChanges();

Q_SIGNALS:
    /// The document has changed, whether that is taken down or not.
    void changed();
    /// The document's text as it is now, with "\n" between its lines.
    void copied(const QString &text);

private Q_SLOTS:
    void note(int position, int removed, int added);
    void copyPiece();

private:
    enum State { Idle, Copying, Recording };

    void noteInCopy(const TextChange &change);
    void noteInRecord(const TextChange &change);
    QString textAt(int position, int count) const;
    int size() const;

    QTextDocument *m_document;
    State m_state = Idle;
    QString m_copy;
    QList<TextChange> m_changes;
    int m_changedChars = 0;
    /// Characters of the document, as all changes so far make it.
    int m_size = 0;
    QTimer m_timer;
};

#endif // DOCUMENTRECORDER_H
