// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Loaded into an unchanged program by LD_PRELOAD, it writes where the widgets are that a person
// could touch, so that a script can send real clicks of the X server there. It touches nothing.
//
// The file named by FILARIX_LOCATOR is written anew all the time. It holds one line a widget,
// topmost window last: window title, class, object name, text, enabled (1 or 0), and x y of the
// centre on the screen.

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTextStream>
#include <QTimer>

#include <cstdio>

namespace {

QString textOf(const QWidget *widget)
{
    if (const QAbstractButton *button = qobject_cast<const QAbstractButton *>(widget))
        return button->text();
    if (const QLabel *label = qobject_cast<const QLabel *>(widget))
        return label->text();
    if (const QLineEdit *edit = qobject_cast<const QLineEdit *>(widget))
        return edit->text();
    if (const QPlainTextEdit *edit = qobject_cast<const QPlainTextEdit *>(widget))
        return edit->textCursor().block().text();
    return QString();
}

QString oneField(QString text)
{
    return text.remove(QLatin1Char('&'))
        .replace(QLatin1Char('\n'), QLatin1Char(' '))
        .replace(QLatin1Char('\t'), QLatin1Char(' '));
}

void writeLine(QTextStream &out, const QString &title, const QString &kind, const QString &name,
               const QString &text, bool enabled, const QPoint &centre)
{
    out << oneField(title) << '\t' << kind << '\t' << name << '\t' << oneField(text) << '\t'
        << (enabled ? 1 : 0) << '\t' << centre.x() << '\t' << centre.y() << '\n';
}

bool isReachable(const QWidget *widget, const QPoint &centre)
{
    // Scrolled out of sight, or in a bar's overflow, a widget can't be touched.
    const QWidget *there = QApplication::widgetAt(centre);
    return there && (there == widget || widget->isAncestorOf(there) || there->isAncestorOf(widget));
}

void writeItems(QTextStream &out, const QString &title, const QAbstractItemView *view)
{
    const QAbstractItemModel *model = view->model();
    for (int row = 0; model && row < model->rowCount(view->rootIndex()); ++row) {
        const QModelIndex index = model->index(row, 0, view->rootIndex());
        const QPoint centre = view->visualRect(index).center();
        if (view->viewport()->rect().contains(centre)) {
            writeLine(out, title, QLatin1String("item"), view->objectName(),
                      index.data().toString(), view->isEnabled(),
                      view->viewport()->mapToGlobal(centre));
        }
    }
}

class Locator : public QObject
{
    Q_OBJECT

public:
    Locator() : m_path(QString::fromLocal8Bit(qgetenv("FILARIX_LOCATOR")))
    {
        connect(&m_timer, SIGNAL(timeout()), SLOT(write()));
        m_timer.start(40);
    }

private Q_SLOTS:
    void write()
    {
        QString text;
        QTextStream out(&text);
        QWidget *modal = QApplication::activeModalWidget();
        Q_FOREACH (QWidget *window, QApplication::topLevelWidgets()) {
            if (!window->isVisible() || (modal && window != modal))
                continue;
            const QString title = window->windowTitle();
            Q_FOREACH (QWidget *widget, window->findChildren<QWidget *>()) {
                if (!widget->isVisible())
                    continue;
                const QPoint centre = widget->mapToGlobal(widget->rect().center());
                if (!isReachable(widget, centre))
                    continue;
                writeLine(out, title, QLatin1String(widget->metaObject()->className()),
                          widget->objectName(), textOf(widget), widget->isEnabled(), centre);
                if (const QAbstractItemView *view = qobject_cast<QAbstractItemView *>(widget))
                    writeItems(out, title, view);
            }
        }
        out.flush();
        // Put in the place of the old one, so that a reader never sees half of it, nor nothing at
        // all: QFile::rename() would have the old one removed first.
        QFile file(m_path + QLatin1String(".new"));
        if (file.open(QIODevice::WriteOnly)) {
            file.write(text.toUtf8());
            file.close();
            std::rename(QFile::encodeName(file.fileName()).constData(),
                        QFile::encodeName(m_path).constData());
        }
    }

private:
    QString m_path;
    QTimer m_timer;
};

void startLocator()
{
    // The timer needs the running application; it lives as long as that.
    Locator *locator = new Locator;
    locator->setParent(QCoreApplication::instance());
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(startLocator)

#include "locator.moc"
