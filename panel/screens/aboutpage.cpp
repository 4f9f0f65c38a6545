// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/aboutpage.h"

#include "shell/statusstrip.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace {

const int textPixels = 13;
// A name of a folder that is longer is broken.
const int longestPart = 20;

/// A label breaks its lines between words only, and a path is one word.
QString breakable(const QString &path)
{
    QString text;
    int since = 0;
    for (const QChar sign : path) {
        text += sign;
        ++since;
        if (sign != QLatin1Char('/') && (since < longestPart || sign.isHighSurrogate()))
            continue;
        text += QChar(0x200b);
        since = 0;
    }
    return text;
}

} // namespace

AboutPage::AboutPage(const QString &folder, QWidget *parent)
    : SettingsPage(
        QLatin1String("about"), [] { return tr("About"); }, parent)
    , m_folder(folder)
    , m_facts(new QLabel)
{
    m_facts->setObjectName(QLatin1String("facts"));
    m_facts->setTextFormat(Qt::PlainText);
    m_facts->setWordWrap(true);
    m_facts->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    QFont font = m_facts->font();
    font.setPixelSize(textPixels);
    m_facts->setFont(font);
    content()->addWidget(m_facts, 1);
    say();
}

void AboutPage::showRoom(qint64 freeBytes)
{
    m_freeBytes = freeBytes;
    say();
}

void AboutPage::say()
{
    const QString room = m_freeBytes < 0 ? tr("not known") : StatusStrip::roomText(m_freeBytes);
    const QStringList facts{
        tr("Program: %1 %2")
            .arg(QCoreApplication::applicationName(), QCoreApplication::applicationVersion()),
        tr("Toolkit: Qt %1").arg(QLatin1String(qVersion())),
        tr("Licences: MIT; toolkit LGPL 3"),
        tr("Data: %1").arg(breakable(m_folder)),
        tr("Room left: %1").arg(room),
    };
    const QString text = facts.join(QLatin1Char('\n'));
    if (text != m_facts->text())
        m_facts->setText(text);
}

void AboutPage::changeEvent(QEvent *event)
{
    SettingsPage::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        say();
}
