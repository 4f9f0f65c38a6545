// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef CONNECTIONSSCREEN_H
#define CONNECTIONSSCREEN_H

#include "panelscreen.h"

class QTableWidget;

/// The machine's connections: what the connection file holds, and the library's dialog to change
/// the addresses.
class ConnectionsScreen : public PanelScreen
{
    Q_OBJECT

public:
    /// A missing file is made, with the connections of a typical winding machine.
    explicit ConnectionsScreen(const QString &filePath, QWidget *parent = nullptr);

    QString title() const override;

    /// Name and stored address of each connection; an empty address where none is stored yet.
    QList<QPair<QString, QString>> addresses() const;

protected:
    void retranslate() override;

private:
    void makeFile();
    void edit();
    void showConnections();

    const QString m_filePath;
    QTableWidget *m_table;
};

#endif // CONNECTIONSSCREEN_H
