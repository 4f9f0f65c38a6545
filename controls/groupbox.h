// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FILARIX_GROUPBOX_H
#define FILARIX_GROUPBOX_H

#include "filarixglobal.h"

#include <QGroupBox>

/// A group box for panels with few keys: Return and Enter toggle a checkable one as Space does.
///
/// Otherwise a QGroupBox, owned by its parent.
///
///     GroupBox *options = new GroupBox(tr("Options"), this);
///     options->setCheckable(true);
///     connect(options, SIGNAL(toggled(bool)), this, SLOT(useOptions(bool)));
class FILARIX_EXPORT GroupBox : public QGroupBox
{
    Q_OBJECT

public:
    /// Without a title. \a parent may be null.
    explicit GroupBox(QWidget *parent);
    /// With \a title in its frame.
    GroupBox(const QString &title, QWidget *parent);

protected:
    /// Unlike on the buttons, each repeat of a held Return counts as one more Space.
    bool event(QEvent *event) override;
};

#endif // FILARIX_GROUPBOX_H
