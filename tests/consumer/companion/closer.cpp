// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Linked into an example: takes the operator's place, waits for a window and closes it, as often as
// it takes until the program ends. The end of a program that never shows a window is a crash.

#include <QApplication>
#include <QWidget>

#include <cstdlib>

namespace {

const int patience = 50; // milliseconds between two looks

class Closer : public QObject
{
public:
    ~Closer() override
    {
        if (!m_isShown)
            std::abort();
    }

protected:
    // The first event comes when the program serves events.
    void customEvent(QEvent *) override
    {
        setParent(QCoreApplication::instance());
        startTimer(patience);
    }
    void timerEvent(QTimerEvent *) override
    {
        Q_FOREACH (const QWidget *window, QApplication::topLevelWidgets())
            m_isShown = m_isShown || window->isVisible();
        if (m_isShown)
            QApplication::closeAllWindows();
    }

private:
    bool m_isShown = false;
};

// Qt 4 asks for a result, and ignores it.
int start()
{
    QCoreApplication::postEvent(new Closer, new QEvent(QEvent::User));
    return 0;
}

} // namespace

Q_CONSTRUCTOR_FUNCTION(start)
