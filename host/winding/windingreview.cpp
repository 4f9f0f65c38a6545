// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "winding/windingreview.h"

#include "base/hostcompat.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTextBlock>

#include <atomic>

namespace {

// A step of a thread's work, which takes a few milliseconds.
const int pieceBytes = 256 * 1024;
// Lines that are copied between two looks at the clock.
const int linesPerLook = 64;
const int wholePercent = 100;

} // namespace

/// One program on its way through the thread.
struct Q_DECL_HIDDEN WindingReview::Run
{
    Run(const MachineProfile &profile, const std::shared_ptr<BlockListener> &hearer)
        : listener(hearer), reading(profile, hearer.get())
    {}

    const std::shared_ptr<BlockListener> listener;
    ProgramReading reading;
    /// Nobody waits for it any more.
    std::atomic<bool> isGivenUp{false};
    /// Of a document: what was copied.
    int revision = -1;
    int copied = 0;
};

/// Reads a program's file, one piece a step.
class Q_DECL_HIDDEN WindingReview::FileReview : public FileTask
{
public:
    FileReview(const QString &path, ProgramReading *reading) : m_file(path), m_reading(reading) {}
    /// Keeps \a run, to which the reading belongs.
    FileReview(const QString &path, const std::shared_ptr<Run> &run)
        : m_file(path), m_run(run), m_reading(&run->reading)
    {}

    bool step() override { return m_file.isOpen() ? readPiece() : open(); }
    int percent() const override;
    void close() override { m_file.close(); }

    QString error() const { return m_error; }
    std::shared_ptr<Run> run() const { return m_run; }

private:
    bool open();
    bool readPiece();
    bool fail(const QString &error);

    QFile m_file;
    const std::shared_ptr<Run> m_run;
    ProgramReading *const m_reading;
    QByteArray m_piece;
    qint64 m_size = 0;
    qint64 m_done = 0;
    QString m_error;
};

bool WindingReview::FileReview::open()
{
    const QFileInfo info(m_file.fileName());
    if (info.exists() && !info.isFile())
        return fail(tr("%1 is not a program file.").arg(info.fileName()));
    if (!m_file.open(QIODevice::ReadOnly))
        return fail(
            tr("The program %1 cannot be read: %2.").arg(info.fileName(), m_file.errorString()));
    m_size = m_file.size();
    m_piece.resize(pieceBytes);
    return true;
}

bool WindingReview::FileReview::readPiece()
{
    // Up to where the end was at first: one that moves on could be followed for ever.
    const qint64 count = m_file.read(m_piece.data(), qMin<qint64>(pieceBytes, m_size - m_done));
    if (count < 0)
        return fail(tr("The program %1 cannot be read: %2.")
                        .arg(QFileInfo(m_file.fileName()).fileName(), m_file.errorString()));
    m_done += count;
    m_reading->addBytes(m_piece.constData(), count);
    if (count > 0 && m_done < m_size)
        return true;
    m_reading->finish();
    return false;
}

int WindingReview::FileReview::percent() const
{
    return m_size <= 0 ? 0 : int(wholePercent * m_done / m_size);
}

bool WindingReview::FileReview::fail(const QString &error)
{
    m_error = error;
    return false;
}

bool WindingReview::read(const QString &path, ProgramReading *reading, QString *error)
{
    FileReview review(path, reading);
    while (review.step())
        continue;
    review.close();
    *error = review.error();
    return error->isEmpty();
}

WindingReview::WindingReview(QObject *parent)
    : QObject(parent), m_profile(MachineProfile::forSamples())
{}

WindingReview::~WindingReview()
{
    abandon();
}

void WindingReview::start(const QString &path)
{
    abandon();
    m_run = makeRun();
    m_file = std::make_shared<FileReview>(path, m_run);
    m_files = new FileTaskRunner(this);
    m_files->setStallTime(m_stallMs);
    connect(m_files, SIGNAL(progressed(int)), this, SLOT(tellProgress(int)));
    connect(m_files, SIGNAL(ended()), this, SLOT(endFile()));
    connect(m_files, SIGNAL(stalled()), this, SLOT(endStalled()));
    m_files->start(m_file);
}

void WindingReview::start(QTextDocument *document)
{
    abandon();
    m_document = document;
    connect(document, SIGNAL(contentsChanged()), this, SLOT(followChange()));
    if (!m_thread)
        m_thread.reset(new FileThread);
    beginCopy();
}

void WindingReview::stop()
{
    if (!isRunning())
        return;
    abandon();
    Q_EMIT stopped();
}

/// Lets the run under way go: what its thread still does reaches nobody.
void WindingReview::abandon()
{
    if (m_run)
        m_run->isGivenUp = true;
    m_run.reset();
    m_file.reset();
    leaveFile();
    if (m_document)
        disconnect(m_document.data(), nullptr, this, nullptr);
    m_document = nullptr;
    m_hasChanged = false;
    m_isBetweenPieces = false;
}

/// The step in hand may hang: nobody waits for it, and the runner goes when it is over.
void WindingReview::leaveFile()
{
    if (!m_files)
        return;
    disconnect(m_files, nullptr, this, nullptr);
    if (m_files->isRunning()) {
        connect(m_files, SIGNAL(stopped()), m_files, SLOT(deleteLater()));
        connect(m_files, SIGNAL(ended()), m_files, SLOT(deleteLater()));
        connect(m_files, SIGNAL(stalled()), m_files, SLOT(deleteLater()));
        m_files->stop();
    } else {
        m_files->deleteLater();
    }
    m_files = nullptr;
}

std::shared_ptr<WindingReview::Run> WindingReview::makeRun()
{
    return std::make_shared<Run>(m_profile, m_maker ? m_maker() : nullptr);
}

void WindingReview::endFile()
{
    const QString error = m_file->error();
    const std::shared_ptr<Run> run = m_run;
    abandon();
    if (error.isEmpty())
        take(*run);
    else
        Q_EMIT failed(error);
}

void WindingReview::endStalled()
{
    abandon();
    Q_EMIT failed(tr("The panel's storage stopped answering. Switch the panel off and on, then try "
                     "once more."));
}

void WindingReview::take(const Run &run)
{
    m_model = run.reading.model();
    m_listener = run.listener;
    m_revision = run.revision;
    Q_EMIT reviewed();
}

WindingModel WindingReview::modelSoFar() const
{
    if (!m_run || !m_isBetweenPieces)
        return WindingModel(m_profile);
    WindingModel model = m_run->reading.model();
    model.finish();
    return model;
}

void WindingReview::tellProgress(int percent)
{
    m_isBetweenPieces = true;
    Q_EMIT progressed(percent);
    m_isBetweenPieces = false;
}

void WindingReview::beginCopy()
{
    m_run = makeRun();
    m_run->revision = m_document->revision();
    m_hasChanged = false;
    copyLater(m_run);
}

void WindingReview::copyLater(const std::shared_ptr<Run> &run)
{
    HostCompat::callLater(this, [this, run] {
        if (run == m_run)
            copy();
    });
}

void WindingReview::followChange()
{
    m_hasChanged = true;
}

void WindingReview::copy()
{
    if (!m_document) {
        abandon();
        Q_EMIT stopped();
        return;
    }
    if (m_hasChanged) {
        m_run->isGivenUp = true;
        beginCopy();
        return;
    }
    const std::shared_ptr<Run> run = m_run;
    const QString piece = copyPiece();
    const bool isLast = run->copied == m_document->blockCount();
    if (isLast)
        disconnect(m_document.data(), nullptr, this, nullptr);
    const auto work = [run, piece, isLast] {
        if (run->isGivenUp)
            return;
        run->reading.addLines(piece);
        if (isLast)
            run->reading.finish();
    };
    m_thread->post(work, [this, run, isLast] { endPiece(run, isLast); });
}

/// The next lines of the document, as many as copyMs allow.
QString WindingReview::copyPiece()
{
    QElapsedTimer clock;
    clock.start();
    QString piece;
    QTextBlock block = m_document->findBlockByNumber(m_run->copied);
    for (; block.isValid(); block = block.next()) {
        if (m_run->copied % linesPerLook == linesPerLook - 1 && clock.elapsed() >= copyMs)
            break;
        piece += block.text();
        piece += QLatin1Char('\n');
        ++m_run->copied;
    }
    return piece;
}

void WindingReview::endPiece(const std::shared_ptr<Run> &run, bool isLast)
{
    if (run != m_run)
        return;
    if (isLast) {
        abandon();
        take(*run);
        return;
    }
    const qint64 blocks = m_document ? m_document->blockCount() : 1;
    tellProgress(int(qMin<qint64>(wholePercent, qint64(wholePercent) * run->copied / blocks)));
    // Whoever hears the progress may have started another review.
    if (run == m_run)
        copyLater(run);
}
