// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Holds the translations: the .ts files, and whether their texts fit.

#include "conneditor.h"
#include "filarixtest.h"
#include "filedialog.h"
#include "importmanage.h"
#include "messagebox.h"
#include "mjline.h"
#include "modaldriver.h"
#include "openwindow.h"
#include "wcopydialog.h"
#include "wfinddialog.h"

#include <QCheckBox>
#include <QDesktopWidget>
#include <QDir>
#include <QFile>
#include <QLocale>
#include <QRegExp>
#include <QScopedPointer>
#include <QSet>
#include <QTranslator>
#include <QXmlStreamReader>

namespace {

struct Message
{
    QString context;
    QString source;
    QString translation;
    QString type;

    QString key() const { return context + QLatin1Char('|') + source; }
};

const char *const languages[] = {"de", "it", "tr", "zh_CN"};

/// What the library sends through tr(), and in which context: the whole of it.
const struct
{
    const char *context;
    const char *texts[48];
} libraryTexts[] = {
    {"ConnEditor", {"Connect Table", "OK", "Cancel", "Cid", "Port", "CPU Addr", "Baud", "IP"}},
    {"FileDialog", {"Path: ", "<<", ">>", "OK", "Cancel"}},
    {"ImportManage",
     {"Hmi",
      "Usb",
      ">>",
      "<<",
      ">Del",
      "Del<",
      "Quit",
      "Used Space ",
      "Left Space ",
      " Usb not found!",
      "Copy to Hmi",
      "Copy to Usb",
      "Hmi Delete",
      "Usb Delete",
      "No file Selected.",
      "No file Selected!",
      "Usb not found.",
      "Usb not found!",
      " existed in Hmi,\n do you want to cover it?",
      " existed in Usb,\n do you want to cover it?",
      "Copy file failed!",
      "Can't cover this file!",
      "Font file can not be a Dir!",
      "Not enough Space!",
      "Unexpected error!",
      "Are you sure to delete ",
      "Can't delete this file.",
      "Processing..."}},
    {"MJLine", {"(\xe2\x86\x93)", "(\xe2\x86\x91)", "\xe2\x86\x91"}},
    {"MessageBox", {"About Corvane"}},
    {"WCopyDialog", {"Copy", "Current line:", "Copy count:", "OK", "Cancel"}},
    {"WFileDialog", {"File Name", "Size", "Name:", "OK", "Cancel", "%1 KB"}},
    {"WFindDialog",
     {"Find", "Find &what:", "Replace &what:", "Match &case", "Search &backward", "&Find",
      "&Replace", "Close"}},
    {"WMMainWindow",
     {"Row:",
      "Col:",
      "Count:",
      "New",
      "Open",
      "RM",
      "Save",
      "SaveAs",
      "I/E",
      "Preproccess",
      "Morphology",
      "Syntax",
      "Compile",
      "D/L",
      "Show",
      "Stop",
      "Up",
      "Down",
      "Ins",
      "Del",
      "Edit",
      "Copy",
      "Paste",
      "Find",
      "Tag",
      "Remove G File!",
      "Import/Export G File.",
      "Ready",
      "Application",
      "%1[*] - %2",
      "Open file",
      "Save as",
      "Remove file",
      "The document has been modified.\nDo you want to save your changes?",
      "The document has been existed.\nDo you want to open it again?",
      "The file does not exist!",
      "Remove %1?",
      "Success to remove file.",
      "Cannot read file %1:\n%2.",
      "Cannot write file %1:\n%2.",
      "It is a device or a pipe, not a file"}},
};

/// What stays English whatever the language, and on purpose: the one list of it.
const char *const englishTexts[] = {
    // The window's file label and title of a document without a file.
    "Untitled",
    "untitled.cnc",
    // One of the window's 24 buttons.
    "PlayOrPause",
    // The tool tips of the window's buttons, but for two.
    "New G File!",
    "Open G File!",
    "Save G File!",
    "Save As G File!",
    "Preproccess G File,Remove comment!",
    "Morphology Analysis!",
    "Syntax Analysis!",
    "Compile G code!",
    "Download G File To PLC!",
    "Monitoring G Path!",
    "Play/Pause The Animation!",
    "Stop The Animation!",
    "move up the arrow!",
    "move down the arrow!",
    "insert a null line!",
    "delete the current line!",
    "edit G code by softKey!",
    "copy G code to clipboard!",
    "paste G code from clipboard!",
    "find G code in current Editer!",
    "Copy from tag.",
    // The loader's progress dialog.
    "Load Files:",
    "Abort check",
    // The box after a search without a match; its title is "Find", which the find dialog
    // translates.
    "Find finished!\n Can't find any information!",
    // The copy dialog's step buttons, and the limits that it tells the keypad.
    "-",
    "+",
    " min:%1, max:%2",
    // The unit on the import manager's status line, and the end of its question.
    "M.",
    "?",
    // What a row always holds in the place of its attribute.
    "Att",
};

/// What an operator has before him at one time, on keys and tabs of a screen and of a dialog over
/// it. Two of a row do different things.
const char *const actionsInView[][32] = {
    {"Undo", "Redo", "Back", "Next", "Cancel", "Bring back", "Close", "Stop", "OK",
     "Keep for later", "Throw away"},
    {"Program", "Preview", "Teach", "Variables", "Connections", "Files",  "Settings",
     "Menu",    "New",     "Open",  "RM",        "Save",        "SaveAs", "I/E",
     "D/L",     "Up",      "Down",  "Ins",       "Del",         "Edit",   "Copy",
     "Paste",   "Find",    "Tag",   "Undo",      "Redo",        "Line",   "Page"},
    {"Load", "Store", "Store as", "Up", "Down", "Text", "Copy", "Paste", "Delete", "Undo", "Clear",
     "Select", "First", "Last", "More", "Page"},
    {"Open", "Check", "History", "I/E", "Rename", "Browse", "Remove"},
};

QString sourceFile(const QString &name)
{
    return QLatin1String(FILARIX_TRANSLATION_SOURCES "/") + name;
}

/// The messages of a .ts file; none if it can't be read to its end.
QList<Message> messagesOf(const QString &name)
{
    QFile file(sourceFile(name));
    if (!file.open(QIODevice::ReadOnly))
        return QList<Message>();
    QXmlStreamReader xml(&file);
    QList<Message> messages;
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("message")) {
            Message message;
            message.context = context;
            messages << message;
        } else if (xml.name() == QLatin1String("source")) {
            messages.last().source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            messages.last().type = xml.attributes().value(QLatin1String("type")).toString();
            messages.last().translation = xml.readElementText();
        }
    }
    return xml.hasError() ? QList<Message>() : messages;
}

QStringList placeholders(const QString &text)
{
    QStringList found;
    const QRegExp pattern(QLatin1String("%\\d|%|\\[\\*\\]"));
    for (int at = pattern.indexIn(text); at >= 0;
         at = pattern.indexIn(text, at + pattern.matchedLength()))
        found << pattern.cap();
    found.sort();
    return found;
}

/// The letter behind the "&", in lower case; null without one.
QChar mnemonic(const QString &text)
{
    const int at = text.indexOf(QLatin1Char('&'));
    return at < 0 ? QChar() : text.at(at + 1).toLower();
}

/// The library speaks a language as long as it lives.
class Speaking
{
public:
    explicit Speaking(const char *language)
    {
        m_loaded = m_translator.load(QLatin1String("filarix_") + QLatin1String(language),
                                     QLatin1String(FILARIX_TRANSLATIONS));
        QCoreApplication::installTranslator(&m_translator);
        QApplication::processEvents();
    }
    ~Speaking() { QCoreApplication::removeTranslator(&m_translator); }

    bool isLoaded() const { return m_loaded; }
    /// The text in the language; null if it has none.
    QString text(const char *context, const char *source) const
    {
        return m_translator.translate(context, source, nullptr);
    }

private:
    Q_DISABLE_COPY(Speaking)

    QTranslator m_translator;
    bool m_loaded;
};

void addLanguages()
{
    QTest::addColumn<QString>("language");
    for (const char *language : languages)
        QTest::newRow(language) << language;
}

void addFiles()
{
    QTest::addColumn<QString>("file");
    const QStringList files =
        QDir(sourceFile(QString())).entryList(QStringList(QLatin1String("*.ts")));
    Q_FOREACH (const QString &file, files)
        QTest::newRow(qPrintable(file)) << file;
}

bool isClipped(const QWidget *widget, QString text)
{
    text.remove(QLatin1Char('&'));
    return widget->isVisible() && widget->fontMetrics().width(text) > widget->width();
}

/// Which labels and buttons are too narrow for their texts, by their place among their like, and
/// these texts.
QMap<QString, QString> clippedTexts(const QWidget *window)
{
    QMap<QString, QString> clipped;
    const QList<QAbstractButton *> buttons = window->findChildren<QAbstractButton *>();
    for (int i = 0; i < buttons.size(); ++i) {
        if (isClipped(buttons.at(i), buttons.at(i)->text()))
            clipped[QString::fromLatin1("button %1").arg(i)] = buttons.at(i)->text();
    }
    const QList<QLabel *> labels = window->findChildren<QLabel *>();
    for (int i = 0; i < labels.size(); ++i) {
        if (isClipped(labels.at(i), labels.at(i)->text()))
            clipped[QString::fromLatin1("label %1").arg(i)] = labels.at(i)->text();
    }
    return clipped;
}

/// The window and the dialogs of the library, shown.
class Screens
{
public:
    Screens()
    {
        m_windows << new OpenWindow << new WFindDialog(nullptr) << new WCopyDialog(nullptr)
                  << new WFileDialog(nullptr)
                  << new ConnEditor(FilarixTest::home() + QLatin1String("/none.ini"), nullptr)
                  << new FileDialog(QDir::Files, QLatin1String("Title"), FilarixTest::home(),
                                    nullptr, Qt::WindowTitleHint)
                  << new ImportManage(nullptr);
        m_windows.first()->resize(QApplication::desktop()->availableGeometry().size());
        Q_FOREACH (QWidget *window, m_windows) {
            window->show();
            TestCompat::waitForExposed(window);
        }
    }
    ~Screens() { qDeleteAll(m_windows); }

    const QList<QWidget *> &windows() const { return m_windows; }

private:
    Q_DISABLE_COPY(Screens)

    QList<QWidget *> m_windows;
};

} // namespace

/// The .ts files against what the sources and the library's users need of them.
class TestTranslations : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyLanguageHasEveryFile();
    void nothingIsMissingOrUnfinished_data() { addFiles(); }
    void nothingIsMissingOrUnfinished();
    void placesForValuesAreKept_data() { addFiles(); }
    void placesForValuesAreKept();
    void blanksAtTheEndsAreKept_data() { addLanguages(); }
    void blanksAtTheEndsAreKept();
    void actionsInViewHaveWordsOfTheirOwn_data() { addLanguages(); }
    void actionsInViewHaveWordsOfTheirOwn();
    void mnemonicsOfTheFindDialogAreApart_data() { addLanguages(); }
    void mnemonicsOfTheFindDialogAreApart();

    void theFilesHoldTheLibrarysTextsAndNoOther_data() { addLanguages(); }
    void theFilesHoldTheLibrarysTextsAndNoOther();
    void theLanguageReachesEveryText_data() { addLanguages(); }
    void theLanguageReachesEveryText();
    void englishTextsAreInNoFile_data() { addLanguages(); }
    void englishTextsAreInNoFile();

    void aWindowMadeLaterSpeaksTheLanguage_data() { addLanguages(); }
    void aWindowMadeLaterSpeaksTheLanguage();
    void englishTextsStayInTheWindow();
    void englishTextsStayInTheDialogs();

    void languageChangeReachesTheWindow_data() { addLanguages(); }
    void languageChangeReachesTheWindow();
    void languageChangeLeavesTheseAlone();
    void languageChangeDoesNotReachOpenDialogs();
    void languageChangeReachesARowWhenItIsRefilled();

    void textsFitWhereTheEnglishOnesDo_data() { addLanguages(); }
    void textsFitWhereTheEnglishOnesDo();
};

void TestTranslations::everyLanguageHasEveryFile()
{
    QStringList expected;
    for (const char *language : languages) {
        for (const char *name : {"filarix", "filarix-panel", "filarixhost", "hmidevice-sim"})
            expected << QString::fromLatin1("%1_%2.ts")
                            .arg(QLatin1String(name), QLatin1String(language));
    }
    expected.sort();
    QStringList present = QDir(sourceFile(QString())).entryList(QStringList(QLatin1String("*.ts")));
    present.sort();
    QCOMPARE(present, expected);
}

void TestTranslations::nothingIsMissingOrUnfinished()
{
    QFETCH(QString, file);
    const QList<Message> messages = messagesOf(file);
    QVERIFY(!messages.isEmpty());
    QStringList missing;
    QStringList unfinished;
    Q_FOREACH (const Message &message, messages) {
        if (message.translation.isEmpty())
            missing << message.key();
        if (!message.type.isEmpty())
            unfinished << message.key();
    }
    QCOMPARE(missing, QStringList());
    QCOMPARE(unfinished, QStringList());
}

void TestTranslations::placesForValuesAreKept()
{
    QFETCH(QString, file);
    Q_FOREACH (const Message &message, messagesOf(file)) {
        QCOMPARE(placeholders(message.translation), placeholders(message.source));
        QCOMPARE(mnemonic(message.translation).isNull(), mnemonic(message.source).isNull());
    }
}

// Some texts are put together with names and numbers and bring the blanks between them along.
void TestTranslations::blanksAtTheEndsAreKept()
{
    QFETCH(QString, language);
    int checked = 0;
    Q_FOREACH (const Message &message,
               messagesOf(QLatin1String("filarix_") + language + QLatin1String(".ts"))) {
        if (message.source.startsWith(QLatin1Char(' '))) {
            QVERIFY2(message.translation.startsWith(QLatin1Char(' ')), qPrintable(message.source));
            ++checked;
        }
        if (message.source.endsWith(QLatin1Char(' '))) {
            QVERIFY2(message.translation.endsWith(QLatin1Char(' ')), qPrintable(message.source));
            ++checked;
        }
    }
    QCOMPARE(checked, 7);
}

void TestTranslations::actionsInViewHaveWordsOfTheirOwn()
{
    QFETCH(QString, language);
    QHash<QString, QSet<QString>> words;
    for (const char *name : {"filarix", "filarix-panel", "filarixhost", "hmidevice-sim"}) {
        const QString file = QLatin1String(name) + QLatin1Char('_') + language;
        Q_FOREACH (const Message &message, messagesOf(file + QLatin1String(".ts")))
            words[message.source] << QString(message.translation).remove(QLatin1Char('&'));
    }
    QStringList shared;
    for (const auto &actions : actionsInView) {
        for (int i = 0; actions[i]; ++i) {
            QVERIFY2(words.contains(QLatin1String(actions[i])), actions[i]);
            for (int j = i + 1; actions[j]; ++j) {
                const QSet<QString> common = QSet<QString>(words[QLatin1String(actions[i])])
                                                 .intersect(words[QLatin1String(actions[j])]);
                Q_FOREACH (const QString &word, common)
                    shared << QString::fromLatin1("%1: %2, %3")
                                  .arg(word, QLatin1String(actions[i]), QLatin1String(actions[j]));
            }
        }
    }
    QCOMPARE(shared.join(QLatin1String("; ")), QString());
}

void TestTranslations::mnemonicsOfTheFindDialogAreApart()
{
    QFETCH(QString, language);
    const Speaking speaking(qPrintable(language));
    QSet<QChar> used;
    for (const char *text : {"Find &what:", "Replace &what:", "Match &case", "Search &backward",
                             "&Find", "&Replace"}) {
        const QChar letter = mnemonic(speaking.text("WFindDialog", text));
        QVERIFY(letter.isLetter());
        QVERIFY2(!used.contains(letter), text);
        used << letter;
    }
}

void TestTranslations::theFilesHoldTheLibrarysTextsAndNoOther()
{
    QFETCH(QString, language);
    QStringList expected;
    for (const auto &context : libraryTexts) {
        for (int i = 0; context.texts[i]; ++i)
            expected << QLatin1String(context.context) + QLatin1Char('|')
                            + QString::fromUtf8(context.texts[i]);
    }
    expected.sort();
    QStringList present;
    Q_FOREACH (const Message &message,
               messagesOf(QLatin1String("filarix_") + language + QLatin1String(".ts")))
        present << message.key();
    present.sort();
    QCOMPARE(present, expected);
}

void TestTranslations::theLanguageReachesEveryText()
{
    QFETCH(QString, language);
    const Speaking speaking(qPrintable(language));
    QVERIFY(speaking.isLoaded());
    QHash<QString, QString> translations;
    Q_FOREACH (const Message &message,
               messagesOf(QLatin1String("filarix_") + language + QLatin1String(".ts")))
        translations[message.key()] = message.translation;
    for (const auto &context : libraryTexts) {
        for (int i = 0; context.texts[i]; ++i) {
            const QString key = QLatin1String(context.context) + QLatin1Char('|')
                                + QString::fromUtf8(context.texts[i]);
            QCOMPARE(speaking.text(context.context, context.texts[i]), translations.value(key));
        }
    }
}

void TestTranslations::englishTextsAreInNoFile()
{
    QFETCH(QString, language);
    QSet<QString> sources;
    Q_FOREACH (const Message &message,
               messagesOf(QLatin1String("filarix_") + language + QLatin1String(".ts")))
        sources << message.source;
    QVERIFY(!sources.isEmpty());
    for (const char *text : englishTexts)
        QVERIFY2(!sources.contains(QLatin1String(text)), text);
}

void TestTranslations::aWindowMadeLaterSpeaksTheLanguage()
{
    QFETCH(QString, language);
    const Speaking speaking(qPrintable(language));
    const OpenWindow window;
    QCOMPARE(window.m_newBtn->text(), speaking.text("WMMainWindow", "New"));
    QCOMPARE(window.m_preproccessBtn->text(), speaking.text("WMMainWindow", "Preproccess"));
    QCOMPARE(window.m_removeBtn->toolTip(), speaking.text("WMMainWindow", "Remove G File!"));
    QCOMPARE(window.m_importExportBtn->toolTip(),
             speaking.text("WMMainWindow", "Import/Export G File."));
    QCOMPARE(window.m_rowTitle->text(), speaking.text("WMMainWindow", "Row:"));
    QVERIFY(window.m_rowTitle->text() != QLatin1String("Row:"));
}

void TestTranslations::englishTextsStayInTheWindow()
{
    const Speaking german("de");
    OpenWindow window;
    window.newFile();
    QCOMPARE(window.m_fileLabel->text(), QString("Untitled"));
    QVERIFY(window.windowTitle().startsWith(QLatin1String("untitled.cnc[*] - ")));
    QCOMPARE(window.m_playOrPauseBtn->text(), QString("PlayOrPause"));
    QSet<QString> english;
    for (const char *text : englishTexts)
        english << QLatin1String(text);
    QStringList translated;
    Q_FOREACH (const QToolButton *button,
               window.findChildren<QToolButton *>() + window.unplacedButtons()) {
        if (!button->toolTip().isEmpty() && !english.contains(button->toolTip()))
            translated << button->toolTip();
    }
    translated.sort();
    QStringList expected = QStringList() << german.text("WMMainWindow", "Remove G File!")
                                         << german.text("WMMainWindow", "Import/Export G File.");
    expected.sort();
    QCOMPARE(translated, expected);
}

void TestTranslations::englishTextsStayInTheDialogs()
{
    const Speaking german("de");
    WCopyDialog copyDialog(nullptr);
    QStringList buttons;
    Q_FOREACH (const QPushButton *button, copyDialog.findChildren<QPushButton *>())
        buttons << button->text();
    QCOMPARE(buttons, QStringList() << "-"
                                    << "+"
                                    << "OK"
                                    << "Abbrechen");

    WGCodeEditer editor(nullptr);
    editor.findAndReplace();
    ModalDriver driver;
    driver.press(QMessageBox::Ok);
    editor.findNext(QLatin1String("G01"), Qt::CaseSensitive);
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(driver.boxes().first().title, QString("Find"));
    QCOMPARE(driver.boxes().first().text, QString("Find finished!\n Can't find any information!"));

    StrictMessages::expect(QLatin1String("slot_checkUSB"));
    ImportManage manager(nullptr);
    manager.init();
    QStringList labels;
    Q_FOREACH (const QLabel *label, manager.findChildren<QLabel *>())
        labels << label->text();
    QCOMPARE(labels, QStringList() << "Panel"
                                   << "USB"
                                   << "Belegt 0M. Frei 30M. Kein USB-Stick!");
}

void TestTranslations::languageChangeReachesTheWindow()
{
    QFETCH(QString, language);
    const OpenWindow window;
    {
        const Speaking speaking(qPrintable(language));
        QSet<QString> translations;
        for (const auto &context : libraryTexts) {
            if (QLatin1String(context.context) != QLatin1String("WMMainWindow"))
                continue;
            for (int i = 0; context.texts[i]; ++i)
                translations << speaking.text("WMMainWindow", context.texts[i]);
        }
        int reached = 0;
        Q_FOREACH (const QToolButton *button,
                   window.findChildren<QToolButton *>() + window.unplacedButtons())
            reached += translations.contains(button->text()) ? 1 : 0;
        Q_FOREACH (const QLabel *label, window.findChildren<QLabel *>())
            reached += translations.contains(label->text()) ? 1 : 0;
        // All 24 but Preproccess and PlayOrPause, and three titles.
        QCOMPARE(reached, 22 + 3);
    }
    QApplication::processEvents();
    QCOMPARE(window.m_newBtn->text(), QString("New"));
    QCOMPARE(window.m_countTitle->text(), QString("Count:"));
}

void TestTranslations::languageChangeLeavesTheseAlone()
{
    OpenWindow window;
    window.newFile();
    const Speaking german("de");
    QCOMPARE(window.m_preproccessBtn->text(), QString("Preproccess"));
    QCOMPARE(window.m_removeBtn->toolTip(), QString("Remove G File!"));
    QCOMPARE(window.m_importExportBtn->toolTip(), QString("Import/Export G File."));
    QCOMPARE(window.m_fileLabel->text(), QString("Untitled"));
    QCOMPARE(window.windowTitle(), QString("untitled.cnc[*] - Application"));
    // The title is set anew with the next file command.
    window.newFile();
    QCOMPARE(window.windowTitle(), QString("untitled.cnc[*] - Programm-Editor"));
}

void TestTranslations::languageChangeDoesNotReachOpenDialogs()
{
    WFindDialog findDialog(nullptr);
    ConnEditor connections(home() + QLatin1String("/none.ini"), nullptr);
    StrictMessages::expect(QLatin1String("slot_checkUSB"));
    ImportManage manager(nullptr);
    manager.init();
    const Speaking german("de");
    QCOMPARE(findDialog.windowTitle(), QString("Find"));
    QCOMPARE(connections.windowTitle(), QString("Connect Table"));
    const QLabel *status = manager.m_statusLabel;
    QCOMPARE(status->text(), QString("Used Space 0M.Left Space 30M. Usb not found!"));
    // Only what is written again speaks the new language.
    manager.init();
    QCOMPARE(status->text(), QString("Belegt 0M. Frei 30M. Kein USB-Stick!"));
    QCOMPARE(manager.m_quitButton->text(), QString("Quit"));
}

void TestTranslations::languageChangeReachesARowWhenItIsRefilled()
{
    QStringList row = QStringList() << "MJ"
                                    << "1"
                                    << "Move";
    MJLine line(row, QSize(480, 480), nullptr);
    const TestCompat::MarkingTranslator marking("MJLine");
    QApplication::processEvents();
    const QString before = line.getText(line.m_insLabel);
    QVERIFY(!before.endsWith(QLatin1Char('*')));
    line.on_expand();
    QVERIFY(line.getText(line.m_insLabel).endsWith(QLatin1Char('*')));
}

void TestTranslations::textsFitWhereTheEnglishOnesDo()
{
    QFETCH(QString, language);
    StrictMessages::expect(QLatin1String("slot_checkUSB"));
    // A screen of another size is a served one, and says so.
    StrictMessages::expect(QLatin1String("QVncServer created"));
    QFont font;
    font.setPixelSize(15);
    QApplication::setFont(font);

    const Screens english;
    const Speaking speaking(qPrintable(language));
    const Screens translated;
    for (int i = 0; i < english.windows().size(); ++i) {
        const QWidget *window = translated.windows().at(i);
        QMap<QString, QString> clipped = clippedTexts(window);
        Q_FOREACH (const QString &place, clippedTexts(english.windows().at(i)).keys())
            clipped.remove(place);
        QCOMPARE(QStringList(clipped.values()).join(QLatin1String("|")), QString());
        QVERIFY2(window->minimumSizeHint().width() <= 480, window->metaObject()->className());
        QVERIFY2(window->minimumSizeHint().height() <= 272, window->metaObject()->className());
    }
    // Wider ones would leave a bar's page with too few of them.
    Q_FOREACH (const QToolButton *button,
               translated.windows().first()->findChildren<QToolButton *>())
        QVERIFY2(button->sizeHint().width() <= 72, qPrintable(button->text()));
}

FILARIX_TEST_MAIN(TestTranslations)

#include "tst_translations.moc"
