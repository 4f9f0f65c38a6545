// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef ELIDEDLABEL_H
#define ELIDEDLABEL_H

#include <QLabel>

/// A text that gives way: what doesn't fit into its lines ends in three dots. Its letters give way
/// before, where they may.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget *parent = nullptr);

    /// Lines that the text may fill; one at first. The caller gives the label their height, and
    /// what has no room in it stays away.
    void setLines(int lines);
    int lines() const { return m_lines; }
    /// A text that has no room is written in smaller letters first, of no less than \a pixels.
    void shrinkTo(int pixels);
    /// The lines that minimumSizeHint() has room for; one at first.
    void keepLines(int lines);
    /// Whether all of the text is shown in the size of this moment.
    bool isWhole() const { return isWholeIn(contentsRect().size()); }
    /// Whether all of it were shown in so much room.
    bool isWholeIn(const QSize &room) const;

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    struct Lines
    {
        QStringList texts;
        bool isWhole;
    };

    Lines linesIn(const QFont &font, const QSize &room) const;
    QFont fittingFont(const QSize &room) const;

    int m_lines = 1;
    int m_keptLines = 1;
    /// 0 for letters that stay as they are.
    int m_smallestPixels = 0;
};

#endif // ELIDEDLABEL_H
