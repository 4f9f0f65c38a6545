// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef UNSAVEDOFFER_H
#define UNSAVEDOFFER_H

#include "base/message.h"
#include "programs/keptwork.h"
#include "programs/unsavedsession.h"
#include "storage/filethread.h"

#include <QPointer>
#include <QStringList>

#include <functional>

class ProgramOpener;
class ProgramScreen;
class TeachScreen;
class UnsavedWork;
class VariablesScreen;

/// Looks for the unsaved work of earlier runs, offers it to the operator, and brings it back.
///
/// The disk is looked at beside the event loop. What was brought back is kept anew by this run
/// before it goes from where it was; what was not is offered again at the next start.
class UnsavedOffer : public QObject
{
    Q_OBJECT

public:
    /// The screens that get their work back; they must outlive the offer.
    struct Screens
    {
        ProgramScreen *program;
        TeachScreen *teach;
        VariablesScreen *variables;
    };

    /// Looks in \a folder. \a work keeps what is brought back.
    UnsavedOffer(const QString &folder, const Screens &screens, UnsavedWork *work,
                 QObject *parent = nullptr);
    ~UnsavedOffer() override;

    /// What the program's text belongs to, as it is brought back later.
    static KeptHead headOf(const ProgramScreen *program);
    /// The subjects of the two lists.
    static QString teach();
    static QString variables();

    /// Looks, and asks when there is something; once.
    void start();

Q_SIGNALS:
    /// No question is open, and none will come.
    void ended();
    void told(const QString &text, Message::Tone tone, const QString &cause = QString());

private:
    struct Found
    {
        UnsavedSession::Pointer session;
        QList<KeptWork> works;
        /// Where files that could not be read are now.
        QStringList aside;
    };

    static QList<Found> find(const QString &folder);
    static Found look(const UnsavedSession::Pointer &session);
    void takeIn(const QList<Found> &found);
    void askNext();
    void bringBack(const Found &found);
    bool bringBack(const KeptWork &work);
    bool bringProgramBack(const KeptWork &work);
    void removeOld();
    void throwAway(const Found &found);
    static QString shownName(const KeptWork &work);
    static QString shown(const KeptWork &work);

    const QString m_folder;
    const Screens m_screens;
    UnsavedWork *m_work;
    ProgramOpener *m_opener;
    QList<Found> m_found;
    /// What stands on the screens again and is to go.
    Found m_brought;
    FileThread m_thread;
};

#endif // UNSAVEDOFFER_H
