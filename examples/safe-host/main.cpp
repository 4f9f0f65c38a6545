// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// A host that loses nothing: the G-code screen, with all of the companion between the operator and
// what the library would lose without a word, or send unchecked.

#include "guards/checkmarks.h"
#include "guards/finddialogfitter.h"
#include "guards/finddialogguide.h"
#include "guards/finddialogkeypad.h"
#include "guards/lineentry.h"
#include "guards/programguard.h"
#include "guards/programpickers.h"
#include "guards/programwalk.h"
#include "guards/windowprogram.h"
#include "programs/checkeddownload.h"
#include "programs/programdirectory.h"
#include "programs/programhistory.h"
#include "programs/recentprograms.h"
#include "programs/unsavedoffer.h"
#include "programs/unsavedwork.h"
#include "programs/windinginspection.h"
#include "stick/devicewatch.h"
#include "stick/importguard.h"
#include "stick/stick.h"
#include "wgcodeediter.h"
#include "winding/modalwords.h"
#include "wmmainwindow.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QStatusBar>
#include <QToolBar>

/// Asks by the toolkit's own box.
class Boxes : public Questioner
{
public:
    int ask(const Question &question) override
    {
        QMessageBox box(QMessageBox::Question, question.title, question.plainText());
        QList<QAbstractButton *> buttons;
        Q_FOREACH (const QString &answer, question.answers)
            buttons.append(box.addButton(answer, QMessageBox::AcceptRole));
        box.setEscapeButton(buttons.first()); // the harmless one
        box.exec();
        return qMax(0, buttons.indexOf(box.clickedButton()));
    }
};

class SafeHost : public QMainWindow
{
    Q_OBJECT

public:
    SafeHost(const QString &own, const QString &plc)
        : m_window(new WMMainWindow(this, 0))
        , m_editor(WindowProgram::editorOf(m_window))
        , m_history(ProgramDirectory::path(), own + "/history")
        , m_download(plc, own + "/outgoing", &m_boxes)
        , m_guard(m_window, ProgramDirectory::path(), &m_boxes)
        , m_files(ProgramDirectory::path(), Stick::mountPoint(), &m_boxes, &m_history)
        , m_devices([plc] { return DeviceWatch::lookAt(plc, ProgramDirectory::path()); })
        , m_unsaved(own + "/unsaved")
        , m_offer(own + "/unsaved", &m_unsaved, &m_boxes)
        , m_recent(own + "/recent.ini")
        , m_check(m_editor)
    {
        setCentralWidget(m_window);
        QToolBar *bar = addToolBar(tr("Program"));
        connect(bar->addAction(tr("Find")), SIGNAL(triggered()), SLOT(find()));
        connect(bar->addAction(tr("Next mark")), SIGNAL(triggered()), SLOT(goToNextMark()));
        connect(bar->addAction(tr("Oldest version")), SIGNAL(triggered()), SLOT(bringBack()));
        FindDialogGuide *guide = new FindDialogGuide(m_editor);
        QObject *const tellers[] = {&m_history, &m_download, &m_guard, &m_files,
                                    &m_unsaved, &m_offer,    guide};
        for (QObject *teller : tellers)
            connect(teller, SIGNAL(told(QString, Message::Tone, QString)), SLOT(tell(QString)));
        connect(&m_download, SIGNAL(worked(QString, int)), SLOT(tell(QString)));
        connect(&m_guard, SIGNAL(stateChanged()), SLOT(showState()));
        m_files.connect(&m_devices, SIGNAL(changed(DeviceState)),
                        SLOT(settleNewStick(DeviceState)));
        // What a save, a download, the stick or a delete would cover is kept before.
        m_guard.setHistory(&m_history);
        m_guard.setDownload(&m_download);
        // Whatever ends the program, its next start offers the operator what was not saved.
        m_guard.keepUnsaved(&m_unsaved, &m_offer);
        m_offer.start();
        checkAndHelp(MachineProfile::forSamples());
    }

    ~SafeHost() override { m_unsaved.flush(2000); }

private Q_SLOTS:
    void tell(const QString &text) { statusBar()->showMessage(text); }
    void showState() { tell(m_guard.state().line()); }
    void goToNextMark() { tell(m_check.goToNext()); }
    void find() { FindDialogFitter::show(m_editor, this); }

    /// The oldest version of the open program that the history has.
    void bringBack()
    {
        Q_FOREACH (const ProgramVersion &version, m_history.versions())
            if (m_window->getCurrentFile().endsWith('/' + version.name))
                return m_history.restore(version);
    }

private:
    /// The program is checked while it is edited, and once more before it is sent.
    void checkAndHelp(const MachineProfile &profile)
    {
        m_check.setProfile(profile);
        m_download.setInspector(WindingInspection::by(profile));
        (new LineEntry(m_window, this))->setHint(ModalWords::hintBy(profile));
        (new ProgramPickers(ProgramDirectory::path(), this))->setRecent(&m_recent);
        new ProgramWalk(m_window);
        new FindDialogKeypad(this);
    }

    Boxes m_boxes;
    WMMainWindow *m_window;
    WGCodeEditer *m_editor;
    ProgramHistory m_history;
    CheckedDownload m_download;
    ProgramGuard m_guard;
    ImportGuard m_files;
    DeviceWatch m_devices;
    UnsavedWork m_unsaved;
    UnsavedOffer m_offer;
    RecentPrograms m_recent;
    CheckMarks m_check;
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QDir().mkpath(ProgramDirectory::path());
    QDir().mkpath(QDir::home().filePath("plc"));
    SafeHost host(QDir::home().filePath("safe-host"), QDir::home().filePath("plc"));
    host.show();
    return application.exec();
}

#include "main.moc"
