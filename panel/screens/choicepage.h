// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef CHOICEPAGE_H
#define CHOICEPAGE_H

#include "screens/settingspage.h"

#include <QList>
#include <QStringList>

class QGridLayout;
class QPushButton;

/// A section with a key for each of a few choices. The one in force bears a tick and the colour of
/// what is chosen.
///
/// A touch only asks: whoever keeps the choice says by mark() what came of it.
///
///     ChoicePage *page = new ChoicePage("sounds", [] { return tr("Sounds"); }, 2);
///     page->addChoice("on", [] { return tr("On"); });
///     page->mark("on");
///     connect(page, &ChoicePage::chosen, page, &ChoicePage::mark);
class ChoicePage : public SettingsPage
{
    Q_OBJECT

public:
    /// The keys stand in so many \a columns.
    ChoicePage(const QString &name, const Text &heading, int columns, QWidget *parent = nullptr);

    /// Its key is named by the page's name, "_" and \a value.
    void addChoice(const QString &value, const Text &text);
    QStringList values() const;
    QPushButton *key(const QString &value) const;

    /// The choice in force; empty before the first mark().
    QString marked() const { return m_marked; }

public Q_SLOTS:
    /// Shows \a value as the one in force.
    void mark(const QString &value);

Q_SIGNALS:
    void chosen(const QString &value);

protected:
    void changeEvent(QEvent *event) override;

private:
    struct Choice
    {
        QString value;
        Text text;
        QPushButton *key;
    };

    void ask(const QString &value);
    void name(const Choice &choice) const;

    const QString m_name;
    const int m_columns;
    QGridLayout *m_grid;
    QList<Choice> m_choices;
    QString m_marked;
};

#endif // CHOICEPAGE_H
