// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "textfit.h"

#include "look/measures.h"
#include "look/namelabel.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QSplitterHandle>
#include <QStyle>
#include <QStyleOption>
#include <QToolBar>
#include <QToolButton>

namespace {

/// 9 mm at 96 dpi.
const int thumb = 34;
const int narrow = 440;
const int tall = 480;
const int anyWidth = QWIDGETSIZE_MAX;
/// Of a hint, a question or a message.
const int mostLines = 2;

struct Exception
{
    enum Kind { Text, Place, Size };

    Kind kind;
    const char *name;   ///< Class or object name of the widget or of one around it.
    const char *reason; ///< For whoever wonders.
    int narrowerThan;   ///< On screens of less width alone.
};

const Exception exceptionTable[] = {
    {Exception::Text, "title",
     "no language has all the longest words; most have a test of their own", narrow},
    {Exception::Text, "findingText", "a touch on it shows it in full", anyWidth},
    {Exception::Text, "messageText", "a touch on it shows it in full", anyWidth},
    {Exception::Text, "fileState", "ends in a path; a touch shows it in full", anyWidth},
    {Exception::Text, "stateLine", "its numbers stand first; a touch shows it in full", anyWidth},
    {Exception::Text, "oldValue", "the value of before stands in the field in full", anyWidth},
    {Exception::Place, "DataEditor", "the cells share their border lines, by the library's design",
     anyWidth},
    {Exception::Place, "shade", "lies over everything while a dialog waits", anyWidth},
    {Exception::Place, "menu", "lies over the screens while the operator chooses", anyWidth},
    // The library lays its parts out for 440 pixels and more.
    {Exception::Place, "WGCodeEditer", "the scroll bar's fixed length", narrow},
    {Exception::Size, "FileDialog", "keys are shares of the width", narrow},
};

int screenWidth = 0;
int screenHeight = 0;

bool isExcepted(Exception::Kind kind, const QWidget *widget)
{
    for (const QWidget *around = widget; around; around = around->parentWidget()) {
        for (const Exception &exception : exceptionTable) {
            if (exception.kind == kind && screenWidth < exception.narrowerThan
                && (around->objectName() == QLatin1String(exception.name)
                    || around->inherits(exception.name)))
                return true;
        }
    }
    return false;
}

QString nameOf(const QWidget *widget)
{
    QString name = QLatin1String(widget->metaObject()->className());
    if (!widget->objectName().isEmpty())
        name += QLatin1Char(' ') + widget->objectName();
    for (const QWidget *around = widget->parentWidget(); around; around = around->parentWidget()) {
        const QString className = QLatin1String(around->metaObject()->className());
        if (!className.startsWith(QLatin1Char('Q')) || around->isWindow())
            return name + QLatin1String(" in ") + className;
    }
    return name;
}

QString sizes(const QSize &needed, const QSize &given)
{
    return QString::fromLatin1("needs %1x%2, has %3x%4")
        .arg(needed.width())
        .arg(needed.height())
        .arg(given.width())
        .arg(given.height());
}

/// Whether the pixels of a text of \a needed pixels are all within \a given.
QString missing(const QString &text, const QSize &needed, const QSize &given)
{
    if (needed.width() <= given.width() && needed.height() <= given.height())
        return QString();
    return QString::fromLatin1("\"%1\" %2").arg(text, sizes(needed, given));
}

QSize sizeOf(const QFontMetrics &metrics, const QString &text, int flags = 0)
{
    // What is drawn of one line; its leading may be cut.
    QSize size = metrics.size(flags, text);
    size.setHeight(size.height() - metrics.height() + metrics.ascent() + metrics.descent());
    return size;
}

QSize wrappedSize(const QFontMetrics &metrics, const QString &text, int width)
{
    return metrics.boundingRect(QRect(0, 0, width, 10000), Qt::TextWordWrap, text).size();
}

QString faultOfName(const NameLabel *label)
{
    return label->isWhole() ? QString()
                            : QLatin1String("not whole: ") + label->shown().join(QLatin1Char('|'));
}

QString faultOfLabel(const QLabel *label)
{
    const QString text = label->text();
    if (text.isEmpty() || label->pixmap())
        return QString();
    if (label->textFormat() != Qt::PlainText && Qt::mightBeRichText(text))
        return missing(text, label->sizeHint(), label->size());
    const int margin = 2 * label->margin();
    QSize given = label->contentsRect().size() - QSize(margin, margin);
    if (label->indent() > 0)
        given.rwidth() -= label->indent();
    const QFontMetrics metrics = label->fontMetrics();
    const QSize needed = label->wordWrap() ? wrappedSize(metrics, text, given.width())
                                           : sizeOf(metrics, text, Qt::TextShowMnemonic);
    return missing(text, needed, given);
}

QString faultOfToolButton(const QToolButton *button)
{
    const Qt::ToolButtonStyle style = button->toolButtonStyle();
    if (button->text().isEmpty() || style == Qt::ToolButtonIconOnly)
        return QString();
    QSize needed = sizeOf(button->fontMetrics(), button->text(), Qt::TextShowMnemonic);
    if (style == Qt::ToolButtonTextUnderIcon)
        needed.rheight() += button->iconSize().height();
    else if (style == Qt::ToolButtonTextBesideIcon)
        needed.rwidth() += button->iconSize().width();
    // A frame of a pixel around it.
    return missing(button->text(), needed, button->size() - QSize(2, 2));
}

QString faultOfPushButton(const QPushButton *button)
{
    QStyleOptionButton option;
    option.initFrom(button);
    option.text = button->text();
    QSize needed = sizeOf(button->fontMetrics(), button->text(), Qt::TextShowMnemonic);
    if (!button->icon().isNull())
        needed.rwidth() += button->iconSize().width() + 4;
    const QRect room =
        button->style()->subElementRect(QStyle::SE_PushButtonContents, &option, button);
    return missing(button->text(), needed, room.size());
}

QString faultOfCheckBox(const QCheckBox *box)
{
    QStyleOptionButton option;
    option.initFrom(box);
    option.text = box->text();
    const QRect room = box->style()->subElementRect(QStyle::SE_CheckBoxContents, &option, box);
    return missing(box->text(), sizeOf(box->fontMetrics(), box->text(), Qt::TextShowMnemonic),
                   room.size());
}

// The keypads' parts make their letters smaller until they fit, but not smaller than that.
QFont smallestKeypadFont()
{
    QFont font = QApplication::font();
    font.setBold(true);
    font.setPixelSize(10);
    return font;
}

QString faultOfKeypadKey(const QAbstractButton *key)
{
    // These have drawings.
    static const char *const drawn[] = {"key_back", "key_left", "key_right", "key_space",
                                        "key_shift"};
    for (const char *name : drawn) {
        if (key->objectName() == QLatin1String(name))
            return QString();
    }
    const QSize given = key->size() - QSize(6, 4);
    // Words may stand in two lines.
    const QFontMetrics metrics(smallestKeypadFont());
    return missing(key->text(), wrappedSize(metrics, key->text(), given.width()), given);
}

QString faultOfKeypadLabel(const QWidget *label)
{
    const QString text = label->property("text").toString();
    const QFontMetrics metrics(smallestKeypadFont());
    const bool isWrapped = label->objectName() == QLatin1String("reason");
    return missing(text,
                   isWrapped ? wrappedSize(metrics, text, label->width()) : sizeOf(metrics, text),
                   label->size());
}

QString faultOfHeader(const QHeaderView *header)
{
    const int margin = 2 * header->style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, header);
    QStringList faults;
    for (int i = 0; i < header->count(); ++i) {
        const QString text = header->model()->headerData(i, header->orientation()).toString();
        const bool isLying = header->orientation() == Qt::Horizontal;
        const QSize given(isLying ? header->sectionSize(i) : header->width(),
                          isLying ? header->height() : header->sectionSize(i));
        if (!header->isSectionHidden(i))
            faults.append(
                missing(text, sizeOf(header->fontMetrics(), text), given - QSize(margin, 0)));
    }
    faults.removeAll(QString());
    return faults.join(QLatin1String("; "));
}

QString faultOfItems(const QAbstractItemView *view)
{
    const int margin =
        2 * (view->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, view) + 1);
    const QAbstractItemModel *model = view->model();
    QStringList faults;
    for (int row = 0; model && row < model->rowCount(view->rootIndex()); ++row) {
        for (int column = 0; column < model->columnCount(view->rootIndex()); ++column) {
            const QModelIndex index = model->index(row, column, view->rootIndex());
            QRect place = view->visualRect(index);
            const QString text = index.data().toString();
            if (text.isEmpty() || !view->viewport()->rect().intersects(place))
                continue;
            if (!index.data(Qt::DecorationRole).isNull())
                place.setLeft(place.left() + view->iconSize().width() + 4);
            const QSize given(place.width() - margin, place.height());
            QFont font = view->font();
            const QVariant own = index.data(Qt::FontRole);
            if (own.isValid())
                font = own.value<QFont>().resolve(font);
            const QFontMetrics metrics(font);
            const bool fitsInALine = sizeOf(metrics, text).width() <= given.width();
            faults.append(missing(text,
                                  fitsInALine ? sizeOf(metrics, text)
                                              : wrappedSize(metrics, text, given.width()),
                                  given));
        }
    }
    faults.removeAll(QString());
    return faults.join(QLatin1String("; "));
}

QString faultOfLineEdit(const QLineEdit *edit)
{
    QStyleOptionFrame option;
    option.initFrom(edit);
    option.lineWidth = edit->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, edit);
    // Two pixels on either side are the toolkit's own.
    const QSize given =
        edit->style()->subElementRect(QStyle::SE_LineEditContents, &option, edit).size()
        - QSize(4, 0);
    const QFontMetrics metrics = edit->fontMetrics();
    if (edit->text().isEmpty())
        return missing(edit->placeholderText(), sizeOf(metrics, edit->placeholderText()), given);
    // Who types sees the place of the cursor. A cell of a list is read as it stands.
    if (!edit->inherits("ComboLineEdit"))
        return QString();
    return missing(edit->text(), sizeOf(metrics, edit->text()), given);
}

QString faultOfText(QWidget *widget)
{
    if (const NameLabel *label = qobject_cast<NameLabel *>(widget))
        return faultOfName(label);
    if (const QLabel *label = qobject_cast<QLabel *>(widget))
        return faultOfLabel(label);
    if (const QToolButton *button = qobject_cast<QToolButton *>(widget))
        return faultOfToolButton(button);
    if (const QPushButton *button = qobject_cast<QPushButton *>(widget))
        return faultOfPushButton(button);
    if (const QCheckBox *box = qobject_cast<QCheckBox *>(widget))
        return faultOfCheckBox(box);
    if (const QHeaderView *header = qobject_cast<QHeaderView *>(widget))
        return faultOfHeader(header);
    if (const QAbstractItemView *view = qobject_cast<QAbstractItemView *>(widget))
        return faultOfItems(view);
    if (const QLineEdit *edit = qobject_cast<QLineEdit *>(widget))
        return faultOfLineEdit(edit);
    if (widget->inherits("KeypadLabel"))
        return faultOfKeypadLabel(widget);
    if (const QAbstractButton *button = qobject_cast<QAbstractButton *>(widget)) {
        if (button->inherits("KeyButton"))
            return faultOfKeypadKey(button);
        return button->text().isEmpty() ? QString() : QLatin1String("nobody measures it");
    }
    // A progress bar shows none here, and the editor scrolls.
    if (const QProgressBar *bar = qobject_cast<QProgressBar *>(widget))
        return bar->isTextVisible() ? QLatin1String("nobody measures it") : QString();
    for (const char *property : {"text", "title", "currentText"}) {
        if (widget->metaObject()->indexOfProperty(property) >= 0 && !widget->isWindow()
            && !widget->inherits("WMMainWindow") && !qobject_cast<QPlainTextEdit *>(widget))
            return QLatin1String("nobody measures it");
    }
    return QString();
}

bool scrolls(const QWidget *widget)
{
    return widget && widget->objectName() == QLatin1String("qt_scrollarea_viewport");
}

QString faultOfPlace(const QWidget *widget)
{
    const QWidget *parent = widget->parentWidget();
    if (scrolls(parent) || parent->rect().contains(widget->geometry()))
        return QString();
    return QString::fromLatin1("at %1,%2 %3x%4 goes beyond %5 of %6x%7")
        .arg(widget->x())
        .arg(widget->y())
        .arg(widget->width())
        .arg(widget->height())
        .arg(QLatin1String(parent->metaObject()->className()))
        .arg(parent->width())
        .arg(parent->height());
}

QStringList overlaps(const QWidget *parent)
{
    QWidgetList children;
    for (QObject *child : parent->children()) {
        QWidget *widget = qobject_cast<QWidget *>(child);
        if (widget && widget->isVisible() && !widget->isWindow() && !widget->size().isEmpty()
            && !qobject_cast<QSplitterHandle *>(widget) && !isExcepted(Exception::Place, widget))
            children.append(widget);
    }
    QStringList faults;
    for (int i = 0; i < children.size(); ++i) {
        for (int j = i + 1; j < children.size(); ++j) {
            const QRect common = children.at(i)->geometry() & children.at(j)->geometry();
            if (!common.isEmpty())
                faults.append(QString::fromLatin1("%1 and %2 overlap by %3x%4")
                                  .arg(nameOf(children.at(i)), nameOf(children.at(j)))
                                  .arg(common.width())
                                  .arg(common.height()));
        }
    }
    return faults;
}

QString faultOfKey(const QWidget *widget)
{
    if (!qobject_cast<const QAbstractButton *>(widget) || widget->width() <= 0)
        return QString();
    // A low panel has as many millimetres as there is room for.
    const bool isMeasured = widget->inherits("PanelKey") && screenHeight >= tall;
    const int side = isMeasured ? Measures::touch() : thumb;
    if (widget->width() >= side && widget->height() >= side)
        return QString();
    return QString::fromLatin1("%1x%2 is too small for a thumb")
        .arg(widget->width())
        .arg(widget->height());
}

/// Of a page whose lines are one fact each: a table, and no message, hint or question.
bool isOfFacts(const QWidget *widget)
{
    for (const QWidget *around = widget; around; around = around->parentWidget()) {
        if (around->inherits("AboutPage"))
            return true;
    }
    return false;
}

} // namespace

QStringList TextFit::faults(const QRect &screen)
{
    screenWidth = screen.width();
    screenHeight = screen.height();
    QStringList faults;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (!window->isVisible() || window->size().isEmpty())
            continue;
        if (!screen.contains(window->geometry()) && !isExcepted(Exception::Place, window))
            faults.append(nameOf(window) + QLatin1String(": leaves the screen"));
        QWidgetList all = window->findChildren<QWidget *>();
        all.prepend(window);
        for (QWidget *widget : qAsConst(all)) {
            // What is scrolled or folded out of sight is not there.
            if (!widget->isVisible() || widget->visibleRegion().isEmpty())
                continue;
            const auto note = [&](const QString &fault) {
                if (!fault.isEmpty())
                    faults.append(nameOf(widget) + QLatin1String(": ") + fault);
            };
            if (!isExcepted(Exception::Text, widget))
                note(faultOfText(widget));
            if (!widget->isWindow() && !isExcepted(Exception::Place, widget))
                note(faultOfPlace(widget));
            if (!isExcepted(Exception::Size, widget))
                note(faultOfKey(widget));
            if (!isExcepted(Exception::Place, widget))
                faults.append(overlaps(widget));
        }
    }
    faults.removeDuplicates();
    return faults;
}

int TextFit::linesOf(const QLabel *label)
{
    const QFontMetrics metrics = label->fontMetrics();
    const int margins = 2 * label->margin();
    const int width = label->contentsRect().width() - margins;
    const int height = wrappedSize(metrics, label->text(), width).height();
    return label->text().isEmpty() ? 0 : qMax(1, qRound(height / qreal(metrics.lineSpacing())));
}

QStringList TextFit::longTexts()
{
    QStringList faults;
    for (const QWidget *widget : QApplication::allWidgets()) {
        const QLabel *label = qobject_cast<const QLabel *>(widget);
        // Facts are read one by one, the toolkit's boxes are as narrow as it makes them, and lines
        // that elide have a limit of their own.
        if (!label || !label->isVisible() || !label->wordWrap()
            || label->objectName() == QLatin1String("pickerFacts") || isOfFacts(label)
            || label->window()->inherits("QMessageBox"))
            continue;
        if (linesOf(label) > mostLines)
            faults.append(QString::fromLatin1("%1: \"%2\" takes %3 lines")
                              .arg(nameOf(label), label->text())
                              .arg(linesOf(label)));
    }
    return faults;
}

QStringList TextFit::exceptions()
{
    QStringList lines;
    for (const Exception &exception : exceptionTable)
        lines.append(QString::fromLatin1("%1: %2").arg(QLatin1String(exception.name),
                                                       QLatin1String(exception.reason)));
    return lines;
}

LongestTranslator::LongestTranslator(const QString &folder, QObject *parent) : QTranslator(parent)
{
    for (const char *language : {"de", "it", "tr", "zh_CN"}) {
        for (const char *name :
             {"filarix", "filarixhost", "filarix-panel", "hmidevice-sim", "qtbase"}) {
            QTranslator *translator = new QTranslator(this);
            const QString file =
                QString::fromLatin1("%1_%2").arg(QLatin1String(name), QLatin1String(language));
            const bool isToolkit = !qstrcmp(name, "qtbase");
            const bool isLoaded = translator->load(
                file, isToolkit ? QLibraryInfo::location(QLibraryInfo::TranslationsPath) : folder);
            m_isComplete = m_isComplete && (isLoaded || isToolkit);
            m_translators.append(translator);
        }
    }
}

QString LongestTranslator::translate(const char *context, const char *source,
                                     const char *disambiguation, int n) const
{
    const QByteArray key =
        QByteArray(context) + '|' + source + '|' + disambiguation + '|' + QByteArray::number(n);
    const QHash<QByteArray, QString>::const_iterator known = m_known.constFind(key);
    if (known != m_known.constEnd())
        return *known;
    const QFontMetrics metrics(QApplication::font());
    QString longest;
    int width = -1;
    for (const QTranslator *translator : m_translators) {
        const QString text = translator->translate(context, source, disambiguation, n);
        if (!text.isEmpty() && metrics.horizontalAdvance(text) > width) {
            longest = text;
            width = metrics.horizontalAdvance(text);
        }
    }
    m_known.insert(key, longest);
    return longest;
}
