// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/choicepage.h"

#include "look/glyphs.h"
#include "look/measures.h"

#include <QEvent>
#include <QGridLayout>
#include <QPushButton>

namespace {

const int spacing = 4;
const int textPixels = 14;
const int tickSide = 16;
// Higher keys look like fields.
const int mostTouches = 2;

} // namespace

ChoicePage::ChoicePage(const QString &name, const Text &heading, int columns, QWidget *parent)
    : SettingsPage(name, heading, parent), m_name(name), m_columns(columns), m_grid(new QGridLayout)
{
    m_grid->setSpacing(spacing);
    content()->addLayout(m_grid, 1);
    // Where the keys have all the height that is good for them, they stay together.
    content()->addStretch();
    for (int column = 0; column < columns; ++column)
        m_grid->setColumnStretch(column, 1);
}

void ChoicePage::addChoice(const QString &value, const Text &text)
{
    QPushButton *key = new QPushButton;
    key->setObjectName(m_name + QLatin1Char('_') + value);
    key->setCheckable(true);
    key->setAutoDefault(false);
    QFont font = key->font();
    font.setPixelSize(textPixels);
    key->setFont(font);
    key->setIconSize(QSize(tickSide, tickSide));
    key->setMinimumHeight(Measures::touch());
    key->setMaximumHeight(mostTouches * Measures::touch());
    key->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    connect(key, &QPushButton::clicked, this, [this, value] { ask(value); });
    m_grid->addWidget(key, m_choices.size() / m_columns, m_choices.size() % m_columns);
    m_choices.append({value, text, key});
    name(m_choices.last());
}

QStringList ChoicePage::values() const
{
    QStringList values;
    for (const Choice &choice : m_choices)
        values.append(choice.value);
    return values;
}

QPushButton *ChoicePage::key(const QString &value) const
{
    for (const Choice &choice : m_choices) {
        if (choice.value == value)
            return choice.key;
    }
    return nullptr;
}

void ChoicePage::mark(const QString &value)
{
    m_marked = value;
    for (const Choice &choice : qAsConst(m_choices)) {
        const bool isMarked = choice.value == value;
        choice.key->setChecked(isMarked);
        choice.key->setIcon(isMarked ? Glyphs::icon(Glyphs::Check, Glyphs::OnKey) : QIcon());
    }
}

/// The touch itself has turned the key by now, and the choice may yet be refused.
void ChoicePage::ask(const QString &value)
{
    mark(m_marked);
    Q_EMIT chosen(value);
}

void ChoicePage::name(const Choice &choice) const
{
    choice.key->setText(choice.text());
    // Alone, "On" would say little.
    choice.key->setAccessibleName(heading() + QLatin1Char(' ') + choice.text());
}

void ChoicePage::changeEvent(QEvent *event)
{
    SettingsPage::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    for (const Choice &choice : qAsConst(m_choices))
        name(choice);
}
