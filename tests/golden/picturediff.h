// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PICTUREDIFF_H
#define PICTUREDIFF_H

#include <QImage>
#include <QRect>

/// What an eye sees different in two pictures of a screen.
///
/// Letters and round corners may be smoothed otherwise: each pixel has to be found, a little
/// blurred, within a pixel of its place. An even ground has no such excuse: there a slightly
/// different colour counts. One pixel is no fault, some in one place are.
///
///     const PictureDiff diff(kept, taken);
///     if (!diff.isSame())
///         diff.drawn().save("differs.png");
class PictureDiff
{
public:
    /// Pictures of two sizes differ in all pixels.
    PictureDiff(const QImage &expected, const QImage &found);

    bool isSame() const;
    /// Pixels that an eye tells apart.
    int pixels() const { return m_pixels; }
    /// Where most of them are together.
    QRect place() const { return m_place; }
    /// \a found, pale, with the differing pixels in red and a frame around place().
    QImage drawn() const;

private:
    void compare(const QRect &part);
    void findPlace();

    QImage m_expected;
    QImage m_found;
    QImage m_marks;
    int m_pixels = 0;
    int m_together = 0;
    QRect m_place;
};

#endif // PICTUREDIFF_H
