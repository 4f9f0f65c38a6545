// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "modaldriver.h"
#include "shell/messagebar.h"
#include "shell/panelwindow.h"
#include "shell/settings.h"
#include "storage/settingsfile.h"

#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QSignalSpy>

#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>

namespace {

const QStringList colours{QLatin1String("red"), QLatin1String("green")};

QString file()
{
    return FilarixTest::home() + QLatin1String("/hmi/panel.ini");
}

QString aside(int number = 1)
{
    const QString first = file() + QLatin1String(".broken");
    return number == 1 ? first : first + QLatin1Char('.') + QString::number(number);
}

/// The file is written beside the event loop.
bool settled(Settings *settings)
{
    return settings->settle(FilarixTest::patience(10000));
}

/// What lies beside the settings.
QStringList files()
{
    return QDir(QFileInfo(file()).path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries);
}

} // namespace

class TestSettings : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void withoutAFileThereIsNoChoice();
    void aChoiceIsKept();
    void anEmptyPathKeepsNothing();
    void keysOfALaterVersionAreKept();

    void aBrokenFileIsPutAside_data();
    void aBrokenFileIsPutAside();
    void aDirectoryIsPutAside();
    void aPipeIsPutAsideUnread();
    void anUnknownValueIsPutAsideAndTheRestKept();
    void severalUnknownValuesAreOneTrouble();
    void earlierOnesAreNotOverwritten();
    void whereAllNamesAreTakenTheFileStays();

    void whereNothingCanBeWrittenItIsToldOnce();
    void aBrokenFileThatCannotBeRenamedStays();
    void ofManyChoicesTheLastStays();
    void aFullDiskIsToldAndLosesNothing();
    void aChoiceWinsOverTheFile();
    void oneValueIsChangedAndTheRestStays_data();
    void oneValueIsChangedAndTheRestStays();
    void theWindowTellsEachTroubleOnce();
};

void TestSettings::init()
{
    FilarixTest::init();
    QDir folder(QFileInfo(file()).path());
    QVERIFY(folder.removeRecursively());
    QVERIFY(folder.mkpath(folder.path()));
}

void TestSettings::withoutAFileThereIsNoChoice()
{
    Settings settings(file());
    QCOMPARE(settings.choice("colour", colours), QString());
    QCOMPARE(settings.takeTrouble(), QString());
    QCOMPARE(files(), QStringList());
}

void TestSettings::aChoiceIsKept()
{
    QVERIFY(QDir(QFileInfo(file()).path()).removeRecursively());
    {
        Settings settings(file());
        settings.setChoice("colour", "red");
        settings.setChoice("shape", "round");
        QCOMPARE(settings.choice("colour", colours), QString("red"));
        settings.setChoice("colour", "green");
        QVERIFY(settled(&settings));
        QCOMPARE(settings.takeTrouble(), QString());
    }
    Settings settings(file());
    QCOMPARE(settings.choice("colour", colours), QString("green"));
    QCOMPARE(settings.choice("shape", QStringList("round")), QString("round"));
    QCOMPARE(files(), QStringList("panel.ini"));
}

void TestSettings::anEmptyPathKeepsNothing()
{
    Settings settings((QString()));
    QCOMPARE(settings.choice("colour", colours), QString());
    settings.setChoice("colour", "red");
    QCOMPARE(settings.choice("colour", colours), QString("red"));
    QCOMPARE(settings.takeTrouble(), QString());
    QCOMPARE(files(), QStringList());
}

void TestSettings::keysOfALaterVersionAreKept()
{
    writeFile(file(), "[General]\nweight=heavy\n[later]\nlist=1, 2\n");
    {
        Settings settings(file());
        settings.setChoice("colour", "red");
        QCOMPARE(settings.takeTrouble(), QString());
    }
    Settings settings(file());
    QCOMPARE(settings.choice("weight", QStringList("heavy")), QString("heavy"));
    QVERIFY(readFile(file()).contains("[later]\nlist=1, 2\n"));
}

void TestSettings::aBrokenFileIsPutAside_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("prose") << QByteArray("colour is red\n");
    QTest::newRow("a line of prose") << QByteArray("[General]\ncolour=red\nand so on\n");
    QTest::newRow("half a section") << QByteArray("[General\ncolour=red\n");
    QTest::newRow("zeros") << QByteArray(4096, '\0');
    QTest::newRow("an executable") << QByteArray("\x7f"
                                                 "ELF\x02\x01\x01\n\xff\xfe\n");
    QTest::newRow("large") << QByteArray("[General]\ncolour=").append(QByteArray(65536, 'r'));
}

void TestSettings::aBrokenFileIsPutAside()
{
    QFETCH(QByteArray, bytes);
    writeFile(file(), bytes);
    {
        Settings settings(file());
        QCOMPARE(settings.choice("colour", colours), QString());
        QCOMPARE(settings.takeTrouble(),
                 QString("The settings file had errors and is now named %1. Please look over your "
                         "settings.")
                     .arg(aside()));
        QCOMPARE(settings.takeTrouble(), QString());
        QCOMPARE(readFile(aside()), bytes);
        QCOMPARE(files(), QStringList("panel.ini.broken"));
        settings.setChoice("colour", "green");
    }
    Settings settings(file());
    QCOMPARE(settings.choice("colour", colours), QString("green"));
    QCOMPARE(settings.takeTrouble(), QString());
    QCOMPARE(readFile(aside()), bytes);
}

void TestSettings::aDirectoryIsPutAside()
{
    QVERIFY(QDir().mkpath(file()));
    writeFile(file() + "/inside", "kept");
    Settings settings(file());
    QVERIFY(settings.takeTrouble().contains(aside()));
    QCOMPARE(readFile(aside() + "/inside"), QByteArray("kept"));
    settings.setChoice("colour", "green");
    QVERIFY(settled(&settings));
    QCOMPARE(settings.takeTrouble(), QString());
    QVERIFY(QFileInfo(file()).isFile());
}

void TestSettings::aPipeIsPutAsideUnread()
{
    QCOMPARE(mkfifo(QFile::encodeName(file()).constData(), 0600), 0);
    Settings settings(file());
    QVERIFY(settings.takeTrouble().contains(aside()));
    QCOMPARE(settings.choice("colour", colours), QString());
}

void TestSettings::anUnknownValueIsPutAsideAndTheRestKept()
{
    writeFile(file(), "[General]\ncolour=plaid\nshape=round\n");
    {
        Settings settings(file());
        QCOMPARE(settings.takeTrouble(), QString());
        QCOMPARE(settings.choice("shape", QStringList("round")), QString("round"));
        QCOMPARE(settings.choice("colour", colours), QString());
        QVERIFY(settled(&settings));
        QVERIFY(settings.takeTrouble().contains(aside()));
        QCOMPARE(readFile(aside()), QByteArray("[General]\ncolour=plaid\nshape=round\n"));
    }
    Settings settings(file());
    QCOMPARE(settings.choice("shape", QStringList("round")), QString("round"));
    QCOMPARE(settings.choice("colour", colours), QString());
    QCOMPARE(settings.takeTrouble(), QString());
    QCOMPARE(files(), QStringList({"panel.ini", "panel.ini.broken"}));
}

void TestSettings::severalUnknownValuesAreOneTrouble()
{
    writeFile(file(), "[General]\ncolour=plaid\nshape=, ,\nsize=@Invalid()\n");
    Settings settings(file());
    QCOMPARE(settings.choice("colour", colours), QString());
    QVERIFY(settled(&settings));
    QVERIFY(!settings.takeTrouble().isEmpty());
    QCOMPARE(settings.choice("shape", QStringList("round")), QString());
    QCOMPARE(settings.choice("size", QStringList("large")), QString());
    QVERIFY(settled(&settings));
    QCOMPARE(settings.takeTrouble(), QString());
    QVERIFY(!files().contains("panel.ini.broken.2"));
    QVERIFY(!readFile(file()).contains("="));
}

void TestSettings::earlierOnesAreNotOverwritten()
{
    for (int i = 1; i <= 3; ++i) {
        writeFile(file(), QByteArray(i, 'x'));
        Settings settings(file());
        QVERIFY(settings.takeTrouble().contains(aside(i) + '.'));
    }
    for (int i = 1; i <= 3; ++i)
        QCOMPARE(readFile(aside(i)), QByteArray(i, 'x'));
}

void TestSettings::whereAllNamesAreTakenTheFileStays()
{
    for (int i = 1; i <= 99; ++i)
        writeFile(aside(i), "old");
    writeFile(file(), "broken");
    Settings settings(file());
    QVERIFY(settings.takeTrouble().contains("cannot be renamed"));
    settings.setChoice("colour", "red");
    QVERIFY(settled(&settings));
    QCOMPARE(readFile(file()), QByteArray("broken"));
    QCOMPARE(files().size(), 100);
}

// The sandbox has all but the home read-only.
void TestSettings::whereNothingCanBeWrittenItIsToldOnce()
{
    Settings settings("/etc/filarix/panel.ini");
    QSignalSpy troubled(&settings, &Settings::troubled);
    settings.setChoice("colour", "red");
    QVERIFY(settled(&settings));
    QCOMPARE(troubled.count(), 1);
    QCOMPARE(settings.takeTrouble(),
             QString("The settings cannot be stored in /etc/filarix/panel.ini. What you choose "
                     "lasts until the program ends."));
    settings.setChoice("colour", "green");
    QVERIFY(settled(&settings));
    QCOMPARE(troubled.count(), 1);
    QCOMPARE(settings.takeTrouble(), QString());
    QCOMPARE(settings.choice("colour", colours), QString("green"));
}

void TestSettings::aBrokenFileThatCannotBeRenamedStays()
{
    QVERIFY(QFileInfo("/etc/passwd").isFile());
    Settings settings("/etc/passwd");
    QCOMPARE(settings.takeTrouble(),
             QString("The settings file /etc/passwd has errors and cannot be renamed. What you "
                     "choose lasts until the program ends."));
    settings.setChoice("colour", "red");
    QVERIFY(settled(&settings));
    QCOMPARE(settings.takeTrouble(), QString());
    QCOMPARE(settings.choice("colour", colours), QString("red"));
}

void TestSettings::ofManyChoicesTheLastStays()
{
    for (int i = 0; i <= 50; ++i) {
        Settings settings(file());
        for (const QString &colour : colours)
            settings.setChoice("colour", colour);
    }
    QCOMPARE(readFile(file()), QByteArray("[General]\ncolour=green\n"));
}

void TestSettings::aFullDiskIsToldAndLosesNothing()
{
    const QByteArray before("[General]\ncolour=red\nshape=round\n");
    writeFile(file(), before);
    struct rlimit own;
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &own), 0);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    struct rlimit none = own;
    none.rlim_cur = 8;
    Settings settings(file());
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &none), 0);
    settings.setChoice("colour", "green");
    const bool isSettled = settled(&settings);
    setrlimit(RLIMIT_FSIZE, &own);
    std::signal(SIGXFSZ, handler);
    QVERIFY(isSettled);
    QVERIFY(settings.takeTrouble().contains("cannot be stored"));
    QCOMPARE(readFile(file()), before);
    QCOMPARE(files(), QStringList("panel.ini"));
}

void TestSettings::aChoiceWinsOverTheFile()
{
    writeFile(file(), "[General]\ncolour=red\nshape=round\n");
    Settings settings(file());
    settings.setChoice("colour", "green");
    QVERIFY(settled(&settings));
    QCOMPARE(settings.choice("colour", colours), QString("green"));
    QCOMPARE(settings.choice("shape", QStringList("round")), QString("round"));
    QCOMPARE(readFile(file()), QByteArray("[General]\ncolour=green\nshape=round\n"));
}

void TestSettings::oneValueIsChangedAndTheRestStays_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QByteArray>("after");
    QTest::newRow("empty") << QByteArray() << "red" << QByteArray("[General]\ncolour=red\n");
    QTest::newRow("replaced") << QByteArray("[General]\ncolour=green\na=b\n") << "red"
                              << QByteArray("[General]\ncolour=red\na=b\n");
    QTest::newRow("taken away") << QByteArray("[General]\ncolour=green\na=b\n") << ""
                                << QByteArray("[General]\na=b\n");
    QTest::newRow("without its section")
        << QByteArray("a=b\n") << "red" << QByteArray("[General]\ncolour=red\na=b\n");
    QTest::newRow("of another section")
        << QByteArray("[later]\ncolour=green\n") << "red"
        << QByteArray("[General]\ncolour=red\n[later]\ncolour=green\n");
}

void TestSettings::oneValueIsChangedAndTheRestStays()
{
    QFETCH(QByteArray, before);
    QFETCH(QString, value);
    QFETCH(QByteArray, after);
    QCOMPARE(SettingsFile::changed(before, "colour", value), after);
}

void TestSettings::theWindowTellsEachTroubleOnce()
{
    writeFile(file(), "broken");
    Settings settings(file());
    PanelWindow window(QSize(480, 272));
    QCOMPARE(window.messageBar()->text(), QString());
    window.setSettings(&settings);
    window.show();
    QVERIFY(window.messageBar()->text().contains(aside()));
    // The strip of the smallest panel shows its beginning, a touch the whole.
    ModalDriver driver;
    driver.then([this](QWidget *dialog) {
        const QLabel *text = dialog->findChild<QLabel *>("text");
        QVERIFY(text->text().remove(QChar(0x200b)).contains(aside()));
        QVERIFY(text->heightForWidth(text->width()) <= text->height());
        dialog->close();
    });
    QTest::mouseClick(window.messageBar(), Qt::LeftButton);
    QVERIFY2(driver.finished(), driver.report());
    window.messages()->closeAll();

    // A folder that has come in the way since.
    QVERIFY(QDir().mkpath(file()));
    settings.setChoice("colour", "red");
    QVERIFY(settled(&settings));
    QVERIFY(window.messageBar()->text().contains("cannot be stored"));
    window.messages()->closeAll();
    settings.setChoice("colour", "green");
    QVERIFY(settled(&settings));
    QCOMPARE(window.messageBar()->text(), QString());
}

FILARIX_TEST_MAIN(TestSettings)

#include "tst_settings.moc"
