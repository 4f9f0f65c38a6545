// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "screens/loadprogress.h"
#include "signalhook.h"

#include <QElapsedTimer>
#include <QProgressDialog>
#include <QSignalSpy>
#include <QTextCursor>
#include <QTextDocument>

namespace {

/// Loads in pieces, as the library does: a dialog that is not seen at first, and a change for each.
/// Returns how many pieces came.
int load(QTextDocument *document, int pieces, int msPerPiece)
{
    QProgressDialog dialog("Loading", "Abort", 0, pieces);
    dialog.setWindowModality(Qt::WindowModal);
    for (int i = 0; i < pieces; ++i) {
        dialog.setValue(i);
        QCoreApplication::processEvents();
        if (dialog.wasCanceled())
            return i;
        QElapsedTimer work;
        work.start();
        while (work.elapsed() < msPerPiece) {
        }
        QTextCursor(document).insertText("G01 X1\n");
    }
    dialog.setValue(pieces);
    return pieces;
}

} // namespace

class TestLoadProgress : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void typingIsNoLoad();
    void longLoadIsTold();
    void shortLoadIsOverBeforeItIsTold();
    void loadIsStoppedAtEachInstant();
    void stopWithoutALoadDoesNothing();
};

void TestLoadProgress::typingIsNoLoad()
{
    QTextDocument document;
    LoadProgress progress(&document);
    QSignalSpy worked(&progress, SIGNAL(worked(int)));
    QTextCursor(&document).insertText("G01\n");
    QVERIFY(!progress.isLoading());
    QCOMPARE(worked.size(), 0);
}

void TestLoadProgress::longLoadIsTold()
{
    QTextDocument document;
    LoadProgress progress(&document);
    QSignalSpy worked(&progress, SIGNAL(worked(int)));
    QSignalSpy ended(&progress, SIGNAL(ended()));
    QCOMPARE(load(&document, 50, 10), 50);
    QVERIFY(worked.size() > 1);
    // Of the moment before nobody is told.
    QVERIFY(worked.first().at(0).toInt() >= 10);
    QVERIFY(worked.last().at(0).toInt() >= 90);
    QVERIFY(worked.last().at(0).toInt() <= 100);
    QCOMPARE(ended.size(), 1);
    QVERIFY(!progress.isLoading());
    // The next one is told anew.
    QCOMPARE(load(&document, 50, 10), 50);
    QCOMPARE(ended.size(), 2);
}

void TestLoadProgress::shortLoadIsOverBeforeItIsTold()
{
    QTextDocument document;
    LoadProgress progress(&document);
    QSignalSpy worked(&progress, SIGNAL(worked(int)));
    QSignalSpy ended(&progress, SIGNAL(ended()));
    QCOMPARE(load(&document, 3, 0), 3);
    QCOMPARE(worked.size(), 0);
    QCOMPARE(ended.size(), 1);
}

void TestLoadProgress::loadIsStoppedAtEachInstant()
{
    QTextDocument document;
    for (int stopAt = 0; stopAt < 10; ++stopAt) {
        LoadProgress progress(&document);
        QSignalSpy ended(&progress, SIGNAL(ended()));
        int changes = 0;
        const QMetaObject::Connection stopping =
            connect(&document, &QTextDocument::contentsChanged, &progress, [&] {
                if (changes++ == stopAt)
                    progress.stop();
            });
        QCOMPARE(load(&document, 20, 0), stopAt + 1);
        disconnect(stopping);
        QCOMPARE(ended.size(), 1);
    }
}

void TestLoadProgress::stopWithoutALoadDoesNothing()
{
    QTextDocument document;
    LoadProgress progress(&document);
    progress.stop();
    QVERIFY(!progress.isLoading());
}

FILARIX_TEST_MAIN(TestLoadProgress)
#include "tst_loadprogress.moc"
