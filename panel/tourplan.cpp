// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "tourplan.h"

#include "guards/pickerfacts.h"
#include "guards/programguard.h"
#include "look/panelkey.h"
#include "programs/plctransfer.h"
#include "programs/programdirectory.h"
#include "screens/connectionsscreen.h"
#include "screens/filesscreen.h"
#include "screens/previewpane.h"
#include "screens/previewscreen.h"
#include "screens/programreview.h"
#include "screens/programscreen.h"
#include "screens/settingsscreen.h"
#include "screens/teachscreen.h"
#include "screens/variablesscreen.h"
#include "shell/messagebar.h"
#include "shell/messagelog.h"
#include "shell/panelwindow.h"
#include "stick/importguard.h"
#include "tlistwidget.h"
#include "tour.h"
#include "wgcodeediter.h"
#include "wmmainwindow.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTextBlock>
#include <QTimer>
#include <QToolButton>

namespace {

const int mostPages = 8;
// Of the sample that is open.
const int middleLine = 227;

// The steps name a button by its English text; it may show that in another language.
bool says(const QToolButton *button, const QString &text)
{
    const QByteArray source = text.toLatin1();
    for (const char *context :
         {"WMMainWindow", "BarPager", "PanelWindow", "ProgramScreen", "ListScreen", "TeachScreen",
          "ConnectionsScreen", "FilesScreen", "PreviewPane", "FindingsBar"}) {
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
        Tour::tap(key);
    return !keys.isEmpty();
}

/// A command that is given while the disk works comes later, and what is pressed meanwhile is
/// refused.
template<typename Screen>
void waitForDisk(Tour *tour, const Screen *screen)
{
    tour->waitUntil([screen] { return !screen->guard()->isBusy(); });
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

// The key of the picker that takes \a name.
QWidget *pickerKey(const char *name)
{
    QWidget *dialog = topLevel("WFileDialog");
    if (!dialog)
        return nullptr;
    dialog->findChild<QLineEdit *>()->setText(QLatin1String(name));
    return dialog->findChild<QPushButton *>();
}

void choose(const char *name)
{
    if (QWidget *dialog = topLevel("WFileDialog"))
        dialog->findChild<QLineEdit *>()->setText(QLatin1String(name));
}

const PickerFacts *pickerFacts()
{
    const QWidget *dialog = topLevel("WFileDialog");
    return dialog ? dialog->findChild<PickerFacts *>() : nullptr;
}

// Whether the picker shows all that it finds out about its program.
bool hasFacts()
{
    const PickerFacts *facts = pickerFacts();
    return facts && facts->text().contains(QLatin1Char('\n'))
           && !facts->text().contains(QLatin1Char('%'));
}

// Whether it looks for nothing more, as for a name that no program has.
bool hasLooked()
{
    const PickerFacts *facts = pickerFacts();
    return facts && facts->isSettled();
}

QWidget *keypadKey(const QString &token)
{
    const QWidget *keypad = QApplication::activeModalWidget();
    return keypad ? keypad->findChild<QWidget *>(QLatin1String("key_") + token) : nullptr;
}

QWidget *sendKey()
{
    QWidget *question = topLevel("DownloadQuestion");
    return question ? question->findChild<QPushButton *>(QLatin1String("send")) : nullptr;
}

QWidget *firstAddress()
{
    QWidget *dialog = topLevel("ConnEditor");
    const QWidgetList all = dialog ? dialog->findChildren<QWidget *>() : QWidgetList();
    for (QWidget *widget : all) {
        if (widget->inherits("ComboLineEdit") && widget->isVisible())
            return widget;
    }
    return nullptr;
}

} // namespace

TourPlan::TourPlan(PanelWindow *panel, Tour *tour) : QObject(tour), m_panel(panel), m_tour(tour) {}

void TourPlan::visitProgramScreen(ProgramScreen *screen)
{
    m_tour->picture(QLatin1String("program-new"));
    openProgram(screen);
    changeProgram(screen);
    checkProgram(screen);
    turnToOtherKeys(screen->programWindow());
    find();
    waitForDisk(m_tour, screen);
    pressTool(screen->programWindow(), QLatin1String("New"));
    m_tour->picture(QLatin1String("unsaved-changes"));
    m_tour->closeDialog();
    download(screen);
    showMessages();
}

void TourPlan::openProgram(ProgramScreen *screen)
{
    WMMainWindow *window = screen->programWindow();
    waitForDisk(m_tour, screen);
    pressTool(window, QLatin1String("Open"));
    m_tour->then([] {});
    m_tour->then([] { choose("stator-coil.cnc"); });
    m_tour->waitUntil(hasFacts);
    m_tour->picture(QLatin1String("open"));
    m_tour->press([] { return pickerKey("stator-coil.cnc"); });
    // A program of this length comes in pieces, between which the steps go on.
    m_tour->waitUntil([screen] { return screen->title() == QLatin1String("stator-coil.cnc"); });
    // The line of state takes a line of the editor's.
    waitForDisk(m_tour, screen);
    m_tour->then([] {});
    m_tour->then([screen] {
        QTextCursor cursor(screen->editor()->document()->findBlockByNumber(24));
        screen->editor()->setTextCursor(cursor);
        screen->editor()->centerCursor();
    });
    m_tour->waitUntil([screen] {
        const PreviewPane *beside = screen->findChild<PreviewPane *>();
        return !beside || beside->isUpToDate();
    });
    m_tour->picture(QLatin1String("program"));
}

void TourPlan::changeProgram(ProgramScreen *screen)
{
    WMMainWindow *window = screen->programWindow();
    m_tour->then([window] { window->insertLine(QLatin1String("G33 X18.50 K0.50")); });
    m_tour->picture(QLatin1String("program-changed"));

    waitForDisk(m_tour, screen);
    pressTool(window, QLatin1String("Save"));
    m_tour->picture(QLatin1String("program-first-save"));
    m_tour->closeDialog();
    waitForDisk(m_tour, screen);
    pressTool(window, QLatin1String("SaveAs"));
    m_tour->press([] { return pickerKey("rotor"); });
    m_tour->waitUntil(hasLooked);
    m_tour->picture(QLatin1String("save-as"));
    m_tour->closeDialog();
    waitForDisk(m_tour, screen);
    pressTool(window, QLatin1String("RM"));
    m_tour->then([] {});
    m_tour->then([] { choose("test-coil.cnc"); });
    m_tour->waitUntil(hasFacts);
    m_tour->picture(QLatin1String("remove"));
    m_tour->closeDialog();
}

// With two faults that go again.
void TourPlan::checkProgram(ProgramScreen *screen)
{
    m_tour->then([screen] {
        screen->programWindow()->insertLine(QLatin1String("G33 X18.50 Q2"));
        screen->programWindow()->insertLine(QLatin1String("G01 X99 F800"));
    });
    m_tour->waitUntil([screen] {
        const ProgramReview *review = screen->review();
        return review->state() == ProgramReview::Checked && !review->findings().isEmpty();
    });
    m_tour->then([screen] { screen->showFindings(); });
    m_tour->picture(QLatin1String("check"));
    pressTool(screen, QLatin1String("Back"));
    m_tour->picture(QLatin1String("check-finding"));
    pressTool(screen, QLatin1String("All"));
    m_tour->picture(QLatin1String("check-list"));
    m_tour->closeDialog();
    pressTool(screen, QLatin1String("Close"));
    m_tour->then([screen] {
        screen->editor()->undo();
        screen->editor()->undo();
    });
}

void TourPlan::turnToOtherKeys(WMMainWindow *window)
{
    turnBar(window);
    m_tour->then([] {});
    m_tour->then([this, window] {
        if (toolButton(window, QLatin1String("More")))
            m_tour->save(QLatin1String("program-more-keys"));
    });
    pressTool(window, QLatin1String("Edit"));
    m_tour->picture(QLatin1String("gcode-keypad"));
    turnKeypad(QLatin1String("gcode-keypad"));
    m_tour->closeDialog();
    pressTool(window, QLatin1String("Copy"));
    m_tour->picture(QLatin1String("copy"));
    m_tour->closeDialog();
    pressTool(window, QLatin1String("Tag"));
    m_tour->picture(QLatin1String("tag"));
    turnBar(window);
}

void TourPlan::find()
{
    pressTool(m_panel, QLatin1String("Find"));
    m_tour->picture(QLatin1String("character-keypad"));
    turnKeypad(QLatin1String("character-keypad"));
    m_tour->closeDialog();
    m_tour->picture(QLatin1String("find"));
    m_tour->then([] {
        if (QWidget *dialog = topLevel("WFindDialog"))
            dialog->close();
    });
}

void TourPlan::download(ProgramScreen *screen)
{
    WMMainWindow *window = screen->programWindow();
    m_tour->then([this, screen] {
        connect(screen->transfer(), &PlcTransfer::progress, this, &TourPlan::saveDownload);
        Q_EMIT screen->programWindow()->signal_download(ProgramDirectory::path()
                                                        + QLatin1String("/endurance-run.cnc"));
    });
    m_tour->waitUntil([] { return topLevel("DownloadQuestion") != nullptr; });
    m_tour->picture(QLatin1String("download-question"));
    m_tour->press(&sendKey);
    m_tour->then([] {});
    m_tour->waitUntil([window] { return !window->isDownloading(); });
    m_tour->picture(QLatin1String("download-done"));
    m_tour->then([window] { Q_EMIT window->signal_download(QString()); });
    m_tour->picture(QLatin1String("download-refused"));
}

void TourPlan::showMessages()
{
    m_tour->press([this] { return m_panel->messageBar(); });
    m_tour->picture(QLatin1String("messages"));
    m_tour->closeDialog();
}

void TourPlan::visitPreviewScreen(PreviewScreen *screen, ProgramScreen *programs)
{
    // The program as it was before the stops that change it, at a line in the midst of it.
    m_tour->then([programs] {
        WGCodeEditer *editor = programs->editor();
        while (editor->document()->isUndoAvailable())
            editor->undo();
        editor->setTextCursor(QTextCursor(editor->document()->findBlockByNumber(middleLine)));
    });
    showScreen(screen);
    m_tour->waitUntil([screen] { return screen->pane()->isUpToDate(); });
    m_tour->picture(QLatin1String("preview"));
    showCoil(screen, QLatin1String("Tension"), QLatin1String("preview-tension"));
    pressKey(screen, QLatin1String("Tension"));
    pressKey(screen, QLatin1String("Zoom +"));
    pressKey(screen, QLatin1String("Zoom +"));
    showCoil(screen, QLatin1String("Zoom +"), QLatin1String("preview-closer"));
    pressKey(screen, QLatin1String("Fit"));
    showCoil(screen, QLatin1String("To line"), QLatin1String("preview-to-line"));
    pressKey(screen, QLatin1String("To line"));
    showCoil(screen, QLatin1String("Path"), QLatin1String("preview-path"));
    showCoil(screen, QLatin1String("Curves"), QLatin1String("preview-curves"));
    showCoil(screen, QLatin1String("Time"), QLatin1String("preview-curves-time"));
    // A panel with room has the figures beside each picture.
    m_tour->then([this, screen] {
        if (QToolButton *figures = toolButton(screen, QLatin1String("Figures")))
            Tour::tap(figures);
    });
    m_tour->then([] {});
    m_tour->then([this, screen] {
        if (screen->pane()->view() == PreviewPane::Figures)
            m_tour->save(QLatin1String("preview-figures"));
    });
    pressKey(screen, QLatin1String("Coil"));
}

void TourPlan::showCoil(PreviewScreen *screen, const QString &key, const QString &name)
{
    pressKey(screen, key);
    m_tour->then([] {});
    m_tour->waitUntil([screen] { return screen->pane()->isUpToDate(); });
    m_tour->picture(name);
}

void TourPlan::visitTeachScreen(TeachScreen *screen)
{
    openMenu();
    m_tour->then([this] {
        if (toolButton(m_panel, QLatin1String("Menu")))
            m_tour->save(QLatin1String("menu"));
    });
    showScreen(screen);
    m_tour->picture(QLatin1String("teach"));
    pressCell(screen, 2, "Label", 0);
    m_tour->picture(QLatin1String("teach-open-row"));
    pressCell(screen, 2, "ComboLineEdit", 0);
    m_tour->picture(QLatin1String("numeric-keypad"));
    m_tour->closeDialog();
    pressCell(screen, 2, "Label", 0);
    pressCell(screen, 2, "Label", 1);
    m_tour->picture(QLatin1String("points"));
    m_tour->closeDialog();
    pressKey(screen, QLatin1String("Page"), 1);
    m_tour->picture(QLatin1String("teach-second-page"));
    pressTool(screen, QLatin1String("First"));
    pressTool(screen, QLatin1String("Select"));
    m_tour->then([screen] { screen->list()->setCurIndex(4, false); });
    m_tour->picture(QLatin1String("teach-selection"));
    pressTool(screen, QLatin1String("Delete"));
    m_tour->picture(QLatin1String("teach-deleted"));
    pressTool(screen, QLatin1String("Clear"));
    m_tour->picture(QLatin1String("teach-clear"));
    m_tour->closeDialog();
    pressTool(m_panel, QLatin1String("Store"));
    m_tour->picture(QLatin1String("teach-stored"));
}

void TourPlan::visitVariablesScreen(VariablesScreen *screen)
{
    showScreen(screen);
    m_tour->picture(QLatin1String("variables"));
    pressCell(screen, 1, "ComboLineEdit", 0);
    m_tour->picture(QLatin1String("variables-keypad"));
    m_tour->closeDialog();
}

void TourPlan::visitConnectionsScreen(ConnectionsScreen *screen)
{
    showScreen(screen);
    m_tour->picture(QLatin1String("connections"));
    pressKey(screen, QLatin1String("Edit the addresses"));
    m_tour->waitUntil([] { return topLevel("ConnEditor") != nullptr; });
    m_tour->picture(QLatin1String("connect-table"));
    m_tour->press(&firstAddress);
    m_tour->picture(QLatin1String("address-keypad"));
    m_tour->closeDialog();
    m_tour->closeDialog();
}

void TourPlan::visitFilesScreen(FilesScreen *screen)
{
    showScreen(screen);
    m_tour->waitUntil([screen] { return !screen->chosenPath().isEmpty() && screen->isUpToDate(); });
    m_tour->picture(QLatin1String("files"));
    m_tour->then([screen] { QTimer::singleShot(0, screen, [screen] { screen->plug(); }); });
    // Without a folder that stands in for the stick nothing can be plugged, and nothing is asked.
    m_tour->waitUntil([screen] { return !screen->mayPlug() || topLevel("QuestionDialog"); });
    m_tour->picture(QLatin1String("stick-plugged"));
    m_tour->then([] {
        if (QWidget *question = topLevel("QuestionDialog"))
            question->findChild<QPushButton *>(QLatin1String("answer1"))->click();
    });
    waitForDisk(m_tour, screen);
    m_tour->picture(QLatin1String("stick-names"));
    pressKey(screen, QLatin1String("I/E"));
    m_tour->picture(QLatin1String("import-export"));
    m_tour->closeDialog();
    pressKey(screen, QLatin1String("History"));
    m_tour->then([] {
        if (QWidget *dialog = topLevel("HistoryDialog"))
            dialog->findChild<QTableWidget *>()->selectRow(0);
    });
    m_tour->picture(QLatin1String("history"));
    m_tour->closeDialog();
    pressKey(screen, QLatin1String("Browse"));
    m_tour->picture(QLatin1String("pick-path"));
    m_tour->closeDialog();
}

// The transfer is quicker than a tick: its picture is taken in the middle of it.
void TourPlan::saveDownload(int percent)
{
    if (percent < 50)
        return;
    disconnect(sender(), nullptr, this, nullptr);
    m_tour->save(QLatin1String("download-running"));
}

// By its key, as an operator comes there.
void TourPlan::visitSettingsScreen(SettingsScreen *screen)
{
    m_tour->then([this] { m_panel->messages()->closeAll(); });
    openMenu();
    m_tour->press([this] { return m_panel->findChild<QWidget *>(QLatin1String("settingsKey")); });
    m_tour->picture(QLatin1String("settings"));
    // A panel with room shows all sections at once.
    for (const QString &section : SettingsScreen::sections().mid(1)) {
        m_tour->then([screen, section] {
            if (QWidget *key = screen->findChild<QWidget *>(QLatin1String("section_") + section))
                Tour::tap(key);
        });
        m_tour->then([] {});
        m_tour->then([this, screen, section] {
            if (screen->findChild<QWidget *>(QLatin1String("section_") + section))
                m_tour->save(QLatin1String("settings-") + section);
        });
    }
}

void TourPlan::pressTool(QWidget *among, const QString &text)
{
    // On the page of a divided bar on which it is.
    int turns = 0;
    m_tour->waitUntil([among, text, turns]() mutable {
        return toolButton(among, text) || ++turns > mostPages || !turnBars(among);
    });
    m_tour->press([among, text] { return toolButton(among, text); });
}

void TourPlan::openMenu()
{
    // A panel with room for the tabs has no key for them.
    m_tour->then([this] {
        if (QToolButton *menu = toolButton(m_panel, QLatin1String("Menu")))
            Tour::tap(menu);
    });
    m_tour->then([] {});
}

void TourPlan::showScreen(const PanelScreen *screen)
{
    m_tour->then([this, screen] {
        m_panel->messages()->closeAll();
        m_panel->showScreen(screen);
    });
    m_tour->then([] {});
}

void TourPlan::pressKey(QWidget *among, const QString &text, int nth)
{
    m_tour->press([among, text, nth] {
        QList<PanelKey *> keys = among->findChildren<PanelKey *>();
        for (int i = keys.size() - 1; i >= 0; --i) {
            if (!says(keys.at(i), text))
                keys.removeAt(i);
        }
        return static_cast<QWidget *>(keys.value(nth));
    });
}

// The nth visible cell of a class, from left to right, of a row on the page.
void TourPlan::pressCell(ListScreen *screen, int row, const char *className, int nth)
{
    m_tour->press([screen, row, className, nth] {
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

// The other pages of the keypad that is open, as far as it has a key for them, and back.
void TourPlan::turnKeypad(const QString &name)
{
    for (const char *key : {"shift", "symbols", "page"}) {
        const QString page = QLatin1String(key);
        const auto turn = [page] {
            if (QWidget *found = keypadKey(page))
                Tour::tap(found);
        };
        m_tour->then(turn);
        m_tour->then([] {});
        m_tour->then([this, name, page] {
            if (keypadKey(page))
                m_tour->save(name + QLatin1Char('-') + page);
        });
        m_tour->then(turn);
    }
}

// A bar that the panel is wide enough for has no key to turn it.
void TourPlan::turnBar(QWidget *window)
{
    m_tour->then([window] { turnBars(window); });
}
