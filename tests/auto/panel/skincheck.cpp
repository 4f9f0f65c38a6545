// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "skincheck.h"

#include "contrast.h"
#include "toolkitspy.h"

#include "look/measures.h"
#include "look/panelkey.h"
#include "look/spokennames.h"
#include "look/taparea.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QStyle>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTextBlock>
#include <QTextLayout>
#include <QTextStream>

#include <algorithm>
#include <memory>

namespace {

/// The grid of the panel's design, at 96 dpi. A low panel has half of it.
const int step = 4;
const int lowHeight = 300;
/// So many pixels of a text have to stand out.
const int inkPixels = 4;
/// Of 255: what two drawings of the same may differ.
const int sameColour = 3;
/// Fewer are nothing that an eye sees.
const int fewPixels = 8;

QImage pictureOf(QWidget *window)
{
    return window->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

const QRgb *lineOf(const QImage &image, int y)
{
    return reinterpret_cast<const QRgb *>(image.constScanLine(y));
}

bool isSeen(const QWidget *widget)
{
    return widget->isVisible() && !widget->visibleRegion().isEmpty();
}

QWidgetList seenIn(const QWidgetList &windows)
{
    QWidgetList seen;
    for (QWidget *window : windows) {
        const QWidgetList all = window->findChildren<QWidget *>();
        for (QWidget *widget : all) {
            if (widget->window() == window && isSeen(widget))
                seen.append(widget);
        }
    }
    return seen;
}

QString inMillimetres(const QSize &size)
{
    const qreal mm = 25.4 / Measures::dotsPerInch();
    return QString::fromLatin1("%1x%2 mm")
        .arg(size.width() * mm, 0, 'f', 1)
        .arg(size.height() * mm, 0, 'f', 1);
}

/// In pixels, as far as the surface has room.
int touchSide()
{
    return qMin(Measures::pixels(Measures::touchMm), Measures::touch());
}

QSize stopSize()
{
    const int side = Measures::pixels(Measures::stopMm);
    return Measures::stop().boundedTo(QSize(side, side));
}

QString faultOfRows(const QAbstractItemView *view)
{
    if (view->selectionMode() == QAbstractItemView::NoSelection || !view->model())
        return QString();
    const QModelIndex first = view->indexAt(QPoint(view->viewport()->width() / 2, 1));
    const int height = view->visualRect(first).height();
    if (!first.isValid() || height >= touchSide())
        return QString();
    return QString::fromLatin1("rows of ")
           + inMillimetres(QSize(view->viewport()->width(), height));
}

/// What lets presses through is touched in what is around it, and that has a size of its own.
bool takesPresses(const QWidget *widget)
{
    return !widget->testAttribute(Qt::WA_TransparentForMouseEvents)
           || !qobject_cast<const TapArea *>(widget->parentWidget());
}

QString faultOfTouch(const QWidget *widget)
{
    if (!takesPresses(widget))
        return QString();
    if (const QAbstractItemView *view = qobject_cast<const QAbstractItemView *>(widget))
        return faultOfRows(view);
    // A page of text is touched somewhere.
    if (qobject_cast<const QPlainTextEdit *>(widget))
        return QString();
    const QString text = widget->property("text").toString();
    const bool isStop = widget->inherits("PanelKey") && text == QLatin1String("Stop");
    const QSize least = isStop ? stopSize() : QSize(touchSide(), touchSide());
    if (widget->size().expandedTo(least) == widget->size())
        return QString();
    return inMillimetres(widget->size());
}

struct Key
{
    const QWidget *widget;
    QRect place;
};

QList<Key> keysIn(const QWidgetList &windows)
{
    QList<Key> keys;
    for (const QWidget *widget : seenIn(windows)) {
        if (qobject_cast<const PanelKey *>(widget))
            keys.append(
                {widget, QRect(widget->mapTo(widget->window(), QPoint(0, 0)), widget->size())});
    }
    return keys;
}

/// Whether two stretches are beside one another for most of their length.
bool isBeside(int start, int end, int otherStart, int otherEnd)
{
    const int common = qMin(end, otherEnd) - qMax(start, otherStart) + 1;
    return 2 * common > qMin(end - start, otherEnd - otherStart) + 1;
}

bool almostMeets(int edge, int other)
{
    return edge != other && qAbs(edge - other) < step;
}

QString faultOfEdges(const Key &key, const Key &other)
{
    const QRect a = key.place;
    const QRect b = other.place;
    const bool isRow = isBeside(a.top(), a.bottom(), b.top(), b.bottom());
    const bool isColumn = isBeside(a.left(), a.right(), b.left(), b.right());
    if (isRow && (almostMeets(a.top(), b.top()) || almostMeets(a.bottom(), b.bottom())))
        return QString::fromLatin1("almost in a row with %1: from %2 to %3, from %4 to %5")
            .arg(SkinCheck::nameOf(other.widget))
            .arg(a.top())
            .arg(a.bottom())
            .arg(b.top())
            .arg(b.bottom());
    if (isColumn && (almostMeets(a.left(), b.left()) || almostMeets(a.right(), b.right())))
        return QString::fromLatin1("almost in a column with %1: from %2 to %3, from %4 to %5")
            .arg(SkinCheck::nameOf(other.widget))
            .arg(a.left())
            .arg(a.right())
            .arg(b.left())
            .arg(b.right());
    return QString();
}

/// The gap to the next key on the right, or below, of the same parent; -1 without one.
int gapAfter(const Key &key, const QList<Key> &keys, bool isRow)
{
    int least = QWIDGETSIZE_MAX;
    const QRect a = key.place;
    for (const Key &other : keys) {
        const QRect b = other.place;
        const bool isInLine = isRow ? isBeside(a.top(), a.bottom(), b.top(), b.bottom())
                                    : isBeside(a.left(), a.right(), b.left(), b.right());
        const int gap = isRow ? b.left() - a.right() - 1 : b.top() - a.bottom() - 1;
        if (isInLine && gap >= 0)
            least = qMin(least, gap);
    }
    return least == QWIDGETSIZE_MAX ? -1 : least;
}

QString faultOfGap(const Key &key, const QList<Key> &keys, bool isRow)
{
    const int gap = gapAfter(key, keys, isRow);
    // What is further away is no neighbour.
    const QSize surface = key.widget->window()->size();
    const int grid = qMin(surface.width(), surface.height()) < lowHeight ? step / 2 : step;
    if (gap < 0 || gap > 4 * step || gap % grid == 0)
        return QString();
    return QString::fromLatin1("%1 pixels to the next key %2")
        .arg(gap)
        .arg(isRow ? QLatin1String("beside") : QLatin1String("below"));
}

/// A text on the screen, as far as it can be seen.
struct Text
{
    QRect place;
    QString words;
    bool isEnabled;
};

class TextPlaces
{
public:
    explicit TextPlaces(QWidget *widget) : m_widget(widget) {}

    QList<Text> found()
    {
        if (const QLabel *label = qobject_cast<QLabel *>(m_widget))
            addLabel(label);
        else if (const QHeaderView *header = qobject_cast<QHeaderView *>(m_widget))
            addHeader(header);
        else if (const QAbstractItemView *view = qobject_cast<QAbstractItemView *>(m_widget))
            addItems(view);
        else if (const QPlainTextEdit *edit = qobject_cast<QPlainTextEdit *>(m_widget))
            addWords(edit);
        else if (const QAbstractButton *button = qobject_cast<QAbstractButton *>(m_widget))
            addButton(button);
        else if (const QLineEdit *edit = qobject_cast<QLineEdit *>(m_widget))
            addField(edit);
        else if (m_widget->inherits("KeypadLabel"))
            add(m_widget->rect(), m_widget->property("text").toString());
        return m_texts;
    }

private:
    void add(const QRect &place, const QString &words)
    {
        const QRect seen = place & m_widget->visibleRegion().boundingRect();
        const int letters = m_widget->fontMetrics().xHeight();
        if (words.trimmed().isEmpty() || seen.width() < 3 || seen.height() < letters
            || isCovered(seen.center()) || isCut(place, seen))
            return;
        m_texts.append({QRect(m_widget->mapTo(m_widget->window(), seen.topLeft()), seen.size()),
                        words.simplified().left(30), m_widget->isEnabled()});
    }
    /// A row at the edge of a list that is scrolled shows a part of its letters.
    static bool isCut(const QRect &place, const QRect &seen)
    {
        return 3 * seen.height() < 2 * place.height();
    }
    /// By a menu, say.
    bool isCovered(const QPoint &point) const
    {
        const QWidget *window = m_widget->window();
        const QWidget *top = window->childAt(m_widget->mapTo(window, point));
        return top && top != m_widget && !m_widget->isAncestorOf(top)
               && !top->isAncestorOf(m_widget);
    }
    void addCentred(const QRect &room, const QString &words)
    {
        QRect place(QPoint(0, 0), m_widget->fontMetrics().size(Qt::TextShowMnemonic, words));
        place.moveCenter(room.center());
        add(place & room, words);
    }
    void addLabel(const QLabel *label)
    {
        if (!label->pixmap())
            add(label->contentsRect(), label->text());
    }
    void addButton(const QAbstractButton *button)
    {
        const QRect inner = button->rect().adjusted(step, step, -step, -step);
        const QToolButton *tool = qobject_cast<const QToolButton *>(button);
        if (tool && tool->toolButtonStyle() == Qt::ToolButtonIconOnly && !tool->icon().isNull())
            return;
        if (qobject_cast<const QCheckBox *>(button))
            return add(inner.adjusted(button->iconSize().width() + step, 0, 0, 0), button->text());
        if (tool && tool->toolButtonStyle() == Qt::ToolButtonTextUnderIcon
            && !tool->icon().isNull()) {
            // Somewhere in what the picture leaves.
            const int picture = tool->iconSize().height() + step;
            return add(button->rect().adjusted(step, picture, -step, -1), button->text());
        }
        if (button->inherits("KeyButton"))
            return add(inner, button->text());
        if (button->icon().isNull())
            return addCentred(inner, button->text());
        add(inner.adjusted(button->iconSize().width() + step, 0, 0, 0), button->text());
    }
    void addField(const QLineEdit *edit)
    {
        const QString words = edit->text().isEmpty() ? edit->placeholderText() : edit->text();
        // What is selected has two grounds.
        if (!edit->hasSelectedText())
            add(edit->rect().adjusted(step, step, -step, -step), words);
    }
    void addHeader(const QHeaderView *header)
    {
        const bool isLying = header->orientation() == Qt::Horizontal;
        for (int i = 0; header->model() && i < header->count(); ++i) {
            const int at = header->sectionViewportPosition(i);
            const QRect place = isLying ? QRect(at, 0, header->sectionSize(i), header->height())
                                        : QRect(0, at, header->width(), header->sectionSize(i));
            if (!header->isSectionHidden(i))
                add(place.adjusted(3, 3, -3, -3),
                    header->model()->headerData(i, header->orientation()).toString());
        }
    }
    void addItems(const QAbstractItemView *view)
    {
        const QAbstractItemModel *model = view->model();
        for (int row = 0; model && row < model->rowCount(view->rootIndex()); ++row) {
            for (int column = 0; column < model->columnCount(view->rootIndex()); ++column) {
                const QModelIndex index = model->index(row, column, view->rootIndex());
                QRect place = view->visualRect(index).adjusted(3, 3, -3, -3);
                if (!index.data(Qt::DecorationRole).isNull())
                    place.setLeft(place.left() + view->iconSize().width() + step);
                place.translate(view->viewport()->pos());
                add(place, index.data().toString());
            }
        }
    }
    /// Each run of one colour apart.
    void addWords(const QPlainTextEdit *edit)
    {
        const QPoint shift = edit->viewport()->pos();
        QTextCursor cursor = edit->cursorForPosition(QPoint(0, 0));
        for (QTextBlock block = cursor.block(); block.isValid(); block = block.next()) {
            cursor.setPosition(block.position());
            const QRect line = edit->cursorRect(cursor);
            if (line.top() > edit->viewport()->height())
                return;
            const QVector<QTextLayout::FormatRange> runs = block.layout()->formats();
            for (const QTextLayout::FormatRange &run : runs)
                addRun(edit, block, run.start, run.length, shift);
            if (runs.isEmpty())
                addRun(edit, block, 0, block.length() - 1, shift);
        }
    }
    void addRun(const QPlainTextEdit *edit, const QTextBlock &block, int start, int length,
                const QPoint &shift)
    {
        QTextCursor cursor(block);
        cursor.setPosition(block.position() + start);
        const QRect from = edit->cursorRect(cursor);
        cursor.setPosition(block.position() + qMin(start + length, block.length() - 1));
        const QRect to = edit->cursorRect(cursor);
        add((QRect(from.topLeft(), QPoint(to.right(), from.bottom())) & edit->viewport()->rect())
                .translated(shift),
            block.text().mid(start, length));
    }

    QWidget *m_widget;
    QList<Text> m_texts;
};

/// Each colour of a part of a picture, with how many pixels have it.
QHash<QRgb, int> coloursIn(const QImage &image, const QRect &part)
{
    QHash<QRgb, int> counts;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        const QRgb *line = lineOf(image, y);
        int run = 0;
        // Most pixels are as the one before.
        for (int x = part.left(); x <= part.right(); x += run) {
            run = 1;
            while (x + run <= part.right() && line[x + run] == line[x])
                ++run;
            counts[line[x]] += run;
        }
    }
    return counts;
}

/// The contrast of the colour of most pixels to those that stand out most.
double contrastOf(const QImage &image, const QRect &part)
{
    const QHash<QRgb, int> counts = coloursIn(image, part & image.rect());
    QRgb ground = 0;
    for (QHash<QRgb, int>::const_iterator it = counts.constBegin(); it != counts.constEnd(); ++it) {
        if (*it > counts.value(ground))
            ground = it.key();
    }
    QVector<QPair<double, int>> steps;
    for (QHash<QRgb, int>::const_iterator it = counts.constBegin(); it != counts.constEnd(); ++it)
        steps.append(qMakePair(Contrast::ratio(QColor(it.key()), QColor(ground)), *it));
    std::sort(steps.begin(), steps.end());
    int ink = 0;
    for (int i = steps.size() - 1; i >= 0; --i) {
        ink += steps.at(i).second;
        if (ink >= inkPixels)
            return steps.at(i).first;
    }
    return 1;
}

/// A window without the line at which letters are entered, which has a colour of its own.
QImage withoutCursor(QWidget *window)
{
    QImage screen = pictureOf(window);
    QWidget *focus = QApplication::focusWidget();
    if (!focus || focus->window() != window)
        return screen;
    QWidget *page = focus;
    if (const QPlainTextEdit *edit = qobject_cast<const QPlainTextEdit *>(focus))
        page = edit->viewport();
    else if (!qobject_cast<const QLineEdit *>(focus))
        return screen;
    const QRect line = focus->inputMethodQuery(Qt::ImCursorRectangle).toRect();
    const QRect place =
        QRect(page->mapTo(window, line.topLeft()), line.size()).adjusted(-1, -1, 1, 1)
        & screen.rect();
    QPainter painter(&screen);
    painter.fillRect(place, screen.pixelColor(qMax(0, place.left() - 1), qMax(0, place.top())));
    return screen;
}

bool isAlike(QRgb one, QRgb other)
{
    return qAbs(qRed(one) - qRed(other)) <= sameColour
           && qAbs(qGreen(one) - qGreen(other)) <= sameColour
           && qAbs(qBlue(one) - qBlue(other)) <= sameColour;
}

/// One colour that fills a place has no look.
bool isPlain(const QImage &image)
{
    const QRgb first = image.pixel(image.rect().center());
    int others = 0;
    for (int y = 0; y < image.height() && others < fewPixels; ++y) {
        const QRgb *line = lineOf(image, y);
        for (int x = 0; x < image.width(); ++x)
            others += !isAlike(line[x], first);
    }
    return others < fewPixels;
}

/// Whether something of a drawing is on the screen, which would look otherwise without it.
bool isOn(const QImage &screen, const QImage &without, const ToolkitSpy::Drawn &drawn)
{
    const QRect part = drawn.image.rect().translated(drawn.at) & screen.rect();
    int met = 0;
    for (int y = part.top(); y <= part.bottom() && met < fewPixels; ++y) {
        const QRgb *own = lineOf(drawn.image, y - drawn.at.y()) - drawn.at.x();
        const QRgb *with = lineOf(screen, y);
        const QRgb *other = lineOf(without, y);
        for (int x = part.left(); x <= part.right(); ++x)
            met += qAlpha(own[x]) != 0 && !isAlike(with[x], other[x]);
    }
    return met >= fewPixels;
}

QString faultOfDrawing(const QImage &screen, const QImage &without, const ToolkitSpy::Drawn &drawn)
{
    // The line below a letter.
    if (drawn.image.isNull())
        return drawn.what;
    return !isPlain(drawn.image) && isOn(screen, without, drawn) ? drawn.what : QString();
}

QList<QStyle::StandardPixmap> desktopIcons()
{
    QList<QStyle::StandardPixmap> icons = {
        QStyle::SP_MessageBoxInformation, QStyle::SP_MessageBoxWarning,
        QStyle::SP_MessageBoxCritical,    QStyle::SP_MessageBoxQuestion,
        QStyle::SP_LineEditClearButton,   QStyle::SP_TitleBarCloseButton};
    for (int i = QStyle::SP_DialogOkButton; i <= int(QStyle::SP_DialogNoButton); ++i)
        icons.append(QStyle::StandardPixmap(i));
    return icons;
}

QImage comparable(const QPixmap &picture)
{
    return picture.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

/// The toolkit's icons in a size, made once.
QList<QImage> desktopImages(const QSize &size)
{
    static QHash<QString, QList<QImage>> known;
    QList<QImage> &images =
        known[QString::fromLatin1("%1x%2").arg(size.width()).arg(size.height())];
    if (!images.isEmpty())
        return images;
    const std::unique_ptr<QStyle> toolkit(QStyleFactory::create(QLatin1String("Fusion")));
    for (QStyle::StandardPixmap which : desktopIcons()) {
        // An icon is scaled otherwise the second time that it is asked.
        const QIcon icon = toolkit->standardIcon(which);
        images.append(comparable(icon.pixmap(size)));
        images.append(comparable(icon.pixmap(size)));
    }
    return images;
}

/// Whether a key or a label shows one of the toolkit's icons.
bool hasDesktopIcon(const QWidget *widget)
{
    if (const QAbstractButton *button = qobject_cast<const QAbstractButton *>(widget)) {
        const QPixmap icon = button->icon().pixmap(button->iconSize());
        return !icon.isNull() && desktopImages(button->iconSize()).contains(comparable(icon));
    }
    const QLabel *label = qobject_cast<const QLabel *>(widget);
    return label && label->pixmap() && !label->pixmap()->isNull()
           && desktopImages(label->pixmap()->size()).contains(comparable(*label->pixmap()));
}

} // namespace

QString SkinCheck::nameOf(const QWidget *widget)
{
    if (!widget)
        return QLatin1String("nothing");
    QString name = QLatin1String(widget->metaObject()->className());
    if (!widget->objectName().isEmpty())
        name += QLatin1Char(' ') + widget->objectName();
    const QString text = widget->property("text").toString();
    if (!text.isEmpty())
        name += QString::fromLatin1(" \"%1\"").arg(text.simplified().left(20));
    for (const QWidget *around = widget->parentWidget(); around; around = around->parentWidget()) {
        const QString className = QLatin1String(around->metaObject()->className());
        if (!className.startsWith(QLatin1Char('Q')) || around->isWindow())
            return name + QLatin1String(" in ") + className;
    }
    return name;
}

QList<SkinFault> SkinCheck::touch(const QWidgetList &windows)
{
    QList<SkinFault> faults;
    for (const QWidget *widget : seenIn(windows)) {
        const QString fault = SpokenNames::isInteractive(widget) ? faultOfTouch(widget) : QString();
        if (!fault.isEmpty())
            faults.append({QLatin1String("touch"), widget, fault});
    }
    return faults;
}

QList<SkinFault> SkinCheck::lines(const QWidgetList &windows)
{
    QList<SkinFault> faults;
    const auto note = [&faults](const Key &key, const QString &fault) {
        if (!fault.isEmpty())
            faults.append({QLatin1String("line"), key.widget, fault});
    };
    const QList<Key> keys = keysIn(windows);
    for (int i = 0; i < keys.size(); ++i) {
        const Key &key = keys.at(i);
        QList<Key> others;
        for (int j = 0; j < keys.size(); ++j) {
            const Key &other = keys.at(j);
            if (j == i || other.widget->parentWidget() != key.widget->parentWidget())
                continue;
            others.append(other);
            // Each pair once, with the first of the two, whatever the addresses are.
            if (i < j)
                note(key, faultOfEdges(key, other));
        }
        note(key, faultOfGap(key, others, true));
        note(key, faultOfGap(key, others, false));
    }
    return faults;
}

QList<SkinFault> SkinCheck::contrast(const QWidgetList &windows, double least)
{
    QList<SkinFault> faults;
    for (QWidget *window : windows) {
        const QImage screen = withoutCursor(window);
        const QWidgetList seen = seenIn({window});
        for (QWidget *widget : seen) {
            const QList<Text> texts = TextPlaces(widget).found();
            for (const Text &text : texts) {
                const double found = contrastOf(screen, text.place);
                if (found < (text.isEnabled ? least : Contrast::disabledContrast))
                    faults.append({QLatin1String("contrast"), widget,
                                   QString::fromLatin1("%1 for \"%2\"")
                                       .arg(found, 0, 'f', 2)
                                       .arg(text.words)});
            }
        }
    }
    return faults;
}

QList<SkinFault> SkinCheck::toolkit(const QWidgetList &windows, ToolkitSpy *spy)
{
    QList<SkinFault> faults;
    for (QWidget *window : windows) {
        spy->start();
        const QImage screen = pictureOf(window);
        const QList<ToolkitSpy::Drawn> all = spy->stop();
        spy->leaveOut(true);
        const QImage without = all.isEmpty() ? screen : pictureOf(window);
        spy->leaveOut(false);
        for (const ToolkitSpy::Drawn &drawn : all) {
            const QString fault = faultOfDrawing(screen, without, drawn);
            if (!fault.isEmpty())
                faults.append({QLatin1String("toolkit"), drawn.widget, fault});
        }
        const QWidgetList seen = seenIn({window});
        for (const QWidget *widget : seen) {
            if (hasDesktopIcon(widget))
                faults.append({QLatin1String("toolkit"), widget, QLatin1String("desktop icon")});
        }
    }
    return faults;
}

SkinExceptions::SkinExceptions(const QString &path, const QString &walk)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        m_faults.append(path + QLatin1String(" cannot be read"));
    QTextStream stream(&file);
    const QStringList places = walk.split(QLatin1Char(' ')) << QLatin1String("*") << walk;
    while (!stream.atEnd()) {
        const QString text = stream.readLine();
        if (text.isEmpty() || text.startsWith(QLatin1Char('#')))
            continue;
        const QStringList cells = text.split(QRegularExpression(QLatin1String(" {2,}")));
        if (cells.size() != 5 || cells.at(4).size() < 10) {
            m_faults.append(QLatin1String("no exception with a reason: ") + text);
            continue;
        }
        bool isHere = false;
        for (const QString &where : cells.at(1).split(QLatin1Char(',')))
            isHere = isHere
                     || places.contains(QString(where).replace(QLatin1Char('_'), QLatin1Char(' ')));
        if (isHere)
            m_lines.append({text, cells.at(0), cells.at(2), cells.at(3), false});
    }
}

bool SkinExceptions::isMet(const SkinFault &fault)
{
    bool isMet = false;
    for (Line &line : m_lines) {
        if (line.check != fault.check
            || (line.word != QLatin1String("-") && !fault.text.contains(line.word)))
            continue;
        bool isMeant = line.what == QLatin1String("-");
        for (const QWidget *around = fault.widget; around && !isMeant;
             around = around->parentWidget())
            isMeant = around->objectName() == line.what
                      || around->inherits(line.what.toLatin1().constData());
        line.isMet = line.isMet || isMeant;
        isMet = isMet || isMeant;
    }
    return isMet;
}

QStringList SkinExceptions::unmet() const
{
    QStringList texts;
    for (const Line &line : m_lines) {
        if (!line.isMet)
            texts.append(line.text);
    }
    return texts;
}
