// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "programs/storecheck.h"

#include "base/questioner.h"
#include "programs/programreadback.h"
#include "programs/programtext.h"
#include "programs/programwrite.h"
#include "storage/filetaskqueue.h"

#include <QDir>
#include <QFileInfo>
#include <QPointer>
#include <QTextDocument>

namespace {

/// Asks for a folder in the thread.
class PlaceTask : public FileTask
{
public:
    explicit PlaceTask(const std::function<QString()> &place) : m_place(place) {}

    bool step() override
    {
        m_folder = m_place();
        return false;
    }
    QString folder() const { return m_folder; }

private:
    const std::function<QString()> m_place;
    QString m_folder;
};

} // namespace

StoreCheck::StoreCheck(QTextDocument *document, FileTaskQueue *jobs, Questioner *questioner,
                       QObject *parent)
    : QObject(parent), m_document(document), m_jobs(jobs), m_questioner(questioner)
{}

void StoreCheck::begin(const QString &path, const QString &text)
{
    m_path = path;
    m_text = text;
    m_revision = m_document->revision();
    m_isRunning = true;
    m_reason.clear();
    m_otherPath.clear();
    m_stamp = FileStamp();
}

void StoreCheck::check(const QString &path, const QString &text)
{
    begin(path, text);
    const std::shared_ptr<ProgramReadback> task = std::make_shared<ProgramReadback>(path, text);
    m_jobs->run(task, [this, task](bool hasEnded) {
        if (!hasEnded)
            return miss(tr("the panel's storage stopped answering"));
        m_isFaithful = task->isFaithful();
        m_stamp = task->stamp();
        if (task->isStored())
            return end(Stored);
        miss(task->reason());
    });
}

void StoreCheck::write(const QString &path, const QString &text)
{
    begin(path, text);
    writeAgain();
}

void StoreCheck::miss(const QString &reason)
{
    m_reason = reason.isEmpty() ? tr("the file holds something else than the editor") : reason;
    m_document->setModified(true);
    Q_EMIT missed();
    lookForOtherPlace();
}

void StoreCheck::lookForOtherPlace()
{
    if (!m_otherPlace)
        return ask(QString());
    const std::shared_ptr<PlaceTask> task = std::make_shared<PlaceTask>(m_otherPlace);
    m_jobs->run(task, [this, task](bool hasEnded) { ask(hasEnded ? task->folder() : QString()); });
}

void StoreCheck::ask(const QString &otherFolder)
{
    Question question{tr("Save"),
                      tr("%1 is not stored. The whole program is only in the editor.")
                          .arg(QFileInfo(m_path).fileName()),
                      {tr("Later"), tr("Try again")},
                      {m_reason}};
    if (!otherFolder.isEmpty())
        question.answers.append(tr("Save to the stick"));
    const QPointer<StoreCheck> self(this);
    const int answer = m_questioner->ask(question);
    if (!self)
        return;
    if (answer == 1)
        return writeAgain();
    if (answer == 2)
        return lookAndWriteElsewhere(otherFolder);
    end(NotStored);
}

void StoreCheck::writeAgain()
{
    const std::shared_ptr<ProgramWrite> task = std::make_shared<ProgramWrite>(m_path, m_text);
    m_jobs->run(task, [this, task](bool hasEnded) {
        if (!hasEnded) {
            task->abandon();
            return miss(tr("the panel's storage stopped answering"));
        }
        if (!task->isStored())
            return miss(task->reason());
        m_isFaithful = task->isFaithful();
        m_stamp = task->stamp();
        // What was typed meanwhile is not in the file.
        if (m_document->revision() == m_revision)
            m_document->setModified(false);
        end(Stored);
    });
}

/// Judged at the press: while the question stood the stick may have gone, and left its folder.
void StoreCheck::lookAndWriteElsewhere(const QString &folder)
{
    const std::shared_ptr<PlaceTask> task = std::make_shared<PlaceTask>(m_otherPlace);
    m_jobs->run(task, [this, task, folder](bool hasEnded) {
        if (hasEnded && task->folder() == folder)
            return writeElsewhere(folder);
        miss(tr("neither here nor on the stick, which is out"));
    });
}

void StoreCheck::writeElsewhere(const QString &folder)
{
    const QString path = QDir(folder).filePath(QFileInfo(m_path).fileName());
    const std::shared_ptr<ProgramWrite> task =
        std::make_shared<ProgramWrite>(path, m_text, ProgramWrite::BesideAll);
    m_jobs->run(task, [this, task](bool hasEnded) {
        if (!hasEnded) {
            task->abandon();
            return miss(tr("the stick stopped answering"));
        }
        if (!task->isStored())
            return miss(task->reason().isEmpty()
                            ? tr("neither here nor on the stick, whose file differs")
                            : tr("neither here nor on the stick (%1)").arg(task->reason()));
        m_otherPath = task->path();
        end(StoredElsewhere);
    });
}

void StoreCheck::end(Outcome outcome)
{
    m_isRunning = false;
    Q_EMIT ended(outcome);
}
