// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "marktranslator.h"
#include "openwindow.h"

#include <QHBoxLayout>
#include <QMenuBar>
#include <QMoveEvent>
#include <QPointer>
#include <QSignalSpy>
#include <QStatusBar>
#include <QVBoxLayout>

namespace {

/// Notes in which order widgets are painted.
class PaintOrder : public QObject
{
public:
    explicit PaintOrder(const QList<QWidget *> &widgets)
    {
        Q_FOREACH (QWidget *widget, widgets)
            widget->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            painted.removeAll(qobject_cast<QWidget *>(watched));
            painted << qobject_cast<QWidget *>(watched);
        }
        return false;
    }

    /// Each widget once, by its last painting.
    QList<QWidget *> painted;
};

bool isArialBoldOf10Points(const QFont &font)
{
    return font.family() == QLatin1String("Arial") && font.pointSize() == 10
           && int(font.weight()) == 75;
}

bool hasNoMargins(const QLayout *layout)
{
    int left, top, right, bottom;
    layout->getContentsMargins(&left, &top, &right, &bottom);
    return left == 0 && top == 0 && right == 0 && bottom == 0;
}

void setPosition(OpenWindow &window, int position)
{
    QTextCursor cursor = window.m_editor->textCursor();
    cursor.setPosition(position);
    window.m_editor->setTextCursor(cursor);
}

QStringList readOut(const OpenWindow &window)
{
    return QStringList() << window.m_rowValue->text() << window.m_colValue->text()
                         << window.m_countValue->text();
}

} // namespace

class TestWMMainWindow : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void startsEmptyAndIdle();
    void stripEditorAndBarsStandOnTopOfEachOther();
    void onlyTheEditorGrows();
    void topStripHoldsTheReadOut();
    void bottomStripHoldsTheBars_data();
    void bottomStripHoldsTheBars();
    void titlesAreTranslatedAndUntitledIsNot();
    void windowHasNoMenuAndNoStatusBar();
    void statusBarIsMadeOnDemand();

    void readOutFollowsTheCursor();
    void readOutIsPaintedAtOnceAndInOrder();
    void readOutIsNotRenewedByTheTextAlone();
    void readOutCountsSoftLineBreaksAsLines();

    void changesLeaveNoMarkInTheTitle();
    void hostMayConnectTheMark();

    void downloadingGreysTheButton();
    void downloadingTwiceDoesNothing();
    void textChangesNothingElse();
    void movingTheWindowMovesNoCursor();
    void signalsForTheHostOnlyAreNeverSent();

    void windowIsOwnedByItsParent();
    void unplacedButtonsOutliveTheWindow();
};

void TestWMMainWindow::startsEmptyAndIdle()
{
    const OpenWindow window(180);
    QCOMPARE(window.getCurrentFile(), QString());
    QVERIFY(window.m_curFile.isNull());
    QVERIFY(window.m_downloadFile.isNull());
    QVERIFY(window.m_text.isNull());
    QCOMPARE(window.m_fileLabel->text(), QString("Untitled"));
    QCOMPARE(window.windowTitle(), QString());
    QCOMPARE(window.documentText(), QString(""));
    QCOMPARE(readOut(window), QStringList() << "1"
                                            << "1"
                                            << "1");
    QVERIFY(!window.isDownloading());
    QVERIFY(window.m_downloadBtn->isEnabled());
    QCOMPARE(window.m_rotation, 180);
    QVERIFY(!window.m_toolBar2);
    QVERIFY(!window.m_editBar);
    QVERIFY(!window.m_statusBar);
}

void TestWMMainWindow::stripEditorAndBarsStandOnTopOfEachOther()
{
    const OpenWindow window;
    QCOMPARE(window.orientation(), Qt::Vertical);
    int left, top, right, bottom;
    window.getContentsMargins(&left, &top, &right, &bottom);
    QCOMPARE(QRect(left, top, right, bottom), QRect(0, 0, 0, 0));
    QCOMPARE(window.count(), 3);
    QCOMPARE(window.widget(0), window.m_fileLabel->parentWidget());
    QCOMPARE(window.widget(1), static_cast<QWidget *>(window.m_editor));
    QCOMPARE(window.widget(2), window.m_toolBar->parentWidget());
    QCOMPARE(window.widget(0)->metaObject(), &QWidget::staticMetaObject);
    QCOMPARE(window.widget(2)->metaObject(), &QWidget::staticMetaObject);
}

void TestWMMainWindow::onlyTheEditorGrows()
{
    OpenWindow window;
    window.resize(1000, 500);
    window.show();
    QVERIFY(TestCompat::waitForExposed(&window));
    const int top = window.widget(0)->height();
    const int editor = window.m_editor->height();
    const int bottom = window.widget(2)->height();
    QCOMPARE(bottom, 72);
    window.resize(1000, 800);
    QTRY_COMPARE(window.m_editor->height(), editor + 300);
    QCOMPARE(window.widget(0)->height(), top);
    QCOMPARE(window.widget(2)->height(), bottom);
}

void TestWMMainWindow::topStripHoldsTheReadOut()
{
    const OpenWindow window;
    const QHBoxLayout *layout = qobject_cast<QHBoxLayout *>(window.widget(0)->layout());
    QVERIFY(layout);
    QVERIFY(hasNoMargins(layout));
    // A null stands for the space behind a pair.
    const QList<QLabel *> labels = QList<QLabel *>()
                                   << window.m_fileLabel << window.m_rowTitle << window.m_rowValue
                                   << nullptr << window.m_colTitle << window.m_colValue << nullptr
                                   << window.m_countTitle << window.m_countValue << nullptr;
    QCOMPARE(layout->count(), labels.size());
    for (int i = 0; i < labels.size(); ++i) {
        QCOMPARE(layout->itemAt(i)->widget(), static_cast<QWidget *>(labels.at(i)));
        QCOMPARE(layout->stretch(i), i == 0 ? 1 : 0);
        if (labels.at(i))
            QVERIFY(isArialBoldOf10Points(labels.at(i)->font()));
        else
            QCOMPARE(layout->itemAt(i)->sizeHint().width(), 16);
    }
    QCOMPARE(window.m_fileLabel->indent(), 10);
    QCOMPARE(window.m_rowTitle->text(), QString("Row:"));
    QCOMPARE(window.m_colTitle->text(), QString("Col:"));
    QCOMPARE(window.m_countTitle->text(), QString("Count:"));
}

void TestWMMainWindow::bottomStripHoldsTheBars_data()
{
    QTest::addColumn<int>("rotation");
    QTest::addColumn<int>("bars");
    QTest::newRow("0") << 0 << 1;
    QTest::newRow("90") << 90 << 2;
    QTest::newRow("180") << 180 << 1;
    QTest::newRow("270") << 270 << 2;
    QTest::newRow("no rotation at all") << 17 << 1;
    QTest::newRow("-90") << -90 << 1;
    QTest::newRow("450") << 450 << 1;
}

void TestWMMainWindow::bottomStripHoldsTheBars()
{
    QFETCH(int, rotation);
    QFETCH(int, bars);
    OpenWindow window(rotation);
    QCOMPARE(window.m_rotation, rotation);
    const QVBoxLayout *layout = qobject_cast<QVBoxLayout *>(window.widget(2)->layout());
    QVERIFY(layout);
    QVERIFY(hasNoMargins(layout));
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->count(), bars);
    QCOMPARE(layout->itemAt(0)->widget(), static_cast<QWidget *>(window.m_toolBar));
    if (bars == 2)
        QCOMPARE(layout->itemAt(1)->widget(), static_cast<QWidget *>(window.m_toolBar2));
    else
        QVERIFY(!window.m_toolBar2);
    window.show();
    QVERIFY(TestCompat::waitForExposed(&window));
    QCOMPARE(window.widget(2)->height(), 72 * bars);
}

void TestWMMainWindow::titlesAreTranslatedAndUntitledIsNot()
{
    const MarkTranslator translator(QLatin1String("#"));
    const OpenWindow window;
    QCOMPARE(window.m_fileLabel->text(), QString("Untitled"));
    QCOMPARE(window.m_rowTitle->text(), QString("#Row:"));
    QCOMPARE(window.m_colTitle->text(), QString("#Col:"));
    QCOMPARE(window.m_countTitle->text(), QString("#Count:"));
    QCOMPARE(readOut(window), QStringList() << "1"
                                            << "1"
                                            << "1");
}

void TestWMMainWindow::windowHasNoMenuAndNoStatusBar()
{
    const OpenWindow window(90);
    QVERIFY(window.findChildren<QMenuBar *>().isEmpty());
    QVERIFY(window.findChildren<QStatusBar *>().isEmpty());
    QCOMPARE(window.findChildren<QToolBar *>().size(), 2);
    QCOMPARE(window.findChildren<WGCodeEditer *>().size(), 1);
}

void TestWMMainWindow::statusBarIsMadeOnDemand()
{
    OpenWindow window;
    window.createStatusBar();
    QVERIFY(window.m_statusBar);
    QCOMPARE(window.m_statusBar->parentWidget(), static_cast<QWidget *>(&window));
    QCOMPARE(window.m_statusBar->currentMessage(), QString("Ready"));
}

void TestWMMainWindow::readOutFollowsTheCursor()
{
    OpenWindow window;
    window.m_editor->setPlainText(QLatin1String("abc\ndef\n"));
    setPosition(window, 6);
    QCOMPARE(readOut(window), QStringList() << "2"
                                            << "3"
                                            << "3");
    setPosition(window, 8);
    QCOMPARE(readOut(window), QStringList() << "3"
                                            << "1"
                                            << "3");
    window.m_editor->insertLine(QLatin1String("G1"));
    QCOMPARE(readOut(window), QStringList() << "3"
                                            << "3"
                                            << "3");
    window.m_editor->insertLine(QLatin1String("G1"));
    QCOMPARE(readOut(window), QStringList() << "4"
                                            << "3"
                                            << "4");
}

void TestWMMainWindow::readOutIsPaintedAtOnceAndInOrder()
{
    OpenWindow window;
    window.m_editor->setPlainText(QLatin1String("abc\ndef\n"));
    window.show();
    QVERIFY(TestCompat::waitForExposed(&window));
    QApplication::processEvents();
    const QList<QWidget *> values = QList<QWidget *>() << window.m_rowValue << window.m_colValue
                                                       << window.m_countValue;
    const PaintOrder order(values);
    setPosition(window, 6);
    // No event has been served, and the count is painted though it is the same as before.
    QCOMPARE(order.painted, values);
}

void TestWMMainWindow::readOutIsNotRenewedByTheTextAlone()
{
    OpenWindow window;
    window.m_editor->setPlainText(QLatin1String("abc"));
    setPosition(window, 0);
    window.m_editor->appendPlainText(QLatin1String("def"));
    QCOMPARE(readOut(window), QStringList() << "1"
                                            << "1"
                                            << "1");
    window.slot_updateTips();
    QCOMPARE(readOut(window), QStringList() << "1"
                                            << "1"
                                            << "2");
}

void TestWMMainWindow::readOutCountsSoftLineBreaksAsLines()
{
    OpenWindow window;
    window.m_editor->setPlainText(QString("ab") + QChar(0x2028) + "cd\nef");
    window.show();
    QVERIFY(TestCompat::waitForExposed(&window));
    setPosition(window, 4);
    // The row counts blocks, the number of lines counts what is shown.
    QCOMPARE(readOut(window), QStringList() << "1"
                                            << "5"
                                            << "3");
}

void TestWMMainWindow::changesLeaveNoMarkInTheTitle()
{
    if (TestCompat::warnsOfUnmarkedTitles())
        StrictMessages::expect(QLatin1String("does not contain a '[*]' placeholder"));
    OpenWindow window;
    window.type(QLatin1String("G1"));
    QVERIFY(window.isDocumentModified());
    QVERIFY(!window.isWindowModified());
    QVERIFY(QMetaObject::invokeMethod(&window, "documentWasModified"));
    QVERIFY(window.isWindowModified());
    window.setCurrentFile(QString());
    QVERIFY(!window.isWindowModified());
    window.setWindowModified(true);
    QVERIFY(QMetaObject::invokeMethod(&window, "documentWasModified"));
    QVERIFY(!window.isWindowModified());
}

void TestWMMainWindow::hostMayConnectTheMark()
{
    if (TestCompat::warnsOfUnmarkedTitles())
        StrictMessages::expect(QLatin1String("does not contain a '[*]' placeholder"));
    OpenWindow window;
    QVERIFY(connect(window.m_editor->document(), SIGNAL(modificationChanged(bool)), &window,
                    SLOT(documentWasModified())));
    window.type(QLatin1String("G1"));
    QVERIFY(window.isWindowModified());
    window.m_editor->undo();
    QVERIFY(!window.isWindowModified());
}

void TestWMMainWindow::downloadingGreysTheButton()
{
    OpenWindow window;
    window.setDownloading(true);
    QVERIFY(window.isDownloading());
    QVERIFY(!window.m_downloadBtn->isEnabled());
    window.setDownloading(false);
    QVERIFY(!window.isDownloading());
    QVERIFY(window.m_downloadBtn->isEnabled());
    Q_FOREACH (const QToolButton *button, window.findChildren<QToolButton *>())
        QVERIFY(button->isEnabled());
}

void TestWMMainWindow::downloadingTwiceDoesNothing()
{
    OpenWindow window;
    window.setDownloading(true);
    window.setDownloading(true);
    QVERIFY(window.isDownloading());
    QVERIFY(!window.m_downloadBtn->isEnabled());
    // What somebody else did to the button in between stays.
    window.m_downloadBtn->setEnabled(true);
    window.setDownloading(true);
    QVERIFY(window.m_downloadBtn->isEnabled());
    window.setDownloading(false);
    window.m_downloadBtn->setEnabled(false);
    window.setDownloading(false);
    QVERIFY(!window.m_downloadBtn->isEnabled());
}

void TestWMMainWindow::textChangesNothingElse()
{
    OpenWindow window;
    window.m_editor->setPlainText(QLatin1String("abc"));
    QVERIFY(window.setProperty("text", QString("G1")));
    QCOMPARE(window.property("text").toString(), QString("G1"));
    QCOMPARE(window.text(), QString("G1"));
    QCOMPARE(window.m_text, QString("G1"));
    QCOMPARE(window.documentText(), QString("abc"));
    QCOMPARE(window.m_fileLabel->text(), QString("Untitled"));
    QCOMPARE(readOut(window), QStringList() << "1"
                                            << "1"
                                            << "1");
    QVERIFY(window.m_curLineText.isNull());
    QCOMPARE(window.windowTitle(), QString());
}

// The slot of that name and the toolkit's handler have nothing to do with each other.
void TestWMMainWindow::movingTheWindowMovesNoCursor()
{
    OpenWindow window;
    window.m_editor->setPlainText(QLatin1String("a\nb\nc"));
    setPosition(window, 2);
    window.show();
    window.move(window.pos() + QPoint(10, 10));
    QMoveEvent move(QPoint(5, 5), QPoint(1, 1));
    QApplication::sendEvent(&window, &move);
    QApplication::sendEvent(window.m_editor, &move);
    QCOMPARE(window.m_editor->textCursor().position(), 2);
    QVERIFY(QMetaObject::invokeMethod(&window, "moveEvent"));
    QCOMPARE(window.m_editor->textCursor().position(), 2);
}

void TestWMMainWindow::signalsForTheHostOnlyAreNeverSent()
{
    OpenWindow window;
    QSignalSpy softEdit(&window, SIGNAL(signal_softEditGCode(QString)));
    QSignalSpy correct(&window, SIGNAL(gDataIsCorrect()));
    QVERIFY(softEdit.isValid());
    QVERIFY(correct.isValid());
    window.insertLine(QLatin1String("G1"));
    window.updateGcode(QLatin1String("G2"));
    window.getEffectiveString(QLatin1String("G2 X1"));
    window.setText(QLatin1String("G3"));
    window.setDownloading(true);
    QCOMPARE(softEdit.count(), 0);
    QCOMPARE(correct.count(), 0);
}

void TestWMMainWindow::windowIsOwnedByItsParent()
{
    QPointer<OpenWindow> window;
    {
        QWidget screen;
        window = new OpenWindow(0, &screen);
        QCOMPARE(window->parentWidget(), &screen);
        screen.show();
        QVERIFY(window->isVisible());
    }
    QVERIFY(!window);
}

void TestWMMainWindow::unplacedButtonsOutliveTheWindow()
{
    QList<QPointer<QToolButton>> unplaced;
    QPointer<QToolButton> placed;
    {
        WMMainWindow window(nullptr, 270);
        placed = window.m_editBtn;
        window.show();
        unplaced << window.m_preproccessBtn << window.m_morphologyBtn << window.m_syntaxBtn
                 << window.m_compileBtn << window.m_showBtn << window.m_playOrPauseBtn
                 << window.m_stopBtn << window.m_findBtn;
    }
    QVERIFY(!placed);
    Q_FOREACH (const QPointer<QToolButton> &button, unplaced) {
        QVERIFY(button);
        QVERIFY(!button->parentWidget());
        QVERIFY(!button->isVisible());
        // Its editor is gone: a click is no more than that.
        button->click();
        delete button.data();
    }
}

FILARIX_TEST_MAIN(TestWMMainWindow)
#include "tst_wmmainwindow.moc"
