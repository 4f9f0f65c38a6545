// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef UNSAVEDOFFER_H
#define UNSAVEDOFFER_H

#include "base/filarixhostglobal.h"
#include "base/message.h"
#include "programs/keptwork.h"
#include "programs/unsavedsession.h"
#include "storage/filethread.h"

#include <QPointer>
#include <QStringList>

#include <functional>

class ProgramOpener;
class Questioner;
class UnsavedRows;
class UnsavedWork;
class WMMainWindow;

/// Looks for the unsaved work of earlier runs, offers it to the operator, and brings it back.
///
/// The disk is looked at beside the event loop. Work that was brought back is kept anew by this run
/// before the old files go. Other work is offered again at the next start.
///
///     UnsavedOffer *offer = new UnsavedOffer(folder, unsavedWork, questioner, this);
///     offer->setProgram(program);
///     offer->addRows("teach", teachScreen);
///     offer->start();
class FILARIX_HOST_EXPORT UnsavedOffer : public QObject
{
    Q_OBJECT

public:
    /// The window that shows programs, and what the host knows of it.
    struct Program
    {
        WMMainWindow *window = nullptr;
        /// Whether the host has a command of the window in hand. If not given, it never has.
        std::function<bool()> isBusy;
        /// The window's New was pressed: what it shows belongs to no file any more. May be missing.
        std::function<void()> noteNew;
    };

    /// Looks in \a folder, the one that \a work keeps its work in. The host has \a work watch the
    /// program and the rows that are named here before start(): the work keeps what is brought
    /// back. Both \a work and \a questioner must outlive the offer.
    UnsavedOffer(const QString &folder, UnsavedWork *work, Questioner *questioner,
                 QObject *parent = nullptr);
    ~UnsavedOffer() override;

    /// The window gets its program back. The window must outlive the offer.
    void setProgram(const Program &program);
    /// The list gets its rows back, which are kept under the name \a subject. The list must outlive
    /// the offer.
    void addRows(const QString &subject, UnsavedRows *list);

    /// What the text of \a window belongs to, as it is brought back later. \a isIncomplete tells
    /// that the editor shows the front part of the file alone.
    static KeptHead headOf(const WMMainWindow *window, bool isIncomplete);

    /// Looks, and asks when there is something; once.
    void start();

Q_SIGNALS:
    /// No question is open, and none will come.
    void ended();
    void told(const QString &text, Message::Tone tone, const QString &cause = QString());

private Q_SLOTS:
    void removeOld();

private:
    enum Answer { Later, BringBack, ThrowAway };

    struct Found
    {
        UnsavedSession::Pointer session;
        QList<KeptWork> works;
        /// Where files that could not be read are now.
        QStringList aside;
    };

    static QList<Found> find(const QString &folder, const QStringList &subjects);
    static Found look(const UnsavedSession::Pointer &session, const QStringList &subjects);
    void takeIn(const QList<Found> &found);
    bool mayAsk() const;
    void askNext();
    Answer ask(const Found &found);
    Answer askOnce(const Found &found);
    void bringBack(const Found &found);
    bool bringBack(const KeptWork &work);
    bool bringRowsBack(const KeptWork &work);
    bool bringProgramBack(const KeptWork &work);
    void tellOfProgram(const KeptWork &work, bool isOpen);
    void throwAway(const Found &found);
    QString shownName(const KeptWork &work) const;
    QString shown(const KeptWork &work) const;

    const QString m_folder;
    UnsavedWork *m_work;
    Questioner *m_questioner;
    Program m_program;
    QMap<QString, UnsavedRows *> m_rows;
    ProgramOpener *m_opener = nullptr;
    QList<Found> m_found;
    /// What stands on the screens again and is to go.
    Found m_brought;
    FileThread m_thread;
};

#endif // UNSAVEDOFFER_H
