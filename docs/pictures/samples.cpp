// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "samples.h"

#include "conneditor.h"
#include "filarixrows.h"
#include "filedialog.h"
#include "tlistwidget.h"

#include <QDir>
#include <QSettings>

QByteArray Samples::program()
{
    return "; stator coil, 3 layers\n"
           "G21\n"
           "G90 G00 X0 Y0 Z25.0\n"
           "T01 M06\n"
           "S1200 M03\n"
           "G01 X-12.5 Z3 F180.5\n"
           "G02 X10 Y20 I5.25 J-3\n"
           "G04 F0.3\n"
           "M05\n"
           "M30\n";
}

void Samples::write(const QString &path, const QByteArray &bytes)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("%s cannot be written", qPrintable(path));
}

void Samples::writePrograms()
{
    write(QDir::home().filePath("cnc/stator-coil.cnc"), program());
    write(QDir::home().filePath("cnc/test-coil.cnc"), program());
    write("/mnt/Storage/coils/rotor.cnc", program());
    write("/mnt/Storage/cover.cnc", program());
    write("/mnt/Storage/part.cnc", program());
    write("/tmp/udiskattach", "");
}

QStringList Samples::movement(int index)
{
    FilarixRows::InstructionRow move(index % 2 ? FilarixRows::InstructionRow::Joint
                                               : FilarixRows::InstructionRow::Linear,
                                     index % 2 ? "Move" : "Wind");
    move.setJpos("P", index % 5 + 1).setV("V", index % 3 + 1);
    move.setZ("Z", QString::number(index * 0.5)).setT("T", "0.25").setRes("first layer");
    const char *axes[] = {"X", "Y", "Z", "A", "B", "C", "v", "acc", "dec"};
    for (int pair = 0; pair < FilarixRows::detailCount; ++pair)
        move.setDetail(pair, axes[pair], QString::number((index + pair) * 12.5));
    return move.row(index);
}

TListWidget *Samples::list(const QSize &size)
{
    QStringList title = FilarixRows::titleRow("Instr.", "Point", "Speed", "Z", "T");
    TListWidget *list = new TListWidget(title, nullptr);
    list->setSize(size);
    for (int i = 1; i < 40; ++i) {
        QStringList next = i == 5 ? FilarixRows::otherRow(i, "M10 clamp the wire") : movement(i);
        list->addWidget(next, false, false);
    }
    QStringList none;
    list->addWidget(none, true, true);
    list->home();
    list->setCurIndex(3, true);
    return list;
}

ConnEditor *Samples::connections()
{
    const QString path = QDir::home().filePath("connections.ini");
    QSettings settings(path, QSettings::IniFormat);
    settings.setValue("connect count", 2);
    settings.setValue("Connect 0", "Winder");
    settings.setValue("Connect 0 cid", 1);
    settings.setValue("Connect 0 baud", 187500);
    settings.setValue("Connect 0 addr", 2);
    settings.setValue("Connect 0 com", 3);
    settings.setValue("Connect 1", "Tension control");
    settings.setValue("Connect 1 cid", 2);
    settings.setValue("Connect 1 baud", 9600);
    settings.setValue("Connect 1 addr", 3);
    settings.setValue("Connect 1 com", 2);
    settings.sync();
    ConnEditor *editor = new ConnEditor(path, nullptr);
    editor->init_list();
    return editor;
}

FileDialog *Samples::browser()
{
    return new FileDialog(QDir::AllEntries | QDir::NoDotAndDotDot, "Program", "/mnt/Storage",
                          nullptr, Qt::WindowTitleHint);
}
