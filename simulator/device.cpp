// SPDX-License-Identifier: Apache-2.0
#include "simulator/device.h"

#include <asio/post.hpp>

#include <utility>

namespace sim {

namespace {

constexpr mms::Service servedAlways[] = {
    mms::Service::Status,
    mms::Service::GetNameList,
    mms::Service::Identify,
    mms::Service::Read,
    mms::Service::Write,
    mms::Service::GetVariableAccessAttributes,
    mms::Service::DefineNamedVariableList,
    mms::Service::GetNamedVariableListAttributes,
    mms::Service::DeleteNamedVariableList,
    mms::Service::ReadJournal,
    mms::Service::InformationReport,
    mms::Service::Conclude,
};

constexpr mms::Service servedWithFiles[] = {
    mms::Service::ObtainFile,    mms::Service::FileOpen,   mms::Service::FileRead,
    mms::Service::FileClose,     mms::Service::FileRename, mms::Service::FileDelete,
    mms::Service::FileDirectory,
};

void setWhereEmpty(std::string &text, std::string_view otherwise)
{
    if (text.empty())
        text = otherwise;
}

/// Hands a request to the file service; false when it is not about files.
class FileCall
{
public:
    FileCall(FileService &files, Peer &client, FileService::Answer answer)
        : m_files(files)
        , m_client(client)
        , m_answer(std::move(answer))
    {
    }

    bool operator()(const mms::FileOpenRequest &request)
    {
        return call(&FileService::open, request);
    }
    bool operator()(const mms::FileReadRequest &request)
    {
        return call(&FileService::read, request);
    }
    bool operator()(const mms::FileCloseRequest &request)
    {
        return call(&FileService::close, request);
    }
    bool operator()(const mms::FileDirectoryRequest &request)
    {
        return call(&FileService::directory, request);
    }
    bool operator()(const mms::FileDeleteRequest &request)
    {
        return call(&FileService::remove, request);
    }
    bool operator()(const mms::FileRenameRequest &request)
    {
        return call(&FileService::rename, request);
    }
    bool operator()(const mms::ObtainFileRequest &request)
    {
        return call(&FileService::obtain, request);
    }
    template <typename Request>
    bool operator()(const Request &)
    {
        return false;
    }

private:
    template <typename Request>
    bool call(void (FileService::*service)(Peer &, const Request &, FileService::Answer),
              const Request &request)
    {
        (m_files.*service)(m_client, request, std::move(m_answer));
        return true;
    }

    FileService &m_files;
    Peer &m_client;
    FileService::Answer m_answer;
};

} // namespace

class Device::AssociationClient : public Peer
{
public:
    explicit AssociationClient(std::shared_ptr<mms::Association> association)
        : m_association(std::move(association))
        , m_address(m_association->peerAddress())
    {
    }

    void report(mms::InformationReport report) override
    {
        m_association->report(std::move(report));
    }
    // Associations run inside the device's strand.
    std::size_t queued() const override { return m_association->queued(); }
    void whenQueued(std::size_t octets, std::function<void()> handler) override
    {
        m_association->whenQueued(octets, std::move(handler));
    }
    std::size_t pduSize() const override { return m_association->pduSize(); }
    std::vector<std::uint8_t> address() const override { return m_address; }
    void call(mms::RequestService request, std::chrono::milliseconds timeout,
              mms::Association::CallHandler handler) override
    {
        m_association->call(std::move(request), timeout, std::move(handler));
    }

private:
    std::shared_ptr<mms::Association> m_association;
    std::vector<std::uint8_t> m_address; ///< also once the connection is closed
};

std::shared_ptr<Device> Device::create(const asio::any_io_executor &executor, const scl::Ied &ied,
                                       DeviceOptions options)
{
    auto device = std::make_unique<Device>(Private(), executor, ied, std::move(options));
    Strand strand = device->m_strand;
    return std::shared_ptr<Device>(device.release(), [strand](Device *last) {
        asio::post(strand, [owned = std::unique_ptr<Device>(last)] {});
    });
}

Device::Device(Private, const asio::any_io_executor &executor, const scl::Ied &ied,
               DeviceOptions options)
    : m_strand(osi::strandOn(executor))
    , m_options(std::move(options))
    , m_clock(std::make_unique<AsioClock>(m_strand))
    , m_model(ied, m_clock->utcTime(), m_options.firstEdition)
    , m_access(m_model, m_options.writeRules)
    , m_dataSets(m_model, ied, m_options.dataSets)
    , m_journals(ied)
{
    setWhereEmpty(m_options.identity.vendor, ied.manufacturer);
    setWhereEmpty(m_options.identity.model, ied.type.empty() ? ied.name : ied.type);
    setWhereEmpty(m_options.identity.revision, ied.configVersion);
    m_engines = makeEngines(host(), ied);
}

Device::~Device() = default;

mms::ServerOptions Device::serverOptions() const
{
    mms::ServerOptions options = m_options.server;
    mms::BitString &services = options.association.services;
    for (const mms::Service service : servedAlways)
        services.set(static_cast<std::size_t>(service));
    services.set(static_cast<std::size_t>(mms::Service::Status), !m_options.oddities.noStatus);
    if (m_options.files) {
        for (const mms::Service service : servedWithFiles)
            services.set(static_cast<std::size_t>(service));
    }
    return options;
}

mms::Result<std::uint16_t> Device::start()
{
    const auto server = mms::Server::create(m_strand, serverOptions(), shared_from_this());
    auto port = server->start();
    if (port) {
        const std::lock_guard lock(m_serverMutex);
        m_server = server;
    }
    return port;
}

void Device::stop(std::function<void()> released)
{
    std::shared_ptr<mms::Server> server;
    {
        const std::lock_guard lock(m_serverMutex);
        server = std::move(m_server);
    }
    if (server)
        server->stop(std::move(released));
    else if (released)
        released();
}

void Device::addEngine(std::unique_ptr<Engine> engine)
{
    m_engines.push_back(std::move(engine));
}

Device::AssociationClient *Device::clientOf(const mms::Association *association) const
{
    const auto found = m_clients.find(association);
    return found == m_clients.end() ? nullptr : found->second.get();
}

void Device::opened(const std::shared_ptr<mms::Association> &association)
{
    auto &client = m_clients[association.get()];
    client = std::make_unique<AssociationClient>(association);
    for (const auto &engine : m_engines)
        engine->opened(*client);
}

void Device::closed(const std::shared_ptr<mms::Association> &association, const mms::Text &)
{
    const auto client = m_clients.extract(association.get());
    if (client.empty())
        return;
    for (const auto &engine : m_engines)
        engine->closed(*client.mapped());
    if (m_options.files)
        m_options.files->closed(*client.mapped());
    m_dataSets.forget(*client.mapped());
}

void Device::refused(const mms::Text &reason)
{
    if (m_options.refused)
        m_options.refused(reason.english());
}

void Device::request(const std::shared_ptr<mms::Association> &association, std::uint32_t invokeId,
                     mms::RequestService request)
{
    if (m_filter && m_filter(association, invokeId, request))
        return;
    if (m_options.oddities.noStatus && std::holds_alternative<mms::StatusRequest>(request))
        return;
    AssociationClient *const client = clientOf(association.get());
    if (!client)
        return;
    if (m_options.files) {
        FileCall files(
            *m_options.files, *client,
            [association, invokeId](std::variant<mms::ResponseService, mms::ServiceError> answer) {
                if (auto *response = std::get_if<mms::ResponseService>(&answer))
                    association->respond(invokeId, std::move(*response));
                else
                    association->fail(invokeId, std::get<mms::ServiceError>(std::move(answer)));
            });
        if (std::visit(files, request))
            return;
    }
    ServiceAnswer answer = std::visit(
        Services(m_access, m_dataSets, m_journals, m_options.identity, m_options.oddities, *client),
        request);
    if (auto *response = std::get_if<mms::ResponseService>(&answer))
        association->respond(invokeId, std::move(*response));
    else if (auto *error = std::get_if<mms::ServiceError>(&answer))
        association->fail(invokeId, std::move(*error));
    else
        association->reject(invokeId, std::get<Rejection>(answer).code);
}

} // namespace sim
