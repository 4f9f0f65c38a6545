// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PROGRAMSCREEN_H
#define PROGRAMSCREEN_H

#include "panelscreen.h"

#include <QSet>

class MachineData;
class PlcTransfer;
class QToolButton;
class WGCodeEditer;
class WMMainWindow;

/// The G-code screen: the library's window as a host uses it.
///
/// The host's part is the download, the line that Tag copies, the modified mark, and keys for what
/// no bar of the window holds.
class ProgramScreen : public PanelScreen
{
    Q_OBJECT

public:
    /// Programs go to the folder \a plcDir. \a machine must outlive the screen.
    ProgramScreen(int rotation, const QString &plcDir, const MachineData *machine,
                  QWidget *parent = nullptr);
    ~ProgramScreen() override;

    QString title() const override;
    bool hasChanges() const override;
    QList<PanelKey *> keys() override;
    bool mayClose() override;
    void refreshStatus() override;

    /// The library's window.
    WMMainWindow *programWindow() const { return m_window; }
    WGCodeEditer *editor() const { return m_editor; }
    PlcTransfer *transfer() const { return m_transfer; }

    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    void stopWork() override;

protected:
    void retranslate() override;

private:
    void startDownload(const QString &path);
    void showProgress(int percent);
    void endDownload(const QString &text, Tone tone);
    void insertTaughtPoint();
    void find();

    const MachineData *m_machine;
    QSet<QToolButton *> m_spareButtons;
    WMMainWindow *m_window;
    WGCodeEditer *m_editor;
    PlcTransfer *m_transfer;
    QString m_sending;
};

#endif // PROGRAMSCREEN_H
