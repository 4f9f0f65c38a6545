// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "dataeditor.h"
#include "fuzz.h"
#include "listmodel.h"
#include "rowview.h"

#include <QLayout>

namespace {

void compare(DataEditor *row, const TableModel &model)
{
    int cell = 0;
    for (const QString &text : model.cells)
        FUZZ_REQUIRE(RowView::text(row->layout()->itemAt(cell++)->widget()) == text);
    FUZZ_REQUIRE(row->layout()->count() == cell);
    FUZZ_REQUIRE(row->getData() == model.data());
}

} // namespace

// A table row from a list of strings, written from others and read back.
void Fuzz::tryInput(QByteArray bytes)
{
    const int kind = takeNumber(&bytes, 4);
    const bool isTitle = kind & 1;
    QStringList list = strings(takePart(&bytes, '\0'));
    if (list.size() < 2)
        return; // a table row has a number and a text
    DataEditor row(isTitle, list, QSize(480, 800), nullptr, kind & 2);
    TableModel model(isTitle, list);
    int touched = 0;
    QObject::connect(&row, &DataEditor::clicked, [&touched](int number) { touched = number; });
    compare(&row, model);
    while (!bytes.isEmpty()) {
        QStringList next = strings(takePart(&bytes, '\0'));
        row.setData(next);
        model.setData(next);
        compare(&row, model);
        row.setIndex(next.last());
        model.cells[0] = next.last();
        row.on_editfinished();
        FUZZ_REQUIRE(touched == model.number());
    }
}
