// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FILARIX_COMBOBOX_H
#define FILARIX_COMBOBOX_H

#include "filarixglobal.h"

#include <QComboBox>

/// A combo box for panels with few keys: Return and Enter open its list, F4 does not, and the focus
/// comes back to the control when the list closes.
///
/// Otherwise a QComboBox, owned by its parent.
///
///     ComboBox *axis = new ComboBox(this, false);
///     axis->addItems(QStringList() << "X" << "Y" << "Z");
///     connect(axis, SIGNAL(currentIndexChanged(int)), this, SLOT(setAxis(int)));
class FILARIX_EXPORT ComboBox : public QComboBox
{
    Q_OBJECT

public:
    /// An \a editable combo box gets a LineEdit as its field; Return does not open its list.
    explicit ComboBox(QWidget *parent, bool editable = false);

    /// Opens the list and emits showPop().
    void showPopup() override;
    /// Closes the list and takes the focus back.
    void hidePopup() override;

Q_SIGNALS:
    /// The list has been opened.
    void showPop();

protected:
    /// Each Return press at the control flips a flag and opens the list only when that sets it. The
    /// press that closes an open list goes to the list. So the next press at the control only
    /// clears the flag, and the one after that opens the list again.
    void keyPressEvent(QKeyEvent *event) override;
    /// Return and Enter as Space; other keys as they are.
    void keyReleaseEvent(QKeyEvent *event) override;

private:
    bool popupToggle;
};

#endif // FILARIX_COMBOBOX_H
