// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/programpicture.h"

#include "look/coilcolours.h"
#include "screens/coilview.h"

#include <QEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace {

const float letters = 11;
const int wordsMargin = 12;

} // namespace

ProgramPicture::ProgramPicture(QWidget *parent)
    : QWidget(parent), m_view(new CoilView), m_words(new QLabel)
{
    m_words->setObjectName(QLatin1String("pictureWords"));
    m_words->setTextFormat(Qt::PlainText);
    m_words->setWordWrap(true);
    m_words->setAlignment(Qt::AlignCenter);
    m_words->setMargin(wordsMargin);
    m_words->setAutoFillBackground(true);
    m_words->setBackgroundRole(QPalette::Base);
    // What is drawn is as large as the place for it, and asks for none.
    m_words->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    m_view->setColours(CoilColours::palette());
    m_view->setAccessibleName(tr("Coil"));
    QVBoxLayout *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_view, 1);
    column->addWidget(m_words, 1);
    connect(&m_maker, &PictureMaker::made, this, &ProgramPicture::take);
    connect(m_view, &CoilView::wanted, this, &ProgramPicture::order);
    say(QString());
}

void ProgramPicture::say(const QString &words)
{
    m_hasModel = false;
    m_model = WindingModel();
    m_maker.cancel();
    m_view->clear();
    m_view->hide();
    m_words->setText(words);
    m_words->show();
}

void ProgramPicture::draw(const WindingModel &model)
{
    m_maker.cancel();
    m_view->clear();
    m_model = model;
    m_hasModel = true;
    m_words->hide();
    m_view->show();
    order();
}

/// What has no size yet is drawn when it gets one.
void ProgramPicture::order()
{
    if (!m_hasModel || m_view->size().isEmpty() || !m_view->isVisible())
        return;
    PictureMaker::Order order;
    order.model = m_model;
    order.scene.size = m_view->size();
    order.scene.letters = letters;
    if (!m_view->isFitted())
        order.scene.world = m_view->world();
    order.palette = CoilColours::palette();
    order.font = font();
    m_maker.order(order);
}

void ProgramPicture::take(const PictureMaker::Picture &picture)
{
    m_view->setWhole(picture.whole, picture.leastWidth);
    m_view->showPicture(picture.image, picture.frame);
    Q_EMIT drawn();
}

void ProgramPicture::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    order();
}

void ProgramPicture::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange) {
        m_view->setColours(CoilColours::palette());
        order();
    } else if (event->type() == QEvent::LanguageChange) {
        m_view->setAccessibleName(tr("Coil"));
        order();
    }
    QWidget::changeEvent(event);
}
