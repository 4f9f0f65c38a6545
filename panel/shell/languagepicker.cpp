// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "shell/languagepicker.h"

#include "look/glyphs.h"
#include "look/look.h"

#include <QGridLayout>
#include <QGuiApplication>
#include <QPushButton>
#include <QScreen>

namespace {

const int columns = 2;
const int keyWidth = 180;
const int keyHeight = Look::smallestTouch + 10;
// The dialog's margins and the spaces between the keys.
const int around = 40;

} // namespace

LanguagePicker::LanguagePicker(const QString &current, QWidget *parent) : Dialog(parent)
{
    setTitle(tr("Language"));
    QGridLayout *grid = new QGridLayout(this);
    grid->setSpacing(8);
    const int room = QGuiApplication::primaryScreen()->availableSize().width() - around;
    const QSize keySize(qMin(keyWidth, room / columns), keyHeight);
    const QList<Languages::Language> languages = Languages::all();
    for (int i = 0; i < languages.size(); ++i) {
        const QString code = languages.at(i).code;
        QPushButton *key = new QPushButton(languages.at(i).name);
        key->setObjectName(QLatin1String("language_") + code);
        key->setMinimumSize(keySize);
        key->setCheckable(true);
        key->setChecked(code == current);
        key->setAutoDefault(false);
        connect(key, &QPushButton::clicked, this, [this, code] {
            m_code = code;
            accept();
        });
        grid->addWidget(key, i / columns, i % columns);
        if (code == current)
            key->setFocus();
    }
    QPushButton *cancel = new QPushButton(tr("Cancel"));
    cancel->setMinimumSize(keySize);
    cancel->setAutoDefault(false);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    grid->addWidget(cancel, languages.size() / columns, languages.size() % columns);

    const bool isDark = Look::style() == Look::Dark;
    QPushButton *look = new QPushButton(Glyphs::icon(Glyphs::Style, Glyphs::OnPaper),
                                        isDark ? tr("Light colours") : tr("Dark colours"));
    look->setObjectName(QLatin1String("look"));
    look->setMinimumSize(keySize);
    look->setAutoDefault(false);
    connect(look, &QPushButton::clicked, this, [this] {
        reject();
        Q_EMIT lookWanted();
    });
    grid->addWidget(look, grid->rowCount(), 0, 1, columns);
}
