// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "display/primarysurface.h"
#include "filarixtest.h"
#include "filedialog.h"
#include "modaldriver.h"
#include "screens/pathpicker.h"

#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>

class TestPathPicker : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void thePathIsTheOneThatWasTouched();
    void cancelPicksNothing();
    void theBrowserHasTheSizesOfATallPanel_data();
    void theBrowserHasTheSizesOfATallPanel();

private:
    static QString folder() { return home() + "/hmi"; }
};

void TestPathPicker::thePathIsTheOneThatWasTouched()
{
    writeFile(folder() + "/coil.teach", QByteArray());
    ModalDriver driver;
    driver.then([](QWidget *dialog) {
        FileDialog::m_returnStr = folder() + "/coil.teach";
        static_cast<FileDialog *>(dialog)->on_ok_click();
    });
    QCOMPARE(PathPicker::pick("Load", folder()), folder() + "/coil.teach");
    QVERIFY2(driver.finished(), driver.report());
}

void TestPathPicker::cancelPicksNothing()
{
    writeFile(folder() + "/coil.teach", QByteArray());
    ModalDriver driver;
    QString title;
    driver.then([&title](QWidget *dialog) {
        title = dialog->windowTitle();
        FileDialog::m_returnStr = folder() + "/coil.teach";
        static_cast<FileDialog *>(dialog)->on_cancel_click();
    });
    QCOMPARE(PathPicker::pick("Load", folder()), QString());
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(title, QString("Load"));
}

void TestPathPicker::theBrowserHasTheSizesOfATallPanel_data()
{
    QTest::addColumn<QSize>("panel");
    QTest::addColumn<int>("least");
    QTest::newRow("roomy") << QSize(800, 480) << 48;
    QTest::newRow("upright") << QSize(272, 480) << 48;
    QTest::newRow("small") << QSize(480, 272) << 34;
}

void TestPathPicker::theBrowserHasTheSizesOfATallPanel()
{
    QFETCH(QSize, panel);
    QFETCH(int, least);
    const QRect own = QGuiApplication::primaryScreen()->availableGeometry();
    PrimarySurface::set(QRect(QPoint(), panel), QRect(QPoint(), panel));
    ModalDriver driver;
    QList<int> heights;
    QStringList cut;
    driver.then([&](QWidget *dialog) {
        for (const QPushButton *button : dialog->findChildren<QPushButton *>()) {
            heights.append(button->height());
            if (button->fontMetrics().horizontalAdvance(button->text()) > button->width())
                cut.append(button->text());
        }
        for (const QLabel *label : dialog->findChildren<QLabel *>()) {
            if (label->maximumWidth() < label->sizeHint().width())
                cut.append(label->text());
        }
        static_cast<QDialog *>(dialog)->reject();
    });
    PathPicker::pick("Load", folder());
    PrimarySurface::set(QGuiApplication::primaryScreen()->geometry(), own);
    QVERIFY2(driver.finished(), driver.report());
    QVERIFY(!heights.isEmpty());
    for (int height : heights)
        QVERIFY2(height >= least, qPrintable(QString::number(height)));
    QCOMPARE(cut, QStringList());
}

FILARIX_TEST_MAIN(TestPathPicker)
#include "tst_pathpicker.moc"
