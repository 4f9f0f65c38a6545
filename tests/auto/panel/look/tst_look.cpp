// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "contrast.h"
#include "filarixtest.h"
#include "look/glyphs.h"
#include "look/look.h"
#include "look/panelkey.h"
#include "look/panelstyle.h"
#include "look/recolour.h"
#include "look/tonemark.h"
#include "shell/messagebar.h"
#include "shell/messagedialog.h"
#include "shell/messagelog.h"
#include "wgcodeediter.h"

#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QTableWidget>

#include <algorithm>
#include <iterator>

Q_DECLARE_METATYPE(Look::Dress)
Q_DECLARE_METATYPE(Look::Style)

class TestLook : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void namesAreRead();
    void rolesHaveNames();
    void pairsStandOut_data();
    void pairsStandOut();
    void eachTextAndGroundIsPaired();
    void contrastOfTheLooks();
    void pageHasTheColours();
    void pageHasTheContrasts();
    void paletteIsReadable_data();
    void paletteIsReadable();
    void keysAreReadable_data();
    void keysAreReadable();
    void messagesAreReadable_data();
    void messagesAreReadable();
    void messagesOfTheListAreReadable_data();
    void messagesOfTheListAreReadable();
    void stripColoursAreReadable_data();
    void stripColoursAreReadable();
    void whatIsShownFollows();
    void wordsOnTheMarkedLineAreReadable();
    void editorStaysLight();
    void sheetsOfTheLibraryStay();

private:
    void addStyles();
};

void TestLook::initTestCase()
{
    QApplication::setStyle(new PanelStyle);
}

void TestLook::cleanup()
{
    Look::use(Look::Light);
    FilarixTest::cleanup();
}

void TestLook::addStyles()
{
    QTest::addColumn<Look::Style>("style");
    QTest::newRow("light") << Look::Light;
    QTest::newRow("dark") << Look::Dark;
    QTest::newRow("high contrast") << Look::HighContrast;
}

void TestLook::namesAreRead()
{
    Look::Style style = Look::Light;
    QVERIFY(Look::read("dark", &style));
    QCOMPARE(style, Look::Dark);
    QVERIFY(!Look::read("Dark", &style));
    QVERIFY(!Look::read(QString(), &style));
    QCOMPARE(style, Look::Dark);
    QCOMPARE(Look::names(), QStringList({"light", "dark", "high-contrast"}));
    QCOMPARE(Look::name(Look::Light), QString("light"));
    QCOMPARE(Look::name(Look::Dark), QString("dark"));
    QVERIFY(Look::read("high-contrast", &style));
    QCOMPARE(style, Look::HighContrast);
    QCOMPARE(Look::name(Look::HighContrast), QString("high-contrast"));
}

void TestLook::rolesHaveNames()
{
    QStringList names;
    for (Look::Role role : Look::roles())
        names.append(Look::name(role));
    QCOMPARE(names.first(), QString("surface"));
    QCOMPARE(names.last(), QString("focus line"));
    QCOMPARE(names.removeDuplicates(), 0);
    QVERIFY(!names.contains(QString()));
}

/// The pairs that stand out less than the look asks for.
static QStringList weak(const QVector<Look::Pair> &pairs, Look::Style style)
{
    QStringList found;
    for (const Look::Pair &pair : pairs) {
        const double ratio =
            Contrast::ratio(Look::colour(pair.text, style), Look::colour(pair.ground, style));
        if (ratio < Look::leastContrast(style))
            found.append(QString("%1 on %2: %3")
                             .arg(Look::name(pair.text), Look::name(pair.ground))
                             .arg(ratio));
    }
    return found;
}

void TestLook::pairsStandOut_data()
{
    addStyles();
}

void TestLook::pairsStandOut()
{
    QFETCH(Look::Style, style);
    QVector<Look::Pair> pairs = Look::pairs();
    QVERIFY(pairs.size() > 20);
    QCOMPARE(weak(pairs, style), QStringList());
    // The check finds a pair that cannot be read.
    pairs.append({Look::Role::Text, Look::Role::Faint});
    QCOMPARE(weak(pairs, style).size(), 1);
    QVERIFY(weak(pairs, style).first().startsWith("text on faint"));
}

void TestLook::eachTextAndGroundIsPaired()
{
    QVector<Look::Role> paired;
    for (const Look::Pair &pair : Look::pairs())
        paired << pair.text << pair.ground;
    const Look::Role lines[] = {Look::Role::Line, Look::Role::KeyLine};
    for (Look::Role role : Look::roles()) {
        const bool isLine = std::find(std::begin(lines), std::end(lines), role) != std::end(lines);
        QVERIFY2(paired.contains(role) != isLine, qPrintable(Look::name(role)));
    }
}

void TestLook::contrastOfTheLooks()
{
    QCOMPARE(Look::leastContrast(Look::Light), Contrast::textContrast);
    QCOMPARE(Look::leastContrast(Look::Dark), Contrast::textContrast);
    QCOMPARE(Look::leastContrast(Look::HighContrast), 7.0);
}

/// The cells of those lines of the page's tables that begin with \a first, without their quotes.
static QList<QStringList> linesOfPage(const QString &first)
{
    QFile page(FILARIX_DESIGN_PAGE);
    if (!page.open(QIODevice::ReadOnly))
        return QList<QStringList>();
    QList<QStringList> found;
    for (const QString &line : QString::fromUtf8(page.readAll()).remove('`').split('\n')) {
        const QStringList cells = line.split(" | ");
        if (cells.size() > 2 && cells.first() == "| " + first)
            found.append(cells);
    }
    return found;
}

static const Look::Style allStyles[] = {Look::Light, Look::Dark, Look::HighContrast};

void TestLook::pageHasTheColours()
{
    for (Look::Role role : Look::roles()) {
        QStringList wanted{"| " + Look::name(role)};
        for (Look::Style style : allStyles)
            wanted.append(Look::colour(role, style).name());
        bool isThere = false;
        for (const QStringList &cells : linesOfPage(Look::name(role)))
            isThere = isThere || cells.mid(0, 4) == wanted;
        QVERIFY2(isThere, qPrintable(wanted.join(" | ")));
    }
}

static Look::Role roleNamed(const QString &name)
{
    for (Look::Role role : Look::roles()) {
        if (Look::name(role) == name)
            return role;
    }
    return Look::Role::Line;
}

void TestLook::pageHasTheContrasts()
{
    int told = 0;
    for (Look::Role ground : Look::roles()) {
        for (const QStringList &cells : linesOfPage(Look::name(ground))) {
            if (cells.size() != 5 || cells.at(1).startsWith('#') || cells.at(2).startsWith('#'))
                continue;
            const Look::Role text = roleNamed(cells.at(1));
            for (Look::Style style : allStyles) {
                const double ratio =
                    Contrast::ratio(Look::colour(text, style), Look::colour(ground, style));
                // Rounded down, so that none is told to be better than it is.
                const QString wanted = QString::number(std::floor(ratio * 10) / 10, 'f', 1);
                QCOMPARE(cells.at(2 + int(style)).split(' ').first(), wanted);
            }
            ++told;
        }
    }
    QVERIFY(told > 20);
}

void TestLook::paletteIsReadable_data()
{
    addStyles();
}

void TestLook::paletteIsReadable()
{
    QFETCH(Look::Style, style);
    Look::use(style);
    const QPair<QPalette::ColorRole, QPalette::ColorRole> pairs[] = {
        {QPalette::WindowText, QPalette::Window},
        {QPalette::Text, QPalette::Base},
        {QPalette::Text, QPalette::AlternateBase},
        {QPalette::PlaceholderText, QPalette::Base},
        {QPalette::ButtonText, QPalette::Button},
        {QPalette::HighlightedText, QPalette::Highlight},
        {QPalette::ToolTipText, QPalette::ToolTipBase},
        {QPalette::Link, QPalette::Window},
        {QPalette::Link, QPalette::Base},
    };
    const QPalette palette = QApplication::palette();
    for (const QPair<QPalette::ColorRole, QPalette::ColorRole> &pair : pairs) {
        for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
            const double ratio = Contrast::ratio(palette.color(group, pair.first),
                                                 palette.color(group, pair.second));
            QVERIFY2(ratio >= Look::leastContrast(style),
                     qPrintable(
                         QString("role %1 on %2: %3").arg(pair.first).arg(pair.second).arg(ratio)));
        }
    }
    for (QPalette::ColorRole ground : {QPalette::Window, QPalette::Base, QPalette::Button}) {
        const double ratio =
            Contrast::ratio(palette.color(QPalette::Disabled, QPalette::WindowText),
                            palette.color(QPalette::Disabled, ground));
        QVERIFY2(ratio >= Look::leastContrast(style), qPrintable(QString::number(ratio)));
    }
}

void TestLook::keysAreReadable_data()
{
    QTest::addColumn<Look::Style>("style");
    QTest::addColumn<Look::Dress>("dress");
    QTest::addColumn<bool>("withGlyph");
    for (Look::Style style : {Look::Light, Look::Dark, Look::HighContrast}) {
        for (Look::Dress dress : {Look::Strip, Look::KeyPanel}) {
            for (bool withGlyph : {false, true})
                QTest::newRow(qPrintable(QString("%1 %2 %3")
                                             .arg(Look::name(style),
                                                  dress == Look::Strip ? "strip" : "key panel",
                                                  withGlyph ? "glyph" : "text")))
                    << style << dress << withGlyph;
        }
    }
}

void TestLook::keysAreReadable()
{
    QFETCH(Look::Style, style);
    QFETCH(Look::Dress, dress);
    QFETCH(bool, withGlyph);
    Look::use(style);
    const double least = Look::leastContrast(style);
    QWidget strip;
    strip.setObjectName("strip");
    strip.setAttribute(Qt::WA_StyledBackground);
    Look::dress(&strip, dress);
    PanelKey *key =
        withGlyph ? new PanelKey(
            Glyphs::icon(Glyphs::Plc, dress == Look::Strip ? Glyphs::OnStrip : Glyphs::OnKey),
            QString(), &strip)
                  : new PanelKey("Word", &strip);
    key->setCheckable(true);
    key->resize(90, 44);
    strip.show();
    const QRect inside = key->rect().adjusted(8, 6, -8, -6);
    QVERIFY(Contrast::drawn(key, inside) >= least);
    key->setDown(true);
    QVERIFY(Contrast::drawn(key, inside) >= least);
    key->setDown(false);
    key->setChecked(true);
    QVERIFY(Contrast::drawn(key, inside) >= least);
    key->setDown(true);
    QVERIFY(Contrast::drawn(key, inside) >= least);
    key->setDown(false);
    key->setChecked(false);
    key->setEnabled(false);
    QVERIFY(Contrast::drawn(key, inside) >= least);
}

void TestLook::messagesAreReadable_data()
{
    QTest::addColumn<Look::Style>("style");
    QTest::addColumn<Message::Tone>("tone");
    for (Look::Style style : {Look::Light, Look::Dark, Look::HighContrast}) {
        const QByteArray name = Look::name(style).toLatin1();
        QTest::newRow((name + " information").constData()) << style << Message::Information;
        QTest::newRow((name + " warning").constData()) << style << Message::Warning;
        QTest::newRow((name + " alarm").constData()) << style << Message::Alarm;
    }
}

void TestLook::messagesAreReadable()
{
    QFETCH(Look::Style, style);
    QFETCH(Message::Tone, tone);
    Look::use(style);
    const double least = Look::leastContrast(style);
    MessageLog log;
    MessageBar bar(&log, MessageBar::Row);
    bar.resize(480, 40);
    bar.show();
    // The tones follow one another.
    log.tell("The storage is full.", Message::Warning);
    log.closeAll();
    log.tell("The PLC does not answer.", tone);
    QLabel *text = bar.findChild<QLabel *>();
    QVERIFY(Contrast::drawn(&bar, text->geometry()) >= least);
    QWidget *mark = bar.findChild<ToneMark *>();
    QVERIFY(Contrast::drawn(&bar, mark->geometry()) >= least);
    PanelKey *key = bar.findChild<PanelKey *>();
    QVERIFY(Contrast::drawn(&bar, key->geometry().adjusted(8, 8, -8, -8)) >= least);
}

void TestLook::messagesOfTheListAreReadable_data()
{
    messagesAreReadable_data();
}

void TestLook::messagesOfTheListAreReadable()
{
    QFETCH(Look::Style, style);
    QFETCH(Message::Tone, tone);
    Look::use(style);
    const double least = Look::leastContrast(style);
    MessageLog log;
    // One that has ended, and one that stands.
    log.tell("The PLC did not answer.", tone, "plc");
    log.end("plc");
    log.tell("The PLC does not answer.", tone);
    MessageDialog dialog(&log, "coil.cnc");
    dialog.show();
    QCoreApplication::processEvents();
    const QList<QWidget *> lines = dialog.findChildren<QWidget *>("message");
    QCOMPARE(lines.size(), 2);
    for (QWidget *line : lines) {
        const QList<QLabel *> labels = line->findChildren<QLabel *>();
        QCOMPARE(labels.size(), 2);
        for (QLabel *label : labels) {
            const QRect place(label->mapTo(&dialog, QPoint(0, 0)), label->size());
            QVERIFY(Contrast::drawn(&dialog, place) >= least);
        }
        QWidget *mark = line->findChild<ToneMark *>();
        QVERIFY(Contrast::drawn(mark, mark->rect().adjusted(3, 3, -3, -3)) >= least);
    }
}

void TestLook::stripColoursAreReadable_data()
{
    addStyles();
}

void TestLook::stripColoursAreReadable()
{
    QFETCH(Look::Style, style);
    Look::use(style);
    const double least = Look::leastContrast(style);
    QWidget strip;
    strip.setObjectName("strip");
    strip.setAttribute(Qt::WA_StyledBackground);
    Look::dress(&strip, Look::Strip);
    strip.resize(20, 20);
    const QColor ground = TestCompat::grab(&strip).toImage().pixelColor(10, 10);
    for (const QColor &color : {Look::stripText(), Look::changed(), Look::stripFaint(),
                                Look::onStrip(Message::Information),
                                Look::onStrip(Message::Warning), Look::onStrip(Message::Alarm)})
        QVERIFY2(Contrast::ratio(color, ground) >= least, qPrintable(color.name()));
}

void TestLook::whatIsShownFollows()
{
    QWidget strip;
    strip.setObjectName("strip");
    strip.setAttribute(Qt::WA_StyledBackground);
    Look::dress(&strip, Look::Strip);
    QWidget panel;
    Look::dress(&panel, Look::KeyPanel);
    PanelKey *key = new PanelKey(Glyphs::icon(Glyphs::Edit, Glyphs::OnKey), "Edit", &panel);
    key->resize(90, 60);
    QTableWidget table(2, 1);
    strip.show();
    panel.show();
    table.show();
    const QImage lightStrip = TestCompat::grab(&strip).toImage();
    const QImage lightKey = TestCompat::grab(key).toImage();
    const QColor lightBase = table.viewport()->palette().color(QPalette::Base);

    Look::use(Look::Dark);
    QCOMPARE(Look::style(), Look::Dark);
    QVERIFY(TestCompat::grab(&strip).toImage() != lightStrip);
    QVERIFY(TestCompat::grab(key).toImage() != lightKey);
    QVERIFY(table.viewport()->palette().color(QPalette::Base).lightness() < 64);
    QVERIFY(lightBase.lightness() > 192);
    // The glyph alone is the word's whole colour on a dark key.
    key->setToolButtonStyle(Qt::ToolButtonIconOnly);
    QVERIFY(Contrast::drawn(key, key->rect().adjusted(8, 6, -8, -6)) >= Contrast::textContrast);

    Look::use(Look::Light);
    QCOMPARE(TestCompat::grab(&strip).toImage(), lightStrip);
    QCOMPARE(table.viewport()->palette().color(QPalette::Base), lightBase);
}

// In light nothing is drawn otherwise than the editor does.
void TestLook::wordsOnTheMarkedLineAreReadable()
{
    Look::use(Look::Light);
    WGCodeEditer editor(nullptr);
    Look::keepLight(&editor);
    const QColor mark = editor.palette().color(QPalette::AlternateBase);
    QCOMPARE(mark, Recolour::lineMark(Look::Light));
    int readable = 0;
    for (const QColor &word : {QColor(Qt::darkGreen), QColor(Qt::darkCyan), QColor(Qt::darkMagenta),
                               QColor(Qt::blue), QColor(Qt::darkYellow)}) {
        const double best = Contrast::ratio(word, Qt::white);
        QVERIFY2(Contrast::ratio(word, mark) >= qMin(Contrast::textContrast, 0.94 * best),
                 qPrintable(word.name()));
        readable += best >= Contrast::textContrast;
    }
    QCOMPARE(readable, 4);
    // An eye sees the line all the same.
    QVERIFY(mark.saturation() >= 30);
}

// The colours of the words are fixed, and made for paper.
void TestLook::editorStaysLight()
{
    WGCodeEditer editor(nullptr);
    const QBrush selection = editor.palette().brush(QPalette::Inactive, QPalette::Highlight);
    Look::keepLight(&editor);
    editor.setPlainText("; wait\n; again");
    editor.show();
    for (Look::Style style : {Look::Dark, Look::Light, Look::Dark}) {
        Look::use(style);
        const QPalette palette = editor.viewport()->palette();
        for (const QColor &word :
             {QColor(Qt::blue), QColor(Qt::darkMagenta), palette.color(QPalette::Text)})
            QVERIFY(Contrast::ratio(word, palette.color(QPalette::Base)) >= Contrast::textContrast);
        QVERIFY(
            Contrast::ratio(palette.color(QPalette::Text), palette.color(QPalette::AlternateBase))
            >= Contrast::textContrast);
        QCOMPARE(editor.palette().brush(QPalette::Inactive, QPalette::Highlight), selection);
        // Recolour changes all that is drawn, so all of it is drawn for paper.
        QCOMPARE(editor.palette().color(QPalette::Window),
                 Look::colour(Look::Role::Surface, Look::Light));
    }
}

void TestLook::sheetsOfTheLibraryStay()
{
    WGCodeEditer editor(nullptr);
    const QString sheet = editor.styleSheet();
    QVERIFY(!sheet.isEmpty());
    Look::keepLight(&editor);
    Look::use(Look::Dark);
    QCOMPARE(editor.styleSheet(), sheet);
    QCOMPARE(qApp->styleSheet(), QString());
}

FILARIX_TEST_MAIN(TestLook)
#include "tst_look.moc"
