// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/namelabel.h"

#include <QPainter>

namespace {

// Smaller letters are hard to read at arm's length.
const int leastPixels = 11;
// In percent of their width, before a word is broken. Narrower ones run together.
const int narrowLetters[] = {90, 80};

QString dots()
{
    return QString(QChar(0x2026));
}

/// Letters of a name, from the first.
struct Part
{
    int from;
    int length;
};

/// The longest one, and of two such the later.
Part numberIn(const QString &name)
{
    Part longest{name.size() / 2, 0};
    int begin = 0;
    for (int i = 0; i < name.size(); ++i) {
        if (!name.at(i).isDigit())
            begin = i + 1;
        else if (i + 1 - begin >= longest.length)
            longest = {begin, i + 1 - begin};
    }
    return longest;
}

/// As near to the middle of the name as the part allows.
void cut(QString *name, const Part &part, int count)
{
    if (count > 0)
        name->replace(
            qBound(part.from, (name->size() - count) / 2, part.from + part.length - count), count,
            dots());
}

/// \a name without \a count letters, none of which is of its number; empty where it hasn't so many.
QString without(QString name, int count)
{
    const Part number = numberIn(name);
    const int end = number.from + number.length;
    const Part before{1, qMax(0, number.from - 1)};
    const Part after{end, qMax(0, name.size() - 1 - end)};
    // A name without a number is one part.
    if (number.length == 0) {
        const Part whole{1, name.size() - 2};
        if (count > whole.length)
            return QString();
        cut(&name, whole, count);
        return name;
    }
    if (count > before.length + after.length)
        return QString();
    const bool isBeforeLonger = before.length >= after.length;
    const int ofLonger = qMin(count, qMax(before.length, after.length));
    const int ofBefore = isBeforeLonger ? ofLonger : count - ofLonger;
    // From the end, where it moves nothing.
    cut(&name, after, count - ofBefore);
    cut(&name, before, ofBefore);
    return name;
}

bool mayBreak(const QString &text, int at)
{
    static const QString ends = QLatin1String("-_ ");
    return ends.contains(text.at(at - 1)) || text.at(at) == QLatin1Char('.');
}

/// Letters of the first line; 0 where nothing may be broken that fits.
int lineLength(const QString &text, const QFontMetrics &metrics, int width, bool isAnywhere)
{
    int length = 0;
    for (int i = 1; i < text.size() && metrics.horizontalAdvance(text.left(i)) <= width; ++i) {
        if (isAnywhere || mayBreak(text, i))
            length = i;
    }
    return length;
}

/// None where \a most lines of so many pixels do not suffice.
QStringList broken(QString rest, const QFontMetrics &metrics, int width, int most, bool isAnywhere)
{
    QStringList lines;
    while (metrics.horizontalAdvance(rest) > width) {
        const int length = lineLength(rest, metrics, width, isAnywhere);
        if (length == 0 || lines.size() + 1 >= most)
            return QStringList();
        lines.append(rest.left(length).trimmed());
        rest = rest.mid(length);
    }
    lines.append(rest);
    return lines;
}

} // namespace

NameLabel::NameLabel(QWidget *parent) : ElidedLabel(parent) {}

void NameLabel::setName(const QString &name, const QString &mark, const QString &state)
{
    m_name = name;
    m_mark = mark;
    m_state = state;
    setText(name + mark);
    setAccessibleName(state.isEmpty() ? QString() : name + QLatin1String(", ") + state);
    update();
}

QString NameLabel::shortened(const QString &name, const std::function<bool(const QString &)> &fits)
{
    if (fits(name))
        return name;
    for (int count = 2; count < name.size(); ++count) {
        QString text = without(name, count);
        if (text.isEmpty())
            break;
        if (fits(text))
            return text;
    }
    return dots();
}

/// What costs the least comes first.
NameLabel::Fitted NameLabel::fitted() const
{
    const QRect area = contentsRect();
    Fitted fitted;
    fitted.font = font();
    const auto fits = [&](const QString &text, bool isAnywhere) {
        const QFontMetrics metrics(fitted.font);
        const int most = qMin(lines(), qMax(1, area.height() / metrics.height()));
        fitted.lines = broken(text, metrics, area.width(), most, isAnywhere);
        return !fitted.lines.isEmpty();
    };
    const int pixels = font().pixelSize();
    const auto fitsSomehow = [&](const QString &text, bool isAnywhere) {
        for (int size = pixels; size >= qMin(pixels, leastPixels); --size) {
            // One that has no pixels was set in points.
            if (size > 0)
                fitted.font.setPixelSize(size);
            if (fits(text, isAnywhere))
                return true;
        }
        return false;
    };
    const QString whole =
        m_state.isEmpty() ? m_name : QString::fromLatin1("%1 (%2)").arg(m_name, m_state);
    const auto fitsNarrow = [&](const QString &text) {
        for (int percent : narrowLetters) {
            fitted.font.setStretch(percent);
            if (fits(text, false))
                return true;
        }
        fitted.font.setStretch(QFont::Unstretched);
        return false;
    };
    fitted.isWhole = fitsSomehow(whole, false) || fitsSomehow(m_name + m_mark, false)
                     || fitsNarrow(m_name + m_mark);
    if (fitted.isWhole || fitsSomehow(m_name + m_mark, true))
        return fitted;
    // In the smallest letters, which were tried last.
    shortened(m_name, [&](const QString &text) { return fits(text + m_mark, true); });
    if (fitted.lines.isEmpty())
        fitted.lines.append(dots());
    return fitted;
}

void NameLabel::paintEvent(QPaintEvent *)
{
    const Fitted shown = fitted();
    QPainter painter(this);
    painter.setFont(shown.font);
    painter.drawText(contentsRect(), int(alignment()), shown.lines.join(QLatin1Char('\n')));
}
