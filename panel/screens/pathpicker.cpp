// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/pathpicker.h"

#include "display/surfaceloan.h"
#include "filarixpanel.h"
#include "filedialog.h"
#include "look/measures.h"

#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScopedPointer>
#include <QScreen>

namespace {

// Of a surface's height, as the browser divides it.
const int linesInHeight = 24;
const int linePixels = 48;
// Higher ones leave a small panel no room for files, and are there only where 9 mm take them.
const int smallLinePixels = 34;
// Beside the text of a button.
const int buttonMargin = 6;

int lineHeight()
{
    const QSize panel = QGuiApplication::primaryScreen()->availableSize();
    const int least = panel.height() < FilarixPanel::smallBelow ? smallLinePixels : linePixels;
    return qMax(least, Measures::pixels(Measures::touchMm));
}

} // namespace

QString PathPicker::pick(const QString &title, const QString &folder)
{
    QScopedPointer<FileDialog> dialog;
    {
        const SurfaceLoan tall(linesInHeight * lineHeight());
        dialog.reset(new FileDialog(QDir::AllEntries | QDir::NoDotAndDotDot, title,
                                    folder + QLatin1Char('/'), nullptr, Qt::WindowTitleHint));
    }
    // The dialog's own width for its label is made for smaller letters.
    const QList<QLabel *> labels = dialog->findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (label->maximumWidth() < label->sizeHint().width())
            label->setFixedWidth(label->sizeHint().width());
    }
    const QList<QPushButton *> buttons = dialog->findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        const int text = button->fontMetrics().horizontalAdvance(button->text());
        button->setFixedWidth(
            qMax(qMax(button->maximumWidth(), lineHeight()), text + 2 * buttonMargin));
    }
    return dialog->exec() == QDialog::Accepted ? FileDialog::m_returnStr : QString();
}
