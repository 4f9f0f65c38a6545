// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef KEYPADFRAME_H
#define KEYPADFRAME_H

#include "keypadlayout.h"
#include "keypadvalue.h"

#include <QHash>
#include <QPointer>
#include <QValidator>
#include <QWidget>

class KeyButton;
class KeypadLabel;
class ValueEdit;
struct NamedKey;

/// What a caller asks of a keypad for one exec(). A default one asks for nothing.
struct KeypadRequest
{
    QPointer<QObject> object;
    QPointer<QValidator> validator;
    QString text;
    QString limit;
    bool pointEnabled = true;
};

/// The layouts between which the page key turns; the second is null on a keypad of one page.
struct KeypadPages
{
    const char *const *first;
    const char *const *second;
};

/// What makes one keypad differ from the others.
struct KeypadFace
{
    KeypadFace(const char *const *wideLayout, const char *const *narrowLayout, int narrowest,
               const QSize &key, bool takesNumbers)
        : wide(KeypadPages{wideLayout, nullptr})
        , narrow(KeypadPages{narrowLayout, nullptr})
        , narrowestKey(narrowest)
        , keySize(key)
        , forNumbers(takesNumbers)
    {}

    /// The pages, and those for a screen on which the keys of the first would be too narrow.
    KeypadPages wide;
    KeypadPages narrow;
    int narrowestKey;
    /// Pages of fewer and larger keys, for a small screen on which those of the others miss a
    /// glove's size: lying and upright. Null where none are needed.
    KeypadPages smallWide = KeypadPages();
    KeypadPages smallNarrow = KeypadPages();
    /// The size of a key where the screen has room and the caller names no size.
    QSize keySize;
    /// Only numbers are typed: the old value is selected, so that typing replaces it, and a comma
    /// is a decimal point.
    bool forNumbers;
    /// Words of a letter and a number are typed: a new one stands apart from the one before.
    bool forWords = false;
    /// A layout of few rows for a place beside the edited row; null if there is none.
    const char *const *flat = nullptr;
    /// What a value without a name is called, in English, for tr().
    const char *name = QT_TRANSLATE_NOOP("KeypadFrame", "Text");
};

/// The inside of a keypad: what is edited, the old value, the limits, the value that is typed and
/// why it can't be accepted, above the keys. It serves one request after the other and keeps
/// nothing of the last.
class KeypadFrame : public QWidget
{
    Q_OBJECT

public:
    KeypadFrame(const KeypadFace &face, QWidget *parent);

    /// What the present caller asks for; may be changed in any order before begin().
    KeypadRequest &request() { return m_request; }
    /// Changes the text, also while the keypad is open.
    void setText(const QString &text);
    /// Changes the validator, also while the keypad is open.
    void setValidator(const QValidator *validator);

    /// Where the keypad goes on a screen, and with which layout. An empty \a wish leaves the size
    /// to the keypad. It never leaves the screen; a low screen it takes whole. Elsewhere what is
    /// edited stays in view, where its place is known and a keypad fits beside it.
    QRect place(const QRect &screen, const QSize &wish);
    /// Shows the request. The keypad is on the screen by now.
    void begin();
    /// Whether the text may be accepted.
    bool isAcceptable() const;
    /// Writes the text to the property `text` of the caller's object, if there still is one.
    void deliver();
    /// Forgets the request.
    void end();

public Q_SLOTS:
    /// Draws the eye to the reason why the text can't be accepted.
    void explain();

Q_SIGNALS:
    void accepted();
    void rejected();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void keyClicked();
    void check();

private:
    enum Shift { ShiftOff, ShiftOnce, ShiftLocked };

    KeypadPages pagesFor(const QSize &screen) const;
    int leastSide(const KeypadPages &pages, const QSize &screen) const;
    KeypadLayout layoutOf(const char *const *rows) const;
    QSize sizeOf(const KeypadLayout &layout, const QSize &key) const;
    QSize leastOfPages() const;
    QSize fittingSize(const KeypadLayout &layout, const QSize &screen, const QSize &wish) const;
    QRect dockedPlace(const QRect &screen, const QSize &size);
    void useLayout(const KeypadLayout &layout);
    KeyButton *addKey(const QString &token);
    void arrange();
    void arrangeHead();
    bool hasRoomForAll(int length, int height, int gap) const;
    void arrangeKeys();
    void labelKeys();
    void fitLetters();
    QString labelOf(const KeyButton *key) const;
    QString spokenNameOf(const KeyButton *key) const;
    void showHead();
    bool beginsWord(const QString &text) const;
    QString refusal() const;
    bool isChecked() const;
    bool canHavePoint() const;

    void typeKey(const QString &text);
    void backspace();
    void clear();
    void moveLeft();
    void moveRight();
    void typeSpace();
    void toggleSign();
    void turnShift();
    void turnSymbols();
    void turnPage();
    void turnCapitals();
    void accept();
    void acceptForNextLine();
    void reject();

    static const NamedKey namedKeys[];
    static const NamedKey *namedKey(const QString &token);

    KeypadFace m_face;
    KeypadLayout m_layout;
    /// Those of the page that is shown, in the order of its layout.
    QList<KeyButton *> m_keys;
    /// All that were made so far, by token: a page that was shown may come again.
    QHash<QString, KeyButton *> m_allKeys;
    KeypadLabel *m_title;
    KeypadLabel *m_hint;
    KeypadLabel *m_oldValue;
    KeypadLabel *m_limit;
    KeypadLabel *m_reason;
    ValueEdit *m_edit;

    KeypadRequest m_request;
    KeypadValue m_value;
    /// Between begin() and end().
    bool m_isOpen = false;
    Shift m_shift = ShiftOff;
    bool m_symbols = false;
    /// The layouts on this screen, and which of them is shown.
    KeypadPages m_pages;
    bool m_isSecond = false;
    /// The second page has small letters.
    bool m_isSmall = false;
    bool m_mayGoOn = false;
    bool m_isGoingOn = false;
};

#endif // KEYPADFRAME_H
