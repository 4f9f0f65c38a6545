// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "variablesscreen.h"

#include "panelkey.h"
#include "rowfile.h"
#include "tlistwidget.h"

#include <QDir>
#include <QFileInfo>
#include <QMessageBox>

namespace {

// Kind, number, nothing, name, value: the shape of a row with one wide field.
const int kStrings = 5;
const int kName = 3;
const int kValue = 4;

struct Variable
{
    const char *name;
    const char *value;
};

// The list gives a name little more than a sixth of the panel's width.
const Variable kDefaults[] = {
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
    for (const Variable &variable : kDefaults)
        rows.append({QLatin1String("DataEditor"), QString(), QString(),
                     QLatin1String(variable.name), QLatin1String(variable.value)});
    return rows;
}

} // namespace

VariablesScreen::VariablesScreen(const QSize &surface, const QString &folder, QWidget *parent)
    : ListScreen(surface, QStringList(), surface.width() < 760 ? 4 : 1, parent)
    , m_file(QDir(folder).filePath(QLatin1String("variables.txt")))
{
    addPagingKeys();
    load();
}

QString VariablesScreen::title() const
{
    return tr("Machine variables");
}

QList<PanelKey *> VariablesScreen::keys()
{
    PanelKey *storeKey = new PanelKey(Glyphs::icon(Glyphs::Store), [] { return tr("Store"); });
    connect(storeKey, &PanelKey::clicked, this, &VariablesScreen::store);
    return {storeKey};
}

bool VariablesScreen::mayClose()
{
    refreshStatus();
    if (!m_changed)
        return true;
    const int answer =
        QMessageBox::warning(nullptr, title(),
                             tr("The variables have changes that are not "
                                "stored."),
                             QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && store());
}

void VariablesScreen::refreshStatus()
{
    if (!m_loadError.isEmpty()) {
        Q_EMIT told(m_loadError, Message::Warning);
        m_loadError.clear();
    }
    const bool changed = rows() != m_stored;
    if (changed == m_changed)
        return;
    m_changed = changed;
    Q_EMIT titleChanged();
}

bool VariablesScreen::store()
{
    QDir().mkpath(QFileInfo(m_file).path());
    QString error;
    if (!RowFile::write(m_file, QLatin1String("Machine variables"), rows(), &error)) {
        Q_EMIT told(error, Message::Warning);
        return false;
    }
    m_stored = rows();
    refreshStatus();
    Q_EMIT told(tr("Variables stored: %1.").arg(m_stored.size()), Message::Information);
    return true;
}

QString VariablesScreen::value(const QString &name) const
{
    const QList<QStringList> all = rows();
    for (const QStringList &row : all) {
        if (row.value(kName) == name)
            return row.value(kValue);
    }
    return QString();
}

// The machine decides which variables there are; the file gives their values.
void VariablesScreen::load()
{
    QList<QStringList> read;
    if (QFileInfo(m_file).exists())
        RowFile::read(m_file, &read, &m_loadError);
    QList<QStringList> all = defaults();
    for (int i = 0; i < all.size(); ++i) {
        all[i][1] = QString::fromLatin1("N%1").arg(i);
        for (const QStringList &row : qAsConst(read)) {
            if (row.size() == kStrings && row.at(kName) == all.at(i).at(kName))
                all[i][kValue] = row.at(kValue);
        }
    }
    setRows(all);
    m_stored = rows();
}
