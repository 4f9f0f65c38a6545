// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef EDITBUTTONS_H
#define EDITBUTTONS_H

#include "wgcodeediter.h"
#include "wmmainwindow.h"

#include <QTextDocument>
#include <QToolBar>
#include <QToolButton>

//! [edit buttons]
/// Undo and Find at the end of the window's last tool bar.
class EditButtons : public QObject
{
    Q_OBJECT

public:
    explicit EditButtons(WMMainWindow *window)
        : QObject(window), m_document(window->findChild<WGCodeEditer *>()->document())
    {
        WGCodeEditer *editor = window->findChild<WGCodeEditer *>();
        QToolBar *bar = window->findChildren<QToolBar *>().last();
        bar->addSeparator();
        QToolButton *undo = addButton(bar, tr("Undo"), ":/images/restore.png");
        connect(undo, SIGNAL(clicked()), editor, SLOT(undo()));
        connect(editor, SIGNAL(undoAvailable(bool)), undo, SLOT(setEnabled(bool)));
        undo->setEnabled(m_document->isUndoAvailable());
        QToolButton *find = addButton(bar, tr("Find"), ":/images/find.png");
        connect(find, SIGNAL(clicked()), editor, SLOT(findAndReplace()));

        // A long program is appended piece by piece, and each piece could be undone. Opening and
        // storing both leave the document unmodified: that is how far back Undo goes.
        connect(m_document, SIGNAL(modificationChanged(bool)), SLOT(forgetStored(bool)));
    }

private Q_SLOTS:
    void forgetStored(bool isModified)
    {
        if (!isModified)
            m_document->clearUndoRedoStacks();
    }

private:
    static QToolButton *addButton(QToolBar *bar, const QString &text, const char *icon)
    {
        QToolButton *button = new QToolButton(bar);
        button->setText(text);
        button->setIcon(QIcon(QLatin1String(icon)));
        button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        bar->addWidget(button);
        return button;
    }

    QTextDocument *m_document;
};
//! [edit buttons]

#endif // EDITBUTTONS_H
