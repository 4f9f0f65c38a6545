// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef NAMELABEL_H
#define NAMELABEL_H

#include "look/elidedlabel.h"

#include <functional>

/// The name of what an operator works on, and how it stands: "stator-coil.cnc (changed)".
///
/// A name that is longer than its lines loses its middle and nothing else. Names of programs
/// differ in their numbers and at their ends, which stay. Before that the name is broken
/// between its parts, its letters get smaller, the state gives way to its mark, and the
/// letters get narrower. Only then is the name broken within its parts.
///
///     label->setLines(2);
///     label->setName("stator-coil.cnc", "*", tr("changed"));
class NameLabel : public ElidedLabel
{
    Q_OBJECT

public:
    explicit NameLabel(QWidget *parent = nullptr);

    /// \a mark says by a sign what \a state says by a word; both are empty where there is nothing
    /// to say. text() has the mark.
    void setName(const QString &name, const QString &mark = QString(),
                 const QString &state = QString());
    /// The lines that are shown in the size of this moment.
    QStringList shown() const { return fitted().lines; }
    /// Whether nothing of it is left out, and no line ends within a word.
    bool isWhole() const { return fitted().isWhole; }

    /// As much of \a name as \a fits, with its longest number, its first and its last letter. Only
    /// three dots where that is too much.
    static QString shortened(const QString &name, const std::function<bool(const QString &)> &fits);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    struct Fitted
    {
        QFont font;
        QStringList lines;
        bool isWhole = false;
    };

    Fitted fitted() const;

    QString m_name;
    QString m_mark;
    QString m_state;
};

#endif // NAMELABEL_H
