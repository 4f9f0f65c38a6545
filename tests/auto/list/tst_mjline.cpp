// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "combolineedit.h"
#include "dataeditor.h"
#include "devicelog.h"
#include "filarixtest.h"
#include "label.h"
#include "mjline.h"
#include "rowfixture.h"
#include "rowstyle_p.h"
#include "rowview.h"

#include <QDoubleValidator>
#include <QImage>
#include <QMetaMethod>
#include <QPointer>
#include <QVBoxLayout>

using namespace RowFixture;

/// Notes the signals of a row in order, and can do what a host does on them.
class LineListener : public QObject
{
    Q_OBJECT

public:
    explicit LineListener(MJLine *line) : m_line(line)
    {
        connect(line, SIGNAL(clicked(int)), this, SLOT(onClicked(int)));
        connect(line, SIGNAL(sizeChanged(bool)), this, SLOT(onSizeChanged(bool)));
        connect(line, SIGNAL(sg_jpos_update(int)), this, SLOT(onJpos(int)));
        connect(line, SIGNAL(sg_v_update(int)), this, SLOT(onV(int)));
        connect(line, SIGNAL(sg_content_change(int)), this, SLOT(onContentChange(int)));
    }

    /// What was seen since the last call.
    QStringList take()
    {
        const QStringList taken = m_seen;
        m_seen.clear();
        return taken;
    }

    bool deletesOnSizeChange = false;

private Q_SLOTS:
    void onClicked(int row) { note("clicked", row); }
    void onSizeChanged(bool open)
    {
        m_seen << QLatin1String(open ? "opened" : "closed");
        if (deletesOnSizeChange)
            delete m_line;
    }
    void onJpos(int row) { note("jpos", row); }
    void onV(int row) { note("v", row); }
    void onContentChange(int row) { note("changed", row); }

private:
    void note(const char *what, int row)
    {
        m_seen << QString::fromLatin1("%1 %2").arg(QLatin1String(what)).arg(row);
    }

    QPointer<MJLine> m_line;
    QStringList m_seen;
};

class TestMJLine : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void argumentsOfSlotsAreNamed();
    void fieldOfEachType_data();
    void fieldOfEachType();
    void fieldOutsideTheTableIsAnArea();
    void heightFactorChangesNothing();
    void fieldHasItsStyleAndPolicy();
    void emptyTextIsNotSet();
    void measures_data();
    void measures();
    void widthsAreInSinglePrecision();
    void rowHasItsFrame();
    void detailAreaHasItsLayouts();
    void closedRowShowsOneLine();
    void openRowShowsTheDetailArea();
    void detailAreaIsBuiltAtTheFirstOpening();
    void secondOpeningKeepsTheDetailArea();
    void arrowAndInstructionHaveTheSameEffect();
    void directOpeningEmitsNothing();
    void rowDeletedOnSizeChange();
    void tapsOnLabels();
    void tapOnAFieldOpensTheKeypadFirst_data();
    void tapOnAFieldOpensTheKeypadFirst();
    void pressOnTheRowIsATap();
    void otherRowLeavesTapsToItsEditor();
    void editorCoversTheRow_data();
    void editorCoversTheRow();
    void signalsOfTheEditorAreForwarded();
    void numberThatIsNoneReportsZero_data();
    void numberThatIsNoneReportsZero();
    void rowSelectedBeforeItIsShownIsColoured();
    void suffixesAreTranslated();

    void textsByClass();
    void numIsTheNumberLabel();
    void nameIsBareWithEitherSuffix();
    void setVTakesTheIndexFromExactlyFour_data();
    void setVTakesTheIndexFromExactlyFour();
    void setJposTakesTheIndexFromExactlySeven_data();
    void setJposTakesTheIndexFromExactlySeven();
    void groupsOfANeverOpenedRowShowAtTheFirstOpening();
    void groupKeysComeFromTheRowNotTheField();
    void labelWithoutAColonIsAllKey();
    void refillKeepsTheRowOpenOrClosed();
    void refillShowsEveryValueOfAnOpenRow();
    void refillLeavesTheEditorAlone();
    void editedDetailEmptiesAnIndex_data();
    void editedDetailEmptiesAnIndex();
    void editOfAFirstLineField();
    void editOfTheFreeText();
    void writtenFreeTextShowsUnderscoresUntilRefilled();
    void answerWithoutAColonIsStoredWhole();
    void lastPartOfAnAnswerIsTheValue();
    void callWithoutASenderChangesNoValue();
    void senderOfAnotherRowChangesNoValue();
};

namespace {

QStringList sample(const QString &num = QLatin1String("7"))
{
    return QStringList() << num << "MOVJ"
                         << "P"
                         << "3"
                         << "V"
                         << "2"
                         << "Z"
                         << "0.5"
                         << "T"
                         << "1.25"
                         << "Att"
                         << "to_left"
                         << "X"
                         << "1"
                         << "Y"
                         << "2"
                         << "Z"
                         << "3"
                         << "A"
                         << "4"
                         << "B"
                         << "5"
                         << "C"
                         << "6"
                         << "Vl"
                         << "7"
                         << "Va"
                         << "8"
                         << "Vd"
                         << "9";
}

/// A row of the sample.
class Line : public MJLine
{
public:
    explicit Line(QStringList list = sample(), QSize size = listSize)
        : MJLine(list, size, nullptr), view(this), listener(this)
    {}

    RowView view;
    LineListener listener;
};

QStringList otherRow()
{
    return QStringList() << "7"
                         << "x"
                         << "Oth"
                         << "y";
}

void tap(QWidget *widget)
{
    QTest::mousePress(widget, Qt::LeftButton, Qt::NoModifier, QPoint(1, 1));
}

void edit(QWidget *field, const QString &answer)
{
    DeviceLog::acceptWith(answer);
    tap(field);
}

QStringList indexes(MJLine &line)
{
    const QStringList row = line.GetLineList();
    return QStringList() << row.at(3) << row.at(5);
}

bool isToldToHide(const QWidget *widget)
{
    return widget->isHidden() && widget->testAttribute(Qt::WA_WState_ExplicitShowHide);
}

} // namespace

void TestMJLine::init()
{
    FilarixTest::init();
    DeviceLog::reset();
}

void TestMJLine::cleanup()
{
    QCOMPARE(DeviceLog::answersLeft(), 0);
    FilarixTest::cleanup();
}

void TestMJLine::argumentsOfSlotsAreNamed()
{
    const QMetaObject &meta = MJLine::staticMetaObject;
    const QMetaMethod slot = meta.method(meta.indexOfSlot("on_jpos_change(QString)"));
    QCOMPARE(slot.parameterNames(), QList<QByteArray>() << "newText");
}

void TestMJLine::fieldOfEachType_data()
{
    QTest::addColumn<int>("type");
    const int types[] = {1, 1, 0, 1, 0, 1, 0, 1, 2, 1, 2, 1, 3, 1, 2, 1, 2,
                         1, 2, 1, 2, 1, 2, 1, 2, 1, 2, 1, 2, 1, 2, 0, 4, 4};
    for (int i = 0; i < 34; ++i)
        QTest::newRow(QByteArray("entry " + QByteArray::number(i)).constData()) << types[i];
}

void TestMJLine::fieldOfEachType()
{
    QFETCH(int, type);
    const int index = QByteArray(QTest::currentDataTag()).mid(6).toInt();
    Line line;
    QWidget *field = line.createWidget(index, "text", 5.5f, 24.0f);
    const char *const classes[] = {"Label", "QLabel", "ComboLineEdit", "ComboLineEdit", "QWidget"};
    QCOMPARE(QByteArray(field->metaObject()->className()), QByteArray(classes[type]));
    if (ComboLineEdit *edit = qobject_cast<ComboLineEdit *>(field)) {
        QCOMPARE(edit->isNumeric(), type == 2);
        QCOMPARE(qobject_cast<const QDoubleValidator *>(edit->validator()) != nullptr, type == 2);
        QCOMPARE(edit->validator() != nullptr, type == 2);
    }
    QCOMPARE(line.getText(field), QString(type == 4 ? "" : "text"));
    QCOMPARE(field->styleSheet(), QString("border-style:solid;border-width: 1px;color: #000000;"));
}

void TestMJLine::fieldOutsideTheTableIsAnArea()
{
    Line line;
    const int outside[] = {-1, 34, 1000};
    for (int i = 0; i < 3; ++i) {
        const QWidget *field = line.createWidget(outside[i], "text", 5.5f, 24.0f);
        QCOMPARE(field->metaObject(), &QWidget::staticMetaObject);
    }
    QCOMPARE(line.createWidget(0, "text", 0.0f, 24.0f)->minimumWidth(), 0);
}

void TestMJLine::heightFactorChangesNothing()
{
    Line line;
    const float factors[] = {24.0f, 12.0f, 0.0f, -1.0f};
    for (int i = 0; i < 4; ++i) {
        const QWidget *field = line.createWidget(8, "text", 5.5f, factors[i]);
        QCOMPARE(field->minimumWidth(), 85);
        QCOMPARE(field->minimumHeight(), 0);
        QCOMPARE(field->maximumHeight(), QWIDGETSIZE_MAX);
    }
}

void TestMJLine::fieldHasItsStyleAndPolicy()
{
    Line line;
    const QWidget *field = line.createWidget(2, "text", 5.5f, 24.0f);
    QCOMPARE(field->parentWidget(), static_cast<QWidget *>(&line));
    QCOMPARE(field->minimumWidth(), 85);
    QCOMPARE(field->maximumWidth(), 85);
    QCOMPARE(field->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(field->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    QVERIFY(field->testAttribute(Qt::WA_LayoutUsesWidgetRect));
}

void TestMJLine::emptyTextIsNotSet()
{
    Line line;
    QCOMPARE(line.getText(line.createWidget(0, QString(), 11.0f, 24.0f)), QString());
}

void TestMJLine::measures_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("num");
    QTest::addColumn<int>("cell");
    QTest::addColumn<int>("detail");
    QTest::addColumn<int>("area");
    QTest::addColumn<int>("editor");
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("details");
    QTest::addColumn<int>("closed");
    QTest::addColumn<int>("open");
    QTest::newRow("480 by 272") << QSize(480, 272) << 42 << 85 << 84 << 466 << 475 << 11 << 22 << 11
                                << 35;
    QTest::newRow("480 by 480") << QSize(480, 480) << 42 << 85 << 84 << 466 << 475 << 20 << 40 << 20
                                << 62;
    QTest::newRow("480 by 600") << QSize(480, 600) << 42 << 85 << 84 << 466 << 475 << 25 << 50 << 26
                                << 78;
    QTest::newRow("480 by 800") << QSize(480, 800) << 42 << 85 << 84 << 466 << 475 << 33 << 66 << 34
                                << 104;
    QTest::newRow("240 by 320") << QSize(240, 320) << 20 << 42 << 41 << 232 << 241 << 13 << 26 << 13
                                << 41;
    QTest::newRow("nothing") << QSize(0, 0) << 0 << 0 << 0 << 0 << 7 << 0 << 0 << 0 << 0;
}

void TestMJLine::measures()
{
    QFETCH(QSize, size);
    Line line(sample(), size);
    QTEST(line.height(), "closed");
    line.on_expand();
    QTEST(line.height(), "open");
    QCOMPARE(line.minimumHeight(), line.maximumHeight());
    QTEST(line.view.cell(RowView::Num)->minimumWidth(), "num");
    for (int i = RowView::Ins; i <= RowView::T; ++i)
        QTEST(line.view.cell(RowView::Cell(i))->minimumWidth(), "cell");
    for (int k = 0; k < 9; ++k)
        QTEST(line.view.detail(k)->minimumWidth(), "detail");
    QTEST(line.view.res()->minimumWidth(), "detail");
    QTEST(line.view.arrow()->minimumWidth(), "num");
    QTEST(line.view.detailArea()->minimumWidth(), "area");
    QTEST(line.view.detailArea()->minimumHeight(), "details");
    QTEST(line.view.detailArea()->maximumHeight(), "details");
    QTEST(line.firstLine()->minimumHeight(), "line");
    QTEST(line.firstLine()->maximumHeight(), "line");
    QTEST(line.dataEditor()->minimumWidth(), "editor");
    QTEST(line.dataEditor()->maximumWidth(), "editor");
    QTEST(line.dataEditor()->minimumHeight(), "line");
    QTEST(line.dataEditor()->maximumHeight(), "line");
}

void TestMJLine::widthsAreInSinglePrecision()
{
    // A pixel less in double precision.
    Line line(sample(), QSize(550, 480));
    line.on_expand();
    QCOMPARE(line.view.detail(0)->minimumWidth(), 97);
}

void TestMJLine::rowHasItsFrame()
{
    const Line line;
    QCOMPARE(line.styleSheet(), QString("border-style:solid;border-width: 1px; "
                                        "background-color:#ffffff;color: #000000;"));
    const QVBoxLayout *layout = qobject_cast<QVBoxLayout *>(line.layout());
    QVERIFY(layout);
    QCOMPARE(layout->count(), 2);
    QCOMPARE(layout->itemAt(0)->widget(), line.firstLine());
    QCOMPARE(layout->alignment(), Qt::Alignment(Qt::AlignLeft));
    QCOMPARE(layout->spacing(), 0);
    int left, top, right, bottom;
    layout->getContentsMargins(&left, &top, &right, &bottom);
    QCOMPARE(left, 5);
    QCOMPARE(top, 0);
    QCOMPARE(right, 5);
    QCOMPARE(bottom, 0);
    QCOMPARE(line.firstLine()->layout()->count(), 6);
    QCOMPARE(line.dataEditor()->parentWidget(), static_cast<const QWidget *>(&line));
}

void TestMJLine::detailAreaHasItsLayouts()
{
    Line line;
    line.on_expand();
    QLayout *outer = line.view.detailArea()->layout();
    QLayout *lines = outer->itemAt(1)->layout();
    QLayout *const layouts[] = {outer, lines, lines->itemAt(0)->layout(),
                                lines->itemAt(1)->layout(), line.firstLine()->layout()};
    const int counts[] = {2, 2, 5, 5, 6};
    for (int i = 0; i < 5; ++i) {
        QCOMPARE(layouts[i]->count(), counts[i]);
        QCOMPARE(layouts[i]->spacing(), 0);
        QCOMPARE(layouts[i]->alignment(), Qt::Alignment(Qt::AlignLeft));
        int left, top, right, bottom;
        layouts[i]->getContentsMargins(&left, &top, &right, &bottom);
        QCOMPARE(left + top + right + bottom, 0);
    }
    QCOMPARE(line.view.text(line.view.arrow()), QString::fromUtf8("↑"));
}

void TestMJLine::closedRowShowsOneLine()
{
    Line line;
    QVERIFY(!line.isExpanded());
    line.show();
    QVERIFY(line.firstLine()->isVisible());
    QVERIFY(!line.view.detailArea()->isVisible());
    QVERIFY(!line.dataEditor()->isVisible());
    QCOMPARE(line.view.text(RowView::Ins), "MOVJ" + down);
}

void TestMJLine::openRowShowsTheDetailArea()
{
    Line line;
    line.show();
    line.on_expand();
    QVERIFY(line.isExpanded());
    QVERIFY(line.firstLine()->isVisible());
    QVERIFY(line.view.detailArea()->isVisible());
    QVERIFY(line.view.detail(8)->isVisible());
    QVERIFY(line.view.res()->isVisible());
    QCOMPARE(line.view.text(RowView::Ins), "MOVJ" + up);
    QCOMPARE(line.view.resText(), QString("to left"));

    line.on_expand();
    QVERIFY(!line.isExpanded());
    QVERIFY(!line.view.detailArea()->isVisible());
    QCOMPARE(line.view.text(RowView::Ins), "MOVJ" + down);
}

void TestMJLine::detailAreaIsBuiltAtTheFirstOpening()
{
    Line line;
    QVERIFY(!line.view.isBuilt());
    QCOMPARE(line.view.detailArea()->findChildren<QWidget *>().size(), 0);
    line.on_expand();
    QVERIFY(line.view.isBuilt());
    QCOMPARE(line.view.detailText(0), QString("X:1"));
    QCOMPARE(line.view.detailText(8), QString("Vd:9"));
}

void TestMJLine::secondOpeningKeepsTheDetailArea()
{
    Line line;
    line.on_expand();
    QWidget *const detail = line.view.detail(3);
    QWidget *const res = line.view.res();
    const int children = line.findChildren<QWidget *>().size();
    line.setText(detail, "shown only");
    line.on_expand();
    line.on_expand();
    line.createLine2();
    QCOMPARE(line.view.detail(3), detail);
    QCOMPARE(line.view.res(), res);
    QCOMPARE(line.findChildren<QWidget *>().size(), children);
    QCOMPARE(line.view.detailText(3), QString("shown only"));
}

void TestMJLine::arrowAndInstructionHaveTheSameEffect()
{
    Line line;
    tap(line.view.cell(RowView::Ins));
    QCOMPARE(line.listener.take(), QStringList() << "opened"
                                                 << "clicked 7");
    QVERIFY(line.isExpanded());
    tap(line.view.arrow());
    QCOMPARE(line.listener.take(), QStringList() << "closed"
                                                 << "clicked 7");
    QVERIFY(!line.isExpanded());
    tap(line.view.arrow());
    QCOMPARE(line.listener.take(), QStringList() << "opened"
                                                 << "clicked 7");
    tap(line.view.cell(RowView::Ins));
    QCOMPARE(line.listener.take(), QStringList() << "closed"
                                                 << "clicked 7");
}

void TestMJLine::directOpeningEmitsNothing()
{
    Line line;
    line.on_expand();
    line.on_expand();
    QCOMPARE(line.listener.take(), QStringList());
}

void TestMJLine::rowDeletedOnSizeChange()
{
    QStringList list = sample();
    QPointer<MJLine> line = new MJLine(list, listSize, nullptr);
    LineListener listener(line);
    listener.deletesOnSizeChange = true;
    line->on_press_down();
    QVERIFY(!line);
    QCOMPARE(listener.take(), QStringList() << "opened");
}

void TestMJLine::tapsOnLabels()
{
    Line line;
    tap(line.view.cell(RowView::Jpos));
    QCOMPARE(line.listener.take(), QStringList() << "jpos 7");
    tap(line.view.cell(RowView::V));
    QCOMPARE(line.listener.take(), QStringList() << "v 7");
    // The number is a passive label: the press falls through to the row.
    tap(line.view.cell(RowView::Num));
    QCOMPARE(line.listener.take(), QStringList() << "clicked 7");
}

void TestMJLine::tapOnAFieldOpensTheKeypadFirst_data()
{
    QTest::addColumn<int>("field");
    QTest::addColumn<QString>("keypad");
    QTest::addColumn<QString>("value");
    QTest::newRow("Z") << 100 << "NumericKeypad"
                       << "0.5";
    QTest::newRow("T") << 101 << "NumericKeypad"
                       << "1.25";
    QTest::newRow("free text") << 102 << "CharacterKeypad"
                               << "to left";
    QTest::newRow("first detail") << 0 << "NumericKeypad"
                                  << "1";
    QTest::newRow("last detail") << 8 << "NumericKeypad"
                                 << "9";
}

void TestMJLine::tapOnAFieldOpensTheKeypadFirst()
{
    QFETCH(int, field);
    QFETCH(QString, keypad);
    QFETCH(QString, value);
    Line line;
    line.on_expand();
    const QStringList before = line.GetLineList();
    line.on_expand();
    QStringList list = sample();
    line.setLineList(list);
    line.on_expand();
    QWidget *widget = field == 100   ? line.view.cell(RowView::Z)
                      : field == 101 ? line.view.cell(RowView::T)
                      : field == 102 ? line.view.res()
                                     : line.view.detail(field);
    QStringList whileOpen(QLatin1String("not opened"));
    DeviceLog::runThenCancel([&]() { whileOpen = line.listener.take(); });
    tap(widget);
    QCOMPARE(whileOpen, QStringList());
    QVERIFY(DeviceLog::calls().contains(keypad + ".setText(" + value + ")"));
    QCOMPARE(line.listener.take(), QStringList() << "clicked 7");
    QCOMPARE(line.GetLineList(), before);
}

void TestMJLine::pressOnTheRowIsATap()
{
    Line line;
    tap(&line);
    QCOMPARE(line.listener.take(), QStringList() << "clicked 7");
    tap(line.firstLine());
    QCOMPARE(line.listener.take(), QStringList() << "clicked 7");
    line.on_expand();
    tap(line.view.detailArea());
    QCOMPARE(line.listener.take(), QStringList() << "clicked 7");
}

void TestMJLine::otherRowLeavesTapsToItsEditor()
{
    Line line(otherRow());
    for (int shown = 0; shown < 2; ++shown) {
        line.on_z_update();
        line.on_t_update();
        line.on_res_update();
        line.on_lineEdit_clicked();
        tap(&line);
        QCOMPARE(line.listener.take(), QStringList());
        // These do not look at the editor.
        line.on_jpos_update();
        line.on_v_update();
        QCOMPARE(line.listener.take(), QStringList() << "jpos 7"
                                                     << "v 7");
        line.show();
    }
    // One tap on the editor's frame is one tap on the row.
    tap(line.dataEditor());
    QCOMPARE(line.listener.take(), QStringList() << "clicked 7");
}

void TestMJLine::editorCoversTheRow_data()
{
    QTest::addColumn<QStringList>("list");
    QTest::newRow("other") << otherRow();
    QTest::newRow("title") << (QStringList() << "Title"
                                             << "No"
                                             << ""
                                             << "Jpos"
                                             << ""
                                             << "V"
                                             << ""
                                             << "Z"
                                             << ""
                                             << "T");
}

void TestMJLine::editorCoversTheRow()
{
    QFETCH(QStringList, list);
    Line line(list);
    line.setFixedWidth(480);
    line.show();
    QVERIFY(TestCompat::waitForExposed(&line));
    QVERIFY(isToldToHide(line.firstLine()));
    Q_FOREACH (QObject *child, line.children()) {
        QWidget *widget = qobject_cast<QWidget *>(child);
        QVERIFY(!widget || widget == line.dataEditor() || !widget->isVisible());
    }
    QCOMPARE(line.dataEditor()->pos(), QPoint(0, 0));
    // All but a narrow strip at the right and a pixel below, as wide as a row of cells.
    QCOMPARE(line.dataEditor()->width(), 475);
    QCOMPARE(line.dataEditor()->height(), 33);
    QCOMPARE(line.childAt(240, 16)->parentWidget(), static_cast<QWidget *>(line.dataEditor()));
    const QLayout *cells = line.dataEditor()->layout();
    for (int i = 0; i < cells->count(); ++i) {
        const QWidget *cell = cells->itemAt(i)->widget();
        QVERIFY(cell->isVisible());
        QVERIFY(line.dataEditor()->rect().contains(cell->geometry()));
    }
}

void TestMJLine::signalsOfTheEditorAreForwarded()
{
    Line line(otherRow());
    edit(line.dataEditor()->layout()->itemAt(2)->widget(), "z");
    QCOMPARE(line.listener.take(), QStringList() << "changed 7"
                                                 << "clicked 7");
    QCOMPARE(line.dataEditor()->getData(), QStringList() << "7"
                                                         << ""
                                                         << "Oth"
                                                         << "z");
}

void TestMJLine::numberThatIsNoneReportsZero_data()
{
    QTest::addColumn<QString>("num");
    QTest::addColumn<int>("number");
    QTest::newRow("number") << "12" << 12;
    QTest::newRow("prefix is not dropped") << "N12" << 0;
    QTest::newRow("empty") << "" << 0;
    QTest::newRow("negative") << "-2" << -2;
}

void TestMJLine::numberThatIsNoneReportsZero()
{
    QFETCH(QString, num);
    QFETCH(int, number);
    Line line(sample(num));
    line.on_z_update();
    line.on_v_update();
    line.on_vars1_change("1");
    line.on_press_down();
    const QString n = QString::number(number);
    QCOMPARE(line.listener.take(), QStringList()
                                       << "clicked " + n << "v " + n << "changed " + n << "opened"
                                       << "clicked " + n);
}

void TestMJLine::rowSelectedBeforeItIsShownIsColoured()
{
    Line line;
    RowStyle::apply(&line, RowStyle::selectedRow);
    line.show();
    const auto colour = [&line]() {
        const QWidget *cell = line.view.cell(RowView::V);
        const QPoint place = cell->mapTo(&line, QPoint(cell->width() - 6, cell->height() / 2));
        return QColor(TestCompat::grab(&line).toImage().pixel(place));
    };
    QCOMPARE(colour(), QColor("#00ffff"));
    RowStyle::apply(&line, RowStyle::plainRow);
    QCOMPARE(colour(), QColor("#ffffff"));
}

void TestMJLine::suffixesAreTranslated()
{
    const TestCompat::MarkingTranslator translator("MJLine");
    Line line;
    QCOMPARE(line.view.text(RowView::Ins), "MOVJ" + down + "*");
    line.on_expand();
    QCOMPARE(line.view.text(RowView::Ins), "MOVJ" + up + "*");
    QCOMPARE(line.view.text(line.view.arrow()), QString::fromUtf8("↑*"));
    QCOMPARE(line.getIns(), QString("MOVJ"));
}

void TestMJLine::textsByClass()
{
    Line line;
    Label label(nullptr);
    QLabel passive;
    ComboLineEdit field(nullptr);
    QLineEdit plainEdit;
    QWidget area;
    QWidget *const widgets[] = {&label, &passive, &field, &plainEdit, &area};
    const char *const texts[] = {"x", "x", "x", "", ""};
    for (int i = 0; i < 5; ++i) {
        line.setText(widgets[i], "x");
        QCOMPARE(line.getText(widgets[i]), QString(texts[i]));
    }
    QCOMPARE(plainEdit.text(), QString());
    line.setText(nullptr, "x");
    QCOMPARE(line.getText(nullptr), QString());
}

void TestMJLine::numIsTheNumberLabel()
{
    Line line;
    line.setNum("42");
    QCOMPARE(line.getNum(), QString("42"));
    QCOMPARE(line.view.text(RowView::Num), QString("42"));
    QCOMPARE(line.GetLineList().first(), QString("42"));
}

void TestMJLine::nameIsBareWithEitherSuffix()
{
    Line line;
    QCOMPARE(line.getIns(), QString("MOVJ"));
    line.on_expand();
    QCOMPARE(line.getIns(), QString("MOVJ"));
}

void TestMJLine::setVTakesTheIndexFromExactlyFour_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QStringList>("values");
    QTest::addColumn<QString>("label");
    const QStringList before = QStringList() << "7"
                                             << "8"
                                             << "9";
    const QStringList after = QStringList() << "a"
                                            << "b"
                                            << "c";
    QTest::newRow("none") << 0 << before << "V:2";
    QTest::newRow("2 are too few") << 2 << before << "V:2";
    QTest::newRow("3 leave the label alone") << 3 << after << "V:2";
    QTest::newRow("4 replace the index") << 4 << after << "V:d";
    QTest::newRow("5 leave the label alone") << 5 << after << "V:2";
}

void TestMJLine::setVTakesTheIndexFromExactlyFour()
{
    QFETCH(int, count);
    QFETCH(QStringList, values);
    QFETCH(QString, label);
    QStringList all = QStringList() << "a"
                                    << "b"
                                    << "c"
                                    << "d"
                                    << "e";
    for (int open = 0; open < 2; ++open) {
        Line line;
        if (open)
            line.on_expand();
        QStringList list = all.mid(0, count);
        line.setV(list);
        QCOMPARE(line.getV(), values);
        QCOMPARE(line.getJpos(), QStringList(sample().mid(12, 12)).filter(QRegExp("^\\d$")));
        QCOMPARE(line.view.text(RowView::V), label);
        QCOMPARE(line.view.text(RowView::Jpos), QString("P:3"));
        if (open)
            QCOMPARE(line.view.detailText(6), "Vl:" + values.first());
        QCOMPARE(line.listener.take(), QStringList());
    }
}

void TestMJLine::setJposTakesTheIndexFromExactlySeven_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QStringList>("values");
    QTest::addColumn<QString>("label");
    const QStringList before = QStringList() << "1"
                                             << "2"
                                             << "3"
                                             << "4"
                                             << "5"
                                             << "6";
    const QStringList after = QStringList() << "a"
                                            << "b"
                                            << "c"
                                            << "d"
                                            << "e"
                                            << "f";
    QTest::newRow("none") << 0 << before << "P:3";
    QTest::newRow("5 are too few") << 5 << before << "P:3";
    QTest::newRow("6 leave the label alone") << 6 << after << "P:3";
    QTest::newRow("7 replace the index") << 7 << after << "P:g";
    QTest::newRow("8 leave the label alone") << 8 << after << "P:3";
}

void TestMJLine::setJposTakesTheIndexFromExactlySeven()
{
    QFETCH(int, count);
    QFETCH(QStringList, values);
    QFETCH(QString, label);
    QStringList all = QStringList() << "a"
                                    << "b"
                                    << "c"
                                    << "d"
                                    << "e"
                                    << "f"
                                    << "g"
                                    << "h";
    for (int open = 0; open < 2; ++open) {
        Line line;
        if (open)
            line.on_expand();
        QStringList list = all.mid(0, count);
        line.setJpos(list);
        QCOMPARE(line.getJpos(), values);
        QCOMPARE(line.getV(), QStringList() << "7"
                                            << "8"
                                            << "9");
        QCOMPARE(line.view.text(RowView::Jpos), label);
        QCOMPARE(line.view.text(RowView::V), QString("V:2"));
        if (open)
            QCOMPARE(line.view.detailText(5), "C:" + values.last());
        QCOMPARE(line.listener.take(), QStringList());
    }
}

void TestMJLine::groupsOfANeverOpenedRowShowAtTheFirstOpening()
{
    Line line;
    QStringList v = QStringList() << "a"
                                  << "b"
                                  << "c";
    line.setV(v);
    QStringList jpos = QStringList() << "d"
                                     << "e"
                                     << "f"
                                     << "g"
                                     << "h"
                                     << "i";
    line.setJpos(jpos);
    QVERIFY(!line.view.isBuilt());
    line.on_expand();
    QCOMPARE(line.view.detailText(0), QString("X:d"));
    QCOMPARE(line.view.detailText(5), QString("C:i"));
    QCOMPARE(line.view.detailText(6), QString("Vl:a"));
    QCOMPARE(line.view.detailText(8), QString("Vd:c"));
}

void TestMJLine::groupKeysComeFromTheRowNotTheField()
{
    Line line;
    line.on_expand();
    line.setText(line.view.detail(6), "odd");
    QStringList v = QStringList() << "a"
                                  << "b"
                                  << "c";
    line.setV(v);
    QCOMPARE(line.view.detailText(6), QString("Vl:a"));
}

void TestMJLine::labelWithoutAColonIsAllKey()
{
    Line line;
    line.setText(line.view.cell(RowView::V), "speed");
    QStringList v = QStringList() << "a"
                                  << "b"
                                  << "c"
                                  << "4";
    line.setV(v);
    QCOMPARE(line.view.text(RowView::V), QString("speed:4"));
    line.setText(line.view.cell(RowView::V), "a:b:c");
    line.setV(v);
    QCOMPARE(line.view.text(RowView::V), QString("a:4"));
}

void TestMJLine::refillKeepsTheRowOpenOrClosed()
{
    Line line;
    for (int round = 0; round < 3; ++round) {
        const bool open = line.isExpanded();
        const int height = line.height();
        QStringList list = sample("8");
        list[1] = "MOVL";
        line.setLineList(list);
        QCOMPARE(line.isExpanded(), open);
        QCOMPARE(line.height(), height);
        QCOMPARE(isToldToHide(line.view.detailArea()), !open);
        QCOMPARE(line.view.text(RowView::Ins), "MOVL" + (open ? up : down));
        QCOMPARE(line.listener.take(), QStringList());
        line.on_expand();
    }
}

void TestMJLine::refillShowsEveryValueOfAnOpenRow()
{
    Line line;
    line.on_expand();
    QStringList list;
    for (int i = 0; i < 30; ++i)
        list << QString::fromLatin1("s_%1").arg(i);
    line.setLineList(list);
    QCOMPARE(line.view.text(RowView::Num), QString("s_0"));
    QCOMPARE(line.view.text(RowView::Ins), "s_1" + up);
    QCOMPARE(line.view.text(RowView::Jpos), QString("s_2:s_3"));
    QCOMPARE(line.view.text(RowView::V), QString("s_4:s_5"));
    QCOMPARE(line.view.text(RowView::Z), QString("s_6:s_7"));
    QCOMPARE(line.view.text(RowView::T), QString("s_8:s_9"));
    QCOMPARE(line.view.resText(), QString("s 11"));
    for (int k = 0; k < 9; ++k)
        QCOMPARE(line.view.detailText(k),
                 QString::fromLatin1("s_%1:s_%2").arg(12 + 2 * k).arg(13 + 2 * k));
}

void TestMJLine::refillLeavesTheEditorAlone()
{
    Line line(otherRow());
    const QStringList before = line.dataEditor()->getData();
    QStringList list = sample();
    line.setLineList(list);
    QCOMPARE(line.dataEditor()->getData(), before);
    QVERIFY(!line.dataEditor()->isHidden());
    QVERIFY(isToldToHide(line.firstLine()));
}

void TestMJLine::editedDetailEmptiesAnIndex_data()
{
    QTest::addColumn<bool>("emptiesJpos");
    QTest::addColumn<QString>("key");
    QTest::newRow("detail 0") << true << "X";
    QTest::newRow("detail 1") << true << "Y";
    QTest::newRow("detail 2") << true << "Z";
    QTest::newRow("detail 3") << true << "A";
    QTest::newRow("detail 4") << true << "B";
    QTest::newRow("detail 5") << true << "C";
    QTest::newRow("detail 6") << false << "Vl";
    QTest::newRow("detail 7") << false << "Va";
    QTest::newRow("detail 8, though of the V group") << true << "Vd";
}

void TestMJLine::editedDetailEmptiesAnIndex()
{
    QFETCH(bool, emptiesJpos);
    QFETCH(QString, key);
    const int k = QByteArray(QTest::currentDataTag()).mid(7, 1).toInt();
    Line line;
    line.on_expand();
    edit(line.view.detail(k), "50");
    QCOMPARE(line.listener.take(), QStringList() << "changed 7"
                                                 << "clicked 7");
    QCOMPARE(line.view.detailText(k), key + ":50");
    QCOMPARE(line.view.text(RowView::Jpos), QString(emptiesJpos ? "P:" : "P:3"));
    QCOMPARE(line.view.text(RowView::V), QString(emptiesJpos ? "V:2" : "V:"));
    QStringList expected = sample();
    expected[13 + 2 * k] = "50";
    expected[emptiesJpos ? 3 : 5] = "";
    QCOMPARE(line.GetLineList(), expected);
}

void TestMJLine::editOfAFirstLineField()
{
    Line line;
    edit(line.view.cell(RowView::Z), "2.5");
    QCOMPARE(line.listener.take(), QStringList() << "changed 7"
                                                 << "clicked 7");
    QCOMPARE(line.view.text(RowView::Z), QString("Z:2.5"));
    edit(line.view.cell(RowView::T), "09");
    QCOMPARE(line.view.text(RowView::T), QString("T:09"));
    edit(line.view.cell(RowView::Z), "no number");
    QCOMPARE(line.view.text(RowView::Z), QString("Z:2.5"));
    QStringList expected = sample();
    expected[7] = "2.5";
    expected[9] = "09";
    QCOMPARE(line.GetLineList(), expected);
    QCOMPARE(indexes(line), QStringList() << "3"
                                          << "2");
}

void TestMJLine::editOfTheFreeText()
{
    Line line;
    line.on_expand();
    edit(line.view.res(), "two words_x");
    QCOMPARE(line.listener.take(), QStringList() << "changed 7"
                                                 << "clicked 7");
    QCOMPARE(line.view.resText(), QString("two words_x"));
    QCOMPARE(line.GetLineList().at(11), QString("two_words_x"));

    // An underscore comes back as a blank once the row was written and read again.
    QStringList list = line.GetLineList();
    line.setLineList(list);
    QCOMPARE(line.view.resText(), QString("two words x"));
}

void TestMJLine::writtenFreeTextShowsUnderscoresUntilRefilled()
{
    Line line;
    line.on_expand();
    QCOMPARE(line.view.resText(), QString("to left"));
    line.GetLineList();
    QCOMPARE(line.view.resText(), QString("to left"));
    line.on_expand();
    line.on_expand();
    QCOMPARE(line.view.resText(), QString("to_left"));
    QStringList list = sample();
    line.setLineList(list);
    QCOMPARE(line.view.resText(), QString("to left"));
}

void TestMJLine::answerWithoutAColonIsStoredWhole()
{
    Line line;
    line.on_expand();
    line.setText(line.view.detail(2), "3");
    edit(line.view.detail(2), "5");
    QCOMPARE(line.view.detailText(2), QString("5"));
    QCOMPARE(line.getJpos().at(2), QString("5"));
    // The pair keeps its key for the next refill.
    QCOMPARE(line.GetLineList().at(16), QString("Z"));
}

void TestMJLine::lastPartOfAnAnswerIsTheValue()
{
    Line line;
    line.on_expand();
    QMetaObject::invokeMethod(line.view.detail(6), "changed", Q_ARG(QString, "a:b:c"));
    QCOMPARE(line.getV().first(), QString("c"));
    QCOMPARE(line.view.detailText(6), QString("a:b:c"));
}

void TestMJLine::senderOfAnotherRowChangesNoValue()
{
    for (int open = 0; open < 2; ++open) {
        Line line;
        if (open)
            line.on_expand();
        ComboLineEdit other(nullptr);
        connect(&other, SIGNAL(changed(QString)), &line, SLOT(on_vars1_change(QString)));
        QVERIFY(QMetaObject::invokeMethod(&other, "changed", Q_ARG(QString, "Z:50")));
        QCOMPARE(line.listener.take(), QStringList() << "changed 7");
        QCOMPARE(line.GetLineList(), sample());
    }
}

void TestMJLine::callWithoutASenderChangesNoValue()
{
    for (int open = 0; open < 2; ++open) {
        Line line;
        if (open)
            line.on_expand();
        line.on_jpos_change("X:50");
        line.on_v_change("Vl:50");
        line.on_vars1_change("Z:50");
        QCOMPARE(line.listener.take(), QStringList() << "changed 7"
                                                     << "changed 7"
                                                     << "changed 7");
        QStringList expected = sample();
        expected[3] = "";
        expected[5] = "";
        QCOMPARE(line.GetLineList(), expected);
    }
}

FILARIX_TEST_MAIN(TestMJLine)
#include "tst_mjline.moc"
