// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/coilpreview.h"

#include <QFileInfo>
#include <QMutex>
#include <QMutexLocker>
#include <QTextDocument>

#include <atomic>

namespace {

const QLatin1String profileCause("machine profile");
const int mostGrowMs = 2000;

} // namespace

/// Hears a reading in its thread and hands out what is wound so far, when it is asked to.
class CoilPreview::Growth : public BlockListener
{
public:
    explicit Growth(const std::shared_ptr<BlockListener> &companion) : m_companion(companion) {}

    void add(const GCodeBlock &block, const WindingStep &step, const WindingModel &model) override
    {
        if (m_companion)
            m_companion->add(block, step, model);
        m_own.hasWords = m_own.hasWords || block.wordCount > 0 || block.faultCount > 0;
        if (block.faultCount > 0 || step.unknownWords != 0) {
            m_own.first = m_own.count == 0 ? block.line : m_own.first;
            ++m_own.count;
        }
        if (m_isAsked.load(std::memory_order_relaxed))
            handOut(model);
    }

    void finish(const WindingModel &model) override
    {
        if (m_companion)
            m_companion->finish(model);
        handOut(model);
    }

    void ask() { m_isAsked = true; }

    /// False when there is nothing new.
    bool take(WindingModel *model, Unknown *unknown)
    {
        const QMutexLocker locker(&m_mutex);
        if (!m_isFresh)
            return false;
        *model = m_model;
        m_model = WindingModel();
        *unknown = m_handedOut;
        m_isFresh = false;
        return true;
    }

private:
    void handOut(const WindingModel &model)
    {
        const QMutexLocker locker(&m_mutex);
        m_model = model;
        m_handedOut = m_own;
        m_isFresh = true;
        m_isAsked = false;
    }

    const std::shared_ptr<BlockListener> m_companion;
    Unknown m_own;
    std::atomic<bool> m_isAsked{false};
    QMutex m_mutex;
    WindingModel m_model;
    Unknown m_handedOut;
    bool m_isFresh = false;
};

const int CoilPreview::pauseMs;
const int CoilPreview::growMs;

CoilPreview::CoilPreview(QTextDocument *document, QObject *parent)
    : QObject(parent), m_document(document)
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(pauseMs);
    connect(&m_pause, &QTimer::timeout, this, &CoilPreview::begin);
    connect(&m_grow, &QTimer::timeout, this, &CoilPreview::takeGrowth);
    connect(m_document, &QTextDocument::contentsChanged, this, &CoilPreview::noteChange);
    m_review.setListenerMaker([this] {
        m_growth = std::make_shared<Growth>(m_companion ? m_companion() : nullptr);
        m_growth->ask();
        return m_growth;
    });
    connect(&m_review, &WindingReview::reviewed, this, &CoilPreview::end);
    connect(&m_review, &WindingReview::stopped, this, &CoilPreview::halted);
    connect(&m_review, &WindingReview::progressed, this, [this](int percent) {
        m_percent = percent;
        Q_EMIT progressed(percent);
    });
}

void CoilPreview::readProfile(const QString &path, bool isNeeded)
{
    struct Read
    {
        MachineProfile profile;
        QStringList faults;
    };
    const std::shared_ptr<Read> read = std::make_shared<Read>();
    m_profileJob.run(
        [read, path, isNeeded] {
            read->profile = isNeeded || QFileInfo(path).exists()
                                ? MachineProfile::fromFile(path, &read->faults)
                                : MachineProfile::forSamples();
        },
        [this, read] { takeProfile(read->profile, read->faults); },
        [this] {
            takeProfile(MachineProfile(),
                        {tr("The panel's storage does not answer: the machine is not known.")});
        });
}

void CoilPreview::takeProfile(const MachineProfile &profile, const QStringList &faults)
{
    m_profileFaults = faults;
    setProfile(profile);
    if (!faults.isEmpty())
        Q_EMIT told(faults.first(), Message::Warning, profileCause);
}

void CoilPreview::setProfile(const MachineProfile &profile)
{
    m_review.setProfile(profile);
    m_hasProfile = true;
    m_isStale = true;
    begin();
}

void CoilPreview::setViewed(QObject *viewer, bool isViewed)
{
    if (!isViewed) {
        m_viewers.remove(viewer);
        return;
    }
    m_viewers.insert(viewer);
    if (m_isStale && !m_pause.isActive())
        begin();
}

// Of a document that is loaded in pieces, each piece is a change.
void CoilPreview::noteChange()
{
    m_isStale = true;
    m_isStopped = false;
    m_review.stop();
    m_grow.stop();
    m_pause.start();
}

void CoilPreview::stop()
{
    if (!isReading())
        return;
    m_isStale = true;
    m_isStopped = true;
    m_grow.stop();
    m_review.stop();
    Q_EMIT changed();
}

void CoilPreview::begin()
{
    if (!m_hasProfile || !m_isStale || m_viewers.isEmpty())
        return;
    m_isStale = false;
    m_isStopped = false;
    m_percent = 0;
    m_readFor.start();
    m_review.start(m_document);
    m_grow.start(growMs);
    Q_EMIT changed();
}

void CoilPreview::takeGrowth()
{
    if (!m_growth || !m_growth->take(&m_model, &m_unknown))
        return;
    m_growth->ask();
    // What is handed out is a copy: the longer the program, the fewer of them.
    if (!m_model.layers().isEmpty())
        m_grow.setInterval(qMin(mostGrowMs, m_grow.interval() * 2));
    Q_EMIT changed();
}

void CoilPreview::end()
{
    m_grow.stop();
    takeGrowth();
    m_model = m_review.model();
    m_growth.reset();
    m_readRevision = m_review.revision();
    m_percent = 100;
    Q_EMIT changed();
    Q_EMIT settled();
}

bool CoilPreview::isCurrent() const
{
    return !m_isStale && !isReading() && m_readRevision == m_document->revision();
}

CoilPreview::State CoilPreview::state() const
{
    if (!m_profileFaults.isEmpty())
        return NoProfile;
    if (!m_model.layers().isEmpty())
        return Winds;
    if (isReading() || m_isStale || m_readRevision < 0)
        return NotRead;
    return m_unknown.hasWords ? WindsNothing : Empty;
}
