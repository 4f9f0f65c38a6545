// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/styleicons.h"
#include "styletest.h"

class TestStyleIcons : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { restoreLook(); }
    void everyKindOfMessageHasItsOwn();
    void drawingStandsOutFromItsGround_data() { addLooks(); }
    void drawingStandsOutFromItsGround();
    void filesFollowTheLook();
    void restIsLeftToTheToolkit();
};

namespace {

const int side = 40;
const QStyle::StandardPixmap messages[] = {
    QStyle::SP_MessageBoxQuestion, QStyle::SP_MessageBoxInformation, QStyle::SP_MessageBoxWarning,
    QStyle::SP_MessageBoxCritical};

QImage pictureOf(const QIcon &icon)
{
    return icon.pixmap(side, side).toImage();
}

} // namespace

void TestStyleIcons::everyKindOfMessageHasItsOwn()
{
    QList<QImage> pictures;
    for (QStyle::StandardPixmap which : messages) {
        const QIcon copy = StyleIcons::icon(which);
        pictures.append(pictureOf(copy));
        QCOMPARE(pictures.last().size(), QSize(side, side));
        // Nothing in the corners, and no second colour of a ground.
        QCOMPARE(qAlpha(pictures.last().pixel(0, 0)), 0);
    }
    QVERIFY(areAllDifferent(pictures));
}

void TestStyleIcons::drawingStandsOutFromItsGround()
{
    QFETCH(int, look);
    Look::use(Look::Style(look));
    for (QStyle::StandardPixmap which : messages) {
        const QImage image = pictureOf(StyleIcons::icon(which));
        const QColor ground = image.pixelColor(side / 2, 2);
        QVERIFY(contrastIn(image, QRect(6, 6, 28, 28), ground) >= Contrast::textContrast);
    }
}

void TestStyleIcons::filesFollowTheLook()
{
    const QIcon file = StyleIcons::icon(QStyle::SP_FileIcon);
    const QImage light = pictureOf(file);
    Look::use(Look::Dark);
    const QImage dark = pictureOf(file);
    QVERIFY(dark != light);
    QVERIFY(pictureOf(StyleIcons::icon(QStyle::SP_DirIcon)) != dark);
}

void TestStyleIcons::restIsLeftToTheToolkit()
{
    QVERIFY(StyleIcons::icon(QStyle::SP_BrowserReload).isNull());
}

FILARIX_TEST_MAIN(TestStyleIcons)
#include "tst_styleicons.moc"
