// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef OPTIONS_H
#define OPTIONS_H

#include <QSize>
#include <QString>
#include <QStringList>

/// What the command line asks of the panel program.
struct Options
{
    enum Outcome {
        Run,      ///< Show the panel, or walk it when tourDir is set.
        ShowText, ///< Print `text` and end with success: --help, --version.
        Refuse    ///< Print `text`, which says what is wrong, and end with status 2.
    };

    Outcome outcome = Run;
    QString text;

    /// 0, 90, 180 or 270: how the panel is mounted.
    int rotation = 0;
    /// 0, 90, 180 or 270, clockwise: how far the picture is turned on the display.
    int turn = 0;
    /// Surface in pixels as the operator sees it; invalid when it was not given.
    QSize size;
    bool touch = true;
    /// Absolute path of the program directory, whose last part is always "cnc"; empty for the
    /// one in the user's home.
    QString programDir;
    /// Absolute path of the drop folder; empty for the one in the user's home.
    QString plcDir;
    /// Absolute path of the folder that stands in for a USB stick; empty for the panel's own.
    QString stickDir;
    /// Absolute path of the machine's profile; empty for the panel's own, or the built-in one.
    QString profile;
    /// Code of the language to speak; empty for the operator's choice.
    QString language;
    /// Dots per inch of the display; 0 for what the display says of itself.
    double dotsPerInch = 0;
    /// "100", "125" or "150" percent; empty for the operator's choice.
    QString textSize;
    /// "light", "dark" or "high-contrast"; empty for the operator's choice.
    QString look;
    /// Absolute path of the folder for pictures; empty when no tour is wanted.
    QString tourDir;

    /// Reads a command line, the program's name first. Needs an application object.
    static Options parse(const QStringList &arguments);

    /// The home that puts the library's program directory at `programDir`; empty to keep the
    /// user's.
    QString home() const;
    /// `plcDir`, or the one in the home of this moment.
    QString plcFolder() const;
    /// `size`, or the usual surface for the rotation: 800 by 480, upright 480 by 800.
    QSize surfaceSize() const;
    /// `size`, or what a display of that size has room for when the picture is turned.
    QSize surfaceOn(const QSize &display) const;
};

#endif // OPTIONS_H
