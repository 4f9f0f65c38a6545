// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PICKERSTRIP_H
#define PICKERSTRIP_H

#include "guards/pickertable.h"
#include "guards/windowdialogs.h"

#include <QList>
#include <QWidget>

class QBoxLayout;
class QLabel;
class QLineEdit;
class QToolButton;

/// The strip above a program picker: what the picker is for, and the keys that find a program.
///
/// A wide strip has a key for each order. On a narrow one a single key goes from one order to the
/// next, and takes the filter away while there is one. The keys are fit for a glove, 9 mm, where
/// the application's property `hmiDotsPerInch` says how fine the screen is; the keypads read it,
/// too.
class PickerStrip : public QWidget
{
    Q_OBJECT

public:
    PickerStrip(WindowDialogs::Picker picker, QWidget *parent);

    /// How many programs are shown, and how many there are.
    void setCount(int shown, int all);
    /// Nothing can be written here: stands in the place of the count from now on.
    void setReadOnly();
    void setOrder(PickerTable::Order order) { choose(order); }
    /// Whether there are rows above and below those in view.
    void setPaging(bool hasAbove, bool hasBelow);
    PickerTable::Order order() const { return m_order; }
    QString filter() const;
    /// Begins to filter by \a text, as if the operator had typed it into the field.
    void look(const QString &text);
    /// The strip for \a width pixels, in one row or two.
    void fit(int width);

    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    void clearFilter();

Q_SIGNALS:
    void orderChosen();
    void filterChanged();
    /// -1 for a page up, 1 for a page down.
    void pageWanted(int direction);
    /// The operator is done with the filter.
    void listWanted();

private Q_SLOTS:
    void takeOrder();
    void takeNextOrder();
    void takeFilter();
    void pageUp() { Q_EMIT pageWanted(-1); }
    void pageDown() { Q_EMIT pageWanted(1); }

private:
    QToolButton *makeKey(const QString &text, const char *name, const char *slot);
    QToolButton *makeArrow(bool isUp, const QString &name, const char *slot);
    void sizeKeys(int side);
    void choose(PickerTable::Order order);
    void showKeys();
    void enterFilter();

    QLabel *m_title;
    QLabel *m_count;
    QLineEdit *m_filter;
    QBoxLayout *m_rows;
    QList<QToolButton *> m_orderKeys;
    QToolButton *m_nextOrder;
    QToolButton *m_allKey;
    QToolButton *m_up;
    QToolButton *m_down;
    PickerTable::Order m_order = PickerTable::LastUsed;
    bool m_isWide = false;
    bool m_isReadOnly = false;
};

#endif // PICKERSTRIP_H
