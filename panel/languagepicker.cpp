// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "languagepicker.h"

#include "glyphs.h"
#include "look.h"

#include <QGridLayout>
#include <QPushButton>

namespace {

const int kColumns = 2;
const QSize kKey(180, Look::kTouch + 10);

} // namespace

LanguagePicker::LanguagePicker(const QString &current, QWidget *parent) : Dialog(parent)
{
    setTitle(tr("Language"));
    QGridLayout *grid = new QGridLayout(this);
    grid->setSpacing(8);
    const QList<Languages::Language> languages = Languages::all();
    for (int i = 0; i < languages.size(); ++i) {
        const QString code = languages.at(i).code;
        QPushButton *key = new QPushButton(languages.at(i).name);
        key->setObjectName(QLatin1String("language_") + code);
        key->setMinimumSize(kKey);
        key->setCheckable(true);
        key->setChecked(code == current);
        key->setAutoDefault(false);
        connect(key, &QPushButton::clicked, this, [this, code] {
            m_code = code;
            accept();
        });
        grid->addWidget(key, i / kColumns, i % kColumns);
        if (code == current)
            key->setFocus();
    }
    QPushButton *cancel = new QPushButton(tr("Cancel"));
    cancel->setMinimumSize(kKey);
    cancel->setAutoDefault(false);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    grid->addWidget(cancel, languages.size() / kColumns, languages.size() % kColumns);

    const bool isDark = Look::style() == Look::Dark;
    QPushButton *look = new QPushButton(Glyphs::icon(Glyphs::Style, Glyphs::OnPaper),
                                        isDark ? tr("Light colours") : tr("Dark colours"));
    look->setObjectName(QLatin1String("look"));
    look->setMinimumSize(kKey);
    look->setAutoDefault(false);
    connect(look, &QPushButton::clicked, this, [this] {
        reject();
        Q_EMIT lookWanted();
    });
    grid->addWidget(look, grid->rowCount(), 0, 1, kColumns);
}
