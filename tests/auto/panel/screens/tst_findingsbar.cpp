// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "look/panelkey.h"
#include "screens/coilpreview.h"
#include "screens/findingsbar.h"
#include "screens/programreview.h"

#include <QPlainTextEdit>
#include <QSignalSpy>

class TestFindingsBar : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void tellsHowManyThereAre();
    void nextAndBackLeadFromOneToTheOther();
    void nextGoesOnFromTheCursor();
    void lineOfTheCursorIsToldOf();
    void mendedFindingIsNoLongerShown();
    void keysAsk();

private:
    PanelKey *key(const char *name) const { return m_bar->findChild<PanelKey *>(name); }
    void make(const QString &program);

    QScopedPointer<QPlainTextEdit> m_editor;
    QScopedPointer<CoilPreview> m_preview;
    QScopedPointer<ProgramReview> m_review;
    QScopedPointer<FindingsBar> m_bar;
};

// Unknown words: two on line 3, one on line 5.
static const char faulty[] = "G21\nG90\nT1 Q1 R1\nG04 F1\nM05 Q2\nM30";

void TestFindingsBar::init()
{
    FilarixTest::init();
    m_editor.reset(new QPlainTextEdit);
    m_preview.reset(new CoilPreview(m_editor->document()));
    m_preview->setPause(0);
    m_preview->setProfile(MachineProfile::forSamples());
    m_review.reset(new ProgramReview(m_preview.data(), m_editor.data()));
    m_bar.reset(new FindingsBar(m_review.data()));
    // As the screen does.
    connect(m_bar.data(), &FindingsBar::placeWanted, m_bar.data(), &FindingsBar::setLine);
}

void TestFindingsBar::cleanup()
{
    m_bar.reset();
    m_review.reset();
    m_preview.reset();
    m_editor.reset();
    FilarixTest::cleanup();
}

void TestFindingsBar::make(const QString &program)
{
    m_editor->setPlainText(program);
    QTRY_COMPARE(int(m_review->state()), int(ProgramReview::Checked));
}

void TestFindingsBar::tellsHowManyThereAre()
{
    make(faulty);
    QCOMPARE(m_bar->text(), m_review->summary());
    QVERIFY(!key("findingBack")->isEnabled());
    QVERIFY(key("findingNext")->isEnabled());
    make("M30");
    QCOMPARE(m_bar->text(), m_review->summary());
    QVERIFY(!key("findingNext")->isEnabled());
}

void TestFindingsBar::nextAndBackLeadFromOneToTheOther()
{
    make(faulty);
    QCOMPARE(m_review->findings().size(), 3);
    QSignalSpy wanted(m_bar.data(), SIGNAL(placeWanted(int, int)));
    const QList<QPair<int, int>> places{{3, 4}, {3, 7}, {5, 5}};
    for (const QPair<int, int> &place : places) {
        key("findingNext")->click();
        QCOMPARE(wanted.last().at(0).toInt(), place.first);
        QCOMPARE(wanted.last().at(1).toInt(), place.second);
    }
    QVERIFY(!key("findingNext")->isEnabled());
    const Finding last = m_review->findings().last();
    QCOMPARE(m_bar->text(), QString("3 of 3, line 5: %1 %2").arg(last.text(), last.advice()));
    key("findingBack")->click();
    key("findingBack")->click();
    QCOMPARE(m_bar->finding(), 0);
    QVERIFY(!key("findingBack")->isEnabled());
}

void TestFindingsBar::nextGoesOnFromTheCursor()
{
    make(faulty);
    m_bar->setLine(4);
    key("findingNext")->click();
    QCOMPARE(m_bar->finding(), 2);
    m_bar->setLine(4);
    key("findingBack")->click();
    QCOMPARE(m_bar->finding(), 1);
}

void TestFindingsBar::lineOfTheCursorIsToldOf()
{
    make(faulty);
    m_bar->setLine(3);
    QCOMPARE(m_bar->finding(), 0);
    const Finding first = m_review->findings().first();
    QCOMPARE(m_bar->text(), QString("1 of 3, line 3: %1 %2").arg(first.text(), first.advice()));
    // The other one of the same line is not passed over, nor left again by a move in the line.
    key("findingNext")->click();
    m_bar->setLine(3);
    QCOMPARE(m_bar->finding(), 1);
    // What was told last stays, with its line.
    m_bar->setLine(4);
    QCOMPARE(m_bar->finding(), 1);
    m_bar->setLine(5);
    QCOMPARE(m_bar->finding(), 2);
    // After a check, too.
    make("G21\nG90\nT1\nG04 F1\nM05 Q3\nM30");
    QCOMPARE(m_bar->finding(), 0);
    QVERIFY(m_bar->text().startsWith("1 of 1, line 5: "));
}

void TestFindingsBar::mendedFindingIsNoLongerShown()
{
    make(faulty);
    m_bar->goTo(2);
    make("G21\nM30");
    QCOMPARE(m_bar->finding(), -1);
    QCOMPARE(m_bar->text(), m_review->summary());
}

void TestFindingsBar::keysAsk()
{
    QSignalSpy list(m_bar.data(), SIGNAL(listWanted()));
    QSignalSpy touched(m_bar.data(), SIGNAL(touched()));
    QSignalSpy closed(m_bar.data(), SIGNAL(closeWanted()));
    key("findingList")->click();
    key("findingClose")->click();
    m_bar->resize(480, 52);
    m_bar->show();
    QTest::mouseClick(m_bar->findChild<TapArea *>(), Qt::LeftButton);
    QCOMPARE(list.size(), 1);
    QCOMPARE(touched.size(), 1);
    QCOMPARE(closed.size(), 1);
}

FILARIX_TEST_MAIN(TestFindingsBar)
#include "tst_findingsbar.moc"
