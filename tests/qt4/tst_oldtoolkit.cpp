// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "dialog.h"
#include "filarixtest.h"
#include "lineedit.h"
#include "wmmainwindow.h"

#include <QDir>
#include <QFontDatabase>
#include <QFontInfo>
#include <QSettings>
#include <QSignalSpy>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

bool isEmbedded()
{
#if defined(Q_WS_QWS)
    return true;
#else
    return false;
#endif
}

} // namespace

/// What the documentation's page "On Qt 4.8" tells hosts of this toolkit.
class TestOldToolkit : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void fontsOfTheEmbeddedOneComeFromOneFolder();
    void hostNamesWhatStandsInForAFont();
    void windowsOfTheEmbeddedOneHaveTitleBars();
    void fullScreenLeavesTheTitleBarOut();
    void settingsOfTheEmbeddedOneLieInAFolderOfItsOwn();
    void settingsAreSortedOnTheEmbeddedOneOnly();
    void literalsAreLatin1();
    void localeDecidesAboutBytes();
    void fieldIsFinishedWheneverTheFocusLeaves();
};

void TestOldToolkit::fontsOfTheEmbeddedOneComeFromOneFolder()
{
    const QString folder = QString::fromLocal8Bit(qgetenv("QT_QWS_FONTDIR"));
    QCOMPARE(!folder.isEmpty(), isEmbedded());
    const QStringList families = QFontDatabase().families();
    QVERIFY(families.contains("DejaVu Sans"));
    if (!isEmbedded())
        return;
    Q_FOREACH (const QString &family, families) {
        const QString pattern = QString(family).remove(' ').replace("Mono", "") + "*";
        QVERIFY2(!QDir(folder).entryList(QStringList(pattern)).isEmpty(), qPrintable(family));
    }
}

void TestOldToolkit::hostNamesWhatStandsInForAFont()
{
    const QString standIn("Liberation Sans");
    QCOMPARE(QFontInfo(QFont("Arial", 10)).family() == standIn, !isEmbedded());
    QFont::insertSubstitution("Arial", standIn);
    // Of another size: the toolkit remembers what it has taken.
    QCOMPARE(QFontInfo(QFont("Arial", 11)).family(), standIn);
    QFont::removeSubstitution("Arial");
}

void TestOldToolkit::windowsOfTheEmbeddedOneHaveTitleBars()
{
    Dialog dialog(nullptr);
    dialog.resize(200, 100);
    dialog.show();
    QVERIFY(TestCompat::waitForExposed(&dialog));
    QCOMPARE(dialog.frameGeometry().height() > dialog.height(), isEmbedded());
}

void TestOldToolkit::fullScreenLeavesTheTitleBarOut()
{
    Dialog dialog(nullptr);
    dialog.showFullScreen();
    QVERIFY(TestCompat::waitForExposed(&dialog));
    QCOMPARE(dialog.frameGeometry(), dialog.geometry());
}

void TestOldToolkit::settingsOfTheEmbeddedOneLieInAFolderOfItsOwn()
{
    QSettings("Corvane Soft", "G Code").setValue("key", "value");
    const QString path = "/Corvane Soft/G Code.conf";
    QCOMPARE(QFile::exists(home() + "/Settings" + path), isEmbedded());
    QCOMPARE(QFile::exists(home() + "/.config" + path), !isEmbedded());
}

void TestOldToolkit::settingsAreSortedOnTheEmbeddedOneOnly()
{
    const QString path = home() + "/order.ini";
    writeFile(path, "[General]\nb=1\na=2\n");
    QSettings(path, QSettings::IniFormat).setValue("b", "3");
    QCOMPARE(readFile(path), isEmbedded() ? QByteArray("[General]\na=2\nb=3\n")
                                          : QByteArray("[General]\nb=3\na=2\n"));
}

void TestOldToolkit::literalsAreLatin1()
{
    const char umlaut[] = "\xc3\xbc"; // one character in UTF-8
    QCOMPARE(QString(umlaut).size(), 2);
    QCOMPARE(tr(umlaut).size(), 2);
    QCOMPARE(QString::fromUtf8(umlaut).size(), 1);
}

/// Run once more without a locale: the embedded one goes by UTF-8 all the same.
void TestOldToolkit::localeDecidesAboutBytes()
{
    const QByteArray umlaut("\xc3\xbc");
    const bool isUtf8 = isEmbedded() || qgetenv("LC_ALL") != "C";
    QCOMPARE(QString::fromLocal8Bit(umlaut) == QString(QChar(0xfc)), isUtf8);
    QCOMPARE(QString(QChar(0xfc)).toLocal8Bit() == umlaut, isUtf8);
}

void TestOldToolkit::fieldIsFinishedWheneverTheFocusLeaves()
{
    QWidget screen;
    QVBoxLayout column(&screen);
    LineEdit first(&screen);
    LineEdit second(&screen);
    column.addWidget(&first);
    column.addWidget(&second);
    screen.show();
    QVERIFY(TestCompat::waitForExposed(&screen));
    QApplication::setActiveWindow(&screen);
    first.setFocus();
    QTRY_VERIFY(first.hasFocus());
    QSignalSpy finished(&first, SIGNAL(editingFinished()));
    second.setFocus();
    QCOMPARE(finished.count(), 1);
    QVERIFY(!first.isModified());
}

FILARIX_TEST_MAIN(TestOldToolkit)
#include "tst_oldtoolkit.moc"
