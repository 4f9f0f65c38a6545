// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "shell/languagepicker.h"

#include "filarixpanel.h"
#include "look/glyphs.h"
#include "look/look.h"
#include "look/measures.h"

#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>

namespace {

const int columns = 2;
// A low panel has the languages in fewer lines.
const int lowColumns = 3;
const int keyWidth = 180;
const int keyAddition = 10;
const int spacing = 8;
// The dialog's margins and the spaces between the keys.
const int around = 40;

QSize panelSize()
{
    return QGuiApplication::primaryScreen()->availableSize();
}

bool isLow()
{
    return panelSize().height() < FilarixPanel::smallBelow;
}

bool isNarrow()
{
    return panelSize().width() < FilarixPanel::smallBelow;
}

} // namespace

LanguagePicker::LanguagePicker(const QString &current, QWidget *parent) : Dialog(parent)
{
    setTitle(tr("Language"));
    QVBoxLayout *column = new QVBoxLayout(this);
    column->setSpacing(spacing);
    column->addLayout(makeLanguages(current));
    column->addLayout(makeTextSizes());
    const bool isDark = Look::style() == Look::Dark;
    QPushButton *look =
        makeKey(QLatin1String("look"), isDark ? tr("Light colours") : tr("Dark colours"));
    look->setIcon(Glyphs::icon(Glyphs::Style, Glyphs::OnPaper));
    connect(look, &QPushButton::clicked, this, [this] {
        reject();
        Q_EMIT lookWanted();
    });
    column->addWidget(look);
    // Only now the keys are the dialog's.
    if (QPushButton *key = findChild<QPushButton *>(QLatin1String("language_") + current))
        key->setFocus();
}

QPushButton *LanguagePicker::makeKey(const QString &name, const QString &text)
{
    QPushButton *key = new QPushButton(text);
    key->setObjectName(name);
    key->setAutoDefault(false);
    key->setMinimumHeight(Measures::touch() + (isLow() ? 0 : keyAddition));
    return key;
}

QLayout *LanguagePicker::makeLanguages(const QString &current)
{
    QGridLayout *grid = new QGridLayout;
    grid->setSpacing(spacing);
    const int inALine = isLow() ? lowColumns : columns;
    const int width = qMin(keyWidth, (panelSize().width() - around) / inALine);
    const auto add = [=](QPushButton *key) {
        key->setMinimumWidth(width);
        grid->addWidget(key, grid->count() / inALine, grid->count() % inALine);
    };
    for (const Languages::Language &language : Languages::all()) {
        const QString code = language.code;
        QPushButton *key = makeKey(QLatin1String("language_") + code, language.name);
        key->setCheckable(true);
        key->setChecked(code == current);
        connect(key, &QPushButton::clicked, this, [this, code] {
            m_code = code;
            accept();
        });
        add(key);
    }
    QPushButton *cancel = makeKey(QLatin1String("cancel"), tr("Cancel"));
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    add(cancel);
    return grid;
}

QLayout *LanguagePicker::makeTextSizes()
{
    QBoxLayout *line =
        new QBoxLayout(isNarrow() ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    line->setSpacing(spacing);
    line->addWidget(new QLabel(tr("Text size")));
    QHBoxLayout *keys = new QHBoxLayout;
    keys->setSpacing(spacing);
    line->addLayout(keys, 1);
    for (int percent : Measures::textSizes()) {
        const QString name = Measures::nameOf(percent);
        QPushButton *key = makeKey(QLatin1String("textsize_") + name, tr("%1 %").arg(name));
        key->setAccessibleName(tr("Text size") + QLatin1Char(' ') + key->text());
        key->setCheckable(true);
        key->setChecked(percent == Measures::textSize());
        connect(key, &QPushButton::clicked, this, [this, percent] {
            reject();
            Q_EMIT textSizeWanted(percent);
        });
        keys->addWidget(key, 1);
    }
    return line;
}
