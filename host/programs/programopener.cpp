// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "programs/programopener.h"

#include "base/hostcompat.h"
#include "compat.h"
#include "programs/programdirectory.h"
#include "wgcodeediter.h"
#include "wmmainwindow.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QEventLoop>
#include <QFileInfo>
#include <QLineEdit>
#include <QPointer>
#include <QProgressDialog>
#include <QPushButton>
#include <QTextDocument>
#include <QToolButton>

#include <algorithm>

namespace {

// The library's class and text; not written into tr(), which would have it translated once more.
const char dialogClass[] = "WFileDialog";
const char applyText[] = "OK";
const char openToolTip[] = "Open G File!";
const int lookMs = 10;
const int enoughQuiet = 5;

QPushButton *applyButton(const QDialog *dialog)
{
    const QList<QPushButton *> buttons = dialog->findChildren<QPushButton *>();
    const auto isApply = [](const QPushButton *button) {
        return button->text() == QCoreApplication::translate(dialogClass, applyText);
    };
    const auto found = std::find_if(buttons.begin(), buttons.end(), isApply);
    return found == buttons.end() ? nullptr : *found;
}

void answer(QDialog *dialog, const QString &name)
{
    QLineEdit *field = dialog->findChild<QLineEdit *>();
    QPushButton *apply = applyButton(dialog);
    if (!field || !apply)
        return dialog->reject();
    field->setText(name);
    apply->click();
}

QToolButton *openButton(const WMMainWindow *window)
{
    const QList<QToolButton *> buttons = window->findChildren<QToolButton *>();
    const auto isOpen = [](const QToolButton *button) {
        return button->toolTip() == QLatin1String(openToolTip);
    };
    return *std::find_if(buttons.begin(), buttons.end(), isOpen);
}

int commonStart(const QString &a, const QString &b)
{
    const int most = qMin(a.size(), b.size());
    const int same = int(std::mismatch(a.begin(), a.begin() + most, b.begin()).first - a.begin());
    // Two halves of one character stay together.
    return same > 0 && a.at(same - 1).isHighSurrogate() ? same - 1 : same;
}

int commonEnd(const QString &a, const QString &b, int start)
{
    const int most = qMin(a.size(), b.size()) - start;
    int same = 0;
    while (same < most && a.at(a.size() - same - 1) == b.at(b.size() - same - 1))
        ++same;
    return same > 0 && a.at(a.size() - same).isLowSurrogate() ? same - 1 : same;
}

/// Runs the event loop until nothing was in hand for a moment.
class QuietLoop : public QEventLoop
{
public:
    explicit QuietLoop(const std::function<bool()> &isBusy) : m_isBusy(isBusy) {}

    void wait()
    {
        startTimer(lookMs);
        exec();
    }

protected:
    void timerEvent(QTimerEvent *) override
    {
        m_quiet = m_isBusy() ? 0 : m_quiet + 1;
        if (m_quiet == enoughQuiet)
            quit();
    }

private:
    const std::function<bool()> m_isBusy;
    int m_quiet = 0;
};

} // namespace

ProgramOpener::ProgramOpener(WMMainWindow *window, const std::function<bool()> &isBusy,
                             QObject *parent)
    : QObject(parent)
    , m_window(window)
    , m_isBusy(isBusy)
    , m_editor(window->findChild<WGCodeEditer *>())
{}

bool ProgramOpener::open(const QString &path)
{
    const QFileInfo file(path);
    if (!m_window || file.path() != ProgramDirectory::path() || file.fileName().isEmpty())
        return false;
    const bool isOpen = m_window->getCurrentFile() == path;
    if (isOpen && !isModified())
        return true;
    m_name = file.fileName();
    const QPointer<ProgramOpener> self(this);
    qApp->installEventFilter(this);
    // On a small panel the bar may show other buttons just now, and those that it hides are off.
    const QPointer<QToolButton> button(openButton(m_window));
    const bool wasEnabled = button->isEnabled();
    button->setEnabled(true);
    button->click();
    if (self)
        waitForEnd();
    if (button)
        button->setEnabled(wasEnabled);
    if (!self)
        return false;
    qApp->removeEventFilter(this);
    m_name.clear();
    if (!m_window || !m_editor)
        return false;
    // With changes, whoever was asked about them has said no.
    if (m_window->getCurrentFile() != path || isModified())
        return false;
    // The pieces in which a long program came are no steps of the operator's.
    m_editor->document()->clearUndoRedoStacks();
    return true;
}

bool ProgramOpener::isModified() const
{
    return m_editor->document()->isModified();
}

/// The library shows no other such dialog, and it is there before it is seen.
bool ProgramOpener::isLoading()
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    return std::any_of(widgets.begin(), widgets.end(),
                       [](QWidget *widget) { return qobject_cast<QProgressDialog *>(widget); });
}

bool ProgramOpener::isBusy() const
{
    return QApplication::activeModalWidget() || (m_isBusy && m_isBusy());
}

/// A host may hold the press for a while, and compare afterwards what came of it.
void ProgramOpener::waitForEnd()
{
    const QPointer<ProgramOpener> self(this);
    QuietLoop([self] { return self && self->isBusy(); }).wait();
}

/// What the text and the document have in common stays, so that a long program costs no more than
/// its changes.
void ProgramOpener::put(const QString &text, int cursor)
{
    QTextDocument *document = m_editor->document();
    const QString old =
        Compat::rawText(document).replace(QChar(QChar::ParagraphSeparator), QLatin1Char('\n'));
    if (old != text) {
        const int start = commonStart(old, text);
        const int end = commonEnd(old, text, start);
        QTextCursor edit(document);
        edit.setPosition(start);
        edit.setPosition(old.size() - end, QTextCursor::KeepAnchor);
        edit.insertText(text.mid(start, text.size() - end - start));
    }
    QTextCursor place(document);
    place.setPosition(qBound(0, cursor, document->characterCount() - 1));
    m_editor->setTextCursor(place);
}

bool ProgramOpener::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Show || m_name.isEmpty())
        return false;
    QDialog *dialog = qobject_cast<QDialog *>(watched);
    if (!dialog || !dialog->inherits(dialogClass))
        return false;
    // The dialog has to be open before it can be answered.
    dialog->setAttribute(Qt::WA_DontShowOnScreen);
    const QPointer<QDialog> shown(dialog);
    const QString name = m_name;
    m_name.clear();
    HostCompat::callLater(dialog, [shown, name] { answer(shown, name); });
    return false;
}
