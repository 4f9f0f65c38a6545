// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/spokennames.h"

#include "look/taparea.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVariant>

#include <algorithm>

namespace {

// What was found is looked for again: the language may be another one.
const char foundProperty[] = "spokenName";

/// A few texts that count as one key.
class TapAccess : public QAccessibleWidget
{
public:
    explicit TapAccess(TapArea *area) : QAccessibleWidget(area, QAccessible::Button) {}

    QString text(QAccessible::Text kind) const override
    {
        QString own = QAccessibleWidget::text(kind);
        if (kind != QAccessible::Name || !own.isEmpty())
            return own;
        QStringList texts;
        for (const QLabel *label : widget()->findChildren<QLabel *>()) {
            const QString spoken = label->accessibleName();
            if (!label->isHidden())
                texts.append(spoken.isEmpty() ? label->text() : spoken);
        }
        texts.removeAll(QString());
        return texts.isEmpty() ? TapArea::tr("Messages") : texts.join(QLatin1String(", "));
    }

    QStringList actionNames() const override { return {pressAction()}; }

    void doAction(const QString &action) override
    {
        if (action == pressAction())
            // A dialog may follow, and whoever pressed must not wait for its end.
            QMetaObject::invokeMethod(widget(), "touched", Qt::QueuedConnection);
    }
};

/// A key that does by a press what a touch does. The toolkit's own checks one that can be checked,
/// and whoever waits for its click waits for ever.
class KeyAccess : public QAccessibleWidget
{
public:
    explicit KeyAccess(QAbstractButton *key) : QAccessibleWidget(key, QAccessible::PushButton) {}

    QString text(QAccessible::Text kind) const override
    {
        QString own = QAccessibleWidget::text(kind);
        if (kind != QAccessible::Name || !own.isEmpty())
            return own;
        return key()->text().remove(QLatin1Char('&'));
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = key()->isCheckable();
        state.checked = key()->isChecked();
        state.pressed = key()->isDown();
        return state;
    }

    QStringList actionNames() const override
    {
        return key()->isEnabled() ? QStringList{pressAction()} : QStringList();
    }

    void doAction(const QString &action) override
    {
        // From the event loop: a dialog that it opens must not hold up who pressed.
        if (action == pressAction() && key()->isEnabled())
            key()->animateClick();
    }

private:
    QAbstractButton *key() const { return static_cast<QAbstractButton *>(object()); }
};

QAccessibleInterface *makeAccess(const QString &, QObject *object)
{
    QWidget *widget = qobject_cast<QWidget *>(object);
    if (TapArea *area = qobject_cast<TapArea *>(widget))
        return new TapAccess(area);
    if (qobject_cast<QPushButton *>(widget) || qobject_cast<QToolButton *>(widget))
        return new KeyAccess(static_cast<QAbstractButton *>(widget));
    if (widget && widget->inherits("CoilView"))
        return new QAccessibleWidget(widget, QAccessible::Graphic);
    return nullptr;
}

bool isSaid(const QString &text)
{
    return std::any_of(text.begin(), text.end(),
                       [](QChar sign) { return sign.isLetterOrNumber(); });
}

/// The keys of the library's dialogs that bear a sign, by class and sign.
const struct
{
    const char *window;
    const char *sign;
    const char *name;
} signs[] = {
    {"WCopyDialog", "+", QT_TRANSLATE_NOOP("SpokenNames", "One more")},
    {"WCopyDialog", "-", QT_TRANSLATE_NOOP("SpokenNames", "One fewer")},
    {"ImportManage", ">>", QT_TRANSLATE_NOOP("SpokenNames", "Copy to the stick")},
    {"ImportManage", "<<", QT_TRANSLATE_NOOP("SpokenNames", "Copy to the panel")},
    {"FileDialog", "<<", QT_TRANSLATE_NOOP("SpokenNames", "Out of the folder")},
    {"FileDialog", ">>", QT_TRANSLATE_NOOP("SpokenNames", "Into the folder")},
};

QString nameOfSign(const QAbstractButton *button)
{
    for (const auto &sign : signs) {
        if (button->text() == QLatin1String(sign.sign) && button->window()->inherits(sign.window))
            return SpokenNames::tr(sign.name);
    }
    return QString();
}

/// The nearest label before \a widget in its line, else the nearest above it.
QString labelFor(const QWidget *widget)
{
    const QWidget *parent = widget->parentWidget();
    const QLabel *best = nullptr;
    int least = QWIDGETSIZE_MAX;
    for (const QObject *child : parent->children()) {
        const QLabel *label = qobject_cast<const QLabel *>(child);
        if (!label || label->isHidden() || !isSaid(label->text()))
            continue;
        const QRect place = label->geometry();
        const QPoint way = widget->geometry().center() - place.center();
        const bool isInLine = qAbs(way.y()) < place.height() / 2 + widget->height() / 2;
        const int far = isInLine ? way.x() : way.y() + parent->width();
        if (far > 0 && far < least) {
            least = far;
            best = label;
        }
    }
    return best ? best->text() : QString();
}

/// Of a screen or of a window.
QString titleAround(const QWidget *widget)
{
    for (const QWidget *around = widget->parentWidget(); around; around = around->parentWidget()) {
        const QString spoken = around->accessibleName();
        QString title = spoken.isEmpty() ? around->windowTitle() : spoken;
        if (isSaid(title))
            return title;
    }
    return QString();
}

QString foundName(const QWidget *widget)
{
    const QWidget *parent = widget->parentWidget();
    if (!parent)
        return QString();
    // The bar and the line edit of a larger one are called as that is.
    for (const QWidget *around = parent; around; around = around->parentWidget()) {
        const bool isWhole = qobject_cast<const QAbstractItemView *>(around)
                             || qobject_cast<const QPlainTextEdit *>(around)
                             || qobject_cast<const QAbstractSpinBox *>(around)
                             || qobject_cast<const QComboBox *>(around);
        if (isWhole && isSaid(around->accessibleName()))
            return around->accessibleName();
    }
    const QString label = labelFor(widget);
    return label.isEmpty() ? titleAround(widget) : label;
}

} // namespace

SpokenNames::SpokenNames(QObject *application) : QObject(application)
{
    QAccessible::installFactory(&makeAccess);
    application->installEventFilter(this);
}

bool SpokenNames::isInteractive(const QWidget *widget)
{
    return qobject_cast<const QAbstractButton *>(widget) || qobject_cast<const QLineEdit *>(widget)
           || qobject_cast<const QAbstractItemView *>(widget)
           || qobject_cast<const QPlainTextEdit *>(widget)
           || qobject_cast<const QAbstractSpinBox *>(widget)
           || qobject_cast<const QComboBox *>(widget)
           || qobject_cast<const QAbstractSlider *>(widget) || qobject_cast<const TapArea *>(widget)
           || widget->inherits("CoilView");
}

QString SpokenNames::nameOf(QWidget *widget)
{
    const QAccessibleInterface *access = QAccessible::queryAccessibleInterface(widget);
    const QString name = access ? access->text(QAccessible::Name) : QString();
    return isSaid(name) ? name : QString();
}

bool SpokenNames::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type != QEvent::Show && type != QEvent::LanguageChange && type != QEvent::WindowTitleChange)
        return false;
    QWidget *widget = qobject_cast<QWidget *>(watched);
    if (!widget)
        return false;
    name(widget);
    // What is inside asked for the title before it was there.
    if (type == QEvent::WindowTitleChange || (type == QEvent::Show && widget->isWindow())) {
        for (QWidget *inside : widget->findChildren<QWidget *>())
            name(inside);
    }
    return false;
}

void SpokenNames::name(QWidget *widget)
{
    if (!isInteractive(widget) || qobject_cast<TapArea *>(widget))
        return;
    const QAbstractButton *button = qobject_cast<QAbstractButton *>(widget);
    if (button && (isSaid(button->text()) || nameOfSign(button).isEmpty()))
        return;
    const QString before = widget->accessibleName();
    if (!before.isEmpty() && before != widget->property(foundProperty).toString())
        return;
    const QString found = button ? nameOfSign(button) : foundName(widget);
    if (found == before)
        return;
    widget->setProperty(foundProperty, found);
    widget->setAccessibleName(found);
}
