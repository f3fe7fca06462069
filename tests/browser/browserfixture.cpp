// SPDX-License-Identifier: Apache-2.0
#include "browserfixture.h"

#include "support/generateddevice.h"

#include <QtWidgets/QAction>

namespace {

DAO *addAttribute(QList<DAO *> &siblings, const QString &path, const char *name, const char *fc,
                  const char *basicType, const QVariant &value = {}, const char *enumType = "")
{
    auto *attribute = new DataAttribute;
    attribute->name = QLatin1String(name);
    attribute->fc = QLatin1String(fc);
    attribute->basicType = QLatin1String(basicType);
    attribute->enumTypeId = QLatin1String(enumType);
    attribute->value = value;
    // "LD/LN.DO.path" becomes "LD/LN$FC$DO$path".
    QString reference = path + QLatin1Char('.') + attribute->name;
    const int afterNode = reference.indexOf(QLatin1Char('.'));
    reference.insert(afterNode, QLatin1Char('.') + attribute->fc);
    attribute->reference = reference.replace(QLatin1Char('.'), QLatin1Char('$'));
    auto *dao = new DAO;
    dao->attribute = attribute;
    siblings << dao;
    return dao;
}

DAO *addSubObject(QList<DAO *> &siblings, const char *name, const char *type)
{
    auto *dao = new DAO;
    dao->subDataObject = new SubDataObject{QLatin1String(name), QLatin1String(type)};
    siblings << dao;
    return dao;
}

DataObject *addDataObject(LogicalNode *logicalNode, const char *name, const char *type)
{
    auto *dataObject = new DataObject;
    dataObject->name = QLatin1String(name);
    dataObject->type = QLatin1String(type);
    logicalNode->dataObjects << dataObject;
    return dataObject;
}

LogicalNode *addLogicalNode(LogicalDevice *logicalDevice, const char *name, const char *lnClass)
{
    auto *logicalNode = new LogicalNode;
    logicalNode->name = QLatin1String(name);
    logicalNode->lnClass = QLatin1String(lnClass);
    logicalDevice->logicalNodes << logicalNode;
    return logicalNode;
}

DataSet *makeDataSet(const char *name, quint8 state, const QStringList &members)
{
    auto *dataSet = new DataSet;
    dataSet->name = QLatin1String(name);
    dataSet->state = state;
    dataSet->addElement(members);
    return dataSet;
}

void addReportControl(LogicalNode *logicalNode, const char *name, const char *type)
{
    auto *block = new ReportControlBlock;
    block->name = QLatin1String(name);
    block->type = QLatin1String(type);
    block->reference =
        logicalNode->name + QLatin1Char('$') + block->type + QLatin1Char('$') + block->name;
    block->rptId = QStringLiteral("Bay/") + block->name;
    block->dataSet = QStringLiteral("Positions");
    block->confRev = 3;
    logicalNode->reportControls->blocks << block;
}

} // namespace

std::unique_ptr<PhysicalDevice> makeBay()
{
    auto device = std::make_unique<PhysicalDevice>();
    device->name = QStringLiteral("BAY");
    auto *ctrl = new LogicalDevice;
    ctrl->name = QStringLiteral("BAYCTRL");
    device->logicalDevices << ctrl;

    LogicalNode *lln0 = addLogicalNode(ctrl, "LLN0", "LLN0");
    lln0->settingGroup = new SettingGroupControl;
    lln0->settingGroup->name = QStringLiteral("SGCB");
    lln0->settingGroup->numOfSG = 4;
    lln0->settingGroup->activeGroup = 2;
    lln0->dataSetGroup->dataSets << makeDataSet("Positions", 0,
                                                {QStringLiteral("BAYCTRL/XCBR1$ST$Pos$stVal"),
                                                 QStringLiteral("BAYCTRL/NOWHERE$ST$Pos")})
                                 << makeDataSet(
                                        "Measurements", 0,
                                        {QStringLiteral("BAYCTRL/MMXU1$MX$A$phsA$cVal$mag$f")});
    addReportControl(lln0, "brcb01", "BR");
    addReportControl(lln0, "urcb01", "RP");

    LogicalNode *xcbr = addLogicalNode(ctrl, "XCBR1", "XCBR");
    DataObject *pos = addDataObject(xcbr, "Pos", "DPC");
    const QString posPath = QStringLiteral("BAYCTRL/XCBR1.Pos");
    addAttribute(pos->attributes, posPath, "stVal", "ST", "Dbpos", 2);
    addAttribute(pos->attributes, posPath, "q", "ST", "Quality", QStringLiteral("0000000000000"));
    addAttribute(pos->attributes, posPath, "ctlModel", "CF", "Enum", 1, "ctlModel");
    addAttribute(pos->attributes, posPath, "d", "DC", "VisString255", QStringLiteral("Breaker"));
    DAO *oper = addAttribute(pos->attributes, posPath, "Oper", "CO", "Struct");
    addAttribute(oper->children, posPath + QStringLiteral(".Oper"), "ctlVal", "CO", "BOOLEAN");

    LogicalNode *mmxu = addLogicalNode(ctrl, "MMXU1", "MMXU");
    DataObject *current = addDataObject(mmxu, "A", "WYE");
    DAO *phsA = addSubObject(current->attributes, "phsA", "CMV");
    const QString phsAPath = QStringLiteral("BAYCTRL/MMXU1.A.phsA");
    DAO *cVal = addAttribute(phsA->children, phsAPath, "cVal", "MX", "Struct");
    DAO *mag =
        addAttribute(cVal->children, phsAPath + QStringLiteral(".cVal"), "mag", "MX", "Struct");
    addAttribute(mag->children, phsAPath + QStringLiteral(".cVal.mag"), "f", "MX", "FLOAT32",
                 12.5F);
    addAttribute(phsA->children, phsAPath, "db", "CF", "INT32U", 100U);

    LogicalNode *ggio = addLogicalNode(ctrl, "GGIO1", "GGIO");
    DataObject *indication = addDataObject(ggio, "Ind1", "SPS");
    addAttribute(indication->attributes, QStringLiteral("BAYCTRL/GGIO1.Ind1"), "stVal", "ST",
                 "BOOLEAN", true);
    addDataObject(ggio, "Empty", "VSD");

    device->dataSets << makeDataSet("Temporary", 1,
                                    {QStringLiteral("BAYCTRL/GGIO1$ST$Ind1$stVal")});
    device->rebuildIndex();
    return device;
}

QString FixedConsole::currentAddress()
{
    return address;
}

OperationResult FixedConsole::getLoc(long driverNo, long deviceNo, QString &location)
{
    asked << qMakePair(driverNo, deviceNo);
    location = QStringLiteral("Bay 1");
    return OperationSucceeded;
}

BrowserFixture::BrowserFixture(std::unique_ptr<PhysicalDevice> shownDevice)
    : device(std::move(shownDevice))
    , m_registration(console.address, service)
{
    // As the plug-in does when it is initialised.
    qRegisterMetaType<QList<MMSValue>>();
    context.console = &console;
    context.mainWindow = &mainWindow;
}

std::unique_ptr<IEDModelView> BrowserFixture::open()
{
    service->model = deviceBytes(*device);
    auto view = std::make_unique<IEDModelView>(driverNo, deviceNo, 5, &context, nullptr);
    if (!view->init())
        qFatal("The browser could not fetch its model.");
    return view;
}

QModelIndex BrowserFixture::find(const IEDModelView &view, const QStringList &names, int column)
{
    const QAbstractItemModel *model = tree(view)->model();
    QModelIndex index = model->index(0, 0);
    for (const QString &name : names) {
        QModelIndex found;
        for (int row = 0; row < model->rowCount(index) && !found.isValid(); ++row) {
            const QModelIndex child = model->index(row, 0, index);
            if (child.data().toString() == name)
                found = child;
        }
        if (!found.isValid())
            qFatal("The tree has no %s.", qPrintable(names.join(QLatin1Char('/'))));
        index = found;
    }
    return index.sibling(index.row(), column);
}

QModelIndex BrowserFixture::select(const IEDModelView &view, const QStringList &names, int column)
{
    const QModelIndex index = find(view, names, column);
    tree(view)->scrollTo(index);
    tree(view)->setCurrentIndex(index);
    return index;
}

QTreeView *BrowserFixture::tree(const IEDModelView &view)
{
    return view.findChild<QTreeView *>(QStringLiteral("modelView"));
}

QAction *BrowserFixture::action(const IEDModelView &view, const QString &text)
{
    for (QAction *found : view.findChildren<QAction *>()) {
        if (found->text() == text)
            return found;
    }
    qFatal("The browser has no action %s.", qPrintable(text));
}
