// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/clockpage.h"

#include <QDateTime>
#include <QEvent>
#include <QLabel>
#include <QLocale>
#include <QVBoxLayout>

namespace {

const int timePixels = 28;
const int datePixels = 14;
const int secondMs = 1000;

QLabel *addLine(QVBoxLayout *column, const char *name, int pixels)
{
    QLabel *label = new QLabel;
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    QFont font = label->font();
    font.setPixelSize(pixels);
    label->setFont(font);
    column->addWidget(label);
    return label;
}

} // namespace

ClockPage::ClockPage(QWidget *parent)
    : SettingsPage(
        QLatin1String("clock"), [] { return tr("Clock"); }, parent)
    , m_time(addLine(content(), "time", timePixels))
    , m_date(addLine(content(), "date", datePixels))
    , m_zone(addLine(content(), "zone", datePixels))
{
    content()->addStretch();
    setHint([] { return tr("The system keeps the clock, and it is set there, not here."); });
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &ClockPage::tick);
    showMoment(QDateTime::currentDateTime());
}

void ClockPage::showMoment(const QDateTime &moment)
{
    m_time->setText(moment.time().toString(QLatin1String("HH:mm")));
    m_date->setText(locale().dayName(moment.date().dayOfWeek())
                    + moment.date().toString(QLatin1String(", yyyy-MM-dd")));
    m_zone->setText(tr("Time zone: %1").arg(moment.timeZoneAbbreviation()));
}

/// Somebody may set the clock at any moment: each second is looked up, none is counted.
void ClockPage::tick()
{
    const QDateTime now = QDateTime::currentDateTime();
    showMoment(now);
    m_timer.start(secondMs - now.time().msec() % secondMs);
}

void ClockPage::changeEvent(QEvent *event)
{
    SettingsPage::changeEvent(event);
    if (event->type() == QEvent::LocaleChange || event->type() == QEvent::LanguageChange)
        showMoment(QDateTime::currentDateTime());
}

void ClockPage::showEvent(QShowEvent *event)
{
    SettingsPage::showEvent(event);
    tick();
}

void ClockPage::hideEvent(QHideEvent *event)
{
    m_timer.stop();
    SettingsPage::hideEvent(event);
}
