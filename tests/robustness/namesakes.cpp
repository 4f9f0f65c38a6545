// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "namesakes.h"

#include <cstring>

namespace {

int useCount = 0;

} // namespace

Own::Own()
{
    ++useCount;
    std::memset(m_bytes, 'x', sizeof m_bytes);
}

Own::~Own()
{
    ++useCount;
    std::memset(m_bytes, 'y', sizeof m_bytes);
}

void Own::use()
{
    ++useCount;
    std::memset(m_bytes, 'z', sizeof m_bytes);
}

int Own::uses()
{
    return useCount;
}

CheckBox::CheckBox(QWidget *parent) : QWidget(parent) {}
CheckBox::CheckBox(const QString &, QWidget *parent) : QWidget(parent) {}
CheckBox::~CheckBox() = default;

ComboBox::ComboBox(QWidget *parent, bool) : QWidget(parent) {}
ComboBox::~ComboBox() = default;

ConnEditor::ConnEditor(QString, QWidget *parent) : QWidget(parent) {}
ConnEditor::~ConnEditor() = default;

DataEditor::DataEditor(bool, QStringList &, QSize, QWidget *parent, bool) : QWidget(parent) {}
DataEditor::~DataEditor() = default;
QStringList DataEditor::getData()
{
    return QStringList(QLatin1String("the host's"));
}
void DataEditor::setData(QStringList &list)
{
    list.clear();
}

Dialog::Dialog(QWidget *parent) : QWidget(parent) {}
Dialog::~Dialog() = default;
void Dialog::setTitle(const QString &)
{
    m_own.use();
}
void Dialog::showEvent(QShowEvent *)
{
    m_own.use();
}

DoubleSpinBox::DoubleSpinBox(QWidget *parent) : QWidget(parent) {}
DoubleSpinBox::~DoubleSpinBox() = default;

FileDialog::FileDialog(QDir::Filters, QString, QString, QWidget *parent, Qt::WindowFlags)
    : QWidget(parent)
{}
FileDialog::~FileDialog() = default;
QString FileDialog::m_returnStr;

GroupBox::GroupBox(QWidget *parent) : QWidget(parent) {}
GroupBox::GroupBox(const QString &, QWidget *parent) : QWidget(parent) {}
GroupBox::~GroupBox() = default;

ImportManage::ImportManage(QWidget *parent) : QWidget(parent) {}
ImportManage::~ImportManage() = default;

LineEdit::LineEdit(QWidget *parent) : QWidget(parent) {}
LineEdit::~LineEdit() = default;

ListWidget::ListWidget(QWidget *parent) : QWidget(parent) {}
ListWidget::~ListWidget() = default;
int ListWidget::count() const
{
    return 1000;
}

MessageBox::MessageBox(QWidget *parent) : QWidget(parent) {}
MessageBox::~MessageBox() = default;

MJLine::MJLine(QStringList &, QSize, QWidget *parent) : QWidget(parent) {}
MJLine::~MJLine() = default;

PushButton::PushButton(QWidget *parent) : QWidget(parent) {}
PushButton::PushButton(const QString &, QWidget *parent) : QWidget(parent) {}
PushButton::~PushButton() = default;

ScrollBar::ScrollBar(Qt::Orientation, QWidget *parent) : QWidget(parent) {}
ScrollBar::~ScrollBar() = default;

SpinBox::SpinBox(QWidget *parent) : QWidget(parent) {}
SpinBox::~SpinBox() = default;

TListWidget::TListWidget(QStringList &, QWidget *parent) : QWidget(parent) {}
TListWidget::~TListWidget() = default;
void TListWidget::reshow()
{
    m_own.use();
}

WGCodeEditer::WGCodeEditer(QWidget *parent) : QWidget(parent) {}
WGCodeEditer::~WGCodeEditer() = default;

WHighlighter::WHighlighter(QTextDocument *) {}
WHighlighter::~WHighlighter() = default;

WMMainWindow::WMMainWindow(QWidget *parent, int) : QWidget(parent) {}
WMMainWindow::~WMMainWindow() = default;
