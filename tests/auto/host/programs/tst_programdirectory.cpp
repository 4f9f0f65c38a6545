// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "programs/programdirectory.h"

#include <QDir>
#include <QFileInfo>

class TestProgramDirectory : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void folderIsCncInTheHome();
    void folderIsNotMade();
};

void TestProgramDirectory::folderIsCncInTheHome()
{
    QCOMPARE(ProgramDirectory::path(), QString(home() + "/cnc"));
    QCOMPARE(ProgramDirectory::path(), programDir());
}

void TestProgramDirectory::folderIsNotMade()
{
    QDir(home()).rmdir("cnc");
    QVERIFY(!QFileInfo(ProgramDirectory::path()).exists());
}

FILARIX_TEST_MAIN(TestProgramDirectory)
#include "tst_programdirectory.moc"
