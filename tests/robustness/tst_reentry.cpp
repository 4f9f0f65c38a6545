// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "devicelog.h"
#include "filarixtest.h"
#include "importmanage.h"
#include "lineedit.h"
#include "modaldriver.h"
#include "openwindow.h"
#include "wcopydialog.h"
#include "wfinddialog.h"

#include <QMetaMethod>
#include <QPaintEvent>
#include <QPlainTextDocumentLayout>
#include <QProgressDialog>
#include <QScrollBar>
#include <QSet>
#include <QTextDocument>
#include <QTimer>

#include <functional>

namespace {

/// Something that a host or an operator may do to a window.
struct Operation
{
    QString name;
    std::function<void()> run;
};
typedef QList<Operation> Operations;

QProgressDialog *progressDialog()
{
    Q_FOREACH (QWidget *widget, QApplication::topLevelWidgets()) {
        if (QProgressDialog *progress = qobject_cast<QProgressDialog *>(widget))
            return progress;
    }
    return nullptr;
}

int lineCount()
{
    return FilarixTest::scaled(100000, 10000);
}

/// A program that a load leaves as it is.
QByteArray program(int lines)
{
    QByteArray bytes;
    for (int i = 0; i < lines; ++i)
        bytes += "N" + QByteArray::number(i) + " G01 X" + QByteArray::number(i % 100) + ".5 Y3\n";
    bytes.chop(1);
    return bytes;
}

QString writeProgram(const char *name, const QByteArray &bytes)
{
    const QString path = FilarixTest::programDir() + QLatin1Char('/') + QLatin1String(name);
    FilarixTest::writeFile(path, bytes);
    return path;
}

/// One operation after another, each in a turn of the event loop that a load serves.
class Disturber : public QObject
{
    Q_OBJECT

public:
    explicit Disturber(const Operations &operations) : m_left(operations), m_isBusy(false)
    {
        connect(&m_timer, SIGNAL(timeout()), SLOT(look()));
        m_timer.start(0);
    }

    bool isDone() const { return m_left.isEmpty(); }

private Q_SLOTS:
    void look()
    {
        // What an operation starts is left in peace: loads within loads have no end otherwise.
        if (m_isBusy || m_left.isEmpty() || !progressDialog())
            return;
        m_isBusy = true;
        const Operation operation = m_left.takeFirst();
        if (DeviceLog::answersLeft() == 0)
            DeviceLog::acceptWith(QLatin1String("G01 X7"));
        operation.run();
        m_isBusy = false;
    }

private:
    QTimer m_timer;
    Operations m_left;
    bool m_isBusy;
};

/// Ends each dialog that comes up: accepts it, with an answer to what it asks, or gives it up.
class Answerer : public QObject
{
    Q_OBJECT

public:
    explicit Answerer(bool accepts) : m_accepts(accepts)
    {
        connect(&m_timer, SIGNAL(timeout()), SLOT(look()));
        m_timer.start(1);
    }

    /// The classes of the dialogs that it ended.
    QSet<QString> seen;

private Q_SLOTS:
    void look()
    {
        QWidget *modal = QApplication::activeModalWidget();
        if (!modal || !modal->isVisible())
            return;
        // The keypads answer by themselves.
        if (QMessageBox *box = qobject_cast<QMessageBox *>(modal))
            box->buttons().value(m_accepts ? 0 : box->buttons().size() - 1)->click();
        else if (WFileDialog *picker = qobject_cast<WFileDialog *>(modal))
            pick(picker);
        else if (ImportManage *manager = qobject_cast<ImportManage *>(modal))
            useAndQuit(manager);
        else if (WCopyDialog *copy = qobject_cast<WCopyDialog *>(modal))
            copy->done(m_accepts ? QDialog::Accepted : QDialog::Rejected);
        else
            return;
        seen << QLatin1String(modal->metaObject()->className());
    }

private:
    void pick(WFileDialog *picker)
    {
        const QString title = picker->windowTitle();
        const char *const name = title == QLatin1String("Open file")     ? "second.cnc"
                                 : title == QLatin1String("Remove file") ? "first.cnc"
                                                                         : "saved.cnc";
        picker->nameEdit->setText(QLatin1String(name));
        (m_accepts ? picker->applyButton : picker->cancelButton)->click();
    }
    /// Nothing is selected on either side, so each of its buttons has a box come up. They are
    /// pressed later: while this slot runs, its timer would answer none of those.
    static void useAndQuit(ImportManage *manager)
    {
        if (manager->property("isUsed").toBool()) {
            manager->slot_quit();
            return;
        }
        manager->setProperty("isUsed", true);
        Q_FOREACH (QPushButton *button, manager->findChildren<QPushButton *>()) {
            if (button->text() != QLatin1String("Quit"))
                QTimer::singleShot(0, button, SLOT(click()));
        }
    }

    QTimer m_timer;
    bool m_accepts;
};

/// Arguments of any of the types that the slots take.
class Arguments
{
public:
    explicit Arguments(const QMetaMethod &method)
        : m_text(QLatin1String("G01 X1"))
        , m_number(3)
        , m_flag(true)
        , m_rect(0, 0, 50, 50)
        , m_case(Qt::CaseSensitive)
        , m_widget(nullptr)
    {
        Q_FOREACH (const QByteArray &type, method.parameterTypes()) {
            const void *const value = valueOf(type);
            if (!value)
                unknown = type;
            m_types << type;
            m_values << value;
        }
    }

    QGenericArgument at(int i) const
    {
        return i < m_values.size() ? QGenericArgument(m_types.at(i).constData(), m_values.at(i))
                                   : QGenericArgument();
    }

    /// A type that there is no argument of; empty when there is one for each.
    QByteArray unknown;

private:
    Q_DISABLE_COPY(Arguments)

    const void *valueOf(const QByteArray &type) const
    {
        if (type == "QString")
            return &m_text;
        if (type == "QVariant")
            return &m_variant;
        if (type == "int" || type == "Qt::InputMethodQuery")
            return &m_number;
        if (type == "bool")
            return &m_flag;
        if (type == "QRect")
            return &m_rect;
        if (type == "Qt::CaseSensitivity")
            return &m_case;
        if (type == "QWidget*")
            return &m_widget;
        return nullptr;
    }

    QString m_text;
    QVariant m_variant;
    int m_number;
    bool m_flag;
    QRect m_rect;
    Qt::CaseSensitivity m_case;
    QWidget *m_widget;
    QList<QByteArray> m_types;
    QList<const void *> m_values;
};

void invoke(QObject *object, const QMetaMethod &method)
{
    const Arguments arguments(method);
    if (!method.invoke(object, Qt::DirectConnection, arguments.at(0), arguments.at(1)))
        qWarning("cannot call %s", qPrintable(TestCompat::signature(method)));
}

/// Every slot of an object, those of its base classes included, private and protected ones too.
void addSlots(Operations &operations, QObject *object)
{
    const QMetaObject *const meta = object->metaObject();
    for (int i = 0; i < meta->methodCount(); ++i) {
        const QMetaMethod method = meta->method(i);
        const QString signature = TestCompat::signature(method);
        // Deleting has tests of its own; the toolkit keeps slots of this prefix to itself.
        if (method.methodType() == QMetaMethod::Signal
            || signature == QLatin1String("deleteLater()")
            || signature.startsWith(QLatin1String("_q_")))
            continue;
        if (!Arguments(method).unknown.isEmpty()) {
            qWarning("no argument for %s", qPrintable(signature));
            continue; // the call would read a place that is not there
        }
        Operation operation;
        operation.name = QLatin1String(meta->className()) + QLatin1String("::") + signature;
        operation.run = [object, method] { invoke(object, method); };
        operations << operation;
    }
}

/// The public members that are no slots, by the names that they are exported under.
Operations publicMembers(OpenWindow &window, const QString &path)
{
    OpenWindow *const w = &window;
    WGCodeEditer *const e = window.m_editor;
    const QString line = QLatin1String("G01 X1 Y2");
    const QString text = QString::fromLatin1(program(lineCount()));
    return Operations() //
           << Operation{"WMMainWindow::getCurrentFile() const", [=] { w->getCurrentFile(); }}
           << Operation{"WMMainWindow::isDownloading() const", [=] { w->isDownloading(); }}
           << Operation{"WMMainWindow::setDownloading(bool)",
                        [=] {
                            w->setDownloading(true);
                            w->setDownloading(false);
                        }}
           << Operation{"WMMainWindow::text() const", [=] { w->text(); }}
           << Operation{"WMMainWindow::setText(QString const&)", [=] { w->setText(line); }}
           << Operation{"WMMainWindow::insertLine(QString const&)", [=] { w->insertLine(line); }}
           << Operation{"WMMainWindow::updateGcode(QString)", [=] { w->updateGcode(line); }}
           << Operation{"WMMainWindow::getEffectiveString(QString)",
                        [=] { w->getEffectiveString(line); }}
           << Operation{"WMMainWindow::languageChange()", [=] { w->languageChange(); }}
           << Operation{"WMMainWindow::changeEvent(QEvent*)",
                        [=] {
                            QEvent change(QEvent::LanguageChange);
                            QCoreApplication::sendEvent(w, &change);
                        }}
           << Operation{"WMMainWindow::loadFile(QString const&)", [=] { w->loadFile(path); }}
           << Operation{"WGCodeEditer::insertLine(QString const&)", [=] { e->insertLine(line); }}
           << Operation{"WGCodeEditer::insertLine()", [=] { e->insertLine(); }}
           << Operation{"WGCodeEditer::insertBefore()", [=] { e->insertBefore(); }}
           << Operation{"WGCodeEditer::deleteLine()", [=] { e->deleteLine(); }}
           << Operation{"WGCodeEditer::moveEvent(GCODE::MoveOperation)",
                        [=] {
                            e->moveEvent(GCODE::MoveDown);
                            e->moveEvent(GCODE::MoveUp);
                        }}
           << Operation{"WGCodeEditer::curLineText()", [=] { e->curLineText(); }}
           << Operation{"WGCodeEditer::getLineText(int)", [=] { e->getLineText(7); }}
           << Operation{"WGCodeEditer::currentLineNumber()", [=] { e->currentLineNumber(); }}
           << Operation{"WGCodeEditer::updateGCode(QString)", [=] { e->updateGCode(line); }}
           << Operation{"WGCodeEditer::getCurRowNumber() const", [=] { e->getCurRowNumber(); }}
           << Operation{"WGCodeEditer::getCurColNumber() const", [=] { e->getCurColNumber(); }}
           << Operation{"WGCodeEditer::readGCode(QString)", [=] { e->readGCode(text); }}
           << Operation{"WGCodeEditer::preproccess(QStringList)",
                        [=] { e->preproccess(QStringList(line)); }}
           << Operation{"WGCodeEditer::addErrorCode(int, QString)",
                        [=] { e->addErrorCode(2, line); }}
           << Operation{"WGCodeEditer::highlightErrorCode()", [=] { e->highlightErrorCode(); }}
           << Operation{"WGCodeEditer::lineNumberAreaWidth()", [=] { e->lineNumberAreaWidth(); }}
           << Operation{"WGCodeEditer::lineNumberAreaPaintEvent(QPaintEvent*)",
                        [=] { TestCompat::grab(e->lineNumberArea); }}
           << Operation{"WGCodeEditer::mousePressEvent(QMouseEvent*)",
                        [=] { QTest::mouseClick(e->viewport(), Qt::LeftButton); }}
           << Operation{"WGCodeEditer::mouseDoubleClickEvent(QMouseEvent*)",
                        [=] { QTest::mouseDClick(e->viewport(), Qt::LeftButton); }}
           << Operation{"WGCodeEditer::resizeEvent(QResizeEvent*)", [=] {
                            w->resize(700, 500);
                            w->resize(800, 480);
                        }};
}

/// What is exported of the two classes and can't be done from outside, or only by way of others.
QStringList helpers()
{
    return QStringList() //
           << "WMMainWindow::attemptToRefreshButton(QObject*, QToolButton*)"
           << "WMMainWindow::compareString(int, QString, double)"
           << "WMMainWindow::createBtn()"
           << "WMMainWindow::createEditBar()"
           << "WMMainWindow::createStatusBar()"
           << "WMMainWindow::createToolBar()"
           << "WMMainWindow::maybeSave()"
           << "WMMainWindow::readSettings()"
           << "WMMainWindow::saveFile(QString const&)"
           << "WMMainWindow::setCurrentFile(QString const&)"
           << "WMMainWindow::splitString(QStringList const&, QStringList&, QList<double>&)"
           << "WMMainWindow::strippedName(QString const&)"
           << "WMMainWindow::writeSettings()"
           << "WGCodeEditer::search(QString const&, QFlags<QTextDocument::FindFlag>, "
              "Qt::CaseSensitivity)";
}

/// Operations of the base classes by which a host can pull something away from under a load.
Operations hostileOperations(OpenWindow &window)
{
    WGCodeEditer *const e = window.m_editor;
    return Operations() //
           << Operation{"document cleared", [=] { e->document()->clear(); }}
           << Operation{"read only",
                        [=] {
                            e->setReadOnly(true);
                            e->highlightCurrentLine();
                            e->setReadOnly(false);
                        }}
           << Operation{"lines wrapped",
                        [=] {
                            e->setLineWrapMode(QPlainTextEdit::WidgetWidth);
                            e->setLineWrapMode(QPlainTextEdit::NoWrap);
                        }}
           << Operation{"updates held back",
                        [=] {
                            e->setUpdatesEnabled(false);
                            e->setUpdatesEnabled(true);
                        }}
           << Operation{"no undo", [=] { e->setUndoRedoEnabled(false); }}
           << Operation{"another scroll bar",
                        [=] { e->setVerticalScrollBar(new QScrollBar(Qt::Vertical)); }}
           << Operation{"scrolled to the end",
                        [=] {
                            e->verticalScrollBar()->setValue(e->verticalScrollBar()->maximum());
                        }}
           << Operation{"another document",
                        [=] {
                            QTextDocument *const document = new QTextDocument(e);
                            document->setDocumentLayout(new QPlainTextDocumentLayout(document));
                            e->setDocument(document);
                        }}
           << Operation{"marks in a document without our colours", [=] {
                            e->addErrorCode(1, QLatin1String("G01"));
                            e->highlightErrorCode();
                        }};
}

/// Every button of the window, of its find dialog and of the load itself.
Operations buttons(OpenWindow &window)
{
    Operations operations;
    OpenWindow *const w = &window;
    Q_FOREACH (QToolButton *button, w->findChildren<QToolButton *>() + w->unplacedButtons())
        operations << Operation{button->text(), [=] { button->click(); }};
    operations << Operation{"Find dialog", [=] {
                                WFindDialog *const dialog = w->m_editor->findDialog;
                                dialog->findEdit->setText(QLatin1String("X1"));
                                dialog->findButton->click();
                                dialog->replaceButton->click();
                                dialog->closeButton->click();
                            }};
    operations << Operation{"Abort check",
                            [] { progressDialog()->findChild<QPushButton *>()->click(); }};
    return operations;
}

/// The window as it is meant to be used, whatever an operation made of it.
Operations withWindowRestored(const Operations &operations, OpenWindow &window)
{
    OpenWindow *const w = &window;
    Operations result;
    Q_FOREACH (const Operation &operation, operations) {
        const std::function<void()> run = operation.run;
        result << Operation{operation.name, [=] {
                                run();
                                w->setEnabled(true);
                                w->m_editor->setEnabled(true);
                                w->m_editor->show();
                                w->showNormal();
                            }};
    }
    return result;
}

/// A way for a window to go while one of its commands waits.
struct Leaving
{
    const char *command;
    bool modified;
    int boxesBefore;
};

} // namespace

/// A long load, and each dialog, serves the event loop: whatever is done to the window meanwhile,
/// nothing worse happens than what was done.
class TestReentry : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void everyMemberIsTried();
    void anythingMayBeDoneDuringALoad_data();
    void anythingMayBeDoneDuringALoad();
    void windowMayBeClosedDuringALoad();
    void windowMayGoByDeleteLaterDuringItsLoad_data();
    void windowMayGoByDeleteLaterDuringItsLoad();
    void windowMayGoByDeleteLaterDuringItsDialogs_data();
    void windowMayGoByDeleteLaterDuringItsDialogs();
    void editorMayGoByDeleteLaterDuringItsLoad();
    void editorMayGoByDeleteLaterDuringItsCopyDialog();
    void marksNeedNoHighlighter();
};

void TestReentry::init()
{
    FilarixTest::init();
    DeviceLog::reset();
}

void TestReentry::everyMemberIsTried()
{
    OpenWindow window;
    QStringList known = helpers();
    Q_FOREACH (const Operation &operation, publicMembers(window, QString()))
        known << operation.name;
    Q_FOREACH (const QMetaObject *meta, QList<const QMetaObject *>()
                                            << &WMMainWindow::staticMetaObject
                                            << &WGCodeEditer::staticMetaObject) {
        for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
            const QString name = TestCompat::signature(meta->method(i));
            known << QLatin1String(meta->className()) + QLatin1String("::")
                         + name.left(name.indexOf(QLatin1Char('(')) + 1);
        }
        Q_FOREACH (const char *own, QList<const char *>() << "metaObject("
                                                          << "qt_metacall("
                                                          << "qt_metacast("
                                                          << "staticMetaObject")
            known << QLatin1String(meta->className()) + QLatin1String("::") + QLatin1String(own);
    }
    known << "WMMainWindow::WMMainWindow("
          << "WGCodeEditer::WGCodeEditer("
          << "WMMainWindow::~WMMainWindow("
          << "WGCodeEditer::~WGCodeEditer(";

    QStringList unknown;
    int count = 0;
    Q_FOREACH (const QByteArray &line, readFile(FILARIX_EXPORTED_SYMBOLS).split('\n')) {
        const QString symbol = QLatin1String(line);
        if (!symbol.startsWith(QLatin1String("WMMainWindow::"))
            && !symbol.startsWith(QLatin1String("WGCodeEditer::")))
            continue;
        ++count;
        bool isKnown = false;
        Q_FOREACH (const QString &name, known)
            isKnown = isKnown || symbol.startsWith(name);
        if (!isKnown)
            unknown << symbol;
    }
    QVERIFY(count > 80);
    QVERIFY2(unknown.isEmpty(), qPrintable(unknown.join(QLatin1String(", "))));
}

void TestReentry::anythingMayBeDoneDuringALoad_data()
{
    QTest::addColumn<bool>("accepts");
    QTest::newRow("dialogs accepted") << true;
    QTest::newRow("dialogs given up") << false;
}

void TestReentry::anythingMayBeDoneDuringALoad()
{
    QFETCH(bool, accepts);
    StrictMessages::expect(QLatin1String("Could not parse"));
    if (TestCompat::warnsOfUnmarkedTitles())
        StrictMessages::expect(QLatin1String("does not contain a '[*]' placeholder"));
    StrictMessages::expect(QLatin1String("Parentheses expected, slot ImportManage::slot_checkUSB"));
    const QByteArray bytes = program(lineCount());
    const QString second = writeProgram("second.cnc", bytes);
    OpenWindow window;
    window.resize(800, 480);
    window.show();
    QVERIFY(TestCompat::waitForExposed(&window));

    Operations operations;
    operations << publicMembers(window, second);
    addSlots(operations, &window);
    addSlots(operations, window.m_editor);
    operations << buttons(window) << hostileOperations(window);
    QVERIFY(operations.size() > 130);

    Answerer answerer(accepts);
    Disturber disturber(withWindowRestored(operations, window));
    for (int load = 0; load < 50 && !disturber.isDone(); ++load)
        window.loadFile(writeProgram("first.cnc", bytes));
    QVERIFY(disturber.isDone());
    QVERIFY(answerer.seen.contains(QLatin1String("QMessageBox")));
    QVERIFY(answerer.seen.contains(QLatin1String("WFileDialog")));
    QVERIFY(answerer.seen.contains(QLatin1String("WCopyDialog")));
    QVERIFY(answerer.seen.contains(QLatin1String("ImportManage")));
    QVERIFY(!progressDialog());

    // The window is as good as new.
    window.m_editor->clear();
    window.loadFile(writeProgram("first.cnc", bytes));
    QCOMPARE(window.documentText().toLatin1(), bytes);
    QVERIFY(window.m_editor->updatesEnabled());
    QVERIFY(!window.m_editor->centerOnScroll());
    QVERIFY(!window.isDocumentModified());
}

void TestReentry::windowMayBeClosedDuringALoad()
{
    const QByteArray bytes = program(lineCount());
    OpenWindow window;
    window.show();
    Disturber disturber(Operations() << Operation{"close", [&window] { window.close(); }});
    const QString path = writeProgram("first.cnc", bytes);
    window.loadFile(path);
    QVERIFY(disturber.isDone());
    QVERIFY(!window.isVisible());
    // It goes on out of sight.
    QCOMPARE(window.documentText().toLatin1(), bytes);
    QCOMPARE(window.getCurrentFile(), path);
}

void TestReentry::windowMayGoByDeleteLaterDuringItsLoad_data()
{
    QTest::addColumn<bool>("byClosing");
    QTest::addColumn<bool>("reloads");
    QTest::newRow("deleted") << false << false;
    QTest::newRow("closed, and deleted on closing") << true << false;
    QTest::newRow("deleted while the open file is loaded again") << false << true;
}

void TestReentry::windowMayGoByDeleteLaterDuringItsLoad()
{
    QFETCH(bool, byClosing);
    QFETCH(bool, reloads);
    const QByteArray bytes = program(lineCount());
    const QString path = writeProgram("first.cnc", bytes);
    QPointer<OpenWindow> window(new OpenWindow);
    window->setAttribute(Qt::WA_DeleteOnClose, byClosing);
    window->show();
    if (reloads)
        window->loadFile(path);

    ModalDriver person;
    person.then([](QWidget *dialog) {
        WFileDialog *const picker = qobject_cast<WFileDialog *>(dialog);
        picker->nameEdit->setText(QLatin1String("first.cnc"));
        picker->applyButton->click();
    });
    if (reloads)
        person.press(QMessageBox::Yes);
    Disturber disturber(Operations() << Operation{"delete", [&] {
                                                      if (byClosing)
                                                          window->close();
                                                      else
                                                          window->deleteLater();
                                                  }});
    // As from the operator's finger: the button goes with the window.
    window->m_openBtn->click();
    QVERIFY2(person.finished(), person.report());
    QVERIFY(disturber.isDone());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!window);
    QVERIFY(!progressDialog());
    QCOMPARE(readFile(path), bytes);
}

Q_DECLARE_METATYPE(Leaving)

void TestReentry::windowMayGoByDeleteLaterDuringItsDialogs_data()
{
    QTest::addColumn<Leaving>("leaving");
    QTest::newRow("question about changes") << Leaving{"newFile", true, 0};
    QTest::newRow("name to open") << Leaving{"open", false, 0};
    QTest::newRow("name to open, after changes were discarded") << Leaving{"open", true, 1};
    QTest::newRow("name to save under") << Leaving{"saveAs", true, 0};
    QTest::newRow("name to remove") << Leaving{"remove", false, 0};
    QTest::newRow("question about a download") << Leaving{"download", true, 0};
    QTest::newRow("import and export") << Leaving{"importExport", false, 0};
}

/// The dialog is answered with consent after the window has gone.
void TestReentry::windowMayGoByDeleteLaterDuringItsDialogs()
{
    QFETCH(Leaving, leaving);
    StrictMessages::expect(QLatin1String("Parentheses expected, slot ImportManage::slot_checkUSB"));
    writeProgram("first.cnc", "G01 X1");
    QPointer<OpenWindow> window(new OpenWindow);
    window->show();
    if (leaving.modified)
        window->type(QLatin1String("G01 X2"));

    ModalDriver person;
    for (int i = 0; i < leaving.boxesBefore; ++i)
        person.press(QMessageBox::Discard);
    person.then([&window](QWidget *dialog) {
        window->deleteLater();
        QCoreApplication::sendPostedEvents(window, QEvent::DeferredDelete);
        if (QMessageBox *box = qobject_cast<QMessageBox *>(dialog))
            box->button(QMessageBox::Save)->click();
        else if (WFileDialog *picker = qobject_cast<WFileDialog *>(dialog))
            picker->applyButton->click();
        else
            dialog->close();
    });
    QVERIFY(QMetaObject::invokeMethod(window, leaving.command));
    QVERIFY2(person.finished(), person.report());
    QVERIFY(!window);
    QCOMPARE(readFile(programDir() + "/first.cnc"), QByteArray("G01 X1"));
}

void TestReentry::editorMayGoByDeleteLaterDuringItsLoad()
{
    QPointer<WGCodeEditer> editor(new WGCodeEditer(nullptr));
    editor->show();
    Disturber disturber(Operations() << Operation{"delete", [&editor] { editor->deleteLater(); }});
    editor->readGCode(QString::fromLatin1(program(lineCount())));
    QVERIFY(disturber.isDone());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!editor);
    QVERIFY(!progressDialog());
}

void TestReentry::editorMayGoByDeleteLaterDuringItsCopyDialog()
{
    QPointer<WGCodeEditer> editor(new WGCodeEditer(nullptr));
    ModalDriver person;
    person.then([&editor](QWidget *dialog) {
        editor->deleteLater();
        QCoreApplication::sendPostedEvents(editor, QEvent::DeferredDelete);
        qobject_cast<QDialog *>(dialog)->accept();
    });
    editor->copy();
    QVERIFY2(person.finished(), person.report());
    QVERIFY(!editor);
}

void TestReentry::marksNeedNoHighlighter()
{
    WGCodeEditer editor(nullptr);
    QTextDocument document;
    document.setDocumentLayout(new QPlainTextDocumentLayout(&document));
    editor.setDocument(&document);
    editor.addErrorCode(0, QLatin1String("G01"));
    editor.highlightErrorCode();
    editor.readGCode(QString::fromLatin1(program(600)));
    QCOMPARE(document.blockCount(), 600);
}

FILARIX_TEST_MAIN(TestReentry)
#include "tst_reentry.moc"
