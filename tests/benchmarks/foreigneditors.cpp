// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "foreigneditors.h"

#include "subjects.h"

#include <QAction>
#include <QScopedPointer>

#include <KTextEditor/Document>
#include <KTextEditor/Editor>
#include <KTextEditor/View>

// Its headers are written with the keywords that ours do without.
#define signals Q_SIGNALS
#define slots Q_SLOTS
#include <Qsci/qscilexercustom.h>
#include <Qsci/qsciscintilla.h>
#undef signals
#undef slots

namespace {

/// Colours words by their first letter, from the text as the widget hands it out.
class GCodeLexer : public QsciLexerCustom
{
public:
    explicit GCodeLexer(QsciScintilla *editor) : QsciLexerCustom(editor) {}

    const char *language() const override { return "G-code"; }
    QString description(int style) const override
    {
        return style <= lastStyle ? QString::number(style) : QString();
    }
    QColor defaultColor(int style) const override
    {
        static const Qt::GlobalColor colours[] = {Qt::black,       Qt::darkGreen, Qt::darkCyan,
                                                  Qt::darkMagenta, Qt::blue,      Qt::darkYellow};
        return colours[style <= lastStyle ? style : 0];
    }
    void styleText(int start, int end) override
    {
        const QString text = editor()->text(start, end);
        startStyling(start);
        int at = 0;
        while (at < text.size()) {
            const int style = styleOf(text.at(at));
            int behind = at + 1;
            while (behind < text.size()
                   && (style ? isNumber(text.at(behind)) : !styleOf(text.at(behind))))
                ++behind;
            setStyling(behind - at, style);
            at = behind;
        }
    }

private:
    enum { lastStyle = 5 };

    static bool isNumber(QChar c)
    {
        return c.isDigit() || c == QLatin1Char('-') || c == QLatin1Char('.');
    }
    static int styleOf(QChar c)
    {
        switch (c.unicode()) {
        case 'G':
            return 1;
        case 'M':
            return 2;
        case 'X':
        case ',':
        case 'Y':
        case 'Z':
        case 'U':
        case 'V':
        case 'W':
        case 'I':
        case 'J':
        case 'K':
            return 3;
        case 'F':
        case 'S':
            return 4;
        case 'T':
            return lastStyle;
        default:
            return 0;
        }
    }
};

class ScintillaSubject : public EditorSubject
{
public:
    ScintillaSubject()
    {
        m_editor.setUtf8(true);
        m_editor.setLexer(new GCodeLexer(&m_editor));
        m_editor.setMarginType(0, QsciScintilla::NumberMargin);
        m_editor.setMarginWidth(0, QLatin1String("99999999"));
        m_editor.setCaretLineVisible(true);
    }

    QWidget *widget() override { return &m_editor; }
    void load(QString text) override { m_editor.setText(text); }
    void type(QChar character) override { m_editor.insert(character); }
    void insertLine(const QString &text) override
    {
        m_editor.insertAt(text + QLatin1Char('\n'), line() + 1, 0);
    }
    void deleteLine() override { m_editor.SendScintilla(QsciScintilla::SCI_LINEDELETE); }
    void gotoLine(int line) override
    {
        m_editor.setCursorPosition(line - 1, 0);
        m_editor.ensureLineVisible(line - 1);
    }
    void pageDown() override { m_editor.SendScintilla(QsciScintilla::SCI_PAGEDOWN); }

private:
    int line() const
    {
        int line = 0;
        int column = 0;
        m_editor.getCursorPosition(&line, &column);
        return line;
    }

    QsciScintilla m_editor;
};

class KateSubject : public EditorSubject
{
public:
    KateSubject()
        : m_document(KTextEditor::Editor::instance()->createDocument(nullptr))
        , m_view(m_document->createView(nullptr))
    {
        Q_FOREACH (const QString &mode, m_document->highlightingModes()) {
            if (mode.contains(QLatin1String("G-Code")))
                m_document->setHighlightingMode(mode);
        }
    }

    QWidget *widget() override { return m_view; }
    void load(QString text) override { m_document->setText(text); }
    void type(QChar character) override { m_view->insertText(character); }
    void insertLine(const QString &text) override
    {
        m_document->insertLine(m_view->cursorPosition().line() + 1, text);
    }
    void deleteLine() override { m_document->removeLine(m_view->cursorPosition().line()); }
    void gotoLine(int line) override
    {
        m_view->setCursorPosition(KTextEditor::Cursor(line - 1, 0));
    }
    void pageDown() override
    {
        // The key is a shortcut of the view's.
        m_view->action("scroll_page_down")->trigger();
    }

private:
    QScopedPointer<KTextEditor::Document> m_document;
    KTextEditor::View *m_view; // the document owns it
};

} // namespace

QStringList foreignEditors()
{
    return QStringList() << QLatin1String(Subjects::scintilla) << QLatin1String(Subjects::kate);
}

EditorSubject *newForeignEditor(const QString &name)
{
    if (name == QLatin1String(Subjects::scintilla))
        return new ScintillaSubject;
    return new KateSubject;
}
