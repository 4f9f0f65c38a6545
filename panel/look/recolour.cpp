// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/recolour.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QEvent>
#include <QFocusFrame>
#include <QImage>
#include <QPaintEngine>
#include <QPaintEvent>
#include <QPainter>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QPointer>
#include <QScrollBar>
#include <QTimer>

#include <algorithm>
#include <iterator>

namespace {

const int levels = 256;
const int percent = 100;

/// What paints in fixed colours, the wider before what may stand in it.
const char editorClass[] = "WGCodeEditer";
const char *const fixedClasses[] = {editorClass, "TListWidget", "MJLine", "DataEditor", "Label"};

// What the editor marks the current line with. In bright light the mark has to differ from the
// paper, and in the light look the fixed colours of the words leave it no more than a tint.
const QRgb lineMarks[] = {0xffddffff, 0xffcfe3fb, 0xffcfe3fb};

// The library's cyan of the row in hand dazzles beside grey keys.
const QRgb chosenRow = 0xffcfe3fb;

// An operator's eye takes blue for brighter than the formula for contrast does. So blue words keep
// some of their blue when they are made light.
const int redShare = 77;
const int greenShare = 128;
const int blueShare = 51;

/// What becomes of a grey of some lightness, and how much of its hue a colour of it keeps.
struct Knot
{
    int lightness;
    QRgb grey;
    int huePercent;
};

// Paper becomes the look's own field. Between it and the words lie the grounds of marks: those of
// the line in hand, of a finding, of the rows that are chosen.
const Knot darkKnots[] = {
    {0, 0xffe8edf2, 100},  {64, 0xffc8ced4, 100}, {104, 0xffa8afb6, 100},
    {128, 0xff858d95, 80}, {178, 0xff3c454e, 40}, {192, 0xff333c45, 40},
    {226, 0xff2a333c, 45}, {241, 0xff1e242a, 45}, {255, 0xff12171c, 45},
};
// Paper stays white, and words become darker.
const Knot glareKnots[] = {
    {0, 0xff000000, 80},    {64, 0xff1a1a1a, 80},   {104, 0xff262626, 70},
    {128, 0xff464646, 60},  {178, 0xffbebebe, 100}, {192, 0xffd0d0d0, 100},
    {226, 0xffe2e2e2, 100}, {241, 0xffffffff, 60},  {255, 0xffffffff, 60},
};

int lightness(QRgb colour)
{
    return (redShare * qRed(colour) + greenShare * qGreen(colour) + blueShare * qBlue(colour))
           / 256;
}

/// Cyan, and the edges of black words on it, become the look's own mark. All else is as it was.
QRgb ofLightRow(QRgb colour)
{
    const int green = qGreen(colour);
    const int blue = qBlue(colour);
    if (qRed(colour) != 0 || green == 0 || blue == 0)
        return colour;
    const int most = levels - 1;
    return qRgba(qRed(chosenRow) * qMin(green, blue) / most, qGreen(chosenRow) * green / most,
                 qBlue(chosenRow) * blue / most, qAlpha(colour));
}

int between(int from, int to, int step, int steps)
{
    return from + (to - from) * step / steps;
}

/// The knots of a look, spread over all levels.
class Ramp
{
public:
    template<int count>
    explicit Ramp(const Knot (&knots)[count])
    {
        for (int i = 0; i + 1 < count; ++i)
            spread(knots[i], knots[i + 1]);
    }

    QRgb of(QRgb colour) const
    {
        const int level = lightness(colour);
        const QRgb grey = m_greys[level];
        const int hue = m_hues[level];
        const auto part = [level, hue](int base, int own) {
            return qBound(0, base + hue * (own - level) / percent, levels - 1);
        };
        return qRgba(part(qRed(grey), qRed(colour)), part(qGreen(grey), qGreen(colour)),
                     part(qBlue(grey), qBlue(colour)), qAlpha(colour));
    }

private:
    void spread(const Knot &from, const Knot &to)
    {
        const int steps = to.lightness - from.lightness;
        for (int step = 0; step <= steps; ++step) {
            const auto part = [&](int one, int other) { return between(one, other, step, steps); };
            m_greys[from.lightness + step] =
                qRgb(part(qRed(from.grey), qRed(to.grey)), part(qGreen(from.grey), qGreen(to.grey)),
                     part(qBlue(from.grey), qBlue(to.grey)));
            m_hues[from.lightness + step] = part(from.huePercent, to.huePercent);
        }
    }

    QRgb m_greys[levels];
    int m_hues[levels];
};

QRgb ofPaper(QRgb colour, Look::Style style)
{
    static const Ramp dark(darkKnots);
    static const Ramp glare(glareKnots);
    return (style == Look::Dark ? dark : glare).of(colour);
}

/// The dark look's own mark is a deep cyan. In glare rows have the mark of light.
QRgb changed(QRgb colour, Look::Style style, Recolour::Paper paper)
{
    if (style == Look::Light)
        return ofLightRow(colour);
    const bool isMark = style == Look::HighContrast && paper == Recolour::Rows;
    return ofPaper(isMark ? ofLightRow(colour) : colour, style);
}

bool isFixed(const QWidget *widget)
{
    return std::any_of(std::begin(fixedClasses), std::end(fixedClasses),
                       [widget](const char *name) { return widget->inherits(name); });
}

/// In light the editor is drawn as it is.
bool isChanged(const QWidget *widget)
{
    return isFixed(widget) && (Look::style() != Look::Light || !widget->inherits(editorClass));
}

bool isInFixed(const QWidget *widget)
{
    const QWidget *around = widget->isWindow() ? nullptr : widget->parentWidget();
    while (around && !isFixed(around))
        around = around->isWindow() ? nullptr : around->parentWidget();
    return around;
}

/// The bars of an area, with what lies beside them.
QList<QScrollBar *> barsOf(const QWidget *widget)
{
    const QAbstractScrollArea *area = qobject_cast<const QAbstractScrollArea *>(widget);
    if (!area)
        return {};
    return {area->horizontalScrollBar(), area->verticalScrollBar()};
}

/// Whether a look marks the line in hand with it, in an editor that is kept light or in any other.
bool isLineMark(const QColor &colour)
{
    for (Look::Style style : {Look::Light, Look::Dark, Look::HighContrast}) {
        if (colour == Recolour::lineMark(style)
            || colour == Look::colour(Look::Role::Alternate, style))
            return true;
    }
    return false;
}

/// The line in hand keeps the colour that it was marked in. What else is marked stays as it is.
void markAnew(QPlainTextEdit *editor)
{
    Look::keepLight(editor);
    QList<QTextEdit::ExtraSelection> marks = editor->extraSelections();
    for (QTextEdit::ExtraSelection &mark : marks) {
        if (isLineMark(mark.format.background().color()))
            mark.format.setBackground(editor->palette().alternateBase());
    }
    editor->setExtraSelections(marks);
}

/// Dark on light, as the widget's fixed colours are made for. The marks of one that isn't active
/// stay: the library's editor has its own.
void lighten(QWidget *widget)
{
    const QPalette light = Look::palette(Look::Light);
    QPalette palette = widget->palette();
    for (int i = 0; i < QPalette::NColorRoles; ++i) {
        const QPalette::ColorRole role = QPalette::ColorRole(i);
        const bool isMark = role == QPalette::Highlight || role == QPalette::HighlightedText;
        palette.setBrush(QPalette::Active, role, light.brush(QPalette::Active, role));
        palette.setBrush(QPalette::Disabled, role, light.brush(QPalette::Disabled, role));
        if (!isMark)
            palette.setBrush(QPalette::Inactive, role, light.brush(QPalette::Inactive, role));
    }
    widget->setPalette(palette);
    if (widget->inherits(editorClass))
        markAnew(static_cast<QPlainTextEdit *>(widget));
}

QRgb toRgb(QRgb pixel)
{
    return pixel;
}

/// Of five, six and five bits.
QRgb toRgb(quint16 pixel)
{
    const int red = pixel >> 11;
    const int green = pixel >> 5 & 0x3f;
    const int blue = pixel & 0x1f;
    return qRgb(red << 3 | red >> 2, green << 2 | green >> 4, blue << 3 | blue >> 2);
}

void put(QRgb colour, QRgb *pixel)
{
    *pixel = colour;
}

void put(QRgb colour, quint16 *pixel)
{
    *pixel = quint16(qRed(colour) >> 3 << 11 | qGreen(colour) >> 2 << 5 | qBlue(colour) >> 3);
}

// Most pixels are as the one before.
template<class Pixel>
void changeLine(Pixel *line, int from, int to, Look::Style style, Recolour::Paper paper)
{
    Pixel before = line[from];
    Pixel after = before;
    put(changed(toRgb(before), style, paper), &after);
    for (Pixel *pixel = line + from; pixel <= line + to; ++pixel) {
        if (*pixel != before) {
            before = *pixel;
            put(changed(toRgb(before), style, paper), &after);
        }
        *pixel = after;
    }
}

/// The image that a painter paints on, or nullptr.
QImage *imageOf(QPainter *painter)
{
    QPaintDevice *device = painter->device();
    if (!device || device->devType() != QInternal::Image || device->devicePixelRatio() != 1)
        return nullptr;
    return static_cast<QImage *>(device);
}

bool isKnown(const QImage &image)
{
    return image.format() == QImage::Format_RGB32 || image.format() == QImage::Format_RGB16
           || image.format() == QImage::Format_ARGB32
           || image.format() == QImage::Format_ARGB32_Premultiplied;
}

} // namespace

/// Covers what comes, and notes what is painted.
class RecolourWatch : public QObject
{
public:
    explicit RecolourWatch(QObject *parent) : QObject(parent) { qApp->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const QEvent::Type type = event->type();
        const bool isPaint = type == QEvent::Paint && Recolour::drawing;
        // A row is polished before it stands in its list.
        const bool isNew = type == QEvent::Polish || type == QEvent::ParentChange;
        if ((!isPaint && !isNew) || !watched->isWidgetType())
            return false;
        QWidget *widget = static_cast<QWidget *>(watched);
        if (isPaint)
            Recolour::drawing->note(widget, static_cast<QPaintEvent *>(event)->region());
        else if (isChanged(widget))
            Recolour::cover(widget);
        return false;
    }
};

Recolour *Recolour::drawing = nullptr;

Recolour::Recolour(QWidget *widget) : QGraphicsEffect(widget), m_widget(widget) {}

void Recolour::follow()
{
    static QPointer<RecolourWatch> watch;
    if (!watch)
        watch = new RecolourWatch(qApp);
    const QWidgetList all = QApplication::allWidgets();
    for (QWidget *widget : all) {
        if (!isFixed(widget))
            continue;
        if (isChanged(widget))
            cover(widget);
        else
            uncover(widget);
    }
}

/// What stands in something that is covered is covered with it.
void Recolour::cover(QWidget *widget)
{
    if (isInFixed(widget))
        return uncover(widget);
    for (QScrollBar *bar : barsOf(widget))
        bar->setPalette(Look::palette());
    if (dynamic_cast<Recolour *>(widget->graphicsEffect()))
        return widget->update();
    const QList<QWidget *> inside = widget->findChildren<QWidget *>();
    for (QWidget *each : inside)
        uncover(each);
    lighten(widget);
    widget->setGraphicsEffect(new Recolour(widget));
}

void Recolour::uncover(QWidget *widget)
{
    if (!dynamic_cast<Recolour *>(widget->graphicsEffect()))
        return;
    for (QScrollBar *bar : barsOf(widget))
        bar->setPalette(Look::palette());
    widget->setGraphicsEffect(nullptr);
    if (widget->inherits(editorClass))
        markAnew(static_cast<QPlainTextEdit *>(widget));
}

QColor Recolour::lineMark(Look::Style style)
{
    return QColor(lineMarks[style]);
}

QColor Recolour::drawn(const QColor &colour, Look::Style style)
{
    return style == Look::Light ? colour : QColor(ofPaper(colour.rgb(), style));
}

void Recolour::change(QImage *image, const QRect &part, Look::Style style, Paper paper)
{
    const QRect place = part & image->rect();
    for (int y = place.top(); y <= place.bottom(); ++y) {
        // An image that is painted on must not be copied, which scanLine() might do.
        uchar *line = const_cast<uchar *>(image->constScanLine(y));
        if (image->format() == QImage::Format_RGB16)
            changeLine(reinterpret_cast<quint16 *>(line), place.left(), place.right(), style,
                       paper);
        else
            changeLine(reinterpret_cast<QRgb *>(line), place.left(), place.right(), style, paper);
    }
}

void Recolour::draw(QPainter *painter)
{
    if (drawInPlace(painter))
        repairAbove();
    else
        drawByPicture(painter);
}

/// The toolkit paints all within the bounds of what has changed. What lets this widget shine
/// through, as a shade that lies over it, has to be painted over all of that again, too.
void Recolour::repairAbove()
{
    const QRect bounds = m_painted.boundingRect();
    QWidget *window = m_widget->window();
    QWidget *top = window->childAt(m_widget->mapTo(window, bounds.center()));
    const bool isCovered = top && top != m_widget && !m_widget->isAncestorOf(top);
    m_repaired = isCovered && bounds != m_repaired ? bounds : QRect();
    if (m_repaired.isEmpty())
        return;
    const QPoint corner = top->mapFrom(window, m_widget->mapTo(window, bounds.topLeft()));
    QTimer::singleShot(0, top,
                       [top, corner, bounds] { top->update(QRect(corner, bounds.size())); });
}

Recolour::Paper Recolour::paper() const
{
    return m_widget->inherits(editorClass) ? Editor : Rows;
}

/// Without what has the look's own colours; in the widget's own pixels.
QRegion Recolour::ownPart(const QRegion &part) const
{
    QRegion own = part;
    for (const QScrollBar *bar : barsOf(m_widget)) {
        const QWidget *holder = bar->parentWidget();
        if (holder->isVisibleTo(m_widget))
            own -= QRect(holder->mapTo(m_widget, QPoint()), holder->size());
    }
    const QList<QFocusFrame *> frames = m_widget->findChildren<QFocusFrame *>();
    for (const QFocusFrame *frame : frames) {
        if (frame->isVisibleTo(m_widget))
            own -= frame->mask().translated(frame->mapTo(m_widget, QPoint()));
    }
    return own;
}

/// Before the widget paints. What it leaves unpainted would show the look's own ground, and that
/// would be changed, too.
void Recolour::note(QWidget *widget, const QRegion &region)
{
    if (widget == m_widget && !widget->autoFillBackground()) {
        QPainter painter(widget);
        for (const QRect &rect : region)
            painter.fillRect(rect, Look::colour(Look::Role::Surface, Look::Light));
    }
    m_painted += region.translated(widget->mapTo(m_widget, QPoint()));
}

/// Straight into the picture of the window. The toolkit says within what bounds it paints, and
/// only the widgets learn which part of that is painted anew.
bool Recolour::drawInPlace(QPainter *painter)
{
    QImage *image = imageOf(painter);
    const QTransform &way = painter->deviceTransform();
    if (!image || !isKnown(*image) || way.type() > QTransform::TxTranslate)
        return false;
    const QPoint corner(qRound(way.dx()), qRound(way.dy()));
    m_painted = QRegion();
    drawing = this;
    drawSource(painter);
    drawing = nullptr;
    const QRegion clip = painter->paintEngine()->systemClip();
    if (!clip.isEmpty())
        m_painted &= clip.translated(-corner);
    for (const QRect &rect : ownPart(m_painted))
        change(image, rect.translated(corner), Look::style(), paper());
    return true;
}

/// On whatever else there is to paint on.
void Recolour::drawByPicture(QPainter *painter)
{
    QPoint corner;
    const QPixmap source = sourcePixmap(Qt::LogicalCoordinates, &corner, NoPad);
    const qreal ratio = source.devicePixelRatio();
    QImage picture(source.size(), QImage::Format_RGB32);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Look::colour(Look::Role::Surface, Look::Light));
    QPainter(&picture).drawPixmap(0, 0, source);
    for (const QRect &rect : ownPart(m_widget->rect())) {
        const QRectF place(QPointF(rect.topLeft()) * ratio, QSizeF(rect.size()) * ratio);
        change(&picture, place.toAlignedRect(), Look::style(), paper());
    }
    painter->drawImage(corner, picture);
}
