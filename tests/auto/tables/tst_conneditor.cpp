// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "combolineedit.h"
#include "conneditor.h"
#include "dataeditor.h"
#include "devicelog.h"
#include "dialog.h"
#include "filarixtest.h"
#include "listwidget.h"
#include "modaldriver.h"

#include <QApplication>
#include <QBoxLayout>
#include <QDesktopWidget>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMap>
#include <QPushButton>
#include <QRegExpValidator>
#include <QScrollArea>
#include <QScrollBar>
#include <QSettings>
#include <QSignalSpy>

#include <random>

namespace {

const char deviceFile[] = "/usr/share/qt/bin/settingex.ini";

/// A connection table as the operator sees it.
struct Table
{
    explicit Table(const QString &path, bool ready = true) : dialog(path, nullptr)
    {
        area = dialog.findChild<QScrollArea *>();
        list = static_cast<ListWidget *>(area->widget());
        ok = dialog.findChildren<QPushButton *>().value(0);
        cancel = dialog.findChildren<QPushButton *>().value(1);
        if (ready)
            dialog.init_list();
    }

    DataEditor *row(int place) const { return qobject_cast<DataEditor *>(list->itemAt(place)); }
    /// The cells of connection \a number, with blanks between.
    QString connection(int number) const
    {
        DataEditor *editor = row(number + 1);
        return editor ? QStringList(editor->getData()).join(QLatin1String(" ")) : QString();
    }
    QString address(int number) const { return row(number + 1)->getData().last(); }
    ComboLineEdit *field(int number) const { return row(number + 1)->findChild<ComboLineEdit *>(); }
    /// What the numeric keypad gives for the address of connection \a number.
    void enter(int number, const QString &address) const
    {
        DeviceLog::acceptWith(address);
        QTest::mouseClick(field(number), Qt::LeftButton);
    }

    ConnEditor dialog;
    QScrollArea *area;
    ListWidget *list;
    QPushButton *ok;
    QPushButton *cancel;
};

/// The keys that hold no address. It reads all of the file: a lone value() may overlook a key that
/// holds a slash.
QStringList otherKeys(const QSettings &settings)
{
    QStringList keys;
    Q_FOREACH (const QString &key, settings.allKeys()) {
        if (!key.endsWith("new IP"))
            keys << key;
    }
    keys.sort();
    return keys;
}

/// Keys with a slash too many can stand in a file, but the toolkit itself renames them whenever it
/// writes one.
bool areNamable(const QStringList &keys)
{
    Q_FOREACH (const QString &key, keys) {
        if (key.startsWith('/') || key.endsWith('/') || key.contains("//"))
            return false;
    }
    return true;
}

} // namespace

class TestConnEditor : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void isAnOrdinaryDialogWithATitle();
    void layoutStandsAsLaidOut();
    void screenDecidesOnTheSize();
    void highButtonsAreAskedFor();
    void textsAreTranslatedInTheClassesContext();
    void withoutInitListThereIsNoRow();
    void rowsNeedNoScrollingSideways();

    void headerIsATitleRow();
    void connectionRowsHaveOneFieldToEdit();
    void fileWithoutConnectionsShowsTheHeaderAlone_data();
    void fileWithoutConnectionsShowsTheHeaderAlone();
    void okOnAFileWithoutConnectionsWritesNothing();
    void missingKeysHaveDefaults();
    void keysAreReadByNumber();
    void portIsMappedForDisplay_data();
    void portIsMappedForDisplay();
    void baudIsCorrectedForDisplay_data();
    void baudIsCorrectedForDisplay();
    void defaultAddress_data();
    void defaultAddress();
    void storedAddressIsShown_data();
    void storedAddressIsShown();

    void portOfAnAddressIsTakenOffAtOnce_data();
    void portOfAnAddressIsTakenOffAtOnce();
    void repairStaysWhenCancelled();
    void nothingIsWrittenWithoutARepair();

    void addressIsEnteredOnTheNumericKeypad();
    void okStoresTheAddressesAndNothingElse();
    void shownDefaultIsStoredByOk();
    void partlyTypedAddressIsStoredAsTyped();
    void okAndCancelEndAsTheDerivedClassDoes();
    void addressesAreInTheFileWhenOkIsTold();
    void cancelStoresNothing();
    void connectionsOfOneNameShareTheAddress();
    void connectionWithoutANameHasTheBareKey();
    void nameMayHoldAnything_data();
    void nameMayHoldAnything();
    void namesAreReadAgainAtOk();
    void initListAgainBuildsTheListAnew();

    void unreadableFileShowsTheHeaderAlone();
    void unwritableFileIsNotReported();
    void tableIsCutAtAThousandConnections();
    void damagedFilesKeepEveryKeyButTheAddresses();
    void hugeFileKeepsItsKeys();

private:
    /// A file of INI lines whose keys may hold blanks. Each gets a name of its own, for the toolkit
    /// remembers what it read.
    QString writeTable(const QStringList &lines);
    QString nextPath();
    /// What the file holds by now, key=value, sorted.
    QStringList stored(const QString &path);

    int m_files = 0;
};

void TestConnEditor::init()
{
    FilarixTest::init();
    QFile::remove(deviceFile);
    DeviceLog::reset();
}

void TestConnEditor::cleanup()
{
    QFile::remove(deviceFile);
    QCOMPARE(DeviceLog::answersLeft(), 0);
    FilarixTest::cleanup();
}

QString TestConnEditor::nextPath()
{
    return home() + QString::fromLatin1("/connections%1.ini").arg(++m_files);
}

QString TestConnEditor::writeTable(const QStringList &lines)
{
    QByteArray bytes = "[General]\n";
    Q_FOREACH (const QString &line, lines) {
        const int equals = line.indexOf('=');
        bytes += line.left(equals).replace(' ', "%20").toUtf8() + line.mid(equals).toUtf8() + '\n';
    }
    const QString path = nextPath();
    writeFile(path, bytes);
    return path;
}

QStringList TestConnEditor::stored(const QString &path)
{
    const QString copy = nextPath();
    QFile::copy(path, copy);
    const QSettings settings(copy, QSettings::IniFormat);
    QStringList result;
    Q_FOREACH (const QString &key, settings.allKeys())
        result << key + '=' + settings.value(key).toString();
    result.sort();
    return result;
}

void TestConnEditor::isAnOrdinaryDialogWithATitle()
{
    Table table(nextPath());
    QCOMPARE(table.dialog.windowTitle(), QString("Connect Table"));
    QCOMPARE(QByteArray(table.dialog.metaObject()->superClass()->className()),
             QByteArray("QDialog"));
    QCOMPARE(table.dialog.windowFlags(), QDialog().windowFlags());
    QWidget parent;
    QCOMPARE(ConnEditor("x", &parent).parentWidget(), &parent);
}

void TestConnEditor::layoutStandsAsLaidOut()
{
    Table table(nextPath());
    QVBoxLayout *rows = qobject_cast<QVBoxLayout *>(table.dialog.layout());
    QVERIFY(rows);
    QCOMPARE(rows->count(), 3);
    QCOMPARE(rows->itemAt(0)->widget(), static_cast<QWidget *>(table.area));
    QVERIFY(table.area->widgetResizable());
    QVERIFY(rows->itemAt(1)->spacerItem());
    QCOMPARE(rows->itemAt(1)->sizeHint().height(), 10);
    QHBoxLayout *buttons = qobject_cast<QHBoxLayout *>(rows->itemAt(2)->layout());
    QVERIFY(buttons);
    QCOMPARE(buttons->count(), 2);
    QCOMPARE(buttons->itemAt(0)->widget(), static_cast<QWidget *>(table.ok));
    QCOMPARE(buttons->itemAt(1)->widget(), static_cast<QWidget *>(table.cancel));
    QCOMPARE(table.ok->text(), QString("OK"));
    QCOMPARE(table.cancel->text(), QString("Cancel"));
}

// Runs on screens of several sizes.
void TestConnEditor::screenDecidesOnTheSize()
{
    const QSize screen = QApplication::desktop()->availableGeometry(-1).size();
    QMap<int, int> widths;
    widths[1024] = 680;
    widths[800] = 680;
    widths[799] = 440;
    widths[480] = 440;
    widths[479] = 479;
    widths[320] = 320;
    QVERIFY2(widths.contains(screen.width()), QByteArray::number(screen.width()));
    const int width = widths.value(screen.width());

    Table table(writeTable(QStringList("connect count=1")));
    QCOMPARE(table.dialog.minimumSize(), QSize(width, 2 * screen.height() / 3));
    QCOMPARE(table.dialog.maximumSize(), QSize(width, 2 * screen.height() / 3));
    const QSize button(width / 3, screen.height() / 13);
    QPushButton *const buttons[] = {table.ok, table.cancel};
    for (QPushButton *each : buttons) {
        QCOMPARE(each->minimumSize(), button);
        QCOMPARE(each->maximumSize(), button);
    }
    for (int place = 0; place < 2; ++place) {
        QCOMPARE(table.row(place)->height(), int(screen.height() * 1.04 / 24));
        QCOMPARE(table.row(place)->findChildren<QLabel *>().first()->width(),
                 int((float(width) + 11.0f * 0.5f) / 11.0f - 2.0f));
    }
}

void TestConnEditor::highButtonsAreAskedFor()
{
    const int height = QApplication::desktop()->availableGeometry(-1).height();
    Table table(nextPath());
    const int width = table.ok->width();
    table.dialog.settp04button();
    QCOMPARE(table.ok->size(), QSize(width, height / 9));
    QCOMPARE(table.cancel->size(), QSize(width, height / 9));
    QCOMPARE(table.ok->minimumHeight(), height / 9);
    QCOMPARE(table.ok->maximumHeight(), height / 9);
}

void TestConnEditor::textsAreTranslatedInTheClassesContext()
{
    const TestCompat::MarkingTranslator translator("ConnEditor");
    Table table(nextPath());
    QCOMPARE(table.dialog.windowTitle(), QString("Connect Table*"));
    QCOMPARE(table.ok->text(), QString("OK*"));
    QCOMPARE(table.cancel->text(), QString("Cancel*"));
    QCOMPARE(table.row(0)->getData(), QStringList() << "Cid*"
                                                    << "Port*"
                                                    << "CPU Addr*"
                                                    << "Baud*"
                                                    << "IP*");
}

void TestConnEditor::withoutInitListThereIsNoRow()
{
    Table table(writeTable(QStringList("connect count=2")), false);
    QCOMPARE(table.list->count(), 0);
}

void TestConnEditor::rowsNeedNoScrollingSideways()
{
    Table table(writeTable(QStringList("connect count=3")));
    table.dialog.show();
    QVERIFY(TestCompat::waitForExposed(&table.dialog));
    QCOMPARE(table.area->horizontalScrollBar()->maximum(), 0);
}

void TestConnEditor::headerIsATitleRow()
{
    Table table(writeTable(QStringList("connect count=1")));
    QVERIFY(table.row(0)->isTitle());
    QCOMPARE(table.row(0)->getData(), QStringList() << "Cid"
                                                    << "Port"
                                                    << "CPU Addr"
                                                    << "Baud"
                                                    << "IP");
    const QList<QLabel *> labels = table.row(0)->findChildren<QLabel *>();
    QCOMPARE(labels.size(), 5);
    Q_FOREACH (QLabel *label, labels)
        QCOMPARE(QByteArray(label->metaObject()->className()), QByteArray("QLabel"));
}

void TestConnEditor::connectionRowsHaveOneFieldToEdit()
{
    Table table(writeTable(QStringList("connect count=1")));
    DataEditor *row = table.row(1);
    QVERIFY(!row->isTitle());
    const QList<QLabel *> labels = row->findChildren<QLabel *>();
    QCOMPARE(labels.size(), 4);
    Q_FOREACH (QLabel *label, labels)
        QCOMPARE(QByteArray(label->metaObject()->className()), QByteArray("QLabel"));
    QCOMPARE(row->findChildren<ComboLineEdit *>().size(), 1);
    QVERIFY(table.field(0)->isNumeric());
    QVERIFY(qobject_cast<const QRegExpValidator *>(table.field(0)->validator()));
}

void TestConnEditor::fileWithoutConnectionsShowsTheHeaderAlone_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("no file") << QByteArray();
    QTest::newRow("empty file") << QByteArray("");
    QTest::newRow("no count") << QByteArray("[General]\nConnect%200=PLC\nConnect%200%20com=3\n");
    QTest::newRow("count 0") << QByteArray("[General]\nconnect%20count=0\nConnect%200=PLC\n");
    QTest::newRow("count below 0") << QByteArray("[General]\nconnect%20count=-1\n");
    QTest::newRow("count is no number") << QByteArray("[General]\nconnect%20count=many\n");
    QTest::newRow("count in a group") << QByteArray("[Other]\nconnect%20count=2\n");
}

void TestConnEditor::fileWithoutConnectionsShowsTheHeaderAlone()
{
    QFETCH(QByteArray, bytes);
    const QString path = nextPath();
    if (!bytes.isNull())
        writeFile(path, bytes);
    Table table(path);
    QCOMPARE(table.list->count(), 1);
    QVERIFY(table.row(0)->isTitle());
    table.dialog.show();
    QVERIFY(table.list->isVisible());
    QVERIFY(table.row(0)->isVisible());
}

void TestConnEditor::okOnAFileWithoutConnectionsWritesNothing()
{
    const QString path = writeTable(QStringList() << "Connect 0=PLC"
                                                  << "PLCnew IP=10.0.0.1:502");
    const QByteArray before = readFile(path);
    Table table(path);
    ModalDriver driver;
    driver.then([&table](QWidget *) { table.ok->click(); });
    QCOMPARE(table.dialog.exec(), int(QDialog::Accepted));
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(readFile(path), before);

    const QString missing = nextPath();
    Table empty(missing);
    empty.dialog.show();
    empty.ok->click();
    QCOMPARE(empty.dialog.result(), int(QDialog::Accepted));
    QVERIFY(!empty.dialog.isVisible());
    QVERIFY(!QFile::exists(missing));
}

void TestConnEditor::missingKeysHaveDefaults()
{
    Table table(writeTable(QStringList("connect count=2")));
    QCOMPARE(table.list->count(), 3);
    QCOMPARE(table.connection(0), QString("0 0 0 0 192.168.1.1"));
    QCOMPARE(table.connection(1), QString("0 0 0 0 192.168.1.1"));
}

void TestConnEditor::keysAreReadByNumber()
{
    Table table(writeTable(QStringList() << "connect count=2"
                                         << "Connect 0=PLC"
                                         << "Connect 0 cid=11"
                                         << "Connect 0 baud=19200"
                                         << "Connect 0 addr=7"
                                         << "Connect 0 com=4"
                                         << "PLCnew IP=10.0.0.1"
                                         << "Connect 1=Servo"
                                         << "Connect 1 cid=-2"
                                         << "Connect 1 baud=fast"
                                         << "Connect 1 addr=255"
                                         << "Connect 1 com=2"
                                         << "Servonew IP=10.0.0.2"
                                         << "Connect 2=Behind the count"));
    QCOMPARE(table.list->count(), 3);
    QCOMPARE(table.connection(0), QString("11 4 7 19200 10.0.0.1"));
    QCOMPARE(table.connection(1), QString("-2 2 255 0 10.0.0.2"));
}

void TestConnEditor::portIsMappedForDisplay_data()
{
    QTest::addColumn<QString>("com");
    QTest::addColumn<QString>("port");
    QTest::newRow("0 shows as 1") << "0"
                                  << "1";
    QTest::newRow("1 shows as 0") << "1"
                                  << "0";
    QTest::newRow("2 as itself") << "2"
                                 << "2";
    QTest::newRow("3 as itself") << "3"
                                 << "3";
    QTest::newRow("large as itself") << "2147483647"
                                     << "2147483647";
    QTest::newRow("negative as 0") << "-1"
                                   << "0";
    QTest::newRow("very negative as 0") << "-2147483648"
                                        << "0";
    QTest::newRow("text counts as 0") << "usb"
                                      << "1";
}

void TestConnEditor::portIsMappedForDisplay()
{
    QFETCH(QString, com);
    const QString path = writeTable(QStringList() << "connect count=1"
                                                  << "Connect 0 com=" + com);
    Table table(path);
    QTEST(table.row(1)->getData().at(1), "port");
    table.ok->click();
    QVERIFY(stored(path).contains("Connect 0 com=" + com));
}

void TestConnEditor::baudIsCorrectedForDisplay_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("shown");
    QTest::newRow("the one that no port knows") << "187600"
                                                << "187500";
    QTest::newRow("the right one") << "187500"
                                   << "187500";
    QTest::newRow("one below") << "187599"
                               << "187599";
    QTest::newRow("one above") << "187601"
                               << "187601";
}

void TestConnEditor::baudIsCorrectedForDisplay()
{
    QFETCH(QString, stored);
    const QString path = writeTable(QStringList() << "connect count=1"
                                                  << "Connect 0 baud=" + stored);
    Table table(path);
    QTEST(table.row(1)->getData().at(3), "shown");
    table.ok->click();
    QVERIFY(this->stored(path).contains("Connect 0 baud=" + stored));
}

void TestConnEditor::defaultAddress_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("com");
    QTest::addColumn<int>("baud");
    QTest::addColumn<QString>("device");
    QTest::addColumn<QString>("address");
    const QString none;
    const QString yes = "RT5350=true\n";
    const QString no = "RT5350=false\n";
    QTest::newRow("com 1") << "PLC" << 1 << 9600 << none << "192.168.1.1";
    QTest::newRow("com 3") << "PLC" << 3 << 0 << none << "192.168.1.3";
    QTest::newRow("com 3, device of its own network") << "PLC" << 3 << 9600 << yes << "192.168.1.3";
    QTest::newRow("com 300, no address at all") << "PLC" << 300 << 0 << none << "192.168.1.300";
    QTest::newRow("negative com, raw") << "PLC" << -2 << 0 << none << "192.168.1.-2";
    QTest::newRow("com 0, no baud: the name") << "10.1.2.3" << 0 << 0 << none << "10.1.2.3";
    QTest::newRow("com 0, no baud: the name up to the colon")
        << "10.1.2.3:502:1" << 0 << 0 << none << "10.1.2.3";
    QTest::newRow("com 0, no baud, device has no effect")
        << "10.1.2.3" << 0 << 0 << yes << "10.1.2.3";
    QTest::newRow("com 0, no baud, no name") << "" << 0 << 0 << none << "";
    QTest::newRow("com 0, baud, no device file") << "PLC" << 0 << 9600 << none << "127.0.0.1";
    QTest::newRow("com 0, baud, device false") << "PLC" << 0 << 9600 << no << "127.0.0.1";
    QTest::newRow("com 0, baud, device true") << "PLC" << 0 << 9600 << yes << "192.168.125.1";
    QTest::newRow("com 0, baud, device 1") << "PLC" << 0 << 9600 << "RT5350=1\n"
                                           << "192.168.125.1";
    QTest::newRow("com 0, negative baud") << "PLC" << 0 << -1 << yes << "192.168.125.1";
}

void TestConnEditor::defaultAddress()
{
    QFETCH(QString, name);
    QFETCH(int, com);
    QFETCH(int, baud);
    QFETCH(QString, device);
    if (!device.isNull())
        writeFile(deviceFile, "[General]\n" + device.toLatin1());
    const QByteArray deviceBefore = readFile(deviceFile);
    const QString path =
        writeTable(QStringList() << "connect count=1"
                                 << "Connect 0=" + name << "Connect 0 com=" + QString::number(com)
                                 << "Connect 0 baud=" + QString::number(baud));
    const QByteArray before = readFile(path);
    {
        Table table(path);
        QTEST(table.address(0), "address");
    }
    // A default is shown, not stored; and the panel's own file is never written.
    QCOMPARE(readFile(path), before);
    QCOMPARE(readFile(deviceFile), deviceBefore);
}

void TestConnEditor::storedAddressIsShown_data()
{
    QTest::addColumn<QString>("com");
    QTest::newRow("com 0") << "0";
    QTest::newRow("com 1") << "1";
    QTest::newRow("com 5") << "5";
}

void TestConnEditor::storedAddressIsShown()
{
    QFETCH(QString, com);
    Table table(writeTable(QStringList() << "connect count=1"
                                         << "Connect 0=PLC"
                                         << "Connect 0 com=" + com << "PLCnew IP=172.16.0.9"));
    QCOMPARE(table.address(0), QString("172.16.0.9"));
}

void TestConnEditor::portOfAnAddressIsTakenOffAtOnce_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::newRow("host and port") << "10.0.0.1:502"
                                   << "10.0.0.1";
    QTest::newRow("several colons") << "10.0.0.1:502:1"
                                    << "10.0.0.1";
    QTest::newRow("colon at the end") << "10.0.0.1:"
                                      << "10.0.0.1";
    QTest::newRow("colon at the start") << ":502"
                                        << "";
}

void TestConnEditor::portOfAnAddressIsTakenOffAtOnce()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    const QString path = writeTable(QStringList() << "connect count=1"
                                                  << "Connect 0=PLC"
                                                  << "Connect 0 baud=187600"
                                                  << "PLCnew IP=" + before);
    Table table(path);
    QCOMPARE(table.address(0), after);
    // Nobody has pressed anything yet.
    QCOMPARE(stored(path), QStringList() << "Connect 0 baud=187600"
                                         << "Connect 0=PLC"
                                         << "PLCnew IP=" + after << "connect count=1");
}

void TestConnEditor::repairStaysWhenCancelled()
{
    const QString path = writeTable(QStringList() << "connect count=1"
                                                  << "Connect 0=PLC"
                                                  << "PLCnew IP=10.0.0.1:502");
    Table table(path);
    ModalDriver driver;
    driver.then([&table](QWidget *) { table.cancel->click(); });
    QCOMPARE(table.dialog.exec(), int(QDialog::Rejected));
    QVERIFY2(driver.finished(), driver.report());
    QVERIFY(stored(path).contains("PLCnew IP=10.0.0.1"));
    Table again(path);
    QCOMPARE(again.address(0), QString("10.0.0.1"));
}

void TestConnEditor::nothingIsWrittenWithoutARepair()
{
    const QString path = writeTable(QStringList() << "; a remark, which any writing would lose"
                                                  << "connect count=1"
                                                  << "Connect 0=PLC"
                                                  << "PLCnew IP=10.0.0.1");
    const QByteArray before = readFile(path);
    {
        Table table(path);
        table.cancel->click();
    }
    QCOMPARE(readFile(path), before);
}

void TestConnEditor::addressIsEnteredOnTheNumericKeypad()
{
    const QString path = writeTable(QStringList() << "connect count=1"
                                                  << "Connect 0=PLC"
                                                  << "PLCnew IP=10.0.0.1");
    Table table(path);
    table.dialog.show();
    table.enter(0, "10.0.0.77");
    const QStringList calls = DeviceLog::keypadCalls();
    QVERIFY2(calls.contains("NumericKeypad.setText(10.0.0.1)"), qPrintable(calls.join(" ")));
    QVERIFY(calls.contains("NumericKeypad.setValidator(QRegExpValidator)"));
    QVERIFY(calls.contains("NumericKeypad.exec"));
    // It is no number, and stands all the same: the keypad wrote it into the field.
    QCOMPARE(table.address(0), QString("10.0.0.77"));
    QVERIFY(stored(path).contains("PLCnew IP=10.0.0.1"));
    table.ok->click();
    QVERIFY(stored(path).contains("PLCnew IP=10.0.0.77"));
}

void TestConnEditor::okStoresTheAddressesAndNothingElse()
{
    const QStringList others = QStringList() << "Connect 0 addr=7"
                                             << "Connect 0 baud=187600"
                                             << "Connect 0 cid=1"
                                             << "Connect 0 com=0"
                                             << "Connect 0=PLC"
                                             << "Connect 1 com=usb"
                                             << "Connect 1=Servo"
                                             << "Connect 9=unused"
                                             << "Servo old IP=1.2.3.4"
                                             << "connect count=2"
                                             << "language=de";
    const QString path = writeTable(QStringList() << others << "PLCnew IP=10.0.0.1"
                                                  << "Servonew IP=10.0.0.2"
                                                  << "unusednew IP=10.0.0.3:502");
    Table table(path);
    table.enter(1, "10.0.0.22");
    QSignalSpy accepted(&table.dialog, SIGNAL(accepted()));
    table.ok->click();
    QCOMPARE(accepted.count(), 1);
    QStringList expected = others;
    expected << "PLCnew IP=10.0.0.1"
             << "Servonew IP=10.0.0.22"
             << "unusednew IP=10.0.0.3:502";
    expected.sort();
    QCOMPARE(stored(path), expected);
}

void TestConnEditor::shownDefaultIsStoredByOk()
{
    const QString path = writeTable(QStringList() << "connect count=1"
                                                  << "Connect 0=PLC"
                                                  << "Connect 0 com=3");
    Table table(path);
    table.ok->click();
    QVERIFY(stored(path).contains("PLCnew IP=192.168.1.3"));
}

void TestConnEditor::partlyTypedAddressIsStoredAsTyped()
{
    const QString path = writeTable(QStringList() << "connect count=2"
                                                  << "Connect 0=PLC"
                                                  << "Connect 1=Servo");
    Table table(path);
    table.enter(0, "10.0.");
    table.enter(1, "");
    table.ok->click();
    QVERIFY(stored(path).contains("PLCnew IP=10.0."));
    QVERIFY(stored(path).contains("Servonew IP="));
    QCOMPARE(table.dialog.result(), int(QDialog::Accepted));
}

namespace {

class StayingEditor : public ConnEditor
{
public:
    explicit StayingEditor(const QString &path) : ConnEditor(path, nullptr) {}
    void accept() override { calls << "accept"; }
    void reject() override { calls << "reject"; }
    QStringList calls;
};

} // namespace

void TestConnEditor::okAndCancelEndAsTheDerivedClassDoes()
{
    StayingEditor editor(nextPath());
    editor.init_list();
    editor.show();
    Q_FOREACH (QPushButton *button, editor.findChildren<QPushButton *>())
        button->click();
    QCOMPARE(editor.calls, QStringList() << "accept"
                                         << "reject");
    QVERIFY(editor.isVisible());
}

namespace {

/// Looks into the file as a host does that connects to accepted().
class LookingEditor : public ConnEditor
{
public:
    explicit LookingEditor(const QString &path) : ConnEditor(path, nullptr), m_path(path) {}
    void accept() override { bytes = FilarixTest::readFile(m_path); }
    QByteArray bytes;

private:
    QString m_path;
};

} // namespace

void TestConnEditor::addressesAreInTheFileWhenOkIsTold()
{
    const QString path = writeTable(QStringList() << "connect count=1"
                                                  << "Connect 0=PLC"
                                                  << "Connect 0 com=3");
    LookingEditor editor(path);
    editor.init_list();
    editor.on_save_clicked();
    QVERIFY2(editor.bytes.contains("PLCnew%20IP=192.168.1.3"), editor.bytes);
}

void TestConnEditor::cancelStoresNothing()
{
    const QString path = writeTable(QStringList() << "connect count=1"
                                                  << "Connect 0=PLC"
                                                  << "PLCnew IP=10.0.0.1");
    const QByteArray before = readFile(path);
    {
        Table table(path);
        table.enter(0, "10.0.0.77");
        table.cancel->click();
        QCOMPARE(table.dialog.result(), int(QDialog::Rejected));
    }
    QCOMPARE(readFile(path), before);
}

void TestConnEditor::connectionsOfOneNameShareTheAddress()
{
    const QString path = writeTable(QStringList() << "connect count=3"
                                                  << "Connect 0=PLC"
                                                  << "Connect 1=Servo"
                                                  << "Connect 2=PLC"
                                                  << "PLCnew IP=10.0.0.1");
    Table table(path);
    QCOMPARE(table.address(0), QString("10.0.0.1"));
    QCOMPARE(table.address(2), QString("10.0.0.1"));
    table.enter(0, "10.0.0.50");
    table.ok->click();
    // The lower row goes last, and it still showed the old address.
    QVERIFY(stored(path).contains("PLCnew IP=10.0.0.1"));

    Table again(path);
    again.enter(2, "10.0.0.60");
    again.ok->click();
    QVERIFY(stored(path).contains("PLCnew IP=10.0.0.60"));
}

void TestConnEditor::connectionWithoutANameHasTheBareKey()
{
    const QString path = writeTable(QStringList() << "connect count=1"
                                                  << "new IP=10.0.0.1:502");
    Table table(path);
    QCOMPARE(table.address(0), QString("10.0.0.1"));
    QVERIFY(stored(path).contains("new IP=10.0.0.1"));
    table.enter(0, "10.0.0.9");
    table.ok->click();
    QCOMPARE(stored(path), QStringList() << "connect count=1"
                                         << "new IP=10.0.0.9");
}

void TestConnEditor::nameMayHoldAnything_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("blank") << "PLC main";
    QTest::newRow("colon") << "10.0.0.1:502";
    QTest::newRow("slash") << "hall/PLC";
    QTest::newRow("equals sign") << "a=b";
    QTest::newRow("percent sign") << "100%1 %2";
    QTest::newRow("beyond ASCII") << QString::fromUtf8("K\xc3\xbchlung \xe7\xbb\x95");
    QTest::newRow("brackets") << "[General]";
}

void TestConnEditor::nameMayHoldAnything()
{
    QFETCH(QString, name);
    const QString path = nextPath();
    {
        QSettings settings(path, QSettings::IniFormat);
        settings.setValue("connect count", 1);
        settings.setValue("Connect 0", name);
        settings.setValue(name + "new IP", "10.0.0.1:502");
    }
    Table table(path);
    QCOMPARE(table.address(0), QString("10.0.0.1"));
    table.enter(0, "10.0.0.9");
    table.ok->click();
    QCOMPARE(stored(path).size(), 3);
    QVERIFY(stored(path).contains(name + "new IP=10.0.0.9"));
}

void TestConnEditor::namesAreReadAgainAtOk()
{
    const QString path = writeTable(QStringList() << "connect count=1"
                                                  << "Connect 0=PLC"
                                                  << "PLCnew IP=10.0.0.1");
    Table table(path);
    // Somebody else writes the file, which gets another size.
    writeFile(path, "[General]\nconnect%20count=1\nConnect%200=Renamed\nPLCnew%20IP=10.0.0.1\n");
    table.enter(0, "10.0.0.9");
    table.ok->click();
    QCOMPARE(stored(path), QStringList() << "Connect 0=Renamed"
                                         << "PLCnew IP=10.0.0.1"
                                         << "Renamednew IP=10.0.0.9"
                                         << "connect count=1");
}

void TestConnEditor::initListAgainBuildsTheListAnew()
{
    const QString path = writeTable(QStringList() << "connect count=2"
                                                  << "Connect 0=PLC"
                                                  << "PLCnew IP=10.0.0.1");
    Table table(path);
    table.dialog.show();
    table.enter(0, "10.0.0.9");
    QWidget *oldHeader = table.row(0);
    // Qt 4 takes the file for another one by its size: the second of its writing may be the same.
    writeFile(path, "[General]\nconnect%20count=1\nConnect%200=PLC\nPLCnew%20IP=10.0.0.55\n");
    table.dialog.init_list();
    QCOMPARE(table.list->count(), 2);
    QCOMPARE(table.address(0), QString("10.0.0.55"));
    QVERIFY(table.list->isVisible());
    QVERIFY(table.row(1)->isVisible());
    QCOMPARE(table.list->height(), 2 * table.row(0)->height());
    // The old rows must not show through.
    QVERIFY(oldHeader != table.row(0));
    Q_FOREACH (DataEditor *row, table.list->findChildren<DataEditor *>())
        QCOMPARE(row->isVisible(), table.list->indexof(row) >= 0);
}

void TestConnEditor::unreadableFileShowsTheHeaderAlone()
{
    const QString path = writeTable(QStringList("connect count=2"));
    QVERIFY(QFile::setPermissions(path, QFile::Permissions()));
    Table table(path);
    QCOMPARE(table.list->count(), 1);

    QDir().mkpath(home() + "/folder.ini");
    Table folder(home() + "/folder.ini");
    QCOMPARE(folder.list->count(), 1);
    folder.ok->click();
    QCOMPARE(folder.dialog.result(), int(QDialog::Accepted));
}

void TestConnEditor::unwritableFileIsNotReported()
{
    const QString folder = home() + "/locked";
    const QString path = folder + "/connections.ini";
    const QByteArray bytes = "[General]\nconnect%20count=1\nConnect%200=PLC\n"
                             "PLCnew%20IP=10.0.0.1:502\n";
    writeFile(path, bytes);
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner));
    QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
    {
        Table table(path);
        QCOMPARE(table.address(0), QString("10.0.0.1"));
        table.ok->click();
        QCOMPARE(table.dialog.result(), int(QDialog::Accepted));
    }
    QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    QCOMPARE(readFile(path), bytes);
}

void TestConnEditor::tableIsCutAtAThousandConnections()
{
    const QString path = writeTable(QStringList() << "connect count=2147483647"
                                                  << "Connect 999 cid=999"
                                                  << "Connect 1000 cid=1000");
    Table table(path);
    QCOMPARE(table.list->count(), 1001);
    QCOMPARE(table.connection(999), QString("999 0 0 0 192.168.1.1"));
    table.ok->click();
    QCOMPARE(stored(path), QStringList() << "Connect 1000 cid=1000"
                                         << "Connect 999 cid=999"
                                         << "connect count=2147483647"
                                         << "new IP=192.168.1.1");
}

void TestConnEditor::damagedFilesKeepEveryKeyButTheAddresses()
{
    // The toolkit's own remarks on what it reads.
    StrictMessages::expect("QVariant::load: unable to load type");
    StrictMessages::expect("Trying to construct an instance of an invalid type");
    StrictMessages::expect("QSettings::value: Empty key passed");
    std::mt19937 random(20260102);
    const QByteArray good = "[General]\nconnect%20count=3\nConnect%200=PLC:502\n"
                            "Connect%200%20cid=1\nConnect%200%20baud=0\nConnect%200%20com=0\n"
                            "Connect%201=Servo\nConnect%201%20baud=187600\n"
                            "Servonew%20IP=10.0.0.2:502\nConnect%202=a, b\n"
                            "Connect%202%20addr=@ByteArray(x)\nlanguage=\"d\\xe9\\n\"\n"
                            "size=@Size(1 2)\n[other]\nkey=@Variant(\\0\\0\\0\\x2)\n";
    const int files = scaled(500);
    int compared = 0;
    for (int i = 0; i < files; ++i) {
        QByteArray bytes = good;
        switch (i % 5) {
        case 0: // changed bytes
            for (int n = int(random() % 8) + 1; n > 0; --n)
                bytes[int(random() % uint(bytes.size()))] = char(random());
            break;
        case 1: // cut off
            bytes.truncate(int(random() % uint(bytes.size())));
            break;
        case 2: // a piece of it elsewhere
            bytes.insert(int(random() % uint(bytes.size())),
                         good.mid(int(random() % uint(good.size())), 60));
            break;
        case 3: // signs that the format gives a meaning
            for (int n = 5; n > 0; --n)
                bytes.insert(int(random() % uint(bytes.size())),
                             "[]=%\\\"@(),;\n\r\0/:"[random() % 16]);
            break;
        default: // noise
            bytes.clear();
            for (int n = int(random() % 2000); n > 0; --n)
                bytes += char(random());
            break;
        }
        const QString beforePath = nextPath();
        const QString path = nextPath();
        const QString afterPath = nextPath();
        writeFile(beforePath, bytes);
        writeFile(path, bytes);
        {
            // A flipped digit must not make this test build a thousand rows.
            const QSettings count(beforePath, QSettings::IniFormat);
            if (count.value("connect count").toInt() > 50)
                continue;
        }
        {
            Table table(path);
            table.ok->click();
            QCOMPARE(table.dialog.result(), int(QDialog::Accepted));
        }
        QVERIFY(QFile::copy(path, afterPath));
        const QSettings before(beforePath, QSettings::IniFormat);
        const QSettings after(afterPath, QSettings::IniFormat);
        const QStringList keysBefore = otherKeys(before);
        const QStringList keysAfter = otherKeys(after);
        if (!areNamable(keysBefore))
            continue;
        ++compared;
        const QByteArray hint = "round " + QByteArray::number(i) + ": " + bytes.toPercentEncoding();
        QVERIFY2(keysAfter == keysBefore, hint);
        Q_FOREACH (const QString &key, keysBefore) {
            const bool isFound = before.contains(key);
            QVERIFY(isFound || !TestCompat::findsSettingsBeyondAscii());
            QVERIFY(isFound || !QRegExp("[\\x0020-\\x007e]*").exactMatch(key));
            QVERIFY2(!isFound || after.value(key) == before.value(key),
                     qPrintable(key + " in " + hint));
        }
        emptyFolder(home());
    }
    QVERIFY2(compared > files * 4 / 5, QByteArray::number(compared));
}

void TestConnEditor::hugeFileKeepsItsKeys()
{
    const int others = scaled(50000);
    QByteArray bytes = "[General]\nconnect%20count=1\nConnect%200=PLC\nPLCnew%20IP=10.0.0.1:502\n"
                       "long="
                       + QByteArray(2000000, 'x') + '\n';
    for (int i = 0; i < others; ++i)
        bytes +=
            "Connect%20" + QByteArray::number(i + 1) + "%20cid=" + QByteArray::number(i) + '\n';
    const QString path = nextPath();
    writeFile(path, bytes);
    Table table(path);
    QCOMPARE(table.list->count(), 2);
    table.enter(0, "10.0.0.2");
    table.ok->click();
    const QStringList keys = stored(path);
    QCOMPARE(keys.size(), others + 4);
    QVERIFY(keys.contains("PLCnew IP=10.0.0.2"));
    QVERIFY(keys.contains(QString("Connect %1 cid=%2").arg(others).arg(others - 1)));
    QVERIFY(keys.contains("long=" + QString(2000000, 'x')));
}

FILARIX_TEST_MAIN(TestConnEditor)
#include "tst_conneditor.moc"
