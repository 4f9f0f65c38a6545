// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "dialog.h"
#include "hmidirmodel.h"
#include "managerfixture.h"
#include "modaldriver.h"

#include <QBoxLayout>
#include <QSignalSpy>
#include <QTimer>

namespace {

const qint64 mebibyte = 1024 * 1024;
const qint64 limit = 31457280;
const qint64 fourGibibytes = Q_INT64_C(4294967296);

} // namespace

class TestImportManage : public ManagerTest
{
    Q_OBJECT

private Q_SLOTS:
    void isAnOrdinaryDialogWithTheFlagsAsked();
    void rowsStandAsLaidOut();
    void buttonsAndSizePolicies();
    void sizeComesFromTheLayout();
    void modelsListPlainFilesOnly();
    void everythingBelongsToTheDialog();
    void pathsAreFixedByTheConstructor();
    void timerIsRefusedItsSlotAndNeverStarts();
    void withoutInitThereIsNoRootAndNoStatus();

    void panelsShowPlainFilesOnly();
    void panelsAreReadAnewByInit();
    void initDropsTheSelection();
    void missingProgramDirectoryIsNoError();

    void markerDecidesOnTheStick_data();
    void markerDecidesOnTheStick();
    void usbTestsSetTheFlag();
    void mountWithoutMarkerHasNoRootAndSaysNotFound();
    void pulledStickLeavesTheTopLevel();
    void pluggedStickIsNoticedAtTheNextButtonPress();

    void usedSpace_data();
    void usedSpace();
    void usedSpaceOfALinkIsItsTargets();
    void usedSpaceOfAMissingDirectoryIsNone();
    void usedSpaceWrapsAt32Bits();

    void statusLine_data();
    void statusLine();
    void figuresUnitIsNotTranslated();

    void admission_data();
    void admission();
    void directoryIsRefusedBeforeAnySpaceIsCounted();
    void goneTargetIsUnexpected();
    void targetLargerThanAllThatIsUsedIsUnexpected();
    void missingSourceCountsAsEmpty();
    void sourceThatWrapsTheSumIsAdmitted();

    void quitRejects();
    void quitRejectsAsTheDerivedClassDoes();
};

void TestImportManage::isAnOrdinaryDialogWithTheFlagsAsked()
{
    Manager manager(false);
    QVERIFY(!qobject_cast<Dialog *>(&manager.dialog));
    QCOMPARE(QByteArray(manager.dialog.metaObject()->superClass()->className()),
             QByteArray("QDialog"));
    QDialog reference;
    reference.setWindowFlags(reference.windowFlags() & ~Qt::WindowTitleHint);
    QCOMPARE(manager.dialog.windowFlags(), reference.windowFlags());
    QWidget parent;
    ImportManage child(&parent);
    QCOMPARE(child.parentWidget(), &parent);
}

void TestImportManage::rowsStandAsLaidOut()
{
    Manager manager(false);
    QVBoxLayout *rows = qobject_cast<QVBoxLayout *>(manager.dialog.layout());
    QVERIFY(rows);
    QCOMPARE(rows->count(), 3);

    QHBoxLayout *titles = qobject_cast<QHBoxLayout *>(rows->itemAt(0)->layout());
    QVERIFY(titles);
    QCOMPARE(titles->count(), 2);
    QLabel *hmi = qobject_cast<QLabel *>(titles->itemAt(0)->widget());
    QLabel *usb = qobject_cast<QLabel *>(titles->itemAt(1)->widget());
    QVERIFY(hmi && usb);
    QCOMPARE(hmi->text(), QString("Hmi"));
    QCOMPARE(hmi->alignment(), QLabel().alignment());
    QCOMPARE(usb->text(), QString("Usb"));
    QCOMPARE(int(usb->alignment() & Qt::AlignHorizontal_Mask), int(Qt::AlignRight));

    QHBoxLayout *panels = qobject_cast<QHBoxLayout *>(rows->itemAt(1)->layout());
    QVERIFY(panels);
    QCOMPARE(panels->count(), 3);
    QCOMPARE(panels->itemAt(0)->widget(), static_cast<QWidget *>(manager.hmiView));
    QVBoxLayout *buttons = qobject_cast<QVBoxLayout *>(panels->itemAt(1)->layout());
    QVERIFY(buttons);
    QCOMPARE(panels->itemAt(2)->widget(), static_cast<QWidget *>(manager.usbView));
    QStringList texts;
    for (int i = 0; i < buttons->count(); ++i)
        texts << qobject_cast<QPushButton *>(buttons->itemAt(i)->widget())->text();
    QCOMPARE(texts, QStringList() << ">>"
                                  << "<<"
                                  << ">Del"
                                  << "Del<");

    QHBoxLayout *footer = qobject_cast<QHBoxLayout *>(rows->itemAt(2)->layout());
    QVERIFY(footer);
    QCOMPARE(footer->count(), 2);
    QCOMPARE(footer->itemAt(0)->widget(), static_cast<QWidget *>(manager.status));
    QCOMPARE(footer->itemAt(1)->widget(), static_cast<QWidget *>(manager.button("Quit")));
    QCOMPARE(manager.dialog.findChildren<QPushButton *>().size(), 5);
    QCOMPARE(manager.dialog.findChildren<QLabel *>().size(), 3);
}

void TestImportManage::buttonsAndSizePolicies()
{
    Manager manager(false);
    const QSizePolicy expanding(QSizePolicy::Expanding, QSizePolicy::Expanding);
    const char *const transfers[] = {">>", "<<", ">Del", "Del<"};
    for (const char *text : transfers) {
        QCOMPARE(manager.button(text)->sizePolicy().horizontalPolicy(),
                 expanding.horizontalPolicy());
        QCOMPARE(manager.button(text)->sizePolicy().verticalPolicy(), expanding.verticalPolicy());
    }
    QCOMPARE(manager.button("Quit")->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(manager.button("Quit")->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(manager.dialog.sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(manager.dialog.sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
}

void TestImportManage::sizeComesFromTheLayout()
{
    Manager manager(false);
    QVERIFY(!manager.dialog.testAttribute(Qt::WA_Resized));
    QCOMPARE(manager.dialog.minimumSize(), QSize(0, 0));
    QCOMPARE(manager.dialog.maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
}

void TestImportManage::modelsListPlainFilesOnly()
{
    Manager manager(false);
    QListView *const views[] = {manager.hmiView, manager.usbView};
    for (QListView *view : views) {
        HmiDirModel *model = qobject_cast<HmiDirModel *>(view->model());
        QVERIFY(model);
        QCOMPARE(int(model->filter()), int(QDir::Files | QDir::NoSymLinks | QDir::NoDotAndDotDot));
        QCOMPARE(model->nameFilters(), QStringList("*"));
    }
    QVERIFY(manager.hmiView->model() != manager.usbView->model());
}

void TestImportManage::everythingBelongsToTheDialog()
{
    Manager manager(false);
    Q_FOREACH (QWidget *widget, QList<QWidget *>()
                                    << manager.hmiView << manager.usbView << manager.status
                                    << manager.button(">>") << manager.button("<<")
                                    << manager.button(">Del") << manager.button("Del<")
                                    << manager.button("Quit"))
        QCOMPARE(widget->parentWidget(), static_cast<QWidget *>(&manager.dialog));
    QCOMPARE(manager.hmiView->model()->parent(), static_cast<QObject *>(&manager.dialog));
    QCOMPARE(manager.usbView->model()->parent(), static_cast<QObject *>(&manager.dialog));
}

void TestImportManage::pathsAreFixedByTheConstructor()
{
    Manager manager(false);
    QCOMPARE(manager.dialog.m_hmiDir, home() + "/cnc");
    QCOMPARE(manager.dialog.m_usbDir, stickDir());
    QVERIFY(!manager.dialog.m_usbPresent);
    QVERIFY(QFileInfo(home() + "/cnc").isDir());
}

void TestImportManage::timerIsRefusedItsSlotAndNeverStarts()
{
    Manager manager;
    QCOMPARE(StrictMessages::expectedSeen().size(), 1);
    const QList<QTimer *> timers = manager.dialog.findChildren<QTimer *>();
    QCOMPARE(timers.size(), 1);
    QVERIFY(!timers.first()->isActive());
    plugStick();
    pullStick();
    manager.dialog.m_usbPresent = true;
    QVERIFY(QMetaObject::invokeMethod(timers.first(), "start", Q_ARG(int, 1)));
    QSignalSpy ticks(timers.first(), SIGNAL(timeout()));
    QTRY_VERIFY(ticks.count() > 1);
    QVERIFY2(manager.dialog.m_usbPresent, "the timer reached the USB test");
}

void TestImportManage::withoutInitThereIsNoRootAndNoStatus()
{
    plugStick();
    Manager manager(false);
    QVERIFY(!manager.hmiView->rootIndex().isValid());
    QVERIFY(!manager.usbView->rootIndex().isValid());
    QCOMPARE(manager.status->text(), QString());
}

void TestImportManage::panelsShowPlainFilesOnly()
{
    plugStick();
    Q_FOREACH (const QString &dir, QStringList() << programDir() << stickDir()) {
        writeFile(dir + "/part.cnc", "G01\n");
        writeFile(dir + "/no suffix", "x");
        writeFile(dir + "/.hidden", "x");
        writeFile(dir + "/folder/inner.cnc", "x");
        QVERIFY(QFile::link(dir + "/part.cnc", dir + "/link.cnc"));
    }
    Manager manager;
    const QStringList files = QStringList() << "no suffix"
                                            << "part.cnc";
    QCOMPARE(Manager::shown(manager.hmiView), files);
    QCOMPARE(Manager::shown(manager.usbView), files);
}

void TestImportManage::panelsAreReadAnewByInit()
{
    plugStick();
    Manager manager;
    QCOMPARE(Manager::shown(manager.hmiView), QStringList());
    writeFile(programDir() + "/new.cnc", "x");
    writeFile(stickDir() + "/fresh.cnc", "x");
    manager.dialog.init();
    QCOMPARE(Manager::shown(manager.hmiView), QStringList("new.cnc"));
    QCOMPARE(Manager::shown(manager.usbView), QStringList("fresh.cnc"));
    QVERIFY(QFile::remove(programDir() + "/new.cnc"));
    manager.dialog.init();
    QCOMPARE(Manager::shown(manager.hmiView), QStringList());
}

void TestImportManage::initDropsTheSelection()
{
    plugStick();
    writeFile(programDir() + "/part.cnc", "x");
    writeFile(stickDir() + "/part.cnc", "x");
    Manager manager;
    QVERIFY(Manager::select(manager.hmiView, "part.cnc"));
    QVERIFY(Manager::select(manager.usbView, "part.cnc"));
    manager.dialog.init();
    QVERIFY(!manager.hmiView->currentIndex().isValid());
    QVERIFY(!manager.usbView->currentIndex().isValid());
}

void TestImportManage::missingProgramDirectoryIsNoError()
{
    Manager manager(false);
    QVERIFY(QDir().rmdir(home() + "/cnc"));
    manager.dialog.init();
    QCOMPARE(manager.status->text(), QString("Used Space 0M.Left Space 30M. Usb not found!"));
    // The one entry of the top level is out of sight.
    QCOMPARE(manager.hmiView->model()->rowCount(manager.hmiView->rootIndex()), 1);
    QVERIFY(manager.hmiView->isRowHidden(0));
    // The view shows programs again once there are any.
    writeFile(programDir() + "/a.cnc", "G01");
    manager.dialog.init();
    QCOMPARE(Manager::shown(manager.hmiView), QStringList("a.cnc"));
    QVERIFY(!manager.hmiView->isRowHidden(0));
}

void TestImportManage::markerDecidesOnTheStick_data()
{
    QTest::addColumn<bool>("mounted");
    QTest::addColumn<bool>("marked");
    QTest::newRow("no stick") << false << false;
    QTest::newRow("mounted, no marker") << true << false;
    QTest::newRow("marker, not mounted") << false << true;
    QTest::newRow("mounted and marked") << true << true;
}

void TestImportManage::markerDecidesOnTheStick()
{
    QFETCH(bool, mounted);
    QFETCH(bool, marked);
    if (!mounted)
        pullStick();
    if (marked)
        writeFile(marker(), "");
    Manager manager;
    QCOMPARE(manager.dialog.m_usbPresent, marked);
    QCOMPARE(manager.status->text().endsWith(" Usb not found!"), !marked);
    QCOMPARE(manager.usbView->rootIndex().isValid(), mounted && marked);
    QCOMPARE(manager.dialog.isUsbMounted(), marked);
    QCOMPARE(QFile::exists(marker()), marked);
    QCOMPARE(QFile::exists(stickDir()), mounted);
}

void TestImportManage::usbTestsSetTheFlag()
{
    Manager manager(false);
    pullStick();
    manager.dialog.m_usbPresent = true;
    manager.dialog.slot_checkUSB();
    QVERIFY(!manager.dialog.m_usbPresent);
    QDir().mkpath(stickDir());
    manager.dialog.slot_checkUSB();
    QVERIFY(manager.dialog.m_usbPresent);
    // A plain file of that name is no mount directory.
    pullStick();
    writeFile(stickDir(), "x");
    manager.dialog.slot_checkUSB();
    QVERIFY(!manager.dialog.m_usbPresent);
    QVERIFY(QFile::remove(stickDir()));

    QVERIFY(!manager.dialog.isUsbMounted());
    QVERIFY(!manager.dialog.m_usbPresent);
    writeFile(marker(), "");
    QVERIFY(manager.dialog.isUsbMounted());
    QVERIFY(manager.dialog.m_usbPresent);
}

// The copy slots ask for the mount directory and go ahead; see the tests of the commands.
void TestImportManage::mountWithoutMarkerHasNoRootAndSaysNotFound()
{
    writeFile(stickDir() + "/part.cnc", "x");
    Manager manager;
    QVERIFY(manager.status->text().endsWith(" Usb not found!"));
    QVERIFY(!manager.usbView->rootIndex().isValid());
    QVERIFY(!Manager::shown(manager.usbView).contains("part.cnc"));
}

void TestImportManage::pulledStickLeavesTheTopLevel()
{
    plugStick();
    writeFile(stickDir() + "/part.cnc", "x");
    Manager manager;
    QCOMPARE(Manager::shown(manager.usbView), QStringList("part.cnc"));
    pullStick();
    manager.dialog.init();
    QVERIFY(!manager.usbView->rootIndex().isValid());
    QCOMPARE(Manager::shown(manager.usbView), QStringList("/"));
    plugStick();
    writeFile(stickDir() + "/other.cnc", "x");
    manager.dialog.init();
    QCOMPARE(Manager::shown(manager.usbView), QStringList("other.cnc"));
}

void TestImportManage::pluggedStickIsNoticedAtTheNextButtonPress()
{
    pullStick();
    Manager manager;
    manager.dialog.show();
    plugStick();
    writeFile(stickDir() + "/part.cnc", "x");
    QCoreApplication::processEvents();
    QVERIFY(manager.status->text().endsWith(" Usb not found!"));

    ModalDriver driver;
    driver.press(QMessageBox::Ok);
    manager.button("Del<")->click();
    QVERIFY2(driver.finished(), driver.report());
    QVERIFY(!manager.status->text().endsWith(" Usb not found!"));
    QCOMPARE(Manager::shown(manager.usbView), QStringList("part.cnc"));
}

void TestImportManage::usedSpace_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<quint32>("used");
    QTest::newRow("no file") << QStringList() << quint32(0);
    QTest::newRow("one file") << QStringList("part.cnc") << quint32(1000);
    QTest::newRow("any suffix") << (QStringList() << "a"
                                                  << "b.cnc"
                                                  << "c d.txt")
                                << quint32(3000);
    QTest::newRow("hidden files don't count") << (QStringList() << "a"
                                                                << ".b")
                                              << quint32(1000);
    QTest::newRow("subdirectories are not entered") << (QStringList() << "a"
                                                                      << "folder/b")
                                                    << quint32(1000);
}

void TestImportManage::usedSpace()
{
    QFETCH(QStringList, names);
    Q_FOREACH (const QString &name, names)
        writeFile(programDir() + '/' + name, QByteArray(1000, 'x'));
    Manager manager(false);
    QTEST(manager.dialog.fontUsedSpace(), "used");
}

void TestImportManage::usedSpaceOfALinkIsItsTargets()
{
    writeFile(home() + "/elsewhere.cnc", QByteArray(700, 'x'));
    QDir().mkpath(home() + "/folder");
    QVERIFY(QFile::link(home() + "/elsewhere.cnc", programDir() + "/link.cnc"));
    QVERIFY(QFile::link(home() + "/nowhere.cnc", programDir() + "/broken.cnc"));
    QVERIFY(QFile::link(home() + "/folder", programDir() + "/folder"));
    Manager manager;
    QCOMPARE(manager.dialog.fontUsedSpace(), quint32(700));
    QCOMPARE(Manager::shown(manager.hmiView), QStringList());
}

void TestImportManage::usedSpaceOfAMissingDirectoryIsNone()
{
    writeFile(programDir() + "/part.cnc", "x");
    Manager manager(false);
    emptyFolder(home());
    QCOMPARE(manager.dialog.fontUsedSpace(), quint32(0));
}

void TestImportManage::usedSpaceWrapsAt32Bits()
{
    writeSparse(programDir() + "/huge.cnc", fourGibibytes);
    writeFile(programDir() + "/part.cnc", QByteArray(5, 'x'));
    Manager manager(false);
    QCOMPARE(manager.dialog.fontUsedSpace(), quint32(5));
}

void TestImportManage::statusLine_data()
{
    QTest::addColumn<qint64>("used");
    QTest::addColumn<bool>("stick");
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing, with a stick")
        << Q_INT64_C(0) << true << "Used Space 0M.Left Space 30M.";
    QTest::newRow("nothing, no stick")
        << Q_INT64_C(0) << false << "Used Space 0M.Left Space 30M. Usb not found!";
    // Both figures are cut: they need not add up to 30.
    QTest::newRow("one byte") << Q_INT64_C(1) << true << "Used Space 0M.Left Space 29M.";
    QTest::newRow("1.9 MiB shows as 1")
        << qint64(1.9 * mebibyte) << true << "Used Space 1M.Left Space 28M.";
    QTest::newRow("just below 2 MiB")
        << 2 * mebibyte - 1 << true << "Used Space 1M.Left Space 28M.";
    QTest::newRow("2 MiB") << 2 * mebibyte << true << "Used Space 2M.Left Space 28M.";
    QTest::newRow("full") << limit << true << "Used Space 30M.Left Space 0M.";
    QTest::newRow("one byte over wraps") << limit + 1 << true << "Used Space 30M.Left Space 4095M.";
    QTest::newRow("40 MiB wraps, no stick")
        << 40 * mebibyte << false << "Used Space 40M.Left Space 4086M. Usb not found!";
}

void TestImportManage::statusLine()
{
    QFETCH(qint64, used);
    QFETCH(bool, stick);
    if (stick)
        plugStick();
    writeSparse(programDir() + "/part.cnc", used);
    Manager manager;
    QTEST(manager.status->text(), "text");
}

void TestImportManage::figuresUnitIsNotTranslated()
{
    const TestCompat::MarkingTranslator translator("ImportManage");
    Manager manager;
    const QString status = manager.status->text();
    QStringList buttons;
    Q_FOREACH (QPushButton *button, manager.dialog.findChildren<QPushButton *>())
        buttons << button->text();
    QCOMPARE(status, QString("Used Space *0M.Left Space *30M. Usb not found!*"));
    QCOMPARE(buttons.join(" "), QString(">>* <<* >Del* Del<* Quit*"));
}

void TestImportManage::admission_data()
{
    QTest::addColumn<qint64>("others");
    QTest::addColumn<qint64>("target");
    QTest::addColumn<qint64>("source");
    QTest::addColumn<int>("condition");
    const int ok = ImportManage::CondOk;
    const int noSpace = ImportManage::CondNoSpace;
    const qint64 none = -1;
    QTest::newRow("new, one byte under") << limit - 101 << none << Q_INT64_C(100) << ok;
    QTest::newRow("new, on the limit") << limit - 100 << none << Q_INT64_C(100) << ok;
    QTest::newRow("new, one byte over") << limit - 99 << none << Q_INT64_C(100) << noSpace;
    QTest::newRow("new, alone on the limit") << Q_INT64_C(0) << none << limit << ok;
    QTest::newRow("new, alone over the limit") << Q_INT64_C(0) << none << limit + 1 << noSpace;
    QTest::newRow("new, empty, side already full") << limit << none << Q_INT64_C(0) << ok;
    QTest::newRow("new, empty, side already over") << limit + 1 << none << Q_INT64_C(0) << noSpace;
    QTest::newRow("cover, one byte under") << limit - 200 << Q_INT64_C(50) << Q_INT64_C(199) << ok;
    QTest::newRow("cover, on the limit") << limit - 200 << Q_INT64_C(50) << Q_INT64_C(200) << ok;
    QTest::newRow("cover, one byte over")
        << limit - 200 << Q_INT64_C(50) << Q_INT64_C(201) << noSpace;
    QTest::newRow("cover with a larger one is judged on the difference")
        << 10 * mebibyte << 18 * mebibyte << 20 * mebibyte << ok;
    QTest::newRow("cover by a smaller one that leaves the side over")
        << limit + 10 << Q_INT64_C(50) << Q_INT64_C(1) << noSpace;
}

void TestImportManage::admission()
{
    QFETCH(qint64, others);
    QFETCH(qint64, target);
    QFETCH(qint64, source);
    writeSparse(programDir() + "/others.cnc", others);
    if (target >= 0)
        writeSparse(programDir() + "/part.cnc", target);
    writeSparse(stickDir() + "/part.cnc", source);
    Manager manager(false);
    QTEST(manager.dialog.isSatisfyTheCondition("part.cnc", target >= 0), "condition");
}

void TestImportManage::directoryIsRefusedBeforeAnySpaceIsCounted()
{
    QDir().mkpath(stickDir() + "/folder");
    writeSparse(programDir() + "/others.cnc", limit + 1);
    Manager manager(false);
    QCOMPARE(manager.dialog.isSatisfyTheCondition("folder", false), int(ImportManage::CondIsDir));
    QCOMPARE(manager.dialog.isSatisfyTheCondition("folder", true), int(ImportManage::CondIsDir));
}

void TestImportManage::goneTargetIsUnexpected()
{
    writeFile(stickDir() + "/part.cnc", "x");
    Manager manager(false);
    QCOMPARE(manager.dialog.isSatisfyTheCondition("part.cnc", true),
             int(ImportManage::CondUnexpected));
    QCOMPARE(manager.dialog.isSatisfyTheCondition("part.cnc", false), int(ImportManage::CondOk));
}

void TestImportManage::targetLargerThanAllThatIsUsedIsUnexpected()
{
    // A hidden file is no part of the used space.
    writeFile(stickDir() + "/.part", "x");
    writeFile(programDir() + "/.part", QByteArray(100, 'x'));
    writeFile(programDir() + "/others.cnc", QByteArray(99, 'x'));
    Manager manager(false);
    QCOMPARE(manager.dialog.isSatisfyTheCondition(".part", true),
             int(ImportManage::CondUnexpected));
    writeFile(programDir() + "/others.cnc", QByteArray(100, 'x'));
    QCOMPARE(manager.dialog.isSatisfyTheCondition(".part", true), int(ImportManage::CondOk));
    // A file past 32 bits is larger than the wrapped sum that holds it.
    writeFile(stickDir() + "/huge", "x");
    writeSparse(programDir() + "/huge", fourGibibytes + 7);
    QCOMPARE(manager.dialog.isSatisfyTheCondition("huge", true), int(ImportManage::CondUnexpected));
}

void TestImportManage::missingSourceCountsAsEmpty()
{
    Manager manager(false);
    QCOMPARE(manager.dialog.isSatisfyTheCondition("gone.cnc", false), int(ImportManage::CondOk));
    writeSparse(programDir() + "/others.cnc", limit + 1);
    QCOMPARE(manager.dialog.isSatisfyTheCondition("gone.cnc", false),
             int(ImportManage::CondNoSpace));
}

void TestImportManage::sourceThatWrapsTheSumIsAdmitted()
{
    writeFile(programDir() + "/others.cnc", QByteArray(1000, 'x'));
    Manager manager(false);
    writeSparse(stickDir() + "/huge.cnc", fourGibibytes - 1001);
    QCOMPARE(manager.dialog.isSatisfyTheCondition("huge.cnc", false),
             int(ImportManage::CondNoSpace));
    writeSparse(stickDir() + "/huge.cnc", fourGibibytes - 1000);
    QCOMPARE(manager.dialog.isSatisfyTheCondition("huge.cnc", false), int(ImportManage::CondOk));
    writeSparse(stickDir() + "/huge.cnc", fourGibibytes + 20 * mebibyte);
    QCOMPARE(manager.dialog.isSatisfyTheCondition("huge.cnc", false), int(ImportManage::CondOk));
}

void TestImportManage::quitRejects()
{
    Manager manager;
    ModalDriver driver;
    driver.then([&manager](QWidget *) { manager.button("Quit")->click(); });
    QCOMPARE(manager.dialog.exec(), int(QDialog::Rejected));
    QVERIFY2(driver.finished(), driver.report());
}

namespace {

class StayingManager : public ImportManage
{
public:
    StayingManager() : ImportManage(nullptr) {}
    void reject() override { ++rejections; }
    int rejections = 0;
};

} // namespace

void TestImportManage::quitRejectsAsTheDerivedClassDoes()
{
    StayingManager manager;
    manager.show();
    manager.slot_quit();
    QCOMPARE(manager.rejections, 1);
    QVERIFY(manager.isVisible());
}

FILARIX_TEST_MAIN(TestImportManage)
#include "tst_importmanage.moc"
