// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/downloadquestion.h"

#include "filarixpanel.h"
#include "look/look.h"
#include "look/measures.h"

#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>

namespace {

const int valuePixels = 24;
const int smallestPixels = 14;
const int titlePixels = 17;
const int margin = 14;
const int gap = 14;
const QSize roomy(520, 280);

QFont sized(QFont font, int pixels)
{
    font.setPixelSize(pixels);
    font.setBold(true);
    return font;
}

/// As large as the text has room for. Two names may differ at the end alone, so what does not fit
/// at all loses its middle. Of two numbers neither may: they take a second line.
void showValue(QLabel *label, const QString &text, int room, bool mayBreak)
{
    int pixels = valuePixels;
    while (pixels > smallestPixels
           && QFontMetrics(sized(label->font(), pixels)).horizontalAdvance(text) > room)
        --pixels;
    label->setFont(sized(label->font(), pixels));
    label->setWordWrap(mayBreak);
    label->setText(mayBreak ? text
                            : QFontMetrics(label->font()).elidedText(text, Qt::ElideMiddle, room));
}

} // namespace

DownloadQuestion::DownloadQuestion(const Question &question, QWidget *parent) : Dialog(parent)
{
    setTitle(question.title);
    QGridLayout *grid = new QGridLayout(this);
    grid->setContentsMargins(margin, margin, margin, margin);
    grid->setHorizontalSpacing(gap);
    QLabel *heading = new QLabel(question.text);
    heading->setFont(sized(heading->font(), titlePixels));
    heading->setWordWrap(true);
    grid->addWidget(heading, 0, 0, 1, 2);

    const QSize panel = QGuiApplication::primaryScreen()->availableSize();
    const QSize size = roomy.boundedTo(panel - QSize(8, 8));
    // A narrow panel has the values below their headings.
    const bool isNarrow = panel.width() < FilarixPanel::smallBelow;
    int room = size.width() - 2 * margin - gap;
    for (const QuestionFact &fact : question.facts) {
        if (!isNarrow)
            room = qMin(room, size.width() - 2 * margin - gap
                                  - fontMetrics().horizontalAdvance(fact.heading) - 4);
    }
    for (const QuestionFact &fact : question.facts) {
        const int row = grid->rowCount();
        QLabel *value = new QLabel;
        value->setObjectName(fact.key);
        value->setTextFormat(Qt::PlainText);
        showValue(value, fact.value, room, fact.mayBreak);
        grid->addWidget(new QLabel(fact.heading), row, 0);
        if (isNarrow)
            grid->addWidget(value, row + 1, 0, 1, 2);
        else
            grid->addWidget(value, row, 1);
    }
    grid->setColumnStretch(1, 1);

    // What must not be sent has no second answer: the key stays where it is, and is off.
    QPushButton *send = new QPushButton(question.answers.value(1, tr("Send")));
    send->setObjectName(QLatin1String("send"));
    send->setEnabled(question.answers.size() > 1);
    QPushButton *cancel = new QPushButton(question.answers.at(0));
    cancel->setObjectName(QLatin1String("cancel"));
    // A press on Return that was meant for something else must not move the machine.
    send->setAutoDefault(false);
    cancel->setDefault(true);
    QHBoxLayout *keys = new QHBoxLayout;
    keys->setSpacing(gap);
    for (QPushButton *key : {cancel, send}) {
        key->setFont(sized(key->font(), titlePixels));
        key->setMinimumHeight(Measures::touch() + 8);
        keys->addWidget(key, 1);
    }
    grid->setRowStretch(grid->rowCount(), 1);
    grid->addLayout(keys, grid->rowCount(), 0, 1, 2);
    connect(send, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

    const int height = qMax(size.height(), grid->heightForWidth(size.width()));
    resize(size.width(), qMin(height, panel.height() - 8));
}

int DownloadQuestioner::ask(const Question &question)
{
    if (question.facts.isEmpty())
        return DialogQuestioner::ask(question);
    DownloadQuestion dialog(question);
    return dialog.exec() == QDialog::Accepted ? 1 : 0;
}
