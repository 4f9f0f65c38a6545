// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "options.h"

#include "filarixpanel.h"
#include "look/look.h"

#include "shell/languages.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QRegExp>

namespace {

const int kSmallestWidth = 480;
const int kSmallestHeight = 272;

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
    const QSize smallest = size->width() < size->height() ? QSize(kSmallestHeight, kSmallestWidth)
                                                          : QSize(kSmallestWidth, kSmallestHeight);
    return size->width() >= smallest.width() && size->height() >= smallest.height();
}

} // namespace

Options Options::parse(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QLatin1String(
        "The operator's desk of a winding machine: every screen of the module, on a PC or a "
        "panel."));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    const QCommandLineOption rotation(
        QLatin1String("rotation"),
        QLatin1String("How the panel is mounted: 0, 90, 180 or 270. At 90 and 270 it stands "
                      "upright and the program screen has two tool bars. The picture itself is "
                      "turned by the display, or by --rotate."),
        QLatin1String("degrees"), QLatin1String("0"));
    const QCommandLineOption rotate(
        QLatin1String("rotate"),
        QLatin1String("Turn all that the program shows, dialogs and keypads too, clockwise by 0, "
                      "90, 180 or 270, and touches with it. For a display that is mounted turned "
                      "and can't do so itself."),
        QLatin1String("degrees"), QLatin1String("0"));
    const QCommandLineOption size(
        QLatin1String("size"),
        QLatin1String("Surface in pixels as the operator sees it, 480x272 or more: with --rotate "
                      "90 and 480x800 the window is 800x480. Without it a desktop shows 800x480, "
                      "upright 480x800, and a panel its whole screen."),
        QLatin1String("WxH"));
    const QCommandLineOption noTouch(
        QLatin1String("no-touch"),
        QLatin1String("The panel has keys and no touch screen: no on-screen keypad opens."));
    const QCommandLineOption look(
        QLatin1String("look"),
        QLatin1String("Colours of the panel: light, or dark for a dim hall. Without it: what the "
                      "operator has chosen, at first light."),
        QLatin1String("style"));
    const QCommandLineOption programs(
        QLatin1String("programs"),
        QLatin1String(
            "Program directory. It is always named cnc: for another name DIR/cnc is "
            "taken. The settings and, without --plc, the PLC folder lie beside it. "
            "Without it: cnc in your home. Sample programs are copied into a directory "
            "that holds no program yet. One panel at a time works on it: a second one says so "
            "and ends with status 3."),
        QLatin1String("DIR"));
    const QCommandLineOption plc(
        QLatin1String("plc"),
        QLatin1String("Folder that stands for the PLC: D/L copies programs into it. It is never "
                      "made: while it is missing the PLC is away. Without it: plc in your home, "
                      "which is made at the start."),
        QLatin1String("DIR"));
    const QCommandLineOption tour(
        QLatin1String("tour"),
        QLatin1String("Walk all screens without an operator, leave a numbered PNG of each in DIR, "
                      "and end. Needs no display. The walk has a home of its own, with a program "
                      "directory and a PLC, that goes with it; --programs and --plc are not for "
                      "it. In the folder of --stick it renames files whose names are not safe."),
        QLatin1String("DIR"));
    const QCommandLineOption stick(
        QLatin1String("stick"),
        QString::fromLatin1("Folder that stands in for a USB stick, to be plugged and pulled on "
                            "the Files screen. Where %1 belongs to the system, ./run --stick DIR "
                            "starts the panel with one of its own.")
            .arg(QLatin1String(FilarixPanel::stickDir)),
        QLatin1String("DIR"));
    const QStringList codes = Languages::codes();
    const QCommandLineOption language(
        QLatin1String("language"),
        QString::fromLatin1("Language to speak, one of %1. Without it: the one that the operator "
                            "chose, else the system's; in a tour English.")
            .arg(codes.join(QLatin1String(", "))),
        QLatin1String("code"));
    parser.addOptions(
        {rotation, rotate, size, noTouch, look, language, programs, plc, stick, tour});

    if (!parser.parse(arguments))
        return refusal(parser.errorText());
    Options options;
    if (parser.isSet(help)) {
        options.outcome = ShowText;
        options.text = parser.helpText();
        return options;
    }
    if (parser.isSet(version)) {
        options.outcome = ShowText;
        options.text = QCoreApplication::applicationName() + QLatin1Char(' ')
                       + QCoreApplication::applicationVersion() + QLatin1Char('\n');
        return options;
    }
    if (!parser.positionalArguments().isEmpty())
        return refusal(QString::fromLatin1("What is \"%1\"? The program takes options only.")
                           .arg(parser.positionalArguments().first()));
    if (!readRotation(parser.value(rotation), &options.rotation))
        return refusal(QString::fromLatin1("The rotation \"%1\" is none of 0, 90, 180, 270.")
                           .arg(parser.value(rotation)));
    if (!readRotation(parser.value(rotate), &options.turn))
        return refusal(
            QString::fromLatin1("The picture can be turned by 0, 90, 180 or 270 degrees, not by "
                                "\"%1\".")
                .arg(parser.value(rotate)));
    if (parser.isSet(size) && !readSize(parser.value(size), &options.size))
        return refusal(QString::fromLatin1("The size \"%1\" is not of the form 800x480, or below "
                                           "480x272.")
                           .arg(parser.value(size)));
    Look::Style style = Look::Light;
    if (parser.isSet(look) && !Look::read(parser.value(look), &style))
        return refusal(QString::fromLatin1("The look \"%1\" is neither light nor dark.")
                           .arg(parser.value(look)));
    options.language = parser.value(language);
    if (parser.isSet(language) && !codes.contains(options.language))
        return refusal(QString::fromLatin1("The language \"%1\" is none of %2.")
                           .arg(options.language, codes.join(QLatin1String(", "))));
    for (const QCommandLineOption &folder : {programs, plc, stick, tour}) {
        if (parser.isSet(folder) && parser.value(folder).isEmpty())
            return refusal(
                QString::fromLatin1("--%1 needs a directory.").arg(folder.names().constFirst()));
    }

    if (parser.isSet(tour) && (parser.isSet(programs) || parser.isSet(plc)))
        return refusal(QLatin1String("A tour changes what it finds: it has a home of its own, and "
                                     "takes neither --programs nor --plc."));

    options.look = parser.value(look);
    options.touch = !parser.isSet(noTouch);
    if (parser.isSet(programs)) {
        options.programDir = absolutePath(parser.value(programs));
        if (QFileInfo(options.programDir).fileName() != QLatin1String("cnc"))
            options.programDir = QDir(options.programDir).filePath(QLatin1String("cnc"));
    }
    if (parser.isSet(plc))
        options.plcDir = absolutePath(parser.value(plc));
    if (parser.isSet(stick))
        options.stickDir = absolutePath(parser.value(stick));
    if (parser.isSet(tour))
        options.tourDir = absolutePath(parser.value(tour));
    return options;
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
