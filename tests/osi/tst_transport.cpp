// SPDX-License-Identifier: Apache-2.0
#include "osi/bytes.h"
#include "osi/cotp.h"

#include <gtest/gtest.h>

namespace {

using namespace osi;
using wiretest::fromHex;
using wiretest::packed;
using wiretest::toHex;

template <typename T, typename Actions>
const T *find(const Actions &actions)
{
    for (const auto &action : actions) {
        if (const T *found = std::get_if<T>(&action))
            return found;
    }
    return nullptr;
}

template <typename T>
T decoded(std::string_view hex)
{
    const auto octets = fromHex(hex);
    const auto unit = cotp::decode(octets);
    EXPECT_TRUE(unit.ok()) << (unit.ok() ? "" : unit.error().message.english());
    const T *value = unit.ok() ? std::get_if<T>(&*unit) : nullptr;
    EXPECT_NE(value, nullptr);
    return value ? *value : T();
}

void expectRefusedWithOneOctetMoreOrLess(std::string_view hex)
{
    auto octets = fromHex(hex);
    octets.push_back(0);
    EXPECT_FALSE(cotp::decode(octets).ok()) << "one octet too many in " << hex;
    octets.resize(octets.size() - 2);
    EXPECT_FALSE(cotp::decode(octets).ok()) << "one octet too few in " << hex;
}

constexpr std::string_view request = "11 e0 0000 0001 00 c0010d c1020001 c2020001";
constexpr std::string_view confirm = "11 d0 0001 0001 00 c0010d c1020001 c2020001";
constexpr std::string_view disconnect = "06 80 0001 0002 80";
constexpr std::string_view errorUnit = "07 70 0001 02 c10107";

struct Pair
{
    explicit Pair(std::size_t left = 8192, std::size_t right = 8192)
        : initiator(cotp::Connection::Role::Initiator, {.unitSize = left})
        , responder(cotp::Connection::Role::Responder, {.unitSize = right})
    {
        const auto asked = initiator.connect();
        const auto answered = responder.receive(find<cotp::Send>(asked)->octets);
        initiator.receive(find<cotp::Send>(answered)->octets);
    }
    cotp::Connection initiator;
    cotp::Connection responder;
};

} // namespace

TEST(Tpkt, packetsAreCutFromAStreamInAnyPortions)
{
    Octets stream;
    ASSERT_TRUE(appendTpkt(stream, fromHex("02f080")));
    ASSERT_TRUE(appendTpkt(stream, fromHex("aabbccdd")));
    EXPECT_EQ(toHex(stream), packed("03000007 02f080 03000008 aabbccdd"));
    for (std::size_t portion = 1; portion <= stream.size(); ++portion) {
        TpktReader reader;
        std::vector<std::string> packets;
        for (std::size_t at = 0; at < stream.size(); at += portion) {
            reader.append(Bytes(stream).subspan(at, std::min(portion, stream.size() - at)));
            for (auto packet = reader.next(); packet.ok() && packet->has_value();
                 packet = reader.next())
                packets.push_back(toHex(**packet));
        }
        EXPECT_EQ(packets, (std::vector<std::string>{"02f080", "aabbccdd"})) << portion;
        EXPECT_EQ(reader.pending(), 0U);
    }
}

TEST(Tpkt, aStreamOfAnotherProtocolIsRefusedAtItsFirstOctet)
{
    TpktReader reader;
    reader.append(fromHex("47"));
    const auto packet = reader.next();
    ASSERT_FALSE(packet.ok());
    EXPECT_NE(packet.error().message.english().find("does not speak ISO transport"),
              std::string::npos);
    EXPECT_FALSE(reader.next().ok());
}

TEST(Tpkt, aPacketWithoutContentIsRefused)
{
    TpktReader reader;
    reader.append(fromHex("03000004"));
    EXPECT_FALSE(reader.next().ok());
    Octets out;
    EXPECT_FALSE(appendTpkt(out, {}));
    EXPECT_FALSE(appendTpkt(out, Octets(maxTpktPayload + 1)));
    EXPECT_TRUE(out.empty());
    EXPECT_TRUE(appendTpkt(out, Octets(maxTpktPayload)));
    EXPECT_EQ(out.size(), 65535U);
}

TEST(Cotp, aConnectionRequestHasItsOctetsAndItsValue)
{
    const auto unit = decoded<cotp::ConnectRequest>(request);
    EXPECT_EQ(unit.sourceReference, 1);
    EXPECT_EQ(unit.sizeExponent, 13);
    EXPECT_EQ(unit.callingSelector, fromHex("0001"));
    EXPECT_EQ(unit.calledSelector, fromHex("0001"));
    EXPECT_EQ(toHex(cotp::encode(unit)), packed(request));
    expectRefusedWithOneOctetMoreOrLess(request);
}

TEST(Cotp, aConnectionConfirmHasItsOctetsAndItsValue)
{
    const auto unit = decoded<cotp::ConnectConfirm>(confirm);
    EXPECT_EQ(unit.destinationReference, 1);
    EXPECT_EQ(toHex(cotp::encode(unit)), packed(confirm));
    expectRefusedWithOneOctetMoreOrLess(confirm);
}

TEST(Cotp, aDisconnectRequestHasItsOctetsAndItsValue)
{
    const auto unit = decoded<cotp::DisconnectRequest>(disconnect);
    EXPECT_EQ(unit, (cotp::DisconnectRequest{1, 2, 0x80}));
    EXPECT_EQ(toHex(cotp::encode(unit)), packed(disconnect));
    EXPECT_TRUE(cotp::decode(fromHex("06800001000280 ff")).ok()) << "user data may follow";
    EXPECT_FALSE(cotp::decode(fromHex("068000010002")).ok());
}

TEST(Cotp, anErrorUnitHasItsOctetsAndItsValue)
{
    const auto unit = decoded<cotp::ErrorUnit>(errorUnit);
    EXPECT_EQ(unit, (cotp::ErrorUnit{1, 2, {7}}));
    EXPECT_EQ(toHex(cotp::encode(unit)), packed(errorUnit));
    expectRefusedWithOneOctetMoreOrLess(errorUnit);
}

TEST(Cotp, aDataUnitHasItsOctetsAndItsValue)
{
    const auto octets = fromHex("02 f0 80 0102");
    const auto unit = cotp::decode(octets);
    ASSERT_TRUE(unit.ok());
    const auto payload = fromHex("0102");
    EXPECT_EQ(std::get<cotp::DataUnit>(*unit), (cotp::DataUnit{true, payload}));
    EXPECT_EQ(toHex(cotp::encode(*unit)), packed("02f0800102"));
    EXPECT_FALSE(cotp::decode(fromHex("02f0")).ok()) << "one octet too few";
    EXPECT_FALSE(cotp::decode(fromHex("03f08000")).ok()) << "one octet too many in the header";
}

TEST(Cotp, unknownParametersAreSkippedAndUnknownUnitsRefused)
{
    const auto unit = decoded<cotp::ConnectRequest>("0a e0 0000 0001 00 f0020020");
    EXPECT_FALSE(unit.sizeExponent.has_value());
    EXPECT_FALSE(cotp::decode(fromHex("0210 00")).ok());
    EXPECT_FALSE(cotp::decode(fromHex("09e000000001 00c00106")).ok());
    EXPECT_FALSE(cotp::decode({}).ok());
}

TEST(Cotp, theSmallerUnitSizeOfBothSidesHolds)
{
    const Pair pair(8192, 1024);
    EXPECT_EQ(pair.initiator.state(), cotp::Connection::State::Open);
    EXPECT_EQ(pair.responder.state(), cotp::Connection::State::Open);
    EXPECT_EQ(pair.initiator.unitSize(), 1024U);
    EXPECT_EQ(pair.responder.unitSize(), 1024U);
    EXPECT_EQ(Pair(100, 8192).responder.unitSize(), 128U);
}

TEST(Cotp, messagesOfAnyLengthArriveWholeThroughSmallUnits)
{
    Pair pair(128, 128);
    for (const std::size_t size : {0U, 1U, 124U, 125U, 126U, 250U, 251U, 70000U}) {
        Octets message(size);
        for (std::size_t i = 0; i < size; ++i)
            message[i] = static_cast<std::uint8_t>(i * 7);
        const auto sent = pair.initiator.send(message);
        const Octets &octets = find<cotp::Send>(sent)->octets;
        EXPECT_EQ(octets.size(), size + std::max<std::size_t>(1, (size + 124) / 125) * 7);
        const auto received = pair.responder.receive(octets);
        ASSERT_EQ(received.size(), 1U) << size;
        EXPECT_EQ(received.front(), cotp::Action(cotp::Message{message}));
    }
}

TEST(Cotp, aMessageBeyondTheLimitEndsTheConnection)
{
    cotp::Connection responder(cotp::Connection::Role::Responder, {.maxMessage = 10});
    Octets asked;
    appendTpkt(asked, fromHex(request));
    responder.receive(asked);
    ASSERT_EQ(responder.state(), cotp::Connection::State::Open);
    EXPECT_TRUE(responder.receive(fromHex("0300000f02f000 0102030405060708")).empty());
    const auto actions = responder.receive(fromHex("0300000a02f000 010203"));
    ASSERT_NE(find<cotp::Closed>(actions), nullptr);
    EXPECT_NE(find<cotp::Closed>(actions)->reason.english().find("more than 10 octets"),
              std::string::npos);
    EXPECT_TRUE(responder.receive(fromHex("0300000802f08001")).empty());
}

TEST(Cotp, classFourWithoutClassZeroAsAlternativeIsRefused)
{
    for (const auto &[octets, accepted] :
         {std::pair{"06e00000000140", false}, std::pair{"09e00000000140c70100", true},
          std::pair{"06e00000000110", true}}) {
        cotp::Connection responder(cotp::Connection::Role::Responder, {});
        Octets stream;
        appendTpkt(stream, fromHex(octets));
        const auto actions = responder.receive(stream);
        EXPECT_EQ(find<cotp::Connected>(actions) != nullptr, accepted) << octets;
        EXPECT_EQ(find<cotp::Closed>(actions) == nullptr, accepted) << octets;
        const std::string code = toHex(find<cotp::Send>(actions)->octets).substr(10, 2);
        EXPECT_EQ(code, accepted ? "d0" : "80");
    }
}

TEST(Cotp, anUnknownSelectorIsRefusedWithItsReason)
{
    cotp::Connection responder(cotp::Connection::Role::Responder,
                               {.localSelector = {9}, .checkSelector = true});
    cotp::Connection initiator(cotp::Connection::Role::Initiator, {});
    const auto answer = responder.receive(find<cotp::Send>(initiator.connect())->octets);
    const auto ended = initiator.receive(find<cotp::Send>(answer)->octets);
    ASSERT_EQ(ended.size(), 1U);
    EXPECT_EQ(ended.front(), cotp::Action(cotp::Closed{
                                 osi::say("The peer does not know the transport selector.")}));
}

TEST(Cotp, aUnitThatDoesNotBelongToTheStateEndsTheConnectionWithAnErrorUnit)
{
    struct Row
    {
        bool initiator;
        bool open;
        std::string_view unit;
        bool answered;
    };
    constexpr std::string_view data = "02f08001";
    for (const Row &row : {Row{true, false, request, true}, Row{true, false, data, true},
                           Row{true, true, confirm, true}, Row{true, false, disconnect, false},
                           Row{true, true, disconnect, false}, Row{true, true, errorUnit, false},
                           Row{false, false, confirm, true}, Row{false, false, data, true},
                           Row{false, true, request, true}, Row{false, true, "0290", true}}) {
        Pair pair;
        cotp::Connection fresh(row.initiator ? cotp::Connection::Role::Initiator
                                             : cotp::Connection::Role::Responder,
                               {});
        fresh.connect();
        cotp::Connection &end = !row.open ? fresh : row.initiator ? pair.initiator : pair.responder;
        Octets stream;
        appendTpkt(stream, fromHex(row.unit));
        const auto actions = end.receive(stream);
        EXPECT_EQ(find<cotp::Send>(actions) != nullptr, row.answered) << row.unit;
        ASSERT_NE(find<cotp::Closed>(actions), nullptr) << row.unit;
        EXPECT_EQ(find<cotp::Closed>(actions)->reason.english().back(), '.');
        EXPECT_EQ(end.state(), cotp::Connection::State::Closed);
        EXPECT_TRUE(end.networkClosed(osi::verbatim("late")).empty());
    }
}

TEST(Cotp, everyReasonIsASentence)
{
    for (unsigned i = 0; i < 256; ++i) {
        EXPECT_EQ(cotp::reasonText(static_cast<std::uint8_t>(i)).english().back(), '.');
        EXPECT_EQ(cotp::causeText(static_cast<std::uint8_t>(i)).english().back(), '.');
    }
}
