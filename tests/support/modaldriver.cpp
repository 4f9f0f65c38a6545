// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "modaldriver.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QPushButton>
#include <QTimer>

ModalDriver::ModalDriver(QObject *parent) : QObject(parent), m_timer(new QTimer(this))
{
    connect(m_timer, SIGNAL(timeout()), this, SLOT(look()));
    m_timer->start(2);
}

ModalDriver::~ModalDriver() = default;

void ModalDriver::then(const Step &step)
{
    m_steps.append(step);
}

void ModalDriver::press(QMessageBox::StandardButton button)
{
    then([this, button](QWidget *widget) {
        QMessageBox *box = qobject_cast<QMessageBox *>(widget);
        if (!box) {
            m_complaints.append(QLatin1String("not a message box: ")
                                + QLatin1String(widget->metaObject()->className()));
            widget->close();
            return;
        }
        note(box);
        if (box->button(button)) {
            box->button(button)->click();
        } else {
            m_complaints.append(QString::fromLatin1("no button 0x%1 in \"%2\"")
                                    .arg(int(button), 0, 16)
                                    .arg(box->text()));
            box->done(int(QMessageBox::NoButton));
        }
    });
}

void ModalDriver::closeBox()
{
    then([this](QWidget *widget) {
        if (QMessageBox *box = qobject_cast<QMessageBox *>(widget)) {
            note(box);
            box->done(int(QMessageBox::NoButton));
        } else {
            m_complaints.append(QLatin1String("not a message box"));
            widget->close();
        }
    });
}

void ModalDriver::accept()
{
    then([](QWidget *widget) {
        if (QDialog *dialog = qobject_cast<QDialog *>(widget))
            dialog->accept();
    });
}

void ModalDriver::reject()
{
    then([](QWidget *widget) {
        if (QDialog *dialog = qobject_cast<QDialog *>(widget))
            dialog->reject();
    });
}

bool ModalDriver::finished() const
{
    return m_steps.isEmpty() && m_complaints.isEmpty();
}

const char *ModalDriver::report()
{
    m_report = QString::fromLatin1("%1 steps not reached; %2")
                   .arg(m_steps.size())
                   .arg(m_complaints.join(QLatin1String("; ")))
                   .toUtf8();
    return m_report.constData();
}

QList<ModalDriver::Box> ModalDriver::boxes() const
{
    return m_boxes;
}

void ModalDriver::look()
{
    QWidget *modal = QApplication::activeModalWidget();
    // The same dialog may come up again, but only after it was gone in between.
    if (!modal || !modal->isVisible()) {
        m_current = nullptr;
        return;
    }
    if (modal == m_current)
        return;
    m_current = modal;
    if (m_steps.isEmpty()) {
        QString what = QLatin1String(modal->metaObject()->className());
        if (QMessageBox *box = qobject_cast<QMessageBox *>(modal))
            what += QLatin1String(": ") + box->text();
        m_complaints.append(QLatin1String("came up uncalled for: ") + what);
        if (QDialog *dialog = qobject_cast<QDialog *>(modal))
            dialog->done(QDialog::Rejected);
        else
            modal->close();
        m_current = nullptr;
        return;
    }
    const Step step = m_steps.takeFirst();
    step(modal);
    m_current = QApplication::activeModalWidget() == modal ? modal : nullptr;
}

void ModalDriver::note(QMessageBox *box)
{
    Box seen;
    seen.title = box->windowTitle();
    seen.text = box->text();
    seen.icon = box->icon();
    seen.buttons = box->standardButtons();
    seen.defaultButton = box->standardButton(box->defaultButton());
    seen.escapeButton = box->standardButton(box->escapeButton());
    seen.parent = box->parentWidget();
    m_boxes.append(seen);
}
