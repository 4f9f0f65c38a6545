// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "guards/finddialogfitter.h"

#include "base/hostcompat.h"

#include <QAbstractButton>
#include <QApplication>
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

void FindDialogFitter::place(const QWidget *host)
{
    const QPoint corner = host->mapToGlobal(QPoint(host->width(), host->height()));
    Q_FOREACH (QWidget *dialog, dialogs()) {
        if (!dialog->isVisible())
            continue;
        HostCompat::keepBefore(dialog, host->window());
        dialog->move(corner.x() - dialog->width(), corner.y() - dialog->height());
        dialog->raise();
    }
}
