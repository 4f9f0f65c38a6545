// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "checkreport.h"
#include "filarixtest.h"
#include "winding/programcheck.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <functional>

class TestCheckReport : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void findingIsALine();
    void rightProgramHasNoLine();
    void whatIsLeftOutIsCounted();
    void nameOfAFileDoesNothingToATerminal();
    void documentIsJson();
    void documentWithoutFindingsIsJson();
    void anyNameIsJson();
    void fileThatWasNotReadIsInTheDocument();
};

static const char faulty[] =
    "M10\nG00 X1 Y8\n  G00 X99 ; \xc3\xbc\nG00 X1\nS300 M03\nG33 X11 K0.25\n"
    "M05\nM12\nM30\nG00 X5\n";

/// What a report writes.
static QByteArray written(CheckReport::Format format,
                          const std::function<void(CheckReport *)> &fill)
{
    std::FILE *file = std::tmpfile();
    CheckReport report(file, format);
    report.begin("Machine \"M\"");
    fill(&report);
    report.end();
    QByteArray text(int(std::ftell(file)), ' ');
    std::rewind(file);
    const size_t read = std::fread(text.data(), 1, size_t(text.size()), file);
    std::fclose(file);
    return read == size_t(text.size()) ? text : QByteArray("unreadable");
}

static void addProgram(CheckReport *report, const QByteArray &name, const QByteArray &program)
{
    const MachineProfile profile = MachineProfile::forSamples();
    ProgramCheck check(profile);
    ProgramReading reading(profile, &check);
    reading.addBytes(program.constData(), program.size());
    reading.finish();
    report->add(name, check, reading.model());
}

static QByteArray reportOf(CheckReport::Format format, const QByteArray &name,
                           const QByteArray &program)
{
    return written(format, [&](CheckReport *report) { addProgram(report, name, program); });
}

void TestCheckReport::findingIsALine()
{
    const QList<QByteArray> lines = reportOf(CheckReport::Lines, "a.cnc", faulty).split('\n');
    QCOMPARE(int(lines.size()), 4);
    QCOMPARE(
        QString(lines.at(0)),
        QString("a.cnc:3:7: error: X goes to 99 mm, beyond the axis: its end is 60 mm. Correct "
                "the number or the position before. [axis-limit]"));
    QVERIFY(lines.at(1).startsWith("a.cnc:3:13: note: ")
            && lines.at(1).endsWith("[non-ascii-in-comment]"));
    QVERIFY(lines.at(2).startsWith("a.cnc:10:1: warning: ")
            && lines.at(2).endsWith("[behind-end]"));
}

void TestCheckReport::rightProgramHasNoLine()
{
    QCOMPARE(reportOf(CheckReport::Lines, "a.cnc", "M30\n"), QByteArray());
}

void TestCheckReport::whatIsLeftOutIsCounted()
{
    QByteArray program;
    for (int i = 0; i < ProgramCheck::mostKept + 7; ++i)
        program += "Q1\n";
    const QByteArray lines = reportOf(CheckReport::Lines, "a.cnc", program + "M30\n");
    QCOMPARE(int(lines.count('\n')), ProgramCheck::mostKept + 1);
    QVERIFY(lines.endsWith("\na.cnc: 7 more findings are left out\n"));
}

void TestCheckReport::nameOfAFileDoesNothingToATerminal()
{
    const QByteArray line = reportOf(CheckReport::Lines, "a\n\x1b[31m\x7f.cnc", "Q5\nM30\n");
    QVERIFY2(line.startsWith("a??[31m?.cnc:1:1: error: Q5 "), line.constData());
    QCOMPARE(int(line.count('\n')), 1);
}

void TestCheckReport::documentIsJson()
{
    const QByteArray text = written(CheckReport::Json, [](CheckReport *report) {
        addProgram(report, "a.cnc", faulty);
        addProgram(report, "b.cnc", "M30\n");
    });
    QJsonParseError error;
    const QJsonObject document = QJsonDocument::fromJson(text, &error).object();
    QVERIFY2(error.error == QJsonParseError::NoError, text.constData());
    QCOMPARE(document.value("version").toInt(), 1);
    QCOMPARE(document.value("profile").toString(), QString("Machine \"M\""));
    const QJsonArray files = document.value("files").toArray();
    QCOMPARE(int(files.size()), 2);

    const QJsonObject file = files.at(0).toObject();
    QCOMPARE(file.value("file").toString(), QString("a.cnc"));
    QCOMPARE(file.value("lines").toInt(), 10);
    QCOMPARE(file.value("errors").toInt(), 1);
    QCOMPARE(file.value("warnings").toInt(), 1);
    QCOMPARE(file.value("notes").toInt(), 1);
    QCOMPARE(file.value("leftOut").toInt(-1), 0);
    QCOMPARE(int(file.value("findings").toArray().size()), 3);
    const QJsonObject finding = file.value("findings").toArray().at(0).toObject();
    QCOMPARE(finding.value("line").toInt(), 3);
    QCOMPARE(finding.value("column").toInt(), 7);
    QCOMPARE(finding.value("length").toInt(), 3);
    QCOMPARE(finding.value("severity").toString(), QString("error"));
    QCOMPARE(finding.value("kind").toString(), QString("axis-limit"));
    QCOMPARE(finding.value("text").toString(),
             QString("X goes to 99 mm, beyond the axis: its end is 60 mm."));
    QVERIFY(finding.value("advice").toString().endsWith('.'));
    const QJsonObject coil = file.value("coil").toObject();
    QVERIFY(coil.value("turns").toDouble() > 0);
    QCOMPARE(coil.value("layers").toInt(), 1);
    QVERIFY(coil.value("wireLength").toDouble() > 0);
    QVERIFY(files.at(1).toObject().value("findings").toArray().isEmpty());
}

void TestCheckReport::documentWithoutFindingsIsJson()
{
    QVERIFY(QJsonDocument::fromJson(written(CheckReport::Json, [](CheckReport *) {})).isObject());
    QVERIFY(QJsonDocument::fromJson(reportOf(CheckReport::Json, "-", "")).isObject());
}

void TestCheckReport::anyNameIsJson()
{
    for (const QByteArray &name : {QByteArray("\"\\\n\t\x1b"), QByteArray("\xc3\xbc \xe4\xb8\xad"),
                                   QByteArray("\xf0\x9f\x98\x80"), QByteArray("\xff\xfe")}) {
        const QByteArray text = reportOf(CheckReport::Json, name, "");
        const QJsonDocument document = QJsonDocument::fromJson(text);
        QVERIFY2(document.isObject(), text.constData());
        const QJsonObject file = document.object().value("files").toArray().at(0).toObject();
        QCOMPARE(file.value("file").toString(), QFile::decodeName(name));
    }
}

void TestCheckReport::fileThatWasNotReadIsInTheDocument()
{
    const auto fill = [](CheckReport *report) {
        report->addUnread("a.cnc", "is a folder");
        addProgram(report, "b.cnc", "M30\n");
    };
    QCOMPARE(written(CheckReport::Lines, fill), QByteArray());
    const QJsonDocument document = QJsonDocument::fromJson(written(CheckReport::Json, fill));
    const QJsonArray files = document.object().value("files").toArray();
    QCOMPARE(int(files.size()), 2);
    QCOMPARE(files.at(0).toObject().value("unread").toString(), QString("is a folder"));
    QVERIFY(!files.at(0).toObject().contains("errors"));
    QVERIFY(!files.at(1).toObject().contains("unread"));
}

FILARIX_TEST_MAIN(TestCheckReport)
#include "tst_checkreport.moc"
