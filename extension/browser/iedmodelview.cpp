// SPDX-License-Identifier: Apache-2.0
#include "iedmodelview.h"

#include "nodereferences.h"
#include "ui_iedmodelview.h"

#include "listener/mmslistener.h"
#include "model/iedmodel.h"
#include "model/iedmodeldelegate.h"
#include "plugin/busycursor.h"
#include "plugin/failurereport.h"
#include "settinggroup/offlinesgcb.h"

#include <host/hosttaskcontext.h>
#include <remoteclient/driverconsolinterface.h>

#include <QtCore/QDataStream>
#include <QtCore/QSignalBlocker>
#include <QtWidgets/QAction>
#include <QtWidgets/QMenu>

namespace {

constexpr int valueColumn = 1;
constexpr int valueColumnWidth = 200;

const QString bufferedKind = QStringLiteral("BR");
const QString unbufferedKind = QStringLiteral("RP");

bool isControllable(const DataObject &dataObject)
{
    static const QStringList classes = {QStringLiteral("SPC"), QStringLiteral("DPC"),
                                        QStringLiteral("INC"), QStringLiteral("BSC"),
                                        QStringLiteral("ISC"), QStringLiteral("APC")};
    return classes.contains(dataObject.type);
}

/// The object's control model; a driver may use the bits above the low eight for its own.
quint8 controlModel(const DataObject &dataObject)
{
    const DAO *ctlModel = dataObject.getDAOByName(QStringLiteral("ctlModel"));
    if (!ctlModel || !ctlModel->attribute)
        return 0;
    return static_cast<quint8>(ctlModel->attribute->value.toInt() & 0xFF);
}

} // namespace

IEDModelView::IEDModelView(int driverNo, int deviceNo, int /*taskParameter*/,
                           HostTaskContext *context, QWidget *parent)
    : QDialog(parent)
    , m_form(std::make_unique<Ui::IEDModelView>())
    , m_hostContext(context)
    , m_deviceNo(deviceNo)
    , m_driverNo(driverNo)
{
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    m_form->setupUi(this);

    m_model = new IEDModel(&m_templates, this);

    QString location;
    m_hostContext->console->getLoc(m_driverNo, m_deviceNo, location);
    m_controller.setLocation(m_hostContext->console->currentAddress(), m_driverNo);

    QTreeView *view = m_form->modelView;
    view->setModel(m_model);
    view->setContextMenuPolicy(Qt::CustomContextMenu);
    view->setDragEnabled(true);
    view->setItemsExpandable(true);
    view->setRootIsDecorated(true);
    view->setSortingEnabled(false);
    view->setAlternatingRowColors(true);

    connect(m_form->pushButton, &QPushButton::released, this, &QDialog::reject);

    m_delegate = new IEDModelDelegate(&m_templates, this);
    view->setItemDelegate(m_delegate);
    view->setColumnWidth(valueColumn, valueColumnWidth);

    connect(view, &QTreeView::expanded, this, &IEDModelView::slotExpanded);
    connect(view, &QTreeView::doubleClicked, this, &IEDModelView::checkDoubleclick);
    connect(m_model, &IEDModel::needWriteValue, this, &IEDModelView::writeValue);
}

IEDModelView::~IEDModelView()
{
    if (m_listener)
        m_listener->stop();
    // The model is a child and outlives the device, at whose objects its nodes point.
    m_model->setDevice(nullptr);
}

bool IEDModelView::init()
{
    QByteArray bytes;
    QString error;
    OperationResult result = OperationSucceeded;
    {
        const BusyCursor busy;
        result = m_controller.getIEDModel(m_deviceNo, bytes, error);
    }
    if (result != OperationSucceeded) {
        // Without a model there is nothing to work with, whatever the reason.
        reportFailure(this, OperationDriverUnreachable, error, failureTexts());
        return false;
    }

    QDataStream stream(bytes);
    m_device.fromStream(stream);
    m_offline = m_device.offline;
    if (!m_offline) {
        connect(m_form->modelView, &QTreeView::customContextMenuRequested, this,
                &IEDModelView::slotContextMenu);
    }

    createActions();

    m_model->setDevice(&m_device);
    m_attributeIndex = m_model->attributeIndex();
    m_form->modelView->expandToDepth(1);
    m_form->modelView->resizeColumnToContents(0);

    m_listener = new MMSListener(this);
    connect(m_listener, &MMSListener::processMMSMessage, this, &IEDModelView::updateMMSValue);
    m_listener->start(QThread::InheritPriority);
    return true;
}

void IEDModelView::updateMMSValue(const QList<MMSValue> &values)
{
    m_model->updateValues(values);
}

QMenu *IEDModelView::createTaskMenu(IEDNode *node)
{
    auto *menu = new QMenu;
    menu->addAction(m_expandAction);
    menu->addAction(m_collapseAction);

    switch (node->type) {
    case PhysicalDeviceNode:
        menu->addSeparator();
        menu->addAction(m_serverDirectoryAction);
        menu->addAction(m_createNonPersistentDataSetAction);
        break;
    case LogicalDeviceNode:
        menu->addSeparator();
        menu->addAction(m_logicalDeviceDirectoryAction);
        menu->addAction(m_settingGroupBlockAction);
        break;
    case LogicalNodeNode:
        menu->addSeparator();
        menu->addAction(m_readAction);
        menu->addSeparator();
        menu->addAction(m_logicalNodeDirectoryAction);
        break;
    case DataObjectNode:
        menu->addSeparator();
        menu->addAction(m_readAction);
        menu->addSeparator();
        menu->addAction(m_dataDirectoryAction);
        addControlEntries(menu);
        break;
    case SettingGroupNode:
        menu->addSeparator();
        menu->addAction(m_openSettingGroupAction);
        break;
    case DataAttributeNode:
        menu->addSeparator();
        menu->addAction(m_readAction);
        menu->addSeparator();
        menu->addAction(m_dataDirectoryAction);
        break;
    case DataSetGroupNode:
        menu->addSeparator();
        menu->addAction(m_createPersistentDataSetAction);
        menu->addAction(m_dataSetListAction);
        break;
    case DataSetNode:
        menu->addSeparator();
        menu->addAction(m_readAction);
        menu->addAction(m_deleteDataSetAction);
        menu->addAction(m_dataSetDirectoryAction);
        break;
    case DataSetMemberNode:
        menu->addSeparator();
        menu->addAction(m_locateAction);
        break;
    case ReportControlGroupNode:
        menu->addSeparator();
        menu->addAction(m_bufferedReportsAction);
        menu->addAction(m_unbufferedReportsAction);
        break;
    case ReportControlNode:
        menu->addSeparator();
        menu->addAction(m_openReportAction);
        break;
    }
    return menu;
}

void IEDModelView::addControlEntries(QMenu *menu)
{
    const IEDNode *node = currentNode();
    const DataObject *dataObject = node ? node->dataObject() : nullptr;
    if (!dataObject || !isControllable(*dataObject))
        return;

    const quint8 ctlModel = controlModel(*dataObject);
    const bool direct = ctlModel == 1 || ctlModel == 3;
    const bool selectBeforeOperate = ctlModel != 0 && !direct;
    m_selectAction->setEnabled(selectBeforeOperate);
    m_operateAction->setEnabled(direct || selectBeforeOperate);
    m_cancelAction->setEnabled(selectBeforeOperate);

    menu->addSeparator();
    menu->addAction(m_selectAction);
    menu->addAction(m_operateAction);
    menu->addAction(m_cancelAction);
}

void IEDModelView::slotContextMenu(QPoint pos)
{
    const QModelIndex index = m_form->modelView->indexAt(pos);
    IEDNode *node = IEDModel::nodeAt(index);
    const std::unique_ptr<QMenu> menu(node ? createTaskMenu(node) : new QMenu);
    menu->exec(m_form->modelView->viewport()->mapToGlobal(pos));
}

void IEDModelView::slotExpanded(const QModelIndex & /*index*/)
{
    m_form->modelView->resizeColumnToContents(0);
}

void IEDModelView::writeValue(const QModelIndex &index, const QVariant &value)
{
    const IEDNode *node = IEDModel::nodeAt(index);
    if (!node || node->type != DataAttributeNode)
        return;

    const QString ldName = IEDModel::logicalDeviceName(node);
    const QString reference = attributeReference(node);
    if (node->dataAttribute()) {
        QByteArray bytes;
        QDataStream stream(&bytes, QIODevice::WriteOnly);
        stream << value;
        const bool written = request([&](QString &error) {
            return m_controller.writeVariable(m_deviceNo, ldName, reference, bytes, error);
        });
        if (!written)
            return;
    }
    request([&](QString &error) {
        return m_controller.readVariable(m_deviceNo, ldName, {reference}, error);
    });
}

void IEDModelView::readData() {}

void IEDModelView::writeData() {}

void IEDModelView::selectCo() {}

void IEDModelView::operateCo() {}

void IEDModelView::openReport() {}

void IEDModelView::readSGCB() {}

void IEDModelView::cancelCo() {}

void IEDModelView::expandChild()
{
    QTreeView *view = m_form->modelView;
    const QModelIndex index = view->currentIndex();
    if (!index.isValid())
        return;
    {
        // One resize at the end instead of one for each node below.
        const QSignalBlocker quiet(view);
        view->expandRecursively(index);
    }
    slotExpanded(index);
}

void IEDModelView::openSGCB()
{
    const IEDNode *node = currentNode();
    const SettingGroupControl *settingGroup = node ? node->settingGroup() : nullptr;
    if (!settingGroup || !m_offline)
        return;
    OfflineSGCB dialog(nullptr);
    dialog.setValues(settingGroup->numOfSG, settingGroup->activeGroup);
    dialog.exec();
}

void IEDModelView::collapseChild()
{
    QTreeView *view = m_form->modelView;
    const std::function<void(const QModelIndex &)> collapse = [&](const QModelIndex &index) {
        for (int row = 0; row < m_model->rowCount(index); ++row)
            collapse(m_model->index(row, 0, index));
        view->collapse(index);
    };
    const QModelIndex current = view->currentIndex();
    if (current.isValid())
        collapse(current.sibling(current.row(), 0));
}

void IEDModelView::locate()
{
    const IEDNode *node = currentNode();
    const DataSetMember *member = node ? node->dataSetMember() : nullptr;
    if (!member)
        return;
    const QModelIndex index = m_model->indexForReference(member->reference);
    if (!index.isValid())
        return;
    QTreeView *view = m_form->modelView;
    view->scrollTo(index);
    view->expand(index);
    view->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect |
                                                       QItemSelectionModel::Rows);
}

void IEDModelView::createDataSet() {}

void IEDModelView::deleteDataSet() {}

void IEDModelView::checkDoubleclick(const QModelIndex & /*index*/)
{
    const IEDNode *node = currentNode();
    if (!node)
        return;
    if (node->type == ReportControlNode)
        openReport();
    else if (node->type == SettingGroupNode)
        openSGCB();
}

void IEDModelView::readDataSetList() {}

void IEDModelView::readDataSetDirectory() {}

void IEDModelView::readXRCB() {}

void IEDModelView::readServerDirectory() {}

void IEDModelView::readLogicalDevice() {}

void IEDModelView::readLogicalNode() {}

void IEDModelView::readDataDirectory() {}

void IEDModelView::createActions()
{
    m_readAction = createAction(tr("Read"), &IEDModelView::readData);
    connect(m_readAction, &QAction::triggered, this, &IEDModelView::writeData);
    m_writeAction = new QAction(tr("Write..."), this);
    m_selectAction = createAction(tr("Select"), &IEDModelView::selectCo);
    m_operateAction = createAction(tr("Operate"), &IEDModelView::operateCo);
    m_cancelAction = createAction(tr("Cancel"), &IEDModelView::cancelCo);
    m_expandAction = createAction(tr("Expand All"), &IEDModelView::expandChild);
    m_collapseAction = createAction(tr("Collapse All"), &IEDModelView::collapseChild);
    m_openReportAction = createAction(tr("Open Report Control"), &IEDModelView::openReport);
    m_openSettingGroupAction =
        createAction(tr("Open Setting Group Control"), &IEDModelView::openSGCB);
    m_locateAction = createAction(tr("Locate"), &IEDModelView::locate);
    m_createPersistentDataSetAction =
        createAction(tr("Create Persistent DataSet"), &IEDModelView::createDataSet);
    m_createNonPersistentDataSetAction =
        createAction(tr("Create Non-Persistent DataSet"), &IEDModelView::createDataSet);
    m_deleteDataSetAction = createAction(tr("Delete DataSet"), &IEDModelView::deleteDataSet);
    m_dataSetListAction = createAction(tr("GetDataSet List"), &IEDModelView::readDataSetList);
    m_dataSetDirectoryAction =
        createAction(tr("GetDataSet Directory"), &IEDModelView::readDataSetDirectory);
    m_bufferedReportsAction = createAction(tr("Get BRCB"), &IEDModelView::readXRCB);
    m_unbufferedReportsAction = createAction(tr("Get URCB"), &IEDModelView::readXRCB);
    m_settingGroupBlockAction = createAction(tr("Get SGCB"), &IEDModelView::readSGCB);
    m_serverDirectoryAction =
        createAction(tr("GetServer Directory"), &IEDModelView::readServerDirectory);
    m_logicalDeviceDirectoryAction =
        createAction(tr("GetLogicalDevice Directory"), &IEDModelView::readLogicalDevice);
    m_logicalNodeDirectoryAction =
        createAction(tr("GetLogicalNode Directory"), &IEDModelView::readLogicalNode);
    m_dataDirectoryAction = createAction(tr("GetData Directory"), &IEDModelView::readDataDirectory);
}

QAction *IEDModelView::createAction(const QString &text, void (IEDModelView::*slot)())
{
    auto *action = new QAction(text, this);
    connect(action, &QAction::triggered, this, slot);
    return action;
}

IEDNode *IEDModelView::currentNode() const
{
    return IEDModel::nodeAt(m_form->modelView->currentIndex());
}

FailureTexts IEDModelView::failureTexts() const
{
    return {tr("Fail"), tr("Cannot connect to driver")};
}

template <typename Call>
bool IEDModelView::request(Call call)
{
    QString error;
    OperationResult result = OperationSucceeded;
    {
        const BusyCursor busy;
        result = call(error);
    }
    return !reportFailure(this, result, error, failureTexts());
}
