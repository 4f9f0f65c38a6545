// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "temporaryhome.h"

#include <QDir>
#include <QFileInfo>

class TestTemporaryHome : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void itIsTheHomeAndGoesWithAllThatLiesInIt();
    void withoutATemporaryFolderTheHomeStays();
};

void TestTemporaryHome::cleanup()
{
    qputenv("HOME", "/tmp/home");
    qunsetenv("TMPDIR");
    FilarixTest::cleanup();
}

void TestTemporaryHome::itIsTheHomeAndGoesWithAllThatLiesInIt()
{
    const QString before = QDir::homePath();
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(before + "/.config"));
    QString path;
    {
        TemporaryHome home;
        QVERIFY(home.isValid());
        path = home.path();
        QCOMPARE(QDir::homePath(), path);
        QVERIFY(path != before);
        QVERIFY(qgetenv("XDG_CONFIG_HOME").isEmpty());
        writeFile(path + "/cnc/coil.cnc", "G01 X1\n");
    }
    QVERIFY(!QFileInfo::exists(path));
}

void TestTemporaryHome::withoutATemporaryFolderTheHomeStays()
{
    const QString before = QDir::homePath();
    qputenv("TMPDIR", "/etc/filarix");
    const TemporaryHome home;
    QVERIFY(!home.isValid());
    QCOMPARE(QDir::homePath(), before);
}

FILARIX_TEST_MAIN(TestTemporaryHome)
#include "tst_temporaryhome.moc"
