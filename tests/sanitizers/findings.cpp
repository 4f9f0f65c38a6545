// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Does wrong what its argument names, so that a test can see the sanitizer find it.

#include "listwidget.h"
#include "mjline.h"
#include "postedevents.h"

#include <QApplication>
#include <QTimer>

#include <cstdio>
#include <limits>

namespace {

MJLine *newRow()
{
    QStringList list = QStringList() << "1"
                                     << "MOVJ";
    return new MJLine(list, QSize(480, 800), nullptr);
}

/// Where the stack leads from ours to the toolkit and back, as in most of the library.
class Culprit : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void leaked_list()
    {
        new ListWidget(nullptr);
        forgetPostedEvents(this);
        QCoreApplication::quit();
    }

    void freed_row()
    {
        MJLine *row = newRow();
        delete row;
        std::printf("still here: %d\n", row->isExpanded());
    }

    void overflow()
    {
        volatile int number = std::numeric_limits<int>::max();
        number = number + 1;
        std::printf("still here: %d\n", number);
    }

    void wrong_cast()
    {
        ListWidget list(nullptr);
        QObject *object = &list;
        std::printf("still here: %d\n", static_cast<MJLine *>(object)->isExpanded());
    }
};

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    Culprit culprit;
    const QByteArray slot = QByteArray("1") + (argc > 1 ? argv[1] : "") + "()";
    QTimer::singleShot(0, &culprit, slot.constData());
    return application.exec();
}

#include "findings.moc"
