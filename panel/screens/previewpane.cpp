// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/previewpane.h"

#include "filarixpanel.h"
#include "look/coilcolours.h"
#include "look/look.h"
#include "look/measures.h"
#include "screens/coilpreview.h"
#include "screens/coilview.h"
#include "screens/figuregrid.h"
#include "shell/stateline.h"
#include "winding/coilfigures.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

const float smallLetters = 10;
const float usualLetters = 12;
const int messagePixels = 15;
const int messageMargin = 10;
// As a finger in a glove hits it.
const qreal reachPixels = 14;
const int smallSpacing = 2;
const int keySpacing = 4;
const int smallIcon = 20;
const int keyColumns = 2;
const int keysInARow = 5;
const int figureColumns = 5;
const int uprightFigureColumns = 3;

} // namespace

PreviewPane::PreviewPane(CoilPreview *preview, const QSize &surface, Place place, QWidget *parent)
    : QWidget(parent)
    , m_preview(preview)
    , m_isSmall(surface.width() < FilarixPanel::smallBelow
                || surface.height() < FilarixPanel::smallBelow)
    , m_isUpright(place == Beside || surface.width() < surface.height())
    , m_isBeside(place == Beside)
    , m_view(new CoilView)
    , m_figures(new FigureGrid(m_isSmall     ? keyColumns
                               : m_isUpright ? uprightFigureColumns
                                             : figureColumns,
                               m_isSmall))
    , m_message(new QLabel(m_view))
    , m_note(new StateLine)
    , m_keys(new QWidget)
{
    makeKeys();
    layOut(!m_isUpright);
    QFont font = m_message->font();
    font.setPixelSize(messagePixels);
    m_message->setFont(font);
    m_message->setObjectName(QLatin1String("previewMessage"));
    // A profile's fault may have words of the profile in it.
    m_message->setTextFormat(Qt::PlainText);
    m_message->setWordWrap(true);
    m_message->setAlignment(Qt::AlignCenter);
    m_message->setAutoFillBackground(true);
    m_message->setMargin(messageMargin);
    m_message->setAttribute(Qt::WA_TransparentForMouseEvents);
    QVBoxLayout *inView = new QVBoxLayout(m_view);
    inView->setContentsMargins(24, 12, 24, 12);
    // All of the view, so that one message after another moves nothing.
    inView->addWidget(m_message);

    connect(m_preview, &CoilPreview::changed, this, &PreviewPane::showState);
    connect(m_preview, &CoilPreview::progressed, this, &PreviewPane::showProgress);
    connect(&m_maker, &PictureMaker::made, this, &PreviewPane::take);
    connect(m_view, &CoilView::wanted, this, &PreviewPane::order);
    connect(m_view, &CoilView::touched, this, &PreviewPane::touch);
    m_note->setLeastHeight(TapArea::leastHeight());
    connect(m_note, &StateLine::touched, this,
            [this] { Q_EMIT lineWanted(m_preview->firstUnknownLine()); });
    showView(Coil);
}

void PreviewPane::layOut(bool areKeysBeside)
{
    QGridLayout *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(0);
    grid->addWidget(m_note, 0, 0);
    grid->addWidget(m_view, 1, 0);
    // A small panel shows one of the two.
    grid->addWidget(m_figures, m_isSmall ? 1 : 2, 0);
    if (areKeysBeside) {
        m_keys->setMinimumWidth(Measures::keyColumn());
        grid->addWidget(m_keys, 0, 1, 3, 1);
    } else {
        grid->addWidget(m_keys, 3, 0);
    }
    grid->setRowStretch(1, 1);
    grid->setColumnStretch(0, 1);
}

void PreviewPane::makeKeys()
{
    Look::dress(m_keys, Look::KeyPanel);
    QGridLayout *grid = new QGridLayout(m_keys);
    const int spacing = m_isSmall ? smallSpacing : keySpacing;
    grid->setContentsMargins(spacing, spacing / 2, spacing, spacing / 2);
    grid->setSpacing(spacing);
    addViewKey(grid, Coil, Glyphs::Coil, [] { return tr("Coil"); });
    addViewKey(grid, Path, Glyphs::Path, [] { return tr("Path"); });
    addViewKey(grid, Curves, Glyphs::Curves, [] { return tr("Curves"); });
    if (m_isSmall)
        addViewKey(grid, Figures, Glyphs::Figures, [] { return tr("Figures"); });
    m_growKey = addKey(grid, Glyphs::Grow, [] { return tr("To line"); });
    if (!m_isSmall)
        m_exportKey = addKey(grid, Glyphs::Export, [] { return tr("Export"); });
    m_inKey = addKey(grid, Glyphs::ZoomIn, [] { return tr("Zoom +"); });
    m_outKey = addKey(grid, Glyphs::ZoomOut, [] { return tr("Zoom -"); });
    m_fitKey = addKey(grid, Glyphs::Fit, [] { return tr("Fit"); });
    m_kindKey = addKey(grid, Glyphs::Colours,
                       [this] { return m_current == Curves ? tr("Time") : tr("Tension"); });
    if (m_isSmall)
        m_exportKey = addKey(grid, Glyphs::Export, [] { return tr("Export"); });
    m_growKey->setCheckable(true);
    m_kindKey->setCheckable(true);
    m_exportKey->setObjectName(QLatin1String("exportKey"));
    connect(m_growKey, &PanelKey::toggled, this, &PreviewPane::order);
    connect(m_inKey, &PanelKey::clicked, m_view, &CoilView::zoomIn);
    connect(m_outKey, &PanelKey::clicked, m_view, &CoilView::zoomOut);
    connect(m_fitKey, &PanelKey::clicked, m_view, &CoilView::fit);
    connect(m_kindKey, &PanelKey::clicked, this, &PreviewPane::toggleKind);
    connect(m_exportKey, &PanelKey::clicked, this, &PreviewPane::exportWanted);
}

PanelKey *PreviewPane::addKey(QGridLayout *grid, Glyphs::Glyph glyph,
                              const std::function<QString()> &text)
{
    PanelKey *key = new PanelKey(Glyphs::icon(glyph, Glyphs::OnKey), text);
    key->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    if (m_isSmall) {
        key->setMinimumSize(Look::smallestTouch, Look::smallestTouch);
        key->setIconSize(QSize(smallIcon, smallIcon));
    }
    const int index = grid->count();
    if (m_isUpright)
        grid->addWidget(key, index / keysInARow, index % keysInARow);
    else
        grid->addWidget(key, index % keysInARow, index / keysInARow);
    return key;
}

PanelKey *PreviewPane::addViewKey(QGridLayout *grid, View view, Glyphs::Glyph glyph,
                                  const std::function<QString()> &text)
{
    PanelKey *key = addKey(grid, glyph, text);
    key->setCheckable(true);
    key->setAutoExclusive(true);
    connect(key, &PanelKey::clicked, this, [this, view] { showView(view); });
    m_viewKeys.append(key);
    return key;
}

void PreviewPane::showView(View view)
{
    m_current = view;
    for (int i = 0; i < m_viewKeys.size(); ++i)
        m_viewKeys.at(i)->setChecked(i == int(view));
    m_view->setVisible(view != Figures);
    m_figures->setVisible(!m_isSmall || view == Figures);
    m_view->clear();
    m_view->setZooming(view == Curves ? CoilView::Across : CoilView::BothWays);
    m_kindKey->setIcon(
        Glyphs::icon(view == Curves ? Glyphs::Clock : Glyphs::Colours, Glyphs::OnKey));
    m_kindKey->setText(view == Curves ? tr("Time") : tr("Tension"));
    m_kindKey->setChecked(view == Curves ? m_isOverTime : view == Coil && m_isByTension);
    m_maker.cancel();
    showState();
}

void PreviewPane::toggleKind()
{
    if (m_current == Curves) {
        m_isOverTime = m_kindKey->isChecked();
        // A part of the turns is no part of the time.
        m_view->clear();
    } else {
        m_isByTension = m_kindKey->isChecked();
    }
    order();
}

CoilScene PreviewPane::scene() const
{
    CoilScene scene;
    scene.kind = m_current == Path     ? CoilScene::Path
                 : m_current == Curves ? CoilScene::Plots
                                       : CoilScene::Section;
    scene.size = m_view->size();
    scene.letters = m_isSmall ? smallLetters : usualLetters;
    if (!m_view->isFitted())
        scene.world = m_view->world();
    scene.colours = m_isByTension ? CoilScene::ByTension : CoilScene::ByLayer;
    scene.isOverTime = m_isOverTime;
    scene.coil = CoilPicture::coilAt(m_preview->model(), m_line);
    if (m_growKey->isChecked())
        scene.wantedLine = qMax(1, m_line);
    return scene;
}

// What cannot be seen is not drawn; it is when it can.
void PreviewPane::order()
{
    if (!m_view->isVisible() || m_view->size().isEmpty())
        return;
    PictureMaker::Order order;
    order.model = m_preview->model();
    order.scene = scene();
    order.palette = CoilColours::palette();
    order.font = font();
    m_drawn = order.scene;
    m_isDrawnCurrent = false;
    m_maker.order(order);
}

void PreviewPane::take(const PictureMaker::Picture &picture)
{
    m_isDrawnCurrent = picture.scene == m_drawn && !m_maker.isRunning();
    if (picture.scene.kind != scene().kind || picture.scene.isOverTime != m_isOverTime)
        return;
    m_view->setWhole(picture.whole, picture.leastWidth);
    m_view->showPicture(picture.image, picture.frame);
    showMark();
    enableKeys();
}

bool PreviewPane::isUpToDate() const
{
    return m_preview->isCurrent() && (m_current == Figures || m_isDrawnCurrent);
}

void PreviewPane::setLine(int line)
{
    if (line == m_line)
        return;
    m_line = line;
    const CoilScene wanted = scene();
    if (wanted.coil != m_drawn.coil || wanted.wantedLine != m_drawn.wantedLine)
        order();
    showMark();
}

void PreviewPane::touch(const QPointF &point)
{
    if (m_preview->state() != CoilPreview::Winds && m_preview->state() != CoilPreview::WindsNothing)
        return;
    const qreal reach = reachPixels / m_view->frame().xScale();
    const int line = CoilPicture::lineAt(m_preview->model(), scene(), point, reach);
    if (line > 0)
        Q_EMIT lineWanted(line);
}

void PreviewPane::showState()
{
    m_view->setColours(CoilColours::palette());
    m_figures->setFigures(CoilFigures::of(m_preview->model()));
    showMessage();
    showNote();
    showProgress();
    enableKeys();
    order();
}

void PreviewPane::showProgress()
{
    if (m_preview->isReading())
        m_view->setNotice(tr("Read: %1 %").arg(m_preview->percent()));
    else if (m_preview->isStopped())
        m_view->setNotice(tr("Stopped at %1 %").arg(m_preview->percent()));
    else
        m_view->setNotice(QString());
}

void PreviewPane::showMessage()
{
    const QString text = message();
    m_message->setText(text);
    m_message->setVisible(!text.isEmpty());
}

QString PreviewPane::message() const
{
    switch (m_preview->state()) {
    case CoilPreview::NotRead:
        return m_preview->isStopped()
                   ? tr("The reading was stopped. The next change begins it anew.")
                   : tr("Reading the program ...");
    case CoilPreview::Empty:
        return tr("There is no program yet. Open or write one, and its coil is shown here.");
    case CoilPreview::WindsNothing:
        return m_current == Coil
                   ? tr("This program winds no wire: no line moves the guide while the spindle "
                        "turns.")
                   : QString();
    case CoilPreview::NoProfile:
        return tr("The machine is not known, so no coil can be reckoned. %1")
            .arg(m_preview->profileFaults().value(0));
    case CoilPreview::Winds:
        break;
    }
    return QString();
}

void PreviewPane::showNote()
{
    const int count = m_preview->unknownLines();
    const bool isShown =
        count > 0 && !m_preview->isReading() && m_preview->state() != CoilPreview::NoProfile;
    m_note->show(isShown ? tr("Lines not understood in full: %1. First: %2")
                               .arg(count)
                               .arg(m_preview->firstUnknownLine())
                         : QString(),
                 Message::Warning);
}

void PreviewPane::showMark()
{
    const CoilPreview::State state = m_preview->state();
    const bool isKnown = state == CoilPreview::Winds || state == CoilPreview::WindsNothing;
    m_view->setMarking(m_current == Path ? CoilView::Ways : CoilView::Frames);
    m_view->setMark(isKnown ? CoilPicture::placesOf(m_preview->model(), scene(), m_line)
                            : QVector<QRectF>(),
                    tr("Line %1").arg(m_line));
}

void PreviewPane::enableKeys()
{
    const bool isPicture = m_current != Figures && m_view->hasPicture();
    const bool winds = m_preview->state() == CoilPreview::Winds;
    m_inKey->setEnabled(isPicture);
    m_outKey->setEnabled(isPicture && !m_view->isWhole());
    m_fitKey->setEnabled(isPicture);
    m_kindKey->setEnabled(isPicture && m_current != Path);
    m_growKey->setEnabled(isPicture && winds && m_current == Coil);
    m_exportKey->setEnabled(winds && m_preview->isCurrent());
}

void PreviewPane::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    m_preview->setViewed(this, true);
    showState();
}

void PreviewPane::hideEvent(QHideEvent *event)
{
    m_preview->setViewed(this, false);
    QWidget::hideEvent(event);
}

void PreviewPane::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::PaletteChange)
        showState();
    QWidget::changeEvent(event);
}
