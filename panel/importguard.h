// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef IMPORTGUARD_H
#define IMPORTGUARD_H

#include <QObject>
#include <QStringList>

class ImportManage;

/// Stands between the operator and the import manager's commands, which hand file names to the
/// shell as they are.
///
/// Each press on a transfer key of a manager is let through only while every name in both folders
/// is safe and so are the chosen ones, which may be names of a stick that has gone. Otherwise the
/// operator is asked whether to rename them, and the manager shows its folders anew.
class ImportGuard : public QObject
{
    Q_OBJECT

public:
    /// Watches the application from now on.
    ImportGuard(const QString &programDir, const QString &stickDir, QObject *parent = nullptr);

    /// Paths of the files in both folders whose names are not safe.
    QStringList unsafeFiles() const;
    /// Asks whether to rename the unsafe files, if there are any, and does it on Yes. Whether none
    /// is left.
    bool settle();

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// What came of a question, in words; \a isSettled tells whether all names are safe now.
    void told(const QString &text, bool isSettled);

private:
    bool isProgramDirSafe() const;
    bool choosesUnsafeName(const ImportManage *manager) const;
    int renameAll(const QStringList &files);

    const QString m_programDir;
    const QString m_stickDir;
};

#endif // IMPORTGUARD_H
