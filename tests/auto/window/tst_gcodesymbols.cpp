// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "gcodesymbols.h"

class TestGCodeSymbols : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void operatorsInOrder();
    void lettersInKeyboardOrder();
};

void TestGCodeSymbols::operatorsInOrder()
{
    QStringList all;
    for (const QString &symbol : gcodeOperators)
        all << symbol;
    QCOMPARE(all.size(), 26);
    QCOMPARE(all.join(QLatin1String(" ")),
             QString::fromLatin1("+ - * / ( ) [ ] = % ! @ # $ ? ; : ' \" < > | && \\ { }"));
}

void TestGCodeSymbols::lettersInKeyboardOrder()
{
    QCOMPARE(gcodeLowerCaseLetters, QString::fromLatin1("qwertyuiopasdfghjklzxcvbnm"));
    QCOMPARE(gcodeUpperCaseLetters, QString::fromLatin1("QWERTYUIOPASDFGHJKLZXCVBNM"));
    QCOMPARE(gcodeUpperCaseLetters, gcodeLowerCaseLetters.toUpper());
}

FILARIX_TEST_MAIN(TestGCodeSymbols)
#include "tst_gcodesymbols.moc"
