// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/programscreen.h"

#include "guards/programguard.h"
#include "look/barpager.h"
#include "look/look.h"
#include "look/panelkey.h"
#include "programs/plctransfer.h"
#include "programs/programdirectory.h"
#include "programs/programhistory.h"
#include "screens/downloadquestion.h"
#include "screens/machinedata.h"
#include "shell/devicecauses.h"
#include "shell/questiondialog.h"
#include "shell/stateline.h"
#include "stick/stick.h"
#include "wgcodeediter.h"
#include "wmmainwindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QEventLoop>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QTextDocument>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWindow>

namespace {

// Work that takes less is over before anybody has read that it is done.
const int patienceMs = 300;
// Longer than a healthy disk takes for the largest program.
const int closingPatienceMs = 5000;
const int closingTickMs = 50;

QString findDialogText(const char *source)
{
    return QCoreApplication::translate("WFindDialog", source);
}

/// Gives the find dialog's widgets of one kind their texts, in the order in which it made them.
template<class Widget>
void setFindDialogTexts(const QWidget *dialog, std::initializer_list<const char *> sources)
{
    const QList<Widget *> widgets = dialog->findChildren<Widget *>();
    int i = 0;
    for (const char *source : sources) {
        if (i < widgets.size())
            widgets.at(i++)->setText(findDialogText(source));
    }
}

QSet<QToolButton *> buttonsWithoutParent()
{
    QSet<QToolButton *> buttons;
    const QWidgetList topLevels = QApplication::topLevelWidgets();
    for (QWidget *widget : topLevels) {
        if (QToolButton *button = qobject_cast<QToolButton *>(widget))
            buttons.insert(button);
    }
    return buttons;
}

/// The window has buttons that it puts into no bar and gives to nobody: \a spare takes them.
WMMainWindow *makeWindow(QWidget *parent, int rotation, QSet<QToolButton *> *spare)
{
    const QSet<QToolButton *> others = buttonsWithoutParent();
    WMMainWindow *window = new WMMainWindow(parent, rotation);
    *spare = buttonsWithoutParent().subtract(others);
    return window;
}

} // namespace

ProgramScreen::ProgramScreen(int rotation, const QString &plcDir, const QString &ownDir,
                             const MachineData *machine, QWidget *parent)
    : PanelScreen(parent)
    , m_machine(machine)
    , m_window(makeWindow(this, rotation, &m_spareButtons))
    , m_editor(m_window->findChild<WGCodeEditer *>())
    , m_transfer(new PlcTransfer(plcDir, this))
    , m_snapshot(new ProgramSnapshot(ownDir + QLatin1String("/outgoing"), this))
    , m_questioner(new DialogQuestioner)
    , m_guard(new ProgramGuard(m_window, ProgramDirectory::path(), m_questioner.data(), this))
    , m_stateLine(new StateLine)
{
    QVBoxLayout *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_stateLine);
    layout->addWidget(m_window, 1);
    Look::keepLight(m_editor);
    // The line is marked already, in the colour of before.
    QMetaObject::invokeMethod(m_editor, "highlightCurrentLine");
    // The strips hold what they hold: dragged shut they would be lost to a thumb.
    m_window->setChildrenCollapsible(false);
    const QList<QToolBar *> bars = m_window->findChildren<QToolBar *>();
    for (QToolBar *bar : bars)
        new BarPager(bar);

    // The window leaves it to its host whether the modified mark lives.
    QTextDocument *document = m_editor->document();
    connect(document, SIGNAL(modificationChanged(bool)), m_window, SLOT(documentWasModified()));
    connect(document, SIGNAL(contentsChanged()), m_window, SLOT(documentWasModified()));
    m_window->installEventFilter(this);

    connect(m_window, &WMMainWindow::signal_download, this, &ProgramScreen::startDownload);
    connect(m_window, &WMMainWindow::signal_copyFromTag, this, &ProgramScreen::insertTaughtPoint);
    connect(m_snapshot, &ProgramSnapshot::progress, this, &ProgramScreen::showCopying);
    connect(m_snapshot, &ProgramSnapshot::taken, this, &ProgramScreen::askForDownload);
    connect(m_snapshot, &ProgramSnapshot::failed, this,
            [this](const QString &reason) { endDownload(reason, Message::Warning); });
    connect(m_snapshot, &ProgramSnapshot::stopped, this,
            [this](const QString &text) { endDownload(text, Message::Information); });
    connect(m_transfer, &PlcTransfer::progress, this, &ProgramScreen::showSending);
    connect(m_transfer, &PlcTransfer::finished, m_snapshot, &ProgramSnapshot::compare);
    connect(m_transfer, &PlcTransfer::failed, this, &ProgramScreen::endFailed);
    connect(m_transfer, &PlcTransfer::stopped, this, &ProgramScreen::endStopped);
    connect(m_snapshot, &ProgramSnapshot::compared, this, &ProgramScreen::endSent);

    m_guard->setOtherPlace([] { return Stick::isPresent() ? Stick::mountPoint() : QString(); });
    connect(m_guard, &ProgramGuard::told, this, &ProgramScreen::told);
    connect(m_guard, &ProgramGuard::causeEnded, this, &ProgramScreen::causeEnded);
    connect(m_guard, &ProgramGuard::stateChanged, this, &ProgramScreen::showState);
    connect(m_stateLine, &StateLine::touched, this,
            [this] { Q_EMIT explained(m_guard->state().line()); });
}

ProgramScreen::~ProgramScreen()
{
    // Its documents and buttons are the window's.
    delete m_guard;
    delete m_window;
    qDeleteAll(m_spareButtons);
}

void ProgramScreen::setHistory(ProgramHistory *history)
{
    m_guard->setHistory([history](const QString &path, const ProgramKeeper::Kept &kept) {
        const QString name = QFileInfo(path).fileName();
        history->whenSettled(history,
                             [history, name, kept] { kept(history->reasonNotKept(name)); });
    });
}

QString ProgramScreen::title() const
{
    const QString whole = m_window->windowTitle();
    if (whole.isEmpty())
        return tr("New program");
    return whole.left(whole.indexOf(QLatin1String("[*]")));
}

bool ProgramScreen::hasChanges() const
{
    return m_window->isWindowModified();
}

QList<PanelKey *> ProgramScreen::keys()
{
    PanelKey *findKey = new PanelKey(Glyphs::icon(Glyphs::Find), [] { return tr("Find"); });
    PanelKey *undoKey = new PanelKey(Glyphs::icon(Glyphs::Undo), [] { return tr("Undo"); });
    PanelKey *redoKey = new PanelKey(Glyphs::icon(Glyphs::Redo), [] { return tr("Redo"); });
    undoKey->setEnabled(false);
    redoKey->setEnabled(false);
    connect(findKey, &PanelKey::clicked, this, &ProgramScreen::find);
    connect(undoKey, &PanelKey::clicked, m_editor, &WGCodeEditer::undo);
    connect(redoKey, &PanelKey::clicked, m_editor, &WGCodeEditer::redo);
    connect(m_editor, &WGCodeEditer::undoAvailable, undoKey, &PanelKey::setEnabled);
    connect(m_editor, &WGCodeEditer::redoAvailable, redoKey, &PanelKey::setEnabled);
    return {findKey, undoKey, redoKey};
}

bool ProgramScreen::isWorking() const
{
    return m_window->isDownloading();
}

bool ProgramScreen::mayClose()
{
    if (m_window->isDownloading()) {
        Q_EMIT told(tr("A download is running. Let it end, or stop it first."), Message::Warning);
        return false;
    }
    if (!waitForGuard())
        return false;
    if (!hasChanges())
        return true;
    const int answer = QMessageBox::warning(
        nullptr, tr("Program"), tr("%1 has changes that are not saved.").arg(title()),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    if (answer == QMessageBox::Discard)
        return true;
    return answer == QMessageBox::Save && save();
}

// By the key, so that it is asked and compared as any other save.
bool ProgramScreen::save()
{
    bool isStored = false;
    QEventLoop loop;
    connect(m_guard, &ProgramGuard::saveEnded, &loop, [&](bool isGood) {
        isStored = isGood;
        loop.quit();
    });
    m_guard->save();
    loop.exec();
    return isStored && !hasChanges();
}

// A save that was not compared yet may turn out to be none.
bool ProgramScreen::waitForGuard()
{
    QElapsedTimer time;
    time.start();
    QTimer tick;
    QEventLoop loop;
    connect(&tick, &QTimer::timeout, &loop, [&] {
        if (!m_guard->isBusy() || time.hasExpired(closingPatienceMs))
            loop.quit();
    });
    tick.start(closingTickMs);
    if (m_guard->isBusy())
        loop.exec();
    if (!m_guard->isBusy())
        return true;
    Q_EMIT told(tr("The program is still being loaded or saved. Close the panel after that."),
                Message::Warning, QLatin1String("program busy"));
    return false;
}

void ProgramScreen::showState()
{
    m_stateLine->show(m_guard->state().line(), m_guard->state().tone());
}

bool ProgramScreen::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_window
        && (event->type() == QEvent::WindowTitleChange || event->type() == QEvent::ModifiedChange))
        Q_EMIT titleChanged();
    return PanelScreen::eventFilter(watched, event);
}

// The library makes its find dialog once, in the language of that moment.
void ProgramScreen::retranslate()
{
    showState();
    const QWidgetList topLevels = QApplication::topLevelWidgets();
    for (QWidget *dialog : topLevels) {
        if (!dialog->inherits("WFindDialog"))
            continue;
        dialog->setWindowTitle(findDialogText("Find"));
        setFindDialogTexts<QLabel>(dialog, {"Find &what:", "Replace &what:"});
        setFindDialogTexts<QAbstractButton>(
            dialog, {"Match &case", "Search &backward", "&Find", "&Replace", "Close"});
        dialog->adjustSize();
    }
}

void ProgramScreen::stopWork()
{
    m_snapshot->stop();
    m_transfer->stop();
}

void ProgramScreen::startDownload(const QString &path)
{
    if (!m_guard->mayDownload(path))
        return;
    m_window->setDownloading(true);
    m_copyingFor.start();
    m_snapshot->take(path);
}

void ProgramScreen::askForDownload()
{
    const bool isShown = m_snapshot->programPath() == m_window->getCurrentFile();
    DownloadQuestion question(m_snapshot->facts(), isShown ? m_editor->blockCount() : -1);
    if (question.exec() != QDialog::Accepted)
        return endDownload(tr("Nothing was sent. The PLC keeps what it had."),
                           Message::Information);
    m_transfer->start(m_snapshot->programPath(), m_snapshot->copyPath(), m_snapshot->facts().hash);
}

// Most programs are copied in the twinkling of an eye.
void ProgramScreen::showCopying(int percent)
{
    if (m_copyingFor.elapsed() >= patienceMs)
        Q_EMIT worked(tr("The program is made ready: %1 %").arg(percent), percent);
}

void ProgramScreen::showSending(int percent)
{
    Q_EMIT worked(tr("%1 goes to the PLC: %2 %").arg(m_snapshot->facts().name).arg(percent),
                  percent);
}

void ProgramScreen::endFailed(const QString &reason)
{
    if (m_transfer->isPlcAtFault())
        endDownload(reason, Message::Alarm, DeviceCauses::plc());
    else
        endDownload(reason, Message::Warning);
}

// The next download that is compared ends what is told about an uncompared program.
void ProgramScreen::endStopped(const QString &text)
{
    if (m_transfer->isUncompared())
        endDownload(text, Message::Warning, DeviceCauses::plc());
    else
        endDownload(text, Message::Information);
}

void ProgramScreen::endSent(ProgramSnapshot::Verdict verdict)
{
    // Whatever became of the program on the panel, the PLC took what it was sent.
    Q_EMIT causeEnded(DeviceCauses::plc());
    const ProgramFacts facts = m_snapshot->facts();
    switch (verdict) {
    case ProgramSnapshot::Same:
        return endDownload(
            tr("%1 is in the PLC: %2 bytes, compared.").arg(facts.name).arg(facts.bytes),
            Message::Information);
    case ProgramSnapshot::Changed:
        return endDownload(tr("%1 is in the PLC as it was shown, %2. On the panel it has changed "
                              "since then: download it again to send the new one.")
                               .arg(facts.name, facts.checksum()),
                           Message::Warning);
    case ProgramSnapshot::Gone:
        return endDownload(tr("%1 is in the PLC as it was shown, %2. On the panel it is gone.")
                               .arg(facts.name, facts.checksum()),
                           Message::Warning);
    }
}

// Every way out of a download comes through here, so the window's key is always given back.
void ProgramScreen::endDownload(const QString &text, Message::Tone tone, const QString &cause)
{
    m_snapshot->drop();
    m_window->setDownloading(false);
    Q_EMIT told(text, tone, cause);
}

void ProgramScreen::insertTaughtPoint()
{
    const QString name = m_machine->points().at(m_machine->currentPoint() - 1).name;
    const QString line = m_window->getEffectiveString(m_machine->lineToCurrentPoint());
    if (line.isEmpty()) {
        Q_EMIT told(tr("The machine already stands as point %1 \"%2\" wants it: nothing to insert.")
                        .arg(m_machine->currentPoint())
                        .arg(name),
                    Message::Information);
        return;
    }
    m_window->insertLine(line);
    Q_EMIT told(tr("Point %1 \"%2\" inserted: %3").arg(m_machine->currentPoint()).arg(name, line),
                Message::Information);
}

void ProgramScreen::find()
{
    m_editor->findAndReplace();
    // The dialog has no parent: it must not slip behind the panel.
    const QWidgetList topLevels = QApplication::topLevelWidgets();
    for (QWidget *dialog : topLevels) {
        if (!dialog->inherits("WFindDialog") || !dialog->windowHandle())
            continue;
        const QWidget *shell = window();
        dialog->windowHandle()->setTransientParent(shell->windowHandle());
        // In the corner that the starts of the lines leave free.
        const QPoint corner = mapToGlobal(QPoint(width(), height()));
        dialog->move(corner.x() - dialog->width(), corner.y() - dialog->height());
        dialog->raise();
    }
}
