// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/rowdetails.h"

#include "look/look.h"
#include "look/measures.h"

#include <QGridLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

const int gap = 4;
const int headingPixels = 16;
const int namePixels = 12;
const int valuePixels = 16;
// More of a text would push the other values out.
const int longestValue = 120;

QLabel *makeLabel(int pixels, bool isBold)
{
    QLabel *label = new QLabel;
    QFont font = label->font();
    font.setPixelSize(pixels);
    font.setBold(isBold);
    label->setFont(font);
    label->setTextFormat(Qt::PlainText);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    return label;
}

bool isMarked(const RowDetails::Detail &detail)
{
    return detail.tone != Message::Information && !detail.note.isEmpty();
}

/// White on the ground of its tone, in every look.
void mark(QLabel *label, const RowDetails::Detail &detail)
{
    const bool marked = isMarked(detail);
    QPalette palette;
    if (marked) {
        palette.setColor(QPalette::Window, Look::ground(detail.tone));
        palette.setColor(QPalette::WindowText, palette.color(QPalette::BrightText));
    }
    label->setPalette(palette);
    label->setAutoFillBackground(marked);
    label->setMargin(marked ? gap / 2 : 0);
}

/// As large as the texts on it ask for.
class DetailKey : public QToolButton
{
public:
    explicit DetailKey(QWidget *texts)
    {
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        // By the keyboard alone, as other keys.
        setFocusPolicy(Qt::TabFocus);
        setMinimumHeight(Look::smallestTouch);
        setMaximumHeight(2 * Measures::touch());
        texts->setAttribute(Qt::WA_TransparentForMouseEvents);
        QVBoxLayout *column = new QVBoxLayout(this);
        column->setContentsMargins(0, 0, 0, 0);
        column->addWidget(texts);
    }

    QSize sizeHint() const override { return layout()->totalSizeHint(); }
    QSize minimumSizeHint() const override { return layout()->totalMinimumSize(); }
};

QString spoken(const RowDetails::Detail &detail)
{
    QStringList parts{detail.name, detail.value, detail.note};
    parts.removeAll(QString());
    return parts.join(QLatin1String(", "));
}

} // namespace

/// A value below its name and what it may be; on a key where a touch changes the value.
class DetailCell
{
public:
    explicit DetailCell(const RowDetails::Detail &detail)
        : m_isWide(detail.isWide)
        , m_texts(new QWidget)
        , m_name(makeLabel(namePixels, false))
        , m_note(makeLabel(namePixels, false))
        , m_value(makeLabel(valuePixels, true))
    {
        QGridLayout *grid = new QGridLayout(m_texts);
        grid->setContentsMargins(2 * gap, gap / 2, 2 * gap, gap / 2);
        grid->setVerticalSpacing(0);
        grid->setHorizontalSpacing(gap);
        grid->setColumnStretch(1, 1);
        grid->addWidget(m_name, 0, 0);
        grid->addWidget(m_note, 0, 1, Qt::AlignRight);
        grid->addWidget(m_value, 1, 0, 1, 2);
        m_value->setWordWrap(m_isWide);
        // A word that is longer than the line widens nothing.
        if (m_isWide)
            m_value->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        if (detail.isKey)
            m_key = new DetailKey(m_texts);
    }

    QWidget *widget() const { return m_key ? m_key : m_texts; }
    QToolButton *key() const { return m_key; }

    bool isFor(const RowDetails::Detail &detail) const
    {
        return detail.isKey == bool(m_key) && detail.isWide == m_isWide;
    }

    void set(const RowDetails::Detail &detail)
    {
        m_name->setText(detail.name);
        m_note->setText(detail.note);
        m_value->setText(detail.value.left(longestValue));
        mark(m_note, detail);
        widget()->setAccessibleName(spoken(detail));
    }

private:
    const bool m_isWide;
    QWidget *m_texts;
    QLabel *m_name;
    QLabel *m_note;
    QLabel *m_value;
    QToolButton *m_key = nullptr;
};

RowDetails::RowDetails(int columns, QWidget *parent)
    : QWidget(parent)
    , m_columns(columns)
    , m_heading(makeLabel(headingPixels, true))
    , m_grid(new QGridLayout)
{
    m_heading->setWordWrap(true);
    m_grid->setSpacing(gap);
    for (int i = 0; i < columns; ++i)
        m_grid->setColumnStretch(i, 1);
    QVBoxLayout *column = new QVBoxLayout(this);
    column->setContentsMargins(2 * gap, gap, gap, gap);
    column->setSpacing(gap);
    column->addWidget(m_heading);
    // What the cells leave at their full height lies below them.
    column->addLayout(m_grid, 1000);
    column->addStretch(1);
}

RowDetails::~RowDetails()
{
    qDeleteAll(m_cells);
}

void RowDetails::setDetails(const QString &heading, const QList<Detail> &details)
{
    m_heading->setText(heading);
    bool isSame = details.size() == m_cells.size();
    for (int i = 0; isSame && i < details.size(); ++i)
        isSame = m_cells.at(i)->isFor(details.at(i));
    if (!isSame)
        makeCells(details);
    for (int i = 0; i < details.size(); ++i)
        m_cells.at(i)->set(details.at(i));
}

QRect RowDetails::placeOf(int index) const
{
    if (index < 0 || index >= m_cells.size())
        return QRect();
    const QWidget *cell = m_cells.at(index)->widget();
    return QRect(cell->mapToGlobal(QPoint()), cell->size());
}

/// A cell may be pressed just now.
void RowDetails::makeCells(const QList<Detail> &details)
{
    for (const DetailCell *cell : qAsConst(m_cells)) {
        m_grid->removeWidget(cell->widget());
        cell->widget()->hide();
        cell->widget()->deleteLater();
    }
    qDeleteAll(m_cells);
    m_cells.clear();
    int place = 0;
    for (int i = 0; i < details.size(); ++i) {
        DetailCell *cell = new DetailCell(details.at(i));
        m_cells.append(cell);
        const bool isWide = details.at(i).isWide;
        if (isWide)
            place = (place + m_columns - 1) / m_columns * m_columns;
        m_grid->addWidget(cell->widget(), place / m_columns, place % m_columns, 1,
                          isWide ? m_columns : 1);
        // At once, and not with the next turn of the event loop.
        cell->widget()->show();
        place += isWide ? m_columns : 1;
        if (cell->key())
            connect(cell->key(), &QToolButton::clicked, this, [this, i] { Q_EMIT touched(i); });
    }
}
