// SPDX-License-Identifier: Apache-2.0
#include "osi/stack.h"

#include <gtest/gtest.h>

#include <random>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace {

using namespace osi;

/// One whole association from both ends, each message with the layer it is for in front: what the
/// function under test takes. It aborts when a layer contradicts itself.
std::vector<Octets> seeds()
{
    std::vector<Octets> result;
    const auto add = [&result](std::uint8_t layer, const Octets &octets) {
        Octets seed{layer};
        seed.insert(seed.end(), octets.begin(), octets.end());
        result.push_back(std::move(seed));
    };
    StackOptions options;
    options.association.own = {acse::ObjectIdentifier{1, 3, 9999, 1}, 12};
    options.association.authentication = acse::Authentication{};
    Stack initiator(Stack::Role::Initiator, options);
    Stack responder(Stack::Role::Responder, options);
    const Octets pdu{0xa8, 0x00};
    std::vector<Octets> streams;
    const auto pass = [&streams](const StackOutput &output, Stack &to) {
        streams.push_back(output.octets);
        return to.receive(output.octets);
    };
    StackOutput output = pass(initiator.connect(pdu), responder);
    output = pass(output, initiator);
    pass(output, responder);
    output = pass(responder.accept(pdu), initiator);
    pass(initiator.send(pdu), responder);
    pass(initiator.release(), responder);
    pass(responder.answerRelease(), initiator);
    EXPECT_TRUE(initiator.isClosed() && responder.isClosed());
    for (const Octets &stream : streams) {
        add(6, stream);
        add(7, stream);
        TpktReader reader;
        reader.append(stream);
        for (auto packet = reader.next(); packet.ok() && packet->has_value();
             packet = reader.next()) {
            add(0, Octets((*packet)->begin(), (*packet)->end()));
            add(1, Octets((*packet)->begin() + 3, (*packet)->end()));
        }
    }
    const presentation::ContextAnswer answer{presentation::ContextResult::Acceptance,
                                             presentation::berSyntax, 1};
    const Octets unit{0x64, 0x03, 0x80, 0x01, 0x00};
    add(2, presentation::encode(
               presentation::Connect{Octets{1},
                                     Octets{2},
                                     {{1, presentation::acseSyntax, {presentation::berSyntax}}},
                                     {{1, unit}}}));
    add(3, presentation::encode(presentation::Accept{Octets{1}, {answer, answer}, {{1, unit}}}));
    add(4, presentation::encode(presentation::Reject{Octets{1}, {answer}, 6, {{1, unit}}}));
    add(4, presentation::encode(presentation::Abort(presentation::UserAbort{{{1, unit}}})));
    add(4, presentation::encode(presentation::Abort(presentation::ProviderAbort{1, 2})));
    acse::AssociateRequest request;
    request.calling = options.association.own;
    request.called = options.association.own;
    request.authentication = acse::Authentication{acse::passwordMechanism, {1, 2, 3}};
    request.userInformation = acse::UserInformation{3, pdu};
    add(5, acse::encode(request));
    add(5, acse::encode(acse::AssociateResponse()));
    add(5, acse::encode(acse::ReleaseRequest()));
    add(5, acse::encode(acse::Abort{true, 1}));
    return result;
}

using Generator = std::mt19937;

std::size_t below(Generator &generator, std::size_t limit)
{
    return std::uniform_int_distribution<std::size_t>(0, limit - 1)(generator);
}

void run(const Octets &octets)
{
    LLVMFuzzerTestOneInput(octets.data(), octets.size());
}

} // namespace

TEST(LinkRobustness, everyMessageAndItsBeginningsAreHandledByEveryLayer)
{
    for (Octets seed : seeds()) {
        for (std::uint8_t layer = 0; layer < 8; ++layer) {
            seed[0] = layer;
            for (std::size_t length = 1; length <= seed.size(); ++length)
                run(Octets(seed.begin(), seed.begin() + static_cast<std::ptrdiff_t>(length)));
        }
    }
}

TEST(LinkRobustness, changedMessagesAreHandled)
{
    const std::vector<Octets> all = seeds();
    Generator generator(1);
    for (int i = 0; i < 30000; ++i) {
        Octets octets = all[below(generator, all.size())];
        for (std::size_t changes = below(generator, 4) + 1; changes > 0; --changes) {
            const std::size_t at = 1 + below(generator, octets.size() - 1);
            const auto value = static_cast<std::uint8_t>(below(generator, 256));
            switch (below(generator, 3)) {
            case 0:
                octets[at] = value;
                break;
            case 1:
                octets.insert(octets.begin() + static_cast<std::ptrdiff_t>(at), value);
                break;
            default:
                if (octets.size() > 2)
                    octets.erase(octets.begin() + static_cast<std::ptrdiff_t>(at));
                break;
            }
        }
        run(octets);
    }
}

TEST(LinkRobustness, randomOctetsAreHandled)
{
    Generator generator(2);
    for (int i = 0; i < 30000; ++i) {
        Octets octets(1 + below(generator, 200));
        for (std::uint8_t &octet : octets)
            octet = static_cast<std::uint8_t>(below(generator, 256));
        run(octets);
    }
}
