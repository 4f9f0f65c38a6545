// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "reaction.h"

#include "shell/panelwindow.h"
#include "tlistwidget.h"
#include "watchedapplication.h"
#include "wgcodeediter.h"
#include "wmmainwindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QLineEdit>
#include <QTableWidget>
#include <QTimer>

namespace {

const int screens = 6;
const int programScreen = 0;
const int teachScreen = 2;
const int variablesScreen = 3;
const int filesScreen = 5;
const int pressesEach = 60;
const int tapsEach = 120;
// Of a list with a title.
const int firstRow = 1;
// What has as many has been filled.
const int fewestRows = 3;
const int fewestLines = 1000;

void hang(bool on)
{
    QFile file(QFile::decodeName(qgetenv("FILARIX_HANG_SWITCH")));
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

/// The keypad that is open, whichever it is.
QDialog *openKeypad()
{
    QDialog *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
    return dialog && dialog->findChild<QAbstractButton *>("key_ok") ? dialog : nullptr;
}

QAbstractButton *visibleKey(const QWidget *parent, const QString &name)
{
    const QList<QAbstractButton *> keys = parent->findChildren<QAbstractButton *>();
    for (QAbstractButton *key : keys) {
        const bool isIt =
            key->text() == name || key->toolTip() == name || key->accessibleName() == name;
        if (isIt && key->isVisible() && key->isEnabled())
            return key;
    }
    return nullptr;
}

/// In the event loop that calls it a dialog may run.
void clickSoon(QAbstractButton *key)
{
    QTimer::singleShot(0, key, &QAbstractButton::click);
}

/// Whether the list or the table that is in view has been filled.
bool hasRows(const QWidget *place)
{
    int rows = 0;
    const QWidgetList all = place->findChildren<QWidget *>();
    for (const QWidget *widget : all) {
        const TListWidget *list = qobject_cast<const TListWidget *>(widget);
        const QTableWidget *table = qobject_cast<const QTableWidget *>(widget);
        if (widget->isVisible())
            rows += list ? list->count() : table ? table->rowCount() : 0;
    }
    return rows >= fewestRows;
}

} // namespace

Reaction::Reaction(WatchedApplication *application) : m_watch(application)
{
    connect(&m_watch, &Stopwatch::measured, this, [this] { m_isMeasuring = false; });
    connect(&m_script, &Script::givenUp, this, &Reaction::giveUp);
    connect(&m_script, &Script::finished, application, &QCoreApplication::quit);
    m_script.waitFor("the panel", [this] { return findPanel(); });
    planPanel();
    // Behind them stands the long program.
    planKeypads();
    planRowsAndPages();
    planPicker();
    planWaits();
}

void Reaction::giveUp(const QString &what)
{
    const QWidget *dialog = QApplication::activeModalWidget();
    m_faults.append("never came: " + what);
    if (dialog)
        m_faults.append(QString("in the way: ") + dialog->metaObject()->className());
    hang(false);
    QCoreApplication::exit(1);
}

bool Reaction::findPanel()
{
    m_panel = static_cast<PanelWindow *>(visibleDialog("PanelWindow"));
    m_watch.targets()->setWindow(m_panel);
    return m_panel;
}

void Reaction::planPanel()
{
    kind("keys at rest", [this] { touchScreens(); });
    kind("keys while a program of 100,000 lines loads", [this] { touchWhileLoading(); });
}

void Reaction::planKeypads()
{
    kind("keys of the G-code keypad",
         [this] { touchKeypad("edit G code by softKey!", "key_page", pressesEach); });
    kind("keys of the number keypad", [this] { touchKeypad("Go to a line", nullptr, tapsEach); });
    kind("keys of the character keypad",
         [this] { touchKeypad("Find", "key_symbols", pressesEach); });
}

void Reaction::planRowsAndPages()
{
    kind("lines of the program", [this] { touchList(programScreen, &Targets::line); });
    kind("pages of the program", [this] { touchList(programScreen, &Targets::page); });
    kind("rows of Teach", [this] { touchList(teachScreen, &Targets::row); });
    kind("rows of the picker of points", [this] { touchPoints(); });
    kind("rows of Variables", [this] { touchList(variablesScreen, &Targets::row); });
    kind("pages of Variables", [this] { touchList(variablesScreen, &Targets::page); });
    kind("rows of Files", [this] { touchList(filesScreen, &Targets::row); });
}

void Reaction::planPicker()
{
    kind("rows of the program picker", [this] { touchPicker(&Targets::row); });
    kind("pages of the program picker", [this] { touchPicker(&Targets::page); });
    kind("keys of the program picker", [this] { touchPicker(&Targets::key); });
}

void Reaction::planWaits()
{
    kind("keys while a download waits for its PLC", [this] { touchWhileDownloading(); });
    m_script.then([this] { measureAgain(); });
    // The last: what the panel asks once the stick answers would be in the others' way.
    kind("keys while the stick hangs", [this] { touchWhileStickHangs(); });
    m_script.then([this] { measureAgain(); });
    m_script.then([] { hang(false); });
}

void Reaction::kind(const QString &name, const Script::Step &plan, int tries)
{
    m_script.then(plan);
    m_script.then([this, name, plan, tries] {
        const QStringList faults = m_watch.judge(name);
        if (!faults.isEmpty() && tries > 1)
            m_again.append([this, name, plan, tries] { kind(name, plan, tries - 1); });
        else
            m_faults += faults;
    });
}

/// What was too slow, when all else is measured: by then the machine may be done with something
/// else.
void Reaction::measureAgain()
{
    const QList<Script::Step> again = m_again;
    m_again.clear();
    for (const Script::Step &step : again)
        step();
    if (!again.isEmpty())
        m_script.then([this] { measureAgain(); });
}

/// The keys of all of them.
void Reaction::touchScreens()
{
    for (int screen = 0; screen < screens; ++screen) {
        show(screen);
        measure(&Targets::key, pressesEach);
    }
}

void Reaction::touchWhileLoading()
{
    const Script::Condition loads = [this] {
        return m_panel->findChild<WMMainWindow *>()->windowTitle().indexOf("long") < 0;
    };
    for (int screen = 0; screen < screens; ++screen) {
        open("short.cnc");
        open("long.cnc");
        m_script.waitFor("the load's first lines", [this] {
            return m_panel->findChild<WGCodeEditer *>()->blockCount() > fewestLines;
        });
        show(screen);
        measure(&Targets::key, pressesEach, loads);
        m_script.waitFor("the end of the load", [loads] { return !loads(); });
    }
}

void Reaction::touchWhileDownloading()
{
    // The library asks about a program that is open already, as after a first time.
    open("short-2.cnc");
    open("short-1.cnc");
    click("Download G File To PLC!");
    m_script.waitFor("the question", [] { return visibleDialog("DownloadQuestion") != nullptr; });
    m_script.then([] { hang(true); });
    answer("DownloadQuestion", "Send");
    touchScreens();
    m_script.then([] { hang(false); });
    m_script.waitFor("the end of the download",
                     [this] { return !m_panel->findChild<WMMainWindow *>()->isDownloading(); });
}

void Reaction::touchWhileStickHangs()
{
    m_script.then([] {
        QFile marker("/tmp/udiskattach");
        marker.open(QIODevice::WriteOnly);
        hang(true);
    });
    touchScreens();
}

/// Both pages of the keypad, if there is a key that turns to a second one.
void Reaction::touchKeypad(const QString &opener, const char *secondPage, int keys)
{
    show(programScreen);
    click(opener);
    m_script.waitFor("the keypad of " + opener, [] { return openKeypad() != nullptr; });
    measure(&Targets::key, keys);
    if (secondPage) {
        m_script.then(
            [secondPage] { openKeypad()->findChild<QAbstractButton *>(secondPage)->click(); });
        measure(&Targets::key, keys);
    }
    m_script.then([] { openKeypad()->reject(); });
    m_script.waitFor("the end of the keypad", [] { return !openKeypad(); });
    // The library's, which the keypad of a text is opened over.
    m_script.then([] {
        if (QWidget *dialog = visibleDialog("WFindDialog"))
            dialog->close();
    });
}

/// The editor, the list or the table of a screen.
void Reaction::touchList(int screen, Stopwatch::Chooser choose)
{
    show(screen);
    m_script.waitFor("what fills the screen",
                     [this, screen] { return screen == programScreen || hasRows(m_panel); });
    // A narrow bar has the keys for the program's pages on a page of its own.
    if (choose == &Targets::page)
        m_script.waitFor("the keys that turn pages",
                         [this] { return keyInView("Page down") != nullptr; });
    measure(choose, tapsEach);
}

/// The rows of the table from which a taught row gets its point.
void Reaction::touchPoints()
{
    show(teachScreen);
    m_script.then([this] {
        const QList<TListWidget *> lists = m_panel->findChildren<TListWidget *>();
        for (TListWidget *list : lists) {
            if (list->isVisible())
                QTimer::singleShot(0, list, [list] { Q_EMIT list->sg_jpos_update(firstRow); });
        }
    });
    m_script.waitFor("the picker of points", [] {
        const QWidget *picker = visibleDialog("TablePicker");
        return picker && hasRows(picker);
    });
    measure(&Targets::row, tapsEach);
    answer("TablePicker", "Cancel");
}

void Reaction::touchPicker(Stopwatch::Chooser choose)
{
    openPicker();
    m_script.waitFor("the picker's rows", [] { return hasRows(visibleDialog("WFileDialog")); });
    measure(choose, tapsEach);
    answer("WFileDialog", "Cancel");
}

void Reaction::show(int screen)
{
    m_script.then([this, screen] { m_panel->showScreen(screen); });
}

void Reaction::click(const QString &name)
{
    m_script.waitFor("the key " + name, [this, name] {
        QAbstractButton *key = keyInView(name);
        if (key)
            clickSoon(key);
        return key != nullptr;
    });
}

/// And waits for the end of the dialog.
void Reaction::answer(const char *className, const QString &button)
{
    m_script.waitFor("the answer " + button, [className, button] {
        const QWidget *dialog = visibleDialog(className);
        QAbstractButton *key = dialog ? visibleKey(dialog, button) : nullptr;
        if (key)
            clickSoon(key);
        return key != nullptr;
    });
    m_script.waitFor(QString("the end of ") + className,
                     [className] { return !visibleDialog(className); });
}

void Reaction::openPicker()
{
    show(programScreen);
    click("Open G File!");
    m_script.waitFor("the program picker", [] { return visibleDialog("WFileDialog") != nullptr; });
}

void Reaction::open(const QString &name)
{
    openPicker();
    m_script.then(
        [name] { visibleDialog("WFileDialog")->findChild<QLineEdit *>()->setText(name); });
    answer("WFileDialog", "OK");
    // A long one is measured on its way.
    if (name.startsWith("short"))
        m_script.waitFor(name, [this, name] {
            return m_panel->findChild<WMMainWindow *>()->windowTitle().startsWith(name);
        });
}

void Reaction::measure(Stopwatch::Chooser choose, int touches, const Script::Condition &goesOn)
{
    m_script.then([this, choose, touches, goesOn] {
        m_isMeasuring = true;
        m_watch.measure(choose, touches, goesOn);
    });
    m_script.waitFor("the answers to all touches", [this] { return !m_isMeasuring; });
}

/// Null while the bars are being turned to where the key is.
QAbstractButton *Reaction::keyInView(const QString &name)
{
    QAbstractButton *key = visibleKey(m_panel, name);
    if (!key) {
        if (QAbstractButton *more = visibleKey(m_panel, "More"))
            more->click();
    }
    return key;
}
