// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "elidedlabel.h"
#include "filarixtest.h"

class TestElidedLabel : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void longTextGivesWay();
    void textThatFitsIsShownWhole();
};

static QImage picture(const QString &text, int width)
{
    ElidedLabel label;
    label.setText(text);
    label.resize(width, 30);
    return TestCompat::grab(&label).toImage();
}

void TestElidedLabel::longTextGivesWay()
{
    ElidedLabel label;
    label.setText(QString("a long text ").repeated(20));
    QVERIFY(label.minimumSizeHint().width() < 60);
    QCOMPARE(label.text().size(), 240);
    // Two texts that differ only where there is no room for them look alike.
    const QString begin = QString("a long text ").repeated(20);
    QCOMPARE(picture(begin + "one", 100), picture(begin + "two", 100));
    QVERIFY(picture("xa long text", 100) != picture("a long text", 100));
}

void TestElidedLabel::textThatFitsIsShownWhole()
{
    QVERIFY(picture("short 1", 200) != picture("short 2", 200));
}

FILARIX_TEST_MAIN(TestElidedLabel)
#include "tst_elidedlabel.moc"
