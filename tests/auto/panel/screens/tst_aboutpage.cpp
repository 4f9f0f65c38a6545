// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "screens/aboutpage.h"

#include <QLabel>

class TestAboutPage : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void itTellsWhatThePanelIs();
    void theRoomIsToldOnceItIsKnown();
    void aLongFolderIsBroken();
};

namespace {

/// As it is read, without the places where it may be broken.
QString facts(const QWidget &page)
{
    return page.findChild<QLabel *>("facts")->text().remove(QChar(0x200b));
}

} // namespace

void TestAboutPage::itTellsWhatThePanelIs()
{
    QCoreApplication::setApplicationVersion("4.7.11");
    const AboutPage page("/home/panel/hmi");
    const QString text = facts(page);
    for (const QString &fact :
         {QCoreApplication::applicationName() + " 4.7.11", QString("Qt ") + qVersion(),
          QString("MIT"), QString("LGPL 3"), QString("Data: /home/panel/hmi\n")})
        QVERIFY2(text.contains(fact), qPrintable(fact + " in " + text));
    QCoreApplication::setApplicationVersion(QString());
}

void TestAboutPage::theRoomIsToldOnceItIsKnown()
{
    AboutPage page("/home/panel/hmi");
    QVERIFY2(facts(page).endsWith("Room left: not known"), qPrintable(facts(page)));
    page.showRoom(qint64(20) * 1024 * 1024 * 1024);
    QVERIFY2(facts(page).endsWith("Room left: 20 GB"), qPrintable(facts(page)));
    page.showRoom(0);
    QVERIFY2(facts(page).endsWith("Room left: 0 MB"), qPrintable(facts(page)));
    page.showRoom(-1);
    QVERIFY2(facts(page).endsWith("not known"), qPrintable(facts(page)));
}

void TestAboutPage::aLongFolderIsBroken()
{
    const QString folder = "/home/" + QString(120, 'x') + "/hmi";
    const AboutPage page(folder);
    const QLabel *label = page.findChild<QLabel *>("facts");
    QVERIFY(facts(page).contains(folder));
    // Its longest part asks for less than the smallest page has.
    QVERIFY(label->minimumSizeHint().width() < 230);
}

FILARIX_TEST_MAIN(TestAboutPage)
#include "tst_aboutpage.moc"
