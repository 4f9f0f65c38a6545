// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef MODALDRIVER_H
#define MODALDRIVER_H

#include <QList>
#include <QMessageBox>
#include <QObject>
#include <QPointer>
#include <QStringList>

#include <functional>

class QTimer;

/// Answers modal dialogs by script, in the order in which they come up.
///
///     ModalDriver driver;
///     driver.press(QMessageBox::Discard);
///     window.open();
///     QVERIFY2(driver.finished(), driver.report());
///
/// A dialog that no step waits for is recorded and closed, so that no test hangs; finished() is
/// then false. The driver must outlive the calls that open the dialogs.
class ModalDriver : public QObject
{
    Q_OBJECT

public:
    /// What a message box showed.
    struct Box
    {
        QString title;
        QString text;
        QMessageBox::Icon icon;
        QMessageBox::StandardButtons buttons;
        QMessageBox::StandardButton defaultButton;
        /// The escape button that was set; NoButton when the choice is left to the toolkit.
        QMessageBox::StandardButton escapeButton;
        QWidget *parent;
    };
    typedef std::function<void(QWidget *)> Step;

    explicit ModalDriver(QObject *parent = nullptr);
    ~ModalDriver() override;

    /// The next modal dialog is handed to \a step, which must lead to its end. Steps may open
    /// dialogs of their own, answered by the steps that follow.
    void then(const Step &step);
    /// The next modal dialog must be a message box; presses one of its buttons.
    void press(QMessageBox::StandardButton button);
    /// The next modal dialog must be a message box; closes it with no button, as a parent does.
    void closeBox();
    /// Ends the next modal dialog with accept() or reject().
    void accept();
    void reject();

    /// All steps ran and no other dialog came up.
    bool finished() const;
    /// What is still awaited and what came up uncalled for.
    const char *report();

    /// The message boxes that press() and closeBox() answered, in order.
    QList<Box> boxes() const;

private Q_SLOTS:
    void look();

private:
    void note(QMessageBox *box);

    QTimer *m_timer;
    QList<Step> m_steps;
    QPointer<QWidget> m_current;
    QList<Box> m_boxes;
    QStringList m_complaints;
    QByteArray m_report;
};

#endif // MODALDRIVER_H
