// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef TOUR_H
#define TOUR_H

#include <QList>
#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>

class PanelGlass;
class QImage;
class QWidget;

/// Works the panel without an operator and leaves a numbered PNG of what it shows. Where it goes is
/// the TourPlan's.
///
/// One step a tick of a timer, so the steps go on while a modal dialog waits. A step that opens a
/// dialog only posts the touch that does.
class Tour : public QObject
{
    Q_OBJECT

public:
    typedef std::function<void()> Step;

    /// Pictures are what \a glass shows of \a panel, and go to \a folder, which is made if it is
    /// missing. Without a glass none are made; without a folder those who listen have them alone.
    explicit Tour(QWidget *panel, const QString &folder = QString(),
                  const PanelGlass *glass = nullptr, QObject *parent = nullptr);

    /// \a tickMs is the time that each step has.
    void start(int tickMs = 60);
    /// What went wrong; empty when every step found what it touches and every picture was written.
    QString error() const { return m_error; }

    /// Appends a step.
    void then(const Step &step);
    /// Appends a step that lasts until \a condition holds; it is an error if that takes a minute.
    void waitUntil(const std::function<bool()> &condition);
    /// Before each stop that is appended from now on the tour waits until \a isAtRest holds.
    void restBeforePictures(const std::function<bool()> &isAtRest) { m_isAtRest = isAtRest; }
    /// Appends a stop: what the steps before started is shown by then.
    void picture(const QString &name);
    /// Appends a touch on what \a target gives in its turn; nothing is an error.
    void press(const std::function<QWidget *()> &target);
    /// Appends the end of the dialog that is open by then.
    void closeDialog();

    /// At once: leaves a picture, for a step.
    void save(const QString &name);
    /// At once: touches the middle of \a target.
    static void tap(QWidget *target);

Q_SIGNALS:
    /// What there is to see at the stop \a name is on the panel.
    void arrived(const QString &name);
    /// The same as a picture.
    void taken(const QString &name, const QImage &picture);
    void finished();

private:
    void fail(const QString &error);
    void next();
    void write(const QString &name, const QImage &picture);

    QWidget *m_panel;
    const PanelGlass *m_glass;
    const QString m_folder;
    QList<Step> m_steps;
    Step m_lastStep;
    std::function<bool()> m_isAtRest;
    QTimer m_timer;
    int m_step = 0;
    int m_pictures = 0;
    QString m_error;
};

#endif // TOUR_H
