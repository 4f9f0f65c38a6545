// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef LANGUAGEPICKER_H
#define LANGUAGEPICKER_H

#include "dialog.h"
#include "shell/languages.h"

class QPushButton;

/// Asks for a language: a key each, with the language's name in itself, so that whoever cannot
/// read the others finds the own one. Other keys ask for a size of the texts, and for the other
/// look, light or dark.
class LanguagePicker : public Dialog
{
    Q_OBJECT

public:
    /// \a current is the code of the key that is marked.
    explicit LanguagePicker(const QString &current, QWidget *parent = nullptr);

    /// The code of the chosen language; empty until a key was pressed.
    QString code() const { return m_code; }

Q_SIGNALS:
    /// The operator wants the colours that are not in use; the dialog is closing.
    void lookWanted();
    /// The operator wants texts of that size; the dialog is closing.
    void textSizeWanted(int percent);

private:
    static QPushButton *makeKey(const QString &name, const QString &text);
    QLayout *makeLanguages(const QString &current);
    QLayout *makeTextSizes();

    QString m_code;
};

#endif // LANGUAGEPICKER_H
