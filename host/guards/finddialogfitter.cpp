// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "guards/finddialogfitter.h"

#include "base/hostcompat.h"
#include "filarixpanel.h"
#include "wgcodeediter.h"

#include <QAbstractButton>
#include <QApplication>
#include <QBoxLayout>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QStringList>
#include <QWidget>

namespace {

// The library's texts; not written into tr(), which would have them translated once more for us.
const char dialogClass[] = "WFindDialog";
const char title[] = "Find";
const char *const labels[] = {"Find &what:", "Replace &what:"};
const char *const buttons[] = {"Match &case", "Search &backward", "&Find", "&Replace", "Close"};

/// A screen of less width leaves the library's two columns no room for what is looked for.
const int columnsFrom = 600;
const int margin = 6;
const char formProperty[] = "filarixFindForm";

enum Form {
    Columns, ///< The library's own: labels, fields and boxes beside the keys.
    Rows,    ///< Each field beside its key, and the boxes in one row.
    Stacked  ///< The same with the labels above the fields.
};

QWidgetList dialogs()
{
    QWidgetList found;
    Q_FOREACH (QWidget *widget, QApplication::topLevelWidgets()) {
        if (widget->inherits(dialogClass))
            found.append(widget);
    }
    return found;
}

QString translated(const char *source)
{
    return QCoreApplication::translate(dialogClass, source);
}

/// The dialog's own widgets of one kind, in the order in which it made them. A host may have put a
/// strip with a title and a key above them.
template<class Widget>
QList<Widget *> ownOf(const QWidget *dialog)
{
    QList<Widget *> found;
    Q_FOREACH (Widget *widget, dialog->findChildren<Widget *>()) {
        if (widget->parentWidget() == dialog)
            found.append(widget);
    }
    return found;
}

/// Gives a dialog's widgets of one kind their texts.
template<class Widget, int count>
void setTexts(const QWidget *dialog, const char *const (&sources)[count])
{
    const QList<Widget *> widgets = ownOf<Widget>(dialog);
    for (int i = 0; i < qMin(count, widgets.size()); ++i)
        widgets.at(i)->setText(translated(sources[i]));
}

Form formFor(int width)
{
    if (width >= columnsFrom)
        return Columns;
    return width >= FilarixPanel::smallBelow ? Rows : Stacked;
}

void addRow(QGridLayout *grid, QLabel *label, QWidget *field, QWidget *key, Form form)
{
    const int row = grid->rowCount();
    if (form == Rows) {
        grid->addWidget(label, row, 0);
        grid->addWidget(field, row, 1);
        grid->addWidget(key, row, 2);
        return;
    }
    grid->addWidget(label, row, 0, 1, 3);
    grid->addWidget(field, row + 1, 0, 1, 2);
    grid->addWidget(key, row + 1, 2);
}

int widthOf(const QWidget *one, const QWidget *other, const QWidget *third)
{
    return one->sizeHint().width() + other->sizeHint().width() + third->sizeHint().width()
           + 4 * margin;
}

/// The library's widgets in other places. Where there is room again they stay there: nobody looks
/// for a key twice.
void layOut(QWidget *dialog, Form form, int width)
{
    const QList<QLabel *> texts = ownOf<QLabel>(dialog);
    const QList<QLineEdit *> fields = ownOf<QLineEdit>(dialog);
    const QList<QAbstractButton *> keys = ownOf<QAbstractButton>(dialog);
    if (form == Columns || dialog->property(formProperty).toInt() == form || texts.size() != 2
        || fields.size() != 2 || keys.size() != 5)
        return;
    dialog->setProperty(formProperty, int(form));
    QWidget *strip = dialog->layout() ? dialog->layout()->menuBar() : nullptr;
    delete dialog->layout();
    QGridLayout *grid = new QGridLayout(dialog);
    grid->setMenuBar(strip);
    grid->setContentsMargins(margin, margin, margin, margin);
    grid->setSpacing(margin);
    grid->setColumnStretch(1, 1);
    addRow(grid, texts.at(0), fields.at(0), keys.at(2), form);
    addRow(grid, texts.at(1), fields.at(1), keys.at(3), form);
    // The boxes stand one below the other where their words are long, the upper one without a key.
    const bool isRow = widthOf(keys.at(0), keys.at(1), keys.at(4)) <= width;
    QHBoxLayout *last = new QHBoxLayout;
    last->setSpacing(margin);
    if (isRow)
        last->addWidget(keys.at(0));
    else
        grid->addWidget(keys.at(0), grid->rowCount(), 0, 1, 3);
    last->addWidget(keys.at(1));
    last->addStretch(1);
    last->addWidget(keys.at(4), 0, Qt::AlignBottom);
    grid->addLayout(last, grid->rowCount(), 0, 1, 3);
    dialog->setMinimumHeight(0);
    dialog->setMaximumHeight(QWIDGETSIZE_MAX);
    dialog->setFixedHeight(grid->totalSizeHint().height());
}

/// Binds each dialog that is shown while it lives. The native window is there by then, and the
/// window manager does not know of it yet.
class ShowBinder : public QObject
{
public:
    explicit ShowBinder(const QWidget *host) : m_host(host) { qApp->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show && watched->inherits(dialogClass))
            HostCompat::keepBefore(static_cast<QWidget *>(watched), m_host->window());
        return false;
    }

private:
    const QWidget *m_host;
};

/// Has its dialog on top where no window manager sees to it, or none can be asked to.
class TopKeeper : public QObject
{
public:
    static void keep(QWidget *dialog, QWidget *window)
    {
        const QString name = QLatin1String("filarixTopKeeper");
        QObject *keeper = dialog->findChild<QObject *>(name);
        if (!keeper)
            keeper = new TopKeeper(dialog);
        keeper->setObjectName(name);
        window->installEventFilter(keeper);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        // Another dialog may stand above it, and ask for an answer.
        if (event->type() == QEvent::WindowActivate && m_dialog->isVisible()
            && !QApplication::activeModalWidget())
            m_dialog->raise();
        return false;
    }

private:
    explicit TopKeeper(QWidget *dialog) : QObject(dialog), m_dialog(dialog) {}

    QWidget *m_dialog;
};

/// The corner that \a dialog has in \a area: its left or right end, its top or foot.
QPoint corner(const QWidget *dialog, const QRect &area, bool isRight, bool isFoot)
{
    return QPoint(isRight ? area.right() + 1 - dialog->width() : area.left(),
                  isFoot ? area.bottom() + 1 - dialog->height() : area.top());
}

void uncoverBy(QWidget *dialog, const QRect &spot, const QRect &area)
{
    if (!dialog->geometry().intersects(spot))
        return;
    for (int side = 0; side < 4; ++side) {
        const QRect place(corner(dialog, area, side % 2 == 0, side < 2), dialog->size());
        if (!place.intersects(spot))
            return dialog->move(place.topLeft());
    }
}

} // namespace

void FindDialogFitter::retranslate()
{
    Q_FOREACH (QWidget *dialog, dialogs()) {
        dialog->setWindowTitle(translated(title));
        // Longer words may want other places.
        dialog->setProperty(formProperty, int(Columns));
        setTexts<QLabel>(dialog, labels);
        setTexts<QAbstractButton>(dialog, buttons);
        dialog->adjustSize();
    }
}

void FindDialogFitter::show(WGCodeEditer *editor, const QWidget *host)
{
    {
        const ShowBinder binder(host);
        editor->findAndReplace();
    }
    place(host);
}

void FindDialogFitter::place(const QWidget *host)
{
    const QRect area(host->mapToGlobal(QPoint()), host->size());
    Q_FOREACH (QWidget *dialog, dialogs()) {
        if (!dialog->isVisible())
            continue;
        HostCompat::keepBefore(dialog, host->window());
        TopKeeper::keep(dialog, host->window());
        const Form form = formFor(area.width());
        layOut(dialog, form, area.width());
        if (form != Columns)
            dialog->resize(area.width(), dialog->height());
        else if (2 * dialog->width() > area.width())
            dialog->resize(dialog->minimumSizeHint().width(), dialog->height());
        dialog->move(corner(dialog, area, true, true));
        dialog->raise();
    }
}

void FindDialogFitter::uncover(const QRect &spot, const QRect &area)
{
    Q_FOREACH (QWidget *dialog, dialogs()) {
        if (dialog->isVisible())
            uncoverBy(dialog, spot, area);
    }
}
