// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "combolineedit.h"
#include "devicelog.h"
#include "filarixtest.h"
#include "filedialog.h"
#include "label.h"
#include "modaldriver.h"
#include "tlistwidget.h"

#include <QApplication>
#include <QBoxLayout>
#include <QDesktopWidget>
#include <QFile>
#include <QPointer>
#include <QPushButton>
#include <QScopedPointer>
#include <QScrollArea>

namespace {

const char plainLine[] =
    "border-style:solid;border-width: 1px; background-color:#ffffff;color: #000000;";
const char selectedLine[] =
    "border-style:solid;border-width: 0px;background-color: #001f56;color: #ffffff;";

QDir::Filters everything()
{
    return QDir::AllEntries | QDir::NoDotAndDotDot;
}

/// A path dialog as the operator sees it.
struct Browser
{
    explicit Browser(const QString &path, QDir::Filters filter = everything())
        : dialog(filter, "Title", path, nullptr, Qt::WindowTitleHint)
    {
        area = dialog.findChild<QScrollArea *>();
        list = qobject_cast<TListWidget *>(area->widget());
        pathEdit = dialog.findChild<ComboLineEdit *>();
        const QList<QPushButton *> buttons = dialog.findChildren<QPushButton *>();
        up = buttons.value(0);
        down = buttons.value(1);
        ok = buttons.value(2);
        cancel = buttons.value(3);
    }

    Label *line(int place) const { return qobject_cast<Label *>(list->ListWidget::itemAt(place)); }
    Label *line(const QString &name) const
    {
        for (int i = 0; i < list->ListWidget::count(); ++i) {
            if (line(i)->text() == name)
                return line(i);
        }
        return nullptr;
    }
    QStringList names() const
    {
        QStringList result;
        for (int i = 0; i < list->ListWidget::count(); ++i)
            result << line(i)->text();
        return result;
    }
    bool touch(const QString &name) const
    {
        Label *touched = line(name);
        if (touched)
            QTest::mouseClick(touched, Qt::LeftButton);
        return touched;
    }
    /// The path, if the line and the shared string agree on it.
    QString path() const
    {
        return pathEdit->text() == FileDialog::m_returnStr ? FileDialog::m_returnStr
                                                           : QString("path line differs");
    }

    FileDialog dialog;
    QScrollArea *area;
    TListWidget *list;
    ComboLineEdit *pathEdit;
    QPushButton *up;
    QPushButton *down;
    QPushButton *ok;
    QPushButton *cancel;
};

} // namespace

class TestFileDialog : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void isAnOrdinaryDialogWithTheFlagsAsked();
    void layoutStandsAsLaidOut();
    void screenDecidesOnTheSize();
    void textsAreTranslatedInTheClassesContext();
    void startPath_data();
    void startPath();
    void constructionForgetsThePathBefore();
    void pathBeforeCanBeTheNextStart();

    void okAtOnceGivesTheStartPath_data();
    void okAtOnceGivesTheStartPath();
    void cancelGivesAnEmptyString_data();
    void cancelGivesAnEmptyString();
    void okAndCancelEndAsTheDerivedClassDoes();
    void staticFunctionsPassTheirArguments_data();
    void staticFunctionsPassTheirArguments();

    void listIsSortedByNameIgnoringCase();
    void filterDecidesWhatIsListed_data();
    void filterDecidesWhatIsListed();
    void namesOfAnyKindAreShownAsTheyAre();
    void linesAreStyledLabels();
    void missingPathGivesAnEmptyList();
    void pathOfAFileGivesAnEmptyList();

    void touchMakesAnEntryThePath();
    void nextTouchReplacesTheLastComponent();
    void firstTouchAtAPathWithoutASlashReplacesItsName();
    void touchAtTheRoot_data();
    void touchAtTheRoot();
    void touchHighlightsTheLine();
    void touchOfTheSelectedLineKeepsTheStyles();
    void touchDoesNotRebuildTheList();

    void downOpensADirectory();
    void downOnAFileChangesNothing();
    void downAtAPathWithItsSlashReadsItAnew();
    void downOnDotDotIsLiteral();
    void upAfterDownFirstTakesTheSlashOff();
    void upStopsAtTheStick();
    void slashOfTheStickIsNoFloor();
    void upClimbsToTheRoot();
    void upFromATouchedFileShowsItsDirectory();

    void oldLinesStayAliveOutOfSight();
    void selectedLineOfAnOldListIsRestyledByTheNextTouch();
    void pathLineIsConnectedToNothing();

    void thousandsOfEntries();
    void unreadableDirectoryShowsNothing();
    void unreadableFolderCannotBeOpenedFurther();
    void pathThatVanishes_data();
    void pathThatVanishes();
    void listIsReadAnewEachTime_data();
    void listIsReadAnewEachTime();
    void slotsCalledByNobodyAreHarmless();

private:
    QString tree() const { return home() + "/tree"; }
};

void TestFileDialog::init()
{
    FilarixTest::init();
    DeviceLog::reset();
    QDir().mkpath("/mnt/Storage");
    emptyFolder("/mnt/Storage");
    writeFile(tree() + "/alpha.cnc", "x");
    writeFile(tree() + "/beta.cnc", "x");
    writeFile(tree() + "/folder/inner.cnc", "x");
}

void TestFileDialog::isAnOrdinaryDialogWithTheFlagsAsked()
{
    QWidget parent;
    FileDialog dialog(everything(), "Choose", tree(), &parent, Qt::WindowTitleHint);
    QCOMPARE(dialog.windowTitle(), QString("Choose"));
    QCOMPARE(QByteArray(dialog.metaObject()->superClass()->className()), QByteArray("QDialog"));
    QCOMPARE(dialog.parentWidget(), &parent);
    QCOMPARE(dialog.windowFlags(), QDialog(nullptr, Qt::WindowTitleHint).windowFlags());
}

void TestFileDialog::layoutStandsAsLaidOut()
{
    Browser browser(tree());
    QVBoxLayout *rows = qobject_cast<QVBoxLayout *>(browser.dialog.layout());
    QVERIFY(rows);
    QCOMPARE(rows->count(), 6);
    QLabel *title = qobject_cast<QLabel *>(rows->itemAt(0)->widget());
    QVERIFY(title);
    QCOMPARE(title->text(), QString("Title"));

    QHBoxLayout *pathRow = qobject_cast<QHBoxLayout *>(rows->itemAt(1)->layout());
    QVERIFY(pathRow);
    QCOMPARE(pathRow->count(), 2);
    QCOMPARE(qobject_cast<QLabel *>(pathRow->itemAt(0)->widget())->text(), QString("Path: "));
    QCOMPARE(pathRow->itemAt(1)->widget(), static_cast<QWidget *>(browser.pathEdit));
    QVERIFY(!browser.pathEdit->isNumeric());
    QVERIFY(!browser.pathEdit->validator());

    QVERIFY(rows->itemAt(2)->spacerItem());
    QCOMPARE(rows->itemAt(2)->sizeHint().height(), 10);
    QCOMPARE(rows->itemAt(3)->widget(), static_cast<QWidget *>(browser.area));
    QVERIFY(browser.area->widgetResizable());
    QVERIFY(browser.list);
    QVERIFY(rows->itemAt(4)->spacerItem());
    QCOMPARE(rows->itemAt(4)->sizeHint().height(), 10);

    QHBoxLayout *buttons = qobject_cast<QHBoxLayout *>(rows->itemAt(5)->layout());
    QVERIFY(buttons);
    QStringList texts;
    for (int i = 0; i < buttons->count(); ++i)
        texts << qobject_cast<QPushButton *>(buttons->itemAt(i)->widget())->text();
    QCOMPARE(texts, QStringList() << "<<"
                                  << ">>"
                                  << "OK"
                                  << "Cancel");
}

// Runs on screens of several sizes.
void TestFileDialog::screenDecidesOnTheSize()
{
    const QSize screen = QApplication::desktop()->availableGeometry(-1).size();
    const int width = qMin(screen.width(), 440);
    struct
    {
        int screenHeight;
        int dialogHeight;
        int partHeight;
        int pathLabelWidth;
        int lineHeight;
    } const expectations[] = {
        {240, 200, 20, width / 12, 15}, {272, 200, 22, width / 12, 17},
        {450, 200, 37, width / 12, 28}, {451, 400, 37, width / 12, 28},
        {480, 400, 40, width / 12, 30}, {481, 240, 20, width / 14, 20},
        {600, 300, 25, width / 14, 25}, {800, 400, 33, width / 14, 33},
    };
    bool isKnown = false;
    Browser browser(tree());
    for (const auto &expected : expectations) {
        if (expected.screenHeight != screen.height())
            continue;
        isKnown = true;
        QCOMPARE(browser.dialog.minimumSize(), QSize(width, expected.dialogHeight));
        QCOMPARE(browser.dialog.maximumSize(), QSize(width, expected.dialogHeight));
        QVBoxLayout *rows = qobject_cast<QVBoxLayout *>(browser.dialog.layout());
        QWidget *title = rows->itemAt(0)->widget();
        QWidget *pathLabel = rows->itemAt(1)->layout()->itemAt(0)->widget();
        QWidget *const parts[] = {title,        pathLabel,  browser.pathEdit, browser.up,
                                  browser.down, browser.ok, browser.cancel};
        for (QWidget *part : parts) {
            QCOMPARE(part->minimumHeight(), expected.partHeight);
            QCOMPARE(part->maximumHeight(), expected.partHeight);
        }
        QCOMPARE(pathLabel->minimumWidth(), expected.pathLabelWidth);
        QCOMPARE(pathLabel->maximumWidth(), expected.pathLabelWidth);
        QPushButton *const buttons[] = {browser.up, browser.down, browser.ok, browser.cancel};
        for (QPushButton *button : buttons) {
            QCOMPARE(button->minimumWidth(), width / 8);
            QCOMPARE(button->maximumWidth(), width / 8);
        }
        QCOMPARE(browser.line(0)->minimumHeight(), expected.lineHeight);
        QCOMPARE(browser.line(0)->maximumHeight(), expected.lineHeight);
        QCOMPARE(browser.list->height(), 3 * expected.lineHeight);
    }
    QVERIFY2(isKnown, QByteArray::number(screen.height()));
}

void TestFileDialog::textsAreTranslatedInTheClassesContext()
{
    const TestCompat::MarkingTranslator translator("FileDialog");
    Browser browser(tree());
    QCOMPARE(browser.up->text(), QString("<<*"));
    QCOMPARE(browser.down->text(), QString(">>*"));
    QCOMPARE(browser.ok->text(), QString("OK*"));
    QCOMPARE(browser.cancel->text(), QString("Cancel*"));
    QLayout *pathRow = browser.dialog.layout()->itemAt(1)->layout();
    QCOMPARE(qobject_cast<QLabel *>(pathRow->itemAt(0)->widget())->text(), QString("Path: *"));
}

void TestFileDialog::startPath_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("start");
    QTest::newRow("absolute") << "/tmp/home"
                              << "/tmp/home";
    QTest::newRow("absolute with slash") << "/tmp/home/"
                                         << "/tmp/home/";
    QTest::newRow("root") << "/"
                          << "/";
    QTest::newRow("empty") << ""
                           << "/mnt/Storage/";
    QTest::newRow("relative") << "programs"
                              << "/mnt/Storage/programs";
    QTest::newRow("relative to the parent") << "../x"
                                            << "/mnt/Storage/../x";
    QTest::newRow("home sign is a name") << "~"
                                         << "/mnt/Storage/~";
}

void TestFileDialog::startPath()
{
    QFETCH(QString, path);
    Browser browser(path);
    QTEST(browser.path(), "start");
}

void TestFileDialog::constructionForgetsThePathBefore()
{
    FileDialog::m_returnStr = "/from/before";
    Browser browser(tree());
    QCOMPARE(FileDialog::m_returnStr, tree());
}

// Hosts go on where the operator stopped: the shared string itself is what they pass.
void TestFileDialog::pathBeforeCanBeTheNextStart()
{
    FileDialog::m_returnStr = tree() + '/';
    Browser browser(FileDialog::m_returnStr);
    QCOMPARE(browser.path(), tree() + '/');

    ModalDriver driver;
    driver.then([](QWidget *dialog) { static_cast<QDialog *>(dialog)->accept(); });
    QCOMPARE(FileDialog::getOpenFileName(nullptr, "Title", FileDialog::m_returnStr, everything()),
             tree() + '/');
    QVERIFY2(driver.finished(), driver.report());
}

void TestFileDialog::okAtOnceGivesTheStartPath_data()
{
    startPath_data();
}

void TestFileDialog::okAtOnceGivesTheStartPath()
{
    QFETCH(QString, path);
    ModalDriver driver;
    const auto pressOk = [](QWidget *dialog) {
        dialog->findChildren<QPushButton *>().value(2)->click();
    };
    driver.then(pressOk);
    QTEST(FileDialog::getOpenFileName(nullptr, "Title", path, everything()), "start");
    driver.then(pressOk);
    QTEST(FileDialog::getExistingDirectory(nullptr, "Title", path, everything()), "start");
    QVERIFY2(driver.finished(), driver.report());
}

void TestFileDialog::cancelGivesAnEmptyString_data()
{
    QTest::addColumn<bool>("openFile");
    QTest::newRow("getOpenFileName") << true;
    QTest::newRow("getExistingDirectory") << false;
}

void TestFileDialog::cancelGivesAnEmptyString()
{
    QFETCH(bool, openFile);
    ModalDriver driver;
    driver.then([](QWidget *dialog) {
        QTest::mouseClick(dialog->findChildren<Label *>().first(), Qt::LeftButton);
        dialog->findChildren<QPushButton *>().value(3)->click();
    });
    const QString path = tree() + '/';
    const QString result =
        openFile ? FileDialog::getOpenFileName(nullptr, "Title", path, everything())
                 : FileDialog::getExistingDirectory(nullptr, "Title", path, everything());
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(result, QString());
    QCOMPARE(FileDialog::m_returnStr, tree() + "/alpha.cnc");
}

namespace {

class StayingDialog : public FileDialog
{
public:
    explicit StayingDialog(const QString &path)
        : FileDialog(everything(), "Title", path, nullptr, Qt::WindowTitleHint)
    {}
    void accept() override { calls << "accept"; }
    void reject() override { calls << "reject"; }
    QStringList calls;
};

} // namespace

void TestFileDialog::okAndCancelEndAsTheDerivedClassDoes()
{
    StayingDialog dialog(tree());
    dialog.show();
    dialog.findChildren<QPushButton *>().value(2)->click();
    dialog.findChildren<QPushButton *>().value(3)->click();
    QCOMPARE(dialog.calls, QStringList() << "accept"
                                         << "reject");
    QVERIFY(dialog.isVisible());
}

void TestFileDialog::staticFunctionsPassTheirArguments_data()
{
    cancelGivesAnEmptyString_data();
}

void TestFileDialog::staticFunctionsPassTheirArguments()
{
    QFETCH(bool, openFile);
    QWidget parent;
    ModalDriver driver;
    QPointer<QWidget> shown;
    driver.then([&](QWidget *dialog) {
        shown = dialog;
        // Before all else: a comparison that fails must not leave it open.
        static_cast<QDialog *>(dialog)->accept();
        QCOMPARE(QByteArray(dialog->metaObject()->className()), QByteArray("FileDialog"));
        QCOMPARE(dialog->windowTitle(), QString("Pick one"));
        QCOMPARE(dialog->parentWidget(), &parent);
        QCOMPARE(dialog->windowFlags(),
                 FileDialog(QDir::Dirs, "x", tree(), nullptr, Qt::WindowTitleHint).windowFlags());
        QList<Label *> lines = dialog->findChildren<Label *>();
        QCOMPARE(lines.size(), 1);
        QCOMPARE(lines.first()->text(), QString("folder"));
    });
    const QDir::Filters filter = QDir::Dirs | QDir::NoDotAndDotDot;
    if (openFile)
        FileDialog::getOpenFileName(&parent, "Pick one", tree(), filter);
    else
        FileDialog::getExistingDirectory(&parent, "Pick one", tree(), filter);
    QVERIFY2(driver.finished(), driver.report());
    QVERIFY(shown.isNull());
}

void TestFileDialog::listIsSortedByNameIgnoringCase()
{
    writeFile(tree() + "/Bravo.cnc", "x");
    writeFile(tree() + "/ALPHA.txt", "x");
    Browser browser(tree());
    QCOMPARE(browser.names(), QStringList() << "alpha.cnc"
                                            << "ALPHA.txt"
                                            << "beta.cnc"
                                            << "Bravo.cnc"
                                            << "folder");
    QCOMPARE(browser.names(), QDir(tree()).entryList(everything()));
}

void TestFileDialog::filterDecidesWhatIsListed_data()
{
    QTest::addColumn<int>("filter");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("files") << int(QDir::Files)
                           << (QStringList() << "alpha.cnc"
                                             << "beta.cnc");
    QTest::newRow("directories without dots")
        << int(QDir::Dirs | QDir::NoDotAndDotDot) << QStringList("folder");
    QTest::newRow("directories with dots") << int(QDir::Dirs)
                                           << (QStringList() << "."
                                                             << ".."
                                                             << "folder");
    QTest::newRow("hidden files too") << int(QDir::Files | QDir::Hidden)
                                      << (QStringList() << ".hidden"
                                                        << "alpha.cnc"
                                                        << "beta.cnc");
}

void TestFileDialog::filterDecidesWhatIsListed()
{
    QFETCH(int, filter);
    writeFile(tree() + "/.hidden", "x");
    Browser browser(tree(), QDir::Filters(filter));
    QTEST(browser.names(), "names");
}

void TestFileDialog::namesOfAnyKindAreShownAsTheyAre()
{
    const QStringList names = QStringList()
                              << " leading blank"
                              << "two  blanks"
                              << ".hidden"
                              << "..."
                              << "<b>markup<br>"
                              << "&mnemonic" << QString::fromUtf8("K\xc3\xbchlung \xe7\xbb\x95.cnc")
                              << "line\nbreak"
                              << "back\\slash" << QString(255, 'x');
    emptyFolder(tree());
    Q_FOREACH (const QString &name, names)
        writeFile(tree() + '/' + name, "x");
    Browser browser(tree() + '/', QDir::Files | QDir::Hidden);
    QStringList shown = browser.names();
    QStringList expected = names;
    shown.sort();
    expected.sort();
    QCOMPARE(shown, expected);
    Q_FOREACH (const QString &name, names) {
        QVERIFY(browser.touch(name));
        QCOMPARE(FileDialog::m_returnStr, tree() + '/' + name);
        QVERIFY(QFile::exists(FileDialog::m_returnStr));
        QCOMPARE(browser.line(name)->textFormat(), Qt::PlainText);
    }
    QVERIFY(QDir(tree()).mkdir("a folder"));
    Browser folders(tree() + '/');
    QVERIFY(folders.touch("a folder"));
    folders.down->click();
    QCOMPARE(folders.path(), tree() + "/a folder/");
}

void TestFileDialog::linesAreStyledLabels()
{
    Browser browser(tree());
    browser.dialog.show();
    QCOMPARE(browser.list->ListWidget::count(), 3);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(browser.line(i)->styleSheet(), QString(plainLine));
        QVERIFY(browser.line(i)->isVisible());
    }
    QVERIFY(browser.list->isVisible());
    // The paged list's own rows are not used.
    QCOMPARE(browser.list->count(), 0);
}

void TestFileDialog::missingPathGivesAnEmptyList()
{
    Browser browser("/nowhere/at/all");
    browser.dialog.show();
    QCOMPARE(browser.names(), QStringList());
    QVERIFY(browser.list->isVisible());
    browser.down->click();
    QCOMPARE(browser.path(), QString("/nowhere/at/all"));
}

void TestFileDialog::pathOfAFileGivesAnEmptyList()
{
    Browser browser(tree() + "/alpha.cnc");
    QCOMPARE(browser.names(), QStringList());
}

void TestFileDialog::touchMakesAnEntryThePath()
{
    Browser browser(tree() + '/');
    QVERIFY(browser.touch("beta.cnc"));
    QCOMPARE(browser.path(), tree() + "/beta.cnc");
}

void TestFileDialog::nextTouchReplacesTheLastComponent()
{
    Browser browser(tree() + '/');
    QVERIFY(browser.touch("beta.cnc"));
    QVERIFY(browser.touch("folder"));
    QCOMPARE(browser.path(), tree() + "/folder");
    QVERIFY(browser.touch("alpha.cnc"));
    QCOMPARE(browser.path(), tree() + "/alpha.cnc");
}

// The directory is listed all the same.
void TestFileDialog::firstTouchAtAPathWithoutASlashReplacesItsName()
{
    Browser browser(tree());
    QCOMPARE(browser.names().size(), 3);
    QVERIFY(browser.touch("beta.cnc"));
    QCOMPARE(browser.path(), home() + "/beta.cnc");
}

void TestFileDialog::touchAtTheRoot_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("path");
    QTest::newRow("root") << "/"
                          << "/usr";
    // The first component of a path is an entry of the root.
    QTest::newRow("entry of the root, as after a touch there") << "/tmp"
                                                               << "//home";
}

void TestFileDialog::touchAtTheRoot()
{
    QFETCH(QString, start);
    QFETCH(QString, path);
    Browser browser(start);
    QVERIFY(browser.touch(path.section('/', -1)));
    QCOMPARE(browser.path(), path);
}

void TestFileDialog::touchHighlightsTheLine()
{
    Browser browser(tree() + '/');
    QVERIFY(browser.touch("alpha.cnc"));
    QCOMPARE(browser.line("alpha.cnc")->styleSheet(), QString(selectedLine));
    QVERIFY(browser.touch("beta.cnc"));
    QCOMPARE(browser.line("alpha.cnc")->styleSheet(), QString(plainLine));
    QCOMPARE(browser.line("beta.cnc")->styleSheet(), QString(selectedLine));
    QCOMPARE(browser.line("folder")->styleSheet(), QString(plainLine));
}

void TestFileDialog::touchOfTheSelectedLineKeepsTheStyles()
{
    Browser browser(tree() + '/');
    QVERIFY(browser.touch("alpha.cnc"));
    browser.line("alpha.cnc")->setStyleSheet("color: red;");
    QVERIFY(browser.touch("alpha.cnc"));
    QCOMPARE(browser.line("alpha.cnc")->styleSheet(), QString("color: red;"));
    QCOMPARE(browser.path(), tree() + "/alpha.cnc");
}

void TestFileDialog::touchDoesNotRebuildTheList()
{
    Browser browser(tree() + '/');
    Label *first = browser.line(0);
    QVERIFY(browser.touch("folder"));
    QCOMPARE(browser.line(0), first);
    QCOMPARE(browser.names().size(), 3);
}

void TestFileDialog::downOpensADirectory()
{
    Browser browser(tree() + '/');
    QVERIFY(browser.touch("folder"));
    browser.down->click();
    QCOMPARE(browser.path(), tree() + "/folder/");
    QCOMPARE(browser.names(), QStringList("inner.cnc"));
    QVERIFY(browser.touch("inner.cnc"));
    QCOMPARE(browser.path(), tree() + "/folder/inner.cnc");
}

void TestFileDialog::downOnAFileChangesNothing()
{
    Browser browser(tree() + '/');
    QVERIFY(browser.touch("beta.cnc"));
    Label *first = browser.line(0);
    browser.down->click();
    QCOMPARE(browser.path(), tree() + "/beta.cnc");
    QCOMPARE(browser.line(0), first);
    ModalDriver driver;
    driver.then([&browser](QWidget *) { browser.ok->click(); });
    QCOMPARE(browser.dialog.exec(), int(QDialog::Accepted));
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(FileDialog::m_returnStr, tree() + "/beta.cnc");
}

void TestFileDialog::downAtAPathWithItsSlashReadsItAnew()
{
    Browser browser(tree() + '/');
    writeFile(tree() + "/new.cnc", "x");
    browser.down->click();
    QCOMPARE(browser.path(), tree() + '/');
    QVERIFY(browser.names().contains("new.cnc"));
    QVERIFY(browser.list->isVisibleTo(&browser.dialog));
}

void TestFileDialog::downOnDotDotIsLiteral()
{
    Browser browser(tree() + "/folder/", QDir::AllEntries);
    QVERIFY(browser.touch(".."));
    browser.down->click();
    QCOMPARE(browser.path(), tree() + "/folder/../");
    QVERIFY(browser.names().contains("alpha.cnc"));
}

void TestFileDialog::upAfterDownFirstTakesTheSlashOff()
{
    Browser browser(tree() + '/');
    QVERIFY(browser.touch("folder"));
    browser.down->click();
    browser.up->click();
    QCOMPARE(browser.path(), tree() + "/folder");
    QCOMPARE(browser.names(), QStringList("inner.cnc"));
    browser.up->click();
    QCOMPARE(browser.path(), tree());
    QVERIFY(browser.names().contains("alpha.cnc"));
}

void TestFileDialog::upStopsAtTheStick()
{
    writeFile("/mnt/Storage/programs/part.cnc", "x");
    Browser browser("programs");
    QCOMPARE(browser.names(), QStringList("part.cnc"));
    browser.up->click();
    QCOMPARE(browser.path(), QString("/mnt/Storage"));
    QCOMPARE(browser.names(), QStringList("programs"));
    for (int i = 0; i < 3; ++i) {
        Label *first = browser.line(0);
        browser.up->click();
        QCOMPARE(browser.path(), QString("/mnt/Storage"));
        // The floor reads its list anew.
        QVERIFY(browser.line(0) != first);
    }
}

void TestFileDialog::slashOfTheStickIsNoFloor()
{
    Browser browser("");
    QCOMPARE(browser.path(), QString("/mnt/Storage/"));
    browser.up->click();
    QCOMPARE(browser.path(), QString("/mnt/Storage"));
    browser.up->click();
    QCOMPARE(browser.path(), QString("/mnt/Storage"));
}

void TestFileDialog::upClimbsToTheRoot()
{
    Browser browser(tree());
    const QStringList above = QStringList() << "/tmp/home"
                                            << "/tmp"
                                            << "/"
                                            << "/";
    Q_FOREACH (const QString &path, above) {
        browser.up->click();
        QCOMPARE(browser.path(), path);
    }
    QVERIFY(browser.names().contains("usr"));
}

void TestFileDialog::upFromATouchedFileShowsItsDirectory()
{
    Browser browser(tree() + "/folder/");
    QVERIFY(browser.touch("inner.cnc"));
    browser.up->click();
    QCOMPARE(browser.path(), tree() + "/folder");
    QCOMPARE(browser.names(), QStringList("inner.cnc"));
}

void TestFileDialog::oldLinesStayAliveOutOfSight()
{
    QScopedPointer<Browser> opened(new Browser(tree() + '/'));
    Browser &browser = *opened;
    browser.dialog.show();
    QList<QPointer<Label>> old;
    for (int i = 0; i < 3; ++i)
        old << browser.line(i);
    QVERIFY(browser.touch("folder"));
    browser.down->click();
    QCOMPARE(browser.dialog.findChildren<Label *>().size(), 4);
    Q_FOREACH (const QPointer<Label> &line, old) {
        QVERIFY(line);
        QVERIFY(!line->isVisible());
        QCOMPARE(line->parentWidget(), static_cast<QWidget *>(browser.list));
    }
    browser.up->click();
    QCOMPARE(browser.dialog.findChildren<Label *>().size(), 5);
    QVERIFY(browser.line(0)->isVisible());
    opened.reset();
    Q_FOREACH (const QPointer<Label> &line, old)
        QVERIFY(!line);
}

void TestFileDialog::selectedLineOfAnOldListIsRestyledByTheNextTouch()
{
    Browser browser(tree() + '/');
    QVERIFY(browser.touch("folder"));
    QPointer<Label> old = browser.line("folder");
    browser.down->click();
    QCOMPARE(old->styleSheet(), QString(selectedLine));
    QVERIFY(browser.touch("inner.cnc"));
    QCOMPARE(old->styleSheet(), QString(plainLine));
    QCOMPARE(browser.line(0)->styleSheet(), QString(selectedLine));
}

void TestFileDialog::pathLineIsConnectedToNothing()
{
    Browser browser(tree() + '/');
    DeviceLog::acceptWith("/usr");
    QTest::mouseClick(browser.pathEdit, Qt::LeftButton);
    QVERIFY(DeviceLog::keypadCalls().contains("CharacterKeypad.exec"));
    QCOMPARE(browser.pathEdit->text(), QString("/usr"));
    QCOMPARE(FileDialog::m_returnStr, tree() + '/');
    QVERIFY(browser.touch("alpha.cnc"));
    QCOMPARE(browser.path(), tree() + "/alpha.cnc");
}

void TestFileDialog::thousandsOfEntries()
{
    const int entries = scaled(10000);
    const QString name = QString::fromLatin1("part %1.cnc");
    for (int i = 0; i < entries; ++i)
        writeFile(tree() + "/many/" + name.arg(i, 5, 10, QChar('0')), "");
    const QString last = name.arg(entries - 1, 5, 10, QChar('0'));
    Browser browser(tree() + "/many/");
    browser.dialog.show();
    QCOMPARE(browser.list->ListWidget::count(), entries);
    QCOMPARE(browser.line(entries - 1)->text(), last);
    QCOMPARE(browser.list->height(), entries * browser.line(0)->height());
    browser.area->ensureWidgetVisible(browser.line(entries - 1));
    QVERIFY(browser.touch(last));
    QCOMPARE(browser.path(), tree() + "/many/" + last);
    // All lines have to go again.
    emptyFolder(tree() + "/many");
    browser.up->click();
    QCOMPARE(browser.path(), tree() + "/many");
    QCOMPARE(browser.names(), QStringList());
}

void TestFileDialog::unreadableDirectoryShowsNothing()
{
    QVERIFY(QFile::setPermissions(tree() + "/folder", QFile::Permissions()));
    Browser browser(tree() + '/');
    QVERIFY(browser.touch("folder"));
    browser.down->click();
    QCOMPARE(browser.names(), QStringList());
    QCOMPARE(browser.path(), tree() + "/folder/");
    browser.up->click();
    browser.up->click();
    QVERIFY(browser.names().contains("folder"));
    QVERIFY(QFile::setPermissions(tree() + "/folder",
                                  QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

// What may be listed but not entered.
void TestFileDialog::unreadableFolderCannotBeOpenedFurther()
{
    writeFile(tree() + "/folder/deep/x.cnc", "x");
    QVERIFY(QFile::setPermissions(tree() + "/folder", QFile::ReadOwner));
    Browser browser(tree() + "/folder/deep");
    QCOMPARE(browser.names(), QStringList());
    browser.down->click();
    QCOMPARE(browser.path(), tree() + "/folder/deep");
    QVERIFY(QFile::setPermissions(tree() + "/folder",
                                  QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

void TestFileDialog::pathThatVanishes_data()
{
    QTest::addColumn<int>("filter");
    QTest::newRow("of any filter") << int(everything());
    QTest::newRow("of the toolkit's own filter") << int(QDir::NoFilter);
}

void TestFileDialog::pathThatVanishes()
{
    QFETCH(int, filter);
    Browser browser(tree() + '/', QDir::Filters(filter));
    browser.dialog.show();
    QVERIFY(browser.touch("folder"));
    emptyFolder(tree());
    // The directory is gone before it is opened.
    browser.down->click();
    QCOMPARE(browser.path(), tree() + "/folder");
    // A line of something that is gone can still be touched.
    QVERIFY(browser.touch("alpha.cnc"));
    QCOMPARE(browser.path(), tree() + "/alpha.cnc");
    QVERIFY(QDir().rmdir(tree()));
    browser.up->click();
    QCOMPARE(browser.path(), tree());
    QCOMPARE(browser.names(), QStringList());
    browser.up->click();
    QCOMPARE(browser.path(), home());
    QVERIFY(!browser.names().contains("tree"));
    browser.ok->click();
    QCOMPARE(FileDialog::m_returnStr, home());
}

void TestFileDialog::listIsReadAnewEachTime_data()
{
    pathThatVanishes_data();
}

void TestFileDialog::listIsReadAnewEachTime()
{
    QFETCH(int, filter);
    writeFile("/mnt/Storage/first.cnc", "x");
    Browser browser("/mnt/Storage", QDir::Filters(filter));
    QVERIFY(browser.names().contains("first.cnc"));
    QVERIFY(QFile::remove("/mnt/Storage/first.cnc"));
    writeFile("/mnt/Storage/second.cnc", "x");
    browser.dialog.getDirList();
    QVERIFY(!browser.names().contains("first.cnc"));
    QVERIFY(browser.names().contains("second.cnc"));
    // The floor keeps its path, and still reads its list.
    writeFile("/mnt/Storage/third.cnc", "x");
    browser.up->click();
    QVERIFY(browser.names().contains("third.cnc"));
}

void TestFileDialog::slotsCalledByNobodyAreHarmless()
{
    Browser browser(tree() + '/');
    browser.dialog.on_line_click();
    QCOMPARE(browser.path(), tree() + '/');
    // A host may write the shared path while no dialog is open, and even while one is.
    FileDialog::m_returnStr = "no slash";
    browser.up->click();
    QCOMPARE(browser.path(), QString("/"));
}

FILARIX_TEST_MAIN(TestFileDialog)
#include "tst_filedialog.moc"
