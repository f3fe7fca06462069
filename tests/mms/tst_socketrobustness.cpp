// SPDX-License-Identifier: Apache-2.0
#include "mms/associationtest.h"
#include "mms/samples.h"
#include "support/memoryuse.h"

#include <random>

using namespace wiretest;

namespace {

using Generator = std::mt19937;

constexpr int connections = 1500;
/// What a warmed-up process may still grow by: pools of the allocator, not something per
/// connection.
constexpr std::int64_t allowedGrowth = 4 * 1024 * 1024;

std::size_t below(Generator &generator, std::size_t limit)
{
    return std::uniform_int_distribution<std::size_t>(0, limit - 1)(generator);
}

Octets randomOctets(Generator &generator)
{
    Octets octets(1 + below(generator, 600));
    for (std::uint8_t &octet : octets)
        octet = static_cast<std::uint8_t>(below(generator, 256));
    return octets;
}

void mutate(Generator &generator, Octets &octets)
{
    for (std::size_t changes = 1 + below(generator, 4); changes > 0 && octets.size() > 1;
         --changes) {
        const std::size_t at = below(generator, octets.size());
        const auto place = octets.begin() + static_cast<std::ptrdiff_t>(at);
        const auto value = static_cast<std::uint8_t>(below(generator, 256));
        switch (below(generator, 4)) {
        case 0:
            octets.insert(place, value);
            break;
        case 1:
            octets.erase(place);
            break;
        case 2:
            octets.resize(at + 1);
            break;
        default:
            *place = value;
            break;
        }
    }
}

/// Some PDUs of the samples, each changed now and then, as they stand inside an association.
Octets traffic(Generator &generator, osi::Stack &stack)
{
    Octets stream;
    for (std::size_t count = 1 + below(generator, 8); count > 0; --count) {
        Octets pdu = encode(samples()[below(generator, samples().size())].pdu);
        if (below(generator, 2) == 0)
            mutate(generator, pdu);
        const Octets octets = stack.send(pdu).octets;
        stream.insert(stream.end(), octets.begin(), octets.end());
    }
    if (below(generator, 3) == 0)
        mutate(generator, stream);
    return stream;
}

Octets initiateRequest()
{
    InitiateParameters parameters;
    parameters.maxPduSize = 65000;
    return encode(InitiateRequestPdu{parameters});
}

class SocketRobustness : public AssociationTest
{
protected:
    /// One connection to the server: garbage from the start, a changed request for an association,
    /// or an association with changed PDUs on it. Ends when the server has closed it.
    static void attack(std::uint16_t port, Generator &generator)
    {
        RawPeer peer;
        peer.connect(port);
        osi::Stack stack(osi::Stack::Role::Initiator, {});
        const std::size_t kind = below(generator, 4);
        Octets first = stack.connect(initiateRequest()).octets;
        if (kind == 0)
            first = randomOctets(generator);
        if (kind == 1)
            mutate(generator, first);
        peer.trySend(first);
        if (kind > 1) {
            std::vector<osi::StackEvent> events;
            const bool opened = peer.feed(stack, events) &&
                                std::holds_alternative<osi::AssociateConfirm>(events.front());
            if (opened)
                peer.trySend(traffic(generator, stack));
        }
        peer.finish();
    }

    /// The same against a client that is connecting.
    void attackClient(Generator &generator, RawPeer &peer)
    {
        Association::Handlers handlers;
        handlers.report = [](const InformationReport &) {};
        m_client = Association::create(m_loop.executor(), quickOptions(), std::move(handlers));
        Awaited<Result<InitiateParameters>> opened;
        m_client->connect("127.0.0.1", peer.port(), opened.setter());
        peer.accept();
        osi::Stack stack(osi::Stack::Role::Responder, {});
        const std::size_t kind = below(generator, 4);
        std::vector<osi::StackEvent> events;
        if (kind == 0) {
            peer.trySend(randomOctets(generator));
        } else if (peer.feed(stack, events) &&
                   std::holds_alternative<osi::AssociateIndication>(events.front())) {
            const auto pdu = decodePdu(std::get<osi::AssociateIndication>(events.front()).pdu);
            Octets answer =
                stack
                    .accept(
                        encode(InitiateResponsePdu{std::get<InitiateRequestPdu>(*pdu).parameters}))
                    .octets;
            if (kind == 1)
                mutate(generator, answer);
            peer.trySend(answer);
            peer.trySend(traffic(generator, stack));
        }
        peer.finish();
        const bool wasOpened = opened.get().ok();
        EXPECT_FALSE(kind == 0 && wasOpened);
        // The connection has ended, and with it the call, whether it was sent or not.
        Awaited<CallOutcome> outcome;
        m_client->call(IdentifyRequest(), 30s, outcome.setter());
        EXPECT_TRUE(std::holds_alternative<CallFailure>(outcome.get()));
        m_client->abort(mms::verbatim("The next one."));
    }
};

} // namespace

TEST_F(SocketRobustness, aServerSurvivesWhateverIsSentAndDoesNotGrow)
{
    const std::uint16_t port = startServer();
    Generator generator(20210304);
    std::int64_t warm = 0;
    for (int i = 0; i < connections; ++i) {
        attack(port, generator);
        if (i == connections / 3)
            warm = testsupport::memoryInUse();
    }
    EXPECT_LT(testsupport::memoryInUse(), warm + allowedGrowth);
    ASSERT_TRUE(connect(port, quickOptions()).ok());
    EXPECT_NE(answerOf<IdentifyResponse>(call(IdentifyRequest())), nullptr);
    Awaited<Result<void>> concluded;
    m_client->conclude(concluded.setter());
    EXPECT_TRUE(concluded.get().ok());
}

TEST_F(SocketRobustness, aClientSurvivesWhateverItIsAnsweredAndDoesNotGrow)
{
    Generator generator(20210305);
    RawPeer peer;
    std::int64_t warm = 0;
    for (int i = 0; i < connections; ++i) {
        attackClient(generator, peer);
        if (i == connections / 3)
            warm = testsupport::memoryInUse();
    }
    EXPECT_LT(testsupport::memoryInUse(), warm + allowedGrowth);
    ASSERT_TRUE(connect(startServer(), quickOptions()).ok());
    EXPECT_NE(answerOf<IdentifyResponse>(call(IdentifyRequest())), nullptr);
}
