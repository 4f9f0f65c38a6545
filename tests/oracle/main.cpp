// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT
//
// filarix-oracle write FOLDER COUNT SEED
// filarix-oracle compare PROGRAMS ANSWERS COUNT SEED
//
// The first writes generated programs, FOLDER/1.ngc and so on by their seeds. The second compares
// the end of each motion with the oracle's answers, ANSWERS/1 and so on.

#include "canonicalmotions.h"
#include "oracleprogram.h"

#include <QDir>
#include <QFile>

#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace {

// What the oracle writes is rounded to the half of it.
const double tolerance = 1e-4;
const int mostDifferences = 20;

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    return file.readAll();
}

int writePrograms(const QDir &folder, int count, int seed)
{
    for (int i = seed; i < seed + count; ++i) {
        QFile file(folder.filePath(QString::fromLatin1("%1.ngc").arg(i)));
        const QByteArray text = OracleProgram::text(quint32(i));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("cannot write %s", qPrintable(file.fileName()));
    }
    return 0;
}

/// Prints where they differ.
class Comparison
{
public:
    void compare(int program, const CanonicalMotions &ours, const CanonicalMotions &theirs)
    {
        if (ours.size() != theirs.size())
            tell("program %d: %d motions of ours, %d of the oracle's\n", program, ours.size(),
                 theirs.size());
        for (int i = 0; i < qMin(ours.size(), theirs.size()); ++i) {
            const double apart = distanceOf(ours.at(i), theirs.at(i));
            m_farthest = std::fmax(m_farthest, apart);
            ++m_motions;
            if (!(apart <= tolerance))
                tell("program %d, line %d: otherwise than the oracle's line %d\n", program,
                     ours.at(i).line, theirs.at(i).line);
        }
    }

    int end(int programs) const
    {
        std::printf("%d programs, %d motions: %d differences, the farthest %g apart\n", programs,
                    m_motions, m_differences, m_farthest);
        return m_differences > 0 || m_motions < programs;
    }

private:
    void tell(const char *format, int first, int second, int third)
    {
        if (++m_differences <= mostDifferences)
            std::printf(format, first, second, third);
    }

    int m_motions = 0;
    int m_differences = 0;
    double m_farthest = 0;
};

int comparePrograms(const QDir &programs, const QDir &answers, int count, int seed)
{
    Comparison comparison;
    for (int i = seed; i < seed + count; ++i) {
        const QByteArray program =
            contentOf(programs.filePath(QString::fromLatin1("%1.ngc").arg(i)));
        const QByteArray answer = contentOf(answers.filePath(QString::number(i)));
        comparison.compare(i, motionsOfProgram(program), motionsOfOracle(answer));
    }
    return comparison.end(count);
}

} // namespace

int main(int argc, char **argv)
{
    const QByteArray mode = argc > 1 ? argv[1] : "";
    if (mode == "write" && argc == 5)
        return writePrograms(QDir(QFile::decodeName(argv[2])), atoi(argv[3]), atoi(argv[4]));
    if (mode == "compare" && argc == 6)
        return comparePrograms(QDir(QFile::decodeName(argv[2])), QDir(QFile::decodeName(argv[3])),
                               atoi(argv[4]), atoi(argv[5]));
    std::fputs("filarix-oracle: see run.sh\n", stderr);
    return 2;
}
