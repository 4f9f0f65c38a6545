// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "checkoptions.h"
#include "filarixtest.h"

#include <QStringList>

class TestCheckOptions : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void filesAndOptions();
    void filesMayLookLikeOptions();
    void nameOfAFileIsAnyBytes();
    void helpAndVersionAreShown_data();
    void helpAndVersionAreShown();
    void refused_data();
    void refused();
    void helpNamesEachOption();
};

static CheckOptions parsed(const QByteArray &line)
{
    return CheckOptions::parse(line.isEmpty() ? QList<QByteArray>() : line.split(' '));
}

void TestCheckOptions::filesAndOptions()
{
    const CheckOptions plain = parsed("a.cnc");
    QVERIFY(plain.outcome == CheckOptions::Run);
    QCOMPARE(plain.files, QList<QByteArray>{"a.cnc"});
    QVERIFY(!plain.asJson && plain.profile.isEmpty() && plain.svg.isEmpty());

    const CheckOptions all = parsed("a.cnc --profile m.ini --json b.cnc -");
    QVERIFY(all.outcome == CheckOptions::Run);
    QCOMPARE(all.files, (QList<QByteArray>{"a.cnc", "b.cnc", "-"}));
    QVERIFY(all.asJson);
    QCOMPARE(all.profile, QByteArray("m.ini"));
    QCOMPARE(parsed("--svg coil.svg x").svg, QByteArray("coil.svg"));
    QCOMPARE(parsed("--profile=a=b x").profile, QByteArray("a=b"));
}

void TestCheckOptions::filesMayLookLikeOptions()
{
    const CheckOptions options = parsed("--json -- --json -x --");
    QVERIFY(options.outcome == CheckOptions::Run);
    QCOMPARE(options.files, (QList<QByteArray>{"--json", "-x", "--"}));
}

void TestCheckOptions::nameOfAFileIsAnyBytes()
{
    const QByteArray name("\xff\xfe\n\x1b[31m");
    QCOMPARE(CheckOptions::parse({name}).files, QList<QByteArray>{name});
}

void TestCheckOptions::helpAndVersionAreShown_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QByteArray>("begin");
    for (const char *line : {"--help", "-h", "a.cnc --help", "--json -h"})
        QTest::newRow(line) << QByteArray(line) << QByteArray("Usage: filarix-check ");
    for (const char *line : {"--version", "-v"})
        QTest::newRow(line) << QByteArray(line) << QByteArray("filarix-check 1.");
}

void TestCheckOptions::helpAndVersionAreShown()
{
    QFETCH(QByteArray, line);
    QFETCH(QByteArray, begin);
    const CheckOptions options = parsed(line);
    QVERIFY(options.outcome == CheckOptions::ShowText);
    QVERIFY2(options.text.startsWith(begin), options.text.constData());
    QVERIFY(options.text.endsWith('\n'));
}

void TestCheckOptions::refused_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QByteArray>("reason");
    const auto row = [](const char *line, const char *reason) {
        QTest::newRow(*line ? line : "nothing") << QByteArray(line) << QByteArray(reason);
    };
    row("", "Which file?");
    row("--json", "Which file?");
    row("--nonsense a.cnc", "--nonsense");
    row("-x a.cnc", "-x");
    row("--json=1 a.cnc", "--json=1");
    row("a.cnc --profile", "--profile needs");
    row("--profile= a.cnc", "--profile needs");
    row("- a.cnc -", "read once");
    row("a.cnc --svg", "--svg needs");
    row("a.cnc b.cnc --svg coil.svg", "one file");
}

void TestCheckOptions::refused()
{
    QFETCH(QByteArray, line);
    QFETCH(QByteArray, reason);
    const CheckOptions options = parsed(line);
    QVERIFY(options.outcome == CheckOptions::Refuse);
    QVERIFY2(options.text.contains(reason), options.text.constData());
    QVERIFY(options.text.endsWith("Try --help."));
    QVERIFY(CheckOptions::parse({"a.cnc", ""}).outcome == CheckOptions::Refuse);
}

/// For terminals of 80 columns.
void TestCheckOptions::helpNamesEachOption()
{
    const QByteArray help = parsed("--help").text;
    for (const char *option : {"--profile", "--json", "--svg", "--help", "--version"})
        QVERIFY2(help.contains(option), option);
    for (const QByteArray &line : help.split('\n'))
        QVERIFY2(line.size() <= 80, line.constData());
}

FILARIX_TEST_MAIN(TestCheckOptions)
#include "tst_checkoptions.moc"
