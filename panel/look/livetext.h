// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef LIVETEXT_H
#define LIVETEXT_H

#include <QObject>
#include <QString>

#include <functional>

class QWidget;

/// A text that follows the language: a property of a widget, set at once and again with each change
/// of language.
///
///     new LiveText(label, [] { return tr("Names"); });
///     new LiveText(key, &PageKeys::backName, "accessibleName");
///
/// Belongs to the widget. What \a text refers to must live as long.
class LiveText : public QObject
{
    Q_OBJECT

public:
    /// \a property has to be one of \a widget's own, and a name that lasts.
    LiveText(QWidget *widget, const std::function<QString()> &text, const char *property = "text");

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    std::function<QString()> m_text;
    const char *m_property;
};

#endif // LIVETEXT_H
