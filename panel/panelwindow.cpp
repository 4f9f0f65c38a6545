// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "panelwindow.h"

#include "elidedlabel.h"
#include "languagepicker.h"
#include "languages.h"
#include "look.h"
#include "messagebar.h"
#include "panelkey.h"
#include "settings.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QStackedWidget>
#include <QTime>
#include <QVBoxLayout>

namespace {

const int kWideFrom = 760;
const int kTallFrom = 400;
// Five of them and the key of the languages are as wide as the narrowest panel.
const int kTabWidth = 74;
const int kStatusMs = 2000;

} // namespace

PanelWindow::PanelWindow(const QSize &surface, QWidget *parent)
    : QWidget(parent)
    , m_shape(surface.height() < kTallFrom  ? Small
              : surface.width() < kWideFrom ? Upright
                                            : Wide)
    , m_stack(new QStackedWidget)
    , m_tabs(new QHBoxLayout)
    , m_keys(new QHBoxLayout)
    , m_title(new ElidedLabel)
    , m_status(new ElidedLabel)
{
    setFixedSize(surface);
    QVBoxLayout *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(makeTopStrip());
    column->addWidget(m_stack, 1);
    if (m_shape == Small)
        makeMenu();
    else
        column->addWidget(makeFootStrip());

    m_messages = new MessageBar(m_stack);
    connect(m_messages, &MessageBar::stopped, this, [this] { currentScreen()->stopWork(); });

    // Over everything while a dialog waits for its answer, so that the dialog stands out.
    m_shade = new QWidget(this);
    m_shade->setObjectName(QLatin1String("shade"));
    m_shade->setStyleSheet(QLatin1String("background: rgba(23, 32, 43, 150);"));
    m_shade->setGeometry(rect());
    m_shade->hide();

    connect(&m_statusTimer, &QTimer::timeout, this, &PanelWindow::refreshStatus);
    m_statusTimer.start(kStatusMs);
    showStatus();
}

QWidget *PanelWindow::makeTopStrip()
{
    QWidget *strip = new QWidget;
    strip->setObjectName(QLatin1String("strip"));
    strip->setAttribute(Qt::WA_StyledBackground);
    Look::dress(strip, Look::Strip);
    QHBoxLayout *row = new QHBoxLayout(strip);
    const int margin = m_shape == Small ? 1 : 3;
    row->setContentsMargins(3, margin, 3, margin);
    row->setSpacing(4);

    // As high as with keys, so that the screens keep their height.
    strip->setMinimumHeight(PanelKey(Glyphs::icon(Glyphs::Menu), tr("Menu")).sizeHint().height()
                            + 2 * margin);

    m_tabs->setSpacing(3);
    m_keys->setSpacing(3);
    QFont font = m_title->font();
    font.setPixelSize(m_shape == Small ? 14 : 16);
    font.setBold(true);
    m_title->setFont(font);
    m_title->setObjectName(QLatin1String("title"));
    font.setPixelSize(12);
    font.setBold(false);
    m_status->setFont(font);
    m_status->setObjectName(QLatin1String("status"));

    QVBoxLayout *titles = new QVBoxLayout;
    titles->setContentsMargins(6, 0, 6, 0);
    titles->setSpacing(0);
    titles->addWidget(m_title);
    if (m_shape == Small) {
        PanelKey *menuKey = new PanelKey(Glyphs::icon(Glyphs::Menu), [] { return tr("Menu"); });
        menuKey->setObjectName(QLatin1String("menuKey"));
        connect(menuKey, &PanelKey::clicked, this, &PanelWindow::toggleMenu);
        row->addWidget(menuKey);
        titles->addWidget(m_status);
    } else if (m_shape == Wide) {
        row->addLayout(m_tabs);
    }
    row->addLayout(titles, 1);
    row->addLayout(m_keys);
    return strip;
}

QWidget *PanelWindow::makeFootStrip()
{
    QWidget *strip = new QWidget;
    strip->setObjectName(QLatin1String("strip"));
    strip->setAttribute(Qt::WA_StyledBackground);
    Look::dress(strip, Look::Strip);
    QVBoxLayout *column = new QVBoxLayout(strip);
    column->setContentsMargins(3, 2, 3, 3);
    column->setSpacing(2);

    m_lastMessage = new ElidedLabel;
    m_lastMessage->setObjectName(QLatin1String("lastMessage"));
    m_lastMessage->setFont(m_status->font());
    // The state of the devices is always to be read; a message gives way.
    m_status->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_status->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    QHBoxLayout *line = new QHBoxLayout;
    line->setContentsMargins(6, 0, 6, 0);
    line->setSpacing(12);
    line->addWidget(m_lastMessage, 1);
    line->addWidget(m_status);
    column->addLayout(line);
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
    entry.tab->setCheckable(true);
    entry.tab->setAutoExclusive(true);
    entry.tab->setMinimumWidth(kTabWidth);
    entry.tab->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    connect(entry.tab, &PanelKey::clicked, this, [this, index] { showScreen(index); });
    m_tabs->addWidget(entry.tab);
    entry.keys = screen->keys();
    for (PanelKey *key : qAsConst(entry.keys)) {
        m_keys->addWidget(key);
        key->hide();
    }
    m_stack->addWidget(screen);
    m_entries.append(entry);

    connect(screen, &PanelScreen::titleChanged, this, &PanelWindow::showTitle);
    connect(screen, &PanelScreen::told, this, &PanelWindow::tell);
    connect(screen, &PanelScreen::worked, m_messages, &MessageBar::showWork);
    connect(screen, &PanelScreen::statusChanged, this, &PanelWindow::noteStatus);
    screen->refreshStatus();
    if (index == 0)
        showScreen(0);
}

void PanelWindow::setLanguages(Languages *languages)
{
    m_languages = languages;
    PanelKey *key = new PanelKey(Glyphs::icon(Glyphs::Language),
                                 [languages] { return languages->shortName(); });
    key->setObjectName(QLatin1String("languageKey"));
    connect(key, &PanelKey::clicked, this, &PanelWindow::chooseLanguage);
    m_tabs->addWidget(key);
}

void PanelWindow::chooseLanguage()
{
    if (m_menu)
        m_menu->hide();
    LanguagePicker picker(m_languages->current());
    if (picker.exec() != QDialog::Accepted)
        return;
    if (!m_languages->choose(picker.code()))
        tell(tr("The translation is not installed."), PanelScreen::Warning);
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
        tell(trouble, PanelScreen::Warning);
}

// The tabs of a small panel, over the screen while the operator chooses.
void PanelWindow::makeMenu()
{
    m_menu = new QWidget(this);
    m_menu->setObjectName(QLatin1String("strip"));
    m_menu->setAttribute(Qt::WA_StyledBackground);
    Look::dress(m_menu, Look::Strip);
    m_tabs->setContentsMargins(4, 4, 4, 6);
    m_menu->setLayout(m_tabs);
    m_menu->hide();
}

void PanelWindow::toggleMenu()
{
    m_menu->setGeometry(0, m_stack->y(), width(), m_menu->sizeHint().height());
    m_menu->setVisible(m_menu->isHidden());
    m_menu->raise();
}

PanelScreen *PanelWindow::currentScreen() const
{
    return static_cast<PanelScreen *>(m_stack->currentWidget());
}

void PanelWindow::showScreen(int index)
{
    if (index < 0 || index >= m_entries.size())
        return;
    if (m_menu)
        m_menu->hide();
    m_stack->setCurrentIndex(index);
    for (int i = 0; i < m_entries.size(); ++i) {
        m_entries.at(i).tab->setChecked(i == index);
        for (PanelKey *key : m_entries.at(i).keys)
            key->setVisible(i == index);
    }
    showTitle();
}

void PanelWindow::showTitle()
{
    const PanelScreen *screen = currentScreen();
    if (!screen)
        return;
    const QString mark = screen->hasChanges() ? QString(QLatin1String("*")) : QString();
    m_title->setText(screen->title() + mark);
    m_title->setStyleSheet(screen->hasChanges()
                               ? QString::fromLatin1("color: %1;").arg(Look::changed().name())
                               : QString());
    setWindowTitle(tr("%1[*] - Winding panel").arg(screen->title()));
    setWindowModified(screen->hasChanges());
}

void PanelWindow::tell(const QString &text, PanelScreen::Tone tone)
{
    m_messages->tell(text, tone);
    if (m_lastMessage)
        m_lastMessage->setText(QTime::currentTime().toString(QLatin1String("HH:mm  ")) + text);
}

void PanelWindow::noteStatus(const QString &device, const QString &state)
{
    for (QPair<QString, QString> &known : m_devices) {
        if (known.first == device) {
            known.second = state;
            return showStatus();
        }
    }
    m_devices.append(qMakePair(device, state));
    showStatus();
}

void PanelWindow::showStatus()
{
    QStringList parts;
    for (const QPair<QString, QString> &device : qAsConst(m_devices))
        parts.append(device.first + QLatin1Char(' ') + device.second);
    parts.append(QTime::currentTime().toString(QLatin1String("HH:mm")));
    m_status->setText(parts.join(QString::fromUtf8("  \u00b7  ")));
}

void PanelWindow::refreshStatus()
{
    for (const Entry &entry : qAsConst(m_entries))
        entry.screen->refreshStatus();
    showStatus();
}

bool PanelWindow::event(QEvent *event)
{
    if (event->type() == QEvent::WindowBlocked) {
        m_shade->raise();
        m_shade->show();
    } else if (event->type() == QEvent::WindowUnblocked) {
        m_shade->hide();
    }
    return QWidget::event(event);
}

void PanelWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        // The devices report again, under their names in the new language.
        m_devices.clear();
        showTitle();
        refreshStatus();
    }
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
