// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "look/look.h"
#include "shell/languagepicker.h"

#include <QPushButton>
#include <QSignalSpy>

class TestLanguagePicker : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void eachLanguageHasAKeyWithItsOwnName();
    void theKeyOfTheCurrentOneIsMarked();
    void aKeyChooses();
    void cancelChoosesNothing();
    void theOtherLookIsAskedFor();
    void aTextSizeIsAskedFor();
};

static QPushButton *key(const QDialog &picker, const QString &name)
{
    return picker.findChild<QPushButton *>(name);
}

void TestLanguagePicker::eachLanguageHasAKeyWithItsOwnName()
{
    const LanguagePicker picker("en");
    for (const Languages::Language &language : Languages::all()) {
        QVERIFY2(key(picker, "language_" + language.code), qPrintable(language.code));
        QCOMPARE(key(picker, "language_" + language.code)->text(), language.name);
        QVERIFY(key(picker, "language_" + language.code)->minimumHeight() >= Look::smallestTouch);
    }
}

void TestLanguagePicker::theKeyOfTheCurrentOneIsMarked()
{
    const LanguagePicker picker("it");
    for (const QString &code : Languages::codes())
        QCOMPARE(key(picker, "language_" + code)->isChecked(), code == "it");
    QCOMPARE(picker.focusWidget(), static_cast<QWidget *>(key(picker, "language_it")));
}

void TestLanguagePicker::aKeyChooses()
{
    LanguagePicker picker("en");
    QCOMPARE(picker.code(), QString());
    key(picker, "language_tr")->click();
    QCOMPARE(picker.code(), QString("tr"));
    QCOMPARE(picker.result(), int(QDialog::Accepted));
}

void TestLanguagePicker::cancelChoosesNothing()
{
    LanguagePicker picker("en");
    QSignalSpy rejected(&picker, SIGNAL(rejected()));
    for (QPushButton *button : picker.findChildren<QPushButton *>()) {
        if (button->text() == "Cancel")
            button->click();
    }
    QCOMPARE(rejected.size(), 1);
    QCOMPARE(picker.code(), QString());
}

void TestLanguagePicker::theOtherLookIsAskedFor()
{
    LanguagePicker picker("en");
    QSignalSpy wanted(&picker, SIGNAL(lookWanted()));
    QCOMPARE(key(picker, "look")->text(), QString("Dark colours"));
    key(picker, "look")->click();
    QCOMPARE(wanted.size(), 1);
    QCOMPARE(picker.code(), QString());
    QCOMPARE(picker.result(), int(QDialog::Rejected));
    Look::use(Look::Dark);
    const LanguagePicker dark("en");
    QCOMPARE(key(dark, "look")->text(), QString("Light colours"));
    Look::use(Look::Light);
}

void TestLanguagePicker::aTextSizeIsAskedFor()
{
    LanguagePicker picker("en");
    QSignalSpy wanted(&picker, SIGNAL(textSizeWanted(int)));
    QVERIFY(key(picker, "textsize_100")->isChecked());
    QVERIFY(!key(picker, "textsize_150")->isChecked());
    QCOMPARE(key(picker, "textsize_150")->accessibleName(), QString("Text size 150 %"));
    key(picker, "textsize_150")->click();
    QCOMPARE(wanted.size(), 1);
    QCOMPARE(wanted.first().first().toInt(), 150);
    QCOMPARE(picker.code(), QString());
    QCOMPARE(picker.result(), int(QDialog::Rejected));
}

FILARIX_TEST_MAIN(TestLanguagePicker)
#include "tst_languagepicker.moc"
