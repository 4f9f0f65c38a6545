// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "combolineedit.h"
#include "devicelog.h"
#include "display/surfaceloan.h"
#include "filarixrows.h"
#include "filarixtest.h"
#include "mjline.h"
#include "screens/machinedata.h"
#include "screens/narrowrows.h"
#include "screens/taughtprogram.h"
#include "tlistwidget.h"

#include <QLabel>

#include <algorithm>
#include <memory>

using namespace FilarixRows;

class TestNarrowRows : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void closedRowsShowTheirWords();
    void openRowShowsItsNumbers();
    void longerNumberTakesFromItsNeighbours();
    void rowsKeepTheirWidth();
    void lineWithoutRoomIsSharedAlike();

private:
    QStringList cut() const;
    ComboLineEdit *field(const QString &text) const;
    MJLine *row(int row) const;

    std::unique_ptr<TListWidget> m_list;
    MachineData m_machine;
};

void TestNarrowRows::init()
{
    FilarixTest::init();
    DeviceLog::reset();
    QStringList title = TaughtProgram::titleRow();
    {
        // The width of the narrowest panel.
        const SurfaceLoan loan(SurfaceLoan::tallPanel, 272);
        m_list.reset(new TListWidget(title, nullptr));
    }
    m_list->setFixedWidth(272);
    new NarrowRows(m_list.get(), TaughtProgram::longestShortWord());
    int number = 0;
    for (const char *kind : {"MJ", "ML"}) {
        QStringList row =
            TaughtProgram::shown(TaughtProgram::movement(kind, 5, 4, m_machine), true);
        row[Num] = QString::number(++number);
        m_list->addWidget(row, true, false);
    }
    QStringList text = TaughtProgram::shown(TaughtProgram::command("M10 clamp the wire"), true);
    text[Num] = "3";
    m_list->addWidget(text, true, false);
    // A new widget shows a row by its words, the next refill by its kind.
    m_list->reshow();
    m_list->show();
    QVERIFY(TestCompat::waitForExposed(m_list.get()));
}

void TestNarrowRows::cleanup()
{
    m_list.reset();
    FilarixTest::cleanup();
}

MJLine *TestNarrowRows::row(int row) const
{
    return qobject_cast<MJLine *>(m_list->itemAt(m_list->getListPos(row)));
}

/// The field that shows \a text; null for none.
ComboLineEdit *TestNarrowRows::field(const QString &text) const
{
    const QList<ComboLineEdit *> all = m_list->findChildren<ComboLineEdit *>();
    for (ComboLineEdit *field : all) {
        if (field->isVisible() && field->text() == text)
            return field;
    }
    return nullptr;
}

/// The texts on the page that are wider than their cells.
QStringList TestNarrowRows::cut() const
{
    QStringList cut;
    const QList<QLabel *> labels = m_list->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        const int needed = label->fontMetrics().horizontalAdvance(label->text());
        if (label->isVisible() && needed > label->contentsRect().width())
            cut.append(label->text());
    }
    const QList<ComboLineEdit *> fields = m_list->findChildren<ComboLineEdit *>();
    for (const ComboLineEdit *field : fields) {
        // A pixel of border and two of the toolkit's on either side.
        const int needed = field->fontMetrics().horizontalAdvance(field->text()) + 6;
        if (field->isVisible() && needed > field->width())
            cut.append(field->text());
    }
    return cut;
}

void TestNarrowRows::closedRowsShowTheirWords()
{
    QCOMPARE(cut().join(' '), QString());
    const QList<QLabel *> labels = m_list->findChildren<QLabel *>();
    QVERIFY(std::any_of(labels.begin(), labels.end(), [](const QLabel *label) {
        return label->isVisible() && label->text().startsWith("MovJ(");
    }));
}

void TestNarrowRows::openRowShowsItsNumbers()
{
    row(1)->on_expand();
    m_list->reshow();
    QTRY_VERIFY(field("V:1500"));
    QTRY_COMPARE(cut(), QStringList());
    QVERIFY(field("X:35.75"));
}

void TestNarrowRows::longerNumberTakesFromItsNeighbours()
{
    row(1)->on_expand();
    m_list->reshow();
    QTRY_VERIFY(field("X:35.75"));
    DeviceLog::acceptWith("-1999.125");
    QTest::mouseClick(field("X:35.75"), Qt::LeftButton);
    QVERIFY(field("X:-1999.125"));
    QTRY_COMPARE(cut(), QStringList());
    // The row is as open as before, and shows another one.
    QStringList wider = m_list->getContent(1);
    wider[detailValue(0)] = "0";
    wider[detailValue(1)] = "-1999.5";
    m_list->setContent(1, wider);
    QTRY_VERIFY(field("Y:-1999.5"));
    QTRY_COMPARE(cut(), QStringList());
}

void TestNarrowRows::rowsKeepTheirWidth()
{
    row(1)->on_expand();
    m_list->reshow();
    QTRY_VERIFY(field("V:1500"));
    const QWidgetList all = m_list->findChildren<QWidget *>();
    for (const QWidget *cell : all) {
        const int right = cell->mapTo(m_list.get(), QPoint(cell->width(), 0)).x();
        if (cell->isVisible())
            QVERIFY2(right <= 272, cell->metaObject()->className());
    }
}

void TestNarrowRows::lineWithoutRoomIsSharedAlike()
{
    QStringList wide = m_list->getContent(1);
    for (int pair = 0; pair < 5; ++pair)
        wide[detailValue(pair)] = "-1999.125";
    m_list->setContent(1, wide);
    row(1)->on_expand();
    m_list->reshow();
    QTRY_VERIFY(field("X:-1999.125"));
    QTRY_VERIFY(field("X:-1999.125")->width() > 40);
    for (const char *key : {"Y", "Z", "U", "V"}) {
        const ComboLineEdit *other = field(key + QString(":-1999.125"));
        QVERIFY(other);
        QVERIFY(qAbs(other->width() - field("X:-1999.125")->width()) <= 4);
        // Of what is cut the beginning is seen.
        QCOMPARE(other->cursorPosition(), 0);
    }
}

FILARIX_TEST_MAIN(TestNarrowRows)
#include "tst_narrowrows.moc"
