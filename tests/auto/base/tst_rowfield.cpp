// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "mjline.h"
#include "rowfield_p.h"
#include "rowfixture.h"
#include "tlistwidget.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScopedPointer>

#include <random>

using namespace RowFixture;

namespace {

/// A window with a list in it. The plain one's cells are ordinary widgets: what lies behind them is
/// painted for them, and each step lays everything out anew.
class Desk
{
public:
    explicit Desk(bool isPlain) : m_isPlain(isPlain), m_list(m_title, &m_window)
    {
        for (int i = 0; i < 60; ++i) {
            QStringList row = instruction(i);
            row[4] = QString::number(i % 7);
            m_list.addWidget(row, false, false);
        }
        m_window.resize(500, 500);
        // Side by side: what is to be seen of a window that another one covers is the other one.
        m_window.move(m_isPlain ? besideTheOther : 0, 0);
        QStringList none;
        m_list.addWidget(none, true, true);
        m_list.home();
        makePlain();
        m_window.show();
        makePlain();
    }

    TListWidget &list() { return m_list; }
    QWidget &window() { return m_window; }
    MJLine *row(int slot) { return qobject_cast<MJLine *>(m_list.itemAt(slot)); }

    void makePlain()
    {
        if (!m_isPlain)
            return;
        Q_FOREACH (QWidget *widget, m_list.findChildren<QWidget *>()) {
            widget->setAttribute(Qt::WA_OpaquePaintEvent, false);
            widget->updateGeometry();
            widget->update();
        }
    }

    int opaqueCells() const
    {
        int count = 0;
        Q_FOREACH (const QWidget *widget, m_list.findChildren<QWidget *>())
            count += widget->testAttribute(Qt::WA_OpaquePaintEvent);
        return count;
    }

    /// Where everything is, and how large it would like to be.
    QString geometry() const
    {
        QString text;
        Q_FOREACH (const QWidget *widget, m_list.findChildren<QWidget *>()) {
            const QRect at = widget->geometry();
            const QSize hint = widget->sizeHint();
            const QSize least = widget->minimumSizeHint();
            text += QString::fromLatin1("%1 %2 %3 %4, %5 %6, %7 %8\n")
                        .arg(at.x())
                        .arg(at.y())
                        .arg(at.width())
                        .arg(at.height())
                        .arg(hint.width())
                        .arg(hint.height())
                        .arg(least.width())
                        .arg(least.height());
        }
        return text;
    }

    QImage picture()
    {
        // A cursor blinks, and only in one window at a time.
        if (QWidget *widget = m_window.focusWidget())
            widget->clearFocus();
        QCoreApplication::processEvents();
        return TestCompat::onTheScreen(&m_window);
    }

private:
    static const int besideTheOther = 640;

    bool m_isPlain;
    QStringList m_title;
    QWidget m_window;
    TListWidget m_list;
};

/// One step of an operator or a host, the same one for the same numbers.
class Step
{
public:
    Step(int kind, int number) : m_kind(kind), m_number(number) {}

    void operator()(Desk &desk) const
    {
        TListWidget &list = desk.list();
        switch (m_kind) {
        case 0:
        case 1:
            list.nextPage();
            break;
        case 2:
            list.prevPage();
            break;
        case 3:
            list.nextLine();
            break;
        case 4:
            list.setCurIndex(m_number % list.count(), false);
            break;
        case 5:
            if (MJLine *row = desk.row(m_number % 14))
                row->on_press_down();
            break;
        case 6:
            setTexts(list);
            break;
        case 7:
            desk.window().setStyleSheet(QLatin1String(sheet()));
            break;
        case 8:
            list.setEnabled(m_number % 2);
            break;
        case 9:
            desk.window().resize(400 + m_number % 200, 400 + m_number % 150);
            break;
        case 10:
            list.move(m_number % 20, m_number % 30);
            break;
        default:
            if (QLabel *cell = list.findChildren<QLabel *>().value(m_number % 30))
                cell->setStyleSheet(QLatin1String(sheet()));
        }
    }

    QString name() const { return QString::fromLatin1("%1 of %2").arg(m_kind).arg(m_number); }

    static const int kinds = 12;

private:
    const char *sheet() const
    {
        static const char *const sheets[] = {
            "",
            "QLabel { border-radius: 6px; }",
            "* { margin: 2px; }",
            "QLabel { background-color: rgba(255, 0, 0, 80); }",
            "* { border-color: rgba(0, 0, 255, 90); padding: 1px; }",
            "QWidget { font-size: 9px; }",
            "background: transparent",
        };
        return sheets[m_number % int(sizeof sheets / sizeof *sheets)];
    }

    void setTexts(TListWidget &list) const
    {
        static const char *const texts[] = {
            "",  "a\nb",          "<b>a</b>", "\xe8\xb5\xb7\xe5\xa7\x8b",
            "&", "<i>x<br>y</i>", "W",        "\xc3\xa4\xe2\x86\x93"};
        const QString text = QString::fromUtf8(texts[m_number % 8]);
        const int i = m_number / 8 % 20;
        QStringList row = list.getContent(i);
        row[2 + m_number / 160 % 3] = text;
        list.setContent(i, row);
    }

    int m_kind;
    int m_number;
};

} // namespace

/// The cells of rows.
class TestRowField : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void cellsAreOfTheirClasses_data();
    void cellsAreOfTheirClasses();
    void textsAreWrittenAndReadByClass();
    void cellsInTheirRowsPaintAllOfThemselves();
    void cellsThatLetSomethingThroughDoNot_data();
    void cellsThatLetSomethingThroughDoNot();
    void textOfOneHeightLaysNothingOut_data();
    void textOfOneHeightLaysNothingOut();
    void looksAndLiesAsPlainWidgetsDo();
};

void TestRowField::cellsAreOfTheirClasses_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("className");
    QTest::newRow("clickable") << int(RowField::ClickableLabel) << "Label";
    QTest::newRow("passive") << int(RowField::PassiveLabel) << "QLabel";
    QTest::newRow("number") << int(RowField::NumberField) << "ComboLineEdit";
    QTest::newRow("text") << int(RowField::TextField) << "ComboLineEdit";
    QTest::newRow("area") << int(RowField::Area) << "QWidget";
    QTest::newRow("another number") << 99 << "QWidget";
}

void TestRowField::cellsAreOfTheirClasses()
{
    QFETCH(int, type);
    QFETCH(QString, className);
    QWidget row;
    const QWidget *cell = RowField::create(&row, type, QLatin1String("a"), 70, QString());
    QCOMPARE(QString::fromLatin1(cell->metaObject()->className()), className);
    QCOMPARE(cell->minimumWidth(), 70);
    QCOMPARE(cell->maximumWidth(), 70);
}

void TestRowField::textsAreWrittenAndReadByClass()
{
    QWidget row;
    for (int type = RowField::ClickableLabel; type <= RowField::TextField; ++type) {
        QWidget *cell = RowField::create(&row, type, QLatin1String("a"), 70, QString());
        QCOMPARE(RowField::text(cell), QString::fromLatin1("a"));
        RowField::setText(cell, QLatin1String("b"));
        QCOMPARE(RowField::text(cell), QString::fromLatin1("b"));
        RowField::setText(cell, QString());
        QCOMPARE(RowField::text(cell), QString());
    }
    RowField::setText(nullptr, QLatin1String("a"));
    QCOMPARE(RowField::text(nullptr), QString());
    RowField::setText(&row, QLatin1String("a"));
    QCOMPARE(RowField::text(&row), QString());
}

void TestRowField::cellsInTheirRowsPaintAllOfThemselves()
{
    Desk desk(false);
    const int cellsOfALine = 6;
    Q_FOREACH (const QWidget *cell, desk.row(3)->firstLine()->findChildren<QWidget *>())
        QVERIFY(cell->testAttribute(Qt::WA_OpaquePaintEvent));
    const int cells = desk.opaqueCells();
    QVERIFY(cells >= 14 * cellsOfALine);
    // Neither the mark nor a host's harmless sheet takes it from them.
    desk.list().setCurIndex(3, false);
    desk.window().setStyleSheet(QLatin1String("QWidget { font-size: 9px; }"));
    QCOMPARE(desk.opaqueCells(), cells);
}

void TestRowField::cellsThatLetSomethingThroughDoNot_data()
{
    QTest::addColumn<QString>("sheet");
    QTest::newRow("round corners") << "* { border-radius: 6px; }";
    QTest::newRow("a margin") << "* { margin: 2px; }";
    QTest::newRow("a thin border") << "* { border-color: rgba(0, 0, 255, 90); }";
}

void TestRowField::cellsThatLetSomethingThroughDoNot()
{
    QFETCH(QString, sheet);
    Desk desk(false);
    desk.window().setStyleSheet(sheet);
    QCOMPARE(desk.opaqueCells(), 0);
}

void TestRowField::textOfOneHeightLaysNothingOut_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<bool>("isLaidOut");
    const QString arrow = down;
    QTest::newRow("other letters") << "J:1"
                                   << "MOVJ:1200" << false;
    QTest::newRow("other letters before the same arrow") << "A" + arrow << "MOVE" + arrow << false;
    QTest::newRow("another character of another font") << "A" + arrow << "A" + up << true;
    QTest::newRow("a second line") << "A"
                                   << "A\nB" << true;
    QTest::newRow("as many lines") << "A\nB"
                                   << "C\nDEF" << false;
    QTest::newRow("a tag") << "A"
                           << "<b>A</b>" << true;
    QTest::newRow("nothing any more") << "A"
                                      << "" << true;
    QTest::newRow("something at last") << ""
                                       << "A" << true;
}

void TestRowField::textOfOneHeightLaysNothingOut()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    QFETCH(bool, isLaidOut);
    QWidget line;
    QHBoxLayout *const layout = RowField::createLine();
    QWidget *cell = RowField::create(&line, RowField::PassiveLabel, before, 70, QString());
    layout->addWidget(cell);
    line.setLayout(layout);
    line.setFixedHeight(40);
    line.show();
    QVERIFY(TestCompat::waitForExposed(&line));
    QCoreApplication::processEvents();
    layout->activate();
    const QSize hint = layout->sizeHint();

    class Requests : public QObject
    {
    public:
        int count = 0;

    protected:
        bool eventFilter(QObject *, QEvent *event) override
        {
            count += event->type() == QEvent::LayoutRequest;
            return false;
        }
    } requests;
    line.installEventFilter(&requests);
    RowField::setText(cell, after);
    QCoreApplication::processEvents();
    QCOMPARE(requests.count > 0, isLaidOut);
    const QSize hintNow = layout->sizeHint();
    layout->invalidate();
    QCOMPARE(layout->sizeHint(), hintNow);
    QVERIFY(isLaidOut || hintNow == hint);
    QCOMPARE(RowField::text(cell), after);
}

void TestRowField::looksAndLiesAsPlainWidgetsDo()
{
    std::mt19937 random(17);
    for (int walk = 0; walk < scaled(isLongRun() ? 40 : 6); ++walk) {
        Desk own(false);
        Desk plain(true);
        QVERIFY(TestCompat::waitForExposed(&own.window()));
        QVERIFY(TestCompat::waitForExposed(&plain.window()));
        QString way;
        for (int i = 0; i < 40; ++i) {
            const Step step(int(random() % Step::kinds), int(random() % 100000));
            way += QLatin1Char(' ') + step.name();
            step(own);
            step(plain);
            plain.makePlain();
            QCoreApplication::processEvents();
            QCoreApplication::processEvents();
            QVERIFY2(!own.window().frameGeometry().intersects(plain.window().frameGeometry()),
                     qPrintable(way));
            QVERIFY2(own.picture() == plain.picture(), qPrintable(way));
            QVERIFY2(own.geometry() == plain.geometry(), qPrintable(way));
        }
    }
}

FILARIX_TEST_MAIN(TestRowField)
#include "tst_rowfield.moc"
