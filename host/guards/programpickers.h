// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PROGRAMPICKERS_H
#define PROGRAMPICKERS_H

#include "base/filarixhostglobal.h"
#include "guards/windowdialogs.h"
#include "winding/machineprofile.h"

#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>

class RecentPrograms;

/// Has the library's three program pickers, for Open, Save As and RM, told apart and used soon.
///
/// Each picker gets a strip that says what it is for, in red where it removes. Its list is sorted
/// by the last use, by name, date or size, is filtered by a part of a name, and pages by keys. What
/// is known of the chosen program stands beside the list: first comment, lines, turns, size, date.
/// Nothing is proposed for removal. The picker is as large as the screen, 800 by 800 pixels at
/// the most.
///
///     ProgramPickers *pickers = new ProgramPickers(ProgramDirectory::path(), window);
///     pickers->setRecent(&recent);
///
/// The dialogs stay the library's own, with all that follows a choice. A ProgramGuard goes with it.
class FILARIX_HOST_EXPORT ProgramPickers : public QObject
{
    Q_OBJECT

public:
    /// \a folder is where the library keeps its programs. Fits the pickers from now on.
    explicit ProgramPickers(const QString &folder, QObject *parent = nullptr);

    /// The programs that come first; what is opened and saved is noted there. Without it names come
    /// first.
    void setRecent(RecentPrograms *recent);
    /// By whose rules turns are counted: the profile is asked for as a picker is shown. The
    /// samples' before.
    void setProfile(const std::function<MachineProfile()> &profile) { m_profile = profile; }

Q_SIGNALS:
    /// The picker has its strip, a widget named "pickerStrip", and a host may dress it. The strip's
    /// property "danger" tells one that removes.
    void fitted(QDialog *dialog);

private Q_SLOTS:
    void fit(QDialog *dialog, WindowDialogs::Picker picker);
    void noteUse();
    void noteOrder();
    void forgetRemoved();

private:
    const QString m_folder;
    WindowDialogs m_dialogs;
    QPointer<RecentPrograms> m_recent;
    std::function<MachineProfile()> m_profile;
    WindowDialogs::Picker m_picker = WindowDialogs::OpenPicker;
    /// A PickerTable::Order, which stays from one picker to the next.
    int m_order = 0;
    /// Picked to be removed.
    QString m_removing;
};

#endif // PROGRAMPICKERS_H
