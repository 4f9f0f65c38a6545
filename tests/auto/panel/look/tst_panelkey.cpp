// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "look/glyphs.h"
#include "look/look.h"
#include "look/panelkey.h"
#include "look/panelstyle.h"

#include <QPlainTextEdit>
#include <QWindow>

class TestPanelKey : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setStyle(new PanelStyle); }
    void aKeyIsNeverSmallerThanAThumb_data();
    void aKeyIsNeverSmallerThanAThumb();
    void aLongWordMakesItWider();
    void theTextFollowsTheLanguage();
    void aTouchTakesNoFocus();
    void aHiddenWordLeavesThePictureItsSize();
    void aHighKeyHasPictureAndWordInItsMiddle();
};

void TestPanelKey::aKeyIsNeverSmallerThanAThumb_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("no text") << QString();
    QTest::newRow("a letter") << "i";
    QTest::newRow("a word") << "Variables";
}

void TestPanelKey::aKeyIsNeverSmallerThanAThumb()
{
    QFETCH(QString, text);
    const PanelKey drawn(Glyphs::icon(Glyphs::Files), text);
    const PanelKey plain(text);
    for (const PanelKey *key : {&drawn, &plain}) {
        QVERIFY(key->minimumSizeHint().width() >= Look::smallestTouch);
        QVERIFY(key->minimumSizeHint().height() >= Look::smallestTouch);
        QCOMPARE(key->minimumSizeHint(), key->sizeHint());
        QCOMPARE(key->text(), text);
    }
    QCOMPARE(drawn.toolButtonStyle(),
             text.isEmpty() ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextUnderIcon);
    QCOMPARE(plain.toolButtonStyle(), Qt::ToolButtonTextOnly);
}

void TestPanelKey::aLongWordMakesItWider()
{
    const PanelKey longer("The addresses of the connections");
    QVERIFY(longer.sizeHint().width() > PanelKey("Edit").sizeHint().width());
}

void TestPanelKey::theTextFollowsTheLanguage()
{
    QString name = "Files";
    PanelKey key(Glyphs::icon(Glyphs::Files), [&name] { return name; });
    QCOMPARE(key.text(), QString("Files"));
    name = "Dateien";
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&key, &change);
    QCOMPARE(key.text(), QString("Dateien"));
}

void TestPanelKey::aTouchTakesNoFocus()
{
    QWidget window;
    QPlainTextEdit editor(&window);
    editor.setGeometry(0, 60, 100, 100);
    PanelKey key("Edit", &window);
    window.show();
    QApplication::setActiveWindow(&window);
    editor.setFocus();
    QTRY_VERIFY(editor.hasFocus());
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      key.geometry().center());
    QVERIFY(editor.hasFocus());
    // A keyboard's Tab does.
    QCOMPARE(key.focusPolicy(), Qt::TabFocus);
}

// Of one that is dressed, too.
// On a narrow strip the word is hidden at some sizes of letters and shown at others.
void TestPanelKey::aHiddenWordLeavesThePictureItsSize()
{
    PanelKey key(Glyphs::icon(Glyphs::Find), "Find");
    const QFont usual = key.font();
    QFont larger = usual;
    larger.setPixelSize(usual.pixelSize() * 3 / 2);
    key.setFont(larger);
    key.setFont(usual);
    const QSize picture = key.iconSize();
    key.setFont(larger);
    QVERIFY(key.iconSize().height() < picture.height());
    key.setToolButtonStyle(Qt::ToolButtonIconOnly);
    key.setFont(usual);
    key.setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    QCOMPARE(key.iconSize(), picture);
}

void TestPanelKey::aHighKeyHasPictureAndWordInItsMiddle()
{
    QWidget panel;
    Look::dress(&panel, Look::KeyPanel);
    QPixmap red(22, 22);
    red.fill(Qt::red);
    PanelKey *key = new PanelKey(QIcon(red), "Fit", &panel);
    const auto topOfPicture = [key](int height) {
        key->resize(80, height);
        const QImage image = key->grab().toImage();
        int top = 0;
        while (top < height && image.pixelColor(40, top) != Qt::red)
            ++top;
        return top;
    };
    const int low = topOfPicture(44);
    const int high = topOfPicture(144);
    QVERIFY2(low < 10, qPrintable(QString::number(low)));
    QVERIFY2(qAbs(high - low - 50) <= 6, qPrintable(QString::number(high)));
}

FILARIX_TEST_MAIN(TestPanelKey)
#include "tst_panelkey.moc"
