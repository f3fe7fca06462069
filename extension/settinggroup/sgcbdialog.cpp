// SPDX-License-Identifier: Apache-2.0
#include "sgcbdialog.h"

#include "toolkit/busycursor.h"
#include "toolkit/failurereport.h"
#include "toolkit/modallife.h"
#include "ui_sgcbdialog.h"

#include <propertybrowser/qtvarianteditorfactory.h>
#include <propertybrowser/qtvariantproperty.h>
#include <propertybrowser/qtvariantpropertymanager.h>
#include <remoteclient/iec61850controllerinterface.h>

#include <QtCore/QEvent>
#include <QtCore/QTimer>

namespace {

constexpr int firstReadAfterMs = 500;

/// A controller call with the busy cursor shown until it has returned.
template <typename Call>
OperationResult performed(Call call)
{
    const BusyCursor busy;
    return call();
}

} // namespace

SGCBDialog::SGCBDialog(IEC61850ControllerInterface *controller, QWidget *parent)
    : QDialog(parent)
    , m_form(std::make_unique<Ui::SGCBDialog>())
    , m_controller(controller)
{
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    m_form->setupUi(this);
    setup();
    connect(m_form->execute, &QPushButton::released, this, &SGCBDialog::execute);
    connect(m_form->close, &QPushButton::released, this, &QDialog::reject);

    m_form->acCombo->installEventFilter(this);
    m_form->edCombo->installEventFilter(this);
    m_form->treeWidget->setFocus();
}

SGCBDialog::~SGCBDialog() = default;

bool SGCBDialog::initSGCB(int deviceNo, const QString &sgcbRef)
{
    m_deviceNo = deviceNo;
    m_sgcbRef = sgcbRef;

    SGCB block;
    QString error;
    const OperationResult result =
        performed([&] { return m_controller->getSGCB(m_deviceNo, m_sgcbRef, block, error); });
    if (result != OperationSucceeded) {
        disableServices();
        report(result, error);
        return false;
    }
    QTimer::singleShot(firstReadAfterMs, this, &SGCBDialog::refreshSettingValue);
    return true;
}

void SGCBDialog::setActiveSettingGroup()
{
    QString error;
    const int group = m_form->acCombo->currentIndex() + 1;
    const OperationResult result = performed(
        [&] { return m_controller->selectActiveSG(m_deviceNo, m_sgcbRef, group, error); });
    if (!report(result, error))
        readSGCB(QStringLiteral("SG"));
}

void SGCBDialog::setEditSettingGroup()
{
    QString error;
    const int group = m_form->acCombo->currentIndex();
    const OperationResult result =
        performed([&] { return m_controller->selectEditSG(m_deviceNo, m_sgcbRef, group, error); });
    if (!report(result, error))
        readSGCB(QStringLiteral("SE"));
}

void SGCBDialog::refreshSettingValue()
{
    if (ModalLife::hasEnded(this))
        return;
    const auto indexChanged = qOverload<int>(&QComboBox::currentIndexChanged);
    disconnect(m_form->acCombo, indexChanged, this, &SGCBDialog::setActiveSettingGroup);
    disconnect(m_form->edCombo, indexChanged, this, &SGCBDialog::setEditSettingGroup);

    SGCB block;
    QString error;
    const OperationResult result =
        performed([&] { return m_controller->getSGCB(m_deviceNo, m_sgcbRef, block, error); });
    if (result != OperationSucceeded) {
        block = SGCB();
        disableServices();
        report(result, error);
        if (ModalLife::hasEnded(this))
            return;
        reject();
    }

    m_form->acCombo->clear();
    m_form->edCombo->clear();
    m_form->sgcbName->setText(block.name);
    for (int group = 0; group < block.numOfSG; ++group) {
        m_form->acCombo->addItem(QStringLiteral("%1").arg(group + 1));
        m_form->edCombo->addItem(QStringLiteral("%1").arg(group));
    }

    readSGCB(QStringLiteral("SG"));

    connect(m_form->acCombo, indexChanged, this, &SGCBDialog::setActiveSettingGroup);
    connect(m_form->edCombo, indexChanged, this, &SGCBDialog::setEditSettingGroup);
}

void SGCBDialog::readSGCB(const QString &fc)
{
    m_form->treeWidget->clear();
    m_manager->clear();

    QList<SGCBValue> values;
    QString error;
    const OperationResult result = performed(
        [&] { return m_controller->getSGCBValue(m_deviceNo, m_sgcbRef, fc, values, error); });
    if (report(result, error))
        return;

    for (const SGCBValue &setting : qAsConst(values)) {
        if (!setting.value.isValid())
            continue;
        const int type = setting.value.userType();
        QtVariantProperty *property = m_manager->addProperty(type, setting.name);
        if (!property && type == QMetaType::Float) {
            property = m_manager->addProperty(QMetaType::Double, setting.name);
            if (!property)
                showWarning(this, tr("Fail"), tr("Unsupported Type"));
            else
                property->setSinglePrecision(true);
        }
        if (!property)
            continue;
        property->setValue(setting.value);
        m_form->treeWidget->addProperty(property);
    }
}

void SGCBDialog::execute()
{
    QList<SGCBValue> values;
    const QList<QtProperty *> properties = m_form->treeWidget->properties();
    for (const QtProperty *property : properties)
        values.append({property->propertyName(), m_manager->value(property)});

    QString error;
    const OperationResult result = performed(
        [&] { return m_controller->setSGCBValues(m_deviceNo, m_sgcbRef, values, error); });
    report(result, error);
}

void SGCBDialog::setup()
{
    QtTreePropertyBrowser *browser = m_form->treeWidget;
    browser->clear();
    delete m_factory;
    delete m_manager;
    m_manager = new QtVariantPropertyManager(this);
    m_factory = new QtVariantEditorFactory(this);

    browser->setHeaderVisible(true);
    browser->setAlternatingRowColors(true);
    browser->setRootIsDecorated(false);
    browser->setResizeMode(QtTreePropertyBrowser::ResizeToContents);
    browser->setPropertiesWithoutValueMarked(true);
    browser->setFactoryForManager(m_manager, m_factory);
}

bool SGCBDialog::eventFilter(QObject *watched, QEvent *event)
{
    // Turning the wheel over a list must not switch the setting group of a device.
    if (event->type() == QEvent::Wheel) {
        event->ignore();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

bool SGCBDialog::report(OperationResult result, const QString &error)
{
    return reportFailure(this, result, error, {tr("Fail"), tr("Cannot connect to driver")});
}

void SGCBDialog::disableServices()
{
    m_form->acCombo->setEnabled(false);
    m_form->edCombo->setEnabled(false);
    m_form->execute->setEnabled(false);
}
