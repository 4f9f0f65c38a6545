// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "contrast.h"
#include "keypadtest.h"

#include <hmidevice/characterkeypad.h>
#include <hmidevice/gcodekeypad.h>
#include <hmidevice/numerickeypad.h>

#include <QIntValidator>
#include <QTranslator>

/// The keypads are light or dark with the host, and readable either way.
class TestKeypadLook : public KeypadTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void keysAndLinesAreReadable_data();
    void keysAndLinesAreReadable();
    void goesWithTheHost();
    void keysFitAGloveAtEachFineness_data();
    void keysFitAGloveAtEachFineness();
    void everyKeyFitsAGloveOnSmallScreens_data();
    void everyKeyFitsAGloveOnSmallScreens();
    void neighboursHaveLettersOfOneSize_data();
    void neighboursHaveLettersOfOneSize();
    void wordsThatChangeAreWhole_data();
    void wordsThatChangeAreWhole();
    void lettersGrowWithTheHosts_data();
    void lettersGrowWithTheHosts();
    void followsWhileOpen_data();
    void followsWhileOpen();

private:
    enum Look { Light, Dark, HighContrast };
    static void setLook(int look);
    static QDialog *keypad(const QString &kind);
    static QString smallKeys(QDialog *pad, const QRect &screen, int side);
    static QString unevenLetters(QDialog *pad);
    static bool isCut(QAbstractButton *button);
    static int inkHeight(QAbstractButton *button);
};

void TestKeypadLook::setLook(int look)
{
    const QPalette palettes[] = {
        QPalette(QColor(0xdf, 0xe5, 0xec), QColor(0xee, 0xf1, 0xf5)),
        QPalette(QColor(0x32, 0x3e, 0x4a), QColor(0x1d, 0x24, 0x2c)),
        QPalette(QColor(0xf0, 0xf0, 0xf0), QColor(Qt::white)),
    };
    QApplication::setPalette(palettes[look]);
}

QDialog *TestKeypadLook::keypad(const QString &kind)
{
    if (kind == "numeric")
        return NumericKeypad::instance();
    if (kind == "character")
        return CharacterKeypad::instance();
    return GCodeKeypad::instance();
}

void TestKeypadLook::cleanup()
{
    setLook(Light);
    qApp->setProperty("hmiDotsPerInch", QVariant());
    qApp->setProperty("hmiTextSize", QVariant());
    FilarixTest::cleanup();
}

void TestKeypadLook::keysAndLinesAreReadable_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("look");
    Q_FOREACH (const char *kind, QList<const char *>() << "numeric"
                                                       << "character"
                                                       << "gcode") {
        QTest::newRow(kind) << kind << int(Light);
        QTest::newRow(QByteArray(kind).append(" dark").constData()) << kind << int(Dark);
        QTest::newRow(QByteArray(kind).append(" high contrast").constData())
            << kind << int(HighContrast);
    }
}

void TestKeypadLook::keysAndLinesAreReadable()
{
    QFETCH(QString, kind);
    QFETCH(int, look);
    setLook(look);
    const double wanted = look == HighContrast ? 7 : Contrast::textContrast;
    QDialog *pad = keypad(kind);
    QIntValidator validator(1, 9);
    if (kind == "numeric") {
        NumericKeypad::instance()->setValidator(&validator);
        NumericKeypad::instance()->setLimitToolTip("1 to 9");
        NumericKeypad::instance()->setText("77");
    }
    run(pad, [&] {
        Q_FOREACH (QAbstractButton *button, pad->findChildren<QAbstractButton *>()) {
            const QRect inside = button->rect().adjusted(5, 5, -5, -5);
            QVERIFY2(Contrast::drawn(button, inside) >= wanted, qPrintable(button->objectName()));
            button->setDown(true);
            QVERIFY2(Contrast::drawn(button, inside) >= wanted, qPrintable(button->objectName()));
            button->setDown(false);
        }
        Q_FOREACH (const char *name, QList<const char *>() << "oldValue"
                                                           << "limit"
                                                           << "reason") {
            QWidget *label = pad->findChild<QWidget *>(QLatin1String(name));
            if (!label->isVisible() || line(pad, name).isEmpty())
                continue;
            const QRect place(label->mapTo(pad, QPoint(0, 0)), label->size());
            QVERIFY2(Contrast::drawn(pad, place) >= wanted, name);
        }
        value(pad)->deselect();
        value(pad)->setText("123");
        QVERIFY(Contrast::drawn(value(pad), value(pad)->rect().adjusted(6, 6, -6, -6)) >= wanted);
        value(pad)->selectAll();
        QVERIFY(Contrast::drawn(value(pad), value(pad)->rect().adjusted(6, 6, -6, -6)) >= wanted);
    });
}

void TestKeypadLook::goesWithTheHost()
{
    QDialog *pad = keypad("gcode");
    QList<int> brightness;
    Q_FOREACH (int look, QList<int>() << Light << Dark << Light) {
        setLook(look);
        run(pad, [&] {
            brightness.append(
                QColor(TestCompat::grab(key(pad, "G")).toImage().pixel(8, 8)).lightness());
            brightness.append(
                QColor(TestCompat::grab(value(pad)).toImage().pixel(8, 8)).lightness());
        });
    }
    QCOMPARE(brightness.size(), 6);
    QVERIFY(brightness.at(0) > 192 && brightness.at(1) > 192);
    QVERIFY(brightness.at(2) < 96 && brightness.at(3) < 96);
    QCOMPARE(brightness.mid(4), brightness.mid(0, 2));
}

void TestKeypadLook::followsWhileOpen_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("numeric") << "numeric";
    QTest::newRow("character") << "character";
    QTest::newRow("gcode") << "gcode";
}

// A keypad that the host changes its look under is the same as one that was opened in it.
void TestKeypadLook::followsWhileOpen()
{
    QFETCH(QString, kind);
    QDialog *pad = keypad(kind);
    // A cursor that blinks would make two pictures of one look.
    const int flashTime = QApplication::cursorFlashTime();
    QApplication::setCursorFlashTime(0);
    // What was asked of it before is shown once.
    run(pad, [] {});
    QList<QImage> opened;
    Q_FOREACH (int look, QList<int>() << Light << Dark << HighContrast) {
        setLook(look);
        run(pad, [&] { opened.append(TestCompat::grab(pad).toImage()); });
    }
    QVERIFY(opened.at(0) != opened.at(1) && opened.at(1) != opened.at(2));
    QVERIFY(opened.at(0) != opened.at(2));
    setLook(Light);
    run(pad, [&] {
        Q_FOREACH (int look, QList<int>() << Dark << HighContrast << Light) {
            setLook(look);
            QVERIFY2(TestCompat::grab(pad).toImage() == opened.at(look),
                     qPrintable(QString::number(look)));
        }
    });
    QApplication::setCursorFlashTime(flashTime);
}

void TestKeypadLook::keysFitAGloveAtEachFineness_data()
{
    QTest::addColumn<QVariant>("dotsPerInch");
    QTest::addColumn<int>("side");
    QTest::newRow("not named") << QVariant() << 48;
    QTest::newRow("coarse") << QVariant(96.0) << 38;
    QTest::newRow("a panel of seven inches") << QVariant(133.0) << 48;
    QTest::newRow("fine") << QVariant(200.0) << 71;
    QTest::newRow("none that a screen has") << QVariant(5000) << 48;
    QTest::newRow("no number") << QVariant("fine") << 48;
}

// A row in the midst of the screen makes the keypad as low as it gets.
void TestKeypadLook::keysFitAGloveAtEachFineness()
{
    QFETCH(QVariant, dotsPerInch);
    QFETCH(int, side);
    setScreen(QRect(0, 0, 800, 800));
    qApp->setProperty("hmiDotsPerInch", dotsPerInch);
    Caller caller;
    caller.setProperty("hmiEditedRect", QRect(0, 390, 800, 20));
    NumericKeypad *pad = NumericKeypad::instance();
    pad->setObject(&caller);
    pad->resize(60, 60);
    run(pad, [&] {
        QCOMPARE(layoutFault(pad, QRect(0, 0, 800, 800), side - 1), QString());
        QVERIFY(key(pad, "7")->width() <= side + 2);
    });
}

/// What is wrong with the page that is shown.
QString TestKeypadLook::smallKeys(QDialog *pad, const QRect &screen, int side)
{
    const QString fault = layoutFault(pad, screen, side);
    return fault.isEmpty() ? QString() : pad->objectName() + QLatin1String(": ") + fault;
}

static QList<const char *> languages()
{
    QList<const char *> all;
    all << "en";
#if defined(FILARIX_TRANSLATIONS)
    all << "de"
        << "it"
        << "tr"
        << "zh_CN";
#endif
    return all;
}

void TestKeypadLook::everyKeyFitsAGloveOnSmallScreens_data()
{
    QTest::addColumn<QRect>("screen");
    QTest::addColumn<QString>("language");
    Q_FOREACH (const QRect &screen, QList<QRect>()
                                        << QRect(0, 0, 480, 272) << QRect(0, 0, 272, 480)) {
        Q_FOREACH (const char *language, languages()) {
            const QByteArray name = QByteArray::number(screen.width()) + ' ' + language;
            QTest::newRow(name.constData()) << screen << language;
        }
    }
}

// On the usual panel of 4.3 inches: 128 dots an inch, of which 9 mm are 46. With limits, the key
// for the next line, larger letters and a reason beside the value.
void TestKeypadLook::everyKeyFitsAGloveOnSmallScreens()
{
    QFETCH(QRect, screen);
    QFETCH(QString, language);
    const int side = 46;
    QTranslator translator;
#if defined(FILARIX_TRANSLATIONS)
    if (language != "en") {
        QVERIFY(translator.load("hmidevice-sim_" + language, FILARIX_TRANSLATIONS));
        QApplication::installTranslator(&translator);
    }
#endif
    setScreen(screen, 128);
    Caller caller;
    caller.setProperty("hmiName", QString("N5 Tension"));
    caller.setProperty("hmiUnit", QString("N"));
    caller.setProperty("hmiMinimum", 0.5);
    caller.setProperty("hmiMaximum", 8.5);
    caller.setProperty("hmiNextLine", true);
    int pages = 0;
    Q_FOREACH (int percent, QList<int>() << 100 << 150) {
        qApp->setProperty("hmiTextSize", percent);
        Q_FOREACH (const char *kind, QList<const char *>() << "numeric"
                                                           << "character"
                                                           << "gcode") {
            QDialog *pad = keypad(kind);
            NumericKeypad::instance()->setObject(&caller);
            CharacterKeypad::instance()->setObject(&caller);
            GCodeKeypad::instance()->setObject(&caller);
            run(pad, [&] {
                QCOMPARE(smallKeys(pad, screen, side), QString());
                // The value's name and limits stand above the keys, whatever the place takes.
                QVERIFY(line(pad, "title").contains("N5 Tension, N"));
                QVERIFY(line(pad, "title").contains("0.5") && line(pad, "title").contains("8.5"));
                ++pages;
                if (!pageKey(pad))
                    return;
                QTest::mouseClick(pageKey(pad), Qt::LeftButton);
                QCOMPARE(smallKeys(pad, screen, side), QString());
                QVERIFY(line(pad, "title").contains("N5 Tension, N"));
                QVERIFY(line(pad, "title").contains("0.5") && line(pad, "title").contains("8.5"));
                ++pages;
            });
        }
    }
    QCOMPARE(pages, 2 * 5);
}

/// Of what is painted on a key, its face and edge apart.
int TestKeypadLook::inkHeight(QAbstractButton *button)
{
    const QString shown = button->text();
    // One letter on all: "a" and "W" are not as high at one size.
    button->setText(QLatin1String("H"));
    const QImage image = TestCompat::grab(button).toImage();
    button->setText(shown);
    const QRgb face = image.pixel(image.width() / 2, 5);
    int rows = 0;
    for (int y = 6; y < image.height() - 6; ++y) {
        bool hasInk = false;
        for (int x = 6; x < image.width() - 6; ++x)
            hasInk = hasInk || image.pixel(x, y) != face;
        rows += hasInk ? 1 : 0;
    }
    return rows;
}

/// Whether letters end at an edge of the room that a word has on its key. One that just fits has a
/// foot there.
bool TestKeypadLook::isCut(QAbstractButton *button)
{
    const QImage image = TestCompat::grab(button).toImage();
    const int margin = 4;
    const QRgb face = image.pixel(margin, image.height() / 4);
    int rows = 0;
    for (int y = image.height() / 4; y < image.height() * 3 / 4; ++y) {
        const bool isAtEdge =
            image.pixel(margin, y) != face || image.pixel(image.width() - 1 - margin, y) != face;
        rows += isAtEdge ? 1 : 0;
    }
    return rows > 4;
}

/// A key whose text is larger or smaller than that of the others of its kind; or that a word is no
/// smaller than a single character.
QString TestKeypadLook::unevenLetters(QDialog *pad)
{
    const QStringList drawn = QString("back left right space shift").split(QLatin1Char(' '));
    int heights[] = {0, 0};
    Q_FOREACH (QAbstractButton *button, pad->findChildren<QAbstractButton *>()) {
        const QString token = button->objectName().mid(4);
        if (!button->isVisible() || drawn.contains(token))
            continue;
        // A word on a narrow key of a screen of 480 pixels is as large as the key lets it be.
        if (button->text().length() > 1 && button->width() < 48)
            continue;
        int &usual = heights[button->text().length() > 1 ? 1 : 0];
        const int height = inkHeight(button);
        if (usual != 0 && height != usual)
            return token + QString::fromLatin1(" has %1, others %2").arg(height).arg(usual);
        usual = height;
    }
    if (heights[1] == 0 || heights[1] >= heights[0])
        return QString::fromLatin1("words %1, characters %2").arg(heights[1]).arg(heights[0]);
    return QString();
}

void TestKeypadLook::neighboursHaveLettersOfOneSize_data()
{
    addScreens();
}

void TestKeypadLook::neighboursHaveLettersOfOneSize()
{
    QFETCH(QRect, screen);
    setScreen(screen);
    Q_FOREACH (const char *kind, QList<const char *>() << "numeric"
                                                       << "character"
                                                       << "gcode") {
        QDialog *pad = keypad(kind);
        run(pad, [&] {
            QCOMPARE(unevenLetters(pad), QString());
            if (!pageKey(pad))
                return;
            QTest::mouseClick(pageKey(pad), Qt::LeftButton);
            QCOMPARE(unevenLetters(pad), QString());
        });
    }
}

void TestKeypadLook::wordsThatChangeAreWhole_data()
{
    QTest::addColumn<QRect>("screen");
    QTest::addColumn<double>("dotsPerInch");
    QTest::newRow("coarse") << QRect(0, 0, 480, 272) << 128.0;
    QTest::newRow("upright") << QRect(0, 0, 272, 480) << 128.0;
    QTest::newRow("fine") << QRect(0, 0, 800, 480) << 217.0;
}

// "ABC" is wider than "abc".
void TestKeypadLook::wordsThatChangeAreWhole()
{
    QFETCH(QRect, screen);
    QFETCH(double, dotsPerInch);
    setScreen(screen, dotsPerInch);
    qApp->setProperty("hmiTextSize", 150);
    QDialog *pad = keypad("gcode");
    run(pad, [&] {
        QTest::mouseClick(pageKey(pad), Qt::LeftButton);
        QAbstractButton *key = pad->findChild<QAbstractButton *>("key_small");
        for (int i = 0; i < 3; ++i) {
            QVERIFY2(!isCut(key), qPrintable(key->text()));
            QTest::mouseClick(key, Qt::LeftButton);
        }
    });
}

void TestKeypadLook::lettersGrowWithTheHosts_data()
{
    addScreens();
}

void TestKeypadLook::lettersGrowWithTheHosts()
{
    QFETCH(QRect, screen);
    setScreen(screen);
    QIntValidator validator(1, 9);
    Q_FOREACH (const char *kind, QList<const char *>() << "numeric"
                                                       << "character"
                                                       << "gcode") {
        QList<int> heights;
        Q_FOREACH (int percent, QList<int>() << 100 << 125 << 150 << 9999) {
            qApp->setProperty("hmiTextSize", percent);
            NumericKeypad::instance()->setValidator(&validator);
            NumericKeypad::instance()->setText("77");
            QDialog *pad = keypad(kind);
            run(pad, [&] {
                QCOMPARE(layoutFault(pad, screen, 38), QString());
                heights.append(value(pad)->height());
            });
        }
        QCOMPARE(heights.size(), 4);
        QVERIFY(heights.at(0) <= heights.at(1) && heights.at(1) <= heights.at(2));
        QCOMPARE(heights.at(3), heights.at(2));
        if (screen.height() > 480)
            QVERIFY(heights.at(0) < heights.at(2));
    }
}

FILARIX_TEST_MAIN(TestKeypadLook)
#include "tst_keypadlook.moc"
