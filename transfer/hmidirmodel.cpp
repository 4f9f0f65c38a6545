// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "hmidirmodel.h"

HmiDirModel::HmiDirModel(QObject *parent) : QDirModel(parent) {}

Qt::ItemFlags HmiDirModel::flags(const QModelIndex &index) const
{
    // The name that a rule would judge. There is none yet, so every entry keeps its flags.
    const QString name = fileName(index);
    Q_UNUSED(name);
    return QDirModel::flags(index);
}
