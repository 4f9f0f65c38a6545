// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "shell/questiondialog.h"

#include "look/look.h"
#include "look/measures.h"
#include "shell/titlestrip.h"

#include <QBoxLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>

#include <algorithm>
#include <numeric>

namespace {

const int textPixels = 17;
const int smallestTextPixels = 12;
// To save a third line the letters become no smaller than that.
const int smallestOfTwoLines = 13;
const int boldFrom = 15;
const int mostLines = 2;
const int keyPixels = 15;
const int margin = 12;
const int gap = 10;
const int keyPadding = 16;
const int widest = 560;

QFont sized(QFont font, int pixels)
{
    font.setPixelSize(pixels);
    font.setBold(pixels >= boldFrom);
    return font;
}

/// A label breaks its lines between words only; the name of a file may be one word of 255 letters.
QString breakable(const QString &text, const QFont &font, int width)
{
    const QFontMetrics metrics(font);
    QStringList words = text.split(QLatin1Char(' '));
    for (QString &word : words) {
        if (metrics.horizontalAdvance(word) <= width)
            continue;
        for (int i = word.size() - 1; i > 0; --i) {
            if (!word.at(i).isLowSurrogate())
                word.insert(i, QChar(0x200b));
        }
    }
    return words.join(QLatin1Char(' '));
}

/// Broken between its words where they have room. Two names may differ at the end alone, so a name
/// that has none loses its middle.
QLabel *makeLine(const QString &thing, int room)
{
    QLabel *line = new QLabel;
    line->setObjectName(QLatin1String("thing"));
    line->setTextFormat(Qt::PlainText);
    const QFontMetrics metrics = line->fontMetrics();
    const QStringList words = thing.split(QLatin1Char(' '));
    const bool isBreakable = std::all_of(words.begin(), words.end(), [&](const QString &word) {
        return metrics.horizontalAdvance(word) <= room;
    });
    line->setWordWrap(isBreakable);
    line->setText(isBreakable ? thing : metrics.elidedText(thing, Qt::ElideMiddle, room));
    return line;
}

int linesOf(const QLabel *text, int width)
{
    const QFontMetrics metrics = text->fontMetrics();
    const QRect needed =
        metrics.boundingRect(QRect(0, 0, width, QWIDGETSIZE_MAX), Qt::TextWordWrap, text->text());
    return needed.height() / metrics.lineSpacing();
}

int keyWidth(const QPushButton *key)
{
    return key->fontMetrics().horizontalAdvance(key->text()) + keyPadding;
}

} // namespace

QuestionDialog::QuestionDialog(const Question &question, QWidget *parent) : Dialog(parent)
{
    setTitle(question.title);
    const QSize panel =
        QGuiApplication::primaryScreen()->availableSize() - QSize(gap, gap + TitleStrip::room());
    const int width = qMin(widest, panel.width());
    QVBoxLayout *column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(gap);
    QLabel *text = new QLabel;
    text->setObjectName(QLatin1String("question"));
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    column->addWidget(text, question.things.isEmpty() ? 1 : 0);
    for (const QString &thing : question.things)
        column->addWidget(makeLine(thing, width - 2 * margin));
    if (!question.things.isEmpty())
        column->addStretch(1);
    column->addLayout(makeKeys(question.answers, width - 2 * margin));
    // The keys are always there; what is read gives way. Two lines are read at a glance.
    for (int pixels = textPixels; pixels >= smallestTextPixels; --pixels) {
        text->setFont(sized(text->font(), pixels));
        text->setText(breakable(question.text, text->font(), width - 2 * margin));
        const int lines = linesOf(text, width - 2 * margin);
        const bool isShort = lines <= mostLines || pixels <= smallestOfTwoLines;
        if (isShort && column->heightForWidth(width) <= panel.height())
            break;
    }
    setFixedWidth(width);
    resize(width, column->heightForWidth(width));
}

QLayout *QuestionDialog::makeKeys(const QStringList &answers, int room)
{
    QBoxLayout *keys = new QBoxLayout(QBoxLayout::LeftToRight);
    keys->setSpacing(gap);
    int widestKey = 0;
    QList<int> widths;
    for (int i = 0; i < answers.size(); ++i) {
        QPushButton *key = new QPushButton(answers.at(i));
        key->setObjectName(QString::fromLatin1("answer%1").arg(i));
        key->setFont(sized(key->font(), keyPixels));
        key->setMinimumHeight(Measures::touch());
        key->setAutoDefault(i == 0);
        key->setDefault(i == 0);
        connect(key, &QPushButton::clicked, this, [this, i] {
            m_answer = i;
            done(i == 0 ? Rejected : Accepted);
        });
        keys->addWidget(key, 1);
        widths.append(keyWidth(key));
        widestKey = qMax(widestKey, keyWidth(key));
    }
    const int forKeys = room - (widths.size() - 1) * gap;
    if (std::accumulate(widths.begin(), widths.end(), 0) > forKeys) {
        keys->setDirection(QBoxLayout::TopToBottom);
    } else if (widths.size() * widestKey > forKeys) {
        // As wide as their words ask for, where they can't be alike.
        for (int i = 0; i < widths.size(); ++i)
            keys->setStretch(i, widths.at(i));
    }
    return keys;
}

int DialogQuestioner::ask(const Question &question)
{
    QuestionDialog dialog(question);
    dialog.exec();
    return dialog.answer();
}
