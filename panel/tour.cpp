// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "tour.h"

#include "display/panelglass.h"
#include "look/panelkey.h"
#include "programs/plctransfer.h"
#include "programs/programdirectory.h"
#include "screens/connectionsscreen.h"
#include "screens/filesscreen.h"
#include "screens/programscreen.h"
#include "screens/teachscreen.h"
#include "screens/variablesscreen.h"
#include "shell/messagebar.h"
#include "shell/messagelog.h"
#include "shell/panelwindow.h"
#include "stick/importguard.h"
#include "tlistwidget.h"
#include "wgcodeediter.h"
#include "wmmainwindow.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPushButton>
#include <QTableWidget>
#include <QTextBlock>
#include <QToolButton>

namespace {

const int kMostPages = 8;
const int kPatienceMs = 60000;

void tap(QWidget *target)
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

// The steps name a button by its English text; it may show that in another language.
bool says(const QToolButton *button, const QString &text)
{
    const QByteArray source = text.toLatin1();
    for (const char *context : {"WMMainWindow", "BarPager", "PanelWindow", "ProgramScreen",
                                "ListScreen", "TeachScreen", "ConnectionsScreen", "FilesScreen"}) {
        if (button->text() == QCoreApplication::translate(context, source))
            return true;
    }
    return false;
}

QToolButton *toolButton(const QWidget *among, const QString &text)
{
    const QList<QToolButton *> buttons = among->findChildren<QToolButton *>();
    for (QToolButton *button : buttons) {
        if (says(button, text) && button->isVisible())
            return button;
    }
    return nullptr;
}

// Whether there was a bar to turn.
bool turnBars(const QWidget *among)
{
    QList<QToolButton *> keys;
    const QList<QToolButton *> buttons = among->findChildren<QToolButton *>();
    for (QToolButton *button : buttons) {
        if (says(button, QLatin1String("More")) && button->isVisible())
            keys.append(button);
    }
    for (QToolButton *key : qAsConst(keys))
        tap(key);
    return !keys.isEmpty();
}

QWidget *topLevel(const char *className)
{
    const QWidgetList topLevels = QApplication::topLevelWidgets();
    for (QWidget *widget : topLevels) {
        if (widget->isVisible() && widget->inherits(className))
            return widget;
    }
    return nullptr;
}

} // namespace

Tour::Tour(PanelWindow *panel, const QString &folder, const PanelGlass *glass, QObject *parent)
    : QObject(parent), m_panel(panel), m_glass(glass), m_folder(folder)
{
    if (!folder.isEmpty() && !QDir().mkpath(folder))
        m_error = tr("The folder %1 cannot be made.").arg(folder);
    connect(&m_timer, &QTimer::timeout, this, &Tour::next);
}

void Tour::visitProgramScreen(ProgramScreen *screen)
{
    WMMainWindow *window = screen->programWindow();
    picture(QLatin1String("program-new"));

    pressTool(window, QLatin1String("Open"));
    picture(QLatin1String("open"));
    press([] {
        QWidget *dialog = topLevel("WFileDialog");
        if (!dialog)
            return static_cast<QWidget *>(nullptr);
        dialog->findChild<QLineEdit *>()->setText(QLatin1String("stator-coil.cnc"));
        return static_cast<QWidget *>(dialog->findChild<QPushButton *>());
    });
    // A program of this length comes in pieces, between which the steps go on.
    waitUntil([screen] { return screen->title() == QLatin1String("stator-coil.cnc"); });
    then([screen] {
        QTextCursor cursor(screen->editor()->document()->findBlockByNumber(24));
        screen->editor()->setTextCursor(cursor);
        screen->editor()->centerCursor();
    });
    picture(QLatin1String("program"));

    then([window] { window->insertLine(QLatin1String("G33 X18.50 K0.50")); });
    picture(QLatin1String("program-changed"));

    pressTool(window, QLatin1String("Save"));
    picture(QLatin1String("program-first-save"));
    closeDialog();
    pressTool(window, QLatin1String("SaveAs"));
    press([] {
        QWidget *dialog = topLevel("WFileDialog");
        if (!dialog)
            return static_cast<QWidget *>(nullptr);
        dialog->findChild<QLineEdit *>()->setText(QLatin1String("rotor"));
        return static_cast<QWidget *>(dialog->findChild<QPushButton *>());
    });
    picture(QLatin1String("save-as"));
    closeDialog();

    turnBar(window);
    then([] {});
    then([this, window] {
        if (toolButton(window, QLatin1String("More")))
            save(QLatin1String("program-more-keys"));
    });
    pressTool(window, QLatin1String("Edit"));
    picture(QLatin1String("gcode-keypad"));
    closeDialog();
    pressTool(window, QLatin1String("Copy"));
    picture(QLatin1String("copy"));
    closeDialog();
    pressTool(window, QLatin1String("Tag"));
    picture(QLatin1String("tag"));
    turnBar(window);

    pressTool(m_panel, QLatin1String("Find"));
    picture(QLatin1String("find"));
    press([] {
        QWidget *dialog = topLevel("WFindDialog");
        return static_cast<QWidget *>(dialog ? dialog->findChild<QLineEdit *>() : nullptr);
    });
    picture(QLatin1String("character-keypad"));
    closeDialog();
    then([] {
        if (QWidget *dialog = topLevel("WFindDialog"))
            dialog->close();
    });

    pressTool(window, QLatin1String("New"));
    picture(QLatin1String("unsaved-changes"));
    closeDialog();

    then([this, screen] {
        connect(screen->transfer(), &PlcTransfer::progress, this, &Tour::saveDownload);
        Q_EMIT screen->programWindow()->signal_download(ProgramDirectory::path()
                                                        + QLatin1String("/endurance-run.cnc"));
    });
    waitUntil([] { return topLevel("DownloadQuestion") != nullptr; });
    picture(QLatin1String("download-question"));
    press([] {
        QWidget *question = topLevel("DownloadQuestion");
        return static_cast<QWidget *>(
            question ? question->findChild<QPushButton *>(QLatin1String("send")) : nullptr);
    });
    then([] {});
    waitUntil([window] { return !window->isDownloading(); });
    picture(QLatin1String("download-done"));
    then([window] { Q_EMIT window->signal_download(QString()); });
    picture(QLatin1String("download-refused"));
    visitMessages();
}

void Tour::visitMessages()
{
    press([this] { return m_panel->messageBar(); });
    picture(QLatin1String("messages"));
    closeDialog();
}

void Tour::visitTeachScreen(TeachScreen *screen)
{
    openMenu();
    then([this] {
        if (toolButton(m_panel, QLatin1String("Menu")))
            save(QLatin1String("menu"));
    });
    showScreen(1);
    picture(QLatin1String("teach"));
    pressCell(screen, 2, "Label", 0);
    picture(QLatin1String("teach-open-row"));
    pressCell(screen, 2, "ComboLineEdit", 0);
    picture(QLatin1String("numeric-keypad"));
    closeDialog();
    pressCell(screen, 2, "Label", 0);
    pressCell(screen, 2, "Label", 1);
    picture(QLatin1String("points"));
    closeDialog();
    pressKey(screen, QLatin1String("Page"), 1);
    picture(QLatin1String("teach-second-page"));
    pressKey(screen, QLatin1String("First"));
    pressKey(screen, QLatin1String("Select"));
    then([screen] { screen->list()->setCurIndex(4, false); });
    picture(QLatin1String("teach-selection"));
    pressKey(screen, QLatin1String("Delete"));
    picture(QLatin1String("teach-deleted"));
    pressTool(m_panel, QLatin1String("Clear"));
    picture(QLatin1String("teach-clear"));
    closeDialog();
    pressTool(m_panel, QLatin1String("Store"));
    picture(QLatin1String("teach-stored"));
}

void Tour::visitVariablesScreen(VariablesScreen *screen)
{
    showScreen(2);
    picture(QLatin1String("variables"));
    pressCell(screen, 1, "ComboLineEdit", 0);
    picture(QLatin1String("variables-keypad"));
    closeDialog();
}

void Tour::visitConnectionsScreen(ConnectionsScreen *screen)
{
    showScreen(3);
    picture(QLatin1String("connections"));
    pressKey(screen, QLatin1String("Edit the addresses"));
    waitUntil([] { return topLevel("ConnEditor") != nullptr; });
    picture(QLatin1String("connect-table"));
    press([] {
        QWidget *dialog = topLevel("ConnEditor");
        QWidget *field = nullptr;
        const QWidgetList all = dialog ? dialog->findChildren<QWidget *>() : QWidgetList();
        for (QWidget *widget : all) {
            if (!field && widget->inherits("ComboLineEdit") && widget->isVisible())
                field = widget;
        }
        return field;
    });
    picture(QLatin1String("address-keypad"));
    closeDialog();
    closeDialog();
}

void Tour::visitFilesScreen(FilesScreen *screen)
{
    showScreen(4);
    picture(QLatin1String("files"));
    then([screen] { QTimer::singleShot(0, screen, [screen] { screen->plug(); }); });
    // Without a folder that stands in for the stick nothing can be plugged, and nothing is asked.
    waitUntil([screen] {
        return !screen->mayPlug() || qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    });
    picture(QLatin1String("stick-plugged"));
    then([] {
        QMessageBox *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (box)
            box->button(QMessageBox::Yes)->click();
    });
    waitUntil([screen] { return !screen->guard()->isBusy(); });
    picture(QLatin1String("stick-names"));
    pressKey(screen, QLatin1String("I/E"));
    picture(QLatin1String("import-export"));
    closeDialog();
    pressKey(screen, QLatin1String("History"));
    then([] {
        if (QWidget *dialog = topLevel("HistoryDialog"))
            dialog->findChild<QTableWidget *>()->selectRow(0);
    });
    picture(QLatin1String("history"));
    closeDialog();
    pressKey(screen, QLatin1String("Pick"));
    picture(QLatin1String("pick-path"));
    closeDialog();
}

// The transfer is quicker than a tick: its picture is taken in the middle of it.
void Tour::saveDownload(int percent)
{
    if (percent < 50)
        return;
    disconnect(sender(), nullptr, this, nullptr);
    save(QLatin1String("download-running"));
}

void Tour::visitLanguages()
{
    openMenu();
    press([this] { return m_panel->findChild<QWidget *>(QLatin1String("languageKey")); });
    picture(QLatin1String("language"));
    closeDialog();
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
        if (time.elapsed() > kPatienceMs)
            return fail(tr("What step %1 waits for does not come.").arg(m_step));
        m_steps.prepend(m_lastStep);
    });
}

void Tour::picture(const QString &name)
{
    // One tick for what the step before started.
    then([] {});
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

void Tour::pressTool(QWidget *among, const QString &text)
{
    // On the page of a divided bar on which it is.
    int turns = 0;
    waitUntil([among, text, turns]() mutable {
        return toolButton(among, text) || ++turns > kMostPages || !turnBars(among);
    });
    press([among, text] { return toolButton(among, text); });
}

void Tour::openMenu()
{
    // A panel with room for the tabs has no key for them.
    then([this] {
        if (QToolButton *menu = toolButton(m_panel, QLatin1String("Menu")))
            tap(menu);
    });
    then([] {});
}

void Tour::showScreen(int index)
{
    then([this, index] {
        m_panel->messages()->closeAll();
        m_panel->showScreen(index);
    });
    then([] {});
}

void Tour::pressKey(QWidget *among, const QString &text, int nth)
{
    press([among, text, nth] {
        QList<PanelKey *> keys = among->findChildren<PanelKey *>();
        for (int i = keys.size() - 1; i >= 0; --i) {
            if (!says(keys.at(i), text))
                keys.removeAt(i);
        }
        return static_cast<QWidget *>(keys.value(nth));
    });
}

// The nth visible cell of a class, from left to right, of a row on the page.
void Tour::pressCell(ListScreen *screen, int row, const char *className, int nth)
{
    press([screen, row, className, nth] {
        const QWidget *line = screen->list()->itemAt(screen->list()->getListPos(row));
        QWidgetList cells;
        const QWidgetList all = line ? line->findChildren<QWidget *>() : QWidgetList();
        for (QWidget *cell : all) {
            if (cell->isVisible() && cell->inherits(className))
                cells.append(cell);
        }
        return cells.value(nth);
    });
}

// A bar that the panel is wide enough for has no key to turn it.
void Tour::turnBar(QWidget *window)
{
    then([window] { turnBars(window); });
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
    if (m_folder.isEmpty() || !m_glass)
        return;
    // Where the event loop has to wait, nothing else has painted the panel.
    m_panel->repaint();
    const QString file = QDir(m_folder).filePath(
        QString::fromLatin1("%1-%2.png").arg(++m_pictures, 2, 10, QLatin1Char('0')).arg(name));
    if (!m_glass->picture().save(file))
        fail(tr("The picture %1 cannot be written.").arg(file));
}
