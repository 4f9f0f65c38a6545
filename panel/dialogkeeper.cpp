// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "dialogkeeper.h"

#include "look.h"
#include "panelsurface.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QTimer>

namespace {

const QSize kRoomyDialog(640, 440);

// The toolkit leaves room for a window manager's frame, and without one a dialog that did not
// choose its place stands above the middle.
bool isMisplaced(const QDialog *dialog)
{
    return !dialog->testAttribute(Qt::WA_Moved) && !PanelSurface::hasWindowManager();
}

} // namespace

DialogKeeper::DialogKeeper(QObject *parent) : QObject(parent)
{
    qApp->installEventFilter(this);
}

bool DialogKeeper::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Paint && event->type() != QEvent::Show)
        return false;
    QDialog *dialog = qobject_cast<QDialog *>(watched);
    if (!dialog || !dialog->isWindow())
        return false;
    if (event->type() == QEvent::Show) {
        // The dialog places itself in its own handler, which has not run yet.
        const QPointer<QDialog> shown(dialog);
        QTimer::singleShot(0, this, [this, shown] {
            if (shown && shown->isVisible())
                fit(shown);
        });
        return false;
    }
    // The background is filled by now, and the dialog's own painting comes after.
    QPainter painter(dialog);
    painter.setPen(QPen(Look::edge(), 2));
    painter.drawRect(dialog->rect().adjusted(1, 1, -1, -1));
    return false;
}

void DialogKeeper::fit(QDialog *dialog)
{
    const QRect panel = QGuiApplication::primaryScreen()->availableGeometry();
    QRect place(dialog->geometry().topLeft(), dialog->size().boundedTo(panel.size()));
    if (dialog->inherits("ImportManage")) {
        place.setSize(kRoomyDialog.boundedTo(panel.size()).expandedTo(place.size()));
        place.moveCenter(panel.center());
    } else if (isMisplaced(dialog)) {
        place.moveCenter(panel.center());
    }
    place.moveRight(qMin(place.right(), panel.right()));
    place.moveBottom(qMin(place.bottom(), panel.bottom()));
    place.moveLeft(qMax(place.left(), panel.left()));
    place.moveTop(qMax(place.top(), panel.top()));
    // A fixed size gives way, too.
    dialog->setMinimumSize(dialog->minimumSize().boundedTo(place.size()));
    if (place != dialog->geometry())
        dialog->setGeometry(place);
}
