// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/listscreen.h"

#include "display/surfaceloan.h"
#include "filarixpanel.h"
#include "look/livetext.h"
#include "look/look.h"
#include "look/measures.h"
#include "look/pagekeys.h"
#include "look/panelkey.h"
#include "mjline.h"
#include "screens/rowdetails.h"
#include "tlistwidget.h"

#include <QEvent>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>

#include <cmath>

namespace {

// A list with a title is no wider: its title keeps the width that the library gives it.
const int titledWidth = 480;
const int keyGap = 4;
const int largeIcon = 36;
const int keyStretch = 1000;
// A panel has room for so many rows of a list at the least, strips and keys among them.
const int rowsOfAPanel = 10;
// What the library makes of a surface's height.
const qreal rowPart = 1.04 / 24;

// What messages about a disk that does not do its work are about.
const QLatin1String storage("storage");

// A panel with room for details between a list with a title and its keys.
const int roomy = 1000;
// Of the width, for the details of a list that could take it all.
const int detailsPart = 4;
const int detailColumns = 2;
// Of the width, for the keys beside such details, whatever the language.
const int keysPart = 6;

RowDetails *makeDetails(const QSize &surface, bool hasTitle)
{
    if (surface.width() < (hasTitle ? roomy : FilarixPanel::wideFrom))
        return nullptr;
    return new RowDetails(hasTitle ? detailColumns : 1);
}

/// Rows are as high as a thumb, 9 mm, where the panel has room for enough of them.
int heightToLend(const QSize &surface)
{
    const qreal wanted =
        SurfaceLoan::tallPanel * Measures::dotsPerInch() / Measures::usualDotsPerInch;
    const int mostRow = surface.height() / rowsOfAPanel;
    const qreal most = mostRow / rowPart;
    return qMax(SurfaceLoan::tallPanel, int(std::ceil(qMin(wanted, most))));
}

TListWidget *makeList(const QSize &surface, QStringList title)
{
    const SurfaceLoan tall(heightToLend(surface));
    return new TListWidget(title, nullptr);
}

} // namespace

ListScreen::ListScreen(const QSize &surface, QStringList title, int keyColumns, RowKeeper *keeper,
                       QWidget *parent)
    : PanelScreen(parent)
    , m_keysBeside(surface.width() >= FilarixPanel::wideFrom)
    , m_keyColumns(keyColumns)
    , m_firstRow(title.isEmpty() ? 0 : 1)
    , m_list(makeList(surface, title))
    , m_area(new QScrollArea)
    , m_details(makeDetails(surface, !title.isEmpty()))
    , m_keyPanel(new QWidget(this))
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
    connect(m_list, &TListWidget::clicked, this, [this](int row) {
        refreshDetails();
        QTimer::singleShot(0, this, [this, row] { keepRowInView(row); });
    });

    Look::dress(m_keyPanel, Look::KeyPanel);
    m_keyGrid->setSpacing(keyGap);
    // On a small panel each pixel between the strips counts for one more row.
    m_keyGrid->setContentsMargins(keyGap, keyGap / 2, keyGap, keyGap / 2);
    m_keyPanel->setLayout(m_keyGrid);

    QBoxLayout *layout =
        new QBoxLayout(m_keysBeside ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom, this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    if (m_keysBeside) {
        m_area->setFixedWidth(m_list->width());
        m_keyPanel->setMinimumWidth(Measures::keyColumn());
        layout->addWidget(m_area);
        if (m_details && m_firstRow == 0)
            m_details->setFixedWidth(surface.width() / detailsPart);
        if (m_details)
            layout->addWidget(m_details, 1);
        // Beside a list that has the library's width the keys have all the rest.
        layout->addWidget(m_keyPanel, m_details ? 0 : 1);
    } else {
        layout->addWidget(m_area, 1);
        layout->addWidget(m_keyPanel);
    }
}

bool ListScreen::hasRoomForKeys(const QSize &surface, int columns)
{
    const int needed = columns * Measures::glove() + (columns + 1) * keyGap;
    return surface.width() < roomy || needed <= surface.width() / keysPart;
}

int ListScreen::listWidth(const QSize &surface) const
{
    if (m_firstRow == 1)
        return qMin(surface.width(), titledWidth);
    if (!m_keysBeside)
        return surface.width();
    return surface.width() - Measures::keyColumn()
           - (m_details ? surface.width() / detailsPart : 0);
}

void ListScreen::refreshDetails()
{
    if (m_details)
        showDetails();
}

void ListScreen::setKeyLines(int lines)
{
    m_keyLines = lines;
    if (m_moreKey)
        return layOutKeys();
    m_moreKey = makeKey(Glyphs::icon(Glyphs::More, Glyphs::OnKey), [] { return tr("More"); });
    connect(m_moreKey, &PanelKey::clicked, this, &ListScreen::turnKeys);
    layOutKeys();
}

PanelKey *ListScreen::addKey(const QIcon &icon, const std::function<QString()> &text)
{
    PanelKey *key = makeKey(icon, text);
    m_keys.append(key);
    layOutKeys();
    return whenLoaded(key);
}

PanelKey *ListScreen::makeKey(const QIcon &icon, const std::function<QString()> &text)
{
    PanelKey *key = new PanelKey(icon, text, m_keyPanel);
    key->setSizePolicy(QSizePolicy::Expanding,
                       m_keysBeside ? QSizePolicy::Expanding : QSizePolicy::Fixed);
    key->setMinimumSize(Measures::glove(), Measures::glove());
    key->setMaximumHeight(2 * Measures::touch());
    if (m_keysBeside)
        key->setIconSize(QSize(largeIcon, largeIcon));
    return key;
}

void ListScreen::layOutKeys()
{
    const int room = m_keyLines * m_keyColumns;
    const bool takeTurns = room > 0 && m_keys.size() > room;
    const int shown = takeTurns ? room - 1 : m_keys.size();
    for (int i = 0; i < m_keys.size(); ++i) {
        placeKey(m_keys.at(i), i % shown);
        m_keys.at(i)->setVisible(i / shown == m_keyPage);
    }
    if (!m_moreKey)
        return;
    if (takeTurns)
        placeKey(m_moreKey, shown);
    m_moreKey->setVisible(takeTurns);
}

void ListScreen::placeKey(PanelKey *key, int place)
{
    const int line = place / m_keyColumns;
    m_keyGrid->addWidget(key, line, place % m_keyColumns);
    if (!m_keysBeside)
        return;
    // The room that the keys leave at their full height lies below them, not between.
    m_keyGrid->setRowStretch(line, keyStretch);
    m_keyGrid->setRowStretch(line + 1, 1);
}

void ListScreen::turnKeys()
{
    const int shown = m_keyLines * m_keyColumns - 1;
    const int pages = (m_keys.size() + shown - 1) / shown;
    m_keyPage = (m_keyPage + 1) % pages;
    layOutKeys();
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
    refreshDetails();
}

void ListScreen::addTurnKey(Turn turn)
{
    const struct
    {
        Glyphs::Glyph glyph;
        const char *text;
        /// Where the text would be two keys' name.
        QString (*name)();
        void (TListWidget::*turn)();
    } plans[] = {
        {Glyphs::First, QT_TR_NOOP("First"), nullptr, &TListWidget::home},
        {Glyphs::PageUp, QT_TR_NOOP("Page"), &PageKeys::backName, &TListWidget::prevPage},
        {Glyphs::PageDown, QT_TR_NOOP("Page"), &PageKeys::forthName, &TListWidget::nextPage},
        {Glyphs::Last, QT_TR_NOOP("Last"), nullptr, &TListWidget::end},
    };
    const auto &plan = plans[turn];
    const char *const text = plan.text;
    PanelKey *key = addKey(Glyphs::icon(plan.glyph, Glyphs::OnKey), [text] { return tr(text); });
    if (plan.name)
        new LiveText(key, plan.name, "accessibleName");
    connect(key, &PanelKey::clicked, m_list, plan.turn);
}

void ListScreen::addPagingKeys()
{
    for (Turn turn : {ToFirst, PageBack, PageOn, ToLast})
        addTurnKey(turn);
}

void ListScreen::setRows(const QList<QStringList> &rows)
{
    m_list->clear();
    for (const QStringList &row : rows) {
        QStringList shown = rowForList(row);
        m_list->addWidget(shown, false, false);
    }
    m_list->setCurIndex(m_firstRow, true);
    fitPage();
    m_list->home();
    refreshDetails();
}

void ListScreen::bringIntoView(int row)
{
    m_list->setCurIndex(row, true);
    showRow(row);
    refreshDetails();
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

void ListScreen::takeKeeper(RowKeeper *keeper)
{
    m_keeper->deleteLater();
    m_keeper = keeper;
    m_keeper->setParent(this);
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
    m_pageRows = qMax(1, lines - m_firstRow);
    const int before = pooled();
    m_list->setTotalLine(m_pageRows);
    if (pooled() != before)
        m_list->reshow();
}

/// The widgets that the list has for its rows. A new one shows a row by its words; only the next
/// refill goes by the row's kind.
int ListScreen::pooled() const
{
    return m_list->ListWidget::count();
}

void ListScreen::closeRows()
{
    for (int i = 0; i < pooled(); ++i) {
        MJLine *line = qobject_cast<MJLine *>(m_list->itemAt(i));
        if (line && line->isExpanded())
            line->on_expand();
    }
}

void ListScreen::showRow(int row)
{
    const int before = pooled();
    m_list->reshow();
    if (pooled() != before)
        m_list->reshow();
    const auto above = [this, row] { return m_firstRow - m_list->getListPos(row); };
    const auto below = [this, row] {
        return m_list->getListPos(row) - m_firstRow - m_pageRows + 1;
    };
    // The list refuses some turns, and nobody waits for it for ever.
    for (int left = m_list->count(); left > 0 && above() > 0; --left)
        above() > m_pageRows ? m_list->prevPage() : m_list->prevLine();
    for (int left = m_list->count(); left > 0 && below() > 0; --left)
        below() > m_pageRows ? m_list->nextPage() : m_list->nextLine();
}

void ListScreen::keepRowInView(int row)
{
    const QWidget *widget = m_list->itemAt(m_list->getListPos(row));
    if (!widget)
        return;
    const int foot = widget->geometry().bottom() + 1;
    m_area->verticalScrollBar()->setValue(qMax(0, foot - m_area->viewport()->height()));
}
