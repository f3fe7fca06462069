// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

namespace hostile {

/// How far a conversation has come: what the client has just done, or asks for.
enum class Step {
    Connect,   ///< the network connection
    Transport, ///< the transport connection
    Associate, ///< session, presentation and association
    Identify,
    Names,
    Types,
    DataSets,
    Read,
    Write, ///< also the first step of enabling a report control block
    FileList,
    FileOpen,
    FileRead,
    Conclude,
};

/// What a server does from that step on, instead of what it should.
enum class Conduct {
    Honest,
    Silence,      ///< it takes everything and says nothing
    Close,        ///< it closes the connection
    Reset,        ///< it resets the connection
    HalfAnswer,   ///< it closes the connection in the middle of the answer
    Drip,         ///< it sends octet by octet
    Late,         ///< it answers when the call has been given up
    Doubled,      ///< it says everything twice
    Garbage,      ///< it answers with random octets
    EndlessParts, ///< it sends parts of a message that never becomes whole
    HugePdu,      ///< it announces a PDU of 2 GiB
};

struct ConductCase
{
    std::string_view name;
    Conduct conduct;
    /// A client can put up with it, or not; otherwise it cannot.
    bool isBearable;
};
/// Every one but the honest one.
std::span<const ConductCase> conductCases();

/// The network in front of a server on loopback, which makes of an honest server a hostile one:
/// passes connections on until a client reaches a step, and misbehaves from there on. Owns a
/// thread; connections end with it. Members may be called from any thread.
class HostileLine
{
public:
    explicit HostileLine(std::uint16_t target);
    ~HostileLine();
    HostileLine(const HostileLine &) = delete;
    HostileLine &operator=(const HostileLine &) = delete;

    std::uint16_t port() const;
    /// From the next request of that step on.
    void misbehave(Step step, Conduct conduct);
    /// Be honest again. Connections on which nothing sensible can follow are closed.
    void behave();
    /// Connections from now on go to another server; those that there are end.
    void exchange(std::uint16_t target);

    /// How often a client has reached the step since misbehave().
    int reached() const;
    /// Sent to clients without an end in sight.
    std::uint64_t floodedOctets() const;

private:
    class Session;
    struct State;

    std::shared_ptr<State> m_state;
};

} // namespace hostile
