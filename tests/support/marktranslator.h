// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef MARKTRANSLATOR_H
#define MARKTRANSLATOR_H

#include <QString>
#include <QStringList>
#include <QTranslator>

/// Translates every text by putting a mark before it, and remembers what it was asked for: so a
/// test sees which texts go through translation, in which context, and which stay plain.
///
/// Installed as long as it lives. Making and destroying it tells all widgets of a new
/// language, by posted events.
class MarkTranslator : public QTranslator
{
public:
    explicit MarkTranslator(const QString &mark);
    ~MarkTranslator() override;

    /// The source texts asked for in \a context, in order.
    QStringList asked(const char *context) const;
    void forget();

    bool isEmpty() const override;
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    QString translate(const char *context, const char *sourceText, const char *disambiguation,
                      int n) const override;
#else
    QString translate(const char *context, const char *sourceText,
                      const char *disambiguation) const override;
#endif

private:
    QString note(const char *context, const char *sourceText) const;

    QString m_mark;
    mutable QStringList m_asked;
};

#endif // MARKTRANSLATOR_H
