// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PREVIEWSCREEN_H
#define PREVIEWSCREEN_H

#include "screens/coilexport.h"
#include "shell/panelscreen.h"
#include "storage/filethread.h"

#include <QSize>

#include <functional>

class CoilPreview;
class PreviewPane;

/// The coil of the program in the editor, before any wire is used.
///
/// On a wide panel a second pane goes beside the editor; see paneBeside().
class PreviewScreen : public PanelScreen
{
    Q_OBJECT

public:
    /// \a surface is the whole panel, \a programName gives the name of the program. \a preview must
    /// outlive the screen.
    PreviewScreen(CoilPreview *preview, const QSize &surface,
                  const std::function<QString()> &programName, QWidget *parent = nullptr);

    /// Whether there is room for a pane beside the editor.
    static bool hasRoomBeside(const QSize &surface);
    /// A pane for the side of the editor, which takes it over.
    PreviewPane *paneBeside();

    QString title() const override;
    bool isWorking() const override { return m_isMaking || m_export.isRunning(); }
    PreviewPane *pane() const { return m_pane; }
    CoilExport *coilExport() { return &m_export; }

public Q_SLOTS:
    void stopWork(const QString &work = QString()) override;
    /// What the key Export does.
    void exportCoil();
    /// The line at the editor's cursor, from 1.
    void setLine(int line);

Q_SIGNALS:
    /// The operator wants to see this line, from 1, of the program.
    void lineWanted(int line);
    /// The line at the cursor, for the panes.
    void lineChanged(int line);

private:
    PreviewPane *makePane(int place);
    static CoilExport::Contents contents(const class WindingModel &model, const QString &title);

    CoilPreview *m_preview;
    const QSize m_surface;
    const std::function<QString()> m_programName;
    PreviewPane *m_pane;
    CoilExport m_export;
    int m_line = 1;
    bool m_isMaking = false;
    /// Makes the pictures that are exported. Last, so that what runs in it ends first.
    FileThread m_maker;
};

#endif // PREVIEWSCREEN_H
