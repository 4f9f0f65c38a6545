// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef HMIDIRMODEL_H
#define HMIDIRMODEL_H

#include <QDirModel>

/// The directory model of the import manager's two panels. It offers what its base offers; it is
/// the place for a rule on which entries may be touched.
class HmiDirModel : public QDirModel
{
    Q_OBJECT

public:
    explicit HmiDirModel(QObject *parent);

    /// The base's flags, unchanged.
    Qt::ItemFlags flags(const QModelIndex &index) const override;
};

#endif // HMIDIRMODEL_H
