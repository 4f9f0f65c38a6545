// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "look/look.h"
#include "screens/valuemark.h"

#include <QLineEdit>

class TestValueMark : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void textOfTheFieldEndsBeforeTheMark();
    void touchesGoToTheField();
    void toneIsSeenAndWordsAreSaid();
    void switchIsDrawn();
    void noLineDividesTheField();
};

namespace {

int pixelsOf(const QImage &image, const QColor &colour)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == colour ? 1 : 0;
    }
    return count;
}

ValueMark::State stateOf(const QString &word, Message::Tone tone)
{
    ValueMark::State state;
    state.unit = "N";
    state.word = word;
    state.tone = tone;
    return state;
}

} // namespace

void TestValueMark::textOfTheFieldEndsBeforeTheMark()
{
    QLineEdit field;
    field.resize(300, 34);
    ValueMark mark(&field);
    QCOMPARE(mark.geometry().topRight(), field.rect().topRight());
    QCOMPARE(field.textMargins().right(), mark.width());
    QVERIFY(mark.width() < 200);
    field.show();
    QVERIFY(TestCompat::waitForExposed(&field));
    field.resize(400, 50);
    QTRY_COMPARE(mark.geometry().bottomRight(), field.rect().bottomRight());
}

void TestValueMark::touchesGoToTheField()
{
    QLineEdit field;
    field.resize(300, 34);
    ValueMark mark(&field);
    QVERIFY(mark.testAttribute(Qt::WA_TransparentForMouseEvents));
}

void TestValueMark::toneIsSeenAndWordsAreSaid()
{
    QLineEdit field;
    field.resize(300, 34);
    ValueMark mark(&field);
    mark.setState(stateOf(QString(), Message::Alarm));
    QCOMPARE(mark.accessibleName(), QString("N"));
    QCOMPARE(pixelsOf(mark.grab().toImage(), Look::ground(Message::Alarm)), 0);
    for (Message::Tone tone : {Message::Information, Message::Warning, Message::Alarm}) {
        mark.setState(stateOf("above 8.5", tone));
        QCOMPARE(mark.accessibleName(), QString("N, above 8.5"));
        QVERIFY(pixelsOf(mark.grab().toImage(), Look::ground(tone)) > 500);
    }
}

void TestValueMark::switchIsDrawn()
{
    QLineEdit field;
    field.resize(300, 34);
    ValueMark mark(&field);
    const QImage none = mark.grab().toImage();
    ValueMark::State state;
    state.drawing = ValueMark::State::SwitchedOff;
    mark.setState(state);
    const QImage off = mark.grab().toImage();
    QVERIFY(off != none);
    state.drawing = ValueMark::State::SwitchedOn;
    mark.setState(state);
    const QImage on = mark.grab().toImage();
    QVERIFY(on != off);
    QVERIFY(pixelsOf(on, Look::ground(Message::Information)) > 100);
    QCOMPARE(pixelsOf(off, Look::ground(Message::Information)), 0);
}

// The library's cells have thick ones.
void TestValueMark::noLineDividesTheField()
{
    QLineEdit field;
    field.resize(300, 34);
    ValueMark mark(&field);
    mark.setState(stateOf(QString(), Message::Information));
    const QImage image = mark.grab().toImage();
    const auto isPlain = [&image](int x) {
        for (int y = 0; y < image.height(); ++y) {
            if (image.pixelColor(x, y) != image.pixelColor(x, 0))
                return false;
        }
        return true;
    };
    int drawn = 0;
    for (int x = 0; x < image.width(); ++x)
        drawn += isPlain(x) ? 0 : 1;
    // The unit alone.
    QVERIFY(drawn > 3 && drawn < 20);
    for (int x = 0; x < image.width(); ++x)
        QCOMPARE(image.pixelColor(x, 0), image.pixelColor(0, 0));
}

FILARIX_TEST_MAIN(TestValueMark)
#include "tst_valuemark.moc"
