// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "works.h"

#include "contest.h"
#include "plainlist.h"
#include "sampleprogram.h"
#include "samplerows.h"
#include "subjects.h"
#include "tlistwidget.h"

#include <QApplication>
#include <QFile>

#include <cstdio>

namespace {

const char bareProcess[] = "nothing";

qint64 peakKilobytes()
{
    QFile status(QLatin1String("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    Q_FOREACH (const QByteArray &line, status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').first().toLongLong();
    }
    return 0;
}

double peakOf(const QString &subject, int size)
{
    const QString command = QString::fromLatin1("'%1' --peak %2 %3")
                                .arg(QCoreApplication::applicationFilePath(), subject)
                                .arg(size);
    FILE *pipe = popen(command.toLocal8Bit().constData(), "r");
    if (!pipe)
        return 0;
    double kilobytes = 0;
    if (std::fscanf(pipe, "%lf", &kilobytes) != 1)
        kilobytes = 0;
    return pclose(pipe) == 0 ? kilobytes : 0;
}

template<class List>
void fillList(int size)
{
    QStringList noTitle;
    List list(noTitle, nullptr);
    for (int i = 0; i < size; ++i) {
        QStringList row = sampleRow(i);
        list.addWidget(row, false, false);
    }
    std::printf("%lld\n", static_cast<long long>(peakKilobytes()));
}

} // namespace

int runForPeak(const QString &subject, int size)
{
    if (subject == QLatin1String("rows")) {
        fillList<TListWidget>(size);
        return 0;
    }
    if (subject == QLatin1String("plainrows")) {
        fillList<PlainList>(size);
        return 0;
    }
    if (subject != QLatin1String(bareProcess)) {
        const QSharedPointer<EditorSubject> editor = Subjects::showEditor(subject);
        editor->load(sampleProgram(size));
        settleForGood();
    }
    std::printf("%lld\n", static_cast<long long>(peakKilobytes()));
    return 0;
}

void measureMemory(Report &report, const Extent &extent)
{
    const QString work = QLatin1String("peak memory of a load");
    QList<int> sizes;
    sizes << 2000 << 10000 << 100000;
    if (!extent.isQuick)
        sizes << 1000000;
    Q_FOREACH (int size, sizes) {
        Contest contest(work, size, QLatin1String("MB"));
        Q_FOREACH (const QString &name, Subjects::editors())
            contest.add(name, [=]() { return peakOf(name, size) / 1024; });
        contest.run(report, 1);
        report.compare(work, size, Subjects::shipped, size, Subjects::plain,
                       size == 1000000 ? 0.85 : 0);
        report.compare(work, size, Subjects::shipped, size, Subjects::floor);
        report.compare(work, size, Subjects::shipped, size, Subjects::scintilla);
        report.compare(work, size, Subjects::shipped, size, Subjects::kate);
    }

    const QString rows = QLatin1String("memory of a stored row");
    const QString target = QLatin1String("0.7 KB");
    Q_FOREACH (int size, QList<int>() << 1000 << 100000) {
        Contest contest(rows, size, QLatin1String("KB"));
        const auto perRow = [=](const QString &subject) {
            return (peakOf(subject, size) - peakOf(subject, 0)) / size;
        };
        contest.add(Subjects::shipped, [=]() { return perRow(QLatin1String("rows")); });
        contest.add(Subjects::plain, [=]() { return perRow(QLatin1String("plainrows")); });
        contest.add(target, []() { return 0.7; });
        contest.run(report, 3);
        report.compare(rows, size, Subjects::shipped, size, Subjects::plain);
        report.compare(rows, size, Subjects::shipped, size, target, size == 100000 ? 1 : 0);
    }
}
