// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// A list of taught instructions: filled at once, paged by two buttons, read back at the end.

#include "filarixrows.h"
#include "pushbutton.h"
#include "tlistwidget.h"

#include <QApplication>
#include <QScrollArea>
#include <QTextStream>
#include <QVBoxLayout>

class ListScreen : public QWidget
{
    Q_OBJECT

public:
    ListScreen()
    {
        QStringList title = FilarixRows::titleRow(tr("Instr."), tr("Point"), tr("Speed"), "Z", "T");
        m_list = new TListWidget(title, this);
        for (int i = 0; i < 200; ++i)
            append(i);
        QStringList none;
        m_list->addWidget(none, true, true); // drawn once, after the last row
        m_list->home();
        m_list->setCurIndex(1, true);

        QScrollArea *area = new QScrollArea(this);
        area->setWidgetResizable(true);
        area->setWidget(m_list);
        PushButton *up = new PushButton(tr("Page up"), this);
        PushButton *down = new PushButton(tr("Page down"), this);
        QVBoxLayout *column = new QVBoxLayout(this);
        column->addWidget(area);
        column->addWidget(up);
        column->addWidget(down);
        connect(up, SIGNAL(clicked()), SLOT(pageUp()));
        connect(down, SIGNAL(clicked()), SLOT(pageDown()));
    }

    /// What the operator has made of row \a i; no signal is needed for that.
    QStringList row(int i) const { return m_list->getContent(i); }

public Q_SLOTS:
    void pageUp() { m_list->prevPage(); }
    void pageDown() { m_list->nextPage(); }

private:
    void append(int i)
    {
        FilarixRows::InstructionRow move(FilarixRows::InstructionRow::Joint, "Move");
        move.setJpos("P", i % 8 + 1).setV("V", i % 3 + 1).setZ("Z", "0").setT("T", "0.5");
        move.setDetail(0, "X", QString::number(i * 2.5));
        QStringList row = move.row(m_list->count()); // its number is its index
        m_list->addWidget(row, false, false);
    }

    TListWidget *m_list;
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    ListScreen screen;
    screen.resize(540, 480);
    screen.show();
    const int result = application.exec();
    QTextStream(stdout) << screen.row(1).join(" ") << "\n";
    return result;
}

#include "main.moc"
