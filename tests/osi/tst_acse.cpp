// SPDX-License-Identifier: Apache-2.0
#include "osi/acse.h"
#include "osi/bytes.h"

#include <gtest/gtest.h>

namespace {

using namespace osi;
using namespace osi::acse;
using wiretest::fromHex;
using wiretest::packed;
using wiretest::toHex;

const Octets pdu = fromHex("a800");

struct Golden
{
    std::string_view octets;
    Unit unit;
};

std::vector<Golden> goldenUnits()
{
    AssociateRequest request;
    request.called = {ObjectIdentifier{1, 1, 999, 1}, 12};
    request.calling = {ObjectIdentifier{1, 1, 999}, 12};
    request.authentication = Authentication{passwordMechanism, fromHex("70617373")};
    request.userInformation = UserInformation{3, pdu};
    AssociateResponse response;
    response.responding = {ObjectIdentifier{1, 1, 999, 1}, 12};
    response.userInformation = UserInformation{3, pdu};
    AssociateResponse refusal;
    refusal.result = acse::Result::RejectedPermanently;
    refusal.diagnostic = {false, diagnosticAuthenticationFailed};
    return {
        {"60 3e a107 0605 28ca220203 a206 0604 29876701 a303 02010c a605 0603 298767 a703 02010c"
         "8a02 0780 8b03 520301 ac06 8004 70617373 be09 2807 020103 a002 a800",
         request},
        {"61 2d a107 0605 28ca220203 a203 020100 a305 a103 020100 a406 0604 29876701 a503 02010c"
         "be09 2807 020103 a002 a800",
         response},
        {"61 15 a107 0605 28ca220203 a203 020101 a305 a103 02010d", refusal},
        {"6203 800100", ReleaseRequest{0}},
        {"6300", ReleaseResponse{std::nullopt}},
        {"6403 800100", Abort{false, std::nullopt}},
        {"6406 800101 810101", Abort{true, 1}},
    };
}

template <typename T>
const T *find(const Actions &actions)
{
    for (const auto &action : actions) {
        if (const T *found = std::get_if<T>(&action))
            return found;
    }
    return nullptr;
}

} // namespace

TEST(Acse, everyUnitHasItsOctetsAndItsValue)
{
    for (const Golden &golden : goldenUnits()) {
        EXPECT_EQ(toHex(encode(golden.unit)), packed(golden.octets));
        const Octets octets = fromHex(golden.octets);
        const auto unit = decode(octets);
        ASSERT_TRUE(unit.ok()) << golden.octets << unit.error().message;
        EXPECT_EQ(*unit, golden.unit) << golden.octets;
    }
}

TEST(Acse, everyUnitIsRefusedWithOneOctetMoreOrLess)
{
    for (const Golden &golden : goldenUnits()) {
        Octets octets = fromHex(golden.octets);
        octets.push_back(0);
        EXPECT_FALSE(decode(octets).ok()) << "too many: " << golden.octets;
        octets.resize(octets.size() - 2);
        EXPECT_FALSE(decode(octets).ok()) << "too few: " << golden.octets;
    }
}

TEST(Acse, titlesInOtherFormsAreReadOver)
{
    const auto unit =
        decode(fromHex("6019 a107060528ca220203 a2023000 a3023100 be06 2804 a002 a800"));
    ASSERT_TRUE(unit.ok()) << unit.error().message;
    EXPECT_EQ(std::get<AssociateRequest>(*unit).called, Title());
}

TEST(Acse, anAssociationIsMadeUsedAndReleased)
{
    Association initiator({{ObjectIdentifier{1, 3, 9999}, 1}, {}, {}});
    Association responder({{ObjectIdentifier{1, 3, 8888}, 2}, {}, {}});
    const auto asked = initiator.associate(pdu);
    const auto arrived = responder.receive(Service::Connect, find<Request>(asked)->unit, {});
    ASSERT_NE(find<AssociateIndication>(arrived), nullptr);
    EXPECT_EQ(find<AssociateIndication>(arrived)->calling,
              (Title{ObjectIdentifier{1, 3, 9999}, 1}));
    EXPECT_EQ(toHex(find<AssociateIndication>(arrived)->pdu), toHex(pdu));
    const auto answer = responder.accept(pdu);
    const auto confirmed = initiator.receive(Service::Accept, find<Request>(answer)->unit, {});
    ASSERT_NE(find<AssociateConfirm>(confirmed), nullptr);
    EXPECT_EQ(find<AssociateConfirm>(confirmed)->responding,
              (Title{ObjectIdentifier{1, 3, 8888}, 2}));
    const auto release = initiator.release();
    EXPECT_EQ(responder.receive(Service::Finish, find<Request>(release)->unit, {}),
              Actions{ReleaseIndication()});
    const auto released = responder.answerRelease();
    EXPECT_EQ(initiator.receive(Service::Disconnect, find<Request>(released)->unit, {}),
              Actions{ReleaseConfirm()});
    EXPECT_TRUE(initiator.abort().empty());
}

TEST(Acse, onlyTheRightPasswordIsAccepted)
{
    struct Row
    {
        std::optional<Authentication> sent;
        std::string_view refusal;
    };
    const Authentication right{passwordMechanism, fromHex("6162")};
    for (const Row &row :
         {Row{right, ""}, Row{std::nullopt, "an authentication is required"},
          Row{Authentication{passwordMechanism, fromHex("6163")}, "the authentication failed"},
          Row{Authentication{passwordMechanism, fromHex("616263")}, "the authentication failed"},
          Row{Authentication{{1, 2, 3}, fromHex("6162")}, "the authentication failed"}}) {
        Association initiator({{}, {}, row.sent});
        Association responder({{}, {}, right});
        const auto asked = initiator.associate(pdu);
        const auto arrived = responder.receive(Service::Connect, find<Request>(asked)->unit, {});
        EXPECT_EQ(find<AssociateIndication>(arrived) != nullptr, row.refusal.empty());
        EXPECT_EQ(find<Aborted>(arrived) == nullptr, row.refusal.empty());
        if (row.refusal.empty())
            continue;
        EXPECT_EQ(find<Request>(arrived)->service, Service::Refuse);
        const auto refused = initiator.receive(Service::Refuse, find<Request>(arrived)->unit, {});
        ASSERT_NE(find<Refused>(refused), nullptr);
        EXPECT_EQ(find<Refused>(refused)->reason,
                  "The peer refuses the association: " + std::string(row.refusal) + ".");
    }
}

TEST(Acse, aUnitThatDoesNotBelongToTheStateAborts)
{
    struct Row
    {
        bool associating;
        Service service;
        Unit unit;
    };
    for (const Row &row :
         {Row{false, Service::Connect, AssociateResponse{}},
          Row{true, Service::Accept, AssociateRequest{}},
          Row{true, Service::Accept, ReleaseRequest{}}, Row{true, Service::Data, Abort{}}}) {
        Association association({});
        if (row.associating)
            association.associate(pdu);
        const auto actions = association.receive(row.service, encode(row.unit), {});
        ASSERT_NE(find<Request>(actions), nullptr);
        EXPECT_NE(find<Aborted>(actions), nullptr);
        EXPECT_EQ(association.state(), Association::State::Closed);
        EXPECT_TRUE(association.receive(row.service, encode(row.unit), {}).empty());
    }
}

TEST(Acse, anAbortSaysWhoseItIs)
{
    for (const bool byProvider : {false, true}) {
        Association association({});
        association.associate(pdu);
        const auto actions =
            association.receive(Service::UserAbort, encode(Abort{byProvider, 1}), {});
        ASSERT_NE(find<Aborted>(actions), nullptr);
        EXPECT_EQ(find<Aborted>(actions)->byUser, !byProvider);
    }
}

TEST(Acse, everyRefusalIsASentence)
{
    for (std::int64_t code = -2; code < 30; ++code) {
        for (const bool byProvider : {false, true})
            EXPECT_EQ(
                refusalText(acse::Result::RejectedPermanently, {byProvider, code}).english().back(),
                '.');
    }
}
