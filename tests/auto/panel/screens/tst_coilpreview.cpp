// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "screens/coilpreview.h"
#include "somecoil.h"

#include <QElapsedTimer>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTextCursor>
#include <QTextDocument>

#include <ctime>

class TestCoilPreview : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aProgramIsReadWhileSomebodyLooks();
    void itFollowsTheDocumentAfterAPause();
    void eachKeyBeginsThePauseAnew();
    void aProgramOfNothingIsEmpty();
    void aProgramThatWindsNothingSaysSo();
    void unknownLinesAreCounted();
    void aProfileIsReadFromItsFile();
    void withoutAFileTheSamplesMachineCounts();
    void fileThatIsNeededHasToBeThere();
    void aProfileOfNonsenseIsTold();
    void aCompanionHearsEachReading();
    void aLongProgramGrowsBesideTheScreen();
    void anEditWhileItIsReadBeginsAnew();
    void itMayGoWhileItReads();
    void readingIsStoppedUntilTheNextChange();
    void viewThatComesUpBeginsAStoppedReadingAnew();
};

namespace {

void setText(QTextDocument *document, const QByteArray &text)
{
    document->setPlainText(QString::fromLatin1(text));
}

/// Counts blocks.
class Counter : public BlockListener
{
public:
    explicit Counter(int *blocks, int *finished) : m_blocks(blocks), m_finished(finished) {}

    void add(const GCodeBlock &, const WindingStep &, const WindingModel &) override
    {
        ++*m_blocks;
    }
    void finish(const WindingModel &) override { ++*m_finished; }

private:
    int *m_blocks;
    int *m_finished;
};

qint64 processorTime(clockid_t clock)
{
    struct timespec time = {};
    ::clock_gettime(clock, &time);
    return time.tv_sec * qint64(1000000000) + time.tv_nsec;
}

/// The most processor time that this thread takes between two turns of its event loop: where the
/// machine is busy with other things, the clock on the wall counts those.
class LoopTime : public QObject
{
public:
    LoopTime() : m_last(now()) { startTimer(0); }

    double longestMs() const { return double(m_longest) / 1e6; }

protected:
    void timerEvent(QTimerEvent *) override
    {
        const qint64 time = now();
        m_longest = qMax(m_longest, time - m_last);
        m_last = time;
    }

private:
    static qint64 now() { return processorTime(CLOCK_THREAD_CPUTIME_ID); }

    qint64 m_last;
    qint64 m_longest = 0;
};

/// Has a document as the editor has one, and somebody who looks.
struct Desk
{
    Desk() : document(editor.document()), preview(document) { preview.setPause(20); }

    void look(const QByteArray &text)
    {
        setText(document, text);
        preview.setProfile(MachineProfile::forSamples());
        preview.setViewed(&editor, true);
    }

    QPlainTextEdit editor;
    QTextDocument *document;
    CoilPreview preview;
};

QByteArray longProgram(int lines)
{
    QByteArray text = "T2\nG00 X0.25 Y14 U5\nS300 M03\n";
    for (int i = 0; i < lines; ++i)
        text += "G33 X" + QByteArray::number(0.25 + (i * 7 % 70) * 0.5) + " K0.5\n";
    return text + "M05\nM30\n";
}

} // namespace

void TestCoilPreview::initTestCase()
{
    qRegisterMetaType<Message::Tone>("Message::Tone");
}

void TestCoilPreview::aProgramIsReadWhileSomebodyLooks()
{
    Desk desk;
    QSignalSpy changed(&desk.preview, &CoilPreview::changed);
    setText(desk.document, SomeCoil::program(4, 40));
    desk.preview.setProfile(MachineProfile::forSamples());
    QTest::qWait(0);
    QVERIFY(!desk.preview.isReading());
    QCOMPARE(desk.preview.state(), CoilPreview::NotRead);
    desk.preview.setViewed(&desk.editor, true);
    QTRY_COMPARE(desk.preview.state(), CoilPreview::Winds);
    QTRY_VERIFY(desk.preview.isCurrent());
    QCOMPARE(desk.preview.model().totals().turns, 160.0);
    QCOMPARE(desk.preview.model().layers().size(), 4);
    QVERIFY(!changed.isEmpty());
    // Nobody looks: nothing is read, and the next look reads what is there by then.
    desk.preview.setViewed(&desk.editor, false);
    setText(desk.document, SomeCoil::program(6, 40));
    QSignalSpy settled(&desk.preview, &CoilPreview::settled);
    desk.preview.setPause(0);
    QCoreApplication::processEvents();
    QVERIFY(!desk.preview.isReading());
    desk.preview.setViewed(&desk.editor, true);
    QTRY_COMPARE(settled.size(), 1);
    QCOMPARE(desk.preview.model().layers().size(), 6);
}

void TestCoilPreview::itFollowsTheDocumentAfterAPause()
{
    Desk desk;
    desk.look(SomeCoil::program(2, 40));
    QTRY_VERIFY(desk.preview.isCurrent());
    QTextCursor cursor(desk.document);
    cursor.movePosition(QTextCursor::End);
    setText(desk.document, SomeCoil::program(3, 40));
    QVERIFY(!desk.preview.isCurrent());
    // What was there is shown meanwhile.
    QCOMPARE(desk.preview.state(), CoilPreview::Winds);
    QTRY_VERIFY(desk.preview.isCurrent());
    QCOMPARE(desk.preview.model().layers().size(), 3);
}

void TestCoilPreview::eachKeyBeginsThePauseAnew()
{
    Desk desk;
    desk.look(SomeCoil::program(2, 40));
    QTRY_VERIFY(desk.preview.isCurrent());
    QSignalSpy settled(&desk.preview, &CoilPreview::settled);
    desk.preview.setPause(200);
    QTextCursor cursor(desk.document);
    for (int i = 0; i < 30; ++i) {
        cursor.insertText("; a remark\n");
        QCoreApplication::processEvents();
    }
    QTRY_VERIFY(desk.preview.isCurrent());
    QCOMPARE(settled.size(), 1);
}

void TestCoilPreview::aProgramOfNothingIsEmpty()
{
    Desk desk;
    desk.look(QByteArray());
    QTRY_COMPARE(desk.preview.state(), CoilPreview::Empty);
    setText(desk.document, "; words alone\n\n; and more\n");
    QTRY_VERIFY(desk.preview.isCurrent());
    QCOMPARE(desk.preview.state(), CoilPreview::Empty);
}

void TestCoilPreview::aProgramThatWindsNothingSaysSo()
{
    Desk desk;
    desk.look("G00 X10 Y20\nG01 X0 F100\nM30\n");
    QTRY_COMPARE(desk.preview.state(), CoilPreview::WindsNothing);
    QVERIFY(!desk.preview.model().path(100).isEmpty());
}

void TestCoilPreview::unknownLinesAreCounted()
{
    Desk desk;
    QByteArray text = SomeCoil::program(2, 40);
    text.replace("G90\n", "G90\nG99.7\n");
    text.replace("M12\n", "?? what\nM12 Q7\n");
    desk.look(text);
    QTRY_VERIFY(desk.preview.isCurrent());
    QCOMPARE(desk.preview.unknownLines(), 3);
    QCOMPARE(desk.preview.firstUnknownLine(), 3);
    QCOMPARE(desk.preview.state(), CoilPreview::Winds);
    setText(desk.document, SomeCoil::program(2, 40));
    QTRY_VERIFY(desk.preview.isCurrent());
    QCOMPARE(desk.preview.unknownLines(), 0);
}

void TestCoilPreview::aProfileIsReadFromItsFile()
{
    QByteArray text = MachineProfile::sampleText();
    writeFile(home() + "/machine.ini", text);
    Desk desk;
    setText(desk.document, SomeCoil::program(2, 40));
    desk.preview.setViewed(&desk.editor, true);
    QCOMPARE(desk.preview.state(), CoilPreview::NotRead);
    desk.preview.readProfile(home() + "/machine.ini");
    QTRY_COMPARE(desk.preview.state(), CoilPreview::Winds);
    QVERIFY(desk.preview.profileFaults().isEmpty());
}

void TestCoilPreview::withoutAFileTheSamplesMachineCounts()
{
    Desk desk;
    QSignalSpy told(&desk.preview, &CoilPreview::told);
    setText(desk.document, SomeCoil::program(2, 40));
    desk.preview.setViewed(&desk.editor, true);
    desk.preview.readProfile(home() + "/none.ini");
    QTRY_COMPARE(desk.preview.state(), CoilPreview::Winds);
    QVERIFY(told.isEmpty());
}

// The operator named it.
void TestCoilPreview::fileThatIsNeededHasToBeThere()
{
    Desk desk;
    desk.preview.readProfile(home() + "/none.ini", true);
    QTRY_COMPARE(int(desk.preview.state()), int(CoilPreview::NoProfile));
    QVERIFY(!desk.preview.profileFaults().isEmpty());
}

void TestCoilPreview::aProfileOfNonsenseIsTold()
{
    writeFile(home() + "/machine.ini", "[axis X]\nrole = sideways\n\x01\x02");
    Desk desk;
    QSignalSpy told(&desk.preview, &CoilPreview::told);
    setText(desk.document, SomeCoil::program(2, 40));
    desk.preview.setViewed(&desk.editor, true);
    desk.preview.readProfile(home() + "/machine.ini");
    QTRY_COMPARE(desk.preview.state(), CoilPreview::NoProfile);
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Warning);
    QVERIFY(!desk.preview.profileFaults().isEmpty());
    QTRY_VERIFY(desk.preview.isCurrent());
    QVERIFY(desk.preview.model().layers().isEmpty());
}

void TestCoilPreview::aCompanionHearsEachReading()
{
    int blocks = 0;
    int finished = 0;
    Desk desk;
    desk.preview.setCompanion([&] { return std::make_shared<Counter>(&blocks, &finished); });
    desk.look("G00 X1\nG00 X2\n");
    QTRY_VERIFY(desk.preview.isCurrent());
    QVERIFY(blocks >= 2);
    QCOMPARE(finished, 1);
    setText(desk.document, "G00 X1\n");
    QTRY_VERIFY(desk.preview.isCurrent());
    QCOMPARE(finished, 2);
}

// The first coil soon, then more and more of it, and the screen's thread is never held.
void TestCoilPreview::aLongProgramGrowsBesideTheScreen()
{
    const int lines = scaled(1000000, 30000);
    Desk desk;
    setText(desk.document, longProgram(lines));
    desk.preview.setProfile(MachineProfile::forSamples());
    QCoreApplication::processEvents();
    int pictures = 0;
    // Of all threads together, which is more than the clock on the wall of an idle machine.
    double first = -1;
    QElapsedTimer time;
    qint64 start = 0;
    connect(&desk.preview, &CoilPreview::changed, &desk.preview, [&] {
        if (desk.preview.model().layers().isEmpty())
            return;
        if (first < 0)
            first = double(processorTime(CLOCK_PROCESS_CPUTIME_ID) - start) / 1e6;
        ++pictures;
    });
    QSignalSpy settled(&desk.preview, &CoilPreview::settled);
    LoopTime loop;
    time.start();
    start = processorTime(CLOCK_PROCESS_CPUTIME_ID);
    desk.preview.setViewed(&desk.editor, true);
    QTRY_COMPARE_WITH_TIMEOUT(settled.size(), 1, patience(30000));
    qInfo("%d lines: first coil after %.0f ms, all after %lld ms, %d growing, loop held %.1f ms",
          lines, first, time.elapsed(), pictures, loop.longestMs());
    QVERIFY2(first >= 0 && first <= patience(300), qPrintable(QString::number(first)));
    QVERIFY2(loop.longestMs() <= patience(50), qPrintable(QString::number(loop.longestMs())));
    QVERIFY(pictures >= 1);
    QVERIFY(desk.preview.isCurrent());
    // Three lines before, two behind, and the empty one at the document's end.
    QCOMPARE(desk.preview.model().totals().lines, lines + 6);
}

void TestCoilPreview::anEditWhileItIsReadBeginsAnew()
{
    Desk desk;
    desk.look(longProgram(scaled(200000, 5000)));
    QTRY_VERIFY(desk.preview.isReading());
    setText(desk.document, SomeCoil::program(3, 40));
    QVERIFY(!desk.preview.isReading());
    QTRY_VERIFY(desk.preview.isCurrent());
    QCOMPARE(desk.preview.model().layers().size(), 3);
    QCOMPARE(desk.preview.unknownLines(), 0);
}

void TestCoilPreview::itMayGoWhileItReads()
{
    Desk desk;
    desk.look(longProgram(scaled(200000, 5000)));
    QTRY_VERIFY(desk.preview.isReading());
    // The desk goes with its document.
}

void TestCoilPreview::readingIsStoppedUntilTheNextChange()
{
    Desk desk;
    // Nothing is read yet.
    desk.preview.stop();
    QVERIFY(!desk.preview.isStopped());
    QSignalSpy settled(&desk.preview, SIGNAL(settled()));
    QSignalSpy halted(&desk.preview, SIGNAL(halted()));
    const QMetaObject::Connection stopping =
        connect(&desk.preview, &CoilPreview::progressed, &desk.preview, &CoilPreview::stop);
    desk.look(longProgram(scaled(40000, 20000)));
    QTRY_COMPARE(halted.size(), 1);
    disconnect(stopping);
    QVERIFY(desk.preview.isStopped());
    QVERIFY(!desk.preview.isReading());
    QVERIFY(!desk.preview.isCurrent());
    QCOMPARE(settled.size(), 0);
    setText(desk.document, longProgram(10));
    QVERIFY(!desk.preview.isStopped());
    QTRY_COMPARE(settled.size(), 1);
    QVERIFY(desk.preview.isCurrent());
}

void TestCoilPreview::viewThatComesUpBeginsAStoppedReadingAnew()
{
    Desk desk;
    QSignalSpy settled(&desk.preview, SIGNAL(settled()));
    QSignalSpy halted(&desk.preview, SIGNAL(halted()));
    const QMetaObject::Connection stopping =
        connect(&desk.preview, &CoilPreview::progressed, &desk.preview, &CoilPreview::stop);
    desk.look(longProgram(scaled(40000, 20000)));
    QTRY_COMPARE(halted.size(), 1);
    disconnect(stopping);
    QObject view;
    desk.preview.setViewed(&view, true);
    QVERIFY(!desk.preview.isStopped());
    QTRY_COMPARE(settled.size(), 1);
    QVERIFY(desk.preview.isCurrent());
    desk.preview.setViewed(&view, false);
}

FILARIX_TEST_MAIN(TestCoilPreview)
#include "tst_coilpreview.moc"
