// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "look/elidedlabel.h"

class TestElidedLabel : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void longTextGivesWay();
    void twoLinesAreFilledBeforeTheRestGivesWay();
    void wordLongerThanALineIsBroken();
    void textThatFitsIsShownWhole();
    void linesWithoutRoomStayAway();
    void lettersGiveWayFirst();
};

static QImage picture(const QString &text, int width)
{
    ElidedLabel label;
    label.setText(text);
    label.resize(width, 30);
    return TestCompat::grab(&label).toImage();
}

void TestElidedLabel::longTextGivesWay()
{
    ElidedLabel label;
    label.setText(QString("a long text ").repeated(20));
    QVERIFY(label.minimumSizeHint().width() < 60);
    QCOMPARE(label.text().size(), 240);
    // Two texts that differ only where there is no room for them look alike.
    const QString begin = QString("a long text ").repeated(20);
    QCOMPARE(picture(begin + "one", 100), picture(begin + "two", 100));
    QVERIFY(picture("xa long text", 100) != picture("a long text", 100));
}

void TestElidedLabel::twoLinesAreFilledBeforeTheRestGivesWay()
{
    const auto pictured = [](const QString &text, int lines) {
        ElidedLabel label;
        label.setLines(lines);
        label.setText(text);
        label.resize(100, 60);
        return TestCompat::grab(&label).toImage();
    };
    const QString begin = "a text of words ";
    QCOMPARE(pictured(begin + "one", 1), pictured(begin + "two", 1));
    QVERIFY(pictured(begin + "one", 2) != pictured(begin + "two", 2));
    QCOMPARE(pictured(begin.repeated(9) + "one", 2), pictured(begin.repeated(9) + "two", 2));
    // A line feed in the name of a file makes no third line.
    QCOMPARE(pictured("a\nb\nc\nd", 2), pictured("a b c d", 2));
    QCOMPARE(pictured("short", 2), pictured("short", 1));
}

void TestElidedLabel::wordLongerThanALineIsBroken()
{
    const auto pictured = [](const QString &text, int lines) {
        ElidedLabel label;
        label.setLines(lines);
        label.setText(text);
        label.resize(100, 60);
        return TestCompat::grab(&label).toImage();
    };
    QString begin;
    while (QFontMetrics(QApplication::font()).horizontalAdvance(begin) < 100)
        begin += 'm';
    QCOMPARE(pictured(begin + "1", 1), pictured(begin + "2", 1));
    QVERIFY(pictured(begin + "1", 2) != pictured(begin + "2", 2));
}

void TestElidedLabel::textThatFitsIsShownWhole()
{
    QVERIFY(picture("short 1", 200) != picture("short 2", 200));
}

void TestElidedLabel::linesWithoutRoomStayAway()
{
    const auto pictured = [](int lines, int height) {
        ElidedLabel label;
        label.setLines(lines);
        label.setText(QString("a text of words ").repeated(9));
        label.resize(100, height);
        return TestCompat::grab(&label).toImage();
    };
    const int height = QFontMetrics(QApplication::font()).height();
    QCOMPARE(pictured(3, 2 * height), pictured(2, 2 * height));
    QVERIFY(pictured(3, 3 * height) != pictured(2, 3 * height));
    ElidedLabel label;
    const int one = label.minimumSizeHint().height();
    label.keepLines(3);
    QCOMPARE(label.minimumSizeHint().height(), 3 * label.fontMetrics().lineSpacing());
    QVERIFY(label.sizeHint().height() > one);
    const int kept = label.minimumSizeHint().height();
    QVERIFY(pictured(3, kept) != pictured(2, kept));
}

void TestElidedLabel::lettersGiveWayFirst()
{
    const auto pictured = [](const QString &text, int smallest) {
        ElidedLabel label;
        QFont font = label.font();
        font.setPixelSize(16);
        font.setBold(true);
        label.setFont(font);
        label.shrinkTo(smallest);
        label.setText(text);
        label.resize(100, 30);
        return TestCompat::grab(&label).toImage();
    };
    const QString begin = "a text too wi";
    // Two texts that differ at the end alone look alike until the letters give way.
    QCOMPARE(pictured(begin + "d", 0), pictured(begin + "l", 0));
    QVERIFY(pictured(begin + "d", 10) != pictured(begin + "l", 10));
    // Not below the smallest, and not where there is room.
    QCOMPARE(pictured(begin.repeated(4) + "d", 10), pictured(begin.repeated(4) + "l", 10));
    QCOMPARE(pictured("short", 10), pictured("short", 0));
}

FILARIX_TEST_MAIN(TestElidedLabel)
#include "tst_elidedlabel.moc"
