// SPDX-License-Identifier: Apache-2.0
#include "iedmodelview.h"

#include "nodeexplanations.h"
#include "nodemenu.h"
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

#include <utility>

namespace {

constexpr int valueColumn = 1;
constexpr int valueColumnWidth = 200;

} // namespace

IEDModelView::IEDModelView(int driverNo, int deviceNo, int /*taskParameter*/,
                           HostTaskContext *context, QWidget *parent)
    : QDialog(parent)
    , m_form(std::make_unique<Ui::IEDModelView>())
    , m_workings(new BrowserWorkings(deviceNo))
    , m_templates(m_workings->templates)
    , m_hostContext(context)
    , m_controller(m_workings->controller)
    , m_services(m_workings->services)
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
    {
        // One resize at the end instead of one for each node that is expanded.
        const QSignalBlocker quiet(m_form->modelView);
        m_form->modelView->expandToDepth(1);
    }
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
    const IEDNode *current = currentNode();
    return m_menu->create(node->type, current ? current->dataObject() : nullptr);
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
    const NodeServices::Variable variable = NodeServices::variableOf(node);
    const auto write = [&](QString &error) { return m_services.write(variable, value, error); };
    if (node->dataAttribute() && !request(write))
        return;
    request([&](QString &error) { return m_services.read(variable, error); });
}

void IEDModelView::readData()
{
    const IEDNode *node = currentNode();
    const LogicalNode *logicalNode = node ? node->logicalNode() : nullptr;
    if (!logicalNode) {
        runService(static_cast<Service>(&NodeServices::read));
        return;
    }
    const BrowserWorkings::Use use(m_workings);
    const QPointer<IEDModelView> self(this);
    SelectFCDialog picker(this);
    ModalLife life(&picker);
    picker.setFCList(logicalNode->posibleFC());
    if (life.exec() != QDialog::Accepted || !self)
        return;
    const QString constraint = picker.selectedFC();
    request([&](QString &error) { return m_services.readConstraint(node, constraint, error); });
}

void IEDModelView::writeData() {}

void IEDModelView::selectCo()
{
    control(ControlService::Select);
}

void IEDModelView::operateCo()
{
    control(ControlService::Operate);
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
        ReportControl dialog(offlineReportControlBlock(*block), this);
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
    runService(&NodeServices::settingGroupBlock);
}

void IEDModelView::cancelCo()
{
    control(ControlService::Cancel);
}

void IEDModelView::control(ControlService service)
{
    const IEDNode *node = currentNode();
    const DataObject *dataObject = node ? node->dataObject() : nullptr;
    if (!dataObject)
        return;

    const BrowserWorkings::Use use(m_workings);
    const QPointer<IEDModelView> self(this);
    const quint8 ctlModel = controlModel(*dataObject);
    ControlBlock wanted;
    if (asksForRequest(service, ctlModel)) {
        ControlCo dialog(node, &m_templates, m_templates.entries(QStringLiteral("Check")),
                         m_templates.entries(QStringLiteral("orCat")),
                         service == ControlService::Cancel, this);
        ModalLife life(&dialog);
        QString fault;
        do {
            if (life.exec() != QDialog::Accepted || !self)
                return;
            fault = dialog.faultOfTypedValue();
            if (!fault.isEmpty())
                showWarning(this, failureTexts().title, fault);
        } while (!fault.isEmpty());
        wanted = dialog.getControlBlock();
    }
    wanted.controlModel = ctlModel;
    request([&](QString &error) { return m_services.control(service, node, wanted, error); });
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
    const bool nonPersistent = sender() == m_menu->action(NodeMenu::CreateNonPersistentDataSet);
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
    const bool created = request([&](QString &error) {
        return m_services.createDataSet(node, name, members, nonPersistent, error);
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
    if (!node || !node->dataSet())
        return;
    const bool deleted =
        request([&](QString &error) { return m_services.deleteDataSet(node, error); });
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
    runService(&NodeServices::dataSetList);
}

void IEDModelView::readDataSetDirectory()
{
    runService(&NodeServices::dataSetDirectory);
}

void IEDModelView::readXRCB()
{
    if (!m_menu)
        return;
    const bool buffered = sender() == m_menu->action(NodeMenu::BufferedReports);
    runService(buffered ? &NodeServices::bufferedReports : &NodeServices::unbufferedReports);
}

void IEDModelView::readServerDirectory()
{
    runService(&NodeServices::serverDirectory);
}

void IEDModelView::readLogicalDevice()
{
    runService(&NodeServices::logicalDeviceDirectory);
}

void IEDModelView::readLogicalNode()
{
    runService(&NodeServices::logicalNodeDirectory);
}

void IEDModelView::readDataDirectory()
{
    runService(&NodeServices::dataDirectory);
}

void IEDModelView::createActions()
{
    m_menu = new NodeMenu(this);
    const std::pair<NodeMenu::Entry, void (IEDModelView::*)()> services[] = {
        {NodeMenu::Read, &IEDModelView::readData},
        {NodeMenu::Read, &IEDModelView::writeData},
        {NodeMenu::Select, &IEDModelView::selectCo},
        {NodeMenu::Operate, &IEDModelView::operateCo},
        {NodeMenu::Cancel, &IEDModelView::cancelCo},
        {NodeMenu::ExpandAll, &IEDModelView::expandChild},
        {NodeMenu::CollapseAll, &IEDModelView::collapseChild},
        {NodeMenu::OpenReportControl, &IEDModelView::openReport},
        {NodeMenu::OpenSettingGroupControl, &IEDModelView::openSGCB},
        {NodeMenu::Locate, &IEDModelView::locate},
        {NodeMenu::CreatePersistentDataSet, &IEDModelView::createDataSet},
        {NodeMenu::CreateNonPersistentDataSet, &IEDModelView::createDataSet},
        {NodeMenu::DeleteDataSet, &IEDModelView::deleteDataSet},
        {NodeMenu::DataSetList, &IEDModelView::readDataSetList},
        {NodeMenu::DataSetDirectory, &IEDModelView::readDataSetDirectory},
        {NodeMenu::BufferedReports, &IEDModelView::readXRCB},
        {NodeMenu::UnbufferedReports, &IEDModelView::readXRCB},
        {NodeMenu::SettingGroupBlock, &IEDModelView::readSGCB},
        {NodeMenu::ServerDirectory, &IEDModelView::readServerDirectory},
        {NodeMenu::LogicalDeviceDirectory, &IEDModelView::readLogicalDevice},
        {NodeMenu::LogicalNodeDirectory, &IEDModelView::readLogicalNode},
        {NodeMenu::DataDirectory, &IEDModelView::readDataDirectory},
    };
    for (const auto &[entry, slot] : services)
        connect(m_menu->action(entry), &QAction::triggered, this, slot);
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

void IEDModelView::runService(Service service)
{
    if (const IEDNode *node = currentNode())
        request([&](QString &error) { return (m_services.*service)(node, error); });
}
