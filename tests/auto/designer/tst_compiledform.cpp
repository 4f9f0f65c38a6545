// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Holds the Designer plugin: a form that uic compiled.

#include "devicelog.h"
#include "filarixtest.h"
#include "ui_form.h"

#include <QLineEdit>

/// A form made with Qt Designer is compiled into its host.
class TestCompiledForm : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theFormIsMade();
    void aTableRowTakesAValue();
    void aListTakesRows();
};

void TestCompiledForm::init()
{
    FilarixTest::init();
    DeviceLog::reset();
}

void TestCompiledForm::theFormIsMade()
{
    QWidget window;
    Ui::Form form;
    form.setupUi(&window);
    QCOMPARE(form.pushButton->text(), QString("Start"));
    QVERIFY(form.checkBox->isChecked());
    QCOMPARE(form.comboBox->count(), 2);
    QVERIFY(!form.comboBox->isEditable());
    QCOMPARE(form.spinBox->value(), 12);
    QCOMPARE(form.doubleSpinBox->value(), 2.5);
    QCOMPARE(form.lineEdit->text(), QString("COIL1"));
    QCOMPARE(form.groupBox->title(), QString("Limits"));
    QCOMPARE(form.scrollBar->parentWidget(), static_cast<QWidget *>(form.groupBox));
    QCOMPARE(form.scrollBar->orientation(), Qt::Vertical);
    QCOMPARE(form.scrollBar->styleSheet(), ScrollBar(Qt::Vertical, nullptr).styleSheet());
    QCOMPARE(form.listWidget->count(), 0);
    QCOMPARE(form.wgCodeEditer->curLineText(), QString("G00 X1"));
}

void TestCompiledForm::aTableRowTakesAValue()
{
    QWidget window;
    Ui::Form form;
    form.setupUi(&window);
    window.show();
    QStringList row = QStringList() << "7"
                                    << ""
                                    << "Tension"
                                    << "6.0";
    form.dataEditor->setData(row);
    QCOMPARE(form.dataEditor->getData(), row);
    DeviceLog::acceptWith(QLatin1String("6.5"));
    QTest::mouseClick(form.dataEditor->findChild<QLineEdit *>(), Qt::LeftButton);
    QCOMPARE(DeviceLog::answersLeft(), 0);
    QCOMPARE(form.dataEditor->getData().last(), QString("6.5"));
}

void TestCompiledForm::aListTakesRows()
{
    QWidget window;
    Ui::Form form;
    form.setupUi(&window);
    QCOMPARE(form.tListWidget->count(), 0);
    QStringList row = QStringList() << "DataEditor"
                                    << "N1"
                                    << ""
                                    << "Tension"
                                    << "6.0";
    const QStringList expected = row;
    form.tListWidget->addWidget(row, true, false);
    QCOMPARE(form.tListWidget->getContent(0), expected);

    QStringList title = QStringList() << "Title"
                                      << "Title"
                                      << "Name";
    const TListWidget titled(&window, title);
    QCOMPARE(titled.count(), 1);
    QCOMPARE(title.size(), 3);
}

FILARIX_TEST_MAIN(TestCompiledForm)

#include "tst_compiledform.moc"
