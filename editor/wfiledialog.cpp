// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "wfiledialog.h"

#include "compat.h"
#include "waqp.h"

#include <hmidevice/characterkeypad.h>
#include <hmidevice/hmideviceinfo.h>

#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QTableWidget>

namespace {

/// Height in pixels of a row and of the fields below the table.
const int rowHeight = 50;

QFont dialogFont()
{
    return WAQP::setFont(QLatin1String("Arial"), 12, true);
}

} // namespace

WFileDialog::WFileDialog(QWidget *parent) : Dialog(parent), currentDir(QString())
{
    setFont(dialogFont());
    createFilesTable();
    init();
    resize(500, 300);
    find();
}

WFileDialog::~WFileDialog() = default;

QString WFileDialog::text() const
{
    return keypadText;
}

void WFileDialog::setText(const QString &text)
{
    keypadText = text;
}

bool WFileDialog::eventFilter(QObject *object, QEvent *event)
{
    if (!object)
        return false;
    if (object->qt_metacast("QLineEdit") && object == nameEdit
        && event->type() == QEvent::MouseButtonPress && HMIDeviceInfo::isTouchScreen()
        && static_cast<QMouseEvent *>(event)->button() != Qt::RightButton) {
        if (CharacterKeypad *keypad = CharacterKeypad::instance()) {
            keypad->setObject(this);
            keypad->setValidator(nullptr);
            keypad->setText(nameEdit->text());
            if (keypad->exec() == QDialog::Accepted)
                nameEdit->setText(text());
        }
    }
    return QDialog::eventFilter(object, event);
}

void WFileDialog::showEvent(QShowEvent *event)
{
    openFileOfItem(0, 0);
    Dialog::showEvent(event);
}

void WFileDialog::openFileOfItem(int row, int)
{
    if (const QTableWidgetItem *item = filesTable->item(row, 0))
        nameEdit->setText(item->text());
}

void WFileDialog::on_applyButton_clicked()
{
    fileName = nameEdit->text();
    accept();
}

void WFileDialog::on_cancelButton_clicked()
{
    reject();
}

void WFileDialog::init()
{
    QGridLayout *grid = new QGridLayout(this);
    grid->addWidget(filesTable, 1, 0);

    nameLabel = new QLabel(tr("Name:"));
    nameEdit = new QLineEdit;
    applyButton = new QPushButton(tr("OK"));
    cancelButton = new QPushButton(tr("Cancel"));
    QHBoxLayout *box = new QHBoxLayout;
    Q_FOREACH (QWidget *widget, QList<QWidget *>()
                                    << nameLabel << nameEdit << applyButton << cancelButton) {
        widget->setFixedHeight(rowHeight);
        box->addWidget(widget);
    }
    nameEdit->installEventFilter(this);
    connect(applyButton, SIGNAL(clicked()), SLOT(on_applyButton_clicked()));
    connect(cancelButton, SIGNAL(clicked()), SLOT(on_cancelButton_clicked()));
    grid->addLayout(box, 2, 0);
}

void WFileDialog::createFilesTable()
{
    filesTable = new QTableWidget(0, 2);
    filesTable->setSelectionBehavior(QAbstractItemView::SelectRows);
    filesTable->setFont(dialogFont());
    filesTable->setHorizontalHeaderLabels(QStringList() << tr("File Name") << tr("Size"));
    Compat::setSectionResizeMode(filesTable->horizontalHeader(), 0, QHeaderView::Stretch);
    filesTable->verticalHeader()->hide();
    filesTable->setShowGrid(false);
    connect(filesTable, SIGNAL(cellClicked(int, int)), SLOT(openFileOfItem(int, int)));
}

void WFileDialog::find()
{
    // clear() takes the header labels too: from here on the columns show their numbers.
    filesTable->clear();
    filesTable->setRowCount(0);
    currentDir = QDir(WAQP::getCncDir());
    // NoSort means the directory's own order here, by name without regard to case.
    showFiles(currentDir.entryList(QStringList(QLatin1String("*")), QDir::Files | QDir::NoSymLinks,
                                   QDir::NoSort));
}

void WFileDialog::showFiles(const QStringList &files)
{
    Q_FOREACH (const QString &name, files) {
        const qint64 size = QFileInfo(currentDir.absoluteFilePath(name)).size();

        QTableWidgetItem *nameItem = new QTableWidgetItem(name);
        nameItem->setFlags(nameItem->flags() ^ Qt::ItemIsEditable);
        QTableWidgetItem *sizeItem = new QTableWidgetItem(tr("%1 KB").arg((size + 1023) / 1024));
        sizeItem->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        sizeItem->setFlags(sizeItem->flags() ^ Qt::ItemIsEditable);

        const int row = filesTable->rowCount();
        filesTable->insertRow(row);
        filesTable->setItem(row, 0, nameItem);
        filesTable->setItem(row, 1, sizeItem);
        filesTable->setRowHeight(row, rowHeight);
    }
}
