// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "guards/finddialogfitter.h"
#include "wgcodeediter.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
#include <QWindow>
#endif

class TestFindDialogFitter : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsDoneWithoutADialog();
    void dialogFollowsTheLanguage();
    void dialogStandsInTheCornerOfItsHost();
    void dialogBelongsToItsHostBeforeItIsShown();
    void dialogComesUpWithItsHost();
    void dialogIsNarrowWhereItWouldTakeHalf();
    void fieldsHaveRoomOnASmallHost_data();
    void fieldsHaveRoomOnASmallHost();
    void stripOfTheHostStaysAboveTheFields();
    void hiddenDialogStaysWhereItIs();
    void dialogStepsAside_data();
    void dialogStepsAside();
    void dialogWithoutAnotherPlaceStays();

private:
    static QWidget *dialog();
    static QStringList texts();
};

QWidget *TestFindDialogFitter::dialog()
{
    const QWidgetList topLevels = QApplication::topLevelWidgets();
    for (QWidget *widget : topLevels) {
        if (widget->inherits("WFindDialog"))
            return widget;
    }
    return nullptr;
}

QStringList TestFindDialogFitter::texts()
{
    QStringList texts(dialog()->windowTitle());
    const QList<QLabel *> labels = dialog()->findChildren<QLabel *>();
    for (const QLabel *label : labels)
        texts.append(label->text());
    const QList<QAbstractButton *> buttons = dialog()->findChildren<QAbstractButton *>();
    for (const QAbstractButton *button : buttons)
        texts.append(button->text());
    return texts;
}

void TestFindDialogFitter::nothingIsDoneWithoutADialog()
{
    QWidget host;
    FindDialogFitter::retranslate();
    FindDialogFitter::place(&host);
    QVERIFY(!dialog());
}

// All of what the library writes there, and nothing in another place.
void TestFindDialogFitter::dialogFollowsTheLanguage()
{
    WGCodeEditer editor(nullptr);
    editor.findAndReplace();
    QVERIFY(dialog());
    const QStringList made = texts();
    QVERIFY(made.size() >= 8);
    QStringList marked;
    for (const QString &text : made)
        marked.append(text + '*');
    {
        const TestCompat::MarkingTranslator translator("WFindDialog");
        FindDialogFitter::retranslate();
        QCOMPARE(texts(), marked);
    }
    FindDialogFitter::retranslate();
    QCOMPARE(texts(), made);
}

void TestFindDialogFitter::dialogStandsInTheCornerOfItsHost()
{
    QWidget host;
    QVBoxLayout layout(&host);
    WGCodeEditer editor(nullptr);
    layout.addWidget(&editor);
    host.setGeometry(20, 20, 500, 400);
    host.show();
    QVERIFY(TestCompat::waitForExposed(&host));
    editor.findAndReplace();
    FindDialogFitter::place(&editor);
    QWidget *find = dialog();
    QVERIFY(find && find->isVisible());
    const QPoint corner = editor.mapToGlobal(QPoint(editor.width(), editor.height()));
    QTRY_COMPARE(find->pos() + QPoint(find->width(), find->height()), corner);
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    QCOMPARE(find->windowHandle()->transientParent(), host.windowHandle());
#endif
    find->hide();
}

#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
namespace {

/// What a window manager is told when the dialog comes up.
class ShowWitness : public QObject
{
public:
    ShowWitness() { qApp->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        // Of the native window: from here on the window manager knows it.
        QWindow *window = qobject_cast<QWindow *>(watched);
        if (window && event->type() == QEvent::Show)
            belongsTo = window->transientParent();
        return false;
    }

    QWindow *belongsTo = nullptr;
};

} // namespace
#endif

void TestFindDialogFitter::dialogBelongsToItsHostBeforeItIsShown()
{
    QWidget host;
    host.setGeometry(20, 20, 500, 400);
    host.show();
    QVERIFY(TestCompat::waitForExposed(&host));
    WGCodeEditer editor(nullptr);
    // The first time and any other.
    for (int i = 0; i < 2; ++i) {
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
        const ShowWitness witness;
#endif
        FindDialogFitter::show(&editor, &host);
        QVERIFY(dialog() && dialog()->isVisible());
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
        QCOMPARE(witness.belongsTo, host.windowHandle());
#endif
        dialog()->hide();
    }
}

// Where no window manager sees to it.
void TestFindDialogFitter::dialogComesUpWithItsHost()
{
    class Raises : public QObject
    {
    public:
        bool eventFilter(QObject *, QEvent *event) override
        {
            count += event->type() == QEvent::ZOrderChange;
            return false;
        }
        int count = 0;
    } raises;
    QWidget host;
    host.setGeometry(20, 20, 500, 400);
    WGCodeEditer editor(nullptr);
    FindDialogFitter::show(&editor, &host);
    FindDialogFitter::show(&editor, &host);
    dialog()->installEventFilter(&raises);
    QEvent activate(QEvent::WindowActivate);
    QCoreApplication::sendEvent(&host, &activate);
    QCOMPARE(raises.count, 1);
    dialog()->hide();
    QCoreApplication::sendEvent(&host, &activate);
    QCOMPARE(raises.count, 1);
}

void TestFindDialogFitter::dialogIsNarrowWhereItWouldTakeHalf()
{
    QWidget host;
    host.setGeometry(0, 0, 610, 250);
    WGCodeEditer editor(nullptr);
    editor.findAndReplace();
    dialog()->resize(400, dialog()->height());
    FindDialogFitter::place(&host);
    QCOMPARE(dialog()->width(), dialog()->minimumSizeHint().width());
    dialog()->hide();
}

void TestFindDialogFitter::fieldsHaveRoomOnASmallHost_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("leastField");
    QTest::newRow("lying") << QSize(480, 272) << 200;
    // The letters here are larger than a panel's.
    QTest::newRow("upright") << QSize(290, 480) << 140;
}

// At 72 and 50 pixels nobody saw what was looked for.
void TestFindDialogFitter::fieldsHaveRoomOnASmallHost()
{
    QFETCH(QSize, size);
    QFETCH(int, leastField);
    QWidget host;
    host.setGeometry(QRect(QPoint(), size));
    WGCodeEditer editor(nullptr);
    // The second time nothing moves.
    QRect before;
    for (int i = 0; i < 2; ++i) {
        FindDialogFitter::show(&editor, &host);
        QCoreApplication::processEvents();
        QCOMPARE(dialog()->width(), size.width());
        QVERIFY2(2 * dialog()->height() <= qMax(size.width(), size.height()),
                 qPrintable(QString::number(dialog()->height())));
        QCOMPARE(dialog()->findChildren<QLineEdit *>().size(), 2);
        Q_FOREACH (const QLineEdit *field, dialog()->findChildren<QLineEdit *>())
            QVERIFY2(field->width() >= leastField, qPrintable(QString::number(field->width())));
        Q_FOREACH (const QWidget *part, dialog()->findChildren<QWidget *>())
            QVERIFY(part->parentWidget()->rect().contains(part->geometry()));
        if (i > 0)
            QCOMPARE(dialog()->findChild<QLineEdit *>()->geometry(), before);
        before = dialog()->findChild<QLineEdit *>()->geometry();
        dialog()->hide();
    }
    // The library's keys do what they did.
    qRegisterMetaType<Qt::CaseSensitivity>("Qt::CaseSensitivity");
    QSignalSpy found(dialog(), SIGNAL(findNext(QString, Qt::CaseSensitivity)));
    editor.setPlainText("G00\nG01");
    dialog()->findChild<QLineEdit *>()->setText("G01");
    dialog()->findChildren<QAbstractButton *>().at(2)->click();
    QCOMPARE(found.size(), 1);
}

// A host's style may give each dialog a title and a key that closes it.
void TestFindDialogFitter::stripOfTheHostStaysAboveTheFields()
{
    QWidget host;
    host.setGeometry(0, 0, 290, 480);
    WGCodeEditer editor(nullptr);
    editor.findAndReplace();
    QVERIFY(dialog());
    QWidget *strip = new QWidget(dialog());
    QVBoxLayout *inStrip = new QVBoxLayout(strip);
    inStrip->addWidget(new QLabel(QLatin1String("Title")));
    inStrip->addWidget(new QPushButton(QLatin1String("X")));
    dialog()->layout()->setMenuBar(strip);
    strip->show();
    // As in German.
    QCheckBox *box = dialog()->findChild<QCheckBox *>();
    box->setText(QLatin1String("Small or large letters"));
    FindDialogFitter::place(&host);
    QCoreApplication::processEvents();
    QCOMPARE(dialog()->width(), 290);
    QVERIFY2(box->width() >= box->sizeHint().width(), qPrintable(QString::number(box->width())));
    QCOMPARE(strip->geometry().topLeft(), QPoint(0, 0));
    QCOMPARE(strip->width(), 290);
    Q_FOREACH (const QWidget *field, dialog()->findChildren<QLineEdit *>()) {
        QVERIFY2(field->width() >= 140, qPrintable(QString::number(field->width())));
        QVERIFY(field->y() >= strip->height());
    }
    Q_FOREACH (const QWidget *part, dialog()->findChildren<QWidget *>())
        QVERIFY(part->parentWidget()->rect().contains(part->geometry()));
    // Its texts are the host's.
    const TestCompat::MarkingTranslator translator("WFindDialog");
    FindDialogFitter::retranslate();
    QCOMPARE(strip->findChild<QLabel *>()->text(), QString("Title"));
    QCOMPARE(strip->findChild<QPushButton *>()->text(), QString("X"));
}

void TestFindDialogFitter::dialogStepsAside_data()
{
    QTest::addColumn<QPoint>("spot");
    QTest::addColumn<bool>("isRight");
    QTest::addColumn<bool>("isFoot");
    QTest::newRow("not covered") << QPoint(10, 10) << true << true;
    QTest::newRow("right foot") << QPoint(790, 590) << false << true;
}

void TestFindDialogFitter::dialogStepsAside()
{
    QFETCH(QPoint, spot);
    QFETCH(bool, isRight);
    QFETCH(bool, isFoot);
    QWidget host;
    host.setGeometry(0, 0, 800, 600);
    WGCodeEditer editor(nullptr);
    FindDialogFitter::show(&editor, &host);
    const QRect area(host.mapToGlobal(QPoint()), host.size());
    FindDialogFitter::uncover(QRect(area.topLeft() + spot, QSize(5, 5)), area);
    QTRY_COMPARE(dialog()->x(), isRight ? area.right() + 1 - dialog()->width() : area.x());
    QTRY_COMPARE(dialog()->y(), isFoot ? area.bottom() + 1 - dialog()->height() : area.y());
    dialog()->hide();
}

void TestFindDialogFitter::dialogWithoutAnotherPlaceStays()
{
    QWidget host;
    host.setGeometry(0, 0, 800, 600);
    WGCodeEditer editor(nullptr);
    FindDialogFitter::show(&editor, &host);
    const QPoint before = dialog()->pos();
    const QRect area(host.mapToGlobal(QPoint()), host.size());
    FindDialogFitter::uncover(area, area);
    QCOMPARE(dialog()->pos(), before);
    dialog()->hide();
}

void TestFindDialogFitter::hiddenDialogStaysWhereItIs()
{
    WGCodeEditer editor(nullptr);
    editor.findAndReplace();
    dialog()->hide();
    const QPoint before = dialog()->pos();
    QWidget host;
    host.setGeometry(0, 0, 50, 50);
    FindDialogFitter::place(&host);
    QCOMPARE(dialog()->pos(), before);
    QVERIFY(!dialog()->isVisible());
}

FILARIX_TEST_MAIN(TestFindDialogFitter)
#include "tst_finddialogfitter.moc"
