// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PANELKEY_H
#define PANELKEY_H

#include "look/glyphs.h"

#include <QToolButton>

#include <functional>

/// A key of the host: a glyph over a short word, never smaller than a thumb needs.
class PanelKey : public QToolButton
{
    Q_OBJECT

public:
    PanelKey(const QIcon &icon, const QString &text, QWidget *parent = nullptr);
    /// A key whose text follows the language; see LiveText.
    PanelKey(const QIcon &icon, const std::function<QString()> &text, QWidget *parent = nullptr);
    /// A key without a picture.
    explicit PanelKey(const QString &text, QWidget *parent = nullptr);

    /// At least so wide, and as wide as its text asks for; minimumWidth() would cut that.
    void setLeastWidth(int width);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    int m_letterHeight = 0;
    int m_leastWidth = 0;
};

#endif // PANELKEY_H
