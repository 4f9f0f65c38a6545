// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef MANAGERFIXTURE_H
#define MANAGERFIXTURE_H

#include "filarixtest.h"
#include "importmanage.h"

#include <QDir>
#include <QDirModel>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QListView>
#include <QPushButton>

/// What the tests of the import manager share: a stick to plug and pull, and the manager's parts.
class ManagerTest : public FilarixTest
{
    Q_OBJECT

public:
    static QString stickDir() { return QLatin1String("/mnt/Storage"); }
    static QString marker() { return QLatin1String("/tmp/udiskattach"); }

    static void plugStick()
    {
        QDir().mkpath(stickDir());
        writeFile(marker(), "");
    }

    static void pullStick()
    {
        QFile::remove(marker());
        emptyFolder(stickDir());
        QDir().rmdir(stickDir());
    }

    /// A file of \a bytes that takes no room.
    static void writeSparse(const QString &path, qint64 bytes)
    {
        writeFile(path, QByteArray());
        if (!QFile::resize(path, bytes))
            qWarning("cannot resize %s", qPrintable(path));
    }

protected Q_SLOTS:
    void init()
    {
        FilarixTest::init();
        // The manager asks for a slot that the toolkit refuses.
        StrictMessages::expect(
            QLatin1String("Parentheses expected, slot ImportManage::slot_checkUSB"));
        QFile::remove(marker());
        QDir().mkpath(stickDir());
        emptyFolder(stickDir());
    }
    void cleanup() { FilarixTest::cleanup(); }
};

/// A manager and its parts, found as the operator sees them.
struct Manager
{
    explicit Manager(bool ready = true) : dialog(nullptr)
    {
        const QList<QListView *> views = dialog.findChildren<QListView *>();
        hmiView = views.value(0);
        usbView = views.value(1);
        const QList<QLabel *> labels = dialog.findChildren<QLabel *>();
        status = labels.value(labels.size() - 1);
        if (ready)
            dialog.init();
    }

    QPushButton *button(const char *text) const
    {
        Q_FOREACH (QPushButton *candidate, dialog.findChildren<QPushButton *>()) {
            if (candidate->text() == QLatin1String(text))
                return candidate;
        }
        return nullptr;
    }

    static QDirModel *model(const QListView *view)
    {
        return static_cast<QDirModel *>(view->model());
    }

    /// The names that a panel shows.
    static QStringList shown(const QListView *view)
    {
        QStringList names;
        for (int row = 0; row < view->model()->rowCount(view->rootIndex()); ++row)
            names << view->model()->index(row, 0, view->rootIndex()).data().toString();
        return names;
    }

    /// Touches a line of a panel; whether there is one of that name.
    static bool select(QListView *view, const QString &name)
    {
        for (int row = 0; row < view->model()->rowCount(view->rootIndex()); ++row) {
            const QModelIndex index = view->model()->index(row, 0, view->rootIndex());
            if (index.data().toString() == name) {
                view->setCurrentIndex(index);
                return true;
            }
        }
        return false;
    }

    ImportManage dialog;
    QListView *hmiView;
    QListView *usbView;
    QLabel *status;
};

#endif // MANAGERFIXTURE_H
