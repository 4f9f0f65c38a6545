// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "combolineedit.h"
#include "devicelog.h"
#include "filarixtest.h"

#include <hmidevice/characterkeypad.h>
#include <hmidevice/numerickeypad.h>

#include <QDesktopWidget>
#include <QDoubleValidator>
#include <QMetaMethod>
#include <QPointer>
#include <QScopedPointer>
#include <QSignalSpy>

/// Notes the signals of a field in order, and can do what a row does on them.
class FieldListener : public QObject
{
    Q_OBJECT

public:
    explicit FieldListener(ComboLineEdit *field) : m_field(field)
    {
        connect(field, SIGNAL(clicked()), this, SLOT(onClicked()));
        connect(field, SIGNAL(changed(QString)), this, SLOT(onChanged(QString)));
    }

    QStringList seen;
    bool deletesOnChange = false;

private Q_SLOTS:
    void onClicked() { seen << QLatin1String("clicked"); }
    void onChanged(const QString &text)
    {
        seen << QLatin1String("changed ") + text;
        if (deletesOnChange)
            delete m_field;
    }

private:
    QPointer<ComboLineEdit> m_field;
};

class TestComboLineEdit : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void startsAsATextField();
    void argumentOfChangedIsNamedText();
    void numericKeypadIsSetUpInOrder();
    void characterKeypadIsSetUpInOrder();
    void keypadGetsTheFieldAndItsValidator();
    void keypadSizeFollowsTheDeviceType_data();
    void keypadSizeFollowsTheDeviceType();
    void deviceFileIsReadAtEachTap();
    void valueAloneIsEdited_data();
    void valueAloneIsEdited();
    void fieldItselfKeepsTheBareAnswer();
    void changeIsReportedBeforeTheTap();
    void cancelEmitsClickedAndNotChanged();
    void missingKeypadSkipsTheEdit();
    void eachTapReadsTheTextAnew();
    void setTextEmitsNeitherSignal();
    void pressIsNeitherTakenByTheBaseNorPassedOn();
    void fieldDeletedWhileTheKeypadIsOpen_data();
    void fieldDeletedWhileTheKeypadIsOpen();
    void fieldDeletedByTheReceiverOfTheChange();
};

namespace {

const char deviceFile[] = "/usr/share/qt/bin/settingex.ini";

void tap(ComboLineEdit *field)
{
    QTest::mousePress(field, Qt::LeftButton);
}

QSize screenSize()
{
    return QApplication::desktop()->availableGeometry(-1).size();
}

/// The size of the open keypad when \a field is tapped.
QSize keypadSize(ComboLineEdit *field)
{
    QSize size;
    const bool numeric = field->isNumeric();
    DeviceLog::runThenCancel([&size, numeric]() {
        size = numeric ? NumericKeypad::instance()->size() : CharacterKeypad::instance()->size();
    });
    tap(field);
    return size;
}

class PressCounter : public QWidget
{
public:
    int presses = 0;

protected:
    void mousePressEvent(QMouseEvent *) override { ++presses; }
};

} // namespace

void TestComboLineEdit::init()
{
    FilarixTest::init();
    QFile::remove(deviceFile);
    DeviceLog::reset();
}

void TestComboLineEdit::cleanup()
{
    QFile::remove(deviceFile);
    QCOMPARE(DeviceLog::answersLeft(), 0);
    FilarixTest::cleanup();
}

void TestComboLineEdit::startsAsATextField()
{
    const ComboLineEdit field(nullptr);
    QVERIFY(!field.isNumeric());
    QVERIFY(!field.validator());
    QVERIFY(field.text().isEmpty());
}

void TestComboLineEdit::argumentOfChangedIsNamedText()
{
    const QMetaObject &meta = ComboLineEdit::staticMetaObject;
    const QMetaMethod changed = meta.method(meta.indexOfSignal("changed(QString)"));
    QCOMPARE(changed.parameterNames(), QList<QByteArray>() << "text");
}

void TestComboLineEdit::numericKeypadIsSetUpInOrder()
{
    ComboLineEdit field(nullptr);
    field.setNumeric(true);
    field.setValidator(new QDoubleValidator(&field));
    field.setText("Z:0.5");
    DeviceLog::cancel();
    tap(&field);
    QCOMPARE(DeviceLog::calls(), QStringList() << "NumericKeypad.instance"
                                               << "NumericKeypad.setObject(ComboLineEdit)"
                                               << "NumericKeypad.setText(0.5)"
                                               << "NumericKeypad.setValidator(null)"
                                               << "NumericKeypad.setValidator(QDoubleValidator)"
                                               << "NumericKeypad.setShowType(0)"
                                               << "NumericKeypad.exec");
}

void TestComboLineEdit::characterKeypadIsSetUpInOrder()
{
    ComboLineEdit field(nullptr);
    field.setText("note");
    DeviceLog::cancel();
    tap(&field);
    QCOMPARE(DeviceLog::calls(), QStringList() << "CharacterKeypad.instance"
                                               << "CharacterKeypad.setObject(ComboLineEdit)"
                                               << "CharacterKeypad.setText(note)"
                                               << "CharacterKeypad.setValidator(null)"
                                               << "CharacterKeypad.setValidator(null)"
                                               << "CharacterKeypad.setShowType(0)"
                                               << "CharacterKeypad.exec");
}

void TestComboLineEdit::keypadGetsTheFieldAndItsValidator()
{
    ComboLineEdit field(nullptr);
    field.setNumeric(true);
    QDoubleValidator validator(nullptr);
    field.setValidator(&validator);
    DeviceLog::cancel();
    tap(&field);
    QCOMPARE(DeviceLog::object().data(), static_cast<QObject *>(&field));
    QCOMPARE(DeviceLog::validator().data(), static_cast<QValidator *>(&validator));
}

void TestComboLineEdit::keypadSizeFollowsTheDeviceType_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<bool>("small");
    QTest::newRow("no file") << QByteArray() << false;
    QTest::newRow("type absent") << QByteArray("[General]\nOther=9\n") << false;
    QTest::newRow("type 9") << QByteArray("HMIDeviceType=9\n") << true;
    QTest::newRow("type 9 under the general heading")
        << QByteArray("[General]\nHMIDeviceType=9\n") << true;
    QTest::newRow("type 9 in a group is another entry")
        << QByteArray("[Panel]\nHMIDeviceType=9\n") << false;
    QTest::newRow("type 8") << QByteArray("HMIDeviceType=8\n") << false;
    QTest::newRow("type 90") << QByteArray("HMIDeviceType=90\n") << false;
    QTest::newRow("no number") << QByteArray("HMIDeviceType=nine\n") << false;
}

void TestComboLineEdit::keypadSizeFollowsTheDeviceType()
{
    QFETCH(QByteArray, file);
    QFETCH(bool, small);
    if (!file.isEmpty())
        writeFile(deviceFile, file);
    ComboLineEdit field(nullptr);
    field.setNumeric(true);
    QCOMPARE(keypadSize(&field), small ? QSize(480, 272) : QSize(800, 480));
    field.setNumeric(false);
    QCOMPARE(keypadSize(&field), small ? QSize(480, 272) : screenSize());
}

void TestComboLineEdit::deviceFileIsReadAtEachTap()
{
    ComboLineEdit field(nullptr);
    field.setNumeric(true);
    QCOMPARE(keypadSize(&field), QSize(800, 480));
    writeFile(deviceFile, "HMIDeviceType=9\n");
    QCOMPARE(keypadSize(&field), QSize(480, 272));
    QFile::remove(deviceFile);
    QCOMPARE(keypadSize(&field), QSize(800, 480));
}

void TestComboLineEdit::valueAloneIsEdited_data()
{
    QTest::addColumn<bool>("numeric");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QString>("opensOn");
    QTest::addColumn<QString>("changed");

    QTest::newRow("number of a key") << true << "X:1.5"
                                     << "2"
                                     << "1.5"
                                     << "X:2";
    QTest::newRow("number as it was typed") << true << "X:1.5"
                                            << "002.50"
                                            << "1.5"
                                            << "X:002.50";
    QTest::newRow("number with an exponent") << true << "X:1"
                                             << "1e2"
                                             << "1"
                                             << "X:1e2";
    QTest::newRow("no number leaves the old value") << true << "X:1.5"
                                                    << "-"
                                                    << "1.5"
                                                    << "X:1.5";
    QTest::newRow("no answer leaves the old value") << true << "X:1.5"
                                                    << ""
                                                    << "1.5"
                                                    << "X:1.5";
    QTest::newRow("comma is no number") << true << "X:1.5"
                                        << "2,5"
                                        << "1.5"
                                        << "X:1.5";
    QTest::newRow("number without a key") << true << "7"
                                          << "8"
                                          << "7"
                                          << "8";
    QTest::newRow("no number without a key is the answer alone") << true << "7"
                                                                 << "-"
                                                                 << "7"
                                                                 << "-";
    QTest::newRow("empty number field") << true << ""
                                        << "8"
                                        << ""
                                        << "8";
    QTest::newRow("lone colon") << true << ":"
                                << "8"
                                << ""
                                << ":8";
    QTest::newRow("key without a value") << true << "X:"
                                         << "8"
                                         << ""
                                         << "X:8";
    QTest::newRow("value without a key") << true << ":3"
                                         << "8"
                                         << "3"
                                         << ":8";
    QTest::newRow("number behind two colons loses the middle") << true << "X:a:1"
                                                               << "2"
                                                               << "1"
                                                               << "X:2";
    QTest::newRow("no number behind two colons") << true << "X:a:1"
                                                 << "q"
                                                 << "1"
                                                 << "X:1";

    QTest::newRow("text of a key") << false << "res:old"
                                   << "new"
                                   << "old"
                                   << "res:new";
    QTest::newRow("text without a colon") << false << "whole text"
                                          << "other"
                                          << "whole text"
                                          << "other";
    QTest::newRow("text behind two colons loses the middle") << false << "a:b:c"
                                                             << "d"
                                                             << "c"
                                                             << "a:d";
    QTest::newRow("text that is emptied") << false << "a:b"
                                          << ""
                                          << "b"
                                          << "a:";
    QTest::newRow("answer with a colon") << false << "a:b"
                                         << "c:d"
                                         << "b"
                                         << "a:c:d";
    QTest::newRow("answer with a colon and no key") << false << "b"
                                                    << "c:d"
                                                    << "b"
                                                    << "c:d";
}

void TestComboLineEdit::valueAloneIsEdited()
{
    QFETCH(bool, numeric);
    QFETCH(QString, text);
    QFETCH(QString, answer);
    QFETCH(QString, opensOn);
    QFETCH(QString, changed);
    ComboLineEdit field(nullptr);
    field.setNumeric(numeric);
    field.setText(text);
    FieldListener listener(&field);
    DeviceLog::acceptWith(answer);
    tap(&field);
    const QString keypad = QLatin1String(numeric ? "NumericKeypad" : "CharacterKeypad");
    QVERIFY(DeviceLog::calls().contains(keypad + ".setText(" + opensOn + ")"));
    QCOMPARE(listener.seen, QStringList() << "changed " + changed << "clicked");
}

void TestComboLineEdit::fieldItselfKeepsTheBareAnswer()
{
    ComboLineEdit field(nullptr);
    field.setNumeric(true);
    field.setText("X:1.5");
    DeviceLog::acceptWith("2");
    tap(&field);
    QCOMPARE(field.text(), QString("2"));
}

void TestComboLineEdit::changeIsReportedBeforeTheTap()
{
    ComboLineEdit field(nullptr);
    field.setText("a:b");
    FieldListener listener(&field);
    DeviceLog::acceptWith("c");
    tap(&field);
    QCOMPARE(listener.seen, QStringList() << "changed a:c"
                                          << "clicked");
}

void TestComboLineEdit::cancelEmitsClickedAndNotChanged()
{
    for (int numeric = 0; numeric < 2; ++numeric) {
        ComboLineEdit field(nullptr);
        field.setNumeric(numeric);
        field.setText("X:1.5");
        FieldListener listener(&field);
        DeviceLog::cancel();
        tap(&field);
        QCOMPARE(listener.seen, QStringList() << "clicked");
        QCOMPARE(field.text(), QString("X:1.5"));
    }
}

void TestComboLineEdit::missingKeypadSkipsTheEdit()
{
    DeviceLog::setInstanceAvailable(false);
    for (int numeric = 0; numeric < 2; ++numeric) {
        ComboLineEdit field(nullptr);
        field.setNumeric(numeric);
        field.setText("X:1.5");
        FieldListener listener(&field);
        tap(&field);
        QCOMPARE(listener.seen, QStringList() << "clicked");
        QCOMPARE(field.text(), QString("X:1.5"));
    }
    QVERIFY(DeviceLog::keypadCalls().isEmpty());
}

void TestComboLineEdit::eachTapReadsTheTextAnew()
{
    ComboLineEdit field(nullptr);
    field.setNumeric(true);
    field.setText("X:1");
    QSignalSpy changed(&field, SIGNAL(changed(QString)));
    DeviceLog::cancel();
    tap(&field);
    field.setText("Y:5");
    DeviceLog::acceptWith("6");
    tap(&field);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.at(0).at(0).toString(), QString("Y:6"));
}

void TestComboLineEdit::setTextEmitsNeitherSignal()
{
    ComboLineEdit field(nullptr);
    FieldListener listener(&field);
    field.setText("X:1");
    field.setText("X:2");
    QVERIFY(listener.seen.isEmpty());
}

void TestComboLineEdit::pressIsNeitherTakenByTheBaseNorPassedOn()
{
    PressCounter row;
    ComboLineEdit *field = new ComboLineEdit(&row);
    field->setText("a long text");
    const int cursor = field->cursorPosition();
    DeviceLog::cancel();
    QTest::mousePress(field, Qt::LeftButton, Qt::NoModifier, QPoint(2, 2));
    QCOMPARE(row.presses, 0);
    QCOMPARE(field->cursorPosition(), cursor);
}

void TestComboLineEdit::fieldDeletedWhileTheKeypadIsOpen_data()
{
    QTest::addColumn<bool>("numeric");
    QTest::newRow("numeric") << true;
    QTest::newRow("text") << false;
}

void TestComboLineEdit::fieldDeletedWhileTheKeypadIsOpen()
{
    QFETCH(bool, numeric);
    QPointer<ComboLineEdit> field = new ComboLineEdit(nullptr);
    field->setNumeric(numeric);
    FieldListener listener(field);
    DeviceLog::runThenCancel([&field]() { delete field.data(); });
    tap(field);
    QVERIFY(!field);
    QVERIFY(listener.seen.isEmpty());
}

void TestComboLineEdit::fieldDeletedByTheReceiverOfTheChange()
{
    QPointer<ComboLineEdit> field = new ComboLineEdit(nullptr);
    field->setText("a:b");
    FieldListener listener(field);
    listener.deletesOnChange = true;
    DeviceLog::acceptWith("c");
    tap(field);
    QVERIFY(!field);
    QCOMPARE(listener.seen, QStringList() << "changed a:c");
}

FILARIX_TEST_MAIN(TestComboLineEdit)
#include "tst_combolineedit.moc"
