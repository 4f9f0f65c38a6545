// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FINDINGSBAR_H
#define FINDINGSBAR_H

#include "base/message.h"
#include "look/glyphs.h"
#include "look/taparea.h"

#include <functional>

class ElidedLabel;
class PanelKey;
class ProgramReview;
class QHBoxLayout;
class ToneMark;

/// One finding of the check at a time, below the program that it is about: where it is, what it
/// means and what to do. Keys lead to the next one and back.
class FindingsBar : public QWidget
{
    Q_OBJECT

public:
    /// \a review must outlive the bar.
    explicit FindingsBar(const ProgramReview *review, QWidget *parent = nullptr);

    /// Shows the finding of that index, and wants its line; -1 shows how many there are.
    void goTo(int index);
    /// The index of the finding that it shows; -1 for none.
    int finding() const { return m_finding; }
    /// What it says at this moment.
    QString text() const;

public Q_SLOTS:
    /// The line at the editor's cursor, from 1: Next and Back go from there.
    void setLine(int line);

Q_SIGNALS:
    /// The operator wants to see \a line at \a column; both from 1.
    void placeWanted(int line, int column);
    /// The operator touched the text, which may have no room.
    void touched();
    void listWanted();
    void closeWanted();

protected:
    void changeEvent(QEvent *event) override;

private:
    PanelKey *addKey(QHBoxLayout *row, const char *name, Glyphs::Glyph glyph,
                     const std::function<QString()> &text);
    bool isAtFinding() const;
    int firstAtLine() const;
    int next() const;
    int previous() const;
    void takeChange();
    Message::Tone tone() const;
    void showAll();

    const ProgramReview *m_review;
    ToneMark *m_mark;
    ElidedLabel *m_text;
    PanelKey *m_backKey;
    PanelKey *m_nextKey;
    int m_finding = -1;
    int m_line = 1;
};

#endif // FINDINGSBAR_H
