// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef VARIABLESSCREEN_H
#define VARIABLESSCREEN_H

#include "listscreen.h"

/// The machine's variables: a list of plain data rows, each a number, a name and a value, kept in
/// a text file of the host.
class VariablesScreen : public ListScreen
{
    Q_OBJECT

public:
    /// The values are kept in "variables.txt" in \a folder, which is made when they are stored.
    VariablesScreen(const QSize &surface, const QString &folder, QWidget *parent = nullptr);

    QString title() const override;
    bool hasChanges() const override { return m_changed; }
    QList<PanelKey *> keys() override;
    bool mayClose() override;
    void refreshStatus() override;

    bool store();
    /// The value of a variable as text; null for a name that isn't there.
    QString value(const QString &name) const;

private:
    void load();

    const QString m_file;
    QList<QStringList> m_stored;
    bool m_changed = false;
    QString m_loadError;
};

#endif // VARIABLESSCREEN_H
