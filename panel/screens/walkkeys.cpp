// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/walkkeys.h"

#include "guards/programwalk.h"
#include "look/look.h"
#include "look/measures.h"
#include "look/pagekeys.h"
#include "look/panelkey.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QSplitter>
#include <QToolBar>
#include <QVBoxLayout>

namespace {

// Pixels: 9 mm at 133 dpi.
const int keySide = 48;
const int gap = 4;
const int margin = 2;
// Of the window's parts, from the top.
const int editorPart = 1;

QString firstName()
{
    return WalkKeys::tr("First line");
}

QString lineName()
{
    return WalkKeys::tr("Go to a line");
}

QString lastName()
{
    return WalkKeys::tr("Last line");
}

// In the order of the keys. In the library's bar they have its icons, as far as there is one.
const struct
{
    const char *icon;
    const char *text;
    QString (*name)();
    void (ProgramWalk::*step)();
    Glyphs::Glyph glyph;
    /// So many keys have room at least where this one is shown.
    int fromRoom;
} walkTable[] = {
    {"home", QT_TRANSLATE_NOOP("WalkKeys", "First"), &firstName, &ProgramWalk::goToFirst,
     Glyphs::First, 4},
    {"pageUp", QT_TRANSLATE_NOOP("WalkKeys", "Page"), &PageKeys::backName, &ProgramWalk::pageUp,
     Glyphs::PageUp, 0},
    {nullptr, QT_TRANSLATE_NOOP("WalkKeys", "Line"), &lineName, &ProgramWalk::askForLine,
     Glyphs::ToLine, 5},
    {"pageDown", QT_TRANSLATE_NOOP("WalkKeys", "Page"), &PageKeys::forthName,
     &ProgramWalk::pageDown, Glyphs::PageDown, 0},
    {"end", QT_TRANSLATE_NOOP("WalkKeys", "Last"), &lastName, &ProgramWalk::goToLast, Glyphs::Last,
     4},
};
const int keyCount = sizeof walkTable / sizeof *walkTable;
const int leastKeys = 2;

int sideOfKey()
{
    return qMax(keySide, Measures::touch());
}

int heightOf(int keys, int side)
{
    return keys * (side + gap) - gap + 2 * margin;
}

/// How many keys \a height has room for. All of them are of full height; fewer may be lower.
int roomFor(int height)
{
    if (height >= heightOf(keyCount, sideOfKey()))
        return keyCount;
    return height >= heightOf(keyCount - 1, Measures::touch()) ? keyCount - 1 : leastKeys;
}

} // namespace

WalkKeys::WalkKeys(ProgramWalk *walk) : QObject(walk), m_walk(walk) {}

void WalkKeys::putBeside(QSplitter *window)
{
    QWidget *panel = new QWidget;
    panel->setObjectName(QLatin1String("walkKeys"));
    Look::dress(panel, Look::KeyPanel);
    QVBoxLayout *column = new QVBoxLayout(panel);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(gap);
    // What the keys leave of a high column is above and below them all.
    column->addStretch();
    for (int i = 0; i < keyCount; ++i) {
        PanelKey *key = new PanelKey(icon(i, false), QLatin1String("-"));
        key->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        key->setMinimumSize(sideOfKey(), Measures::touch());
        key->setMaximumHeight(2 * Measures::touch());
        column->addWidget(key, 1);
        add(key, i);
    }
    column->addStretch();
    // The keys that have room are shown, so they ask for none.
    panel->setMinimumHeight(heightOf(leastKeys, Measures::touch()));
    panel->installEventFilter(this);

    QWidget *editor = window->widget(editorPart);
    // With a style sheet of its own it would lose the font of its line numbers on the way.
    const QString sheet = editor->styleSheet();
    editor->setStyleSheet(QString());
    QWidget *holder = new QWidget;
    QHBoxLayout *row = new QHBoxLayout(holder);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    window->insertWidget(editorPart, holder);
    row->addWidget(editor, 1);
    row->addWidget(panel);
    editor->setStyleSheet(sheet);
    window->setStretchFactor(editorPart, 1);
    retranslate();
}

void WalkKeys::putInto(QToolBar *bar)
{
    bar->addSeparator();
    for (int i = 0; i < keyCount; ++i) {
        QToolButton *button = new QToolButton;
        button->setIcon(icon(i, true));
        button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        button->setMinimumWidth(sideOfKey());
        bar->addWidget(button);
        add(button, i);
    }
    retranslate();
}

void WalkKeys::add(QToolButton *button, int index)
{
    m_keys.append(button);
    connect(button, &QToolButton::clicked, m_walk, walkTable[index].step);
}

QIcon WalkKeys::icon(int index, bool isInBar) const
{
    const char *name = walkTable[index].icon;
    if (isInBar && name)
        return QIcon(QString::fromLatin1(":/images/%1.png").arg(QLatin1String(name)));
    return Glyphs::icon(walkTable[index].glyph, isInBar ? Glyphs::OnPaper : Glyphs::OnKey);
}

void WalkKeys::retranslate()
{
    for (int i = 0; i < m_keys.size(); ++i) {
        m_keys.at(i)->setText(tr(walkTable[i].text));
        m_keys.at(i)->setAccessibleName(walkTable[i].name());
    }
}

bool WalkKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize) {
        const int room = roomFor(static_cast<QWidget *>(watched)->height());
        for (int i = 0; i < m_keys.size(); ++i)
            m_keys.at(i)->setVisible(room >= walkTable[i].fromRoom);
    }
    return QObject::eventFilter(watched, event);
}
