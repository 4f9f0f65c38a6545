// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "guards/programguard.h"

#include "base/clickgate.h"
#include "base/hostcompat.h"
#include "base/questioner.h"
#include "guards/pickerguard.h"
#include "programs/checkeddownload.h"
#include "programs/programcomparison.h"
#include "programs/programhistory.h"
#include "programs/programname.h"
#include "programs/programtext.h"
#include "programs/unsavedoffer.h"
#include "programs/unsavedwork.h"
#include "wgcodeediter.h"
#include "wmmainwindow.h"

#include <QAbstractButton>
#include <QDialog>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QTextDocument>

namespace {

/// Of messages about how the program stands to its file.
const char stateCause[] = "program state";
/// Of messages about a command that was refused.
const char refusedCause[] = "program refused";

QString nameOf(const QString &path)
{
    return QFileInfo(path).fileName();
}

/// A document that counts as clean remembers how many steps can be undone, and keeps that number
/// when the steps go. As many new steps would look like no change at all.
void forgetUndo(QTextDocument *document)
{
    document->clearUndoRedoStacks();
    const HostCompat::SignalBlocker blocker(document);
    const bool isModified = document->isModified();
    document->setModified(!isModified);
    document->setModified(isModified);
}

} // namespace

ProgramGuard::ProgramGuard(WMMainWindow *window, const QString &programDir, Questioner *questioner,
                           QObject *parent)
    : QObject(parent)
    , m_programDir(programDir)
    , m_window(window)
    , m_editor(window->findChild<WGCodeEditer *>())
    , m_questioner(questioner)
    , m_commands(window)
    , m_keeper(questioner)
    , m_check(m_editor->document(), &m_jobs, questioner)
{
    m_commands.onCommand([this](Command command) { hold(command); });
    connect(&m_commands, SIGNAL(done(WindowCommands::Command)), this,
            SLOT(end(WindowCommands::Command)));
    connect(&m_commands, SIGNAL(lost(WindowCommands::Command)), this, SLOT(giveSaveUp()));
    connect(&m_keeper, SIGNAL(told(QString, Message::Tone, QString)), this,
            SIGNAL(told(QString, Message::Tone, QString)));
    connect(&m_keeper, SIGNAL(causeEnded(QString)), this, SIGNAL(causeEnded(QString)));
    connect(&m_check, SIGNAL(missed()), this, SLOT(tellMissed()));
    connect(&m_check, SIGNAL(ended(StoreCheck::Outcome)), this,
            SLOT(tellStored(StoreCheck::Outcome)));
    connect(&m_dialogs, SIGNAL(pickerShown(QDialog *, WindowDialogs::Picker)), this,
            SLOT(guardPicker(QDialog *, WindowDialogs::Picker)));
    connect(&m_dialogs, SIGNAL(saveQuestionShown(QMessageBox *)), this,
            SLOT(guardSaveQuestion(QMessageBox *)));
    connect(&m_dialogs, SIGNAL(removeQuestionShown(QMessageBox *)), this,
            SLOT(guardRemoveQuestion(QMessageBox *)));
    connect(&m_dialogs, SIGNAL(reloadQuestionShown(QMessageBox *)), this,
            SLOT(watchReloadQuestion(QMessageBox *)));
    connect(&m_dialogs, SIGNAL(failed()), this, SLOT(noteFailure()));
    connect(&m_dialogs, SIGNAL(loadAborted()), this, SLOT(noteAbort()));
    connect(&m_dialogs, SIGNAL(removed()), this, SLOT(noteRemoval()));
}

ProgramGuard::~ProgramGuard() = default;

void ProgramGuard::setHistory(ProgramHistory *history)
{
    setHistory([history](const QString &path, const ProgramKeeper::Kept &kept) {
        const QString name = nameOf(path);
        history->whenSettled(history,
                             [history, name, kept] { kept(history->reasonNotKept(name)); });
    });
}

void ProgramGuard::setDownload(CheckedDownload *download)
{
    m_download = download;
    const QPointer<ProgramGuard> self(this);
    download->setShown([self](const QString &path, QString *shown) {
        if (!self || path != self->m_window->getCurrentFile())
            return false;
        *shown = self->text();
        return true;
    });
    connect(m_window, SIGNAL(signal_download(QString)), this, SLOT(startDownload(QString)));
    connect(download, SIGNAL(ended()), this, SLOT(endDownload()));
}

void ProgramGuard::keepUnsaved(UnsavedWork *work, UnsavedOffer *offer)
{
    work->watchProgram(
        m_editor->document(),
        [this] { return UnsavedOffer::headOf(m_window, m_state.kind == ProgramState::Incomplete); },
        [this] { return !isBusy(); });
    UnsavedOffer::Program program;
    program.window = m_window;
    program.isBusy = [this] { return isBusy(); };
    program.noteNew = [this] { noteNewProgram(); };
    offer->setProgram(program);
}

QString ProgramGuard::programPath(const QString &name) const
{
    return m_programDir + QLatin1Char('/') + name;
}

QString ProgramGuard::text() const
{
    return m_editor->toPlainText();
}

bool ProgramGuard::isBusy() const
{
    return m_commands.isBusy() || m_isHoldingSave || m_jobs.isRunning() || m_check.isRunning();
}

void ProgramGuard::setState(const ProgramState &state)
{
    m_state = state;
    Q_EMIT causeEnded(QLatin1String(refusedCause));
    if (m_state.kind == ProgramState::Plain)
        Q_EMIT causeEnded(QLatin1String(stateCause));
    Q_EMIT stateChanged();
}

/// While a program is loaded the event loop serves the whole screen.
void ProgramGuard::hold(Command command)
{
    if (m_commands.running() != WindowCommands::None)
        return refuse(command, tr("A program is being loaded. Wait until all of it is here."));
    if (isBusy()) {
        m_waiting.append(command);
        return;
    }
    switch (command) {
    case WindowCommands::Save:
        return holdSave();
    case WindowCommands::Download:
        return mayDownload(m_window->getCurrentFile()) ? pass(command) : m_commands.drop(command);
    default:
        return pass(command);
    }
}

void ProgramGuard::refuse(Command command, const QString &reason)
{
    m_commands.drop(command);
    Q_EMIT told(reason, Message::Warning, QLatin1String(refusedCause));
    if (command == WindowCommands::Save)
        finishSave(false);
}

void ProgramGuard::pass(Command command)
{
    m_picked.clear();
    m_hasFailed = false;
    m_wasAborted = false;
    m_isReloadRefused = false;
    m_isRemovalPassed = false;
    m_wasRemoved = false;
    m_wantsSave = false;
    m_commands.pass(command);
}

void ProgramGuard::end(Command command)
{
    m_isHoldingSave = false;
    if (m_wantsSave) {
        m_wantsSave = false;
        m_afterSave = command;
        m_commands.press(WindowCommands::Save);
        return;
    }
    switch (command) {
    case WindowCommands::Open:
        endOpen();
        break;
    case WindowCommands::Save:
    case WindowCommands::SaveAs:
        endSave();
        break;
    case WindowCommands::Remove:
        endRemove();
        break;
    default:
        break;
    }
    noteNewProgram();
    goOn();
}

/// Of a document without a file nothing is left out.
void ProgramGuard::noteNewProgram()
{
    if (!m_window->getCurrentFile().isEmpty())
        return;
    m_stamp = FileStamp();
    setState(ProgramState());
}

/// Commands that came while something was being looked at, one at a time.
void ProgramGuard::goOn()
{
    if (!m_waiting.isEmpty() && !isBusy())
        hold(m_waiting.takeFirst());
}

bool ProgramGuard::mayDownload(const QString &path)
{
    if (path != m_window->getCurrentFile())
        return true;
    if (!m_state.refusesDownload() && !isLoading())
        return true;
    Q_EMIT told(isLoading() ? tr("A program is being loaded. Wait until all of it is here.")
                            : m_state.refusal(),
                Message::Warning, QLatin1String(refusedCause));
    return false;
}

void ProgramGuard::startDownload(const QString &path)
{
    if (!mayDownload(path))
        return;
    m_window->setDownloading(true);
    m_download->start(path);
}

void ProgramGuard::endDownload()
{
    m_window->setDownloading(false);
}

// Opening

void ProgramGuard::endOpen()
{
    if (m_picked.isEmpty() || m_isReloadRefused)
        return;
    forgetUndo(m_editor->document());
    const QString path = m_window->getCurrentFile();
    // The library leaves an empty editor under the name of before.
    m_wasAborted |= m_hasFailed;
    if (!path.isEmpty())
        compare();
}

void ProgramGuard::compare()
{
    const QString path = m_window->getCurrentFile();
    const bool wasAborted = m_wasAborted;
    const std::shared_ptr<ProgramComparison> comparison =
        std::make_shared<ProgramComparison>(path, text());
    m_jobs.run(comparison, [this, path, comparison, wasAborted](bool hasEnded) {
        // What stalled may not be looked at any more.
        judge(path, hasEnded ? comparison : std::make_shared<ProgramComparison>(path, QString()),
              wasAborted);
        goOn();
    });
}

void ProgramGuard::judge(const QString &path, const std::shared_ptr<ProgramComparison> &comparison,
                         bool wasAborted)
{
    m_stamp = comparison->stamp();
    ProgramState state;
    state.name = nameOf(path);
    state.fileLines = comparison->fileLines();
    state.shownLines = comparison->shownLines();
    switch (comparison->verdict()) {
    case ProgramComparison::Same:
        break;
    case ProgramComparison::Cleaned:
        state.kind = ProgramState::Cleaned;
        break;
    case ProgramComparison::Incomplete:
        state.kind = ProgramState::Incomplete;
        break;
    case ProgramComparison::Different:
        state.kind = wasAborted ? ProgramState::Incomplete : ProgramState::Different;
        break;
    case ProgramComparison::Unreadable:
        state.kind = wasAborted ? ProgramState::Incomplete : ProgramState::Different;
        state.reason = comparison->error().isEmpty() ? tr("the panel's storage does not answer")
                                                     : comparison->error();
        break;
    }
    setState(state);
    if (state.kind == ProgramState::Incomplete)
        Q_EMIT told(state.refusal(), state.tone(), QLatin1String(stateCause));
    else if (state.kind == ProgramState::Different)
        Q_EMIT told(state.line(), state.tone(), QLatin1String(stateCause));
}

// Saving

void ProgramGuard::save()
{
    m_commands.press(WindowCommands::Save);
}

void ProgramGuard::holdSave()
{
    if (m_state.refusesSave())
        return refuse(WindowCommands::Save, m_state.refusal());
    m_target = m_window->getCurrentFile();
    if (m_target.isEmpty())
        return pass(WindowCommands::Save);
    m_isHoldingSave = true;
    const std::shared_ptr<ProgramOnDisk> file = std::make_shared<ProgramOnDisk>(m_target);
    m_jobs.run(file, [this, file](bool hasEnded) {
        if (!hasEnded)
            return refuse(WindowCommands::Save, tr("The panel's storage does not answer."));
        noteFile(*file);
        askAndSave();
    });
}

/// A restore, an import or another machine may have put something else there meanwhile.
void ProgramGuard::noteFile(const ProgramOnDisk &file)
{
    const FileStamp now = file.stamp();
    // Other rights, or a new name and the old one again, change nothing in it.
    const bool isSame =
        now.size == m_stamp.size && now.inode == m_stamp.inode && now.modified == m_stamp.modified;
    if (isSame || !now.isValid() || !m_stamp.isValid() || m_state.kind == ProgramState::NotStored)
        return;
    m_stamp = now;
    ProgramState state = m_state;
    state.kind = ProgramState::Different;
    state.name = nameOf(m_target);
    state.reason.clear();
    state.fileLines = file.lines();
    state.shownLines = m_editor->document()->blockCount();
    state.isAgreed = false;
    setState(state);
}

void ProgramGuard::askAndSave()
{
    if (m_state.asksBeforeSave() && !mayReplaceOwnFile())
        return;
    if (m_state.kind == ProgramState::NotStored) {
        // What the library left of the file is replaced only by a whole one.
        m_commands.drop(WindowCommands::Save);
        return m_check.write(m_target, text());
    }
    m_keeper.keep(m_target, [this](bool mayWrite) {
        if (mayWrite)
            return pass(WindowCommands::Save);
        m_commands.drop(WindowCommands::Save);
        finishSave(false);
    });
}

bool ProgramGuard::mayReplaceOwnFile()
{
    const int answer = m_questioner->ask(
        {tr("Save"),
         m_state.saveQuestion(),
         {tr("Cancel"),
          m_state.kind == ProgramState::Cleaned ? tr("Save without them") : tr("Save as shown"),
          tr("Other name")}});
    if (answer == 1) {
        m_state.isAgreed = true;
        return true;
    }
    m_commands.drop(WindowCommands::Save);
    if (answer == 2)
        m_commands.press(WindowCommands::SaveAs);
    finishSave(false);
    return false;
}

void ProgramGuard::endSave()
{
    const QString path = m_window->getCurrentFile();
    // A picker that was cancelled, or a file that the library itself says it can't write.
    if (m_target.isEmpty() || m_hasFailed || path != m_target) {
        finishSave(false);
        return;
    }
    m_check.check(path, text());
}

void ProgramGuard::tellMissed()
{
    ProgramState state;
    state.kind = ProgramState::NotStored;
    state.name = nameOf(m_check.path());
    state.reason = m_check.reason();
    m_stamp = FileStamp();
    setState(state);
    Q_EMIT told(tr("%1 is not stored: %2. Do not switch off: the whole program is only in the "
                   "editor.")
                    .arg(state.name, state.reason),
                Message::Alarm, QLatin1String(stateCause));
}

void ProgramGuard::tellStored(StoreCheck::Outcome outcome)
{
    const QString name = nameOf(m_check.path());
    if (outcome == StoreCheck::Stored) {
        ProgramState state;
        state.name = name;
        if (!m_check.isFaithful())
            state.kind = ProgramState::Different;
        state.shownLines = state.fileLines = ProgramText::lines(m_check.text());
        m_stamp = m_check.stamp();
        setState(state);
        Q_EMIT told(tr("%1 saved, %2 lines.").arg(name, QString::number(state.shownLines)),
                    Message::Information);
        if (!m_check.isFaithful())
            Q_EMIT told(
                tr("%1 has characters that the file cannot hold; they were replaced.").arg(name),
                Message::Warning, QLatin1String(stateCause));
    } else if (outcome == StoreCheck::StoredElsewhere) {
        Q_EMIT told(tr("%1 is on the stick as %2. On the panel it is not stored: %3.")
                        .arg(name, nameOf(m_check.otherPath()), m_check.reason()),
                    Message::Warning, QLatin1String(stateCause));
    }
    finishSave(outcome == StoreCheck::Stored);
}

/// Gives a command that waits for the save once more: the library finds nothing to ask about now.
void ProgramGuard::finishSave(bool isStored)
{
    const Command next = m_afterSave;
    m_afterSave = WindowCommands::None;
    m_target.clear();
    m_isHoldingSave = false;
    if (isStored && next != WindowCommands::None)
        m_commands.press(next);
    Q_EMIT saveEnded(isStored);
    HostCompat::callLater(this, [this] { goOn(); });
}

void ProgramGuard::giveSaveUp()
{
    finishSave(false);
}

// The library's dialogs

void ProgramGuard::watchReloadQuestion(QMessageBox *box)
{
    connect(box, SIGNAL(finished(int)), this, SLOT(noteReloadAnswer(int)));
}

void ProgramGuard::noteReloadAnswer(int answer)
{
    m_isReloadRefused = answer != QMessageBox::Yes;
}

void ProgramGuard::noteFailure()
{
    m_hasFailed = true;
}

void ProgramGuard::noteAbort()
{
    m_wasAborted = true;
}

void ProgramGuard::noteRemoval()
{
    m_wasRemoved = true;
}

void ProgramGuard::guardPicker(QDialog *dialog, WindowDialogs::Picker picker)
{
    // Shown once more, it has its guard already.
    if (dialog->findChild<PickerGuard *>())
        return;
    PickerGuard *guard = new PickerGuard(dialog);
    const QPointer<PickerGuard> link(guard);
    if (picker != WindowDialogs::SavePicker) {
        guard->onName([this, link](const QString &name) {
            m_picked = name;
            link->pass();
        });
        return;
    }
    m_target.clear();
    guard->proposeForSaving(proposal(guard));
    guard->onName([this, link](const QString &name) { holdTarget(link, name); });
}

QString ProgramGuard::proposal(const PickerGuard *picker) const
{
    QString own = nameOf(m_window->getCurrentFile());
    if (own.isEmpty())
        return ProgramName::freeOne(ProgramName::first(), picker->listedNames());
    if (m_state.kind == ProgramState::Incomplete)
        return ProgramName::freeOne(ProgramName::ofPart(own), picker->listedNames());
    return own;
}

void ProgramGuard::holdTarget(const QPointer<PickerGuard> &picker, const QString &name)
{
    const std::shared_ptr<ProgramOnDisk> there = std::make_shared<ProgramOnDisk>(programPath(name));
    m_jobs.run(there, [this, picker, name, there](bool hasEnded) {
        if (!picker)
            return;
        if (!hasEnded)
            return picker->drop(tr("The panel's storage does not answer."));
        askForTarget(picker, name, *there);
    });
}

void ProgramGuard::askForTarget(const QPointer<PickerGuard> &picker, const QString &name,
                                const ProgramOnDisk &there)
{
    if (there.kind() == ProgramOnDisk::NoFile)
        return picker->drop(tr("%1 is not a program file. Take another name.").arg(name));
    if (there.kind() == ProgramOnDisk::Missing) {
        m_target = programPath(name);
        return picker->pass();
    }
    const bool mayWrite = mayCover(name, there);
    if (!picker)
        return;
    if (!mayWrite)
        return picker->drop();
    m_keeper.keep(programPath(name), [this, picker, name](bool isKept) {
        if (!picker)
            return;
        if (!isKept)
            return picker->drop();
        m_target = programPath(name);
        picker->pass();
    });
}

bool ProgramGuard::mayCover(const QString &name, const ProgramOnDisk &there)
{
    const bool isOwn = programPath(name) == m_window->getCurrentFile();
    if (isOwn && (m_state.kind == ProgramState::Plain || m_state.kind == ProgramState::NotStored))
        return true;
    return m_questioner->ask(
               {tr("Save as"),
                tr("%1 is there already: %2 lines, of %3. Write this program over it?")
                    .arg(name, QString::number(there.lines()),
                         there.written().toString(QLatin1String("yyyy-MM-dd HH:mm"))),
                {tr("Cancel"), tr("Write over it")},
                {tr("This program: %1 lines").arg(m_editor->document()->blockCount())}})
           == 1;
}

/// The program is saved before the library goes on and clears the editor: the library could not
/// tell whether all went well.
void ProgramGuard::guardSaveQuestion(QMessageBox *box)
{
    ClickGate *gate = new ClickGate(box->button(QMessageBox::Save));
    gate->onClick([this, gate, box] {
        gate->drop();
        m_wantsSave = true;
        box->button(QMessageBox::Cancel)->click();
        // A command that came by no key ends without a word.
        HostCompat::callLater(this, [this] {
            if (m_wantsSave && m_commands.running() == WindowCommands::None) {
                m_wantsSave = false;
                m_commands.press(WindowCommands::Save);
            }
        });
    });
}

void ProgramGuard::guardRemoveQuestion(QMessageBox *box)
{
    const QString name = m_picked;
    const QPointer<ClickGate> gate(new ClickGate(box->button(QMessageBox::Yes)));
    gate->onClick([this, gate, name] {
        if (!mayDropChanges(name)) {
            if (gate)
                gate->drop();
            return;
        }
        m_keeper.keep(programPath(name), [this, gate](bool mayWrite) {
            if (!gate)
                return;
            m_isRemovalPassed = mayWrite;
            if (mayWrite)
                gate->pass();
            else
                gate->drop();
        });
    });
}

bool ProgramGuard::mayDropChanges(const QString &name)
{
    if (programPath(name) != m_window->getCurrentFile() || !m_editor->document()->isModified())
        return true;
    return m_questioner->ask({tr("Remove"),
                              tr("%1 is open, with changes that are not saved. They are lost with "
                                 "it.")
                                  .arg(name),
                              {tr("Cancel"), tr("Remove it")}})
           == 1;
}

void ProgramGuard::endRemove()
{
    if (m_isRemovalPassed && !m_wasRemoved)
        Q_EMIT told(tr("%1 could not be removed: it is still there.").arg(m_picked),
                    Message::Warning);
}
