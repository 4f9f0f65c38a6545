// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef KEYPADLABEL_H
#define KEYPADLABEL_H

#include <QColor>
#include <QWidget>

/// A line of text above the keys. Like the keys it paints itself, in a size that its height gives.
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
    /// How wide the text is in one line, in a label of some height.
    int neededWidth(int height) const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void paintElided(QPainter *painter);
    void paintWrapped(QPainter *painter);

    QString m_text;
    Overflow m_overflow;
    QColor m_colour;
    Qt::Alignment m_alignment = Qt::AlignLeft | Qt::AlignVCenter;
};

#endif // KEYPADLABEL_H
