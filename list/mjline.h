// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FILARIX_MJLINE_H
#define FILARIX_MJLINE_H

#include "filarixglobal.h"

#include <QSize>
#include <QStringList>
#include <QWidget>

class DataEditor;
class QVBoxLayout;

/// The widget of one row of a taught program.
///
/// Closed, it shows one line: number, instruction, Jpos, V, Z and T. A tap on the instruction opens
/// it, and adds nine detail values, a free text and an arrow to close it by. A row whose name is
/// "Oth", and a title row, shows its embedded DataEditor in place of the first line.
///
/// Rows come without their kind, as 30 strings. First come number and name, then a key and a value
/// each of Jpos, V, Z and T. "Att" follows, the free text with "_" for each blank, and a key and a
/// value each of the nine details. Fields show key ":" value as one text. So a ":" within a key or
/// a value shifts what follows when the row is read back. Each signal carries the row's number, or
/// 0 for a text that is no number.
///
///     QStringList row = program.at(i);
///     MJLine *line = new MJLine(row, list->size(), list);
///     connect(line, SIGNAL(sg_content_change(int)), this, SLOT(store(int)));
class FILARIX_EXPORT MJLine : public QWidget
{
    Q_OBJECT

public:
    /// Builds the row from \a list, and changes the list. With more than 9 strings an empty one is
    /// inserted at position 1, and empty ones are appended up to 35. A list of more than 9 strings
    /// whose first is "Title" makes a title row, and loses that word. \a size is the size in pixels
    /// of the whole list, from which all measures follow.
    MJLine(QStringList &list, QSize size, QWidget *parent);
    ~MJLine() override;

    /// Builds one field as a child of the row: \a index looks up its class and style sheet, an
    /// index outside the table gives an empty area. \a widthFactor is the number of such fields
    /// that would fill the list. The height factor is ignored: layouts give the height.
    QWidget *createWidget(int index, QString text, float widthFactor, float heightFactor);
    /// Builds the detail area, at the first call only.
    void createLine2();

    /// Opens a closed row and closes an open one. Emits nothing: whoever calls it lays the list
    /// out.
    void on_expand();
    /// Whether the detail area is open.
    bool isExpanded() const;

    /// Writes a field by its class; no field emits a signal. Any other widget is left alone.
    void setText(QWidget *field, QString text);
    /// Reads a field by its class. Empty for any other widget.
    QString getText(QWidget *field);

    /// Sets the row's number, by which it reports itself.
    void setNum(QString text);
    /// The row's number, as the text that it shows.
    QString getNum();
    /// The name of the instruction, without its arrow; all that precedes a "(".
    QString getIns();

    /// The three values of the V group, details 6 to 8.
    QStringList getV();
    /// The six values of the Jpos group, details 0 to 5.
    QStringList getJpos();
    /// Writes the V group from at least 3 strings, and the V index from a fourth if there are
    /// exactly 4. A shorter list changes nothing. Emits nothing.
    void setV(QStringList &list);
    /// Writes the Jpos group from at least 6 strings, and the Jpos index from a seventh if there
    /// are exactly 7. A shorter list changes nothing. Emits nothing.
    void setJpos(QStringList &list);

    /// Refills the row, which stays open or closed, and emits nothing. \a list is changed: with
    /// more than 19 strings an empty one is inserted at position 1, and empty ones are appended up
    /// to 35. The embedded editor is not touched.
    void setLineList(QStringList &list);
    /// The row as 30 strings. From then on the free text holds "_" for each blank, and shows it
    /// when the row is opened, until the row is refilled.
    QStringList GetLineList();

    /// The line that a list shows or hides by the kind of row; owned by the row, never null.
    QWidget *firstLine() const;
    /// The embedded table row; owned by the row, never null.
    DataEditor *dataEditor() const;

Q_SIGNALS:
    /// The row was tapped.
    void clicked(int);
    /// A tap opened (true) or closed the row; it has its new height.
    void sizeChanged(bool);
    /// The Jpos label was tapped.
    void sg_jpos_update(int);
    /// The V label was tapped.
    void sg_v_update(int);
    /// The operator changed a value; GetLineList() gives it.
    void sg_content_change(int);

public Q_SLOTS:
    /// A tap on the instruction: opens or closes the row, then emits sizeChanged() and clicked().
    void on_press_down();
    /// A tap on the arrow of an open row: the same.
    void on_press_up();
    /// A tap on the Jpos label: emits sg_jpos_update().
    void on_jpos_update();
    /// A tap on the V label: emits sg_v_update().
    void on_v_update();
    /// A tap on the Z field: emits clicked(), unless the embedded editor shows, which reports its
    /// own taps.
    void on_z_update();
    /// The same for the T field.
    void on_t_update();
    /// The same for the free text.
    void on_res_update();
    /// The same for a detail field.
    void on_lineEdit_clicked();
    /// A detail value was edited: the Jpos index is emptied, as the row no longer stands for that
    /// entry of the host's table.
    void on_jpos_change(const QString &newText);
    /// The same with the V index.
    void on_v_change(const QString &);
    /// Z, T or the free text was edited.
    void on_vars1_change(const QString &);

protected:
    /// A tap beside the fields: emits clicked(), unless the embedded editor shows.
    void mousePressEvent(QMouseEvent *event) override;

private:
    struct WidgetType
    {
        int type; // RowField::Type
        const char *styleSheet;
    };
    static const int widgetTypeCount = 34;
    static const int detailFields = 9;
    static const WidgetType m_widgetType[widgetTypeCount];

    void createFirstLine(const QStringList &row);
    void createDetailArea();
    void createDataEditor(bool isTitle, QStringList &content, bool isShown);
    void connectFirstLine();
    void readTail(const QStringList &row);
    void showSuffix();
    QString detailText(int pair) const;
    void setDetail(int pair, const QString &value);
    void setGroup(const QStringList &values, int firstPair, int pairs, QWidget *label);
    QStringList groupValues(int firstPair, int pairs) const;
    void takeDetail(QObject *field, const QString &text);
    void dropIndex(QWidget *label);
    void reportTap();
    int number();

    QSize m_size;
    bool m_expanded;
    QWidget *m_numLabel;
    QWidget *m_insLabel;
    QWidget *m_jposLabel;
    QWidget *m_vLabel;
    QWidget *m_zEdit;
    QWidget *m_tEdit;
    QWidget *m_resEdit; // null until the row is first opened
    QString m_resText;
    QWidget *m_details[detailFields]; // null until the row is first opened
    QVBoxLayout *m_rowLayout;
    QStringList m_detailList; // the truth for the details: keys and values by turns
    QWidget *m_collapseLabel; // null until the row is first opened
    QWidget *m_firstLine;
    QWidget *m_detailArea;
    DataEditor *m_dataEditor;
};

#endif // FILARIX_MJLINE_H
