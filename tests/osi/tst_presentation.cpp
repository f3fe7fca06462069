// SPDX-License-Identifier: Apache-2.0
#include "osi/bytes.h"
#include "osi/presentation.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

using namespace osi;
using namespace osi::presentation;
using wiretest::fromHex;
using wiretest::packed;
using wiretest::toHex;

constexpr std::string_view connectOctets = "31 40 a003800101 a239 8102 0001 8202 0001"
                                           "a423 300f 020101 0604 52010001 3004 0602 5101"
                                           "     3010 020103 0605 28ca220201 3004 0602 5101"
                                           "610a 3008 020101 a003 600100";
constexpr std::string_view acceptOctets = "31 2a a003800101 a223 8302 0001"
                                          "a512 3007 800100 8102 5101 3007 800100 8102 5101"
                                          "6109 3007 020101 a002 6100";
constexpr std::string_view rejectOctets = "30 0e 8302 0001 a505 3003 800102 8a0106";
constexpr std::string_view dataOctets = "6109 3007 020103 a002 8b00";

void expectRefusedCut(std::string_view hex, const std::function<bool(Bytes)> &reads)
{
    Octets octets = fromHex(hex);
    EXPECT_TRUE(reads(octets)) << hex;
    octets.push_back(0);
    EXPECT_FALSE(reads(octets)) << "one octet too many";
    octets.resize(octets.size() - 2);
    EXPECT_FALSE(reads(octets)) << "one octet too few";
}

const Indication *indication(const Actions &actions)
{
    for (const Action &action : actions) {
        if (const auto *found = std::get_if<Indication>(&action))
            return found;
    }
    return nullptr;
}

const Request *request(const Actions &actions)
{
    for (const Action &action : actions) {
        if (const auto *found = std::get_if<Request>(&action))
            return found;
    }
    return nullptr;
}

const Octets apdu = fromHex("6000");

Connect connectUnit(Bytes value)
{
    return {Octets{0, 1},
            Octets{0, 1},
            {{1, acseSyntax, {berSyntax}}, {3, mmsSyntax, {berSyntax}}},
            {{1, value}}};
}

Octets withHeader(const presentation::Connection &connection, const Octets &pdu)
{
    Octets octets;
    connection.appendHeader(octets, pdu.size());
    octets.insert(octets.end(), pdu.begin(), pdu.end());
    return octets;
}

} // namespace

TEST(Presentation, aConnectUnitHasItsOctetsAndItsValue)
{
    const Octets value = fromHex("600100");
    const Connect unit = connectUnit(value);
    EXPECT_EQ(toHex(encode(unit)), packed(connectOctets));
    const Octets octets = fromHex(connectOctets);
    const auto again = decodeConnect(octets);
    ASSERT_TRUE(again.ok()) << again.error().message;
    EXPECT_EQ(*again, unit);
    expectRefusedCut(connectOctets, [](Bytes bytes) { return decodeConnect(bytes).ok(); });
}

TEST(Presentation, anAcceptUnitHasItsOctetsAndItsValue)
{
    const Octets value = fromHex("6100");
    const ContextAnswer accepted{ContextResult::Acceptance, berSyntax, std::nullopt};
    const Accept unit{Octets{0, 1}, {accepted, accepted}, {{1, value}}};
    EXPECT_EQ(toHex(encode(unit)), packed(acceptOctets));
    const Octets octets = fromHex(acceptOctets);
    const auto again = decodeAccept(octets);
    ASSERT_TRUE(again.ok()) << again.error().message;
    EXPECT_EQ(*again, unit);
    expectRefusedCut(acceptOctets, [](Bytes bytes) { return decodeAccept(bytes).ok(); });
}

TEST(Presentation, aRejectUnitHasItsOctetsAndItsValue)
{
    const Reject unit{Octets{0, 1},
                      {{ContextResult::ProviderRejection, std::nullopt, std::nullopt}},
                      rejectUserData,
                      {}};
    EXPECT_EQ(toHex(encode(unit)), packed(rejectOctets));
    const auto again = decodeReject(encode(unit));
    ASSERT_TRUE(again.ok()) << again.error().message;
    EXPECT_EQ(*again, unit);
    expectRefusedCut(rejectOctets, [](Bytes bytes) { return decodeReject(bytes).ok(); });
}

TEST(Presentation, abortUnitsHaveTheirOctetsAndTheirValues)
{
    const Octets value = fromHex("6403800100");
    const Abort user = UserAbort{{{1, value}}};
    const std::string userOctets = packed("a00e 610c 300a 020101 a005 6403800100");
    EXPECT_EQ(toHex(encode(user)), userOctets);
    const Octets octets = fromHex(userOctets);
    const auto again = decodeAbort(octets);
    ASSERT_TRUE(again.ok());
    EXPECT_EQ(*again, user);
    expectRefusedCut(userOctets, [](Bytes bytes) { return decodeAbort(bytes).ok(); });
    const Abort provider = ProviderAbort{4, 2};
    EXPECT_EQ(toHex(encode(provider)), packed("3006 800104 810102"));
    const auto providerAgain = decodeAbort(encode(provider));
    ASSERT_TRUE(providerAgain.ok());
    EXPECT_EQ(*providerAgain, provider);
    expectRefusedCut("3006800104810102", [](Bytes bytes) { return decodeAbort(bytes).ok(); });
}

TEST(Presentation, dataHasItsOctetsAndItsValue)
{
    const Octets pdu = fromHex("8b00");
    EXPECT_EQ(toHex(encode(std::vector<DataValue>{{3, pdu}})), packed(dataOctets));
    const Octets octets = fromHex(dataOctets);
    const auto values = decodeData(octets);
    ASSERT_TRUE(values.ok());
    EXPECT_EQ(*values, (std::vector<DataValue>{{3, pdu}}));
    expectRefusedCut(dataOctets, [](Bytes bytes) { return decodeData(bytes).ok(); });
    for (const std::size_t size : {2U, 200U, 70000U}) {
        const Octets pduOfSize(size, 0);
        Octets header;
        appendDataHeader(header, 3, size);
        header.insert(header.end(), pduOfSize.begin(), pduOfSize.end());
        EXPECT_EQ(header, encode(std::vector<DataValue>{{3, pduOfSize}}));
    }
}

TEST(Presentation, otherModesAndOtherEncodingsAreRefused)
{
    EXPECT_FALSE(decodeConnect(fromHex("3107 a003800100 a200")).ok()) << "X.410 mode";
    EXPECT_FALSE(decodeConnect(fromHex("3105 a003800101")).ok()) << "no parameters";
    EXPECT_FALSE(decodeData(fromHex("40028b00")).ok()) << "simply encoded";
    EXPECT_FALSE(decodeData(fromHex("610d 300b 0602 5102 020103 a002 8b00")).ok());
}

TEST(Presentation, theTwoContextsAreAgreedAndCarryValues)
{
    presentation::Connection initiator{{}};
    presentation::Connection responder{{}};
    const auto asked = initiator.connect(apdu);
    const auto arrived = responder.receive(Service::Connect, request(asked)->userData);
    EXPECT_EQ(arrived, (Actions{Indication{Service::Connect, true, apdu, {}}}));
    const auto answer = responder.accept(apdu);
    const auto confirmed = initiator.receive(Service::Accept, request(answer)->userData);
    EXPECT_EQ(confirmed, (Actions{Indication{Service::Accept, true, apdu, {}}}));
    const Octets pdu = fromHex("8b00");
    const Octets sent = withHeader(initiator, pdu);
    const auto received = responder.receive(Service::Data, sent);
    EXPECT_EQ(received, (Actions{Indication{Service::Data, false, pdu, {}}}));
}

TEST(Presentation, contextsOfOtherNumbersAreUsedAsThePeerNumbersThem)
{
    presentation::Connection responder{{}};
    const Octets pdu = fromHex("8b00");
    Connect unit = connectUnit(apdu);
    unit.contexts = {{5, mmsSyntax, {{2, 1, 9}, berSyntax}},
                     {7, {1, 2, 3}, {berSyntax}},
                     {9, acseSyntax, {berSyntax}}};
    unit.userData = {{9, apdu}};
    const Octets octets = encode(unit);
    const auto asked = responder.receive(Service::Connect, octets);
    ASSERT_NE(indication(asked), nullptr);
    EXPECT_TRUE(indication(asked)->association);
    EXPECT_EQ(toHex(indication(asked)->value), "6000");
    const auto answer = responder.accept(apdu);
    const auto accept = decodeAccept(request(answer)->userData);
    ASSERT_TRUE(accept.ok());
    ASSERT_EQ(accept->answers.size(), 3U);
    EXPECT_EQ(accept->answers[0].result, ContextResult::Acceptance);
    EXPECT_EQ(accept->answers[1].reason, abstractSyntaxNotSupported);
    EXPECT_EQ(accept->answers[2].result, ContextResult::Acceptance);
    const Octets data = withHeader(responder, pdu);
    EXPECT_EQ(decodeData(data)->front().contextId, 5);
}

TEST(Presentation, aConnectionWithoutTheContextsOfMmsIsRefused)
{
    for (const auto &contexts :
         {std::vector<Context>{}, std::vector<Context>{{1, acseSyntax, {berSyntax}}},
          std::vector<Context>{{1, acseSyntax, {berSyntax}}, {3, mmsSyntax, {{2, 1, 9}}}}}) {
        presentation::Connection responder{{}};
        Connect unit = connectUnit(apdu);
        unit.contexts = contexts;
        const Octets octets = encode(unit);
        const auto actions = responder.receive(Service::Connect, octets);
        ASSERT_NE(request(actions), nullptr);
        EXPECT_EQ(request(actions)->service, Service::Refuse);
        EXPECT_TRUE(decodeReject(request(actions)->userData).ok());
        EXPECT_NE(indication(actions)->reason.english().find("presentation contexts"),
                  std::string::npos);
    }
}

TEST(Presentation, anAnswerThatRefusesAContextEndsTheConnection)
{
    presentation::Connection initiator{{}};
    initiator.connect(apdu);
    const Octets octets = encode(Accept{std::nullopt,
                                        {{ContextResult::Acceptance, berSyntax, std::nullopt},
                                         {ContextResult::ProviderRejection, std::nullopt, 1}},
                                        {{1, apdu}}});
    const auto actions = initiator.receive(Service::Accept, octets);
    EXPECT_EQ(request(actions)->service, Service::ProviderAbort);
    EXPECT_EQ(indication(actions)->service, Service::ProviderAbort);
}

TEST(Presentation, dataOfAnUnknownContextAborts)
{
    presentation::Connection connection{{}};
    const Octets pdu = fromHex("8b00");
    const Octets octets = encode(std::vector<DataValue>{{99, pdu}});
    const auto actions = connection.receive(Service::Data, octets);
    EXPECT_EQ(request(actions)->service, Service::ProviderAbort);
    EXPECT_NE(indication(actions)->reason.english().find("not agreed"), std::string::npos);
}

TEST(Presentation, everyReasonIsASentence)
{
    EXPECT_EQ(rejectionText(std::nullopt).english().back(), '.');
    EXPECT_EQ(abortText(std::nullopt).english().back(), '.');
    for (std::int64_t i = -2; i < 20; ++i) {
        EXPECT_EQ(rejectionText(i).english().back(), '.');
        EXPECT_EQ(abortText(i).english().back(), '.');
    }
}
