// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "options.h"

#include "filarixpanel.h"
#include "look/look.h"
#include "look/measures.h"
#include "shell/languages.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QRegExp>

namespace {

const int smallestWidth = 480;
const int smallestHeight = 272;

QString languages()
{
    return Languages::codes().join(QLatin1String(", "));
}

QString absolutePath(const QString &path)
{
    return QDir::cleanPath(QDir().absoluteFilePath(path));
}

Options refusal(const QString &reason)
{
    Options options;
    options.outcome = Options::Refuse;
    options.text = reason + QLatin1String("\nTry --help.");
    return options;
}

bool readRotation(const QString &text, int *rotation)
{
    bool isNumber = false;
    *rotation = text.toInt(&isNumber);
    return isNumber && *rotation >= 0 && *rotation <= 270 && *rotation % 90 == 0;
}

bool readSize(const QString &text, QSize *size)
{
    QRegExp pattern(QLatin1String("(\\d{1,5})x(\\d{1,5})"));
    if (!pattern.exactMatch(text))
        return false;
    *size = QSize(pattern.cap(1).toInt(), pattern.cap(2).toInt());
    const QSize smallest = size->width() < size->height() ? QSize(smallestHeight, smallestWidth)
                                                          : QSize(smallestWidth, smallestHeight);
    return size->width() >= smallest.width() && size->height() >= smallest.height();
}

// The readers of the options below. Each gives the reason why its value is refused, or nothing.

QString takeRotation(const QString &, const QString &value, Options *options)
{
    if (readRotation(value, &options->rotation))
        return QString();
    return QString::fromLatin1("The rotation \"%1\" is none of 0, 90, 180, 270.").arg(value);
}

QString takeTurn(const QString &, const QString &value, Options *options)
{
    if (readRotation(value, &options->turn))
        return QString();
    return QString::fromLatin1("The picture can be turned by 0, 90, 180 or 270 degrees, not by "
                               "\"%1\".")
        .arg(value);
}

QString takeSize(const QString &, const QString &value, Options *options)
{
    if (readSize(value, &options->size))
        return QString();
    return QString::fromLatin1("The size \"%1\" is not of the form 800x480, or below 480x272.")
        .arg(value);
}

QString takeNoTouch(const QString &, const QString &, Options *options)
{
    options->touch = false;
    return QString();
}

QString takeDotsPerInch(const QString &, const QString &value, Options *options)
{
    bool isNumber = false;
    options->dotsPerInch = value.toDouble(&isNumber);
    if (isNumber && Measures::isSensible(options->dotsPerInch))
        return QString();
    return QString::fromLatin1("The dots per inch \"%1\" are no number from %2 to %3.")
        .arg(value)
        .arg(Measures::fewestDotsPerInch)
        .arg(Measures::mostDotsPerInch);
}

QString takeTextSize(const QString &, const QString &value, Options *options)
{
    options->textSize = value;
    if (Measures::textSizeNames().contains(value))
        return QString();
    return QString::fromLatin1("The text size \"%1\" is none of %2.")
        .arg(value, Measures::textSizeNames().join(QLatin1String(", ")));
}

QString takeLook(const QString &, const QString &value, Options *options)
{
    Look::Style style = Look::Light;
    options->look = value;
    if (Look::read(value, &style))
        return QString();
    return QString::fromLatin1("The look \"%1\" is neither light, dark nor high-contrast.")
        .arg(value);
}

QString takeLanguage(const QString &, const QString &value, Options *options)
{
    options->language = value;
    if (Languages::codes().contains(value))
        return QString();
    return QString::fromLatin1("The language \"%1\" is none of %2.").arg(value, languages());
}

QString takeFolder(const QString &name, const QString &value, QString *folder)
{
    if (value.isEmpty())
        return QString::fromLatin1("--%1 needs a directory.").arg(name);
    *folder = absolutePath(value);
    return QString();
}

QString takePrograms(const QString &name, const QString &value, Options *options)
{
    QString reason = takeFolder(name, value, &options->programDir);
    if (reason.isEmpty() && QFileInfo(options->programDir).fileName() != QLatin1String("cnc"))
        options->programDir = QDir(options->programDir).filePath(QLatin1String("cnc"));
    return reason;
}

QString takePlc(const QString &name, const QString &value, Options *options)
{
    return takeFolder(name, value, &options->plcDir);
}

QString takeStick(const QString &name, const QString &value, Options *options)
{
    return takeFolder(name, value, &options->stickDir);
}

QString takeProfile(const QString &name, const QString &value, Options *options)
{
    if (value.isEmpty())
        return QString::fromLatin1("--%1 needs a file.").arg(name);
    options->profile = absolutePath(value);
    return QString();
}

QString takeTour(const QString &name, const QString &value, Options *options)
{
    return takeFolder(name, value, &options->tourDir);
}

const struct
{
    const char *name;
    /// What stands for the value in the help; nullptr for an option without one.
    const char *value;
    QString (*take)(const QString &name, const QString &value, Options *options);
    /// %1 are the languages, %2 is the folder of the USB stick.
    const char *help;
} knownOptions[] = {
    {"rotation", "degrees", &takeRotation,
     "How the panel is mounted: 0, 90, 180 or 270. At 90 and 270 it stands upright and the program "
     "screen has two tool bars. The picture itself is turned by the display, or by --rotate."},
    {"rotate", "degrees", &takeTurn,
     "Turn all that the program shows, dialogs and keypads too, clockwise by 0, 90, 180 or 270, "
     "and touches with it. For a display that is mounted turned and can't do so itself."},
    {"size", "WxH", &takeSize,
     "Surface in pixels as the operator sees it, 480x272 or more: with --rotate 90 and 480x800 the "
     "window is 800x480. Without it a desktop shows 800x480, upright 480x800, and a panel its "
     "whole screen."},
    {"dpi", "N", &takeDotsPerInch,
     "Dots per inch of the display, 50 to 360: keys are 9 mm at least, where the surface has room. "
     "Without it: what the display says of itself, and 96 where that cannot be; in a tour 96."},
    {"text-size", "percent", &takeTextSize,
     "Size of the panel's own texts: 100, 125 or 150, as far as there is room. Without it: what "
     "the operator has chosen, at first 100."},
    {"no-touch", nullptr, &takeNoTouch,
     "The panel has keys and no touch screen: no on-screen keypad opens."},
    {"look", "style", &takeLook,
     "Colours of the panel: light, dark for a dim hall, or high-contrast for glare. Without it: "
     "what "
     "the operator has chosen, at first light."},
    {"language", "code", &takeLanguage,
     "Language to speak, one of %1. Without it: the one that the operator chose, else the "
     "system's; in a tour English."},
    {"programs", "DIR", &takePrograms,
     "Program directory. It is always named cnc: for another name DIR/cnc is taken. The settings "
     "and, without --plc, the PLC folder lie beside it. Without it: cnc in your home. Sample "
     "programs are copied into a directory that holds no program yet. One panel at a time works on "
     "it: a second one says so and ends with status 3."},
    {"plc", "DIR", &takePlc,
     "Folder that stands for the PLC: D/L copies programs into it. It is never made: while it is "
     "missing the PLC is away. Without it: plc in your home, which is made at the start."},
    {"stick", "DIR", &takeStick,
     "Folder that stands in for a USB stick, to be plugged and pulled on the Files screen. Where "
     "%2 belongs to the system, ./run --stick DIR starts the panel with one of its own."},
    {"profile", "FILE", &takeProfile,
     "The machine's profile: what its words mean, its bobbin and its limits, for the preview and "
     "the "
     "check. Without it: machine.ini in the panel's folder; where there is none, the machine of "
     "the "
     "sample programs."},
    {"tour", "DIR", &takeTour,
     "Walk all screens without an operator, leave a numbered PNG of each in DIR, and end. Needs no "
     "display. The walk has a home of its own, with a program directory and a PLC, that goes with "
     "it; --programs and --plc are not for it. In the folder of --stick it renames files whose "
     "names are not safe."},
};

void describe(QCommandLineParser *parser)
{
    parser->setApplicationDescription(QLatin1String(
        "The operator's desk of a winding machine: every screen of the module, on a PC or a "
        "panel."));
    parser->addHelpOption();
    parser->addVersionOption();
    for (const auto &known : knownOptions) {
        QString help = QLatin1String(known.help);
        help.replace(QLatin1String("%1"), languages());
        help.replace(QLatin1String("%2"), QLatin1String(FilarixPanel::stickDir));
        parser->addOption(
            QCommandLineOption(QLatin1String(known.name), help, QLatin1String(known.value)));
    }
}

Options shown(const QString &text)
{
    Options options;
    options.outcome = Options::ShowText;
    options.text = text;
    return options;
}

/// Why they are refused; empty where they are not.
QString takeAll(const QCommandLineParser &parser, Options *options)
{
    for (const auto &known : knownOptions) {
        const QString name = QLatin1String(known.name);
        QString reason =
            parser.isSet(name) ? known.take(name, parser.value(name), options) : QString();
        if (!reason.isEmpty())
            return reason;
    }
    const bool isTour = !options->tourDir.isEmpty();
    if (isTour && !(options->programDir + options->plcDir).isEmpty())
        return QLatin1String("A tour changes what it finds: it has a home of its own, and takes "
                             "neither --programs nor --plc.");
    return QString();
}

} // namespace

Options Options::parse(const QStringList &arguments)
{
    QCommandLineParser parser;
    describe(&parser);
    if (!parser.parse(arguments))
        return refusal(parser.errorText());
    if (parser.isSet(QLatin1String("help")))
        return shown(parser.helpText());
    if (parser.isSet(QLatin1String("version")))
        return shown(QCoreApplication::applicationName() + QLatin1Char(' ')
                     + QCoreApplication::applicationVersion() + QLatin1Char('\n'));
    if (!parser.positionalArguments().isEmpty())
        return refusal(QString::fromLatin1("What is \"%1\"? The program takes options only.")
                           .arg(parser.positionalArguments().first()));
    Options options;
    const QString reason = takeAll(parser, &options);
    return reason.isEmpty() ? options : refusal(reason);
}

QString Options::home() const
{
    return programDir.isEmpty() ? QString() : QFileInfo(programDir).absolutePath();
}

QString Options::plcFolder() const
{
    return plcDir.isEmpty() ? QDir::home().filePath(QLatin1String("plc")) : plcDir;
}

QSize Options::surfaceSize() const
{
    if (size.isValid())
        return size;
    return rotation % 180 == 90 ? QSize(480, 800) : QSize(800, 480);
}

QSize Options::surfaceOn(const QSize &display) const
{
    if (size.isValid())
        return size;
    return turn % 180 == 90 ? display.transposed() : display;
}
