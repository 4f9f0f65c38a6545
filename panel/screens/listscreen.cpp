// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/listscreen.h"

#include "display/surfaceloan.h"
#include "filarixpanel.h"
#include "look/livetext.h"
#include "look/look.h"
#include "look/panelkey.h"
#include "tlistwidget.h"

#include <QEvent>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>

namespace {

// A list with a title is no wider: its title keeps the width that the library gives it.
const int titledWidth = 480;
const int keyPanelWidth = 3 * Look::smallestTouch;
const int keyGap = 4;
const int largeIcon = 36;
const int keyStretch = 1000;

// What messages about a disk that does not do its work are about.
const QLatin1String storage("storage");

TListWidget *makeList(QStringList title)
{
    const SurfaceLoan tall;
    return new TListWidget(title, nullptr);
}

} // namespace

ListScreen::ListScreen(const QSize &surface, QStringList title, int keyColumns, RowKeeper *keeper,
                       QWidget *parent)
    : PanelScreen(parent)
    , m_keysBeside(surface.width() >= FilarixPanel::wideFrom)
    , m_keyColumns(keyColumns)
    , m_firstRow(title.isEmpty() ? 0 : 1)
    , m_list(makeList(title))
    , m_area(new QScrollArea)
    , m_keyGrid(new QGridLayout)
    , m_notice(new QLabel(m_area->viewport()))
    , m_keeper(keeper)
{
    m_keeper->setParent(this);
    // An open row can push the foot of the page out of sight: the area moves, but shows no bars,
    // for the list has pages.
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_area->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_area->viewport()->installEventFilter(this);
    m_list->setFixedWidth(listWidth(surface));
    if (m_firstRow == 0)
        m_list->setSize(m_list->size());
    m_area->setWidget(m_list);
    // Over the list, which takes no touch meanwhile.
    new LiveText(m_notice, [] { return tr("Loading ..."); });
    m_notice->setAlignment(Qt::AlignCenter);
    m_notice->hide();
    connect(m_list, &TListWidget::clicked, this,
            [this](int row) { QTimer::singleShot(0, this, [this, row] { keepRowInView(row); }); });

    QWidget *keyPanel = new QWidget;
    Look::dress(keyPanel, Look::KeyPanel);
    m_keyGrid->setSpacing(keyGap);
    // On a small panel each pixel between the strips counts for one more row.
    m_keyGrid->setContentsMargins(keyGap, keyGap / 2, keyGap, keyGap / 2);
    keyPanel->setLayout(m_keyGrid);

    QBoxLayout *layout =
        new QBoxLayout(m_keysBeside ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom, this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    if (m_keysBeside) {
        m_area->setFixedWidth(m_list->width());
        keyPanel->setMinimumWidth(2 * Look::smallestTouch);
        layout->addWidget(m_area);
        layout->addWidget(keyPanel, 1);
    } else {
        layout->addWidget(m_area, 1);
        layout->addWidget(keyPanel);
    }
}

int ListScreen::listWidth(const QSize &surface) const
{
    if (m_firstRow == 1)
        return qMin(surface.width(), titledWidth);
    return m_keysBeside ? surface.width() - keyPanelWidth : surface.width();
}

PanelKey *ListScreen::addKey(const QIcon &icon, const std::function<QString()> &text)
{
    PanelKey *key = new PanelKey(icon, text);
    key->setSizePolicy(QSizePolicy::Expanding,
                       m_keysBeside ? QSizePolicy::Expanding : QSizePolicy::Fixed);
    key->setMaximumHeight(2 * Look::smallestTouch);
    if (m_keysBeside)
        key->setIconSize(QSize(largeIcon, largeIcon));
    const int line = m_keyCount / m_keyColumns;
    m_keyGrid->addWidget(key, line, m_keyCount % m_keyColumns);
    if (m_keysBeside) {
        // The room that the keys leave at their full height lies below them, not between.
        m_keyGrid->setRowStretch(line, keyStretch);
        m_keyGrid->setRowStretch(line + 1, 1);
    }
    ++m_keyCount;
    return whenLoaded(key);
}

PanelKey *ListScreen::whenLoaded(PanelKey *key)
{
    m_loadKeys.append(key);
    key->setEnabled(!m_isLoading);
    return key;
}

void ListScreen::setLoading(bool isLoading)
{
    m_isLoading = isLoading;
    for (const QPointer<PanelKey> &key : qAsConst(m_loadKeys)) {
        if (key)
            key->setEnabled(!isLoading);
    }
    m_notice->setGeometry(m_area->viewport()->rect());
    m_notice->setVisible(isLoading);
    m_notice->raise();
}

void ListScreen::addPagingKeys()
{
    const auto icon = [](const char *name) {
        return QIcon(QString::fromLatin1(":/images/%1.png").arg(QLatin1String(name)));
    };
    connect(addKey(icon("home"), [] { return tr("First"); }), &PanelKey::clicked, m_list,
            &TListWidget::home);
    connect(addKey(icon("pageUp"), [] { return tr("Page"); }), &PanelKey::clicked, m_list,
            &TListWidget::prevPage);
    connect(addKey(icon("pageDown"), [] { return tr("Page"); }), &PanelKey::clicked, m_list,
            &TListWidget::nextPage);
    connect(addKey(icon("end"), [] { return tr("Last"); }), &PanelKey::clicked, m_list,
            &TListWidget::end);
}

void ListScreen::setRows(const QList<QStringList> &rows)
{
    m_list->clear();
    for (QStringList row : rows)
        m_list->addWidget(row, false, false);
    m_list->setCurIndex(m_firstRow, true);
    fitPage();
    m_list->home();
}

void ListScreen::bringIntoView(int row)
{
    const auto isInView = [this, row] {
        const QWidget *widget = m_list->itemAt(m_list->getListPos(row));
        return widget && !widget->isHidden();
    };
    if (!isInView())
        m_list->home();
    for (int page = 0; page < m_list->count() && !isInView(); ++page)
        m_list->nextPage();
    m_list->setCurIndex(row, true);
}

QList<QStringList> ListScreen::rows() const
{
    QList<QStringList> rows;
    for (int row = m_firstRow; row < m_list->count(); ++row)
        rows.append(m_list->getContent(row));
    return rows;
}

bool ListScreen::lookForChanges()
{
    refreshStatus();
    return hasChanges();
}

void ListScreen::refreshStatus()
{
    const bool changed = rows() != m_stored;
    if (changed == m_changed)
        return;
    m_changed = changed;
    Q_EMIT titleChanged();
}

void ListScreen::markStored(const QList<QStringList> &rows)
{
    m_stored = rows;
    refreshStatus();
    Q_EMIT titleChanged();
}

void ListScreen::tellUnread(const RowKeeper::Loaded &loaded, const QString &whenBroken,
                            const QString &whenStalled)
{
    if (loaded.state == RowKeeper::Loaded::Broken)
        Q_EMIT told(loaded.error + QLatin1Char(' ') + whenBroken, Message::Alarm, fileCause());
    else if (loaded.state == RowKeeper::Loaded::Stalled)
        Q_EMIT told(loaded.error + QLatin1Char(' ') + whenStalled, Message::Alarm, storage);
}

void ListScreen::store()
{
    if (m_keeper->isBusy() || !mayStore())
        return;
    const QList<QStringList> shown = rows();
    m_keeper->store(storePath(), rowsToStore(),
                    [this, shown](const RowKeeper::Stored &stored) { noteStored(shown, stored); });
}

/// The operator may have changed a row since.
void ListScreen::noteStored(const QList<QStringList> &rows, const RowKeeper::Stored &stored)
{
    if (!stored.isStored)
        return Q_EMIT told(stored.error, Message::Alarm, storage);
    noteStore();
    markStored(rows);
    Q_EMIT causeEnded(storage);
    Q_EMIT causeEnded(fileCause());
    QString text = storedText(rows.size());
    if (!stored.asidePath.isEmpty())
        text += QLatin1Char(' ')
                + tr("What stood there is %1 now.").arg(QFileInfo(stored.asidePath).fileName());
    Q_EMIT told(text, Message::Information);
}

bool ListScreen::mayLoseChanges(const QString &title, const QString &question)
{
    refreshStatus();
    if (!m_changed)
        return true;
    // While the answer is stored the operator may ask for the end once more.
    if (m_isAsking)
        return false;
    m_isAsking = true;
    const int answer = QMessageBox::warning(
        nullptr, title, question, QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    if (answer == QMessageBox::Save) {
        m_keeper->wait();
        store();
        m_keeper->wait();
    }
    m_isAsking = false;
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && !m_changed);
}

bool ListScreen::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_area->viewport() && event->type() == QEvent::Resize) {
        fitPage();
        m_notice->resize(m_area->viewport()->size());
    }
    return PanelScreen::eventFilter(watched, event);
}

/// As many rows a page as fit under the title.
void ListScreen::fitPage()
{
    // The title is as high as a row that is not open.
    const QWidget *first = m_list->itemAt(0);
    if (!first || first->minimumHeight() <= 0)
        return;
    const int lines = m_area->viewport()->height() / first->minimumHeight();
    m_list->setTotalLine(qMax(1, lines - m_firstRow));
}

void ListScreen::keepRowInView(int row)
{
    const QWidget *widget = m_list->itemAt(m_list->getListPos(row));
    if (!widget)
        return;
    const int foot = widget->geometry().bottom() + 1;
    m_area->verticalScrollBar()->setValue(qMax(0, foot - m_area->viewport()->height()));
}
