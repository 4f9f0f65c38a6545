// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// The table of connections. The host names the settings file and writes the connections into it;
// the operator changes addresses.

#include "conneditor.h"

#include <QApplication>
#include <QDir>
#include <QSettings>
#include <QTextStream>

namespace {

const char winder[] = "Winder";

void writeConnection(QSettings &settings, int number, const QString &name, int com, int baud)
{
    const QString key = QString("Connect %1").arg(number);
    settings.setValue(key, name);
    settings.setValue(key + " cid", number + 1);
    settings.setValue(key + " addr", 2);
    settings.setValue(key + " com", com);
    settings.setValue(key + " baud", baud);
}

/// The machine's connections, if the file has none yet.
void provideConnections(const QString &path)
{
    QSettings settings(path, QSettings::IniFormat);
    if (settings.contains("connect count"))
        return;
    writeConnection(settings, 0, winder, 3, 187500);
    writeConnection(settings, 1, "Tension control", 1, 9600);
    settings.setValue("connect count", 2);
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const QString path =
        argc > 1 ? QString::fromLocal8Bit(argv[1]) : QDir::home().filePath("connections.ini");
    provideConnections(path);

    ConnEditor editor(path, nullptr);
    editor.init_list(); // the rows; without it the table stays empty
    const bool accepted = editor.exec() == QDialog::Accepted;

    // An address is kept under the connection's name, not its number.
    QSettings settings(path, QSettings::IniFormat);
    const QString address = settings.value(QString(winder) + "new IP", "192.168.1.3").toString();
    QTextStream(stdout) << (accepted ? "stored: " : "left: ") << address << "\n";
    return 0;
}
