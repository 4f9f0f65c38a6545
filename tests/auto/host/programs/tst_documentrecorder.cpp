// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "compat.h"
#include "filarixtest.h"
#include "programs/documentrecorder.h"
#include "programs/gaptext.h"

#include <QPlainTextDocumentLayout>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QTextCursor>
#include <QTextDocument>

#include <functional>

class TestDocumentRecorder : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void nothingIsTakenDownBeforeACopy();
    void copyComesFromTheEventLoop();
    void finishedCopyComesAtOnce();
    void copyFollowsTheDocument();
    void changesGiveTheDocument();
    void lettersInARowAreOneChange();
    void changesTooDearEndTheRecord_data();
    void changesTooDearEndTheRecord();
    void stopForgetsAll();

private:
    QString text() const;
    void edit();
    int next(int below);

    QScopedPointer<QTextDocument> m_document;
    unsigned m_seed = 7;
};

/// Edits the document twice each turn of the event loop, as long as the copy is being made.
class Edits : public QObject
{
public:
    Edits(const DocumentRecorder *recorder, const std::function<void()> &edit)
        : m_recorder(recorder), m_edit(edit)
    {
        startTimer(0);
    }

    int count() const { return m_count; }

protected:
    void timerEvent(QTimerEvent *) override
    {
        for (int i = 0; i < 2 && m_recorder->isCopying(); ++i, ++m_count)
            m_edit();
    }

private:
    const DocumentRecorder *m_recorder;
    const std::function<void()> m_edit;
    int m_count = 0;
};

void TestDocumentRecorder::init()
{
    FilarixTest::init();
    m_seed = 7;
    m_document.reset(new QTextDocument);
    m_document->setDocumentLayout(new QPlainTextDocumentLayout(m_document.data()));
}

QString TestDocumentRecorder::text() const
{
    return Compat::rawText(m_document.data())
        .replace(QChar(QChar::ParagraphSeparator), QChar('\n'));
}

int TestDocumentRecorder::next(int below)
{
    m_seed = m_seed * 1103515245u + 12345u;
    return int((m_seed >> 8) % unsigned(below));
}

void TestDocumentRecorder::edit()
{
    QTextCursor cursor(m_document.data());
    cursor.setPosition(next(m_document->characterCount()));
    cursor.setPosition(qMin(cursor.position() + next(9000), m_document->characterCount() - 1),
                       QTextCursor::KeepAnchor);
    cursor.insertText(QString("a\nb").repeated(next(100)));
}

void TestDocumentRecorder::nothingIsTakenDownBeforeACopy()
{
    DocumentRecorder recorder(m_document.data());
    QSignalSpy changed(&recorder, SIGNAL(changed()));
    QTextCursor(m_document.data()).insertText("G01");
    QCOMPARE(changed.size(), 1);
    QVERIFY(!recorder.hasChanges());
    QVERIFY(!recorder.isCopying() && !recorder.isRecording());
}

void TestDocumentRecorder::copyComesFromTheEventLoop()
{
    m_document->setPlainText("G01\nG02\n");
    DocumentRecorder recorder(m_document.data());
    QSignalSpy copied(&recorder, SIGNAL(copied(QString)));
    recorder.copy();
    QVERIFY(recorder.isCopying());
    QVERIFY(copied.isEmpty());
    QTRY_COMPARE(copied.size(), 1);
    QCOMPARE(copied.at(0).at(0).toString(), QString("G01\nG02\n"));
    QVERIFY(recorder.isRecording());
}

void TestDocumentRecorder::finishedCopyComesAtOnce()
{
    m_document->setPlainText(QString("G01 X1 Y2\n").repeated(50000));
    DocumentRecorder recorder(m_document.data());
    QSignalSpy copied(&recorder, SIGNAL(copied(QString)));
    recorder.finishCopy();
    QVERIFY(copied.isEmpty());
    recorder.copy();
    recorder.finishCopy();
    QCOMPARE(copied.size(), 1);
    QVERIFY(copied.at(0).at(0).toString() == text());
}

// Whatever happens while the text is copied in pieces, before the piece, behind it or across it.
void TestDocumentRecorder::copyFollowsTheDocument()
{
    m_document->setPlainText(QString("G01 X1 Y2\n").repeated(100000));
    DocumentRecorder recorder(m_document.data());
    QSignalSpy copied(&recorder, SIGNAL(copied(QString)));
    recorder.copy();
    const Edits edits(&recorder, [this] { edit(); });
    QTRY_COMPARE(copied.size(), 1);
    QVERIFY(recorder.isRecording());
    QVERIFY2(edits.count() >= 10, qPrintable(QString::number(edits.count())));
    QVERIFY(copied.at(0).at(0).toString() == text());
}

void TestDocumentRecorder::changesGiveTheDocument()
{
    m_document->setPlainText(QString("G01 X1 Y2\n").repeated(2000));
    DocumentRecorder recorder(m_document.data());
    recorder.copy();
    recorder.finishCopy();
    GapText copy(text());
    for (int i = 0; i < 200; ++i) {
        switch (next(4)) {
        case 0:
            m_document->undo();
            break;
        case 1:
            m_document->redo();
            break;
        default:
            edit();
        }
        if (i % 7)
            continue;
        QVERIFY(recorder.isRecording());
        const QList<TextChange> changes = recorder.takeChanges();
        for (const TextChange &change : changes)
            copy.replace(change);
        QVERIFY(copy.toString() == text());
    }
}

void TestDocumentRecorder::lettersInARowAreOneChange()
{
    DocumentRecorder recorder(m_document.data());
    recorder.copy();
    recorder.finishCopy();
    QTextCursor cursor(m_document.data());
    for (int i = 0; i < 100; ++i)
        cursor.insertText("G");
    QVERIFY(recorder.hasChanges());
    const QList<TextChange> changes = recorder.takeChanges();
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes.first().added, QString(100, 'G'));
    QVERIFY(!recorder.hasChanges());
}

void TestDocumentRecorder::changesTooDearEndTheRecord_data()
{
    QTest::addColumn<int>("changes");
    QTest::addColumn<int>("letters");
    QTest::newRow("one too long") << 1 << 600 * 1024;
    QTest::newRow("together too long") << 3 << 200 * 1024;
    QTest::newRow("too many") << 4001 << 1;
}

void TestDocumentRecorder::changesTooDearEndTheRecord()
{
    QFETCH(int, changes);
    QFETCH(int, letters);
    DocumentRecorder recorder(m_document.data());
    recorder.copy();
    recorder.finishCopy();
    // In short lines: a long one takes the toolkit a time that grows with its square.
    const QString added =
        letters == 1 ? QString("\n") : QString(QString(63, 'x') + '\n').repeated(letters / 64);
    for (int i = 0; i < changes; ++i)
        QTextCursor(m_document.data()).insertText(added);
    QVERIFY(!recorder.isRecording());
    QVERIFY(!recorder.hasChanges());
}

void TestDocumentRecorder::stopForgetsAll()
{
    m_document->setPlainText("G01");
    DocumentRecorder recorder(m_document.data());
    QSignalSpy copied(&recorder, SIGNAL(copied(QString)));
    recorder.copy();
    recorder.stop();
    QVERIFY(!recorder.isCopying());
    QTest::qWait(10);
    QVERIFY(copied.isEmpty());
    recorder.copy();
    recorder.finishCopy();
    QTextCursor(m_document.data()).insertText("x");
    recorder.stop();
    QVERIFY(recorder.takeChanges().isEmpty());
}

FILARIX_TEST_MAIN(TestDocumentRecorder)
#include "tst_documentrecorder.moc"
