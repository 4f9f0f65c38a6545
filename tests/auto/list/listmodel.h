// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef LISTMODEL_H
#define LISTMODEL_H

#include <QList>
#include <QMap>
#include <QPair>
#include <QSize>
#include <QString>
#include <QStringList>

/// A paged list without widgets: what TListWidget and its rows have to hold, show and emit, worked
/// out step by step and slowly. It uses nothing of the library.

/// What became of the keypad that a tap on a field opened.
struct KeypadAnswer
{
    KeypadAnswer() : accepted(false) {}
    explicit KeypadAnswer(const QString &answer) : accepted(true), text(answer) {}

    /// The text that the field reports by changed(); \a field takes the bare answer.
    QString changeOf(QString *field, bool numeric) const;

    bool accepted;
    QString text;
};

/// A table row: the cells that exist, by column.
struct TableModel
{
    TableModel();
    TableModel(bool title, const QStringList &list);

    bool joinsTwoStrings() const;
    int firstColumn() const;
    bool isField(int column) const;
    bool isNumeric() const;
    int number() const;
    QStringList data() const;
    void setData(const QStringList &list);

    bool isTitle;
    int count;
    QMap<int, QString> cells; // 0 and 1 are the first two cells
    bool hidden;
    bool selected;
};

/// An instruction row, which carries a table.
struct LineModel
{
    LineModel();
    explicit LineModel(QStringList *list);

    void toggle();
    void refill(QStringList *list);
    QStringList read();
    void setV(const QStringList &l);
    void setJpos(const QStringList &l);
    void changeDetail(int field, const QString &text);
    void changeRes(const QString &text);
    int number() const;
    QString detailText(int pair) const;
    QString suffix() const;

    bool expanded;
    bool hasDetailFields;
    QString num, ins, jpos, v, z, t;
    QString resText;
    QString resField;
    QStringList details; // key and value by turns
    QStringList detailFields;
    bool firstLineHidden;
    bool detailAreaHidden;
    TableModel table;
};

struct SlotModel
{
    SlotModel() : isLine(false), hidden(false), selected(false), height(0) {}

    bool isLine;
    LineModel line;
    TableModel table; // of a bare table row
    bool hidden;
    bool selected;
    int height;
};

class ListModel
{
public:
    ListModel(QStringList *title, QSize screen);

    // What the list does at a host's call.
    int count() const { return store.size(); }
    int slotOf(int i) const;
    void reshow();
    void setSize(QSize s);
    void setTotalLine(int n);
    void prevPage();
    void nextPage();
    void prevLine();
    void nextLine();
    void home();
    void end();
    int currentIndex();
    void setCurIndex(int i, bool force);
    void setMultiSelect();
    void clearMultiSelect();
    void deselect(int i, bool plain);
    void addWidget(const QStringList &row, bool refresh, bool viewOnly);
    void insertWidget(int i, const QStringList &row, bool refresh, bool viewOnly);
    void removeWidget(int i, bool refresh);
    void clear();
    void setContent(int i, QStringList *row);
    QStringList content(int i) const { return store.value(i); }
    QString typeAt(int i) const { return store.value(i).value(0); }
    void setIndex(int i, const QString &n);
    QStringList values(int i, int first, int last) const;
    int index(int i, int position) const;
    void setV(int i, const QStringList &l);
    void setJpos(int i, const QStringList &l);

    // What it does at the operator's tap on something in a slot.
    void tapRow(int slot);
    void tapInstruction(int slot);
    void tapJpos(int slot);
    void tapV(int slot);
    void tapZ(int slot, const KeypadAnswer &answer);
    void tapT(int slot, const KeypadAnswer &answer);
    void tapRes(int slot, const KeypadAnswer &answer);
    void tapDetail(int slot, int field, const KeypadAnswer &answer);
    /// A cell that keeps the press, or one that lets it through to the rows around it.
    void tapTable(int slot, bool isKept);
    void tapTableField(int slot, int column, const KeypadAnswer &answer);

    QList<QStringList> store;
    int startLine;
    int totalLine;
    bool hasTitle;
    int cur;
    int last;
    bool multi;
    QSize size;
    QList<SlotModel> pool;
    int height;
    /// "clicked 3" and so on, in order; the walk empties it.
    QStringList emitted;

private:
    enum Family { LineFamily, TableFamily, NoFamily };

    static Family familyOf(const QString &kind);
    bool makeSlot(QStringList *row, bool title, SlotModel *slot) const;
    bool exists(int slot) const { return slot >= 0 && slot < pool.size(); }
    int t() const { return hasTitle ? 1 : 0; }
    int rowHeight(bool open) const;
    bool isInstruction(int i) const;
    void checkStartLine();
    void sumHeights();
    void show(int i, QStringList *row);
    void sweep(bool stopsAtTheEnd);
    void renumberText(int j, int number);
    void toggle(int slot);
    void write(int i, int firstPosition, int strings, int indexPosition, const QStringList &l);
    void emitSignal(const char *name, int argument);

    void lineClicked(int index);
    void lineTapped(int slot);
    void contentChanged(int index, const SlotModel *sender);
};

#endif // LISTMODEL_H
