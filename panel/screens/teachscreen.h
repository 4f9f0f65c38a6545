// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef TEACHSCREEN_H
#define TEACHSCREEN_H

#include "screens/listscreen.h"

class MachineData;

/// The taught program: the library's list of instructions, with the host's shared tables behind its
/// points and speeds.
class TeachScreen : public ListScreen
{
    Q_OBJECT

public:
    /// Shows the program that is kept in \a folder as soon as it is read, and a sample where there
    /// is none. The folder is made when a program is stored. \a machine must outlive the screen.
    TeachScreen(const QSize &surface, const QString &folder, MachineData *machine,
                QWidget *parent = nullptr);

    QString title() const override;
    QList<PanelKey *> keys() override;
    bool mayClose() override;

    QString filePath() const override;
    /// Reads the program of that path beside the event loop; the screen keeps what it shows if that
    /// fails.
    void load(const QString &path);
    /// Shows \a rows that were not stored when the program ended, as changes to the file \a path;
    /// false for rows that are no instructions.
    bool bringBack(const QString &path, const QList<QStringList> &rows) override;
    QString nameOf(const QString &path) const override;
    QString describe(const QString &name, const QString &time, int count) const override;

protected:
    void retranslate() override;
    QString storePath() const override { return filePath(); }
    bool mayStore() override;
    void noteStore() override;
    QString storedText(int count) const override;
    QString fileCause() const override;

private:
    struct SharedTable;
    struct Choice;

    void tellRefused(const QString &text);
    void tellFault();
    void showClearing(int percent);
    void loadFirst();
    void showFirst(const RowKeeper::Loaded &loaded);
    void showRead(const QString &path, const RowKeeper::Loaded &loaded);
    void showProgram(const QString &path, const QList<QStringList> &program);
    void askAndLoad();
    void clear();
    void insertMovement(const QString &kind);
    void insert(QStringList row);
    void removeChosen();
    void choosePoint(int row);
    void chooseSpeed(int row);
    Choice choose(int row, const QString &title, const SharedTable &table);
    void tellChoice(const QString &text, const Choice &choice);
    void followRow(int row);
    bool mayLoseProgram(const QString &question);

    const QString m_folder;
    QString m_file;
    MachineData *m_machine;
    PanelKey *m_selectKey;
};

#endif // TEACHSCREEN_H
