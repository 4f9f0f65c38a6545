// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Holds PieceAppender and LineGauge: a load shows what the toolkit's own editor shows.

#include "filarixtest.h"
#include "plaineditor.h"
#include "wgcodeediter.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QProgressDialog>
#include <QScrollBar>
#include <QTextBlock>
#include <QTimer>
#include <QWheelEvent>

#include <limits>

// A program goes into the library's editor and into the plain one, in views of many sizes and
// kinds, while somebody interferes at many instants: both have to end the same.
//
// Three things are not compared. How often updateRequest() comes: painting and laying out may be
// spared; by how much it tells to scroll is. When documentSizeChanged() comes: the toolkit keeps it
// to itself while it fits the scroll bars, and fits them more often; that a size which is told is
// the document's is. How much narrower than the pane a document is that was given to wrap half-way:
// that is the widest of the lines that had been laid out until then, and fewer are.

namespace {

/// Of all instants, each intervention takes one in so many, and each its own; the long run takes
/// all.
const int share = 10;

// What is done to an editor

template<typename Editor>
bool gotoLineOf(QPlainTextEdit *view, int line)
{
    Editor *editor = qobject_cast<Editor *>(view);
    if (editor)
        editor->gotoLine(line);
    return editor;
}

void gotoLine(QPlainTextEdit *view, int line)
{
    if (!gotoLineOf<WGCodeEditer>(view, line))
        gotoLineOf<PlainEditor>(view, line);
}

void press(QPlainTextEdit *view, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
           const QString &text = QString())
{
    QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(view, &event);
}

void turnWheel(QPlainTextEdit *view, int delta)
{
    TestCompat::turnWheel(view->viewport(), delta);
}

void jumpNear(QPlainTextEdit *view)
{
    gotoLine(view, 5);
}

void jumpFar(QPlainTextEdit *view)
{
    gotoLine(view, 100);
}

void jumpNowhere(QPlainTextEdit *view)
{
    gotoLine(view, 100000);
}

void goToTheStart(QPlainTextEdit *view)
{
    press(view, Qt::Key_Home, Qt::ControlModifier);
}

void goToTheEnd(QPlainTextEdit *view)
{
    press(view, Qt::Key_End, Qt::ControlModifier);
}

void pageUp(QPlainTextEdit *view)
{
    press(view, Qt::Key_PageUp);
}

void pageDown(QPlainTextEdit *view)
{
    press(view, Qt::Key_PageDown);
}

void wheelUp(QPlainTextEdit *view)
{
    turnWheel(view, 120);
}

void wheelDown(QPlainTextEdit *view)
{
    turnWheel(view, -120);
}

void scrollUp(QPlainTextEdit *view)
{
    view->verticalScrollBar()->setValue(7);
}

void scrollToTheEnd(QPlainTextEdit *view)
{
    view->verticalScrollBar()->setValue(view->verticalScrollBar()->maximum());
}

void turnThePage(QPlainTextEdit *view)
{
    view->verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepSub);
}

void scrollSideways(QPlainTextEdit *view)
{
    view->horizontalScrollBar()->setValue(30);
}

void undo(QPlainTextEdit *view)
{
    view->undo();
}

void type(QPlainTextEdit *view)
{
    press(view, Qt::Key_X, Qt::NoModifier, QLatin1String("X"));
}

void breakTheFirstLine(QPlainTextEdit *view)
{
    QTextCursor cursor(view->document());
    cursor.insertText(QLatin1String("G01 X1\nG01 Y2 "));
}

void clear(QPlainTextEdit *view)
{
    view->clear();
}

void shrink(QPlainTextEdit *view)
{
    view->resize(view->width() * 2 / 3, view->height() * 3 / 4);
}

void grow(QPlainTextEdit *view)
{
    view->resize(view->width() * 5 / 4, view->height() * 4 / 3);
}

void hide(QPlainTextEdit *view)
{
    view->hide();
}

void hideAndShow(QPlainTextEdit *view)
{
    view->hide();
    view->show();
}

void centre(QPlainTextEdit *view)
{
    view->setCenterOnScroll(!view->centerOnScroll());
}

void centreTheCursor(QPlainTextEdit *view)
{
    view->centerCursor();
}

void wrap(QPlainTextEdit *view)
{
    view->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    view->setLineWrapMode(QPlainTextEdit::WidgetWidth);
}

void stopUpdates(QPlainTextEdit *view)
{
    view->setUpdatesEnabled(!view->updatesEnabled());
}

void enlarge(QPlainTextEdit *view)
{
    QFont font = view->font();
    font.setPointSize(font.pointSize() + 5);
    view->document()->setDefaultFont(font);
}

void paint(QPlainTextEdit *view)
{
    TestCompat::grab(view);
}

const struct
{
    const char *name;
    void (*act)(QPlainTextEdit *view);
} interventions[] = {
    {"jump near", jumpNear},
    {"jump far", jumpFar},
    {"jump nowhere", jumpNowhere},
    {"to the start", goToTheStart},
    {"to the end", goToTheEnd},
    {"page up", pageUp},
    {"page down", pageDown},
    {"wheel up", wheelUp},
    {"wheel down", wheelDown},
    {"scroll up", scrollUp},
    {"scroll to the end", scrollToTheEnd},
    {"turn the page", turnThePage},
    {"scroll sideways", scrollSideways},
    {"undo", undo},
    {"type", type},
    {"break the first line", breakTheFirstLine},
    {"clear", clear},
    {"shrink", shrink},
    {"grow", grow},
    {"hide", hide},
    {"hide and show", hideAndShow},
    {"centre", centre},
    {"centre the cursor", centreTheCursor},
    {"wrap", wrap},
    {"stop updates", stopUpdates},
    {"enlarge", enlarge},
    {"paint", paint},
};
const int interventionCount = int(sizeof(interventions) / sizeof(interventions[0]));

// When

const struct
{
    const char *signal; ///< null: a turn of the event loop
    int count;
} instants[] = {
    {nullptr, 1},
    {nullptr, 2},
    {nullptr, 3},
    {nullptr, 10},
    {nullptr, 20},
    {nullptr, 21},
    {nullptr, 25},
    {nullptr, 40},
    {nullptr, 49},
    {nullptr, 50},
    {SIGNAL(textChanged()), 1},
    {SIGNAL(textChanged()), 4},
    {SIGNAL(textChanged()), 20},
    {SIGNAL(textChanged()), 50},
    {SIGNAL(cursorPositionChanged()), 2},
    {SIGNAL(cursorPositionChanged()), 25},
    {SIGNAL(blockCountChanged(int)), 3},
    {SIGNAL(blockCountChanged(int)), 30},
    {SIGNAL(updateRequest(QRect, int)), 45},
    {SIGNAL(modificationChanged(bool)), 1},
};
const int instantCount = int(sizeof(instants) / sizeof(instants[0]));

// Where

const int widths[] = {240, 320, 400, 480, 640, 800, 1024, 1280};
const int heights[] = {96, 160, 240, 272, 320, 480, 640, 800};
const int sizeCount = 8;

struct Bars
{
    Qt::ScrollBarPolicy horizontal;
    Qt::ScrollBarPolicy vertical;
};
const Bars barPolicies[] = {
    {Qt::ScrollBarAsNeeded, Qt::ScrollBarAsNeeded},
    {Qt::ScrollBarAlwaysOff, Qt::ScrollBarAsNeeded},
    {Qt::ScrollBarAsNeeded, Qt::ScrollBarAlwaysOff},
    {Qt::ScrollBarAlwaysOn, Qt::ScrollBarAlwaysOn},
    {Qt::ScrollBarAlwaysOff, Qt::ScrollBarAlwaysOff},
};
const int barPolicyCount = int(sizeof(barPolicies) / sizeof(barPolicies[0]));

enum Kind {
    AsTheLibraryIs,
    Wrapped,
    CentredWhenScrolled,
    RightToLeft,
    CentredText,
    RightAligned,
    KindCount
};

// What

enum Program { Narrow, FewWide, VeryWide, Separated, Arabic, Mixed, ProgramCount };

QString lineOf(Program program, int i)
{
    const QString narrow = QString::fromLatin1("N%1 G01 X%2.345 Y-%3.125 Z1.5 F1500")
                               .arg(i * 10)
                               .arg(i % 7)
                               .arg(i % 131);
    switch (program) {
    case FewWide:
        return i % 97 == 60 ? narrow + QLatin1Char(' ') + narrow + QLatin1Char(' ') + narrow
                            : narrow;
    case VeryWide:
        return i % 5 ? narrow.repeated(1 + i % 6) : QString::fromLatin1("G1");
    case Separated:
        return i % 11 == 3 ? narrow + QChar(QChar::LineSeparator) + QLatin1String("M03") : narrow;
    case Arabic:
        return i % 13 == 5 ? QString(12, QChar(0x0627)) + QLatin1String(" G01") : narrow;
    case Mixed:
        if (i % 17 == 0)
            return QLatin1String("; comment");
        return i % 19 ? narrow : QString::fromLatin1("\tM03;") + QChar(0x4e2d);
    default:
        return narrow;
    }
}

QString textOf(Program program, int lines)
{
    QString text;
    for (int i = 0; i < lines; ++i) {
        text += lineOf(program, i);
        text += QLatin1Char('\n');
    }
    return text;
}

// What an onlooker can tell

/// Keeps what a slot and an event filter can learn of an editor, and does something to it once.
class Onlooker : public QObject
{
    Q_OBJECT

public:
    explicit Onlooker(QPlainTextEdit *view);

    /// Arranges for \a act at the instant.
    void arrange(void (*act)(QPlainTextEdit *view), const char *signal, int count);

    /// All that was seen.
    QStringList report() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void turn() { count(); }
    void signalled() { count(); }
    void textChanged() { look("text"); }
    void cursorPositionChanged()
    {
        look("cursor");
        m_lineCount = m_view->document()->lineCount();
    }
    void blockCountChanged() { look("blocks"); }
    void updateRequest(const QRect &, int dy)
    {
        m_scrolled += dy;
        look(nullptr);
    }
    void valueChanged(int value)
    {
        m_value = value;
        ++m_values;
        look(nullptr);
    }
    void rangeChanged(int, int maximum)
    {
        m_maximum = maximum;
        look(nullptr);
    }
    void documentSizeChanged(const QSizeF &size)
    {
        if (size != m_view->document()->documentLayout()->documentSize())
            m_log << QLatin1String("a size that is not the document's");
    }
    void sidewaysValueChanged(int value) { m_sidewaysValue = value; }
    void sidewaysRangeChanged(int, int maximum) { m_sidewaysMaximum = maximum; }

private:
    void count();
    void look(const char *signal);

    QPlainTextEdit *m_view;
    QTimer m_timer;
    void (*m_act)(QPlainTextEdit *view);
    int m_count;
    QStringList m_log;
    int m_lineCount;
    int m_scrolled;
    int m_value;
    int m_values;
    int m_maximum;
    int m_sidewaysValue;
    int m_sidewaysMaximum;
    int m_properties;
    bool m_updates;
    bool m_centring;
};

Onlooker::Onlooker(QPlainTextEdit *view)
    : m_view(view)
    , m_act(nullptr)
    , m_count(0)
    , m_lineCount(0)
    , m_scrolled(0)
    , m_value(0)
    , m_values(0)
    , m_maximum(0)
    , m_sidewaysValue(0)
    , m_sidewaysMaximum(0)
    , m_properties(0)
    , m_updates(view->updatesEnabled())
    , m_centring(view->centerOnScroll())
{
    connect(view, SIGNAL(textChanged()), SLOT(textChanged()));
    connect(view, SIGNAL(cursorPositionChanged()), SLOT(cursorPositionChanged()));
    connect(view, SIGNAL(blockCountChanged(int)), SLOT(blockCountChanged()));
    connect(view, SIGNAL(updateRequest(QRect, int)), SLOT(updateRequest(QRect, int)));
    connect(view->verticalScrollBar(), SIGNAL(valueChanged(int)), SLOT(valueChanged(int)));
    connect(view->verticalScrollBar(), SIGNAL(rangeChanged(int, int)),
            SLOT(rangeChanged(int, int)));
    connect(view->horizontalScrollBar(), SIGNAL(valueChanged(int)),
            SLOT(sidewaysValueChanged(int)));
    connect(view->horizontalScrollBar(), SIGNAL(rangeChanged(int, int)),
            SLOT(sidewaysRangeChanged(int, int)));
    connect(view->document()->documentLayout(), SIGNAL(documentSizeChanged(QSizeF)),
            SLOT(documentSizeChanged(QSizeF)));
    view->installEventFilter(this);
    connect(&m_timer, SIGNAL(timeout()), SLOT(turn()));
}

void Onlooker::arrange(void (*act)(QPlainTextEdit *view), const char *signal, int count)
{
    m_act = act;
    m_count = count;
    if (signal)
        connect(m_view, signal, this, SLOT(signalled()));
    else
        m_timer.start(0);
}

void Onlooker::count()
{
    if (--m_count != 0)
        return;
    m_timer.stop();
    m_log << QString::fromLatin1("acts at %1 of %2, %3 blocks")
                 .arg(m_view->verticalScrollBar()->value())
                 .arg(m_view->verticalScrollBar()->maximum())
                 .arg(m_view->blockCount());
    m_act(m_view);
    m_updates = m_view->updatesEnabled();
    m_centring = m_view->centerOnScroll();
}

/// Notes a signal, and that the view is in no other state than its owner put it.
void Onlooker::look(const char *signal)
{
    if (signal) {
        m_log << QString::fromLatin1("%1: %2 blocks, cursor at %3")
                     .arg(QLatin1String(signal))
                     .arg(m_view->blockCount())
                     .arg(m_view->textCursor().position());
    }
    if (m_view->updatesEnabled() != m_updates && m_act != stopUpdates)
        m_log << QLatin1String("the updates are other than they were left");
    if (m_view->centerOnScroll() != m_centring && m_act != centre)
        m_log << QLatin1String("the centring is other than it was left");
    if (!m_view->dynamicPropertyNames().isEmpty()
        && m_view->dynamicPropertyNames().first() != "_q_styleSheetWidgetFont")
        m_log << QString::fromLatin1("property %1")
                     .arg(QLatin1String(m_view->dynamicPropertyNames().first()));
}

bool Onlooker::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::DynamicPropertyChange)
        ++m_properties;
    return QObject::eventFilter(watched, event);
}

QStringList Onlooker::report() const
{
    return QStringList(m_log)
           << QString::fromLatin1("%1 lines at the last cursor signal").arg(m_lineCount)
           << QString::fromLatin1("scrolled by %1").arg(m_scrolled)
           << QString::fromLatin1("%1 values, the last %2").arg(m_values).arg(m_value)
           << QString::fromLatin1("last maximum %1").arg(m_maximum)
           << QString::fromLatin1("sideways last at %1 of %2")
                  .arg(m_sidewaysValue)
                  .arg(m_sidewaysMaximum)
           << QString::fromLatin1("%1 changes of properties").arg(m_properties);
}

QString number(const char *name, double value)
{
    return QString::fromLatin1("%1 %2").arg(QLatin1String(name)).arg(value);
}

QStringList barState(const char *name, const QScrollBar *bar)
{
    return QStringList() << QString::fromLatin1("%1 bar at %2 of %3 .. %4, page %5, shown %6")
                                .arg(QLatin1String(name))
                                .arg(bar->value())
                                .arg(bar->minimum())
                                .arg(bar->maximum())
                                .arg(bar->pageStep())
                                .arg(bar->isVisible());
}

/// All that an editor tells when it was read into.
QStringList stateOf(QPlainTextEdit *view, bool isGivenToWrap)
{
    const QTextDocument *document = view->document();
    QStringList state;
    state << number("blocks", document->blockCount()) << number("lines", document->lineCount())
          << number("cursor", view->textCursor().position())
          << number("anchor", view->textCursor().anchor())
          << number("undo steps", document->availableUndoSteps())
          << number("redo steps", document->availableRedoSteps())
          << number("modified", document->isModified()) << number("shown", view->isVisible())
          << number("updates", view->updatesEnabled()) << number("centring", view->centerOnScroll())
          << number("pane width", view->viewport()->width())
          << number("pane height", view->viewport()->height())
          << number("pane left", view->viewport()->x());
    if (!isGivenToWrap || document->size().width() > view->viewport()->width())
        state << number("width", document->size().width());
    if (!view->isVisible())
        return state;
    state << barState("vertical", view->verticalScrollBar())
          << barState("horizontal", view->horizontalScrollBar())
          << number("first line", view->cursorForPosition(QPoint(0, 0)).block().blockNumber())
          << number("cursor from the top", view->cursorRect().top())
          << number("cursor from the left", view->cursorRect().left())
          << number("marks", view->extraSelections().size());
    return state;
}

QString firstDifference(const QStringList &is, const QStringList &wanted)
{
    for (int i = 0; i < qMax(is.size(), wanted.size()); ++i) {
        if (is.value(i) != wanted.value(i))
            return QString::fromLatin1("%1: \"%2\" instead of \"%3\"")
                .arg(i)
                .arg(is.value(i), wanted.value(i));
    }
    return QString();
}

/// Keeps the dialog of a load from being shown. The toolkit shows it where it guesses that a load
/// takes four seconds: of two loads on a slow machine perhaps one, whose editor loses the focus.
class ProgressHider : public QObject
{
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        QProgressDialog *const dialog = qobject_cast<QProgressDialog *>(watched);
        QTimer *const timer = dialog ? dialog->findChild<QTimer *>() : nullptr;
        if (timer && event->type() == QEvent::ChildAdded) {
            timer->stop();
            dialog->setMinimumDuration(std::numeric_limits<int>::max());
        }
        m_hasShown = m_hasShown || (dialog && event->type() == QEvent::Show);
        return QObject::eventFilter(watched, event);
    }

    bool hasShown() const { return m_hasShown; }

private:
    bool m_hasShown = false;
};

/// One load in each editor.
struct Scene
{
    int width;
    int height;
    Bars bars;
    Kind kind;
    Program program;
    int lines;
    int intervention; ///< -1: nobody interferes
    int instant;
};

void prepare(QPlainTextEdit *view, const Scene &scene)
{
    view->setCursorWidth(0);
    view->setHorizontalScrollBarPolicy(scene.bars.horizontal);
    view->setVerticalScrollBarPolicy(scene.bars.vertical);
    if (scene.kind == Wrapped)
        wrap(view);
    if (scene.kind == CentredWhenScrolled)
        view->setCenterOnScroll(true);
    if (scene.kind == RightToLeft)
        view->setLayoutDirection(Qt::RightToLeft);
    if (scene.kind == CentredText || scene.kind == RightAligned) {
        QTextOption option = view->document()->defaultTextOption();
        option.setAlignment(scene.kind == CentredText ? Qt::AlignHCenter : Qt::AlignRight);
        view->document()->setDefaultTextOption(option);
    }
    view->resize(scene.width, scene.height);
    view->show();
    TestCompat::waitForExposed(view);
    QCoreApplication::processEvents();
}

struct Ending
{
    QStringList seen;
    QStringList state;
    QString text;
    QImage picture;
};

template<typename Editor>
Ending play(const Scene &scene, const QString &text)
{
    Editor editor(nullptr);
    prepare(&editor, scene);
    Ending ending;
    {
        Onlooker onlooker(&editor);
        if (scene.intervention >= 0) {
            onlooker.arrange(interventions[scene.intervention].act, instants[scene.instant].signal,
                             instants[scene.instant].count);
        }
        editor.readGCode(text);
        ending.state = stateOf(&editor, scene.intervention >= 0
                                            && interventions[scene.intervention].act == wrap);
        ending.seen = onlooker.report();
    }
    ending.text = editor.toPlainText();
    if (!editor.isVisible())
        editor.show();
    editor.setUpdatesEnabled(true);
    editor.clearFocus();
    QCoreApplication::processEvents();
    ending.picture = TestCompat::grab(&editor).toImage();
    return ending;
}

QString difference(const Scene &scene)
{
    const QString text = textOf(scene.program, scene.lines);
    const Ending plain = play<PlainEditor>(scene, text);
    const Ending own = play<WGCodeEditer>(scene, text);
    const QString state = firstDifference(own.state, plain.state);
    if (!state.isEmpty())
        return QLatin1String("state ") + state;
    const QString seen = firstDifference(own.seen, plain.seen);
    if (!seen.isEmpty())
        return QLatin1String("seen ") + seen;
    if (own.text != plain.text)
        return QLatin1String("the text");
    if (own.picture != plain.picture)
        return QLatin1String("the picture");
    return QString();
}

} // namespace

class TestAsPlainLoad : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void endsTheSame_data();
    void endsTheSame();
    void endsTheSameWhenDisturbed_data();
    void endsTheSameWhenDisturbed();
    void cleanupTestCase();

private:
    ProgressHider m_hider;
};

// What comes by the clock is not compared: a cursor that blinks asks for updates, at times of its
// own, and so does an editor that loses the focus to the dialog of its load.
void TestAsPlainLoad::initTestCase()
{
    QApplication::setCursorFlashTime(0);
    qApp->installEventFilter(&m_hider);
}

void TestAsPlainLoad::cleanupTestCase()
{
    QVERIFY(!m_hider.hasShown());
}

/// One row a size; kinds of views, bars and programs take turns.
void TestAsPlainLoad::endsTheSame_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    for (int i = 0; i < sizeCount; ++i) {
        for (int k = i % 2; k < sizeCount; k += 2) {
            QTest::newRow(QByteArray::number(widths[i]) + " x " + QByteArray::number(heights[k]))
                << widths[i] << heights[k];
        }
    }
}

void TestAsPlainLoad::endsTheSame()
{
    QFETCH(int, width);
    QFETCH(int, height);
    static int turn = 0;
    const Scene scene = {width,
                         height,
                         barPolicies[turn % barPolicyCount],
                         Kind(turn / 3 % 2 ? turn % KindCount : AsTheLibraryIs),
                         Program(turn / 5 % ProgramCount),
                         turn % 8 ? 500 + turn % 100 : 2100,
                         -1,
                         0};
    const QString found = difference(scene);
    ++turn;
    QVERIFY2(found.isEmpty(), qPrintable(QString::fromLatin1("bars %1, kind %2, program %3: %4")
                                             .arg((turn - 1) % barPolicyCount)
                                             .arg(scene.kind)
                                             .arg(scene.program)
                                             .arg(found)));
}

/// One row an intervention, at each of the instants.
void TestAsPlainLoad::endsTheSameWhenDisturbed_data()
{
    QTest::addColumn<int>("intervention");
    for (int i = 0; i < interventionCount; ++i)
        QTest::newRow(interventions[i].name) << i;
}

void TestAsPlainLoad::endsTheSameWhenDisturbed()
{
    QFETCH(int, intervention);
    QStringList differences;
    const int step = isLongRun() ? 1 : share;
    for (int i = intervention % step; i < instantCount; i += step) {
        const int turn = intervention * 7 + i;
        const Scene scene = {widths[turn % sizeCount],
                             heights[turn / 3 % sizeCount],
                             barPolicies[turn % 4 ? 0 : turn / 4 % barPolicyCount],
                             Kind(turn % 5 ? AsTheLibraryIs : turn / 5 % KindCount),
                             Program(turn % 3 ? Narrow : turn / 3 % ProgramCount),
                             turn % 16 ? 500 + turn % 90 : 2100,
                             intervention,
                             i};
        const QString found = difference(scene);
        if (!found.isEmpty())
            differences << QString::fromLatin1("%1 %2, %3 x %4, kind %5, program %6, %7 lines: %8")
                               .arg(QLatin1String(instants[i].signal ? instants[i].signal + 1
                                                                     : "turn"))
                               .arg(instants[i].count)
                               .arg(scene.width)
                               .arg(scene.height)
                               .arg(scene.kind)
                               .arg(scene.program)
                               .arg(scene.lines)
                               .arg(found);
    }
    QVERIFY2(differences.isEmpty(), qPrintable(differences.join(QLatin1String("\n"))));
}

FILARIX_TEST_MAIN(TestAsPlainLoad)
#include "tst_asplainload.moc"
