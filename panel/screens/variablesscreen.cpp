// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/variablesscreen.h"

#include "filarixpanel.h"
#include "look/panelkey.h"
#include "storage/rowfile.h"
#include "tlistwidget.h"

#include <QDir>
#include <QHash>

namespace {

// Kind, number, nothing, name, value: the shape of a row with one wide field.
const int rowLength = 5;
const int nameAt = 3;
const int valueAt = 4;

struct Variable
{
    const char *name;
    const char *value;
};

// The list gives a name little more than a sixth of the panel's width.
const Variable defaultValues[] = {
    {"Wire", "0.50 mm"},  {"Window", "36.0 mm"}, {"Core", "12.0 mm"},  {"Layers", "28"},
    {"Turns", "2016"},    {"Tension", "6.0 N"},  {"T. step", "0.1 N"}, {"T. limit", "8.5 N"},
    {"Lead", "0.35 mm"},  {"Slow", "120 rpm"},   {"Lay", "480 rpm"},   {"Wind", "900 rpm"},
    {"Ramp", "2.5 s"},    {"Brake", "1.2 s"},    {"Edge", "0.50 mm"},  {"Dwell", "0.3 s"},
    {"Tape", "6 layers"}, {"Pin X", "-6.0 mm"},  {"Pin Y", "14.0 mm"}, {"Cut Y", "40.0 mm"},
    {"Oil", "240 min"},   {"Coils", "1250"},     {"Scrap", "7"},       {"Shift", "first"},
};

QList<QStringList> defaults()
{
    QList<QStringList> rows;
    for (const Variable &variable : defaultValues)
        rows.append({QLatin1String("DataEditor"), QString(), QString(),
                     QLatin1String(variable.name), QLatin1String(variable.value)});
    return rows;
}

QList<QStringList> emptied(QList<QStringList> rows)
{
    for (QStringList &row : rows)
        row[valueAt].clear();
    return rows;
}

} // namespace

VariablesScreen::VariablesScreen(const QSize &surface, const QString &folder, QWidget *parent)
    : ListScreen(surface, QStringList(), surface.width() < FilarixPanel::wideFrom ? 4 : 1,
                 new RowKeeper(QLatin1String("Machine variables"), &RowFile::read), parent)
    , m_file(QDir(folder).filePath(QLatin1String("variables.txt")))
{
    addPagingKeys();
    setLoading(true);
    keeper()->load(m_file, [this](const RowKeeper::Loaded &loaded) { showRead(loaded); });
}

QString VariablesScreen::title() const
{
    return tr("Machine variables");
}

QList<PanelKey *> VariablesScreen::keys()
{
    PanelKey *storeKey = new PanelKey(Glyphs::icon(Glyphs::Store), [] { return tr("Store"); });
    connect(storeKey, &PanelKey::clicked, this, &VariablesScreen::store);
    return {whenLoaded(storeKey)};
}

bool VariablesScreen::mayClose()
{
    return mayLoseChanges(title(), tr("The variables have changes that are not stored."));
}

QString VariablesScreen::storedText(int count) const
{
    return tr("Variables stored: %1.").arg(count);
}

QString VariablesScreen::fileCause() const
{
    return QLatin1String("variables");
}

QString VariablesScreen::nameOf(const QString &) const
{
    return tr("Variables");
}

QString VariablesScreen::describe(const QString &name, const QString &time, int count) const
{
    return tr("%1, %2, values: %3").arg(name, time).arg(count);
}

bool VariablesScreen::bringBack(const QString &, const QList<QStringList> &rows)
{
    QList<QStringList> all = this->rows();
    bool isAny = false;
    for (QStringList &own : all) {
        for (const QStringList &row : rows) {
            if (row.size() != rowLength || row.at(nameAt) != own.value(nameAt))
                continue;
            own[valueAt] = row.at(valueAt);
            isAny = true;
        }
    }
    if (isAny)
        setRows(all);
    refreshStatus();
    return isAny;
}

QString VariablesScreen::value(const QString &name) const
{
    const QList<QStringList> all = rows();
    for (const QStringList &row : all) {
        if (row.value(nameAt) == name)
            return row.value(valueAt);
    }
    return QString();
}

/// The machine decides which variables there are; the file gives their values. Where it can't,
/// there are none: nobody shall take the values of a new machine for those of this one.
void VariablesScreen::showRead(const RowKeeper::Loaded &loaded)
{
    const bool isKnown =
        loaded.state == RowKeeper::Loaded::Missing || loaded.state == RowKeeper::Loaded::Read;
    QList<QStringList> all = isKnown ? defaults() : emptied(defaults());
    QHash<QString, int> places;
    for (int i = 0; i < all.size(); ++i) {
        all[i][1] = QString::fromLatin1("N%1").arg(i);
        places.insert(all.at(i).at(nameAt), i);
    }
    for (const QStringList &row : loaded.rows) {
        const int place = row.size() == rowLength ? places.value(row.at(nameAt), -1) : -1;
        if (place < 0)
            m_foreign.append(row);
        else
            all[place][valueAt] = row.at(valueAt);
    }
    setRows(all);
    setLoading(false);
    markStored(rows());
    tellUnread(loaded, tr("The values are empty. Store first puts that file aside."),
               tr("The values are empty. Switch the panel off and on."));
}
