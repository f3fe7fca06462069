// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "devicelistmodel.h"
#include "findingsmodel.h"

#include <QtCore/QSortFilterProxyModel>

class QDockWidget;
class TableView;

/// The pane with what was noticed while the file of the selected device was read, and the words in
/// its place when there is nothing. GUI thread.
class FindingsPane
{
public:
    /// @param dock its title names the device; not owned, must outlive the pane
    /// @param view the table in it; not owned, must outlive the pane
    FindingsPane(QDockWidget &dock, TableView &view);

    /// @param device the selected device, null when none is
    /// @param readAgain the keys that have a model read again, as the operator sees them
    void show(const DeviceListModel::Device *device, const QString &readAgain);

private:
    QDockWidget &m_dock;
    TableView &m_view;
    FindingsModel m_findings;
    QSortFilterProxyModel m_sorted;
};
