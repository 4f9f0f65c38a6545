// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "look/pagekeys.h"
#include "look/panelkey.h"
#include "look/spokennames.h"
#include "modaldriver.h"
#include "screens/listscreen.h"
#include "storage/rowfile.h"
#include "tlistwidget.h"

#include <QDir>
#include <QScrollArea>
#include <QSignalSpy>

namespace {

/// A screen of plain data rows.
class Screen : public ListScreen
{
public:
    explicit Screen(const QString &path, const QSize &surface = QSize(800, 480))
        : ListScreen(surface, QStringList(), 1, new RowKeeper("Rows", &RowFile::read), nullptr)
        , m_path(path)
    {
        addPagingKeys();
    }

    QString title() const override { return "rows"; }
    bool mayClose() override { return mayLoseChanges(title(), "Lose them?"); }
    QString storePath() const override { return m_path; }
    QString storedText(int count) const override { return QString("stored %1").arg(count); }
    QString fileCause() const override { return "rows"; }
    bool bringBack(const QString &, const QList<QStringList> &) override { return false; }
    QString nameOf(const QString &) const override { return "rows"; }
    QString describe(const QString &, const QString &, int) const override { return "rows"; }

    using ListScreen::addKey;
    using ListScreen::markStored;
    using ListScreen::setKeyLines;
    using ListScreen::setLoading;
    using ListScreen::setRows;
    using ListScreen::showRow;
    using ListScreen::tellUnread;

private:
    const QString m_path;
};

QList<QStringList> someRows(int count)
{
    QList<QStringList> rows;
    for (int i = 0; i < count; ++i)
        rows.append({"DataEditor", QString::number(i), QString(), "name", QString::number(i)});
    return rows;
}

void change(ListScreen *screen)
{
    QStringList row = screen->rows().first();
    row[4] = "changed";
    screen->list()->setContent(0, row);
}

} // namespace

class TestListScreen : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void rowsComeAndGoAsTheyAre();
    void aPageHasTheRowsThatFit();
    void aChangeIsSeenAndTold();
    void whatIsStoredIsNoChange();
    void whatCannotBeStoredStaysAChange();
    void noKeyWorksWhileRowsAreToCome();
    void pageKeysAreNamedApart();
    void keysBeyondTheLinesTakeTurns();
    void aRowIsShownWhereverItIs_data();
    void aRowIsShownWhereverItIs();
    void aFileThatCannotBeReadIsAnAlarm_data();
    void aFileThatCannotBeReadIsAnAlarm();
    void withoutChangesNobodyIsAsked();
    void theOperatorDecidesAboutChanges_data();
    void theOperatorDecidesAboutChanges();

private:
    static QString path() { return home() + "/hmi/rows.txt"; }
};

Q_DECLARE_METATYPE(RowKeeper::Loaded::State)

void TestListScreen::init()
{
    FilarixTest::init();
    qRegisterMetaType<Message::Tone>("Message::Tone");
}

void TestListScreen::rowsComeAndGoAsTheyAre()
{
    Screen screen(path());
    screen.setRows(someRows(30));
    QCOMPARE(screen.rows(), someRows(30));
    screen.setRows(QList<QStringList>());
    QCOMPARE(screen.rows(), QList<QStringList>());
}

void TestListScreen::aPageHasTheRowsThatFit()
{
    Screen screen(path());
    screen.resize(800, 300);
    screen.show();
    QVERIFY(TestCompat::waitForExposed(&screen));
    screen.setRows(someRows(30));
    const int row = screen.list()->itemAt(0)->minimumHeight();
    const int room = screen.findChild<QScrollArea *>()->viewport()->height();
    QVERIFY(row > 0);
    int shown = 0;
    for (int i = 0; i < 30; ++i) {
        const QWidget *widget = screen.list()->itemAt(i);
        shown += widget && widget->isVisible() ? 1 : 0;
    }
    QCOMPARE(shown, room / row);
}

void TestListScreen::aChangeIsSeenAndTold()
{
    Screen screen(path());
    screen.setRows(someRows(3));
    screen.markStored(screen.rows());
    QVERIFY(!screen.hasChanges());
    QSignalSpy titleChanged(&screen, SIGNAL(titleChanged()));
    change(&screen);
    QVERIFY(!screen.hasChanges());
    screen.refreshStatus();
    screen.refreshStatus();
    QVERIFY(screen.hasChanges());
    QCOMPARE(titleChanged.size(), 1);
    screen.setRows(someRows(3));
    screen.refreshStatus();
    QVERIFY(!screen.hasChanges());
    QCOMPARE(titleChanged.size(), 2);
}

void TestListScreen::whatIsStoredIsNoChange()
{
    Screen screen(path());
    screen.setRows(someRows(3));
    screen.refreshStatus();
    QVERIFY(screen.hasChanges());
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    screen.store();
    QTRY_COMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(0).toString(), QString("stored 3"));
    QVERIFY(!screen.hasChanges());
    QList<QStringList> rows;
    QString error;
    QVERIFY2(RowFile::read(path(), &rows, &error), qPrintable(error));
    QCOMPARE(rows, someRows(3));
}

void TestListScreen::whatCannotBeStoredStaysAChange()
{
    writeFile(home() + "/file", QByteArray());
    Screen screen(home() + "/file/rows.txt");
    screen.setRows(someRows(3));
    screen.refreshStatus();
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    screen.store();
    QTRY_COMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Alarm);
    QCOMPARE(told.at(0).at(2).toString(), QString("storage"));
    QVERIFY(screen.hasChanges());
}

void TestListScreen::noKeyWorksWhileRowsAreToCome()
{
    Screen screen(path());
    screen.setLoading(true);
    PanelKey *late = screen.addKey(QIcon(), [] { return QString("late"); });
    const QList<PanelKey *> keys = screen.findChildren<PanelKey *>();
    QCOMPARE(keys.size(), 5);
    for (const PanelKey *key : keys)
        QVERIFY(!key->isEnabled());
    QVERIFY(screen.isLoading());
    screen.setLoading(false);
    for (const PanelKey *key : keys)
        QVERIFY(key->isEnabled());
    QVERIFY(late->isEnabled());
}

// As everywhere else in the panel: both read "Page".
void TestListScreen::pageKeysAreNamedApart()
{
    Screen screen(path());
    const auto names = [&screen] {
        QStringList names;
        for (PanelKey *key : screen.findChildren<PanelKey *>())
            names.append(SpokenNames::nameOf(key));
        return names;
    };
    const QStringList english{"First", PageKeys::backName(), PageKeys::forthName(), "Last"};
    QCOMPARE(names(), english);
    QCOMPARE(english.at(1), QString("Page up"));
    const TestCompat::MarkingTranslator translator("PageKeys");
    QCoreApplication::processEvents();
    QCOMPARE(names(), (QStringList{"First", "Page up*", "Page down*", "Last"}));
}

void TestListScreen::keysBeyondTheLinesTakeTurns()
{
    Screen screen(path());
    screen.setKeyLines(3);
    const auto shown = [&screen] {
        QStringList texts;
        for (const PanelKey *key : screen.findChildren<PanelKey *>()) {
            if (!key->isHidden())
                texts.append(key->text());
        }
        texts.sort();
        return texts;
    };
    QCOMPARE(shown(), (QStringList{"First", "More", "Page"}));
    PanelKey *more = nullptr;
    for (PanelKey *key : screen.findChildren<PanelKey *>()) {
        if (key->text() == "More")
            more = key;
    }
    QVERIFY(more);
    more->click();
    QCOMPARE(shown(), (QStringList{"Last", "More", "Page"}));
    more->click();
    QCOMPARE(shown(), (QStringList{"First", "More", "Page"}));
    // With room for all no key turns.
    screen.setKeyLines(4);
    QCOMPARE(shown(), (QStringList{"First", "Last", "Page", "Page"}));
}

void TestListScreen::aRowIsShownWhereverItIs_data()
{
    QTest::addColumn<int>("row");
    for (int row : {0, 1, 8, 9, 17, 30, 98, 99})
        QTest::newRow(qPrintable(QString::number(row))) << row;
}

void TestListScreen::aRowIsShownWhereverItIs()
{
    QFETCH(int, row);
    Screen screen(path());
    screen.resize(800, 300);
    screen.show();
    QVERIFY(TestCompat::waitForExposed(&screen));
    screen.setRows(someRows(100));
    for (int other : {0, 50, 99}) {
        screen.showRow(other);
        screen.showRow(row);
        const QWidget *widget = screen.list()->itemAt(screen.list()->getListPos(row));
        QVERIFY(widget && widget->isVisible());
        QVERIFY(
            screen.rect().contains(QRect(widget->mapTo(&screen, QPoint(0, 0)), widget->size())));
    }
}

void TestListScreen::aFileThatCannotBeReadIsAnAlarm_data()
{
    QTest::addColumn<RowKeeper::Loaded::State>("state");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("cause");
    QTest::newRow("broken") << RowKeeper::Loaded::Broken << "why. Store."
                            << "rows";
    QTest::newRow("stalled") << RowKeeper::Loaded::Stalled << "why. Wait."
                             << "storage";
    QTest::newRow("missing") << RowKeeper::Loaded::Missing << QString() << QString();
    QTest::newRow("read") << RowKeeper::Loaded::Read << QString() << QString();
}

void TestListScreen::aFileThatCannotBeReadIsAnAlarm()
{
    QFETCH(RowKeeper::Loaded::State, state);
    QFETCH(QString, text);
    QFETCH(QString, cause);
    Screen screen(path());
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    RowKeeper::Loaded loaded;
    loaded.state = state;
    loaded.error = "why.";
    screen.tellUnread(loaded, "Store.", "Wait.");
    QCOMPARE(told.size(), text.isEmpty() ? 0 : 1);
    if (text.isEmpty())
        return;
    QCOMPARE(told.at(0).at(0).toString(), text);
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Alarm);
    QCOMPARE(told.at(0).at(2).toString(), cause);
}

void TestListScreen::withoutChangesNobodyIsAsked()
{
    Screen screen(path());
    screen.setRows(someRows(3));
    screen.markStored(screen.rows());
    ModalDriver driver;
    QVERIFY(screen.mayClose());
    QVERIFY2(driver.finished(), driver.report());
}

void TestListScreen::theOperatorDecidesAboutChanges_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("mayClose");
    QTest::addColumn<bool>("isStored");
    QTest::newRow("save") << int(QMessageBox::Save) << true << true;
    QTest::newRow("discard") << int(QMessageBox::Discard) << true << false;
    QTest::newRow("cancel") << int(QMessageBox::Cancel) << false << false;
}

void TestListScreen::theOperatorDecidesAboutChanges()
{
    QFETCH(int, answer);
    QFETCH(bool, mayClose);
    QFETCH(bool, isStored);
    Screen screen(path());
    screen.setRows(someRows(3));
    ModalDriver driver;
    driver.press(QMessageBox::StandardButton(answer));
    QCOMPARE(screen.mayClose(), mayClose);
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(QFile::exists(path()), isStored);
    QCOMPARE(screen.hasChanges(), !isStored);
}

FILARIX_TEST_MAIN(TestListScreen)
#include "tst_listscreen.moc"
