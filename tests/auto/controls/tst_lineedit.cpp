// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "lineedit.h"

#include <QMouseEvent>

class TestLineEdit : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void aPressIsTheBaseClasss();
};

void TestLineEdit::aPressIsTheBaseClasss()
{
    QWidget window;
    LineEdit edit(&window);
    QLineEdit plain(&window);
    Q_FOREACH (QLineEdit *field, QList<QLineEdit *>() << &edit << &plain) {
        QCOMPARE(field->text(), QString());
        field->setText(QLatin1String("G01 X10 Y20"));
        field->resize(200, 30);
        field->setCursorPosition(11);
    }
    QCOMPARE(edit.parentWidget(), &window);
    QTest::mousePress(&edit, Qt::LeftButton, Qt::NoModifier, QPoint(2, 15));
    QTest::mousePress(&plain, Qt::LeftButton, Qt::NoModifier, QPoint(2, 15));
    QCOMPARE(edit.cursorPosition(), 0);
    QCOMPARE(edit.cursorPosition(), plain.cursorPosition());
    QTest::mouseRelease(&edit, Qt::LeftButton, Qt::NoModifier, QPoint(2, 15));
    QTest::mouseRelease(&plain, Qt::LeftButton, Qt::NoModifier, QPoint(2, 15));
    QCOMPARE(edit.text(), QString::fromLatin1("G01 X10 Y20"));
}

FILARIX_TEST_MAIN(TestLineEdit)
#include "tst_lineedit.moc"
