// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PROGRAMSNAPSHOT_H
#define PROGRAMSNAPSHOT_H

#include "base/filarixhostglobal.h"
#include "storage/filetaskrunner.h"

#include <QByteArray>
#include <QMetaType>
#include <QString>

/// What an operator can tell a program by.
struct FILARIX_HOST_EXPORT ProgramFacts
{
    QString name;
    qint64 bytes = 0;
    /// As the editor's read-out counts: one more than there are line ends, and so 1 for no text.
    qint64 lines = 1;
    /// SHA-256 of the bytes.
    QByteArray hash;

    /// The first eight digits of the hash in groups of four: "3F2A 91C0". Eight digits are short
    /// enough to be compared by eye, and `sha256sum` shows the same on any PC. By accident two
    /// programs share these digits once in four thousand million.
    QString checksum() const { return checksum(hash); }
    static QString checksum(const QByteArray &hash);
};

/// A private copy of one program, so that what is sent is what the operator was shown.
///
/// Each copy has a name of its own and is locked for as long as it is wanted: several panels may
/// share the folder. All work on files is done in threads.
///
/// Each take() ends in exactly one taken(), stopped() or failed(), each compare() in one
/// compared(), never before the call has returned.
class FILARIX_HOST_EXPORT ProgramSnapshot : public QObject
{
    Q_OBJECT

public:
    enum Verdict {
        Same,    ///< The program is what the copy is.
        Changed, ///< The file holds something else by now.
        Gone     ///< The file cannot be read any more.
    };

    /// Bytes that move in one step.
    static const int pieceBytes = 64 * 1024;

    /// \a folder is for copies alone, and made if it is missing. Copies of panels that run no more
    /// are removed.
    explicit ProgramSnapshot(const QString &folder, QObject *parent = nullptr);
    /// Takes the copy away.
    ~ProgramSnapshot() override;

    bool isRunning() const { return m_work.isRunning(); }
    /// Copies the program at \a path; empty when it was never saved. Does nothing while work runs.
    void take(const QString &path);
    /// Ends a take().
    void stop();
    /// Takes the copy away.
    void drop();

    /// Path of the program that was taken.
    QString programPath() const { return m_path; }
    /// Path of its copy; empty when there is none.
    QString copyPath() const;
    ProgramFacts facts() const { return m_facts; }

    /// Milliseconds without progress after which work fails; FileTaskRunner::stallMs at first.
    void setStallTime(int ms) { m_work.setStallTime(ms); }

public Q_SLOTS:
    /// Whether the program still is what was taken. Does nothing while work runs.
    void compare();

Q_SIGNALS:
    void progress(int percent);
    void taken();
    /// stop() came before that. \a text is a sentence for the operator.
    void stopped(const QString &text);
    /// \a reason is a sentence for the operator.
    void failed(const QString &reason);
    void compared(ProgramSnapshot::Verdict verdict);

private Q_SLOTS:
    void end();
    void endStopped();
    void endStalled();

private:
    class Copy;
    class Task;

    void begin(const std::shared_ptr<Copy> &copy);

    const QString m_folder;
    QString m_path;
    ProgramFacts m_facts;
    std::shared_ptr<Copy> m_copy;
    FileThread m_keeper;
    FileTaskRunner m_work;
    std::shared_ptr<Task> m_task;
    bool m_comparing = false;
};

Q_DECLARE_METATYPE(ProgramSnapshot::Verdict)

#endif // PROGRAMSNAPSHOT_H
