// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "works.h"

#include "contest.h"
#include "plaineditor.h"
#include "sampleprogram.h"
#include "subjects.h"
#include "wgcodeediter.h"
#include "wmmainwindow.h"

#include <QAbstractEventDispatcher>
#include <QElapsedTimer>
#include <QTextBlock>

namespace {

using namespace Subjects;

const int million = 1000000;

// Loading

const char narrowLoad[] = "load";
const char wideLoad[] = "load, some lines wide";

/// Each 500th line is wider than the pane.
QString widened(const QString &program)
{
    QStringList lines = program.split(QLatin1Char('\n'));
    for (int i = 500; i < lines.size(); i += 500)
        lines[i] = QString(lines.at(i) + QLatin1Char(' ')).repeated(4);
    return lines.join(QLatin1String("\n"));
}

void measureLoad(Report &report, const char *name, const QString &text, int lines, int rounds)
{
    const QString work = QLatin1String(name);
    Contest contest(work, lines);
    Q_FOREACH (const QString &name, editors()) {
        contest.add(name, [name, &text]() {
            const QSharedPointer<EditorSubject> subject = showEditor(name);
            QString copy(text.constData(), text.size());
            return cpuOf([&]() {
                subject->load(std::move(copy));
                settleForGood();
            });
        });
    }
    contest.run(report, rounds, lines < million);
}

void compareWideLoads(Report &report)
{
    const QString work = QLatin1String(wideLoad);
    for (const int lines : {2000, 10000, 100000, million}) {
        report.compare(work, lines, shipped, lines, floor);
        report.compare(work, lines, shipped, lines, plain);
    }
}

void compareLoads(Report &report)
{
    const QString work = QLatin1String(narrowLoad);
    const struct
    {
        int lines;
        double limit;
    } targets[] = {{2000, 1.5}, {10000, 1.5}, {100000, 1.2}, {million, 1.2}};
    for (const auto &target : targets) {
        report.compare(work, target.lines, shipped, target.lines, floor, target.limit);
        report.compare(work, target.lines, plain, target.lines, floor);
        report.compare(work, target.lines, scintilla, target.lines, floor);
        report.compare(work, target.lines, kate, target.lines, floor);
        report.compare(work, target.lines, shipped, target.lines, plain);
        report.compare(work, target.lines, shipped, target.lines, scintilla);
        report.compare(work, target.lines, shipped, target.lines, kate,
                       target.lines == 100000 ? 0.7 : 0);
    }
}

/// Notes the longest time between two turns of the event loop.
class GapWatcher : public QObject
{
    Q_OBJECT

public:
    GapWatcher() : m_last(cpuMilliseconds()), m_longest(0)
    {
        connect(QAbstractEventDispatcher::instance(), SIGNAL(awake()), SLOT(turn()));
    }

    double longest() const { return m_longest; }

private Q_SLOTS:
    void turn()
    {
        const double now = cpuMilliseconds();
        m_longest = qMax(m_longest, now - m_last);
        m_last = now;
    }

private:
    double m_last;
    double m_longest;
};

void measureGap(Report &report, int lines, int rounds)
{
    const QString text = sampleProgram(lines);
    Figure whole = {QLatin1String("longest gap while loading"), lines,
                    QLatin1String("a fiftieth of it"), QLatin1String("ms"), Samples()};
    Figure gap = {whole.work, lines, shipped, QLatin1String("ms"), Samples()};
    for (int i = 0; i < rounds; ++i) {
        const QSharedPointer<EditorSubject> subject = showEditor(shipped);
        GapWatcher watcher;
        whole.samples.append(cpuOf([&]() { subject->load(text); }) / 50);
        gap.samples.append(watcher.longest());
    }
    report.add(whole);
    report.add(gap);
    report.compare(gap.work, lines, shipped, lines, whole.subject, lines == million ? 1.3 : 0);
}

// Editing

typedef void (*Edit)(EditorSubject &, int round);

const struct
{
    const char *work;
    double limit; ///< against the editor that keeps one array of bytes
    Edit edit;
} edits[] = {
    {"type a character", 0.01, [](EditorSubject &subject, int) { subject.type(QLatin1Char('7')); }},
    {"insert a line", 0.01,
     [](EditorSubject &subject, int) { subject.insertLine(QLatin1String("G01 X1 Y2")); }},
    {"delete a line", 0.01, [](EditorSubject &subject, int) { subject.deleteLine(); }},
    {"go to a line", 0.05, nullptr}, // depends on the length
    {"page down", 0.05, [](EditorSubject &subject, int) { subject.pageDown(); }},
};

void measureEdits(Report &report, int lines, int smallLines, int rounds)
{
    const QString small =
        QString::fromLatin1("%1, %2 lines").arg(QLatin1String(shipped)).arg(smallLines);
    QList<QSharedPointer<EditorSubject>> subjects;
    QStringList names;
    QList<int> lengths;
    const QStringList contestants = QStringList() << shipped << scintilla << kate << small;
    Q_FOREACH (const QString &name, contestants) {
        const bool isSmall = name == small;
        if (!isSmall && !editors().contains(name))
            continue;
        const int length = isSmall ? smallLines : lines;
        const QSharedPointer<EditorSubject> subject = showEditor(isSmall ? QString(shipped) : name);
        subject->load(sampleProgram(length));
        subject->gotoLine(length / 2);
        settle();
        subjects.append(subject);
        names.append(name);
        lengths.append(length);
    }
    for (const auto &entry : edits) {
        Contest contest(QLatin1String(entry.work), lines);
        for (int i = 0; i < subjects.size(); ++i) {
            EditorSubject *subject = subjects.at(i).data();
            const int length = lengths.at(i);
            const QSharedPointer<int> round(new int(0));
            contest.add(names.at(i), [=]() {
                ++*round;
                const int third = length / 3;
                subject->widget()->raise();
                return cpuOf([&]() {
                    if (entry.edit)
                        entry.edit(*subject, *round);
                    else
                        subject->gotoLine(third * (1 + *round % 2) + *round);
                    settle();
                });
            });
        }
        contest.run(report, rounds, true);
        const QString work = QLatin1String(entry.work);
        const bool isJudged = lines == million;
        report.compare(work, lines, shipped, lines, small, isJudged ? 2.2 : 0);
        report.compare(work, lines, shipped, lines, scintilla, isJudged ? entry.limit : 0);
        report.compare(work, lines, shipped, lines, kate, isJudged ? 1.0 : 0);
    }
}

// Colouring

void measureRehighlight(Report &report, int lines, int rounds)
{
    const QString work = QLatin1String("colour anew");
    Contest contest(work, lines);
    QList<QSharedPointer<EditorSubject>> subjects;
    Q_FOREACH (const QString &name, QStringList() << shipped << plain) {
        const QSharedPointer<EditorSubject> subject = showEditor(name);
        subject->load(sampleProgram(lines));
        settle();
        subjects.append(subject);
        contest.add(name, [subject]() {
            return cpuOf([&]() {
                subject->rehighlight();
                settle();
            });
        });
    }
    contest.run(report, rounds);
    report.compare(work, lines, shipped, lines, plain, 0.3);
}

// The line filter

/// Text for the filter alone: no colours, which would take most of the time to set it up.
void fill(QPlainTextEdit *editor, const QString &text)
{
    editor->setPlainText(text);
    editor->moveCursor(QTextCursor::End);
}

QString filterProgram(int lines)
{
    QStringList text;
    for (int i = 0; i < lines; ++i)
        text << QString::fromLatin1("G01 X%1 Y%2 F1200").arg(i % 900).arg(i % 700);
    return text.join(QLatin1String("\n"));
}

class ShippedFilter
{
public:
    explicit ShippedFilter(int lines) : m_window(nullptr, 0)
    {
        fill(m_window.findChild<WGCodeEditer *>(), filterProgram(lines));
    }

    double cost(const QString &line, int times)
    {
        return cpuOf([&]() {
                   for (int i = 0; i < times; ++i)
                       m_window.getEffectiveString(line);
               })
               * 1e3 / times;
    }

private:
    WMMainWindow m_window;
};

class PlainFilterSubject
{
public:
    explicit PlainFilterSubject(int lines) : m_editor(nullptr), m_filter(&m_editor)
    {
        fill(&m_editor, filterProgram(lines));
    }

    double cost(const QString &line, int times)
    {
        return cpuOf([&]() {
                   for (int i = 0; i < times; ++i)
                       m_filter.getEffectiveString(line);
               })
               * 1e3 / times;
    }

private:
    PlainEditor m_editor;
    PlainFilter m_filter;
};

/// What there is to call of the toolkit for the cursor's line, and nothing else.
class BareLine
{
public:
    explicit BareLine(int lines) { fill(&m_editor, filterProgram(lines)); }

    double cost(int times)
    {
        return cpuOf([&]() {
                   for (int i = 0; i < times; ++i) {
                       const int line = m_editor.textCursor().blockNumber();
                       m_length += m_editor.document()->findBlockByLineNumber(line).text().size();
                   }
               })
               * 1e3 / times;
    }

private:
    QPlainTextEdit m_editor;
    qint64 m_length = 0; // so that nothing is optimised away
};

} // namespace

void measureLoads(Report &report, const Extent &extent)
{
    const struct
    {
        int lines;
        int rounds;
    } sizes[] = {{2000, 15}, {10000, 11}, {100000, 7}, {million, 3}};
    for (const auto &size : sizes) {
        if (extent.isQuick && size.lines == million)
            continue;
        const QString text = sampleProgram(size.lines);
        measureLoad(report, narrowLoad, text, size.lines, size.rounds);
        measureLoad(report, wideLoad, widened(text), size.lines, size.rounds);
    }
    compareLoads(report);
    compareWideLoads(report);
    const int largest = extent.isQuick ? 100000 : million;
    measureGap(report, largest, 3);
    measureRehighlight(report, largest, 3);
}

void measureEdits(Report &report, const Extent &extent)
{
    measureEdits(report, extent.isQuick ? 100000 : million, 10000, 21);
}

void measureFilter(Report &report, const Extent &extent)
{
    const QString nowhere = QLatin1String("G01 Q5");
    const QString farWork = QLatin1String("filter, name nowhere");
    const QString perLine = QLatin1String("us a line");
    const int largest = extent.isQuick ? 100000 : million;
    {
        ShippedFilter own(50000);
        PlainFilterSubject other(50000);
        Contest contest(farWork, 50000, perLine);
        contest.add(shipped, [&]() { return own.cost(nowhere, 5) / 50000; });
        contest.add(plain, [&]() { return other.cost(nowhere, 1) / 50000; });
        contest.run(report, 7, true);
        report.compare(farWork, 50000, shipped, 50000, plain, 0.07);

        ShippedFilter longest(largest);
        PlainFilterSubject longestOther(largest);
        Contest growth(farWork, largest, perLine);
        growth.add(shipped, [&]() { return longest.cost(nowhere, 1) / largest; });
        growth.add(plain, [&]() { return longestOther.cost(nowhere, 1) / largest; });
        const QString before = QLatin1String("library, 50000 lines");
        growth.add(before, [&]() { return own.cost(nowhere, 20) / 50000; });
        const QString plainBefore = QLatin1String("plain, 50000 lines");
        growth.add(plainBefore, [&]() { return other.cost(nowhere, 1) / 50000; });
        growth.run(report, 5, true);
        report.compare(farWork, largest, shipped, largest, plain, 0.07);
        report.compare(farWork, largest, shipped, largest, before);
        report.compare(farWork, largest, plain, largest, plainBefore);
    }
    const QString nearWork = QLatin1String("filter, near hit");
    const QString perCall = QLatin1String("us a call");
    const QString line = QLatin1String("G01 X5 Y6 F1200");
    const int times = 2000;
    {
        ShippedFilter own(1000);
        PlainFilterSubject other(1000);
        Contest contest(nearWork, 1000, perCall);
        contest.add(shipped, [&]() { return own.cost(line, times); });
        contest.add(plain, [&]() { return other.cost(line, times); });
        contest.run(report, 9, true);
        report.compare(nearWork, 1000, shipped, 1000, plain, 0.4);

        ShippedFilter longest(largest);
        PlainFilterSubject longestOther(largest);
        Contest growth(nearWork, largest, perCall);
        growth.add(shipped, [&]() { return longest.cost(line, times); });
        growth.add(plain, [&]() { return longestOther.cost(line, times); });
        const QString before = QLatin1String("library, 1000 lines");
        growth.add(before, [&]() { return own.cost(line, times); });
        const QString plainBefore = QLatin1String("plain, 1000 lines");
        growth.add(plainBefore, [&]() { return other.cost(line, times); });
        BareLine bareLine(1000);
        BareLine longestBareLine(largest);
        const QString bare = QLatin1String("bare calls");
        growth.add(bare, [&]() { return longestBareLine.cost(times); });
        const QString bareBefore = QLatin1String("bare calls, 1000 lines");
        growth.add(bareBefore, [&]() { return bareLine.cost(times); });
        growth.run(report, 9, true);
        report.compare(nearWork, largest, shipped, largest, plain, 0.4);
        report.compare(nearWork, largest, shipped, largest, before, 1.3);
        report.compare(nearWork, largest, plain, largest, plainBefore);
        report.compare(nearWork, largest, bare, largest, bareBefore);
        report.compare(nearWork, largest, bare, largest, before);
    }
}

#include "programs.moc"
