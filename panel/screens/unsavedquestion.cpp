// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/unsavedquestion.h"

#include "filarixpanel.h"
#include "look/look.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

namespace {

const int headingPixels = 17;
const int margin = 12;
const int gap = 8;
const QSize roomy(560, 280);

QLabel *makeLabel(const QString &text, int pixels)
{
    QLabel *label = new QLabel(text);
    QFont font = label->font();
    font.setPixelSize(pixels);
    font.setBold(true);
    label->setFont(font);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

// Broken between its words where they have room. Two names may differ at the end alone, so a name
// that has none loses its middle.
void showWork(QLabel *line, const QString &work, int room)
{
    const QFontMetrics metrics = line->fontMetrics();
    const QStringList words = work.split(QLatin1Char(' '));
    const bool isBreakable = std::all_of(words.begin(), words.end(), [&](const QString &word) {
        return metrics.horizontalAdvance(word) <= room;
    });
    line->setWordWrap(isBreakable);
    line->setText(isBreakable ? work : metrics.elidedText(work, Qt::ElideMiddle, room));
}

QPushButton *makeKey(const QString &text, const char *objectName)
{
    QPushButton *key = new QPushButton(text);
    key->setObjectName(QLatin1String(objectName));
    key->setMinimumHeight(Look::kTouch + 4);
    key->setAutoDefault(false);
    return key;
}

} // namespace

UnsavedQuestion::UnsavedQuestion(const QStringList &works, QWidget *parent) : Dialog(parent)
{
    setTitle(tr("Unsaved work"));
    const QSize panel = QGuiApplication::primaryScreen()->availableSize();
    const QSize size = roomy.boundedTo(panel - QSize(8, 8));

    QVBoxLayout *column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(gap);
    column->addWidget(
        makeLabel(tr("This was not saved when the panel ended. Bring it back?"), headingPixels));
    for (const QString &work : works) {
        QLabel *line = new QLabel;
        line->setObjectName(QLatin1String("work"));
        line->setTextFormat(Qt::PlainText);
        showWork(line, work, size.width() - 2 * margin);
        column->addWidget(line);
    }
    column->addStretch(1);

    QPushButton *throwAway = makeKey(tr("Throw away"), "throwAway");
    QPushButton *later = makeKey(tr("Keep for later"), "later");
    QPushButton *bringBack = makeKey(tr("Bring back"), "bringBack");
    // A press on Return that was meant for something else changes nothing.
    later->setDefault(true);
    QBoxLayout *keys =
        new QBoxLayout(panel.width() < FilarixPanel::smallBelow ? QBoxLayout::BottomToTop
                                                                : QBoxLayout::LeftToRight);
    keys->setSpacing(gap);
    for (QPushButton *key : {throwAway, later, bringBack})
        keys->addWidget(key, 1);
    column->addLayout(keys);
    connect(throwAway, &QPushButton::clicked, this, &UnsavedQuestion::askAndThrowAway);
    connect(later, &QPushButton::clicked, this, &QDialog::reject);
    connect(bringBack, &QPushButton::clicked, this, &QDialog::accept);
    // Keys one below the other take more.
    const int height = qMax(size.height(), column->heightForWidth(size.width()));
    resize(size.width(), qMin(height, panel.height() - 8));
}

void UnsavedQuestion::askAndThrowAway()
{
    const int answer =
        QMessageBox::question(this, windowTitle(), tr("Throw the unsaved work away for good?"),
                              QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
    if (answer == QMessageBox::Yes)
        done(ThrowAway);
}
