// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef CONNECTIONSSCREEN_H
#define CONNECTIONSSCREEN_H

#include "shell/panelscreen.h"
#include "storage/connectionfile.h"
#include "storage/filejob.h"

class PanelTable;

/// The machine's connections: what the connection file holds on the disk, and the library's dialog
/// to change the addresses.
///
/// The dialog works on a copy. The addresses that the operator entered there go to the disk beside
/// the event loop, and count as stored once they were read back. All else in the file stays.
class ConnectionsScreen : public PanelScreen
{
    Q_OBJECT

public:
    /// A missing file is made, with the connections of a typical winding machine. The screen is up
    /// before the file is read.
    explicit ConnectionsScreen(const QString &filePath, QWidget *parent = nullptr);

    QString title() const override;

    /// Whether the file is still to be read, or written.
    bool isBusy() const { return m_job.isRunning(); }
    /// Name and stored address of each connection; an empty address where none is stored yet.
    QList<QPair<QString, QString>> addresses() const;
    /// Milliseconds after which the file counts as one that does not answer.
    void setStallTime(int ms) { m_job.setStallTime(ms); }

protected:
    void retranslate() override;

private:
    struct Copy;

    void read();
    void take(const ConnectionFile::Contents &contents);
    void beginEdit();
    void edit(const std::shared_ptr<Copy> &copy);
    void store(const std::shared_ptr<Copy> &copy, const QStringList &wanted);
    void tellStored(const QList<QPair<QString, QString>> &before, const QString &error);
    void run(const FileJob::Work &work, const FileJob::Work &done, const FileJob::Work &stalled);
    void tellStall();
    void showConnections();

    const QString m_filePath;
    PanelTable *m_table;
    PanelKey *m_editKey;
    FileJob m_job;
    ConnectionFile::Contents m_contents;
};

#endif // CONNECTIONSSCREEN_H
