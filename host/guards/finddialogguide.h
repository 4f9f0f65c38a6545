// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FINDDIALOGGUIDE_H
#define FINDDIALOGGUIDE_H

#include "base/filarixhostglobal.h"
#include "base/message.h"

#include <QObject>
#include <QPointer>
#include <QTextCursor>
#include <QTextDocument>

class WGCodeEditer;

/// Leads the search of the library's find dialog to where the operator looks.
///
///     FindDialogGuide *guide = new FindDialogGuide(editor);
///     connect(guide, SIGNAL(told(QString, Message::Tone, QString)), ...);
///
/// The library searches from the cursor to the end of the program, and no further. Here a search
/// starts at the first visible line where the cursor is out of sight, or at the end, as behind a
/// long load. From the end it goes on at the top, and the operator is told so. What is found is
/// shown in readable colours, and not below the dialog. Dialog, search and replacement stay the
/// library's own.
class FILARIX_HOST_EXPORT FindDialogGuide : public QObject
{
    Q_OBJECT

public:
    /// Belongs to \a editor, which has one such object at the most.
    explicit FindDialogGuide(WGCodeEditer *editor);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void told(const QString &text, Message::Tone tone, const QString &cause = QString());
    /// The last search needed no word.
    void causeEnded(const QString &cause);

private Q_SLOTS:
    void findNext(const QString &text, Qt::CaseSensitivity cs);
    void findPrevious(const QString &text, Qt::CaseSensitivity cs);

private:
    void take(QWidget *dialog);
    void makeHitsReadable();
    void search(const QString &text, QTextDocument::FindFlags flags, Qt::CaseSensitivity cs);
    QTextCursor start(bool isBackward) const;
    void showHit();
    void tell(bool hasWrapped, bool isBackward);

    WGCodeEditer *m_editor;
    QPointer<QWidget> m_dialog;
};

#endif // FINDDIALOGGUIDE_H
