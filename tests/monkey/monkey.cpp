// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "monkey.h"

#include "filarixtest.h"
#include "heap.h"
#include "look/panelkey.h"
#include "shell/messagebar.h"
#include "shell/panelwindow.h"
#include "stick/stick.h"
#include "wgcodeediter.h"
#include "wmmainwindow.h"

#include <QAbstractButton>
#include <QAbstractEventDispatcher>
#include <QAbstractItemView>
#include <QDir>
#include <QMessageBox>
#include <QPushButton>
#include <QTextBlock>
#include <QToolButton>

#include <unistd.h>

namespace {

// What a loop that nobody serves any more takes at most. The largest program, loaded under the
// sanitizers, is a matter of seconds.
const unsigned hangSeconds = 180;
const int triesToLeave = 100;
const int triesToClose = 40;
const int notes = 20;
// In a hundred actions, those that go on with what somebody does to programs. By touches at random
// alone hardly one is opened in a thousand.
const int programWork = 12;
const qint64 noteEveryMs = 60 * 1000;

struct Key
{
    int key;
    const char *text;
};

const Key editingKeys[] = {
    {Qt::Key_Return, "\r"},   {Qt::Key_Enter, "\r"}, {Qt::Key_Backspace, "\b"},
    {Qt::Key_Delete, "\x7f"}, {Qt::Key_Tab, "\t"},   {Qt::Key_Backtab, ""},
    {Qt::Key_Escape, "\x1b"}, {Qt::Key_Space, " "},  {Qt::Key_Left, ""},
    {Qt::Key_Right, ""},      {Qt::Key_Up, ""},      {Qt::Key_Down, ""},
    {Qt::Key_Home, ""},       {Qt::Key_End, ""},     {Qt::Key_PageUp, ""},
    {Qt::Key_PageDown, ""},   {Qt::Key_F1, ""},      {Qt::Key_F4, ""},
    {Qt::Key_Menu, ""},       {Qt::Key_Insert, ""},
};

const char typed[] = "GMXYZFNST0123456789.-+;,:/\\ abcxyz_'\"$*";
// Their letters, with Control.
const char shortcuts[] = "ACVXZYFSNOPQKDU";

template<typename T, int count>
constexpr int countOf(const T (&)[count])
{
    return count;
}

double residentMegabytes()
{
    const QList<QByteArray> pages =
        FilarixTest::readFile(QLatin1String("/proc/self/statm")).split(' ');
    return pages.value(1).toLongLong() * double(sysconf(_SC_PAGESIZE)) / (1024 * 1024);
}

QWidgetList visibleChildren(const QWidget *parent)
{
    QWidgetList visible;
    const QWidgetList children = parent->findChildren<QWidget *>();
    for (QWidget *child : children) {
        if (child->isVisible() && child->isEnabled() && !child->isWindow()
            && !child->visibleRegion().isEmpty())
            visible.append(child);
    }
    return visible;
}

// The keypads have no meta-objects of their own.
QString nameOf(const QWidget *window)
{
    const QString className = window->findChild<QWidget *>(QLatin1String("key_ok"))
                                  ? QLatin1String("keypad")
                                  : QLatin1String(window->metaObject()->className());
    const QString key =
        window->findChild<QWidget *>(QLatin1String("key_symbols")) ? QLatin1String("characters")
        : window->findChild<QWidget *>(QLatin1String("key_sign"))  ? QLatin1String("numbers")
        : window->findChild<QWidget *>(QLatin1String("key_G"))     ? QLatin1String("G-code")
                                                                   : window->windowTitle();
    return (className + QLatin1Char(' ') + key).trimmed().remove(QRegExp(QLatin1String(" *\\d+")));
}

} // namespace

Monkey::Monkey(const Plan &plan) : m_plan(plan), m_random(plan.seed) {}

void Monkey::start()
{
    // Warnings are counted; what the platform cannot do would drown everything else.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    StrictMessages::install();
    // The import manager has such a connection on purpose.
    StrictMessages::expect(QLatin1String("slot ImportManage::slot_checkUSB"));
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, this,
            &Monkey::act);
    m_clock.start();
}

QStringList Monkey::faults() const
{
    QStringList all = m_faults;
    const QStringList warnings = StrictMessages::unexpected();
    for (const QString &warning : warnings)
        all.append(QLatin1String("warning: ") + warning);
    all.removeDuplicates();
    return all;
}

void Monkey::checkPrograms()
{
    m_witness.look(FilarixTest::programDir());
    const QStringList lost = m_witness.lost(FilarixTest::programDir(),
                                            FilarixTest::home() + QLatin1String("/hmi/history"));
    for (const QString &program : lost)
        fail(program);
}

QString Monkey::report() const
{
    QStringList seen;
    for (auto dialog = m_dialogs.begin(); dialog != m_dialogs.end(); ++dialog)
        seen.append(QString::fromLatin1("%1 %2").arg(dialog.value(), 6).arg(dialog.key()));
    return QString::fromLatin1("%1 actions in %2 s, %3 different programs stored, dialogs:\n%4")
        .arg(m_actions)
        .arg(m_clock.elapsed() / 1000)
        .arg(m_witness.count())
        .arg(seen.join(QLatin1Char('\n')));
}

// The distributions of the standard library differ from one to the next; this gives the same
// everywhere.
int Monkey::random(int count)
{
    return int(m_random() % unsigned(count));
}

bool Monkey::chance(int percent)
{
    return random(100) < percent;
}

/// Half of the touches go to something to be touched, the others anywhere on the panel.
QPoint Monkey::randomPoint()
{
    QWidget *window = front();
    const QWidgetList targets = window && chance(50) ? visibleChildren(window) : QWidgetList();
    const QWidget *target = targets.isEmpty() ? m_panel : targets.at(random(targets.size()));
    return target->mapToGlobal(QPoint(random(target->width()), random(target->height())));
}

QWidget *Monkey::front() const
{
    if (QWidget *popup = QApplication::activePopupWidget())
        return popup;
    if (QWidget *modal = QApplication::activeModalWidget())
        return modal;
    QWidget *active = QApplication::activeWindow();
    return active && active->isVisible() ? active : m_panel;
}

// Called from within whichever loop runs: it may hand over events, and nothing more.
void Monkey::act()
{
    if (!m_panel) {
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget *window : windows) {
            if (window->isVisible() && qobject_cast<PanelWindow *>(window))
                m_panel = static_cast<PanelWindow *>(window);
        }
        if (!m_panel)
            return;
        connect(m_panel, &QObject::destroyed, this, [this] { m_panel = nullptr; });
        writePrograms();
    }
    QAbstractEventDispatcher::instance()->wakeUp();
    if (!Hand::isIdle())
        return;
    alarm(hangSeconds);
    m_witness.look(FilarixTest::programDir());
    noteDialog();
    if (Hand::activate(front()))
        return;
    if (!m_steps.isEmpty())
        m_steps.takeFirst()();
    else if (!isOver())
        choose();
    else
        leave();
}

/// Beside the samples some that load in pieces, so that a load is often what an open leads to.
void Monkey::writePrograms()
{
    for (int lines : {700, 1500, 3000, 6000}) {
        QByteArray program;
        for (int i = 0; i < lines; ++i)
            program += "N" + QByteArray::number(i) + " G01 X" + QByteArray::number(i % 90) + "\n";
        FilarixTest::writeFile(FilarixTest::programDir() + QLatin1String("/a")
                                   + QString::number(lines) + QLatin1String(".cnc"),
                               program);
    }
}

bool Monkey::isOver() const
{
    return m_plan.minutes > 0 ? m_clock.elapsed() >= m_plan.minutes * qint64(60 * 1000)
                              : m_actions >= m_plan.actions;
}

void Monkey::choose()
{
    noteMemory();
    ++m_actions;
    if (chance(programWork))
        return workOnPrograms();
    const int dice = random(100);
    const Hand::Tool tool = chance(40)   ? Hand::Finger
                            : chance(90) ? Hand::LeftButton
                            : chance(50) ? Hand::RightButton
                                         : Hand::TwoFingers;
    if (dice < 60)
        chooseTouch(tool);
    else if (dice < 72)
        chooseDrag(tool);
    else if (dice < 96)
        chooseKey();
    else if (dice < 97)
        Hand::wheel(randomPoint(), chance(50) ? 120 : -120);
    else if (dice < 98)
        chance(50) ? changeStick() : bringProgram();
    else if (QApplication::activeModalWidget() && !Hand::isTurned())
        Hand::close(QApplication::activeModalWidget());
}

void Monkey::then(const Step &step)
{
    m_steps.append(step);
}

void Monkey::wait(int turns)
{
    while (turns-- > 0)
        then([] {});
}

void Monkey::tap(const QPoint &point, Hand::Tool tool)
{
    then([this, point, tool] { m_hand.press(point, tool); });
    then([this] { m_hand.release(); });
}

// Where the target is when its turn comes.
void Monkey::tap(QWidget *target)
{
    const QPointer<QWidget> there(target);
    then([this, there] {
        if (there && there->isVisible())
            m_hand.press(there->mapToGlobal(there->rect().center()), Hand::LeftButton);
    });
    then([this] { m_hand.release(); });
}

// One touch on the way of somebody who opens, saves and removes programs.
void Monkey::workOnPrograms()
{
    QWidget *dialog = QApplication::activeModalWidget();
    if (!dialog)
        return touchFileKey();
    if (dialog->inherits("WFileDialog"))
        return touchPicker(dialog);
    if (!qobject_cast<QMessageBox *>(dialog) && !dialog->inherits("QuestionDialog"))
        return;
    const QList<QAbstractButton *> answers = dialog->findChildren<QAbstractButton *>();
    if (!answers.isEmpty())
        tap(answers.at(random(answers.size())));
}

void Monkey::touchFileKey()
{
    WMMainWindow *window = m_panel->findChild<WMMainWindow *>();
    if (!window->isVisible())
        return touchTab(tabs().first());
    const char *const names[] = {"Open", "Open", "Save", "SaveAs", "RM"};
    const QString wanted =
        QCoreApplication::translate("WMMainWindow", names[random(countOf(names))]);
    const QString more = QCoreApplication::translate("BarPager", "More");
    QWidget *other = nullptr;
    const QList<QToolButton *> keys = window->findChildren<QToolButton *>();
    for (QToolButton *key : keys) {
        if (key->isVisible() && key->text() == wanted)
            return tap(key);
        if (key->isVisible() && key->text() == more)
            other = key;
    }
    // It may be on the bar's other page.
    if (other)
        tap(other);
}

// A name, and OK; at times a name that is typed.
void Monkey::touchPicker(QWidget *picker)
{
    const QAbstractItemView *list = picker->findChild<QAbstractItemView *>();
    const int rows = list && list->model() ? list->model()->rowCount(list->rootIndex()) : 0;
    if (rows > 0 && chance(80)) {
        const QModelIndex row = list->model()->index(random(rows), 0, list->rootIndex());
        tap(list->viewport()->mapToGlobal(list->visualRect(row).center()), Hand::LeftButton);
    } else {
        const QString letter(QChar(ushort('a' + random(4))));
        typeKey(letter.at(0).toUpper().unicode(), Qt::NoModifier, letter);
    }
    tap(picker->findChild<QPushButton *>());
}

// On a small panel the tabs are behind a key.
void Monkey::touchTab(QWidget *tab)
{
    if (!tab->isVisible())
        tap(m_panel->findChild<PanelKey *>(QLatin1String("menuKey")));
    wait(5);
    tap(tab);
}

QList<PanelKey *> Monkey::tabs() const
{
    return m_panel->findChildren<PanelKey *>(QLatin1String("tab"));
}

// Once, twice in the same place, or held.
void Monkey::chooseTouch(Hand::Tool tool)
{
    const QPoint point = randomPoint();
    const int dice = random(100);
    if (dice < 10) {
        then([this, point, tool] { m_hand.press(point, tool); });
        wait(3 + random(40));
        then([this] { m_hand.release(); });
        return;
    }
    tap(point, tool);
    if (dice < 20)
        tap(point, tool);
}

void Monkey::chooseDrag(Hand::Tool tool)
{
    const QPoint from = randomPoint();
    const QPoint to = randomPoint();
    const int moves = 1 + random(8);
    then([this, from, tool] { m_hand.press(from, tool); });
    for (int i = 1; i <= moves; ++i)
        then([this, from, to, i, moves] { m_hand.move(from + (to - from) * i / moves); });
    then([this] { m_hand.release(); });
}

void Monkey::chooseKey()
{
    const int dice = random(100);
    if (dice < 50) {
        const QString text(QLatin1Char(typed[random(int(sizeof typed) - 1)]));
        typeKey(text.at(0).toUpper().unicode(), Qt::NoModifier, text);
    } else if (dice < 54) {
        const QString texts[] = {QString::fromUtf8("\u00e9"), QString::fromUtf8("\u7ebf"),
                                 QString::fromUtf8("\U0001f9f5")};
        typeKey(0, Qt::NoModifier, texts[random(countOf(texts))]);
    } else if (dice < 62) {
        const char letter = shortcuts[random(int(sizeof shortcuts) - 1)];
        typeKey(letter, Qt::ControlModifier, QString(QLatin1Char(char(letter - 'A' + 1))));
    } else {
        const Key key = editingKeys[random(countOf(editingKeys))];
        const Qt::KeyboardModifiers modifiers = chance(10)  ? Qt::ShiftModifier
                                                : chance(5) ? Qt::ControlModifier
                                                            : Qt::NoModifier;
        typeKey(key.key, modifiers, QLatin1String(key.text));
    }
}

// One key in twenty is held until it repeats.
void Monkey::typeKey(int key, Qt::KeyboardModifiers modifiers, const QString &text)
{
    then([=] { Hand::key(QEvent::KeyPress, key, modifiers, text); });
    for (int repeats = chance(5) ? random(12) : 0; repeats > 0; --repeats)
        then([=] { Hand::key(QEvent::KeyPress, key, modifiers, text, true); });
    then([=] { Hand::key(QEvent::KeyRelease, key, modifiers, text); });
}

// Not by the panel's keys: at the socket, at any moment.
void Monkey::changeStick()
{
    const QString folder = Stick::mountPoint() + QLatin1String(".stick");
    const bool isIn = QFileInfo(Stick::marker()).exists();
    if (isIn) {
        QFile::remove(Stick::marker());
        if (QFileInfo(Stick::mountPoint()).isSymLink())
            QFile::remove(Stick::mountPoint());
        return;
    }
    if (chance(20))
        FilarixTest::writeFile(folder + QLatin1String("/a $(name).cnc"), "G1 X1\n");
    QDir().rmdir(Stick::mountPoint());
    QFile::link(folder, Stick::mountPoint());
    FilarixTest::writeFile(Stick::marker(), QByteArray());
}

// Somebody else brings a program, over the network, say: what the panel then covers or removes has
// to be in the history, however soon that is.
void Monkey::bringProgram()
{
    const QString path =
        FilarixTest::programDir() + QString::fromLatin1("/brought-%1.cnc").arg(random(4));
    if (!QFileInfo(path).exists())
        FilarixTest::writeFile(path, "G01 X" + QByteArray::number(m_actions) + "\n");
}

void Monkey::noteDialog()
{
    QWidget *dialog = QApplication::activePopupWidget() ? QApplication::activePopupWidget()
                                                        : QApplication::activeModalWidget();
    if (dialog && dialog != m_dialog)
        ++m_dialogs[nameOf(dialog)];
    m_dialog = dialog;
}

void Monkey::noteMemory()
{
    const bool byTime = m_plan.minutes > 0;
    const qint64 position = byTime ? m_clock.elapsed() : m_actions;
    if (position < m_nextNote)
        return;
    m_nextNote += byTime ? int(noteEveryMs) : qMax(1, m_plan.actions / notes);
    const WGCodeEditer *editor = m_panel->findChild<WGCodeEditer *>();
    std::printf("%6lld s  %8d actions  %7.1f MB resident  %6.1f MB of heap in use  %7d lines  %5d "
                "widgets\n",
                m_clock.elapsed() / 1000, m_actions, residentMegabytes(),
                double(Heap::used()) / (1024 * 1024), editor ? editor->blockCount() : 0,
                QApplication::allWidgets().size());
    std::fflush(stdout);
}

void Monkey::leave()
{
    if (!m_leaving) {
        m_leaving = true;
        m_nextNote = 0;
        noteMemory();
        // What was held is released by now.
        wait(20);
        return;
    }
    if (!leaveDialog())
        checkScreens();
}

// By the keys that an operator sees, or else by Escape. False when none is there any more.
bool Monkey::leaveDialog()
{
    QWidget *dialog = QApplication::activePopupWidget();
    if (!dialog)
        dialog = QApplication::activeModalWidget();
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (!dialog && window->isVisible() && window != m_panel
            && window->windowType() == Qt::Dialog)
            dialog = window;
    }
    if (!dialog)
        return false;
    if (++m_triesToLeave > triesToLeave) {
        fail(QLatin1String("cannot be left: ") + nameOf(dialog));
        std::printf("monkey: %s\n", qPrintable(faults().join(QLatin1Char('\n'))));
        std::fflush(stdout);
        std::_Exit(1);
    }
    QAbstractButton *way = nullptr;
    if (QMessageBox *box = qobject_cast<QMessageBox *>(dialog))
        way = box->button(QMessageBox::Discard);
    if (!way)
        way = dialog->findChild<QAbstractButton *>(QLatin1String("key_cancel"));
    // Without a mode of its own it leaves the keyboard to the panel, and stays for its own key.
    const QList<QAbstractButton *> buttons = dialog->findChildren<QAbstractButton *>();
    for (QAbstractButton *button : buttons) {
        if (dialog->inherits("WFindDialog")
            && button->text() == QCoreApplication::translate("WFindDialog", "Close"))
            way = button;
    }
    if (way && way->isVisible() && chance(50))
        tap(way);
    else
        typeKey(Qt::Key_Escape, Qt::NoModifier, QLatin1String("\x1b"));
    wait(5);
    return true;
}

// A stick that the panel has only noticed now brings a question about its names; what it kept from
// an answer is tried again once it is left.
bool Monkey::isInterrupted()
{
    return QApplication::activeModalWidget();
}

// One screen after the other comes up at a touch of its tab.
void Monkey::checkScreens()
{
    if (m_triesToClose > 0)
        return closePanel();
    const QList<PanelKey *> all = tabs();
    if (m_checkedScreens == all.size())
        return checkTyping();
    // From the last to the first, which is the program's.
    PanelKey *tab = all.at(all.size() - 1 - m_checkedScreens++);
    touchTab(tab);
    wait(5);
    then([this, tab] {
        if (isInterrupted())
            --m_checkedScreens;
        else if (!tab->isChecked())
            fail(QLatin1String("no answer from the tab ") + tab->text());
    });
}

// Where a finger's press opens a dialog its release stays without, and the toolkit takes the button
// for pressed until the next touch. So these come after some.
void Monkey::checkGrabs()
{
    if (QApplication::mouseButtons() != Qt::NoButton)
        fail(QLatin1String("a mouse button is still down"));
    if (QWidget *grabber = QWidget::mouseGrabber())
        fail(QLatin1String("the mouse is still grabbed by ") + nameOf(grabber));
    if (QWidget *grabber = QWidget::keyboardGrabber())
        fail(QLatin1String("the keyboard is still grabbed by ") + nameOf(grabber));
}

void Monkey::checkTyping()
{
    ++m_triesToClose;
    checkGrabs();
    WGCodeEditer *editor = m_panel->findChild<WGCodeEditer *>();
    const int revision = editor->document()->revision();
    tap(editor->viewport());
    wait(5);
    typeKey(Qt::Key_G, Qt::NoModifier, QLatin1String("G"));
    wait(5);
    then([this, editor, revision] {
        if (isInterrupted())
            --m_triesToClose;
        else if (editor->document()->revision() == revision)
            fail(QLatin1String("no answer from the editor"));
    });
}

// A download that runs has to end first; the panel says so and stays.
void Monkey::closePanel()
{
    if (++m_triesToClose > triesToClose) {
        fail(QLatin1String("the panel does not end"));
        QCoreApplication::quit();
        return;
    }
    Hand::close(m_panel);
    wait(100);
}

void Monkey::fail(const QString &fault)
{
    m_faults.append(fault);
}
