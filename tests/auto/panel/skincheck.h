// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef SKINCHECK_H
#define SKINCHECK_H

#include <QList>
#include <QPointer>
#include <QString>
#include <QWidgetList>

class QImage;
class ToolkitSpy;

/// Something on the screen that is not of one piece with the rest.
struct SkinFault
{
    /// "touch", "line", "contrast" or "toolkit".
    QString check;
    QPointer<const QWidget> widget;
    QString text;
};

/// What an operator would miss of the panel's skin, computed from what is on the screen.
class SkinCheck
{
public:
    /// What can be touched and is smaller than 9 mm, or 15 for what stops a run, as far as the
    /// surface has room.
    static QList<SkinFault> touch(const QWidgetList &windows);
    /// Keys of the panel's own whose edges almost meet, and gaps between them beside the grid.
    static QList<SkinFault> lines(const QWidgetList &windows);
    /// Texts whose drawn letters stand out less than \a least from what is drawn behind them;
    /// what is switched off may have 3.
    static QList<SkinFault> contrast(const QWidgetList &windows, double least);
    /// What is drawn as the toolkit would.
    static QList<SkinFault> toolkit(const QWidgetList &windows, ToolkitSpy *spy);

    /// "QPushButton save in QuestionDialog".
    static QString nameOf(const QWidget *widget);
};

/// What is let pass, with the reason; one that is never met is a fault itself. The head of the file
/// tells how it reads.
class SkinExceptions
{
public:
    SkinExceptions(const QString &path, const QString &walk);

    bool isMet(const SkinFault &fault);
    /// The lines for this walk that nothing has met.
    QStringList unmet() const;
    /// Lines that make no sense.
    QStringList faults() const { return m_faults; }

private:
    struct Line
    {
        QString text;
        QString check;
        QString what;
        QString word;
        bool isMet;
    };

    QList<Line> m_lines;
    QStringList m_faults;
};

#endif // SKINCHECK_H
