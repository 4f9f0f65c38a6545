// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef SPOKENNAMES_H
#define SPOKENNAMES_H

#include <QObject>
#include <QString>

class QWidget;

/// Gives what can be touched or typed into a name and a role. Both are for whoever can't see it: a
/// screen reader, or a switch in the place of a finger.
///
/// What has a text of its own is called so. A field, a list or a table is called by the label
/// beside it, else by its window or its screen. The name is in the language that is shown. The
/// library's widgets have names likewise. What bears a picture alone has a name from who made it.
///
///     new SpokenNames(&application); // before the first widget
class SpokenNames : public QObject
{
    Q_OBJECT

public:
    /// Names what is shown in \a application from now on.
    explicit SpokenNames(QObject *application);

    /// Whether an operator can do something with \a widget itself.
    static bool isInteractive(const QWidget *widget);
    /// What a screen reader is told; empty for a widget without a name.
    static QString nameOf(QWidget *widget);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    static void name(QWidget *widget);
};

#endif // SPOKENNAMES_H
