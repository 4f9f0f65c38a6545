// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "messagebar.h"

#include "look.h"
#include "panelkey.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

namespace {

const int kPassingMs = 6000;

} // namespace

MessageBar::MessageBar(QWidget *parent)
    : QFrame(parent)
    , m_text(new QLabel)
    , m_progress(new QProgressBar)
    , m_key(new PanelKey(Glyphs::icon(Glyphs::Close), QString()))
{
    setObjectName(QLatin1String("messageBar"));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_text->setStyleSheet(QLatin1String("color: #ffffff;"));
    m_progress->setTextVisible(false);
    m_progress->setFixedHeight(10);
    m_key->setStyleSheet(Look::stripSheet());

    QVBoxLayout *column = new QVBoxLayout;
    column->setSpacing(4);
    column->addWidget(m_text);
    column->addWidget(m_progress);
    QHBoxLayout *row = new QHBoxLayout(this);
    row->setContentsMargins(12, 4, 4, 4);
    row->addLayout(column, 1);
    row->addWidget(m_key);

    connect(m_key, &PanelKey::clicked, this, &MessageBar::press);
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &MessageBar::hide);
    parent->installEventFilter(this);
    hide();
}

void MessageBar::tell(const QString &text, PanelScreen::Tone tone)
{
    m_working = false;
    m_text->setText(text);
    m_progress->hide();
    m_key->setIcon(Glyphs::icon(Glyphs::Close));
    m_key->setText(QString());
    m_key->setToolButtonStyle(Qt::ToolButtonIconOnly);
    paint(tone == PanelScreen::Warning ? Look::alert()
          : tone == PanelScreen::Good  ? Look::good()
                                       : Look::ink());
    if (tone == PanelScreen::Warning)
        m_timer.stop();
    else
        m_timer.start(kPassingMs);
    place();
}

void MessageBar::showWork(const QString &text, int percent)
{
    m_working = true;
    m_timer.stop();
    m_text->setText(text);
    m_progress->setValue(percent);
    m_progress->show();
    m_key->setIcon(QIcon());
    m_key->setText(tr("Stop"));
    m_key->setToolButtonStyle(Qt::ToolButtonTextOnly);
    paint(Look::ink());
    place();
    // Some work keeps the event loop waiting.
    repaint();
}

QString MessageBar::text() const
{
    return isHidden() ? QString() : m_text->text();
}

bool MessageBar::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parent() && event->type() == QEvent::Resize && isVisible())
        place();
    return QFrame::eventFilter(watched, event);
}

void MessageBar::paint(const QColor &color)
{
    setStyleSheet(QString::fromLatin1("#messageBar { background: %1; border: 1px solid #ffffff; "
                                      "border-radius: 8px; }")
                      .arg(color.name()));
}

void MessageBar::place()
{
    const int margin = 4;
    const int room = parentWidget()->width() - 2 * margin;
    setGeometry(margin, margin, room, heightForWidth(room));
    show();
    raise();
}

void MessageBar::press()
{
    if (m_working)
        Q_EMIT stopped();
    else
        hide();
}
