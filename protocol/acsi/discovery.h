// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "acsi/client.h"
#include "acsi/sharedtype.h"
#include "mms/typedescription.h"

#include <atomic>
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace acsi {

/// What a server told of one data set.
struct DataSetDescription
{
    mms::ObjectName name;
    bool deletable = false;
    std::vector<mms::VariableAccess> members;

    friend bool operator==(const DataSetDescription &, const DataSetDescription &) = default;
};

struct NodeDescription
{
    std::string name;
    /// A structure of functional constraints, each a structure of data: in the order of the
    /// server's model. Empty when the server refused it. Nodes of equal type share one.
    SharedType type;
    /// The structures, "LN", "LN$ST", "LN$ST$Pos", that were described part by part because the
    /// server does not tell them whole: what is in them is known, but not in which order. Sorted;
    /// with a structure stand all those around it.
    std::vector<std::string> inParts;

    friend bool operator==(const NodeDescription &, const NodeDescription &) = default;
};

struct DeviceDescription
{
    std::string name; ///< the MMS domain
    std::vector<NodeDescription> nodes;
    std::vector<DataSetDescription> dataSets;
    std::vector<std::string> journals;

    friend bool operator==(const DeviceDescription &, const DeviceDescription &) = default;
};

/// A server as it describes itself.
struct ServerDescription
{
    mms::IdentifyResponse identity; ///< empty texts when the server does not say
    std::vector<DeviceDescription> devices;
    std::vector<DataSetDescription> associationDataSets;
    /// What the server refused, one sentence each with the name of the object.
    std::vector<mms::Text> refused;
    /// What was left out because it is beyond the limits, one sentence each.
    std::vector<mms::Text> leftOut;

    friend bool operator==(const ServerDescription &, const ServerDescription &) = default;
};

/// What is taken of a server. Every real device is far below; the limits keep a hostile or broken
/// one from using up memory or time. What is beyond them is left out.
struct DiscoveryLimits
{
    std::size_t devices = 1000;
    std::size_t nodes = 100'000; ///< logical nodes of all logical devices
    std::size_t names = 2'000'000;
    std::size_t octets = std::size_t{256} * 1024 * 1024; ///< of all names, in lists and types
    std::size_t depth = 30;           ///< structures and arrays inside each other
    std::uint64_t elements = 100'000; ///< values in one array
    std::uint64_t values = 8'000'000; ///< of all types, elements of arrays one by one
    std::chrono::seconds time{1800};
};

struct DiscoveryOptions
{
    DiscoveryLimits limits;
    /// Who the server is, where that is known; it is not asked then.
    std::optional<mms::IdentifyResponse> identity;
    /// Requests on the way at a time; 0 means as many as were negotiated.
    int outstanding = 0;
    /// Steps that are done and known so far; the total grows until all names are known.
    std::function<void(std::size_t done, std::size_t total)> progress;
    /// Hears the names of the logical devices once, before most is known of them; discovery ends
    /// with the sentence that it returns, if it is not empty.
    std::function<mms::Text(const std::vector<std::string> &names)> devicesKnown;
    /// Set from any thread; discovery then ends with an error soon.
    std::shared_ptr<std::atomic<bool>> cancelled;
};

/// Asks a server for everything it has: the domains side by side, types by whole logical node, by
/// functional constraint or data object where that is too large for a PDU. A peer whose answers
/// get confused (rejects, missing answers) is asked again one call at a time. Objects that are
/// refused are left out and named in ServerDescription::refused, what is beyond the limits in
/// ServerDescription::leftOut. In the client's strand.
asio::awaitable<mms::Result<ServerDescription>> discover(std::shared_ptr<Client> client,
                                                         DiscoveryOptions options = {});

/// Asks for the data sets alone: those of the logical devices @p devices and of the association.
asio::awaitable<mms::Result<ServerDescription>> discoverDataSets(std::shared_ptr<Client> client,
                                                                 std::vector<std::string> devices,
                                                                 DiscoveryOptions options = {});

/// The type of data below the type of a logical node; null when there is none.
/// @p constraint and @p path as in the node's type, "ST", "Pos$stVal"; elements of arrays "har(3)".
const mms::TypeDescription *typeBelow(const mms::TypeDescription &node, std::string_view constraint,
                                      std::string_view path);

/// Whether the server itself has told the type of @p item, "LN$ST$Pos", with the order of all that
/// is in it. Only then a value of it can be taken apart, or be put together to be written.
bool isToldWhole(const NodeDescription &node, std::string_view item);

/// The largest data at and below @p item that were told whole, in the order of the type; @p item
/// itself where it was. Nothing where the node has no such data.
std::vector<std::string> partsToldWhole(const NodeDescription &node, const std::string &item);

} // namespace acsi
