// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef CONNECTIONTABLE_H
#define CONNECTIONTABLE_H

#include "storage/connectionfile.h"

#include <QMap>
#include <QObject>
#include <QScopedPointer>
#include <QString>

class ConnEditor;
class ListWidget;

/// The library's table of addresses, dressed for the panel: with a heading, the connections' names,
/// the ports that their addresses keep, and rows for thumbs.
///
///     ConnectionTable table(copyPath, contents, {tr("Edit the addresses"), tr("Connection"),
///                                            tr("TCP port"), tr("not set yet")});
///     if (table.exec())
///         store(ConnectionFile::changedAddresses(contents, table.changes()));
class ConnectionTable : public QObject
{
    Q_OBJECT

public:
    struct Texts
    {
        QString heading;
        /// Above the names.
        QString names;
        /// Above the ports.
        QString ports;
        /// In the place of an address that is not set.
        QString unset;
    };

    /// \a path is a copy of the file that \a contents was read from: the library's table writes to
    /// it whatever the operator does.
    ConnectionTable(const QString &path, const ConnectionFile::Contents &contents,
                    const Texts &texts);
    ~ConnectionTable() override;

    /// Whether the operator has pressed OK.
    bool exec();
    /// What the operator has entered, by the connection's place, counted from 0.
    QMap<int, QString> changes() const { return m_changes; }

private:
    void dress(const Texts &texts);
    void dressFrame(const QString &heading);
    void widenAddresses();
    void hideColumns(int room);
    void dressRow(int index, const QString &name, const QString &port);
    void showUnset(int number, const QString &text);
    void watch(int number);

    const ConnectionFile::Contents m_contents;
    QScopedPointer<ConnEditor> m_editor;
    ListWidget *m_rows = nullptr;
    int m_namesWidth = 0;
    /// 0 where no address has a port, or no room is left for one.
    int m_portsWidth = 0;
    QMap<int, QString> m_changes;
};

#endif // CONNECTIONTABLE_H
