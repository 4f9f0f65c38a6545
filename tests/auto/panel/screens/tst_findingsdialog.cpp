// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "look/panelstyle.h"
#include "screens/coilpreview.h"
#include "screens/findingsdialog.h"
#include "screens/programreview.h"

#include <QGuiApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QTableWidget>

class TestFindingsDialog : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void allFindingsAreListed();
    void touchChoosesAFinding();
    void arrowsAndReturnChooseAFinding();
    void choiceIsWhatWasShown();
    void opensWhereTheOperatorIs();
    void nothingFoundIsSaid();
    void whatIsLeftOutIsTold();
    void fitsThePanel();

private:
    void make(const QString &program);
    QString summary(const FindingsDialog &dialog) const
    {
        return dialog.findChild<QLabel *>("summary")->text();
    }

    QScopedPointer<QPlainTextEdit> m_editor;
    QScopedPointer<CoilPreview> m_preview;
    QScopedPointer<ProgramReview> m_review;
};

static QString faulty(int lines)
{
    return QString("M05 Q2\n").repeated(lines) + "M30";
}

static QTableWidget *table(const FindingsDialog &dialog)
{
    return dialog.findChild<QTableWidget *>();
}

void TestFindingsDialog::initTestCase()
{
    QApplication::setStyle(new PanelStyle);
}

void TestFindingsDialog::init()
{
    FilarixTest::init();
    m_editor.reset(new QPlainTextEdit);
    m_preview.reset(new CoilPreview(m_editor->document()));
    m_preview->setPause(0);
    m_preview->setProfile(MachineProfile::forSamples());
    m_review.reset(new ProgramReview(m_preview.data(), m_editor.data()));
}

void TestFindingsDialog::cleanup()
{
    m_review.reset();
    m_preview.reset();
    m_editor.reset();
    FilarixTest::cleanup();
}

void TestFindingsDialog::make(const QString &program)
{
    m_editor->setPlainText(program);
    QTRY_COMPARE(int(m_review->state()), int(ProgramReview::Checked));
}

void TestFindingsDialog::allFindingsAreListed()
{
    make(faulty(20));
    const FindingsDialog dialog(m_review.data(), 1);
    QCOMPARE(table(dialog)->rowCount(), 20);
    QCOMPARE(table(dialog)->item(19, 0)->text(), QString("20"));
    const Finding &finding = m_review->findings().at(19);
    QCOMPARE(table(dialog)->item(19, 1)->text(), finding.text() + ' ' + finding.advice());
    QCOMPARE(summary(dialog), m_review->summary());
}

void TestFindingsDialog::touchChoosesAFinding()
{
    make(faulty(20));
    FindingsDialog dialog(m_review.data(), 1);
    dialog.show();
    QCOMPARE(dialog.finding(), -1);
    QTableWidget *rows = table(dialog);
    const QRect cell = rows->visualItemRect(rows->item(2, 1));
    QTest::mouseClick(rows->viewport(), Qt::LeftButton, Qt::NoModifier, cell.center());
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.finding(), 2);
}

void TestFindingsDialog::arrowsAndReturnChooseAFinding()
{
    make(faulty(200));
    FindingsDialog dialog(m_review.data(), 120);
    dialog.show();
    QTest::keyClick(table(dialog), Qt::Key_Down);
    QTest::keyClick(table(dialog), Qt::Key_Return);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.finding(), 120);
}

// However often the program is checked while the dialog is open.
void TestFindingsDialog::choiceIsWhatWasShown()
{
    make(faulty(20));
    FindingsDialog dialog(m_review.data(), 1);
    dialog.show();
    make("M30");
    QTableWidget *rows = table(dialog);
    const QRect cell = rows->visualItemRect(rows->item(2, 1));
    QTest::mouseClick(rows->viewport(), Qt::LeftButton, Qt::NoModifier, cell.center());
    QCOMPARE(dialog.chosen().line, 3);
}

void TestFindingsDialog::opensWhereTheOperatorIs()
{
    make(faulty(200));
    FindingsDialog dialog(m_review.data(), 120);
    dialog.show();
    QTableWidget *rows = table(dialog);
    const auto isInView = [rows](int row) {
        return rows->viewport()->rect().contains(rows->visualItemRect(rows->item(row, 0)).center());
    };
    QVERIFY(isInView(119));
    QVERIFY(!isInView(118));
    dialog.findChild<QPushButton *>("back")->click();
    QVERIFY(isInView(118));
}

void TestFindingsDialog::nothingFoundIsSaid()
{
    make("M30");
    const FindingsDialog dialog(m_review.data(), 1);
    QCOMPARE(table(dialog)->rowCount(), m_review->findings().size());
    QCOMPARE(summary(dialog), m_review->summary());
    QVERIFY(!dialog.findChild<QPushButton *>("forth")->isEnabled());
}

void TestFindingsDialog::whatIsLeftOutIsTold()
{
    make(faulty(5000));
    const FindingsDialog dialog(m_review.data(), 1);
    QVERIFY(m_review->leftOut() > 0);
    QCOMPARE(summary(dialog), QString("%1. The first %2 are listed.")
                                  .arg(m_review->summary())
                                  .arg(m_review->findings().size()));
}

void TestFindingsDialog::fitsThePanel()
{
    make(faulty(20));
    const FindingsDialog dialog(m_review.data(), 1);
    const QSize panel = QGuiApplication::primaryScreen()->size();
    QVERIFY(dialog.width() <= panel.width());
    QVERIFY(dialog.height() <= panel.height());
}

FILARIX_TEST_MAIN(TestFindingsDialog)
#include "tst_findingsdialog.moc"
