// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/stickcover.h"

#include "importmanage.h"

#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QListView>

#include <algorithm>

namespace {

const int textMargin = 6;
const int smallestLetters = 10;

/// A word that is wider than the list would lose both its ends.
QFont fontFor(const QString &text, QFont font, int width)
{
    const QStringList words = text.split(QLatin1Char(' '));
    const auto fits = [&](const QString &word) {
        return QFontMetrics(font).horizontalAdvance(word) <= width;
    };
    while (font.pixelSize() > smallestLetters && !std::all_of(words.begin(), words.end(), fits))
        font.setPixelSize(font.pixelSize() - 1);
    return font;
}

} // namespace

StickCover::StickCover(QObject *parent) : QObject(parent)
{
    qApp->installEventFilter(this);
}

bool StickCover::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show) {
        if (ImportManage *manager = qobject_cast<ImportManage *>(watched))
            cover(manager);
    } else if (event->type() == QEvent::Resize && m_list && watched == m_list) {
        place();
    }
    return false;
}

void StickCover::showDevices(const DeviceState &state)
{
    const bool hasCome = m_cover && m_cover->isVisibleTo(m_list) && state.isKnown && state.stickIn;
    m_state = state;
    // The library looks at the stick in its own way, which drops what was chosen on both sides.
    if (hasCome && m_manager)
        m_manager->init();
    show();
}

/// The stick's list is the second one.
void StickCover::cover(ImportManage *manager)
{
    if (m_manager == manager)
        return;
    m_manager = manager;
    m_list = manager->findChildren<QListView *>().value(1);
    m_cover = new QLabel(m_list);
    m_cover->setObjectName(QLatin1String("stickCover"));
    m_cover->setTextFormat(Qt::PlainText);
    m_cover->setWordWrap(true);
    m_cover->setAlignment(Qt::AlignCenter);
    m_cover->setMargin(textMargin);
    m_cover->setAutoFillBackground(true);
    m_cover->setBackgroundRole(QPalette::Base);
    m_cover->setForegroundRole(QPalette::Text);
    m_cover->setText(tr("The stick is out. Plug it in: its files come by themselves."));
    show();
}

void StickCover::place()
{
    if (!m_cover)
        return;
    const QRect place = m_list->contentsRect();
    QFont font = m_list->font();
    font.setPixelSize(QFontInfo(font).pixelSize());
    m_cover->setFont(fontFor(m_cover->text(), font, place.width() - 2 * textMargin));
    m_cover->setGeometry(place);
}

/// While nobody knows, what was shown last stays.
void StickCover::show()
{
    if (!m_cover || !m_state.isKnown)
        return;
    // What is out of sight must not be chosen.
    if (!m_state.stickIn) {
        m_list->clearSelection();
        m_list->setCurrentIndex(QModelIndex());
    }
    place();
    m_cover->setVisible(!m_state.stickIn);
    m_cover->raise();
}
