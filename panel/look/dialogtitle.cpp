// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/dialogtitle.h"

#include "look/look.h"

#include <QHBoxLayout>
#include <QLabel>

namespace {

const int textPixels = 15;
const int sideMargin = 8;
const int margin = 3;

} // namespace

DialogTitle::DialogTitle(QWidget *dialog) : QFrame(dialog), m_label(new QLabel)
{
    // By that name the sheet knows the ground.
    setObjectName(QLatin1String("strip"));
    setAttribute(Qt::WA_StyledBackground);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    m_label->setObjectName(QLatin1String("dialogTitle"));
    m_label->setTextFormat(Qt::PlainText);
    m_label->setText(dialog->windowTitle());
    QFont font = m_label->font();
    font.setPixelSize(textPixels);
    font.setBold(true);
    m_label->setFont(font);
    QHBoxLayout *row = new QHBoxLayout(this);
    row->setContentsMargins(sideMargin, margin, sideMargin, margin);
    row->addWidget(m_label);
    Look::dress(this, Look::Strip);
    connect(dialog, &QWidget::windowTitleChanged, m_label, &QLabel::setText);
}

QString DialogTitle::text() const
{
    return m_label->text();
}
