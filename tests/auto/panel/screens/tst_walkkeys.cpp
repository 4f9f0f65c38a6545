// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "devicelog.h"
#include "filarixtest.h"
#include "guards/programwalk.h"
#include "look/barpager.h"
#include "programwindow.h"
#include "screens/walkkeys.h"

#include <QScopedPointer>

class TestWalkKeys : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void keysLeadThroughTheProgram_data();
    void keysLeadThroughTheProgram();
    void keysStandBesideTheText();
    void keysGiveWayInALowEditor_data();
    void keysGiveWayInALowEditor();
    void lineNumbersKeepTheirFont();
    void barHasThemOnItsPages();
    void keysAreNamedApartInEachLanguage();

private:
    QToolButton *key(const QString &description) const;
    void show(const QSize &size) const;

    QScopedPointer<ProgramWindow> m_program;
    WalkKeys *m_keys;
};

namespace {

const int lineCount = 2000;
// 9 mm at 133 dpi.
const int keySide = 48;

} // namespace

void TestWalkKeys::init()
{
    FilarixTest::init();
    DeviceLog::reset();
    m_program.reset(new ProgramWindow);
    m_program->editor()->setPlainText(QString("G01\n").repeated(lineCount - 1));
    m_keys = new WalkKeys(new ProgramWalk(m_program->window()));
}

void TestWalkKeys::cleanup()
{
    m_program.reset();
    FilarixTest::cleanup();
}

QToolButton *TestWalkKeys::key(const QString &description) const
{
    const QList<QToolButton *> buttons = m_program->window()->findChildren<QToolButton *>();
    for (QToolButton *button : buttons) {
        if (button->accessibleName() == description)
            return button;
    }
    return nullptr;
}

void TestWalkKeys::show(const QSize &size) const
{
    m_program->window()->resize(size);
    m_program->window()->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_program->window()));
}

void TestWalkKeys::keysLeadThroughTheProgram_data()
{
    QTest::addColumn<bool>("isInBar");
    QTest::newRow("beside the text") << false;
    QTest::newRow("in a bar") << true;
}

void TestWalkKeys::keysLeadThroughTheProgram()
{
    QFETCH(bool, isInBar);
    if (isInBar)
        m_keys->putInto(m_program->window()->findChildren<QToolBar *>().last());
    else
        m_keys->putBeside(m_program->window());
    show(QSize(1000, 700));
    WGCodeEditer *editor = m_program->editor();
    key("Last line")->click();
    QCOMPARE(editor->getCurRowNumber(), lineCount);
    key("First line")->click();
    QCOMPARE(editor->getCurRowNumber(), 1);
    const int page = ProgramWalk::bottomLine(editor) - 1;
    key("Page down")->click();
    key("Page down")->click();
    QCOMPARE(editor->getCurRowNumber(), 1 + 2 * page);
    key("Page up")->click();
    QCOMPARE(editor->getCurRowNumber(), 1 + page);
    DeviceLog::acceptWith("1234");
    key("Go to a line")->click();
    QCOMPARE(editor->getCurRowNumber(), 1234);
}

void TestWalkKeys::keysStandBesideTheText()
{
    m_keys->putBeside(m_program->window());
    show(QSize(800, 500));
    const WGCodeEditer *editor = m_program->editor();
    const QRect text(editor->mapTo(m_program->window(), QPoint()), editor->size());
    QVERIFY(text.width() > 700);
    const QWidget *bar = m_program->window()->findChild<QToolBar *>();
    QCOMPARE(bar->width(), m_program->window()->width());
    for (const char *name : {"First line", "Page up", "Go to a line", "Page down", "Last line"}) {
        const QToolButton *button = key(name);
        QVERIFY(button->isVisible());
        QVERIFY2(button->width() >= keySide && button->height() >= keySide, name);
        const QRect place(button->mapTo(m_program->window(), QPoint()), button->size());
        QVERIFY(place.left() > text.right());
        QVERIFY(place.top() >= text.top() && place.bottom() <= text.bottom());
    }
}

void TestWalkKeys::keysGiveWayInALowEditor_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("count");
    QTest::newRow("room for all") << 300 << 5;
    QTest::newRow("room for all but one") << 220 << 4;
    QTest::newRow("room for those only") << 140 << 2;
}

void TestWalkKeys::keysGiveWayInALowEditor()
{
    QFETCH(int, height);
    QFETCH(int, count);
    m_keys->putBeside(m_program->window());
    show(QSize(800, 700));
    const int others = m_program->window()->height() - m_program->editor()->height();
    m_program->window()->resize(800, others + height);
    QTRY_COMPARE(m_program->editor()->height(), height);
    int shown = 0;
    for (const char *name : {"First line", "Page up", "Go to a line", "Page down", "Last line"})
        shown += key(name)->isVisible();
    QCOMPARE(shown, count);
    QVERIFY(key("Page up")->isVisible() && key("Page down")->isVisible());
    QVERIFY(key("Page up")->height() >= 40);
}

// The editor is put into another place, and stays what it was.
void TestWalkKeys::lineNumbersKeepTheirFont()
{
    const ProgramWindow other;
    m_keys->putBeside(m_program->window());
    other.editor()->setPlainText(m_program->editor()->toPlainText());
    const auto numbers = [](const ProgramWindow &program) {
        return program.editor()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    };
    const QWidgetList these = numbers(*m_program);
    const QWidgetList those = numbers(other);
    QCOMPARE(these.size(), those.size());
    for (int i = 0; i < these.size(); ++i)
        QCOMPARE(these.at(i)->font(), those.at(i)->font());
    QCOMPARE(m_program->editor()->font(), other.editor()->font());
    QCOMPARE(m_program->editor()->lineNumberAreaWidth(), other.editor()->lineNumberAreaWidth());
    QCOMPARE(m_program->editor()->styleSheet(), other.editor()->styleSheet());
}

void TestWalkKeys::barHasThemOnItsPages()
{
    QToolBar *bar = m_program->window()->findChildren<QToolBar *>().last();
    m_keys->putInto(bar);
    new BarPager(bar);
    show(QSize(272, 400));
    QToolButton *more = nullptr;
    const QList<QToolButton *> buttons = bar->findChildren<QToolButton *>();
    for (QToolButton *button : buttons) {
        if (button->text() == "More")
            more = button;
    }
    QVERIFY(more);
    QStringList seen;
    for (int page = 0; page < 6; ++page) {
        QCoreApplication::processEvents();
        // Its own way out, should a page be too wide.
        QVERIFY(more->isVisible());
        for (const QToolButton *button : buttons) {
            if (!button->isVisible() || button->accessibleName().isEmpty())
                continue;
            QVERIFY(button->width() >= keySide && button->height() >= keySide);
            seen.append(button->accessibleName());
        }
        more->click();
    }
    seen.removeDuplicates();
    QCOMPARE(seen.size(), 5);
}

void TestWalkKeys::keysAreNamedApartInEachLanguage()
{
    m_keys->putBeside(m_program->window());
    QCOMPARE(key("Page up")->text(), QString("Page"));
    const TestCompat::MarkingTranslator translator("WalkKeys");
    const TestCompat::MarkingTranslator pages("PageKeys");
    m_keys->retranslate();
    QVERIFY(!key("Page up"));
    QCOMPARE(key("Page up*")->text(), QString("Page*"));
    QCOMPARE(key("Go to a line*")->text(), QString("Line*"));
}

FILARIX_TEST_MAIN(TestWalkKeys)
#include "tst_walkkeys.moc"
