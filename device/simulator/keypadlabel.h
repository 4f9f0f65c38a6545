// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef KEYPADLABEL_H
#define KEYPADLABEL_H

#include "keypadaccess.h"

#include <QColor>
#include <QWidget>

/// A line of text above the keys. Like the keys it paints itself, in a size that its height gives.
/// Accessibility tools take it for a static text with that name.
class KeypadLabel : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    /// What to do with a text that is too long even in smaller letters: cut its end off, or break
    /// it into lines.
    enum Overflow { Elide, Wrap };

    KeypadLabel(const QString &objectName, Overflow overflow, QWidget *parent);

    QString text() const { return m_text; }
    void setText(const QString &text);
    void setColour(const QColor &colour);
    void setAlignment(Qt::Alignment alignment);
    void setBold(bool isBold);
    /// A marked text stands on its colour, so that the eye is drawn to it.
    void setMarked(bool isMarked);
    bool isMarked() const { return m_isMarked; }
    /// How wide the text is in one line, in a label of some height.
    int neededWidth(int height) const;
    /// The same in the smallest letters.
    int leastWidth() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QFont lineFont(int height) const;
    void paintElided(QPainter *painter);
    void paintWrapped(QPainter *painter);

    QString m_text;
    Overflow m_overflow;
    QColor m_colour;
    Qt::Alignment m_alignment = Qt::AlignLeft | Qt::AlignVCenter;
    bool m_isBold = false;
    bool m_isMarked = false;
    KeypadAccess::StaticText m_access;
};

#endif // KEYPADLABEL_H
