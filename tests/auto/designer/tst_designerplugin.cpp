// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Holds the Designer plugin.

#include "filarixtest.h"

#include <QBuffer>
#include <QIcon>
#include <QLineEdit>
#include <QPluginLoader>
#include <QScopedPointer>
#include <QTimer>
#include <QXmlStreamReader>
#include <QtDesigner/QDesignerComponents>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerIntegration>
#include <QtDesigner/QDesignerPropertyEditorInterface>
#include <QtDesigner/QDesignerWidgetDataBaseInterface>
#include <QtDesigner/QFormBuilder>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

namespace {

const struct
{
    const char *name;
    const char *base;
    const char *header;
    const char *objectName;
    bool isContainer;
} widgets[] = {
    {"PushButton", "QPushButton", "pushbutton.h", "pushButton", false},
    {"CheckBox", "QCheckBox", "checkbox.h", "checkBox", false},
    {"ComboBox", "QComboBox", "combobox.h", "comboBox", false},
    {"SpinBox", "QSpinBox", "spinbox.h", "spinBox", false},
    {"DoubleSpinBox", "QDoubleSpinBox", "doublespinbox.h", "doubleSpinBox", false},
    {"LineEdit", "QLineEdit", "lineedit.h", "lineEdit", false},
    {"GroupBox", "QGroupBox", "groupbox.h", "groupBox", true},
    {"ScrollBar", "QScrollBar", "scrollbar.h", "scrollBar", false},
    {"ListWidget", "QWidget", "listwidget.h", "listWidget", false},
    {"TListWidget", "QWidget", "tlistwidget.h", "tListWidget", false},
    {"DataEditor", "QWidget", "dataeditor.h", "dataEditor", false},
    {"WGCodeEditer", "QPlainTextEdit", "wgcodeediter.h", "wgCodeEditer", false},
};

QDesignerCustomWidgetCollectionInterface *collection()
{
    static QPluginLoader loader(QLatin1String(FILARIX_PLUGIN));
    return qobject_cast<QDesignerCustomWidgetCollectionInterface *>(loader.instance());
}

QDesignerCustomWidgetInterface *customWidget(const QString &name)
{
    if (!collection())
        return nullptr;
    Q_FOREACH (QDesignerCustomWidgetInterface *widget, collection()->customWidgets()) {
        if (widget->name() == name)
            return widget;
    }
    return nullptr;
}

/// Class and name of each widget that a form names, in order.
QStringList widgetsOf(const QByteArray &form)
{
    QStringList found;
    QXmlStreamReader xml(form);
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement
            && xml.name() == QLatin1String("widget"))
            found << xml.attributes().value(QLatin1String("class")).toString() + QLatin1Char(' ')
                         + xml.attributes().value(QLatin1String("name")).toString();
    }
    return found;
}

/// What one property of a named widget says: all texts in it, without blanks.
QString propertyOf(const QByteArray &form, const QString &object, const QString &property)
{
    QXmlStreamReader xml(form);
    QString current;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("widget"))
            current = xml.attributes().value(QLatin1String("name")).toString();
        else if (xml.name() == QLatin1String("property") && current == object
                 && xml.attributes().value(QLatin1String("name")) == property)
            return xml.readElementText(QXmlStreamReader::IncludeChildElements)
                .remove(QRegExp(QLatin1String("\\s")));
    }
    return QString();
}

/// Saves as Designer does: what a custom widget has in itself is not the form's.
/// It keeps no items of a combo box; Designer does.
class FormBuilder : public QFormBuilder
{
public:
    FormBuilder() { setPluginPath(QStringList(QLatin1String(FILARIX_PLUGINS "/designer"))); }

protected:
    using QFormBuilder::createDom;
    DomWidget *createDom(QWidget *widget, DomWidget *parent, bool recursive) override
    {
        const QDesignerCustomWidgetInterface *custom =
            customWidget(QLatin1String(widget->metaObject()->className()));
        const bool isWhole = custom && !custom->isContainer();
        return QFormBuilder::createDom(widget, parent, recursive && !isWhole);
    }
};

/// Qt Designer without its windows. The caller owns it, and its property editor.
QDesignerFormEditorInterface *makeDesigner()
{
    QDesignerComponents::initializeResources();
    QDesignerFormEditorInterface *core = QDesignerComponents::createFormEditor(nullptr);
    core->setPropertyEditor(QDesignerComponents::createPropertyEditor(core, nullptr));
    core->setIntegration(new QDesignerIntegration(core, core));
    QDesignerComponents::initializePlugins(core);
    return core;
}

/// The form of which this machine has the plugin only.
QByteArray sampleForm()
{
    return FilarixTest::readFile(QLatin1String(FILARIX_FORM));
}

} // namespace

class TestDesignerPlugin : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void needsNeitherLibraryNorDeviceLibrary();
    void offersTheWidgets();
    void describesAWidget_data();
    void describesAWidget();
    void makesAWidget_data() { describesAWidget_data(); }
    void makesAWidget();
    void opensNoKeypad();
    void aFormIsBuiltSavedAndReloaded();
    void designerSavesWhatItLoads();
    void designerShowsExamples();
};

void TestDesignerPlugin::initTestCase()
{
    // No other plugin of the machine.
    QCoreApplication::setLibraryPaths(QStringList(QLatin1String(FILARIX_PLUGINS)));
}

void TestDesignerPlugin::needsNeitherLibraryNorDeviceLibrary()
{
    QVERIFY(collection());
    const QByteArray loaded = readFile(QLatin1String("/proc/self/maps"));
    QVERIFY(loaded.contains("libfilarixmoduledesigner"));
    QVERIFY(!loaded.contains("libFilarixModule"));
    QVERIFY(!loaded.contains("libHMIDevice"));
}

void TestDesignerPlugin::offersTheWidgets()
{
    QStringList expected;
    for (const auto &widget : widgets)
        expected << QLatin1String(widget.name);
    QStringList offered;
    Q_FOREACH (const QDesignerCustomWidgetInterface *widget, collection()->customWidgets())
        offered << widget->name();
    QCOMPARE(offered, expected);
}

void TestDesignerPlugin::describesAWidget_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < int(sizeof widgets / sizeof widgets[0]); ++i)
        QTest::newRow(widgets[i].name) << i;
}

void TestDesignerPlugin::describesAWidget()
{
    QFETCH(int, index);
    const auto &expected = widgets[index];
    const QDesignerCustomWidgetInterface *widget = customWidget(QLatin1String(expected.name));
    QVERIFY(widget);
    QCOMPARE(widget->group(), QString("Filarix Module"));
    QCOMPARE(widget->includeFile(), QString(expected.header));
    QCOMPARE(widget->isContainer(), expected.isContainer);
    QVERIFY(!widget->toolTip().isEmpty());
    QVERIFY(!widget->whatsThis().isEmpty());
    const QImage icon = widget->icon().pixmap(22, 22).toImage();
    QVERIFY(!icon.isNull());
    QVERIFY(icon != QImage(icon.size(), icon.format()));
    QCOMPARE(widgetsOf(widget->domXml().toUtf8()),
             QStringList(QLatin1String(expected.name) + QLatin1Char(' ')
                         + QLatin1String(expected.objectName)));
}

void TestDesignerPlugin::makesAWidget()
{
    QFETCH(int, index);
    QDesignerCustomWidgetInterface *factory = customWidget(QLatin1String(widgets[index].name));
    QWidget parent;
    QWidget *child = factory->createWidget(&parent);
    QCOMPARE(child->parentWidget(), &parent);
    QCOMPARE(child->metaObject()->className(), widgets[index].name);
    QVERIFY(child->inherits(widgets[index].base));
    const QScopedPointer<QWidget> single(factory->createWidget(nullptr));
    QVERIFY(!single->parentWidget());
    single->grab();
}

void TestDesignerPlugin::opensNoKeypad()
{
    const QScopedPointer<QWidget> row(
        customWidget(QLatin1String("DataEditor"))->createWidget(nullptr));
    row->show();
    const QList<QLineEdit *> fields = row->findChildren<QLineEdit *>();
    QCOMPARE(fields.size(), 1);
    // Where a keypad opened, the click would return with its end only.
    QWidget *opened = nullptr;
    QTimer::singleShot(0, this, [&] {
        opened = QApplication::activeModalWidget();
        if (opened)
            opened->close();
    });
    QTest::mouseClick(fields.first(), Qt::LeftButton);
    QApplication::processEvents();
    QVERIFY(!opened);
    QCOMPARE(fields.first()->text(), QString());
}

void TestDesignerPlugin::aFormIsBuiltSavedAndReloaded()
{
    // What the builder says of the toolkit's own widgets, too.
    StrictMessages::expect(QLatin1String("Designer: Flags property are not supported yet."));
    FormBuilder builder;
    QByteArray first = sampleForm();
    QBuffer source(&first);
    QVERIFY(source.open(QIODevice::ReadOnly));
    const QScopedPointer<QWidget> form(builder.load(&source, nullptr));
    QVERIFY2(form, qPrintable(builder.errorString()));

    QByteArray saved;
    QBuffer target(&saved);
    QVERIFY(target.open(QIODevice::ReadWrite));
    builder.save(&target, form.data());
    target.seek(0);
    const QScopedPointer<QWidget> reloaded(builder.load(&target, nullptr));
    QVERIFY2(reloaded, qPrintable(builder.errorString()));

    for (const auto &widget : widgets) {
        const QString name = QLatin1String(widget.objectName);
        const QWidget *before = form->findChild<QWidget *>(name);
        const QWidget *after = reloaded->findChild<QWidget *>(name);
        QVERIFY2(before && after, widget.name);
        QCOMPARE(before->metaObject()->className(), widget.name);
        QCOMPARE(after->metaObject()->className(), widget.name);
        QCOMPARE(after->parentWidget()->objectName(), before->parentWidget()->objectName());
        for (const char *property : {"text", "title", "checked", "value", "plainText", "toolTip",
                                     "orientation", "maximum"})
            QCOMPARE(after->property(property), before->property(property));
    }
    QCOMPARE(reloaded->findChild<QWidget *>(QLatin1String("pushButton"))->property("text"),
             QVariant(QString("Start")));
    QCOMPARE(reloaded->findChild<QWidget *>(QLatin1String("spinBox"))->property("value"),
             QVariant(12));
}

/// Qt Designer itself, without its windows.
void TestDesignerPlugin::designerSavesWhatItLoads()
{
    const QScopedPointer<QDesignerFormEditorInterface> core(makeDesigner());
    const QScopedPointer<QObject> propertyEditor(core->propertyEditor());
    for (const auto &widget : widgets) {
        const int index = core->widgetDataBase()->indexOfClassName(QLatin1String(widget.name));
        QVERIFY2(index >= 0, widget.name);
        QVERIFY2(core->widgetDataBase()->item(index)->isCustom(), widget.name);
    }
    QDesignerFormWindowInterface *window = core->formWindowManager()->createFormWindow();
    const QByteArray form = sampleForm();
    QString error;
    QByteArray bytes = form;
    QBuffer source(&bytes);
    QVERIFY(source.open(QIODevice::ReadOnly));
    QVERIFY2(window->setContents(&source, &error), qPrintable(error));
    const QByteArray saved = window->contents().toUtf8();
    QCOMPARE(widgetsOf(saved), widgetsOf(form));
    QCOMPARE(saved.count("<item>"), form.count("<item>"));
    for (const auto &widget : widgets) {
        const QString name = QLatin1String(widget.objectName);
        for (const char *property : {"text", "title", "checked", "value", "plainText", "toolTip",
                                     "orientation", "maximum"})
            QCOMPARE(propertyOf(saved, name, QLatin1String(property)),
                     propertyOf(form, name, QLatin1String(property)));
        QVERIFY2(saved.contains(QByteArray("<header>") + widget.header), widget.name);
        // A list is as high as the rows in it.
        if (name != QLatin1String("tListWidget"))
            QCOMPARE(propertyOf(saved, name, QLatin1String("geometry")),
                     propertyOf(form, name, QLatin1String("geometry")));
    }
    delete window;
}

void TestDesignerPlugin::designerShowsExamples()
{
    const QScopedPointer<QDesignerFormEditorInterface> core(makeDesigner());
    const QScopedPointer<QObject> propertyEditor(core->propertyEditor());
    QDesignerCustomWidgetInterface *factory = customWidget(QLatin1String("TListWidget"));
    QVERIFY(factory->isInitialized());
    const QScopedPointer<QWidget> list(factory->createWidget(nullptr));
    QVERIFY(list->findChildren<QWidget *>().size() > 20);
    const QScopedPointer<QWidget> stack(
        customWidget(QLatin1String("ListWidget"))->createWidget(nullptr));
    stack->resize(240, 120);
    QCOMPARE(stack->height(), 120);
    QVERIFY(!stack->grab().toImage().isNull());
}

FILARIX_TEST_MAIN(TestDesignerPlugin)

#include "tst_designerplugin.moc"
