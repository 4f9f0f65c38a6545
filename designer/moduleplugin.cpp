// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "moduleplugin.h"

#include "checkbox.h"
#include "combobox.h"
#include "dataeditor.h"
#include "doublespinbox.h"
#include "formwidgets.h"
#include "groupbox.h"
#include "lineedit.h"
#include "pushbutton.h"
#include "scrollbar.h"
#include "spinbox.h"
#include "tlistwidget.h"
#include "wgcodeediter.h"
#include "widgetplugin.h"

namespace {

typedef WidgetInfo::Purpose Purpose;

template<typename Widget>
QWidget *make(QWidget *parent, Purpose)
{
    return new Widget(parent);
}

QWidget *makeListWidget(QWidget *parent, Purpose purpose)
{
    if (purpose == WidgetInfo::ForDesign)
        return new DesignedListWidget(parent);
    return new FormListWidget(parent);
}

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char('|'));
}

QWidget *makeDataEditor(QWidget *parent, Purpose purpose)
{
    if (purpose == WidgetInfo::ForDesign)
        return new DataEditor(parent, words("1||Tension|6.0"));
    return new DataEditor(parent);
}

QWidget *makeTListWidget(QWidget *parent, Purpose purpose)
{
    if (purpose == WidgetInfo::ForUse)
        return new TListWidget(parent);
    TListWidget *list = new TListWidget(parent, words("Title|Title|Instr.|Point||Speed||Z||T|"));
    const char *const rows[] = {"MJ|1|Move|P|1|V|4|Z|0|T|0", "ML|2|Wind|P|3|V|2|Z|0|T|0",
                                "ML|3|Wind|P|4|V|2|Z|0|T|0"};
    for (const char *row : rows) {
        QStringList strings = words(row);
        list->addWidget(strings, false, false);
    }
    list->home();
    list->setCurIndex(1, true);
    return list;
}

// clang-format off
const WidgetInfo widgets[] = {
    {"PushButton", "pushbutton.h",
     "A push button that Return clicks",
     "A push button for panels with few keys: Return and Enter click it as Space does, the arrow keys leave the focus where it is, and the focus frame shows after a touch too.",
     false, 120, 48, "<property name=\"text\"><string>PushButton</string></property>", make<PushButton>},
    {"CheckBox", "checkbox.h",
     "A check box that Return toggles",
     "A check box for panels with few keys: Return and Enter toggle it as Space does.",
     false, 120, 40, "<property name=\"text\"><string>CheckBox</string></property>", make<CheckBox>},
    {"ComboBox", "combobox.h",
     "A combo box that Return opens",
     "A combo box for panels with few keys: Return and Enter open its list, and the focus comes back when it closes. Made editable here it keeps the toolkit's own field; a LineEdit as its field takes the second argument of the constructor.",
     false, 160, 40, "", make<ComboBox>},
    {"SpinBox", "spinbox.h",
     "A spin box for whole numbers whose every step is a finished edit",
     "A spin box for whole numbers: editingFinished() comes with each step.",
     false, 120, 40, "", make<SpinBox>},
    {"DoubleSpinBox", "doublespinbox.h",
     "A spin box for decimal numbers whose every step is a finished edit",
     "A spin box for decimal numbers: editingFinished() comes with each step.",
     false, 120, 40, "", make<DoubleSpinBox>},
    {"LineEdit", "lineedit.h",
     "The line edit of the control kit",
     "A line edit, the field of the kit's other controls.",
     false, 160, 40, "", make<LineEdit>},
    {"GroupBox", "groupbox.h",
     "A group box that Return toggles",
     "A group box for panels with few keys: Return and Enter toggle a checkable one as Space does.",
     true, 200, 160, "<property name=\"title\"><string>GroupBox</string></property>", make<GroupBox>},
    {"ScrollBar", "scrollbar.h",
     "A scroll bar for a gloved thumb",
     "A scroll bar of 30 pixels with step buttons of 30 by 30. It is made as a vertical one.",
     false, 30, 160, "", make<ScrollBar>},
    {"ListWidget", "listwidget.h",
     "A plain vertical stack of widgets",
     "A stack whose fixed height is the sum of its rows' heights. The program fills it by addWidget(); put it into a scroll area.",
     false, 240, 120, "", makeListWidget},
    {"TListWidget", "tlistwidget.h",
     "A paged list of taught instructions or of table rows",
     "A program of any length, page by page. The rows shown here are an example: the program fills the list by addWidget() and sizes it by setSize(). A list with a title row is made in code.",
     false, 480, 160, "", makeTListWidget},
    {"DataEditor", "dataeditor.h",
     "One row of a table",
     "A number, a name and a text to edit, for a table of 480 by 800 pixels. Rows of another shape are made in code.",
     false, 480, 34, "", makeDataEditor},
    {"WGCodeEditer", "wgcodeediter.h",
     "The text pane for a G-code program",
     "Line numbers, a marked current line, syntax colours, and commands that work on whole lines.",
     false, 400, 240, "", make<WGCodeEditer>},
};
// clang-format on

} // namespace

FilarixModulePlugin::FilarixModulePlugin(QObject *parent) : QObject(parent)
{
    for (const WidgetInfo &info : widgets)
        m_widgets.append(new WidgetPlugin(&info, this));
}
