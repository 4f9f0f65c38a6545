// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef SETTINGSSCREEN_H
#define SETTINGSSCREEN_H

#include "shell/panelscreen.h"
#include "stick/devicewatch.h"

#include <functional>

class AboutPage;
class ChoicePage;
class ClockPage;
class Languages;
class QStackedWidget;
class Settings;
class SettingsPage;
class TouchSound;

/// What the operator chooses for the panel: language, look, size of texts and sounds. Besides what
/// is to be known of the panel: the clock, the program and its room.
///
/// A choice holds at once, for the whole panel, and is kept by the Settings. Where the panel has
/// room, all sections are in view. On a small one there is one at a time, with a key for each.
class SettingsScreen : public PanelScreen
{
    Q_OBJECT

public:
    /// \a surface says how the sections are laid out, and \a folder is that of the panel's data.
    /// The others must outlive the screen.
    SettingsScreen(const QSize &surface, const QString &folder, Languages *languages,
                   Settings *settings, TouchSound *sounds, QWidget *parent = nullptr);

    QString title() const override;

    /// "language", "look", "textsize", "sounds", "clock" and "about".
    static QStringList sections();
    /// Brings that section into view.
    void showSection(const QString &name);

    bool event(QEvent *event) override;

public Q_SLOTS:
    void showDevices(const DeviceState &state);

protected:
    void changeEvent(QEvent *event) override;

private:
    void makePages(const QSize &surface, const QString &folder);
    ChoicePage *makeLanguages();
    ChoicePage *makeLooks();
    ChoicePage *makeTextSizes(const QSize &surface);
    ChoicePage *makeSounds();
    void layOutAll(const QSize &surface);
    void layOutOneByOne(bool isLow);
    QWidget *makeWays(int columns);
    void chooseLanguage(const QString &code);
    void chooseLook(const QString &name);
    void chooseTextSize(const QString &name);
    void chooseSounds(const QString &name);
    void refresh();

    Languages *m_languages;
    Settings *m_settings;
    TouchSound *m_sounds;
    ChoicePage *m_language = nullptr;
    ChoicePage *m_look = nullptr;
    ChoicePage *m_textSize = nullptr;
    ChoicePage *m_soundsPage = nullptr;
    ClockPage *m_clock = nullptr;
    AboutPage *m_about = nullptr;
    QList<SettingsPage *> m_pages;
    /// None where all are in view.
    QStackedWidget *m_stack = nullptr;
};

#endif // SETTINGSSCREEN_H
