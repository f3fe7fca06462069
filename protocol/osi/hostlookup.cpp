// SPDX-License-Identifier: Apache-2.0
#include "osi/hostlookup.h"

#include <asio/io_context.hpp>
#include <asio/ip/tcp.hpp>

#include <exception>
#include <map>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace osi {

namespace {

HostAddresses askTheSystem(const std::string &name)
{
    asio::io_context context;
    asio::ip::tcp::resolver resolver(context);
    asio::error_code error;
    const auto endpoints = resolver.resolve(name, std::string(), error);
    HostAddresses found;
    if (error) {
        found.error = error == asio::error::host_not_found || error == asio::error::no_data
                          ? say("nobody knows it")
                      : error == asio::error::host_not_found_try_again
                          ? say("nobody answers who knows names")
                          : wording::ofSystem(error);
        return found;
    }
    for (const auto &endpoint : endpoints)
        found.addresses.push_back(endpoint.endpoint().address());
    return found;
}

HostAddresses ask(const HostLookup::Function &function, const std::string &name)
{
    try {
        return function ? function(name) : askTheSystem(name);
    } catch (const std::exception &exception) {
        return {{}, verbatim(exception.what())};
    }
}

} // namespace

std::optional<asio::ip::address> numericAddress(const std::string &host)
{
    std::string text = host;
    if (text.size() > 2 && text.front() == '[' && text.back() == ']')
        text = text.substr(1, text.size() - 2);
    asio::error_code error;
    const auto address = asio::ip::make_address(text, error);
    if (error)
        return std::nullopt;
    return address;
}

struct HostLookup::Request
{
    std::mutex mutex;
    Handler handler;

    void answer(const HostAddresses &found)
    {
        const std::lock_guard lock(mutex);
        if (const Handler known = std::exchange(handler, nullptr))
            known(found);
    }
};

struct HostLookup::Registry
{
    std::mutex mutex;
    std::map<std::string, std::vector<std::shared_ptr<Request>>> underWay;

    /// Stays until the end of the program: a look-up may outlive everything else.
    static Registry &instance()
    {
        static auto *const registry = new Registry;
        return *registry;
    }

    void finish(const std::string &name, const HostAddresses &found)
    {
        std::vector<std::shared_ptr<Request>> requests;
        {
            const std::lock_guard lock(mutex);
            requests = std::move(underWay[name]);
            underWay.erase(name);
        }
        for (const auto &request : requests)
            request->answer(found);
    }
};

HostLookup::HostLookup(const std::string &name, const Function &function, Handler handler)
    : m_request(std::make_shared<Request>())
{
    m_request->handler = std::move(handler);
    Registry &registry = Registry::instance();
    {
        const std::lock_guard lock(registry.mutex);
        const auto [place, isNew] = registry.underWay.try_emplace(name);
        place->second.push_back(m_request);
        if (!isNew)
            return;
    }
    try {
        std::thread([&registry, name, function] {
            registry.finish(name, ask(function, name));
        }).detach();
    } catch (const std::system_error &error) {
        registry.finish(name, HostAddresses{{}, wording::ofSystem(error.code())});
    }
}

HostLookup::~HostLookup()
{
    const std::lock_guard lock(m_request->mutex);
    m_request->handler = nullptr;
}

} // namespace osi
