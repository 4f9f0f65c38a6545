// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "screens/coilview.h"
#include "screens/programpicture.h"
#include "somecoil.h"

#include <QLabel>
#include <QSignalSpy>

class TestProgramPicture : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void drawsTheCoil();
    void wordsTakeThePlaceOfThePicture();
    void pictureOfBeforeNeverComes();
    void isDrawnOnceItIsSeen();
    void closerLookIsDrawnAnew();
    void followsLookAndLanguage();
};

void TestProgramPicture::drawsTheCoil()
{
    ProgramPicture picture;
    picture.resize(300, 200);
    picture.show();
    const WindingModel model = SomeCoil::model(4, 40);
    QVERIFY(!model.layers().isEmpty());
    QSignalSpy drawn(&picture, SIGNAL(drawn()));
    picture.draw(model);
    // The screen does not wait for it.
    QVERIFY(!picture.view()->hasPicture());
    QTRY_COMPARE(drawn.size(), 1);
    QVERIFY(picture.view()->hasPicture());
    QCOMPARE(picture.view()->picture().size(), picture.view()->size());
    QVERIFY(!picture.findChild<QLabel *>("pictureWords")->isVisible());
}

void TestProgramPicture::wordsTakeThePlaceOfThePicture()
{
    ProgramPicture picture;
    picture.resize(300, 200);
    picture.show();
    QSignalSpy drawn(&picture, SIGNAL(drawn()));
    picture.draw(SomeCoil::model(4, 40));
    QTRY_COMPARE(drawn.size(), 1);
    picture.say("This program winds no wire.");
    QLabel *words = picture.findChild<QLabel *>("pictureWords");
    QVERIFY(words->isVisible());
    QCOMPARE(words->text(), QString("This program winds no wire."));
    QVERIFY(!picture.view()->isVisible());
    QVERIFY(!picture.view()->hasPicture());
}

void TestProgramPicture::pictureOfBeforeNeverComes()
{
    ProgramPicture picture;
    picture.resize(300, 200);
    picture.show();
    QSignalSpy drawn(&picture, SIGNAL(drawn()));
    const WindingModel model = SomeCoil::model(4, 40);
    for (int i = 0; i < 20; ++i)
        picture.draw(model);
    picture.say("Reading ...");
    QTRY_VERIFY(!picture.isDrawing());
    QCoreApplication::processEvents();
    QCOMPARE(drawn.size(), 0);
    QVERIFY(!picture.view()->hasPicture());
    picture.draw(model);
    QTRY_COMPARE(drawn.size(), 1);
}

void TestProgramPicture::isDrawnOnceItIsSeen()
{
    ProgramPicture picture;
    picture.resize(300, 200);
    QSignalSpy drawn(&picture, SIGNAL(drawn()));
    picture.draw(SomeCoil::model(4, 40));
    QVERIFY(!picture.isDrawing());
    picture.show();
    QTRY_VERIFY(drawn.size() >= 1);
    QTRY_COMPARE(picture.view()->picture().size(), picture.view()->size());
}

void TestProgramPicture::closerLookIsDrawnAnew()
{
    ProgramPicture picture;
    picture.resize(300, 200);
    picture.show();
    QSignalSpy drawn(&picture, SIGNAL(drawn()));
    picture.draw(SomeCoil::model(4, 40));
    QTRY_COMPARE(drawn.size(), 1);
    picture.view()->zoomIn();
    QTRY_COMPARE(drawn.size(), 2);
    QVERIFY(!picture.view()->isFitted());
    // The next program is seen as a whole.
    picture.draw(SomeCoil::model(4, 40));
    QTRY_COMPARE(drawn.size(), 3);
    QVERIFY(picture.view()->isFitted());
}

void TestProgramPicture::followsLookAndLanguage()
{
    ProgramPicture picture;
    picture.resize(300, 200);
    picture.show();
    QSignalSpy drawn(&picture, SIGNAL(drawn()));
    picture.draw(SomeCoil::model(4, 40));
    QTRY_COMPARE(drawn.size(), 1);
    for (QEvent::Type type : {QEvent::PaletteChange, QEvent::LanguageChange}) {
        drawn.clear();
        QEvent change(type);
        QCoreApplication::sendEvent(&picture, &change);
        QTRY_COMPARE(drawn.size(), 1);
    }
    picture.say(QString());
    drawn.clear();
    QEvent change(QEvent::PaletteChange);
    QCoreApplication::sendEvent(&picture, &change);
    QVERIFY(!picture.isDrawing());
}

FILARIX_TEST_MAIN(TestProgramPicture)
#include "tst_programpicture.moc"
