// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef LIVETEXT_H
#define LIVETEXT_H

#include <QObject>
#include <QString>

#include <functional>

class QWidget;

/// A text that follows the language: a widget's property `text`, set at once and again with each
/// change of language.
///
///     new LiveText(label, [] { return tr("Names"); });
///
/// Belongs to the widget. What \a text refers to must live as long.
class LiveText : public QObject
{
    Q_OBJECT

public:
    LiveText(QWidget *widget, const std::function<QString()> &text);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    std::function<QString()> m_text;
};

#endif // LIVETEXT_H
