// SPDX-License-Identifier: Apache-2.0
#include "batch.h"
#include "commandline.h"
#include "deviceobserver.h"
#include "interruption.h"
#include "output.h"
#include "session.h"

#include "driver/service/embeddeddriver.h"
#include <remoteclient/driverserviceregistry.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>

#include <memory>
#include <poll.h>
#include <unistd.h>

namespace {

const QString driverAddress = QStringLiteral("iedctl");
constexpr int deviceNumber = 1;

/// Asks at the terminal; anything but a yes is a no.
bool askAtTerminal(Output &output, const QString &sentence)
{
    constexpr int lookMs = 100;
    output.ask(sentence + QStringLiteral(" [y/N] "));
    pollfd input{STDIN_FILENO, POLLIN, 0};
    while (!Session::interrupted()) {
        if (poll(&input, 1, lookMs) <= 0)
            continue;
        char line[80] = {};
        const ssize_t count = read(STDIN_FILENO, line, sizeof line - 1);
        return count > 0 && (line[0] == 'y' || line[0] == 'Y');
    }
    return false;
}

ExitStatus run(const Invocation &invocation, Output &output)
{
    DeviceObserver observer;
    const auto events = std::make_shared<EventReceiver>();
    DriverObserver told;
    told.reportReceived = [events](const ReportEvent &event) { events->take(event); };
    told.statusChanged = [&observer](const DeviceStatus &status) { observer.take(status); };
    const auto [driver, service] = startEmbeddedDriver({});
    const auto subscription = driver->subscribe(told);
    const QStringList faults = driver->setDevice(invocation.device);
    if (!faults.isEmpty()) {
        output.complain(faults.join(QLatin1Char(' ')));
        return ExitStatus::Usage;
    }
    driver->setReadOnly(invocation.readOnly);
    if (invocation.device.tls.acceptsOtherNames) {
        output.complain(QStringLiteral(
            "Warning: certificates that are made out to others are accepted; whoever holds the key "
            "of any of them can pose as this device."));
    }
    const Interruption interruption(
        [driver = driver.get()] { driver->cancelOperations(deviceNumber); });
    if (!invocation.device.host.isEmpty()) {
        driver->connectDevice(deviceNumber);
        QString reason;
        if (!observer.waitForArrival(output, reason)) {
            output.complain(reason);
            return ExitStatus::NotConnected;
        }
    }
    DriverServiceRegistry::add(driverAddress, service);
    ExitStatus status = ExitStatus::Done;
    {
        Session session(driverAddress, deviceNumber, output, &observer);
        session.setEvents(events);
        const bool isAnswered = isatty(STDIN_FILENO) != 0 && isatty(STDERR_FILENO) != 0;
        if (isAnswered && invocation.batch != QLatin1String("-")) {
            session.setQuestion(
                [&output](const QString &sentence) { return askAtTerminal(output, sentence); });
        }
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
    const auto &invocation = std::get<Invocation>(parsed);
    Output output(&standardOutput, &standardError, invocation.json, isatty(STDERR_FILENO) != 0);
    const ExitStatus status = run(invocation, output);
    output.progress({});
    return static_cast<int>(status);
}
