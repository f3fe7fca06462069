// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/asioclock.h"
#include "simulator/engine.h"
#include "simulator/fileservice.h"
#include "simulator/journals.h"
#include "simulator/oddities.h"
#include "simulator/services.h"

#include "mms/server.h"

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace sim {

struct DeviceOptions
{
    mms::ServerOptions server;
    WriteRules writeRules;
    DataSetLimits dataSets;
    /// Serves the files; without one the file services are refused.
    std::shared_ptr<FileService> files;
    /// Control blocks have the attributes of the first edition of the standard only.
    bool firstEdition = false;
    Oddities oddities;
    /// Hears why a connection did not become an association, one sentence. In the device's strand.
    std::function<void(const std::string &reason)> refused;
    /// Empty texts are taken from the SCL description.
    Identity identity;
};

/// A simulated IED on the network: its model, its engines and its server. Any number of them may
/// live in one process. Each has a strand in which everything of it happens, its associations
/// included; create(), start(), stop() and strand() may be called from any thread, everything else
/// in that strand.
class Device : public mms::ServerHandler, public std::enable_shared_from_this<Device>
{
    struct Private
    {
    };

public:
    using Strand = osi::Strand;
    /// Sees a request before the device: true when it has taken it, to answer it or not.
    using RequestFilter = std::function<bool(const std::shared_ptr<mms::Association> &association,
                                             std::uint32_t invokeId, mms::RequestService &request)>;

    /// Nothing of @p ied is kept. The device is destroyed in its strand, after the last association
    /// has ended; the execution context outlives it.
    static std::shared_ptr<Device> create(const asio::any_io_executor &executor,
                                          const scl::Ied &ied, DeviceOptions options);
    Device(Private, const asio::any_io_executor &executor, const scl::Ied &ied,
           DeviceOptions options);
    ~Device() override;

    /// Listen; the port that is used.
    mms::Result<std::uint16_t> start();
    /// Listen no more and abort all associations. @p released is called, in a strand of the
    /// server, as soon as the port is free again; at once when it has not listened.
    void stop(std::function<void()> released = {});

    const Strand &strand() const { return m_strand; }
    Model &model() { return m_model; }
    Access &access() { return m_access; }
    DataSets &dataSets() { return m_dataSets; }
    AsioClock &clock() { return *m_clock; }
    Host host() { return {m_model, m_access, m_dataSets, *m_clock, m_options.oddities}; }
    /// Another engine, besides those that every device has. Before start().
    void addEngine(std::unique_ptr<Engine> engine);
    /// Before start().
    void setRequestFilter(RequestFilter filter) { m_filter = std::move(filter); }

    void opened(const std::shared_ptr<mms::Association> &association) override;
    void request(const std::shared_ptr<mms::Association> &association, std::uint32_t invokeId,
                 mms::RequestService request) override;
    void closed(const std::shared_ptr<mms::Association> &association,
                const mms::Text &reason) override;
    void refused(const mms::Text &reason) override;

private:
    class AssociationClient;

    mms::ServerOptions serverOptions() const;
    AssociationClient *clientOf(const mms::Association *association) const;

    Strand m_strand;
    DeviceOptions m_options;
    std::unique_ptr<AsioClock> m_clock;
    Model m_model;
    Access m_access;
    DataSets m_dataSets;
    Journals m_journals;
    std::vector<std::unique_ptr<Engine>> m_engines;
    std::map<const mms::Association *, std::unique_ptr<AssociationClient>> m_clients;
    RequestFilter m_filter;
    std::mutex m_serverMutex;
    std::shared_ptr<mms::Server> m_server;
};

} // namespace sim
