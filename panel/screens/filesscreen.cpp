// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/filesscreen.h"

#include "filarixpanel.h"
#include "look/elidedlabel.h"
#include "look/livetext.h"
#include "look/look.h"
#include "look/measures.h"
#include "look/panelkey.h"
#include "look/taparea.h"
#include "programs/programdirectory.h"
#include "programs/programhistory.h"
#include "screens/historydialog.h"
#include "screens/pathpicker.h"
#include "stick/importguard.h"
#include "stick/stick.h"

#include <QApplication>
#include <QGridLayout>
#include <QScreen>
#include <QVBoxLayout>

namespace {

const int narrowPixels = 12;
const int narrowLines = 2;
// Farther away, a key is no longer seen to belong to its line.
const int reach = 800;
// What messages are about.
const QLatin1String stickCause("stick");

int panelWidth()
{
    return QGuiApplication::primaryScreen()->availableSize().width();
}

bool isNarrow()
{
    return panelWidth() < FilarixPanel::smallBelow;
}

PanelKey *darkKey(Glyphs::Glyph glyph, const std::function<QString()> &text)
{
    return new PanelKey(Glyphs::icon(glyph, Glyphs::OnKey), text);
}

} // namespace

FilesScreen::FilesScreen(Stick *stick, ProgramHistory *history, QWidget *parent)
    : FilesScreen(stick, history, usualLooks(), parent)
{}

FilesScreen::FilesScreen(Stick *stick, ProgramHistory *history, const Looks &looks, QWidget *parent)
    : PanelScreen(parent)
    , m_stick(stick)
    , m_history(history)
    , m_guard(new ImportGuard(ProgramDirectory::path(), Stick::mountPoint(), &m_questioner, history,
                              this))
    , m_stickWatch(new FolderWatch(looks.stick, this))
    , m_programWatch(new FolderWatch(looks.programs, this))
    , m_grid(new QGridLayout)
    , m_plugKey(darkKey(Glyphs::Plug, [] { return tr("Plug"); }))
    , m_pullKey(darkKey(Glyphs::Pull, [] { return tr("Pull"); }))
    , m_renameKey(darkKey(Glyphs::Rename, [] { return tr("Rename"); }))
    , m_historyKey(darkKey(Glyphs::History, [] { return tr("History"); }))
{
    Look::dress(this, Look::KeyPanel);
    PanelKey *importKey =
        new PanelKey(QIcon(QLatin1String(":/images/importExport.png")), [] { return tr("I/E"); });
    PanelKey *pickKey = darkKey(Glyphs::Files, [] { return tr("Pick"); });
    m_stickState = addLine([] { return tr("Stick"); }, {m_plugKey, m_pullKey});
    m_nameState = addLine([] { return tr("Names"); }, {m_renameKey});
    m_storageState = addLine([] { return tr("Programs"); }, {m_historyKey, importKey});
    m_pathState = addLine([] { return tr("Path"); }, {pickKey});
    m_grid->setContentsMargins(12, 6, 6, 6);
    m_grid->setRowStretch(m_grid->rowCount(), 1);
    m_grid->setColumnStretch(0, 1);
    // Keys of one width, where that leaves the texts room.
    if (!isNarrow()) {
        m_grid->setColumnMinimumWidth(1, 2 * Measures::touch());
        m_grid->setColumnMinimumWidth(2, 2 * Measures::touch());
    }
    m_grid->setColumnMinimumWidth(3, qMax(0, panelWidth() - reach));
    setLayout(m_grid);

    connect(m_plugKey, &PanelKey::clicked, this, &FilesScreen::plug);
    connect(m_pullKey, &PanelKey::clicked, this, &FilesScreen::pull);
    connect(m_renameKey, &PanelKey::clicked, this, &FilesScreen::rename);
    connect(importKey, &PanelKey::clicked, this, &FilesScreen::importWanted);
    connect(pickKey, &PanelKey::clicked, this, &FilesScreen::pick);
    connect(m_historyKey, &PanelKey::clicked, this, &FilesScreen::showHistory);
    connect(m_history, &ProgramHistory::versionsChanged, this, &FilesScreen::refreshStatus);
    connect(m_history, &ProgramHistory::versionsChanged, this, &FilesScreen::showState);
    connect(m_history, &ProgramHistory::worked, this,
            [this](const QString &text, int percent) { Q_EMIT worked(text, percent); });
    connect(m_history, &ProgramHistory::told, this, &FilesScreen::told);
    connect(m_history, &ProgramHistory::causeEnded, this, &FilesScreen::causeEnded);
    connect(m_guard, &ImportGuard::told, this, &FilesScreen::told);
    connect(m_guard, &ImportGuard::causeEnded, this, &FilesScreen::causeEnded);
    connect(m_guard, &ImportGuard::filesChanged, this, &FilesScreen::refreshStatus);
    connect(m_stickWatch, &FolderWatch::changed, this, &FilesScreen::showState);
    connect(m_programWatch, &FolderWatch::changed, this, &FilesScreen::showState);
    connect(&m_stickJob, &FileJob::finished, this, &FilesScreen::showState);
    showState();
}

FilesScreen::Looks FilesScreen::usualLooks()
{
    const QString programDir = ProgramDirectory::path();
    Looks looks;
    looks.programs = [programDir] { return FolderWatch::lookAt(programDir); };
    looks.stick = [] {
        if (Stick::isPresent())
            return FolderWatch::lookAt(Stick::mountPoint());
        FolderState out;
        out.isKnown = true;
        return out;
    };
    return looks;
}

void FilesScreen::setPatience(int ms)
{
    m_stickWatch->setPatience(ms);
    m_programWatch->setPatience(ms);
    m_stickJob.setStallTime(ms);
}

QString FilesScreen::title() const
{
    return tr("Files and stick");
}

ElidedLabel *FilesScreen::addLine(const std::function<QString()> &heading,
                                  const QList<PanelKey *> &keys)
{
    const int row = m_grid->rowCount();
    QLabel *name = new QLabel;
    new LiveText(name, heading);
    QFont font = name->font();
    font.setBold(true);
    if (isNarrow())
        font.setPixelSize(narrowPixels);
    name->setFont(font);
    ElidedLabel *state = new ElidedLabel;
    // The end of a path may not fit; a touch tells it in full.
    TapArea *block = new TapArea;
    QVBoxLayout *texts = new QVBoxLayout(block);
    texts->setContentsMargins(0, 0, 0, 0);
    texts->setSpacing(0);
    texts->addStretch();
    texts->addWidget(name);
    texts->addWidget(state);
    texts->addStretch();
    m_grid->addWidget(block, row, 0);
    state->setObjectName(QLatin1String("fileState"));
    if (isNarrow()) {
        state->setLines(narrowLines);
        state->keepLines(narrowLines);
    }
    connect(block, &TapArea::touched, this, [this, state] { Q_EMIT explained(state->text()); });
    for (int i = 0; i < keys.size(); ++i) {
        keys.at(i)->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
        // A line with one key has it at the edge, under the last of two.
        m_grid->addWidget(keys.at(i), row, keys.size() == 1 ? 2 : 1 + i);
    }
    return state;
}

void FilesScreen::refreshStatus()
{
    if (isVisible())
        lookAtFolders();
}

void FilesScreen::showEvent(QShowEvent *event)
{
    lookAtFolders();
    PanelScreen::showEvent(event);
}

void FilesScreen::lookAtFolders()
{
    m_stickWatch->look();
    m_programWatch->look();
}

void FilesScreen::showDevices(const DeviceState &state)
{
    if (state.isKnown)
        noteStick(state.stickIn);
}

void FilesScreen::noteStick(bool isIn)
{
    if (isIn == m_wasPresent)
        return;
    m_wasPresent = isIn;
    lookAtFolders();
    Q_EMIT causeEnded(stickCause);
    // A box over another dialog would come as a surprise; the guard asks at the next press anyway.
    if (isIn && !QApplication::activeModalWidget())
        m_guard->settle([this](ImportGuard::Settled settled) {
            if (settled == ImportGuard::WereSafe)
                Q_EMIT told(tr("The stick is in; all file names are safe."), Message::Information);
        });
}

void FilesScreen::retranslate()
{
    showState();
}

bool FilesScreen::mayPlug() const
{
    return m_stick->isSimulated();
}

void FilesScreen::plug()
{
    Stick stick = *m_stick;
    const std::shared_ptr<QString> error = std::make_shared<QString>();
    m_stickJob.run([stick, error]() mutable { stick.plug(error.get()); },
                   [this, error] {
                       if (error->isEmpty())
                           noteStick(true);
                       else
                           tellRefusal(*error);
                       Q_EMIT stickMoved();
                   },
                   [this] { tellStall(); });
    showState();
}

void FilesScreen::pull()
{
    Stick stick = *m_stick;
    m_stickJob.run([stick]() mutable { stick.pull(); },
                   [this] {
                       noteStick(false);
                       Q_EMIT stickMoved();
                       Q_EMIT told(tr("The stick is out."), Message::Information);
                   },
                   [this] { tellStall(); });
    showState();
}

/// The start script gives the panel a mount point and a marker of its own.
void FilesScreen::tellRefusal(const QString &reason)
{
    Q_EMIT told(reason + QLatin1Char(' ')
                    + tr("To try a stick, start the panel by \"./run --stick DIR\"."),
                Message::Warning, stickCause);
}

void FilesScreen::tellStall()
{
    Q_EMIT told(tr("The stick does not answer."), Message::Alarm, stickCause);
}

void FilesScreen::rename()
{
    m_guard->settle([this](ImportGuard::Settled) { refreshStatus(); });
}

void FilesScreen::pick()
{
    const QString start =
        m_stickWatch->state().isThere ? Stick::mountPoint() : ProgramDirectory::path();
    const QString path = PathPicker::pick(tr("Pick a path"), start);
    if (!path.isEmpty())
        m_pickedPath = path;
    showState();
}

void FilesScreen::showHistory()
{
    HistoryDialog dialog(m_history->versions());
    if (dialog.exec() == QDialog::Accepted)
        m_history->restore(dialog.version());
}

void FilesScreen::stopWork(const QString &)
{
    m_history->stopRestoring();
}

void FilesScreen::showState()
{
    m_historyKey->setEnabled(!m_history->versions().isEmpty());
    showStick();
    showNames();
    showPrograms();
    m_pathState->setText(m_pickedPath.isEmpty() ? tr("None picked yet") : m_pickedPath);
}

void FilesScreen::showStick()
{
    const FolderState state = m_stickWatch->state();
    const bool isIdle = !m_stickJob.isRunning();
    m_plugKey->setVisible(m_stick->isSimulated());
    m_pullKey->setVisible(m_stick->isSimulated());
    m_plugKey->setEnabled(isIdle && !state.isThere);
    m_pullKey->setEnabled(isIdle && state.isThere);
    const QString what =
        m_stick->isSimulated() ? tr("simulated: %1").arg(m_stick->folder()) : Stick::mountPoint();
    if (m_stickWatch->isOverdue())
        m_stickState->setText(tr("Does not answer. ") + what);
    else if (!state.isKnown)
        m_stickState->setText(tr("Loading ..."));
    else
        m_stickState->setText(state.isThere ? tr("In. Files: %1, ").arg(state.files) + what
                                            : tr("Out. ") + what);
}

void FilesScreen::showNames()
{
    const FolderState stick = m_stickWatch->state();
    const FolderState programs = m_programWatch->state();
    const int unsafe = stick.unsafeNames + programs.unsafeNames;
    m_renameKey->setEnabled(unsafe > 0);
    if (!stick.isKnown || !programs.isKnown)
        m_nameState->setText(tr("Loading ..."));
    else
        m_nameState->setText(unsafe == 0 ? tr("All are safe for the transfer")
                                         : tr("Names that are not safe: %1").arg(unsafe));
}

void FilesScreen::showPrograms()
{
    const FolderState state = m_programWatch->state();
    if (m_programWatch->isOverdue())
        m_storageState->setText(tr("The panel's storage does not answer."));
    else if (!state.isKnown)
        m_storageState->setText(tr("Loading ..."));
    else
        m_storageState->setText(tr("Files: %1, ").arg(state.files)
                                + tr("%1 KB of %2 MB")
                                      .arg((state.bytes + 1023) / 1024)
                                      .arg(FilarixPanel::programSpace / (1024 * 1024)));
}
