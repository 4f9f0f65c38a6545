// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "namesakes.h"
#include "screens.h"

#include <QDialog>
#include <QSet>
#include <QTimer>

#include <dlfcn.h>

/// Closes each modal dialog that comes up, and notes its class.
class Closer : public QObject
{
    Q_OBJECT

public:
    Closer()
    {
        connect(&m_timer, SIGNAL(timeout()), SLOT(look()));
        m_timer.start(5);
    }

    QSet<QString> seen;
    QStringList troubles;

private Q_SLOTS:
    void look()
    {
        QDialog *const dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        seen << QLatin1String(dialog->metaObject()->className());
        // It is a Dialog, but not one of ours.
        if (qobject_cast<Dialog *>(dialog) || qobject_cast<FileDialog *>(dialog)
            || qobject_cast<MessageBox *>(dialog) || qobject_cast<ImportManage *>(dialog))
            troubles << QLatin1String(dialog->metaObject()->className());
        dialog->reject();
    }

private:
    QTimer m_timer;
};

/// A program with classes of its own by the names of all that the library exports. What stands in a
/// program comes first wherever a name is looked up; the library has to use its own all the same.
class TestNamesakes : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void theLibraryUsesItsOwnClasses();
    void theProgramUsesItsOwn();
};

void TestNamesakes::theLibraryUsesItsOwnClasses()
{
    StrictMessages::expect(QLatin1String("Parentheses expected, slot ImportManage::slot_checkUSB"));
    programDir();
    // The library came with the program and has looked its names up. The walk is to find those of
    // the library, so it looks there first.
    void *const screens = dlmopen(LM_ID_BASE, FILARIX_SCREENS, RTLD_NOW | RTLD_DEEPBIND);
    QVERIFY2(screens, dlerror());
    typedef void (*Walk)(QStringList *);
    const Walk walk = reinterpret_cast<Walk>(dlsym(screens, "walkScreens"));
    QVERIFY(walk);

    Closer closer;
    QStringList troubles;
    walk(&troubles);
    QCOMPARE(troubles, QStringList());
    QCOMPARE(closer.troubles, QStringList());
    QCOMPARE(Own::uses(), 0);
    static const char *const dialogs[] = {
        "WFileDialog", "WCopyDialog", "ImportManage", "FileDialog", "MessageBox",
        "QDialog", // a keypad
    };
    for (const char *name : dialogs)
        QVERIFY2(closer.seen.contains(QLatin1String(name)), name);
    Q_FOREACH (QWidget *widget, QApplication::topLevelWidgets()) {
        if (widget->inherits("QDialog") && !widget->isVisible())
            allowTopLevel(widget); // the keypads live as long as the program
    }
}

void TestNamesakes::theProgramUsesItsOwn()
{
    {
        Dialog dialog(nullptr);
        MessageBox box(&dialog);
        QVERIFY(!dialog.inherits("QDialog"));
        QCOMPARE(dialog.findChildren<MessageBox *>().size(), 1);
    }
    QCOMPARE(Own::uses(), 4);
}

FILARIX_TEST_MAIN(TestNamesakes)
#include "tst_namesakes.moc"
