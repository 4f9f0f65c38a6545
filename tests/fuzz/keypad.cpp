// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "fuzz.h"
#include "hmidevice/gcodekeypad.h"
#include "wgcodeediter.h"
#include "wmmainwindow.h"

#include <QAbstractButton>
#include <QTextBlock>
#include <QTimer>

namespace {

QStringList lines(const QTextDocument &document)
{
    QStringList texts;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        texts << block.text();
    return texts;
}

/// What a text is as lines of a document.
QStringList asLines(const QString &text)
{
    QTextDocument document;
    QTextCursor(&document).insertText(text);
    return lines(document);
}

void press(const QByteArray &presses)
{
    GCodeKeypad *pad = GCodeKeypad::instance();
    const QList<QAbstractButton *> keys = pad->findChildren<QAbstractButton *>();
    for (int i = 0; i < presses.size() && pad->isVisible(); ++i)
        keys.at(uchar(presses.at(i)) % keys.size())->click();
    if (pad->isVisible())
        pad->accept();
}

} // namespace

// A line of a program on the keypad, with keys pressed as they come: it goes back as it was typed,
// and no other line changes.
void Fuzz::tryInput(QByteArray bytes)
{
    static WMMainWindow window(nullptr, 0);
    WGCodeEditer *editor = window.findChild<WGCodeEditer *>();
    const int row = takeNumber(&bytes, 8);
    const QByteArray presses = takePart(&bytes, '\0');
    editor->setPlainText(QString::fromUtf8(bytes));
    editor->setTextCursor(QTextCursor(editor->document()->findBlockByNumber(row)));
    QStringList wanted = lines(*editor->document());
    const int at = editor->textCursor().blockNumber();
    // A soft break makes two lines of a block, of which one goes to the keypad.
    const bool isWhole = editor->curLineText() == wanted.at(at);
    window.setText(QString());
    int accepted = 0;
    QObject::connect(GCodeKeypad::instance(), &QDialog::finished, &window,
                     [&accepted](int result) { accepted = result; });
    QTimer::singleShot(0, &window, [&presses] { press(presses); });
    window.softEditGcode();
    GCodeKeypad::instance()->disconnect(&window);
    if (accepted && isWhole) {
        const bool isLast = at == wanted.size() - 1;
        wanted = wanted.mid(0, at) + asLines(window.text()) + wanted.mid(at + 1);
        if (isLast)
            wanted << QString();
    }
    if (!accepted || isWhole)
        FUZZ_REQUIRE(lines(*editor->document()) == wanted);
}
