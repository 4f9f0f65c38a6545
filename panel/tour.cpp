// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "tour.h"

#include "display/panelglass.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QWidget>

namespace {

const int patienceMs = 60000;

} // namespace

Tour::Tour(QWidget *panel, const QString &folder, const PanelGlass *glass, QObject *parent)
    : QObject(parent), m_panel(panel), m_glass(glass), m_folder(folder)
{
    if (!folder.isEmpty() && !QDir().mkpath(folder))
        m_error = tr("The folder %1 cannot be made.").arg(folder);
    connect(&m_timer, &QTimer::timeout, this, &Tour::next);
}

void Tour::tap(QWidget *target)
{
    const QPointF point(target->width() / 2.0, target->height() / 2.0);
    const QPointF global = target->mapToGlobal(point.toPoint());
    QMouseEvent press(QEvent::MouseButtonPress, point, global, Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(target, &press);
    QMouseEvent release(QEvent::MouseButtonRelease, point, global, Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    QApplication::sendEvent(target, &release);
}

void Tour::start(int tickMs)
{
    // Long enough for what a step started to be laid out and painted.
    m_timer.start(tickMs);
}

void Tour::then(const Step &step)
{
    m_steps.append(step);
}

void Tour::waitUntil(const std::function<bool()> &condition)
{
    QElapsedTimer time;
    then([this, condition, time]() mutable {
        if (!time.isValid())
            time.start();
        if (condition())
            return;
        if (time.elapsed() > patienceMs)
            return fail(tr("What step %1 waits for does not come.").arg(m_step));
        m_steps.prepend(m_lastStep);
    });
}

void Tour::picture(const QString &name)
{
    // One tick for what the step before started.
    then([] {});
    if (m_isAtRest) {
        waitUntil(m_isAtRest);
        then([] {});
    }
    then([this, name] { save(name); });
}

void Tour::press(const std::function<QWidget *()> &target)
{
    then([this, target] {
        QTimer::singleShot(0, this, [this, target] {
            if (QWidget *widget = target())
                tap(widget);
            else
                fail(tr("What step %1 touches is not on the screen.").arg(m_step));
        });
    });
}

void Tour::closeDialog()
{
    then([this] {
        if (QWidget *dialog = QApplication::activeModalWidget())
            dialog->close();
        else
            fail(tr("Step %1 expects a dialog, and none is open.").arg(m_step));
    });
}

void Tour::fail(const QString &error)
{
    if (m_error.isEmpty())
        m_error = error;
}

void Tour::next()
{
    if (m_steps.isEmpty() || !m_error.isEmpty()) {
        m_timer.stop();
        Q_EMIT finished();
        return;
    }
    ++m_step;
    m_lastStep = m_steps.takeFirst();
    m_lastStep();
}

void Tour::save(const QString &name)
{
    Q_EMIT arrived(name);
    if (!m_glass)
        return;
    // A text that has just changed has its new width.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    // Where the event loop has to wait, nothing else has painted the panel.
    m_panel->repaint();
    const QImage picture = m_glass->picture();
    Q_EMIT taken(name, picture);
    if (!m_folder.isEmpty())
        write(name, picture);
}

void Tour::write(const QString &name, const QImage &picture)
{
    const QString file = QDir(m_folder).filePath(
        QString::fromLatin1("%1-%2.png").arg(++m_pictures, 2, 10, QLatin1Char('0')).arg(name));
    if (!picture.save(file))
        fail(tr("The picture %1 cannot be written.").arg(file));
}
