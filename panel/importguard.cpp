// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "importguard.h"

#include "importmanage.h"
#include "sticknames.h"

#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QRegExp>

namespace {

// As many as a message box on the smallest panel has lines for.
const int kNamesShown = 3;
// The library's text; not written into tr(), which would have it translated once more for us.
const char kManagerQuit[] = "Quit";

QPushButton *defaultButton(const QWidget *manager)
{
    const QList<QPushButton *> buttons = manager->findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button->isDefault())
            return button;
    }
    return nullptr;
}

/// The button that an event of one of the manager's widgets presses, if any: Return presses one
/// from wherever it is, and Escape and the arrows press none.
QPushButton *pressedButton(QWidget *widget, const QEvent *event)
{
    QPushButton *button = qobject_cast<QPushButton *>(widget);
    if (event->type() != QEvent::KeyPress)
        return button;
    switch (static_cast<const QKeyEvent *>(event)->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return button ? button : defaultButton(widget->window());
    case Qt::Key_Space:
    case Qt::Key_Select:
        return button;
    default:
        return nullptr;
    }
}

bool isPress(QEvent::Type type)
{
    return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick
           || type == QEvent::KeyPress || type == QEvent::Shortcut;
}

QString proposalFor(const QFileInfo &file)
{
    const QStringList taken = file.dir().entryList(QDir::AllEntries | QDir::Hidden | QDir::System);
    return StickNames::proposal(file.fileName(), taken);
}

QString question(const QStringList &files)
{
    QStringList lines;
    for (const QString &path : files.mid(0, kNamesShown)) {
        const QFileInfo file(path);
        // A name may hold anything, line ends too.
        QString name = file.fileName().simplified();
        if (name.size() > 24)
            name = name.left(21) + QLatin1String("...");
        lines.append(name + QString::fromUtf8(" \u2192 ") + proposalFor(file));
    }
    if (files.size() > kNamesShown)
        lines.append(ImportGuard::tr("and %1 more").arg(files.size() - kNamesShown));
    return ImportGuard::tr("The transfer would not take these file names for what they are. "
                           "Rename?")
           + QLatin1String("\n\n") + lines.join(QLatin1Char('\n'));
}

} // namespace

ImportGuard::ImportGuard(const QString &programDir, const QString &stickDir, QObject *parent)
    : QObject(parent), m_programDir(programDir), m_stickDir(stickDir)
{
    qApp->installEventFilter(this);
}

QStringList ImportGuard::unsafeFiles() const
{
    QStringList files;
    for (const QString &folder : {m_programDir, m_stickDir}) {
        const QStringList names = StickNames::unsafeIn(folder);
        for (const QString &name : names)
            files.append(folder + QLatin1Char('/') + name);
    }
    return files;
}

bool ImportGuard::settle()
{
    const QStringList files = unsafeFiles();
    if (files.isEmpty())
        return true;
    QMessageBox box(QMessageBox::Warning, tr("File names"), question(files),
                    QMessageBox::Yes | QMessageBox::No, QApplication::activeModalWidget());
    box.setTextFormat(Qt::PlainText);
    if (box.exec() != QMessageBox::Yes) {
        Q_EMIT told(tr("Not renamed. Import and export stay closed until the names are safe."),
                    false);
        return false;
    }
    const int failed = renameAll(files);
    if (failed > 0)
        Q_EMIT told(
            tr("Files that could not be renamed: %1. Is the stick write-protected?").arg(failed),
            false);
    else
        Q_EMIT told(tr("Files renamed: %1.").arg(files.size()), true);
    return unsafeFiles().isEmpty();
}

// The path of the program directory becomes part of the command lines as it is, too.
bool ImportGuard::isProgramDirSafe() const
{
    return QRegExp(QLatin1String("[A-Za-z0-9_./+-]+")).exactMatch(m_programDir);
}

bool ImportGuard::eventFilter(QObject *watched, QEvent *event)
{
    if (!isPress(event->type()))
        return false;
    QWidget *widget = qobject_cast<QWidget *>(watched);
    ImportManage *manager = widget ? qobject_cast<ImportManage *>(widget->window()) : nullptr;
    const QPushButton *button = manager ? pressedButton(widget, event) : nullptr;
    if (!button || button->text() == ImportManage::tr(kManagerQuit))
        return false;
    if (!isProgramDirSafe()) {
        Q_EMIT told(tr("No transfer: the path %1 holds characters that the transfer would not take "
                       "for what they are.")
                        .arg(m_programDir),
                    false);
        return true;
    }
    if (!unsafeFiles().isEmpty()) {
        settle();
        manager->init();
        return true;
    }
    if (choosesUnsafeName(manager)) {
        manager->init();
        return true;
    }
    return false;
}

bool ImportGuard::choosesUnsafeName(const ImportManage *manager) const
{
    const QList<QListView *> views = manager->findChildren<QListView *>();
    for (const QListView *view : views) {
        const QModelIndex chosen = view->currentIndex();
        if (chosen.isValid() && !StickNames::isSafe(chosen.data().toString()))
            return true;
    }
    return false;
}

int ImportGuard::renameAll(const QStringList &files)
{
    int failed = 0;
    for (const QString &path : files) {
        const QFileInfo file(path);
        if (!StickNames::rename(file.path(), file.fileName(), proposalFor(file)))
            ++failed;
    }
    return failed;
}
