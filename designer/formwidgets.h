// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FORMWIDGETS_H
#define FORMWIDGETS_H

#include "listwidget.h"

/// A ListWidget that a .ui file knows by its name: the class itself has no meta-object, and would
/// be saved as a QWidget.
class FormListWidget : public ListWidget
{
public:
    using ListWidget::ListWidget;

    const QMetaObject *metaObject() const override;
};

/// A ListWidget that can be seen and taken hold of while it has no rows.
class DesignedListWidget : public FormListWidget
{
public:
    explicit DesignedListWidget(QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;
};

#endif // FORMWIDGETS_H
