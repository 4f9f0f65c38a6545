// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "contest.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTextStream>
#include <QThread>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <ctime>

double median(const Samples &samples)
{
    if (samples.isEmpty())
        return std::nan("");
    Samples sorted = samples;
    std::sort(sorted.begin(), sorted.end());
    const int middle = sorted.size() / 2;
    return sorted.size() % 2 ? sorted.at(middle) : (sorted.at(middle - 1) + sorted.at(middle)) / 2;
}

double smallest(const Samples &samples)
{
    return samples.isEmpty() ? std::nan("")
                             : *std::min_element(samples.constBegin(), samples.constEnd());
}

double largest(const Samples &samples)
{
    return samples.isEmpty() ? std::nan("")
                             : *std::max_element(samples.constBegin(), samples.constEnd());
}

double cpuMilliseconds()
{
    timespec time;
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

double cpuOf(const std::function<void()> &work)
{
    const double before = cpuMilliseconds();
    work();
    return cpuMilliseconds() - before;
}

namespace {

/// The C library puts off putting small pieces of freed memory together until somebody asks for a
/// large one. Who comes next must not pay for what another one left.
void tidyMemory()
{
    const std::size_t large = 1u << 20;
    void *volatile memory = std::malloc(large);
    std::free(memory);
}

} // namespace

void settle()
{
    for (int i = 0; i < 3; ++i)
        QCoreApplication::processEvents();
}

void settleForGood()
{
    QElapsedTimer time;
    time.start();
    while (time.elapsed() < 500) {
        settle();
        QThread::msleep(5);
    }
}

void Report::add(const Figure &figure)
{
    m_figures.append(figure);
    std::fprintf(stderr, "  %-28s %8lld  %-14s %10.3f %s\n", qPrintable(figure.work),
                 static_cast<long long>(figure.size), qPrintable(figure.subject),
                 median(figure.samples), qPrintable(figure.unit));
}

void Report::add(const Ratio &ratio)
{
    m_ratios.append(ratio);
}

const Figure *Report::find(const QString &work, qint64 size, const QString &subject) const
{
    for (int i = 0; i < m_figures.size(); ++i) {
        const Figure &figure = m_figures.at(i);
        if (figure.work == work && figure.size == size && figure.subject == subject)
            return &figure;
    }
    return nullptr;
}

void Report::compare(const QString &work, qint64 size, const QString &subject, qint64 otherSize,
                     const QString &against, double limit)
{
    const Figure *own = find(work, size, subject);
    const Figure *other = find(work, otherSize, against);
    if (!own || !other)
        return; // left out by an option
    Ratio ratio = {work, size, subject, against, Samples(), limit};
    if (otherSize != size)
        ratio.against += QString::fromLatin1(" at %1").arg(otherSize);
    for (int i = 0; i < qMin(own->samples.size(), other->samples.size()); ++i)
        ratio.samples.append(own->samples.at(i) / other->samples.at(i));
    add(ratio);
}

void Report::print() const
{
    std::printf("%-28s %8s  %-14s %-24s %8s  %-17s %8s\n", "work", "size", "subject", "against",
                "ratio", "spread", "target");
    Q_FOREACH (const Ratio &ratio, m_ratios) {
        const QString spread = QString::fromLatin1("%1 .. %2")
                                   .arg(smallest(ratio.samples), 0, 'f', 3)
                                   .arg(largest(ratio.samples), 0, 'f', 3);
        const QString limit = ratio.limit > 0
                                  ? QString::fromLatin1("<= %1 %2")
                                        .arg(ratio.limit)
                                        .arg(QLatin1String(ratio.isMet() ? "yes" : "NO"))
                                  : QString();
        std::printf("%-28s %8lld  %-14s %-24s %8.3f  %-17s %s\n", qPrintable(ratio.work),
                    static_cast<long long>(ratio.size), qPrintable(ratio.subject),
                    qPrintable(ratio.against), median(ratio.samples), qPrintable(spread),
                    qPrintable(limit));
    }
}

bool Report::write(const QString &path) const
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text))
        return false;
    QTextStream out(&file);
    out << "kind,work,size,subject,against,unit,median,smallest,largest,samples,limit\n";
    Q_FOREACH (const Figure &figure, m_figures) {
        out << "figure," << figure.work << ',' << figure.size << ',' << figure.subject << ",,"
            << figure.unit << ',' << median(figure.samples) << ',' << smallest(figure.samples)
            << ',' << largest(figure.samples) << ',' << figure.samples.size() << ",\n";
    }
    Q_FOREACH (const Ratio &ratio, m_ratios) {
        out << "ratio," << ratio.work << ',' << ratio.size << ',' << ratio.subject << ','
            << ratio.against << ",," << median(ratio.samples) << ',' << smallest(ratio.samples)
            << ',' << largest(ratio.samples) << ',' << ratio.samples.size() << ',' << ratio.limit
            << '\n';
    }
    out.flush();
    return file.error() == QFile::NoError;
}

QStringList Report::missed() const
{
    QStringList works;
    Q_FOREACH (const Ratio &ratio, m_ratios) {
        if (!ratio.isMet())
            works << QString::fromLatin1("%1 at %2, against %3")
                         .arg(ratio.work)
                         .arg(ratio.size)
                         .arg(ratio.against);
    }
    return works;
}

Contest::Contest(const QString &work, qint64 size, const QString &unit)
    : m_work(work), m_size(size), m_unit(unit)
{}

void Contest::add(const QString &subject, const std::function<double()> &run)
{
    const Figure figure = {m_work, m_size, subject, m_unit, Samples()};
    const Subject entry = {run, figure};
    m_subjects.append(entry);
}

void Contest::run(Report &report, int rounds, bool warmUp)
{
    for (int round = warmUp ? -1 : 0; round < rounds; ++round) {
        for (int i = 0; i < m_subjects.size(); ++i) {
            tidyMemory();
            const double cost = m_subjects[i].run();
            if (round >= 0)
                m_subjects[i].figure.samples.append(cost);
        }
    }
    Q_FOREACH (const Subject &subject, m_subjects)
        report.add(subject.figure);
}
