// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef TESTCOMPAT_H
#define TESTCOMPAT_H

// What QtTest of Qt 4.8 lacks of Qt 5.15's, and what either does otherwise than a test wants.

#include <QAccessible>
#include <QApplication>
#include <QDesktopWidget>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QHeaderView>
#include <QLineEdit>
#if QT_VERSION < QT_VERSION_CHECK(5, 0, 0)
#include <QInputContext>
#endif
#include <QMetaMethod>
#include <QPixmap>
#include <QStringList>
#include <QStyle>
#include <QTest>
#include <QTextCodec>
#include <QTimer>
#include <QTranslator>
#include <QVector>
#include <QWheelEvent>
#include <QWidget>
#if defined(Q_WS_QWS)
#include <QWSServer>
#endif
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
#include <QScreen>
#endif

// The toolkits' own look every 50 milliseconds, or sleep between their looks, while events come
// that what is waited for needs.
#undef QTRY_VERIFY
#undef QTRY_VERIFY_WITH_TIMEOUT
#define QTRY_VERIFY_WITH_TIMEOUT(expression, timeout)                                              \
    do {                                                                                           \
        for (int waited = 0; !(expression) && waited < (timeout); waited += 5)                     \
            TestCompat::runEvents(5);                                                              \
        QVERIFY(expression);                                                                       \
    } while (0)
#define QTRY_VERIFY(expression) QTRY_VERIFY_WITH_TIMEOUT(expression, 5000)

#undef QTRY_VERIFY2
#undef QTRY_VERIFY2_WITH_TIMEOUT
#define QTRY_VERIFY2_WITH_TIMEOUT(expression, description, timeout)                                \
    do {                                                                                           \
        for (int waited = 0; !(expression) && waited < (timeout); waited += 5)                     \
            TestCompat::runEvents(5);                                                              \
        QVERIFY2(expression, description);                                                         \
    } while (0)
#define QTRY_VERIFY2(expression, description)                                                      \
    QTRY_VERIFY2_WITH_TIMEOUT(expression, description, 5000)

#undef QTRY_COMPARE
#undef QTRY_COMPARE_WITH_TIMEOUT
#define QTRY_COMPARE_WITH_TIMEOUT(expression, expected, timeout)                                   \
    do {                                                                                           \
        for (int waited = 0; !((expression) == (expected)) && waited < (timeout); waited += 5)     \
            TestCompat::runEvents(5);                                                              \
        QCOMPARE(expression, expected);                                                            \
    } while (0)
#define QTRY_COMPARE(expression, expected) QTRY_COMPARE_WITH_TIMEOUT(expression, expected, 5000)

#if QT_VERSION < QT_VERSION_CHECK(5, 0, 0)
Q_DECLARE_METATYPE(QList<QStringList>)
Q_DECLARE_METATYPE(QVector<int>)

// QCOMPARE of two types that are one to Qt 5.
namespace QTest {

inline bool qCompare(const QList<QString> &actual, const QStringList &expected,
                     const char *actualText, const char *expectedText, const char *file, int line)
{
    return qCompare(QStringList(actual), expected, actualText, expectedText, file, line);
}

inline bool qCompare(const QStringList &actual, const QList<QString> &expected,
                     const char *actualText, const char *expectedText, const char *file, int line)
{
    return qCompare(actual, QStringList(expected), actualText, expectedText, file, line);
}

inline bool qCompare(const bool &actual, const QBool &expected, const char *actualText,
                     const char *expectedText, const char *file, int line)
{
    return qCompare(actual, bool(expected), actualText, expectedText, file, line);
}

inline bool qCompare(const QBool &actual, const bool &expected, const char *actualText,
                     const char *expectedText, const char *file, int line)
{
    return qCompare(bool(actual), expected, actualText, expectedText, file, line);
}

} // namespace QTest
#endif

namespace TestCompat {

/// Handles events for so many milliseconds, each as soon as it comes. No loop of its own, which
/// would end at once behind a program that has quit.
inline void runEvents(int milliseconds)
{
    QElapsedTimer since;
    since.start();
    QTimer wake;
    wake.start(milliseconds);
    while (since.elapsed() < milliseconds)
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// Whether the condition is met within so many milliseconds.
template<class Condition>
bool waitFor(Condition isMet, int timeout = 5000)
{
    for (int waited = 0; !isMet() && waited < timeout; waited += 5)
        runEvents(5);
    return isMet();
}

} // namespace TestCompat

#if QT_VERSION < QT_VERSION_CHECK(5, 10, 0)
namespace QTest {

template<class Condition>
bool qWaitFor(Condition isMet, int timeout = 5000)
{
    return TestCompat::waitFor(isMet, timeout);
}

} // namespace QTest
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

/// To be called before the first window is shown. A display that VNC shows stays unpainted until
/// somebody looks at it, which nobody does here; a screen of a panel's own is always painted.
inline void paintWithoutViewers()
{
#if defined(Q_WS_QWS)
    QWSServer::instance()->enablePainting(true);
#endif
}

/// What is to be seen of a window by now, whatever it has still to paint.
inline QImage onTheScreen(const QWidget *window)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    return QApplication::primaryScreen()->grabWindow(window->winId()).toImage();
#else
    return QPixmap::grabWindow(window->winId()).toImage();
#endif
}

/// The same of the whole screen.
inline QImage screen()
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    return QApplication::primaryScreen()->grabWindow(0).toImage();
#else
    return QPixmap::grabWindow(QApplication::desktop()->winId()).toImage();
#endif
}

/// Turns the wheel over the middle of \a widget, a notch of 120 away from the user if positive.
inline void turnWheel(QWidget *widget, int delta)
{
    const QPoint middle = widget->rect().center();
#if QT_VERSION >= QT_VERSION_CHECK(5, 12, 0)
    QWheelEvent event(middle, widget->mapToGlobal(middle), QPoint(), QPoint(0, delta), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
#else
    QWheelEvent event(middle, widget->mapToGlobal(middle), delta, Qt::NoButton, Qt::NoModifier);
#endif
    QApplication::sendEvent(widget, &event);
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
    // Without a place on the screen Qt for Embedded Linux paints nothing, and its own way of
    // waiting is a fixed time.
    for (int waited = 0; !widget->testAttribute(Qt::WA_Mapped) && waited < 5000; waited += 10)
        QTest::qWait(10);
    return QTest::qWaitForWindowShown(widget) && widget->testAttribute(Qt::WA_Mapped);
#endif
}

/// Plastique, the style that Qt for Embedded Linux starts with, makes scroll bars as wide as it
/// likes; other styles go by a style sheet.
inline bool sheetsSizeScrollBars(const QStyle *style)
{
    return !style->inherits("QPlastiqueStyle");
}

/// Qt 4 warns when a window without "[*]" in its title is marked as changed.
inline bool warnsOfUnmarkedTitles()
{
    return QT_VERSION < QT_VERSION_CHECK(5, 0, 0);
}

/// Qt 4's combo box takes every release of a key for itself; Qt 5's hands what it has no use for
/// on.
inline bool comboBoxTakesReleases()
{
    return QT_VERSION < QT_VERSION_CHECK(5, 0, 0);
}

/// What a byte that means nothing to the locale's codec becomes: a sign of its own, but nothing
/// where Qt 4 asks the C library.
inline QByteArray signOfAStrayByte()
{
    const bool asksTheLibrary =
        QT_VERSION < QT_VERSION_CHECK(5, 0, 0) && QTextCodec::codecForLocale()->name() == "System";
    return asksTheLibrary ? QByteArray() : QByteArray("\xef\xbf\xbd");
}

/// The folder of the settings below the home.
inline QString settingsFolder()
{
#if defined(Q_WS_QWS)
    return QLatin1String("/Settings");
#else
    return QLatin1String("/.config");
#endif
}

/// Qt 4 takes a time for one line that grows with the square of its length: the tests' lines are
/// divided by this there.
inline int longLineDivisor()
{
    return QT_VERSION >= QT_VERSION_CHECK(5, 0, 0) ? 1 : 20;
}

/// To be called once, before memory is measured. The input context that Qt 4 has on X11 keeps some
/// of each window with a field of text for as long as the program runs, a bare one of the toolkit's
/// too.
inline void keepNoInputContexts()
{
#if QT_VERSION < QT_VERSION_CHECK(5, 0, 0)
    class NoInputContext : public QInputContext
    {
    public:
        QString identifierName() override { return QString(); }
        QString language() override { return QString(); }
        void reset() override {}
        bool isComposing() const override { return false; }
    };
    qApp->setInputContext(new NoInputContext);
#endif
}

/// Has QString::toAscii() write UTF-8, as many hosts of Qt 4 do, or Latin-1 again. Qt 5 has no
/// choice: false.
inline bool setUtf8ForCStrings(bool on)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    Q_UNUSED(on);
    return false;
#else
    QTextCodec::setCodecForCStrings(on ? QTextCodec::codecForName("UTF-8") : nullptr);
    return true;
#endif
}

/// Qt 4 lists a setting whose name holds a byte beyond ASCII, but finds it only once it was written
/// anew.
inline bool findsSettingsBeyondAscii()
{
    return QT_VERSION >= QT_VERSION_CHECK(5, 0, 0);
}

/// Qt 4 writes a file of settings in its place; Qt 5 writes another beside it and renames that.
inline bool settingsAreWrittenInPlace()
{
    return QT_VERSION < QT_VERSION_CHECK(5, 0, 0);
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

/// What accessibility tools learn of a widget.
inline QAccessible::Role accessibleRole(QWidget *widget)
{
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(widget);
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    return interface->role();
#else
    const QAccessible::Role role = interface->role(0);
    delete interface;
    return role;
#endif
}

inline QString accessibleText(QWidget *widget, QAccessible::Text text)
{
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(widget);
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    return interface->text(text);
#else
    const QString found = interface->text(text, 0);
    delete interface;
    return found;
#endif
}

/// Qt 4 asks a plugin of its own for the roles of its widgets, which few of its builds bring.
inline bool widgetsHaveRoles()
{
    QLineEdit edit;
    return accessibleRole(&edit) == QAccessible::EditableText;
}

/// Qt 5 leaves a field that a spin box was given empty until the value changes or the box is shown.
inline bool givenFieldStartsEmpty()
{
    return QT_VERSION >= QT_VERSION_CHECK(5, 0, 0);
}

} // namespace TestCompat

#endif // TESTCOMPAT_H
