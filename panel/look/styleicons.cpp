// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/styleicons.h"

#include "look/glyphs.h"
#include "look/look.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>

namespace {

// Of a drawing's side.
const int cornerPart = 5;
const int marginPart = 8;

typedef void (*Drawing)(QPainter *painter, const QRect &rect);

void drawOn(QPainter *painter, const QRect &rect, const QColor &ground, Glyphs::Glyph glyph)
{
    const int corner = rect.width() / cornerPart;
    const int margin = rect.width() / marginPart;
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(ground);
    painter->drawRoundedRect(rect, corner, corner);
    Glyphs::draw(glyph, painter, rect.adjusted(margin, margin, -margin, -margin),
                 Look::stripText());
}

void drawQuestion(QPainter *painter, const QRect &rect)
{
    drawOn(painter, rect, Look::accent(), Glyphs::Ask);
}

void drawInformation(QPainter *painter, const QRect &rect)
{
    drawOn(painter, rect, Look::ground(Message::Information), Glyphs::Inform);
}

void drawWarning(QPainter *painter, const QRect &rect)
{
    drawOn(painter, rect, Look::ground(Message::Warning), Glyphs::Warn);
}

void drawCritical(QPainter *painter, const QRect &rect)
{
    drawOn(painter, rect, Look::ground(Message::Alarm), Glyphs::Alarm);
}

/// Draws when it is asked to, so that the colours are those of the moment.
class MarkEngine : public QIconEngine
{
public:
    explicit MarkEngine(Drawing drawing) : m_drawing(drawing) {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode, QIcon::State) override
    {
        painter->save();
        m_drawing(painter, rect);
        painter->restore();
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }

    QIconEngine *clone() const override { return new MarkEngine(*this); }

private:
    const Drawing m_drawing;
};

const struct
{
    QStyle::StandardPixmap which;
    Drawing drawing;
} marks[] = {
    {QStyle::SP_MessageBoxQuestion, &drawQuestion},
    {QStyle::SP_MessageBoxInformation, &drawInformation},
    {QStyle::SP_MessageBoxWarning, &drawWarning},
    {QStyle::SP_MessageBoxCritical, &drawCritical},
};

const struct
{
    QStyle::StandardPixmap which;
    Glyphs::Glyph glyph;
} glyphs[] = {
    {QStyle::SP_FileIcon, Glyphs::Program},
    {QStyle::SP_FileLinkIcon, Glyphs::Program},
    {QStyle::SP_DirIcon, Glyphs::Files},
    {QStyle::SP_DirClosedIcon, Glyphs::Files},
    {QStyle::SP_DirOpenIcon, Glyphs::Files},
    {QStyle::SP_DirLinkIcon, Glyphs::Files},
    {QStyle::SP_DriveHDIcon, Glyphs::Storage},
    {QStyle::SP_ToolBarHorizontalExtensionButton, Glyphs::More},
    {QStyle::SP_LineEditClearButton, Glyphs::Close},
};

} // namespace

QIcon StyleIcons::icon(QStyle::StandardPixmap which)
{
    for (const auto &mark : marks) {
        if (mark.which == which)
            return QIcon(new MarkEngine(mark.drawing));
    }
    for (const auto &entry : glyphs) {
        if (entry.which == which)
            return Glyphs::icon(entry.glyph, Glyphs::OnPaper);
    }
    return QIcon();
}
