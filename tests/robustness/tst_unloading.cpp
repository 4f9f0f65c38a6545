// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "desk.h"
#include "filarixtest.h"
#include "heap.h"

#include <QFile>
#include <QMetaType>
#include <QSettings>
#include <QToolButton>
#include <QVariant>

#include <dlfcn.h>
#include <sys/mman.h>

namespace {

const char library[] = "libFilarixModule.so.1";

bool isLibraryLoaded()
{
    void *const handle = dlopen(library, RTLD_NOW | RTLD_NOLOAD);
    if (handle)
        dlclose(handle);
    return handle != nullptr;
}

/// Where the library is.
char *baseOf(void *desk)
{
    Dl_info info;
    // A symbol of the library that its users may unload the icons by.
    void *const symbol = dlsym(desk, "_Z23qCleanupResources_robotv");
    return symbol && dladdr(symbol, &info) != 0 ? static_cast<char *>(info.dli_fbase) : nullptr;
}

/// The classes of all widgets that there are, but for the toolkit's own of the desktop.
QStringList widgets()
{
    QStringList classes;
    Q_FOREACH (const QWidget *widget, QApplication::allWidgets())
        classes << QLatin1String(widget->metaObject()->className());
    return classes.filter(QRegExp(QLatin1String("^(?!QDesktop)")));
}

/// A toolkit that holds on to something of the library stumbles here.
void useToolkit()
{
    QToolButton button;
    button.setText(QLatin1String("text"));
    button.show();
    QCoreApplication::processEvents();
    QSettings settings;
    settings.allKeys();
    // Types are registered with their functions, and for good.
    for (int type = QMetaType::User; QMetaType::isRegistered(type); ++type)
        QCOMPARE(QVariant(type, nullptr).userType(), type);
}

/// What the handler of messages remembers is no leak of the library's.
qint64 used()
{
    if (!StrictMessages::unexpected().isEmpty())
        return -1;
    StrictMessages::reset();
    StrictMessages::expect(QLatin1String("Parentheses expected, slot ImportManage::slot_checkUSB"));
    return Heap::settled();
}

} // namespace

/// A program that isn't linked with the library loads it, uses it and unloads it, over and over.
class TestUnloading : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void libraryComesAndGoes();

private:
    void comeAndGo(int rounds);

    int m_round = 0;
    char *m_barred = nullptr; ///< where the library was last
};

void TestUnloading::comeAndGo(int rounds)
{
    const long pageSize = 4096;
    for (int i = 0; i < rounds; ++i, ++m_round) {
        QVERIFY(!QFile::exists(QLatin1String(":/images/new.png")));

        void *const desk = dlopen(FILARIX_DESK, RTLD_NOW | RTLD_LOCAL);
        QVERIFY2(desk, dlerror());
        QVERIFY(isLibraryLoaded());
        QVERIFY(QFile::exists(QLatin1String(":/images/new.png")));
        char *const base = baseOf(desk);
        QVERIFY(base);
        // Each time it comes to another place, so that whoever remembers the old one is found out.
        QVERIFY(base != m_barred);
        if (m_barred)
            munmap(m_barred, size_t(pageSize));

        typedef void (*Use)(bool);
        const Use use = reinterpret_cast<Use>(dlsym(desk, "useDesk"));
        QVERIFY(use);
        use(m_round % 5 == 0);
        Heap::settled();
        QCOMPARE(widgets(), QStringList());

        QCOMPARE(dlclose(desk), 0);
        QVERIFY(!isLibraryLoaded());
        QVERIFY(!QFile::exists(QLatin1String(":/images/new.png")));
        m_barred =
            static_cast<char *>(mmap(base, size_t(pageSize), PROT_NONE,
                                     MAP_PRIVATE | MAP_ANONYMOUS | MAP_FIXED_NOREPLACE, -1, 0));
        QVERIFY(m_barred == base);
        useToolkit();
    }
}

void TestUnloading::libraryComesAndGoes()
{
    StrictMessages::expect(QLatin1String("Parentheses expected, slot ImportManage::slot_checkUSB"));
    Heap::keepNoPixmaps();
    TestCompat::keepNoInputContexts();
    const int rounds = scaled(100, 10);
    const int limit = qMin(1024, 16 * rounds); // not even the smallest block in each round
    QVERIFY(!isLibraryLoaded());
    comeAndGo(rounds);
    // What stays behind does so in each try, while the toolkit's caches fill now and then.
    const int tries = 4;
    qint64 least = limit;
    for (int i = 0; i < tries && least >= limit && !QTest::currentTestFailed(); ++i) {
        const qint64 before = used();
        comeAndGo(rounds);
        least = qMin(least, used() - before);
        // With each function that the library has called at the exit the sanitizer's runtime has
        // one of its own called, and those never go.
        if (isSanitized())
            return;
    }
    QVERIFY2(least < limit, qPrintable(QString::fromLatin1("%1 bytes").arg(least)));
}

FILARIX_TEST_MAIN(TestUnloading)
#include "tst_unloading.moc"
