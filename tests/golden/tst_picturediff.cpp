// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "picturediff.h"

#include <QPainter>

/// What an eye would let pass, and what it would not.
class TestPictureDiff : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void anEyeSeesNoDifference_data();
    void anEyeSeesNoDifference();
    void anEyeSeesADifference_data();
    void anEyeSeesADifference();
    void otherSizesDifferInAll();
    void theDifferenceIsDrawn();
};

namespace {

/// A small screen: a strip, a pale key with a thin edge, a chosen key, and three lines of letters.
struct Screen
{
    QColor paper = QColor(0xee, 0xf1, 0xf5);
    QColor key = QColor(0xff, 0xff, 0xff);
    QColor edge = QColor(0x9f, 0xb0, 0xc2);
    QColor chosen = QColor(0x1a, 0x6f, 0xd0);
    QColor ink = QColor(0x17, 0x20, 0x2b);
    QPointF keyAt = QPointF(20.5, 60.5);
    QPointF lettersAt = QPointF(20, 140);
    QString text = QLatin1String("N120 G33 X18.50 K0.50; third layer");
    QFont::HintingPreference hinting = QFont::PreferNoHinting;
    qreal radius = 6;
    bool hasMark = true;

    QImage drawn() const
    {
        QImage image(480, 240, QImage::Format_RGB32);
        image.fill(paper);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillRect(0, 0, 480, 40, ink);
        drawKey(&painter, keyAt, key, edge);
        drawKey(&painter, QPointF(160.5, 60.5), chosen, chosen);
        drawLetters(&painter);
        if (hasMark)
            painter.fillRect(300, 14, 4, 4, QColor(0xff, 0xc0, 0x4d));
        return image;
    }

private:
    void drawKey(QPainter *painter, const QPointF &corner, const QColor &ground,
                 const QColor &line) const
    {
        painter->setPen(line);
        painter->setBrush(ground);
        painter->drawRoundedRect(QRectF(corner, QSizeF(119, 40)), radius, radius);
    }
    void drawLetters(QPainter *painter) const
    {
        painter->setPen(ink);
        QPointF at = lettersAt;
        for (int pixels : {11, 15, 22}) {
            QFont font(QLatin1String("DejaVu Sans"));
            font.setPixelSize(pixels);
            font.setHintingPreference(hinting);
            painter->setFont(font);
            painter->drawText(at, text);
            at.ry() += 30;
        }
    }
};

QString told(const PictureDiff &diff)
{
    return QString::fromLatin1("%1 pixels, most at %2,%3")
        .arg(diff.pixels())
        .arg(diff.place().x())
        .arg(diff.place().y());
}

} // namespace

void TestPictureDiff::anEyeSeesNoDifference_data()
{
    QTest::addColumn<QImage>("other");
    Screen other;
    QTest::newRow("the same") << other.drawn();
    other.hinting = QFont::PreferVerticalHinting;
    QTest::newRow("letters fitted to the rows") << other.drawn();
    other = Screen();
    other.lettersAt += QPointF(0.4, 0);
    QTest::newRow("letters between two pixels") << other.drawn();
    other = Screen();
    other.radius = 5.5;
    QTest::newRow("corners smoothed otherwise") << other.drawn();
    other = Screen();
    other.key = QColor(0xfd, 0xff, 0xfd);
    QTest::newRow("a ground that was quantised") << other.drawn();
}

void TestPictureDiff::anEyeSeesNoDifference()
{
    QFETCH(QImage, other);
    const PictureDiff diff(Screen().drawn(), other);
    QVERIFY2(diff.isSame(), qPrintable(told(diff)));
    const PictureDiff back(other, Screen().drawn());
    QVERIFY2(back.isSame(), qPrintable(told(back)));
}

void TestPictureDiff::anEyeSeesADifference_data()
{
    QTest::addColumn<QImage>("other");
    QTest::addColumn<QRect>("place");
    const QRect key(14, 54, 134, 54);
    const QRect letters(14, 120, 460, 110);
    Screen other;
    other.keyAt += QPointF(4, 0);
    QTest::newRow("a key moved by a step of the grid") << other.drawn() << key;
    other.keyAt = Screen().keyAt + QPointF(0, 3);
    other.edge = other.key;
    QTest::newRow("a key moved down") << other.drawn() << key;
    other = Screen();
    other.key = QColor(0xf7, 0xf9, 0xfb);
    QTest::newRow("a slightly darker key") << other.drawn() << key;
    other = Screen();
    other.chosen = QColor(0x1a, 0x68, 0xc4);
    QTest::newRow("another accent") << other.drawn() << QRect(150, 54, 140, 54);
    other = Screen();
    other.ink = QColor(0x60, 0x66, 0x6c);
    QTest::newRow("paler letters") << other.drawn() << QRect();
    other = Screen();
    other.text.replace(QLatin1String(".50 K"), QLatin1String(" 50 K"));
    QTest::newRow("a point is missing") << other.drawn() << letters;
    other.text = Screen().text;
    other.text.replace(QLatin1String("G33"), QLatin1String("G83"));
    QTest::newRow("another figure") << other.drawn() << letters;
    other.text = Screen().text;
    other.text.replace(QLatin1String("third"), QLatin1String("th\u0131rd"));
    QTest::newRow("an i without its dot") << other.drawn() << letters;
    other = Screen();
    other.hasMark = false;
    QTest::newRow("a mark of four pixels is missing") << other.drawn() << QRect(296, 8, 14, 14);
}

void TestPictureDiff::anEyeSeesADifference()
{
    QFETCH(QImage, other);
    QFETCH(QRect, place);
    const PictureDiff diff(Screen().drawn(), other);
    QVERIFY(!diff.isSame());
    QVERIFY(diff.pixels() > 0);
    QVERIFY2(place.isNull() || place.intersects(diff.place()), qPrintable(told(diff)));
    QVERIFY(!PictureDiff(other, Screen().drawn()).isSame());
}

void TestPictureDiff::otherSizesDifferInAll()
{
    const QImage whole = Screen().drawn();
    const PictureDiff diff(whole, whole.copy(0, 0, 480, 239));
    QVERIFY(!diff.isSame());
    QCOMPARE(diff.pixels(), 480 * 239);
    QVERIFY(!PictureDiff(whole, QImage()).isSame());
}

void TestPictureDiff::theDifferenceIsDrawn()
{
    Screen other;
    other.hasMark = false;
    const QImage drawn = PictureDiff(Screen().drawn(), other.drawn()).drawn();
    QCOMPARE(drawn.size(), QSize(480, 240));
    QCOMPARE(drawn.pixelColor(302, 16), QColor(0xd0, 0, 0));
    QVERIFY(drawn.pixelColor(100, 20) != QColor(0xd0, 0, 0));
}

FILARIX_TEST_MAIN(TestPictureDiff)
#include "tst_picturediff.moc"
