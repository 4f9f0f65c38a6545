// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef TESTCOMPAT_H
#define TESTCOMPAT_H

// What QtTest of Qt 4.8 lacks of Qt 5.15's.

#include <QCoreApplication>
#include <QHeaderView>
#include <QMetaMethod>
#include <QPixmap>
#include <QTest>
#include <QTranslator>
#include <QWidget>

#ifndef QTRY_VERIFY_WITH_TIMEOUT
#define QTRY_VERIFY_WITH_TIMEOUT(expression, timeout)                                              \
    do {                                                                                           \
        for (int waited = 0; !(expression) && waited < (timeout); waited += 10)                    \
            QTest::qWait(10);                                                                      \
        QVERIFY(expression);                                                                       \
    } while (0)
#define QTRY_VERIFY(expression) QTRY_VERIFY_WITH_TIMEOUT(expression, 5000)
#endif

#ifndef QTRY_COMPARE_WITH_TIMEOUT
#define QTRY_COMPARE_WITH_TIMEOUT(expression, expected, timeout)                                   \
    do {                                                                                           \
        for (int waited = 0; !((expression) == (expected)) && waited < (timeout); waited += 10)    \
            QTest::qWait(10);                                                                      \
        QCOMPARE(expression, expected);                                                            \
    } while (0)
#define QTRY_COMPARE(expression, expected) QTRY_COMPARE_WITH_TIMEOUT(expression, expected, 5000)
#endif

namespace TestCompat {

inline QPixmap grab(QWidget *widget)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    return widget->grab();
#else
    return QPixmap::grabWidget(widget);
#endif
}

inline QHeaderView::ResizeMode sectionResizeMode(const QHeaderView *header, int section)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    return header->sectionResizeMode(section);
#else
    return header->resizeMode(section);
#endif
}

inline QString signature(const QMetaMethod &method)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    return QLatin1String(method.methodSignature());
#else
    return QLatin1String(method.signature());
#endif
}

inline bool waitForExposed(QWidget *widget)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    return QTest::qWaitForWindowExposed(widget);
#else
    return QTest::qWaitForWindowShown(widget);
#endif
}

/// While it lives, "text" of one context reads "text*".
class MarkingTranslator : public QTranslator
{
public:
    explicit MarkingTranslator(const char *context) : m_context(context)
    {
        QCoreApplication::installTranslator(this);
    }
    ~MarkingTranslator() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    QString translate(const char *context, const char *text, const char *, int) const override
#else
    QString translate(const char *context, const char *text, const char *) const override
#endif
    {
        if (m_context != context)
            return QString();
        return QString::fromUtf8(text) + QLatin1Char('*');
    }

private:
    QByteArray m_context;
};

/// Qt 5 leaves a field that a spin box was given empty until the value changes or the box is shown.
inline bool givenFieldStartsEmpty()
{
    return QT_VERSION >= QT_VERSION_CHECK(5, 0, 0);
}

} // namespace TestCompat

#endif // TESTCOMPAT_H
