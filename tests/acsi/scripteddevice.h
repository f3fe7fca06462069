// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "acsi/client.h"
#include "mms/loopback.h"

#include <asio/co_spawn.hpp>
#include <asio/post.hpp>
#include <asio/use_future.hpp>
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <map>
#include <mutex>

namespace acsitest {

/// A device made of tables: a test fills them before the device is asked, and may take single
/// requests into its own hands.
class ScriptedDevice : public mms::ServerHandler
{
public:
    using AssociationPointer = std::shared_ptr<mms::Association>;
    /// True when the request was dealt with.
    using Intercept = std::function<bool(const AssociationPointer &association,
                                         std::uint32_t invokeId, mms::RequestService &request)>;

    struct List
    {
        bool deletable = false;
        std::vector<mms::VariableAccess> members;
    };

    struct Domain
    {
        std::map<std::string, mms::TypeDescription> nodes;
        std::map<std::string, List> lists;
        std::vector<std::string> journals;
    };

    std::map<std::string, Domain> domains;
    std::map<std::string, List> associationLists;
    std::map<std::string, mms::Data> values; ///< by "domain/item"
    /// Objects refused with a service error, by the text of their name.
    std::map<std::string, mms::ServiceError> refused;
    std::size_t pageSize = 100;
    Intercept intercept;

    void opened(const AssociationPointer &association) override
    {
        const std::lock_guard lock(m_mutex);
        m_association = association;
    }

    void request(const AssociationPointer &association, std::uint32_t invokeId,
                 mms::RequestService request) override
    {
        {
            const std::lock_guard lock(m_mutex);
            m_requests.push_back(request);
        }
        if (intercept && intercept(association, invokeId, request))
            return;
        answer(association, invokeId, request);
    }

    void answer(const AssociationPointer &association, std::uint32_t invokeId,
                const mms::RequestService &request)
    {
        std::visit([&](const auto &each) { serve(association, invokeId, each); }, request);
    }

    std::vector<mms::RequestService> requests() const
    {
        const std::lock_guard lock(m_mutex);
        return m_requests;
    }

    template <typename Request>
    std::vector<Request> requestsOf() const
    {
        std::vector<Request> result;
        for (const mms::RequestService &request : requests()) {
            if (const auto *wanted = std::get_if<Request>(&request))
                result.push_back(*wanted);
        }
        return result;
    }

    AssociationPointer association() const
    {
        const std::lock_guard lock(m_mutex);
        return m_association;
    }

    /// The names of a logical node and of everything in it, as a server lists them.
    static void namesOf(const std::string &name, const mms::TypeDescription &type,
                        std::vector<std::string> &names)
    {
        names.push_back(name);
        for (const auto &component : type.components) {
            if (!component.name.empty())
                namesOf(name + '$' + component.name, component.type, names);
        }
    }

private:
    template <typename Request>
    void serve(const AssociationPointer &association, std::uint32_t invokeId, const Request &)
    {
        association->reject(invokeId, mms::rejectcodes::requestUnrecognizedService);
    }

    void serve(const AssociationPointer &association, std::uint32_t invokeId,
               const mms::IdentifyRequest &)
    {
        association->respond(invokeId, mms::IdentifyResponse{"vendor", "model", "1.0", {}});
    }

    void serve(const AssociationPointer &association, std::uint32_t invokeId,
               const mms::GetNameListRequest &request)
    {
        if (refuse(association, invokeId, toText(request.objectClass) + " of " + request.domain))
            return;
        std::vector<std::string> names;
        if (request.objectClass == mms::ObjectClass::Domain) {
            for (const auto &[name, domain] : domains)
                names.push_back(name);
        } else if (request.scope == mms::Scope::Association) {
            for (const auto &[name, list] : associationLists)
                names.push_back(name);
        } else {
            const Domain &domain = domains[request.domain];
            if (request.objectClass == mms::ObjectClass::NamedVariable) {
                for (const auto &[name, type] : domain.nodes)
                    namesOf(name, type, names);
            } else if (request.objectClass == mms::ObjectClass::NamedVariableList) {
                for (const auto &[name, list] : domain.lists)
                    names.push_back(name);
            } else {
                names = domain.journals;
            }
        }
        std::ranges::sort(names);
        auto first = names.begin();
        if (request.continueAfter)
            first = std::ranges::upper_bound(names, *request.continueAfter);
        const auto left = static_cast<std::size_t>(names.end() - first);
        mms::GetNameListResponse page;
        page.names.assign(first, first + static_cast<std::ptrdiff_t>(std::min(left, pageSize)));
        page.moreFollows = left > pageSize;
        association->respond(invokeId, page);
    }

    void serve(const AssociationPointer &association, std::uint32_t invokeId,
               const mms::GetVariableAccessAttributesRequest &request)
    {
        const auto &name = std::get<mms::ObjectName>(request.variable);
        if (refuse(association, invokeId, toText(name)))
            return;
        const mms::TypeDescription *type = typeOf(name);
        if (!type) {
            association->fail(
                invokeId,
                {mms::ErrorClass::Access, mms::serviceerrors::accessNonExistent, {}, {}, {}});
            return;
        }
        mms::GetVariableAccessAttributesResponse response;
        response.type = *type;
        association->respond(invokeId, response);
    }

    void serve(const AssociationPointer &association, std::uint32_t invokeId,
               const mms::GetNamedVariableListAttributesRequest &request)
    {
        if (refuse(association, invokeId, toText(request.name)))
            return;
        const List *list = listOf(request.name);
        if (!list) {
            association->fail(invokeId, {mms::ErrorClass::Definition,
                                         mms::serviceerrors::definitionObjectUndefined,
                                         {},
                                         {},
                                         {}});
            return;
        }
        mms::GetNamedVariableListAttributesResponse response;
        response.deletable = list->deletable;
        response.members = list->members;
        association->respond(invokeId, response);
    }

    void serve(const AssociationPointer &association, std::uint32_t invokeId,
               const mms::DefineNamedVariableListRequest &request)
    {
        if (refuse(association, invokeId, toText(request.name)))
            return;
        auto &lists = request.name.scope == mms::Scope::Domain ? domains[request.name.domain].lists
                                                               : associationLists;
        lists[request.name.item] = {true, request.members};
        association->respond(invokeId, mms::DefineNamedVariableListResponse());
    }

    void serve(const AssociationPointer &association, std::uint32_t invokeId,
               const mms::DeleteNamedVariableListRequest &request)
    {
        mms::DeleteNamedVariableListResponse response;
        for (const mms::ObjectName &name : request.names) {
            const List *list = listOf(name);
            response.matched += list ? 1U : 0U;
            if (!list || !list->deletable)
                continue;
            ++response.deleted;
            if (name.scope == mms::Scope::Domain)
                domains[name.domain].lists.erase(name.item);
            else
                associationLists.erase(name.item);
        }
        association->respond(invokeId, response);
    }

    void serve(const AssociationPointer &association, std::uint32_t invokeId,
               const mms::ReadRequest &request)
    {
        std::vector<mms::VariableAccess> variables;
        if (const auto *name = std::get_if<mms::ObjectName>(&request.variables)) {
            if (refuse(association, invokeId, toText(*name)))
                return;
            if (const List *list = listOf(*name))
                variables = list->members;
        } else {
            variables = std::get<0>(request.variables);
        }
        mms::ReadResponse response;
        for (const mms::VariableAccess &variable : variables) {
            const std::string name = toText(variable);
            if (refuse(association, invokeId, name))
                return;
            const auto value = values.find(name);
            if (value == values.end())
                response.results.emplace_back(mms::DataAccessError::ObjectNonExistent);
            else
                response.results.emplace_back(value->second);
        }
        association->respond(invokeId, response);
    }

    void serve(const AssociationPointer &association, std::uint32_t invokeId,
               const mms::WriteRequest &request)
    {
        mms::WriteResponse response;
        const auto &variables = std::get<0>(request.variables);
        for (std::size_t i = 0; i < variables.size(); ++i) {
            const std::string name = toText(variables[i]);
            if (refuse(association, invokeId, name))
                return;
            const auto value = values.find(name);
            if (value == values.end()) {
                response.results.emplace_back(mms::DataAccessError::ObjectNonExistent);
            } else {
                value->second = request.values[i];
                response.results.emplace_back();
            }
        }
        association->respond(invokeId, response);
    }

    bool refuse(const AssociationPointer &association, std::uint32_t invokeId,
                const std::string &name)
    {
        const auto found = refused.find(name);
        if (found == refused.end())
            return false;
        association->fail(invokeId, found->second);
        return true;
    }

    const List *listOf(const mms::ObjectName &name) const
    {
        const auto domain = domains.find(name.domain);
        if (name.scope == mms::Scope::Domain && domain == domains.end())
            return nullptr;
        const auto &lists =
            name.scope == mms::Scope::Domain ? domain->second.lists : associationLists;
        const auto found = lists.find(name.item);
        return found == lists.end() ? nullptr : &found->second;
    }

    const mms::TypeDescription *typeOf(const mms::ObjectName &name) const
    {
        const auto domain = domains.find(name.domain);
        if (domain == domains.end())
            return nullptr;
        std::string_view rest = name.item;
        const auto take = [&rest] {
            const std::string part(rest.substr(0, rest.find('$')));
            rest.remove_prefix(std::min(rest.size(), part.size() + 1));
            return part;
        };
        const auto node = domain->second.nodes.find(take());
        if (node == domain->second.nodes.end())
            return nullptr;
        const mms::TypeDescription *type = &node->second;
        while (!rest.empty()) {
            const std::string part = take();
            const auto found =
                std::ranges::find(type->components, part, &mms::TypeDescription::Component::name);
            if (found == type->components.end())
                return nullptr;
            type = &found->type;
        }
        return type;
    }

    mutable std::mutex m_mutex;
    std::vector<mms::RequestService> m_requests;
    AssociationPointer m_association;
};

/// A scripted device that is served on loopback, and a client of it.
class DeviceTest : public testing::Test
{
protected:
    ~DeviceTest() override
    {
        if (m_server)
            m_server->stop();
        client.reset();
        // The device may hold associations that hold the loop.
        device.reset();
    }

    /// What the loop has done with members of a test is seen by the end of the test.
    void TearDown() override { asio::post(executor(), asio::use_future).get(); }

    std::uint16_t serve()
    {
        if (m_server)
            return m_port;
        mms::ServerOptions options;
        options.address = "127.0.0.1";
        options.port = 0;
        options.association = serverOptions;
        m_server = mms::Server::create(m_loop.executor(), options, device);
        const auto port = m_server->start();
        EXPECT_TRUE(port.ok());
        m_port = port ? *port : 0;
        return m_port;
    }

    mms::Result<std::shared_ptr<acsi::ChangingClient>> tryToConnect(std::uint16_t port)
    {
        return runOn(m_loop.executor(), acsi::Client::connect(m_loop.executor(), "127.0.0.1", port,
                                                              clientOptions, ended.setter()));
    }

    void connect()
    {
        auto connected = tryToConnect(serve());
        ASSERT_TRUE(connected.ok()) << connected.error().message;
        client = std::move(*connected);
    }

    /// What a coroutine gives, run in the client's strand.
    template <typename T>
    T run(asio::awaitable<T> awaitable)
    {
        return runOn(client->strand(), std::move(awaitable));
    }

    /// Hands what a coroutine gives to a function; results that cannot be made empty cannot be
    /// spawned as they are.
    template <typename T>
    static asio::awaitable<void> deliver(asio::awaitable<T> awaitable, std::function<void(T)> taker)
    {
        taker(co_await std::move(awaitable));
    }

    void stopServer() { m_server->stop(); }
    asio::any_io_executor executor() { return m_loop.executor(); }

    std::shared_ptr<ScriptedDevice> device = std::make_shared<ScriptedDevice>();
    mms::AssociationOptions serverOptions;
    acsi::ClientOptions clientOptions;
    std::shared_ptr<acsi::ChangingClient> client;
    wiretest::Awaited<mms::Text> ended;

private:
    template <typename T, typename Executor>
    static T runOn(const Executor &executor, asio::awaitable<T> awaitable)
    {
        wiretest::Awaited<T> result;
        asio::co_spawn(executor, deliver(std::move(awaitable), result.setter()), asio::use_future)
            .get();
        return result.get();
    }

    wiretest::Loop m_loop;
    std::shared_ptr<mms::Server> m_server;
    std::uint16_t m_port = 0;
};

} // namespace acsitest
