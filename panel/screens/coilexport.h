// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef COILEXPORT_H
#define COILEXPORT_H

#include "base/message.h"
#include "storage/filetaskrunner.h"

#include <QByteArray>
#include <QObject>
#include <QString>

#include <functional>
#include <memory>

/// Takes the picture and the totals of a coil to the stick, beside the event loop.
///
/// Both go into a new folder, "stator-coil-picture", say, so nothing that is there is covered:
/// where the name is taken, the folder is "stator-coil-picture-2". What could not be written as a
/// whole is taken away again. Each begin() ends in one told().
class CoilExport : public QObject
{
    Q_OBJECT

public:
    /// What the files hold.
    struct Contents
    {
        QByteArray svg;
        QByteArray png;
        QByteArray csv;
    };

    /// Where the stick is, as work in a thread finds out.
    struct Place
    {
        QString folder;
        std::function<bool()> isPresent;
    };

    explicit CoilExport(QObject *parent = nullptr);
    CoilExport(const Place &place, QObject *parent);

    /// The panel's stick.
    static Place stick();

    bool isRunning() const { return m_work.isRunning(); }
    /// Writes \a contents; the names begin like that of \a program. Does nothing while it runs.
    void begin(const QString &program, const Contents &contents);
    void stop() { m_work.stop(); }
    /// Milliseconds after which the stick counts as one that does not answer.
    void setStallTime(int ms) { m_work.setStallTime(ms); }

Q_SIGNALS:
    void worked(const QString &text, int percent);
    void told(const QString &text, Message::Tone tone, const QString &cause = QString());
    void causeEnded(const QString &cause);

private:
    class Task;

    void tellEnd();
    void tellStopped();
    void tellStall();

    const Place m_place;
    FileTaskRunner m_work;
    std::shared_ptr<Task> m_task;
};

#endif // COILEXPORT_H
