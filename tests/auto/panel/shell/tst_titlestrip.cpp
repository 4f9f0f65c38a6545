// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "display/panelglass.h"
#include "filarixtest.h"
#include "importmanage.h"
#include "look/look.h"
#include "shell/dialogfitter.h"
#include "shell/titlestrip.h"

#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>
#include <QVBoxLayout>

#include <memory>

/// All on a display of the program's own, where nobody else shows a title.
class TestTitleStrip : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void windowManagerShowsTheTitleItself();
    void dialogGrowsByItsTitleAndItsInsideStays();
    void edgeOfTheDialogGoesAroundIt();
    void fixedHeightGrows();
    void shownTwiceItGrowsOnce();
    void titleFollowsTheDialog();
    void headingWithTheSameWordsGivesWay();
    void keyClosesTheDialog();
    void lowPanelHasALowerStripWithoutAKey();
    void messageBoxIsClosedByItsAnswersAlone();
    void messageBoxKeepsItsTitleWhenItsTextsChange();
    void progressShowsItsTextBelowTheTitle();
    void dialogWithoutALayoutMovesItsContentDown();
    void dialogOfTheLibraryWithoutATitleGetsOne();
    void whatHasAHeadingHasNoStrip();

private:
    void makePanel(const QSize &size);

    std::unique_ptr<PanelGlass> m_glass;
    std::unique_ptr<QWidget> m_panel;
};

namespace {

TitleStrip *stripOf(const QDialog &dialog)
{
    return dialog.findChild<TitleStrip *>();
}

QToolButton *closeKeyOf(const QDialog &dialog)
{
    return dialog.findChild<QToolButton *>("dialogClose");
}

/// With a list that takes what room there is.
QListWidget *fill(QDialog *dialog)
{
    QListWidget *list = new QListWidget;
    (new QVBoxLayout(dialog))->addWidget(list);
    dialog->setWindowTitle("History");
    dialog->resize(300, 200);
    return list;
}

} // namespace

void TestTitleStrip::init()
{
    FilarixTest::init();
    makePanel(QSize(800, 480));
}

void TestTitleStrip::makePanel(const QSize &size)
{
    m_panel.reset();
    m_glass.reset();
    m_glass.reset(new PanelGlass(size, 0));
    m_panel.reset(new QWidget);
    m_panel->setFixedSize(size);
    m_glass->present(m_panel.get());
    new DialogFitter(m_panel.get());
}

void TestTitleStrip::cleanup()
{
    m_panel.reset();
    m_glass.reset();
    FilarixTest::cleanup();
}

void TestTitleStrip::windowManagerShowsTheTitleItself()
{
    QVERIFY(TitleStrip::room() > 0);
    m_panel.reset();
    m_glass.reset();
    QCOMPARE(TitleStrip::room(), 0);
    QWidget *panel = new QWidget;
    m_panel.reset(panel);
    new DialogFitter(panel);
    QDialog dialog;
    fill(&dialog);
    dialog.show();
    QVERIFY(!stripOf(dialog));
    QCOMPARE(dialog.size(), QSize(300, 200));
}

void TestTitleStrip::dialogGrowsByItsTitleAndItsInsideStays()
{
    QDialog dialog;
    const QListWidget *list = fill(&dialog);
    dialog.layout()->setContentsMargins(4, 4, 4, 4);
    dialog.show();
    const TitleStrip *strip = stripOf(dialog);
    QVERIFY(strip && strip->isVisible());
    QCOMPARE(strip->title(), QString("History"));
    QCOMPARE(strip->height(), TitleStrip::room());
    QCOMPARE(dialog.size(), QSize(300, 200 + strip->height()));
    QCOMPARE(strip->geometry(), QRect(0, 0, 300, strip->height()));
    QCOMPARE(list->geometry(), QRect(4, 4 + strip->height(), 292, 192));
}

void TestTitleStrip::edgeOfTheDialogGoesAroundIt()
{
    Look::use(Look::Dark);
    QDialog dialog;
    fill(&dialog);
    dialog.show();
    const QImage image = TestCompat::grab(&dialog).toImage();
    const QColor edge = Look::edge();
    Look::use(Look::Light);
    const int middle = TitleStrip::room() / 2;
    for (const QPoint &place : {QPoint(0, middle), QPoint(299, middle), QPoint(150, 0)})
        QCOMPARE(image.pixelColor(place), edge);
    QVERIFY(image.pixelColor(150, TitleStrip::room() - 1) != image.pixelColor(150, 0));
}

void TestTitleStrip::fixedHeightGrows()
{
    QDialog dialog;
    fill(&dialog);
    dialog.setFixedHeight(180);
    dialog.show();
    QCOMPARE(dialog.height(), 180 + TitleStrip::room());
    QCOMPARE(dialog.minimumHeight(), dialog.maximumHeight());
    QDialog bounded;
    fill(&bounded);
    bounded.setMaximumHeight(200);
    bounded.show();
    QCOMPARE(bounded.height(), 200 + TitleStrip::room());
}

void TestTitleStrip::shownTwiceItGrowsOnce()
{
    QDialog dialog;
    fill(&dialog);
    QProgressDialog progress("Load Files:", "Abort check", 0, 10);
    for (QDialog *each : {&dialog, static_cast<QDialog *>(&progress)}) {
        each->show();
        const QSize size = each->size();
        each->hide();
        each->show();
        QCOMPARE(each->size(), size);
        QCOMPARE(each->findChildren<TitleStrip *>().size(), 1);
    }
}

void TestTitleStrip::titleFollowsTheDialog()
{
    QDialog dialog;
    fill(&dialog);
    dialog.show();
    dialog.setWindowTitle("Check");
    QCOMPARE(stripOf(dialog)->title(), QString("Check"));
}

void TestTitleStrip::headingWithTheSameWordsGivesWay()
{
    QDialog dialog;
    const QListWidget *list = fill(&dialog);
    QLabel *heading = new QLabel("History");
    QLabel *other = new QLabel("Three files");
    for (QLabel *label : {other, heading})
        static_cast<QVBoxLayout *>(dialog.layout())->insertWidget(0, label);
    dialog.layout()->activate();
    const int height = list->height();
    dialog.show();
    QVERIFY(!heading->isVisible());
    QVERIFY(other->isVisible());
    QCOMPARE(list->height(), height);
}

void TestTitleStrip::keyClosesTheDialog()
{
    QDialog dialog;
    fill(&dialog);
    dialog.show();
    QToolButton *key = closeKeyOf(dialog);
    QVERIFY(key && key->width() >= 40 && key->height() >= 40);
    QVERIFY(!key->accessibleName().isEmpty());
    QSignalSpy rejected(&dialog, &QDialog::rejected);
    QTest::mouseClick(key, Qt::LeftButton);
    QCOMPARE(rejected.size(), 1);
    QVERIFY(!dialog.isVisible());
}

// Of 272 pixels each counts, and the dialogs have their own keys.
void TestTitleStrip::lowPanelHasALowerStripWithoutAKey()
{
    const int usual = TitleStrip::room();
    makePanel(QSize(480, 272));
    QVERIFY(TitleStrip::room() < usual);
    QDialog dialog;
    fill(&dialog);
    dialog.show();
    QCOMPARE(stripOf(dialog)->height(), TitleStrip::room());
    QVERIFY(!closeKeyOf(dialog));
}

void TestTitleStrip::messageBoxIsClosedByItsAnswersAlone()
{
    QMessageBox box(QMessageBox::Warning, "Application", "Text",
                    QMessageBox::Yes | QMessageBox::No);
    box.show();
    QCOMPARE(stripOf(box)->title(), QString("Application"));
    QVERIFY(!closeKeyOf(box));
    // The box finds its size with the strip in it.
    for (const QAbstractButton *button : box.buttons())
        QVERIFY(box.rect().contains(QRect(button->mapTo(&box, QPoint()), button->size())));
}

void TestTitleStrip::messageBoxKeepsItsTitleWhenItsTextsChange()
{
    QMessageBox box(QMessageBox::Warning, "Application", "Text", QMessageBox::Ok);
    box.show();
    box.hide();
    box.setInformativeText("More of it");
    box.show();
    QCOMPARE(box.findChildren<TitleStrip *>().size(), 1);
    QCOMPARE(box.layout()->menuBar(), stripOf(box));
    const QLabel *text = box.findChild<QLabel *>("qt_msgbox_label");
    QVERIFY(text->mapTo(&box, QPoint()).y() >= stripOf(box)->height());
}

void TestTitleStrip::progressShowsItsTextBelowTheTitle()
{
    QProgressDialog progress("Load Files:", "Abort check", 0, 10);
    progress.show();
    QVERIFY(!stripOf(progress)->title().isEmpty());
    QVERIFY(!closeKeyOf(progress));
    progress.resize(320, progress.height());
    QCOMPARE(stripOf(progress)->width(), 320);
    const QLabel *text = progress.findChild<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
    const int letters = text->fontMetrics().height();
    QVERIFY(text->geometry().center().y() - letters / 2 >= stripOf(progress)->height());
    QVERIFY(progress.findChild<QProgressBar *>()->y() > stripOf(progress)->height());
}

void TestTitleStrip::dialogWithoutALayoutMovesItsContentDown()
{
    QDialog dialog;
    QPushButton *button = new QPushButton("OK", &dialog);
    button->setGeometry(10, 20, 100, 40);
    dialog.setWindowTitle("Panel");
    dialog.resize(200, 100);
    dialog.show();
    QCOMPARE(button->geometry(), QRect(10, 20 + TitleStrip::room(), 100, 40));
    QCOMPARE(dialog.size(), QSize(200, 100 + TitleStrip::room()));
    QCOMPARE(stripOf(dialog)->geometry(), QRect(0, 0, 200, TitleStrip::room()));
}

void TestTitleStrip::dialogOfTheLibraryWithoutATitleGetsOne()
{
    StrictMessages::expect(QLatin1String("Parentheses expected, slot ImportManage::slot_checkUSB"));
    ImportManage manager(nullptr);
    manager.show();
    QVERIFY(manager.windowTitle().isEmpty());
    QCOMPARE(stripOf(manager)->title(), QString("Panel and stick"));
}

void TestTitleStrip::whatHasAHeadingHasNoStrip()
{
    QDialog picker;
    fill(&picker);
    QWidget *strip = new QWidget;
    strip->setObjectName("pickerStrip");
    picker.layout()->addWidget(strip);
    QDialog keypad;
    fill(&keypad);
    keypad.setWindowTitle(QString());
    for (QDialog *dialog : {&picker, &keypad}) {
        dialog->show();
        QVERIFY(!stripOf(*dialog));
        QCOMPARE(dialog->size(), QSize(300, 200));
    }
}

FILARIX_TEST_MAIN(TestTitleStrip)
#include "tst_titlestrip.moc"
