// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/settingspage.h"

#include "look/livetext.h"

#include <QLabel>
#include <QVBoxLayout>

namespace {

const int side = 8;
const int spacing = 4;
const int headingPixels = 14;
const int hintPixels = 12;

QLabel *makeLabel(const SettingsPage::Text &text, int pixels)
{
    QLabel *label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    QFont font = label->font();
    font.setPixelSize(pixels);
    label->setFont(font);
    new LiveText(label, text);
    return label;
}

} // namespace

SettingsPage::SettingsPage(const QString &name, const Text &heading, QWidget *parent)
    : QFrame(parent), m_heading(heading), m_content(new QVBoxLayout)
{
    setObjectName(QLatin1String("page_") + name);
    setFrameShape(StyledPanel);
    QLabel *label = makeLabel(heading, headingPixels);
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    QVBoxLayout *column = new QVBoxLayout(this);
    column->setContentsMargins(side, spacing, side, spacing);
    column->setSpacing(spacing);
    column->addWidget(label);
    m_content->setSpacing(spacing);
    column->addLayout(m_content, 1);
}

void SettingsPage::setHint(const Text &hint)
{
    QLabel *label = makeLabel(hint, hintPixels);
    label->setObjectName(QLatin1String("hint"));
    label->setWordWrap(true);
    layout()->addWidget(label);
}
