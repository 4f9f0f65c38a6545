// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PROGRAMLIST_H
#define PROGRAMLIST_H

#include "guards/pickertable.h"
#include "look/paneltable.h"
#include "screens/programfolder.h"

#include <QWidget>

class QLabel;

/// The programs of a folder in a table, by name, with their sizes and dates where there is room.
/// One of them is chosen, and stays so while the folder changes. Where there is nothing to list the
/// list says why.
class ProgramList : public QWidget
{
    Q_OBJECT

public:
    /// \a folder must outlive the list.
    explicit ProgramList(ProgramFolder *folder, QWidget *parent = nullptr);

    /// The bare name; empty for none.
    QString chosen() const { return m_chosen; }
    /// None when there is no program of that name.
    void choose(const QString &name);
    /// In the order of the rows; empty without any.
    QString firstName() const { return m_rows->shownNames().value(0); }
    void showHeads(bool isWanted);
    QTableWidget *table() const { return m_table; }

Q_SIGNALS:
    /// Another program is chosen, or the one that is has another date or size, or is gone.
    void chosenChanged();
    /// The operator touched a program twice, or pressed Return on it.
    void openWanted();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void takeFolder();
    void takeRow();
    void showWords();
    void fitColumns();
    ProgramListing::Entry entryOf(const QString &name) const;
    QString words() const;

    ProgramFolder *m_folder;
    PanelTable *m_table;
    PickerTable *m_rows;
    QLabel *m_words;
    QString m_chosen;
    ProgramListing::Entry m_entry;
    bool m_isFilling = false;
};

#endif // PROGRAMLIST_H
