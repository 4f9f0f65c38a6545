// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "look/panelkey.h"
#include "screens/coilpreview.h"
#include "screens/coilview.h"
#include "screens/previewpane.h"
#include "screens/previewscreen.h"
#include "somecoil.h"
#include "stick/stick.h"

#include <QDir>
#include <QImage>
#include <QPlainTextEdit>
#include <QScopedPointer>
#include <QSignalSpy>

class TestPreviewScreen : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void theTitleNamesTheProgram();
    void thereIsRoomBesideOnWidePanelsAlone();
    void bothPanesFollowTheCursor();
    void exportWritesPicturesAndFigures();
    void exportWithoutAStickIsTold();
    void whatIsNotReadIsNotExported();

private:
    QString m_folder;
};

namespace {

struct Desk
{
    Desk() : preview(editor.document()), screen(&preview, QSize(1024, 600), [] { return name(); })
    {
        editor.setPlainText(QString::fromLatin1(SomeCoil::program(6, 60)));
        preview.setPause(10);
        preview.setProfile(MachineProfile::forSamples());
        screen.resize(1024, 500);
        screen.show();
    }

    static QString name() { return "stator-coil.cnc"; }

    QPlainTextEdit editor;
    CoilPreview preview;
    PreviewScreen screen;
};

} // namespace

void TestPreviewScreen::initTestCase()
{
    qRegisterMetaType<Message::Tone>("Message::Tone");
}

void TestPreviewScreen::init()
{
    FilarixTest::init();
    m_folder = "/mnt/Storage.stick";
    QDir().mkpath(m_folder);
    QDir().mkdir(Stick::mountPoint());
}

void TestPreviewScreen::cleanup()
{
    QDir(m_folder).removeRecursively();
    QFile::remove(Stick::marker());
    FilarixTest::cleanup();
}

void TestPreviewScreen::theTitleNamesTheProgram()
{
    Desk desk;
    QCOMPARE(desk.screen.title(), QString("Coil of stator-coil.cnc"));
    QVERIFY(!desk.screen.hasChanges());
}

void TestPreviewScreen::thereIsRoomBesideOnWidePanelsAlone()
{
    for (const QSize &size : {QSize(480, 272), QSize(800, 480), QSize(480, 800), QSize(800, 1280),
                              QSize(1023, 600), QSize(600, 1024)})
        QVERIFY(!PreviewScreen::hasRoomBeside(size));
    QVERIFY(PreviewScreen::hasRoomBeside(QSize(1024, 600)));
    QVERIFY(PreviewScreen::hasRoomBeside(QSize(1280, 800)));
}

void TestPreviewScreen::bothPanesFollowTheCursor()
{
    Desk desk;
    desk.screen.setLine(SomeCoil::line(2));
    const QScopedPointer<PreviewPane> beside(desk.screen.paneBeside());
    beside->resize(440, 500);
    beside->show();
    QTRY_VERIFY(beside->isUpToDate() && desk.screen.pane()->isUpToDate());
    QSignalSpy wanted(&desk.screen, &PreviewScreen::lineWanted);
    int count = 0;
    for (const PreviewPane *pane : {beside.data(), desk.screen.pane()}) {
        const WindingLayer layer = desk.preview.model().layers().at(3);
        CoilView *view = pane->picture();
        const QPointF wire(layer.left + 10, layer.diameter / 2);
        QTest::mouseClick(view, Qt::LeftButton, Qt::NoModifier,
                          view->frame().toPicture(wire).toPoint());
        QCOMPARE(wanted.size(), ++count);
        QCOMPARE(wanted.last().at(0).toInt(), SomeCoil::line(3));
    }
    const QImage before = beside->picture()->grab().toImage();
    desk.screen.setLine(SomeCoil::line(5));
    QVERIFY(beside->picture()->grab().toImage() != before);
}

void TestPreviewScreen::exportWritesPicturesAndFigures()
{
    Desk desk;
    Stick stick(m_folder);
    QString error;
    QVERIFY2(stick.plug(&error), qPrintable(error));
    QTRY_VERIFY(desk.screen.pane()->isUpToDate());
    QSignalSpy told(&desk.screen, &PanelScreen::told);
    PanelKey *key = desk.screen.findChild<PanelKey *>("exportKey");
    QVERIFY(key->isEnabled());
    QTest::mouseClick(key, Qt::LeftButton);
    QVERIFY(desk.screen.isWorking());
    // A second press while the first one is being done.
    QTest::mouseClick(key, Qt::LeftButton);
    QTRY_COMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Information);
    QVERIFY(!desk.screen.isWorking());
    QCOMPARE(QDir(m_folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList("stator-coil-picture"));
    const QString base = m_folder + "/stator-coil-picture/stator-coil";
    QImage png;
    QVERIFY(png.loadFromData(readFile(base + ".png"), "PNG"));
    QVERIFY(png.width() >= 1000);
    const QByteArray svg = readFile(base + ".svg");
    QVERIFY(svg.startsWith("<?xml"));
    QCOMPARE(svg.count("<circle"), 360 + 1);
    QVERIFY(svg.contains("stator-coil.cnc"));
    QVERIFY(readFile(base + ".csv").contains("turns,360,\r\n"));
    stick.pull();
}

void TestPreviewScreen::exportWithoutAStickIsTold()
{
    Desk desk;
    QTRY_VERIFY(desk.screen.pane()->isUpToDate());
    QSignalSpy told(&desk.screen, &PanelScreen::told);
    desk.screen.exportCoil();
    QTRY_COMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Warning);
    QVERIFY(!desk.screen.isWorking());
}

void TestPreviewScreen::whatIsNotReadIsNotExported()
{
    Desk desk;
    QTRY_VERIFY(desk.screen.pane()->isUpToDate());
    desk.editor.setPlainText("G01 X1\n");
    QSignalSpy told(&desk.screen, &PanelScreen::told);
    desk.screen.exportCoil();
    QVERIFY(!desk.screen.isWorking());
    QVERIFY(told.isEmpty());
}

FILARIX_TEST_MAIN(TestPreviewScreen)
#include "tst_previewscreen.moc"
