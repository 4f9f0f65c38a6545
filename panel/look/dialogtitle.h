// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef DIALOGTITLE_H
#define DIALOGTITLE_H

#include <QFrame>

class QLabel;

/// The strip on top of a dialog of the panel's own: what the dialog is, where no window manager
/// says so.
///
///     column->addWidget(new DialogTitle(this)); // says windowTitle()
class DialogTitle : public QFrame
{
    Q_OBJECT

public:
    /// Belongs to \a dialog, and follows its title.
    explicit DialogTitle(QWidget *dialog);

    QString text() const;

private:
    QLabel *m_label;
};

#endif // DIALOGTITLE_H
