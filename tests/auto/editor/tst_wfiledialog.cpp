// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "devicelog.h"
#include "filarixtest.h"
#include "marktranslator.h"
#include "modaldriver.h"
#include "wfiledialog.h"

#include <QDesktopWidget>
#include <QDir>
#include <QFile>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>

namespace {

QStringList column(const WFileDialog &dialog, int column)
{
    QStringList texts;
    for (int row = 0; row < dialog.filesTable->rowCount(); ++row)
        texts << dialog.filesTable->item(row, column)->text();
    return texts;
}

QStringList names(const WFileDialog &dialog)
{
    return column(dialog, 0);
}

void fill(const QStringList &names)
{
    Q_FOREACH (const QString &name, names)
        FilarixTest::writeFile(FilarixTest::programDir() + QLatin1Char('/') + name, "G1");
}

bool isArialBoldOf12Points(const QFont &font)
{
    return font.family() == QLatin1String("Arial") && font.pointSize() == 12
           && int(font.weight()) == 75;
}

void touch(WFileDialog &dialog, int row, int column)
{
    const QTableWidgetItem *item = dialog.filesTable->item(row, column);
    QTest::mouseClick(dialog.filesTable->viewport(), Qt::LeftButton, Qt::NoModifier,
                      dialog.filesTable->visualItemRect(item).center());
}

} // namespace

/// Reads the name at the moment when the dialog is accepted.
class NameReader : public QObject
{
    Q_OBJECT

public:
    explicit NameReader(WFileDialog *dialog) : m_dialog(dialog)
    {
        connect(dialog, SIGNAL(accepted()), SLOT(read()));
    }

    QString name;

private Q_SLOTS:
    void read() { name = m_dialog->fileName; }

private:
    WFileDialog *m_dialog;
};

class TestWFileDialog : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void tableIsMadeForAThumb();
    void rowsAndFieldsLieInAGrid();
    void textsAreTranslated();
    void columnsShowTheirNumbers();
    void titleIsTheCallers();
    void standsInTheMiddleOfTheScreen();

    void filesAreInOrderOfTheirNames();
    void onlyPlainFilesAreListed();
    void emptyDirectoryGivesAnEmptyTable();
    void directoryThatCannotBeMadeGivesAnEmptyTable();
    void directoryThatCannotBeReadGivesAnEmptyTable();
    void sizeCountsBegunKilobytes_data();
    void sizeCountsBegunKilobytes();
    void vanishedFileHasSizeZero();
    void itemsCannotBeEdited();
    void listIsMadeOnce();

    void firstFileIsProposedAtEachShowing();
    void emptyDirectoryLeavesTheNameAlone();
    void touchOnARowPicksItsName_data();
    void touchOnARowPicksItsName();
    void rowThatDoesNotExistPicksNothing();

    void okGivesTheNameAsItStands_data();
    void okGivesTheNameAsItStands();
    void cancelGivesNothing();
    void buttonsAreConnectedOnce();

    void nameIsThereWhenTheDialogSaysSo();

    void textPropertyHasNoOtherEffect();
    void pressOpensTheKeypad();
    void keypadTextIsTaken();
    void keypadCancelLeavesTheName();
    void everyButtonButTheRightOpensTheKeypad_data();
    void everyButtonButTheRightOpensTheKeypad();
    void withoutATouchScreenTheFieldTakesTheKeys();
    void withoutAKeypadNothingHappens();
    void pressStillReachesTheField();
    void otherEventsAndObjectsOpenNothing();
};

void TestWFileDialog::init()
{
    FilarixTest::init();
    DeviceLog::reset();
}

void TestWFileDialog::tableIsMadeForAThumb()
{
    fill(QStringList() << "a.cnc"
                       << "b.cnc");
    const WFileDialog dialog(nullptr);
    QVERIFY(isArialBoldOf12Points(dialog.font()));
    QVERIFY(isArialBoldOf12Points(dialog.filesTable->font()));
    QCOMPARE(dialog.size(), QSize(500, 300));
    QCOMPARE(dialog.filesTable->columnCount(), 2);
    QCOMPARE(dialog.filesTable->selectionBehavior(), QAbstractItemView::SelectRows);
    QVERIFY(dialog.filesTable->verticalHeader()->isHidden());
    QVERIFY(!dialog.filesTable->horizontalHeader()->isHidden());
    QVERIFY(!dialog.filesTable->showGrid());
    QCOMPARE(TestCompat::sectionResizeMode(dialog.filesTable->horizontalHeader(), 0),
             QHeaderView::Stretch);
    QCOMPARE(TestCompat::sectionResizeMode(dialog.filesTable->horizontalHeader(), 1),
             QHeaderView::Interactive);
    QCOMPARE(dialog.filesTable->rowHeight(0), 50);
    QCOMPARE(dialog.filesTable->rowHeight(1), 50);
}

void TestWFileDialog::rowsAndFieldsLieInAGrid()
{
    WFileDialog dialog(nullptr);
    const QGridLayout *grid = qobject_cast<QGridLayout *>(dialog.layout());
    QVERIFY(grid);
    QCOMPARE(grid->rowCount(), 3);
    QCOMPARE(grid->columnCount(), 1);
    QVERIFY(!grid->itemAtPosition(0, 0));
    QCOMPARE(grid->itemAtPosition(1, 0)->widget(), static_cast<QWidget *>(dialog.filesTable));
    const QHBoxLayout *box = qobject_cast<QHBoxLayout *>(grid->itemAtPosition(2, 0)->layout());
    QVERIFY(box);
    const QList<QWidget *> fields = QList<QWidget *>() << dialog.nameLabel << dialog.nameEdit
                                                       << dialog.applyButton << dialog.cancelButton;
    QCOMPARE(box->count(), fields.size());
    for (int i = 0; i < fields.size(); ++i) {
        QCOMPARE(box->itemAt(i)->widget(), fields.at(i));
        QCOMPARE(fields.at(i)->minimumHeight(), 50);
        QCOMPARE(fields.at(i)->maximumHeight(), 50);
    }
    QCOMPARE(dialog.nameLabel->text(), QString("Name:"));
    QCOMPARE(dialog.nameEdit->text(), QString());
    QCOMPARE(dialog.applyButton->text(), QString("OK"));
    QCOMPARE(dialog.cancelButton->text(), QString("Cancel"));
    QVERIFY(dialog.fileName.isEmpty());
    QVERIFY(dialog.text().isEmpty());
}

void TestWFileDialog::textsAreTranslated()
{
    fill(QStringList() << "a.cnc");
    const MarkTranslator translator(QLatin1String("#"));
    const WFileDialog dialog(nullptr);
    QCOMPARE(dialog.nameLabel->text(), QString("#Name:"));
    QCOMPARE(dialog.applyButton->text(), QString("#OK"));
    QCOMPARE(dialog.cancelButton->text(), QString("#Cancel"));
    QCOMPARE(column(dialog, 1), QStringList() << "#1 KB");
    QCOMPARE(translator.asked("WFileDialog"), QStringList() << "File Name"
                                                            << "Size"
                                                            << "Name:"
                                                            << "OK"
                                                            << "Cancel"
                                                            << "%1 KB");
}

// Listing the files clears the labels, and nothing sets them again.
void TestWFileDialog::columnsShowTheirNumbers()
{
    const WFileDialog dialog(nullptr);
    QVERIFY(!dialog.filesTable->horizontalHeaderItem(0));
    QVERIFY(!dialog.filesTable->horizontalHeaderItem(1));
    const QAbstractItemModel *model = dialog.filesTable->model();
    QCOMPARE(model->headerData(0, Qt::Horizontal).toString(), QString("1"));
    QCOMPARE(model->headerData(1, Qt::Horizontal).toString(), QString("2"));
}

void TestWFileDialog::titleIsTheCallers()
{
    WFileDialog dialog(nullptr);
    QCOMPARE(dialog.windowTitle(), QString());
    dialog.setTitle(QLatin1String("Save as"));
    QCOMPARE(dialog.windowTitle(), QString("Save as"));
}

void TestWFileDialog::standsInTheMiddleOfTheScreen()
{
    WFileDialog dialog(nullptr);
    dialog.show();
    const QRect screen = QApplication::desktop()->screenGeometry(-1);
    QCOMPARE(dialog.geometry().topLeft(), QPoint((screen.left() + screen.right()) / 2 - 250,
                                                 (screen.top() + screen.bottom()) / 2 - 150));
}

void TestWFileDialog::filesAreInOrderOfTheirNames()
{
    fill(QStringList() << "c.cnc"
                       << "B.cnc"
                       << "a.cnc"
                       << "D"
                       << "10.cnc"
                       << "2.cnc"
                       << "_.cnc");
    const WFileDialog dialog(nullptr);
    // The directory's own order: by name, ignoring case; numbers are no numbers here.
    QCOMPARE(names(dialog), QDir(programDir()).entryList(QDir::Files));
    QCOMPARE(names(dialog), QStringList() << "10.cnc"
                                          << "2.cnc"
                                          << "_.cnc"
                                          << "a.cnc"
                                          << "B.cnc"
                                          << "c.cnc"
                                          << "D");
}

void TestWFileDialog::onlyPlainFilesAreListed()
{
    const QString dir = programDir();
    const QString umlaut = QString::fromUtf8("f\xc3\xbcnf.cnc");
    fill(QStringList() << "b.cnc"
                       << "c"
                       << "d.txt"
                       << "e f.NC" << umlaut << ".hidden.cnc");
    QVERIFY(QDir(dir).mkdir(QLatin1String("a.cnc")));
    QVERIFY(QFile::link(dir + QLatin1String("/b.cnc"), dir + QLatin1String("/link.cnc")));
    QVERIFY(QFile::link(dir + QLatin1String("/none"), dir + QLatin1String("/broken.cnc")));
    QVERIFY(QFile::link(dir, dir + QLatin1String("/linked.dir")));
    const WFileDialog dialog(nullptr);
    QCOMPARE(names(dialog), QStringList() << "b.cnc"
                                          << "c"
                                          << "d.txt"
                                          << "e f.NC" << umlaut);
    QCOMPARE(QDir(dialog.currentDir).absolutePath(), dir);
}

void TestWFileDialog::emptyDirectoryGivesAnEmptyTable()
{
    ModalDriver driver;
    driver.then([](QWidget *shown) {
        WFileDialog *dialog = qobject_cast<WFileDialog *>(shown);
        QCOMPARE(dialog->filesTable->rowCount(), 0);
        QCOMPARE(dialog->nameEdit->text(), QString());
        QTest::mouseClick(dialog->applyButton, Qt::LeftButton);
    });
    WFileDialog dialog(nullptr);
    dialog.fileName = QLatin1String("old");
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(dialog.fileName, QString());
    QVERIFY2(driver.finished(), driver.report());
}

void TestWFileDialog::directoryThatCannotBeMadeGivesAnEmptyTable()
{
    writeFile(home() + QLatin1String("/cnc"), "a file in the directory's place");
    const WFileDialog dialog(nullptr);
    QCOMPARE(dialog.filesTable->rowCount(), 0);
}

void TestWFileDialog::directoryThatCannotBeReadGivesAnEmptyTable()
{
    fill(QStringList() << "a.cnc");
    QVERIFY(QFile::setPermissions(programDir(), QFile::WriteOwner | QFile::ExeOwner));
    const WFileDialog dialog(nullptr);
    const int rows = dialog.filesTable->rowCount();
    QFile::setPermissions(programDir(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QCOMPARE(rows, 0);
}

void TestWFileDialog::sizeCountsBegunKilobytes_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("shown");
    QTest::newRow("empty") << qint64(0) << "0 KB";
    QTest::newRow("1 byte") << qint64(1) << "1 KB";
    QTest::newRow("1023 bytes") << qint64(1023) << "1 KB";
    QTest::newRow("1024 bytes") << qint64(1024) << "1 KB";
    QTest::newRow("1025 bytes") << qint64(1025) << "2 KB";
    QTest::newRow("2048 bytes") << qint64(2048) << "2 KB";
    QTest::newRow("5 GB") << qint64(5) * 1024 * 1024 * 1024 << "5242880 KB";
    QTest::newRow("5 GB and a byte") << qint64(5) * 1024 * 1024 * 1024 + 1 << "5242881 KB";
}

void TestWFileDialog::sizeCountsBegunKilobytes()
{
    QFETCH(qint64, bytes);
    QFETCH(QString, shown);
    QFile file(programDir() + QLatin1String("/a.cnc"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.resize(bytes));
    file.close();
    const WFileDialog dialog(nullptr);
    QCOMPARE(column(dialog, 1), QStringList() << shown);
}

void TestWFileDialog::vanishedFileHasSizeZero()
{
    WFileDialog dialog(nullptr);
    dialog.showFiles(QStringList());
    QCOMPARE(dialog.filesTable->rowCount(), 0);
    dialog.showFiles(QStringList() << "gone.cnc");
    QCOMPARE(names(dialog), QStringList() << "gone.cnc");
    QCOMPARE(column(dialog, 1), QStringList() << "0 KB");
}

void TestWFileDialog::itemsCannotBeEdited()
{
    fill(QStringList() << "a.cnc");
    const WFileDialog dialog(nullptr);
    const Qt::ItemFlags flags = QTableWidgetItem().flags() & ~Qt::ItemIsEditable;
    QCOMPARE(dialog.filesTable->item(0, 0)->flags(), flags);
    QCOMPARE(dialog.filesTable->item(0, 1)->flags(), flags);
    QCOMPARE(dialog.filesTable->item(0, 0)->textAlignment(), QTableWidgetItem().textAlignment());
    QCOMPARE(dialog.filesTable->item(0, 1)->textAlignment(),
             int(Qt::AlignRight | Qt::AlignVCenter));
}

void TestWFileDialog::listIsMadeOnce()
{
    fill(QStringList() << "b.cnc");
    WFileDialog dialog(nullptr);
    fill(QStringList() << "a.cnc");
    dialog.show();
    dialog.hide();
    dialog.show();
    QCOMPARE(names(dialog), QStringList() << "b.cnc");
    QCOMPARE(names(WFileDialog(nullptr)), QStringList() << "a.cnc"
                                                        << "b.cnc");
}

void TestWFileDialog::firstFileIsProposedAtEachShowing()
{
    fill(QStringList() << "a.cnc"
                       << "b.cnc");
    WFileDialog dialog(nullptr);
    QCOMPARE(dialog.nameEdit->text(), QString());
    dialog.show();
    QCOMPARE(dialog.nameEdit->text(), QString("a.cnc"));
    dialog.nameEdit->setText(QLatin1String("other"));
    dialog.hide();
    dialog.show();
    QCOMPARE(dialog.nameEdit->text(), QString("a.cnc"));
}

void TestWFileDialog::emptyDirectoryLeavesTheNameAlone()
{
    WFileDialog dialog(nullptr);
    dialog.nameEdit->setText(QLatin1String("typed"));
    dialog.show();
    QCOMPARE(dialog.nameEdit->text(), QString("typed"));
}

void TestWFileDialog::touchOnARowPicksItsName_data()
{
    QTest::addColumn<int>("column");
    QTest::newRow("name") << 0;
    QTest::newRow("size") << 1;
}

void TestWFileDialog::touchOnARowPicksItsName()
{
    QFETCH(int, column);
    fill(QStringList() << "a.cnc"
                       << "b.cnc"
                       << "c.cnc");
    WFileDialog dialog(nullptr);
    dialog.show();
    QVERIFY(TestCompat::waitForExposed(&dialog));
    touch(dialog, 2, column);
    QCOMPARE(dialog.nameEdit->text(), QString("c.cnc"));
    touch(dialog, 1, column);
    QCOMPARE(dialog.nameEdit->text(), QString("b.cnc"));
    QVERIFY(dialog.isVisible());
    QVERIFY(dialog.fileName.isEmpty());
}

void TestWFileDialog::rowThatDoesNotExistPicksNothing()
{
    fill(QStringList() << "a.cnc");
    WFileDialog dialog(nullptr);
    dialog.nameEdit->setText(QLatin1String("typed"));
    dialog.openFileOfItem(1, 0);
    dialog.openFileOfItem(-1, 0);
    QCOMPARE(dialog.nameEdit->text(), QString("typed"));
    dialog.openFileOfItem(0, 99);
    QCOMPARE(dialog.nameEdit->text(), QString("a.cnc"));
}

void TestWFileDialog::okGivesTheNameAsItStands_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("a bare name") << "new.cnc";
    QTest::newRow("empty") << "";
    QTest::newRow("blanks") << "  ";
    QTest::newRow("no check, not even of a path") << "../x";
}

void TestWFileDialog::okGivesTheNameAsItStands()
{
    QFETCH(QString, name);
    fill(QStringList() << "a.cnc");
    ModalDriver driver;
    driver.then([name](QWidget *shown) {
        WFileDialog *dialog = qobject_cast<WFileDialog *>(shown);
        dialog->nameEdit->setText(name);
        QTest::mouseClick(dialog->applyButton, Qt::LeftButton);
        dialog->nameEdit->setText(QLatin1String("too late"));
    });
    WFileDialog dialog(nullptr);
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(dialog.fileName, name);
    QVERIFY2(driver.finished(), driver.report());
}

void TestWFileDialog::cancelGivesNothing()
{
    fill(QStringList() << "a.cnc");
    ModalDriver driver;
    driver.then([](QWidget *shown) {
        QTest::mouseClick(qobject_cast<WFileDialog *>(shown)->cancelButton, Qt::LeftButton);
    });
    WFileDialog dialog(nullptr);
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QVERIFY(dialog.fileName.isEmpty());
    QVERIFY2(driver.finished(), driver.report());
}

void TestWFileDialog::buttonsAreConnectedOnce()
{
    WFileDialog dialog(nullptr);
    QSignalSpy accepted(&dialog, SIGNAL(accepted()));
    QSignalSpy rejected(&dialog, SIGNAL(rejected()));
    dialog.show();
    dialog.applyButton->click();
    QCOMPARE(accepted.count(), 1);
    dialog.show();
    dialog.cancelButton->click();
    QCOMPARE(rejected.count(), 1);
    // Names of objects are what a connection by name would go by.
    QCOMPARE(dialog.applyButton->objectName(), QString());
    QCOMPARE(dialog.cancelButton->objectName(), QString());
}

void TestWFileDialog::nameIsThereWhenTheDialogSaysSo()
{
    WFileDialog dialog(nullptr);
    dialog.nameEdit->setText(QLatin1String("a.cnc"));
    NameReader reader(&dialog);
    dialog.applyButton->click();
    QCOMPARE(reader.name, QString("a.cnc"));
}

void TestWFileDialog::textPropertyHasNoOtherEffect()
{
    WFileDialog dialog(nullptr);
    QVERIFY(dialog.setProperty("text", QString("x")));
    QCOMPARE(dialog.property("text").toString(), QString("x"));
    QCOMPARE(dialog.text(), QString("x"));
    QCOMPARE(dialog.nameEdit->text(), QString());
    QVERIFY(dialog.fileName.isEmpty());
}

void TestWFileDialog::pressOpensTheKeypad()
{
    fill(QStringList() << "a.cnc");
    WFileDialog dialog(nullptr);
    dialog.show();
    DeviceLog::cancel();
    QTest::mousePress(dialog.nameEdit, Qt::LeftButton);
    QCOMPARE(DeviceLog::calls(), QStringList() << "HMIDeviceInfo.isTouchScreen"
                                               << "CharacterKeypad.instance"
                                               << "CharacterKeypad.setObject(WFileDialog)"
                                               << "CharacterKeypad.setValidator(null)"
                                               << "CharacterKeypad.setText(a.cnc)"
                                               << "CharacterKeypad.exec");
    QCOMPARE(DeviceLog::object().data(), static_cast<QObject *>(&dialog));
}

void TestWFileDialog::keypadTextIsTaken()
{
    fill(QStringList() << "a.cnc");
    WFileDialog dialog(nullptr);
    dialog.show();
    DeviceLog::acceptWith(QLatin1String("new.cnc"));
    QTest::mousePress(dialog.nameEdit, Qt::LeftButton);
    QCOMPARE(dialog.nameEdit->text(), QString("new.cnc"));
    QVERIFY(dialog.fileName.isEmpty());
    DeviceLog::acceptWith(QString());
    QTest::mousePress(dialog.nameEdit, Qt::LeftButton);
    QCOMPARE(dialog.nameEdit->text(), QString());
    QVERIFY(DeviceLog::calls().contains(QLatin1String("CharacterKeypad.setText(new.cnc)")));
    dialog.applyButton->click();
    QCOMPARE(dialog.fileName, QString());
}

void TestWFileDialog::keypadCancelLeavesTheName()
{
    fill(QStringList() << "a.cnc");
    WFileDialog dialog(nullptr);
    dialog.show();
    dialog.setText(QLatin1String("from an earlier time"));
    DeviceLog::cancel();
    QTest::mousePress(dialog.nameEdit, Qt::LeftButton);
    QCOMPARE(DeviceLog::answersLeft(), 0);
    QCOMPARE(dialog.nameEdit->text(), QString("a.cnc"));
}

void TestWFileDialog::everyButtonButTheRightOpensTheKeypad_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("opens");
    QTest::newRow("left") << int(Qt::LeftButton) << true;
    QTest::newRow("middle") << int(Qt::MidButton) << true;
    QTest::newRow("right") << int(Qt::RightButton) << false;
}

void TestWFileDialog::everyButtonButTheRightOpensTheKeypad()
{
    QFETCH(int, button);
    QFETCH(bool, opens);
    WFileDialog dialog(nullptr);
    dialog.show();
    if (opens)
        DeviceLog::acceptWith(QLatin1String("new.cnc"));
    QTest::mousePress(dialog.nameEdit, Qt::MouseButton(button));
    QCOMPARE(dialog.nameEdit->text(), QString::fromLatin1(opens ? "new.cnc" : ""));
    if (!opens)
        QCOMPARE(DeviceLog::calls(), QStringList() << "HMIDeviceInfo.isTouchScreen");
}

void TestWFileDialog::withoutATouchScreenTheFieldTakesTheKeys()
{
    DeviceLog::setTouchScreen(false);
    WFileDialog dialog(nullptr);
    dialog.show();
    QTest::mouseClick(dialog.nameEdit, Qt::LeftButton);
    QCOMPARE(DeviceLog::calls(), QStringList() << "HMIDeviceInfo.isTouchScreen");
    QTest::keyClicks(dialog.nameEdit, QLatin1String("typed.cnc"));
    QCOMPARE(dialog.nameEdit->text(), QString("typed.cnc"));
}

void TestWFileDialog::withoutAKeypadNothingHappens()
{
    fill(QStringList() << "a.cnc");
    DeviceLog::setInstanceAvailable(false);
    WFileDialog dialog(nullptr);
    dialog.show();
    QTest::mousePress(dialog.nameEdit, Qt::LeftButton);
    QCOMPARE(DeviceLog::calls(), QStringList() << "HMIDeviceInfo.isTouchScreen"
                                               << "CharacterKeypad.instance");
    QCOMPARE(dialog.nameEdit->text(), QString("a.cnc"));
}

void TestWFileDialog::pressStillReachesTheField()
{
    fill(QStringList() << "long-name.cnc");
    WFileDialog dialog(nullptr);
    dialog.show();
    QCOMPARE(dialog.nameEdit->cursorPosition(), 13);
    DeviceLog::cancel();
    QTest::mousePress(dialog.nameEdit, Qt::LeftButton, Qt::NoModifier, QPoint(1, 25));
    QCOMPARE(dialog.nameEdit->cursorPosition(), 0);
}

void TestWFileDialog::otherEventsAndObjectsOpenNothing()
{
    WFileDialog dialog(nullptr);
    QLineEdit other;
    QMouseEvent press(QEvent::MouseButtonPress, QPoint(1, 1), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QMouseEvent release(QEvent::MouseButtonRelease, QPoint(1, 1), Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    QMouseEvent twice(QEvent::MouseButtonDblClick, QPoint(1, 1), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QVERIFY(!dialog.eventFilter(nullptr, &press));
    QVERIFY(!dialog.eventFilter(&other, &press));
    QVERIFY(!dialog.eventFilter(dialog.applyButton, &press));
    QVERIFY(!dialog.eventFilter(dialog.nameEdit, &release));
    QVERIFY(!dialog.eventFilter(dialog.nameEdit, &twice));
    QCOMPARE(DeviceLog::calls(), QStringList());
}

FILARIX_TEST_MAIN(TestWFileDialog)
#include "tst_wfiledialog.moc"
