// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "wfinddialog.h"

#include "gcodesymbols.h"
#include "lineedit.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

WFindDialog::WFindDialog(QWidget *parent) : QDialog(parent)
{
    findLabel = new QLabel(tr("Find &what:"), this);
    replaceLabel = new QLabel(tr("Replace &what:"), this);
    findEdit = new LineEdit(this);
    replaceEdit = new LineEdit(this);
    findLabel->setBuddy(findEdit);
    replaceLabel->setBuddy(replaceEdit);
    caseCheckBox = new QCheckBox(tr("Match &case"), this);
    backwardCheckBox = new QCheckBox(tr("Search &backward"), this);
    findButton = new QPushButton(tr("&Find"), this);
    replaceButton = new QPushButton(tr("&Replace"), this);
    closeButton = new QPushButton(tr("Close"), this);

    // A dialog has one default button: being its child already, the second takes over from the
    // first.
    findButton->setDefault(true);
    findButton->setEnabled(false);
    replaceButton->setDefault(true);
    replaceButton->setEnabled(false);

    connect(findEdit, SIGNAL(textChanged(QString)), this, SLOT(enableFindButton(QString)));
    connect(findButton, SIGNAL(clicked()), this, SLOT(findClicked()));
    connect(replaceButton, SIGNAL(clicked()), this, SLOT(replaceClicked()));
    connect(closeButton, SIGNAL(clicked()), this, SLOT(close()));

    QHBoxLayout *findRow = new QHBoxLayout;
    findRow->addWidget(findLabel);
    findRow->addWidget(findEdit);
    QHBoxLayout *replaceRow = new QHBoxLayout;
    replaceRow->addWidget(replaceLabel);
    replaceRow->addWidget(replaceEdit);

    QVBoxLayout *left = new QVBoxLayout;
    left->addLayout(findRow);
    left->addLayout(replaceRow);
    left->addWidget(caseCheckBox);
    left->addWidget(backwardCheckBox);

    QVBoxLayout *right = new QVBoxLayout;
    right->addWidget(findButton);
    right->addWidget(replaceButton);
    right->addWidget(closeButton);
    right->addStretch(0);

    QHBoxLayout *columns = new QHBoxLayout;
    columns->addLayout(left);
    columns->addLayout(right);
    setLayout(columns);

    setWindowTitle(tr("Find"));
    setFixedHeight(sizeHint().height());
}

void WFindDialog::findClicked()
{
    const QString text = findEdit->text();
    const Qt::CaseSensitivity cs =
        caseCheckBox->isChecked() ? Qt::CaseSensitive : Qt::CaseInsensitive;
    if (backwardCheckBox->isChecked())
        Q_EMIT findPrevious(text, cs);
    else
        Q_EMIT findNext(text, cs);
}

void WFindDialog::enableFindButton(const QString &text)
{
    // An empty replacement is allowed, so only the text to find counts.
    findButton->setEnabled(!text.isEmpty());
    replaceButton->setEnabled(!text.isEmpty());
}

void WFindDialog::replaceClicked()
{
    Q_EMIT replaceTxt(replaceEdit->text());
}
