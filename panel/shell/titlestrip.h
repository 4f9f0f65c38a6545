// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef TITLESTRIP_H
#define TITLESTRIP_H

#include <QWidget>

class ElidedLabel;
class QDialog;

/// The title of a dialog where no window manager shows one. A strip in the panel's look stands
/// above what the dialog holds, with a key that closes the dialog.
///
/// The dialog grows by the strip, so that its inside stays as it is. A heading of its own with the
/// same words gives way. A message box and a progress dialog have no key there: what closes them is
/// an answer. Nor has a low panel, where each dialog's own key has to do.
///
///     TitleStrip::putOn(dialog); // each time before it is shown
class TitleStrip : public QWidget
{
    Q_OBJECT

public:
    /// Does nothing for what has no title, as a keypad, nor for a picker of programs: they have a
    /// heading of their own.
    static void putOn(QDialog *dialog);
    /// Pixels that a strip takes from the height of the panel; none where a window manager is.
    static int room();

    QString title() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    explicit TitleStrip(QDialog *dialog);
    void addCloseKey(QDialog *dialog);
    void placeAbove(QDialog *dialog);

    ElidedLabel *m_title;
};

#endif // TITLESTRIP_H
