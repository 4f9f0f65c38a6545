// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "base/hostcompat.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTextCodec>
#include <QUuid>
#include <QWidget>
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
#include <QWindow>
#endif

#include <ctime>

namespace {

/// One call that is still to come. Goes with its context, and then takes the call along.
class LaterCall : public QObject
{
public:
    LaterCall(QObject *context, const std::function<void()> &function)
        : QObject(context), m_function(function)
    {}

protected:
    void customEvent(QEvent *) override { run(); }
    void timerEvent(QTimerEvent *event) override
    {
        killTimer(event->timerId());
        run();
    }

private:
    // The function may end the context, and this object with it.
    void run()
    {
        const std::function<void()> function = m_function;
        deleteLater();
        function();
    }

    const std::function<void()> m_function;
};

} // namespace

void HostCompat::callLater(QObject *context, const std::function<void()> &function)
{
    QCoreApplication::postEvent(new LaterCall(context, function), new QEvent(QEvent::User));
}

void HostCompat::callAfter(int ms, QObject *context, const std::function<void()> &function)
{
    (new LaterCall(context, function))->startTimer(ms);
}

void HostCompat::sleep(int ms)
{
    const int msPerSecond = 1000;
    const long nsPerMs = 1000000;
    struct timespec time = {};
    time.tv_sec = ms / msPerSecond;
    time.tv_nsec = ms % msPerSecond * nsPerMs;
    ::nanosleep(&time, nullptr);
}

QString HostCompat::uniqueName()
{
    return QString::fromLatin1(QUuid::createUuid().toRfc4122().toHex());
}

bool HostCompat::fromUtf8(const QByteArray &bytes, QString *text)
{
    QTextCodec::ConverterState state;
    *text = QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    if (state.invalidChars == 0 && state.remainingChars == 0 && !text->contains(QChar::Null))
        return true;
    text->clear();
    return false;
}

bool HostCompat::isWellFormed(const QString &text)
{
    for (int i = 0; i < text.size(); ++i) {
        const bool isWide = text.at(i).isHighSurrogate();
        if (text.at(i).isLowSurrogate()
            || (isWide && !(i + 1 < text.size() && text.at(i + 1).isLowSurrogate())))
            return false;
        i += isWide;
    }
    return true;
}

void HostCompat::keepBefore(QWidget *window, const QWidget *host)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    if (window->windowHandle())
        window->windowHandle()->setTransientParent(host->windowHandle());
#else
    Q_UNUSED(window);
    Q_UNUSED(host);
#endif
}
