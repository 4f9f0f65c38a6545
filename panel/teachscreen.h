// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef TEACHSCREEN_H
#define TEACHSCREEN_H

#include "listscreen.h"

class MachineData;

/// The taught program: the library's list of instructions with the host's shared tables behind its
/// points and speeds, and a plain text file behind the list.
class TeachScreen : public ListScreen
{
    Q_OBJECT

public:
    /// The program is kept in the folder \a folder, which is made when it is stored. \a machine
    /// must outlive the screen.
    TeachScreen(const QSize &surface, const QString &folder, MachineData *machine,
                QWidget *parent = nullptr);

    QString title() const override;
    bool hasChanges() const override { return m_changed; }
    QList<PanelKey *> keys() override;
    bool mayClose() override;
    /// Also sees whether the operator has changed a row: the list tells nobody.
    void refreshStatus() override;

    QString filePath() const;
    /// Reads the program of that path; the screen keeps what it shows if that fails.
    bool load(const QString &path);
    bool store();

protected:
    void retranslate() override;

private:
    void askAndLoad();
    void clear();
    void insertMovement(const QString &kind);
    void insert(QStringList row);
    void removeChosen();
    void choosePoint(int row);
    void chooseSpeed(int row);
    void followRow(int row);
    void markStored();
    bool mayLoseChanges(const QString &question);

    const QString m_folder;
    QString m_file;
    MachineData *m_machine;
    PanelKey *m_selectKey;
    QList<QStringList> m_stored;
    bool m_changed = false;
};

#endif // TEACHSCREEN_H
