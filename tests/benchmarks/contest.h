// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef CONTEST_H
#define CONTEST_H

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

/// Samples of one figure, in the order in which they were taken.
typedef QList<double> Samples;

double median(const Samples &samples);
double smallest(const Samples &samples);
double largest(const Samples &samples);

/// Milliseconds of CPU time that this process has used, in all its threads.
double cpuMilliseconds();
/// CPU time of \a work in milliseconds.
double cpuOf(const std::function<void()> &work);

/// Serves the event loop until everything that is due is painted.
void settle();
/// The same for half a second: some editors leave work for later, such as the picture of the whole
/// text beside the scroll bar.
void settleForGood();

/// What one subject costs for one work at one size.
struct Figure
{
    QString work;
    qint64 size;
    QString subject;
    QString unit;
    Samples samples;
};

/// A figure as a multiple of another one, sample by sample, and how large it may be.
struct Ratio
{
    QString work;
    qint64 size;
    QString subject;
    QString against;
    Samples samples;
    double limit; ///< 0: told, not judged

    bool isMet() const { return limit <= 0 || median(samples) <= limit; }
};

/// All that was measured.
class Report
{
public:
    void add(const Figure &figure);
    void add(const Ratio &ratio);
    /// The ratio of two figures that are there, sample by sample.
    void compare(const QString &work, qint64 size, const QString &subject, qint64 otherSize,
                 const QString &against, double limit = 0);

    void print() const;
    bool write(const QString &path) const;
    QStringList missed() const;

private:
    const Figure *find(const QString &work, qint64 size, const QString &subject) const;

    QList<Figure> m_figures;
    QList<Ratio> m_ratios;
};

/// Subjects that do the same work by turns, A B A B, so that whatever else the machine does meets
/// all of them.
class Contest
{
public:
    Contest(const QString &work, qint64 size, const QString &unit = QLatin1String("ms"));

    /// \a run does the work once and gives its cost.
    void add(const QString &subject, const std::function<double()> &run);
    /// Lets all take part \a rounds times, after one turn each that does not count if \a warmUp.
    void run(Report &report, int rounds, bool warmUp = false);

private:
    struct Subject
    {
        std::function<double()> run;
        Figure figure;
    };

    QString m_work;
    qint64 m_size;
    QString m_unit;
    QList<Subject> m_subjects;
};

#endif // CONTEST_H
