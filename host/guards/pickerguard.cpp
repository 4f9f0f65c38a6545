// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "guards/pickerguard.h"

#include "base/clickgate.h"
#include "base/hostcompat.h"
#include "programs/programname.h"

#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>

namespace {

const int hintPixels = 15;
// The name that the host looks at.
const char heldName[] = "_filarix_heldName";

QStringList namesIn(const QDialog *dialog)
{
    QStringList names;
    const QTableWidget *table = dialog->findChild<QTableWidget *>();
    for (int row = 0; table && row < table->rowCount(); ++row)
        names.append(table->item(row, 0)->text());
    return names;
}

/// Neither by letters nor by a touch on a row the name becomes another one.
void keepName(QLineEdit *field, bool isKept)
{
    field->setReadOnly(isKept);
    if (QTableWidget *table = field->window()->findChild<QTableWidget *>())
        table->blockSignals(isKept);
}

} // namespace

PickerGuard::PickerGuard(QDialog *dialog)
    : QObject(dialog)
    , m_names(namesIn(dialog))
    , m_field(dialog->findChild<QLineEdit *>())
    , m_gate(new ClickGate(dialog->findChild<QPushButton *>()))
    , m_hint(new QLabel)
{
    m_hint->setObjectName(QLatin1String("hint"));
    m_hint->setTextFormat(Qt::PlainText);
    m_hint->setWordWrap(true);
    QFont font = m_hint->font();
    font.setPixelSize(hintPixels);
    font.setBold(true);
    m_hint->setFont(font);
    m_hint->hide();
    // The first row of the dialog's grid stays empty otherwise.
    if (QGridLayout *grid = qobject_cast<QGridLayout *>(dialog->layout()))
        grid->addWidget(m_hint, 0, 0);
    else
        m_hint->setParent(dialog);
    m_gate->onClick([this] { check(); });
}

void PickerGuard::proposeForSaving(const QString &name)
{
    m_isForSaving = true;
    // The dialog proposes its first file when it handles the showing, which is still to come.
    HostCompat::callLater(this, [this, name] {
        m_field->setText(name);
        m_field->selectAll();
    });
}

/// Somebody may have chosen another name while the host looked at the first one.
void PickerGuard::pass()
{
    if (m_field->text() != property(heldName).toString())
        return check();
    // Nor in the moment before the click.
    keepName(m_field, true);
    m_gate->pass();
    HostCompat::callLater(this, [this] { keepName(m_field, false); });
}

void PickerGuard::drop(const QString &reason)
{
    m_gate->drop();
    if (!reason.isEmpty())
        say(reason);
}

void PickerGuard::check()
{
    const QString name = m_field->text();
    const QString complaint = ProgramName::complaint(name);
    if (!complaint.isEmpty())
        return drop(complaint);
    if (wantsSuffix(name)) {
        m_bareName = name;
        m_field->setText(name + ProgramName::suffix());
        return drop(tr("%1 is now at the end of the name. Press OK once more, or change the name.")
                        .arg(ProgramName::suffix()));
    }
    m_hint->hide();
    setProperty(heldName, name);
    m_hold(name);
}

/// A name that the operator wants as it is gets no suffix at the second try, and neither does a
/// name that a program has.
bool PickerGuard::wantsSuffix(const QString &name) const
{
    return m_isForSaving && ProgramName::isBare(name) && name != m_bareName
           && !listedNames().contains(name);
}

void PickerGuard::say(const QString &text)
{
    m_hint->setText(text);
    m_hint->show();
}
