// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "storage/rowtext.h"

#include "base/hostcompat.h"

#include <QCoreApplication>

namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(RowText)
};

const ushort byteOrderMark = 0xfeff;
const char quote = '"';
const int hexDigits = 4;

/// Takes a text apart from its start to its end, and knows the line for the one error that ends
/// it.
class Reader
{
public:
    explicit Reader(const QString &text) : m_text(text) {}

    bool isAtEnd() const { return m_at >= m_text.size(); }
    /// Null at the end, which is no character of a text that is read here.
    QChar next() const { return isAtEnd() ? QChar() : m_text.at(m_at); }
    QChar take()
    {
        const QChar taken = next();
        m_line += taken == QLatin1Char('\n');
        ++m_at;
        return taken;
    }
    bool take(QChar wanted)
    {
        if (isAtEnd() || next() != wanted)
            return false;
        take();
        return true;
    }
    /// "\n" or "\r\n".
    bool takeLineEnd()
    {
        if (next() == QLatin1Char('\r') && m_text.mid(m_at + 1, 1) == QLatin1String("\n"))
            ++m_at;
        return take(QLatin1Char('\n'));
    }
    int line() const { return m_line; }

private:
    const QString m_text;
    int m_at = 0;
    int m_line = 1;
};

bool decode(const QByteArray &bytes, QString *text, QString *error)
{
    if (!HostCompat::fromUtf8(bytes, text)) {
        *error = Words::tr("This is not a text file.");
        return false;
    }
    if (text->startsWith(QChar(byteOrderMark)))
        text->remove(0, 1);
    return true;
}

class CsvReader
{
public:
    CsvReader(const QString &text, QChar separator) : m_reader(text), m_separator(separator) {}

    bool read(QList<QStringList> *rows)
    {
        while (!m_reader.isAtEnd()) {
            if (m_reader.takeLineEnd())
                continue;
            QStringList row;
            if (!readRow(&row))
                return false;
            rows->append(row);
        }
        return true;
    }
    int line() const { return m_reader.line(); }

private:
    bool readRow(QStringList *row)
    {
        do {
            QString text;
            if (!(m_reader.take(QLatin1Char(quote)) ? readQuoted(&text) : readPlain(&text)))
                return false;
            row->append(text);
        } while (m_reader.take(m_separator));
        return m_reader.isAtEnd() || m_reader.takeLineEnd();
    }

    bool readPlain(QString *text)
    {
        while (!m_reader.isAtEnd() && m_reader.next() != m_separator && !isAtLineEnd()) {
            if (m_reader.next() == QLatin1Char(quote))
                return false;
            text->append(m_reader.take());
        }
        return true;
    }

    bool readQuoted(QString *text)
    {
        while (!m_reader.isAtEnd()) {
            const QChar taken = m_reader.take();
            if (taken == QLatin1Char(quote) && !m_reader.take(QLatin1Char(quote)))
                return true;
            text->append(taken);
        }
        return false;
    }

    // A "\r" alone is no line end: the row fails there.
    bool isAtLineEnd() const
    {
        return m_reader.next() == QLatin1Char('\n') || m_reader.next() == QLatin1Char('\r');
    }

    Reader m_reader;
    const QChar m_separator;
};

class JsonReader
{
public:
    explicit JsonReader(const QString &text) : m_reader(text) {}

    bool read(QList<QStringList> *rows)
    {
        const bool isRead = readArray([this, rows] {
            QStringList row;
            const bool isRow = readArray([this, &row] { return readString(&row); });
            rows->append(row);
            return isRow;
        });
        skipBlanks();
        return isRead && m_reader.isAtEnd();
    }
    int line() const { return m_reader.line(); }

private:
    template<class Item>
    bool readArray(Item readItem)
    {
        if (!takeMark('['))
            return false;
        if (takeMark(']'))
            return true;
        do {
            if (!readItem())
                return false;
        } while (takeMark(','));
        return takeMark(']');
    }

    bool readString(QStringList *row)
    {
        QString text;
        if (!takeMark(quote))
            return false;
        while (!m_reader.isAtEnd()) {
            const QChar taken = m_reader.take();
            if (taken == QLatin1Char(quote)) {
                row->append(text);
                return HostCompat::isWellFormed(text);
            }
            const bool isEscape = taken == QLatin1Char('\\');
            if (taken < QLatin1Char(' ') || (isEscape && !readEscape(&text)))
                return false;
            if (!isEscape)
                text.append(taken);
        }
        return false;
    }

    bool readEscape(QString *text)
    {
        static const QString letters = QLatin1String("\"\\/bfnrt");
        static const QString meanings = QLatin1String("\"\\/\b\f\n\r\t");
        if (m_reader.take(QLatin1Char('u')))
            return readNumber(text);
        const int meaning = m_reader.isAtEnd() ? -1 : letters.indexOf(m_reader.take());
        if (meaning >= 0)
            text->append(meanings.at(meaning));
        return meaning >= 0;
    }

    bool readNumber(QString *text)
    {
        static const QString digits = QLatin1String("0123456789abcdef");
        int code = 0;
        for (int i = 0; i < hexDigits; ++i) {
            const int digit = m_reader.isAtEnd() ? -1 : digits.indexOf(m_reader.take().toLower());
            if (digit < 0)
                return false;
            code = code * digits.size() + digit;
        }
        // A list shows nothing behind a null.
        if (code != 0)
            text->append(QChar(ushort(code)));
        return code != 0;
    }

    bool takeMark(char mark)
    {
        skipBlanks();
        return m_reader.take(QLatin1Char(mark));
    }

    void skipBlanks()
    {
        static const QString blanks = QLatin1String(" \t\r\n");
        while (!m_reader.isAtEnd() && blanks.contains(m_reader.next()))
            m_reader.take();
    }

    Reader m_reader;
};

/// Fills \a rows, or says in which line the \a reader got stuck.
template<class Format>
bool readAll(Format *reader, const QString &failure, QList<QStringList> *rows, QString *error)
{
    QList<QStringList> found;
    if (!reader->read(&found)) {
        *error = failure.arg(reader->line());
        return false;
    }
    *rows = found;
    return true;
}

QString quoted(const QString &text)
{
    return QLatin1Char(quote) + text + QLatin1Char(quote);
}

QString csvString(const QString &text, QChar separator, bool isAlone)
{
    const bool isPlain = !text.contains(separator) && !text.contains(QLatin1Char(quote))
                         && !text.contains(QLatin1Char('\n')) && !text.contains(QLatin1Char('\r'))
                         && !text.startsWith(QChar(byteOrderMark)) && text.trimmed() == text;
    if (isPlain && !(isAlone && text.isEmpty()))
        return text;
    return quoted(QString(text).replace(QLatin1Char(quote), QLatin1String("\"\"")));
}

QString jsonString(const QString &text)
{
    static const QString letters = QLatin1String("\"\\\b\f\n\r\t");
    static const QString escapes = QLatin1String("\"\\bfnrt");
    QString result;
    Q_FOREACH (const QChar &character, text) {
        const int escape = letters.indexOf(character);
        if (escape >= 0)
            result += QString(QLatin1Char('\\')) + escapes.at(escape);
        else if (character < QLatin1Char(' '))
            result += QString::fromLatin1("\\u%1").arg(character.unicode(), hexDigits, 16,
                                                       QLatin1Char('0'));
        else
            result += character;
    }
    return quoted(result);
}

QString jsonRow(const QStringList &row)
{
    QStringList strings;
    Q_FOREACH (const QString &text, row)
        strings.append(jsonString(text));
    return QLatin1Char('[') + strings.join(QLatin1String(", ")) + QLatin1Char(']');
}

} // namespace

QByteArray RowText::toCsv(const QList<QStringList> &rows, QChar separator)
{
    QByteArray bytes;
    Q_FOREACH (const QStringList &row, rows) {
        QStringList strings;
        Q_FOREACH (const QString &text, row)
            strings.append(csvString(text, separator, row.size() == 1));
        if (!row.isEmpty())
            bytes += strings.join(QString(separator)).toUtf8() + "\r\n";
    }
    return bytes;
}

bool RowText::fromCsv(const QByteArray &bytes, QList<QStringList> *rows, QString *error,
                      QChar separator)
{
    QString text;
    if (!decode(bytes, &text, error))
        return false;
    CsvReader reader(text, separator);
    return readAll(&reader, Words::tr("Line %1 is not written as CSV."), rows, error);
}

QByteArray RowText::toJson(const QList<QStringList> &rows)
{
    QStringList lines;
    Q_FOREACH (const QStringList &row, rows)
        lines.append(jsonRow(row));
    return '[' + lines.join(QLatin1String(",\n")).toUtf8() + "]\n";
}

bool RowText::fromJson(const QByteArray &bytes, QList<QStringList> *rows, QString *error)
{
    QString text;
    if (!decode(bytes, &text, error))
        return false;
    JsonReader reader(text);
    return readAll(&reader, Words::tr("Line %1 is not written as JSON of rows."), rows, error);
}
