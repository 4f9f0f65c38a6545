// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "marktranslator.h"

#include <QCoreApplication>

MarkTranslator::MarkTranslator(const QString &mark) : m_mark(mark)
{
    QCoreApplication::installTranslator(this);
}

MarkTranslator::~MarkTranslator()
{
    QCoreApplication::removeTranslator(this);
}

QStringList MarkTranslator::asked(const char *context) const
{
    const QString prefix = QLatin1String(context) + QLatin1Char('|');
    QStringList texts;
    Q_FOREACH (const QString &entry, m_asked) {
        if (entry.startsWith(prefix))
            texts << entry.mid(prefix.size());
    }
    return texts;
}

void MarkTranslator::forget()
{
    m_asked.clear();
}

bool MarkTranslator::isEmpty() const
{
    return false;
}

#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
QString MarkTranslator::translate(const char *context, const char *sourceText, const char *,
                                  int) const
#else
QString MarkTranslator::translate(const char *context, const char *sourceText, const char *) const
#endif
{
    return note(context, sourceText);
}

QString MarkTranslator::note(const char *context, const char *sourceText) const
{
    m_asked << QLatin1String(context) + QLatin1Char('|') + QString::fromUtf8(sourceText);
    return m_mark + QString::fromUtf8(sourceText);
}
