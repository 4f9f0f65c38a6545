// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "filedialog.h"
#include "modaldriver.h"
#include "screens/pathpicker.h"

#include <QLabel>
#include <QPushButton>

class TestPathPicker : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void thePathIsTheOneThatWasTouched();
    void cancelPicksNothing();
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

void TestPathPicker::theBrowserHasTheSizesOfATallPanel()
{
    ModalDriver driver;
    QList<int> heights;
    QStringList cut;
    driver.then([&](QWidget *dialog) {
        for (const QPushButton *button : dialog->findChildren<QPushButton *>())
            heights.append(button->height());
        for (const QLabel *label : dialog->findChildren<QLabel *>()) {
            if (label->maximumWidth() < label->sizeHint().width())
                cut.append(label->text());
        }
        static_cast<QDialog *>(dialog)->reject();
    });
    PathPicker::pick("Load", folder());
    QVERIFY2(driver.finished(), driver.report());
    QVERIFY(!heights.isEmpty());
    for (int height : heights)
        QVERIFY2(height >= 34, qPrintable(QString::number(height)));
    QCOMPARE(cut, QStringList());
}

FILARIX_TEST_MAIN(TestPathPicker)
#include "tst_pathpicker.moc"
