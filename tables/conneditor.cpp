// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "conneditor.h"

#include "dataeditor.h"
#include "devicefile_p.h"
#include "listwidget.h"
#include "rowlist_p.h"

#include <QApplication>
#include <QDesktopWidget>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScrollArea>
#include <QSettings>
#include <QStringList>
#include <QVBoxLayout>

namespace {

/// More than any panel has; a damaged file may ask for thousands of millions of rows.
const int maxConnections = 1000;

int dialogWidth(int screenWidth)
{
    if (screenWidth >= 800)
        return 680;
    if (screenWidth >= 480)
        return 440;
    return screenWidth;
}

QString nameOf(const QSettings &settings, int number)
{
    return settings.value(QString::fromLatin1("Connect %1").arg(number)).toString();
}

/// One of the connection's own numbers: "cid", "baud", "addr" or "com".
int numberOf(const QSettings &settings, int number, const char *what, int missing)
{
    const QString key = QString::fromLatin1("Connect %1 ").arg(number) + QLatin1String(what);
    return settings.value(key, missing).toInt();
}

/// By the connection's name, not its number: connections of one name share an address.
QString addressKey(const QString &name)
{
    return name + QLatin1String("new IP");
}

QString upToColon(const QString &text)
{
    return text.section(QLatin1Char(':'), 0, 0);
}

QString defaultAddress(const QString &name, int com, int baud)
{
    if (com != 0)
        return QString::fromLatin1("192.168.1.%1").arg(com);
    const QSettings device(DeviceFile::path(), QSettings::IniFormat);
    const bool hasOwnNetwork = device.value(QLatin1String("RT5350"), false).toBool();
    if (baud == 0)
        return upToColon(name);
    return QLatin1String(hasOwnNetwork ? "192.168.125.1" : "127.0.0.1");
}

/// Some files hold a rate that no port knows; the rate that was meant is shown.
int correctedBaud(int baud)
{
    return baud == 187600 ? 187500 : baud;
}

/// The number that operators know a port by: the codes 0 and 1 are the other way round.
int shownPort(int com)
{
    if (com == 0)
        return 1;
    return com > 1 ? com : 0;
}

} // namespace

ConnEditor::ConnEditor(QString fileName, QWidget *parent)
    : QDialog(parent, Qt::WindowFlags()), m_width(-1), m_height(-1), m_fileName(fileName)
{
    setWindowTitle(tr("Connect Table"));
    const QRect screen = QApplication::desktop()->availableGeometry(-1);
    m_height = screen.height();
    m_width = dialogWidth(screen.width());

    // A row is as wide as the dialog: nothing may stand beside it, or the address is cut off.
    QScrollArea *scrollArea = new QScrollArea(this);
    scrollArea->setFrameShape(QFrame::NoFrame);
    m_list = new ListWidget(scrollArea);
    scrollArea->setWidget(m_list);
    scrollArea->setWidgetResizable(true);

    m_okButton = new QPushButton(tr("OK"), this);
    m_cancelButton = new QPushButton(tr("Cancel"), this);
    m_okButton->setFixedSize(m_width / 3, m_height / 13);
    m_cancelButton->setFixedSize(m_width / 3, m_height / 13);
    connect(m_okButton, SIGNAL(clicked()), this, SLOT(on_save_clicked()));
    connect(m_cancelButton, SIGNAL(clicked()), this, SLOT(reject()));

    QVBoxLayout *rows = new QVBoxLayout(this);
    const QMargins margins = rows->contentsMargins();
    rows->setContentsMargins(0, margins.top(), 0, margins.bottom());
    rows->addWidget(scrollArea);
    rows->addSpacing(10);
    QHBoxLayout *buttons = new QHBoxLayout;
    buttons->addWidget(m_okButton);
    buttons->addWidget(m_cancelButton);
    rows->addLayout(buttons);

    setFixedWidth(m_width);
    setFixedHeight(2 * m_height / 3);
}

void ConnEditor::init_list()
{
    RowList::clear(m_list);
    addHeader();
    QSettings settings(m_fileName, QSettings::IniFormat);
    const int count =
        qMin(settings.value(QLatin1String("connect count"), 0).toInt(), maxConnections);
    for (int number = 0; number < count; ++number)
        addConnection(settings, number);
    m_list->setVisible(true);
}

void ConnEditor::settp04button()
{
    m_okButton->setFixedHeight(m_height / 9);
    m_cancelButton->setFixedHeight(m_height / 9);
}

void ConnEditor::on_save_clicked()
{
    QSettings settings(m_fileName, QSettings::IniFormat);
    for (int i = 1; i < m_list->count(); ++i) {
        DataEditor *row = static_cast<DataEditor *>(m_list->itemAt(i));
        settings.setValue(addressKey(nameOf(settings, i - 1)), row->getData().last());
    }
    settings.sync();
    accept();
}

void ConnEditor::addHeader()
{
    QStringList cells = QStringList()
                        << tr("Cid") << tr("Port") << tr("CPU Addr") << tr("Baud") << tr("IP");
    m_list->addWidget(new DataEditor(true, cells, QSize(m_width, m_height), m_list, false));
}

void ConnEditor::addConnection(QSettings &settings, int number)
{
    const QString name = nameOf(settings, number);
    const int cid = numberOf(settings, number, "cid", 0);
    const int baud = correctedBaud(numberOf(settings, number, "baud", 0));
    const int addr = numberOf(settings, number, "addr", 0);
    const int com = numberOf(settings, number, "com", 1);

    const QString key = addressKey(name);
    QString address = settings.value(key, defaultAddress(name, com, baud)).toString();
    if (address.contains(QLatin1Char(':'))) {
        // A host and port of older files: the host alone is kept, whatever the operator presses.
        address = upToColon(address);
        settings.setValue(key, address);
    }

    QStringList cells = QStringList() << QString::number(cid) << QString::number(shownPort(com))
                                      << QString::number(addr) << QString::number(baud) << address;
    m_list->addWidget(new DataEditor(false, cells, QSize(m_width, m_height), m_list, true));
}
