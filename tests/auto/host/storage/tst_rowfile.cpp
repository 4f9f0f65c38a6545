// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "storage/rowfile.h"

#include <QDir>
#include <QFileInfo>

class TestRowFile : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void rowsComeBackAsTheyWere_data();
    void rowsComeBackAsTheyWere();
    void randomRowsComeBackAsTheyWere();
    void commentsAndEmptyLinesAreLeftOut();
    void fileThatCannotBeRead_data();
    void fileThatCannotBeRead();
    void fileThatCannotBeWrittenStaysAsItWas();
};

typedef QList<QStringList> Rows;

static Rows throughAFile(const QString &path, const Rows &rows)
{
    QString error;
    Rows read;
    if (!RowFile::write(path, "a comment", rows, &error) || !RowFile::read(path, &read, &error))
        return Rows{{error}};
    return read;
}

void TestRowFile::rowsComeBackAsTheyWere_data()
{
    QTest::addColumn<Rows>("rows");
    QTest::newRow("none") << Rows();
    QTest::newRow("plain") << Rows{{"MJ", "1", "Move"}, {"Oth", "2", ""}};
    QTest::newRow("empty strings at the ends") << Rows{{"", "a", "", ""}};
    QTest::newRow("tab and line end") << Rows{{"a\tb", "c\nd", "\t", "\n"}};
    QTest::newRow("backslashes") << Rows{{"\\", "\\t", "\\\\n", "a\\"}};
    QTest::newRow("looks like a comment") << Rows{{"# MJ", "1"}, {"#"}};
    QTest::newRow("beyond Latin") << Rows{{QString::fromUtf8("\u00e4\u2193\u4e2d")}};
}

void TestRowFile::rowsComeBackAsTheyWere()
{
    QFETCH(Rows, rows);
    QCOMPARE(throughAFile(home() + "/rows.txt", rows), rows);
}

void TestRowFile::randomRowsComeBackAsTheyWere()
{
    const QString alphabet = QString::fromUtf8("ab#\\tn\t\n \u00fc");
    quint32 seed = 20260731;
    const auto random = [&seed](int below) {
        seed = seed * 1664525u + 1013904223u;
        return int((seed >> 8) % quint32(below));
    };
    Rows rows;
    for (int i = 0; i < 5000; ++i) {
        // A row of one empty string is an empty line, and no row of a list has that form.
        QStringList row("k");
        for (int strings = random(5); strings > 0; --strings) {
            QString text;
            for (int length = random(6); length > 0; --length)
                text += alphabet.at(random(alphabet.size()));
            row.append(text);
        }
        rows.append(row);
    }
    QCOMPARE(throughAFile(home() + "/rows.txt", rows), rows);
}

void TestRowFile::commentsAndEmptyLinesAreLeftOut()
{
    writeFile(home() + "/rows.txt", "# head\n\nMJ\t1\n\n# tail");
    Rows rows;
    QString error;
    QVERIFY(RowFile::read(home() + "/rows.txt", &rows, &error));
    QCOMPARE(rows, (Rows{{"MJ", "1"}}));
}

void TestRowFile::fileThatCannotBeRead_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("missing") << QByteArray();
    QTest::newRow("not UTF-8") << QByteArray("MJ\t\xff\xfe\n");
    QTest::newRow("cut off within a character") << QByteArray("MJ\tsp\xc3");
    QTest::newRow("binary") << QByteArray("MJ\0\1\2", 5);
}

void TestRowFile::fileThatCannotBeRead()
{
    QFETCH(QByteArray, bytes);
    if (!bytes.isNull())
        writeFile(home() + "/rows.txt", bytes);
    Rows rows{{"kept"}};
    QString error;
    QVERIFY(!RowFile::read(home() + "/rows.txt", &rows, &error));
    QVERIFY(error.contains("rows.txt"));
    QCOMPARE(rows, (Rows{{"kept"}}));
}

void TestRowFile::fileThatCannotBeWrittenStaysAsItWas()
{
    QString error;
    QVERIFY(!RowFile::write(home() + "/nowhere/rows.txt", "a comment", Rows{{"MJ"}}, &error));
    QVERIFY(error.contains("nowhere"));
    QVERIFY(!QFileInfo(home() + "/nowhere").exists());
}

FILARIX_TEST_MAIN(TestRowFile)
#include "tst_rowfile.moc"
