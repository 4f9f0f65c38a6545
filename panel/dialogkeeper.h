// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef DIALOGKEEPER_H
#define DIALOGKEEPER_H

#include <QObject>

class QDialog;

/// Keeps dialogs on the panel and apart from it: each gets an edge, as a panel has no window
/// manager to draw one, one that is larger than the panel is made to fit when it is shown, one that
/// the toolkit places stands in the middle, and the import manager, whose own size leaves a file
/// name no room, gets most of the panel.
class DialogKeeper : public QObject
{
    Q_OBJECT

public:
    /// Watches the application from now on. The panel is the primary screen.
    explicit DialogKeeper(QObject *parent);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fit(QDialog *dialog);
};

#endif // DIALOGKEEPER_H
