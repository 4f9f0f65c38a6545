// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef STICKCOVER_H
#define STICKCOVER_H

#include "stick/devicewatch.h"

#include <QObject>
#include <QPointer>

class ImportManage;
class QLabel;
class QListView;

/// Covers the import manager's list of the stick while no stick is in. The library shows the files
/// of a stick that was pulled until the next press, and notices none that comes.
///
///     StickCover *cover = new StickCover(panel);
///     connect(watch, &DeviceWatch::changed, cover, &StickCover::showDevices);
class StickCover : public QObject
{
    Q_OBJECT

public:
    /// Watches the application for import managers from now on.
    explicit StickCover(QObject *parent = nullptr);

    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    void showDevices(const DeviceState &state);

private:
    void cover(ImportManage *manager);
    void place();
    void show();

    DeviceState m_state;
    QPointer<ImportManage> m_manager;
    QPointer<QListView> m_list;
    QPointer<QLabel> m_cover;
};

#endif // STICKCOVER_H
