// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FILARIX_IMPORTMANAGE_H
#define FILARIX_IMPORTMANAGE_H

#include "filarixglobal.h"

#include <QDialog>

class HmiDirModel;
class QBoxLayout;
class QLabel;
class QListView;
class QPushButton;

/// The dialog with which the operator copies and deletes plain files. On the left is the panel's
/// program directory ("Hmi"), on the right the USB stick at "/mnt/Storage" ("Usb").
///
/// Copying and deleting is done by the shell's `cp`, `rm` and `sync`, which block the GUI thread
/// until they return. The paths reach the shell as they are, without quotes: see docs/security.md
/// for what a host has to do about file names on foreign sticks. Whoever opens the dialog learns
/// nothing of what was transferred.
///
///     ImportManage manager(nullptr);
///     manager.init();
///     manager.exec();
class FILARIX_EXPORT ImportManage : public QDialog
{
    Q_OBJECT

public:
    /// What isSatisfyTheCondition() answers.
    enum Condition {
        CondOk = 0,        ///< The copy may go ahead.
        CondIsDir = 1,     ///< The file on the stick is a directory.
        CondNoSpace = 2,   ///< The panel side would pass its limit.
        CondUnexpected = 3 ///< The file to be replaced is gone, or larger than all that is used.
    };

    /// Builds the dialog; init() must follow before it is shown. \a parent may be null.
    explicit ImportManage(QWidget *parent);

    /// Reads both directories anew, drops the selection and composes the status line. Every
    /// transfer ends with it. A missing stick or directory is no error.
    void init();

    /// Whether the marker file "/tmp/udiskattach" exists; the status line goes by it.
    bool isUsbMounted();

    /// Bytes in the program directory: plain files and links to such, neither hidden ones nor those
    /// of subdirectories. The sum wraps at 32 bits; a missing directory gives 0.
    quint32 fontUsedSpace();

    /// Whether the file \a name of the stick may be copied to the panel: 30 MiB is the limit of
    /// all files there together. With \a cover the size of the file that it replaces is credited.
    /// \returns one of Condition.
    int isSatisfyTheCondition(const QString &name, bool cover);

    /// Copies srcDir/srcName to dstDir/dstName. Characters beyond Latin-1 become "?", and blanks
    /// and shell characters are not quoted.
    /// \returns the status as `system` gives it: 0 is success. It is that of the shell alone: a
    /// `sync` that fails behind it is not told.
    int copyFile(const QString &srcDir, const QString &srcName, const QString &dstDir,
                 const QString &dstName);

    /// Deletes dir/name, a directory with all that is in it. A file that is already gone is a
    /// success. Same remark on names and same result as copyFile(). Of the root folder nothing is
    /// deleted, and that is a failure.
    int deleteFile(const QString &dir, const QString &name);

public Q_SLOTS:
    /// ">>": the panel's current file to the stick, over one of the same name after a question.
    /// Like the other three it reports a failure in a box and ends in init().
    void slot_copyFromHmiToUsb();
    /// "<<": the stick's current file to the panel, if isSatisfyTheCondition() lets it.
    void slot_copyFromUsbToHmi();
    /// ">Del": deletes the panel's current file, unless the answer is No.
    void slot_deleteFromHmi();
    /// "Del<": the same with the stick's.
    void slot_deleteFromUsb();
    /// Rejects the dialog.
    void slot_quit();
    /// Takes note of whether "/mnt/Storage/" exists.
    void slot_checkUSB();

private:
    QPushButton *addTransferButton(QBoxLayout *column, const QString &text);
    void copyNew(const QString &title, const QString &srcDir, const QString &name,
                 const QString &dstDir);
    void copyOver(const QString &title, const QString &srcDir, const QString &name,
                  const QString &dstDir);
    void copySelectedToUsb();
    void copySelectedToHmi();
    void deleteSelected(const QString &title, QListView *view, HmiDirModel *model,
                        const QString &dir);
    void showCritical(const QString &title, const QString &text);
    void showRefusal(const QString &title, int condition);
    bool confirmCover(const QString &title, const QString &text);
    int runCommand(const QByteArray &command);

    bool m_usbPresent;
    QString m_hmiDir;
    QString m_usbDir;
    QListView *m_hmiView;
    QListView *m_usbView;
    HmiDirModel *m_hmiModel;
    HmiDirModel *m_usbModel;
    QPushButton *m_toUsbButton;
    QPushButton *m_toHmiButton;
    QPushButton *m_delHmiButton;
    QPushButton *m_delUsbButton;
    QPushButton *m_quitButton;
    QLabel *m_statusLabel;
};

#endif // FILARIX_IMPORTMANAGE_H
