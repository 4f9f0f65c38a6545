// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "shell/titlestrip.h"

#include "display/platform.h"
#include "filarixpanel.h"
#include "look/elidedlabel.h"
#include "look/look.h"
#include "look/measures.h"
#include "look/panelkey.h"

#include <QDialog>
#include <QEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QPainter>
#include <QProgressDialog>
#include <QScreen>

namespace {

const int lowHeight = 26;
const int margin = 2;
const int edgeWidth = 2;
const int sideMargin = 8;
const int titlePixels = 16;
const int lowTitlePixels = 14;

bool isLow()
{
    return QGuiApplication::primaryScreen()->availableSize().height() < FilarixPanel::smallBelow;
}

int heightOfStrip()
{
    return isLow() ? lowHeight : Measures::touch() + 2 * margin;
}

bool isAnswered(const QDialog *dialog)
{
    return qobject_cast<const QMessageBox *>(dialog)
           || qobject_cast<const QProgressDialog *>(dialog);
}

/// The library gives some of its dialogs none.
QString titleOf(const QDialog *dialog)
{
    if (!dialog->windowTitle().isEmpty())
        return dialog->windowTitle();
    if (dialog->inherits("ImportManage"))
        return TitleStrip::tr("Panel and stick");
    if (qobject_cast<const QProgressDialog *>(dialog))
        return TitleStrip::tr("Please wait");
    return QString();
}

/// What has no title is a keypad, which names its value itself.
bool hasHeading(const QDialog *dialog)
{
    return titleOf(dialog).isEmpty() || dialog->findChild<QWidget *>(QLatin1String("pickerStrip"));
}

/// The same words twice would be one too many.
void hideHeading(QDialog *dialog)
{
    const QList<QLabel *> labels =
        dialog->findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
    for (QLabel *label : labels) {
        if (label->text() == dialog->windowTitle())
            label->hide();
    }
}

void grow(QDialog *dialog, int pixels)
{
    const QSize size = dialog->size();
    if (dialog->maximumHeight() < QWIDGETSIZE_MAX) {
        const bool isFixed = dialog->minimumHeight() == dialog->maximumHeight();
        dialog->setMaximumHeight(dialog->maximumHeight() + pixels);
        if (isFixed)
            dialog->setMinimumHeight(dialog->maximumHeight());
    }
    dialog->resize(size.width(), size.height() + pixels);
}

void moveDown(const QDialog *dialog, int pixels)
{
    const QList<QWidget *> children =
        dialog->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *child : children) {
        if (!child->isWindow())
            child->move(child->x(), child->y() + pixels);
    }
}

/// As high as the strip asks for, less what gave way to it.
void putInLayout(QDialog *dialog, TitleStrip *strip)
{
    QLayout *layout = dialog->layout();
    const int before = layout->totalSizeHint().height();
    hideHeading(dialog);
    layout->setMenuBar(strip);
    strip->show();
    layout->invalidate();
    grow(dialog, qMax(0, layout->totalSizeHint().height() - before));
}

} // namespace

TitleStrip::TitleStrip(QDialog *dialog) : QWidget(dialog), m_title(new ElidedLabel)
{
    setObjectName(QLatin1String("strip"));
    setAttribute(Qt::WA_StyledBackground);
    setFixedHeight(heightOfStrip());
    QHBoxLayout *row = new QHBoxLayout(this);
    row->setContentsMargins(sideMargin, margin, margin, margin);
    m_title->setObjectName(QLatin1String("dialogTitle"));
    QFont font = m_title->font();
    font.setPixelSize(isLow() ? lowTitlePixels : titlePixels);
    font.setBold(true);
    m_title->setFont(font);
    m_title->setText(titleOf(dialog));
    row->addWidget(m_title, 1);
    if (!isLow() && !isAnswered(dialog))
        addCloseKey(dialog);
    Look::dress(this, Look::Strip);
    dialog->installEventFilter(this);
}

void TitleStrip::addCloseKey(QDialog *dialog)
{
    PanelKey *key = new PanelKey(Glyphs::icon(Glyphs::Close), QString());
    key->setObjectName(QLatin1String("dialogClose"));
    key->setAccessibleName(tr("Close"));
    // As the dialog's own frame would on a desktop.
    connect(key, &PanelKey::clicked, dialog, &QDialog::close);
    layout()->addWidget(key);
}

void TitleStrip::putOn(QDialog *dialog)
{
    if (hasHeading(dialog))
        return;
    TitleStrip *strip = dialog->findChild<TitleStrip *>(QString(), Qt::FindDirectChildrenOnly);
    const bool isNew = !strip;
    if (isNew)
        strip = new TitleStrip(dialog);
    if (!dialog->layout()) {
        if (isNew)
            strip->placeAbove(dialog);
        return;
    }
    // A message box lays itself out anew when its texts change.
    if (dialog->layout()->menuBar() != strip)
        putInLayout(dialog, strip);
}

/// Where no layout does it.
void TitleStrip::placeAbove(QDialog *dialog)
{
    const bool isProgress = qobject_cast<QProgressDialog *>(dialog);
    if (!isProgress)
        moveDown(dialog, height());
    // A progress dialog centres its text in what its bar leaves.
    grow(dialog, isProgress ? 2 * height() : height());
    setGeometry(0, 0, dialog->width(), height());
    show();
}

int TitleStrip::room()
{
    return Platform::hasWindowManager() ? 0 : heightOfStrip();
}

QString TitleStrip::title() const
{
    return m_title->text();
}

/// The edge of the dialog goes on around it: dark strips would merge with a dark panel behind.
void TitleStrip::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    QPainter painter(this);
    painter.setPen(QPen(Look::edge(), edgeWidth));
    painter.drawRect(rect().adjusted(1, 1, -1, edgeWidth));
}

bool TitleStrip::eventFilter(QObject *watched, QEvent *event)
{
    QDialog *dialog = qobject_cast<QDialog *>(watched);
    if (!dialog)
        return false;
    if (event->type() == QEvent::WindowTitleChange || event->type() == QEvent::LanguageChange)
        m_title->setText(titleOf(dialog));
    if (event->type() == QEvent::Resize && !dialog->layout())
        resize(dialog->width(), height());
    return false;
}
