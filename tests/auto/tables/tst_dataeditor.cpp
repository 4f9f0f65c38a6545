// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "combolineedit.h"
#include "dataeditor.h"
#include "devicelog.h"
#include "filarixtest.h"
#include "label.h"
#include "rowfixture.h"

#include <QDoubleValidator>
#include <QHBoxLayout>
#include <QRegExpValidator>
#include <QSignalSpy>

#include <random>

using namespace RowFixture;

/// Notes the signals of a row in order.
class RowListener : public QObject
{
    Q_OBJECT

public:
    explicit RowListener(DataEditor *editor)
    {
        connect(editor, SIGNAL(clicked(int)), this, SLOT(onClicked(int)));
        connect(editor, SIGNAL(sg_content_change(int)), this, SLOT(onContentChange(int)));
    }

    QStringList seen;

private Q_SLOTS:
    void onClicked(int row) { seen << QString::fromLatin1("clicked %1").arg(row); }
    void onContentChange(int row) { seen << QString::fromLatin1("changed %1").arg(row); }
};

class TestDataEditor : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void cellsOfARow_data();
    void cellsOfARow();
    void everyLengthAgreesWithTheSteps();
    void widthsAreInSinglePrecision_data();
    void widthsAreInSinglePrecision();
    void rowHasItsFrameAndHeight();
    void cellsHaveTheirStyleAndPolicy();
    void cellOfEachType_data();
    void cellOfEachType();
    void emptyTextLeavesACellEmpty();
    void sharedCellTakesTwoStrings_data();
    void sharedCellTakesTwoStrings();
    void dataComesBackAsItWasWritten();
    void dataOfAnotherLengthChangesNothing();
    void indexIsTheFirstCell();
    void rowNumber_data();
    void rowNumber();
    void tapsAreReported_data();
    void tapsAreReported();
    void rowOfFourHasNoValidatorInColumnThree();
    void addressFieldTakesAnIpAddress_data();
    void addressFieldTakesAnIpAddress();
    void validatorBeforeTheAddressStaysAsAnIdleChild();
    void wideTitleHasACellForEverySecondString();
    void columnsPastTheLastHaveNoCell();
    void listOfFewerThanTwoStringsMakesEmptyCells();
    void foreignAndMissingCellsAreLeftAlone();
    void givenListStaysAsItIs();
};

namespace {

QList<QWidget *> cellsOf(const DataEditor &editor)
{
    QList<QWidget *> cells;
    for (int i = 0; i < editor.layout()->count(); ++i)
        cells << editor.layout()->itemAt(i)->widget();
    return cells;
}

/// Class, width and text of a cell; a field also tells its keypad and its check.
QString describe(QWidget *cell)
{
    QString kind = QLatin1String(cell->metaObject()->className());
    QString text;
    if (QLabel *label = qobject_cast<QLabel *>(cell))
        text = label->text();
    if (ComboLineEdit *edit = qobject_cast<ComboLineEdit *>(cell)) {
        text = edit->text();
        kind = QLatin1String(edit->isNumeric() ? "number" : "text");
        if (edit->validator())
            kind += QLatin1Char('/') + QLatin1String(edit->validator()->metaObject()->className());
    }
    if (cell->minimumWidth() != cell->maximumWidth())
        kind += QLatin1String(" of no fixed width");
    return QString::fromLatin1("%1 %2 %3").arg(kind).arg(cell->minimumWidth()).arg(text).trimmed();
}

QStringList describeAll(const DataEditor &editor)
{
    QStringList all;
    Q_FOREACH (QWidget *cell, cellsOf(editor))
        all << describe(cell);
    return all;
}

/// One cell, as the steps make it.
QString expectedCell(int type, float ratio, const QString &text, int count, int width, bool ip)
{
    float w = float(width) + ratio * 0.5f;
    w = w / ratio;
    w = w - 2.0f;
    QString kind;
    if (type == 0)
        kind = "Label";
    else if (type == 1)
        kind = "QLabel";
    else if (count == 2 || count == 4 || count == 6)
        kind = "text";
    else
        kind = "number/QDoubleValidator";
    if (ip)
        kind = kind.section('/', 0, 0) + "/QRegExpValidator";
    return QString::fromLatin1("%1 %2 %3").arg(kind).arg(qMax(0, int(w))).arg(text).trimmed();
}

/// The cells of a row, straight from the steps, sharing nothing with the class.
QStringList expectedCells(bool title, const QStringList &list, int width, bool connection)
{
    const int n = list.size();
    QStringList cells;
    if (!title && n != 4 && !connection) {
        cells << expectedCell(0, 11.0f, list[0], n, width, false);
        if (n == 2)
            cells << expectedCell(2, 1.2222222f, list[1], n, width, false);
        else
            cells << expectedCell(1, 11.0f, list[1], n, width, false);
    } else {
        cells << expectedCell(1, 11.0f, list[0], n, width, false);
        if (n == 4 || (title && n > 8))
            cells << expectedCell(1, 5.5f, list[2].isEmpty() ? list[1] : list[2], n, width, false);
        else if (n == 2)
            cells << expectedCell(title ? 1 : 2, 1.2222222f, list[1], n, width, false);
        else
            cells << expectedCell(1, 11.0f, list[1], n, width, false);
    }
    int column = n == 4 || (title && n > 8) ? 3 : 2;
    while (column < n && column <= 31) {
        const double elevenths = (n - 2) * 11 / 9.0;
        if (connection && column != n - 1)
            cells << expectedCell(1, float(elevenths), list[column], n, width, false);
        else if (connection)
            cells << expectedCell(2, float(elevenths), list[column], n, width, true);
        else if (n == 4)
            cells << expectedCell(2, float((n - 3) * 11 * 1.03 * 0.125), list[column], n, width,
                                  false);
        else if (!title)
            cells << expectedCell(2, float(elevenths), list[column], n, width, false);
        else if (n <= 8)
            cells << expectedCell(1, float(elevenths), list[column], n, width, false);
        else
            cells << expectedCell(1, float((n - 3) * 11 * 0.125 * 0.5), list[column], n, width,
                                  false);
        column += title && n > 8 ? 2 : 1;
    }
    return cells;
}

} // namespace

void TestDataEditor::init()
{
    FilarixTest::init();
    DeviceLog::reset();
}

void TestDataEditor::cleanup()
{
    QCOMPARE(DeviceLog::answersLeft(), 0);
    FilarixTest::cleanup();
}

void TestDataEditor::cellsOfARow_data()
{
    QTest::addColumn<bool>("title");
    QTest::addColumn<bool>("connection");
    QTest::addColumn<int>("count");
    QTest::addColumn<QStringList>("cells");

    const QString number("number/QDoubleValidator ");
    QTest::newRow("pair") << false << false << 2
                          << (QStringList() << "Label 42 s0"
                                            << "text 391 s1");
    QTest::newRow("title pair") << true << false << 2
                                << (QStringList() << "QLabel 42 s0"
                                                  << "QLabel 391 s1");
    QTest::newRow("connection pair") << false << true << 2
                                     << (QStringList() << "QLabel 42 s0"
                                                       << "text 391 s1");
    QTest::newRow("three") << false << false << 3
                           << (QStringList() << "Label 42 s0"
                                             << "QLabel 42 s1" << number + "391 s2");
    QTest::newRow("four") << false << false << 4
                          << (QStringList() << "QLabel 42 s0"
                                            << "QLabel 85 s2"
                                            << "text 337 s3");
    QTest::newRow("title of four is editable") << true << false << 4
                                               << (QStringList() << "QLabel 42 s0"
                                                                 << "QLabel 85 s2"
                                                                 << "text 337 s3");
    QTest::newRow("connection of four") << false << true << 4
                                        << (QStringList() << "QLabel 42 s0"
                                                          << "QLabel 85 s2"
                                                          << "text/QRegExpValidator 194 s3");
    QTest::newRow("connection") << false << true << 5
                                << (QStringList() << "QLabel 42 s0"
                                                  << "QLabel 42 s1"
                                                  << "QLabel 129 s2"
                                                  << "QLabel 129 s3"
                                                  << "number/QRegExpValidator 129 s4");
    QTest::newRow("title of five") << true << false << 5
                                   << (QStringList() << "QLabel 42 s0"
                                                     << "QLabel 42 s1"
                                                     << "QLabel 129 s2"
                                                     << "QLabel 129 s3"
                                                     << "QLabel 129 s4");
    QTest::newRow("six are texts") << false << false << 6
                                   << (QStringList() << "Label 42 s0"
                                                     << "QLabel 42 s1"
                                                     << "text 96 s2"
                                                     << "text 96 s3"
                                                     << "text 96 s4"
                                                     << "text 96 s5");
    QTest::newRow("title of eight") << true << false << 8
                                    << (QStringList() << "QLabel 42 s0"
                                                      << "QLabel 42 s1"
                                                      << "QLabel 63 s2"
                                                      << "QLabel 63 s3"
                                                      << "QLabel 63 s4"
                                                      << "QLabel 63 s5"
                                                      << "QLabel 63 s6"
                                                      << "QLabel 63 s7");
    QTest::newRow("wide title") << true << false << 11
                                << (QStringList() << "QLabel 42 s0"
                                                  << "QLabel 85 s2"
                                                  << "QLabel 85 s3"
                                                  << "QLabel 85 s5"
                                                  << "QLabel 85 s7"
                                                  << "QLabel 85 s9");
}

void TestDataEditor::cellsOfARow()
{
    QFETCH(bool, title);
    QFETCH(bool, connection);
    QFETCH(int, count);
    QFETCH(QStringList, cells);
    QStringList list = numbered(count);
    const DataEditor editor(title, list, listSize, nullptr, connection);
    QCOMPARE(editor.isTitle(), title);
    QCOMPARE(describeAll(editor), cells);
    QCOMPARE(expectedCells(title, list, listSize.width(), connection), cells);
}

void TestDataEditor::everyLengthAgreesWithTheSteps()
{
    std::mt19937 random(5);
    for (int count = 2; count <= 40; ++count) {
        for (int flags = 0; flags < 4; ++flags) {
            QStringList list = numbered(count);
            for (int i = 0; i < count; ++i) {
                if (random() % 4 == 0)
                    list[i].clear();
            }
            const bool title = flags & 1;
            const bool connection = flags & 2;
            const int width = int(random() % 1100);
            const DataEditor editor(title, list, QSize(width, 480), nullptr, connection);
            QCOMPARE(describeAll(editor), expectedCells(title, list, width, connection));
        }
    }
}

void TestDataEditor::widthsAreInSinglePrecision_data()
{
    QTest::addColumn<bool>("connection");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("cellWidth");
    QTest::newRow("a pixel less than in double precision") << true << 4 << 1023 << 416;
    QTest::newRow("a pixel more than in double precision") << false << 8 << 473 << 63;
}

void TestDataEditor::widthsAreInSinglePrecision()
{
    QFETCH(bool, connection);
    QFETCH(int, count);
    QFETCH(int, width);
    QStringList list = numbered(count);
    const DataEditor editor(false, list, QSize(width, 480), nullptr, connection);
    QTEST(cellsOf(editor).last()->minimumWidth(), "cellWidth");
}

void TestDataEditor::rowHasItsFrameAndHeight()
{
    QStringList list = numbered(3);
    const DataEditor editor(false, list, QSize(480, 272), nullptr, false);
    QCOMPARE(editor.minimumHeight(), 11);
    QCOMPARE(editor.maximumHeight(), 11);
    QCOMPARE(editor.focusPolicy(), Qt::ClickFocus);
    QCOMPARE(editor.styleSheet(), QString("border-style:solid;border-width: 1px; "
                                          "background-color:#ffffff;color: #000000;"));
    const QHBoxLayout *layout = qobject_cast<QHBoxLayout *>(editor.layout());
    QVERIFY(layout);
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->alignment(), Qt::Alignment(Qt::AlignLeft));
    int left, top, right, bottom;
    layout->getContentsMargins(&left, &top, &right, &bottom);
    QCOMPARE(left, 5);
    QCOMPARE(top, 0);
    QCOMPARE(right, 5);
    QCOMPARE(bottom, 0);

    const DataEditor tall(false, list, QSize(480, 800), nullptr, false);
    QCOMPARE(tall.minimumHeight(), 34);
}

void TestDataEditor::cellsHaveTheirStyleAndPolicy()
{
    QStringList list = numbered(5);
    DataEditor editor(false, list, listSize, nullptr, true);
    Q_FOREACH (QWidget *cell, cellsOf(editor)) {
        QCOMPARE(cell->parentWidget(), static_cast<QWidget *>(&editor));
        QCOMPARE(cell->styleSheet(),
                 QString("border-style:solid;border-width: 1px;color: #000000;"));
        QVERIFY(cell->testAttribute(Qt::WA_LayoutUsesWidgetRect));
        QCOMPARE(cell->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
        QCOMPARE(cell->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    }
}

void TestDataEditor::cellOfEachType_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("cell");
    QTest::newRow("clickable label") << 3 << 0 << "Label 238 text";
    QTest::newRow("passive label") << 3 << 1 << "QLabel 238 text";
    QTest::newRow("number") << 3 << 2 << "number/QDoubleValidator 238 text";
    QTest::newRow("text in a row of two") << 2 << 2 << "text 238 text";
    QTest::newRow("text in a row of four") << 4 << 2 << "text 238 text";
    QTest::newRow("text in a row of six") << 6 << 2 << "text 238 text";
    QTest::newRow("3 is an area") << 3 << 3 << "QWidget 238";
    QTest::newRow("4 is an area") << 3 << 4 << "QWidget 238";
    QTest::newRow("negative is an area") << 3 << -1 << "QWidget 238";
}

void TestDataEditor::cellOfEachType()
{
    QFETCH(int, count);
    QFETCH(int, type);
    QStringList list = numbered(count);
    DataEditor editor(false, list, listSize, nullptr, false);
    const int inLayout = editor.layout()->count();
    QWidget *cell = nullptr;
    editor.CreateWidget(&cell, type, "text", "color: #123456;", 2.0f);
    QVERIFY(cell);
    QTEST(describe(cell), "cell");
    QCOMPARE(cell->styleSheet(), QString("color: #123456;"));
    QCOMPARE(cell->parentWidget(), static_cast<QWidget *>(&editor));
    QCOMPARE(editor.layout()->count(), inLayout);
}

void TestDataEditor::emptyTextLeavesACellEmpty()
{
    QStringList list = numbered(3);
    DataEditor editor(false, list, listSize, nullptr, false);
    QWidget *cell = nullptr;
    editor.CreateWidget(&cell, 1, QString(), QString(), 2.0f);
    QCOMPARE(editor.getText(cell), QString());
}

void TestDataEditor::sharedCellTakesTwoStrings_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("built");   // shown by a row that is made with the two
    QTest::addColumn<QString>("written"); // and by one that they are written to
    QTest::newRow("both") << "name"
                          << "value"
                          << "value"
                          << "name:value";
    QTest::newRow("first alone") << "name"
                                 << ""
                                 << "name"
                                 << "name";
    QTest::newRow("second alone") << ""
                                  << "value"
                                  << "value"
                                  << "value";
    QTest::newRow("neither") << ""
                             << ""
                             << ""
                             << "";
}

void TestDataEditor::sharedCellTakesTwoStrings()
{
    QFETCH(QString, name);
    QFETCH(QString, value);
    QFETCH(QString, built);
    QFETCH(QString, written);
    QStringList row = QStringList() << "7" << name << value << "x";
    DataEditor made(false, row, listSize, nullptr, false);
    QCOMPARE(describe(cellsOf(made).at(1)), QString("QLabel 85 " + built).trimmed());
    // The one text comes back whole, in third place.
    QCOMPARE(made.getData(), QStringList() << "7"
                                           << "" << built << "x");

    QStringList before = numbered(4);
    DataEditor filled(false, before, listSize, nullptr, false);
    QCOMPARE(filled.getData(), QStringList() << "s0"
                                             << ""
                                             << "s2"
                                             << "s3");
    filled.setData(row);
    QCOMPARE(describe(cellsOf(filled).at(1)), QString("QLabel 85 " + written).trimmed());
    QCOMPARE(filled.getData(), QStringList() << "7"
                                             << "" << written << "x");
    QCOMPARE(filled.getText(cellsOf(filled).at(0)), QString("7"));
    QCOMPARE(filled.getText(cellsOf(filled).at(2)), QString("x"));
}

void TestDataEditor::dataComesBackAsItWasWritten()
{
    for (int count = 2; count <= 32; ++count) {
        if (count == 4)
            continue;
        QStringList list = numbered(count);
        DataEditor editor(false, list, listSize, nullptr, false);
        QCOMPARE(editor.getData(), list);
        for (int i = 0; i < count; ++i)
            list[i] = QString::fromUtf8("%1: ä_(x)").arg(i);
        editor.setData(list);
        QCOMPARE(editor.getData(), list);
    }
}

void TestDataEditor::dataOfAnotherLengthChangesNothing()
{
    QStringList list = numbered(5);
    DataEditor editor(false, list, listSize, nullptr, false);
    for (int count = 0; count <= 40; ++count) {
        if (count == 5)
            continue;
        QStringList other;
        for (int i = 0; i < count; ++i)
            other << "other";
        editor.setData(other);
        QCOMPARE(editor.getData(), list);
    }
}

void TestDataEditor::indexIsTheFirstCell()
{
    QStringList list = numbered(5);
    DataEditor editor(false, list, listSize, nullptr, false);
    editor.setIndex("N12");
    list[0] = "N12";
    QCOMPARE(editor.getData(), list);
}

void TestDataEditor::rowNumber_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("number");
    QTest::newRow("bare") << "17" << 17;
    QTest::newRow("with a prefix") << "N17" << 17;
    QTest::newRow("one prefix alone is dropped") << "NN17" << 0;
    QTest::newRow("lone prefix") << "N" << 0;
    QTest::newRow("empty") << "" << 0;
    QTest::newRow("lower-case prefix") << "n17" << 0;
    QTest::newRow("negative") << "-3" << -3;
    QTest::newRow("negative behind the prefix") << "N-3" << -3;
    QTest::newRow("decimal, leading zeros too") << "N010" << 10;
    QTest::newRow("hexadecimal is no number") << "0x10" << 0;
    QTest::newRow("text") << "first" << 0;
}

void TestDataEditor::rowNumber()
{
    QFETCH(QString, text);
    QFETCH(int, number);
    QStringList list = numbered(3);
    DataEditor editor(false, list, listSize, nullptr, false);
    editor.setIndex(text);
    RowListener listener(&editor);
    editor.on_editfinished();
    editor.on_content_change("ignored");
    QTest::mousePress(&editor, Qt::LeftButton, Qt::NoModifier, QPoint(1, 1));
    const QString n = QString::number(number);
    QCOMPARE(listener.seen, QStringList() << "clicked " + n << "changed " + n << "clicked " + n);
}

void TestDataEditor::tapsAreReported_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<int>("cell");
    QTest::addColumn<QString>("offered");
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QString>("seen");
    QTest::addColumn<QString>("rowAfter");

    const int frame = -1;
    const QString none;
    QTest::newRow("the frame") << "N4|a|b" << frame << none << none << "clicked 4"
                               << "N4|a|b";
    QTest::newRow("a passive cell, which lets it through")
        << "N4|a|b" << 1 << none << none << "clicked 4"
        << "N4|a|b";
    QTest::newRow("a clickable cell") << "N4|a|b" << 0 << none << none << "clicked 4"
                                      << "N4|a|b";
    QTest::newRow("a field, the change before the tap") << "N4|a|1.5" << 2 << "1.5"
                                                        << "2"
                                                        << "changed 4|clicked 4"
                                                        << "N4|a|2";
    QTest::newRow("a field, cancelled") << "N4|a|1.5" << 2 << "1.5" << none << "clicked 4"
                                        << "N4|a|1.5";
    QTest::newRow("a field with a key, which keeps the bare answer") << "1|a|X:1.5" << 2 << "1.5"
                                                                     << "2.50"
                                                                     << "changed 1|clicked 1"
                                                                     << "1|a|2.50";
}

void TestDataEditor::tapsAreReported()
{
    QFETCH(QString, row);
    QFETCH(int, cell);
    QFETCH(QString, offered);
    QFETCH(QString, answer);
    QFETCH(QString, seen);
    QFETCH(QString, rowAfter);
    QStringList list = row.split('|');
    DataEditor editor(false, list, listSize, nullptr, false);
    RowListener listener(&editor);
    if (!answer.isEmpty())
        DeviceLog::acceptWith(answer);
    else if (!offered.isEmpty())
        DeviceLog::cancel();
    QWidget *const touched = cell < 0 ? &editor : cellsOf(editor).at(cell);
    QTest::mouseClick(touched, Qt::LeftButton, Qt::NoModifier, QPoint(1, 1));
    QCOMPARE(listener.seen, seen.split('|'));
    QCOMPARE(editor.getData(), rowAfter.split('|'));
    QCOMPARE(DeviceLog::calls().contains("NumericKeypad.setText(" + offered + ')'),
             !offered.isEmpty());
}

void TestDataEditor::rowOfFourHasNoValidatorInColumnThree()
{
    QStringList list = numbered(4);
    const DataEditor editor(false, list, listSize, nullptr, false);
    const ComboLineEdit *edit = qobject_cast<ComboLineEdit *>(cellsOf(editor).at(2));
    QVERIFY(edit);
    QVERIFY(!edit->validator());
    QVERIFY(!edit->isNumeric());
}

void TestDataEditor::addressFieldTakesAnIpAddress_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<int>("state");
    QTest::newRow("plain") << "192.168.0.1" << int(QValidator::Acceptable);
    QTest::newRow("highest") << "255.255.255.255" << int(QValidator::Acceptable);
    QTest::newRow("zeros") << "0.0.0.0" << int(QValidator::Acceptable);
    QTest::newRow("two digits may start with 0") << "01.02.03.04" << int(QValidator::Acceptable);
    QTest::newRow("249") << "249.1.1.1" << int(QValidator::Acceptable);
    QTest::newRow("256") << "256.1.1.1" << int(QValidator::Invalid);
    QTest::newRow("three digits starting with 0") << "001.1.1.1" << int(QValidator::Invalid);
    QTest::newRow("five parts") << "1.2.3.4.5" << int(QValidator::Invalid);
    QTest::newRow("letters") << "a.b.c.d" << int(QValidator::Invalid);
    QTest::newRow("unfinished") << "192.168." << int(QValidator::Intermediate);
}

void TestDataEditor::addressFieldTakesAnIpAddress()
{
    QFETCH(QString, address);
    QStringList list = numbered(5);
    const DataEditor editor(false, list, listSize, nullptr, true);
    const ComboLineEdit *edit = qobject_cast<ComboLineEdit *>(cellsOf(editor).last());
    QVERIFY(edit);
    int position = 0;
    QTEST(int(edit->validator()->validate(address, position)), "state");
}

void TestDataEditor::validatorBeforeTheAddressStaysAsAnIdleChild()
{
    QStringList list = numbered(5);
    const DataEditor editor(false, list, listSize, nullptr, true);
    ComboLineEdit *edit = qobject_cast<ComboLineEdit *>(cellsOf(editor).last());
    QVERIFY(edit);
    QCOMPARE(edit->findChildren<QDoubleValidator *>().size(), 1);
    QCOMPARE(edit->findChildren<QRegExpValidator *>().size(), 1);
    QVERIFY(qobject_cast<const QRegExpValidator *>(edit->validator()));
}

void TestDataEditor::wideTitleHasACellForEverySecondString()
{
    QStringList list = numbered(12);
    DataEditor editor(true, list, listSize, nullptr, false);
    QCOMPARE(cellsOf(editor).size(), 2 + 5);
    // A header is not meant to be read or written; the strings without a cell are empty.
    QCOMPARE(editor.getData(), QStringList() << "s0"
                                             << ""
                                             << "s2"
                                             << "s3"
                                             << ""
                                             << "s5"
                                             << ""
                                             << "s7"
                                             << ""
                                             << "s9"
                                             << ""
                                             << "s11");
    QStringList data = numbered(12);
    data[3] = "new";
    data[4] = "nowhere";
    editor.setData(data);
    QCOMPARE(editor.getData(), QStringList() << "s0"
                                             << ""
                                             << "s1:s2"
                                             << "new"
                                             << ""
                                             << "s5"
                                             << ""
                                             << "s7"
                                             << ""
                                             << "s9"
                                             << ""
                                             << "s11");
}

void TestDataEditor::columnsPastTheLastHaveNoCell()
{
    for (int count = 32; count <= 60; ++count) {
        QStringList list = numbered(count);
        DataEditor editor(false, list, listSize, nullptr, false);
        QCOMPARE(cellsOf(editor).size(), 32);
        QStringList expected = list;
        for (int i = 32; i < count; ++i)
            expected[i].clear();
        QCOMPARE(editor.getData(), expected);
        editor.setData(list);
        QCOMPARE(editor.getData(), expected);
    }
}

void TestDataEditor::listOfFewerThanTwoStringsMakesEmptyCells()
{
    for (int count = 0; count < 2; ++count) {
        for (int flags = 0; flags < 4; ++flags) {
            QStringList list = numbered(count);
            DataEditor editor(flags & 1, list, listSize, nullptr, flags & 2);
            QCOMPARE(cellsOf(editor).size(), 2);
            QCOMPARE(editor.getData(), list);
            QStringList data;
            for (int i = 0; i < count; ++i)
                data << "new";
            editor.setData(data);
            QCOMPARE(editor.getData(), data);
        }
    }
}

void TestDataEditor::foreignAndMissingCellsAreLeftAlone()
{
    QStringList list = numbered(3);
    DataEditor editor(false, list, listSize, nullptr, false);
    editor.setText(nullptr, "x");
    QCOMPARE(editor.getText(nullptr), QString());
    QWidget area;
    editor.setText(&area, "x");
    QCOMPARE(editor.getText(&area), QString());
    QLineEdit plainEdit;
    editor.setText(&plainEdit, "x");
    QCOMPARE(plainEdit.text(), QString());
    QCOMPARE(editor.getText(&plainEdit), QString());
    Label label(nullptr);
    editor.setText(&label, "x");
    QCOMPARE(editor.getText(&label), QString("x"));
}

void TestDataEditor::givenListStaysAsItIs()
{
    QStringList list = numbered(12);
    DataEditor editor(true, list, listSize, nullptr, false);
    QCOMPARE(list, numbered(12));
    editor.setData(list);
    QCOMPARE(list, numbered(12));
}

FILARIX_TEST_MAIN(TestDataEditor)
#include "tst_dataeditor.moc"
