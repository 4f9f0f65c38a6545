// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef TEACHSCREEN_H
#define TEACHSCREEN_H

#include "screens/listscreen.h"
#include "screens/rowundo.h"
#include "screens/taughtfolder.h"

class MachineData;
class MovementLimits;

/// The taught program: the library's list of instructions, with the host's shared tables behind its
/// points and speeds. What the operator does to the rows can be taken back, an edit too.
class TeachScreen : public ListScreen
{
    Q_OBJECT

public:
    /// Shows the program that was stored last in \a folder as soon as it is read, and a sample
    /// where there is none. The folder is made when a program is stored. \a machine must outlive
    /// the screen. The programs in \a earlier, where they were kept before, are copied first.
    TeachScreen(const QSize &surface, const QString &folder, MachineData *machine,
                const QString &earlier = QString(), QWidget *parent = nullptr);

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
    /// The rows as a file has them, whatever words the list shows.
    QList<QStringList> rows() const override;
    void setStallTime(int ms) override;
    QString nameOf(const QString &path) const override;
    QString describe(const QString &name, const QString &time, int count) const override;

protected:
    void retranslate() override;
    QStringList rowForList(const QStringList &row) const override;
    QString storePath() const override { return filePath(); }
    bool mayStore() override;
    void noteStore() override;
    QString storedText(int count) const override;
    QString fileCause() const override;
    void showDetails() override;

private:
    struct SharedTable;
    struct Choice;
    enum Key : int;
    /// The first and the last row of what is selected, as the list counts them.
    struct Range
    {
        int from = 0;
        int to = -1;
        bool isEmpty() const { return from > to; }
        int size() const { return to - from + 1; }
    };

    void noteEdit(bool isTaken);
    void tellRefused(const QString &text);
    void tellFault();
    void addKeys(const QSize &surface);
    void addKeyOf(Key key);
    void makeSelectKey();
    void showLoading(bool isLoading);
    void showKeys();
    void showClearing(int percent);
    void loadFirst();
    void loadUnadopted();
    void loadAdopted(const TaughtFolder::Adoption &adoption);
    void showFirst(const QString &path, const RowKeeper::Loaded &loaded);
    void showRead(const QString &path, const RowKeeper::Loaded &loaded);
    void showProgram(const QString &path, const QList<QStringList> &program);
    void askAndLoad();
    void storeAs();
    QString askName() const;
    void lookAndStore(const QString &path, const RowKeeper::Loaded &there);
    bool mayCover(const QString &path, const RowKeeper::Loaded &there) const;
    void storeAt(const QString &path);
    void noteStoredAs(const QString &path, const QList<QStringList> &rows,
                      const RowKeeper::Stored &stored);
    void dropStoring();
    void clear();
    void insertJoint() { insertMovement(QLatin1String("MJ")); }
    void insertLine() { insertMovement(QLatin1String("ML")); }
    void insertText();
    void insertMovement(const QString &kind);
    void insert(const QStringList &row);
    void copyChosen();
    void paste();
    void moveUp() { moveChosen(-1); }
    void moveDown() { moveChosen(1); }
    void moveChosen(int by);
    void removeChosen();
    void undo();
    Range chosen() const;
    RowUndo::State state() const;
    void noteRows();
    void change(const QList<QStringList> &rows, int current);
    void choosePoint(int row);
    void chooseSpeed(int row);
    Choice choose(int row, const QString &title, const SharedTable &table);
    void tellChoice(const QString &text, const Choice &choice);
    void followRow(int row);
    void editDetail(int index);
    bool mayLoseProgram(const QString &question);

    const QString m_folder;
    const QString m_earlier;
    const bool m_isNarrow;
    QString m_file;
    MachineData *m_machine;
    MovementLimits *m_limits;
    /// Where the values among the details stand in their row.
    QList<int> m_positions;
    FileTaskRunner m_adopting;
    int m_stallTime = FileTaskRunner::stallMs;
    /// Stores under another name; null while nothing does.
    RowKeeper *m_storing = nullptr;
    RowUndo m_undo;
    QList<QStringList> m_copied;
    PanelKey *m_selectKey = nullptr;
    PanelKey *m_pasteKey = nullptr;
    PanelKey *m_undoKey = nullptr;
};

#endif // TEACHSCREEN_H
