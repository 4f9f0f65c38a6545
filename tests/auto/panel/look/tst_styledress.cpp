// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/glyphs.h"
#include "look/panelkey.h"
#include "look/panelstyle.h"
#include "look/styledress.h"
#include "styletest.h"

#include <QLabel>
#include <QToolButton>

class TestStyleDress : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setStyle(new PanelStyle); }
    void cleanup() { restoreLook(); }
    void keysHaveTheirRoles_data();
    void keysHaveTheirRoles();
    void keyBesideContentHasALine();
    void dressMakesAKeyLarger();
    void whatIsNotDressedIsDrawnAsEverywhere();
    void groundsAreThoseOfTheLook_data() { addLooks(); }
    void groundsAreThoseOfTheLook();
    void groundOfAMessageIsRound();
    void aWindowEndsTheDress();
    void wordsOnAStripFollow();
};

namespace {

typedef Look::Role Role;

const QSize side(80, 40);
/// Beside the words of a key, and inside its edge.
const QPoint inside(6, 20);

QImage grabbed(QWidget *widget)
{
    return TestCompat::grab(widget).toImage();
}

/// Without words, so that the ground is all there is.
PanelKey *keyIn(QWidget *holder)
{
    PanelKey *key = new PanelKey(QString(), holder);
    key->setCheckable(true);
    key->resize(side);
    return key;
}

QColor groundOf(PanelKey *key, bool isOn, bool isDown, bool isOff)
{
    key->setChecked(isOn);
    key->setDown(isDown);
    key->setEnabled(!isOff);
    return grabbed(key).pixelColor(inside);
}

} // namespace

void TestStyleDress::keysHaveTheirRoles_data()
{
    QTest::addColumn<int>("dress");
    QTest::addColumn<QList<int>>("roles");
    const QList<int> strip{int(Role::StripKey), int(Role::Accent), int(Role::Pressed),
                           int(Role::Pressed), int(Role::StripKeyOff)};
    const QList<int> panel{int(Role::Key), int(Role::Accent), int(Role::KeyPressed),
                           int(Role::Pressed), int(Role::KeyOff)};
    QTest::newRow("strip") << int(Look::Strip) << strip;
    QTest::newRow("message row") << int(Look::MessageRow) << strip;
    QTest::newRow("picker strip") << int(Look::PickerStrip) << strip;
    QTest::newRow("key panel") << int(Look::KeyPanel) << panel;
}

void TestStyleDress::keysHaveTheirRoles()
{
    QFETCH(int, dress);
    QFETCH(QList<int>, roles);
    for (Look::Style look : {Look::Light, Look::Dark, Look::HighContrast}) {
        Look::use(look);
        QWidget holder;
        Look::dress(&holder, Look::Dress(dress));
        PanelKey *key = keyIn(&holder);
        QVERIFY(StyleDress::hasKeys(key));
        const QList<QColor> found{
            groundOf(key, false, false, false), groundOf(key, true, false, false),
            groundOf(key, false, true, false), groundOf(key, true, true, false),
            groundOf(key, false, false, true)};
        for (int i = 0; i < roles.size(); ++i)
            QCOMPARE(found.at(i), Look::colour(Role(roles.at(i))));
        // One that is off tells nothing else.
        QCOMPARE(groundOf(key, true, false, true), found.last());
    }
}

void TestStyleDress::keyBesideContentHasALine()
{
    QWidget panel;
    Look::dress(&panel, Look::KeyPanel);
    PanelKey *key = keyIn(&panel);
    for (bool isOn : {false, true}) {
        key->setChecked(isOn);
        const QImage image = grabbed(key);
        QCOMPARE(image.pixelColor(40, 0), Look::colour(Role::KeyLine));
        QCOMPARE(image.pixelColor(0, 20), Look::colour(Role::KeyLine));
        QVERIFY(image.pixelColor(40, 1) != Look::colour(Role::KeyLine));
    }
}

void TestStyleDress::dressMakesAKeyLarger()
{
    const QSize contents(90, 60);
    QWidget strip;
    Look::dress(&strip, Look::Strip);
    QWidget panel;
    Look::dress(&panel, Look::KeyPanel);
    const QSize onStrip = StyleDress::sizeOfKey(contents, &strip);
    const QSize inPanel = StyleDress::sizeOfKey(contents, &panel);
    QVERIFY(onStrip.width() > contents.width());
    // The line takes a pixel at either side.
    QCOMPARE(inPanel, onStrip + QSize(2, 2));
    // A key that was measured before is measured again.
    QWidget late;
    PanelKey *key = new PanelKey("A long word or two", &late);
    const QSize before = key->sizeHint();
    Look::dress(&late, Look::KeyPanel);
    QVERIFY(key->sizeHint() != before);
}

void TestStyleDress::whatIsNotDressedIsDrawnAsEverywhere()
{
    QWidget holder;
    PanelKey *key = keyIn(&holder);
    QVERIFY(!StyleDress::hasKeys(key));
    QCOMPARE(groundOf(key, false, false, false), Look::palette().color(QPalette::Button));
    const QImage paper = drawn(side, [](QPainter *) {});
    QWidget message;
    Look::dress(&message, Look::MessageLine);
    for (const QWidget *widget : {&holder, &message, static_cast<QWidget *>(key)}) {
        QVERIFY(!StyleDress::hasKeys(widget));
        const QImage image = drawn(side, [&](QPainter *painter) {
            StyleDress::drawGround(optionOf<QStyleOption>(side, rest), painter, widget);
            StyleDress::drawKey(optionOf<QStyleOptionToolButton>(side, rest), painter,
                                QApplication::style(), widget);
        });
        QCOMPARE(image, paper);
    }
    const QImage image = drawn(side, [&](QPainter *painter) {
        StyleDress::drawGround(optionOf<QStyleOption>(side, rest), painter, nullptr);
    });
    QCOMPARE(image, paper);
}

void TestStyleDress::groundsAreThoseOfTheLook()
{
    QFETCH(int, look);
    QWidget strip;
    Look::dress(&strip, Look::Strip);
    QWidget picker;
    Look::dress(&picker, Look::PickerStrip);
    QWidget danger;
    danger.setProperty("danger", true);
    Look::dress(&danger, Look::PickerStrip);
    QWidget alarm;
    alarm.setProperty("tone", "alarm");
    Look::dress(&alarm, Look::MessageRow);
    // What is shown already follows.
    Look::use(Look::Style(look));
    const QPair<QWidget *, Role> grounds[] = {{&strip, Role::Strip},
                                              {&picker, Role::Strip},
                                              {&danger, Role::AlarmGround},
                                              {&alarm, Role::AlarmGround}};
    for (const QPair<QWidget *, Role> &ground : grounds) {
        ground.first->resize(side);
        QCOMPARE(grabbed(ground.first).pixelColor(40, 20), Look::colour(ground.second));
        QCOMPARE(ground.first->palette().color(QPalette::WindowText),
                 Look::colour(Role::StripText));
        QCOMPARE(ground.first->styleSheet(), QString());
    }
}

void TestStyleDress::groundOfAMessageIsRound()
{
    QWidget list;
    QWidget *message = new QWidget(&list);
    list.resize(side);
    message->resize(side);
    Look::dress(message, Look::MessageLine);
    const QColor paper = Look::palette().color(QPalette::Window);
    QCOMPARE(grabbed(&list).pixelColor(40, 20), paper);
    message->setProperty("tone", "warning");
    Look::dressAgain(message);
    const QImage image = grabbed(&list);
    QCOMPARE(image.pixelColor(40, 20), Look::colour(Role::WarningGround));
    QCOMPARE(image.pixelColor(0, 0), paper);
}

// A dialog that was opened from a strip is none.
void TestStyleDress::aWindowEndsTheDress()
{
    QWidget strip;
    Look::dress(&strip, Look::Strip);
    QWidget dialog(&strip, Qt::Dialog);
    PanelKey *key = keyIn(&dialog);
    QVERIFY(!StyleDress::hasKeys(key));
    QCOMPARE(dialog.palette().color(QPalette::WindowText), Look::colour(Role::Text));
}

void TestStyleDress::wordsOnAStripFollow()
{
    QWidget strip;
    Look::dress(&strip, Look::Strip);
    QLabel *label = new QLabel("Word", &strip);
    for (Look::Style look : {Look::Dark, Look::HighContrast, Look::Light}) {
        Look::use(look);
        QCOMPARE(label->palette().color(QPalette::WindowText), Look::colour(Role::StripText));
    }
}

FILARIX_TEST_MAIN(TestStyleDress)
#include "tst_styledress.moc"
