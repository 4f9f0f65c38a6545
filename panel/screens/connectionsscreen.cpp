// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/connectionsscreen.h"

#include "filarixpanel.h"
#include "look/look.h"
#include "look/measures.h"
#include "look/panelkey.h"
#include "look/paneltable.h"
#include "screens/connectiontable.h"
#include "storage/writeleave.h"

#include <QFile>
#include <QGuiApplication>
#include <QHeaderView>
#include <QScreen>
#include <QTemporaryDir>
#include <QVBoxLayout>

namespace {

const int narrowPixels = 12;

// What messages are about.
const QLatin1String ownFile("connections");
const QLatin1String storage("storage");

} // namespace

/// What the library's dialog works on, and nobody reads again. The library remembers a file by its
/// path, so each copy has a path of its own.
struct ConnectionsScreen::Copy
{
    QTemporaryDir folder;
    ConnectionFile::Contents before;

    QString path() const { return folder.filePath(QLatin1String("connections.ini")); }

    bool fill()
    {
        QFile file(path());
        return folder.isValid() && file.open(QIODevice::WriteOnly)
               && file.write(before.bytes) == before.bytes.size() && file.flush();
    }

    /// In the thread, which the destructor isn't.
    void remove()
    {
        folder.setAutoRemove(false);
        folder.remove();
    }
};

ConnectionsScreen::ConnectionsScreen(const QString &filePath, QWidget *parent)
    : PanelScreen(parent)
    , m_filePath(filePath)
    , m_table(new PanelTable(0, 4, Measures::touch() - 6))
{
    Look::dress(this, Look::KeyPanel);
    m_table->setFocusPolicy(Qt::TabFocus);
    QHeaderView *header = m_table->horizontalHeader();
    header->setSectionResizeMode(QHeaderView::Stretch);
    header->setSectionResizeMode(1, QHeaderView::Fixed);
    header->setSectionResizeMode(2, QHeaderView::Fixed);
    m_table->setColumnWidth(1, Look::smallestTouch);
    m_table->setColumnWidth(2, 2 * Look::smallestTouch);
    // A narrow panel has room for the names and the addresses, in smaller letters.
    if (QGuiApplication::primaryScreen()->availableSize().width() < FilarixPanel::smallBelow) {
        m_table->hideColumn(1);
        m_table->hideColumn(2);
        QFont font = m_table->font();
        font.setPixelSize(narrowPixels);
        m_table->setFont(font);
    }

    m_editKey = new PanelKey(Glyphs::icon(Glyphs::Edit, Glyphs::OnKey),
                             [] { return tr("Edit the addresses"); });
    m_editKey->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(m_editKey, &PanelKey::clicked, this, &ConnectionsScreen::beginEdit);
    connect(&m_job, &FileJob::finished, this, &ConnectionsScreen::showConnections);

    QVBoxLayout *column = new QVBoxLayout(this);
    column->setContentsMargins(4, 4, 4, 4);
    column->setSpacing(4);
    column->addWidget(m_table, 1);
    column->addWidget(m_editKey);
    read();
    ConnectionsScreen::retranslate();
}

void ConnectionsScreen::retranslate()
{
    m_table->setHorizontalHeaderLabels({tr("Connection"), tr("Cid"), tr("Baud"), tr("Address")});
    showConnections();
}

QString ConnectionsScreen::title() const
{
    return tr("Connections");
}

QList<QPair<QString, QString>> ConnectionsScreen::addresses() const
{
    QList<QPair<QString, QString>> all;
    for (const ConnectionFile::Connection &connection : m_contents.connections)
        all.append(qMakePair(connection.name, connection.address));
    return all;
}

void ConnectionsScreen::run(const FileJob::Work &work, const FileJob::Work &done,
                            const FileJob::Work &stalled)
{
    m_job.run(work, done, stalled);
    showConnections();
}

void ConnectionsScreen::read()
{
    const std::shared_ptr<ConnectionFile::Contents> contents =
        std::make_shared<ConnectionFile::Contents>();
    const QString path = m_filePath;
    run([contents, path] { *contents = ConnectionFile::read(path); },
        [this, contents] { take(*contents); }, [this] { tellStall(); });
}

void ConnectionsScreen::take(const ConnectionFile::Contents &contents)
{
    m_contents = contents;
    if (!contents.error.isEmpty())
        Q_EMIT told(contents.error, Message::Alarm, ownFile);
    else if (contents.count > ConnectionFile::mostConnections)
        Q_EMIT told(tr("%1 says that it holds %2 connections. The first %3 are shown.")
                        .arg(m_filePath)
                        .arg(contents.count)
                        .arg(ConnectionFile::mostConnections),
                    Message::Warning, ownFile);
    else
        Q_EMIT causeEnded(ownFile);
}

void ConnectionsScreen::tellStall()
{
    Q_EMIT told(tr("%1 cannot be read: the panel's storage does not answer.").arg(m_filePath),
                Message::Alarm, storage);
}

/// The file may have changed since the screen was filled.
void ConnectionsScreen::beginEdit()
{
    if (isBusy())
        return;
    const std::shared_ptr<Copy> copy = std::make_shared<Copy>();
    const std::shared_ptr<bool> isFilled = std::make_shared<bool>(false);
    const QString path = m_filePath;
    run(
        [copy, isFilled, path] {
            copy->before = ConnectionFile::read(path);
            *isFilled = copy->before.error.isEmpty() && copy->fill();
        },
        [this, copy, isFilled] {
            take(copy->before);
            if (*isFilled)
                edit(copy);
            else if (copy->before.error.isEmpty())
                Q_EMIT told(tr("The addresses cannot be edited: the panel's temporary storage is "
                               "full."),
                            Message::Alarm, storage);
        },
        [this] { tellStall(); });
}

void ConnectionsScreen::edit(const std::shared_ptr<Copy> &copy)
{
    showConnections();
    ConnectionTable table(
        copy->path(), copy->before,
        {tr("Edit the addresses"), tr("Connection"), tr("TCP port"), tr("not set yet")});
    if (table.exec())
        store(copy, ConnectionFile::changedAddresses(copy->before, table.changes()));
    else
        run([copy] { copy->remove(); }, [] {}, [] {});
}

void ConnectionsScreen::store(const std::shared_ptr<Copy> &copy, const QStringList &wanted)
{
    const std::shared_ptr<WriteLeave> leave = std::make_shared<WriteLeave>();
    const std::shared_ptr<QString> error = std::make_shared<QString>();
    const std::shared_ptr<ConnectionFile::Contents> contents =
        std::make_shared<ConnectionFile::Contents>();
    const QString path = m_filePath;
    run(
        [=] {
            // What the library's table left in the copy may lack ports.
            *error = ConnectionFile::store(path, copy->before.bytes,
                                           ConnectionFile::withAddresses(copy->before, wanted),
                                           wanted, [leave] { return leave->take(); });
            copy->remove();
            *contents = ConnectionFile::read(path);
        },
        [=] {
            const QList<QPair<QString, QString>> before = addresses();
            take(*contents);
            tellStored(before, *error);
        },
        [=] {
            Q_EMIT told(leave->withdraw()
                            ? tr("The addresses are not stored: the panel's storage does not "
                                 "answer.")
                            : tr("The panel's storage does not answer: nobody knows whether the "
                                 "addresses are stored."),
                        Message::Alarm, storage);
        });
}

void ConnectionsScreen::tellStored(const QList<QPair<QString, QString>> &before,
                                   const QString &error)
{
    if (!error.isEmpty())
        return Q_EMIT told(error, Message::Alarm, storage);
    QStringList changes;
    const QList<QPair<QString, QString>> after = addresses();
    for (int i = 0; i < after.size() && i < before.size(); ++i) {
        if (after.at(i).second != before.at(i).second)
            changes.append(after.at(i).first + QLatin1String(": ") + after.at(i).second);
    }
    Q_EMIT causeEnded(storage);
    Q_EMIT told(changes.isEmpty() ? tr("No address was changed.")
                                  : tr("Stored: %1.").arg(changes.join(QLatin1String(", "))),
                Message::Information);
}

void ConnectionsScreen::showConnections()
{
    m_editKey->setEnabled(!isBusy());
    const bool isLoading = isBusy() && m_contents.connections.isEmpty();
    const QList<ConnectionFile::Connection> &all = m_contents.connections;
    m_table->setRowCount(isLoading ? 1 : all.size());
    if (isLoading)
        m_table->setItem(0, 0, new QTableWidgetItem(tr("Loading ...")));
    for (int i = 0; i < all.size(); ++i) {
        const QString address = all.at(i).address;
        const QStringList cells{all.at(i).name, all.at(i).cid, all.at(i).baud,
                                address.isEmpty() ? tr("not set yet") : address};
        for (int column = 0; column < cells.size(); ++column)
            m_table->setItem(i, column, new QTableWidgetItem(cells.at(column)));
    }
}
