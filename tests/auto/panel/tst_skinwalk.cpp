// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Holds SkinCheck, SkinExceptions and ToolkitSpy, and by them PanelProgram with all its screens and
// dialogs: whether all is of one piece.

#include "contrast.h"
#include "filarixtest.h"
#include "look/look.h"
#include "look/measures.h"
#include "look/panelkey.h"
#include "look/panelstyle.h"
#include "look/taparea.h"
#include "panelprogram.h"
#include "shell/panelwindow.h"
#include "skincheck.h"
#include "stick/devicewatch.h"
#include "stick/stick.h"
#include "toolkitspy.h"
#include "tour.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPainter>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStyleFactory>
#include <QTabBar>
#include <QVBoxLayout>

/// Walks all screens and computes what an eye might overlook.
class TestSkinWalk : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void smallKeysAreFound();
    void lowTextsThatAreTouchedAreFound();
    void crookedKeysAreFound();
    void paleTextsAreFound_data();
    void paleTextsAreFound();
    void theToolkitsControlsAreFound_data();
    void theToolkitsControlsAreFound();
    void theToolkitsIconsAreFound();
    void linesBelowLettersAreFound();
    void theSpyChangesNothing();
    void exceptionsHaveToBeMet();
    void allIsOfOnePiece_data();
    void allIsOfOnePiece();
};

namespace {

/// Where a stick's folder has to be, for its files to count as the stick's.
const char stickFolder[] = "/mnt/Storage.stick";
const double glareContrast = 7;

QStringList texts(const QList<SkinFault> &faults)
{
    QStringList found;
    for (const SkinFault &fault : faults)
        found.append(SkinCheck::nameOf(fault.widget) + QLatin1String(": ") + fault.text);
    return found;
}

bool isMentioned(const QList<SkinFault> &faults, const QString &words)
{
    return !texts(faults).filter(words).isEmpty();
}

Options optionsFor(const QSize &size, const QString &look)
{
    Options options;
    options.size = size;
    options.rotation = size.width() < size.height() ? 90 : 0;
    options.look = look;
    options.language = QLatin1String("en");
    options.stickDir = QLatin1String(stickFolder);
    return options;
}

/// The toolkit's own style, with nothing of the panel's.
class PlainStyle : public QProxyStyle
{
public:
    PlainStyle() : QProxyStyle(QLatin1String("Fusion")) {}
};

/// Flat, as a style of the panel's own would have it.
class FlatStyle : public PlainStyle
{
public:
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        if (element == PE_FrameFocusRect)
            return;
        if (element != PE_PanelButtonCommand)
            return PlainStyle::drawPrimitive(element, option, painter, widget);
        // Two colours: taken for the toolkit's, it would not be plain.
        painter->fillRect(option->rect, QColor(0x9f, 0xb0, 0xc2));
        painter->fillRect(option->rect.adjusted(1, 1, -1, -1), QColor(0x26, 0x31, 0x3c));
    }
    void drawItemText(QPainter *painter, const QRect &rect, int flags, const QPalette &palette,
                      bool enabled, const QString &text, QPalette::ColorRole role) const override
    {
        const int plain = (flags & ~Qt::TextShowMnemonic) | Qt::TextHideMnemonic;
        PlainStyle::drawItemText(painter, rect, plain, palette, enabled, text, role);
    }
};

/// A style for the windows of one test, with its spy.
class StyleInUse
{
public:
    explicit StyleInUse(QProxyStyle *style) : spy(new ToolkitSpy(style))
    {
        QApplication::setStyle(style);
    }
    ~StyleInUse() { PanelProgram::setUpStyle(); }

    ToolkitSpy *spy;
};

/// What can be looked at now: nothing behind a dialog that waits.
QWidgetList windowsInSight(QWidget *panel)
{
    if (QWidget *modal = QApplication::activeModalWidget())
        return {modal};
    QWidgetList windows = {panel};
    const QWidgetList all = QApplication::topLevelWidgets();
    for (QWidget *window : all) {
        if (window->isVisible() && window != panel && !window->size().isEmpty())
            windows.append(window);
    }
    return windows;
}

} // namespace

void TestSkinWalk::initTestCase()
{
    PanelProgram::setUpStyle();
    Look::use(Look::Light);
}

void TestSkinWalk::cleanup()
{
    QFile::remove(Stick::marker());
    emptyFolder(stickFolder);
    FilarixTest::cleanup();
}

void TestSkinWalk::smallKeysAreFound()
{
    Measures::use(96);
    QWidget window;
    window.resize(400, 300);
    PanelKey *key = new PanelKey("key", &window);
    key->setGeometry(0, 0, 60, 36);
    PanelKey *stop = new PanelKey("Stop", &window);
    stop->setGeometry(100, 0, 60, 60);
    QListWidget *list = new QListWidget(&window);
    list->setGeometry(0, 100, 200, 100);
    list->addItem("row");
    list->item(0)->setSizeHint(QSize(100, 36));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(texts(SkinCheck::touch({&window})), QStringList());

    key->resize(60, 33);
    stop->resize(60, 50);
    list->item(0)->setSizeHint(QSize(100, 30));
    list->doItemsLayout();
    const QList<SkinFault> faults = SkinCheck::touch({&window});
    QCOMPARE(faults.size(), 3);
    QVERIFY(isMentioned(faults, "PanelKey \"key\" in QWidget: 15.9x8.7 mm"));
    QVERIFY(isMentioned(faults, "\"Stop\" in QWidget: 15.9x13.2 mm"));
    QVERIFY(isMentioned(faults, "QListWidget in QWidget: rows of"));
    // The same pixels are less on a finer display.
    key->resize(60, 36);
    Measures::use(140);
    QVERIFY(isMentioned(SkinCheck::touch({&window}), "\"key\""));
    Measures::use(96);
}

void TestSkinWalk::lowTextsThatAreTouchedAreFound()
{
    QWidget window;
    window.resize(400, 300);
    TapArea *line = new TapArea(&window);
    line->setGeometry(0, 0, 400, 20);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(SkinCheck::touch({&window}).size(), 1);
    // What lets presses through to another area is as large as that.
    TapArea *block = new TapArea(&window);
    block->setGeometry(0, 100, 400, 50);
    line->setParent(block);
    block->show();
    line->show();
    QCOMPARE(SkinCheck::touch({&window}).size(), 1);
    line->setAttribute(Qt::WA_TransparentForMouseEvents);
    QCOMPARE(texts(SkinCheck::touch({&window})), QStringList());
    line->setParent(&window);
    line->show();
    QCOMPARE(SkinCheck::touch({&window}).size(), 1);
}

void TestSkinWalk::crookedKeysAreFound()
{
    QWidget window;
    window.resize(400, 300);
    QList<PanelKey *> keys;
    for (int i = 0; i < 4; ++i) {
        keys.append(new PanelKey(QString::number(i), &window));
        keys.last()->setGeometry(i % 2 * 88, i / 2 * 48, 80, 44);
    }
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(texts(SkinCheck::lines({&window})), QStringList());

    keys.at(1)->move(88, 2);
    QVERIFY(isMentioned(SkinCheck::lines({&window}), "almost in a row"));
    keys.at(1)->move(88, 0);
    keys.at(2)->resize(81, 44);
    QVERIFY(isMentioned(SkinCheck::lines({&window}), "almost in a column"));
    keys.at(2)->resize(80, 44);
    keys.at(2)->move(0, 50);
    keys.at(3)->move(88, 50);
    const QList<SkinFault> faults = SkinCheck::lines({&window});
    QCOMPARE(faults.size(), 2);
    QVERIFY(isMentioned(faults, "6 pixels to the next key below"));
}

void TestSkinWalk::paleTextsAreFound_data()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind : {"label", "button", "tool", "field", "item", "editor"})
        QTest::newRow(kind) << QString::fromLatin1(kind);
}

void TestSkinWalk::paleTextsAreFound()
{
    QFETCH(QString, kind);
    QWidget window;
    QVBoxLayout *column = new QVBoxLayout(&window);
    QWidget *widget = nullptr;
    const QString words = QLatin1String("Tension 4.5 N");
    if (kind == "label")
        widget = new QLabel(words);
    if (kind == "button")
        widget = new QPushButton(words);
    if (kind == "tool")
        widget = new PanelKey(words);
    if (kind == "field")
        widget = new QLineEdit(words);
    if (kind == "editor")
        widget = new QPlainTextEdit(words);
    if (kind == "item") {
        QListWidget *list = new QListWidget;
        list->addItem(words);
        widget = list;
    }
    column->addWidget(widget);
    const auto paint = [widget](const QColor &ink) {
        QPalette palette = widget->palette();
        for (QPalette::ColorRole role : {QPalette::Window, QPalette::Base, QPalette::Button})
            palette.setColor(role, Qt::white);
        for (QPalette::ColorRole role :
             {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
            palette.setColor(role, ink);
        widget->setPalette(palette);
    };
    window.resize(300, 120);
    paint(QColor(0x60, 0x60, 0x60)); // 6.3 on white
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(texts(SkinCheck::contrast({&window}, Contrast::textContrast)), QStringList());
    QCOMPARE(SkinCheck::contrast({&window}, glareContrast).size(), 1);
    paint(QColor(0x88, 0x88, 0x88)); // 3.5
    const QList<SkinFault> faults = SkinCheck::contrast({&window}, Contrast::textContrast);
    QCOMPARE(faults.size(), 1);
    QVERIFY2(faults.first().text.contains("for \"Tension"), qPrintable(faults.first().text));
    // What is switched off says so.
    widget->setEnabled(false);
    QPalette off = widget->palette();
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        off.setColor(QPalette::Disabled, role, QColor(0x88, 0x88, 0x88));
    for (QPalette::ColorRole role : {QPalette::Window, QPalette::Base, QPalette::Button})
        off.setColor(QPalette::Disabled, role, Qt::white);
    widget->setPalette(off);
    QCOMPARE(texts(SkinCheck::contrast({&window}, Contrast::textContrast)), QStringList());
}

void TestSkinWalk::theToolkitsControlsAreFound_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("found");
    QTest::newRow("button") << "QPushButton"
                            << "button bevel";
    QTest::newRow("tool button") << "QToolButton"
                                 << "button bevel";
    QTest::newRow("field") << "QLineEdit"
                           << "field";
    QTest::newRow("check box") << "QCheckBox"
                               << "check box";
    QTest::newRow("scroll bar") << "QScrollBar"
                                << "scroll bar";
    QTest::newRow("progress") << "QProgressBar"
                              << "progress bar";
    QTest::newRow("tabs") << "QTabBar"
                          << "tab";
    QTest::newRow("group") << "QGroupBox"
                           << "frame of a group";
}

void TestSkinWalk::theToolkitsControlsAreFound()
{
    QFETCH(QString, kind);
    QFETCH(QString, found);
    const StyleInUse style(new PlainStyle);
    QWidget window;
    QVBoxLayout *column = new QVBoxLayout(&window);
    QWidget *widget = nullptr;
    if (kind == "QPushButton")
        widget = new QPushButton("OK");
    if (kind == "QToolButton")
        widget = new QToolButton;
    if (kind == "QLineEdit")
        widget = new QLineEdit;
    if (kind == "QCheckBox")
        widget = new QCheckBox("on");
    if (kind == "QScrollBar")
        widget = new QScrollBar;
    if (kind == "QProgressBar") {
        widget = new QProgressBar;
        static_cast<QProgressBar *>(widget)->setValue(50);
    }
    if (kind == "QTabBar") {
        QTabBar *tabs = new QTabBar;
        tabs->addTab("one");
        tabs->addTab("two");
        widget = tabs;
    }
    if (kind == "QGroupBox")
        widget = new QGroupBox("group");
    column->addWidget(widget);
    window.resize(200, 120);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const QList<SkinFault> faults = SkinCheck::toolkit({&window}, style.spy);
    QVERIFY2(isMentioned(faults, kind + QLatin1String(" ")), qPrintable(texts(faults).join('\n')));
    QVERIFY2(isMentioned(faults, ": " + found), qPrintable(texts(faults).join('\n')));
}

void TestSkinWalk::theToolkitsIconsAreFound()
{
    const StyleInUse style(new PlainStyle);
    QMessageBox box(QMessageBox::Warning, QString(), "text", QMessageBox::Yes | QMessageBox::No);
    QPushButton *yes = qobject_cast<QPushButton *>(box.button(QMessageBox::Yes));
    yes->setIcon(box.style()->standardIcon(QStyle::SP_DialogYesButton));
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    QList<SkinFault> faults = SkinCheck::toolkit({&box}, style.spy);
    QVERIFY(isMentioned(faults, "QLabel qt_msgboxex_icon_label"));
    QCOMPARE(texts(faults).filter("desktop icon").size(), 2);
    QPixmap own(32, 32);
    own.fill(Qt::red);
    box.setIconPixmap(own);
    yes->setIcon(QIcon());
    faults = SkinCheck::toolkit({&box}, style.spy);
    QCOMPARE(texts(faults).filter("desktop icon"), QStringList());
}

void TestSkinWalk::linesBelowLettersAreFound()
{
    for (bool isFlat : {false, true}) {
        const StyleInUse style(isFlat ? new FlatStyle : new PlainStyle);
        QWidget window;
        QVBoxLayout *column = new QVBoxLayout(&window);
        QPushButton *key = new QPushButton("&Save");
        column->addWidget(key);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        key->setFocus();
        const QList<SkinFault> faults = SkinCheck::toolkit({&window}, style.spy);
        QCOMPARE(isMentioned(faults, "line below a letter of \"&Save\""), !isFlat);
        QCOMPARE(isMentioned(faults, "button bevel"), !isFlat);
        if (isFlat)
            QCOMPARE(texts(faults), QStringList());
    }
}

void TestSkinWalk::theSpyChangesNothing()
{
    QWidget window;
    QVBoxLayout *column = new QVBoxLayout(&window);
    QPushButton *chosen = new QPushButton("chosen");
    chosen->setCheckable(true);
    chosen->setChecked(true);
    column->addWidget(chosen);
    column->addWidget(new QCheckBox("box"));
    column->addWidget(new QLineEdit("field"));
    QProgressBar *bar = new QProgressBar;
    bar->setValue(30);
    column->addWidget(bar);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const QImage without = window.grab().toImage();
    const StyleInUse style(new PanelStyle);
    QCoreApplication::processEvents();
    QCOMPARE(window.grab().toImage(), without);
    style.spy->start();
    QCOMPARE(window.grab().toImage(), without);
    style.spy->stop();
}

void TestSkinWalk::exceptionsHaveToBeMet()
{
    const QString path = home() + "/exceptions.txt";
    writeFile(path, "# comment\n"
                    "touch     *              QLabel   -       a label is no key\n"
                    "touch     dark           QWidget  -       never met in the light\n"
                    "contrast  480x272_light  shade    3.1     it is nearly gone\n"
                    "line      *              -        almost  a hand's breadth\n"
                    "line      *              QLabel   short\n");
    QWidget shade;
    shade.setObjectName("shade");
    QLabel label(&shade);
    SkinExceptions exceptions(path, "480x272 light");
    QCOMPARE(exceptions.faults().size(), 1);
    QCOMPARE(exceptions.unmet().size(), 3);
    QVERIFY(!exceptions.isMet({"touch", &shade, "small"}));
    QVERIFY(exceptions.isMet({"touch", &label, "small"}));
    QVERIFY(!exceptions.isMet({"contrast", &label, "2.9 for x"}));
    QVERIFY(exceptions.isMet({"contrast", &label, "3.1 for x"}));
    QCOMPARE(exceptions.unmet().size(), 1);
    QVERIFY(exceptions.isMet({"line", &label, "almost"}));
    QCOMPARE(exceptions.unmet(), QStringList());
    QCOMPARE(SkinExceptions(home() + "/none", "480x272 light").faults().size(), 1);
    QCOMPARE(SkinExceptions(path, "480x800 dark").unmet().size(), 3);
}

void TestSkinWalk::allIsOfOnePiece_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("look");
    QTest::newRow("480x272 light") << QSize(480, 272) << "light";
    QTest::newRow("272x480 dark") << QSize(272, 480) << "dark";
    QTest::newRow("480x800 light") << QSize(480, 800) << "light";
    QTest::newRow("800x480 dark") << QSize(800, 480) << "dark";
    QTest::newRow("1024x600 light") << QSize(1024, 600) << "light";
    QTest::newRow("800x480 high-contrast") << QSize(800, 480) << "high-contrast";
}

void TestSkinWalk::allIsOfOnePiece()
{
    QFETCH(QSize, size);
    QFETCH(QString, look);
    Look::Style style = Look::Light;
    QVERIFY(Look::read(look, &style));
    const double least = look == "high-contrast" ? glareContrast : Contrast::textContrast;
    PanelProgram program(optionsFor(size, look), QStringList());
    QCOMPARE(program.start(), PanelProgram::Started);
    PanelWindow &panel = *program.window();
    // In the place of what this machine's devices are.
    program.deviceWatch()->disconnect();
    ToolkitSpy *spy = new ToolkitSpy(qobject_cast<QProxyStyle *>(QApplication::style()));
    Tour tour(&panel);
    program.plan(&tour);
    // The import manager has a connection to nothing, and no window system is at hand.
    StrictMessages::expect("Parentheses expected");
    StrictMessages::expect("This plugin does not support");
    SkinExceptions exceptions(FILARIX_SKIN_EXCEPTIONS, QTest::currentDataTag());
    QStringList all = exceptions.faults();
    int stops = 0;
    connect(&tour, &Tour::arrived, this, [&](const QString &name) {
        ++stops;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        const QWidgetList windows = windowsInSight(&panel);
        const QList<SkinFault> faults = SkinCheck::touch(windows) + SkinCheck::lines(windows)
                                        + SkinCheck::contrast(windows, least)
                                        + SkinCheck::toolkit(windows, spy);
        for (const SkinFault &fault : faults) {
            const QString text = fault.check + QLatin1String(": ") + SkinCheck::nameOf(fault.widget)
                                 + QLatin1String(": ") + fault.text;
            if (!exceptions.isMet(fault) && all.filter(text).isEmpty())
                all.append(name + QLatin1String(": ") + text);
        }
    });
    QSignalSpy finished(&tour, SIGNAL(finished()));
    tour.start(10);
    QTRY_VERIFY_WITH_TIMEOUT(!finished.isEmpty(), 100000);
    QVERIFY2(tour.error().isEmpty(), qPrintable(tour.error()));
    QVERIFY2(stops >= 45, qPrintable(QString::number(stops)));
    for (const QString &line : exceptions.unmet())
        all.append(QLatin1String("no longer needed: ") + line);
    // A failure's own message has no room for all.
    for (const QString &fault : qAsConst(all))
        qDebug("%s", qPrintable(fault));
    QCOMPARE(all.size(), 0);
}

FILARIX_TEST_MAIN(TestSkinWalk)
#include "tst_skinwalk.moc"
