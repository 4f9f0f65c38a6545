// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FILARIX_WMMAINWINDOW_H
#define FILARIX_WMMAINWINDOW_H

#include "compat.h"
#include "filarixglobal.h"

#include <QList>
#include <QSplitter>
#include <QString>
#include <QStringList>

class QLabel;
class QStatusBar;
class QToolBar;
class QToolButton;
class WGCodeEditer;

/// The G-code screen of a panel. A strip has the file's name and the cursor's position; the editor
/// and one or two tool bars with the commands follow.
///
/// The host creates a window, places it in its own screen and owns it through the parent. A window
/// stores its size and position when it is destroyed. The library moves no data to the machine: the
/// host answers signal_download() and brackets the transfer with setDownloading().
///
///     WMMainWindow *window = new WMMainWindow(screen, 90);
///     connect(window, SIGNAL(signal_download(QString)), SLOT(send(QString)));
///     layout->addWidget(window);
///
/// The window title holds a "[*]" for changes. Nothing sets the mark unless the host connects the
/// document's modificationChanged(bool) to the slot documentWasModified().
///
/// The window serves events while a long program is loaded and while one of its dialogs is open. A
/// host's timers and slots run then, too. A slot that wants the window gone calls deleteLater(), at
/// any time: the command under way ends there. To delete the window from a slot that its own load
/// calls, such as one of the document's contentsChanged(), is an error.
///
/// Every operation belongs to the GUI thread.
class FILARIX_EXPORT WMMainWindow : public QSplitter
{
    Q_OBJECT
    /// Where the on-screen keypad leaves its answer.
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    /// \a rotation is the panel's, in degrees: 90 and 270 spread the buttons over two bars, any
    /// other value gives one.
    WMMainWindow(QWidget *parent, int rotation);
    ~WMMainWindow() override;

    /// Full path of the file that the document was read from or stored to last; empty when it has
    /// none. This is what signal_download() carries.
    QString getCurrentFile() const;

    /// What setDownloading() was last told; false at first.
    bool isDownloading() const;
    /// Tells the window that the host's transfer runs (true) or has ended (false). The D/L button
    /// is greyed meanwhile, and download() sends nothing.
    void setDownloading(bool value);

    /// The property through which the keypad returns its text; it has no other effect.
    QString text() const;
    /// Writes the property; see text().
    void setText(const QString &text);

    /// Inserts \a line below the cursor, or into the cursor's line if that is empty.
    void insertLine(const QString &line);
    /// Replaces the cursor's line by \a line.
    void updateGcode(QString line);

    /// The words of \a line that would change something, given the lines from the cursor's upward.
    /// A word is dropped when the nearest line that names the word holds the same number. Empty
    /// when the line adds nothing. A first word that holds a G is kept with the words that stay;
    /// without one the result begins with a blank. Nothing is refused: a value that is not a number
    /// reads as 0.
    QString getEffectiveString(QString line);

Q_SIGNALS:
    /// The operator wants the file at \a path sent to the machine; empty when the document has no
    /// file.
    void signal_download(QString path);
    /// The operator wants a line made from the taught point.
    void signal_copyFromTag();
    /// Declared for hosts; nothing here emits it.
    void signal_softEditGCode(QString line);
    /// Declared for hosts; nothing here emits it.
    void gDataIsCorrect();

private Q_SLOTS:
    void newFile();
    void open();
    void remove();
    bool save();
    bool saveAs();
    bool importExport();
    void documentWasModified();
    void slot_updateTips();
    bool download();
    /// The command of the Up and Down buttons; the handler of the same name stays the base's.
    void moveEvent();
    void softEditGcode();
    void insertRow();
    void insertBefore();
    void deleteRow();
    void copyFromTag();

protected:
    using QSplitter::moveEvent;

    /// Sets the texts of the buttons and titles again. Tool tips, the window title, the file label
    /// and the Preproccess button keep theirs.
    void languageChange();
#ifdef FILARIX_LANGUAGE_CHANGE_BY_EVENT
    /// Calls languageChange() when the language changes, as the older toolkit does by itself.
    void changeEvent(QEvent *event) override;
#endif

private:
    void createBtn();
    void createToolBar();
    void createEditBar();
    void createStatusBar();
    void attemptToRefreshButton(QObject *object, QToolButton *button);

    bool maybeSave();
    void loadFile(const QString &fileName);
    bool saveFile(const QString &fileName);
    void setCurrentFile(const QString &fileName);
    QString strippedName(const QString &fullFileName);
    void readSettings();
    void writeSettings();

    bool splitString(const QStringList &words, QStringList &names, QList<double> &values);
    /// Asks for one word what getEffectiveString() asks for all words of a line at once.
    bool compareString(int lineNumber, QString name, double value);

    QString m_text;
    QLabel *m_fileLabel;
    QToolBar *m_toolBar;
    QToolBar *m_toolBar2;
    QToolBar *m_editBar;
    QToolButton *m_newBtn;
    QToolButton *m_openBtn;
    QToolButton *m_removeBtn;
    QToolButton *m_saveBtn;
    QToolButton *m_saveAsBtn;
    QToolButton *m_importExportBtn;
    QToolButton *m_preproccessBtn;
    QToolButton *m_morphologyBtn;
    QToolButton *m_syntaxBtn;
    QToolButton *m_compileBtn;
    QToolButton *m_downloadBtn;
    QToolButton *m_showBtn;
    QToolButton *m_playOrPauseBtn;
    QToolButton *m_stopBtn;
    QToolButton *m_upBtn;
    QToolButton *m_downBtn;
    QToolButton *m_insertBtn;
    QToolButton *m_insertBeforeBtn;
    QToolButton *m_deleteBtn;
    QToolButton *m_tagBtn;
    QToolButton *m_editBtn;
    QToolButton *m_copyBtn;
    QToolButton *m_pasteBtn;
    QToolButton *m_findBtn;
    QStatusBar *m_statusBar;
    WGCodeEditer *m_editor;
    QString m_curFile;
    QString m_curLineText;
    QLabel *m_rowTitle;
    QLabel *m_rowValue;
    QLabel *m_colTitle;
    QLabel *m_colValue;
    QLabel *m_countTitle;
    QLabel *m_countValue;
    QString m_downloadFile;
    bool m_downloading;
    int m_rotation;
};

#endif // FILARIX_WMMAINWINDOW_H
