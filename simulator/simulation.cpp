// SPDX-License-Identifier: Apache-2.0
#include "simulator/simulation.h"

#include "simulator/faults.h"

#include <asio/post.hpp>

#include <algorithm>
#include <utility>

namespace sim {

namespace {

using Log = std::function<void(const std::string &)>;

class AssociationLog : public Engine
{
public:
    explicit AssociationLog(Log log)
        : m_log(std::move(log))
    {
    }

    void opened(Peer &) override
    {
        ++m_open;
        m_log("association opened, " + std::to_string(m_open) + " now");
    }
    void closed(Peer &) override
    {
        --m_open;
        m_log("association closed, " + std::to_string(m_open) + " left");
    }

private:
    Log m_log;
    std::size_t m_open = 0;
};

/// "operate LD/CSWI1.Pos" for a variable of the control model; empty for another.
std::string controlText(const mms::VariableAccess &access)
{
    const auto *name = std::get_if<mms::ObjectName>(&access.variable);
    if (!name)
        return {};
    constexpr std::string_view constraint = "$CO$";
    const std::string &item = name->item;
    const std::size_t begin = item.find(constraint);
    const std::size_t end = item.rfind('$');
    if (begin == std::string::npos || end < begin + constraint.size())
        return {};
    const std::string verb = item.substr(end + 1);
    std::string object = item.substr(begin + constraint.size(), end - begin - constraint.size());
    std::ranges::replace(object, '$', '.');
    const char *const action = verb == "Oper"                    ? "operate"
                               : verb == "Cancel"                ? "cancel"
                               : verb == "SBO" || verb == "SBOw" ? "select"
                                                                 : nullptr;
    if (!action)
        return {};
    return std::string(action) + " " + name->domain + "/" + item.substr(0, begin) + "." + object;
}

void logControls(const Log &log, const mms::VariableAccessSpecification &variables)
{
    const auto *list = std::get_if<std::vector<mms::VariableAccess>>(&variables);
    if (!list)
        return;
    for (const mms::VariableAccess &access : *list) {
        if (const std::string text = controlText(access); !text.empty())
            log(text);
    }
}

} // namespace

mms::Result<ListeningDevice> simulate(const asio::any_io_executor &executor, const scl::Ied &ied,
                                      SimulationOptions options)
{
    DeviceOptions device;
    device.server.address = options.address;
    device.server.port = options.port;
    device.server.maxAssociations = options.maxAssociations;
    device.server.maxHalfOpenOfPeer = options.maxHalfOpenOfPeer;
    device.server.association.idleLimit = options.idleLimit;
    device.server.association.maxPduSize = options.maxPduSize;
    device.firstEdition = options.firstEdition;
    device.oddities = options.oddities;
    osi::LinkOptions &link = device.server.association.link;
    if (options.password) {
        osi::acse::Authentication authentication;
        authentication.value.assign(options.password->begin(), options.password->end());
        link.stack.association.authentication = std::move(authentication);
    }
    if (options.tls) {
        if (auto valid = osi::validate(*options.tls); !valid)
            return std::move(valid).error();
        link.tls = options.tls;
    }
    if (options.files) {
        FileOptions served = *options.files;
        served.oddities = options.oddities;
        auto files = DirectoryFiles::create(std::move(served));
        if (!files)
            return std::move(files).error();
        device.files = *files;
    }
    // The faults are there before the device whose clock they move.
    const auto target = std::make_shared<std::weak_ptr<Device>>();
    if (!options.faults.empty()) {
        Faults::Handlers handlers;
        handlers.clockJumps = [target](std::chrono::milliseconds step) {
            if (const auto jumping = target->lock())
                asio::post(jumping->strand(), [jumping, step] { jumping->clock().jump(step); });
        };
        if (options.log) {
            handlers.applied = [log = options.log](std::size_t line, const std::string &text) {
                log("fault of line " + std::to_string(line) + ": " + text);
            };
        }
        auto faults = Faults::load(options.faults, std::move(handlers));
        if (!faults)
            return std::move(faults).error();
        link.interference = (*faults)->interference();
    }
    if (options.log) {
        device.refused = [log = options.log](const std::string &reason) {
            log("connection refused: " + reason);
        };
    }
    ListeningDevice result;
    result.device = Device::create(executor, ied, std::move(device));
    *target = result.device;
    if (options.animation) {
        result.device->addEngine(
            std::make_unique<Animation>(result.device->host(), *options.animation));
    }
    if (options.log) {
        result.device->addEngine(std::make_unique<AssociationLog>(options.log));
        result.device->setRequestFilter(
            [log = options.log](const auto &, std::uint32_t, mms::RequestService &request) {
                if (const auto *write = std::get_if<mms::WriteRequest>(&request))
                    logControls(log, write->variables);
                else if (const auto *read = std::get_if<mms::ReadRequest>(&request))
                    logControls(log, read->variables);
                return false;
            });
    }
    const auto port = result.device->start();
    if (!port)
        return port.error();
    result.port = *port;
    return result;
}

} // namespace sim
