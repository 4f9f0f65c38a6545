// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "display/panelglass.h"
#include "display/primarysurface.h"
#include "filarixtest.h"
#include "importmanage.h"
#include "shell/dialogfitter.h"
#include "shell/titlestrip.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QWindow>

class TestDialogFitter : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void dialogLargerThanThePanelIsMadeToFit();
    void wideDialogHasNarrowSides();
    void dialogBesideThePanelIsMovedOntoIt();
    void dialogThatTheToolkitPlacesStandsInTheMiddle();
    void dialogHasAnEdge();
    void listsOfTheManagerHaveRoomForNames();
    void dialogWithoutAParentBelongsToThePanel();
    void aTouchOfThePanelLeavesDialogsAbove();
};

void TestDialogFitter::dialogLargerThanThePanelIsMadeToFit()
{
    QWidget panel;
    panel.setFixedSize(480, 272);
    panel.show();
    PrimarySurface surface(&panel, true);
    DialogFitter keeper(nullptr);
    QDialog dialog;
    dialog.resize(500, 300);
    dialog.show();
    const QRect screen(panel.mapToGlobal(QPoint(0, 0)), panel.size());
    QTRY_COMPARE(dialog.geometry(), screen);
}

void TestDialogFitter::wideDialogHasNarrowSides()
{
    QWidget panel;
    panel.setFixedSize(480, 272);
    panel.show();
    PrimarySurface surface(&panel, true);
    DialogFitter keeper(nullptr);
    for (int width : {400, 462}) {
        QDialog dialog;
        QHBoxLayout *layout = new QHBoxLayout(&dialog);
        layout->setContentsMargins(20, 20, 20, 20);
        QWidget *words = new QWidget;
        words->setMinimumWidth(width);
        layout->addWidget(words);
        dialog.show();
        QTRY_VERIFY(panel.width() >= dialog.width());
        const bool isWide = width + 2 * 20 > panel.width();
        QTRY_COMPARE(layout->contentsMargins().left() < 20, isWide);
        QCOMPARE(layout->contentsMargins().right() < 20, isWide);
        QVERIFY(layout->minimumSize().width() <= panel.width());
    }
}

void TestDialogFitter::dialogBesideThePanelIsMovedOntoIt()
{
    QWidget panel;
    panel.setFixedSize(480, 272);
    panel.show();
    PrimarySurface surface(&panel, true);
    DialogFitter keeper(nullptr);
    QDialog dialog;
    dialog.setGeometry(700, -90, 200, 100);
    dialog.show();
    const QRect screen(panel.mapToGlobal(QPoint(0, 0)), panel.size());
    QTRY_VERIFY(screen.contains(dialog.geometry()));
    QCOMPARE(dialog.size(), QSize(200, 100));
    QCOMPARE(dialog.geometry().right(), screen.right());
    QCOMPARE(dialog.geometry().top(), screen.top());
}

// On a display that has no window manager.
void TestDialogFitter::dialogThatTheToolkitPlacesStandsInTheMiddle()
{
    PanelGlass glass(QSize(480, 272), 0);
    QWidget panel;
    panel.setFixedSize(480, 272);
    glass.present(&panel);
    DialogFitter keeper(nullptr);
    QDialog dialog(&panel);
    dialog.setWindowTitle("Check");
    dialog.resize(200, 100);
    dialog.show();
    // With the title above it.
    const int title = TitleStrip::room();
    QTRY_COMPARE(dialog.size(), QSize(200, 100 + title));
    QTRY_COMPARE(dialog.geometry().topLeft(), QPoint(140, 86 - title / 2));
    QDialog placed(&panel);
    placed.setGeometry(10, 20, 200, 100);
    placed.show();
    QCoreApplication::processEvents();
    QCOMPARE(placed.geometry(), QRect(10, 20, 200, 100));
}

void TestDialogFitter::dialogHasAnEdge()
{
    DialogFitter keeper(nullptr);
    QDialog dialog;
    dialog.resize(200, 100);
    const QImage image = TestCompat::grab(&dialog).toImage();
    QVERIFY(image.pixelColor(0, 50).lightness() < 60);
    QVERIFY(image.pixelColor(199, 50).lightness() < 60);
    QVERIFY(image.pixelColor(100, 50).lightness() > 200);
}

// Of 272 pixels, bars and keys left 70 to each list.
void TestDialogFitter::listsOfTheManagerHaveRoomForNames()
{
    StrictMessages::expect(QLatin1String("Parentheses expected, slot ImportManage::slot_checkUSB"));
    QWidget panel;
    panel.setFixedSize(272, 480);
    panel.show();
    PrimarySurface surface(&panel, true);
    DialogFitter keeper(nullptr);
    ImportManage manager(nullptr);
    manager.show();
    const QList<QListView *> lists = manager.findChildren<QListView *>();
    QCOMPARE(lists.size(), 2);
    for (const QListView *list : lists)
        QTRY_VERIFY2(list->viewport()->width() >= 90,
                     qPrintable(QString::number(list->viewport()->width())));
    for (const QPushButton *key : manager.findChildren<QPushButton *>())
        QVERIFY(key->width() >= 48 && manager.rect().contains(key->geometry()));
    // So had what is told of the space, beside the key that closes it.
    manager.init();
    const QLabel *status = nullptr;
    for (const QLabel *label : manager.findChildren<QLabel *>()) {
        if (label->text().contains(QLatin1String("Left Space")))
            status = label;
    }
    QVERIFY(status);
    const auto needed = [status] {
        return status->fontMetrics().boundingRect(QRect(0, 0, status->width(), 1000),
                                                  Qt::TextWordWrap, status->text());
    };
    QTRY_VERIFY(status->height() >= needed().height());
    QVERIFY(status->width() >= needed().width());
    QVERIFY(manager.rect().contains(status->geometry()));
}

void TestDialogFitter::dialogWithoutAParentBelongsToThePanel()
{
    QWidget panel;
    panel.setFixedSize(480, 272);
    panel.show();
    DialogFitter *keeper = new DialogFitter(&panel);
    QCOMPARE(keeper->parent(), &panel);
    QDialog dialog;
    dialog.show();
    QCOMPARE(dialog.windowHandle()->transientParent(), panel.windowHandle());
    QDialog child(&dialog);
    child.show();
    QCOMPARE(child.windowHandle()->transientParent(), dialog.windowHandle());
}

// On a display that has no window manager.
void TestDialogFitter::aTouchOfThePanelLeavesDialogsAbove()
{
    PanelGlass glass(QSize(480, 272), 90);
    QWidget panel;
    panel.setFixedSize(480, 272);
    glass.present(&panel);
    new DialogFitter(&panel);
    QDialog first;
    first.setGeometry(100, 100, 200, 100);
    first.show();
    QDialog second;
    second.setGeometry(120, 120, 200, 100);
    second.show();
    QVERIFY(TestCompat::waitForExposed(&second));
    const QPoint shared(150, 150);
    QCOMPARE(QGuiApplication::topLevelAt(shared), second.windowHandle());
    panel.raise();
    QCOMPARE(QGuiApplication::topLevelAt(shared), panel.windowHandle());
    QTest::mouseClick(panel.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
    QCOMPARE(QGuiApplication::topLevelAt(shared), second.windowHandle());
    QCOMPARE(QGuiApplication::topLevelAt(QPoint(105, 105)), first.windowHandle());
}

FILARIX_TEST_MAIN(TestDialogFitter)
#include "tst_dialogfitter.moc"
