// SPDX-License-Identifier: Apache-2.0
#include "batch.h"
#include "commandline.h"
#include "deviceobserver.h"
#include "output.h"
#include "session.h"

#include "driver/ieddriver.h"
#include <remoteclient/driverserviceregistry.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>

#include <csignal>
#include <memory>
#include <unistd.h>

namespace {

const QString driverAddress = QStringLiteral("iedctl");
constexpr int deviceNumber = 1;

extern "C" void stopStreams(int)
{
    Session::interrupted() = true;
    // A second signal ends the program where it does not listen to the first.
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
}

ExitStatus run(const Invocation &invocation, Output &output)
{
    DeviceObserver observer;
    IedDriverOptions options;
    const auto events = std::make_shared<EventReceiver>();
    options.reportReceived = [events](const ReportEvent &event) { events->take(event); };
    options.statusChanged = [&observer](const DeviceStatus &status) { observer.take(status); };
    const auto driver = std::make_shared<IedDriver>(options);
    const QStringList faults = driver->setDevice(invocation.device);
    if (!faults.isEmpty()) {
        output.complain(faults.join(QLatin1Char(' ')));
        return ExitStatus::Usage;
    }
    driver->setReadOnly(invocation.readOnly);
    if (!invocation.device.host.isEmpty()) {
        driver->connectDevice(deviceNumber);
        QString reason;
        if (!observer.waitForArrival(output, reason)) {
            output.complain(reason);
            return ExitStatus::NotConnected;
        }
    }
    DriverServiceRegistry::add(driverAddress, driver);
    ExitStatus status = ExitStatus::Done;
    {
        Session session(driverAddress, deviceNumber, output, &observer);
        session.setEvents(events);
        if (invocation.batch.isEmpty()) {
            status = invocation.command(session);
        } else if (invocation.batch == QLatin1String("-")) {
            QFile input;
            input.open(stdin, QIODevice::ReadOnly);
            status = runBatch(session, input);
        } else {
            QFile input(invocation.batch);
            if (input.open(QIODevice::ReadOnly)) {
                status = runBatch(session, input);
            } else {
                output.complain(QStringLiteral("The file \"%1\" cannot be read: %2.")
                                    .arg(invocation.batch, input.errorString()));
                status = ExitStatus::Usage;
            }
        }
    }
    DriverServiceRegistry::remove(driverAddress);
    return status;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments();
    arguments.removeFirst();
    QFile standardOutput;
    QFile standardError;
    standardOutput.open(stdout, QIODevice::WriteOnly);
    standardError.open(stderr, QIODevice::WriteOnly);

    if (arguments == QStringList(QStringLiteral("--manual-page"))) {
        standardOutput.write(manualPage().toUtf8());
        return 0;
    }
    const auto parsed = parseCommandLine(arguments);
    if (const auto *answer = std::get_if<Answer>(&parsed)) {
        if (answer->isError) {
            Output(&standardOutput, &standardError, false, false)
                .complain(answer->text + QStringLiteral(" Try \"iedctl --help\"."));
        } else {
            standardOutput.write(answer->text.toUtf8());
        }
        return static_cast<int>(answer->status);
    }
    std::signal(SIGINT, stopStreams);
    std::signal(SIGTERM, stopStreams);
    const auto &invocation = std::get<Invocation>(parsed);
    Output output(&standardOutput, &standardError, invocation.json, isatty(STDERR_FILENO) != 0);
    const ExitStatus status = run(invocation, output);
    output.progress({});
    return static_cast<int>(status);
}
