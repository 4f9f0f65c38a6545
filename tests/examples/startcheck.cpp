// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Linked into the examples of this tree. With FILARIX_START_CHECK set it takes the operator's
// place: it waits for a window, looks whether something is painted on it, and closes windows until
// the program ends by itself. A warning of the toolkit, or a blank window, ends the program with 1.
// A FILARIX_START_CHECK that holds a "/" is the path that the picture goes to.

#include <QApplication>
#include <QPixmap>
#include <QSet>
#include <QTimer>
#include <QWidget>

#include <cstdio>
#include <cstdlib>

namespace {

const int patience = 50; // milliseconds between two looks
const int fewestColours = 12;

void fail(const QByteArray &reason)
{
    std::fprintf(stderr, "start check: %s\n", reason.constData());
    std::_Exit(1);
}

void handler(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    const bool isNoiseOfThePlatform = text.contains(QLatin1String("This plugin does not support"));
    if (type != QtDebugMsg && type != QtInfoMsg && !isNoiseOfThePlatform)
        fail(text.toLocal8Bit());
}

class StartCheck : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void look()
    {
        QWidget *window = QApplication::activeWindow();
        if (!m_looked && window && window->isVisible()) {
            m_looked = true;
            lookAt(window->grab());
        }
        if (m_looked)
            QApplication::closeAllWindows();
    }

private:
    static void lookAt(const QPixmap &picture)
    {
        const QString path = QString::fromLocal8Bit(qgetenv("FILARIX_START_CHECK"));
        if (path.contains(QLatin1Char('/')) && !picture.save(path))
            fail("the picture cannot be written");
        const QImage image = picture.toImage().convertToFormat(QImage::Format_RGB32);
        QSet<QRgb> colours;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                colours.insert(image.pixel(x, y));
        if (colours.size() < fewestColours)
            fail("the window is blank");
    }

    bool m_looked = false;
};

void start()
{
    if (!qEnvironmentVariableIsSet("FILARIX_START_CHECK"))
        return;
    qInstallMessageHandler(handler);
    QTimer *timer = new QTimer(qApp);
    StartCheck *check = new StartCheck;
    check->setParent(timer);
    QObject::connect(timer, SIGNAL(timeout()), check, SLOT(look()));
    timer->start(patience);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(start)

#include "startcheck.moc"
