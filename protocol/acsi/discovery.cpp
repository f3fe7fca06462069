// SPDX-License-Identifier: Apache-2.0
#include "acsi/discovery.h"

#include "acsi/callgroup.h"
#include "acsi/discoveryplan.h"
#include "acsi/typedvalue.h"

#include <asio/this_coro.hpp>

#include <algorithm>
#include <charconv>
#include <functional>
#include <utility>

namespace acsi {

using wording::say;

namespace {

/// How soon a cancellation from another thread is noticed while the device is silent.
constexpr std::chrono::milliseconds cancellationPeriod{100};

std::size_t windowOf(Client &client, const DiscoveryOptions &options)
{
    const int agreed = std::max<int>(client.association().negotiated().maxOutstandingCalling, 1);
    const int wanted = options.outstanding > 0 ? std::min(options.outstanding, agreed) : agreed;
    return static_cast<std::size_t>(wanted);
}

std::uint64_t strayAnswers(Client &client)
{
    const mms::AssociationCounters counters = client.association().counters();
    return counters.late + counters.unknown;
}

bool isTimeout(const mms::CallOutcome &outcome)
{
    const auto *failure = std::get_if<mms::CallFailure>(&outcome);
    return failure && failure->kind == mms::CallFailure::Kind::TimedOut;
}

/// The type of "har" or "har(3)" in a structure.
const mms::TypeDescription *stepBelow(const mms::TypeDescription &type, std::string_view step)
{
    const std::size_t open = step.find('(');
    const mms::TypeDescription *below = componentOf(type, step.substr(0, open));
    if (!below || open == step.npos)
        return below;
    const char *const end = step.data() + step.size() - 1;
    std::uint32_t index = 0;
    const auto [stopped, error] = std::from_chars(step.data() + open + 1, end, index);
    if (error != std::errc() || stopped != end || *end != ')' ||
        below->kind != mms::TypeDescription::Kind::Array || below->components.empty() ||
        index >= below->elementCount)
        return nullptr;
    return &below->components.front().type;
}

asio::awaitable<mms::Result<ServerDescription>>
carryOut(std::shared_ptr<Client> client, DiscoveryOptions options, DiscoveryPlan plan)
{
    CallGroup group(client);
    const auto end = std::chrono::steady_clock::now() + options.limits.time;
    const std::uint64_t strays = strayAnswers(*client);
    const std::chrono::milliseconds patience =
        options.cancelled ? cancellationPeriod : client->options().callTimeout;
    bool overdue = false;
    while (!plan.finished()) {
        const auto cancellation = co_await asio::this_coro::cancellation_state;
        if (cancellation.cancelled() != asio::cancellation_type::none ||
            (options.cancelled && *options.cancelled))
            co_return mms::Error{say("The discovery was cancelled."), 0};
        if (std::chrono::steady_clock::now() >= end)
            plan.timeIsOver();
        while (auto request = plan.next()) {
            auto timeout = client->options().callTimeout;
            // Calls without an answer keep their places until their grace is over.
            if (overdue)
                timeout += client->options().association.grace;
            group.start(request->step, std::move(request->service), timeout);
        }
        auto arrival = co_await group.next(patience);
        if (!arrival)
            continue;
        overdue = isTimeout(arrival->outcome);
        plan.answered(arrival->id, std::move(arrival->outcome));
        if (strayAnswers(*client) != strays)
            plan.confused();
        if (options.devicesKnown && plan.areDevicesKnown()) {
            const mms::Text objection = std::exchange(options.devicesKnown, {})(plan.deviceNames());
            if (!objection.empty())
                co_return mms::Error{objection, 0};
        }
        if (options.progress)
            options.progress(plan.done(), plan.total());
    }
    auto server = plan.take();
    if (!server && !client->isOpen() && !client->closeReason().empty())
        co_return mms::Error{client->closeReason(), 0};
    co_return server;
}

} // namespace

asio::awaitable<mms::Result<ServerDescription>> discover(std::shared_ptr<Client> client,
                                                         DiscoveryOptions options)
{
    DiscoveryPlan plan(windowOf(*client, options), options.limits, options.identity);
    return carryOut(std::move(client), std::move(options), std::move(plan));
}

asio::awaitable<mms::Result<ServerDescription>> discoverDataSets(std::shared_ptr<Client> client,
                                                                 std::vector<std::string> devices,
                                                                 DiscoveryOptions options)
{
    DiscoveryPlan plan =
        DiscoveryPlan::ofDataSets(windowOf(*client, options), devices, options.limits);
    return carryOut(std::move(client), std::move(options), std::move(plan));
}

const mms::TypeDescription *typeBelow(const mms::TypeDescription &node, std::string_view constraint,
                                      std::string_view path)
{
    const mms::TypeDescription *type = componentOf(node, constraint);
    while (type && !path.empty()) {
        const std::size_t end = path.find('$');
        type = stepBelow(*type, path.substr(0, end));
        path.remove_prefix(end == path.npos ? path.size() : end + 1);
    }
    return type;
}

bool isToldWhole(const NodeDescription &node, std::string_view item)
{
    return !std::ranges::binary_search(node.inParts, item, std::less<std::string_view>());
}

std::vector<std::string> partsToldWhole(const NodeDescription &node, const std::string &item)
{
    if (isToldWhole(node, item))
        return {item};
    // What stands in parts was reached by names alone, never through an array.
    const mms::TypeDescription *type = &*node.type;
    std::string_view rest = item;
    for (std::size_t end = rest.find('$'); type && end != rest.npos; end = rest.find('$')) {
        rest.remove_prefix(end + 1);
        type = componentOf(*type, rest.substr(0, rest.find('$')));
    }
    std::vector<std::string> parts;
    if (!type)
        return parts;
    for (const mms::TypeDescription::Component &each : type->components) {
        for (std::string &part : partsToldWhole(node, item + '$' + each.name))
            parts.push_back(std::move(part));
    }
    return parts;
}

} // namespace acsi
