// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "connectionsscreen.h"

#include "conneditor.h"
#include "look.h"
#include "panelkey.h"
#include "panelsurface.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHeaderView>
#include <QScopedPointer>
#include <QScreen>
#include <QSettings>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

const int kWidePanel = 800;
const int kNarrowPanel = 400;
const int kNarrowPixels = 12;
const int kAroundRows = 64;

struct Connection
{
    const char *name;
    int cid;
    int baud;
    int addr;
    int com;
    const char *address;
};

// The first is local: its name is its address, too.
const Connection kConnections[] = {
    {"192.168.1.10:502", 1, 0, 1, 0, ""},
    {"Spindle drive", 2, 187600, 2, 1, "192.168.1.21"},
    {"Wire guide", 3, 187500, 3, 2, "192.168.1.22"},
    {"Tension unit", 4, 19200, 4, 3, "192.168.1.23:4001"},
    {"Camera", 5, 0, 5, 4, ""},
};

QString key(int number, const char *suffix)
{
    return QString::fromLatin1("Connect %1%2").arg(number).arg(QLatin1String(suffix));
}

QString addressKey(const QString &name)
{
    return name + QLatin1String("new IP");
}

} // namespace

ConnectionsScreen::ConnectionsScreen(const QString &filePath, QWidget *parent)
    : PanelScreen(parent), m_filePath(filePath), m_table(new QTableWidget(0, 4))
{
    if (!QFileInfo(filePath).exists())
        makeFile();
    Look::dress(this, Look::KeyPanel);
    m_table->setSelectionMode(QAbstractItemView::NoSelection);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setFocusPolicy(Qt::NoFocus);
    m_table->setShowGrid(false);
    m_table->setAlternatingRowColors(true);
    m_table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(Look::kTouch - 6);
    QHeaderView *header = m_table->horizontalHeader();
    header->setSectionResizeMode(QHeaderView::Stretch);
    header->setSectionResizeMode(1, QHeaderView::Fixed);
    header->setSectionResizeMode(2, QHeaderView::Fixed);
    m_table->setColumnWidth(1, Look::kTouch);
    m_table->setColumnWidth(2, 2 * Look::kTouch);
    // A narrow panel has room for the names and the addresses, in smaller letters.
    if (QGuiApplication::primaryScreen()->availableSize().width() < kNarrowPanel) {
        m_table->hideColumn(1);
        m_table->hideColumn(2);
        QFont font = m_table->font();
        font.setPixelSize(kNarrowPixels);
        m_table->setFont(font);
    }

    PanelKey *editKey = new PanelKey(Glyphs::icon(Glyphs::Edit, Glyphs::OnKey),
                                     [] { return tr("Edit the addresses"); });
    editKey->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(editKey, &PanelKey::clicked, this, &ConnectionsScreen::edit);

    QVBoxLayout *column = new QVBoxLayout(this);
    column->setContentsMargins(4, 4, 4, 4);
    column->setSpacing(4);
    column->addWidget(m_table, 1);
    column->addWidget(editKey);
    retranslate();
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
    QSettings file(m_filePath, QSettings::IniFormat);
    QList<QPair<QString, QString>> all;
    const int count = file.value(QLatin1String("connect count"), 0).toInt();
    for (int i = 0; i < count; ++i) {
        const QString name = file.value(key(i, "")).toString();
        all.append(qMakePair(name, file.value(addressKey(name)).toString()));
    }
    return all;
}

void ConnectionsScreen::makeFile()
{
    QDir().mkpath(QFileInfo(m_filePath).path());
    QSettings file(m_filePath, QSettings::IniFormat);
    int count = 0;
    for (const Connection &connection : kConnections) {
        const QString name = QLatin1String(connection.name);
        file.setValue(key(count, ""), name);
        file.setValue(key(count, " cid"), connection.cid);
        file.setValue(key(count, " baud"), connection.baud);
        file.setValue(key(count, " addr"), connection.addr);
        file.setValue(key(count, " com"), connection.com);
        if (*connection.address)
            file.setValue(addressKey(name), QLatin1String(connection.address));
        ++count;
    }
    file.setValue(QLatin1String("connect count"), count);
}

void ConnectionsScreen::edit()
{
    const QList<QPair<QString, QString>> before = addresses();
    QScopedPointer<ConnEditor> editor;
    {
        // The rows are as wide as the dialog, and lie in an area with margins and a scroll bar: on
        // a narrow panel they are made for less than its width, and the dialog is widened.
        const int panel = QGuiApplication::primaryScreen()->availableSize().width();
        const SurfaceLoan tall(SurfaceLoan::kTallPanel,
                               panel < kWidePanel ? panel - kAroundRows : panel);
        editor.reset(new ConnEditor(m_filePath, nullptr));
        editor->init_list();
        editor->setFixedWidth(qMin(editor->width() + kAroundRows, panel));
    }
    const bool accepted = editor->exec() == QDialog::Accepted;
    showConnections();
    if (!accepted)
        return;
    if (!QFileInfo(m_filePath).isWritable()) {
        Q_EMIT told(tr("The addresses are not stored: %1 cannot be written.").arg(m_filePath),
                    Message::Warning);
        return;
    }
    QStringList changes;
    const QList<QPair<QString, QString>> after = addresses();
    for (int i = 0; i < after.size() && i < before.size(); ++i) {
        if (after.at(i).second != before.at(i).second)
            changes.append(after.at(i).first + QLatin1String(": ") + after.at(i).second);
    }
    Q_EMIT told(changes.isEmpty() ? tr("No address was changed.")
                                  : tr("Stored: %1.").arg(changes.join(QLatin1String(", "))),
                Message::Information);
}

void ConnectionsScreen::showConnections()
{
    QSettings file(m_filePath, QSettings::IniFormat);
    const QList<QPair<QString, QString>> all = addresses();
    m_table->setRowCount(all.size());
    for (int i = 0; i < all.size(); ++i) {
        const QString address = all.at(i).second;
        const QStringList cells{all.at(i).first, file.value(key(i, " cid"), 0).toString(),
                                file.value(key(i, " baud"), 0).toString(),
                                address.isEmpty() ? tr("not set yet") : address};
        for (int column = 0; column < cells.size(); ++column)
            m_table->setItem(i, column, new QTableWidgetItem(cells.at(column)));
    }
}
