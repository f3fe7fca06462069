// SPDX-License-Identifier: Apache-2.0
#include "controlco.h"

#include "ui_controlco.h"

#include "model/iedmodel.h"
#include "model/iednode.h"
#include "model/valuepresentation.h"

#include <devicemodel/dataobject.h>
#include <propertybrowser/numberguard.h>

#include <QtGui/QKeyEvent>

namespace {

constexpr int defaultCategoryIndex = 3;
constexpr double currentValueOpacity = 0.75;

void addBooleans(QComboBox *box)
{
    box->addItem(QStringLiteral("False"), 0);
    box->addItem(QStringLiteral("true"), 1);
}

void addEntries(QComboBox *box, const ControlCo::Entries &entries)
{
    for (const SclTemplateStore::Entry &entry : entries)
        box->addItem(entry.text, entry.ordinal);
}

int currentCode(const QComboBox *box)
{
    return box->currentData(Qt::UserRole).toInt();
}

/// Fill a list with what the attribute can be, its value the current entry.
/// \return false when the attribute's type is not one that is chosen from a list
bool offerValues(QComboBox *box, const DataAttribute &attribute,
                 const SclTemplateStore &descriptions)
{
    const QString &type = attribute.basicType;
    const int value = attribute.value.toInt();
    if (type == QLatin1String("Enum") || type == QLatin1String("Dbpos") ||
        type == QLatin1String("Check")) {
        addEntries(box, descriptions.entries(
                            attribute.enumTypeId.isEmpty() ? type : attribute.enumTypeId));
        int current = 0;
        for (int index = 0; index < box->count(); ++index) {
            if (box->itemData(index, Qt::UserRole).toInt() == value)
                current = index;
        }
        box->setCurrentIndex(current);
        return true;
    }
    if (type == QLatin1String("BOOLEAN")) {
        addBooleans(box);
        box->setCurrentIndex(value != 0 ? 1 : 0);
        return true;
    }
    return false;
}

const DataAttribute *attributeOf(const DAO *dao)
{
    return dao ? dao->attribute : nullptr;
}

} // namespace

ControlCo::ControlCo(const IEDNode *node, const SclTemplateStore *descriptions,
                     const Entries &checkList, const Entries &orCatList, bool lockCheck,
                     QWidget *parent)
    : QDialog(parent)
    , m_form(std::make_unique<Ui::ControlCo>())
{
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    m_form->setupUi(this);
    m_form->ctrEdit->hide();
    m_form->stValDisp->hide();

    m_form->objname->setText(IEDModel::logicalNodeName(node) + QLatin1Char('.') + node->name());
    m_form->objname->setToolTip(m_form->objname->text().toHtmlEscaped());
    addEntries(m_form->check, checkList);
    m_form->check->setEnabled(!lockCheck);
    addEntries(m_form->category, orCatList);
    m_form->category->setCurrentIndex(defaultCategoryIndex);
    addBooleans(m_form->test);
    m_form->stVal->setEnabled(false);
    // Not to be chosen from, but the value that the operator decides by: greyed out only a little.
    QPalette readable = m_form->stVal->palette();
    for (const QPalette::ColorRole role : {QPalette::Text, QPalette::ButtonText}) {
        QColor colour = readable.color(QPalette::Active, role);
        colour.setAlphaF(currentValueOpacity);
        readable.setColor(QPalette::Disabled, role, colour);
    }
    m_form->stVal->setPalette(readable);

    const DataObject *dataObject = node->dataObject();
    if (!dataObject)
        return;
    if (const auto *stVal = attributeOf(dataObject->getDAOByName(QStringLiteral("stVal"))))
        showCurrentValue(*stVal, *descriptions);
    const DAO *oper = dataObject->getDAOByName(QStringLiteral("Oper"));
    const DAO *ctlVal = oper ? oper->getDAOByName(QStringLiteral("ctlVal")) : nullptr;
    if (const DataAttribute *attribute = attributeOf(ctlVal))
        showControlValue(*attribute, *descriptions);
}

ControlCo::~ControlCo() = default;

ControlBlock ControlCo::getControlBlock() const
{
    ControlBlock block;
    if (m_listEditor) {
        block.controlValue = currentCode(m_form->ctrValue);
    } else {
        bool isNumber = false;
        const double value = m_form->ctrEdit->text().toDouble(&isNumber);
        block.controlValue = isNumber ? value : 0;
    }
    block.test = static_cast<quint8>(currentCode(m_form->test));
    block.check = static_cast<quint8>(currentCode(m_form->check));
    block.orCat = static_cast<quint8>(currentCode(m_form->category));
    return block;
}

QString ControlCo::faultOfTypedValue()
{
    return m_guard && m_form->ctrEdit->isModified() ? m_guard->faultAtEnd() : QString();
}

void ControlCo::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        const QString fault = faultOfTypedValue();
        if (!fault.isEmpty()) {
            m_form->ctrEdit->setFocus();
            m_guard->tell(fault);
            return;
        }
    }
    QDialog::keyPressEvent(event);
}

void ControlCo::showCurrentValue(const DataAttribute &stVal, const SclTemplateStore &descriptions)
{
    if (offerValues(m_form->stVal, stVal, descriptions))
        return;
    m_form->stValDisp->show();
    m_form->stVal->hide();
    // Such an object is controlled by number, whatever the type of its control value.
    m_listEditor = false;
    m_form->stValDisp->setText(
        QStringLiteral("%1").arg(stVal.value.toDouble(), 0, 'g', -1, QLatin1Char(' ')));
}

void ControlCo::showControlValue(const DataAttribute &ctlVal, const SclTemplateStore &descriptions)
{
    if (offerValues(m_form->ctrValue, ctlVal, descriptions))
        return;
    m_listEditor = false;
    m_form->ctrEdit->show();
    m_form->ctrValue->hide();
    m_guard = new NumberGuard(
        numberRange(ctlVal.basicType).value_or(NumberRange::fraction(NumberRange::Double)),
        m_form->ctrEdit, NumberGuard::Told);
}
