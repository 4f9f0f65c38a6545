// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "guards/programpickers.h"

#include "guards/pickerfitting.h"
#include "programs/recentprograms.h"

#include <QDialog>
#include <QGridLayout>
#include <QLineEdit>
#include <QTableWidget>

ProgramPickers::ProgramPickers(const QString &folder, QObject *parent)
    : QObject(parent), m_folder(folder), m_profile(&MachineProfile::forSamples)
{
    connect(&m_dialogs, SIGNAL(pickerShown(QDialog *, WindowDialogs::Picker)), this,
            SLOT(fit(QDialog *, WindowDialogs::Picker)));
    connect(&m_dialogs, SIGNAL(removed()), this, SLOT(forgetRemoved()));
}

void ProgramPickers::setRecent(RecentPrograms *recent)
{
    m_recent = recent;
}

void ProgramPickers::fit(QDialog *dialog, WindowDialogs::Picker picker)
{
    m_picker = picker;
    connect(dialog, SIGNAL(accepted()), this, SLOT(noteUse()), Qt::UniqueConnection);
    // One that a program answers, and that nobody sees.
    if (dialog->testAttribute(Qt::WA_DontShowOnScreen) || dialog->findChild<PickerFitting *>())
        return;
    if (!qobject_cast<QGridLayout *>(dialog->layout()) || !dialog->findChild<QLineEdit *>()
        || !dialog->findChild<QTableWidget *>())
        return;
    PickerFitting *fitting = new PickerFitting(dialog, picker, m_folder, m_profile(), m_recent);
    fitting->setOrder(PickerTable::Order(m_order));
    connect(dialog, SIGNAL(finished(int)), this, SLOT(noteOrder()));
    Q_EMIT fitted(dialog);
}

void ProgramPickers::noteUse()
{
    const QString name = sender()->findChild<QLineEdit *>()->text();
    m_removing = m_picker == WindowDialogs::RemovePicker ? name : QString();
    if (m_recent && m_removing.isEmpty())
        m_recent->note(name);
}

void ProgramPickers::noteOrder()
{
    if (const PickerFitting *fitting = sender()->findChild<PickerFitting *>())
        m_order = fitting->order();
}

void ProgramPickers::forgetRemoved()
{
    if (m_recent && !m_removing.isEmpty())
        m_recent->forget(m_removing);
    m_removing.clear();
}
