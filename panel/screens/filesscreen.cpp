// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/filesscreen.h"

#include "filarixpanel.h"
#include "guards/pickerfacts.h"
#include "look/elidedlabel.h"
#include "look/look.h"
#include "look/measures.h"
#include "look/panelkey.h"
#include "look/taparea.h"
#include "programs/programdirectory.h"
#include "programs/programhistory.h"
#include "screens/historydialog.h"
#include "screens/pathpicker.h"
#include "screens/programlist.h"
#include "screens/programpicture.h"
#include "stick/importguard.h"
#include "stick/stick.h"

#include <QApplication>
#include <QFileInfo>
#include <QGridLayout>
#include <QScreen>
#include <QVBoxLayout>

namespace {

const int edge = 4;
const int namePixels = 16;
const int factsPixels = 14;
const int smallPixels = 12;
const int narrowLines = 2;
// Beside the keys of a small panel, below the list of a slim one, below all of the others.
const int smallColumns = 2;
const int slimColumns = 3;
const int uprightColumns = 4;
// Of the screen alone, without the strips.
const int smallHeight = 300;
// The list with its dates takes more than the picture.
const int listShare = 11;
const int pictureShare = 9;
const int pictureHeightShare = 5;
const int factsHeightShare = 4;
const int uprightListShare = 5;
const int uprightFactsShare = 3;
// Work that takes less is over before anybody has read that it is done.
const int workPatienceMs = 300;
const int bytesPerKilobyte = 1024;
const int bytesPerMegabyte = 1024 * 1024;

// What messages are about.
const QLatin1String stickCause("stick");
const QLatin1String checkCause("stored program");
// Names of work.
const QLatin1String checkWork("check");
const QLatin1String readWork("read");

QIcon keyIcon(Glyphs::Glyph glyph)
{
    return Glyphs::icon(glyph, Glyphs::OnKey);
}

QFont sized(QFont font, int pixels, bool isBold = false)
{
    font.setPixelSize(pixels);
    font.setBold(isBold);
    return font;
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
    , m_folder(new ProgramFolder(looks.list, this))
    , m_profile(&MachineProfile::forSamples)
    , m_grid(new QGridLayout(this))
    , m_keyGrid(new QGridLayout)
    , m_keyPanel(new QWidget)
    , m_list(new ProgramList(m_folder))
    , m_name(new QLabel)
    , m_facts(new PickerFacts(ProgramDirectory::path(), MachineProfile::forSamples(), false, this))
    , m_picture(new ProgramPicture(this))
    , m_stateArea(new TapArea)
    , m_state(new ElidedLabel)
    , m_openKey(addKey(keyIcon(Glyphs::Program), [] { return tr("Open"); }))
    , m_checkKey(addKey(keyIcon(Glyphs::Check), [] { return tr("Check"); }))
    , m_historyKey(addKey(keyIcon(Glyphs::History), [] { return tr("History"); }))
    , m_importKey(addKey(keyIcon(Glyphs::Exchange), [] { return tr("I/E"); }))
    , m_renameKey(addKey(keyIcon(Glyphs::Rename), [] { return tr("Rename"); }))
    , m_browseKey(addKey(keyIcon(Glyphs::Files), [] { return tr("Browse"); }))
    , m_plugKey(addKey(keyIcon(Glyphs::Plug), [] { return tr("Plug"); }))
    , m_pullKey(addKey(keyIcon(Glyphs::Pull), [] { return tr("Pull"); }))
{
    Look::dress(m_keyPanel, Look::KeyPanel);
    m_keyGrid->setContentsMargins(edge, edge, edge, edge);
    m_keyGrid->setSpacing(edge);
    m_keyPanel->setLayout(m_keyGrid);
    m_name->setObjectName(QLatin1String("programName"));
    m_name->setTextFormat(Qt::PlainText);
    m_name->setWordWrap(true);
    m_name->setMargin(edge);
    m_name->setFont(sized(m_name->font(), namePixels, true));
    // Facts never push the list away.
    m_facts->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    m_plugKey->setVisible(mayPlug());
    m_pullKey->setVisible(mayPlug());
    makeState();
    layOut(shapeOf(QGuiApplication::primaryScreen()->availableSize()));
    connectParts();
    lookAtChosen();
    showState();
}

FilesScreen::~FilesScreen() = default;

FilesScreen::Looks FilesScreen::usualLooks()
{
    const QString programDir = ProgramDirectory::path();
    Looks looks;
    looks.programs = [programDir] { return FolderWatch::lookAt(programDir); };
    looks.list = [programDir] { return ProgramFolder::lookAt(programDir); };
    looks.stick = [] {
        if (Stick::isPresent())
            return FolderWatch::lookAt(Stick::mountPoint());
        FolderState out;
        out.isKnown = true;
        return out;
    };
    return looks;
}

PanelKey *FilesScreen::addKey(const QIcon &icon, const std::function<QString()> &text)
{
    PanelKey *key = new PanelKey(icon, text);
    key->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    key->setParent(m_keyPanel);
    m_keys.append(key);
    return key;
}

void FilesScreen::makeState()
{
    m_state->setObjectName(QLatin1String("fileState"));
    QVBoxLayout *column = new QVBoxLayout(m_stateArea);
    column->setContentsMargins(edge, 0, edge, 0);
    column->addWidget(m_state);
    m_stateArea->setMinimumHeight(TapArea::leastHeight());
    connect(m_stateArea, &TapArea::touched, this, [this] { Q_EMIT explained(stateInFull()); });
}

void FilesScreen::connectParts()
{
    connect(m_openKey, &PanelKey::clicked, this, &FilesScreen::open);
    connect(m_list, &ProgramList::openWanted, this, &FilesScreen::open);
    connect(m_checkKey, &PanelKey::clicked, this, &FilesScreen::check);
    connect(m_plugKey, &PanelKey::clicked, this, &FilesScreen::plug);
    connect(m_pullKey, &PanelKey::clicked, this, &FilesScreen::pull);
    connect(m_renameKey, &PanelKey::clicked, this, &FilesScreen::rename);
    connect(m_importKey, &PanelKey::clicked, this, &FilesScreen::importWanted);
    connect(m_browseKey, &PanelKey::clicked, this, &FilesScreen::browse);
    connect(m_historyKey, &PanelKey::clicked, this, &FilesScreen::showHistory);
    connect(m_list, &ProgramList::chosenChanged, this, [this] {
        m_foreign.clear();
        lookAtChosen();
    });
    connect(m_folder, &ProgramFolder::changed, this, &FilesScreen::takeFolder);
    connect(m_facts, &PickerFacts::progressed, this, &FilesScreen::showReading);
    connect(m_facts, &PickerFacts::settled, this, &FilesScreen::showRead);
    connect(&m_checker, &FileTaskRunner::progressed, this, [this](int percent) {
        if (m_checkedFor.elapsed() >= workPatienceMs)
            Q_EMIT worked(tr("%1 is checked: %2 %").arg(m_inspected).arg(percent), percent,
                          checkWork);
    });
    connect(&m_checker, &FileTaskRunner::ended, this, &FilesScreen::endCheck);
    connect(&m_checker, &FileTaskRunner::stopped, this, [this] {
        tellCheck(tr("The check of %1 was stopped.").arg(m_inspected), Message::Information);
    });
    connect(&m_checker, &FileTaskRunner::stalled, this, [this] {
        tellCheck(tr("%1 was not checked: its storage does not answer.").arg(m_inspected),
                  Message::Warning);
    });
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
}

FilesScreen::Shape FilesScreen::shapeOf(const QSize &size)
{
    if (size.width() < FilarixPanel::smallBelow)
        return Slim;
    if (size.height() < smallHeight)
        return Small;
    if (size.width() >= FilarixPanel::wideFrom)
        return Wide;
    return size.width() > size.height() ? Small : Upright;
}

void FilesScreen::resizeEvent(QResizeEvent *event)
{
    const Shape shape = shapeOf(size());
    if (shape != m_shape)
        layOut(shape);
    PanelScreen::resizeEvent(event);
}

/// List, facts and picture; the keys at the side where the panel lies and is small, else at the
/// foot.
void FilesScreen::layOut(Shape shape)
{
    m_shape = shape;
    const bool hasRoom = shape == Wide || shape == Upright;
    while (QLayoutItem *item = m_grid->takeAt(0))
        delete item;
    for (int i = 0; i < m_grid->rowCount(); ++i)
        m_grid->setRowStretch(i, 0);
    for (int i = 0; i < m_grid->columnCount(); ++i)
        m_grid->setColumnStretch(i, 0);
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setSpacing(0);
    // The next shape may be narrower than this one.
    m_grid->setSizeConstraint(QLayout::SetNoConstraint);
    m_keyPanel->setMinimumWidth(shape == Small ? Measures::keyColumn() : 0);
    m_list->showHeads(hasRoom);
    m_picture->setVisible(hasRoom);
    m_facts->setRoom(hasRoom ? PickerFacts::AsManyAsFit : PickerFacts::OneLine);
    m_facts->setFont(sized(m_facts->font(), hasRoom ? factsPixels : smallPixels));
    m_facts->setSizePolicy(QSizePolicy::Ignored,
                           hasRoom ? QSizePolicy::Ignored : QSizePolicy::Preferred);
    m_state->setFont(sized(m_state->font(), hasRoom ? factsPixels : smallPixels));
    m_state->setLines(hasRoom ? 1 : narrowLines);
    m_state->keepLines(hasRoom ? 1 : narrowLines);
    switch (shape) {
    case Wide:
        m_grid->addWidget(m_list, 0, 0, 3, 1);
        m_grid->addWidget(m_picture, 0, 1);
        m_grid->addWidget(m_name, 1, 1);
        m_grid->addWidget(m_facts, 2, 1);
        m_grid->addWidget(m_stateArea, 3, 0, 1, 2);
        m_grid->addWidget(m_keyPanel, 4, 0, 1, 2);
        m_grid->setColumnStretch(0, listShare);
        m_grid->setColumnStretch(1, pictureShare);
        m_grid->setRowStretch(0, pictureHeightShare);
        m_grid->setRowStretch(2, factsHeightShare);
        return layOutKeys(m_keys.size());
    case Upright:
        m_grid->addWidget(m_list, 0, 0, 1, 2);
        m_grid->addWidget(m_picture, 1, 0, 2, 1);
        m_grid->addWidget(m_name, 1, 1);
        m_grid->addWidget(m_facts, 2, 1);
        m_grid->addWidget(m_stateArea, 3, 0, 1, 2);
        m_grid->addWidget(m_keyPanel, 4, 0, 1, 2);
        m_grid->setColumnStretch(0, 1);
        m_grid->setColumnStretch(1, 1);
        m_grid->setRowStretch(0, uprightListShare);
        m_grid->setRowStretch(2, uprightFactsShare);
        return layOutKeys(uprightColumns);
    case Small:
    case Slim:
        m_grid->addWidget(m_list, 0, 0);
        m_grid->addWidget(m_name, 1, 0);
        m_grid->addWidget(m_facts, 2, 0);
        m_grid->addWidget(m_stateArea, 3, 0);
        m_grid->setRowStretch(0, 1);
        m_grid->setColumnStretch(0, 1);
        if (shape == Small)
            m_grid->addWidget(m_keyPanel, 0, 1, 4, 1);
        else
            m_grid->addWidget(m_keyPanel, 4, 0);
        return layOutKeys(shape == Small ? smallColumns : slimColumns);
    }
}

void FilesScreen::layOutKeys(int columns)
{
    while (QLayoutItem *item = m_keyGrid->takeAt(0))
        delete item;
    int index = 0;
    for (PanelKey *key : qAsConst(m_keys)) {
        if (key->isHidden())
            continue;
        m_keyGrid->addWidget(key, index / columns, index % columns);
        ++index;
    }
}

void FilesScreen::setInspector(const Inspector &inspector)
{
    m_inspector = inspector;
    enableKeys();
}

void FilesScreen::setPatience(int ms)
{
    m_stickWatch->setPatience(ms);
    m_programWatch->setPatience(ms);
    m_folder->setPatience(ms);
    m_stickJob.setStallTime(ms);
    m_checker.setStallTime(ms);
    m_facts->setStallTime(ms);
}

QString FilesScreen::title() const
{
    return tr("Files and stick");
}

bool FilesScreen::isWorking() const
{
    return m_history->isRestoring();
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
    m_folder->look();
}

// The chosen program

/// Something is there to be looked at from the first moment on.
void FilesScreen::takeFolder()
{
    if (m_list->chosen().isEmpty() && m_foreign.isEmpty() && m_folder->isKnown())
        m_list->choose(m_list->firstName());
    enableKeys();
}

QString FilesScreen::chosenPath() const
{
    if (!m_foreign.isEmpty())
        return m_foreign;
    return m_list->chosen().isEmpty()
               ? QString()
               : ProgramDirectory::path() + QLatin1Char('/') + m_list->chosen();
}

bool FilesScreen::isUpToDate() const
{
    return m_folder->isKnown() && m_stickWatch->state().isKnown && m_facts->isSettled()
           && (m_picture->isHidden() || !m_picture->isDrawing());
}

void FilesScreen::lookAtChosen()
{
    tellFacts();
    showName();
    enableKeys();
}

void FilesScreen::tellFacts()
{
    const QFileInfo file(chosenPath());
    m_facts->setFolder(file.path());
    m_facts->setProfile(m_profile());
    m_picture->say(chosenPath().isEmpty()
                       ? tr("Touch a program: its facts and its coil are shown here.")
                       : tr("Reading %1 ...").arg(file.fileName()));
    Q_EMIT workEnded(readWork);
    m_readFor.start();
    m_facts->tell(chosenPath().isEmpty() ? QString() : file.fileName());
}

void FilesScreen::showReading(int percent)
{
    if (m_readFor.elapsed() < workPatienceMs)
        return;
    Q_EMIT worked(tr("%1 is read: %2 %").arg(QFileInfo(chosenPath()).fileName()).arg(percent),
                  percent, readWork);
}

void FilesScreen::showRead()
{
    Q_EMIT workEnded(readWork);
    if (chosenPath().isEmpty())
        return;
    const std::shared_ptr<const ProgramSummary> summary = m_facts->summary();
    if (!summary || summary->kind() != ProgramSummary::Program)
        return m_picture->say(QString());
    if (!summary->isWhole())
        return m_picture->say(tr("Too long for a picture here. Open it to see its coil."));
    if (summary->model().layers().isEmpty())
        return m_picture->say(tr("This program winds no wire."));
    m_picture->draw(summary->model());
}

void FilesScreen::showName()
{
    const bool hasRoom = m_shape == Wide || m_shape == Upright;
    m_name->setVisible(!chosenPath().isEmpty() && (hasRoom || !m_foreign.isEmpty()));
    m_name->setText(m_foreign.isEmpty() ? m_list->chosen() : m_foreign);
}

void FilesScreen::open()
{
    if (m_openKey->isEnabled())
        Q_EMIT openWanted(chosenPath());
}

void FilesScreen::check()
{
    m_inspected = QFileInfo(chosenPath()).fileName();
    m_inspection = m_inspector(chosenPath());
    Q_EMIT causeEnded(checkCause);
    m_checkedFor.start();
    m_checker.start(m_inspection);
    enableKeys();
}

void FilesScreen::endCheck()
{
    const ProgramVerdict verdict = m_inspection->verdict();
    if (verdict.state != ProgramVerdict::Checked)
        tellCheck(tr("%1 could not be checked to its end.").arg(m_inspected), Message::Warning);
    else if (verdict.errors == 0 && verdict.warnings == 0)
        tellCheck(tr("%1: nothing found.").arg(m_inspected), Message::Information);
    else
        tellCheck(tr("%1: %2. Open it to see where.").arg(m_inspected, verdict.line()),
                  verdict.errors > 0 ? Message::Alarm : Message::Warning);
}

void FilesScreen::tellCheck(const QString &text, Message::Tone tone)
{
    m_inspection.reset();
    Q_EMIT workEnded(checkWork);
    Q_EMIT told(text, tone, checkCause);
    enableKeys();
}

/// Programs of the panel are chosen in the list; others can be looked at, and not opened.
void FilesScreen::lookAt(const QString &path)
{
    const QFileInfo file(path);
    m_foreign.clear();
    m_list->choose(file.path() == ProgramDirectory::path() ? file.fileName() : QString());
    if (chosenPath() != path)
        m_foreign = path;
    lookAtChosen();
}

void FilesScreen::browse()
{
    const QString start =
        m_stickWatch->state().isThere ? Stick::mountPoint() : ProgramDirectory::path();
    const QString path = PathPicker::pick(tr("Pick a path"), start);
    if (!path.isEmpty())
        lookAt(path);
}

void FilesScreen::showHistory()
{
    HistoryDialog dialog(m_history->versions());
    if (dialog.exec() == QDialog::Accepted)
        m_history->restore(dialog.version());
}

void FilesScreen::stopWork(const QString &work)
{
    if (work == checkWork)
        m_checker.stop();
    else if (work == readWork)
        m_facts->stop();
    else
        m_history->stopRestoring();
}

// The stick

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
    // What was looked at may be on it.
    if (!m_foreign.isEmpty())
        lookAtChosen();
    Q_EMIT causeEnded(stickCause);
    // A box over another dialog would come as a surprise; the guard asks at the next press anyway.
    if (isIn && !QApplication::activeModalWidget())
        m_guard->settle([this](ImportGuard::Settled settled) {
            if (settled == ImportGuard::WereSafe)
                Q_EMIT told(tr("The stick is in; all file names are safe."), Message::Information);
        });
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

// The state of all

void FilesScreen::retranslate()
{
    // Facts are words: they are told anew.
    lookAtChosen();
    showState();
}

void FilesScreen::enableKeys()
{
    const bool isKnown = m_folder->isKnown() && !m_folder->isOverdue();
    const bool isListed =
        isKnown && m_foreign.isEmpty() && m_folder->contents().names.contains(m_list->chosen());
    const bool isStickIdle = !m_stickJob.isRunning();
    m_openKey->setEnabled(isListed);
    m_checkKey->setEnabled(m_inspector && !m_checker.isRunning()
                           && (isListed || !m_foreign.isEmpty()));
    m_historyKey->setEnabled(!m_history->versions().isEmpty());
    m_renameKey->setEnabled(unsafeNames() > 0);
    m_plugKey->setEnabled(isStickIdle && !m_stickWatch->state().isThere);
    m_pullKey->setEnabled(isStickIdle && m_stickWatch->state().isThere);
}

void FilesScreen::showState()
{
    enableKeys();
    QStringList parts{programState(), stickState()};
    if (unsafeNames() > 0)
        parts.append(tr("Unsafe names: %1").arg(unsafeNames()));
    m_state->setText(parts.join(QLatin1String("   ")));
}

int FilesScreen::unsafeNames() const
{
    return m_stickWatch->state().unsafeNames + m_programWatch->state().unsafeNames;
}

QString FilesScreen::stickState() const
{
    const FolderState state = m_stickWatch->state();
    if (m_stickWatch->isOverdue())
        return tr("The stick does not answer.");
    if (!state.isKnown)
        return tr("Stick: looking ...");
    return state.isThere ? tr("Stick: in, files: %1").arg(state.files) : tr("Stick: out");
}

QString FilesScreen::programState() const
{
    const FolderState state = m_programWatch->state();
    if (m_programWatch->isOverdue())
        return tr("The panel's storage does not answer.");
    if (!state.isKnown)
        return tr("Programs: looking ...");
    return tr("Programs: %1, %2 KB of %3 MB")
        .arg(state.files)
        .arg((state.bytes + bytesPerKilobyte - 1) / bytesPerKilobyte)
        .arg(FilarixPanel::programSpace / bytesPerMegabyte);
}

QString FilesScreen::stateInFull() const
{
    const bool isKnown = m_stickWatch->state().isKnown && m_programWatch->state().isKnown;
    QStringList lines{programState(), ProgramDirectory::path(), stickState(), stickInFull()};
    if (isKnown)
        lines.append(unsafeNames() == 0 ? tr("All names are safe for the transfer.")
                                        : tr("Names that are not safe: %1. Rename them by the key "
                                             "Rename.")
                                              .arg(unsafeNames()));
    return lines.join(QLatin1Char('\n'));
}

QString FilesScreen::stickInFull() const
{
    return m_stick->isSimulated() ? tr("simulated: %1").arg(m_stick->folder())
                                  : Stick::mountPoint();
}
