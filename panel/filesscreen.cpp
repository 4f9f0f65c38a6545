// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filesscreen.h"

#include "elidedlabel.h"
#include "historydialog.h"
#include "importguard.h"
#include "livetext.h"
#include "look.h"
#include "panelkey.h"
#include "pathpicker.h"
#include "programhistory.h"
#include "samples.h"
#include "stick.h"
#include "touchblock.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QScreen>
#include <QVBoxLayout>

namespace {

// What the import manager lets in altogether.
const qint64 kProgramSpace = 31457280;
const int kWideFrom = 400;
const int kNarrowPixels = 12;
// Farther away, a key is no longer seen to belong to its line.
const int kReach = 800;

int panelWidth()
{
    return QGuiApplication::primaryScreen()->availableSize().width();
}

bool isNarrow()
{
    return panelWidth() < kWideFrom;
}

PanelKey *darkKey(Glyphs::Glyph glyph, const std::function<QString()> &text)
{
    return new PanelKey(Glyphs::icon(glyph, Glyphs::OnKey), text);
}

} // namespace

FilesScreen::FilesScreen(Stick *stick, ProgramHistory *history, QWidget *parent)
    : PanelScreen(parent)
    , m_stick(stick)
    , m_history(history)
    , m_guard(new ImportGuard(Samples::programDir(), Stick::mountPoint(), this))
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
        m_grid->setColumnMinimumWidth(1, 2 * Look::kTouch);
        m_grid->setColumnMinimumWidth(2, 2 * Look::kTouch);
    }
    m_grid->setColumnMinimumWidth(3, qMax(0, panelWidth() - kReach));
    setLayout(m_grid);

    connect(m_plugKey, &PanelKey::clicked, this, &FilesScreen::plug);
    connect(m_pullKey, &PanelKey::clicked, this, &FilesScreen::pull);
    connect(m_renameKey, &PanelKey::clicked, this, &FilesScreen::rename);
    connect(importKey, &PanelKey::clicked, this, &FilesScreen::importWanted);
    connect(pickKey, &PanelKey::clicked, this, &FilesScreen::pick);
    connect(m_historyKey, &PanelKey::clicked, this, &FilesScreen::showHistory);
    connect(m_history, &ProgramHistory::versionsChanged, this, &FilesScreen::showState);
    connect(m_history, &ProgramHistory::worked, this, &FilesScreen::worked);
    connect(m_history, &ProgramHistory::told, this, &FilesScreen::told);
    connect(m_history, &ProgramHistory::told, this, &FilesScreen::showState);
    connect(m_history, &ProgramHistory::causeEnded, this, &FilesScreen::causeEnded);
    connect(m_guard, &ImportGuard::told, this, [this](const QString &text, bool isSettled) {
        Q_EMIT told(text, isSettled ? Message::Information : Message::Warning);
        showState();
    });
    showState();
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
        font.setPixelSize(kNarrowPixels);
    name->setFont(font);
    ElidedLabel *state = new ElidedLabel;
    // The end of a path may not fit; a touch tells it in full.
    TouchBlock *block = new TouchBlock;
    QVBoxLayout *texts = new QVBoxLayout(block);
    texts->setContentsMargins(0, 0, 0, 0);
    texts->setSpacing(0);
    texts->addStretch();
    texts->addWidget(name);
    texts->addWidget(state);
    texts->addStretch();
    m_grid->addWidget(block, row, 0);
    state->setObjectName(QLatin1String("fileState"));
    connect(block, &TouchBlock::touched, this,
            [this, state] { Q_EMIT told(state->text(), Message::Information); });
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
        showState();
}

void FilesScreen::showEvent(QShowEvent *event)
{
    showState();
    PanelScreen::showEvent(event);
}

void FilesScreen::showDevices(const DeviceState &state)
{
    if (state.isKnown && state.stickIn != m_wasPresent)
        lookAtStick();
}

void FilesScreen::lookAtStick()
{
    const bool present = m_stick->isPresent();
    const bool arrived = present && !m_wasPresent;
    m_wasPresent = present;
    showState();
    // A box over another dialog would come as a surprise; the guard asks at the next press anyway.
    if (arrived && !QApplication::activeModalWidget()) {
        if (m_guard->unsafeFiles().isEmpty())
            Q_EMIT told(tr("The stick is in; all file names are safe."), Message::Information);
        else
            m_guard->settle();
    }
}

void FilesScreen::retranslate()
{
    showState();
}

void FilesScreen::plug()
{
    QString error;
    if (!m_stick->plug(&error))
        Q_EMIT told(error, Message::Warning);
    Q_EMIT stickMoved();
    lookAtStick();
}

void FilesScreen::pull()
{
    m_stick->pull();
    Q_EMIT stickMoved();
    lookAtStick();
    Q_EMIT told(tr("The stick is out."), Message::Information);
}

void FilesScreen::rename()
{
    m_guard->settle();
    showState();
}

void FilesScreen::pick()
{
    const QString start = m_stick->isPresent() ? Stick::mountPoint() : Samples::programDir();
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

void FilesScreen::stopWork()
{
    m_history->stopRestoring();
}

void FilesScreen::showState()
{
    m_historyKey->setEnabled(!m_history->versions().isEmpty());
    const bool present = m_stick->isPresent();
    m_plugKey->setVisible(m_stick->isSimulated());
    m_pullKey->setVisible(m_stick->isSimulated());
    m_plugKey->setEnabled(!present);
    m_pullKey->setEnabled(present);
    const QString what =
        m_stick->isSimulated() ? tr("simulated: %1").arg(m_stick->folder()) : Stick::mountPoint();
    const int onStick = QDir(Stick::mountPoint()).entryList(QDir::Files).size();
    m_stickState->setText(present ? tr("In. Files: %1, ").arg(onStick) + what : tr("Out. ") + what);

    const int unsafe = m_guard->unsafeFiles().size();
    m_renameKey->setEnabled(unsafe > 0);
    m_nameState->setText(unsafe == 0 ? tr("All are safe for the transfer")
                                     : tr("Names that are not safe: %1").arg(unsafe));

    qint64 used = 0;
    const QFileInfoList programs = QDir(Samples::programDir()).entryInfoList(QDir::Files);
    for (const QFileInfo &program : programs)
        used += program.size();
    m_storageState->setText(
        tr("Files: %1, ").arg(programs.size())
        + tr("%1 KB of %2 MB").arg((used + 1023) / 1024).arg(kProgramSpace / (1024 * 1024)));
    m_pathState->setText(m_pickedPath.isEmpty() ? tr("None picked yet") : m_pickedPath);
}
