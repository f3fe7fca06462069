// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "scl/findings.h"

#include <QtCore/QAbstractTableModel>
#include <QtCore/QVector>

/// The remarks that an import left, as a table: severity, line, element, sentence. GUI thread.
class FindingsModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { SeverityColumn, LineColumn, ElementColumn, TextColumn, ColumnCount };

    /// Value by which a cell is sorted: the severest and the first line come first.
    static constexpr int SortRole = Qt::UserRole;

    explicit FindingsModel(QObject *parent = nullptr);

    void setFindings(const QVector<scl::Finding> &findings);

    /// Numbers of findings in words, for example "2 errors, 1 warning"; empty without findings.
    QString summary() const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    QVector<scl::Finding> m_findings;
};
