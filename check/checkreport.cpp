// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "checkreport.h"

#include "winding/programcheck.h"

#include <QFile>

namespace {

/// Of the JSON document; a reader that knows another one should not go on.
const int formatVersion = 1;

QByteArray jsonText(const QString &text)
{
    QByteArray json = "\"";
    for (const QChar &character : text) {
        const ushort code = character.unicode();
        if (code == '"' || code == '\\')
            json += '\\' + QByteArray(1, char(code));
        else if (code >= ' ' && code < 0x7f)
            json += char(code);
        else
            json += "\\u" + QByteArray::number(code, 16).rightJustified(4, '0');
    }
    return json + '"';
}

QByteArray jsonText(const QByteArray &text)
{
    return jsonText(QString::fromLatin1(text));
}

/// "name": value, with as many digits as a double has.
QByteArray member(const char *name, double value)
{
    const QByteArray number = qIsFinite(value) ? QByteArray::number(value, 'g', 15) : "null";
    return '"' + QByteArray(name) + "\": " + number;
}

QByteArray member(const char *name, int value)
{
    return '"' + QByteArray(name) + "\": " + QByteArray::number(value);
}

template<class Text>
QByteArray member(const char *name, const Text &text)
{
    return '"' + QByteArray(name) + "\": " + jsonText(text);
}

QByteArray findingLine(const QByteArray &file, const Finding &finding)
{
    return file + ':' + QByteArray::number(finding.line) + ':' + QByteArray::number(finding.column)
           + ": " + Finding::name(finding.severity) + ": "
           + (finding.text() + QLatin1Char(' ') + finding.advice()).toUtf8() + " ["
           + Finding::name(finding.kind) + "]\n";
}

QByteArray findingObject(const Finding &finding)
{
    const QList<QByteArray> members = {
        member("line", finding.line),
        member("column", finding.column),
        member("length", finding.length),
        member("severity", Finding::name(finding.severity)),
        member("kind", Finding::name(finding.kind)),
        member("text", finding.text()),
        member("advice", finding.advice()),
    };
    QByteArray object;
    for (const QByteArray &part : members)
        object += (object.isEmpty() ? "        {" : ", ") + part;
    return object + '}';
}

QByteArray countMembers(const ProgramCheck &check)
{
    return member("errors", check.count(Finding::Error)) + ", "
           + member("warnings", check.count(Finding::Warning)) + ", "
           + member("notes", check.count(Finding::Note)) + ", "
           + member("leftOut", check.leftOut());
}

/// Of the coil, in the units of WindingTotals.
QByteArray coilObject(const WindingTotals &totals)
{
    return '{' + member("coils", totals.coils) + ", " + member("layers", totals.layers) + ", "
           + member("turns", totals.turns) + ", " + member("wireLength", totals.wireLength) + ", "
           + member("mass", totals.mass) + ", " + member("resistance", totals.resistance) + ", "
           + member("seconds", totals.seconds) + ", " + member("fillFactor", totals.fillFactor)
           + ", " + member("outerDiameter", totals.outerDiameter) + '}';
}

} // namespace

void CheckReport::begin(const QString &profile)
{
    if (m_format == Json)
        write("{\n  " + member("version", formatVersion) + ",\n  " + member("profile", profile)
              + ",\n  \"files\": [");
}

void CheckReport::add(const QByteArray &file, const ProgramCheck &check, const WindingModel &model)
{
    if (m_format == Json)
        addObject(file, check, model);
    else
        addLines(shown(file), check);
}

void CheckReport::addUnread(const QByteArray &file, const QByteArray &reason)
{
    if (m_format != Json)
        return;
    beginObject(file);
    write(",\n      " + member("unread", QString::fromLocal8Bit(reason)) + "\n    }");
}

void CheckReport::end()
{
    if (m_format == Json)
        write("\n  ]\n}\n");
}

QByteArray CheckReport::shown(QByteArray name)
{
    for (char &character : name) {
        if (uchar(character) < ' ' || character == '\x7f')
            character = '?';
    }
    return name;
}

void CheckReport::addLines(const QByteArray &file, const ProgramCheck &check)
{
    for (const Finding &finding : check.findings())
        write(findingLine(file, finding));
    if (check.leftOut() > 0)
        write(file + ": " + QByteArray::number(check.leftOut()) + " more findings are left out\n");
}

void CheckReport::addObject(const QByteArray &file, const ProgramCheck &check,
                            const WindingModel &model)
{
    const WindingTotals totals = model.totals();
    beginObject(file);
    write(",\n      " + member("lines", totals.lines) + ", " + countMembers(check)
          + ",\n      \"coil\": " + coilObject(totals) + ",\n      \"findings\": [");
    const char *separator = "\n";
    for (const Finding &finding : check.findings()) {
        write(separator + findingObject(finding));
        separator = ",\n";
    }
    write("]\n    }");
}

void CheckReport::beginObject(const QByteArray &file)
{
    write(m_files++ == 0 ? "\n    {\n      " : ",\n    {\n      ");
    write(member("file", QFile::decodeName(file)));
}

/// What cannot be written is asked about once, at the end.
void CheckReport::write(const QByteArray &text)
{
    std::fwrite(text.constData(), 1, size_t(text.size()), m_output);
}
