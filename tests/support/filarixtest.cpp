// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"

#include "postedevents.h"
#include "testcompat.h"

#include <QDir>
#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QToolButton>

#include <cstdio>

namespace {

/// The window's buttons that are on no bar outlive it, for a host to place; no test does.
void deleteUnplacedButtons()
{
    Q_FOREACH (QWidget *widget, QApplication::allWidgets()) {
        if (widget->inherits("WMMainWindow"))
            return; // it still knows them
    }
    Q_FOREACH (QWidget *widget, QApplication::topLevelWidgets()) {
        if (widget->isHidden() && qobject_cast<QToolButton *>(widget))
            delete widget;
    }
}

/// The companion's threads for files, by the name that the system knows them by.
int fileThreads()
{
    int count = 0;
    const QDir tasks(QLatin1String("/proc/self/task"));
    Q_FOREACH (const QString &task, tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        count += FilarixTest::readFile(tasks.filePath(task) + QLatin1String("/comm"))
                 == "Filarix files\n";
    return count;
}

} // namespace

QString FilarixTest::home()
{
    return QString::fromLocal8Bit(qgetenv("HOME"));
}

QString FilarixTest::programDir()
{
    const QString path = home() + QLatin1String("/cnc");
    QDir().mkpath(path);
    return path;
}

void FilarixTest::writeFile(const QString &path, const QByteArray &bytes)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qWarning("cannot write %s", qPrintable(path));
}

QByteArray FilarixTest::readFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray();
    const QByteArray bytes = file.readAll();
    return bytes.isNull() ? QByteArray("") : bytes;
}

void FilarixTest::emptyFolder(const QString &path)
{
    QDir folder(path);
    Q_FOREACH (const QFileInfo &entry,
               folder.entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::System
                                    | QDir::NoDotAndDotDot)) {
        if (entry.isDir() && !entry.isSymLink()) {
            emptyFolder(entry.absoluteFilePath());
            folder.rmdir(entry.fileName());
        } else {
            folder.remove(entry.fileName());
        }
    }
}

int FilarixTest::scaled(int full, int least)
{
    return qMax(full / FILARIX_TEST_SCALE, least);
}

bool FilarixTest::isLongRun()
{
    return qgetenv("FILARIX_TEST_LONG") == "1";
}

int FilarixTest::patience(int milliseconds)
{
    return milliseconds * FILARIX_TEST_SCALE;
}

bool FilarixTest::isSanitized()
{
#if defined(__SANITIZE_ADDRESS__)
    return true;
#else
    return false;
#endif
}

void FilarixTest::allowTopLevel(QWidget *widget)
{
    m_allowed.append(widget);
}

// Hidden, it is a leak that the leak sanitizer does not see: the toolkit's style sheets hold on to
// it. The keypads, dialogs without a class name of their own, stay for good.
bool FilarixTest::isLost(const QWidget *widget) const
{
    return !widget->parent() && !m_before.contains(const_cast<QWidget *>(widget))
           && qstrcmp(widget->metaObject()->className(), "QDialog") != 0;
}

void FilarixTest::init()
{
    // What a disk that hung has let go would go on in this test's home.
    QVERIFY2(TestCompat::waitFor([] { return fileThreads() == 0; }, patience(5000)),
             "a thread of an earlier test still works");
    emptyFolder(home());
    StrictMessages::install();
    StrictMessages::reset();
    m_before = QApplication::topLevelWidgets();
}

void FilarixTest::cleanup()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    deleteUnplacedButtons();
    QStringList stray;
    Q_FOREACH (QWidget *widget, QApplication::topLevelWidgets()) {
        // Not by isVisible(): on X11 the older toolkit takes a window for visible for ever when it
        // was hidden before the server had mapped it.
        if (!m_allowed.contains(widget) && (!widget->isHidden() || isLost(widget)))
            stray.append(QLatin1String(widget->metaObject()->className()));
    }
    QVERIFY2(stray.isEmpty(),
             qPrintable(QLatin1String("left behind: ") + stray.join(QLatin1String(", "))));
    const QStringList unexpected = StrictMessages::unexpected();
    QVERIFY2(unexpected.isEmpty(), qPrintable(QLatin1String("unexpected warnings: ")
                                              + unexpected.join(QLatin1String(" | "))));
}

int filarixTestMain(QObject *test, int argc, char **argv)
{
    if (qgetenv("FILARIX_SANDBOX").isEmpty()) {
        std::fprintf(stderr, "This test writes to a home and to fixed paths: run it with ctest, or "
                             "through tests/support/sandbox.sh.\n");
        return 98;
    }
    TestCompat::paintWithoutViewers();
    const int result = QTest::qExec(test, argc, argv);
    deleteUnplacedButtons(); // of a window that was the test object's own
    forgetPostedEvents(test);
    return result;
}
