// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef WFILEDIALOG_H
#define WFILEDIALOG_H

#include "dialog.h"

#include <QDir>
#include <QString>
#include <QStringList>

class QLabel;
class QLineEdit;
class QPushButton;
class QTableWidget;

/// The modal dialog that picks a program by name from the program directory.
///
/// It lists the directory once, when it is made, and proposes the first file each time it is shown.
/// On a touch panel a press into the name field opens the character keypad.
///
///     WFileDialog dialog(nullptr);
///     dialog.setTitle(tr("Open file"));
///     if (dialog.exec() == QDialog::Accepted)
///         open(dialog.fileName);
class WFileDialog : public Dialog
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    explicit WFileDialog(QWidget *parent);
    ~WFileDialog() override;

    /// The property through which the keypad returns its text.
    QString text() const;
    void setText(const QString &text);

protected:
    /// A press on the name field opens the keypad; everything goes on to the base class.
    bool eventFilter(QObject *object, QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private Q_SLOTS:
    void openFileOfItem(int row, int column);
    void on_applyButton_clicked();
    void on_cancelButton_clicked();

private:
    void init();
    void createFilesTable();
    void find();
    void showFiles(const QStringList &files);

    QLabel *nameLabel;
    QLineEdit *nameEdit;
    QPushButton *applyButton;
    QPushButton *cancelButton;
    QTableWidget *filesTable;
    QDir currentDir;

public:
    /// The text of the name field at the moment of "OK": a bare name as it stands there, unchecked,
    /// possibly empty. Empty until then.
    QString fileName;

private:
    QString keypadText;
};

#endif // WFILEDIALOG_H
