// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef SETTINGSPAGE_H
#define SETTINGSPAGE_H

#include <QFrame>

#include <functional>

class QVBoxLayout;

/// One section of the settings: a heading, what belongs to it, and a word of explanation. What it
/// says follows the language.
class SettingsPage : public QFrame
{
    Q_OBJECT

public:
    typedef std::function<QString()> Text;

    /// \a name tells it from the others, in the names of its keys, too.
    SettingsPage(const QString &name, const Text &heading, QWidget *parent = nullptr);

    /// In the language of this moment.
    QString heading() const { return m_heading(); }
    /// Below all else. Without one, or with an empty text, there is none.
    void setHint(const Text &hint);

protected:
    /// Where a kind of page puts its own.
    QVBoxLayout *content() const { return m_content; }

private:
    const Text m_heading;
    QVBoxLayout *m_content;
};

#endif // SETTINGSPAGE_H
