// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "shell/messagebar.h"

#include "look/elidedlabel.h"
#include "look/look.h"
#include "look/measures.h"
#include "look/panelkey.h"
#include "look/tonemark.h"
#include "shell/messagelog.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QProgressBar>
#include <QVBoxLayout>

namespace {

const int rowPixels = 13;
const int rowLines = 2;
const int linePixels = 11;
const int rowBar = 8;
const int lineBar = 2;
// A thumb that is on its way to Stop must not close what says how the work ended.
const int keyRestMs = 700;
const int wholePercent = 100;

} // namespace

MessageBar::MessageBar(MessageLog *log, Form form, QWidget *parent)
    : TapArea(parent)
    , m_log(log)
    , m_form(form)
    , m_mark(form == Row ? new ToneMark : nullptr)
    , m_label(new ElidedLabel)
    , m_left(new QLabel)
    , m_progress(new QProgressBar)
    , m_key(new PanelKey(Glyphs::icon(Glyphs::Close), QString()))
{
    setObjectName(QLatin1String("messageBar"));
    m_label->setObjectName(QLatin1String("messageText"));
    m_left->setObjectName(QLatin1String("workLeft"));
    m_left->setTextFormat(Qt::PlainText);
    m_key->setObjectName(QLatin1String("messageKey"));
    m_progress->setTextVisible(false);
    layOut();
    m_label->installEventFilter(this);
    Look::dress(this, Look::MessageRow);

    connect(m_key, &PanelKey::clicked, this, &MessageBar::press);
    connect(m_log, &MessageLog::changed, this, &MessageBar::refresh);
    m_keyRest.setSingleShot(true);
    m_keyRest.setInterval(keyRestMs);
    connect(&m_keyRest, &QTimer::timeout, this, [this] { m_key->setEnabled(m_mayStop); });
    refresh();
}

void MessageBar::layOut()
{
    QFont font = m_label->font();
    font.setPixelSize(m_form == Row ? rowPixels : linePixels);
    m_label->setFont(font);
    m_left->setFont(font);
    m_label->setLines(m_form == Row ? rowLines : 1);
    if (m_form == Row)
        m_label->shrinkTo(linePixels);
    m_label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_progress->setFixedHeight(m_form == Row ? rowBar : lineBar);

    QVBoxLayout *column = new QVBoxLayout;
    column->setSpacing(0);
    column->addWidget(m_label, 1);
    column->addWidget(m_progress);
    QHBoxLayout *row = new QHBoxLayout(this);
    if (m_form == Line) {
        row->setContentsMargins(3, 0, 3, 0);
        row->addLayout(column, 1);
        row->addWidget(m_left);
        return;
    }
    row->setContentsMargins(6, 0, 0, 0);
    row->addWidget(m_mark);
    row->addLayout(column, 1);
    row->addWidget(m_left);
    row->addWidget(m_key);
    // The text keeps its lines when the key comes and goes.
    QSizePolicy policy = m_key->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_key->setSizePolicy(policy);
    m_key->setLeastWidth(Measures::stop().width());
    placeKey();
}

void MessageBar::setHigher(int pixels)
{
    m_higher = pixels;
    placeKey();
    // As many as the height has room for.
    m_label->setLines(pixels > 0 ? height() : rowLines);
}

bool MessageBar::hasRoom() const
{
    return m_label->isWholeIn(QSize(m_label->width(), height()));
}

/// Each pixel more is taken from a row of the screens. What stops running work is worth them.
void MessageBar::placeKey()
{
    if (m_form == Line)
        return m_key->setLeastWidth(m_isWorking ? Measures::stop().width() : 0);
    const int lines = rowLines * m_label->fontMetrics().height();
    const int least = m_isWorking ? Measures::stop().height() : Measures::touch();
    setFixedHeight(qMax(least, lines) + m_higher);
    m_key->setFixedHeight(height());
}

void MessageBar::showWork(const QString &text, int percent, const QString &left, bool mayStop)
{
    const bool begins = !m_isWorking;
    m_isWorking = true;
    m_mayStop = mayStop;
    m_workText = text;
    m_left->setText(left);
    m_progress->setRange(0, percent < 0 ? 0 : wholePercent);
    m_progress->setValue(percent);
    if (begins)
        m_keyRest.stop();
    if (begins)
        m_log->passOn();
    refresh();
    // Some work keeps the event loop waiting.
    repaint();
}

void MessageBar::endWork()
{
    if (!m_isWorking)
        return;
    m_isWorking = false;
    m_mayStop = true;
    restKey();
    refresh();
}

void MessageBar::restKey()
{
    m_key->setDown(false);
    m_key->setEnabled(false);
    m_keyRest.start();
}

void MessageBar::refresh()
{
    const Message message = m_log->current();
    const bool showsMessage = !message.text.isEmpty() && (!m_isWorking || m_log->isFresh());
    m_text = showsMessage ? message.text : m_isWorking ? m_workText : QString();
    m_progress->setVisible(m_isWorking);
    m_left->setVisible(m_isWorking && !showsMessage && !m_left->text().isEmpty());
    placeKey();
    showKey(!m_text.isEmpty());
    if (m_text.isEmpty()) {
        showNothing();
    } else {
        const Message::Tone tone = showsMessage ? message.tone : Message::Information;
        m_label->setText(m_text);
        if (m_mark)
            m_mark->setTone(tone);
        ToneMark::put(this, tone);
    }
    if (m_form == Line)
        setVisible(!m_text.isEmpty());
    Q_EMIT changed();
}

/// The last message stays to be read, without the urgency that it had.
void MessageBar::showNothing()
{
    const QList<Message> messages = m_log->messages();
    m_label->setText(messages.isEmpty() ? QString()
                                        : messages.first().time.toString(QLatin1String("HH:mm  "))
                                              + messages.first().text);
    if (m_mark && messages.isEmpty())
        m_mark->clear();
    else if (m_mark)
        m_mark->setQuiet(messages.first().tone);
    ToneMark::putNone(this);
}

void MessageBar::showKey(bool isWanted)
{
    m_key->setIcon(m_isWorking ? QIcon() : Glyphs::icon(Glyphs::Close));
    m_key->setText(m_isWorking ? tr("Stop") : QString());
    m_key->setAccessibleName(m_isWorking ? QString() : tr("Close"));
    m_key->setToolButtonStyle(m_isWorking ? Qt::ToolButtonTextOnly : Qt::ToolButtonIconOnly);
    if (m_isWorking && !m_keyRest.isActive())
        m_key->setEnabled(m_mayStop);
    m_key->setVisible(isWanted);
}

void MessageBar::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        refresh();
    TapArea::changeEvent(event);
}

bool MessageBar::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_label && event->type() == QEvent::FontChange)
        placeKey();
    return TapArea::eventFilter(watched, event);
}

void MessageBar::press()
{
    if (m_isWorking)
        Q_EMIT stopped();
    else
        m_log->closeCurrent();
}
