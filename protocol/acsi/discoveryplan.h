// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "acsi/discovery.h"
#include "acsi/namedparts.h"
#include "acsi/namepages.h"
#include "acsi/sharedtype.h"
#include "acsi/typelimits.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace acsi {

/// What to ask a server next, and what its answers have told so far: a plain object that is asked
/// for requests and told outcomes. It knows no sockets and no time. Not thread-safe.
///
/// Lists of names go first because everything else depends on them; of one list only one page is
/// asked for at a time. A logical node's type is asked for as soon as the name of anything in it is
/// known. When the peer seems confused (rejects, answers of another service, no answer), requests
/// that failed while others were on the way are asked again, and from then on one by one.
class DiscoveryPlan
{
public:
    struct Request
    {
        std::size_t step = 0;
        ReadingRequest service;
    };

    /// @p window is the number of requests on the way at a time.
    explicit DiscoveryPlan(std::size_t window, DiscoveryLimits limits = {},
                           std::optional<mms::IdentifyResponse> identity = {});
    /// Of the data sets alone, of the association and of these logical devices.
    static DiscoveryPlan ofDataSets(std::size_t window, const std::vector<std::string> &devices,
                                    DiscoveryLimits limits = {});

    /// The next request; none while the window is full or answers are needed first.
    std::optional<Request> next();
    void answered(std::size_t step, mms::CallOutcome outcome);
    /// Nothing more is asked; what is known by now is what there is.
    void timeIsOver();
    /// The peer answered something that nobody had asked.
    void confused() { m_window = 1; }

    bool areDevicesKnown() const { return m_devicesKnown; }
    std::vector<std::string> deviceNames() const;
    /// Nothing is left to ask, or there is no use in asking.
    bool finished() const;
    std::size_t onTheWay() const { return m_asked.size(); }
    std::size_t done() const { return m_done; }
    std::size_t total() const { return m_done + m_asked.size() + waiting(); }

    /// Once finished().
    mms::Result<ServerDescription> take();

private:
    enum class Kind : std::uint8_t {
        Identity,
        Names, ///< a page
        Type,  ///< of a logical node or a part of it
        DataSetMembers,
    };

    struct NameList
    {
        NamePages pages;
        mms::ObjectClass objectClass;
        mms::Scope scope;
        std::size_t device; ///< of lists in a domain
    };

    struct Step
    {
        Kind kind = Kind::Identity;
        std::size_t list = 0;   ///< of pages
        std::size_t device = 0; ///< of types
        std::size_t node = 0;   ///< of types
        mms::ObjectName object; ///< of types and data sets
        bool alone = false;     ///< on the way with no other
    };

    struct Device
    {
        std::map<std::string, std::size_t, std::less<>> nodes;
        std::size_t variables = 0; ///< the list of its variables
        NamedParts parts;          ///< as that list tells them
        bool namesKnown = false;   ///< or as many as can be had
        /// Types that cannot be had as a whole, with the reason, until the names of their parts
        /// are known.
        std::vector<std::pair<Step, mms::Text>> tooLarge;
        /// Items that were refused and stand in the types as empty places.
        std::vector<Step> refusedParts;
    };

    struct Empty
    {
    };
    DiscoveryPlan(Empty, std::size_t window, DiscoveryLimits limits);

    std::size_t waiting() const;
    std::deque<Step> &queueOf(const Step &step);
    bool isOptional(const Step &step) const;
    void add(Step step);
    void addList(mms::ObjectClass objectClass, mms::Scope scope, std::size_t device = 0);
    ReadingRequest requestOf(const Step &step) const;

    bool take(const Step &step, mms::ResponseService &response);
    void takeNames(const Step &step);
    void takeNode(std::size_t device, std::string_view item);
    void namesEnded(std::size_t list);
    void takeType(const Step &step, mms::TypeDescription type);
    bool reduce(const mms::ObjectName &variable, mms::TypeDescription &type,
                std::vector<std::string> &inParts);
    bool addUp(const Step &step, const TypeMeasure &measure);
    void leaveOut(mms::Text sentence);
    void stop(mms::Text sentence);
    void takeMembers(const Step &step, mms::GetNamedVariableListAttributesResponse answer);

    void silent(const Step &step);
    void failed(const Step &step, const mms::CallOutcome &outcome);
    void refuse(const Step &step, const mms::Text &why);
    bool descend(const Step &step);
    mms::TypeDescription *typeOf(const Step &step);
    void removeParts(std::vector<Step> steps);
    mms::Text nameOf(const Step &step) const;

    std::size_t m_window;
    DiscoveryLimits m_limits;
    bool m_stopped = false;       ///< a limit of everything was reached
    bool m_hasAllDevices = false; ///< that are taken
    bool m_devicesKnown = false;
    std::size_t m_nodes = 0;
    std::size_t m_names = 0;
    std::size_t m_octets = 0;
    std::uint64_t m_values = 0;
    std::size_t m_lastStep = 0;
    std::size_t m_done = 0;
    std::size_t m_silences = 0;
    std::deque<Step> m_first;
    std::deque<Step> m_others;
    std::map<std::size_t, Step> m_asked;
    std::deque<NameList> m_lists;
    /// As they came, where all of them was taken.
    std::unordered_map<SharedType, TypeMeasure, SharedType::Hash> m_types;
    std::deque<Device> m_devices; ///< in the order of ServerDescription::devices
    ServerDescription m_server;
    std::optional<mms::Error> m_error;
};

} // namespace acsi
