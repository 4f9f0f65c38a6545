// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "base/sha256.h"
#include "filarixtest.h"

#include <QCryptographicHash>

class TestSha256 : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void publishedSums_data();
    void publishedSums();
    void piecesGiveTheSumOfTheWhole_data();
    void piecesGiveTheSumOfTheWhole();
    void moreMayFollowAResult();
    void toolkitGivesTheSame();
};

// The examples of the standard, and what "sha256sum" says.
void TestSha256::publishedSums_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("sum");
    QTest::newRow("nothing")
        << QByteArray()
        << QByteArray("e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
    QTest::newRow("three letters")
        << QByteArray("abc")
        << QByteArray("ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
    QTest::newRow("56 letters, whose length takes a second block")
        << QByteArray("abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq")
        << QByteArray("248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1");
    QTest::newRow("a million letters")
        << QByteArray(1000000, 'a')
        << QByteArray("cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0");
}

void TestSha256::publishedSums()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, sum);
    QCOMPARE(Sha256::hash(bytes).toHex(), sum);
}

static QByteArray someBytes(int count)
{
    QByteArray bytes(count, '\0');
    unsigned seed = 5;
    for (int i = 0; i < count; ++i) {
        seed = seed * 1103515245u + 12345u;
        bytes[i] = char(seed >> 16);
    }
    return bytes;
}

void TestSha256::piecesGiveTheSumOfTheWhole_data()
{
    QTest::addColumn<int>("piece");
    const int pieces[] = {1, 2, 55, 56, 63, 64, 65, 127, 128, 200};
    for (int piece : pieces)
        QTest::newRow(qPrintable(QString::number(piece))) << piece;
}

void TestSha256::piecesGiveTheSumOfTheWhole()
{
    QFETCH(int, piece);
    const QByteArray bytes = someBytes(1000);
    Sha256 sum;
    for (int at = 0; at < bytes.size(); at += piece)
        sum.addData(bytes.mid(at, piece));
    QCOMPARE(sum.result(), Sha256::hash(bytes));
}

void TestSha256::moreMayFollowAResult()
{
    Sha256 sum;
    sum.addData("ab");
    QCOMPARE(sum.result(), Sha256::hash("ab"));
    QCOMPARE(sum.result(), Sha256::hash("ab"));
    sum.addData("c");
    QCOMPARE(sum.result(), Sha256::hash("abc"));
}

// Files that one toolkit's program has kept are read by the other's.
void TestSha256::toolkitGivesTheSame()
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    for (int length = 0; length < 300; ++length) {
        const QByteArray bytes = someBytes(length);
        QCOMPARE(Sha256::hash(bytes), QCryptographicHash::hash(bytes, QCryptographicHash::Sha256));
    }
#else
    // Qt 4.8 has none to compare with: the sum of the same bytes, as Qt 5 has it.
    QCOMPARE(Sha256::hash(someBytes(299)).toHex(),
             QByteArray("7e305395fd8ff19b6ca1c66f941eff30036f76d4160aeb7510c6530c3e11072e"));
#endif
}

FILARIX_TEST_MAIN(TestSha256)
#include "tst_sha256.moc"
