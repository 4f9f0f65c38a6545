// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Loaded into an unchanged program by LD_PRELOAD, it tells when the panel was painted for the first
// time, with its tabs and its screen: the file named by FILARIX_FIRST_FRAME then holds the
// milliseconds since 1970, and those that the processor has worked for the program. It touches
// nothing.

#include <QCoreApplication>
#include <QDateTime>
#include <QEvent>
#include <QFile>
#include <QTimer>
#include <QWidget>

#include <cstdio>
#include <ctime>

namespace {

class FirstFrame : public QObject
{
    Q_OBJECT

public:
    explicit FirstFrame(QObject *parent) : QObject(parent) { parent->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const QWidget *widget = qobject_cast<const QWidget *>(watched);
        if (m_isSeen || !widget || event->type() != QEvent::Paint
            || !widget->window()->inherits("PanelWindow"))
            return false;
        m_isSeen = true;
        // All of the window is painted in one go, and by then it has been handed to the display.
        QTimer::singleShot(0, this, SLOT(tell()));
        return false;
    }

private Q_SLOTS:
    void tell()
    {
        const QByteArray path = qgetenv("FILARIX_FIRST_FRAME");
        QFile file(QFile::decodeName(path + ".new"));
        if (!file.open(QIODevice::WriteOnly))
            return;
        file.write(QByteArray::number(QDateTime::currentMSecsSinceEpoch()) + ' '
                   + QByteArray::number(qint64(std::clock()) * 1000 / CLOCKS_PER_SEC));
        file.close();
        std::rename((path + ".new").constData(), path.constData());
    }

private:
    bool m_isSeen = false;
};

void watchFrames()
{
    new FirstFrame(QCoreApplication::instance());
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(watchFrames)

#include "firstframe.moc"
