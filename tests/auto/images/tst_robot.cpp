// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Holds the icons, images/robot.qrc.

#include "filarixtest.h"

#include <QColor>
#include <QDir>
#include <QImage>

static const char *const iconNames[] = {
    "copy.png",         "copyFromTag.png", "delete.png",       "downArrow.png", "downloads.png",
    "edit.png",         "end.png",         "expand.png",       "find.png",      "home.png",
    "importExport.png", "insert.png",      "insertBefore.png", "new.png",       "open.png",
    "pageDown.png",     "pageUp.png",      "paste.png",        "remove.png",    "restore.png",
    "save.png",         "saveAs.png",      "upArrow.png",
};
static const int iconCount = sizeof(iconNames) / sizeof(iconNames[0]);

// A tenth of a 36 px icon; save and saveAs, which share the disk, differ by a little more.
static const int leastDifferentPixels = 130;

/// An icon as a disabled button of the command bar shows it: 36 px, without its colours.
static QImage greyIcon(const QString &name, const QColor &bar)
{
    const QImage icon = QImage(":/images/" + name)
                            .scaled(36, 36, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                            .convertToFormat(QImage::Format_ARGB32);
    QImage grey(icon.size(), QImage::Format_RGB32);
    for (int y = 0; y < icon.height(); ++y) {
        for (int x = 0; x < icon.width(); ++x) {
            const QRgb pixel = icon.pixel(x, y);
            const int alpha = qAlpha(pixel);
            const int level = (qGray(pixel) * alpha + qGray(bar.rgb()) * (255 - alpha)) / 255;
            grey.setPixel(x, y, qRgb(level, level, level));
        }
    }
    return grey;
}

/// The number of pixels that differ by more than a quarter of the grey scale.
static int plainlyDifferentPixels(const QImage &a, const QImage &b)
{
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x)
            count += qAbs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y))) > 64 ? 1 : 0;
    }
    return count;
}

class TestRobot : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void holdsTheIconsAndNothingElse();
    void iconScalesEvenlyToTheBars_data();
    void iconScalesEvenlyToTheBars();
    void noTwoIconsDifferByColourAlone_data();
    void noTwoIconsDifferByColourAlone();
};

void TestRobot::holdsTheIconsAndNothingElse()
{
    QStringList expected;
    for (int i = 0; i < iconCount; ++i)
        expected << iconNames[i];
    QStringList found = QDir(":/images").entryList(QDir::NoFilter, QDir::NoSort);
    expected.sort();
    found.sort();
    QCOMPARE(found, expected);
}

void TestRobot::iconScalesEvenlyToTheBars_data()
{
    QTest::addColumn<QString>("name");
    for (int i = 0; i < iconCount; ++i)
        QTest::newRow(iconNames[i]) << QString(iconNames[i]);
}

void TestRobot::iconScalesEvenlyToTheBars()
{
    QFETCH(QString, name);
    const QImage icon(":/images/" + name);
    QVERIFY(!icon.isNull());
    QVERIFY(icon.width() >= 72);
    QCOMPARE(icon.width() % 72, 0);
    QCOMPARE(icon.height(), icon.width());
    QCOMPARE(qAlpha(icon.pixel(0, 0)), 0);
}

void TestRobot::noTwoIconsDifferByColourAlone_data()
{
    QTest::addColumn<QColor>("bar");
    QTest::newRow("light bar") << QColor(0xf0, 0xf0, 0xf0);
    QTest::newRow("dark bar") << QColor(0x2b, 0x2f, 0x36);
}

void TestRobot::noTwoIconsDifferByColourAlone()
{
    QFETCH(QColor, bar);
    QList<QImage> icons;
    for (int i = 0; i < iconCount; ++i)
        icons << greyIcon(iconNames[i], bar);
    for (int i = 0; i < iconCount; ++i) {
        for (int j = i + 1; j < iconCount; ++j) {
            const int pixels = plainlyDifferentPixels(icons.at(i), icons.at(j));
            const QString pair = QString("%1 and %2: %3 pixels differ")
                                     .arg(iconNames[i])
                                     .arg(iconNames[j])
                                     .arg(pixels);
            QVERIFY2(pixels >= leastDifferentPixels, qPrintable(pair));
        }
    }
}

FILARIX_TEST_MAIN(TestRobot)

#include "tst_robot.moc"
