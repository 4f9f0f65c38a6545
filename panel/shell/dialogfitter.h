// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef DIALOGFITTER_H
#define DIALOGFITTER_H

#include <QEvent>
#include <QList>
#include <QObject>
#include <QPointer>

class QDialog;
class QWidget;

/// Fits dialogs to the panel, with a window manager or without.
///
/// A dialog stays above the panel when the panel is touched. Each dialog gets an edge and, where no
/// window manager shows its title, a TitleStrip. A dialog that is larger than the panel is made
/// smaller when it is shown, and one that the toolkit places stands in the middle. The import
/// manager gets most of the panel: its own size leaves a file name no room.
class DialogFitter : public QObject
{
    Q_OBJECT

public:
    /// Watches the application from now on. The panel is the toolkit's primary screen. Dialogs stay
    /// above \a panel, which may be null.
    explicit DialogFitter(QWidget *panel);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fit(QDialog *dialog);
    void bind(QDialog *dialog);
    static void enlargeLetters(QDialog *dialog);
    void raiseAll();
    bool isPressOfPanel(const QObject *watched, QEvent::Type type) const;

    QWidget *const m_panel;
    /// The open dialogs, the last one shown at the end.
    QList<QPointer<QDialog>> m_open;
};

#endif // DIALOGFITTER_H
