// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "fuzz.h"
#include "listmodel.h"
#include "mjline.h"
#include "rowview.h"

namespace {

void compare(MJLine *row, const LineModel &model)
{
    const RowView view(row);
    FUZZ_REQUIRE(view.text(RowView::Num) == model.num);
    FUZZ_REQUIRE(view.text(RowView::Ins) == model.ins);
    FUZZ_REQUIRE(view.text(RowView::Jpos) == model.jpos);
    FUZZ_REQUIRE(view.text(RowView::V) == model.v);
    FUZZ_REQUIRE(view.text(RowView::Z) == model.z);
    FUZZ_REQUIRE(view.text(RowView::T) == model.t);
    FUZZ_REQUIRE(view.isBuilt() == model.hasDetailFields);
    for (int k = 0; view.isBuilt() && k < 9; ++k)
        FUZZ_REQUIRE(view.detailText(k) == model.detailFields.at(k));
    FUZZ_REQUIRE(!view.isBuilt() || view.resText() == model.resField);
}

} // namespace

// A row from a list of strings, refilled from a second one and read back, opened or not on the way.
void Fuzz::tryInput(QByteArray bytes)
{
    const int way = takeNumber(&bytes, 8);
    QStringList list = strings(takePart(&bytes, '\0'));
    QStringList copy = list;
    MJLine row(list, QSize(480, 800), nullptr);
    LineModel model(&copy);
    FUZZ_REQUIRE(list == copy);
    for (int bit = 1; bit <= 4; bit *= 2) {
        if (way & bit) {
            row.on_expand();
            model.toggle();
        }
        compare(&row, model);
        FUZZ_REQUIRE(row.GetLineList() == model.read());
        QStringList next = strings(takePart(&bytes, '\0'));
        row.setV(next);
        model.setV(next);
        row.setJpos(next);
        model.setJpos(next);
        copy = next;
        row.setLineList(next);
        model.refill(&copy);
        FUZZ_REQUIRE(next == copy);
    }
    compare(&row, model);
    FUZZ_REQUIRE(row.GetLineList() == model.read());
}
