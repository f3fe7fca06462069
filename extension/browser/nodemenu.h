// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "model/iednode.h"

#include <QtCore/QObject>

#include <array>

class QAction;
class QMenu;

/// The actions of the browser's services, and which of them the context menu of a node offers. What
/// an action does is connected to it by its owner. GUI thread.
class NodeMenu : public QObject
{
public:
    /// In the order in which the actions are made.
    enum Entry {
        Read,
        Write,
        Select,
        Operate,
        Cancel,
        ExpandAll,
        CollapseAll,
        OpenReportControl,
        OpenSettingGroupControl,
        Locate,
        CreatePersistentDataSet,
        CreateNonPersistentDataSet,
        DeleteDataSet,
        DataSetList,
        DataSetDirectory,
        BufferedReports,
        UnbufferedReports,
        SettingGroupBlock,
        ServerDirectory,
        LogicalDeviceDirectory,
        LogicalNodeDirectory,
        DataDirectory,
        EntryCount
    };

    /// Makes the actions. @p window owns them and this.
    explicit NodeMenu(QObject *window);

    QAction *action(Entry entry) const { return m_actions[entry]; }

    /// A new menu without parent of what can be done with a node of this kind; the caller deletes
    /// it. The menu of a data object has the control entries of @p current, the data object of the
    /// tree's current node, null when that is of another kind; they keep the enabled state that its
    /// control model gives them here.
    QMenu *create(IEDNodeType kind, const DataObject *current) const;

private:
    void addControlEntries(QMenu *menu, const DataObject &dataObject) const;

    std::array<QAction *, EntryCount> m_actions;
};
