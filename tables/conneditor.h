// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FILARIX_CONNEDITOR_H
#define FILARIX_CONNEDITOR_H

#include "filarixglobal.h"

#include <QDialog>
#include <QString>

class ListWidget;
class QPushButton;
class QSettings;

/// The dialog "Connect Table": the machine connections of a settings file, one row each. The
/// operator can change the IP address of a connection and nothing else.
///
/// OK stores the addresses in the connection file, Cancel doesn't. An address that holds a port is
/// stored without it as soon as the table is filled. A file that is missing or can't be read shows
/// as a table without connections, and one that can't be written is not reported. The page "Files
/// and keys" tells what the file holds.
///
///     ConnEditor editor(settingsPath, this);
///     editor.init_list();
///     editor.exec();
class FILARIX_EXPORT ConnEditor : public QDialog
{
    Q_OBJECT

public:
    /// \a fileName is the path of the connection file, in INI format. \a parent may be null.
    ConnEditor(QString fileName, QWidget *parent);

    /// Fills the table from the file. To be called once before the dialog is shown; called again,
    /// it reads the file anew and drops what the operator has entered. The first 1000 connections
    /// are shown.
    void init_list();

    /// Makes both buttons higher, at any time: a ninth of the screen's height instead of a
    /// thirteenth.
    void settp04button();

public Q_SLOTS:
    /// Stores the addresses and accepts the dialog. The rows are matched to the connections of the
    /// file by their place; the names are those that the file has now.
    void on_save_clicked();

private:
    void addHeader();
    void addConnection(QSettings &settings, int number);

    int m_width;
    int m_height;
    QString m_fileName;
    ListWidget *m_list;
    QPushButton *m_okButton;
    QPushButton *m_cancelButton;
};

#endif // FILARIX_CONNEDITOR_H
