// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "compat.h"
#include "filarixtest.h"
#include "plaineditor.h"
#include "wgcodeediter.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QTextBlock>

#include <random>

namespace {

/// The library's editor beside the one that leaves all colouring to the toolkit.
class Pair
{
public:
    Pair() : editor(nullptr), plain(nullptr)
    {
        Q_FOREACH (QPlainTextEdit *view, both()) {
            view->resize(400, 300);
            // The toolkit colours a new document once more by and by.
            QApplication::processEvents();
        }
    }

    QList<QPlainTextEdit *> both() { return QList<QPlainTextEdit *>() << &editor << &plain; }

    void setText(const char *text)
    {
        Q_FOREACH (QPlainTextEdit *view, both())
            view->setPlainText(QLatin1String(text));
    }

    WGCodeEditer editor;
    PlainEditor plain;
};

QSyntaxHighlighter *highlighterOf(const QPlainTextEdit *view)
{
    return view->document()->findChild<QSyntaxHighlighter *>();
}

/// "0+3 green" and so on, block by block.
QStringList colours(const QPlainTextEdit *view)
{
    QStringList result;
    for (QTextBlock block = view->document()->begin(); block.isValid(); block = block.next()) {
        QStringList ranges;
        Q_FOREACH (const QTextLayout::FormatRange &range, Compat::formats(block.layout())) {
            ranges << QString::fromLatin1("%1+%2 %3%4")
                          .arg(range.start)
                          .arg(range.length)
                          .arg(range.format.foreground().color().name())
                          .arg(QLatin1String(range.format.fontUnderline() ? " underlined" : ""));
        }
        result << ranges.join(QLatin1String(", "));
    }
    return result;
}

bool isColoured(const QPlainTextEdit *view)
{
    return !colours(view).join(QString()).isEmpty();
}

/// Shows a text at the cursor that an input method has not committed yet.
void compose(QPlainTextEdit *view, const QString &text)
{
    typedef QInputMethodEvent::Attribute Attribute;
    QTextCharFormat underlined;
    underlined.setFontUnderline(true);
    QInputMethodEvent event(text, QList<Attribute>() << Attribute(QInputMethodEvent::TextFormat, 0,
                                                                  text.size(), underlined));
    QApplication::sendEvent(view, &event);
}

} // namespace

/// What a view asks to be painted, in order.
class RequestLog : public QObject
{
    Q_OBJECT

public:
    explicit RequestLog(QPlainTextEdit *view)
    {
        connect(view, SIGNAL(updateRequest(QRect, int)), SLOT(add(QRect, int)));
    }

    QStringList entries;

private Q_SLOTS:
    void add(const QRect &rect, int dy)
    {
        entries << QString::fromLatin1("%1,%2 %3x%4 by %5")
                       .arg(rect.x())
                       .arg(rect.y())
                       .arg(rect.width())
                       .arg(rect.height())
                       .arg(dy);
    }
};

/// BlockFormatter: the editor's colours and what goes with them are the toolkit's own.
class TestBlockFormatter : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void makesRoomForWhatIsComposed_data();
    void makesRoomForWhatIsComposed();
    void theColoursGoWithTheHighlighter_data();
    void theColoursGoWithTheHighlighter();
    void aDisconnectedHighlighterColoursNothingMore();
    void aHighlighterMayComeBack();
    void aHostsOwnSlotStaysConnected();
    void asksToBePaintedLikeTheToolkit_data();
    void asksToBePaintedLikeTheToolkit();
};

void TestBlockFormatter::makesRoomForWhatIsComposed_data()
{
    QTest::addColumn<int>("position");
    for (int position = 0; position <= 11; ++position)
        QTest::newRow(QByteArray("at " + QByteArray::number(position)).constData()) << position;
}

void TestBlockFormatter::makesRoomForWhatIsComposed()
{
    QFETCH(int, position);
    Pair pair;
    pair.setText("G01 X1 F100\nM03 S1200");
    Q_FOREACH (QPlainTextEdit *view, pair.both()) {
        QTextCursor cursor = view->textCursor();
        cursor.setPosition(position);
        view->setTextCursor(cursor);
        compose(view, QLatin1String("ab"));
    }
    QVERIFY(colours(&pair.plain).first().contains(QLatin1String("underlined")));
    QCOMPARE(colours(&pair.editor), colours(&pair.plain));
    // The block changes while the text is being composed, before it and behind it.
    for (int at = 0; at < 2; ++at) {
        Q_FOREACH (QPlainTextEdit *view, pair.both()) {
            QTextCursor cursor(view->document());
            if (at == 1)
                cursor.movePosition(QTextCursor::EndOfBlock);
            cursor.insertText(QLatin1String("T1"));
        }
        QCOMPARE(colours(&pair.editor), colours(&pair.plain));
    }
    Q_FOREACH (QPlainTextEdit *view, pair.both())
        compose(view, QString());
    QCOMPARE(colours(&pair.editor), colours(&pair.plain));
}

void TestBlockFormatter::theColoursGoWithTheHighlighter_data()
{
    QTest::addColumn<bool>("isDeleted");
    QTest::newRow("deleted") << true;
    QTest::newRow("taken off the document") << false;
}

void TestBlockFormatter::theColoursGoWithTheHighlighter()
{
    QFETCH(bool, isDeleted);
    Pair pair;
    pair.setText("G01 X1\nplain\nM03");
    Q_FOREACH (QPlainTextEdit *view, pair.both()) {
        QVERIFY(isColoured(view));
        if (isDeleted)
            delete highlighterOf(view);
        else
            highlighterOf(view)->setDocument(nullptr);
        QVERIFY(!isColoured(view));
        view->appendPlainText(QLatin1String("G02 Y2"));
        QVERIFY(!isColoured(view));
    }
}

void TestBlockFormatter::aDisconnectedHighlighterColoursNothingMore()
{
    Pair pair;
    pair.setText("G01 X1\nM03");
    Q_FOREACH (QPlainTextEdit *view, pair.both()) {
        QVERIFY(QObject::disconnect(view->document(), nullptr, highlighterOf(view), nullptr));
        view->appendPlainText(QLatin1String("G02 Y2"));
        QTextCursor(view->document()).insertText(QLatin1String("T1 "));
    }
    QCOMPARE(colours(&pair.plain).last(), QString());
    QCOMPARE(colours(&pair.editor), colours(&pair.plain));
    // Asked for, the whole document has its colours all the same.
    pair.editor.addErrorCode(0, QLatin1String("x"));
    pair.editor.highlightErrorCode();
    pair.plain.rehighlight();
    QVERIFY(!colours(&pair.plain).last().isEmpty());
    QCOMPARE(colours(&pair.editor), colours(&pair.plain));
}

void TestBlockFormatter::aHighlighterMayComeBack()
{
    Pair pair;
    pair.setText("G01 X1\nM03");
    Q_FOREACH (QPlainTextEdit *view, pair.both()) {
        QSyntaxHighlighter *const highlighter = highlighterOf(view);
        QTextDocument elsewhere(QLatin1String("G04"));
        highlighter->setDocument(&elsewhere);
        QVERIFY(!isColoured(view));
        view->appendPlainText(QLatin1String("G02 Y2"));
        QVERIFY(!isColoured(view));
        highlighter->setDocument(view->document());
        QTRY_VERIFY(isColoured(view));
        view->appendPlainText(QLatin1String("S100"));
        QTextCursor(view->document()).insertText(QLatin1String("T1 "));
    }
    QCOMPARE(colours(&pair.editor), colours(&pair.plain));
}

void TestBlockFormatter::aHostsOwnSlotStaysConnected()
{
    Pair pair;
    Q_FOREACH (QPlainTextEdit *view, pair.both()) {
        QSyntaxHighlighter *const highlighter = highlighterOf(view);
        QVERIFY(connect(view->document(), SIGNAL(contentsChange(int, int, int)), highlighter,
                        SLOT(rehighlight())));
        view->setPlainText(QLatin1String("G01"));
        view->setPlainText(QLatin1String("G01"));
        QVERIFY(QObject::disconnect(view->document(), SIGNAL(contentsChange(int, int, int)),
                                    highlighter, SLOT(rehighlight())));
        view->setPlainText(QLatin1String("M03"));
    }
    QCOMPARE(colours(&pair.editor), colours(&pair.plain));
    QVERIFY(isColoured(&pair.editor));
}

void TestBlockFormatter::asksToBePaintedLikeTheToolkit_data()
{
    QTest::addColumn<unsigned>("seed");
    for (unsigned seed = 1; seed <= 3; ++seed)
        QTest::newRow(QByteArray("seed " + QByteArray::number(seed)).constData()) << seed;
}

void TestBlockFormatter::asksToBePaintedLikeTheToolkit()
{
    QFETCH(unsigned, seed);
    static const char *const texts[] = {" ",      "1",    "x",     "G01 ",       "X1.5",
                                        "\n",     "\n\n", "M03\n", "\nplain",    ";",
                                        "plain ", "-",    ".",     "T1 T2\nF1\n"};
    std::mt19937 random(seed);
    Pair pair;
    pair.setText("G01 X1 Y2\n\nplain words\nM03 S1200 (fast)\nG02 ,5\nT1");
    RequestLog editorLog(&pair.editor);
    RequestLog plainLog(&pair.plain);
    Q_FOREACH (QPlainTextEdit *view, pair.both()) {
        view->show();
        QVERIFY(TestCompat::waitForExposed(view));
        QApplication::processEvents();
    }
    editorLog.entries.clear();
    plainLog.entries.clear();
    const int steps = scaled(1000);
    for (int k = 0; k < steps; ++k) {
        const int size = pair.plain.document()->characterCount() - 1;
        const int position = int(random() % unsigned(size + 1));
        const int removed = random() % 3 == 0 ? int(random() % 4) : 0;
        const bool isUndo = random() % 8 == 0;
        const QString text = QLatin1String(texts[random() % (sizeof texts / sizeof *texts)]);
        Q_FOREACH (QPlainTextEdit *view, pair.both()) {
            if (isUndo) {
                view->undo();
                continue;
            }
            QTextCursor cursor(view->document());
            cursor.setPosition(position);
            cursor.setPosition(qMin(position + removed, size), QTextCursor::KeepAnchor);
            cursor.insertText(size > 1500 ? QString() : text);
        }
        QCOMPARE(pair.editor.toPlainText(), pair.plain.toPlainText());
        QCOMPARE(colours(&pair.editor), colours(&pair.plain));
        QVERIFY2(editorLog.entries == plainLog.entries,
                 qPrintable(QString::fromLatin1("step %1, \"%2\" at %3, %4 away\n%5\nfor\n%6")
                                .arg(k)
                                .arg(text)
                                .arg(position)
                                .arg(removed)
                                .arg(editorLog.entries.join(QLatin1String("\n")),
                                     plainLog.entries.join(QLatin1String("\n")))));
        editorLog.entries.clear();
        plainLog.entries.clear();
    }
}

FILARIX_TEST_MAIN(TestBlockFormatter)
#include "tst_blockformatter.moc"
