// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/pagekeys.h"

#include "look/measures.h"

#include <QAbstractScrollArea>
#include <QPushButton>
#include <QScrollBar>

namespace {

const int gap = 6;
const int iconSide = 22;

} // namespace

PageKeys::PageKeys(QAbstractScrollArea *view, int kept)
    : m_bar(view->verticalScrollBar())
    , m_kept(kept)
    , m_backKey(addTurn(Glyphs::PageUp, "back"))
    , m_forthKey(addTurn(Glyphs::PageDown, "forth"))
{
    setSpacing(gap);
    m_backKey->setAccessibleName(backName());
    m_forthKey->setAccessibleName(forthName());
    connect(m_backKey, &QPushButton::clicked, this, [this] { turn(-1); });
    connect(m_forthKey, &QPushButton::clicked, this, [this] { turn(1); });
    connect(m_bar, &QScrollBar::valueChanged, this, &PageKeys::showState);
    connect(m_bar, &QScrollBar::rangeChanged, this, &PageKeys::showState);
    showState();
}

QPushButton *PageKeys::addTurn(Glyphs::Glyph glyph, const char *objectName)
{
    QPushButton *key = add(QString(), objectName);
    key->setIcon(Glyphs::icon(glyph, Glyphs::OnKey));
    key->setIconSize(QSize(iconSide, iconSide));
    return key;
}

QPushButton *PageKeys::add(const QString &text, const char *objectName)
{
    return addTo(this, text, objectName);
}

QPushButton *PageKeys::addTo(QHBoxLayout *row, const QString &text, const char *objectName)
{
    QPushButton *key = new QPushButton(text);
    key->setObjectName(QLatin1String(objectName));
    key->setAutoDefault(false);
    key->setMinimumSize(Measures::touch(), Measures::touch());
    row->addWidget(key, text.isEmpty() ? 1 : 2);
    return key;
}

void PageKeys::turn(int pages)
{
    m_bar->setValue(m_bar->value() + pages * qMax(1, m_bar->pageStep() - m_kept));
}

void PageKeys::showState()
{
    m_backKey->setEnabled(m_bar->value() > m_bar->minimum());
    m_forthKey->setEnabled(m_bar->value() < m_bar->maximum());
}
