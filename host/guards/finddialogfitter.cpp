// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "guards/finddialogfitter.h"

#include "base/hostcompat.h"
#include "wgcodeediter.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QStringList>
#include <QWidget>

namespace {

// The library's texts; not written into tr(), which would have them translated once more for us.
const char dialogClass[] = "WFindDialog";
const char title[] = "Find";
const char *const labels[] = {"Find &what:", "Replace &what:"};
const char *const buttons[] = {"Match &case", "Search &backward", "&Find", "&Replace", "Close"};

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

/// Gives a dialog's widgets of one kind their texts, in the order in which it made them.
template<class Widget, int count>
void setTexts(const QWidget *dialog, const char *const (&sources)[count])
{
    const QList<Widget *> widgets = dialog->findChildren<Widget *>();
    for (int i = 0; i < qMin(count, widgets.size()); ++i)
        widgets.at(i)->setText(translated(sources[i]));
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
        if (2 * dialog->width() > area.width())
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
