// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "subjects.h"

#include "contest.h"
#include "foreigneditors.h"
#include "plaineditor.h"
#include "waqp.h"
#include "wgcodeediter.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTextBlock>

namespace {

void press(QWidget *widget, int key, const QString &text = QString())
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(widget, &press);
}

class ShippedEditor : public EditorSubject
{
public:
    ShippedEditor() : m_editor(nullptr) {}

    QWidget *widget() override { return &m_editor; }
    void load(QString text) override { m_editor.readGCode(std::move(text)); }
    void type(QChar character) override { press(&m_editor, Qt::Key_X, character); }
    void insertLine(const QString &text) override { m_editor.insertLine(text); }
    void deleteLine() override { m_editor.deleteLine(); }
    void gotoLine(int line) override { m_editor.gotoLine(line); }
    void pageDown() override { press(&m_editor, Qt::Key_PageDown); }
    void rehighlight() override
    {
        m_editor.addErrorCode(0, QLatin1String("x"));
        m_editor.highlightErrorCode();
    }

private:
    WGCodeEditer m_editor;
};

class PlainSubject : public EditorSubject
{
public:
    PlainSubject() : m_editor(nullptr) {}

    QWidget *widget() override { return &m_editor; }
    void load(QString text) override { m_editor.readGCode(std::move(text)); }
    void type(QChar character) override { press(&m_editor, Qt::Key_X, character); }
    void insertLine(const QString &text) override { m_editor.insertLine(text); }
    void deleteLine() override { m_editor.deleteLine(); }
    void gotoLine(int line) override { m_editor.gotoLine(line); }
    void pageDown() override { press(&m_editor, Qt::Key_PageDown); }
    void rehighlight() override { m_editor.rehighlight(); }

private:
    PlainEditor m_editor;
};

class FloorSubject : public EditorSubject
{
public:
    FloorSubject()
    {
        m_editor.setLineWrapMode(QPlainTextEdit::NoWrap);
        m_editor.setFont(WAQP::setFont(QLatin1String("Arial"), 15, true));
    }

    QWidget *widget() override { return &m_editor; }
    void load(QString text) override { m_editor.setPlainText(text); }
    void type(QChar character) override { press(&m_editor, Qt::Key_X, character); }
    void insertLine(const QString &text) override
    {
        QTextCursor cursor = m_editor.textCursor();
        cursor.movePosition(QTextCursor::EndOfBlock);
        cursor.insertText(QLatin1Char('\n') + text);
    }
    void deleteLine() override
    {
        QTextCursor cursor = m_editor.textCursor();
        cursor.select(QTextCursor::BlockUnderCursor);
        cursor.removeSelectedText();
    }
    void gotoLine(int line) override
    {
        m_editor.setTextCursor(QTextCursor(m_editor.document()->findBlockByNumber(line - 1)));
    }
    void pageDown() override { press(&m_editor, Qt::Key_PageDown); }

private:
    QPlainTextEdit m_editor;
};

} // namespace

QStringList Subjects::editors()
{
    return QStringList() << QLatin1String(shipped) << QLatin1String(plain) << QLatin1String(floor)
                         << foreignEditors();
}

QSharedPointer<EditorSubject> Subjects::showEditor(const QString &name)
{
    QSharedPointer<EditorSubject> subject;
    if (name == QLatin1String(shipped))
        subject.reset(new ShippedEditor);
    else if (name == QLatin1String(plain))
        subject.reset(new PlainSubject);
    else if (name == QLatin1String(floor))
        subject.reset(new FloorSubject);
    else
        subject.reset(newForeignEditor(name));
    subject->widget()->resize(800, 480);
    subject->widget()->show();
    settle();
    return subject;
}
