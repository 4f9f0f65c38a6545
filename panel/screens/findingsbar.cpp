// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/findingsbar.h"

#include "filarixpanel.h"
#include "look/elidedlabel.h"
#include "look/look.h"
#include "look/panelkey.h"
#include "look/tonemark.h"
#include "screens/findingsdialog.h"
#include "screens/programreview.h"

#include <QEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QScreen>

namespace {

const int textPixels = 14;
const int smallestPixels = 11;
// Less width is the text's: the keys have their pictures alone.
const int wordsFrom = 600;
const int textLines = 3;
const int narrowLines = 2;
const int keyWidth = 46;
const int sideMargin = 6;

} // namespace

FindingsBar::FindingsBar(const ProgramReview *review, QWidget *parent)
    : QWidget(parent), m_review(review), m_mark(new ToneMark), m_text(new ElidedLabel)
{
    setObjectName(QLatin1String("findingsBar"));
    setAttribute(Qt::WA_StyledBackground);
    Look::dress(this, Look::KeyPanel);
    m_text->setObjectName(QLatin1String("findingText"));
    QFont font = m_text->font();
    font.setPixelSize(textPixels);
    m_text->setFont(font);

    // A narrow panel has the keys below the text.
    const bool isNarrow =
        QGuiApplication::primaryScreen()->availableSize().width() < FilarixPanel::smallBelow;
    const int lines = isNarrow ? narrowLines : textLines;
    m_text->shrinkTo(smallestPixels);
    m_text->setLines(lines);
    m_text->keepLines(lines);
    QBoxLayout *whole =
        new QBoxLayout(isNarrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight, this);
    whole->setContentsMargins(sideMargin, 2, 2, 2);
    whole->setSpacing(isNarrow ? 0 : 4);
    TapArea *texts = new TapArea;
    QHBoxLayout *inside = new QHBoxLayout(texts);
    inside->setContentsMargins(0, 0, 0, 0);
    inside->addWidget(m_mark);
    inside->addWidget(m_text);
    texts->setMinimumHeight(TapArea::leastHeight());
    whole->addWidget(texts, 1);
    QHBoxLayout *row = new QHBoxLayout;
    row->setSpacing(4);
    whole->addLayout(row);
    m_backKey = addKey(row, "findingBack", Glyphs::Up, [] { return tr("Back"); });
    m_nextKey = addKey(row, "findingNext", Glyphs::Down, [] { return tr("Next"); });
    PanelKey *listKey = addKey(row, "findingList", Glyphs::List, [] { return tr("All"); });
    PanelKey *closeKey = addKey(row, "findingClose", Glyphs::Close, [] { return tr("Close"); });

    connect(texts, &TapArea::touched, this, &FindingsBar::touched);
    connect(m_backKey, &PanelKey::clicked, this, [this] { goTo(previous()); });
    connect(m_nextKey, &PanelKey::clicked, this, [this] { goTo(next()); });
    connect(listKey, &PanelKey::clicked, this, &FindingsBar::listWanted);
    connect(closeKey, &PanelKey::clicked, this, &FindingsBar::closeWanted);
    connect(m_review, &ProgramReview::changed, this, &FindingsBar::takeChange);
    showAll();
}

PanelKey *FindingsBar::addKey(QHBoxLayout *row, const char *name, Glyphs::Glyph glyph,
                              const std::function<QString()> &text)
{
    PanelKey *key = new PanelKey(Glyphs::icon(glyph, Glyphs::OnKey), text);
    key->setObjectName(QLatin1String(name));
    key->setMinimumWidth(keyWidth);
    if (QGuiApplication::primaryScreen()->availableSize().width() < wordsFrom)
        key->setToolButtonStyle(Qt::ToolButtonIconOnly);
    row->addWidget(key);
    return key;
}

// A line may have several.
bool FindingsBar::isAtFinding() const
{
    return m_finding >= 0 && m_review->findings().at(m_finding).line == m_line;
}

// -1 where nothing was found at the line of the cursor.
int FindingsBar::firstAtLine() const
{
    const int index = m_review->after(m_line - 1);
    return index >= 0 && m_review->findings().at(index).line == m_line ? index : -1;
}

int FindingsBar::next() const
{
    if (!isAtFinding())
        return m_review->after(m_line);
    return m_finding + 1 < m_review->findings().size() ? m_finding + 1 : -1;
}

int FindingsBar::previous() const
{
    return isAtFinding() ? m_finding - 1 : m_review->before(m_line);
}

QString FindingsBar::text() const
{
    return m_text->text();
}

void FindingsBar::goTo(int index)
{
    m_finding = index;
    showAll();
    if (index < 0)
        return;
    const Finding &finding = m_review->findings().at(index);
    Q_EMIT placeWanted(finding.line, finding.column);
}

void FindingsBar::setLine(int line)
{
    m_line = line;
    // What was found before a change may stand at another line by now.
    if (m_review->state() == ProgramReview::Checked && !isAtFinding() && firstAtLine() >= 0)
        m_finding = firstAtLine();
    showAll();
}

// The findings are numbered anew: the one in view may be mended, or another one.
void FindingsBar::takeChange()
{
    if (m_review->state() == ProgramReview::Checked)
        m_finding = firstAtLine();
    else if (m_finding >= m_review->findings().size())
        m_finding = -1;
    showAll();
}

void FindingsBar::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        showAll();
    QWidget::changeEvent(event);
}

// Of all that was found.
Message::Tone FindingsBar::tone() const
{
    if (m_review->errors() > 0)
        return Message::Alarm;
    if (m_review->warnings() > 0 || m_review->state() == ProgramReview::Off)
        return Message::Warning;
    return Message::Information;
}

void FindingsBar::showAll()
{
    m_backKey->setEnabled(previous() >= 0);
    m_nextKey->setEnabled(next() >= 0);
    if (m_finding < 0) {
        m_mark->setTone(tone());
        m_text->setText(m_review->summary());
        return;
    }
    const Finding &finding = m_review->findings().at(m_finding);
    m_mark->setTone(FindingsDialog::toneOf(finding.severity));
    m_text->setText(tr("%1 of %2, line %3: %4 %5")
                        .arg(m_finding + 1)
                        .arg(m_review->findings().size())
                        .arg(finding.line)
                        .arg(finding.text(), finding.advice()));
}
