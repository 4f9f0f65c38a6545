// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "look/dialogtitle.h"
#include "look/look.h"

#include <QDialog>
#include <QLabel>
#include <QVBoxLayout>

class TestDialogTitle : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void saysTheTitleOfItsDialog();
    void followsTheTitle();
    void nameThatLooksLikeMarkupIsShownAsItIs();
    void hasTheGroundOfAStrip();
};

void TestDialogTitle::saysTheTitleOfItsDialog()
{
    QDialog dialog;
    dialog.setWindowTitle("History");
    QCOMPARE(DialogTitle(&dialog).text(), QString("History"));
}

void TestDialogTitle::followsTheTitle()
{
    QDialog dialog;
    DialogTitle title(&dialog);
    QCOMPARE(title.text(), QString());
    dialog.setWindowTitle("Messages");
    QCOMPARE(title.text(), QString("Messages"));
}

void TestDialogTitle::nameThatLooksLikeMarkupIsShownAsItIs()
{
    QDialog dialog;
    dialog.setWindowTitle("<b>coil</b>");
    DialogTitle title(&dialog);
    QCOMPARE(title.findChild<QLabel *>()->textFormat(), Qt::PlainText);
    QCOMPARE(title.text(), QString("<b>coil</b>"));
}

void TestDialogTitle::hasTheGroundOfAStrip()
{
    QDialog dialog;
    dialog.setWindowTitle("Check");
    QVBoxLayout *column = new QVBoxLayout(&dialog);
    DialogTitle *title = new DialogTitle(&dialog);
    column->addWidget(title);
    column->addStretch();
    dialog.resize(300, 200);
    dialog.show();
    QWidget strip;
    strip.setObjectName("strip");
    strip.setAttribute(Qt::WA_StyledBackground);
    Look::dress(&strip, Look::Strip);
    strip.resize(10, 10);
    const QRgb ground = strip.grab().toImage().pixel(5, 5);
    const QImage picture = title->grab().toImage();
    QCOMPARE(picture.pixel(picture.width() - 3, 2), ground);
    QVERIFY(title->height() < 50);
}

FILARIX_TEST_MAIN(TestDialogTitle)
#include "tst_dialogtitle.moc"
