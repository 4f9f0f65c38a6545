// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "wmmainwindow.h"

#include "gcodenumber_p.h"
#include "gcodesymbols.h"
#include "importmanage.h"
#include "waqp.h"
#include "wfiledialog.h"
#include "wgcodeediter.h"
#include "wordsinforce_p.h"

#include <hmidevice/gcodekeypad.h>
#include <hmidevice/hmideviceinfo.h>

#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QSettings>
#include <QStatusBar>
#include <QTextStream>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <sys/stat.h>

namespace {

/// Pixels between the pairs of the read-out.
const int readOutSpacing = 16;
/// Height of a tool bar and edge of its icons, in pixels.
const int toolBarHeight = 72;
const int toolBarIcon = 36;

const char untitled[] = "Untitled";
const char settingsOrganisation[] = "Corvane Soft";
const char settingsApplication[] = "G Code";
const char settingsGroup[] = "MainWindow";

enum IconStyle { TextOnly, TextUnderIcon, DefaultStyle };

void setUp(QToolButton *button, const QString &text, const QString &toolTip, const char *icon,
           IconStyle style, const QObject *receiver = nullptr, const char *slot = nullptr)
{
    button->setText(text);
    button->setToolTip(toolTip);
    if (style != TextOnly)
        button->setIcon(QIcon(QLatin1String(":/images/") + QLatin1String(icon)));
    if (style == TextUnderIcon)
        button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    if (slot)
        QObject::connect(button, SIGNAL(clicked()), receiver, slot);
}

void setUpToolBar(QToolBar *bar)
{
    bar->setFont(WAQP::setFont(QLatin1String("Arial"), 6, true));
    // A new icon size frees the height again, so the height comes last.
    bar->setIconSize(QSize(toolBarIcon, toolBarIcon));
    bar->setFixedHeight(toolBarHeight);
}

QString programPath(const QString &name)
{
    return WAQP::getCncDir() + QLatin1Char('/') + name;
}

/// Whether \a path leads to a pipe, whose opening waits for another program, or, for reading, to a
/// device, which may have no end.
bool isEndless(const QString &path, QIODevice::OpenMode mode)
{
    struct stat entry;
    if (::stat(QFile::encodeName(path).constData(), &entry) != 0)
        return false;
    const bool isDevice = S_ISCHR(entry.st_mode) || S_ISBLK(entry.st_mode);
    return S_ISFIFO(entry.st_mode) || (isDevice && (mode & QIODevice::ReadOnly));
}

/// Opens \a file; the reason if that fails.
QString openError(QFile *file, QIODevice::OpenMode mode)
{
    if (isEndless(file->fileName(), mode))
        return WMMainWindow::tr("It is a device or a pipe, not a file");
    return file->open(mode) ? QString() : file->errorString();
}

} // namespace

WMMainWindow::WMMainWindow(QWidget *parent, int rotation)
    : QSplitter(Qt::Vertical, parent)
    , m_toolBar2(nullptr)
    , m_editBar(nullptr)
    , m_statusBar(nullptr)
    , m_downloading(false)
    , m_rotation(rotation)
{
    setContentsMargins(0, 0, 0, 0);

    QWidget *topStrip = new QWidget(this);
    QHBoxLayout *readOut = new QHBoxLayout(topStrip);
    readOut->setContentsMargins(0, 0, 0, 0);

    const QFont font = WAQP::setFont(QLatin1String("Arial"), 10, true);
    m_fileLabel = new QLabel(topStrip);
    m_fileLabel->setIndent(10);
    m_fileLabel->setFont(font);
    m_fileLabel->setText(QLatin1String(untitled));

    m_rowTitle = new QLabel(tr("Row:"), topStrip);
    m_colTitle = new QLabel(tr("Col:"), topStrip);
    m_countTitle = new QLabel(tr("Count:"), topStrip);
    m_rowValue = new QLabel(topStrip);
    m_colValue = new QLabel(topStrip);
    m_countValue = new QLabel(topStrip);
    Q_FOREACH (QLabel *label, QList<QLabel *>() << m_rowTitle << m_rowValue << m_colTitle
                                                << m_colValue << m_countTitle << m_countValue)
        label->setFont(font);

    readOut->addWidget(m_fileLabel);
    readOut->addWidget(m_rowTitle);
    readOut->addWidget(m_rowValue);
    readOut->addSpacing(readOutSpacing);
    readOut->addWidget(m_colTitle);
    readOut->addWidget(m_colValue);
    readOut->addSpacing(readOutSpacing);
    readOut->addWidget(m_countTitle);
    readOut->addWidget(m_countValue);
    readOut->addSpacing(readOutSpacing);
    readOut->setStretch(0, 1);

    m_editor = new WGCodeEditer(this);
    connect(m_editor, SIGNAL(cursorPositionChanged()), SLOT(slot_updateTips()));
    slot_updateTips();

    createBtn();

    QWidget *bottomStrip = new QWidget(this);
    QVBoxLayout *bars = new QVBoxLayout(bottomStrip);
    bars->setSpacing(0);
    bars->setContentsMargins(0, 0, 0, 0);
    m_toolBar = new QToolBar(bottomStrip);
    bars->addWidget(m_toolBar);
    if (m_rotation == 90 || m_rotation == 270) {
        m_toolBar2 = new QToolBar(bottomStrip);
        bars->addWidget(m_toolBar2);
    }

    createToolBar();
    readSettings();
    setStretchFactor(1, 1);
}

WMMainWindow::~WMMainWindow()
{
    writeSettings();
}

QString WMMainWindow::getCurrentFile() const
{
    return m_downloadFile;
}

bool WMMainWindow::isDownloading() const
{
    return m_downloading;
}

void WMMainWindow::setDownloading(bool value)
{
    if (value == m_downloading)
        return;
    m_downloading = value;
    m_downloadBtn->setDisabled(value);
}

QString WMMainWindow::text() const
{
    return m_text;
}

void WMMainWindow::setText(const QString &text)
{
    m_text = text;
}

void WMMainWindow::insertLine(const QString &line)
{
    m_editor->insertLine(line);
}

void WMMainWindow::updateGcode(QString line)
{
    m_editor->updateGCode(line);
}

QString WMMainWindow::getEffectiveString(QString line)
{
    QString kept;
    const int startLine = m_editor->currentLineNumber();
    const QStringList words = line.split(QLatin1Char(' '), QString::SkipEmptyParts);
    if (!words.isEmpty())
        kept = words.first();
    int start = 1;
    if (!kept.contains(QLatin1Char('g')) && !kept.contains(QLatin1Char('G'))) {
        kept = QLatin1String("");
        start = 0;
    }

    QStringList names;
    QList<double> values;
    if (!splitString(words, names, values))
        return kept;
    if (start >= names.size())
        return QString();

    const WordsInForce inForce(names.mid(start), m_editor->document(), startLine);
    bool keptAny = false;
    // After a word of one character the names run ahead of the words: the word kept is then not the
    // word that was compared.
    for (int i = start; i < names.size(); ++i) {
        if (inForce.holds(names.at(i), values.at(i)))
            continue;
        kept += QLatin1Char(' ') + words.at(i);
        keptAny = true;
    }
    return keptAny ? kept : QString();
}

void WMMainWindow::newFile()
{
    attemptToRefreshButton(sender(), m_newBtn);
    if (!maybeSave())
        return;
    m_editor->clear();
    setCurrentFile(QString());
    m_fileLabel->setText(QLatin1String(untitled));
}

void WMMainWindow::open()
{
    attemptToRefreshButton(sender(), m_openBtn);
    if (!maybeSave())
        return;
    const QPointer<WMMainWindow> self(this);
    WFileDialog dialog(nullptr);
    dialog.setTitle(tr("Open file"));
    if (dialog.exec() != QDialog::Accepted || !self)
        return;

    const QString name = dialog.fileName;
    const QString path = programPath(name);
    if (!name.isEmpty()) {
        if (path != m_curFile) {
            m_editor->clear();
            loadFile(path);
            if (!self)
                return;
        } else {
            const int answer = QMessageBox::warning(
                nullptr, tr("Application"),
                tr("The document has been existed.\nDo you want to open it again?"),
                QMessageBox::Yes | QMessageBox::Cancel);
            if (!self)
                return;
            if (answer == QMessageBox::Yes) {
                m_editor->clear();
                loadFile(path);
                return;
            }
            if (answer == QMessageBox::Cancel)
                return;
        }
    }
    m_fileLabel->setText(name);
}

void WMMainWindow::remove()
{
    attemptToRefreshButton(sender(), m_removeBtn);
    const QPointer<WMMainWindow> self(this);
    WFileDialog dialog(nullptr);
    dialog.setTitle(tr("Remove file"));
    if (dialog.exec() != QDialog::Accepted || !self)
        return;

    const QString name = dialog.fileName;
    QDir directory(WAQP::getCncDir());
    if (name.isEmpty() || !directory.exists(name)) {
        QMessageBox::warning(nullptr, tr("Remove file"), tr("The file does not exist!"),
                             QMessageBox::Yes);
        return;
    }
    if (QMessageBox::question(nullptr, tr("Remove file"), tr("Remove %1?").arg(name),
                              QMessageBox::Yes | QMessageBox::No)
        != QMessageBox::Yes)
        return;
    if (directory.remove(name)) {
        QMessageBox::information(nullptr, tr("Remove file"), tr("Success to remove file."),
                                 QMessageBox::Yes);
    }
    if (!self)
        return;
    // Even a file that could not be removed is taken off the screen once the operator gave it up.
    if (programPath(name) == m_curFile) {
        m_editor->clear();
        setCurrentFile(QString());
        m_fileLabel->setText(QLatin1String(untitled));
    }
}

bool WMMainWindow::save()
{
    attemptToRefreshButton(sender(), m_saveBtn);
    return m_curFile.isEmpty() ? saveAs() : saveFile(m_curFile);
}

bool WMMainWindow::saveAs()
{
    attemptToRefreshButton(sender(), m_saveAsBtn);
    const QPointer<WMMainWindow> self(this);
    WFileDialog dialog(nullptr);
    dialog.setTitle(tr("Save as"));
    if (dialog.exec() != QDialog::Accepted || !self)
        return false;
    const QString name = dialog.fileName;
    if (name.isEmpty())
        return false;
    // The label changes before the write, so it keeps the new name even if the write fails.
    m_fileLabel->setText(name);
    return saveFile(programPath(name));
}

bool WMMainWindow::importExport()
{
    attemptToRefreshButton(sender(), m_importExportBtn);
    ImportManage dialog(nullptr);
    dialog.init();
    dialog.exec();
    return false;
}

void WMMainWindow::documentWasModified()
{
    setWindowModified(m_editor->document()->isModified());
}

void WMMainWindow::slot_updateTips()
{
    m_rowValue->setText(QString::number(m_editor->getCurRowNumber()));
    m_colValue->setText(QString::number(m_editor->getCurColNumber()));
    m_countValue->setText(QString::number(m_editor->document()->lineCount()));
    // At once, so that the read-out never lags behind the cursor.
    m_rowValue->repaint();
    m_colValue->repaint();
    m_countValue->repaint();
}

bool WMMainWindow::download()
{
    attemptToRefreshButton(sender(), m_downloadBtn);
    if (!maybeSave())
        return true;
    if (isDownloading())
        return true;
    Q_EMIT signal_download(m_downloadFile);
    return true;
}

void WMMainWindow::moveEvent()
{
    QToolButton *button = qobject_cast<QToolButton *>(sender());
    if (!button)
        return;
    if (button == m_upBtn) {
        button->update();
        m_editor->moveEvent(GCODE::MoveUp);
    } else if (button == m_downBtn) {
        button->update();
        m_editor->moveEvent(GCODE::MoveDown);
    }
}

void WMMainWindow::softEditGcode()
{
    attemptToRefreshButton(sender(), m_editBtn);
    m_curLineText = m_editor->curLineText();
    const QString line = m_curLineText;
    if (!HMIDeviceInfo::isTouchScreen())
        return;
    GCodeKeypad *keypad = GCodeKeypad::instance();
    if (!keypad)
        return;
    keypad->setObject(this);
    keypad->setValidator(nullptr);
    keypad->setText(line);
    keypad->setLimitToolTip(line);
    const QPointer<WMMainWindow> self(this);
    if (keypad->exec() != QDialog::Accepted || !self)
        return;
    updateGcode(text());
}

void WMMainWindow::insertRow()
{
    attemptToRefreshButton(sender(), m_insertBtn);
    m_editor->insertLine();
}

void WMMainWindow::insertBefore()
{
    attemptToRefreshButton(sender(), m_insertBeforeBtn);
    m_editor->insertBefore();
}

void WMMainWindow::deleteRow()
{
    attemptToRefreshButton(sender(), m_deleteBtn);
    m_editor->deleteLine();
    // The cursor may not have moved, though the count has changed.
    slot_updateTips();
}

void WMMainWindow::copyFromTag()
{
    attemptToRefreshButton(sender(), m_tagBtn);
    Q_EMIT signal_copyFromTag();
}

void WMMainWindow::languageChange()
{
    m_newBtn->setText(tr("New"));
    m_openBtn->setText(tr("Open"));
    m_removeBtn->setText(tr("RM"));
    m_saveBtn->setText(tr("Save"));
    m_saveAsBtn->setText(tr("SaveAs"));
    m_importExportBtn->setText(tr("I/E"));
    m_morphologyBtn->setText(tr("Morphology"));
    m_syntaxBtn->setText(tr("Syntax"));
    m_compileBtn->setText(tr("Compile"));
    m_downloadBtn->setText(tr("D/L"));
    m_showBtn->setText(tr("Show"));
    m_playOrPauseBtn->setText(QLatin1String("PlayOrPause"));
    m_stopBtn->setText(tr("Stop"));
    m_upBtn->setText(tr("Up"));
    m_downBtn->setText(tr("Down"));
    m_insertBtn->setText(tr("Ins"));
    m_insertBeforeBtn->setText(tr("Ins"));
    m_deleteBtn->setText(tr("Del"));
    m_editBtn->setText(tr("Edit"));
    m_tagBtn->setText(tr("Tag"));
    m_copyBtn->setText(tr("Copy"));
    m_pasteBtn->setText(tr("Paste"));
    m_findBtn->setText(tr("Find"));
    m_rowTitle->setText(tr("Row:"));
    m_colTitle->setText(tr("Col:"));
    m_countTitle->setText(tr("Count:"));
}

#ifdef FILARIX_LANGUAGE_CHANGE_BY_EVENT
void WMMainWindow::changeEvent(QEvent *event)
{
    QSplitter::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        languageChange();
}
#endif

// clang-format off
void WMMainWindow::createBtn()
{
    // The buttons that no bar takes are never shown and outlive the window: they have no owner.
    setUp(m_newBtn          = new QToolButton, tr("New"),         QLatin1String("New G File!"),                        "new.png",          TextUnderIcon, this, SLOT(newFile()));
    setUp(m_openBtn         = new QToolButton, tr("Open"),        QLatin1String("Open G File!"),                       "open.png",         TextUnderIcon, this, SLOT(open()));
    setUp(m_removeBtn       = new QToolButton, tr("RM"),          tr("Remove G File!"),                                "remove.png",       TextUnderIcon, this, SLOT(remove()));
    setUp(m_saveBtn         = new QToolButton, tr("Save"),        QLatin1String("Save G File!"),                       "save.png",         TextUnderIcon, this, SLOT(save()));
    setUp(m_saveAsBtn       = new QToolButton, tr("SaveAs"),      QLatin1String("Save As G File!"),                    "saveAs.png",       TextUnderIcon, this, SLOT(saveAs()));
    setUp(m_importExportBtn = new QToolButton, tr("I/E"),         tr("Import/Export G File."),                         "importExport.png", TextUnderIcon, this, SLOT(importExport()));
    setUp(m_preproccessBtn  = new QToolButton, tr("Preproccess"), QLatin1String("Preproccess G File,Remove comment!"), nullptr,            TextOnly);
    setUp(m_morphologyBtn   = new QToolButton, tr("Morphology"),  QLatin1String("Morphology Analysis!"),               nullptr,            TextOnly);
    setUp(m_syntaxBtn       = new QToolButton, tr("Syntax"),      QLatin1String("Syntax Analysis!"),                   nullptr,            TextOnly);
    setUp(m_compileBtn      = new QToolButton, tr("Compile"),     QLatin1String("Compile G code!"),                    nullptr,            TextOnly);
    setUp(m_downloadBtn     = new QToolButton, tr("D/L"),         QLatin1String("Download G File To PLC!"),            "downloads.png",    TextUnderIcon, this, SLOT(download()));
    setUp(m_showBtn         = new QToolButton, tr("Show"),        QLatin1String("Monitoring G Path!"),                 "simulation.png",   DefaultStyle);
    setUp(m_playOrPauseBtn  = new QToolButton, QLatin1String("PlayOrPause"), QLatin1String("Play/Pause The Animation!"), "play.png",       TextUnderIcon);
    setUp(m_stopBtn         = new QToolButton, tr("Stop"),        QLatin1String("Stop The Animation!"),                "stop.png",         TextUnderIcon);
    setUp(m_upBtn           = new QToolButton, tr("Up"),          QLatin1String("move up the arrow!"),                 "upArrow.png",      TextUnderIcon, this, SLOT(moveEvent()));
    setUp(m_downBtn         = new QToolButton, tr("Down"),        QLatin1String("move down the arrow!"),               "downArrow.png",    TextUnderIcon, this, SLOT(moveEvent()));
    setUp(m_insertBtn       = new QToolButton, tr("Ins"),         QLatin1String("insert a null line!"),                "insert.png",       TextUnderIcon, this, SLOT(insertRow()));
    setUp(m_insertBeforeBtn = new QToolButton, tr("Ins"),         QLatin1String("insert a null line!"),                "insertBefore.png", TextUnderIcon, this, SLOT(insertBefore()));
    setUp(m_deleteBtn       = new QToolButton, tr("Del"),         QLatin1String("delete the current line!"),           "delete.png",       TextUnderIcon, this, SLOT(deleteRow()));
    setUp(m_editBtn         = new QToolButton, tr("Edit"),        QLatin1String("edit G code by softKey!"),            "edit.png",         TextUnderIcon, this, SLOT(softEditGcode()));
    setUp(m_copyBtn         = new QToolButton, tr("Copy"),        QLatin1String("copy G code to clipboard!"),          "copy.png",         TextUnderIcon, m_editor, SLOT(copy()));
    setUp(m_pasteBtn        = new QToolButton, tr("Paste"),       QLatin1String("paste G code from clipboard!"),       "paste.png",        TextUnderIcon, m_editor, SLOT(paste()));
    setUp(m_findBtn         = new QToolButton, tr("Find"),        QLatin1String("find G code in current Editer!"),     "find.png",         TextUnderIcon, m_editor, SLOT(findAndReplace()));
    setUp(m_tagBtn          = new QToolButton, tr("Tag"),         QLatin1String("Copy from tag."),                     "copyFromTag.png",  TextUnderIcon, this, SLOT(copyFromTag()));
}
// clang-format on

void WMMainWindow::createToolBar()
{
    const bool twoBars = m_rotation == 90 || m_rotation == 270;
    setUpToolBar(m_toolBar);
    if (twoBars)
        setUpToolBar(m_toolBar2);

    m_toolBar->addWidget(m_newBtn);
    m_toolBar->addWidget(m_openBtn);
    m_toolBar->addWidget(m_removeBtn);
    m_toolBar->addWidget(m_saveBtn);
    m_toolBar->addWidget(m_saveAsBtn);
    m_toolBar->addWidget(m_importExportBtn);
    m_toolBar->addSeparator();
    m_toolBar->addWidget(m_downloadBtn);
    m_toolBar->addSeparator();
    m_toolBar->addWidget(m_upBtn);
    m_toolBar->addWidget(m_downBtn);

    QToolBar *editBar = twoBars ? m_toolBar2 : m_toolBar;
    if (!twoBars)
        editBar->addSeparator();
    editBar->addWidget(m_insertBtn);
    editBar->addWidget(m_insertBeforeBtn);
    editBar->addWidget(m_deleteBtn);
    editBar->addSeparator();
    editBar->addWidget(m_copyBtn);
    editBar->addWidget(m_pasteBtn);
    editBar->addWidget(m_tagBtn);
    editBar->addWidget(m_editBtn);
}

/// The second tool bar does this work; construction never calls it.
void WMMainWindow::createEditBar()
{
    if (!m_editBar)
        return;
    m_editBar->addWidget(m_upBtn);
    m_editBar->addWidget(m_downBtn);
    m_editBar->addSeparator();
    m_editBar->addWidget(m_insertBtn);
    m_editBar->addWidget(m_insertBeforeBtn);
    m_editBar->addWidget(m_deleteBtn);
    m_editBar->addSeparator();
    m_editBar->addWidget(m_editBtn);
}

/// For a window that wants a status bar; construction never calls it.
void WMMainWindow::createStatusBar()
{
    m_statusBar = new QStatusBar(this);
    m_statusBar->showMessage(tr("Ready"), 0);
}

void WMMainWindow::attemptToRefreshButton(QObject *object, QToolButton *button)
{
    if (!object || !object->qt_metacast("QToolButton") || object != button)
        return;
    // At once: the command may keep the event loop waiting.
    button->repaint();
}

bool WMMainWindow::maybeSave()
{
    if (!m_editor->document()->isModified())
        return true;
    const QPointer<WMMainWindow> self(this);
    const int answer = QMessageBox::warning(
        nullptr, tr("Application"),
        tr("The document has been modified.\nDo you want to save your changes?"),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    if (!self)
        return false; // with the window gone there is nothing to go on with
    if (answer == QMessageBox::Save)
        return save();
    return answer != QMessageBox::Cancel;
}

void WMMainWindow::loadFile(const QString &fileName)
{
    QFile file(fileName);
    const QString error = openError(&file, QIODevice::ReadOnly | QIODevice::Text);
    if (!error.isEmpty()) {
        QMessageBox::warning(nullptr, tr("Application"),
                             tr("Cannot read file %1:\n%2.").arg(fileName, error), QMessageBox::Ok);
        return;
    }
    QTextStream stream(&file);
    const QPointer<WMMainWindow> self(this);
    m_editor->readGCode(stream.readAll());
    if (!self)
        return;
    setCurrentFile(fileName);
}

bool WMMainWindow::saveFile(const QString &fileName)
{
    {
        QFile file(fileName);
        const QString error = openError(&file, QIODevice::WriteOnly | QIODevice::Text);
        if (!error.isEmpty()) {
            QMessageBox::warning(nullptr, tr("Application"),
                                 tr("Cannot write file %1:\n%2.").arg(fileName, error),
                                 QMessageBox::Ok);
            return false;
        }
        QTextStream stream(&file);
        QApplication::setOverrideCursor(Qt::WaitCursor);
        stream << m_editor->document()->toPlainText();
        QApplication::restoreOverrideCursor();
    }
    // The file is closed by now: a host that listens to the document may read it.
    setCurrentFile(fileName);
    return true;
}

void WMMainWindow::setCurrentFile(const QString &fileName)
{
    m_curFile = fileName;
    m_downloadFile = m_curFile;
    m_editor->document()->setModified(false);
    setWindowModified(false);
    const QString shownName =
        m_curFile.isEmpty() ? QString(QLatin1String("untitled.cnc")) : strippedName(m_curFile);
    setWindowTitle(tr("%1[*] - %2").arg(shownName, tr("Application")));
}

QString WMMainWindow::strippedName(const QString &fullFileName)
{
    return QFileInfo(fullFileName).fileName();
}

void WMMainWindow::readSettings()
{
    QSettings settings(QString::fromLatin1(settingsOrganisation),
                       QString::fromLatin1(settingsApplication));
    settings.beginGroup(QLatin1String(settingsGroup));
    resize(settings.value(QLatin1String("size"), QSize(1000, 600)).toSize());
    move(settings.value(QLatin1String("pos"), QPoint(200, 200)).toPoint());
    settings.endGroup();
}

void WMMainWindow::writeSettings()
{
    QSettings settings(QString::fromLatin1(settingsOrganisation),
                       QString::fromLatin1(settingsApplication));
    settings.beginGroup(QLatin1String(settingsGroup));
    settings.setValue(QLatin1String("size"), size());
    settings.setValue(QLatin1String("pos"), pos());
    settings.endGroup();
}

bool WMMainWindow::splitString(const QStringList &words, QStringList &names, QList<double> &values)
{
    bool appended = false;
    Q_FOREACH (const QString &word, words) {
        if (word.size() < 2)
            continue;
        names.append(word.left(1));
        values.append(GCodeNumber::toDouble(word.constData() + 1, word.constData() + word.size()));
        appended = true;
    }
    return appended;
}

bool WMMainWindow::compareString(int lineNumber, QString name, double value)
{
    return WordsInForce(QStringList(name), m_editor->document(), lineNumber).holds(name, value);
}
