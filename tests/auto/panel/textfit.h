// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef TEXTFIT_H
#define TEXTFIT_H

#include <QHash>
#include <QList>
#include <QRect>
#include <QStringList>
#include <QTranslator>

class QLabel;
class QWidget;

/// What an operator could not read or press of all that stands on a screen.
class TextFit
{
public:
    /// All windows that are visible, on a screen of this rectangle: texts that are wider or higher
    /// than their widgets, widgets beyond their parents or over their neighbours, and keys too
    /// small for a thumb. One line each.
    static QStringList faults(const QRect &screen);

    /// Lines that the text of \a label takes in its width, be they cut or not.
    static int linesOf(const QLabel *label);
    /// Hints, questions and messages that are visible and take more than two lines. One line each.
    static QStringList longTexts();

    /// What is let pass although it doesn't fit, with the reason: "class or name: reason".
    static QStringList exceptions();
};

/// Translates each text by the longest of its translations.
class LongestTranslator : public QTranslator
{
    Q_OBJECT

public:
    /// \a folder holds the project's translations; those of the toolkit are found by themselves.
    explicit LongestTranslator(const QString &folder, QObject *parent = nullptr);

    /// Whether every translation was found.
    bool isComplete() const { return m_isComplete; }

    QString translate(const char *context, const char *source, const char *disambiguation,
                      int n) const override;
    bool isEmpty() const override { return false; }

private:
    QList<QTranslator *> m_translators;
    mutable QHash<QByteArray, QString> m_known;
    bool m_isComplete = true;
};

#endif // TEXTFIT_H
