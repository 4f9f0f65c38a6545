// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef VARIABLESSCREEN_H
#define VARIABLESSCREEN_H

#include "screens/listscreen.h"
#include "storage/rowkeeper.h"

/// The machine's variables: a list of plain data rows, each a number, a name and a value, kept in
/// a text file of the host.
class VariablesScreen : public ListScreen
{
    Q_OBJECT

public:
    /// Shows the values that are kept in "variables.txt" in \a folder as soon as they are read. The
    /// folder is made when they are stored.
    VariablesScreen(const QSize &surface, const QString &folder, QWidget *parent = nullptr);

    QString title() const override;
    bool hasChanges() const override { return m_changed; }
    QList<PanelKey *> keys() override;
    bool mayClose() override;
    void refreshStatus() override;

    /// Writes the values beside the event loop; ends in told().
    void store();
    /// Shows the values in \a rows that were not stored when the program ended; false if there
    /// are none of the machine's variables among them.
    bool bringBack(const QString &path, const QList<QStringList> &rows) override;
    QString nameOf(const QString &path) const override;
    QString describe(const QString &name, const QString &time, int count) const override;
    /// The value of a variable as text; null for a name that isn't there.
    QString value(const QString &name) const;
    /// Milliseconds after which a file counts as one that does not answer.
    void setStallTime(int ms) { m_keeper.setStallTime(ms); }

private:
    void showRead(const RowKeeper::Loaded &loaded);
    void noteStored(const QList<QStringList> &rows, const RowKeeper::Stored &stored);

    const QString m_file;
    RowKeeper m_keeper;
    QList<QStringList> m_stored;
    /// Rows of the file for which the machine has no variable: they are stored with the others.
    QList<QStringList> m_foreign;
    bool m_changed = false;
    bool m_isAsking = false;
};

#endif // VARIABLESSCREEN_H
