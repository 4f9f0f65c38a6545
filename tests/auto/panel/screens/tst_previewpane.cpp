// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "look/look.h"
#include "look/panelkey.h"
#include "panelprogram.h"
#include "screens/coilpreview.h"
#include "screens/coilview.h"
#include "screens/previewpane.h"
#include "shell/stateline.h"
#include "somecoil.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSignalSpy>

class TestPreviewPane : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void theCoilIsDrawn();
    void eachViewHasItsPicture();
    void aSmallPanelHasTheFiguresInTheirPlace();
    void theLineAtTheCursorIsMarked();
    void aTouchLeadsToTheLine();
    void theCoilGrowsToTheLine();
    void colourAndTimeAreChosen();
    void zoomKeysAskForAnotherPart();
    void thePictureIsThatOfTheProgramAsItIs();
    void whatCannotBeShownIsSaid();
    void linesThatAreNotKnownLeadThere();
    void bothLooksHaveTheirColours();
    void nothingIsDrawnForAHiddenPane();
    void keysAreLargeEnough_data();
    void keysAreLargeEnough();
    void repaintingTakesNoTime();

private:
    static PanelKey *key(const QWidget &pane, const QString &text);
};

namespace {

/// A pane of a panel of this size, with a program and the samples' machine.
struct Desk
{
    explicit Desk(const QByteArray &text = SomeCoil::program(6, 60),
                  const QSize &size = QSize(800, 480),
                  PreviewPane::Place place = PreviewPane::Alone)
        : preview(editor.document()), pane(&preview, size, place)
    {
        editor.setPlainText(QString::fromLatin1(text));
        preview.setPause(10);
        preview.setProfile(MachineProfile::forSamples());
        pane.resize(size.width(), size.height() - 80);
        pane.show();
    }

    QPlainTextEdit editor;
    CoilPreview preview;
    PreviewPane pane;
};

QString message(const PreviewPane &pane)
{
    const QLabel *label = pane.findChild<QLabel *>("previewMessage");
    return label->isVisible() ? label->text() : QString();
}

bool hasColour(const QImage &image, const QColor &colour)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == colour)
                return true;
        }
    }
    return false;
}

QColor markColour()
{
    return CoilDrawing::lightPalette().colour(CoilDrawing::Mark);
}

} // namespace

// Keys and letters as a panel has them.
void TestPreviewPane::initTestCase()
{
    PanelProgram::setUpStyle();
}

void TestPreviewPane::cleanup()
{
    Look::use(Look::Light);
    FilarixTest::cleanup();
}

PanelKey *TestPreviewPane::key(const QWidget &pane, const QString &text)
{
    for (PanelKey *key : pane.findChildren<PanelKey *>()) {
        if (key->text() == text)
            return key;
    }
    return nullptr;
}

void TestPreviewPane::theCoilIsDrawn()
{
    Desk desk;
    QTRY_VERIFY(desk.pane.isUpToDate());
    const QImage picture = desk.pane.picture()->picture();
    QCOMPARE(picture.size(), desk.pane.picture()->size());
    QVERIFY(hasColour(picture, CoilDrawing::lightPalette().scale.first()));
    QVERIFY(hasColour(picture, CoilDrawing::lightPalette().scale.last()));
    QCOMPARE(message(desk.pane), QString());
    QStringList texts;
    for (const QLabel *label : desk.pane.findChildren<QLabel *>())
        texts.append(label->text());
    QVERIFY(texts.contains("360"));
    QVERIFY(texts.contains("6"));
}

void TestPreviewPane::eachViewHasItsPicture()
{
    Desk desk;
    QTRY_VERIFY(desk.pane.isUpToDate());
    QList<QImage> pictures{desk.pane.picture()->picture()};
    for (const char *name : {"Path", "Curves", "Coil"}) {
        QTest::mouseClick(key(desk.pane, name), Qt::LeftButton);
        QVERIFY(key(desk.pane, name)->isChecked());
        QTRY_VERIFY(desk.pane.isUpToDate());
        QVERIFY(desk.pane.picture()->hasPicture());
        pictures.append(desk.pane.picture()->picture());
    }
    QVERIFY(pictures.at(0) != pictures.at(1));
    QVERIFY(pictures.at(1) != pictures.at(2));
    QCOMPARE(pictures.at(3), pictures.at(0));
}

void TestPreviewPane::aSmallPanelHasTheFiguresInTheirPlace()
{
    Desk small(SomeCoil::program(6, 60), QSize(480, 272));
    QTRY_VERIFY(small.pane.isUpToDate());
    QVERIFY(small.pane.picture()->isVisible());
    QTest::mouseClick(key(small.pane, "Figures"), Qt::LeftButton);
    QVERIFY(!small.pane.picture()->isVisible());
    QVERIFY(!key(small.pane, "Zoom +")->isEnabled());
    QVERIFY(small.pane.isUpToDate());
    QTest::mouseClick(key(small.pane, "Coil"), Qt::LeftButton);
    QVERIFY(small.pane.picture()->isVisible());
    Desk large;
    QVERIFY(!key(large.pane, "Figures"));
}

void TestPreviewPane::theLineAtTheCursorIsMarked()
{
    Desk desk;
    QTRY_VERIFY(desk.pane.isUpToDate());
    QVERIFY(!hasColour(desk.pane.picture()->grab().toImage(), markColour()));
    for (const char *name : {"Coil", "Path", "Curves"}) {
        QTest::mouseClick(key(desk.pane, name), Qt::LeftButton);
        QTRY_VERIFY(desk.pane.isUpToDate());
        desk.pane.setLine(SomeCoil::line(3));
        QVERIFY2(hasColour(desk.pane.picture()->grab().toImage(), markColour()), name);
        // A line that does nothing has no mark.
        desk.pane.setLine(1);
        QVERIFY2(!hasColour(desk.pane.picture()->grab().toImage(), markColour()), name);
    }
}

void TestPreviewPane::aTouchLeadsToTheLine()
{
    Desk desk;
    QTRY_VERIFY(desk.pane.isUpToDate());
    QSignalSpy wanted(&desk.pane, &PreviewPane::lineWanted);
    CoilView *view = desk.pane.picture();
    for (int layer = 0; layer < 6; ++layer) {
        const WindingLayer wound = desk.preview.model().layers().at(layer);
        const QPointF wire((wound.left + wound.right) / 2, wound.diameter / 2);
        QTest::mouseClick(view, Qt::LeftButton, Qt::NoModifier,
                          view->frame().toPicture(wire).toPoint());
        QCOMPARE(wanted.size(), layer + 1);
        QCOMPARE(wanted.last().at(0).toInt(), SomeCoil::line(layer));
    }
    // Beside the coil there is no line.
    const QPointF air(desk.preview.model().layers().first().left + 5,
                      view->frame().world.bottom() - 0.05);
    QTest::mouseClick(view, Qt::LeftButton, Qt::NoModifier, view->frame().toPicture(air).toPoint());
    QCOMPARE(wanted.size(), 6);
}

void TestPreviewPane::theCoilGrowsToTheLine()
{
    Desk desk;
    QTRY_VERIFY(desk.pane.isUpToDate());
    desk.pane.setLine(SomeCoil::line(1));
    QTest::mouseClick(key(desk.pane, "To line"), Qt::LeftButton);
    QTRY_VERIFY(desk.pane.isUpToDate());
    const QColor last = CoilDrawing::lightPalette().scale.last();
    const QRect coil(60, 30, 500, 250);
    QVERIFY(!hasColour(desk.pane.picture()->picture().copy(coil), last));
    desk.pane.setLine(SomeCoil::line(5));
    QVERIFY(!desk.pane.isUpToDate());
    QTRY_VERIFY(desk.pane.isUpToDate());
    QVERIFY(hasColour(desk.pane.picture()->picture().copy(coil), last));
}

void TestPreviewPane::colourAndTimeAreChosen()
{
    Desk desk;
    QTRY_VERIFY(desk.pane.isUpToDate());
    const QImage byLayer = desk.pane.picture()->picture();
    QTest::mouseClick(key(desk.pane, "Tension"), Qt::LeftButton);
    QTRY_VERIFY(desk.pane.isUpToDate());
    QVERIFY(desk.pane.picture()->picture() != byLayer);
    QCOMPARE(desk.pane.scene().colours, CoilScene::ByTension);
    QTest::mouseClick(key(desk.pane, "Path"), Qt::LeftButton);
    QVERIFY(!key(desk.pane, "Tension")->isEnabled());
    QTest::mouseClick(key(desk.pane, "Curves"), Qt::LeftButton);
    QTRY_VERIFY(desk.pane.isUpToDate());
    QCOMPARE(desk.pane.picture()->whole().width(), qreal(360));
    QTest::mouseClick(key(desk.pane, "Time"), Qt::LeftButton);
    QTRY_VERIFY(desk.pane.isUpToDate());
    QVERIFY(
        qAbs(desk.pane.picture()->whole().width() - qreal(desk.preview.model().totals().seconds))
        < 0.01);
    // Each choice is as it was left.
    QTest::mouseClick(key(desk.pane, "Coil"), Qt::LeftButton);
    QVERIFY(key(desk.pane, "Tension")->isChecked());
}

void TestPreviewPane::zoomKeysAskForAnotherPart()
{
    Desk desk;
    QTRY_VERIFY(desk.pane.isUpToDate());
    const qreal width = desk.pane.picture()->world().width();
    QTest::mouseClick(key(desk.pane, "Zoom +"), Qt::LeftButton);
    QVERIFY(desk.pane.picture()->world().width() < width);
    QTRY_VERIFY(desk.pane.isUpToDate());
    QVERIFY(key(desk.pane, "Zoom -")->isEnabled());
    QCOMPARE(desk.pane.scene().world, desk.pane.picture()->world());
    QTest::mouseClick(key(desk.pane, "Fit"), Qt::LeftButton);
    QTRY_VERIFY(desk.pane.isUpToDate());
    QCOMPARE(desk.pane.picture()->world().width(), width);
    QTest::mouseClick(key(desk.pane, "Fit"), Qt::LeftButton);
    QTRY_VERIFY(desk.pane.isUpToDate());
    QVERIFY(desk.pane.picture()->isWhole());
    QVERIFY(!key(desk.pane, "Zoom -")->isEnabled());
}

void TestPreviewPane::thePictureIsThatOfTheProgramAsItIs()
{
    Desk desk;
    QTRY_VERIFY(desk.pane.isUpToDate());
    const QImage before = desk.pane.picture()->picture();
    desk.editor.setPlainText(QString::fromLatin1(SomeCoil::program(9, 60)));
    QVERIFY(!desk.pane.isUpToDate());
    QVERIFY(desk.pane.picture()->hasPicture());
    QTRY_VERIFY(desk.pane.isUpToDate());
    QVERIFY(desk.pane.picture()->picture() != before);
}

void TestPreviewPane::whatCannotBeShownIsSaid()
{
    Desk empty((QByteArray()));
    QTRY_VERIFY(empty.pane.isUpToDate());
    QVERIFY2(message(empty.pane).contains("no program yet"), qPrintable(message(empty.pane)));
    QVERIFY(!key(empty.pane, "Export")->isEnabled());
    QVERIFY(!key(empty.pane, "To line")->isEnabled());

    Desk still("G00 X10 Y20\nG01 X0 F100\nM30\n");
    QTRY_VERIFY(still.pane.isUpToDate());
    QVERIFY2(message(still.pane).contains("winds no wire"), qPrintable(message(still.pane)));
    // Its path can be seen all the same.
    QTest::mouseClick(key(still.pane, "Path"), Qt::LeftButton);
    QTRY_VERIFY(still.pane.isUpToDate());
    QCOMPARE(message(still.pane), QString());
    QVERIFY(hasColour(still.pane.picture()->picture(),
                      CoilDrawing::lightPalette().colour(CoilDrawing::Feed)));

    writeFile(home() + "/machine.ini", "nonsense");
    Desk unknown;
    unknown.preview.readProfile(home() + "/machine.ini");
    QTRY_VERIFY(message(unknown.pane).contains("machine is not known"));
    QVERIFY(!key(unknown.pane, "Export")->isEnabled());

    // What the file says is shown as it stands there.
    writeFile(home() + "/machine.ini", "[<b>bold</b>]");
    unknown.preview.readProfile(home() + "/machine.ini");
    QTRY_VERIFY(message(unknown.pane).contains("<b>bold</b>"));
    QCOMPARE(unknown.pane.findChild<QLabel *>("previewMessage")->textFormat(), Qt::PlainText);
}

void TestPreviewPane::linesThatAreNotKnownLeadThere()
{
    QByteArray text = SomeCoil::program(2, 40);
    text.replace("G90\n", "G90 ?\n");
    Desk desk(text);
    QTRY_VERIFY(desk.pane.isUpToDate());
    StateLine *note = desk.pane.findChild<StateLine *>();
    QVERIFY(note->isVisible());
    QVERIFY2(note->text().contains("1. First: 2"), qPrintable(note->text()));
    QSignalSpy wanted(&desk.pane, &PreviewPane::lineWanted);
    QTest::mouseClick(note, Qt::LeftButton);
    QCOMPARE(wanted.size(), 1);
    QCOMPARE(wanted.at(0).at(0).toInt(), 2);
    desk.editor.setPlainText(QString::fromLatin1(SomeCoil::program(2, 40)));
    QTRY_VERIFY(desk.pane.isUpToDate());
    QVERIFY(!note->isVisible());
}

void TestPreviewPane::bothLooksHaveTheirColours()
{
    Desk desk;
    QTRY_VERIFY(desk.pane.isUpToDate());
    const QColor light = desk.pane.picture()->picture().pixelColor(0, 0);
    QCOMPARE(light, Look::palette().color(QPalette::Base));
    Look::use(Look::Dark);
    QTRY_COMPARE(desk.pane.picture()->picture().pixelColor(0, 0),
                 Look::palette().color(QPalette::Base));
    QVERIFY(Look::palette().color(QPalette::Base) != light);
}

void TestPreviewPane::nothingIsDrawnForAHiddenPane()
{
    Desk desk;
    QTRY_VERIFY(desk.pane.isUpToDate());
    desk.pane.hide();
    const QImage before = desk.pane.picture()->picture();
    QSignalSpy settled(&desk.preview, &CoilPreview::settled);
    desk.editor.setPlainText(QString::fromLatin1(SomeCoil::program(9, 60)));
    QTest::qWait(0);
    QVERIFY(!desk.preview.isReading());
    QCOMPARE(desk.pane.picture()->picture(), before);
    desk.pane.show();
    QTRY_VERIFY(desk.pane.isUpToDate());
    QVERIFY(desk.pane.picture()->picture() != before);
}

void TestPreviewPane::keysAreLargeEnough_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QSize>("room");
    QTest::newRow("small") << QSize(480, 272) << QSize(480, 228);
    QTest::newRow("slim") << QSize(272, 480) << QSize(272, 390);
    QTest::newRow("upright") << QSize(480, 800) << QSize(480, 670);
    QTest::newRow("lying") << QSize(800, 480) << QSize(800, 396);
    QTest::newRow("wide") << QSize(1024, 600) << QSize(1024, 510);
    QTest::newRow("beside") << QSize(1024, 600) << QSize(440, 510);
}

void TestPreviewPane::keysAreLargeEnough()
{
    QFETCH(QSize, size);
    QFETCH(QSize, room);
    Desk desk(SomeCoil::program(6, 60), size,
              size.width() == room.width() ? PreviewPane::Alone : PreviewPane::Beside);
    desk.pane.resize(room);
    QTRY_VERIFY(desk.pane.isUpToDate());
    QCOMPARE(desk.pane.size(), room);
    int keys = 0;
    for (const PanelKey *key : desk.pane.findChildren<PanelKey *>()) {
        ++keys;
        QVERIFY2(key->width() >= Look::smallestTouch && key->height() >= Look::smallestTouch,
                 qPrintable(key->text()));
        const QRect place(key->mapTo(&desk.pane, QPoint(0, 0)), key->size());
        QVERIFY2(desk.pane.rect().contains(place), qPrintable(key->text()));
    }
    QVERIFY(keys >= 9);
    // The picture has the most of it.
    QVERIFY(desk.pane.picture()->width() * desk.pane.picture()->height() * 5
            > room.width() * room.height() * 2);
}

void TestPreviewPane::repaintingTakesNoTime()
{
    Desk desk(SomeCoil::program(28, 72));
    QTRY_VERIFY(desk.pane.isUpToDate());
    desk.pane.setLine(SomeCoil::line(14));
    qint64 best = 1000000000;
    for (int i = 0; i < 20; ++i) {
        QElapsedTimer time;
        time.start();
        desk.pane.repaint();
        best = qMin(best, time.nsecsElapsed());
    }
    qInfo("repaint %.2f ms", double(best) / 1e6);
    QVERIFY2(best <= qint64(patience(16)) * 1000000, qPrintable(QString::number(best)));
}

FILARIX_TEST_MAIN(TestPreviewPane)
#include "tst_previewpane.moc"
