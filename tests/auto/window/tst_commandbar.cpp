// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Holds WMMainWindow: its command bars.

#include "devicelog.h"
#include "filarixtest.h"
#include "marktranslator.h"
#include "modaldriver.h"
#include "openwindow.h"
#include "wfinddialog.h"

#include <QAction>
#include <QFile>
#include <QSignalSpy>

namespace {

enum Receiver { Nobody, Window, Editor };
enum Language { Plain, Translated };

/// What a button shows and does.
struct Button
{
    QToolButton *WMMainWindow::*member;
    const char *name;
    const char *text;
    Language textLanguage;
    const char *toolTip;
    Language toolTipLanguage;
    const char *icon;
    bool textUnderIcon;
    Receiver receiver;
    const char *slot;
};

#define MEMBER(name) &WMMainWindow::name, #name

// clang-format off
/// In the order in which the window makes them.
const Button buttons[] = {
    {MEMBER(m_newBtn),          "New",         Translated, "New G File!",                        Plain,      "new.png",          true,  Window, SLOT(newFile())},
    {MEMBER(m_openBtn),         "Open",        Translated, "Open G File!",                       Plain,      "open.png",         true,  Window, SLOT(open())},
    {MEMBER(m_removeBtn),       "RM",          Translated, "Remove G File!",                     Translated, "remove.png",       true,  Window, SLOT(remove())},
    {MEMBER(m_saveBtn),         "Save",        Translated, "Save G File!",                       Plain,      "save.png",         true,  Window, SLOT(save())},
    {MEMBER(m_saveAsBtn),       "SaveAs",      Translated, "Save As G File!",                    Plain,      "saveAs.png",       true,  Window, SLOT(saveAs())},
    {MEMBER(m_importExportBtn), "I/E",         Translated, "Import/Export G File.",              Translated, "importExport.png", true,  Window, SLOT(importExport())},
    {MEMBER(m_preproccessBtn),  "Preproccess", Translated, "Preproccess G File,Remove comment!", Plain,      nullptr,            false, Nobody, nullptr},
    {MEMBER(m_morphologyBtn),   "Morphology",  Translated, "Morphology Analysis!",               Plain,      nullptr,            false, Nobody, nullptr},
    {MEMBER(m_syntaxBtn),       "Syntax",      Translated, "Syntax Analysis!",                   Plain,      nullptr,            false, Nobody, nullptr},
    {MEMBER(m_compileBtn),      "Compile",     Translated, "Compile G code!",                    Plain,      nullptr,            false, Nobody, nullptr},
    {MEMBER(m_downloadBtn),     "D/L",         Translated, "Download G File To PLC!",            Plain,      "downloads.png",    true,  Window, SLOT(download())},
    {MEMBER(m_showBtn),         "Show",        Translated, "Monitoring G Path!",                 Plain,      "simulation.png",   false, Nobody, nullptr},
    {MEMBER(m_playOrPauseBtn),  "PlayOrPause", Plain,      "Play/Pause The Animation!",          Plain,      "play.png",         true,  Nobody, nullptr},
    {MEMBER(m_stopBtn),         "Stop",        Translated, "Stop The Animation!",                Plain,      "stop.png",         true,  Nobody, nullptr},
    {MEMBER(m_upBtn),           "Up",          Translated, "move up the arrow!",                 Plain,      "upArrow.png",      true,  Window, SLOT(moveEvent())},
    {MEMBER(m_downBtn),         "Down",        Translated, "move down the arrow!",               Plain,      "downArrow.png",    true,  Window, SLOT(moveEvent())},
    {MEMBER(m_insertBtn),       "Ins",         Translated, "insert a null line!",                Plain,      "insert.png",       true,  Window, SLOT(insertRow())},
    {MEMBER(m_insertBeforeBtn), "Ins",         Translated, "insert a null line!",                Plain,      "insertBefore.png", true,  Window, SLOT(insertBefore())},
    {MEMBER(m_deleteBtn),       "Del",         Translated, "delete the current line!",           Plain,      "delete.png",       true,  Window, SLOT(deleteRow())},
    {MEMBER(m_editBtn),         "Edit",        Translated, "edit G code by softKey!",            Plain,      "edit.png",         true,  Window, SLOT(softEditGcode())},
    {MEMBER(m_copyBtn),         "Copy",        Translated, "copy G code to clipboard!",          Plain,      "copy.png",         true,  Editor, SLOT(copy())},
    {MEMBER(m_pasteBtn),        "Paste",       Translated, "paste G code from clipboard!",       Plain,      "paste.png",        true,  Editor, SLOT(paste())},
    {MEMBER(m_findBtn),         "Find",        Translated, "find G code in current Editer!",     Plain,      "find.png",         true,  Editor, SLOT(findAndReplace())},
    {MEMBER(m_tagBtn),          "Tag",         Translated, "Copy from tag.",                     Plain,      "copyFromTag.png",  true,  Window, SLOT(copyFromTag())},
};
// clang-format on

const int buttonCount = int(sizeof buttons / sizeof buttons[0]);

QString marked(const QString &mark, const char *text, Language language)
{
    return (language == Translated ? mark : QString()) + QLatin1String(text);
}

bool isIn(const QString &icon)
{
    return icon != QLatin1String("simulation.png") && icon != QLatin1String("play.png")
           && icon != QLatin1String("stop.png");
}

/// What stands on a bar; a null for a separator.
QList<QWidget *> widgets(const QToolBar *bar)
{
    QList<QWidget *> list;
    Q_FOREACH (QAction *action, bar->actions())
        list << (action->isSeparator() ? nullptr : bar->widgetForAction(action));
    return list;
}

QList<QWidget *> fileButtons(const OpenWindow &window)
{
    return QList<QWidget *>() << window.m_newBtn << window.m_openBtn << window.m_removeBtn
                              << window.m_saveBtn << window.m_saveAsBtn << window.m_importExportBtn
                              << nullptr << window.m_downloadBtn << nullptr << window.m_upBtn
                              << window.m_downBtn;
}

QList<QWidget *> editButtons(const OpenWindow &window)
{
    return QList<QWidget *>() << window.m_insertBtn << window.m_insertBeforeBtn
                              << window.m_deleteBtn << nullptr << window.m_copyBtn
                              << window.m_pasteBtn << window.m_tagBtn << window.m_editBtn;
}

/// Counts the paintings of a widget.
class PaintCount : public QObject
{
public:
    explicit PaintCount(QWidget *widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            ++count;
        return false;
    }

    int count = 0;
};

/// Keeps how often a button had been painted when a dialog came up: a window system may have the
/// windows behind a new one painted.
class PaintCountAtDialog : public QObject
{
public:
    explicit PaintCountAtDialog(const PaintCount &paintings) : m_paintings(paintings)
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (count < 0 && event->type() == QEvent::Show && watched->inherits("QDialog"))
            count = m_paintings.count;
        return false;
    }

    int count = -1; ///< negative while there was no dialog

private:
    const PaintCount &m_paintings;
};

} // namespace

class TestCommandBar : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void everyButtonIsAsInTheTable_data();
    void everyButtonIsAsInTheTable();
    void textsAreTranslatedAsInTheTable();
    void insertButtonsDifferByTheirIconOnly();
    void threeIconsAreMissing();

    void barsHoldTheButtonsInOrder_data();
    void barsHoldTheButtonsInOrder();
    void barsAreMadeForAThumb_data();
    void barsAreMadeForAThumb();
    void unplacedButtonsStayHiddenAndWithoutAnOwner();
    void editBarIsFilledOnDemandOnly();

    void languageChangeSetsTheTextsAgain();
    void languageChangeKeepsWhatItDoesNotName();
    void languageChangeAsksInOrder();
    void otherChangesSetNoTexts();

    void refreshPaintsThePressedButtonOnly();
    void commandsRepaintTheirButtonFirst_data();
    void commandsRepaintTheirButtonFirst();
    void commandsOfAnotherSenderRepaintNothing();

    void upAndDownMoveTheCursor();
    void upAndDownNeedTheirButton();
    void upAndDownUpdateTheirButton();
    void insertAndDelete();
    void rowCommandsWorkWithoutASender();
    void deleteRenewsTheReadOut();
    void tagAsksTheHost();
    void findOpensTheSearch();
    void pasteInsertsTheEditorsBuffer();
    void buttonsWithoutACommandDoNothing();
};

void TestCommandBar::init()
{
    FilarixTest::init();
    DeviceLog::reset();
}

void TestCommandBar::everyButtonIsAsInTheTable_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < buttonCount; ++i)
        QTest::newRow(buttons[i].name) << i;
}

void TestCommandBar::everyButtonIsAsInTheTable()
{
    QFETCH(int, index);
    const Button &expected = buttons[index];
    OpenWindow window;
    QToolButton *button = window.*expected.member;
    QCOMPARE(button->text(), QString(expected.text));
    QCOMPARE(button->toolTip(), QString(expected.toolTip));
    QCOMPARE(button->toolButtonStyle(), expected.textUnderIcon ? Qt::ToolButtonTextUnderIcon
                                                               : QToolButton().toolButtonStyle());
    QVERIFY(button->isEnabled());
    if (!expected.icon) {
        QVERIFY(button->icon().isNull());
    } else {
        const QString path = QLatin1String(":/images/") + QLatin1String(expected.icon);
        const QPixmap pixmap = button->icon().pixmap(36, 36);
        QCOMPARE(pixmap.isNull(), !isIn(QLatin1String(expected.icon)));
        QCOMPARE(pixmap.toImage(), QIcon(path).pixmap(36, 36).toImage());
    }
    // A connection that can be taken away was there.
    QObject *receiver = expected.receiver == Editor ? static_cast<QObject *>(window.m_editor)
                                                    : static_cast<QObject *>(&window);
    if (expected.receiver != Nobody)
        QVERIFY(disconnect(button, SIGNAL(clicked()), receiver, expected.slot));
    QVERIFY(!disconnect(button, SIGNAL(clicked()), &window, nullptr));
    QVERIFY(!disconnect(button, SIGNAL(clicked()), window.m_editor, nullptr));
}

void TestCommandBar::textsAreTranslatedAsInTheTable()
{
    const QString mark = QLatin1String("#");
    const MarkTranslator translator(mark);
    const OpenWindow window;
    QStringList texts = QStringList() << "Row:"
                                      << "Col:"
                                      << "Count:";
    QStringList toolTips;
    for (const Button &button : buttons) {
        const QToolButton *made = window.*button.member;
        QCOMPARE(made->text(), marked(mark, button.text, button.textLanguage));
        QCOMPARE(made->toolTip(), marked(mark, button.toolTip, button.toolTipLanguage));
        if (button.textLanguage == Translated)
            texts << QLatin1String(button.text);
        if (button.toolTipLanguage == Translated)
            toolTips << QLatin1String(button.toolTip);
    }
    // What was asked for, and when: the buttons are made in the order of the table.
    QStringList asked = translator.asked("WMMainWindow");
    Q_FOREACH (const QString &toolTip, toolTips)
        QCOMPARE(asked.removeAll(toolTip), 1);
    QCOMPARE(asked, texts);
}

void TestCommandBar::insertButtonsDifferByTheirIconOnly()
{
    const OpenWindow window;
    QCOMPARE(window.m_insertBtn->text(), window.m_insertBeforeBtn->text());
    QCOMPARE(window.m_insertBtn->toolTip(), window.m_insertBeforeBtn->toolTip());
    QVERIFY(window.m_insertBtn->icon().pixmap(36, 36).toImage()
            != window.m_insertBeforeBtn->icon().pixmap(36, 36).toImage());
}

void TestCommandBar::threeIconsAreMissing()
{
    int missing = 0;
    for (const Button &button : buttons) {
        if (!button.icon || QFile::exists(QLatin1String(":/images/") + QLatin1String(button.icon)))
            continue;
        ++missing;
        QVERIFY(!isIn(QLatin1String(button.icon)));
    }
    QCOMPARE(missing, 3);
}

void TestCommandBar::barsHoldTheButtonsInOrder_data()
{
    QTest::addColumn<int>("rotation");
    QTest::addColumn<bool>("twoBars");
    QTest::newRow("0") << 0 << false;
    QTest::newRow("90") << 90 << true;
    QTest::newRow("180") << 180 << false;
    QTest::newRow("270") << 270 << true;
    QTest::newRow("1") << 1 << false;
    QTest::newRow("-270") << -270 << false;
}

void TestCommandBar::barsHoldTheButtonsInOrder()
{
    QFETCH(int, rotation);
    QFETCH(bool, twoBars);
    const OpenWindow window(rotation);
    QList<QWidget *> first = fileButtons(window);
    if (twoBars)
        QCOMPARE(widgets(window.m_toolBar2), editButtons(window));
    else
        first << nullptr << editButtons(window);
    QCOMPARE(widgets(window.m_toolBar), first);
    QCOMPARE(window.m_toolBar2 != nullptr, twoBars);
}

void TestCommandBar::barsAreMadeForAThumb_data()
{
    QTest::addColumn<int>("rotation");
    QTest::newRow("one bar") << 0;
    QTest::newRow("two bars") << 90;
}

void TestCommandBar::barsAreMadeForAThumb()
{
    QFETCH(int, rotation);
    OpenWindow window(rotation);
    window.show();
    QVERIFY(TestCompat::waitForExposed(&window));
    Q_FOREACH (const QToolBar *bar, window.findChildren<QToolBar *>()) {
        QCOMPARE(bar->font().family(), QString("Arial"));
        QCOMPARE(bar->font().pointSize(), 6);
        QCOMPARE(int(bar->font().weight()), 75);
        QCOMPARE(bar->iconSize(), QSize(36, 36));
        QCOMPARE(bar->minimumHeight(), 72);
        QCOMPARE(bar->maximumHeight(), 72);
        QCOMPARE(bar->height(), 72);
        Q_FOREACH (QWidget *widget, widgets(bar)) {
            if (QToolButton *button = qobject_cast<QToolButton *>(widget)) {
                // Icon and text below each other.
                QVERIFY(button->height() > 36 + QFontMetrics(button->font()).height());
                QCOMPARE(button->font().pointSize(), 6);
                QVERIFY(bar->rect().contains(button->geometry()) || !button->isVisible());
            }
        }
    }
}

void TestCommandBar::unplacedButtonsStayHiddenAndWithoutAnOwner()
{
    OpenWindow window(90);
    window.show();
    QVERIFY(TestCompat::waitForExposed(&window));
    const QList<QToolButton *> unplaced = window.unplacedButtons();
    QCOMPARE(unplaced.size(), 8);
    for (const Button &button : buttons) {
        QToolButton *made = window.*button.member;
        QCOMPARE(!made->parent(), unplaced.contains(made));
        if (unplaced.contains(made))
            QVERIFY(!made->isVisible());
        else
            QVERIFY(made->isVisible());
    }
}

void TestCommandBar::editBarIsFilledOnDemandOnly()
{
    OpenWindow window;
    QVERIFY(!window.m_editBar);
    // Without a bar there is nothing to fill.
    window.createEditBar();
    QVERIFY(!window.m_editBar);

    QToolBar bar;
    window.m_editBar = &bar;
    window.createEditBar();
    QCOMPARE(widgets(&bar), QList<QWidget *>()
                                << window.m_upBtn << window.m_downBtn << nullptr
                                << window.m_insertBtn << window.m_insertBeforeBtn
                                << window.m_deleteBtn << nullptr << window.m_editBtn);
    window.m_editBar = nullptr;
}

void TestCommandBar::languageChangeSetsTheTextsAgain()
{
    const OpenWindow window;
    for (int round = 0; round < 2; ++round) {
        const MarkTranslator translator(QLatin1String("#"));
        QApplication::processEvents();
        for (const Button &button : buttons) {
            if (button.member == &WMMainWindow::m_preproccessBtn)
                continue;
            QCOMPARE((window.*button.member)->text(),
                     marked(QLatin1String("#"), button.text, button.textLanguage));
        }
        QCOMPARE(window.m_rowTitle->text(), QString("#Row:"));
        QCOMPARE(window.m_colTitle->text(), QString("#Col:"));
        QCOMPARE(window.m_countTitle->text(), QString("#Count:"));
    }
    QApplication::processEvents();
    // The translator is gone again.
    QCOMPARE(window.m_newBtn->text(), QString("New"));
    QCOMPARE(window.m_countTitle->text(), QString("Count:"));
}

void TestCommandBar::languageChangeKeepsWhatItDoesNotName()
{
    OpenWindow window;
    window.setCurrentFile(QLatin1String("/x/a.cnc"));
    window.m_fileLabel->setText(QLatin1String("a.cnc"));
    window.m_playOrPauseBtn->setText(QLatin1String("something else"));
    window.setDownloading(true);
    const MarkTranslator translator(QLatin1String("#"));
    QApplication::processEvents();
    QCOMPARE(window.m_preproccessBtn->text(), QString("Preproccess"));
    for (const Button &button : buttons)
        QCOMPARE((window.*button.member)->toolTip(), QString(button.toolTip));
    QCOMPARE(window.windowTitle(), QString("a.cnc[*] - Application"));
    QCOMPARE(window.m_fileLabel->text(), QString("a.cnc"));
    QCOMPARE(window.m_rowValue->text(), QString("1"));
    QVERIFY(!window.m_downloadBtn->isEnabled());
    // Its text is set again too, though never translated.
    QCOMPARE(window.m_playOrPauseBtn->text(), QString("PlayOrPause"));
}

void TestCommandBar::languageChangeAsksInOrder()
{
    OpenWindow window;
    MarkTranslator translator(QLatin1String("#"));
    translator.forget();
    window.languageChange();
    QCOMPARE(translator.asked("WMMainWindow"), QStringList() << "New"
                                                             << "Open"
                                                             << "RM"
                                                             << "Save"
                                                             << "SaveAs"
                                                             << "I/E"
                                                             << "Morphology"
                                                             << "Syntax"
                                                             << "Compile"
                                                             << "D/L"
                                                             << "Show"
                                                             << "Stop"
                                                             << "Up"
                                                             << "Down"
                                                             << "Ins"
                                                             << "Ins"
                                                             << "Del"
                                                             << "Edit"
                                                             << "Tag"
                                                             << "Copy"
                                                             << "Paste"
                                                             << "Find"
                                                             << "Row:"
                                                             << "Col:"
                                                             << "Count:");
}

void TestCommandBar::otherChangesSetNoTexts()
{
    OpenWindow window;
    window.m_newBtn->setText(QLatin1String("kept"));
    Q_FOREACH (int type, QList<int>() << QEvent::FontChange << QEvent::PaletteChange
                                      << QEvent::StyleChange << QEvent::LocaleChange
                                      << QEvent::EnabledChange << QEvent::WindowTitleChange) {
        QEvent event = QEvent(QEvent::Type(type));
        QApplication::sendEvent(&window, &event);
        QCOMPARE(window.m_newBtn->text(), QString("kept"));
    }
    QEvent event(QEvent::LanguageChange);
    QApplication::sendEvent(&window, &event);
    QCOMPARE(window.m_newBtn->text(), QString("New"));
}

void TestCommandBar::refreshPaintsThePressedButtonOnly()
{
    OpenWindow window;
    window.show();
    QVERIFY(TestCompat::waitForExposed(&window));
    QApplication::processEvents();
    const PaintCount paintings(window.m_newBtn);
    window.attemptToRefreshButton(nullptr, window.m_newBtn);
    window.attemptToRefreshButton(&window, window.m_newBtn);
    window.attemptToRefreshButton(window.m_fileLabel, window.m_newBtn);
    window.attemptToRefreshButton(window.m_openBtn, window.m_newBtn);
    window.attemptToRefreshButton(window.m_newBtn, window.m_openBtn);
    window.attemptToRefreshButton(window.m_newBtn, nullptr);
    QCOMPARE(paintings.count, 0);
    window.attemptToRefreshButton(window.m_newBtn, window.m_newBtn);
    QCOMPARE(paintings.count, 1);
}

void TestCommandBar::commandsRepaintTheirButtonFirst_data()
{
    everyButtonIsAsInTheTable_data();
}

void TestCommandBar::commandsRepaintTheirButtonFirst()
{
    QFETCH(int, index);
    const Button &expected = buttons[index];
    OpenWindow window;
    // Wide enough for every button.
    window.resize(2000, 400);
    window.show();
    QVERIFY(TestCompat::waitForExposed(&window));
    QToolButton *button = window.*expected.member;
    // The small screen of a panel shows a part of it; beyond the edge nothing need be painted.
    if (window.isAncestorOf(button))
        window.move(-button->mapTo(&window, QPoint()).x(), 0);
    QApplication::processEvents();
    const PaintCount paintings(button);
    const PaintCountAtDialog paintingsAtDialog(paintings);
    ModalDriver person;
    // Dialogs that a command waits in come up when the button is painted already.
    const QList<QToolButton *> asking = QList<QToolButton *>()
                                        << window.m_openBtn << window.m_removeBtn
                                        << window.m_saveBtn << window.m_saveAsBtn
                                        << window.m_importExportBtn << window.m_copyBtn;
    const bool asks = asking.contains(button);
    if (asks)
        person.then([](QWidget *dialog) { dialog->close(); });
    // The import manager's own words about a connection that it leaves open.
    StrictMessages::expect(QLatin1String("ImportManage::slot_checkUSB"));
    if (button == window.m_editBtn)
        DeviceLog::cancel();
    QVERIFY(QMetaObject::invokeMethod(button, "clicked"));
    QVERIFY2(person.finished(), person.report());
    // Up and Down leave it to the event loop, and the editor's own slots know no button.
    const bool atOnce =
        expected.receiver == Window && qstrcmp(expected.slot, SLOT(moveEvent())) != 0;
    QCOMPARE(asks ? paintingsAtDialog.count : paintings.count, atOnce ? 1 : 0);
    if (window.m_editor->findDialog)
        window.m_editor->findDialog->close();
}

void TestCommandBar::commandsOfAnotherSenderRepaintNothing()
{
    OpenWindow window;
    window.show();
    QVERIFY(TestCompat::waitForExposed(&window));
    QApplication::processEvents();
    const PaintCount paintings(window.m_tagBtn);
    const PaintCount others(window.m_newBtn);
    QSignalSpy tags(&window, SIGNAL(signal_copyFromTag()));
    connect(window.m_newBtn, SIGNAL(pressed()), &window, SLOT(copyFromTag()));
    QVERIFY(QMetaObject::invokeMethod(window.m_newBtn, "pressed"));
    QVERIFY(QMetaObject::invokeMethod(&window, "copyFromTag"));
    QCOMPARE(tags.count(), 2);
    QCOMPARE(paintings.count, 0);
    QCOMPARE(others.count, 0);
}

void TestCommandBar::upAndDownMoveTheCursor()
{
    OpenWindow window;
    window.m_editor->setPlainText(QLatin1String("a\nb\nc"));
    window.m_downBtn->click();
    QCOMPARE(window.m_editor->getCurRowNumber(), 2);
    QCOMPARE(window.m_rowValue->text(), QString("2"));
    window.m_downBtn->click();
    window.m_downBtn->click();
    QCOMPARE(window.m_editor->getCurRowNumber(), 3);
    window.m_upBtn->click();
    QCOMPARE(window.m_editor->getCurRowNumber(), 2);
    window.m_upBtn->click();
    window.m_upBtn->click();
    QCOMPARE(window.m_editor->getCurRowNumber(), 1);
}

void TestCommandBar::upAndDownNeedTheirButton()
{
    OpenWindow window;
    window.m_editor->setPlainText(QLatin1String("a\nb\nc"));
    window.m_downBtn->click();
    QVERIFY(QMetaObject::invokeMethod(&window, "moveEvent"));
    QToolButton other;
    QPushButton pushButton;
    connect(&other, SIGNAL(clicked()), &window, SLOT(moveEvent()));
    connect(&pushButton, SIGNAL(clicked()), &window, SLOT(moveEvent()));
    other.click();
    pushButton.click();
    QCOMPARE(window.m_editor->getCurRowNumber(), 2);
}

void TestCommandBar::upAndDownUpdateTheirButton()
{
    OpenWindow window;
    window.show();
    QVERIFY(TestCompat::waitForExposed(&window));
    QApplication::processEvents();
    Q_FOREACH (QToolButton *button, QList<QToolButton *>() << window.m_upBtn << window.m_downBtn) {
        const PaintCount paintings(button);
        QVERIFY(QMetaObject::invokeMethod(button, "clicked"));
        QCOMPARE(paintings.count, 0);
        QTRY_COMPARE(paintings.count, 1);
    }
}

void TestCommandBar::insertAndDelete()
{
    OpenWindow window;
    window.m_editor->setPlainText(QLatin1String("a\nb"));
    window.m_insertBtn->click();
    QCOMPARE(window.documentText(), QString("a\n\nb"));
    QCOMPARE(window.m_editor->getCurRowNumber(), 2);
    window.m_upBtn->click();
    window.m_insertBeforeBtn->click();
    QCOMPARE(window.documentText(), QString("\na\n\nb"));
    QCOMPARE(window.m_editor->getCurRowNumber(), 1);
    window.m_downBtn->click();
    window.m_deleteBtn->click();
    QCOMPARE(window.documentText(), QString("\n\nb"));
}

void TestCommandBar::rowCommandsWorkWithoutASender()
{
    OpenWindow window;
    window.m_editor->setPlainText(QLatin1String("a"));
    window.insertRow();
    QCOMPARE(window.documentText(), QString("a\n"));
    window.insertBefore();
    QCOMPARE(window.documentText(), QString("a\n\n"));
    window.deleteRow();
    QCOMPARE(window.documentText(), QString("a\n"));
}

void TestCommandBar::deleteRenewsTheReadOut()
{
    OpenWindow window;
    window.m_editor->setPlainText(QLatin1String("a\nb\nc"));
    window.slot_updateTips();
    // Without the editor's word of its cursor, the insert commands leave the read-out behind.
    window.m_editor->blockSignals(true);
    window.m_insertBtn->click();
    window.m_insertBeforeBtn->click();
    QCOMPARE(window.m_countValue->text(), QString("3"));
    QCOMPARE(window.m_rowValue->text(), QString("1"));
    window.m_deleteBtn->click();
    QCOMPARE(window.m_countValue->text(), QString("4"));
    QCOMPARE(window.m_rowValue->text(), QString("2"));
    QCOMPARE(window.m_colValue->text(), QString("1"));
}

void TestCommandBar::tagAsksTheHost()
{
    OpenWindow window;
    QSignalSpy tags(&window, SIGNAL(signal_copyFromTag()));
    window.m_tagBtn->click();
    QCOMPARE(tags.count(), 1);
    QCOMPARE(window.documentText(), QString(""));
}

void TestCommandBar::findOpensTheSearch()
{
    OpenWindow window;
    QVERIFY(!window.m_editor->findDialog);
    window.m_findBtn->click();
    WFindDialog *search = window.m_editor->findDialog;
    QVERIFY(search);
    QVERIFY(search->isVisible());
    search->close();
    window.m_findBtn->click();
    QCOMPARE(window.m_editor->findDialog, search);
    search->close();
}

void TestCommandBar::pasteInsertsTheEditorsBuffer()
{
    OpenWindow window;
    window.m_editor->copiedText = QLatin1String("G1");
    window.m_pasteBtn->click();
    QCOMPARE(window.documentText(), QString("G1"));
}

void TestCommandBar::buttonsWithoutACommandDoNothing()
{
    OpenWindow window;
    window.m_editor->setPlainText(QLatin1String("a;c\nb"));
    QSignalSpy downloads(&window, SIGNAL(signal_download(QString)));
    for (const Button &button : buttons) {
        if (button.receiver == Nobody)
            (window.*button.member)->click();
    }
    QCOMPARE(window.documentText(), QString("a;c\nb"));
    QVERIFY(!window.isDocumentModified());
    QCOMPARE(downloads.count(), 0);
}

FILARIX_TEST_MAIN(TestCommandBar)
#include "tst_commandbar.moc"
