// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "checkbox.h"
#include "combobox.h"
#include "conneditor.h"
#include "dataeditor.h"
#include "doublespinbox.h"
#include "filarixtest.h"
#include "filedialog.h"
#include "groupbox.h"
#include "heap.h"
#include "importmanage.h"
#include "messagebox.h"
#include "mjline.h"
#include "scrollbar.h"
#include "spinbox.h"
#include "tlistwidget.h"
#include "wcopydialog.h"
#include "wfiledialog.h"
#include "wgcodeediter.h"
#include "wmmainwindow.h"

#include <QFile>
#include <QTimer>
#include <QToolButton>

#include <functional>
#include <limits>

namespace {

// What a string or two of the toolkit take that happen to be longer; the smallest block for each of
// twenty that come and go is more.
const int unsettled = 256;

typedef void (*Life)(bool shown);

void live(QWidget &widget, bool shown)
{
    if (!shown)
        return;
    widget.show();
    QCoreApplication::processEvents();
    widget.hide();
}

/// Leads a life, and takes in what the window system has to say of it: unread, that waits on the
/// heap.
void lead(Life life, bool shown)
{
    life(shown);
    QCoreApplication::processEvents();
}

QList<QWidget *> unplacedButtons()
{
    QList<QWidget *> buttons;
    Q_FOREACH (QWidget *widget, QApplication::topLevelWidgets()) {
        if (qobject_cast<QToolButton *>(widget))
            buttons << widget;
    }
    return buttons;
}

void window(bool shown)
{
    {
        WMMainWindow window(nullptr, 90);
        window.findChild<WGCodeEditer *>()->readGCode(QLatin1String("G01 X1\nM2"));
        live(window, shown);
    }
    // They are the host's: see unplacedButtonsAreAllThatAWindowLeaves().
    qDeleteAll(unplacedButtons());
}

void editor(bool shown)
{
    WGCodeEditer editor(nullptr);
    editor.findAndReplace();
    editor.addErrorCode(0, QLatin1String("G01"));
    editor.highlightErrorCode();
    live(editor, shown);
}

void longProgram(bool shown)
{
    WGCodeEditer editor(nullptr);
    live(editor, shown);
    editor.readGCode(QString::fromLatin1("G01 X1\n").repeated(shown ? 5000 : 500));
}

void list(bool shown)
{
    QStringList title;
    for (int i = 0; i < 9; ++i)
        title << QString::number(i);
    TListWidget list(title, nullptr);
    for (int i = 1; i < 6; ++i) {
        QStringList row = QStringList() << QLatin1String("MJ") << QString::number(i);
        for (int field = 2; field < 24; ++field)
            row << QLatin1String("P:1");
        list.addWidget(row, false, false);
    }
    QStringList none;
    list.addWidget(none, true, true);
    list.removeWidget(3, true);
    live(list, shown);
}

void connections(bool shown)
{
    ConnEditor dialog(FilarixTest::home() + QLatin1String("/connections.ini"), nullptr);
    dialog.init_list();
    live(dialog, shown);
}

void pathBrowser(bool shown)
{
    FileDialog dialog(QDir::AllEntries, QLatin1String("Path"), FilarixTest::home(), nullptr,
                      Qt::WindowFlags());
    dialog.getDirList();
    live(dialog, shown);
}

void importManager(bool shown)
{
    ImportManage dialog(nullptr);
    dialog.init();
    live(dialog, shown);
}

void programPicker(bool shown)
{
    WFileDialog dialog(nullptr);
    live(dialog, shown);
}

void lineCopy(bool shown)
{
    WCopyDialog dialog(nullptr);
    dialog.setRange(1, 9);
    live(dialog, shown);
}

void messageBox(bool)
{
    QDialog parent;
    QTimer::singleShot(0, &parent, SLOT(reject()));
    MessageBox::warning(&parent, QString(), QLatin1String("text"), QMessageBox::Yes,
                        QMessageBox::NoButton);
}

void controls(bool shown)
{
    QWidget screen;
    new CheckBox(&screen);
    (new ComboBox(&screen))->addItem(QLatin1String("one"));
    new DoubleSpinBox(&screen);
    new GroupBox(&screen);
    new ScrollBar(Qt::Vertical, &screen);
    new SpinBox(&screen);
    live(screen, shown);
}

} // namespace

Q_DECLARE_METATYPE(Life)

/// Hosts make screens anew for each job: what comes and goes some thousand times leaves nothing.
class TestMemory : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Heap::keepNoPixmaps();
        TestCompat::keepNoInputContexts();
    }
    void init();
    void whatGoesLeavesNothing_data();
    void whatGoesLeavesNothing();
    void unplacedButtonsAreAllThatAWindowLeaves();

private:
    static qint64 used();
    static qint64 growth(const std::function<void()> &lives);
};

void TestMemory::init()
{
    FilarixTest::init();
    writeFile(home() + "/connections.ini", "[General]\nconnect%20count=3\n");
}

/// What the handler of messages remembers is no leak of the library's.
qint64 TestMemory::used()
{
    if (!StrictMessages::unexpected().isEmpty())
        return -1;
    StrictMessages::reset();
    StrictMessages::expect(QLatin1String("Parentheses expected, slot ImportManage::slot_checkUSB"));
    return Heap::settled();
}

/// By how much some lives make the heap grow, at the least of a few tries: what leaks does so each
/// time, while the toolkit's tables and caches grow now and then.
qint64 TestMemory::growth(const std::function<void()> &lives)
{
    const int tries = 4;
    qint64 least = std::numeric_limits<qint64>::max();
    for (int i = 0; i < tries && least >= unsettled && !QTest::currentTestFailed(); ++i) {
        const qint64 before = used();
        lives();
        const qint64 after = used();
        if (before >= 0 && after >= 0)
            least = qMin(least, after - before);
    }
    return least;
}

void TestMemory::whatGoesLeavesNothing_data()
{
    QTest::addColumn<Life>("life");
    QTest::addColumn<int>("lives");
    QTest::newRow("window") << Life(window) << 500;
    QTest::newRow("editor") << Life(editor) << 300;
    QTest::newRow("long program") << Life(longProgram) << 100;
    QTest::newRow("list") << Life(list) << 200;
    QTest::newRow("connections") << Life(connections) << 200;
    QTest::newRow("path browser") << Life(pathBrowser) << 300;
    QTest::newRow("import manager") << Life(importManager) << 300;
    QTest::newRow("program picker") << Life(programPicker) << 300;
    QTest::newRow("line copy") << Life(lineCopy) << 300;
    QTest::newRow("message box") << Life(messageBox) << 300;
    QTest::newRow("controls") << Life(controls) << 300;
}

void TestMemory::whatGoesLeavesNothing()
{
    QFETCH(Life, life);
    QFETCH(int, lives);
    StrictMessages::expect(QLatin1String("Parentheses expected, slot ImportManage::slot_checkUSB"));
    // The first ones fill the caches of the toolkit, of fonts and styles above all.
    for (int i = 0; i < 30; ++i)
        lead(life, i % 3 == 0);

    const int count = scaled(lives, 20);
    const qint64 hidden = growth([=] {
        for (int i = 0; i < count; ++i)
            lead(life, false);
    });
    QVERIFY2(hidden < unsettled, qPrintable(QString::number(hidden)));
    const qint64 shown = growth([=] {
        for (int i = 0; i < 20; ++i)
            lead(life, true);
    });
    QVERIFY2(shown < unsettled, qPrintable(QString::number(shown)));
}

void TestMemory::unplacedButtonsAreAllThatAWindowLeaves()
{
    window(false);
    const QList<QWidget *> before = QApplication::allWidgets();
    const int windows = scaled(100, 20);
    const qint64 left = growth([&] {
        for (int i = 1; i <= windows; ++i) {
            {
                const WMMainWindow window(nullptr, 0);
            }
            QCOMPARE(unplacedButtons().size(), 8 * i);
            QCOMPARE(QApplication::allWidgets().size(), before.size() + 8 * i);
        }
        Q_FOREACH (const QWidget *button, unplacedButtons())
            QVERIFY(!button->isVisible());
        qDeleteAll(unplacedButtons());
        QCOMPARE(QApplication::allWidgets().size(), before.size());
    });
    QVERIFY2(left < unsettled, qPrintable(QString::number(left)));
}

FILARIX_TEST_MAIN(TestMemory)
#include "tst_memory.moc"
