// SPDX-License-Identifier: Apache-2.0
#include "nodemenu.h"

#include "nodeservices.h"

#include <devicemodel/physicaldevice.h>

#include <QtCore/QCoreApplication>
#include <QtWidgets/QAction>
#include <QtWidgets/QMenu>

#include <initializer_list>

namespace {

constexpr const char *context = "IEDModelView";

constexpr const char *texts[] = {
    QT_TRANSLATE_NOOP("IEDModelView", "Read"),
    QT_TRANSLATE_NOOP("IEDModelView", "Write..."),
    QT_TRANSLATE_NOOP("IEDModelView", "Select"),
    QT_TRANSLATE_NOOP("IEDModelView", "Operate"),
    QT_TRANSLATE_NOOP("IEDModelView", "Cancel"),
    QT_TRANSLATE_NOOP("IEDModelView", "Expand All"),
    QT_TRANSLATE_NOOP("IEDModelView", "Collapse All"),
    QT_TRANSLATE_NOOP("IEDModelView", "Open Report Control"),
    QT_TRANSLATE_NOOP("IEDModelView", "Open Setting Group Control"),
    QT_TRANSLATE_NOOP("IEDModelView", "Locate"),
    QT_TRANSLATE_NOOP("IEDModelView", "Create Persistent DataSet"),
    QT_TRANSLATE_NOOP("IEDModelView", "Create Non-Persistent DataSet"),
    QT_TRANSLATE_NOOP("IEDModelView", "Delete DataSet"),
    QT_TRANSLATE_NOOP("IEDModelView", "GetDataSet List"),
    QT_TRANSLATE_NOOP("IEDModelView", "GetDataSet Directory"),
    QT_TRANSLATE_NOOP("IEDModelView", "Get BRCB"),
    QT_TRANSLATE_NOOP("IEDModelView", "Get URCB"),
    QT_TRANSLATE_NOOP("IEDModelView", "Get SGCB"),
    QT_TRANSLATE_NOOP("IEDModelView", "GetServer Directory"),
    QT_TRANSLATE_NOOP("IEDModelView", "GetLogicalDevice Directory"),
    QT_TRANSLATE_NOOP("IEDModelView", "GetLogicalNode Directory"),
    QT_TRANSLATE_NOOP("IEDModelView", "GetData Directory"),
};
static_assert(std::size(texts) == NodeMenu::EntryCount);

constexpr NodeMenu::Entry bar = NodeMenu::EntryCount;

/// What the menu of a node has besides what every node has, and besides the control entries.
struct KindEntries
{
    IEDNodeType kind;
    std::initializer_list<NodeMenu::Entry> entries;
};
const KindEntries kinds[] = {
    {PhysicalDeviceNode, {bar, NodeMenu::ServerDirectory, NodeMenu::CreateNonPersistentDataSet}},
    {LogicalDeviceNode, {bar, NodeMenu::LogicalDeviceDirectory, NodeMenu::SettingGroupBlock}},
    {LogicalNodeNode, {bar, NodeMenu::Read, bar, NodeMenu::LogicalNodeDirectory}},
    {DataObjectNode, {bar, NodeMenu::Read, bar, NodeMenu::DataDirectory}},
    {SettingGroupNode, {bar, NodeMenu::OpenSettingGroupControl}},
    {DataAttributeNode, {bar, NodeMenu::Read, bar, NodeMenu::DataDirectory}},
    {DataSetGroupNode, {bar, NodeMenu::CreatePersistentDataSet, NodeMenu::DataSetList}},
    {DataSetNode, {bar, NodeMenu::Read, NodeMenu::DeleteDataSet, NodeMenu::DataSetDirectory}},
    {DataSetMemberNode, {bar, NodeMenu::Locate}},
    {ReportControlGroupNode, {bar, NodeMenu::BufferedReports, NodeMenu::UnbufferedReports}},
    {ReportControlNode, {bar, NodeMenu::OpenReportControl}},
};

} // namespace

NodeMenu::NodeMenu(QObject *window)
    : QObject(window)
{
    for (std::size_t entry = 0; entry < m_actions.size(); ++entry)
        m_actions[entry] = new QAction(QCoreApplication::translate(context, texts[entry]), window);
}

QMenu *NodeMenu::create(IEDNodeType kind, const DataObject *current) const
{
    auto *menu = new QMenu;
    menu->addAction(action(ExpandAll));
    menu->addAction(action(CollapseAll));
    for (const KindEntries &offered : kinds) {
        if (offered.kind != kind)
            continue;
        for (const Entry entry : offered.entries) {
            if (entry == bar)
                menu->addSeparator();
            else
                menu->addAction(action(entry));
        }
    }
    if (kind == DataObjectNode && current && isControllable(*current))
        addControlEntries(menu, *current);
    return menu;
}

void NodeMenu::addControlEntries(QMenu *menu, const DataObject &dataObject) const
{
    const quint8 ctlModel = controlModel(dataObject);
    const bool direct = ctlModel == 1 || ctlModel == 3;
    const bool selectBeforeOperate = ctlModel != 0 && !direct;
    action(Select)->setEnabled(selectBeforeOperate);
    action(Operate)->setEnabled(direct || selectBeforeOperate);
    action(Cancel)->setEnabled(selectBeforeOperate);

    menu->addSeparator();
    menu->addActions({action(Select), action(Operate), action(Cancel)});
}
