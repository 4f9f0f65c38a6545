// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Linked into the examples of this tree. With FILARIX_START_CHECK set it takes the operator's
// place: it waits for a window, looks whether something is painted on it, and closes windows until
// the program ends by itself. A warning of the toolkit, or a blank window, ends the program with 1.
// A FILARIX_START_CHECK that holds a "/" is the path that the picture goes to.

#include "strictmessages.h"
#include "testcompat.h"

#include <QApplication>
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

class StartCheck : public QObject
{
    Q_OBJECT

public:
    ~StartCheck() override
    {
        if (!m_looked)
            fail("there was no window");
        const QStringList warnings = StrictMessages::unexpected();
        if (!warnings.isEmpty())
            fail(warnings.join(QLatin1String(" | ")).toLocal8Bit());
    }

public Q_SLOTS:
    /// The first event that the program serves: by now there is an application.
    void begin()
    {
        setParent(qApp);
        TestCompat::paintWithoutViewers();
        QTimer *timer = new QTimer(this);
        connect(timer, SIGNAL(timeout()), SLOT(look()));
        timer->start(patience);
    }

    void look()
    {
        QWidget *window = shownWindow();
        if (!m_looked && window) {
            m_looked = true;
            lookAt(TestCompat::grab(window));
        }
        if (m_looked)
            QApplication::closeAllWindows();
    }

private:
    // None need be active: that is up to a window manager.
    static QWidget *shownWindow()
    {
        Q_FOREACH (QWidget *widget, QApplication::topLevelWidgets()) {
            if (widget->isVisible() && widget->windowType() != Qt::Desktop)
                return widget;
        }
        return nullptr;
    }

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

// Qt 4 asks for a result, and ignores it.
int start()
{
    if (qgetenv("FILARIX_START_CHECK").isEmpty())
        return 0;
    StrictMessages::install();
    QMetaObject::invokeMethod(new StartCheck, "begin", Qt::QueuedConnection);
    return 0;
}

} // namespace

Q_CONSTRUCTOR_FUNCTION(start)

#include "startcheck.moc"
