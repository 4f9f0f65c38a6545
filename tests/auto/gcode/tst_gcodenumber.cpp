// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "gcodenumber_p.h"

#include <cstring>
#include <random>

class TestGCodeNumber : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void sameAsTheToolkit_data();
    void sameAsTheToolkit();
    void sameAsTheToolkitOnRandomNumbers();
};

namespace {

/// The bits, so that 0 and -0 differ and "nan" equals itself.
quint64 bits(double value)
{
    quint64 result = 0;
    std::memcpy(&result, &value, sizeof(result));
    return result;
}

quint64 own(const QString &text)
{
    return bits(GCodeNumber::toDouble(text.constData(), text.constData() + text.size()));
}

} // namespace

void TestGCodeNumber::sameAsTheToolkit_data()
{
    QTest::addColumn<QString>("text");
    Q_FOREACH (const char *text, QList<const char *>() << ""
                                                       << "-"
                                                       << "+"
                                                       << "."
                                                       << "-."
                                                       << "0"
                                                       << "-0"
                                                       << "-0.0"
                                                       << "+5"
                                                       << "5."
                                                       << "-5."
                                                       << ".5"
                                                       << "-.5"
                                                       << "007"
                                                       << "-007.50"
                                                       << "1.2.3"
                                                       << "--5"
                                                       << "1-"
                                                       << "1e3"
                                                       << "1E-3"
                                                       << "0x10"
                                                       << "nan"
                                                       << "inf"
                                                       << "-inf"
                                                       << " 5"
                                                       << "5 "
                                                       << "999999999999999"
                                                       << "-99999999999999"
                                                       << "0.0000000000001"
                                                       << "9007199254740993"
                                                       << "0.1"
                                                       << "0.3"
                                                       << "123456.7890123"
                                                       << "1e400"
                                                       << "(comment"
                                                       << "12a")
        QTest::newRow(text) << QString::fromLatin1(text);
    QTest::newRow("Arabic digits") << QString(2, QChar(0x0664));
    QTest::newRow("a no-break space behind") << QString::fromLatin1("5") + QChar(0x00a0);
}

void TestGCodeNumber::sameAsTheToolkit()
{
    QFETCH(QString, text);
    QCOMPARE(own(text), bits(text.toDouble()));
}

void TestGCodeNumber::sameAsTheToolkitOnRandomNumbers()
{
    const QString characters = QLatin1String("01234567890123456789.-+e");
    std::mt19937 random(20260806u);
    const int texts = FilarixTest::scaled(300000);
    int numbers = 0;
    for (int i = 0; i < texts; ++i) {
        QString text;
        if (random() % 2)
            text = QLatin1Char('-');
        const unsigned kinds = random() % 4 ? 21 : unsigned(characters.size());
        for (int k = int(random() % 18); k > 0; --k)
            text += characters.at(int(random() % kinds));
        bool isNumber = false;
        const double wanted = text.toDouble(&isNumber);
        numbers += isNumber ? 1 : 0;
        QVERIFY2(own(text) == bits(wanted), qPrintable(text));
    }
    QVERIFY(numbers > texts / 3);
}

FILARIX_TEST_MAIN(TestGCodeNumber)
#include "tst_gcodenumber.moc"
