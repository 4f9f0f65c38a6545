// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "programs/historystore.h"
#include "witness.h"

#include <QDir>

class TestWitness : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsStillThereIsNotLost();
    void coveredProgramIsLost();
    void removedProgramIsLost();
    void keptVersionIsNotLost();

private:
    QString path() const { return programDir() + "/coil.cnc"; }
    QString history() const { return home() + "/hmi/history"; }
};

void TestWitness::whatIsStillThereIsNotLost()
{
    Witness witness;
    writeFile(path(), "one\n");
    witness.look(programDir());
    QCOMPARE(witness.count(), 1);
    QCOMPARE(witness.lost(programDir(), history()), QStringList());
    // Under another name, too.
    QVERIFY(QFile::rename(path(), programDir() + "/other.cnc"));
    QCOMPARE(witness.lost(programDir(), history()), QStringList());
}

void TestWitness::coveredProgramIsLost()
{
    Witness witness;
    writeFile(path(), "one\n");
    witness.look(programDir());
    writeFile(path(), "other\n");
    witness.look(programDir());
    QCOMPARE(witness.count(), 2);
    const QStringList lost = witness.lost(programDir(), history());
    QCOMPARE(lost.size(), 1);
    QVERIFY2(lost.at(0).contains("coil.cnc, 4 bytes"), qPrintable(lost.at(0)));
}

void TestWitness::removedProgramIsLost()
{
    Witness witness;
    writeFile(path(), "one\n");
    witness.look(programDir());
    QVERIFY(QFile::remove(path()));
    QCOMPARE(witness.lost(programDir(), history()).size(), 1);
}

void TestWitness::keptVersionIsNotLost()
{
    Witness witness;
    writeFile(path(), "one\n");
    witness.look(programDir());
    HistoryStore store(history(), HistoryStore::Limits());
    QString error;
    QVERIFY2(store.open(&error), qPrintable(error));
    QTRY_VERIFY(store.store(path(), &error) == HistoryStore::Known);
    QVERIFY(QFile::remove(path()));
    QCOMPARE(witness.lost(programDir(), history()), QStringList());
}

FILARIX_TEST_MAIN(TestWitness)
#include "tst_witness.moc"
