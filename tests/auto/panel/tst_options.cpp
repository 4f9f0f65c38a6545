// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "options.h"

#include <QDir>

class TestOptions : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void withoutOptionsThePanelRunsAsItIs();
    void allOptionsAreRead();
    void aTourHasAHomeOfItsOwn();
    void programDirectory_data();
    void programDirectory();
    void surface_data();
    void surface();
    void surfaceOnADisplay_data();
    void surfaceOnADisplay();
    void refused_data();
    void refused();
    void helpTellsEveryOption();
};

static Options parse(const QStringList &arguments)
{
    return Options::parse(QStringList("filarix-panel") + arguments);
}

void TestOptions::withoutOptionsThePanelRunsAsItIs()
{
    const Options options = parse(QStringList());
    QCOMPARE(options.outcome, Options::Run);
    QCOMPARE(options.rotation, 0);
    QCOMPARE(options.turn, 0);
    QVERIFY(!options.size.isValid());
    QVERIFY(options.touch);
    QCOMPARE(options.look, QString());
    QCOMPARE(options.dotsPerInch, 0.0);
    QCOMPARE(options.textSize, QString());
    QCOMPARE(options.home(), QString());
    QCOMPARE(options.plcDir, QString());
    QCOMPARE(options.tourDir, QString());
    QCOMPARE(options.language, QString());
    QCOMPARE(options.profile, QString());
}

void TestOptions::allOptionsAreRead()
{
    const Options options = parse({"--rotation", "270",          "--rotate",
                                   "90",         "--size",       "480x800",
                                   "--no-touch", "--look",       "dark",
                                   "--programs", "/srv/hmi/cnc", "--plc=/srv/plc",
                                   "--stick",    "/srv/stick",   "--language",
                                   "zh_CN",      "--profile",    "/srv/machine.ini",
                                   "--dpi",      "130.5",        "--text-size",
                                   "150"});
    QCOMPARE(options.outcome, Options::Run);
    QCOMPARE(options.rotation, 270);
    QCOMPARE(options.turn, 90);
    QCOMPARE(options.size, QSize(480, 800));
    QVERIFY(!options.touch);
    QCOMPARE(options.look, QString("dark"));
    QCOMPARE(options.dotsPerInch, 130.5);
    QCOMPARE(options.textSize, QString("150"));
    QCOMPARE(options.programDir, QString("/srv/hmi/cnc"));
    QCOMPARE(options.plcDir, QString("/srv/plc"));
    QCOMPARE(options.stickDir, QString("/srv/stick"));
    QCOMPARE(options.plcFolder(), QString("/srv/plc"));
    QCOMPARE(options.language, QString("zh_CN"));
    QCOMPARE(options.profile, QString("/srv/machine.ini"));
}

// It would change what it finds there.
void TestOptions::aTourHasAHomeOfItsOwn()
{
    const Options options = parse({"--tour", "pictures", "--stick", "/srv/stick"});
    QCOMPARE(options.outcome, Options::Run);
    QCOMPARE(options.tourDir, QDir::currentPath() + "/pictures");
    QCOMPARE(options.plcFolder(), QDir::homePath() + "/plc");
    for (const char *folder : {"--programs", "--plc"}) {
        const Options refused = parse({"--tour", "pictures", folder, "/srv"});
        QCOMPARE(refused.outcome, Options::Refuse);
        QVERIFY(refused.text.contains(folder));
    }
}

void TestOptions::programDirectory_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("directory");
    QTest::addColumn<QString>("home");
    QTest::newRow("named cnc") << "/srv/hmi/cnc"
                               << "/srv/hmi/cnc"
                               << "/srv/hmi";
    QTest::newRow("named cnc, with a slash") << "/srv/hmi/cnc/"
                                             << "/srv/hmi/cnc"
                                             << "/srv/hmi";
    QTest::newRow("another name") << "/srv/hmi"
                                  << "/srv/hmi/cnc"
                                  << "/srv/hmi";
    QTest::newRow("another case") << "/srv/CNC"
                                  << "/srv/CNC/cnc"
                                  << "/srv/CNC";
    QTest::newRow("relative") << "a/../b" << QDir::currentPath() + "/b/cnc"
                              << QDir::currentPath() + "/b";
    QTest::newRow("the root") << "/"
                              << "/cnc"
                              << "/";
}

void TestOptions::programDirectory()
{
    QFETCH(QString, given);
    const Options options = parse({"--programs", given});
    QTEST(options.programDir, "directory");
    QTEST(options.home(), "home");
}

void TestOptions::surface_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QSize>("size");
    QTest::newRow("lying") << QStringList() << QSize(800, 480);
    QTest::newRow("upside down") << QStringList{"--rotation", "180"} << QSize(800, 480);
    QTest::newRow("upright") << QStringList{"--rotation", "90"} << QSize(480, 800);
    QTest::newRow("given") << QStringList{"--rotation", "90", "--size", "1024x600"}
                           << QSize(1024, 600);
    QTest::newRow("smallest") << QStringList{"--size", "480x272"} << QSize(480, 272);
    QTest::newRow("smallest, upright") << QStringList{"--size", "272x480"} << QSize(272, 480);
}

void TestOptions::surface()
{
    QFETCH(QStringList, arguments);
    const Options options = parse(arguments);
    QCOMPARE(options.outcome, Options::Run);
    QTEST(options.surfaceSize(), "size");
}

void TestOptions::surfaceOnADisplay_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QSize>("size");
    QTest::newRow("the display") << QStringList() << QSize(800, 480);
    QTest::newRow("mounted upright, turned by the display")
        << QStringList{"--rotation", "90"} << QSize(800, 480);
    QTest::newRow("turned") << QStringList{"--rotate", "90"} << QSize(480, 800);
    QTest::newRow("turned the other way") << QStringList{"--rotate", "270"} << QSize(480, 800);
    QTest::newRow("upside down") << QStringList{"--rotate", "180"} << QSize(800, 480);
    QTest::newRow("given") << QStringList{"--rotate", "90", "--size", "480x640"} << QSize(480, 640);
}

void TestOptions::surfaceOnADisplay()
{
    QFETCH(QStringList, arguments);
    const Options options = parse(arguments);
    QCOMPARE(options.outcome, Options::Run);
    QTEST(options.surfaceOn(QSize(800, 480)), "size");
}

void TestOptions::refused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("named");
    QTest::newRow("rotation between") << QStringList{"--rotation", "45"} << "45";
    QTest::newRow("rotation beyond") << QStringList{"--rotation", "360"} << "360";
    QTest::newRow("rotation negative") << QStringList{"--rotation=-90"} << "-90";
    QTest::newRow("rotation no number") << QStringList{"--rotation", "up"} << "up";
    QTest::newRow("turned between") << QStringList{"--rotate", "45"} << "45";
    QTest::newRow("turned beyond") << QStringList{"--rotate", "360"} << "360";
    QTest::newRow("size without a height") << QStringList{"--size", "800"} << "800";
    QTest::newRow("size negative") << QStringList{"--size", "-1x480"} << "-1x480";
    QTest::newRow("size too small") << QStringList{"--size", "320x240"} << "320x240";
    QTest::newRow("size with a tail") << QStringList{"--size", "800x480x3"} << "800x480x3";
    QTest::newRow("language of no file") << QStringList{"--language", "fr"} << "fr";
    QTest::newRow("no language") << QStringList{"--language", ""} << "language";
    QTest::newRow("empty directory") << QStringList{"--plc", ""} << "--plc";
    QTest::newRow("look of no kind") << QStringList{"--look", "grey"} << "grey";
    QTest::newRow("look half named") << QStringList{"--look", "high"} << "high-contrast";
    QTest::newRow("dots of no number") << QStringList{"--dpi", "fine"} << "fine";
    QTest::newRow("dots beyond sense") << QStringList{"--dpi", "4000"} << "4000";
    QTest::newRow("no dots") << QStringList{"--dpi", "0"} << "50";
    QTest::newRow("text size between") << QStringList{"--text-size", "110"} << "125";
    QTest::newRow("unknown option") << QStringList{"--turn"} << "turn";
    QTest::newRow("missing value") << QStringList{"--programs"} << "programs";
    QTest::newRow("stray word") << QStringList{"coil.cnc"} << "coil.cnc";
}

void TestOptions::refused()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, named);
    const Options options = parse(arguments);
    QCOMPARE(options.outcome, Options::Refuse);
    QVERIFY2(options.text.contains(named), qPrintable(options.text));
    QVERIFY(options.text.contains("--help"));
}

void TestOptions::helpTellsEveryOption()
{
    const Options options = parse({"--help"});
    QCOMPARE(options.outcome, Options::ShowText);
    for (const char *option : {"--rotation", "--rotate", "--size", "--no-touch", "--programs",
                               "--plc", "--stick", "--profile", "--tour", "--dpi", "--text-size"})
        QVERIFY2(options.text.contains(option), option);
    QVERIFY(options.text.contains("DIR/cnc"));
}

FILARIX_TEST_MAIN(TestOptions)
#include "tst_options.moc"
