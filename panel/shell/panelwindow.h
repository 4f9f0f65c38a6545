// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PANELWINDOW_H
#define PANELWINDOW_H

#include "shell/devicecauses.h"
#include "shell/messagelog.h"
#include "shell/panelscreen.h"
#include "shell/workprogress.h"

#include <QList>
#include <QSize>
#include <QTimer>
#include <QWidget>

#include <functional>

class MessageBar;
class NameLabel;
class PanelKey;
class QGridLayout;
class QHBoxLayout;
class QStackedWidget;
class Settings;
class StatusStrip;

/// The shell around the screens: which of them is up, its title and keys, the state of the devices,
/// the clock, and the messages.
///
/// Four shapes, by the surface. Lying and wide: the tabs are in the top strip. Upright: the tabs
/// are at the foot, in reach of the thumbs. Lying and small: the tabs are behind a Menu key, so
/// that the screen gets every line there is. Upright and small: the same, with the state of the
/// devices at the foot.
///
/// Messages have a row of their own at the foot, and cover nothing. On a small panel they have a
/// line below the state of the devices while there are some. A touch on the row or on the title
/// opens the last messages, with the title in full.
///
///     PanelWindow panel(QSize(800, 480));
///     panel.addScreen(new ProgramScreen(0, "/srv/plc", &machine), [] { return tr("Program"); },
///                     Glyphs::icon(Glyphs::Program));
///     panel.show();
class PanelWindow : public QWidget
{
    Q_OBJECT

public:
    explicit PanelWindow(const QSize &surface, QWidget *parent = nullptr);

    /// Takes the screen over. The first one is up at once.
    void addScreen(PanelScreen *screen, const QString &name, const QIcon &icon);
    /// The same with a name that follows the language; see LiveText.
    void addScreen(PanelScreen *screen, const std::function<QString()> &name, const QIcon &icon);
    /// The same for the screen with the panel's settings, whose key bears a gear.
    void addSettings(PanelScreen *screen);
    /// Tells the operator of troubles with the settings, from now on and those until now.
    /// \a settings must outlive the window.
    void setSettings(Settings *settings);
    PanelScreen *currentScreen() const;
    /// \a index counts from 0 in the order of addScreen().
    void showScreen(int index);
    /// Shows one of those that were added.
    void showScreen(const PanelScreen *screen);

    /// What the operator was told. Whoever is no screen and has something to say tells it there.
    MessageLog *messages() { return &m_log; }
    /// The long work that goes on. Whoever is no screen tells of it there.
    WorkProgress *works() { return &m_works; }
    MessageBar *messageBar() const { return m_messageBar; }
    StatusStrip *status() const { return m_status; }

    bool event(QEvent *event) override;

public Q_SLOTS:
    /// Shows the state of the devices, and ends the messages whose cause it shows to be over.
    void showDevices(const DeviceState &state);

Q_SIGNALS:
    /// The operator closed the program and no screen objected.
    void closed();

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    enum Shape { Wide, Upright, Small, Slim };

    struct Entry
    {
        PanelScreen *screen;
        PanelKey *tab;
        QList<PanelKey *> keys;
    };

    static Shape shapeOf(const QSize &surface);
    bool hasMenu() const { return m_shape == Small || m_shape == Slim; }
    QWidget *makeTopStrip();
    QWidget *makeFootStrip();
    void makeMenu();
    void addTab(PanelKey *tab);
    void toggleMenu();
    void hideMenu();
    void tellTrouble();
    void fitKeys();
    void showTitle();
    void showChanged(bool isChanged);
    void showMessages();
    void showInFull(const QString &subject);
    void placeMessages();
    void placeLongMessage();
    void showWork();
    void refreshStatus();
    void tellOf(const PanelScreen *screen, const QString &text, Message::Tone tone,
                const QString &cause);

    const Shape m_shape;
    QList<Entry> m_entries;
    MessageLog m_log;
    DeviceCauses m_causes;
    /// The operator may look at another screen meanwhile.
    WorkProgress m_works;
    /// WorkProgress::number() of the work that the message bar shows.
    int m_shownWork = 0;
    QStackedWidget *m_stack;
    QWidget *m_menu = nullptr;
    PanelKey *m_menuKey = nullptr;
    QGridLayout *m_tabs;
    QHBoxLayout *m_keys;
    NameLabel *m_title;
    StatusStrip *m_status;
    MessageBar *m_messageBar;
    QWidget *m_shade;
    Settings *m_settings = nullptr;
    QTimer m_statusTimer;
};

#endif // PANELWINDOW_H
