// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/pathpicker.h"

#include "display/surfaceloan.h"
#include "filedialog.h"

#include <QLabel>
#include <QScopedPointer>

namespace {

// A line and a button of the browser are a twenty-fourth of it, 34 pixels.
const int tallForLines = 24 * 34;

} // namespace

QString PathPicker::pick(const QString &title, const QString &folder)
{
    QScopedPointer<FileDialog> dialog;
    {
        const SurfaceLoan tall(tallForLines);
        dialog.reset(new FileDialog(QDir::AllEntries | QDir::NoDotAndDotDot, title,
                                    folder + QLatin1Char('/'), nullptr, Qt::WindowTitleHint));
    }
    // The dialog's own width for its label is made for smaller letters.
    const QList<QLabel *> labels = dialog->findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (label->maximumWidth() < label->sizeHint().width())
            label->setFixedWidth(label->sizeHint().width());
    }
    return dialog->exec() == QDialog::Accepted ? FileDialog::m_returnStr : QString();
}
