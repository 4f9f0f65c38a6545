// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "fillrows.h"
#include "languageswitch.h"
#include "marktranslator.h"
#include "modaldriver.h"
#include "modifiedmark.h"
#include "wfiledialog.h"
#include "windowthatgoes.h"

#include <QDir>
#include <QLineEdit>
#include <QPointer>
#include <QTimer>

namespace {

/// What a host has: a window, and its way to the editor. The buttons along which no bar holds go
/// with it.
class Host
{
public:
    Host() : window(nullptr, 0) {}
    ~Host()
    {
        Q_FOREACH (QWidget *widget, QApplication::topLevelWidgets())
            if (qobject_cast<QToolButton *>(widget))
                delete widget;
    }

    WGCodeEditer *editor() { return window.findChild<WGCodeEditer *>(); }

    void saveAs(const QString &name)
    {
        ModalDriver driver;
        driver.then([name](QWidget *dialog) { pick(dialog, name); });
        QVERIFY(QMetaObject::invokeMethod(&window, "saveAs"));
        QVERIFY2(driver.finished(), driver.report());
    }

    QToolButton *button(const QString &text)
    {
        Q_FOREACH (QToolButton *button, window.findChildren<QToolButton *>())
            if (button->text() == text)
                return button;
        return nullptr;
    }

    WMMainWindow window;

private:
    static void pick(QWidget *widget, const QString &name)
    {
        WFileDialog *dialog = qobject_cast<WFileDialog *>(widget);
        QVERIFY(dialog);
        dialog->findChild<QLineEdit *>()->setText(name);
        QVERIFY(QMetaObject::invokeMethod(dialog, "on_applyButton_clicked"));
    }
};

QStringList title()
{
    return FilarixRows::titleRow("Instr.", "Point", "Speed", "Z", "T");
}

QList<QStringList> taught(int count)
{
    QList<QStringList> rows;
    for (int i = 1; i <= count; ++i) {
        FilarixRows::InstructionRow move(FilarixRows::InstructionRow::Linear, "Wind");
        move.setJpos("P", i % 8).setV("V", 1).setZ("Z", "1.5").setT("T", "0").setRes("one layer");
        rows.append(move.row(i));
    }
    return rows;
}

} // namespace

/// The recipes of the documentation, run as hosts would.
class TestRecipes : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void modifiedMarkFollowsTheDocument();
    void languageSwitchReachesTheWindowAndBack();
    void languageTakesThePlaceOfAnother();
    void languageThatIsMissingChangesNothing();
    void windowThatGoesLeavesNothingBehind();
    void windowIsTakenAwayFromUnderALoad();
    void manyRowsMakeOnePageOfWidgets();
};

void TestRecipes::modifiedMarkFollowsTheDocument()
{
    if (TestCompat::warnsOfUnmarkedTitles())
        StrictMessages::expect(QLatin1String("does not contain a '[*]' placeholder"));
    Host host;
    followChanges(&host.window);
    host.editor()->insertLine("G01 X1");
    QVERIFY(host.window.isWindowModified());
    host.saveAs("part.cnc");
    QVERIFY(!host.window.isWindowModified());
    QCOMPARE(host.window.windowTitle(), QString("part.cnc[*] - Application"));
}

void TestRecipes::languageSwitchReachesTheWindowAndBack()
{
    Host host;
    QScopedPointer<QTranslator> language;
    QVERIFY(switchLanguage(&language, "filarix_de", TRANSLATIONS_DIR));
    const QString open = QCoreApplication::translate("WMMainWindow", "Open");
    QVERIFY(open != QLatin1String("Open"));
    QTRY_VERIFY(host.button(open));
    language.reset();
    QTRY_VERIFY(host.button("Open"));
}

void TestRecipes::languageTakesThePlaceOfAnother()
{
    Host host;
    QScopedPointer<QTranslator> language;
    QVERIFY(switchLanguage(&language, "filarix_de", TRANSLATIONS_DIR));
    QVERIFY(switchLanguage(&language, "filarix_it", TRANSLATIONS_DIR));
    QTRY_VERIFY(host.button(QCoreApplication::translate("WMMainWindow", "Open")));
    language.reset();
    QTRY_VERIFY(host.button("Open"));
}

void TestRecipes::languageThatIsMissingChangesNothing()
{
    Host host;
    QScopedPointer<QTranslator> language(new MarkTranslator("+"));
    QCoreApplication::installTranslator(language.data());
    QTRY_VERIFY(host.button("+Open"));
    QVERIFY(!switchLanguage(&language, "filarix_xx", TRANSLATIONS_DIR));
    QCoreApplication::processEvents();
    QVERIFY(host.button("+Open"));
}

void TestRecipes::windowThatGoesLeavesNothingBehind()
{
    const QList<QWidget *> before = QApplication::allWidgets();
    QToolButton own;
    WMMainWindow *window = newWindowThatGoes(nullptr, 90);
    window->show();
    takeAway(window);
    QVERIFY(!window->isVisible());
    // The window first, then what it lets go.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(QApplication::allWidgets().size(), before.size() + 1);
    QVERIFY(QApplication::allWidgets().contains(&own));
}

/// An alarm that comes up while a program is loaded.
class Alarm : public QObject
{
    Q_OBJECT

public:
    explicit Alarm(WMMainWindow *window) : m_window(window)
    {
        connect(&m_timer, SIGNAL(timeout()), SLOT(ring()));
        m_timer.start(0);
    }

    QPointer<WMMainWindow> m_window;
    bool hasRung = false;

private Q_SLOTS:
    void ring()
    {
        const bool isLoading = m_window && m_window->findChild<WGCodeEditer *>()->blockCount() > 1;
        if (hasRung || !isLoading)
            return;
        hasRung = true;
        takeAway(m_window);
    }

private:
    QTimer m_timer;
};

void TestRecipes::windowIsTakenAwayFromUnderALoad()
{
    WMMainWindow *window = newWindowThatGoes(nullptr, 0);
    Alarm alarm(window);
    window->findChild<WGCodeEditer *>()->readGCode(QString::fromLatin1("G01 X1\n").repeated(9999));
    QVERIFY(alarm.hasRung);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!alarm.m_window);
}

void TestRecipes::manyRowsMakeOnePageOfWidgets()
{
    QStringList titleRow = title();
    TListWidget list(titleRow, nullptr);
    fillRows(&list, taught(100000));
    QCOMPARE(list.count(), 100001);
    QCOMPARE(list.ListWidget::count(), 14);
    QCOMPARE(list.getContent(100000).at(FilarixRows::Num), QString("100000"));
}

FILARIX_TEST_MAIN(TestRecipes)
#include "tst_recipes.moc"
