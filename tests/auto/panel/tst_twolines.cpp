// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Holds MessageDialog and QuestionDialog on the smallest panel, whose screen the test has: whether
// each message, hint and question of panel and companion takes two lines, in each language. On the
// other panels holds MessageBar: whether a message is whole at the foot of the screen.

#include "filarixtest.h"
#include "look/elidedlabel.h"
#include "look/look.h"
#include "panelprogram.h"
#include "shell/messagedialog.h"
#include "shell/messagelog.h"
#include "shell/panelwindow.h"
#include "shell/questiondialog.h"
#include "shell/statusstrip.h"
#include "stick/devicewatch.h"
#include "textfit.h"

#include <QFile>
#include <QLabel>
#include <QRegularExpression>
#include <QTranslator>
#include <QXmlStreamReader>

namespace {

const int mostLines = 2;
/// A shorter one has no sentence.
const int fewestLetters = 26;
const char english[] = "en";

/// What stands for the parts of a text: a name first, then numbers, dates and the like.
const char *const parts[] = {"stator-coil.cnc", "2026-05", "1000620", "501"};

bool isSentence(const QString &source)
{
    const QString text = source.trimmed();
    return text.size() >= fewestLetters && (text.endsWith('.') || text.endsWith('?'));
}

QString filled(const QString &text)
{
    QString whole = text;
    for (int i = 0; i < int(sizeof parts / sizeof *parts); ++i)
        whole.replace(QString("%%1").arg(i + 1), parts[i]);
    return whole;
}

/// All texts of panel and companion in that language.
QStringList textsIn(const QString &language)
{
    const bool isEnglish = language == english;
    QStringList texts;
    for (const char *program : {"filarix-panel", "filarixhost"}) {
        QFile file(QString("%1/%2_%3.ts")
                       .arg(FILARIX_TRANSLATION_SOURCES, program, isEnglish ? "de" : language));
        if (!file.open(QIODevice::ReadOnly))
            return QStringList();
        QXmlStreamReader xml(&file);
        QString source;
        while (!xml.atEnd()) {
            xml.readNext();
            if (!xml.isStartElement())
                continue;
            if (xml.name() == QLatin1String("source"))
                source = xml.readElementText();
            else if (xml.name() == QLatin1String("translation") && isSentence(source))
                texts.append(filled(isEnglish ? source : xml.readElementText()));
        }
        if (xml.hasError())
            return QStringList();
    }
    return texts;
}

/// As a dialog of all messages shows them.
QStringList longMessages(const QStringList &texts)
{
    QStringList faults;
    for (int from = 0; from < texts.size(); from += MessageLog::kept) {
        MessageLog log;
        for (const QString &text : texts.mid(from, MessageLog::kept))
            log.tell(text, Message::Information);
        MessageDialog dialog(&log, QString());
        dialog.show();
        QCoreApplication::processEvents();
        for (const QLabel *label : dialog.findChildren<QLabel *>("text")) {
            if (TextFit::linesOf(label) > mostLines)
                faults.append(label->text().remove(QChar(0x200b)));
        }
    }
    return faults;
}

QStringList longQuestions(const QStringList &texts)
{
    QStringList faults;
    for (const QString &text : texts) {
        Question question;
        question.text = text;
        question.answers = QStringList{"Cancel", "All the same"};
        QuestionDialog dialog(question);
        dialog.show();
        QCoreApplication::processEvents();
        if (TextFit::linesOf(dialog.findChild<QLabel *>("question")) > mostLines)
            faults.append(text);
    }
    return faults;
}

/// Those of \a texts that the foot of a panel ends in three dots.
QStringList cutAtTheFoot(PanelWindow *panel, const QStringList &texts)
{
    const ElidedLabel *label = panel->findChild<ElidedLabel *>("messageText");
    QStringList cut;
    for (const QString &text : texts) {
        panel->messages()->tell(text, Message::Warning, "cause");
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        if (label->text() != text || !label->isWhole())
            cut.append(text);
    }
    return cut;
}

} // namespace

class TestTwoLines : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void threeLinesAreFound();
    void everyTextTakesTwoLines_data();
    void everyTextTakesTwoLines();
    void everyMessageIsWholeAtTheFoot_data();
    void everyMessageIsWholeAtTheFoot();
};

void TestTwoLines::initTestCase()
{
    PanelProgram::setUpStyle();
    Look::use(Look::Light);
    QCOMPARE(QGuiApplication::primaryScreen()->availableSize(), QSize(480, 272));
}

void TestTwoLines::threeLinesAreFound()
{
    // The screen comes with the first window.
    StrictMessages::expect("QVncServer created");
    const QString two = QString("word ").repeated(15).trimmed();
    const QString three = QString("word ").repeated(30).trimmed();
    QCOMPARE(longMessages({two, three}), QStringList{three});
    QCOMPARE(longQuestions({two, three}), QStringList{three});
}

void TestTwoLines::everyTextTakesTwoLines_data()
{
    QTest::addColumn<QString>("language");
    for (const char *language : {english, "de", "it", "tr", "zh_CN"})
        QTest::newRow(language) << language;
}

void TestTwoLines::everyTextTakesTwoLines()
{
    QFETCH(QString, language);
    const QStringList texts = textsIn(language);
    QVERIFY2(texts.size() > 150, qPrintable(QString::number(texts.size())));
    const QStringList faults =
        longMessages(texts) + longQuestions(texts.filter(QRegularExpression("[?\xef\xbc\x9f]$")));
    for (const QString &fault : faults)
        qDebug("%s", qPrintable(fault));
    QCOMPARE(faults, QStringList());
}

void TestTwoLines::everyMessageIsWholeAtTheFoot_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("language");
    for (const QSize &size :
         {QSize(272, 480), QSize(480, 800), QSize(800, 480), QSize(1024, 600)}) {
        for (const char *language : {english, "de", "it", "tr", "zh_CN"})
            QTest::newRow(
                qPrintable(QString("%1x%2 %3").arg(size.width()).arg(size.height()).arg(language)))
                << size << QString(language);
    }
}

// The states of the devices, which stand beside a message, have their longest words.
void TestTwoLines::everyMessageIsWholeAtTheFoot()
{
    QFETCH(QSize, size);
    QFETCH(QString, language);
    // The screen comes with the first window.
    StrictMessages::expect("QVncServer created");
    QTranslator translator;
    if (language != english) {
        QVERIFY(translator.load("filarix-panel_" + language, FILARIX_TRANSLATIONS));
        QCoreApplication::installTranslator(&translator);
    }
    PanelWindow panel(size);
    panel.show();
    DeviceState state;
    state.isKnown = true;
    state.stickIn = true;
    state.freeBytes = qint64(99) * 1024 * 1024 * 1024;
    panel.status()->showDevices(state);
    panel.status()->showCheck(StatusStrip::Checked, 4, 2);
    QCoreApplication::processEvents();
    const QStringList texts = textsIn(language);
    const QRegularExpression question("[?\xef\xbc\x9f]$");
    QStringList messages = texts;
    for (const QString &text : texts.filter(question))
        messages.removeAll(text);
    QVERIFY2(messages.size() > 120, qPrintable(QString::number(messages.size())));
    // Two words for a thousand pixels would fit without being read.
    QCOMPARE(cutAtTheFoot(&panel, {QString("word ").repeated(60).trimmed()}).size(), 1);
    const QStringList cut = cutAtTheFoot(&panel, messages);
    for (const QString &text : cut)
        qDebug("%s", qPrintable(text));
    QCOMPARE(cut.size(), 0);
}

FILARIX_TEST_MAIN(TestTwoLines)
#include "tst_twolines.moc"
