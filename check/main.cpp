// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "checkoptions.h"
#include "checkreport.h"
#include "programsource.h"
#include "wholefile.h"

#include "winding/coilpicture.h"
#include "winding/programcheck.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QTranslator>

#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

namespace {

/// What the program ends with; of several, the highest.
enum Status { AllRight, Warnings, Errors, NotRead, Refused };

void complain(const QByteArray &text)
{
    std::fprintf(stderr, "filarix-check: %s\n", CheckReport::shown(text).constData());
}

/// Where a standard stream was closed, the next file would take its number, and what is meant for
/// the stream would go into the file.
void occupyStandardStreams()
{
    while (true) {
        const int fd = ::open("/dev/null", O_RDONLY);
        if (fd > STDERR_FILENO)
            ::close(fd);
        if (fd < 0 || fd > STDERR_FILENO)
            return;
    }
}

/// The findings speak the language of the user, if its translation is installed.
void loadTranslation(QTranslator *translator)
{
    const QDir own(QCoreApplication::applicationDirPath());
    for (QString language : QLocale::system().uiLanguages()) {
        language.replace(QLatin1Char('-'), QLatin1Char('_'));
        if (language.startsWith(QLatin1String("en")))
            return;
        for (const char *folder : {FILARIX_BUILT_TRANSLATIONS, FILARIX_INSTALLED_TRANSLATIONS}) {
            if (translator->load(QLatin1String("filarixhost_") + language,
                                 own.filePath(QLatin1String(folder)))) {
                QCoreApplication::installTranslator(translator);
                return;
            }
        }
    }
}

bool readProfile(const QByteArray &name, MachineProfile *profile)
{
    if (name.isEmpty()) {
        *profile = MachineProfile::forSamples();
        return true;
    }
    QStringList errors;
    *profile = MachineProfile::fromFile(QFile::decodeName(name), &errors);
    for (const QString &error : errors)
        complain(error.toLocal8Bit());
    return errors.isEmpty();
}

Status statusOf(const ProgramCheck &check)
{
    if (check.count(Finding::Error) > 0)
        return Errors;
    return check.count(Finding::Warning) > 0 ? Warnings : AllRight;
}

bool draw(const WindingModel &model, const QByteArray &file, const QByteArray &svg)
{
    const QString title = QFileInfo(QFile::decodeName(file)).fileName();
    const CoilDrawing sheet = CoilPicture::sheet(model, file == "-" ? QString() : title);
    QByteArray reason;
    if (WholeFile::write(svg, sheet.svg(CoilDrawing::lightPalette()), &reason))
        return true;
    complain(svg + ": " + reason);
    return false;
}

Status checkFile(const QByteArray &file, const MachineProfile &profile, const QByteArray &svg,
                 CheckReport *report)
{
    ProgramCheck check(profile);
    ProgramReading reading(profile, &check);
    QByteArray reason;
    if (!ProgramSource::read(file, &reading, &reason)) {
        complain(file + ": " + reason);
        report->addUnread(file, reason);
        return NotRead;
    }
    report->add(file, check, reading.model());
    const bool isDrawn = svg.isEmpty() || draw(reading.model(), file, svg);
    return isDrawn ? statusOf(check) : NotRead;
}

/// A slip of the hand must not put a drawing in the place of a program.
bool wouldCoverItsSource(const CheckOptions &options)
{
    if (options.svg.isEmpty())
        return false;
    QList<QByteArray> sources = options.files;
    if (!options.profile.isEmpty())
        sources.append(options.profile);
    for (const QByteArray &source : sources)
        if (WholeFile::isSame(options.svg, source))
            return true;
    return false;
}

Status run(const CheckOptions &options)
{
    if (wouldCoverItsSource(options)) {
        complain(options.svg + ": is a file that is to be read, and no place for a drawing");
        return Refused;
    }
    MachineProfile profile;
    if (!readProfile(options.profile, &profile))
        return Refused;
    CheckReport report(stdout, options.asJson ? CheckReport::Json : CheckReport::Lines);
    report.begin(profile.name());
    Status status = AllRight;
    for (const QByteArray &file : options.files)
        status = qMax(status, checkFile(file, profile, options.svg, &report));
    report.end();
    return status;
}

Status answer(const CheckOptions &options)
{
    if (options.outcome == CheckOptions::Run)
        return run(options);
    if (options.outcome == CheckOptions::Refuse) {
        complain(options.text);
        return Refused;
    }
    std::fputs(options.text.constData(), stdout);
    return AllRight;
}

} // namespace

int main(int argc, char **argv)
{
    occupyStandardStreams();
    // Before the toolkit takes options of its own from them.
    QList<QByteArray> arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(argv[i]);
    QCoreApplication application(argc, argv);
    QTranslator translator;
    loadTranslation(&translator);
    const Status status = answer(CheckOptions::parse(arguments));
    if (std::fflush(stdout) == 0 && !std::ferror(stdout))
        return status;
    complain("the findings cannot be written");
    return qMax(status, NotRead);
}
