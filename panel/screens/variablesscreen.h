// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef VARIABLESSCREEN_H
#define VARIABLESSCREEN_H

#include "screens/listscreen.h"
#include "screens/valuemark.h"
#include "screens/variabletable.h"

#include <QSet>

#include <memory>

class DataEditor;
class KnownRows;
class QLineEdit;

/// The machine's variables: a list of plain data rows, each a number, a name and a value, kept in
/// a text file of the host. Values keep to the rules of VariableTable: none else is entered, and
/// none else stored. A value that came otherwise is shown, and marked with the reason.
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
    void refreshStatus() override;

    /// Shows the values in \a rows that were not stored when the program ended; false if there
    /// are none of the machine's variables among them.
    bool bringBack(const QString &path, const QList<QStringList> &rows) override;
    QString nameOf(const QString &path) const override;
    QString describe(const QString &name, const QString &time, int count) const override;
    /// The value of a variable as text; null for a name that isn't there.
    QString value(const QString &name) const;
    /// Why the value of a variable is refused, in a few words; empty for one that may be.
    QString refusal(const QString &name) const;

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void retranslate() override { refreshMarks(); }
    QString storePath() const override { return m_file; }
    QList<QStringList> rowsToStore() const override;
    bool mayStore() override;
    void noteStore() override;
    QString storedText(int count) const override;
    QString fileCause() const override;
    void showDetails() override;

private:
    VariablesScreen(const QSize &surface, const QString &folder,
                    const std::shared_ptr<KnownRows> &known, QWidget *parent);

    void showRead(const RowKeeper::Loaded &loaded);
    void tellFaults();
    void tellRefused();
    QStringList refusedNames() const;
    static QString demand(const MachineVariable &variable, const QString &value);

    void adopt(DataEditor *row);
    void fitCells(const QList<QLabel *> &cells, QLineEdit *field) const;
    void touch(int number, const QRect &place);
    void edit(int number, const QRect &place);
    void enter(const QString &name, const QString &value);

    QStringList changedNames() const;
    void refreshMarks();
    void refreshMark(DataEditor *row);
    ValueMark::State stateOf(const MachineVariable &variable) const;

    const QString m_file;
    /// Who the variables are and what they may be; the list has their values.
    VariableTable m_table;
    /// What the file holds, as far as this screen knows.
    const std::shared_ptr<KnownRows> m_known;
    /// What the running store, or the last one, brought to the disk.
    QStringList m_storing;
    QList<QStringList> m_storingRows;
    /// Stored values that were not touched since.
    QSet<QString> m_fresh;
};

#endif // VARIABLESSCREEN_H
