// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "shell/messagedialog.h"

#include "look/look.h"
#include "look/measures.h"
#include "look/pagekeys.h"
#include "look/tonemark.h"
#include "shell/messagelog.h"

#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace {

const QSize roomy(720, 560);
const int textPixels = 14;
const int timePixels = 12;
const int timeBesideFrom = 600;
// Letters of a word that fit on the narrowest panel, be they the widest.
const int longestWord = 16;

QLabel *makeLabel(const QString &text, int pixels)
{
    QLabel *label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    QFont font = label->font();
    font.setPixelSize(pixels);
    label->setFont(font);
    return label;
}

/// A label breaks its lines between words only; the name of a file may be one word of 255 letters.
QString breakable(const QString &text)
{
    QString result;
    int run = 0;
    for (const QChar letter : text) {
        run = letter.isSpace() ? 0 : run + 1;
        if (run > longestWord) {
            result += QChar(0x200b);
            run = 1;
        }
        result += letter;
    }
    return result;
}

QSize panelSize()
{
    return QGuiApplication::primaryScreen()->availableSize();
}

} // namespace

MessageDialog::MessageDialog(MessageLog *log, const QString &subject, QWidget *parent)
    : Dialog(parent), m_log(log), m_area(new QScrollArea)
{
    setTitle(tr("Messages"));
    m_area->setWidgetResizable(true);
    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    m_area->setFocusPolicy(Qt::TabFocus);

    QVBoxLayout *column = new QVBoxLayout(this);
    column->setContentsMargins(6, 6, 6, 6);
    column->setSpacing(6);
    if (!subject.isEmpty()) {
        QLabel *label = makeLabel(breakable(subject), textPixels);
        label->setObjectName(QLatin1String("subject"));
        column->addWidget(label);
    }
    column->addWidget(m_area, 1);
    PageKeys *keys = new PageKeys(m_area, Measures::touch());
    column->addLayout(keys);
    connect(keys->add(tr("Close"), "close"), &QPushButton::clicked, this, &QDialog::reject);
    connect(m_log, &MessageLog::changed, this, &MessageDialog::fill);
    fill();
    resize(roomy.boundedTo(panelSize() - QSize(8, 8)));
}

/// In one form for all languages: it can be sorted, and nobody takes the month for the day.
QString MessageDialog::shownTime(const QDateTime &time, const QDate &today)
{
    const char *format = time.date() == today ? "HH:mm:ss" : "yyyy-MM-dd HH:mm:ss";
    return time.toString(QLatin1String(format));
}

QWidget *MessageDialog::makeLine(const Message &message, bool stands) const
{
    QFrame *line = new QFrame;
    line->setObjectName(QLatin1String("message"));
    Look::dress(line, Look::MessageLine);
    if (stands)
        ToneMark::put(line, message.tone);
    else
        ToneMark::putNone(line);
    ToneMark *mark = new ToneMark;
    mark->setTone(message.tone);
    QLabel *time = makeLabel(shownTime(message.time, QDate::currentDate()), timePixels);
    time->setWordWrap(false);
    QLabel *text = makeLabel(breakable(message.text), textPixels);
    text->setObjectName(QLatin1String("text"));

    QGridLayout *grid = new QGridLayout(line);
    grid->setContentsMargins(4, 3, 4, 3);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(1);
    // The text has the whole width, below its time, where that saves it a line.
    const bool isNarrow = panelSize().width() < timeBesideFrom;
    grid->addWidget(mark, 0, 0, Qt::AlignTop);
    grid->addWidget(time, 0, 1, Qt::AlignTop);
    if (isNarrow)
        grid->addWidget(text, 1, 0, 1, 2);
    else
        grid->addWidget(text, 0, 2, Qt::AlignTop);
    grid->setColumnStretch(isNarrow ? 1 : 2, 1);
    return line;
}

/// The message that is read keeps its place unless something newer comes on top.
void MessageDialog::fill()
{
    const int place = m_area->verticalScrollBar()->value();
    QWidget *content = new QWidget;
    QVBoxLayout *column = new QVBoxLayout(content);
    column->setContentsMargins(4, 4, 4, 4);
    column->setSpacing(4);
    const QList<Message> messages = m_log->messages();
    for (int i = 0; i < messages.size(); ++i)
        column->addWidget(makeLine(messages.at(i), m_log->isStanding(i)));
    if (messages.isEmpty())
        column->addWidget(makeLabel(tr("There was nothing to tell yet."), textPixels));
    column->addStretch();
    m_area->setWidget(content);
    content->show();
    m_area->verticalScrollBar()->setValue(place);
}
