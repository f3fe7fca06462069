// SPDX-License-Identifier: Apache-2.0
#include "osi/stack.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace {

using namespace osi;

void require(bool holds)
{
    if (!holds)
        std::abort();
}

/// What can be read is written in the shortest form; reading that gives the same value.
void checkTransport(Bytes bytes)
{
    const auto unit = cotp::decode(bytes);
    if (!unit) {
        require(!unit.error().message.empty() && unit.error().offset <= bytes.size());
        return;
    }
    const Octets octets = cotp::encode(*unit);
    const auto again = cotp::decode(octets);
    require(again.ok() && *again == *unit);
}

void checkSession(Bytes bytes)
{
    const auto unit = session::decode(bytes);
    if (!unit) {
        require(!unit.error().message.empty() && unit.error().offset <= bytes.size());
        return;
    }
    // A reason with user data has a form of its own; plain user data of other reasons is dropped.
    if (const auto *refuse = std::get_if<session::Refuse>(&*unit);
        refuse && refuse->reason != session::refuseWithData)
        return;
    const Octets octets = session::encode(*unit);
    const auto again = session::decode(octets);
    require(again.ok() && *again == *unit);
}

template <typename Unit>
void checkIdentity(const Result<Unit> &unit, Bytes bytes, Result<Unit> (*decode)(Bytes))
{
    if (!unit) {
        require(!unit.error().message.empty() && unit.error().offset <= bytes.size());
        return;
    }
    const Octets octets = encode(*unit);
    const auto again = decode(octets);
    require(again.ok() && *again == *unit);
}

/// A stack that is fed anything ends at most its own connection, and says so exactly once.
class Fed
{
public:
    explicit Fed(Stack::Role role)
        : m_stack(role, {})
    {
    }

    Stack &stack() { return m_stack; }

    Octets take(const StackOutput &output)
    {
        require(m_closed <= 1);
        for (const StackEvent &event : output.events) {
            if (std::holds_alternative<AssociateIndication>(event))
                m_toAccept = true;
            if (std::holds_alternative<AssociateRefused>(event) ||
                std::holds_alternative<ReleaseConfirm>(event) ||
                std::holds_alternative<AssociationLost>(event))
                ++m_closed;
        }
        require(m_closed <= 1);
        require(m_closed == 0 || m_stack.isClosed());
        Octets octets = output.octets;
        if (std::exchange(m_toAccept, false)) {
            const Octets pdu{0xa9, 0x00};
            const StackOutput answer = m_stack.accept(pdu);
            octets.insert(octets.end(), answer.octets.begin(), answer.octets.end());
        }
        return octets;
    }

private:
    Stack m_stack;
    int m_closed = 0;
    bool m_toAccept = false;
};

void feed(Bytes bytes, bool opened)
{
    Fed initiator(Stack::Role::Initiator);
    Fed responder(Stack::Role::Responder);
    const Octets pdu{0xa8, 0x00};
    Octets forward = initiator.take(initiator.stack().connect(pdu));
    while (opened && !forward.empty()) {
        const Octets back = responder.take(responder.stack().receive(forward));
        forward = initiator.take(initiator.stack().receive(back));
    }
    require(initiator.stack().isOpen() == opened && responder.stack().isOpen() == opened);
    for (std::size_t at = 0; at < bytes.size(); at += 100) {
        const Bytes portion = bytes.subspan(at, std::min<std::size_t>(100, bytes.size() - at));
        initiator.take(initiator.stack().receive(portion));
        responder.take(responder.stack().receive(portion));
    }
    initiator.take(initiator.stack().networkClosed(osi::verbatim("The end.")));
    responder.take(responder.stack().networkClosed(osi::verbatim("The end.")));
    require(initiator.stack().isClosed() && responder.stack().isClosed());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    const Bytes bytes = Bytes(data, size).subspan(1);
    switch (data[0] % 8) {
    case 0:
        checkTransport(bytes);
        break;
    case 1:
        checkSession(bytes);
        break;
    case 2:
        checkIdentity(presentation::decodeConnect(bytes), bytes, presentation::decodeConnect);
        break;
    case 3:
        checkIdentity(presentation::decodeAccept(bytes), bytes, presentation::decodeAccept);
        break;
    case 4:
        checkIdentity(presentation::decodeReject(bytes), bytes, presentation::decodeReject);
        checkIdentity(presentation::decodeAbort(bytes), bytes, presentation::decodeAbort);
        break;
    case 5:
        checkIdentity(acse::decode(bytes), bytes, acse::decode);
        break;
    default:
        feed(bytes, data[0] % 8 == 7);
        break;
    }
    return 0;
}
