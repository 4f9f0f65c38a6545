// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// filarix-golden take LIST SIZE LOOK FOLDER
// filarix-golden check LIST SIZE LOOK FOLDER KEPT
//
// Walks the panel program's screens and leaves the pictures that LIST names in FOLDER. To check is
// to compare them with those in KEPT, and to leave only what differs, as it is and as it differs.

#include "goldenlist.h"
#include "panelprogram.h"
#include "picturediff.h"

#include "look/look.h"
#include "screens/filesscreen.h"
#include "screens/programreview.h"
#include "shell/panelwindow.h"
#include "stick/devicewatch.h"
#include "stick/stick.h"
#include "tour.h"

#include <QApplication>
#include <QDir>
#include <QHash>
#include <QImageWriter>
#include <QVector>

#include <algorithm>
#include <cstdio>

namespace {

// As long as the layouts of a step take.
const int tickMs = 10;
const int mostColours = 256;
// The others are those that few pixels have.
const int mostUsed = 192;
const qint64 freeBytes = qint64(4) * 1024 * 1024 * 1024;

int complain(const QString &text)
{
    std::fprintf(stderr, "%s\n", qPrintable(text));
    return 1;
}

int distance(QRgb one, QRgb other)
{
    return qAbs(qRed(one) - qRed(other)) + qAbs(qGreen(one) - qGreen(other))
           + qAbs(qBlue(one) - qBlue(other));
}

/// Of \a all colours, the most used first, those that a picture keeps. The last ones are the
/// farthest from any other: a small sign in a colour of its own is no shade of the ground around
/// it.
QVector<QRgb> keptOf(const QVector<QRgb> &all)
{
    QVector<QRgb> kept = all.mid(0, mostUsed);
    QVector<int> ways(all.size(), INT_MAX);
    const auto shorten = [&all, &ways](QRgb colour) {
        for (int i = 0; i < all.size(); ++i)
            ways[i] = qMin(ways.at(i), distance(all.at(i), colour));
    };
    for (QRgb colour : qAsConst(kept))
        shorten(colour);
    while (kept.size() < qMin(all.size(), mostColours)) {
        kept.append(all.at(int(std::max_element(ways.begin(), ways.end()) - ways.begin())));
        shorten(kept.last());
    }
    return kept;
}

/// With the colours that it keeps as they are, and each other as the nearest of them: a quarter of
/// the bytes, and grounds keep their colours, which the usual tools would mix.
QImage withFewColours(const QImage &picture)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            ++counts[picture.pixel(x, y)];
    }
    QVector<QRgb> colours = counts.keys().toVector();
    std::sort(colours.begin(), colours.end(), [&counts](QRgb one, QRgb other) {
        return counts[one] != counts[other] ? counts[one] > counts[other] : one < other;
    });
    const QVector<QRgb> used = keptOf(colours);
    QHash<QRgb, uchar> places;
    for (QRgb colour : qAsConst(colours)) {
        const auto nearest =
            std::min_element(used.begin(), used.end(), [colour](QRgb one, QRgb other) {
                return distance(colour, one) < distance(colour, other);
            });
        places.insert(colour, uchar(nearest - used.begin()));
    }
    QImage result(picture.size(), QImage::Format_Indexed8);
    result.setColorTable(used);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            result.scanLine(y)[x] = places.value(picture.pixel(x, y));
    }
    return result;
}

bool writeSmall(const QImage &picture, const QString &path)
{
    QImageWriter writer(path, "png");
    writer.setCompression(100);
    return writer.write(picture);
}

/// What became of the pictures of one walk.
class Keeper
{
public:
    Keeper(const QString &folder, const QString &kept) : m_folder(folder), m_kept(kept) {}

    void take(const QString &name, const QImage &picture)
    {
        const QImage small = withFewColours(picture);
        if (m_kept.isEmpty())
            write(name, small);
        else
            compare(name, small);
    }
    int faults() const { return m_faults; }

private:
    void write(const QString &name, const QImage &picture)
    {
        if (!writeSmall(picture, m_folder.filePath(name)))
            note(QString::fromLatin1("%1 cannot be written.").arg(m_folder.filePath(name)));
    }
    void compare(const QString &name, const QImage &picture)
    {
        const QString path = QDir(m_kept).filePath(name);
        const QImage kept(path);
        if (kept.isNull())
            return note(QString::fromLatin1("%1 is missing: tests/golden/update.sh").arg(path));
        const PictureDiff diff(kept, picture);
        if (diff.isSame())
            return;
        const QString drawn = QLatin1String("differs-") + name;
        write(name, picture);
        write(drawn, withFewColours(diff.drawn()));
        note(QString::fromLatin1("%1: %2 pixels differ, most around %3,%4; %5 shows where. If that "
                                 "is meant: tests/golden/update.sh")
                 .arg(m_folder.filePath(name))
                 .arg(diff.pixels())
                 .arg(diff.place().center().x())
                 .arg(diff.place().center().y())
                 .arg(m_folder.filePath(drawn)));
    }
    void note(const QString &fault)
    {
        ++m_faults;
        complain(fault);
    }

    const QDir m_folder;
    const QString m_kept;
    int m_faults = 0;
};

/// In the place of the watch, which looks from time to time: the PLC is there, and the stick as
/// soon as it is plugged.
class SteadyDevices
{
public:
    explicit SteadyDevices(PanelProgram *program) : m_program(program)
    {
        m_program->deviceWatch()->disconnect();
        QObject::connect(program->filesScreen(), &FilesScreen::stickMoved, [this] { show(); });
        show();
    }

private:
    void show() const
    {
        DeviceState state;
        state.isKnown = true;
        state.plcReachable = true;
        state.stickIn = Stick::isPresent();
        state.freeBytes = freeBytes;
        m_program->window()->showDevices(state);
        m_program->filesScreen()->showDevices(state);
    }

    PanelProgram *m_program;
};

Options optionsFor(const QString &size, const QString &look, const QString &folder)
{
    Options options;
    options.size = QSize(size.section(QLatin1Char('x'), 0, 0).toInt(),
                         size.section(QLatin1Char('x'), 1).toInt());
    options.rotation = options.size.width() < options.size.height() ? 90 : 0;
    options.look = look;
    options.language = QLatin1String("en");
    options.stickDir = QLatin1String("/mnt/Storage.stick");
    options.tourDir = folder;
    return options;
}

int walk(const Options &options, QStringList wanted, Keeper *keeper)
{
    PanelProgram program(options, QStringList());
    if (program.start() != PanelProgram::Started)
        return complain(QLatin1String("The panel does not start."));
    QApplication::setCursorFlashTime(0);
    const SteadyDevices devices(&program);
    Tour tour(program.window(), QString(), program.glass());
    // Else a mark of the check is there or not.
    const ProgramReview *review = program.programReview();
    tour.restBeforePictures([review] { return review->state() != ProgramReview::Waiting; });
    program.plan(&tour);
    const QString size =
        QString::fromLatin1("%1x%2").arg(options.size.width()).arg(options.size.height());
    QObject::connect(&tour, &Tour::taken, [&](const QString &stop, const QImage &picture) {
        if (wanted.removeOne(stop))
            keeper->take(GoldenList::fileName(size, options.look, stop), picture);
    });
    QObject::connect(&tour, &Tour::finished, qApp, &QApplication::quit);
    tour.start(tickMs);
    QApplication::exec();
    if (!tour.error().isEmpty())
        return complain(tour.error());
    for (const QString &stop : qAsConst(wanted))
        complain(QString::fromLatin1("The tour of %1 has no stop %2.").arg(size, stop));
    return wanted.isEmpty() && keeper->faults() == 0 ? 0 : 1;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    const QString mode = arguments.value(1);
    const bool isCheck = mode == QLatin1String("check");
    if (arguments.size() != (isCheck ? 7 : 6))
        return complain(
            QLatin1String("filarix-golden take|retake|check LIST SIZE LOOK FOLDER [KEPT]"));
    const QString look = arguments.at(4);
    Look::Style style = Look::Light;
    if (!Look::read(look, &style))
        return complain(QString::fromLatin1("No such look: %1").arg(look));
    const QStringList stops =
        GoldenList(arguments.at(2)).stops(arguments.at(3), look, mode == QLatin1String("take"));
    if (stops.isEmpty())
        return complain(QString::fromLatin1("%1 lists no such picture.").arg(arguments.at(2)));
    Keeper keeper(arguments.at(5), arguments.value(6));
    return walk(optionsFor(arguments.at(3), look, arguments.at(5)), stops, &keeper);
}
