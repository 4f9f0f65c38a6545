// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef HISTORYDIALOG_H
#define HISTORYDIALOG_H

#include "dialog.h"
#include "programs/historystore.h"

class QPushButton;
class PanelTable;

/// Lets the operator choose a version of a program to be brought back. The versions stand with the
/// newest on top, a page at a time, all of them or those of one name.
class HistoryDialog : public Dialog
{
    Q_OBJECT

public:
    /// \a versions are in order, oldest first.
    explicit HistoryDialog(const QList<ProgramVersion> &versions, QWidget *parent = nullptr);

    /// The version that was chosen; its number is 0 while none is.
    ProgramVersion version() const;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void fill();
    void showState();

    QList<ProgramVersion> m_all;
    QList<ProgramVersion> m_shown;
    PanelTable *m_table;
    QPushButton *m_onlyKey;
    QPushButton *m_restoreKey;
    QString m_only;
};

#endif // HISTORYDIALOG_H
