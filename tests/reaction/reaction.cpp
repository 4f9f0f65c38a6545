// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "reaction.h"

#include "screens/programscreen.h"
#include "shell/panelwindow.h"
#include "wgcodeediter.h"
#include "wmmainwindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QToolButton>
#include <QWindow>

#include <qpa/qwindowsysteminterface.h>

#include <algorithm>
#include <cstdio>

namespace {

const int screens = 6;
const int pressesEach = 60;
const int patienceMs = 30000;
const int paintPatienceMs = 3000;
const int mostPauseMs = 12;
const double longestMedianMs = 10;
const double longestMs = 50;
const int percentile = 99;
const int fewestSamples = 30;

QString hangSwitch()
{
    return QFile::decodeName(qgetenv("FILARIX_HANG_SWITCH"));
}

void hang(bool on)
{
    QFile file(hangSwitch());
    if (on)
        file.open(QIODevice::WriteOnly);
    else
        file.remove();
}

QWidget *visibleDialog(const char *className)
{
    const QWidgetList all = QApplication::topLevelWidgets();
    for (QWidget *widget : all) {
        if (widget->isVisible() && widget->inherits(className))
            return widget;
    }
    return nullptr;
}

QAbstractButton *buttonOf(const QWidget *parent, const QString &text)
{
    const QList<QAbstractButton *> buttons = parent->findChildren<QAbstractButton *>();
    for (QAbstractButton *button : buttons) {
        if (button->text() == text)
            return button;
    }
    return nullptr;
}

} // namespace

Finger::Finger(QElapsedTimer *clock) : m_clock(clock) {}

Finger::~Finger()
{
    wait();
}

void Finger::press(QWindow *window, const QPoint &point, int afterMs)
{
    wait();
    m_window = window;
    m_point = point;
    m_afterMs = afterMs;
    m_pressedAt = -1;
    start();
}

void Finger::run()
{
    msleep(static_cast<unsigned long>(m_afterMs));
    m_pressedAt = m_clock->nsecsElapsed();
    QWindowSystemInterface::handleMouseEvent(m_window, m_point, m_window->mapToGlobal(m_point),
                                             Qt::LeftButton, Qt::LeftButton,
                                             QEvent::MouseButtonPress);
}

Reaction::Reaction() : m_finger(&m_clock), m_random(1)
{
    m_clock.start();
}

void Reaction::start()
{
    qApp->installEventFilter(this);
    connect(&m_timer, &QTimer::timeout, this, &Reaction::next);
    planAll();
    m_timer.start(5);
}

void Reaction::planAll()
{
    waitFor("the panel", [this] {
        findPanel();
        return m_panel != nullptr;
    });
    showEach(pressesEach);
    then([this] { evaluate("at rest"); });

    const Condition loads = [this] {
        return m_panel->findChild<WMMainWindow *>()->windowTitle().indexOf("long") < 0;
    };
    for (int screen = 0; screen < screens; ++screen) {
        open("short.cnc");
        open("long.cnc");
        waitFor("the load's first lines",
                [this] { return m_panel->findChild<WGCodeEditer *>()->blockCount() > 1000; });
        then([this, screen] { m_panel->showScreen(screen); });
        then([this, loads] { measure(pressesEach, loads); });
        waitFor("the end of the load", [loads] { return !loads(); });
    }
    then([this] { evaluate("while a program of 100,000 lines loads"); });

    open("short.cnc");
    clickTool("Download G File To PLC!");
    waitFor("the question", [] { return visibleDialog("DownloadQuestion") != nullptr; });
    then([] { hang(true); });
    answer("DownloadQuestion", "Send");
    showEach(pressesEach);
    then([this] { evaluate("while a download waits for its PLC"); });
    then([] { hang(false); });
    waitFor("the end of the download",
            [this] { return !m_panel->findChild<WMMainWindow *>()->isDownloading(); });

    then([] {
        QFile marker("/tmp/udiskattach");
        marker.open(QIODevice::WriteOnly);
        hang(true);
    });
    showEach(pressesEach);
    then([this] { evaluate("while the stick hangs"); });
    then([] {
        hang(false);
        QCoreApplication::quit();
    });
}

void Reaction::findPanel()
{
    const QWidgetList all = QApplication::topLevelWidgets();
    for (QWidget *widget : all) {
        if (widget->isVisible() && qobject_cast<PanelWindow *>(widget))
            m_panel = static_cast<PanelWindow *>(widget);
    }
}

void Reaction::then(const Step &step)
{
    m_steps.append(step);
}

void Reaction::waitFor(const QString &what, const Condition &condition)
{
    then([this, what, condition] {
        if (condition())
            return m_waiting.invalidate();
        if (!m_waiting.isValid())
            m_waiting.start();
        if (m_waiting.elapsed() < patienceMs)
            return m_steps.prepend(m_step);
        m_faults.append("never came: " + what);
        m_steps.clear();
        hang(false);
        QCoreApplication::exit(1);
    });
}

void Reaction::clickTool(const QString &toolTip)
{
    then([this, toolTip] {
        const QList<QToolButton *> buttons = m_panel->findChildren<QToolButton *>();
        for (QToolButton *button : buttons) {
            // Its dialog runs in the event loop that the click starts.
            if (button->toolTip() == toolTip)
                QTimer::singleShot(0, button, &QToolButton::click);
        }
    });
}

void Reaction::answer(const char *className, const QString &button)
{
    then([className, button] {
        QAbstractButton *wanted = buttonOf(visibleDialog(className), button);
        QTimer::singleShot(0, wanted, &QAbstractButton::click);
    });
}

void Reaction::open(const QString &name)
{
    then([this] { m_panel->showScreen(0); });
    clickTool("Open G File!");
    waitFor("the program picker", [] { return visibleDialog("WFileDialog") != nullptr; });
    then([name] { visibleDialog("WFileDialog")->findChild<QLineEdit *>()->setText(name); });
    answer("WFileDialog", "OK");
    waitFor("the picker's end", [] { return visibleDialog("WFileDialog") == nullptr; });
    if (name == QLatin1String("short.cnc"))
        waitFor(name, [this, name] {
            return m_panel->findChild<WMMainWindow *>()->windowTitle().startsWith(name);
        });
}

void Reaction::showEach(int presses, const Condition &goesOn)
{
    for (int screen = 0; screen < screens; ++screen) {
        then([this, screen] { m_panel->showScreen(screen); });
        then([this, presses, goesOn] { measure(presses, goesOn); });
    }
}

void Reaction::measure(int presses, const Condition &goesOn)
{
    m_left = presses;
    m_goesOn = goesOn;
    pressOne();
}

void Reaction::next()
{
    // The keys of a screen are being pressed.
    if (m_left > 0) {
        if (m_key && m_finger.pressedAt() >= 0
            && m_clock.nsecsElapsed() - m_finger.pressedAt() > paintPatienceMs * qint64(1000000)) {
            m_faults.append("no paint after a press of " + m_key->text());
            endPress();
        }
        return;
    }
    if (m_steps.isEmpty())
        return;
    m_step = m_steps.takeFirst();
    m_step();
}

QAbstractButton *Reaction::randomKey()
{
    QList<QAbstractButton *> keys;
    const QList<QAbstractButton *> all = m_panel->findChildren<QAbstractButton *>();
    for (QAbstractButton *key : all) {
        if (key->isVisible() && key->isEnabled() && !key->visibleRegion().isEmpty()
            && QApplication::widgetAt(key->mapToGlobal(key->rect().center())) == key)
            keys.append(key);
    }
    return keys.isEmpty() ? nullptr : keys.at(int(m_random() % unsigned(keys.size())));
}

void Reaction::pressOne()
{
    if (m_goesOn && !m_goesOn())
        m_left = 0;
    m_key = m_left > 0 ? randomKey() : nullptr;
    if (!m_key) {
        m_left = 0;
        return;
    }
    QWidget *const window = m_key->window();
    m_finger.press(window->windowHandle(), m_key->mapTo(window, m_key->rect().center()),
                   int(m_random() % mostPauseMs));
}

bool Reaction::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Paint || watched != m_key || m_finger.pressedAt() < 0
        || !m_key->isDown())
        return false;
    m_samples.append((m_clock.nsecsElapsed() - m_finger.pressedAt()) / 1e6);
    QTimer::singleShot(0, this, &Reaction::endPress);
    return false;
}

// Slides off the key before it leaves the glass.
void Reaction::endPress()
{
    if (m_key) {
        QWindow *const window = m_key->window()->windowHandle();
        const QPoint off(-50, -50);
        QWindowSystemInterface::handleMouseEvent(window, off, window->mapToGlobal(off),
                                                 Qt::LeftButton, Qt::NoButton, QEvent::MouseMove);
        QWindowSystemInterface::handleMouseEvent(window, off, window->mapToGlobal(off),
                                                 Qt::NoButton, Qt::LeftButton,
                                                 QEvent::MouseButtonRelease);
        QWindowSystemInterface::flushWindowSystemEvents();
    }
    m_key = nullptr;
    --m_left;
    if (m_left > 0)
        QTimer::singleShot(0, this, &Reaction::pressOne);
}

void Reaction::evaluate(const QString &name)
{
    std::sort(m_samples.begin(), m_samples.end());
    const int count = m_samples.size();
    const double median = count > 0 ? m_samples.at(count / 2) : 0;
    const double late = count > 0 ? m_samples.at(count * percentile / 100) : 0;
    std::printf("%-42s %4d presses, median %5.1f ms, 99th %5.1f ms, longest %5.1f ms\n",
                qPrintable(name), count, median, late, count > 0 ? m_samples.last() : 0.0);
    std::fflush(stdout);
    if (count < fewestSamples)
        m_faults.append("too few presses " + name);
    if (median > longestMedianMs || late > longestMs)
        m_faults.append("too slow " + name);
    m_samples.clear();
}
