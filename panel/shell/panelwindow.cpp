// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "shell/panelwindow.h"

#include "filarixpanel.h"
#include "look/letters.h"
#include "look/look.h"
#include "look/measures.h"
#include "look/namelabel.h"
#include "look/panelkey.h"
#include "look/taparea.h"
#include "shell/messagebar.h"
#include "shell/messagedialog.h"
#include "shell/settings.h"
#include "shell/statusstrip.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <climits>

namespace {

// Seven of them are as wide as the narrowest panel.
const int tabWidth = 52;
const int menuTabWidth = 76;
const int statusMs = 2000;
// Below the title and the state of the devices, in the height of the keys.
const int messageLine = 15;
// Each pixel more is taken from a row of the screens.
const int stripMargin = 1;
const int stripSide = 3;
// Between the keys of a strip. On a panel with a menu all else is the title's, and between the tabs
// of an upright one all else is their words'.
const int usualGap = 4;
const int uprightGap = 3;
const int narrowGap = 2;
// What a strip may take of the screens for larger letters, where there are pixels enough.
const int forLetters = 12;
// Between the keys of a slim panel a title has many short lines.
const int slimTitle = 12;
const int slimTitleLines = 3;
const int slimSide = 1;
const int titleLines = 2;
// Beside the tabs: two lines of about ten letters.
const int leastTitle = 80;
// Over what waits for an answer.
const QRgb dimmed = 0x9617202b;
// Beside the keys of a slim panel: a word of nine letters.
const int leastSlimTitle = 54;
// Below this width the names of the devices leave a message too little room.
const int roomyFrom = 1000;

// The sign of a key that has one says enough where its word has no room.
void showWords(const QList<PanelKey *> &keys, bool shows)
{
    for (PanelKey *key : keys) {
        if (!key->icon().isNull() && !key->text().isEmpty())
            key->setToolButtonStyle(shows ? Qt::ToolButtonTextUnderIcon : Qt::ToolButtonIconOnly);
    }
}

/// The keys of a strip are as high as it is.
void fillHeight(PanelKey *key)
{
    key->setSizePolicy(key->sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
}

} // namespace

PanelWindow::PanelWindow(const QSize &surface, QWidget *parent)
    : QWidget(parent)
    , m_shape(shapeOf(surface))
    , m_stack(new QStackedWidget)
    , m_tabs(new QGridLayout)
    , m_keys(new QHBoxLayout)
    , m_title(new NameLabel)
    , m_status(new StatusStrip(m_shape == Wide))
    , m_messageBar(new MessageBar(&m_log, m_shape == Small ? MessageBar::Line : MessageBar::Row))
{
    setFixedSize(surface);
    QVBoxLayout *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(makeTopStrip());
    column->addWidget(m_stack, 1);
    if (m_shape != Small)
        column->addWidget(makeFootStrip());
    if (hasMenu())
        makeMenu();

    connect(m_messageBar, &MessageBar::stopped, &m_works, &WorkProgress::stop);
    connect(&m_works, &WorkProgress::changed, this, &PanelWindow::showWork);
    connect(m_messageBar, &MessageBar::touched, this, &PanelWindow::showMessages);
    connect(&m_causes, &DeviceCauses::ended, &m_log, &MessageLog::end);

    // Over everything while a dialog waits for its answer, so that the dialog stands out.
    m_shade = new QWidget(this);
    m_shade->setObjectName(QLatin1String("shade"));
    m_shade->setAutoFillBackground(true);
    QPalette dim;
    dim.setColor(QPalette::Window, QColor::fromRgba(dimmed));
    m_shade->setPalette(dim);
    m_shade->setGeometry(rect());
    m_shade->hide();

    connect(&m_statusTimer, &QTimer::timeout, this, &PanelWindow::refreshStatus);
    m_statusTimer.start(statusMs);
}

PanelWindow::Shape PanelWindow::shapeOf(const QSize &surface)
{
    if (surface.height() < FilarixPanel::smallBelow)
        return Small;
    if (surface.width() < FilarixPanel::smallBelow) // no room for the tabs side by side
        return Slim;
    return surface.width() < FilarixPanel::wideFrom ? Upright : Wide;
}

QWidget *PanelWindow::makeTopStrip()
{
    QWidget *strip = new QWidget;
    strip->setObjectName(QLatin1String("strip"));
    strip->setAttribute(Qt::WA_StyledBackground);
    Look::dress(strip, Look::Strip);
    new Letters(strip, hasMenu() ? 0 : forLetters);
    QHBoxLayout *row = new QHBoxLayout(strip);
    row->setContentsMargins(stripSide, stripMargin, stripSide, stripMargin);
    const int gap = hasMenu() ? narrowGap : usualGap;
    row->setSpacing(gap);

    // As high as with keys, so that the screens keep their height.
    strip->setMinimumHeight(PanelKey(Glyphs::icon(Glyphs::Menu), tr("Menu")).sizeHint().height()
                            + 2 * stripMargin);

    m_tabs->setSpacing(m_shape == Upright ? uprightGap : usualGap);
    m_keys->setSpacing(gap);
    QFont font = m_title->font();
    font.setPixelSize(m_shape == Slim ? slimTitle : m_shape == Small ? 14 : 16);
    font.setBold(true);
    m_title->setFont(font);
    m_title->setObjectName(QLatin1String("title"));
    m_title->setLines(m_shape == Slim ? slimTitleLines : titleLines);
    m_status->setObjectName(QLatin1String("status"));

    TapArea *titleBlock = new TapArea;
    titleBlock->setObjectName(QLatin1String("titleBlock"));
    titleBlock->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    // Larger letters of the keys leave the name its place.
    if (m_shape == Wide)
        titleBlock->setMinimumWidth(leastTitle);
    connect(titleBlock, &TapArea::touched, this, &PanelWindow::showMessages);
    QVBoxLayout *titles = new QVBoxLayout(titleBlock);
    // A message that comes makes room among the titles, and not among the keys.
    if (m_shape == Small)
        new Letters(titleBlock);
    const int side = m_shape == Small ? 3 : m_shape == Slim ? slimSide : 4;
    titles->setContentsMargins(side, 0, side, 0);
    titles->setSpacing(0);
    titles->addWidget(m_title);
    if (hasMenu()) {
        m_menuKey = new PanelKey(Glyphs::icon(Glyphs::Menu), [] { return tr("Menu"); });
        m_menuKey->setObjectName(QLatin1String("menuKey"));
        fillHeight(m_menuKey);
        connect(m_menuKey, &PanelKey::clicked, this, &PanelWindow::toggleMenu);
        row->addWidget(m_menuKey);
    } else if (m_shape == Wide) {
        row->addLayout(m_tabs);
    }
    if (m_shape == Small || m_shape == Upright)
        titles->addWidget(m_status);
    row->addWidget(titleBlock, 1);
    if (m_shape == Small) {
        titles->addWidget(m_messageBar);
        m_messageBar->setFixedHeight(messageLine);
        // Lower than a finger: the block, which tells the same, takes its touches.
        m_messageBar->setAttribute(Qt::WA_TransparentForMouseEvents);
        // Beside the title: what comes and goes there moves no other key.
        row->addWidget(m_messageBar->key());
        fillHeight(m_messageBar->key());
        connect(m_messageBar, &MessageBar::changed, this, &PanelWindow::placeMessages);
    }
    row->addLayout(m_keys);
    return strip;
}

QWidget *PanelWindow::makeFootStrip()
{
    QWidget *strip = new QWidget;
    strip->setObjectName(QLatin1String("strip"));
    strip->setAttribute(Qt::WA_StyledBackground);
    Look::dress(strip, Look::Strip);
    new Letters(strip, hasMenu() ? 0 : forLetters);
    QVBoxLayout *column = new QVBoxLayout(strip);
    column->setContentsMargins(stripSide, 0, stripSide, stripMargin);
    column->setSpacing(stripMargin);

    QHBoxLayout *line = new QHBoxLayout;
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(12);
    line->addWidget(m_messageBar, 1);
    column->addLayout(line);
    if (m_shape == Wide) {
        line->addWidget(m_status);
        line->addSpacing(6);
        if (width() < roomyFrom)
            connect(m_messageBar, &MessageBar::changed, this, &PanelWindow::placeMessages);
    } else if (m_shape == Slim) {
        connect(m_messageBar, &MessageBar::changed, this, &PanelWindow::placeLongMessage);
        column->addWidget(m_status, 0, Qt::AlignHCenter);
    }
    if (m_shape == Upright)
        column->addLayout(m_tabs);
    return strip;
}

void PanelWindow::addScreen(PanelScreen *screen, const QString &name, const QIcon &icon)
{
    addScreen(
        screen, [name] { return name; }, icon);
}

void PanelWindow::addScreen(PanelScreen *screen, const std::function<QString()> &name,
                            const QIcon &icon)
{
    const int index = m_entries.size();
    Entry entry;
    entry.screen = screen;
    entry.tab = new PanelKey(icon, name);
    entry.tab->setObjectName(QLatin1String("tab"));
    entry.tab->setCheckable(true);
    entry.tab->setAutoExclusive(true);
    entry.tab->setMinimumWidth(tabWidth);
    entry.tab->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    connect(entry.tab, &PanelKey::clicked, this, [this, index] { showScreen(index); });
    addTab(entry.tab);
    entry.keys = screen->keys();
    for (PanelKey *key : qAsConst(entry.keys)) {
        m_keys->addWidget(key);
        fillHeight(key);
        key->hide();
    }
    m_stack->addWidget(screen);
    new Letters(screen);
    m_entries.append(entry);

    connect(screen, &PanelScreen::titleChanged, this, &PanelWindow::showTitle);
    connect(screen, &PanelScreen::told, this,
            [this, screen](const QString &text, Message::Tone tone, const QString &cause) {
                tellOf(screen, text, tone, cause);
            });
    connect(screen, &PanelScreen::causeEnded, &m_log, &MessageLog::end);
    connect(screen, &PanelScreen::explained, this, &PanelWindow::showInFull);
    connect(screen, &PanelScreen::worked, this,
            [this, screen](const QString &text, int percent, const QString &work) {
                m_works.report(screen, work, text, percent,
                               [screen, work] { screen->stopWork(work); });
            });
    connect(screen, &PanelScreen::workEnded, this,
            [this, screen](const QString &work) { m_works.end(screen, work); });
    screen->refreshStatus();
    if (index == 0)
        showScreen(0);
    fitKeys();
}

void PanelWindow::addSettings(PanelScreen *screen)
{
    addScreen(
        screen, [] { return tr("Settings"); }, Glyphs::icon(Glyphs::Gear));
    PanelKey *key = m_entries.last().tab;
    key->setObjectName(QLatin1String("settingsKey"));
    if (hasMenu())
        return;
    // Beside the other tabs its sign says enough, and leaves them the room.
    key->setToolButtonStyle(Qt::ToolButtonIconOnly);
    key->setMinimumWidth(0);
    key->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    fitKeys();
}

void PanelWindow::setSettings(Settings *settings)
{
    m_settings = settings;
    connect(m_settings, &Settings::troubled, this, &PanelWindow::tellTrouble);
    tellTrouble();
}

void PanelWindow::tellTrouble()
{
    const QString trouble = m_settings->takeTrouble();
    if (!trouble.isEmpty())
        m_log.tell(trouble, Message::Warning);
}

/// The tabs of a menu go on in a second line where the first is full.
void PanelWindow::addTab(PanelKey *tab)
{
    const int columns = hasMenu() ? qMax(1, width() / menuTabWidth) : INT_MAX;
    const int count = m_tabs->count();
    m_tabs->addWidget(tab, count / columns, count % columns);
}

/// The tabs of a small panel, over the screen while the operator chooses.
void PanelWindow::makeMenu()
{
    m_menu = new QWidget(this);
    m_menu->setObjectName(QLatin1String("menu"));
    m_menu->setAttribute(Qt::WA_StyledBackground);
    Look::dress(m_menu, Look::Strip);
    m_tabs->setContentsMargins(4, 4, 4, 6);
    m_menu->setLayout(m_tabs);
    new Letters(m_menu, height());
    m_menu->hide();
}

void PanelWindow::toggleMenu()
{
    m_menu->setGeometry(0, m_stack->y(), width(), m_menu->sizeHint().height());
    m_menu->setVisible(m_menu->isHidden());
    m_menu->raise();
    // A keyboard goes on in what it opened.
    if (m_menu->isVisible() && m_menuKey->hasFocus())
        m_entries.at(m_stack->currentIndex()).tab->setFocus();
}

/// A keyboard comes back to the key that opened it.
void PanelWindow::hideMenu()
{
    if (!m_menu)
        return;
    if (m_menu->isAncestorOf(focusWidget()))
        m_menuKey->setFocus();
    m_menu->hide();
}

PanelScreen *PanelWindow::currentScreen() const
{
    return static_cast<PanelScreen *>(m_stack->currentWidget());
}

void PanelWindow::showScreen(int index)
{
    if (index < 0 || index >= m_entries.size())
        return;
    hideMenu();
    m_stack->setCurrentIndex(index);
    for (int i = 0; i < m_entries.size(); ++i) {
        m_entries.at(i).tab->setChecked(i == index);
        for (PanelKey *key : m_entries.at(i).keys)
            key->setVisible(i == index);
    }
    fitKeys();
    showTitle();
}

void PanelWindow::showScreen(const PanelScreen *screen)
{
    for (int i = 0; i < m_entries.size(); ++i) {
        if (m_entries.at(i).screen == screen)
            return showScreen(i);
    }
}

/// What is open, and whether it is stored, comes before the words of keys that have a sign.
void PanelWindow::fitKeys()
{
    if ((m_shape != Wide && m_shape != Slim) || m_entries.isEmpty())
        return;
    const QList<PanelKey *> keys = m_entries.at(m_stack->currentIndex()).keys;
    showWords(keys, true);
    int room = width();
    if (hasMenu())
        room -= 2 * stripSide + m_menuKey->sizeHint().width() + narrowGap;
    for (const Entry &entry : qAsConst(m_entries))
        room -= hasMenu() ? 0 : entry.tab->sizeHint().width() + m_tabs->spacing();
    for (const PanelKey *key : keys)
        room -= key->isHidden() ? 0 : key->sizeHint().width() + m_keys->spacing();
    showWords(keys, room >= (m_shape == Wide ? leastTitle : leastSlimTitle));
}

void PanelWindow::showTitle()
{
    const PanelScreen *screen = currentScreen();
    if (!screen)
        return;
    m_title->setName(screen->title(), screen->hasChanges() ? QString(QLatin1Char('*')) : QString(),
                     screen->stateWord());
    showChanged(screen->hasChanges());
    setWindowTitle(tr("%1[*] - Winding panel").arg(screen->title()));
    setWindowModified(screen->hasChanges());
}

/// By its colour, too.
void PanelWindow::showChanged(bool isChanged)
{
    QPalette colours;
    if (isChanged)
        colours.setColor(QPalette::WindowText, Look::changed());
    m_title->setPalette(colours);
}

void PanelWindow::tellOf(const PanelScreen *screen, const QString &text, Message::Tone tone,
                         const QString &cause)
{
    if (!screen->isWorking())
        m_works.end(screen, QString());
    m_log.tell(text, tone, cause);
    showTitle();
}

void PanelWindow::showMessages()
{
    showInFull(currentScreen() ? currentScreen()->title() : QString());
}

void PanelWindow::showInFull(const QString &subject)
{
    MessageDialog dialog(&m_log, subject);
    dialog.exec();
}

/// The key of the message stands where some of the devices' states have been, or its text where
/// their names have.
void PanelWindow::placeMessages()
{
    const bool isTold = !m_messageBar->text().isEmpty();
    if (m_shape == Small)
        m_status->setBrief(isTold);
    else
        m_status->setNamed(!isTold);
}

/// Where lines are short, a long message takes that of the devices, too. The screens above keep
/// their height.
void PanelWindow::placeLongMessage()
{
    m_messageBar->setHigher(0);
    const bool isMessage = !m_messageBar->text().isEmpty() && !m_messageBar->isWorking();
    const bool isLong = isMessage && isVisible() && !m_messageBar->hasRoom();
    m_status->setVisible(!isLong);
    if (!isLong)
        return;
    m_messageBar->setHigher(m_status->height() + stripMargin);
}

void PanelWindow::showWork()
{
    // A thumb that is on its way to Stop must not stop what comes in the place of its work.
    const bool isAnother = m_shownWork != 0 && m_works.number() != m_shownWork;
    m_shownWork = m_works.number();
    showTitle();
    if (m_shownWork == 0)
        return m_messageBar->endWork();
    m_messageBar->showWork(m_works.text(), m_works.percent(), m_works.left(),
                           !m_works.isStopping());
    if (isAnother)
        m_messageBar->restKey();
}

void PanelWindow::showDevices(const DeviceState &state)
{
    m_status->showDevices(state);
    m_causes.take(state);
}

void PanelWindow::refreshStatus()
{
    for (const Entry &entry : qAsConst(m_entries))
        entry.screen->refreshStatus();
}

bool PanelWindow::event(QEvent *event)
{
    if (event->type() == QEvent::WindowBlocked) {
        m_shade->raise();
        m_shade->show();
    } else if (event->type() == QEvent::WindowUnblocked) {
        m_shade->hide();
    } else if (event->type() == QEvent::Show && m_shape == Slim) {
        placeLongMessage();
    }
    return QWidget::event(event);
}

void PanelWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        showTitle();
        refreshStatus();
        // The keys have their new words after this window.
        QTimer::singleShot(0, this, &PanelWindow::fitKeys);
    }
    if (event->type() == QEvent::PaletteChange)
        showTitle();
    QWidget::changeEvent(event);
}

void PanelWindow::closeEvent(QCloseEvent *event)
{
    for (const Entry &entry : qAsConst(m_entries)) {
        if (!entry.screen->mayClose()) {
            event->ignore();
            return;
        }
    }
    Q_EMIT closed();
    event->accept();
}
