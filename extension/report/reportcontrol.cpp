// SPDX-License-Identifier: Apache-2.0
#include "reportcontrol.h"

#include "reportcodec.h"
#include "ui_reportcontrol.h"

#include "model/streportcontrolblock.h"
#include "toolkit/busycursor.h"
#include "toolkit/failurereport.h"

#include <remoteclient/iec61850controllerinterface.h>

namespace {

const QString bufferedMark = QStringLiteral("$BR$");
const QString purgeMark = QStringLiteral("$br$");

/// A text of the device: cut where it is longer than the form can show, whole in the tool tip.
void showDeviceText(QLabel *label, const QString &text)
{
    label->setText(text);
    label->setToolTip(text.toHtmlEscaped());
}

/// A text in an editor, its beginning in sight.
void showText(QLineEdit *editor, const QString &text)
{
    editor->setText(text);
    editor->home(false);
}

} // namespace

ReportControl::ReportControl(int deviceNo, int /*unused*/, IEC61850ControllerInterface *controller,
                             QWidget *parent)
    : QDialog(parent)
    , m_form(std::make_unique<Ui::ReportControl>())
    , m_deviceNo(deviceNo)
    , m_controller(controller)
{
    initUi();
}

ReportControl::ReportControl(const stReportControlBlock &block, QWidget *parent)
    : QDialog(parent)
    , m_form(std::make_unique<Ui::ReportControl>())
    , m_deviceNo(0)
    , m_controller(nullptr)
{
    buildForm();
    updateOffline(block);
}

ReportControl::~ReportControl() = default;

bool ReportControl::init()
{
    if (!m_controller)
        return false;
    showDeviceText(m_form->control, m_rptName);

    ReportBlock block;
    QString error;
    OperationResult result = OperationSucceeded;
    {
        const BusyCursor busy;
        result = m_controller->getBRCBValues(m_deviceNo, m_ld, m_rptName, block, error);
    }
    if (reportFailure(this, result, error, failureTexts()))
        return false;
    m_block = block;
    updateBlock(m_block);
    return true;
}

void ReportControl::initUi()
{
    buildForm();
    for (const QPushButton *button :
         {m_form->rptidChange, m_form->datasetChange, m_form->triggerChange, m_form->optionChange,
          m_form->integrityChange, m_form->bufferTimeChange, m_form->enableReport, m_form->purge,
          m_form->GI, m_form->reservChange}) {
        connect(button, &QPushButton::released, this, &ReportControl::changeValue);
    }
}

void ReportControl::setReportName(const QString &ld, const QString &rptName,
                                  const QStringList &dataSetName)
{
    m_ld = ld;
    m_rptName = rptName;
    if (!m_rptName.contains(bufferedMark)) {
        m_form->purge->setEnabled(false);
        m_form->useBufferOverflow->setEnabled(false);
        m_form->useEntryID->setEnabled(false);
    }
    m_form->dataSet->addItems(dataSetName);
    m_form->dataSet->setCurrentIndex(-1);
}

void ReportControl::changeValue()
{
    if (!m_controller)
        return;
    const QObject *button = sender();
    const ReportBlock edited = editedBlock();
    if (button == m_form->rptidChange) {
        writeAttribute(QStringLiteral("RptID"), ReportCodec::encodeText(edited.rptId));
    } else if (button == m_form->datasetChange) {
        writeAttribute(QStringLiteral("DatSet"), ReportCodec::encodeText(edited.datSet));
    } else if (button == m_form->triggerChange) {
        writeAttribute(QStringLiteral("TrgOps"), QByteArray(1, static_cast<char>(edited.trgOps)));
    } else if (button == m_form->optionChange) {
        QByteArray bytes;
        for (const quint8 byte : edited.optFlds)
            bytes.append(static_cast<char>(byte));
        writeAttribute(QStringLiteral("OptFlds"), bytes);
    } else if (button == m_form->integrityChange) {
        writeAttribute(QStringLiteral("IntgPd"), ReportCodec::encodeNumber(edited.intgPd));
    } else if (button == m_form->bufferTimeChange) {
        writeAttribute(QStringLiteral("BufTm"), ReportCodec::encodeNumber(edited.bufTm));
    } else if (button == m_form->purge) {
        writeAttribute(QStringLiteral("PurgeBuf"), ReportCodec::encodeFlag(true));
    } else if (button == m_form->GI) {
        writeAttribute(QStringLiteral("GI"), ReportCodec::encodeFlag(true));
    } else if (button == m_form->reservChange) {
        writeAttribute(QStringLiteral("Resv"),
                       ReportCodec::encodeFlag(m_form->reserved->isChecked()));
    } else if (button == m_form->enableReport) {
        if (m_form->enableReport->text() == tr("Enable"))
            enableBlock();
        else
            writeAttribute(QStringLiteral("RptEna"), ReportCodec::encodeFlag(false));
    }
}

void ReportControl::getList() {}

void ReportControl::updateBlock(const ReportBlock &block)
{
    emit reportEnableStateChanged(m_ld, m_rptName, block.rptEna);

    m_form->enableReport->setText(block.rptEna ? tr("Disable") : tr("Enable"));
    m_form->GI->setEnabled(block.rptEna);
    if (m_rptName.contains(purgeMark))
        m_form->purge->setEnabled(block.rptEna);
    if (block.rptEna) {
        // Which settings of an enabled block may change is for the device to say.
        m_form->reserved->setEnabled(false);
    } else {
        for (QWidget *widget : std::initializer_list<QWidget *>{
                 m_form->rptidChange, m_form->datasetChange, m_form->triggerChange,
                 m_form->optionChange, m_form->integrityChange, m_form->bufferTimeChange,
                 m_form->reservChange, m_form->reserved}) {
            widget->setEnabled(true);
        }
    }

    showDeviceText(m_form->rptIdClient, block.clientRptId);
    showDeviceText(m_form->dataSetClient, block.clientDataSet);
    m_form->dataSet->setCurrentIndex(m_form->dataSet->findText(block.datSet));
    m_form->dataSet->lineEdit()->home(false);

    showTriggerOptions(ReportCodec::decodeTriggerOptions(block.trgOps));
    const bool buffered = m_rptName.contains(bufferedMark);
    const OptionalFields fields = ReportCodec::decodeOptionalFields(block.optFldsText, buffered);
    m_form->useSequenceNumber->setChecked(fields.sequenceNumber);
    m_form->useTimeStamp->setChecked(fields.timeStamp);
    m_form->useReasonForInclusion->setChecked(fields.reasonForInclusion);
    m_form->useDataSetName->setChecked(fields.dataSetName);
    m_form->useDataReference->setChecked(fields.dataReference);
    if (buffered) {
        m_form->useBufferOverflow->setChecked(fields.bufferOverflow);
        m_form->useEntryID->setChecked(fields.entryId);
    }
    m_form->useConfigurationRevision->setChecked(fields.configurationRevision);

    m_form->reserved->setChecked(block.resv);
    showText(m_form->name, block.rptId);
    m_form->confRevision->setValue(block.confRev);
    m_form->periodSec->setValue(block.intgPd);
    m_form->bufferTime->setValue(block.bufTm);
}

void ReportControl::selectReportControl(int /*index*/) {}

bool ReportControl::reportEnabled()
{
    return m_block.rptEna;
}

void ReportControl::updateOffline(const stReportControlBlock &block)
{
    for (QWidget *widget : std::initializer_list<QWidget *>{
             m_form->enableReport, m_form->purge, m_form->GI, m_form->rptidChange,
             m_form->datasetChange, m_form->groupBox, m_form->groupBox_2, m_form->groupBox_3,
             m_form->groupBox_4}) {
        widget->setEnabled(false);
    }

    showDeviceText(m_form->rptIdClient, block.rptId);
    showText(m_form->dataSet->lineEdit(), block.datSet);

    m_form->useDataChange->setChecked(block.dataChange);
    m_form->useQualityChange->setChecked(block.qualityChange);
    m_form->useIntegrity->setChecked(block.integrity);
    m_form->useGI->setChecked(block.generalInterrogation);

    m_form->useSequenceNumber->setChecked(block.sequenceNumber);
    m_form->useTimeStamp->setChecked(block.timeStamp);
    m_form->useReasonForInclusion->setChecked(block.reasonForInclusion);
    m_form->useDataSetName->setChecked(block.dataSetName);
    m_form->useBufferOverflow->setChecked(block.bufferOverflow);
    m_form->useEntryID->setChecked(block.entryId);
    m_form->useDataReference->setChecked(block.dataReference);
    m_form->useConfigurationRevision->setChecked(block.configurationRevision);

    showText(m_form->name, block.rptId);
    m_form->confRevision->setValue(block.confRev);
    m_form->periodSec->setValue(block.intgPd);
    m_form->bufferTime->setValue(block.bufTm);
    showDeviceText(m_form->control, block.name);
}

void ReportControl::buildForm()
{
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    m_form->setupUi(this);
    m_form->subSequence->hide();
    // What is written is what was typed, not the nearest data set of the list.
    m_form->dataSet->setCompleter(nullptr);
    connect(m_form->close, &QPushButton::released, this, &QDialog::reject);
}

FailureTexts ReportControl::failureTexts() const
{
    return {tr("Fail"), tr("Cannot connect to driver")};
}

void ReportControl::writeAttribute(const QString &attribute, const QByteArray &value)
{
    QString error;
    OperationResult result = OperationSucceeded;
    {
        const BusyCursor busy;
        result =
            m_controller->writeValue(m_deviceNo, m_ld, m_block.reference, attribute, value, error);
    }
    if (!reportFailure(this, result, error, failureTexts()))
        readAgain();
}

void ReportControl::enableBlock()
{
    const ReportBlock edited = editedBlock();
    QString error;
    OperationResult result = OperationSucceeded;
    {
        const BusyCursor busy;
        result = m_controller->enableReportBlock(m_deviceNo, m_ld, m_block.reference, edited.rptId,
                                                 QString(), edited, error);
    }
    if (!reportFailure(this, result, error, failureTexts()))
        readAgain();
}

void ReportControl::readAgain()
{
    ReportBlock fresh;
    QString error;
    OperationResult result = OperationSucceeded;
    {
        const BusyCursor busy;
        result = m_controller->getBRCBValues(m_deviceNo, m_ld, m_block.reference, fresh, error);
    }
    if (result != OperationSucceeded)
        return;
    m_block = fresh;
    updateBlock(m_block);
}

ReportBlock ReportControl::editedBlock() const
{
    ReportBlock edited;
    edited.rptId = m_form->name->text();
    edited.datSet = m_form->dataSet->currentText();
    edited.bufTm = m_form->bufferTime->value();
    edited.trgOps = ReportCodec::encodeTriggerOptions(shownTriggerOptions());
    edited.intgPd = m_form->periodSec->value();
    const auto optFlds = ReportCodec::encodeOptionalFields(
        shownOptionalFields(), ReportCodec::isBufferedBlock(m_block.reference));
    edited.optFlds[0] = optFlds[0];
    edited.optFlds[1] = optFlds[1];
    return edited;
}

TriggerOptions ReportControl::shownTriggerOptions() const
{
    TriggerOptions options;
    options.dataChange = m_form->useDataChange->isChecked();
    options.qualityChange = m_form->useQualityChange->isChecked();
    options.dataUpdate = m_form->useDataUpdate->isChecked();
    options.integrity = m_form->useIntegrity->isChecked();
    options.generalInterrogation = m_form->useGI->isChecked();
    return options;
}

OptionalFields ReportControl::shownOptionalFields() const
{
    OptionalFields fields;
    fields.sequenceNumber = m_form->useSequenceNumber->isChecked();
    fields.timeStamp = m_form->useTimeStamp->isChecked();
    fields.reasonForInclusion = m_form->useReasonForInclusion->isChecked();
    fields.dataSetName = m_form->useDataSetName->isChecked();
    fields.dataReference = m_form->useDataReference->isChecked();
    fields.bufferOverflow = m_form->useBufferOverflow->isChecked();
    fields.entryId = m_form->useEntryID->isChecked();
    fields.configurationRevision = m_form->useConfigurationRevision->isChecked();
    return fields;
}

void ReportControl::showTriggerOptions(const TriggerOptions &options)
{
    m_form->useDataChange->setChecked(options.dataChange);
    m_form->useQualityChange->setChecked(options.qualityChange);
    m_form->useDataUpdate->setChecked(options.dataUpdate);
    m_form->useIntegrity->setChecked(options.integrity);
    m_form->useGI->setChecked(options.generalInterrogation);
}
