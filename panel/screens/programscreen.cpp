// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/programscreen.h"

#include "filarixpanel.h"
#include "guards/finddialogfitter.h"
#include "guards/finddialogguide.h"
#include "guards/lineentry.h"
#include "guards/programguard.h"
#include "guards/programpickers.h"
#include "guards/programwalk.h"
#include "look/barpager.h"
#include "look/look.h"
#include "look/panelkey.h"
#include "programs/checkeddownload.h"
#include "programs/programdirectory.h"
#include "programs/programname.h"
#include "programs/programopener.h"
#include "programs/recentprograms.h"
#include "screens/downloadquestion.h"
#include "screens/findingsbar.h"
#include "screens/findingsdialog.h"
#include "screens/loadprogress.h"
#include "screens/machinedata.h"
#include "screens/programreview.h"
#include "screens/walkkeys.h"
#include "shell/stateline.h"
#include "stick/stick.h"
#include "wgcodeediter.h"
#include "winding/modalwords.h"
#include "wmmainwindow.h"

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QEvent>
#include <QEventLoop>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QMouseEvent>
#include <QScreen>
#include <QTextBlock>
#include <QTextDocument>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

namespace {

// Longer than a healthy disk takes for the largest program.
const int closingPatienceMs = 5000;
const int closingTickMs = 50;
// The library's word for a program without a file, in every language.
const char libraryUnnamed[] = "Untitled";
// The window keeps what its bars need.
const int besideWidth = 440;
// The find dialog and as many lines once more.
const int findRoom = 440;
// A name of work.
const QLatin1String loadWork("load");

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

bool isSmall()
{
    const QSize panel = QGuiApplication::primaryScreen()->availableSize();
    return qMin(panel.width(), panel.height()) < FilarixPanel::smallBelow;
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
    , m_questioner(new DownloadQuestioner)
    , m_download(new CheckedDownload(plcDir, ownDir + QLatin1String("/outgoing"),
                                     m_questioner.data(), this))
    , m_guard(new ProgramGuard(m_window, ProgramDirectory::path(), m_questioner.data(), this))
    , m_lineEntry(new LineEntry(m_window, this))
    , m_load(new LoadProgress(m_editor->document(), this))
    , m_walk(new ProgramWalk(m_window))
    , m_walkKeys(new WalkKeys(m_walk))
    , m_findGuide(new FindDialogGuide(m_editor))
    , m_fileLabel(m_window->widget(0)->findChild<QLabel *>())
    , m_recent(new RecentPrograms(ownDir + QLatin1String("/recent.ini"), this))
    , m_pickers(new ProgramPickers(ProgramDirectory::path(), this))
    , m_stateLine(new StateLine)
    , m_layout(new QGridLayout(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    // On a small panel its pixels are rows of the program.
    if (!isSmall())
        m_stateLine->setLeastHeight(TapArea::leastHeight());
    m_layout->addWidget(m_stateLine, 0, 0);
    m_layout->addWidget(m_window, 1, 0);
    m_layout->setRowStretch(1, 1);
    m_layout->setColumnStretch(0, 1);
    Look::keepLight(m_editor);
    // The line is marked already, in the colour of before.
    QMetaObject::invokeMethod(m_editor, "highlightCurrentLine");
    makeWalk();
    connectLoad();
    // The strips hold what they hold: dragged shut they would be lost to a thumb.
    m_window->setChildrenCollapsible(false);
    const QList<QToolBar *> bars = m_window->findChildren<QToolBar *>();
    for (QToolBar *bar : bars)
        new BarPager(bar);
    m_fileLabel->parentWidget()->installEventFilter(this);
    // The head has the name in full, and the numbers beside it need the room.
    if (QGuiApplication::primaryScreen()->availableSize().width() < FilarixPanel::smallBelow)
        m_fileLabel->hide();
    nameUnnamed();

    // The window leaves it to its host whether the modified mark lives.
    QTextDocument *document = m_editor->document();
    connect(document, SIGNAL(modificationChanged(bool)), m_window, SLOT(documentWasModified()));
    connect(document, SIGNAL(contentsChanged()), m_window, SLOT(documentWasModified()));
    m_window->installEventFilter(this);

    connect(m_window, &WMMainWindow::signal_copyFromTag, this, &ProgramScreen::insertTaughtPoint);
    connect(m_download, &CheckedDownload::told, this, &ProgramScreen::told);
    connect(m_download, &CheckedDownload::causeEnded, this, &ProgramScreen::causeEnded);
    connect(m_download, &CheckedDownload::worked, this,
            [this](const QString &text, int percent) { Q_EMIT worked(text, percent); });
    m_guard->setDownload(m_download);
    m_pickers->setRecent(m_recent);
    connect(m_pickers, &ProgramPickers::fitted, this, [](QDialog *dialog) {
        Look::dress(dialog->findChild<QWidget *>(QLatin1String("pickerStrip")), Look::PickerStrip);
    });

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
    // It asks by the questioner.
    delete m_download;
    delete m_window;
    qDeleteAll(m_spareButtons);
}

// A small panel has no room beside its few lines.
void ProgramScreen::makeWalk()
{
    if (isSmall())
        m_walkKeys->putInto(m_window->findChildren<QToolBar *>().last());
    else
        m_walkKeys->putBeside(m_window);
    connect(m_findGuide, &FindDialogGuide::told, this, &ProgramScreen::told);
    connect(m_findGuide, &FindDialogGuide::causeEnded, this, &ProgramScreen::causeEnded);
}

void ProgramScreen::connectLoad()
{
    connect(m_load, &LoadProgress::worked, this, [this](int percent) {
        Q_EMIT worked(tr("The program is loaded: %1 %").arg(percent), percent, loadWork);
    });
    connect(m_load, &LoadProgress::ended, this, [this] { Q_EMIT workEnded(loadWork); });
}

void ProgramScreen::setHistory(ProgramHistory *history)
{
    m_guard->setHistory(history);
}

void ProgramScreen::setReview(const ProgramReview *review)
{
    m_review = review;
    m_findings = new FindingsBar(review);
    m_findings->hide();
    m_layout->addWidget(m_findings, 2, 0);
    if (isSmall()) {
        m_checkLine = new StateLine;
        m_layout->addWidget(m_checkLine, 3, 0);
        connect(m_checkLine, &StateLine::touched, this, [this] { showFindings(); });
        connect(review, &ProgramReview::changed, this, &ProgramScreen::showCheck);
    }
    m_lineEntry->setHint(
        [review](const QTextBlock &line) { return ModalWords::before(line, review->profile()); });
    m_download->setInspector([review](const QString &path) { return review->inspect(path); });
    connect(m_findings, &FindingsBar::placeWanted, this, &ProgramScreen::goTo);
    connect(m_findings, &FindingsBar::touched, this,
            [this] { Q_EMIT explained(m_findings->text()); });
    connect(m_findings, &FindingsBar::listWanted, this, &ProgramScreen::listFindings);
    connect(m_findings, &FindingsBar::closeWanted, this, [this] { showFindings(false); });
    connect(m_editor, &QPlainTextEdit::cursorPositionChanged, this, &ProgramScreen::followCursor);
}

void ProgramScreen::showFindings(bool isWanted)
{
    m_findings->setVisible(isWanted);
    if (m_checkKey)
        m_checkKey->setChecked(isWanted);
    if (isWanted)
        followCursor();
    showState();
    showCheck();
    // What comes up below takes the last lines, the finding's among them.
    m_layout->activate();
    m_editor->ensureCursorVisible();
}

// One line of the two at a time.
void ProgramScreen::showCheck()
{
    if (!m_checkLine)
        return;
    const bool isFaulty = m_review->errors() > 0 || m_review->warnings() > 0;
    const bool isWanted = isFaulty && m_findings->isHidden();
    m_checkLine->show(isWanted ? m_review->counts() : QString(),
                      m_review->errors() > 0 ? Message::Alarm : Message::Warning);
}

void ProgramScreen::followCursor()
{
    m_findings->setLine(m_editor->textCursor().blockNumber() + 1);
}

void ProgramScreen::listFindings()
{
    FindingsDialog dialog(m_review, m_editor->textCursor().blockNumber() + 1);
    dialog.exec();
    if (dialog.finding() < 0)
        return;
    // The program may have been checked again meanwhile.
    const int index = m_review->indexOf(dialog.chosen());
    if (index >= 0)
        m_findings->goTo(index);
    else
        goTo(dialog.chosen().line, dialog.chosen().column);
}

void ProgramScreen::goTo(int line, int column)
{
    const QTextBlock block = m_editor->document()->findBlockByNumber(line - 1);
    if (!block.isValid())
        return;
    QTextCursor cursor(block);
    cursor.setPosition(block.position() + qBound(0, column - 1, block.length() - 1));
    m_editor->setTextCursor(cursor);
    m_editor->centerCursor();
}

void ProgramScreen::setBeside(QWidget *pane)
{
    m_beside = pane;
    m_beside->setFixedWidth(besideWidth);
    m_layout->addWidget(m_beside, 0, 1, 4, 1);
}

PlcTransfer *ProgramScreen::transfer() const
{
    return m_download->transfer();
}

QString ProgramScreen::title() const
{
    // The library's title has a name for a program without a file, too.
    if (m_window->getCurrentFile().isEmpty())
        return ProgramName::unnamed();
    const QString whole = m_window->windowTitle();
    return whole.left(whole.indexOf(QLatin1String("[*]")));
}

bool ProgramScreen::hasChanges() const
{
    return m_window->isWindowModified();
}

QString ProgramScreen::stateWord() const
{
    if (transfer()->isRunning())
        return tr("downloading");
    if (m_guard->state().kind == ProgramState::NotStored)
        return tr("not stored");
    const bool isInFile = !m_window->getCurrentFile().isEmpty() && !hasChanges();
    return isInFile ? tr("stored") : PanelScreen::stateWord();
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
    QList<PanelKey *> keys{findKey, undoKey, redoKey};
    if (m_findings && !m_checkLine) {
        m_checkKey = new PanelKey(Glyphs::icon(Glyphs::Check), [] { return tr("Check"); });
        m_checkKey->setCheckable(true);
        connect(m_checkKey, &PanelKey::clicked, this, &ProgramScreen::showFindings);
        keys.prepend(m_checkKey);
    }
    if (m_beside) {
        keys.prepend(new PanelKey(Glyphs::icon(Glyphs::Coil), [] { return tr("Coil"); }));
        keys.first()->setCheckable(true);
        keys.first()->setChecked(true);
        connect(keys.first(), &PanelKey::toggled, m_beside, &QWidget::setVisible);
    }
    return keys;
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
    const bool hasRoom = !m_checkLine || m_findings->isHidden();
    m_stateLine->show(hasRoom ? m_guard->state().line() : QString(), m_guard->state().tone());
}

bool ProgramScreen::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_window
        && (event->type() == QEvent::WindowTitleChange || event->type() == QEvent::ModifiedChange))
        Q_EMIT titleChanged();
    // Another text in the strip asks for another layout first, and is painted after that.
    if (event->type() == QEvent::LayoutRequest && m_fileLabel
        && watched == m_fileLabel->parentWidget())
        nameUnnamed();
    if (m_fileLabel && watched == m_fileLabel->parentWidget() && passToState(event))
        return true;
    return PanelScreen::eventFilter(watched, event);
}

/// The line of the state is lower than a finger on a small panel, and the program's name below it
/// is no key: a touch there counts as one on the line.
bool ProgramScreen::passToState(const QEvent *event)
{
    const QEvent::Type type = event->type();
    const bool isPress = type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick;
    if (!isPress && type != QEvent::MouseMove && type != QEvent::MouseButtonRelease)
        return false;
    const QMouseEvent *mouse = static_cast<const QMouseEvent *>(event);
    if (isPress)
        m_isOnState = m_stateLine->isVisible() && m_stateLine->height() < TapArea::leastHeight()
                      && isOnName(mouse->pos());
    if (!m_isOnState)
        return false;
    m_isOnState = type != QEvent::MouseButtonRelease;
    QPoint point = m_stateLine->mapFromGlobal(mouse->globalPos());
    if (isOnName(mouse->pos()))
        point.setY(m_stateLine->rect().bottom());
    QMouseEvent passed(type, point, mouse->button(), mouse->buttons(), mouse->modifiers());
    QApplication::sendEvent(m_stateLine, &passed);
    return true;
}

/// Left of the read-out, which is touched to go to a line.
bool ProgramScreen::isOnName(const QPoint &point) const
{
    const QWidget *strip = m_fileLabel->parentWidget();
    QRect place = strip->rect();
    const QList<QLabel *> labels = strip->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label != m_fileLabel)
            place.setRight(qMin(place.right(), label->x() - 1));
    }
    return place.contains(point);
}

// One name for it, on the strip above the editor as well.
void ProgramScreen::nameUnnamed()
{
    const QString shown = m_fileLabel->text();
    if (!m_window->getCurrentFile().isEmpty()
        || (shown != QLatin1String(libraryUnnamed) && shown != m_unnamed))
        return;
    m_unnamed = ProgramName::unnamed();
    m_fileLabel->setText(m_unnamed);
}

void ProgramScreen::retranslate()
{
    m_walkKeys->retranslate();
    nameUnnamed();
    showState();
    showCheck();
    FindDialogFitter::retranslate();
}

void ProgramScreen::stopWork(const QString &work)
{
    if (work == loadWork)
        return m_load->stop();
    m_download->stop();
}

void ProgramScreen::open(const QString &path)
{
    if (m_isOpening)
        return;
    m_isOpening = true;
    ProgramOpener opener(m_window, [this] { return m_guard->isBusy(); });
    opener.open(path);
    m_isOpening = false;
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
    // High enough, it has room for the dialog, and the keys below can be used meanwhile.
    const bool hasRoom = m_editor->height() >= findRoom;
    FindDialogFitter::show(m_editor, hasRoom ? static_cast<QWidget *>(m_editor) : this);
}
