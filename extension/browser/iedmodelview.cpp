// SPDX-License-Identifier: Apache-2.0
#include "iedmodelview.h"

#include "nodeexplanations.h"
#include "nodereferences.h"
#include "treefinder.h"
#include "treeviewstate.h"
#include "ui_iedmodelview.h"

#include "control/controlco.h"
#include "dataset/datasetselectwidget.h"
#include "listener/mmslistener.h"
#include "model/explanationtips.h"
#include "model/iedmodel.h"
#include "model/iedmodeldelegate.h"
#include "model/streportcontrolblock.h"
#include "report/reportcontrol.h"
#include "settinggroup/offlinesgcb.h"
#include "settinggroup/selectfcdialog.h"
#include "settinggroup/sgcbdialog.h"
#include "toolkit/busycursor.h"
#include "toolkit/failurereport.h"
#include "toolkit/modallife.h"

#include <host/hosttaskcontext.h>
#include <remoteclient/driverconsolinterface.h>

#include <QtCore/QDataStream>
#include <QtCore/QPointer>
#include <QtCore/QSignalBlocker>
#include <QtWidgets/QAction>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>
#include <QtWidgets/QStyle>

#include <algorithm>

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
    , m_workings(new BrowserWorkings)
    , m_templates(m_workings->templates)
    , m_hostContext(context)
    , m_controller(m_workings->controller)
    , m_device(m_workings->device)
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

    SclExplanations &explanations = m_workings->explanations;
    explanations.setLanguage(windowLanguage());
    new ExplanationTips(view, [&explanations](const QModelIndex &index) {
        return nodeExplanation(IEDModel::nodeAt(index), explanations);
    });

    auto *finder = new TreeFinder(view, this);
    m_form->horizontalLayout->insertWidget(0, finder);

    connect(view, &QTreeView::expanded, this, &IEDModelView::slotExpanded);
    connect(view, &QTreeView::doubleClicked, this, &IEDModelView::checkDoubleclick);
    connect(m_model, &IEDModel::needWriteValue, this, &IEDModelView::writeValue);
}

IEDModelView::~IEDModelView()
{
    if (m_listener)
        m_listener->stop();
    // What the view still does, such as to close an editor, is no service any more.
    m_form->modelView->disconnect(this);
    m_model->disconnect(this);
    m_workings->leave(m_form->modelView, m_model, m_delegate);
}

bool IEDModelView::init()
{
    // A service may let the host go on meanwhile, and so may the box.
    const BrowserWorkings::Use use(m_workings);
    const QPointer<IEDModelView> self(this);
    QByteArray bytes;
    QString error;
    OperationResult result = OperationSucceeded;
    {
        const BusyCursor busy;
        result = m_controller.getIEDModel(m_deviceNo, bytes, error);
    }
    if (!self)
        return false;
    if (result != OperationSucceeded) {
        // Without a model there is nothing to work with, whatever the reason.
        reportFailure(this, OperationDriverUnreachable, error, failureTexts());
        return false;
    }

    QDataStream stream(bytes);
    m_device.fromStream(stream);
    if (stream.status() != QDataStream::Ok)
        tellThatTheModelIsNotWhole();
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
    const BrowserWorkings::Use use(m_workings);
    const std::unique_ptr<QMenu> menu(node ? createTaskMenu(node) : new QMenu);
    const ModalLife life(menu.get(), this);
    menu->exec(m_form->modelView->viewport()->mapToGlobal(pos));
}

void IEDModelView::slotExpanded(const QModelIndex &index)
{
    m_form->modelView->makeRoomForTimes(index);
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

void IEDModelView::readData()
{
    const IEDNode *node = currentNode();
    if (!node)
        return;

    if (const DataSet *dataSet = node->dataSet()) {
        const bool heldByNode = dataSet->state == 0;
        const QString ldName = heldByNode ? IEDModel::logicalDeviceName(node) : QString();
        const QString reference = heldByNode ? nodeDataSetReference(node) : dataSet->name;
        request([&](QString &error) {
            return m_controller.readDataSetValue(m_deviceNo, ldName, reference, error);
        });
        return;
    }

    const BrowserWorkings::Use use(m_workings);
    const QPointer<IEDModelView> self(this);
    QStringList references;
    if (const LogicalNode *logicalNode = node->logicalNode()) {
        SelectFCDialog picker(this);
        ModalLife life(&picker);
        picker.setFCList(logicalNode->posibleFC());
        if (life.exec() != QDialog::Accepted || !self)
            return;
        references << logicalNode->name + QLatin1Char('$') + picker.selectedFC();
    } else if (node->type == DataObjectNode || node->type == DataAttributeNode) {
        references = variableReferences(node);
    } else {
        return;
    }
    const QString ldName = IEDModel::logicalDeviceName(node);
    request([&](QString &error) {
        return m_controller.readVariable(m_deviceNo, ldName, references, error);
    });
}

void IEDModelView::writeData() {}

void IEDModelView::selectCo()
{
    control(&IEC61850ControllerInterface::selectObject, {4}, ControlCheck::Offered);
}

void IEDModelView::operateCo()
{
    control(&IEC61850ControllerInterface::controlObject, {1, 2, 3}, ControlCheck::Offered);
}

void IEDModelView::openReport()
{
    IEDNode *node = currentNode();
    ReportControlBlock *block = node ? node->reportControl() : nullptr;
    if (!block)
        return;
    const BrowserWorkings::Use use(m_workings);
    const QPointer<IEDModelView> self(this);
    if (m_offline) {
        ReportControl dialog(offlineReportBlock(*block), this);
        ModalLife(&dialog).exec();
        return;
    }

    QStringList dataSetNames;
    if (const LogicalNode *logicalNode = node->parent->parent->logicalNode()) {
        for (const DataSet *dataSet : logicalNode->dataSetGroup->dataSets)
            dataSetNames << dataSet->name;
    }
    ReportControl dialog(m_deviceNo, 0, &m_controller, this);
    ModalLife life(&dialog);
    dialog.setReportName(IEDModel::logicalDeviceName(node), block->reference, dataSetNames);
    if (!dialog.init())
        return;
    life.exec();
    if (!self)
        return;
    block->enabled = dialog.reportEnabled();
    m_form->modelView->update(m_model->indexOf(node));
}

void IEDModelView::readSGCB()
{
    const IEDNode *node = currentNode();
    if (!node)
        return;
    const QString ldName = IEDModel::logicalDeviceName(node);
    QList<NameVaildValue> blocks;
    request([&](QString &error) {
        return m_controller.getSGCBBlock(m_deviceNo, ldName, blocks, error);
    });
}

void IEDModelView::cancelCo()
{
    control(&IEC61850ControllerInterface::cancelObject, {2}, ControlCheck::Locked);
}

void IEDModelView::control(ControlOperation operation, std::initializer_list<quint8> modelsAsking,
                           ControlCheck check)
{
    const IEDNode *node = currentNode();
    const DataObject *dataObject = node ? node->dataObject() : nullptr;
    if (!dataObject)
        return;

    const BrowserWorkings::Use use(m_workings);
    const QPointer<IEDModelView> self(this);
    const quint8 ctlModel = controlModel(*dataObject);
    ControlBlock block;
    if (std::find(modelsAsking.begin(), modelsAsking.end(), ctlModel) != modelsAsking.end()) {
        ControlCo dialog(node, &m_templates, m_templates.entries(QStringLiteral("Check")),
                         m_templates.entries(QStringLiteral("orCat")),
                         check == ControlCheck::Locked, this);
        ModalLife life(&dialog);
        QString fault;
        do {
            if (life.exec() != QDialog::Accepted || !self)
                return;
            fault = dialog.faultOfTypedValue();
            if (!fault.isEmpty())
                showWarning(this, failureTexts().title, fault);
        } while (!fault.isEmpty());
        block = dialog.getControlBlock();
    }
    block.objectReference =
        QStringLiteral("%1$CO$%2").arg(IEDModel::logicalNodeName(node), dataObject->name);
    block.controlModel = ctlModel;

    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    block.toStream(stream);
    const QString ldName = IEDModel::logicalDeviceName(node);
    request([&](QString &error) {
        return (m_controller.*operation)(m_deviceNo, ldName, block.objectReference, bytes, error);
    });
}

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
    m_form->modelView->makeRoomForTimes(index, true);
    slotExpanded(index);
}

void IEDModelView::openSGCB()
{
    const IEDNode *node = currentNode();
    const SettingGroupControl *settingGroup = node ? node->settingGroup() : nullptr;
    if (!settingGroup)
        return;
    const BrowserWorkings::Use use(m_workings);
    if (m_offline) {
        OfflineSGCB dialog(nullptr);
        dialog.setValues(settingGroup->numOfSG, settingGroup->activeGroup);
        ModalLife(&dialog, this).exec();
        return;
    }
    SGCBDialog dialog(&m_controller, this);
    ModalLife life(&dialog);
    if (dialog.initSGCB(m_deviceNo, IEDModel::logicalDeviceName(node)))
        life.exec();
}

void IEDModelView::collapseChild()
{
    const QModelIndex current = m_form->modelView->currentIndex();
    if (current.isValid())
        m_form->modelView->collapseRecursively(current);
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

void IEDModelView::createDataSet()
{
    IEDNode *node = currentNode();
    if (!node)
        return;
    const bool nonPersistent = sender() == m_createNonPersistentDataSetAction;
    if (!nonPersistent && node->type != DataSetGroupNode)
        return;

    const BrowserWorkings::Use use(m_workings);
    const QPointer<IEDModelView> self(this);
    DatasetSelectWidget picker(this);
    ModalLife life(&picker);
    picker.setDevice(&m_device);
    if (life.exec() != QDialog::Accepted || !self)
        return;

    const QString name = picker.dataSetName();
    const QStringList members = picker.members();
    const QString ldName = IEDModel::logicalDeviceName(node);
    const QString reference =
        nonPersistent ? name : IEDModel::logicalNodeName(node) + QLatin1Char('$') + name;
    const bool created = request([&](QString &error) {
        return m_controller.createDataSet(m_deviceNo, ldName, reference,
                                          members.join(QLatin1Char(';')), nonPersistent ? 1 : 0,
                                          error);
    });
    if (!created)
        return;
    const TreeViewState state(*m_form->modelView);
    const IEDNode *parentNode = nonPersistent ? IEDModel::rootNode(node) : node;
    m_model->insertDataSet(parentNode, name, members);
    m_attributeIndex = m_model->attributeIndex();
    state.restore(*m_form->modelView);
}

void IEDModelView::deleteDataSet()
{
    const IEDNode *node = currentNode();
    const DataSet *dataSet = node ? node->dataSet() : nullptr;
    if (!dataSet)
        return;
    const QString ldName = IEDModel::logicalDeviceName(node);
    const QString reference = dataSet->state == 0 ? nodeDataSetReference(node) : dataSet->name;
    const bool deleted = request([&](QString &error) {
        return m_controller.deleteDataSet(m_deviceNo, ldName, reference, error);
    });
    if (!deleted)
        return;
    const TreeViewState state(*m_form->modelView);
    m_model->removeDataSet(node);
    m_attributeIndex = m_model->attributeIndex();
    state.restore(*m_form->modelView);
}

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

void IEDModelView::readDataSetList()
{
    const IEDNode *node = currentNode();
    if (!node)
        return;
    const QString ldName = IEDModel::logicalDeviceName(node);
    QList<NameVaildValue> dataSets;
    request([&](QString &error) {
        return m_controller.getDataSetList(m_deviceNo, ldName, dataSets, error);
    });
}

void IEDModelView::readDataSetDirectory()
{
    const IEDNode *node = currentNode();
    if (!node)
        return;
    const DataSet *dataSet = node->dataSet();
    const QString ldName = IEDModel::logicalDeviceName(node);
    const QString reference =
        dataSet && dataSet->state == 0 ? nodeDataSetReference(node) : QString();
    QList<NameVaildValue> members;
    request([&](QString &error) {
        return m_controller.getDataSetDirectory(m_deviceNo, ldName, reference, members, error);
    });
}

void IEDModelView::readXRCB()
{
    const IEDNode *node = currentNode();
    const LogicalNode *logicalNode = node && node->parent ? node->parent->logicalNode() : nullptr;
    if (!logicalNode)
        return;
    const QString ldName = IEDModel::logicalDeviceName(node);
    const QString kind = sender() == m_bufferedReportsAction ? bufferedKind : unbufferedKind;
    QList<NameVaildValue> blocks;
    request([&](QString &error) {
        return m_controller.getXRCB(m_deviceNo, ldName, logicalNode->name, kind, blocks, error);
    });
}

void IEDModelView::readServerDirectory()
{
    if (!currentNode())
        return;
    QList<NameVaildValue> logicalDevices;
    request([&](QString &error) {
        return m_controller.getServerDirectory(m_deviceNo, logicalDevices, error);
    });
}

void IEDModelView::readLogicalDevice()
{
    const IEDNode *node = currentNode();
    const LogicalDevice *logicalDevice = node ? node->logicalDevice() : nullptr;
    if (!logicalDevice)
        return;
    QList<NameVaildValue> logicalNodes;
    request([&](QString &error) {
        return m_controller.getLogicalDeviceDirectory(m_deviceNo, logicalDevice->name, logicalNodes,
                                                      error);
    });
}

void IEDModelView::readLogicalNode()
{
    const IEDNode *node = currentNode();
    const LogicalNode *logicalNode = node ? node->logicalNode() : nullptr;
    if (!logicalNode)
        return;
    const QString ldName = IEDModel::logicalDeviceName(node);
    QList<NameVaildValue> names;
    request([&](QString &error) {
        return m_controller.getLogicalNodeDirectory(m_deviceNo, ldName, logicalNode->name, names,
                                                    error);
    });
}

void IEDModelView::readDataDirectory()
{
    const IEDNode *node = currentNode();
    if (!node)
        return;
    const QString ldName = IEDModel::logicalDeviceName(node);
    const QString reference = variableReferences(node).join(QLatin1Char(';'));
    QList<NameVaildValue> names;
    request([&](QString &error) {
        return m_controller.getDataDirectory(m_deviceNo, ldName, reference, names, error);
    });
}

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

void IEDModelView::tellThatTheModelIsNotWhole()
{
    auto *const icon = new QLabel;
    icon->setPixmap(style()
                        ->standardIcon(QStyle::SP_MessageBoxWarning)
                        .pixmap(style()->pixelMetric(QStyle::PM_SmallIconSize)));
    auto *const sentence = new QLabel(tr("The description of this device is not whole: the tree "
                                         "shows what could be read of it."));
    sentence->setObjectName(QStringLiteral("modelNotWhole"));
    sentence->setWordWrap(true);
    auto *const line = new QHBoxLayout;
    line->addWidget(icon);
    line->addWidget(sentence, 1);
    m_form->verticalLayout->insertLayout(0, line);
}

template <typename Call>
bool IEDModelView::request(Call call)
{
    // A host may ask somebody before the call goes out; meanwhile the window can come to its end.
    const BrowserWorkings::Use use(m_workings);
    const QPointer<IEDModelView> self(this);
    QString error;
    OperationResult result = OperationSucceeded;
    {
        const BusyCursor busy;
        result = call(error);
    }
    return self && !reportFailure(this, result, error, failureTexts()) && self;
}
