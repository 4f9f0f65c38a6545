// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "shell/dialogfitter.h"

#include "display/platform.h"
#include "filarixpanel.h"
#include "look/letters.h"
#include "look/look.h"
#include "shell/titlestrip.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QLabel>
#include <QLayout>
#include <QListView>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QWindow>

namespace {

const QSize roomyDialog(640, 440);
const int narrowKey = 52;
const int narrowMargin = 5;
const int aroundDialog = 8;

/// The toolkit leaves room for a window manager's frame, and without one a dialog that did not
/// choose its place stands above the middle.
bool isMisplaced(const QDialog *dialog)
{
    return !dialog->testAttribute(Qt::WA_Moved) && !Platform::hasWindowManager();
}

/// Side by side on a small panel, two lists have no room for bars. A finger moves them. What is
/// told of the space has a line more.
void leaveRoomForNames(QDialog *manager)
{
    const QList<QListView *> lists = manager->findChildren<QListView *>();
    for (QListView *list : lists) {
        list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        list->setIconSize(QSize(1, 1));
    }
    const QList<QPushButton *> keys = manager->findChildren<QPushButton *>();
    for (QPushButton *key : keys)
        key->setFixedWidth(narrowKey);
    manager->layout()->setContentsMargins(narrowMargin, narrowMargin, narrowMargin, narrowMargin);
    const QList<QLabel *> labels =
        manager->findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
    for (QLabel *label : labels)
        label->setWordWrap(true);
}

/// The words of a dialog that is wider than the panel take the room of its sides.
void narrowSides(QDialog *dialog, int room)
{
    QLayout *layout = dialog->layout();
    if (!layout || layout->minimumSize().width() <= room)
        return;
    QMargins margins = layout->contentsMargins();
    margins.setLeft(qMin(margins.left(), narrowMargin));
    margins.setRight(qMin(margins.right(), narrowMargin));
    layout->setContentsMargins(margins);
}

} // namespace

DialogFitter::DialogFitter(QWidget *panel) : QObject(panel), m_panel(panel)
{
    qApp->installEventFilter(this);
}

bool DialogFitter::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (isPressOfPanel(watched, type))
        raiseAll();
    if (type != QEvent::Paint && type != QEvent::Show)
        return false;
    QDialog *dialog = qobject_cast<QDialog *>(watched);
    if (!dialog || !dialog->isWindow())
        return false;
    if (type == QEvent::Show) {
        bind(dialog);
        if (!Platform::hasWindowManager())
            TitleStrip::putOn(dialog);
        enlargeLetters(dialog);
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

bool DialogFitter::isPressOfPanel(const QObject *watched, QEvent::Type type) const
{
    if (!m_panel || m_open.isEmpty())
        return false;
    if (type == QEvent::WindowActivate)
        return watched == m_panel;
    return (type == QEvent::MouseButtonPress || type == QEvent::TouchBegin)
           && watched == m_panel->windowHandle();
}

/// A window manager keeps the dialog above the window that it belongs to. The native window is
/// there by now and not yet shown, when it tells the manager.
void DialogFitter::bind(QDialog *dialog)
{
    if (!m_panel || !m_panel->windowHandle())
        return;
    m_open.removeAll(QPointer<QDialog>());
    m_open.removeAll(dialog);
    m_open.append(dialog);
    QWindow *window = dialog->windowHandle();
    if (window && !window->transientParent())
        window->setTransientParent(m_panel->windowHandle());
}

/// Before the dialog chooses its place. A message box looks for its own size afterwards.
void DialogFitter::enlargeLetters(QDialog *dialog)
{
    const QSize room = QGuiApplication::primaryScreen()->availableSize();
    Letters::grow(dialog, room - QSize(aroundDialog, aroundDialog));
}

/// Where nobody manages the windows, each in its turn, so that the last one shown is on top.
void DialogFitter::raiseAll()
{
    const QList<QPointer<QDialog>> open = m_open;
    m_open.clear();
    for (const QPointer<QDialog> &dialog : open) {
        if (!dialog || !dialog->isVisible())
            continue;
        dialog->raise();
        m_open.append(dialog);
    }
}

void DialogFitter::fit(QDialog *dialog)
{
    const QRect panel = QGuiApplication::primaryScreen()->availableGeometry();
    narrowSides(dialog, panel.width());
    QRect place(dialog->geometry().topLeft(), dialog->size().boundedTo(panel.size()));
    if (dialog->inherits("ImportManage")) {
        if (qMin(panel.width(), panel.height()) < FilarixPanel::smallBelow)
            leaveRoomForNames(dialog);
        place.setSize(roomyDialog.boundedTo(panel.size()).expandedTo(place.size()));
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
