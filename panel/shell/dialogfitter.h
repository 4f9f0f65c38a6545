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

/// Keeps dialogs on the panel, above it and apart from it: none slips behind the panel when that is
/// touched, with a window manager or without, each gets an edge, as a panel has no window
/// manager to draw one, one that is larger than the panel is made to fit when it is shown, one that
/// the toolkit places stands in the middle, and the import manager, whose own size leaves a file
/// name no room, gets most of the panel.
class DialogFitter : public QObject
{
    Q_OBJECT

public:
    /// Watches the application from now on. The panel is the primary screen, and \a panel, if any,
    /// is the window that dialogs stay above.
    explicit DialogFitter(QWidget *panel);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fit(QDialog *dialog);
    void bind(QDialog *dialog);
    void raiseAll();
    bool isPressOfPanel(const QObject *watched, QEvent::Type type) const;

    QWidget *const m_panel;
    /// Those that are open, the last one shown at the end.
    QList<QPointer<QDialog>> m_open;
};

#endif // DIALOGFITTER_H
