// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "importmanage.h"

#include "compat.h"
#include "filarixpanel.h"
#include "hmidirmodel.h"
#include "messagebox.h"
#include "waqp.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include <cstdlib>

namespace {

HmiDirModel *newFileModel(QObject *parent)
{
    HmiDirModel *model = new HmiDirModel(parent);
    model->setFilter(QDir::Files | QDir::NoSymLinks | QDir::NoDotAndDotDot);
    model->setNameFilters(QStringList(QLatin1String("*")));
    return model;
}

QString inMebibytes(quint32 bytes)
{
    return QString::number(bytes >> 20) + QLatin1String("M.");
}

QString join(const QString &dir, const QString &name)
{
    return dir + QLatin1Char('/') + name;
}

/// The current file of a panel. Without a stick the right panel has no root and shows items from
/// anywhere: those don't count as selected.
struct Selection
{
    Selection(const QListView *view, const HmiDirModel *model, const QString &dir)
    {
        const QModelIndex index = view->currentIndex();
        const QString path = model->filePath(index);
        name = model->fileName(index);
        isValid = !path.isEmpty() && path.indexOf(dir, 0, Qt::CaseSensitive) != -1;
    }

    bool isValid;
    QString name;
};

/// Whether \a path leads to the root folder. The older toolkit's cleanPath() leaves "/." as it is.
bool isRoot(const QString &path)
{
    int depth = 0;
    Q_FOREACH (const QString &part, path.split(QLatin1Char('/'), QString::SkipEmptyParts)) {
        if (part == QLatin1String(".."))
            depth = qMax(0, depth - 1);
        else if (part != QLatin1String("."))
            ++depth;
    }
    return path.startsWith(QLatin1Char('/')) && depth == 0;
}

} // namespace

ImportManage::ImportManage(QWidget *parent)
    : QDialog(parent, Qt::WindowFlags()), m_usbPresent(false)
{
    QVBoxLayout *rows = new QVBoxLayout(this);

    QHBoxLayout *titles = new QHBoxLayout;
    titles->addWidget(new QLabel(tr("Hmi"), this));
    QLabel *usbTitle = new QLabel(tr("Usb"), this);
    usbTitle->setAlignment(Qt::AlignRight);
    titles->addWidget(usbTitle);
    rows->addLayout(titles);

    m_hmiView = new QListView(this);
    QVBoxLayout *transfers = new QVBoxLayout;
    m_toUsbButton = addTransferButton(transfers, tr(">>"));
    m_toHmiButton = addTransferButton(transfers, tr("<<"));
    // The arrow of a delete button points away from the side that it deletes from.
    m_delHmiButton = addTransferButton(transfers, tr(">Del"));
    m_delUsbButton = addTransferButton(transfers, tr("Del<"));
    m_usbView = new QListView(this);
    QHBoxLayout *panels = new QHBoxLayout;
    panels->addWidget(m_hmiView);
    panels->addLayout(transfers);
    panels->addWidget(m_usbView);
    rows->addLayout(panels);

    m_statusLabel = new QLabel(this);
    m_quitButton = new QPushButton(tr("Quit"), this);
    m_quitButton->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    QHBoxLayout *footer = new QHBoxLayout;
    footer->addWidget(m_statusLabel);
    footer->addWidget(m_quitButton);
    rows->addLayout(footer);

    m_hmiModel = newFileModel(this);
    m_usbModel = newFileModel(this);
    m_usbView->setModel(m_usbModel);
    m_hmiView->setModel(m_hmiModel);
    m_hmiDir = WAQP::getCncDir();
    m_usbDir = QLatin1String(FilarixPanel::stickDir);

    // The toolkit refuses a slot without parentheses, and nothing starts the timer. Only init()
    // looks for the stick, so the panels never change under the operator's finger.
    QTimer *usbTimer = new QTimer(this);
    connect(usbTimer, SIGNAL(timeout()), this, "1slot_checkUSB");

    setWindowFlags(windowFlags() & ~Qt::WindowTitleHint);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);

    connect(m_toUsbButton, SIGNAL(clicked()), this, SLOT(slot_copyFromHmiToUsb()));
    connect(m_toHmiButton, SIGNAL(clicked()), this, SLOT(slot_copyFromUsbToHmi()));
    connect(m_delHmiButton, SIGNAL(clicked()), this, SLOT(slot_deleteFromHmi()));
    connect(m_delUsbButton, SIGNAL(clicked()), this, SLOT(slot_deleteFromUsb()));
    connect(m_quitButton, SIGNAL(clicked()), this, SLOT(slot_quit()));
}

void ImportManage::init()
{
    const quint32 used = fontUsedSpace();
    m_usbModel->refresh(m_usbModel->index(m_usbDir));
    m_hmiModel->refresh(m_hmiModel->index(m_hmiDir));
    m_usbView->reset();
    m_hmiView->reset();
    slot_checkUSB();
    if (isUsbMounted()) {
        m_usbView->setRootIndex(m_usbModel->index(m_usbDir));
        m_usbView->QWidget::update();
    }
    const QModelIndex hmiRoot = m_hmiModel->index(m_hmiDir);
    m_hmiView->setRootIndex(hmiRoot);
    // Without a program directory the view stands at the top level, whose one entry is no program.
    if (!hmiRoot.isValid())
        m_hmiView->setRowHidden(0, true);

    QString status = tr("Used Space ") + inMebibytes(used) + tr("Left Space ")
                     + inMebibytes(FilarixPanel::programSpace - used);
    if (!m_usbPresent)
        status += tr(" Usb not found!");
    m_statusLabel->setText(status);
}

bool ImportManage::isUsbMounted()
{
    m_usbPresent = QFile::exists(QLatin1String(FilarixPanel::stickMarker));
    return m_usbPresent;
}

quint32 ImportManage::fontUsedSpace()
{
    quint32 bytes = 0;
    Q_FOREACH (const QFileInfo &entry, QDir(m_hmiDir).entryInfoList()) {
        if (entry.isFile())
            bytes += quint32(entry.size());
    }
    return bytes;
}

int ImportManage::isSatisfyTheCondition(const QString &name, bool cover)
{
    const QFileInfo source(join(m_usbDir, name));
    if (source.isDir())
        return CondIsDir;
    quint32 used = fontUsedSpace();
    if (cover) {
        const QFileInfo target(join(m_hmiDir, name));
        if (!target.exists() || qint64(used) < target.size())
            return CondUnexpected;
        used -= quint32(target.size());
    }
    used += quint32(source.size());
    return used > FilarixPanel::programSpace ? CondNoSpace : CondOk;
}

int ImportManage::copyFile(const QString &srcDir, const QString &srcName, const QString &dstDir,
                           const QString &dstName)
{
    const QByteArray source = Compat::toAscii(join(srcDir, srcName));
    const QByteArray destination = Compat::toAscii(join(dstDir, dstName));
    return runCommand("cp " + source + ' ' + destination + ' ' + "-rf ");
}

int ImportManage::deleteFile(const QString &dir, const QString &name)
{
    const QString path = join(dir, name);
    // What a tool of the system refuses here, the smaller ones of some panels would carry out.
    if (isRoot(path))
        return runCommand("false");
    return runCommand("rm " + Compat::toAscii(path) + ' ' + "-rf");
}

void ImportManage::slot_copyFromHmiToUsb()
{
    copySelectedToUsb();
    init();
}

void ImportManage::slot_copyFromUsbToHmi()
{
    copySelectedToHmi();
    init();
}

void ImportManage::slot_deleteFromHmi()
{
    deleteSelected(tr("Hmi Delete"), m_hmiView, m_hmiModel, m_hmiDir);
    init();
}

void ImportManage::slot_deleteFromUsb()
{
    deleteSelected(tr("Usb Delete"), m_usbView, m_usbModel, m_usbDir);
    init();
}

void ImportManage::slot_quit()
{
    reject();
}

void ImportManage::slot_checkUSB()
{
    m_usbPresent = QFile::exists(QLatin1String(FilarixPanel::stickDir) + QLatin1Char('/'));
}

QPushButton *ImportManage::addTransferButton(QBoxLayout *column, const QString &text)
{
    QPushButton *button = new QPushButton(text, this);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    column->addWidget(button);
    return button;
}

/// No test of space on this way: a full stick shows as a copy that fails.
void ImportManage::copySelectedToUsb()
{
    const QString title = tr("Copy to Usb");
    const Selection file(m_hmiView, m_hmiModel, m_hmiDir);
    if (!file.isValid) {
        showCritical(title, tr("No file Selected!"));
        return;
    }
    if (!QFile(m_usbDir).exists()) {
        showCritical(title, tr("Usb not found!"));
        return;
    }
    if (!QDir(m_usbDir).entryList().contains(file.name)) {
        copyNew(title, m_hmiDir, file.name, m_usbDir);
        return;
    }
    if (confirmCover(title, file.name + tr(" existed in Usb,\n do you want to cover it?")))
        copyOver(title, m_hmiDir, file.name, m_usbDir);
}

void ImportManage::copySelectedToHmi()
{
    const QString title = tr("Copy to Hmi");
    const Selection file(m_usbView, m_usbModel, m_usbDir);
    if (!file.isValid) {
        showCritical(title, tr("No file Selected."));
        return;
    }
    if (!QFile(m_usbDir).exists()) {
        showCritical(title, tr("Usb not found."));
        return;
    }
    const bool cover = QDir(m_hmiDir).entryList().contains(file.name);
    if (cover
        && !confirmCover(title, file.name + tr(" existed in Hmi,\n do you want to cover it?")))
        return;
    // Judged before the old file goes, so that it is never lost to one that doesn't fit.
    const int condition = isSatisfyTheCondition(file.name, cover);
    if (condition != CondOk)
        showRefusal(title, condition);
    else if (cover)
        copyOver(title, m_usbDir, file.name, m_hmiDir);
    else
        copyNew(title, m_usbDir, file.name, m_hmiDir);
}

void ImportManage::copyNew(const QString &title, const QString &srcDir, const QString &name,
                           const QString &dstDir)
{
    if (copyFile(srcDir, name, dstDir, name) != 0)
        showCritical(title, tr("Copy file failed!"));
}

/// The old file goes first, without a backup: a copy that then fails has lost it.
void ImportManage::copyOver(const QString &title, const QString &srcDir, const QString &name,
                            const QString &dstDir)
{
    if (deleteFile(dstDir, name) != 0) {
        showCritical(title, tr("Can't cover this file!"));
        return;
    }
    copyNew(title, srcDir, name, dstDir);
}

void ImportManage::deleteSelected(const QString &title, QListView *view, HmiDirModel *model,
                                  const QString &dir)
{
    const Selection file(view, model, dir);
    if (!file.isValid) {
        showCritical(title, tr("No file Selected."));
        return;
    }
    const QString question = tr("Are you sure to delete ") + file.name + QLatin1Char('?');
    // Only No keeps the file: a box that goes with its parent doesn't, other than for a cover.
    if (MessageBox::warning(this, title, question, QMessageBox::Yes | QMessageBox::No,
                            QMessageBox::NoButton)
        == QMessageBox::No)
        return;
    if (deleteFile(dir, file.name) != 0)
        showCritical(title, tr("Can't delete this file."));
}

void ImportManage::showCritical(const QString &title, const QString &text)
{
    MessageBox::critical(this, title, text, QMessageBox::Ok, QMessageBox::NoButton);
}

void ImportManage::showRefusal(const QString &title, int condition)
{
    switch (condition) {
    case CondIsDir:
        showCritical(title, tr("Font file can not be a Dir!"));
        break;
    case CondNoSpace:
        showCritical(title, tr("Not enough Space!"));
        break;
    default:
        showCritical(title, tr("Unexpected error!"));
        break;
    }
}

bool ImportManage::confirmCover(const QString &title, const QString &text)
{
    return MessageBox::warning(this, title, text, QMessageBox::Yes | QMessageBox::No,
                               QMessageBox::NoButton)
           == QMessageBox::Yes;
}

int ImportManage::runCommand(const QByteArray &command)
{
    m_statusLabel->setText(tr("Processing..."));
    // At once, not by update(): the event loop stands still until the shell returns.
    repaint();
    const int status = std::system(command.constData());
    const int ignored = std::system("sync");
    Q_UNUSED(ignored);
    return status;
}
