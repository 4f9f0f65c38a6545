// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef HOST_H
#define HOST_H

#include <dialog.h>
#include <tlistwidget.h>
#include <wmmainwindow.h>

#include <QString>

/// The machine's side: takes a program that the operator sends.
class Downloader : public QObject
{
    Q_OBJECT

public:
    explicit Downloader(WMMainWindow *window) : QObject(window), m_window(window)
    {
        connect(window, SIGNAL(signal_download(QString)), SLOT(send(QString)));
    }

    QString sent() const { return m_sent; }
    bool wasBusy() const { return m_wasBusy; }

public slots:
    void send(const QString &path)
    {
        m_window->setDownloading(true);
        m_sent = path;
        m_wasBusy = m_window->isDownloading();
        m_window->setDownloading(false);
    }

private:
    WMMainWindow *m_window;
    QString m_sent;
    bool m_wasBusy = false;
};

/// Hosts derive from the library's classes.
class Question : public Dialog
{
    Q_OBJECT

public:
    Question() : Dialog(nullptr) { setTitle(tr("Winding")); }
};

class Program : public TListWidget
{
    Q_OBJECT

public:
    explicit Program(QStringList &title) : TListWidget(title, nullptr) {}

signals:
    void loaded(int rows);
};

#endif // HOST_H
