// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef OPENWINDOW_H
#define OPENWINDOW_H

// For tests built with NO_ACCESS_CONTROL.

#include "wfiledialog.h"
#include "wgcodeediter.h"
#include "wmmainwindow.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolBar>
#include <QToolButton>

/// A window that takes the buttons along which no bar holds and which otherwise outlive it.
class OpenWindow : public WMMainWindow
{
public:
    explicit OpenWindow(int rotation = 0, QWidget *parent = nullptr)
        : WMMainWindow(parent, rotation)
    {}
    ~OpenWindow() override { qDeleteAll(unplacedButtons()); }

    QList<QToolButton *> unplacedButtons() const
    {
        return QList<QToolButton *>()
               << m_preproccessBtn << m_morphologyBtn << m_syntaxBtn << m_compileBtn << m_showBtn
               << m_playOrPauseBtn << m_stopBtn << m_findBtn;
    }

    /// The document as the operator would have made it by typing \a text.
    void type(const QString &text)
    {
        m_editor->selectAll();
        m_editor->insertPlainText(text);
    }
    QString documentText() const { return m_editor->document()->toPlainText(); }
    bool isDocumentModified() const { return m_editor->document()->isModified(); }
};

#endif // OPENWINDOW_H
