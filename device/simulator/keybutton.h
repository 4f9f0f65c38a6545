// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef KEYBUTTON_H
#define KEYBUTTON_H

#include <QAbstractButton>

/// One key of a keypad.
///
/// A key paints itself and takes nothing from the style or from a host's style sheet. So a keypad
/// looks and measures the same over every program. A key never takes the keyboard focus, which
/// belongs to the value.
class KeyButton : public QAbstractButton
{
    Q_OBJECT

public:
    /// What the key is for, which gives it its colours.
    enum Role { TypingRole, EditingRole, AcceptRole, CancelRole };
    /// A drawing instead of the text. Fonts of panels often lack these signs.
    enum Glyph {
        NoGlyph,
        BackspaceGlyph,
        LeftGlyph,
        RightGlyph,
        SpaceGlyph,
        ShiftGlyph,
        ShiftOnceGlyph,
        ShiftLockGlyph
    };

    /// The object name is "key_" and \a token, by which a test or a script finds the key.
    KeyButton(const QString &token, QWidget *parent);

    /// The name of the key in its layout.
    QString token() const { return m_token; }
    void setRole(Role role);
    Role role() const { return m_role; }
    void setGlyph(Glyph glyph);
    /// The text goes on being what accessibility tools read when a glyph covers it.
    Glyph glyph() const { return m_glyph; }
    /// Whether the text is more than one character.
    bool isWord() const { return text().length() > 1; }
    /// The largest size in pixels in which the text fits. That of a single character is the same
    /// for each: a key keeps it when it turns from "i" to "W".
    int fittingLetters() const;
    /// The size in which the text is painted.
    void setLetters(int pixels);

    QSize sizeHint() const override;

Q_SIGNALS:
    /// A press while the key is grey.
    void pressedInVain();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QRect textRoom() const;

    QString m_token;
    Role m_role = TypingRole;
    Glyph m_glyph = NoGlyph;
    int m_letters;
};

#endif // KEYBUTTON_H
