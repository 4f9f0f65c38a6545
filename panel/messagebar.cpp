// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "messagebar.h"

#include "look.h"
#include "panelkey.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QStyle>
#include <QVBoxLayout>
#include <QVariant>

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
    m_progress->setTextVisible(false);
    m_progress->setFixedHeight(10);
    Look::dress(this, Look::Message);

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

void MessageBar::tell(const QString &text, Message::Tone tone)
{
    m_working = false;
    m_text->setText(text);
    m_progress->hide();
    m_key->setIcon(Glyphs::icon(Glyphs::Close));
    m_key->setText(QString());
    m_key->setToolButtonStyle(Qt::ToolButtonIconOnly);
    setTone(tone);
    if (tone != Message::Information)
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
    setTone(Message::Information);
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
    if (watched == parent() && event->type() == QEvent::Resize && !isHidden())
        place();
    return QFrame::eventFilter(watched, event);
}

void MessageBar::setTone(Message::Tone tone)
{
    const char *name = tone == Message::Alarm     ? "alarm"
                       : tone == Message::Warning ? "warning"
                                                  : "information";
    setProperty("tone", QString::fromLatin1(name));
    // A sheet looks at properties when it is set.
    style()->unpolish(this);
    style()->polish(this);
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
