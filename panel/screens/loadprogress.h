// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef LOADPROGRESS_H
#define LOADPROGRESS_H

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>

class QProgressDialog;
class QTextDocument;

/// How far the library is with loading a long program, by its own progress dialog. The library
/// shows that dialog when the load takes seconds, and it has figures from the first piece on.
///
///     LoadProgress *progress = new LoadProgress(editor->document(), this);
///     connect(progress, &LoadProgress::worked, this, [this](int percent) { ... });
class LoadProgress : public QObject
{
    Q_OBJECT

public:
    /// \a document is the editor's, and must outlive the object.
    explicit LoadProgress(QTextDocument *document, QObject *parent = nullptr);

    bool isLoading() const;

public Q_SLOTS:
    /// What the dialog's own Abort does.
    void stop();

Q_SIGNALS:
    /// The load takes longer than a moment; \a percent of the program is there.
    void worked(int percent);
    /// The load goes on no more, whether it came to its end or not.
    void ended();

private:
    void look();
    void end();

    QPointer<QProgressDialog> m_dialog;
    QElapsedTimer m_loadedFor;
};

#endif // LOADPROGRESS_H
