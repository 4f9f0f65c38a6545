// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/settingsscreen.h"

#include "display/platform.h"
#include "filarixpanel.h"
#include "look/look.h"
#include "look/measures.h"
#include "look/panelkey.h"
#include "screens/aboutpage.h"
#include "screens/choicepage.h"
#include "screens/clockpage.h"
#include "shell/languages.h"
#include "shell/settings.h"
#include "shell/touchsound.h"

#include <QGridLayout>
#include <QLocale>
#include <QStackedWidget>

namespace {

const int spacing = 8;
const int waySpacing = 4;
const int side = 4;
const int languageColumns = 2;
const int lowWays = 2;
const int narrowWays = 3;
const int lyingColumns = 3;
const int uprightColumns = 2;

/// In the order of their sections.
const struct
{
    const char *name;
    Glyphs::Glyph glyph;
} ways[] = {
    {"language", Glyphs::Language}, {"look", Glyphs::Style},  {"textsize", Glyphs::TextSize},
    {"sounds", Glyphs::Sound},      {"clock", Glyphs::Clock}, {"about", Glyphs::Inform},
};

bool isLow(const QSize &surface)
{
    return surface.height() < FilarixPanel::smallBelow;
}

bool isSmall(const QSize &surface)
{
    return isLow(surface) || surface.width() < FilarixPanel::smallBelow;
}

/// The system knows best how its own language writes a date.
QLocale localeOf(const QString &code)
{
    const QLocale own(code);
    const QLocale system = QLocale::system();
    return system.language() == own.language() ? system : own;
}

} // namespace

SettingsScreen::SettingsScreen(const QSize &surface, const QString &folder, Languages *languages,
                               Settings *settings, TouchSound *sounds, QWidget *parent)
    : PanelScreen(parent), m_languages(languages), m_settings(settings), m_sounds(sounds)
{
    makePages(surface, folder);
    if (isSmall(surface))
        layOutOneByOne(isLow(surface));
    else
        layOutAll(surface);
    connect(m_language, &ChoicePage::chosen, this, &SettingsScreen::chooseLanguage);
    connect(m_look, &ChoicePage::chosen, this, &SettingsScreen::chooseLook);
    connect(m_textSize, &ChoicePage::chosen, this, &SettingsScreen::chooseTextSize);
    connect(m_soundsPage, &ChoicePage::chosen, this, &SettingsScreen::chooseSounds);
    // Whoever puts the settings into force does it at the same signal.
    connect(settings, &Settings::arrived, this, &SettingsScreen::refresh, Qt::QueuedConnection);
    refresh();
}

QString SettingsScreen::title() const
{
    return tr("Settings");
}

QStringList SettingsScreen::sections()
{
    QStringList names;
    for (const auto &way : ways)
        names.append(QLatin1String(way.name));
    return names;
}

void SettingsScreen::makePages(const QSize &surface, const QString &folder)
{
    m_language = makeLanguages();
    m_look = makeLooks();
    m_textSize = makeTextSizes(surface);
    m_soundsPage = makeSounds();
    m_clock = new ClockPage;
    m_about = new AboutPage(folder);
    m_pages = {m_language, m_look, m_textSize, m_soundsPage, m_clock, m_about};
}

ChoicePage *SettingsScreen::makeLanguages()
{
    ChoicePage *page = new ChoicePage(
        QLatin1String("language"), [] { return tr("Language"); }, languageColumns);
    // Each in its own words: whoever cannot read the others finds the own one.
    for (const Languages::Language &language : Languages::all()) {
        QString name = language.name;
        page->addChoice(language.code, [name] { return name; });
    }
    return page;
}

ChoicePage *SettingsScreen::makeLooks()
{
    static const struct
    {
        const char *name;
        const char *text;
    } texts[] = {
        {"light", QT_TR_NOOP("Light")},
        {"dark", QT_TR_NOOP("Dark")},
        {"high-contrast", QT_TR_NOOP("High contrast")},
    };
    ChoicePage *page = new ChoicePage(
        QLatin1String("look"), [] { return tr("Look"); }, 1);
    for (const auto &look : texts) {
        const char *const text = look.text;
        if (Look::names().contains(QLatin1String(look.name)))
            page->addChoice(QLatin1String(look.name), [text] { return tr(text); });
    }
    return page;
}

ChoicePage *SettingsScreen::makeTextSizes(const QSize &surface)
{
    ChoicePage *page = new ChoicePage(
        QLatin1String("textsize"), [] { return tr("Text size"); },
        isLow(surface) ? 1 : Measures::textSizes().size());
    for (const QString &name : Measures::textSizeNames())
        page->addChoice(name, [name] { return tr("%1 %").arg(name); });
    // A low panel needs the height for the keys.
    if (!isLow(surface))
        page->setHint([] { return tr("Texts grow as far as each screen has room."); });
    return page;
}

ChoicePage *SettingsScreen::makeSounds()
{
    ChoicePage *page = new ChoicePage(
        QLatin1String("sounds"), [] { return tr("Sounds"); }, TouchSound::names().size());
    page->addChoice(TouchSound::nameOf(false), [] { return tr("Off"); });
    page->addChoice(TouchSound::nameOf(true), [] { return tr("On"); });
    page->setHint([] {
        return Platform::hasBell() ? tr("The display's bell at each touch of a key.")
                                   : tr("This display has no bell: nothing is heard.");
    });
    return page;
}

void SettingsScreen::layOutAll(const QSize &surface)
{
    const int columns = surface.width() > surface.height() ? lyingColumns : uprightColumns;
    QGridLayout *grid = new QGridLayout(this);
    grid->setContentsMargins(spacing, spacing, spacing, spacing);
    grid->setSpacing(spacing);
    for (int i = 0; i < m_pages.size(); ++i) {
        grid->addWidget(m_pages.at(i), i / columns, i % columns);
        grid->setRowStretch(i / columns, 1);
        grid->setColumnStretch(i % columns, 1);
    }
}

void SettingsScreen::layOutOneByOne(bool isLow)
{
    m_stack = new QStackedWidget;
    for (SettingsPage *page : qAsConst(m_pages))
        m_stack->addWidget(page);
    QBoxLayout *row =
        new QBoxLayout(isLow ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom, this);
    row->setContentsMargins(side, side, side, side);
    row->setSpacing(waySpacing);
    QWidget *keys = makeWays(isLow ? lowWays : narrowWays);
    // With the room around it.
    if (isLow)
        keys->setMinimumWidth(Measures::keyColumn() - 2 * side);
    row->addWidget(keys);
    row->addWidget(m_stack, 1);
}

/// A key for each section.
QWidget *SettingsScreen::makeWays(int columns)
{
    QWidget *keys = new QWidget;
    Look::dress(keys, Look::KeyPanel);
    QGridLayout *grid = new QGridLayout(keys);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(waySpacing);
    for (int i = 0; i < m_pages.size(); ++i) {
        const SettingsPage *page = m_pages.at(i);
        PanelKey *key = new PanelKey(Glyphs::icon(ways[i].glyph, Glyphs::OnKey),
                                     [page] { return page->heading(); });
        const QString name = QLatin1String(ways[i].name);
        key->setObjectName(QLatin1String("section_") + name);
        key->setCheckable(true);
        key->setAutoExclusive(true);
        key->setChecked(i == 0);
        key->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        connect(key, &PanelKey::clicked, this, [this, name] { showSection(name); });
        grid->addWidget(key, i / columns, i % columns);
    }
    return keys;
}

void SettingsScreen::showSection(const QString &name)
{
    const int index = sections().indexOf(name);
    if (index < 0 || !m_stack)
        return;
    m_stack->setCurrentIndex(index);
    findChild<PanelKey *>(QLatin1String("section_") + name)->setChecked(true);
    // Its letters are measured now that it is in view.
    updateGeometry();
    layout()->invalidate();
}

void SettingsScreen::chooseLanguage(const QString &code)
{
    if (!m_languages->choose(code))
        Q_EMIT told(tr("The translation is not installed."), Message::Warning);
    refresh();
}

void SettingsScreen::chooseLook(const QString &name)
{
    Look::Style style = Look::style();
    if (!Look::read(name, &style))
        return;
    Look::use(style);
    m_settings->setChoice(Look::settingsKey(), name);
    refresh();
}

void SettingsScreen::chooseTextSize(const QString &name)
{
    Measures::useTextSize(name.toInt());
    m_settings->setChoice(Measures::textSizeKey(), name);
    refresh();
}

void SettingsScreen::chooseSounds(const QString &name)
{
    m_sounds->setOn(name == TouchSound::nameOf(true));
    m_settings->setChoice(TouchSound::settingsKey(), name);
    refresh();
}

/// What is in force, whoever has put it there.
void SettingsScreen::refresh()
{
    m_language->mark(m_languages->current());
    m_look->mark(Look::name(Look::style()));
    m_textSize->mark(Measures::nameOf(Measures::textSize()));
    m_soundsPage->mark(TouchSound::nameOf(m_sounds->isOn()));
    m_clock->setLocale(localeOf(m_languages->current()));
}

void SettingsScreen::showDevices(const DeviceState &state)
{
    m_about->showRoom(state.isKnown ? state.freeBytes : -1);
}

bool SettingsScreen::event(QEvent *event)
{
    if (event->type() == Measures::textSizeChange())
        refresh();
    return PanelScreen::event(event);
}

void SettingsScreen::changeEvent(QEvent *event)
{
    PanelScreen::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::LanguageChange)
        refresh();
}
