// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Holds PanelProgram while it starts: whether what an operator has seen once stays where it was.

#include "filarixtest.h"
#include "look/look.h"
#include "look/measures.h"
#include "panelprogram.h"
#include "screens/connectionsscreen.h"
#include "screens/programreview.h"
#include "screens/teachscreen.h"
#include "screens/variablesscreen.h"
#include "shell/panelwindow.h"
#include "shell/statusstrip.h"

#include <QHash>
#include <QPointer>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>

/// Looks at a window each time that something of it is painted.
class FrameWatch : public QObject
{
    Q_OBJECT

public:
    FrameWatch() { qApp->installEventFilter(this); }

    int frames() const { return m_frames; }
    /// What was painted in one place and then in another. One line each.
    QStringList moved() const { return m_moved; }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        QWidget *widget = qobject_cast<QWidget *>(watched);
        if (widget && event->type() == QEvent::Paint && widget->window()->inherits("PanelWindow"))
            look(widget);
        return false;
    }

private:
    struct Place
    {
        QPointer<QWidget> widget;
        QRect rect;
    };

    /// Of all that is seen by now.
    void look(QWidget *painted)
    {
        ++m_frames;
        compare(painted);
        for (QWidget *widget : painted->window()->findChildren<QWidget *>())
            if (m_places.contains(widget))
                compare(widget);
    }

    void compare(QWidget *widget)
    {
        const bool isSeen = widget->isVisible() && !widget->visibleRegion().isEmpty();
        if (!isSeen)
            return;
        const QRect rect(widget->mapTo(widget->window(), QPoint()), widget->size());
        Place &place = m_places[widget];
        if (place.widget && place.rect != rect)
            m_moved.append(described(widget, place.rect, rect));
        place.widget = widget;
        place.rect = rect;
    }

    static QString described(const QWidget *widget, const QRect &from, const QRect &to)
    {
        QString text;
        QDebug(&text) << widget->metaObject()->className() << widget->objectName()
                      << widget->property("text").toString() << "from" << from << "to" << to;
        return text;
    }

    QHash<QWidget *, Place> m_places;
    QStringList m_moved;
    int m_frames = 0;
};

/// Of one start: the window alone has more widgets.
const int leastFrames = 10;

class TestStartFrames : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void whatMovesIsFound();
    void nothingMovesOnceItIsSeen_data();
    void nothingMovesOnceItIsSeen();
};

void TestStartFrames::initTestCase()
{
    PanelProgram::setUpStyle();
}

void TestStartFrames::cleanup()
{
    Look::use(Look::Light);
    Measures::useTextSize(100);
    const QWidgetList topLevels = QApplication::topLevelWidgets();
    for (QWidget *widget : topLevels) {
        // The program window leaves the buttons that no bar takes to nobody.
        if (qobject_cast<QToolButton *>(widget))
            delete widget;
    }
    FilarixTest::cleanup();
}

void TestStartFrames::whatMovesIsFound()
{
    PanelWindow panel(QSize(800, 480));
    FrameWatch watch;
    panel.show();
    QTRY_VERIFY(watch.frames() > 0);
    QCOMPARE(watch.moved(), QStringList());
    QWidget *clock = panel.findChild<QWidget *>("clock");
    clock->setMinimumWidth(clock->width() + 30);
    QTRY_VERIFY(!watch.moved().isEmpty());
    QVERIFY2(watch.moved().join('\n').contains("\"clock\""), qPrintable(watch.moved().join('\n')));
}

void TestStartFrames::nothingMovesOnceItIsSeen_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QByteArray>("settings");
    const struct
    {
        const char *name;
        const char *settings;
    } kinds[] = {
        {"a first start", ""},
        {"chosen", "[General]\nlanguage=de\nlook=dark\ntextsize=150\nsounds=on\n"},
    };
    for (const QSize &size : {QSize(480, 272), QSize(272, 480), QSize(480, 800), QSize(800, 480),
                              QSize(1024, 600), QSize(1280, 800)}) {
        for (const auto &kind : kinds)
            QTest::addRow("%dx%d %s", size.width(), size.height(), kind.name)
                << size << QByteArray(kind.settings);
    }
}

void TestStartFrames::nothingMovesOnceItIsSeen()
{
    QFETCH(QSize, size);
    QFETCH(QByteArray, settings);
    if (!settings.isEmpty())
        writeFile(home() + "/hmi/panel.ini", settings);
    Options options;
    options.size = size;
    options.rotation = size.width() < size.height() ? 90 : 0;
    FrameWatch watch;
    PanelProgram program(options, QStringList(QLatin1String(FILARIX_TRANSLATIONS)));
    QCOMPARE(program.start(), PanelProgram::Started);
    // Until all has come that the start asks for.
    const bool isComplete = TestCompat::waitFor(
        [&] {
            return !program.teachScreen()->isLoading() && !program.variablesScreen()->isLoading()
                   && !program.connectionsScreen()->isBusy()
                   && program.programReview()->state() == ProgramReview::Checked
                   && program.window()->status()->plc() == StatusStrip::PlcReady
                   && watch.frames() > leastFrames;
        },
        patience(20000));
    QVERIFY(isComplete);
    program.window()->repaint();
    for (const QString &moved : watch.moved())
        qDebug("%s", qPrintable(moved));
    QCOMPARE(watch.moved().size(), 0);
}

FILARIX_TEST_MAIN(TestStartFrames)
#include "tst_startframes.moc"
