// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/findingsdialog.h"

#include "look/pagekeys.h"
#include "look/paneltable.h"
#include "look/tonemark.h"
#include "screens/programreview.h"

#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QSet>
#include <QVBoxLayout>

namespace {

const QSize roomy(720, 560);
const int rowHeight = 44;
const int textPixels = 14;
const int margin = 6;
const int signSide = 22;
const int cellMargin = 4;

QIcon signOf(Finding::Severity severity)
{
    QPixmap sign(signSide, signSide);
    sign.fill(Qt::transparent);
    QPainter painter(&sign);
    ToneMark::draw(&painter, sign.rect(), FindingsDialog::toneOf(severity));
    return QIcon(sign);
}

void addWords(const QString &text, QSet<QString> *words)
{
    for (const QString &word : text.split(QLatin1Char(' ')))
        words->insert(word);
}

int widestOf(const QSet<QString> &words, const QFont &font)
{
    const QFontMetrics metrics(font);
    int widest = 0;
    for (const QString &word : words)
        widest = qMax(widest, metrics.horizontalAdvance(word));
    return widest;
}

} // namespace

FindingsDialog::FindingsDialog(const ProgramReview *review, int line, QWidget *parent)
    : Dialog(parent)
    , m_nearest(qMax(0, review->after(line - 1)))
    , m_findings(review->findings())
    , m_table(new PanelTable(0, 2, rowHeight))
{
    setTitle(tr("Check"));
    QLabel *head = new QLabel(review->summary());
    head->setObjectName(QLatin1String("summary"));
    head->setTextFormat(Qt::PlainText);
    head->setWordWrap(true);
    if (review->leftOut() > 0)
        head->setText(tr("%1. The first %2 are listed.")
                          .arg(review->summary(), QString::number(m_findings.size())));
    QFont font = m_table->font();
    font.setPixelSize(textPixels);
    m_table->setFont(font);
    m_table->horizontalHeader()->hide();
    m_table->letChooseRow();
    m_table->setFocusPolicy(Qt::TabFocus);
    m_table->setIconSize(QSize(signSide, signSide));
    m_table->setWordWrap(true);
    // One that came later would take room from rows that are measured.
    m_table->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    m_table->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_table->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    const QFontMetrics metrics(font);
    const int last = m_findings.isEmpty() ? 0 : m_findings.last().line;
    m_table->setColumnWidth(0, metrics.horizontalAdvance(QString::number(last)) + signSide + 18);
    m_table->verticalHeader()->setMinimumSectionSize(rowHeight);

    QVBoxLayout *column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(margin);
    column->addWidget(head);
    column->addWidget(m_table, 1);
    PageKeys *keys = new PageKeys(m_table, PageKeys::oneRow);
    column->addLayout(keys);
    connect(keys->add(tr("Close"), "close"), &QPushButton::clicked, this, &QDialog::reject);
    connect(m_table, &QTableWidget::cellClicked, this, &FindingsDialog::choose);
    // Return, where the arrows led to.
    connect(m_table, &QTableWidget::cellActivated, this, &FindingsDialog::choose);
    fill();
    resize(roomy.boundedTo(QGuiApplication::primaryScreen()->availableSize() - QSize(8, 8)));
}

Message::Tone FindingsDialog::toneOf(Finding::Severity severity)
{
    switch (severity) {
    case Finding::Note:
        return Message::Information;
    case Finding::Warning:
        return Message::Warning;
    case Finding::Error:
        break;
    }
    return Message::Alarm;
}

// A table that was never laid out can't be scrolled.
void FindingsDialog::showEvent(QShowEvent *event)
{
    Dialog::showEvent(event);
    layout()->activate();
    shrinkToWords();
    // What to do stands behind what happened, and is never cut.
    m_table->resizeRowsToContents();
    // From there the arrows go on.
    m_table->setCurrentCell(m_nearest, 0, QItemSelectionModel::NoUpdate);
    m_table->scrollTo(m_table->model()->index(m_nearest, 0), QAbstractItemView::PositionAtTop);
}

/// Large letters can make a word wider than its column, which would cut it.
void FindingsDialog::shrinkToWords()
{
    QSet<QString> words;
    for (const Finding &finding : m_findings) {
        for (const QString &text : {finding.text(), finding.advice()})
            addWords(text, &words);
    }
    const int room = m_table->columnWidth(1) - 2 * cellMargin;
    QFont font = m_table->font();
    while (font.pixelSize() > textPixels && widestOf(words, font) > room)
        font.setPixelSize(font.pixelSize() - 1);
    if (font != m_table->font())
        m_table->setFont(font);
}

void FindingsDialog::fill()
{
    m_table->setRowCount(m_findings.size());
    const QIcon signs[] = {signOf(Finding::Note), signOf(Finding::Warning), signOf(Finding::Error)};
    for (int row = 0; row < m_findings.size(); ++row) {
        const Finding &finding = m_findings.at(row);
        m_table->setItem(
            row, 0, new QTableWidgetItem(signs[finding.severity], QString::number(finding.line)));
        m_table->setItem(
            row, 1, new QTableWidgetItem(finding.text() + QLatin1Char(' ') + finding.advice()));
    }
}

void FindingsDialog::choose(int row)
{
    m_finding = row;
    accept();
}
