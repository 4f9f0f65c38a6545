// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "keypadframe.h"

#include "keybutton.h"
#include "keynames.h"
#include "keypadaccess.h"
#include "keypadcheck.h"
#include "keypadlabel.h"
#include "keypadlook.h"
#include "keypadplace.h"
#include "valueedit.h"

#include <QEvent>
#include <QPainter>
#include <QRegExp>
#include <QStringList>

#include <algorithm>
#include <numeric>

namespace {

// Larger keys only make the way from one to the next longer.
const QSize largestKey(170, 92);
// A screen lower than this is covered whole.
const int lowScreen = 400;
// Up to this width or height the pixels go to the keys rather than between them.
const int smallKeypad = 480;
const int smallGap = 4;
const int largeGap = 6;
// One long word must not make all the others smaller than this, in percent of a character's size.
const int leastWord = 50;

const int repeatDelay = 500;
const int repeatInterval = 80;

// The lines above the keys, each at its lowest and at its highest.
const int lowestTitle = 18;
const int lowestInfo = 16;
const int highestInfo = 26;
const int lowestValue = 34;
const int highestValue = 60;

// By look.
const QRgb frameColours[] = {0xff26303a, 0xff0b0f13, 0xff000000};
const QRgb titleColour = 0xffffffff;
const QRgb oldValueColour = 0xffd5dce3;
const QRgb limitColour = 0xffffd479;
const QRgb reasonColour = 0xffff9d8a;

// The letter keys, and what stands in their places while the symbols are shown.
const char letters[] = "qwertyuiopasdfghjklzxcvbnm";
const char symbols[] = "!#$%&()+=@[]{}~^,;':/\\?*<>";

// What a caller's object says and hears beside the text.
const char nextLineProperty[] = "hmiNextLine";
const char nextLineChosenProperty[] = "hmiNextLineChosen";

/// The heights above the keys, and the space between all, for a keypad of some size and number of
/// rows. The title has a line of its own where the keys keep a glove's height.
struct Measures
{
    Measures(const QSize &keypad, int rows)
        : gap(qMin(keypad.width(), keypad.height()) > smallKeypad ? largeGap : smallGap)
        , title(0)
        , info(lowestInfo)
        , value(lowestValue)
    {
        // The keys have a glove's height before the rest grows.
        const int spare = keypad.height() - rows * (KeypadLook::gloveSize() + gap);
        const bool hasTitle = spare >= header() + lowestTitle;
        const int rest = spare - header() - (hasTitle ? lowestTitle : 0);
        info = grown(lowestInfo, rest / 5, qMin(keypad.height() / 14, highestInfo));
        value = grown(lowestValue, rest * 2 / 5, qMin(keypad.height() / 7, highestValue));
        title = hasTitle ? info + lowestTitle - lowestInfo : 0;
    }

    int header() const { return gap + title + info + gap / 2 + value + gap; }

    /// The lowest header, that of a small keypad.
    static int leastHeader()
    {
        return smallGap + lowestInfo + smallGap / 2 + lowestValue + smallGap;
    }

    /// \a lowest with its part of the rest, no higher than \a highest at the usual size of texts.
    static int grown(int lowest, int part, int highest)
    {
        return lowest + qBound(0, part, qMax(0, KeypadLook::letters(highest) - lowest));
    }

    int gap;
    int title;
    int info;
    int value;
};

/// The edge of a cell when \a count cells share \a length pixels with gaps between them.
int cellEdge(int cell, int count, int length, int gap)
{
    return cell * (length + gap) / count;
}

int keyWidth(const KeypadLayout &layout, const QSize &keypad)
{
    const int gap = Measures(keypad, layout.cells().height()).gap;
    return (keypad.width() - gap) / layout.cells().width() - gap;
}

/// The smaller side of the keys if \a layout has a whole screen.
int keySide(const KeypadLayout &layout, const QSize &screen)
{
    const Measures measures(screen, layout.cells().height());
    const int height = (screen.height() - measures.header()) / layout.cells().height();
    return qMin(keyWidth(layout, screen), height - measures.gap);
}

/// The size of a keypad whose keys fit a glove, with its lowest header.
QSize leastSize(const KeypadLayout &layout)
{
    const QSize cells = layout.cells();
    return QSize(cells.width() * (KeypadLook::gloveSize() + smallGap) + smallGap,
                 cells.height() * (KeypadLook::gloveSize() + smallGap) + Measures::leastHeader());
}

/// The width that no line beside others may exceed, for all of them to share \a room: who needs
/// less than a fair part leaves the rest to the others.
int fairWidth(QList<int> needs, int room)
{
    std::sort(needs.begin(), needs.end());
    int others = needs.count();
    Q_FOREACH (int need, needs) {
        if (need * others > room)
            return room / others;
        room -= need;
        --others;
    }
    return QWIDGETSIZE_MAX;
}

/// The widths of lines side by side in \a room: what each needs, else all in smaller letters, else
/// the longest cut off.
QList<int> sharedWidths(const QList<KeypadLabel *> &labels, int height, int room)
{
    QList<int> needs;
    QList<int> least;
    Q_FOREACH (const KeypadLabel *label, labels) {
        needs.append(label->neededWidth(height));
        least.append(qMin(needs.last(), label->leastWidth()));
    }
    const int needed = std::accumulate(needs.begin(), needs.end(), 0);
    const int leastNeeded = std::accumulate(least.begin(), least.end(), 0);
    const int widest = fairWidth(least, room);
    QList<int> widths;
    for (int i = 0; i < needs.count(); ++i) {
        int width = needs.at(i);
        if (leastNeeded > room)
            width = qMin(least.at(i), widest);
        else if (needed > room)
            width = least.at(i)
                    + (needs.at(i) - least.at(i)) * (room - leastNeeded) / (needed - leastNeeded);
        widths.append(width);
    }
    return widths;
}

/// Lays lines of text side by side. What they leave of the room comes before the last.
void shareRow(const QRect &row, const QList<KeypadLabel *> &labels, int gap)
{
    const QList<int> widths =
        sharedWidths(labels, row.height(), row.width() - gap * (labels.count() - 1));
    int left = row.left();
    for (int i = 0; i < labels.count(); ++i) {
        const bool isLast = i == labels.count() - 1;
        const int width = isLast && i == 0 ? row.width() : widths.at(i);
        labels.at(i)->setGeometry(isLast ? row.right() + 1 - width : left, row.top(), width,
                                  row.height());
        left += width + gap;
    }
}

/// The keypad's share of a screen's \a length. A rest too narrow to show anything is taken too.
int shareOf(int length, int wanted)
{
    return wanted * 100 > length * 85 ? length : wanted;
}

QStringList numbersOf(const QString &text)
{
    QStringList numbers;
    QRegExp number(QLatin1String("-?[0-9]+([.,][0-9]+)?"));
    for (int at = 0; (at = number.indexIn(text, at)) >= 0; at += number.matchedLength())
        numbers.append(number.cap());
    return numbers;
}

/// Whether the two tell the same limits, in whatever words.
bool hasSameNumbers(const QString &text, const QString &other)
{
    const QStringList numbers = numbersOf(text);
    return !numbers.isEmpty() && numbers == numbersOf(other);
}

} // namespace

/// A key that does something other than typing its own token.
struct NamedKey
{
    const char *token;
    const char *label;
    KeyButton::Glyph glyph;
    KeyButton::Role role;
    bool repeats;
    void (KeypadFrame::*press)();
};

// clang-format off
const NamedKey KeypadFrame::namedKeys[] = {
    {"back",    QT_TR_NOOP("Backspace"),    KeyButton::BackspaceGlyph, KeyButton::EditingRole, true,  &KeypadFrame::backspace},
    {"clear",   QT_TR_NOOP("Clear"),        KeyButton::NoGlyph,        KeyButton::EditingRole, false, &KeypadFrame::clear},
    {"left",    QT_TR_NOOP("Cursor left"),  KeyButton::LeftGlyph,      KeyButton::EditingRole, true,  &KeypadFrame::moveLeft},
    {"right",   QT_TR_NOOP("Cursor right"), KeyButton::RightGlyph,     KeyButton::EditingRole, true,  &KeypadFrame::moveRight},
    {"space",   QT_TR_NOOP("Space"),        KeyButton::SpaceGlyph,     KeyButton::TypingRole,  true,  &KeypadFrame::typeSpace},
    {"sign",    QT_TR_NOOP("+/-"),          KeyButton::NoGlyph,        KeyButton::EditingRole, false, &KeypadFrame::toggleSign},
    {"shift",   QT_TR_NOOP("Shift"),        KeyButton::ShiftGlyph,     KeyButton::EditingRole, false, &KeypadFrame::turnShift},
    {"symbols", QT_TR_NOOP("#+="),          KeyButton::NoGlyph,        KeyButton::EditingRole, false, &KeypadFrame::turnSymbols},
    {"digits",  QT_TR_NOOP("123"),          KeyButton::NoGlyph,        KeyButton::EditingRole, false, &KeypadFrame::turnPage},
    {"page",    QT_TR_NOOP("ABC"),          KeyButton::NoGlyph,        KeyButton::EditingRole, false, &KeypadFrame::turnPage},
    {"small",   QT_TR_NOOP("abc"),          KeyButton::NoGlyph,        KeyButton::EditingRole, false, &KeypadFrame::turnCapitals},
    {"cancel",  QT_TR_NOOP("Cancel"),       KeyButton::NoGlyph,        KeyButton::CancelRole,  false, &KeypadFrame::reject},
    {"next",    QT_TR_NOOP("OK, next line"), KeyButton::NoGlyph,       KeyButton::AcceptRole,  false, &KeypadFrame::acceptForNextLine},
    {"ok",      QT_TR_NOOP("OK"),           KeyButton::NoGlyph,        KeyButton::AcceptRole,  false, &KeypadFrame::accept},
};
// clang-format on

KeypadFrame::KeypadFrame(const KeypadFace &face, QWidget *parent)
    : QWidget(parent)
    , m_face(face)
    , m_title(new KeypadLabel(QLatin1String("title"), KeypadLabel::Elide, this))
    , m_hint(new KeypadLabel(QLatin1String("hint"), KeypadLabel::Elide, this))
    , m_oldValue(new KeypadLabel(QLatin1String("oldValue"), KeypadLabel::Elide, this))
    , m_limit(new KeypadLabel(QLatin1String("limit"), KeypadLabel::Elide, this))
    , m_reason(new KeypadLabel(QLatin1String("reason"), KeypadLabel::Wrap, this))
    , m_edit(new ValueEdit(this))
    , m_pages(face.wide)
{
    m_title->setColour(QColor(titleColour));
    m_title->setBold(true);
    m_hint->setColour(QColor(oldValueColour));
    m_hint->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_oldValue->setColour(QColor(oldValueColour));
    m_limit->setColour(QColor(limitColour));
    m_limit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_reason->setColour(QColor(reasonColour));
    setFocusProxy(m_edit);
    if (m_face.forNumbers)
        m_edit->setAttribute(Qt::WA_InputMethodEnabled, false);
    connect(m_edit, SIGNAL(textChanged(QString)), SLOT(check()));
    useLayout(layoutOf(m_pages.first));
}

void KeypadFrame::setText(const QString &text)
{
    m_request.text = text;
    if (m_isOpen)
        begin();
}

void KeypadFrame::setValidator(const QValidator *validator)
{
    if (m_request.validator)
        m_request.validator->disconnect(this);
    // Only its const operations are called; the guarded pointer knows no const.
    m_request.validator = const_cast<QValidator *>(validator);
    if (validator)
        connect(validator, SIGNAL(destroyed()), SLOT(check()));
    if (m_isOpen) {
        m_value = KeypadValue(m_request, m_face.forNumbers);
        showHead();
    }
    arrange();
    check();
}

QRect KeypadFrame::place(const QRect &screen, const QSize &wish)
{
    m_value = KeypadValue(m_request, m_face.forNumbers);
    m_mayGoOn = m_request.object && m_request.object->property(nextLineProperty).toBool();
    m_pages = pagesFor(screen.size());
    m_isSecond = false;
    useLayout(layoutOf(m_pages.first));
    if (screen.height() < lowScreen)
        return screen;

    const QSize size = fittingSize(m_layout, screen.size(), wish);
    const QRect usual = KeypadPlace::atTheBottom(screen, size);
    const QRect docked = usual.intersects(m_value.place) ? dockedPlace(screen, size) : QRect();
    return docked.isEmpty() ? usual : docked;
}

/// Those whose keys are large enough, else those with the largest ones.
KeypadPages KeypadFrame::pagesFor(const QSize &screen) const
{
    // A second page has more columns and rows than the first one, and takes the same place.
    const KeypadLayout wide = layoutOf(m_face.wide.second ? m_face.wide.second : m_face.wide.first);
    const bool fits = keyWidth(wide, screen) >= m_face.narrowestKey
                      || leastSide(m_face.wide, screen) >= leastSide(m_face.narrow, screen);
    const KeypadPages usual = fits ? m_face.wide : m_face.narrow;
    const bool isLying = screen.width() >= screen.height();
    const KeypadPages small = isLying ? m_face.smallWide : m_face.smallNarrow;
    const int side = leastSide(usual, screen);
    const bool isSmall = qMin(screen.width(), screen.height()) < lowScreen;
    if (!small.first || !isSmall || side >= KeypadLook::gloveSize())
        return usual;
    return leastSide(small, screen) > side ? small : usual;
}

/// The smaller side of the keys on either page if the keypad has a whole screen.
int KeypadFrame::leastSide(const KeypadPages &pages, const QSize &screen) const
{
    const int side = keySide(layoutOf(pages.first), screen);
    return pages.second ? qMin(side, keySide(layoutOf(pages.second), screen)) : side;
}

/// A place beside what is edited, if need be with fewer rows of keys. Empty if there is none.
QRect KeypadFrame::dockedPlace(const QRect &screen, const QSize &size)
{
    const QRect edited = m_value.place & screen;
    const QRect place = KeypadPlace::besides(screen, edited, size, leastOfPages().height());
    if (!place.isEmpty() || !m_face.flat)
        return place;
    const KeypadLayout flat(m_face.flat);
    if (keyWidth(flat, size) < KeypadLook::gloveSize())
        return QRect();
    const QRect flatPlace = KeypadPlace::besides(screen, edited, size, leastSize(flat).height());
    if (!flatPlace.isEmpty())
        useLayout(flat);
    return flatPlace;
}

void KeypadFrame::begin()
{
    m_isOpen = true;
    m_value = KeypadValue(m_request, m_face.forNumbers);
    m_shift = ShiftOff;
    m_symbols = false;
    m_isSmall = false;
    labelKeys();
    showHead();

    TypingRules rules;
    rules.commaIsPoint = m_face.forNumbers;
    rules.pointEnabled = canHavePoint();
    if (m_face.forNumbers && !m_request.validator)
        rules.allowed = QLatin1String("0123456789+-.");
    m_edit->setRules(rules);
    m_edit->setText(m_request.text);
    if (m_face.forNumbers)
        m_edit->selectAll();
    else
        m_edit->end(false);
    arrange();
    check();
}

bool KeypadFrame::isAcceptable() const
{
    return refusal().isEmpty();
}

void KeypadFrame::explain()
{
    m_reason->setMarked(true);
    KeypadAccess::announce(m_reason);
}

void KeypadFrame::deliver()
{
    if (m_request.object && m_isGoingOn)
        m_request.object->setProperty(nextLineChosenProperty, true);
    if (m_request.object)
        m_request.object->setProperty("text", m_edit->text());
}

void KeypadFrame::end()
{
    m_isOpen = false;
    // A key that a finger still holds would go on repeating.
    Q_FOREACH (KeyButton *key, m_keys)
        key->setDown(false);
    setValidator(nullptr);
    m_request = KeypadRequest();
    m_value = KeypadValue();
}

void KeypadFrame::paintEvent(QPaintEvent *)
{
    QPainter(this).fillRect(rect(), QColor(frameColours[KeypadLook::look()]));
}

void KeypadFrame::resizeEvent(QResizeEvent *)
{
    arrange();
}

void KeypadFrame::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    // The host changes its look, and the field's own sheet hides that from the field.
    if (event->type() == QEvent::PaletteChange && isVisible())
        m_edit->fitFont();
    if (event->type() != QEvent::LanguageChange)
        return;
    labelKeys();
    m_value = KeypadValue(m_request, m_face.forNumbers);
    showHead();
    arrange();
    check();
}

void KeypadFrame::keyClicked()
{
    const QString token = static_cast<KeyButton *>(sender())->token();
    if (const NamedKey *named = namedKey(token))
        (this->*named->press)();
    else
        typeKey(labelOf(static_cast<KeyButton *>(sender())));
}

void KeypadFrame::check()
{
    const QString reason = refusal();
    m_reason->setText(reason);
    m_reason->setMarked(false);
    KeypadAccess::setDescription(m_edit, reason);
    Q_FOREACH (KeyButton *key, m_keys) {
        if (key->role() == KeyButton::AcceptRole)
            key->setEnabled(reason.isEmpty());
        else if (key->token() == QLatin1String("."))
            key->setEnabled(canHavePoint());
        else if (key->token() == QLatin1String("shift"))
            key->setEnabled(!m_symbols);
    }
}

QString KeypadFrame::refusal() const
{
    return KeypadCheck::refusal(m_request.validator, m_value.limits, m_edit->text());
}

/// Whether there are texts that can't be accepted.
bool KeypadFrame::isChecked() const
{
    return m_request.validator || m_value.limits.isBounded() || m_value.limits.isWhole();
}

bool KeypadFrame::canHavePoint() const
{
    return m_request.pointEnabled && !m_value.limits.isWhole();
}

/// The least size for either page.
QSize KeypadFrame::leastOfPages() const
{
    const QSize least = leastSize(m_layout);
    return m_pages.second ? least.expandedTo(leastSize(layoutOf(m_pages.second))) : least;
}

QSize KeypadFrame::fittingSize(const KeypadLayout &layout, const QSize &screen,
                               const QSize &wish) const
{
    const QSize wanted = (wish.isEmpty() ? sizeOf(layout, m_face.keySize) : wish)
                             .expandedTo(leastOfPages())
                             .boundedTo(sizeOf(layout, largestKey));
    return QSize(shareOf(screen.width(), wanted.width()),
                 shareOf(screen.height(), wanted.height()));
}

QSize KeypadFrame::sizeOf(const KeypadLayout &layout, const QSize &key) const
{
    const QSize cells = layout.cells();
    const Measures measures(QSize(800, 480), cells.height());
    return QSize(cells.width() * (key.width() + measures.gap) + measures.gap,
                 cells.height() * (key.height() + measures.gap) + measures.header());
}

KeypadLayout KeypadFrame::layoutOf(const char *const *rows) const
{
    return KeypadLayout(rows, QLatin1String(m_mayGoOn ? "" : "next"), QLatin1String("ok"));
}

void KeypadFrame::useLayout(const KeypadLayout &layout)
{
    m_layout = layout;
    m_keys.clear();
    Q_FOREACH (const PlacedKey &placed, m_layout.keys()) {
        if (!m_allKeys.contains(placed.token))
            m_allKeys.insert(placed.token, addKey(placed.token));
        m_keys.append(m_allKeys.value(placed.token));
    }
    Q_FOREACH (KeyButton *key, m_allKeys)
        key->setVisible(m_keys.contains(key));
    labelKeys();
}

KeyButton *KeypadFrame::addKey(const QString &token)
{
    KeyButton *key = new KeyButton(token, this);
    if (const NamedKey *named = namedKey(token)) {
        key->setRole(named->role);
        key->setGlyph(named->glyph);
        key->setAutoRepeat(named->repeats);
    }
    key->setAutoRepeatDelay(repeatDelay);
    key->setAutoRepeatInterval(repeatInterval);
    connect(key, SIGNAL(clicked()), SLOT(keyClicked()));
    if (key->role() == KeyButton::AcceptRole)
        connect(key, SIGNAL(pressedInVain()), SLOT(explain()));
    return key;
}

void KeypadFrame::arrange()
{
    arrangeHead();
    arrangeKeys();
}

void KeypadFrame::arrangeHead()
{
    const Measures measures(size(), m_layout.cells().height());
    const int gap = measures.gap;
    const int left = gap;
    const int length = width() - 2 * gap;

    QList<KeypadLabel *> first;
    QList<KeypadLabel *> second;
    first << m_title;
    const bool hasRoom = measures.title || hasRoomForAll(length, measures.info, gap);
    m_oldValue->setVisible(hasRoom);
    if (hasRoom)
        (measures.title ? second : first) << m_oldValue;
    if (!m_hint->text().isEmpty())
        first << m_hint;
    if (!m_limit->text().isEmpty())
        (measures.title ? second : first) << m_limit;
    const int infoTop = gap + measures.title;
    shareRow(QRect(left, gap, length, measures.title ? measures.title : measures.info), first,
             2 * gap);
    shareRow(QRect(left, infoTop, length, measures.info), second, 2 * gap);

    // Room for the reason is kept while there may be one: a line that jumps is hard to read.
    const int reason = isChecked() ? length * 3 / 10 : 0;
    const int valueTop = infoTop + measures.info + gap / 2;
    m_edit->setGeometry(left, valueTop, reason ? length - reason - gap : length, measures.value);
    m_reason->setGeometry(left + length - reason, valueTop, reason, measures.value);
    m_reason->setVisible(reason > 0);
}

/// Whether a hint stands whole in one line with title and old value. The value itself begins as the
/// old one, but what the hint tells stands nowhere else.
bool KeypadFrame::hasRoomForAll(int length, int height, int gap) const
{
    const int needed = m_title->neededWidth(height) + m_oldValue->neededWidth(height)
                       + m_hint->neededWidth(height) + 4 * gap;
    return m_hint->text().isEmpty() || needed <= length;
}

void KeypadFrame::arrangeKeys()
{
    const Measures measures(size(), m_layout.cells().height());
    const int gap = measures.gap;
    const int left = gap;
    const int length = width() - 2 * gap;
    const QSize cells = m_layout.cells();
    const int keysTop = measures.header();
    const int keysHeight = height() - keysTop - gap;
    for (int i = 0; i < m_keys.count(); ++i) {
        const QRect place = m_layout.keys().at(i).cells;
        const int x1 = cellEdge(place.left(), cells.width(), length, gap);
        const int x2 = cellEdge(place.right() + 1, cells.width(), length, gap) - gap;
        const int y1 = cellEdge(place.top(), cells.height(), keysHeight, gap);
        const int y2 = cellEdge(place.bottom() + 1, cells.height(), keysHeight, gap) - gap;
        m_keys.at(i)->setGeometry(left + x1, keysTop + y1, x2 - x1, y2 - y1);
    }
    fitLetters();
}

/// The same size for all single characters, and another one for all words: an eye that goes from
/// key to key takes larger letters for more important ones. A word that is too long is smaller, and
/// so is one on a narrow key.
void KeypadFrame::fitLetters()
{
    int characters = QWIDGETSIZE_MAX;
    int words = QWIDGETSIZE_MAX;
    Q_FOREACH (const KeyButton *key, m_keys) {
        const bool isNarrowWord = key->isWord() && key->width() < KeypadLook::gloveSize();
        if (key->glyph() == KeyButton::NoGlyph && !isNarrowWord) {
            int &size = key->isWord() ? words : characters;
            size = qMin(size, key->fittingLetters());
        }
    }
    words = qMax(qMin(words, characters), characters * leastWord / 100);
    Q_FOREACH (KeyButton *key, m_keys)
        key->setLetters(qMin(key->fittingLetters(), key->isWord() ? words : characters));
}

void KeypadFrame::labelKeys()
{
    Q_FOREACH (KeyButton *key, m_keys) {
        key->setText(labelOf(key));
        KeypadAccess::setName(key, spokenNameOf(key));
        if (key->token() == QLatin1String("shift")) {
            const KeyButton::Glyph glyphs[] = {KeyButton::ShiftGlyph, KeyButton::ShiftOnceGlyph,
                                               KeyButton::ShiftLockGlyph};
            key->setGlyph(glyphs[m_shift]);
        }
    }
}

QString KeypadFrame::labelOf(const KeyButton *key) const
{
    const QString token = key->token();
    if (token == QLatin1String("symbols") && m_symbols)
        return tr("abc");
    if (token == QLatin1String("page") && m_isSecond)
        return tr("GXY");
    if (token == QLatin1String("digits") && m_isSecond)
        return tr("abc");
    if (token == QLatin1String("small") && m_isSmall)
        return tr("ABC");
    if (const NamedKey *named = namedKey(token))
        return tr(named->label);
    const int letter = QString::fromLatin1(letters).indexOf(token);
    if (m_symbols && letter >= 0)
        return QString(QLatin1Char(symbols[letter]));
    if (m_isSmall)
        return token.toLower();
    return m_shift == ShiftOff ? token : token.toUpper();
}

QString KeypadFrame::spokenNameOf(const KeyButton *key) const
{
    if (key->token() == QLatin1String("sign"))
        return KeyNames::sign();
    if (key->token() == QLatin1String("symbols"))
        return KeyNames::symbols(m_symbols);
    if (key->token() == QLatin1String("page"))
        return KeyNames::page(m_isSecond);
    if (key->token() == QLatin1String("digits"))
        return KeyNames::digits(m_isSecond);
    if (key->token() == QLatin1String("small"))
        return KeyNames::small(m_isSmall);
    if (key->token() == QLatin1String("shift"))
        return KeyNames::capitals(m_shift != ShiftOff, m_shift == ShiftLocked);
    return KeyNames::spoken(key->text());
}

/// Tells what is edited, to the operator and to accessibility tools.
void KeypadFrame::showHead()
{
    if (m_value.name.isEmpty())
        m_value.name = tr(m_face.name);
    const QString title = m_value.title();
    m_title->setText(title);
    KeypadAccess::setName(m_edit, title);
    KeypadAccess::setName(window(), title);
    m_hint->setText(m_value.hint);
    m_hint->setVisible(!m_value.hint.isEmpty());

    const QString old = m_request.text;
    m_oldValue->setText(old.isEmpty() ? tr("Was empty") : tr("Was: %1").arg(old));
    // For a line of G-code the caller gives the line itself as the hint. It is shown once: the line
    // above has the whole width. So are limits that stand in the title.
    const bool isSaid = m_request.limit == old || hasSameNumbers(m_request.limit, m_value.range);
    m_limit->setText(isSaid ? QString() : m_request.limit);
    m_limit->setVisible(!m_limit->text().isEmpty());
}

/// A letter or a comment right behind a number; within a comment there are no words.
bool KeypadFrame::beginsWord(const QString &text) const
{
    const QString before = m_edit->text().left(m_edit->cursorPosition());
    if (m_edit->hasSelectedText() || before.isEmpty() || before.contains(QLatin1Char(';'))
        || before.contains(QLatin1Char('(')))
        return false;
    const QChar last = before.at(before.length() - 1);
    const bool isBehindNumber = last.isDigit() || last == QLatin1Char('.');
    return isBehindNumber && (text.at(0).isLetter() || text == QLatin1String(";"));
}

void KeypadFrame::typeKey(const QString &text)
{
    m_edit->type(m_face.forWords && beginsWord(text) ? QLatin1Char(' ') + text : text);
    if (m_shift == ShiftOnce && text.at(0).isLetter()) {
        m_shift = ShiftOff;
        labelKeys();
    }
}

void KeypadFrame::backspace()
{
    m_edit->backspace();
}

void KeypadFrame::clear()
{
    m_edit->clear();
}

void KeypadFrame::moveLeft()
{
    m_edit->press(Qt::Key_Left);
}

void KeypadFrame::moveRight()
{
    m_edit->press(Qt::Key_Right);
}

void KeypadFrame::typeSpace()
{
    m_edit->type(QLatin1String(" "));
}

void KeypadFrame::toggleSign()
{
    m_edit->toggleSign();
}

void KeypadFrame::turnShift()
{
    m_shift = m_shift == ShiftOff ? ShiftOnce : m_shift == ShiftOnce ? ShiftLocked : ShiftOff;
    labelKeys();
}

void KeypadFrame::turnSymbols()
{
    m_symbols = !m_symbols;
    labelKeys();
    fitLetters();
    check();
}

void KeypadFrame::turnPage()
{
    m_isSecond = !m_isSecond;
    m_isSmall = false;
    m_symbols = false;
    useLayout(layoutOf(m_isSecond ? m_pages.second : m_pages.first));
    arrange();
    check();
}

void KeypadFrame::turnCapitals()
{
    m_isSmall = !m_isSmall;
    labelKeys();
    fitLetters();
}

void KeypadFrame::accept()
{
    Q_EMIT accepted();
}

/// The text is delivered while the signal is emitted.
void KeypadFrame::acceptForNextLine()
{
    m_isGoingOn = true;
    Q_EMIT accepted();
    m_isGoingOn = false;
}

void KeypadFrame::reject()
{
    Q_EMIT rejected();
}

const NamedKey *KeypadFrame::namedKey(const QString &token)
{
    for (const NamedKey &key : namedKeys) {
        if (token == QLatin1String(key.token))
            return &key;
    }
    return nullptr;
}
