// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PICKERFITTING_H
#define PICKERFITTING_H

#include "guards/pickertable.h"
#include "guards/windowdialogs.h"
#include "programs/programlisting.h"
#include "storage/filetaskrunner.h"
#include "winding/machineprofile.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

#include <memory>

class PickerFacts;
class PickerStrip;
class QDialog;
class QGridLayout;
class QLayout;
class QLineEdit;
class QTableWidget;
class RecentPrograms;

/// Puts the strip, the order and the facts into one program picker, when it is shown. The dialog
/// owns its fitting, and may have one at the most.
class PickerFitting : public QObject
{
    Q_OBJECT

public:
    /// \a recent may be null. \a dialog is a WFileDialog that is being shown: it has not handled
    /// that yet.
    PickerFitting(QDialog *dialog, WindowDialogs::Picker picker, const QString &folder,
                  const MachineProfile &profile, RecentPrograms *recent);

    PickerTable::Order order() const;
    void setOrder(PickerTable::Order order);

    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void takeListing();
    void takeRecent();
    void sort();
    void filter();
    void turnPage(int direction);
    void showPaging();
    void goToList();
    void followKeys(int row);
    void follow(const QString &name);

private:
    void layOut();
    QLayout *takeNameRow(const QGridLayout *grid) const;
    void refill();
    void take(int row);

    QDialog *m_dialog;
    const WindowDialogs::Picker m_picker;
    QLineEdit *m_field;
    QTableWidget *m_table;
    QPointer<RecentPrograms> m_recent;
    PickerStrip *m_strip;
    PickerTable *m_rows;
    PickerFacts *m_facts;
    /// The dialog proposes its first file meanwhile.
    bool m_isShowing = true;
    /// A key moves through the table.
    bool m_isMoving = false;
    std::shared_ptr<ProgramListing> m_listing;
    FileTaskRunner m_listingRunner;
};

#endif // PICKERFITTING_H
