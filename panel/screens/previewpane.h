// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PREVIEWPANE_H
#define PREVIEWPANE_H

#include "look/panelkey.h"
#include "screens/picturemaker.h"

#include <QSize>
#include <QWidget>

#include <functional>

class CoilPreview;
class CoilView;
class FigureGrid;
class QGridLayout;
class QLabel;
class StateLine;

/// Shows a CoilPreview: one picture at a time, the figures, and the keys for both.
///
/// The keys are beside the picture on a panel that lies, and below it elsewhere. On a small panel
/// the figures are a view of their own.
class PreviewPane : public QWidget
{
    Q_OBJECT

public:
    enum View { Coil, Path, Curves, Figures };
    enum Place {
        Alone, ///< It has the whole screen.
        Beside ///< At the side of something else.
    };

    /// \a surface is the whole panel. \a preview must outlive the pane.
    PreviewPane(CoilPreview *preview, const QSize &surface, Place place, QWidget *parent = nullptr);

    View view() const { return m_current; }
    void showView(View view);
    CoilView *picture() const { return m_view; }
    /// What is drawn, or being drawn.
    CoilScene scene() const;
    /// Whether the picture is that of the whole program as it is.
    bool isUpToDate() const;

public Q_SLOTS:
    /// The line at the editor's cursor, from 1.
    void setLine(int line);

Q_SIGNALS:
    /// The operator touched what this line, from 1, makes.
    void lineWanted(int line);
    void exportWanted();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void makeKeys();
    void layOut(bool areKeysBeside);
    PanelKey *addKey(QGridLayout *grid, Glyphs::Glyph glyph, const std::function<QString()> &text);
    PanelKey *addViewKey(QGridLayout *grid, View view, Glyphs::Glyph glyph,
                         const std::function<QString()> &text);
    void toggleKind();
    void touch(const QPointF &point);
    void order();
    void take(const PictureMaker::Picture &picture);
    void showState();
    void showProgress();
    void showMessage();
    void showNote();
    void showMark();
    void enableKeys();
    QString message() const;

    CoilPreview *m_preview;
    const bool m_isSmall;
    const bool m_isUpright;
    const bool m_isBeside;
    CoilView *m_view;
    FigureGrid *m_figures;
    QLabel *m_message;
    StateLine *m_note;
    QWidget *m_keys;
    QList<PanelKey *> m_viewKeys;
    PanelKey *m_inKey;
    PanelKey *m_outKey;
    PanelKey *m_fitKey;
    PanelKey *m_kindKey;
    PanelKey *m_growKey;
    PanelKey *m_exportKey;
    PictureMaker m_maker;
    View m_current = Coil;
    CoilScene m_drawn;
    int m_line = 0;
    bool m_isByTension = false;
    bool m_isOverTime = false;
    bool m_isDrawnCurrent = false;
};

#endif // PREVIEWPANE_H
