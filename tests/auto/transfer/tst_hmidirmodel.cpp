// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "hmidirmodel.h"

#include <QFile>

class TestHmiDirModel : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void belongsToItsParent();
    void flagsAreTheBases_data();
    void flagsAreTheBases();
    void flagsOfNoIndexAreTheBases();
};

void TestHmiDirModel::belongsToItsParent()
{
    QObject parent;
    HmiDirModel *model = new HmiDirModel(&parent);
    QCOMPARE(model->parent(), &parent);
}

void TestHmiDirModel::flagsAreTheBases_data()
{
    QTest::addColumn<bool>("readOnly");
    QTest::newRow("read-only, as the import manager has it") << true;
    QTest::newRow("editable") << false;
}

void TestHmiDirModel::flagsAreTheBases()
{
    QFETCH(bool, readOnly);
    writeFile(home() + "/tree/part.cnc", "G01\n");
    writeFile(home() + "/tree/folder/inner.cnc", "G01\n");
    writeFile(home() + "/tree/blank name", "");
    QVERIFY(QFile::link(home() + "/tree/part.cnc", home() + "/tree/link"));

    HmiDirModel model(nullptr);
    QDirModel reference;
    model.setReadOnly(readOnly);
    reference.setReadOnly(readOnly);
    const QModelIndex root = model.index(home() + "/tree");
    const QModelIndex referenceRoot = reference.index(home() + "/tree");
    QCOMPARE(model.rowCount(root), 4);
    QCOMPARE(reference.rowCount(referenceRoot), 4);
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < model.columnCount(root); ++column) {
            const QModelIndex index = model.index(row, column, root);
            const QModelIndex twin = reference.index(row, column, referenceRoot);
            QCOMPARE(model.fileName(index), reference.fileName(twin));
            QCOMPARE(model.flags(index), reference.flags(twin));
        }
    }
}

void TestHmiDirModel::flagsOfNoIndexAreTheBases()
{
    QCOMPARE(HmiDirModel(nullptr).flags(QModelIndex()), QDirModel().flags(QModelIndex()));
}

FILARIX_TEST_MAIN(TestHmiDirModel)
#include "tst_hmidirmodel.moc"
