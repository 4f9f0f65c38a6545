// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Holds PanelProgram with all its screens and dialogs: whether every text has its room, and whether
// whoever cannot see it is told what is there.

#include "filarixtest.h"
#include "look/look.h"
#include "look/measures.h"
#include "look/namelabel.h"
#include "look/spokennames.h"
#include "panelprogram.h"
#include "programs/downloadfacts.h"
#include "programs/programstate.h"
#include "screens/downloadquestion.h"
#include "shell/messagedialog.h"
#include "shell/messagelog.h"
#include "shell/panelwindow.h"
#include "shell/questiondialog.h"
#include "shell/statusstrip.h"
#include "stick/devicewatch.h"
#include "stick/stick.h"
#include "textfit.h"
#include "tour.h"

#include <QAccessible>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>

#include <functional>

/// Walks all screens, keypads and dialogs and measures every text there.
class TestTextFit : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void whatDoesNotFitIsFound();
    void whatHasNoNameIsFound();
    void titlesAreWhole_data();
    void titlesAreWhole();
    void everyTextFits_data();
    void everyTextFits();

private:
    typedef std::function<void(const QString &)> Measure;

    /// The dialogs that no walk opens, with the longest that they may have to say.
    void measureDialogs(const Measure &measure);
    void measureQuestions(const Measure &measure);
    void measureBoxes(const Measure &measure);
    void measureMessages(const Measure &measure);
    static void show(QDialog *dialog, const QString &name, const Measure &measure);
    QString text(const char *context, const char *source);

    /// None for English.
    const QTranslator *m_translator = nullptr;
    /// What is measured here and said nowhere.
    QStringList m_unknown;
};

namespace {

/// Where a stick's folder has to be, for its files to count as the stick's.
const char stickFolder[] = "/mnt/Storage.stick";

/// A text that the machine could bring, longer than any of our own.
DeviceState widestState()
{
    DeviceState state;
    state.isKnown = true;
    state.stickIn = false;
    state.freeBytes = qint64(99) * 1024 * 1024 * 1024;
    return state;
}

Options optionsFor(const QSize &size)
{
    Options options;
    options.size = size;
    options.rotation = size.width() < size.height() ? 90 : 0;
    options.look = QLatin1String("light");
    options.language = QLatin1String("en");
    options.stickDir = QLatin1String(stickFolder);
    return options;
}

const char programName[] = "stator-coil-left-4711.cnc";
const char reason[] = "No space left on device";

ProgramState stateOf(ProgramState::Kind kind)
{
    ProgramState state;
    state.kind = kind;
    state.name = QLatin1String(programName);
    state.fileLines = 1000620;
    state.shownLines = 1000501;
    return state;
}

bool isOfKeypad(const QWidget *widget)
{
    for (const QWidget *around = widget; around; around = around->parentWidget()) {
        if (around->inherits("KeypadFrame"))
            return true;
    }
    return false;
}

/// What is seen and could be worked, and tells a screen reader no name or no role.
QStringList unnamed()
{
    QStringList faults;
    for (QWidget *widget : QApplication::allWidgets()) {
        // The keypads have a test of their own.
        const bool isSeen = widget->isVisible() && !widget->visibleRegion().isEmpty();
        if (!isSeen || !SpokenNames::isInteractive(widget))
            continue;
        if (isOfKeypad(widget))
            continue;
        const QAccessibleInterface *access = QAccessible::queryAccessibleInterface(widget);
        const QAccessible::Role role = access ? access->role() : QAccessible::NoRole;
        const bool isVague = role == QAccessible::NoRole || role == QAccessible::Client;
        if (SpokenNames::nameOf(widget).isEmpty() || isVague)
            faults.append(QString("%1 %2 in %3 of %4 has %5")
                              .arg(widget->metaObject()->className(), widget->objectName(),
                                   widget->parentWidget()->metaObject()->className(),
                                   widget->window()->metaObject()->className(),
                                   isVague ? "no role" : "no name"));
    }
    faults.removeDuplicates();
    return faults;
}

} // namespace

void TestTextFit::initTestCase()
{
    PanelProgram::setUpStyle();
    Look::use(Look::Light);
}

void TestTextFit::cleanup()
{
    QFile::remove(Stick::marker());
    emptyFolder(stickFolder);
    FilarixTest::cleanup();
}

void TestTextFit::whatDoesNotFitIsFound()
{
    QWidget window;
    window.setGeometry(0, 0, 300, 200);
    QLabel *narrow = new QLabel("wide", &window);
    narrow->setGeometry(0, 0, 10, 20);
    QLabel *beside = new QLabel("x", &window);
    beside->setGeometry(5, 0, 60, 20);
    QPushButton *low = new QPushButton("OK", &window);
    low->setGeometry(100, 20, 80, 20);
    QPushButton *outside = new QPushButton("x", &window);
    outside->setGeometry(280, 100, 40, 40);
    window.show();
    const QString found = TextFit::faults(window.geometry()).join('\n');
    QVERIFY2(found.contains("\"wide\" needs"), qPrintable(found));
    QVERIFY2(found.contains("QLabel in QWidget overlap by 5x20"), qPrintable(found));
    QVERIFY2(found.contains("80x20 is too small for a thumb"), qPrintable(found));
    QVERIFY2(found.contains("goes beyond QWidget of 300x200"), qPrintable(found));
    QCOMPARE(found.count('\n'), 3);
    QVERIFY(TextFit::faults(window.geometry().adjusted(0, 0, -1, 0))
                .join('\n')
                .contains("leaves the screen"));
    NameLabel *name = new NameLabel(&window);
    name->setLines(3);
    name->setName("programmed.teach");
    name->setGeometry(0, 120, name->fontMetrics().horizontalAdvance("progra"), 80);
    name->show();
    const QString broken = TextFit::faults(window.geometry()).join('\n');
    QVERIFY2(broken.contains("not whole: "), qPrintable(broken));
    name->setName("pro.teach");
    QCOMPARE(TextFit::faults(window.geometry()).size(), 4);
    for (const QString &exception : TextFit::exceptions())
        QVERIFY2(exception.section(": ", 1).size() > 10, qPrintable(exception));
}

void TestTextFit::whatHasNoNameIsFound()
{
    QWidget window;
    QPushButton *picture = new QPushButton(&window);
    picture->setObjectName("picture");
    picture->setGeometry(0, 0, 40, 40);
    QPushButton *arrow = new QPushButton(QString(QChar(0x25b2)), &window);
    arrow->setGeometry(50, 0, 40, 40);
    QPushButton *named = new QPushButton(QString(QChar(0x25b2)), &window);
    named->setAccessibleName("Page up");
    named->setGeometry(100, 0, 40, 40);
    QPushButton *ok = new QPushButton("OK", &window);
    ok->setGeometry(150, 0, 40, 40);
    window.resize(200, 50);
    window.show();
    QCOMPARE(unnamed().size(), 2);
    picture->hide();
    QCOMPARE(unnamed().size(), 1);
    delete arrow;
    QCOMPARE(unnamed(), QStringList());
}

void TestTextFit::titlesAreWhole_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("textSize");
    for (const QSize &size :
         {QSize(272, 480), QSize(480, 272), QSize(480, 800), QSize(800, 480), QSize(1024, 600)}) {
        for (const char *language : {"en", "de", "it", "tr", "zh_CN"}) {
            for (int textSize : Measures::textSizes())
                QTest::newRow(qPrintable(QString("%1x%2 %3 %4")
                                             .arg(size.width())
                                             .arg(size.height())
                                             .arg(language)
                                             .arg(textSize)))
                    << size << QString(language) << textSize;
        }
    }
}

void TestTextFit::titlesAreWhole()
{
    QFETCH(QSize, size);
    QFETCH(QString, language);
    QFETCH(int, textSize);
    Options options = optionsFor(size);
    options.textSize = Measures::nameOf(textSize);
    options.language = language;
    StrictMessages::expect("This plugin does not support");
    PanelProgram program(options, QStringList(FILARIX_TRANSLATIONS));
    QCOMPARE(program.start(), PanelProgram::Started);
    PanelWindow &panel = *program.window();
    QVERIFY(QTest::qWaitForWindowExposed(&panel));
    QStringList cut;
    int screens = 0;
    for (PanelScreen *screen : panel.findChildren<PanelScreen *>()) {
        panel.showScreen(screen);
        QCoreApplication::processEvents();
        const NameLabel *title = panel.findChild<NameLabel *>("title");
        if (!title->isWhole())
            cut.append(screen->title() + QLatin1String(": ") + title->shown().join('|'));
        ++screens;
    }
    QVERIFY(screens >= 7);
    QVERIFY2(cut.isEmpty(), qPrintable(cut.join('\n')));
}

void TestTextFit::everyTextFits_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("longest");
    QTest::addColumn<int>("textSize");
    QTest::addColumn<int>("dotsPerInch");
    for (const QSize &size :
         {QSize(480, 272), QSize(480, 800), QSize(800, 480), QSize(1024, 600), QSize(1280, 800),
          QSize(272, 480), QSize(600, 1024), QSize(800, 1280)}) {
        const QString name = QString("%1x%2").arg(size.width()).arg(size.height());
        for (int textSize : Measures::textSizes()) {
            const QString suffix = textSize == 100 ? QString() : QString(" %1").arg(textSize);
            QTest::newRow(qPrintable(name + " English" + suffix))
                << size << false << textSize << 96;
            QTest::newRow(qPrintable(name + " longest" + suffix)) << size << true << textSize << 96;
        }
    }
    // 4.3 and 7 inch.
    QTest::newRow("480x272 longest 130 dpi") << QSize(480, 272) << true << 100 << 130;
    QTest::newRow("1024x600 longest 170 dpi") << QSize(1024, 600) << true << 100 << 170;
}

void TestTextFit::everyTextFits()
{
    QFETCH(QSize, size);
    QFETCH(bool, longest);
    QFETCH(int, textSize);
    QFETCH(int, dotsPerInch);
    LongestTranslator translator(QLatin1String(FILARIX_TRANSLATIONS));
    m_translator = longest ? &translator : nullptr;
    if (longest) {
        QVERIFY(translator.isComplete());
        QCoreApplication::installTranslator(&translator);
    }

    Options options = optionsFor(size);
    options.textSize = Measures::nameOf(textSize);
    options.dotsPerInch = dotsPerInch;
    PanelProgram program(options, QStringList());
    QCOMPARE(program.start(), PanelProgram::Started);
    PanelWindow &panel = *program.window();
    // In the place of what this machine's devices are.
    program.deviceWatch()->disconnect();
    panel.status()->showDevices(widestState());
    Tour tour(&panel);
    program.plan(&tour);
    // The import manager has a connection to nothing, and no window system is at hand.
    StrictMessages::expect("Parentheses expected");
    StrictMessages::expect("This plugin does not support");
    QStringList faults;
    int stops = 0;
    connect(&tour, &Tour::arrived, this, [&](const QString &name) {
        ++stops;
        // What was shown just now has its place before it is painted, and so before it is measured.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        const QRect screen(panel.mapToGlobal(QPoint(0, 0)), panel.size());
        const bool isSmallest = size == QSize(480, 272) && textSize == 100 && dotsPerInch == 96;
        // A name of 255 letters takes lines of its own.
        const bool isOfLongName = name.contains(QLatin1String("255"));
        const QStringList longTexts =
            isSmallest && !isOfLongName ? TextFit::longTexts() : QStringList();
        for (const QString &fault : TextFit::faults(screen) + unnamed() + longTexts) {
            if (!faults.filter(fault).isEmpty())
                continue;
            faults.append(name + ": " + fault);
        }
    });
    QSignalSpy finished(&tour, SIGNAL(finished()));
    tour.start(10);
    QTRY_VERIFY_WITH_TIMEOUT(!finished.isEmpty(), 100000);
    QVERIFY2(tour.error().isEmpty(), qPrintable(tour.error()));
    measureDialogs([&tour](const QString &name) { Q_EMIT tour.arrived(name); });
    QCOMPARE(m_unknown, QStringList());
    QVERIFY2(stops >= 45, qPrintable(QString::number(stops)));
    // A failure's own message has no room for all.
    for (const QString &fault : qAsConst(faults))
        qDebug("%s", qPrintable(fault));
    QCOMPARE(faults.size(), 0);
}

QString TestTextFit::text(const char *context, const char *source)
{
    if (m_translator && m_translator->translate(context, source).isEmpty())
        m_unknown.append(QLatin1String(source));
    return QCoreApplication::translate(context, source);
}

void TestTextFit::show(QDialog *dialog, const QString &name, const Measure &measure)
{
    dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(dialog));
    // The keeper gives it its place from the event loop.
    QCoreApplication::processEvents();
    measure(name);
    dialog->hide();
}

void TestTextFit::measureDialogs(const Measure &measure)
{
    measureQuestions(measure);
    measureBoxes(measure);
    measureMessages(measure);

    DownloadFacts facts;
    facts.program.name = QLatin1String(programName);
    facts.program.lines = 1000620;
    facts.program.hash = QByteArray(32, '\x5a');
    facts.standing = DownloadFacts::Cleaned;
    facts.shownLines = 1000501;
    DownloadQuestion download(facts.question());
    show(&download, "download with two numbers", measure);
    const QString lines = download.findChild<QLabel *>("lines")->text();
    QVERIFY2(lines.contains("1000620") && lines.contains("1000501"), qPrintable(lines));
    facts.shownLines = facts.program.lines;
    for (const DownloadFacts::Standing standing :
         {DownloadFacts::Cleaned, DownloadFacts::Different, DownloadFacts::NotCompared}) {
        facts.standing = standing;
        DownloadQuestion other(facts.question());
        show(&other, "download of what is shown otherwise", measure);
        QVERIFY(other.findChild<QLabel *>("lines")->text() != QString::number(facts.shownLines));
    }
}

void TestTextFit::measureQuestions(const Measure &measure)
{
    const QString cancel = text("ProgramGuard", "Cancel");
    const QString otherName = text("ProgramGuard", "Other name");
    const QString notStored =
        text("StoreCheck", "%1 is not stored. The whole program is only in the editor.")
            .arg(programName);
    const QStringList ways = {text("StoreCheck", "Later"), text("StoreCheck", "Try again"),
                              text("StoreCheck", "Save to the stick")};
    const QStringList historyWays = {text("ProgramKeeper", "Cancel"),
                                     text("ProgramKeeper", "All the same")};
    const QString lost = text("ProgramKeeper", "What %1 is now would be lost.").arg(programName);
    const QString unsafeName =
        QString::fromUtf8("left coil of...shift.cnc \u2192 left_coil_of...shift.cnc");
    const Question questions[] = {
        {"save as cleaned",
         stateOf(ProgramState::Cleaned).saveQuestion(),
         {cancel, text("ProgramGuard", "Save without them"), otherName}},
        {"save as shown",
         stateOf(ProgramState::Different).saveQuestion(),
         {cancel, text("ProgramGuard", "Save as shown"), otherName}},
        {"disk full", notStored, ways, {reason}},
        {"stick full",
         notStored,
         ways,
         {text("StoreCheck", "neither here nor on the stick (%1)").arg(reason)}},
        {"other bytes",
         notStored,
         ways,
         {text("StoreCheck", "the file holds something else than the editor")}},
        {"cover",
         text("ProgramGuard", "%1 is there already: %2 lines, of %3. Write this program over it?")
             .arg(programName, "1000501", "2026-05-04 14:32"),
         {cancel, text("ProgramGuard", "Write over it")},
         {text("ProgramGuard", "This program: %1 lines").arg("1000620")}},
        {"remove",
         text("ProgramGuard", "%1 is open, with changes that are not saved. They are lost with it.")
             .arg(programName),
         {cancel, text("ProgramGuard", "Remove it")}},
        {"history full",
         lost,
         historyWays,
         {text("HistoryStore", "The history cannot keep %1: %2.").arg(programName, reason)}},
        {"history hangs",
         lost,
         historyWays,
         {text("ProgramHistory",
               "The panel's storage stopped answering: nothing goes into the history any more. "
               "Switch the panel off and on.")}},
        {"a name of 255 letters",
         text("StoreCheck", "%1 is not stored. The whole program is only in the editor.")
             .arg(QString(251, QLatin1Char('x')) + ".cnc"),
         ways,
         {reason}},
        {text("UnsavedOffer", "Unsaved work"),
         text("UnsavedOffer", "This was not saved when the panel ended. Bring it back?"),
         {text("UnsavedOffer", "Keep for later"), text("UnsavedOffer", "Bring back"),
          text("UnsavedOffer", "Throw away")},
         {text("UnsavedOffer", "%1, %2, lines: %3").arg(programName, "2026-05-04 14:32", "1000501"),
          text("TeachScreen", "%1, %2, instructions: %3")
              .arg("program-of-the-second-shift.teach", "2026-05-04 14:32", "99999"),
          text("VariablesScreen", "%1, %2, values: %3")
              .arg(text("VariablesScreen", "Variables"), "2026-05-04 14:32", "24")}},
        {text("ImportGuard", "History"),
         text("ImportGuard", "What %1 is now would be lost.").arg(programName),
         {text("ImportGuard", "Cancel"), text("ImportGuard", "All the same")},
         {text("HistoryStore", "The history has no room for %1 beside the other programs.")
              .arg(programName)}},
        {text("ImportGuard", "File names"),
         text("ImportGuard", "The transfer cannot take these file names. Nothing is copied or "
                             "deleted until they are "
                             "renamed."),
         {text("ImportGuard", "Leave them"), text("ImportGuard", "Rename")},
         {unsafeName, unsafeName, unsafeName, text("ImportGuard", "and %1 more").arg(1000)}},
        {text("UnsavedOffer", "Unsaved work"),
         text("UnsavedOffer", "Throw the unsaved work away for good?"),
         {text("UnsavedOffer", "Cancel"), text("UnsavedOffer", "Throw away")}},
    };
    for (const Question &question : questions) {
        QuestionDialog dialog(question);
        show(&dialog, question.title, measure);
    }
}

void TestTextFit::measureBoxes(const Measure &measure)
{
    const struct
    {
        QString text;
        QMessageBox::StandardButtons answers;
    } boxes[] = {
        {text("PanelProgram", "Another panel works on the same programs. This one does not start."),
         QMessageBox::Ok},
        {text("TeachScreen", "%1 is there already, instructions: %2. Write over it?")
             .arg("program-of-the-second-shift.teach", "99999"),
         QMessageBox::Yes | QMessageBox::No},
        {text("TeachScreen", "%1 is there already and cannot be read. Put it aside and store?")
             .arg("program-of-the-second-shift.teach"),
         QMessageBox::Yes | QMessageBox::No},
    };
    for (const auto &about : boxes) {
        QMessageBox box(QMessageBox::Warning, QString(), about.text, about.answers);
        show(&box, about.text, measure);
    }
}

void TestTextFit::measureMessages(const Measure &measure)
{
    MessageLog log;
    MessageDialog empty(&log, QString());
    show(&empty, "no messages", measure);
    log.tell(text("ProgramState", "Only a part of %1 is here: saving or sending loses the rest. "
                                  "Open it again, or take another name.")
                 .arg(QLatin1String("stator-coil.cnc")),
             Message::Warning);
    log.tell(text("PlcTransfer", "The PLC stopped answering: whether it holds %1 is not known. "
                                 "Check it, then download again.")
                 .arg(QLatin1String("stator-coil.cnc")),
             Message::Alarm);
    MessageDialog messages(&log, stateOf(ProgramState::Incomplete).line());
    show(&messages, "messages", measure);
    log.tell(QString(255, QLatin1Char('x')), Message::Information);
    show(&messages, "messages with a name of 255 letters", measure);
}

FILARIX_TEST_MAIN(TestTextFit)
#include "tst_textfit.moc"
