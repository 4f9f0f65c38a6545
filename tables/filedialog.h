// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FILARIX_FILEDIALOG_H
#define FILARIX_FILEDIALOG_H

#include "filarixglobal.h"

#include <QDialog>
#include <QDir>
#include <QString>

class ComboLineEdit;
class Label;
class QPushButton;
class TListWidget;

/// A browser for thumbs. A touch on a line makes that entry the current path. ">>" opens an entry
/// that is a directory, "<<" goes up.
///
///     const QString path = FileDialog::getOpenFileName(this, tr("Program"), "/mnt/Storage",
///                                                      QDir::AllEntries | QDir::NoDotAndDotDot);
///     if (!path.isEmpty())
///         ...
///
/// The filter alone settles what may be picked. The caller finds out whether the result is a file
/// or a directory, or exists at all.
class FILARIX_EXPORT FileDialog : public QDialog
{
    Q_OBJECT

public:
    /// A \a path that does not start with "/" counts from "/mnt/Storage/", and so does an empty
    /// one. A directory is opened at its entries, with or without a "/" at its end. Without one the
    /// first touch replaces the directory's own name in the path. \a parent may be null.
    FileDialog(QDir::Filters filter, QString title, QString path, QWidget *parent,
               Qt::WindowFlags flags);

    /// Shows the dialog modally, with the arguments of the constructor.
    /// \returns the current path as it stood at OK; an empty string means Cancel. The two do the
    /// same: a caller picks the one whose name says what is meant.
    static QString getOpenFileName(QWidget *parent, QString title, QString path,
                                   QDir::Filters filter);
    /// The same as getOpenFileName().
    static QString getExistingDirectory(QWidget *parent, QString title, QString path,
                                        QDir::Filters filter);

    /// Reads the directory anew. What can't be read shows as an empty list.
    void getDirList();

    /// The current path of the dialog that was built or touched last; it stays when the dialog
    /// goes, accepted or not. All dialogs share it, so there should be one at a time.
    static QString m_returnStr;

public Q_SLOTS:
    /// "<<": cuts the path at its last "/", and so first drops the "/" that ">>" put there.
    /// Stays at "/mnt/Storage" and at "/".
    void on_cdUp_click();
    /// ">>": opens the current path, if it is a directory.
    void on_cdDown_click();
    /// Takes the line that was touched, the sender.
    void on_line_click();
    /// Rejects the dialog.
    void on_cancel_click();
    /// Accepts the dialog.
    void on_ok_click();

private:
    QPushButton *newButton(const QString &text, const char *slot, const QSize &size);
    void setPath(const QString &path);

    int m_width;
    int m_height;
    QDir m_dir;
    QDir::Filters m_filter;
    TListWidget *m_list;
    Label *m_selected;
    ComboLineEdit *m_pathEdit;
    QPushButton *m_okButton;
    QPushButton *m_cancelButton;
};

#endif // FILARIX_FILEDIALOG_H
