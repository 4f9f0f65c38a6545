// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef VARIABLESSCREEN_H
#define VARIABLESSCREEN_H

#include "screens/listscreen.h"

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
    QList<PanelKey *> keys() override;
    bool mayClose() override;

    /// Shows the values in \a rows that were not stored when the program ended; false if there
    /// are none of the machine's variables among them.
    bool bringBack(const QString &path, const QList<QStringList> &rows) override;
    QString nameOf(const QString &path) const override;
    QString describe(const QString &name, const QString &time, int count) const override;
    /// The value of a variable as text; null for a name that isn't there.
    QString value(const QString &name) const;

protected:
    QString storePath() const override { return m_file; }
    QList<QStringList> rowsToStore() const override { return rows() + m_foreign; }
    QString storedText(int count) const override;
    QString fileCause() const override;

private:
    void showRead(const RowKeeper::Loaded &loaded);

    const QString m_file;
    /// Rows of the file for which the machine has no variable: they are stored with the others.
    QList<QStringList> m_foreign;
};

#endif // VARIABLESSCREEN_H
