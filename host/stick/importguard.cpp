// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "stick/importguard.h"

#include "base/clickgate.h"
#include "base/hostcompat.h"
#include "base/questioner.h"
#include "importmanage.h"
#include "programs/programhistory.h"
#include "stick/stick.h"
#include "stick/transfernames.h"

#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QRegExp>

namespace {

// As many as a question on the smallest panel has lines for.
const int namesShown = 3;
const int lettersShown = 24;
// Longer, and an operator wonders whether the key was hit.
const int momentMs = 300;
// What messages are about.
const QLatin1String stickCause("stick");
const char stickIn[] = "filarixStickIn";

// The library's texts; not written into tr(), which would have them translated once more for us.
const struct
{
    const char *text;
    TransferReport::Command command;
} keys[] = {
    {">>", TransferReport::CopyToStick},
    {"<<", TransferReport::CopyToPanel},
    {">Del", TransferReport::DeleteFromPanel},
    {"Del<", TransferReport::DeleteFromStick},
};

struct Unsafe
{
    QString folder;
    QString name;
    QString safeName;
};

QList<Unsafe> unsafeIn(const QString &folder)
{
    QList<Unsafe> files;
    QStringList taken;
    const QStringList names = TransferNames::unsafeIn(folder);
    if (!names.isEmpty())
        taken = QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System);
    for (const QString &name : names) {
        files.append({folder, name, TransferNames::proposal(name, taken)});
        taken.append(files.last().safeName);
    }
    return files;
}

/// A name may hold anything, line ends too. Two names may differ at the end alone.
QString shown(const QString &fileName)
{
    QString name = fileName.simplified();
    if (name.size() <= lettersShown)
        return name;
    const QLatin1String gap("...");
    const int kept = (lettersShown - 3) / 2;
    return name.left(lettersShown - 3 - kept) + gap + name.right(kept);
}

Question question(const QList<Unsafe> &files)
{
    Question question(ImportGuard::tr("File names"),
                      ImportGuard::tr("The transfer cannot take these file names. Nothing is "
                                      "copied or deleted until they are renamed."),
                      {ImportGuard::tr("Leave them"), ImportGuard::tr("Rename")});
    for (const Unsafe &file : files.mid(0, namesShown))
        question.things.append(shown(file.name) + QString::fromUtf8(" \u2192 ")
                               + shown(file.safeName));
    if (files.size() > namesShown)
        question.things.append(ImportGuard::tr("and %1 more").arg(files.size() - namesShown));
    return question;
}

QString chosenName(const QListView *view)
{
    return view->currentIndex().data().toString();
}

/// The programs' view comes first.
QString chosenName(const ImportManage *manager, TransferReport::Command command)
{
    const bool isPanels =
        command == TransferReport::CopyToStick || command == TransferReport::DeleteFromPanel;
    return chosenName(manager->findChildren<QListView *>().at(isPanels ? 0 : 1));
}

bool choosesUnsafeName(const ImportManage *manager)
{
    const QList<QListView *> views = manager->findChildren<QListView *>();
    for (const QListView *view : views) {
        const QString name = chosenName(view);
        if (!name.isEmpty() && !TransferNames::isSafe(name))
            return true;
    }
    return false;
}

} // namespace

/// What the folders hold at a press.
struct Q_DECL_HIDDEN ImportGuard::Look
{
    bool isStickIn = false;
    QList<Unsafe> unsafe;
};

ImportGuard::ImportGuard(const QString &programDir, const QString &stickDir, Questioner *questioner,
                         ProgramHistory *history, QObject *parent)
    : QObject(parent)
    , m_programDir(programDir)
    , m_stickDir(stickDir)
    , m_questioner(questioner)
    , m_history(history)
{
    qApp->installEventFilter(this);
}

bool ImportGuard::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Show)
        return false;
    if (ImportManage *manager = qobject_cast<ImportManage *>(watched))
        watch(manager);
    else if (QMessageBox *box = qobject_cast<QMessageBox *>(watched))
        watch(box);
    return false;
}

bool ImportGuard::isBusy() const
{
    return isBusyBeside(Gate());
}

/// A gate that asks holds its press already.
bool ImportGuard::isBusyBeside(const Gate &gate) const
{
    return m_job.isRunning() || m_isAsking || (m_held && m_held != gate && m_held->isHolding());
}

void ImportGuard::watch(ImportManage *manager)
{
    const QList<QPushButton *> buttons = manager->findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button->findChild<ClickGate *>())
            continue;
        for (const auto &key : keys) {
            if (button->text() != ImportManage::tr(key.text))
                continue;
            const Gate gate = new ClickGate(button);
            const TransferReport::Command command = key.command;
            gate->onClick([this, gate, manager, command] { press(gate, manager, command); });
            connect(gate, SIGNAL(passed()), this, SLOT(report()));
        }
    }
}

/// A manager's question whether to cover or to delete.
void ImportGuard::watch(QMessageBox *box)
{
    QAbstractButton *yes = box->button(QMessageBox::Yes);
    if (!yes || !qobject_cast<ImportManage *>(box->parentWidget()) || yes->findChild<ClickGate *>())
        return;
    const Gate gate = new ClickGate(yes);
    gate->onClick([this, gate] { confirm(gate); });
}

/// The path of the program directory becomes part of the command lines as it is, too.
bool ImportGuard::isProgramDirSafe() const
{
    return QRegExp(QLatin1String("[A-Za-z0-9_./+-]+")).exactMatch(m_programDir);
}

void ImportGuard::press(const Gate &gate, ImportManage *manager, TransferReport::Command command)
{
    if (isBusyBeside(gate))
        return drop(gate);
    if (!isProgramDirSafe()) {
        Q_EMIT told(tr("No transfer: the path %1 holds characters that the transfer would not take "
                       "for what they are.")
                        .arg(m_programDir),
                    Message::Warning, stickCause);
        return drop(gate);
    }
    m_manager = manager;
    m_report = std::make_shared<TransferReport>(command, m_programDir, m_stickDir,
                                                chosenName(manager, command));
    hold(gate);
}

void ImportGuard::confirm(const Gate &gate)
{
    if (isBusyBeside(gate) || !m_report)
        return drop(gate);
    hold(gate);
}

void ImportGuard::hold(const Gate &gate)
{
    m_held = gate;
    HostCompat::callAfter(momentMs, gate, [this, gate] {
        if (gate->isHolding() && !m_isAsking)
            Q_EMIT told(tr("One moment: the panel looks at the programs and the stick."),
                        Message::Information, stickCause);
    });
    look([this, gate](const Look &look) { judge(gate, look); },
         [this, gate] {
             tellStall();
             drop(gate);
         });
}

void ImportGuard::drop(const Gate &gate)
{
    if (gate)
        gate->drop();
}

void ImportGuard::look(const std::function<void(const Look &)> &then, const FileJob::Work &stalled)
{
    const std::shared_ptr<Look> look = std::make_shared<Look>();
    const std::shared_ptr<TransferReport> report = m_report;
    const QString programDir = m_programDir;
    const QString stickDir = m_stickDir;
    m_job.run(
        [=] {
            look->isStickIn = Stick::isPresent();
            look->unsafe = unsafeIn(programDir);
            if (look->isStickIn)
                look->unsafe += unsafeIn(stickDir);
            if (report)
                report->lookBefore();
        },
        [look, then] { then(*look); }, stalled);
}

void ImportGuard::judge(const Gate &gate, const Look &look)
{
    if (!gate || !m_manager)
        return;
    if (!look.isStickIn && m_report->needsStick()) {
        Q_EMIT told(tr("No stick is in: nothing was copied or deleted."), Message::Warning,
                    stickCause);
        m_manager->init();
        return drop(gate);
    }
    judgeNames(gate, look);
}

void ImportGuard::judgeNames(const Gate &gate, const Look &look)
{
    if (!look.unsafe.isEmpty()) {
        ask(look, [this](Settled) {
            if (m_manager)
                m_manager->init();
        });
        return drop(gate);
    }
    // The operator may have chosen something else meanwhile.
    if (choosesUnsafeName(m_manager)
        || chosenName(m_manager, m_report->command()) != m_report->name()) {
        m_manager->init();
        return drop(gate);
    }
    waitForHistory(gate);
}

void ImportGuard::waitForHistory(const Gate &gate)
{
    if (!m_history || !m_report->changesPrograms())
        return gate->pass();
    m_history->whenSettled(gate, [this, gate] { passUnlessLost(gate); });
}

/// The first press of two opens the question whether to cover or to delete.
void ImportGuard::passUnlessLost(const Gate &gate)
{
    const bool isFirst = qobject_cast<ImportManage *>(gate->button()->window());
    const bool mayPass =
        isFirst || m_history->isKept(m_report->name()) || mayLose(m_report->name());
    if (!gate)
        return;
    if (mayPass)
        gate->pass();
    else
        gate->drop();
}

bool ImportGuard::mayLose(const QString &name)
{
    const QString reason = m_history->reasonNotKept(name);
    return isConfirmed({tr("History"),
                        tr("What %1 is now would be lost.").arg(name),
                        {tr("Cancel"), tr("All the same")},
                        {reason}});
}

/// Whether the operator wants the second of two answers. The guard may be gone by then, and nothing
/// is wanted any more.
bool ImportGuard::isConfirmed(const Question &question)
{
    const QPointer<ImportGuard> guard(this);
    m_isAsking = true;
    const int answer = m_questioner->ask(question);
    if (!guard)
        return false;
    m_isAsking = false;
    return answer == 1;
}

void ImportGuard::settle(const std::function<void(Settled)> &then)
{
    if (isBusy())
        return;
    m_report.reset();
    look(
        [this, then](const Look &look) {
            if (look.unsafe.isEmpty())
                then(WereSafe);
            else
                ask(look, then);
        },
        [this, then] {
            tellStall();
            then(NotSettled);
        });
}

void ImportGuard::settleNewStick(const DeviceState &state)
{
    // A member would shift those of the hosts' classes that derive from this one.
    const bool wasIn = property(stickIn).toBool();
    setProperty(stickIn, state.stickIn);
    if (state.stickIn && !wasIn)
        settle();
}

void ImportGuard::ask(const Look &look, const std::function<void(Settled)> &then)
{
    const QPointer<ImportGuard> guard(this);
    const bool isWanted = isConfirmed(question(look.unsafe));
    if (!guard)
        return;
    if (isWanted)
        return renameAll(look, then);
    Q_EMIT told(tr("Not renamed. Import and export stay closed until the names are safe."),
                Message::Warning, stickCause);
    then(NotSettled);
}

void ImportGuard::renameAll(const Look &look, const std::function<void(Settled)> &then)
{
    const QList<Unsafe> files = look.unsafe;
    const std::shared_ptr<int> failed = std::make_shared<int>(0);
    m_job.run(
        [files, failed] {
            for (const Unsafe &file : files) {
                if (!TransferNames::rename(file.folder, file.name, file.safeName))
                    ++*failed;
            }
        },
        [this, files, failed, then] {
            if (*failed > 0) {
                Q_EMIT told(tr("Files that could not be renamed: %1. Is the stick write-protected?")
                                .arg(*failed),
                            Message::Warning, stickCause);
            } else {
                Q_EMIT causeEnded(stickCause);
                Q_EMIT told(tr("Files renamed: %1.").arg(files.size()), Message::Information);
            }
            Q_EMIT filesChanged();
            then(*failed > 0 ? NotSettled : Renamed);
        },
        [this, then] {
            tellStall();
            then(NotSettled);
        });
}

void ImportGuard::tellStall()
{
    Q_EMIT told(tr("The stick does not answer: nothing was copied, deleted or renamed. Pull it and "
                   "plug it in again."),
                Message::Alarm, stickCause);
}

void ImportGuard::report()
{
    const std::shared_ptr<TransferReport> report = std::move(m_report);
    m_report.reset();
    if (!report || report->name().isEmpty())
        return;
    const std::shared_ptr<TransferReport::Outcome> outcome =
        std::make_shared<TransferReport::Outcome>(TransferReport::Nothing);
    m_reports.post([report, outcome] { *outcome = report->judge(); },
                   [this, report, outcome] { tellOutcome(*report, *outcome); });
}

void ImportGuard::tellOutcome(const TransferReport &report, TransferReport::Outcome outcome)
{
    const bool isToStick = report.needsStick() && !report.changesPrograms();
    const QString name = report.name();
    const auto good = [this](const QString &text) {
        Q_EMIT causeEnded(stickCause);
        Q_EMIT told(text, Message::Information);
        Q_EMIT filesChanged();
    };
    const auto bad = [this](const QString &text, Message::Tone tone) {
        Q_EMIT told(text, tone, stickCause);
        Q_EMIT filesChanged();
    };
    switch (outcome) {
    case TransferReport::Nothing:
        break;
    case TransferReport::Copied:
        good(isToStick ? tr("%1 is copied to the stick, and compared.").arg(name)
                       : tr("%1 is copied to the panel, and compared.").arg(name));
        break;
    case TransferReport::Deleted:
        good(isToStick ? tr("%1 is deleted from the stick.").arg(name)
                       : tr("%1 is deleted from the panel.").arg(name));
        break;
    case TransferReport::NotCopied:
        bad(tr("%1 was not copied.").arg(name), Message::Warning);
        break;
    case TransferReport::Lost:
        bad(isToStick ? tr("%1 was not copied, and the one on the stick is gone.").arg(name)
                      : tr("%1 was not copied, and the panel's own is gone: bring it back from the "
                           "history.")
                            .arg(name),
            Message::Alarm);
        break;
    case TransferReport::Different:
        bad(tr("The copy of %1 is not what was to be copied. Is there space left? Copy it once "
               "more.")
                .arg(name),
            Message::Alarm);
        break;
    }
}
