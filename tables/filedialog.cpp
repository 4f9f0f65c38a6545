// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filedialog.h"

#include "combolineedit.h"
#include "filarixpanel.h"
#include "label.h"
#include "rowlist_p.h"
#include "rowstyle_p.h"
#include "tlistwidget.h"

#include <QApplication>
#include <QDesktopWidget>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

QString FileDialog::m_returnStr;

namespace {

const char selectedLine[] =
    "border-style:solid;border-width: 0px;background-color: #001f56;color: #ffffff;";

const int maxWidth = 440;
/// Screens higher than this have small lines and a dialog of half their height.
const int largeScreen = 480;

int dialogHeight(int screenHeight)
{
    if (screenHeight > largeScreen)
        return screenHeight / 2;
    return screenHeight > 450 ? 400 : 200;
}

int lineHeight(int screenHeight)
{
    return screenHeight > largeScreen ? int(screenHeight / 24.0) : screenHeight / 16;
}

/// The path without its last "/" and what follows; the root keeps its own.
QString parentOf(const QString &path)
{
    const int slash = path.lastIndexOf(QLatin1Char('/'));
    return slash > 0 ? path.left(slash) : QString(QLatin1Char('/'));
}

QString run(QWidget *parent, const QString &title, const QString &path, QDir::Filters filter)
{
    FileDialog dialog(filter, title, path, parent, Qt::WindowTitleHint);
    return dialog.exec() == QDialog::Accepted ? FileDialog::m_returnStr : QString();
}

} // namespace

FileDialog::FileDialog(QDir::Filters filter, QString title, QString path, QWidget *parent,
                       Qt::WindowFlags flags)
    : QDialog(parent, flags), m_filter(filter), m_selected(nullptr)
{
    setWindowTitle(title);
    m_returnStr.clear();
    const QRect screen = QApplication::desktop()->availableGeometry(-1);
    m_width = qMin(screen.width(), maxWidth);
    m_height = screen.height();
    const int linesPerScreen = m_height > largeScreen ? 24 : 12;
    const int partHeight = m_height / linesPerScreen;
    const QString start = path.startsWith(QLatin1Char('/'))
                              ? path
                              : QLatin1String(FilarixPanel::stickDir) + QLatin1Char('/') + path;

    QLabel *titleLabel = new QLabel(title, this);
    titleLabel->setFixedHeight(partHeight);
    QLabel *pathLabel = new QLabel(tr("Path: "), this);
    pathLabel->setFixedHeight(partHeight);
    pathLabel->setFixedWidth(m_width / (m_height > largeScreen ? linesPerScreen - 10 : 12));
    m_pathEdit = new ComboLineEdit(this);
    m_pathEdit->setFixedHeight(partHeight);
    setPath(start);

    QScrollArea *scrollArea = new QScrollArea(this);
    QStringList noTitleRow;
    m_list = new TListWidget(noTitleRow, scrollArea);
    getDirList();
    scrollArea->setWidget(m_list);
    scrollArea->setWidgetResizable(true);

    QVBoxLayout *rows = new QVBoxLayout(this);
    rows->addWidget(titleLabel);
    QHBoxLayout *pathRow = new QHBoxLayout;
    pathRow->addWidget(pathLabel);
    pathRow->addWidget(m_pathEdit);
    rows->addLayout(pathRow);
    rows->addSpacing(10);
    rows->addWidget(scrollArea);
    rows->addSpacing(10);
    const QSize buttonSize(m_width / 8, partHeight);
    QHBoxLayout *buttons = new QHBoxLayout;
    buttons->addWidget(newButton(tr("<<"), SLOT(on_cdUp_click()), buttonSize));
    buttons->addWidget(newButton(tr(">>"), SLOT(on_cdDown_click()), buttonSize));
    m_okButton = newButton(tr("OK"), SLOT(on_ok_click()), buttonSize);
    buttons->addWidget(m_okButton);
    m_cancelButton = newButton(tr("Cancel"), SLOT(on_cancel_click()), buttonSize);
    buttons->addWidget(m_cancelButton);
    rows->addLayout(buttons);

    setFixedWidth(m_width);
    setFixedHeight(dialogHeight(m_height));
}

QString FileDialog::getOpenFileName(QWidget *parent, QString title, QString path,
                                    QDir::Filters filter)
{
    return run(parent, title, path, filter);
}

QString FileDialog::getExistingDirectory(QWidget *parent, QString title, QString path,
                                         QDir::Filters filter)
{
    return run(parent, title, path, filter);
}

void FileDialog::getDirList()
{
    ListWidget *lines = m_list; // the paged list hides the operations of the plain one
    RowList::clear(lines);
    m_dir.refresh();
    Q_FOREACH (const QString &name, m_dir.entryList(m_filter)) {
        Label *line = new Label(m_list);
        // A name is no markup, whatever it looks like.
        line->setTextFormat(Qt::PlainText);
        line->setText(name);
        line->setFixedHeight(lineHeight(m_height));
        line->setStyleSheet(QLatin1String(RowStyle::plainRow));
        connect(line, SIGNAL(clicked()), this, SLOT(on_line_click()));
        lines->addWidget(line);
    }
    lines->setVisible(true);
}

void FileDialog::on_cdUp_click()
{
    if (m_returnStr != QLatin1String(FilarixPanel::stickDir) && m_returnStr != QLatin1String("/"))
        setPath(parentOf(m_returnStr));
    getDirList();
}

void FileDialog::on_cdDown_click()
{
    if (!m_dir.exists())
        return;
    if (!m_returnStr.endsWith(QLatin1Char('/')))
        setPath(m_returnStr + QLatin1Char('/'));
    getDirList();
}

void FileDialog::on_line_click()
{
    Label *line = qobject_cast<Label *>(sender());
    if (!line)
        return;
    if (line != m_selected) {
        // The old one may be of an earlier list: it is out of sight, but alive.
        if (m_selected)
            m_selected->setStyleSheet(QLatin1String(RowStyle::plainRow));
        m_selected = line;
        m_selected->setStyleSheet(QLatin1String(selectedLine));
    }
    QString directory = m_returnStr;
    if (!directory.endsWith(QLatin1Char('/')))
        directory = parentOf(directory) + QLatin1Char('/');
    setPath(directory + line->text());
}

void FileDialog::on_cancel_click()
{
    reject();
}

void FileDialog::on_ok_click()
{
    accept();
}

QPushButton *FileDialog::newButton(const QString &text, const char *slot, const QSize &size)
{
    QPushButton *button = new QPushButton(text, this);
    button->setFixedSize(size);
    connect(button, SIGNAL(clicked()), this, slot);
    return button;
}

void FileDialog::setPath(const QString &path)
{
    m_pathEdit->setText(path);
    m_dir.setPath(path);
    m_returnStr = path;
}
