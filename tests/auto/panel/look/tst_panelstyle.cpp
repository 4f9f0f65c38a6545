// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "combolineedit.h"
#include "contrast.h"
#include "filarixtest.h"
#include "look/look.h"
#include "look/measures.h"
#include "look/panelkey.h"
#include "look/panelstyle.h"
#include "look/styleicons.h"
#include "wfinddialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMessageBox>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSet>
#include <QSlider>
#include <QSpinBox>
#include <QStringListModel>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTabBar>
#include <QTableWidget>
#include <QToolBar>
#include <QToolButton>

#include <functional>
#include <memory>

class TestPanelStyle : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void buttonsOfMessageBoxesAreLargeEnough();
    void answersStandInOneOrder_data();
    void answersStandInOneOrder();
    void findDialogIsLargeEnough();
    void fixedSizesOfTheLibraryStay();
    void cellsTakeTheHeightOfTheirRow();
    void rowsOfListsAreHighEnoughForGloves();
    void tablesKeepTheHeightsOfTheirRows();
    void chosenButtonStandsOut_data();
    void chosenButtonStandsOut();
    void fieldsHaveAnEdgeOnDarkPaper();
    void cleanup();
    void theFrameOfTheFocusHasTwoColours();
    void messageBoxesHaveNeitherMnemonicsNorIconsOnKeys_data();
    void messageBoxesHaveNeitherMnemonicsNorIconsOnKeys();
    void lettersOfShortcutsAreNotDrawn();
    void nothingOfTheToolkitsBevelsIsLeft_data();
    void nothingOfTheToolkitsBevelsIsLeft();
    void pressIsSeenInTheNextFrame_data();
    void pressIsSeenInTheNextFrame();
    void everyControlFollowsTheLook_data();
    void everyControlFollowsTheLook();
    void barsAreWideEnoughForGloves();
    void listMarksItsRowForAKeyboardAlone();
    void spinBoxHasRoomForItsKeys();
    void entriesOfMenusAreHighEnough();
    void otherPicturesAreTheToolkits();
};

Q_DECLARE_METATYPE(std::function<QWidget *()>)

namespace {

typedef std::function<QWidget *()> Make;

QWidget *makeToolButton()
{
    QToolButton *button = new QToolButton;
    button->setText("Menu");
    return button;
}

QWidget *makeCombo()
{
    QComboBox *box = new QComboBox;
    box->addItem("mm");
    return box;
}

QWidget *makeProgress()
{
    QProgressBar *bar = new QProgressBar;
    bar->setTextVisible(false);
    bar->setValue(90);
    return bar;
}

QWidget *makeHead()
{
    QTableWidget *table = new QTableWidget(1, 1);
    table->setHorizontalHeaderLabels({"N"});
    table->horizontalHeader()->setFixedHeight(40);
    return table;
}

QWidget *makeTabs()
{
    QTabBar *tabs = new QTabBar;
    tabs->addTab(QString(20, QLatin1Char(' ')));
    tabs->setCurrentIndex(tabs->addTab("B"));
    return tabs;
}

QWidget *makeBar()
{
    QScrollBar *bar = new QScrollBar(Qt::Vertical);
    bar->setRange(0, 10);
    bar->setPageStep(10);
    return bar;
}

QWidget *dressed(Look::Dress dress)
{
    PanelKey *key = new PanelKey("More");
    Look::dress(key, dress);
    return key;
}

QImage picture(QWidget *widget)
{
    return TestCompat::grab(widget).toImage();
}

/// Along a line from top to foot, where no word is.
QSet<QRgb> coloursAlong(const QImage &image, int x, int top, int foot)
{
    QSet<QRgb> colours;
    for (int y = top; y <= foot; ++y)
        colours.insert(image.pixel(x, y));
    return colours;
}

} // namespace

void TestPanelStyle::initTestCase()
{
    QApplication::setStyle(new PanelStyle);
}

void TestPanelStyle::buttonsOfMessageBoxesAreLargeEnough()
{
    QMessageBox box(QMessageBox::Warning, "Title", "Text", QMessageBox::Yes | QMessageBox::No);
    box.show();
    const QList<QAbstractButton *> buttons = box.buttons();
    QCOMPARE(buttons.size(), 2);
    for (QAbstractButton *button : buttons)
        QVERIFY(button->height() >= 40 && button->width() >= 40);
}

void TestPanelStyle::answersStandInOneOrder_data()
{
    typedef QList<int> Buttons;
    QTest::addColumn<Buttons>("fromTheLeft");
    QTest::newRow("two") << Buttons{QMessageBox::Cancel, QMessageBox::Ok};
    QTest::newRow("a question") << Buttons{QMessageBox::No, QMessageBox::Yes};
    QTest::newRow("a loss") << Buttons{QMessageBox::Discard, QMessageBox::Cancel,
                                       QMessageBox::Save};
}

// Whatever the desktop has.
void TestPanelStyle::answersStandInOneOrder()
{
    QFETCH(QList<int>, fromTheLeft);
    QMessageBox::StandardButtons buttons;
    for (int button : fromTheLeft)
        buttons |= QMessageBox::StandardButton(button);
    QMessageBox box(QMessageBox::Warning, "Title", "Text", buttons);
    box.show();
    int before = -1;
    for (int answer : fromTheLeft) {
        const QAbstractButton *button = box.button(QMessageBox::StandardButton(answer));
        QVERIFY(button->x() > before);
        before = button->x();
    }
}

void TestPanelStyle::findDialogIsLargeEnough()
{
    WFindDialog dialog(nullptr);
    dialog.show();
    const QWidgetList all = dialog.findChildren<QWidget *>();
    int touched = 0;
    for (QWidget *widget : all) {
        if (!qobject_cast<QPushButton *>(widget) && !qobject_cast<QLineEdit *>(widget)
            && !qobject_cast<QCheckBox *>(widget))
            continue;
        ++touched;
        QVERIFY2(widget->height() >= 34, widget->metaObject()->className());
    }
    QCOMPARE(touched, 7);
}

void TestPanelStyle::fixedSizesOfTheLibraryStay()
{
    QPushButton button("OK");
    button.setFixedSize(30, 20);
    button.show();
    QCOMPARE(button.size(), QSize(30, 20));
}

void TestPanelStyle::cellsTakeTheHeightOfTheirRow()
{
    QLineEdit field;
    ComboLineEdit cell(nullptr);
    QVERIFY(field.sizeHint().height() >= 40);
    QVERIFY(cell.sizeHint().height() < 34);
}

void TestPanelStyle::rowsOfListsAreHighEnoughForGloves()
{
    QListView list;
    QStringListModel rows(QStringList() << "a.cnc"
                                        << "b.cnc");
    list.setModel(&rows);
    list.show();
    QVERIFY(list.visualRect(rows.index(1)).height() >= 48);
    QVERIFY(list.visualRect(rows.index(1)).top() >= 48);
}

void TestPanelStyle::tablesKeepTheHeightsOfTheirRows()
{
    QTableWidget table(2, 1);
    table.verticalHeader()->setDefaultSectionSize(34);
    table.setItem(0, 0, new QTableWidgetItem("a"));
    table.show();
    QCOMPARE(table.rowHeight(0), 34);
}

void TestPanelStyle::cleanup()
{
    Look::use(Look::Light);
    FilarixTest::cleanup();
}

void TestPanelStyle::chosenButtonStandsOut_data()
{
    QTest::addColumn<int>("look");
    QTest::newRow("light") << int(Look::Light);
    QTest::newRow("dark") << int(Look::Dark);
}

void TestPanelStyle::chosenButtonStandsOut()
{
    QFETCH(int, look);
    Look::use(Look::Style(look));
    QPushButton button("English");
    button.setCheckable(true);
    button.resize(120, 40);
    const auto ground = [&button] {
        return TestCompat::grab(&button).toImage().pixelColor(8, button.height() / 2);
    };
    const QColor plain = ground();
    button.setChecked(true);
    const QColor chosen = ground();
    QVERIFY(chosen.blue() - chosen.red() > 100);
    QVERIFY(plain.blue() - plain.red() < 50);
    QVERIFY(Contrast::ratio(chosen, Qt::white) >= Contrast::textContrast);
}

void TestPanelStyle::fieldsHaveAnEdgeOnDarkPaper()
{
    Look::use(Look::Dark);
    QLineEdit field;
    QCheckBox box;
    for (QWidget *widget : {static_cast<QWidget *>(&field), static_cast<QWidget *>(&box)}) {
        widget->resize(24, 40);
        QVERIFY2(Contrast::drawn(widget, widget->rect()) >= 3, widget->metaObject()->className());
    }
}

void TestPanelStyle::theFrameOfTheFocusHasTwoColours()
{
    QImage image(30, 20, QImage::Format_RGB32);
    image.fill(Qt::gray);
    QPainter painter(&image);
    QStyleOption option;
    option.rect = image.rect();
    QApplication::style()->drawControl(QStyle::CE_FocusFrame, &option, &painter);
    const QColor expected[] = {Look::focusEdge(), Look::focusEdge(), Look::focus(), Look::focus(),
                               Qt::gray};
    for (int i = 0; i < 5; ++i) {
        QCOMPARE(image.pixelColor(i, 10), expected[i]);
        QCOMPARE(image.pixelColor(29 - i, 10), expected[i]);
        QCOMPARE(image.pixelColor(15, i), expected[i]);
        QCOMPARE(image.pixelColor(15, 19 - i), expected[i]);
    }
}

void TestPanelStyle::messageBoxesHaveNeitherMnemonicsNorIconsOnKeys_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("which");
    QTest::newRow("question") << int(QMessageBox::Question) << int(QStyle::SP_MessageBoxQuestion);
    QTest::newRow("information") << int(QMessageBox::Information)
                                 << int(QStyle::SP_MessageBoxInformation);
    QTest::newRow("warning") << int(QMessageBox::Warning) << int(QStyle::SP_MessageBoxWarning);
    QTest::newRow("critical") << int(QMessageBox::Critical) << int(QStyle::SP_MessageBoxCritical);
}

void TestPanelStyle::messageBoxesHaveNeitherMnemonicsNorIconsOnKeys()
{
    QFETCH(int, kind);
    QFETCH(int, which);
    QMessageBox box(QMessageBox::Icon(kind), "Title", "Text",
                    QMessageBox::Yes | QMessageBox::No | QMessageBox::Save | QMessageBox::Cancel);
    box.show();
    QCOMPARE(box.buttons().size(), 4);
    int mnemonics = 0;
    for (QAbstractButton *button : box.buttons()) {
        QVERIFY(button->icon().isNull());
        const QImage with = picture(button);
        mnemonics += button->text().contains('&');
        button->setText(button->text().remove('&'));
        QCOMPARE(picture(button), with);
    }
    QVERIFY(mnemonics >= 2);
    const int side = box.iconPixmap().width();
    QCOMPARE(box.iconPixmap().toImage(),
             StyleIcons::icon(QStyle::StandardPixmap(which)).pixmap(side, side).toImage());
}

// As the toolkit's own translations into Chinese have them.
void TestPanelStyle::lettersOfShortcutsAreNotDrawn()
{
    QPushButton button;
    QCheckBox box;
    QLineEdit field;
    QLabel label;
    label.setBuddy(&field);
    const auto shown = [&](const QString &text) {
        button.setText(text);
        box.setText(text);
        label.setText(text);
        QList<QImage> images;
        for (QWidget *widget : {static_cast<QWidget *>(&button), static_cast<QWidget *>(&box),
                                static_cast<QWidget *>(&label)}) {
            widget->resize(160, 60);
            images.append(picture(widget));
        }
        return images;
    };
    QCOMPARE(shown("Yes(&Y)"), shown("Yes"));
    QCOMPARE(shown("Yes (&Y)"), shown("Yes"));
    QVERIFY(shown("Yes (Y)") != shown("Yes"));
    QVERIFY(shown("&Yes") == shown("Yes"));
    // What a label without a field shows has no shortcut.
    label.setBuddy(nullptr);
    QVERIFY(shown("Yes(&Y)").last() != shown("Yes").last());
}

void TestPanelStyle::nothingOfTheToolkitsBevelsIsLeft_data()
{
    QTest::addColumn<Make>("make");
    QTest::addColumn<int>("x");
    QTest::newRow("button") << Make([] { return new QPushButton("OK"); }) << 8;
    QTest::newRow("combo box") << Make(&makeCombo) << 3;
    QTest::newRow("progress") << Make(&makeProgress) << 40;
    QTest::newRow("head") << Make(&makeHead) << 8;
    QTest::newRow("tabs") << Make(&makeTabs) << 20;
}

// The toolkit's own drawing of the same is the proof that there would be one.
void TestPanelStyle::nothingOfTheToolkitsBevelsIsLeft()
{
    QFETCH(Make, make);
    QFETCH(int, x);
    const std::unique_ptr<QStyle> fusion(QStyleFactory::create("Fusion"));
    const std::unique_ptr<QWidget> ours(make());
    const std::unique_ptr<QWidget> theirs(make());
    theirs->setStyle(fusion.get());
    for (QWidget *inside : theirs->findChildren<QWidget *>())
        inside->setStyle(fusion.get());
    for (QWidget *widget : {ours.get(), theirs.get()})
        widget->resize(120, 40);
    const QSet<QRgb> flat = coloursAlong(picture(ours.get()), x, 8, 32);
    QCOMPARE(flat.size(), 1);
    QVERIFY2(coloursAlong(picture(theirs.get()), x, 8, 32).size() > 2,
             qPrintable(QString::number(coloursAlong(picture(theirs.get()), x, 8, 32).size())));
}

void TestPanelStyle::pressIsSeenInTheNextFrame_data()
{
    QTest::addColumn<Make>("make");
    QTest::addColumn<QPoint>("place");
    const QPoint middle(60, 20);
    QTest::newRow("button") << Make([] { return new QPushButton("OK"); }) << middle;
    QTest::newRow("tool button") << Make(&makeToolButton) << middle;
    QTest::newRow("key") << Make([] { return new PanelKey("More"); }) << middle;
    QTest::newRow("key of a strip") << Make([] { return dressed(Look::Strip); }) << middle;
    QTest::newRow("key of a key panel") << Make([] { return dressed(Look::KeyPanel); }) << middle;
    QTest::newRow("check box") << Make([] { return new QCheckBox("Case"); }) << QPoint(12, 20);
    QTest::newRow("radio button") << Make([] { return new QRadioButton("mm"); }) << QPoint(12, 20);
    QTest::newRow("scroll bar") << Make(&makeBar) << QPoint(60, 20);
    QTest::newRow("slider") << Make([] { return new QSlider(Qt::Horizontal); }) << QPoint(10, 20);
    QTest::newRow("spin box") << Make([] { return new QSpinBox; }) << QPoint(110, 20);
}

void TestPanelStyle::pressIsSeenInTheNextFrame()
{
    QFETCH(Make, make);
    QFETCH(QPoint, place);
    const std::unique_ptr<QWidget> widget(make());
    widget->resize(120, 40);
    widget->show();
    QVERIFY(TestCompat::waitForExposed(widget.get()));
    const QImage before = picture(widget.get());
    QTest::mousePress(widget.get(), Qt::LeftButton, Qt::NoModifier, place);
    QCoreApplication::processEvents();
    QVERIFY(picture(widget.get()) != before);
    QTest::mouseRelease(widget.get(), Qt::LeftButton, Qt::NoModifier, place);
}

void TestPanelStyle::everyControlFollowsTheLook_data()
{
    nothingOfTheToolkitsBevelsIsLeft_data();
    QTest::newRow("slider") << Make([] { return new QSlider(Qt::Horizontal); }) << 0;
    QTest::newRow("spin box") << Make([] { return new QSpinBox; }) << 0;
    QTest::newRow("scroll bar") << Make(&makeBar) << 0;
}

void TestPanelStyle::everyControlFollowsTheLook()
{
    QFETCH(Make, make);
    const std::unique_ptr<QWidget> widget(make());
    widget->resize(120, 40);
    // A cursor that blinks would be another picture.
    for (QWidget *part : QWidgetList{widget.get()} + widget->findChildren<QWidget *>())
        part->setFocusPolicy(Qt::NoFocus);
    widget->show();
    const QImage light = picture(widget.get());
    Look::use(Look::Dark);
    QCoreApplication::processEvents();
    QVERIFY(picture(widget.get()) != light);
    Look::use(Look::Light);
    QCoreApplication::processEvents();
    QCOMPARE(picture(widget.get()), light);
}

void TestPanelStyle::barsAreWideEnoughForGloves()
{
    QCOMPARE(QScrollBar(Qt::Vertical).sizeHint().width(), Measures::pixels(Measures::touchMm));
    QVERIFY(QSlider(Qt::Horizontal).sizeHint().height() >= Measures::pixels(Measures::touchMm));
}

void TestPanelStyle::listMarksItsRowForAKeyboardAlone()
{
    QListView list;
    QStringListModel rows(QStringList() << "a.cnc"
                                        << "b.cnc");
    list.setModel(&rows);
    list.setCurrentIndex(rows.index(0));
    list.show();
    QApplication::setActiveWindow(&list);
    list.setFocus(Qt::MouseFocusReason);
    QVERIFY(list.hasFocus());
    const QImage touched = picture(list.viewport());
    list.setAttribute(Qt::WA_KeyboardFocusChange);
    QVERIFY(picture(list.viewport()) != touched);
}

void TestPanelStyle::spinBoxHasRoomForItsKeys()
{
    QSpinBox box;
    box.setMaximum(9999);
    box.show();
    QLineEdit *field = box.findChild<QLineEdit *>();
    QVERIFY(field->width() >= field->fontMetrics().horizontalAdvance("9999"));
    QVERIFY(box.height() >= 40);
    QTest::mouseClick(&box, Qt::LeftButton, Qt::NoModifier,
                      QPoint(box.width() - 5, box.height() - 5));
    QCOMPARE(box.value(), 1);
}

void TestPanelStyle::entriesOfMenusAreHighEnough()
{
    QMenu menu;
    QAction *entry = menu.addAction("Copy");
    QVERIFY(menu.sizeHint().height() >= 40);
    QVERIFY(menu.actionGeometry(entry).width() >= menu.fontMetrics().horizontalAdvance("Copy"));
    menu.resize(menu.sizeHint());
    QVERIFY(coloursAlong(picture(&menu), 50, 0, menu.height() - 1).size() > 2);
}

void TestPanelStyle::otherPicturesAreTheToolkits()
{
    const QStyle *style = QApplication::style();
    QVERIFY(!style->standardIcon(QStyle::SP_BrowserReload).isNull());
    QVERIFY(!style->standardPixmap(QStyle::SP_BrowserReload).isNull());
    QCOMPARE(style->standardPixmap(QStyle::SP_MessageBoxWarning).toImage(),
             StyleIcons::icon(QStyle::SP_MessageBoxWarning).pixmap(40, 40).toImage());
}

FILARIX_TEST_MAIN(TestPanelStyle)
#include "tst_panelstyle.moc"
