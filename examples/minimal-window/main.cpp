// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// The smallest host: the G-code screen, and somebody who answers its D/L button.

#include "wmmainwindow.h"

#include <QApplication>
#include <QFile>
#include <QMessageBox>

/// Carries a program to the machine; here, to a file beside it.
class Downloader : public QObject
{
    Q_OBJECT

public:
    explicit Downloader(WMMainWindow *window) : QObject(window), m_window(window) {}

public Q_SLOTS:
    void send(const QString &path)
    {
        // A document that was never saved has no file; there is nothing to send then.
        if (path.isEmpty()) {
            QMessageBox::information(m_window, tr("Download"), tr("Save the program first."));
            return;
        }
        m_window->setDownloading(true); // greys the button
        const QString target = path + ".sent";
        QFile::remove(target);
        const bool sent = QFile::copy(path, target);
        m_window->setDownloading(false); // however it ended
        QMessageBox::information(m_window, tr("Download"), sent ? tr("Sent.") : tr("Not sent."));
    }

private:
    WMMainWindow *m_window;
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    WMMainWindow window(nullptr, 90); // an upright panel: two bars of buttons
    Downloader downloader(&window);
    QObject::connect(&window, SIGNAL(signal_download(QString)), &downloader, SLOT(send(QString)));
    window.show();
    return application.exec();
}

#include "main.moc"
