// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "lineedit.h"
#include "marktranslator.h"
#include "wfinddialog.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QLabel>
#include <QMetaMethod>
#include <QPushButton>
#include <QSignalSpy>

Q_DECLARE_METATYPE(Qt::CaseSensitivity)

class TestWFindDialog : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void textsAndTitle();
    void everyTextIsTranslated();
    void argumentsHaveTheirNames_data();
    void argumentsHaveTheirNames();
    void labelsLeadToTheirFields();
    void twoColumns();
    void replaceIsTheDefaultButton();
    void heightIsFixed();
    void isNotModal();
    void actionsNeedATextToFind();
    void findTellsTextCaseAndDirection_data();
    void findTellsTextCaseAndDirection();
    void replaceTellsTheReplacement();
    void closeKeepsTextsAndOptions();
};

namespace {

template<class Widget>
Widget *byText(const QWidget &dialog, const char *text)
{
    Q_FOREACH (Widget *widget, dialog.findChildren<Widget *>()) {
        if (widget->text() == QLatin1String(text))
            return widget;
    }
    return nullptr;
}

struct Parts
{
    Parts()
        : dialog(nullptr)
        , find(qobject_cast<LineEdit *>(byText<QLabel>(dialog, "Find &what:")->buddy()))
        , replacement(qobject_cast<LineEdit *>(byText<QLabel>(dialog, "Replace &what:")->buddy()))
        , matchCase(byText<QCheckBox>(dialog, "Match &case"))
        , backward(byText<QCheckBox>(dialog, "Search &backward"))
        , findButton(byText<QPushButton>(dialog, "&Find"))
        , replaceButton(byText<QPushButton>(dialog, "&Replace"))
        , closeButton(byText<QPushButton>(dialog, "Close"))
    {}
    WFindDialog dialog;
    LineEdit *find;
    LineEdit *replacement;
    QCheckBox *matchCase;
    QCheckBox *backward;
    QPushButton *findButton;
    QPushButton *replaceButton;
    QPushButton *closeButton;
};

} // namespace

void TestWFindDialog::initTestCase()
{
    qRegisterMetaType<Qt::CaseSensitivity>("Qt::CaseSensitivity");
}

void TestWFindDialog::textsAndTitle()
{
    Parts it;
    QVERIFY(it.find);
    QVERIFY(it.replacement);
    QVERIFY(it.matchCase);
    QVERIFY(it.backward);
    QVERIFY(it.findButton);
    QVERIFY(it.replaceButton);
    QVERIFY(it.closeButton);
    QCOMPARE(it.dialog.windowTitle(), QString::fromLatin1("Find"));
    QCOMPARE(it.find->text(), QString());
    QCOMPARE(it.replacement->text(), QString());
    QVERIFY(!it.matchCase->isChecked());
    QVERIFY(!it.backward->isChecked());
}

void TestWFindDialog::everyTextIsTranslated()
{
    MarkTranslator translator(QLatin1String("#"));
    const WFindDialog dialog(nullptr);
    QCOMPARE(dialog.windowTitle(), QString::fromLatin1("#Find"));
    QVERIFY(byText<QLabel>(dialog, "#Find &what:"));
    QVERIFY(byText<QLabel>(dialog, "#Replace &what:"));
    QVERIFY(byText<QCheckBox>(dialog, "#Match &case"));
    QVERIFY(byText<QCheckBox>(dialog, "#Search &backward"));
    QVERIFY(byText<QPushButton>(dialog, "#&Find"));
    QVERIFY(byText<QPushButton>(dialog, "#&Replace"));
    QVERIFY(byText<QPushButton>(dialog, "#Close"));
    QCOMPARE(translator.asked("WFindDialog").size(), 8);
}

void TestWFindDialog::argumentsHaveTheirNames_data()
{
    QTest::addColumn<QString>("names");
    QTest::newRow("findNext(QString,Qt::CaseSensitivity)") << "str cs";
    QTest::newRow("findPrevious(QString,Qt::CaseSensitivity)") << "str cs";
    QTest::newRow("replaceTxt(QString)") << "str";
    QTest::newRow("enableFindButton(QString)") << "text";
}

void TestWFindDialog::argumentsHaveTheirNames()
{
    QFETCH(QString, names);
    const QMetaObject &meta = WFindDialog::staticMetaObject;
    QStringList found;
    Q_FOREACH (const QByteArray &name,
               meta.method(meta.indexOfMethod(QTest::currentDataTag())).parameterNames())
        found << QString::fromLatin1(name);
    QCOMPARE(found.join(QLatin1String(" ")), names);
}

void TestWFindDialog::labelsLeadToTheirFields()
{
    Parts it;
    QVERIFY(it.find != it.replacement);
    it.dialog.show();
    QApplication::setActiveWindow(&it.dialog);
    it.replacement->setFocus();
    QTRY_VERIFY(it.replacement->hasFocus());
    it.find->setFocus();
    QTRY_VERIFY(it.find->hasFocus());
}

void TestWFindDialog::twoColumns()
{
    Parts it;
    QHBoxLayout *columns = qobject_cast<QHBoxLayout *>(it.dialog.layout());
    QVERIFY(columns);
    QCOMPARE(columns->count(), 2);
    QVBoxLayout *left = qobject_cast<QVBoxLayout *>(columns->itemAt(0)->layout());
    QVBoxLayout *right = qobject_cast<QVBoxLayout *>(columns->itemAt(1)->layout());
    QVERIFY(left);
    QVERIFY(right);

    QCOMPARE(left->count(), 4);
    QHBoxLayout *findRow = qobject_cast<QHBoxLayout *>(left->itemAt(0)->layout());
    QHBoxLayout *replaceRow = qobject_cast<QHBoxLayout *>(left->itemAt(1)->layout());
    QVERIFY(findRow);
    QVERIFY(replaceRow);
    QCOMPARE(findRow->count(), 2);
    QCOMPARE(qobject_cast<QLabel *>(findRow->itemAt(0)->widget())->text(),
             QString::fromLatin1("Find &what:"));
    QCOMPARE(findRow->itemAt(1)->widget(), static_cast<QWidget *>(it.find));
    QCOMPARE(replaceRow->count(), 2);
    QCOMPARE(qobject_cast<QLabel *>(replaceRow->itemAt(0)->widget())->text(),
             QString::fromLatin1("Replace &what:"));
    QCOMPARE(replaceRow->itemAt(1)->widget(), static_cast<QWidget *>(it.replacement));
    QCOMPARE(left->itemAt(2)->widget(), static_cast<QWidget *>(it.matchCase));
    QCOMPARE(left->itemAt(3)->widget(), static_cast<QWidget *>(it.backward));

    QCOMPARE(right->count(), 4);
    QCOMPARE(right->itemAt(0)->widget(), static_cast<QWidget *>(it.findButton));
    QCOMPARE(right->itemAt(1)->widget(), static_cast<QWidget *>(it.replaceButton));
    QCOMPARE(right->itemAt(2)->widget(), static_cast<QWidget *>(it.closeButton));
    QVERIFY(right->itemAt(3)->spacerItem());
    QCOMPARE(right->stretch(3), 0);
}

void TestWFindDialog::replaceIsTheDefaultButton()
{
    Parts it;
    QVERIFY(!it.findButton->isDefault());
    QVERIFY(it.replaceButton->isDefault());
    QVERIFY(!it.closeButton->isDefault());
}

void TestWFindDialog::heightIsFixed()
{
    Parts it;
    QCOMPARE(it.dialog.minimumHeight(), it.dialog.sizeHint().height());
    QCOMPARE(it.dialog.maximumHeight(), it.dialog.sizeHint().height());
    QVERIFY(it.dialog.maximumWidth() > it.dialog.sizeHint().width());
}

void TestWFindDialog::isNotModal()
{
    Parts it;
    it.dialog.setVisible(true);
    QVERIFY(it.dialog.isVisible());
    QVERIFY(!it.dialog.isModal());
    QVERIFY(!QApplication::activeModalWidget());
}

void TestWFindDialog::actionsNeedATextToFind()
{
    Parts it;
    QVERIFY(!it.findButton->isEnabled());
    QVERIFY(!it.replaceButton->isEnabled());
    QVERIFY(it.closeButton->isEnabled());
    it.replacement->setText(QLatin1String("Y"));
    QVERIFY(!it.findButton->isEnabled());
    QVERIFY(!it.replaceButton->isEnabled());

    QTest::keyClick(it.find, Qt::Key_X);
    QVERIFY(it.findButton->isEnabled());
    QVERIFY(it.replaceButton->isEnabled());
    QTest::keyClick(it.find, Qt::Key_Backspace);
    QVERIFY(!it.findButton->isEnabled());
    QVERIFY(!it.replaceButton->isEnabled());

    it.replacement->clear();
    it.find->setText(QLatin1String(" "));
    QVERIFY(it.findButton->isEnabled());
    QVERIFY(it.replaceButton->isEnabled());
}

void TestWFindDialog::findTellsTextCaseAndDirection_data()
{
    QTest::addColumn<bool>("matchCase");
    QTest::addColumn<bool>("backward");
    QTest::newRow("forward") << false << false;
    QTest::newRow("forward with case") << true << false;
    QTest::newRow("backward") << false << true;
    QTest::newRow("backward with case") << true << true;
}

void TestWFindDialog::findTellsTextCaseAndDirection()
{
    QFETCH(bool, matchCase);
    QFETCH(bool, backward);
    Parts it;
    QSignalSpy next(&it.dialog, SIGNAL(findNext(QString, Qt::CaseSensitivity)));
    QSignalSpy previous(&it.dialog, SIGNAL(findPrevious(QString, Qt::CaseSensitivity)));
    QSignalSpy replace(&it.dialog, SIGNAL(replaceTxt(QString)));
    it.find->setText(QLatin1String("x10"));
    it.matchCase->setChecked(matchCase);
    it.backward->setChecked(backward);
    it.findButton->click();

    QCOMPARE(next.count(), backward ? 0 : 1);
    QCOMPARE(previous.count(), backward ? 1 : 0);
    QCOMPARE(replace.count(), 0);
    const QList<QVariant> told = backward ? previous.first() : next.first();
    QCOMPARE(told.at(0).toString(), QString::fromLatin1("x10"));
    QCOMPARE(int(told.at(1).value<Qt::CaseSensitivity>()), matchCase ? 1 : 0);
}

void TestWFindDialog::replaceTellsTheReplacement()
{
    Parts it;
    QSignalSpy replace(&it.dialog, SIGNAL(replaceTxt(QString)));
    it.find->setText(QLatin1String("X10"));
    it.replacement->setText(QLatin1String("X20"));
    it.replaceButton->click();
    it.replacement->clear();
    it.replaceButton->click();
    QCOMPARE(replace.count(), 2);
    QCOMPARE(replace.at(0).at(0).toString(), QString::fromLatin1("X20"));
    QCOMPARE(replace.at(1).at(0).toString(), QString());
}

void TestWFindDialog::closeKeepsTextsAndOptions()
{
    Parts it;
    it.dialog.show();
    it.find->setText(QLatin1String("X10"));
    it.replacement->setText(QLatin1String("X20"));
    it.matchCase->setChecked(true);
    it.backward->setChecked(true);
    it.closeButton->click();
    QVERIFY(!it.dialog.isVisible());
    it.dialog.show();
    QCOMPARE(it.find->text(), QString::fromLatin1("X10"));
    QCOMPARE(it.replacement->text(), QString::fromLatin1("X20"));
    QVERIFY(it.matchCase->isChecked());
    QVERIFY(it.backward->isChecked());
    QVERIFY(it.findButton->isEnabled());
}

FILARIX_TEST_MAIN(TestWFindDialog)
#include "tst_wfinddialog.moc"
