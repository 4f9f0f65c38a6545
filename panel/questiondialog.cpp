// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "questiondialog.h"

#include "look.h"

#include <QBoxLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>

namespace {

const int textPixels = 17;
const int keyPixels = 15;
const int margin = 12;
const int gap = 10;
const int keyPadding = 16;
const int widest = 560;

QFont sized(QFont font, int pixels)
{
    font.setPixelSize(pixels);
    font.setBold(true);
    return font;
}

} // namespace

QuestionDialog::QuestionDialog(const Question &question, QWidget *parent) : Dialog(parent)
{
    setTitle(question.title);
    const int width = qMin(widest, QGuiApplication::primaryScreen()->availableSize().width() - gap);
    QVBoxLayout *column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(gap);
    QLabel *text = new QLabel(question.text);
    text->setObjectName(QLatin1String("question"));
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    text->setFont(sized(text->font(), textPixels));
    column->addWidget(text, 1);

    QBoxLayout *keys = new QBoxLayout(QBoxLayout::LeftToRight);
    keys->setSpacing(gap);
    int widestKey = 0;
    for (int i = 0; i < question.answers.size(); ++i) {
        QPushButton *key = new QPushButton(question.answers.at(i));
        key->setObjectName(QString::fromLatin1("answer%1").arg(i));
        key->setFont(sized(key->font(), keyPixels));
        key->setMinimumHeight(Look::kTouch);
        key->setAutoDefault(i == 0);
        key->setDefault(i == 0);
        connect(key, &QPushButton::clicked, this, [this, i] {
            m_answer = i;
            done(i == 0 ? Rejected : Accepted);
        });
        keys->addWidget(key, 1);
        widestKey =
            qMax(widestKey, QFontMetrics(key->font()).horizontalAdvance(key->text()) + keyPadding);
    }
    const int count = question.answers.size();
    if (count * widestKey + (count - 1) * gap > width - 2 * margin)
        keys->setDirection(QBoxLayout::TopToBottom);
    column->addLayout(keys);
    setFixedWidth(width);
    resize(width, column->heightForWidth(width));
}

int DialogQuestioner::ask(const Question &question)
{
    QuestionDialog dialog(question);
    dialog.exec();
    return dialog.answer();
}
