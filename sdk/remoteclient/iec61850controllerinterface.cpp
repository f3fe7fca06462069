// SPDX-License-Identifier: Apache-2.0
#include "iec61850controllerinterface.h"

#include "callerscope.h"
#include "controllercallguard.h"
#include "controllercallobserver.h"
#include "controllercallrunner.h"
#include "driverservice.h"
#include "driverserviceregistry.h"
#include "guardedcalls.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QHash>
#include <QtCore/QStringList>

#include <functional>
#include <mutex>
#include <type_traits>

namespace {

constexpr int longestBytesShown = 16;
constexpr int longestTextShown = 120;

/// One line, whatever the text holds.
QString cut(const QString &text)
{
    const QString line = text.left(longestTextShown + 1).simplified();
    if (text.size() <= longestTextShown)
        return line;
    return line.left(longestTextShown) + QStringLiteral("… %1 characters").arg(text.size());
}

QString shortText(const QString &text)
{
    return QLatin1Char('"') + cut(text) + QLatin1Char('"');
}

QString shortText(const QStringList &texts)
{
    return QLatin1Char('[') + cut(texts.join(QLatin1String(", "))) + QLatin1Char(']');
}

QString shortText(const QByteArray &bytes)
{
    QString text = QString::fromLatin1(bytes.left(longestBytesShown).toHex(' '));
    if (bytes.size() > longestBytesShown)
        text += QStringLiteral("… %1 bytes").arg(bytes.size());
    return QLatin1Char('<') + text + QLatin1Char('>');
}

QString shortText(int number)
{
    return QString::number(number);
}

QString shortText(const ReportBlock &block)
{
    const QByteArray trgOps(1, static_cast<char>(block.trgOps));
    const QByteArray optFlds(reinterpret_cast<const char *>(block.optFlds), sizeof block.optFlds);
    return QLatin1String("{RptID ") + shortText(block.rptId) + QLatin1String(", DatSet ") +
           shortText(block.datSet) + QLatin1String(", TrgOps ") + shortText(trgOps) +
           QLatin1String(", OptFlds ") + shortText(optFlds) + QLatin1String(", IntgPd ") +
           shortText(block.intgPd) + QLatin1String(", BufTm ") + shortText(block.bufTm) +
           QLatin1Char('}');
}

QString shortText(const QList<SGCBValue> &values)
{
    QStringList texts;
    for (const SGCBValue &value : values)
        texts << value.name + QLatin1Char('=') + value.value.toString();
    return shortText(texts);
}

/// A float as it was typed, not as the double that is next to it.
QString shortText(float number)
{
    constexpr int fewest = 6;
    constexpr int most = 9;
    QString text;
    for (int digits = fewest; digits <= most; ++digits) {
        text = QString::number(static_cast<double>(number), 'g', digits);
        if (text.toFloat() == number)
            break;
    }
    return text;
}

/// What the bytes of a request stand for; empty where they say all themselves.
QString inWords(const GuardedCall &call)
{
    if (call.isControl) {
        const ControlBlock &block = call.control;
        return QStringLiteral("value %1, category %2, check %3, test %4, model %5")
            .arg(block.controlValue)
            .arg(block.orCat)
            .arg(block.check)
            .arg(block.test)
            .arg(block.controlModel);
    }
    if (call.operation != QLatin1String("writeVariable"))
        return {};
    return cut(call.newValue.userType() == QMetaType::Float ? shortText(call.newValue.toFloat())
                                                            : call.newValue.toString());
}

/// Arguments that the driver fills say nothing of the request; only the others are shown.
template <typename Argument>
void describe(QStringList &texts, Argument &argument)
{
    if constexpr (std::is_const_v<Argument> || std::is_arithmetic_v<Argument>)
        texts << shortText(argument);
}

/// The numbers of the controllers that there are: an address in memory is used again.
struct Callers
{
    std::mutex mutex;
    QHash<const IEC61850ControllerInterface *, quint64> numbers;
    quint64 last = 0;
};

Callers &callers()
{
    static Callers instance;
    return instance;
}

quint64 numberOf(const IEC61850ControllerInterface *controller)
{
    Callers &all = callers();
    const std::lock_guard<std::mutex> lock(all.mutex);
    return all.numbers.value(controller);
}

} // namespace

IEC61850ControllerInterface::IEC61850ControllerInterface()
{
    Callers &all = callers();
    const std::lock_guard<std::mutex> lock(all.mutex);
    all.numbers.insert(this, ++all.last);
}

IEC61850ControllerInterface::~IEC61850ControllerInterface()
{
    Callers &all = callers();
    const std::lock_guard<std::mutex> lock(all.mutex);
    all.numbers.remove(this);
}

void IEC61850ControllerInterface::setLocation(const QString &address, int driverNo)
{
    m_address = address;
    m_driverNo = driverNo;
}

template <typename Method, typename... Arguments>
OperationResult IEC61850ControllerInterface::perform(Method method, const char *operation,
                                                     long deviceNo, QString &error,
                                                     Arguments &...arguments)
{
    // What an earlier call left there is no error of this one.
    error.clear();
    ControllerCall call;
    call.started = QDateTime::currentDateTime();
    QElapsedTimer timer;
    timer.start();

    QStringList texts;
    (describe(texts, arguments), ...);
    call.address = m_address;
    call.driverNo = m_driverNo;
    call.deviceNo = deviceNo;
    call.operation = QString::fromLatin1(operation);
    call.arguments = texts.join(QLatin1String(", "));
    CallArguments given;
    (given.addIn(arguments), ...);
    std::optional<GuardedCall> asked = guardedCall(operation, given);
    if (asked) {
        const QString words = inWords(*asked);
        if (!words.isEmpty())
            call.arguments += QLatin1String(" = ") + words;
    }
    const auto isRefused = [&] {
        ControllerCallGuard *const guard = ControllerCallGuard::installed();
        if (!guard || !asked)
            return false;
        asked->address = call.address;
        asked->driverNo = call.driverNo;
        asked->deviceNo = call.deviceNo;
        asked->arguments = call.arguments;
        error = guard->refusal(*asked);
        return !error.isEmpty();
    };

    if (const std::shared_ptr<DriverService> service = DriverServiceRegistry::find(m_address)) {
        const bool refused = isRefused();
        timer.restart(); // an operator takes his time to answer
        const quint64 number = numberOf(this);
        const auto work = [&] {
            const CallerScope caller(number);
            if constexpr (std::is_invocable_v<Method, DriverService &, long, Arguments &...,
                                              QString &>)
                call.result = std::invoke(method, *service, deviceNo, arguments..., error);
            else
                call.result = std::invoke(method, *service, deviceNo, arguments...);
        };
        if (refused) {
            call.result = OperationFailed;
        } else if (ControllerCallRunner *const runner = ControllerCallRunner::installed()) {
            const ControllerCall begun = call;
            runner->run(begun, work);
        } else {
            work();
        }
    } else {
        call.result = OperationDriverUnreachable;
        error = QStringLiteral("No driver answers at \"") + m_address + QLatin1Char('"');
    }
    call.duration = std::chrono::microseconds(timer.nsecsElapsed() / 1000);

    if (ControllerCallObserver *observer = ControllerCallObserver::installed()) {
        call.error = error;
        observer->controllerCalled(call);
    }
    return call.result;
}

OperationResult IEC61850ControllerInterface::getIEDModel(long deviceNo, QByteArray &model,
                                                         QString &error)
{
    return perform(&DriverService::getIEDModel, "getIEDModel", deviceNo, error, model);
}

OperationResult IEC61850ControllerInterface::getServerDirectory(long deviceNo,
                                                                QList<NameVaildValue> &list,
                                                                QString &error)
{
    return perform(&DriverService::getServerDirectory, "getServerDirectory", deviceNo, error, list);
}

OperationResult IEC61850ControllerInterface::getLogicalDeviceDirectory(long deviceNo,
                                                                       const QString &ldName,
                                                                       QList<NameVaildValue> &list,
                                                                       QString &error)
{
    return perform(&DriverService::getLogicalDeviceDirectory, "getLogicalDeviceDirectory", deviceNo,
                   error, ldName, list);
}

OperationResult IEC61850ControllerInterface::getLogicalNodeDirectory(long deviceNo,
                                                                     const QString &ldName,
                                                                     const QString &lnName,
                                                                     QList<NameVaildValue> &list,
                                                                     QString &error)
{
    return perform(&DriverService::getLogicalNodeDirectory, "getLogicalNodeDirectory", deviceNo,
                   error, ldName, lnName, list);
}

OperationResult IEC61850ControllerInterface::getDataDirectory(long deviceNo, const QString &ldName,
                                                              const QString &dataReference,
                                                              QList<NameVaildValue> &list,
                                                              QString &error)
{
    return perform(&DriverService::getDataDirectory, "getDataDirectory", deviceNo, error, ldName,
                   dataReference, list);
}

OperationResult IEC61850ControllerInterface::getDataSetList(long deviceNo, const QString &ldName,
                                                            QList<NameVaildValue> &list,
                                                            QString &error)
{
    return perform(&DriverService::getDataSetList, "getDataSetList", deviceNo, error, ldName, list);
}

OperationResult IEC61850ControllerInterface::getDataSetDirectory(long deviceNo,
                                                                 const QString &ldName,
                                                                 const QString &dataSetReference,
                                                                 QList<NameVaildValue> &list,
                                                                 QString &error)
{
    return perform(&DriverService::getDataSetDirectory, "getDataSetDirectory", deviceNo, error,
                   ldName, dataSetReference, list);
}

OperationResult IEC61850ControllerInterface::getXRCB(long deviceNo, const QString &ldName,
                                                     const QString &lnName, const QString &kind,
                                                     QList<NameVaildValue> &list, QString &error)
{
    return perform(&DriverService::getXRCB, "getXRCB", deviceNo, error, ldName, lnName, kind, list);
}

OperationResult IEC61850ControllerInterface::getSGCBBlock(long deviceNo, const QString &ldName,
                                                          QList<NameVaildValue> &list,
                                                          QString &error)
{
    return perform(&DriverService::getSGCBBlock, "getSGCBBlock", deviceNo, error, ldName, list);
}

OperationResult IEC61850ControllerInterface::readVariable(long deviceNo, const QString &ldName,
                                                          const QStringList &references,
                                                          QString &error)
{
    return perform(&DriverService::readVariable, "readVariable", deviceNo, error, ldName,
                   references);
}

OperationResult IEC61850ControllerInterface::readDataSetValue(long deviceNo, const QString &ldName,
                                                              const QString &dataSetReference,
                                                              QString &error)
{
    return perform(&DriverService::readDataSetValue, "readDataSetValue", deviceNo, error, ldName,
                   dataSetReference);
}

OperationResult IEC61850ControllerInterface::writeVariable(long deviceNo, const QString &ldName,
                                                           const QString &reference,
                                                           const QByteArray &value, QString &error)
{
    return perform(&DriverService::writeVariable, "writeVariable", deviceNo, error, ldName,
                   reference, value);
}

OperationResult IEC61850ControllerInterface::writeValue(long deviceNo, const QString &ldName,
                                                        const QString &blockReference,
                                                        const QString &attribute,
                                                        const QByteArray &value, QString &error)
{
    return perform(&DriverService::writeValue, "writeValue", deviceNo, error, ldName,
                   blockReference, attribute, value);
}

OperationResult IEC61850ControllerInterface::selectObject(long deviceNo, const QString &ldName,
                                                          const QString &objectReference,
                                                          const QByteArray &controlBlock,
                                                          QString &error)
{
    return perform(&DriverService::selectObject, "selectObject", deviceNo, error, ldName,
                   objectReference, controlBlock);
}

OperationResult IEC61850ControllerInterface::controlObject(long deviceNo, const QString &ldName,
                                                           const QString &objectReference,
                                                           const QByteArray &controlBlock,
                                                           QString &error)
{
    return perform(&DriverService::controlObject, "controlObject", deviceNo, error, ldName,
                   objectReference, controlBlock);
}

OperationResult IEC61850ControllerInterface::cancelObject(long deviceNo, const QString &ldName,
                                                          const QString &objectReference,
                                                          const QByteArray &controlBlock,
                                                          QString &error)
{
    return perform(&DriverService::cancelObject, "cancelObject", deviceNo, error, ldName,
                   objectReference, controlBlock);
}

OperationResult IEC61850ControllerInterface::createDataSet(long deviceNo, const QString &ldName,
                                                           const QString &dataSetReference,
                                                           const QString &members,
                                                           int nonPersistent, QString &error)
{
    return perform(&DriverService::createDataSet, "createDataSet", deviceNo, error, ldName,
                   dataSetReference, members, nonPersistent);
}

OperationResult IEC61850ControllerInterface::deleteDataSet(long deviceNo, const QString &ldName,
                                                           const QString &dataSetReference,
                                                           QString &error)
{
    return perform(&DriverService::deleteDataSet, "deleteDataSet", deviceNo, error, ldName,
                   dataSetReference);
}

OperationResult IEC61850ControllerInterface::getFileDirectory(long deviceNo, const QString &pattern,
                                                              const QString &directory,
                                                              QList<MMSFileEntry> &entries,
                                                              QString &error)
{
    return perform(&DriverService::getFileDirectory, "getFileDirectory", deviceNo, error, pattern,
                   directory, entries);
}

OperationResult IEC61850ControllerInterface::getFile(long deviceNo, const QString &fileName,
                                                     QByteArray &content, QString &error)
{
    return perform(&DriverService::getFile, "getFile", deviceNo, error, fileName, content);
}

OperationResult IEC61850ControllerInterface::deleteFile(long deviceNo, const QString &fileName,
                                                        QString &error)
{
    return perform(&DriverService::deleteFile, "deleteFile", deviceNo, error, fileName);
}

OperationResult IEC61850ControllerInterface::writeFile(long deviceNo, const QString &localFile,
                                                       const QString &fileName, QString &error)
{
    return perform(&DriverService::writeFile, "writeFile", deviceNo, error, localFile, fileName);
}

OperationResult IEC61850ControllerInterface::getBRCBValues(long deviceNo, const QString &ldName,
                                                           const QString &blockReference,
                                                           ReportBlock &block, QString &error)
{
    return perform(&DriverService::getBRCBValues, "getBRCBValues", deviceNo, error, ldName,
                   blockReference, block);
}

OperationResult IEC61850ControllerInterface::enableReportBlock(
    long deviceNo, const QString &ldName, const QString &blockReference, const QString &rptId,
    const QString &dataSet, const ReportBlock &block, QString &error)
{
    return perform(&DriverService::enableReportBlock, "enableReportBlock", deviceNo, error, ldName,
                   blockReference, rptId, dataSet, block);
}

OperationResult IEC61850ControllerInterface::getSGCB(long deviceNo, const QString &sgcbReference,
                                                     SGCB &block, QString &error)
{
    return perform(&DriverService::getSGCB, "getSGCB", deviceNo, error, sgcbReference, block);
}

OperationResult IEC61850ControllerInterface::getSGCBValue(long deviceNo,
                                                          const QString &sgcbReference,
                                                          const QString &fc,
                                                          QList<SGCBValue> &values, QString &error)
{
    return perform(&DriverService::getSGCBValue, "getSGCBValue", deviceNo, error, sgcbReference, fc,
                   values);
}

OperationResult IEC61850ControllerInterface::setSGCBValues(long deviceNo,
                                                           const QString &sgcbReference,
                                                           const QList<SGCBValue> &values,
                                                           QString &error)
{
    return perform(&DriverService::setSGCBValues, "setSGCBValues", deviceNo, error, sgcbReference,
                   values);
}

OperationResult IEC61850ControllerInterface::selectEditSG(long deviceNo,
                                                          const QString &sgcbReference, int group,
                                                          QString &error)
{
    return perform(&DriverService::selectEditSG, "selectEditSG", deviceNo, error, sgcbReference,
                   group);
}

OperationResult IEC61850ControllerInterface::selectActiveSG(long deviceNo,
                                                            const QString &sgcbReference, int group,
                                                            QString &error)
{
    return perform(&DriverService::selectActiveSG, "selectActiveSG", deviceNo, error, sgcbReference,
                   group);
}

OperationResult IEC61850ControllerInterface::abortClose(long deviceNo)
{
    QString error;
    return perform(&DriverService::abortClose, "abortClose", deviceNo, error);
}
