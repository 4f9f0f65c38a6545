// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/historydialog.h"

#include "filarixpanel.h"
#include "look/pagekeys.h"
#include "look/paneltable.h"
#include "programs/programhistory.h"
#include "programs/programsnapshot.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

namespace {

const QSize roomy(720, 560);
const int columns = 4;
const int wideFrom = 600;
const int rowMargin = 8;

bool isNarrow()
{
    return QGuiApplication::primaryScreen()->availableSize().width() < FilarixPanel::smallBelow;
}

} // namespace

HistoryDialog::HistoryDialog(const QList<ProgramVersion> &versions, QWidget *parent)
    : Dialog(parent), m_all(versions), m_table(new PanelTable(0, columns))
{
    std::reverse(m_all.begin(), m_all.end());
    setTitle(tr("History"));
    m_table->setHorizontalHeaderLabels({tr("Program"), tr("Kept on"), tr("Checksum"), tr("Size")});
    m_table->letChooseRow();
    m_table->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    m_table->setWordWrap(false);
    // Two names may differ at the end alone.
    m_table->setTextElideMode(Qt::ElideMiddle);
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    const QFontMetrics metrics(m_table->font());
    if (isNarrow())
        m_table->verticalHeader()->setDefaultSectionSize(
            qMax(Measures::touch(), 2 * metrics.lineSpacing() + rowMargin));
    m_table->setColumnHidden(1, isNarrow());
    m_table->setColumnWidth(1, metrics.horizontalAdvance(QLatin1String("0000-00-00 00:00")) + 14);
    m_table->setColumnWidth(2, metrics.horizontalAdvance(QLatin1String("DDDD DDDD")) + 14);
    m_table->setColumnWidth(3, metrics.horizontalAdvance(QLatin1String("00000 KB")) + 14);

    QVBoxLayout *column = new QVBoxLayout(this);
    column->setContentsMargins(6, 6, 6, 6);
    column->setSpacing(6);
    column->addWidget(m_table, 1);
    const QSize panel = QGuiApplication::primaryScreen()->availableSize();
    PageKeys *keys = new PageKeys(m_table, PageKeys::oneRow);
    column->addLayout(keys);
    m_onlyKey = keys->add(tr("Only this"), "only");
    m_onlyKey->setCheckable(true);
    QHBoxLayout *answers = keys;
    if (isNarrow()) {
        answers = new QHBoxLayout;
        answers->setSpacing(keys->spacing());
        column->addLayout(answers);
    }
    QPushButton *closeKey = PageKeys::addTo(answers, tr("Close"), "close");
    m_restoreKey = PageKeys::addTo(answers, tr("Bring back"), "restore");

    connect(m_onlyKey, &QPushButton::clicked, this, [this](bool isOn) {
        m_only = isOn ? version().name : QString();
        fill();
    });
    connect(m_restoreKey, &QPushButton::clicked, this, &QDialog::accept);
    connect(closeKey, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_table, &QTableWidget::itemSelectionChanged, this, &HistoryDialog::showState);
    fill();
    resize(roomy.boundedTo(panel - QSize(8, 8)));
}

ProgramVersion HistoryDialog::version() const
{
    const QList<QTableWidgetItem *> chosen = m_table->selectedItems();
    return chosen.isEmpty() ? ProgramVersion() : m_shown.at(chosen.first()->row());
}

void HistoryDialog::resizeEvent(QResizeEvent *event)
{
    // The name comes first.
    m_table->setColumnHidden(2, width() < wideFrom);
    m_table->setColumnHidden(3, isNarrow());
    Dialog::resizeEvent(event);
}

void HistoryDialog::fill()
{
    const qint64 chosen = version().number;
    m_shown.clear();
    for (const ProgramVersion &version : qAsConst(m_all)) {
        if (m_only.isEmpty() || version.name == m_only)
            m_shown.append(version);
    }
    m_table->clearContents();
    m_table->setRowCount(m_shown.size());
    int row = 0;
    for (const ProgramVersion &version : qAsConst(m_shown)) {
        QTableWidgetItem *size =
            new QTableWidgetItem(tr("%1 KB").arg((version.bytes + 1023) / 1024));
        size->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        const QString name = version.name.simplified();
        const QString date = ProgramHistory::shownDate(version);
        // A narrow panel has the date below the name, which has the whole width then.
        const QString both = name + QChar(QChar::LineSeparator) + date;
        m_table->setItem(row, 0, new QTableWidgetItem(isNarrow() ? both : name));
        m_table->setItem(row, 1, new QTableWidgetItem(date));
        m_table->setItem(row, 2, new QTableWidgetItem(ProgramFacts::checksum(version.hash)));
        m_table->setItem(row, 3, size);
        if (version.number == chosen)
            m_table->selectRow(row);
        ++row;
    }
    showState();
}

void HistoryDialog::showState()
{
    const bool isChosen = !m_table->selectedItems().isEmpty();
    m_restoreKey->setEnabled(isChosen);
    m_onlyKey->setEnabled(isChosen || m_onlyKey->isChecked());
}
