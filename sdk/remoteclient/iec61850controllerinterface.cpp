// SPDX-License-Identifier: Apache-2.0
#include "iec61850controllerinterface.h"

#include "callerscope.h"
#include "controllercallguard.h"
#include "controllercallobserver.h"
#include "controllercallrunner.h"
#include "driverserviceregistry.h"
#include "guardedcalls.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QStringList>

#include <atomic>
#include <optional>
#include <utility>

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
struct Shown
{
    QStringList texts;

    void operator()(int number) { texts << shortText(number); }
    void operator()(FileSource *source) { texts << shortText(source->name()); }
    template <typename Argument>
    void operator()(const Argument *argument)
    {
        texts << shortText(*argument);
    }
    template <typename Answer>
    void operator()(Answer *)
    {
    }
    void operator()(std::monostate) {}
};

QString shortText(const DriverCall &call, const std::optional<GuardedCall> &asked)
{
    Shown shown;
    for (const DriverArgument &argument : call.arguments())
        std::visit(shown, argument);
    QString text = shown.texts.join(QLatin1String(", "));
    const QString words = asked ? inWords(*asked) : QString();
    if (!words.isEmpty())
        text += QLatin1String(" = ") + words;
    return text;
}

quint64 nextNumber()
{
    static std::atomic<quint64> last{0};
    return ++last;
}

} // namespace

IEC61850ControllerInterface::IEC61850ControllerInterface()
    : m_number(nextNumber())
{
}

IEC61850ControllerInterface::~IEC61850ControllerInterface() = default;

void IEC61850ControllerInterface::setLocation(const QString &address, int driverNo)
{
    m_address = address;
    m_driverNo = driverNo;
}

OperationResult IEC61850ControllerInterface::getFile(long deviceNo, const QString &fileName,
                                                     QByteArray &content, QString &error)
{
    MemoryFileSink sink(fileName);
    const OperationResult result = getFile(deviceNo, fileName, sink, error);
    if (result == OperationSucceeded)
        content = std::move(sink.content);
    return result;
}

OperationResult IEC61850ControllerInterface::writeFile(long deviceNo, const QString &localFile,
                                                       const QString &fileName, QString &error)
{
    LocalFileSource source(localFile);
    return writeFile(deviceNo, source, fileName, error);
}

OperationResult IEC61850ControllerInterface::call(const DriverCall &made)
{
    QString &error = made.error();
    // What an earlier call left there is no error of this one.
    error.clear();
    ControllerCall call;
    call.started = QDateTime::currentDateTime();
    QElapsedTimer timer;
    timer.start();

    std::optional<GuardedCall> asked = guardedCall(made);
    call.address = m_address;
    call.driverNo = m_driverNo;
    call.deviceNo = made.deviceNo();
    call.operation = QString::fromLatin1(made.name());
    call.arguments = shortText(made, asked);
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
        const auto work = [&, number = m_number] {
            const CallerScope caller(number);
            call.result = made.carryOut(*service);
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
