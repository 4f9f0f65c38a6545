// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/previewscreen.h"

#include "screens/coilpreview.h"
#include "screens/previewpane.h"
#include "winding/coilfigures.h"
#include "winding/coilpicture.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QVBoxLayout>

#include <memory>

namespace {

const int besideFrom = 1024;

} // namespace

PreviewScreen::PreviewScreen(CoilPreview *preview, const QSize &surface,
                             const std::function<QString()> &programName, QWidget *parent)
    : PanelScreen(parent)
    , m_preview(preview)
    , m_surface(surface)
    , m_programName(programName)
    , m_pane(makePane(PreviewPane::Alone))
{
    QVBoxLayout *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_pane);
    connect(&m_export, &CoilExport::worked, this,
            [this](const QString &text, int percent) { Q_EMIT worked(text, percent); });
    connect(&m_export, &CoilExport::told, this, &PreviewScreen::told);
    connect(&m_export, &CoilExport::causeEnded, this, &PreviewScreen::causeEnded);
    connect(m_preview, &CoilPreview::told, this, &PreviewScreen::told);
}

bool PreviewScreen::hasRoomBeside(const QSize &surface)
{
    return surface.width() >= besideFrom && surface.width() > surface.height();
}

PreviewPane *PreviewScreen::makePane(int place)
{
    PreviewPane *pane = new PreviewPane(m_preview, m_surface, PreviewPane::Place(place));
    connect(pane, &PreviewPane::lineWanted, this, &PreviewScreen::lineWanted);
    connect(pane, &PreviewPane::exportWanted, this, &PreviewScreen::exportCoil);
    connect(this, &PreviewScreen::lineChanged, pane, &PreviewPane::setLine);
    pane->setLine(m_line);
    return pane;
}

PreviewPane *PreviewScreen::paneBeside()
{
    return makePane(PreviewPane::Beside);
}

QString PreviewScreen::title() const
{
    return tr("Coil of %1").arg(m_programName());
}

void PreviewScreen::setLine(int line)
{
    m_line = line;
    Q_EMIT lineChanged(line);
}

void PreviewScreen::stopWork(const QString &)
{
    m_export.stop();
}

CoilExport::Contents PreviewScreen::contents(const WindingModel &model, const QString &title)
{
    const CoilDrawing sheet = CoilPicture::sheet(model, title);
    const CoilDrawing::Palette palette = CoilDrawing::lightPalette();
    QImage image(sheet.size().toSize(), QImage::Format_RGB32);
    QPainter painter(&image);
    sheet.paint(&painter, palette);
    painter.end();
    CoilExport::Contents contents;
    QBuffer png(&contents.png);
    png.open(QIODevice::WriteOnly);
    image.save(&png, "PNG");
    contents.svg = sheet.svg(palette);
    contents.csv = CoilFigures::csv(model);
    return contents;
}

// Dark on light in both looks: it may be printed.
void PreviewScreen::exportCoil()
{
    if (isWorking() || !m_preview->isCurrent())
        return;
    m_isMaking = true;
    const WindingModel model = m_preview->model();
    const QString name = m_programName();
    const std::shared_ptr<CoilExport::Contents> made = std::make_shared<CoilExport::Contents>();
    m_maker.post([made, model, name] { *made = contents(model, name); },
                 [this, made, name] {
                     m_isMaking = false;
                     m_export.begin(name, *made);
                 });
}
