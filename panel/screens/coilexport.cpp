// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/coilexport.h"

#include "stick/stick.h"
#include "stick/transfernames.h"
#include "storage/durablefile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>

#include <sys/stat.h>

namespace {

const QLatin1String stickCause("stick");
const int mostNames = 999;

QString systemWords(int reason)
{
    return QString::fromLocal8Bit(std::strerror(reason));
}

// A name that each system takes, and each command line.
QString baseOf(const QString &program)
{
    const QString base = QFileInfo(program).completeBaseName();
    return TransferNames::proposal(base.isEmpty() ? QLatin1String("coil") : base, QStringList());
}

} // namespace

/// A folder first, then a file a step. Before each of them the stick has to be there still: an
/// unmount leaves a folder of the panel's own in its place.
class CoilExport::Task : public FileTask
{
public:
    enum Outcome { Failed, NoStick, Pulled, Written };

    Task(const Place &place, const QString &program, const Contents &contents)
        : m_place(place), m_base(baseOf(program))
    {
        m_files.append({m_base + QLatin1String(".svg"), contents.svg});
        m_files.append({m_base + QLatin1String(".png"), contents.png});
        m_files.append({m_base + QLatin1String(".csv"), contents.csv});
    }

    bool step() override
    {
        if (!m_place.isPresent()) {
            m_outcome = m_name.isEmpty() ? NoStick : Pulled;
            return false;
        }
        if (m_name.isEmpty())
            return makeFolder();
        if (m_done < m_files.size())
            return write(m_files.at(m_done));
        if (DurableFile::syncFolder(m_place.folder))
            m_outcome = Written;
        else
            m_reason = systemWords(errno);
        return false;
    }

    int percent() const override { return 100 * m_done / m_files.size(); }

    // In the thread, so that the screen need not wait for a stick that is slow.
    void close() override
    {
        if (m_outcome == Written || m_name.isEmpty() || !beginChange())
            return;
        for (const File &file : m_files)
            QFile::remove(folder() + QLatin1Char('/') + file.name);
        QDir(m_place.folder).rmdir(m_name);
        m_name.clear();
        endChange();
    }

    Outcome outcome() const { return m_outcome; }
    QString reason() const { return m_reason; }
    QString writtenName() const { return m_name; }

private:
    struct File
    {
        QString name;
        QByteArray bytes;
    };

    QString folder() const { return m_place.folder + QLatin1Char('/') + m_name; }

    // The system makes a folder or finds one, in one step: what is there is never written into.
    bool makeFolder()
    {
        for (int number = 1; number <= mostNames; ++number) {
            const QString name =
                m_base + QLatin1String("-picture")
                + (number == 1 ? QString() : QString::fromLatin1("-%1").arg(number));
            const QByteArray path = QFile::encodeName(m_place.folder + QLatin1Char('/') + name);
            if (!beginChange())
                return false;
            const int reason = ::mkdir(path.constData(), 0777) == 0 ? 0 : errno;
            if (reason == 0)
                m_name = name;
            endChange();
            if (reason == 0)
                return true;
            m_reason = systemWords(reason);
            if (reason != EEXIST)
                return false;
        }
        return false;
    }

    bool write(const File &file)
    {
        DurableFile durable(folder() + QLatin1Char('/') + file.name);
        bool isChanging = false;
        const bool isWritten =
            durable.open() && durable.write(file.bytes) && durable.commit([this, &isChanging] {
                isChanging = beginChange();
                return isChanging;
            });
        if (isChanging)
            endChange();
        m_reason = durable.errorString();
        m_done += isWritten ? 1 : 0;
        if (!isWritten && !m_place.isPresent())
            m_outcome = Pulled;
        return isWritten;
    }

    const Place m_place;
    const QString m_base;
    QList<File> m_files;
    QString m_name;
    QString m_reason;
    int m_done = 0;
    Outcome m_outcome = Failed;
};

CoilExport::CoilExport(QObject *parent) : CoilExport(stick(), parent) {}

CoilExport::CoilExport(const Place &place, QObject *parent) : QObject(parent), m_place(place)
{
    connect(&m_work, &FileTaskRunner::progressed, this, [this](int percent) {
        Q_EMIT worked(tr("Writing the picture to the stick"), percent);
    });
    connect(&m_work, &FileTaskRunner::ended, this, &CoilExport::tellEnd);
    connect(&m_work, &FileTaskRunner::stopped, this, &CoilExport::tellStopped);
    connect(&m_work, &FileTaskRunner::stalled, this, &CoilExport::tellStall);
}

CoilExport::Place CoilExport::stick()
{
    return {Stick::mountPoint(), &Stick::isPresent};
}

void CoilExport::begin(const QString &program, const Contents &contents)
{
    if (isRunning())
        return;
    m_task = std::make_shared<Task>(m_place, program, contents);
    m_work.start(m_task);
}

void CoilExport::tellEnd()
{
    const std::shared_ptr<Task> task = m_task;
    m_task.reset();
    switch (task->outcome()) {
    case Task::Written:
        Q_EMIT causeEnded(stickCause);
        Q_EMIT told(
            tr("Picture and totals are on the stick, in the folder %1.").arg(task->writtenName()),
            Message::Information);
        return;
    case Task::NoStick:
        Q_EMIT told(tr("There is no stick. Plug one in, then export once more."), Message::Warning,
                    stickCause);
        return;
    case Task::Pulled:
        Q_EMIT told(
            tr("The stick was pulled out: the picture is not on it. Plug it in, then export "
               "once more."),
            Message::Alarm, stickCause);
        return;
    case Task::Failed:
        Q_EMIT told(tr("The picture is not on the stick: %1.").arg(task->reason()), Message::Alarm,
                    stickCause);
    }
}

void CoilExport::tellStopped()
{
    m_task.reset();
    Q_EMIT told(tr("The export was stopped."), Message::Warning);
}

void CoilExport::tellStall()
{
    m_task.reset();
    Q_EMIT told(tr("The stick does not answer: whether the picture is on it is not known."),
                Message::Alarm, stickCause);
}
