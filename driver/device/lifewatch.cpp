// SPDX-License-Identifier: Apache-2.0
#include "lifewatch.h"

#include "deviceconnection.h"
#include "modelreading.h"

#include "driver/core/signoflife.h"

#include <QtCore/QCoreApplication>

using std::chrono::milliseconds;
using ClientPointer = std::shared_ptr<acsi::Client>;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)
};

double seconds(milliseconds time)
{
    return static_cast<double>(time.count()) / 1000.0;
}

asio::awaitable<mms::CallOutcome> askForSignOfLife(DeviceConnection &connection,
                                                   ClientPointer client)
{
    const mms::InitiateParameters &agreed = client->association().negotiated();
    acsi::ReadingRequest request = mms::IdentifyRequest();
    switch (SignOfLife::questionFor(agreed.supports(mms::Service::Status),
                                    agreed.supports(mms::Service::Identify),
                                    connection.modelReading().answersIdentify())) {
    case SignOfLife::Question::Status:
        request = mms::StatusRequest();
        break;
    case SignOfLife::Question::Identify:
        break;
    case SignOfLife::Question::Read: {
        // Every logical device has it; where not, the error is an answer as well.
        mms::VariableAccess access;
        const std::vector<acsi::DeviceDescription> &devices =
            connection.model()->description().devices;
        access.variable = mms::ObjectName::inDomain(
            devices.empty() ? std::string() : devices.front().name, "LLN0$ST$Mod$stVal");
        mms::ReadRequest read;
        read.variables = std::vector<mms::VariableAccess>{std::move(access)};
        request = std::move(read);
        break;
    }
    }
    co_return co_await client->call(std::move(request), connection.configuration().callTimeout);
}

} // namespace

asio::awaitable<void> watchOverLife(DeviceConnection &connection, ClientPointer client)
{
    const QString waiting = QStringLiteral("life");
    SignOfLife sign(connection.now());
    while (connection.isKept() && client->isOpen()) {
        const SignOfLife::Time now = connection.now();
        const SignOfLife::Time due = sign.due(connection.capture().lastReceived());
        if (due > now) {
            co_await connection.pause(std::chrono::ceil<milliseconds>(due - now));
            continue;
        }
        sign.asked(now);
        const mms::CallOutcome outcome = co_await askForSignOfLife(connection, client);
        if (!client->isOpen())
            break;
        const auto *failure = std::get_if<mms::CallFailure>(&outcome);
        const bool isLate = failure && failure->kind == mms::CallFailure::Kind::TimedOut;
        const auto judgement =
            sign.judge(!isLate, !isLate || failure->wasSent, connection.capture().lastReceived());
        connection.setProblem(waiting,
                              judgement == SignOfLife::Judgement::Waits
                                  ? Texts::tr("The device has not answered earlier requests; the "
                                              "question whether it is there waits for a place "
                                              "behind them.")
                                  : QString());
        if (judgement == SignOfLife::Judgement::Silent) {
            client->abort(mms::verbatim(Texts::tr("The device has not answered for %1 seconds.")
                                            .arg(seconds(connection.configuration().callTimeout))
                                            .toStdString()));
        } else if (!failure) {
            const auto time =
                std::chrono::duration_cast<std::chrono::microseconds>(connection.now() - now);
            connection.board().update([&](DeviceStatus &status) {
                status.roundTrip = time;
                status.counters.unclaimedReports = client->unclaimedReports();
            });
        }
    }
    connection.setProblem(waiting, {});
}
