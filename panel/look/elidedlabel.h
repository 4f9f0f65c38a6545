// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef ELIDEDLABEL_H
#define ELIDEDLABEL_H

#include <QLabel>

/// A text that gives way: what doesn't fit into its lines ends in three dots.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget *parent = nullptr);

    /// Lines that the text may fill; one at first. The caller gives the label their height, and
    /// what has no room in it stays away.
    void setLines(int lines);
    int lines() const { return m_lines; }
    /// The lines that minimumSizeHint() has room for; one at first.
    void keepLines(int lines);

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int lineHeight() const;
    QStringList linesIn(int width) const;

    int m_lines = 1;
    int m_keptLines = 1;
};

#endif // ELIDEDLABEL_H
