// SPDX-License-Identifier: Apache-2.0
#include "osi/bytes.h"
#include "osi/session.h"

#include <gtest/gtest.h>

namespace {

using namespace osi;
using namespace osi::session;
using wiretest::fromHex;
using wiretest::packed;
using wiretest::toHex;

using Role = session::Connection::Role;
using State = session::Connection::State;

struct Golden
{
    std::string_view octets;
    Unit unit;
};

std::vector<Golden> goldenUnits()
{
    const Octets selector{0, 1};
    const Octets data{0x31, 0x00};
    return {
        {"0d 18 05 06 130100 160102 14020002 33020001 34020001 c1023100",
         Connect{0, 2, duplex, selector, selector, data}},
        {"0e 14 05 06 130100 160102 14020002 34020001 c1023100",
         Accept{0, 2, duplex, std::nullopt, selector, data}},
        {"0c 06 110101 320181", Refuse{refuseSelectorUnknown, {}}},
        {"0c 08 110101 32030231 00", Refuse{refuseWithData, data}},
        {"09 07 110101 c1023100", Finish{data}},
        {"0a 04 c1023100", Disconnect{data}},
        {"08 00", NotFinished{}},
        {"19 07 110103 c1023100", Abort{true, false, data}},
        {"19 03 110105", Abort{false, true, {}}},
        {"1a 00", AbortAccept{}},
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

struct Pair
{
    session::Connection initiator{Role::Initiator, {}};
    session::Connection responder{Role::Responder, {}};

    void open()
    {
        responder.receive(find<Send>(initiator.connect({1}))->message);
        initiator.receive(find<Send>(responder.accept({2}))->message);
    }
};

} // namespace

TEST(Session, everyUnitHasItsOctetsAndItsValue)
{
    for (const Golden &golden : goldenUnits()) {
        EXPECT_EQ(toHex(encode(golden.unit)), packed(golden.octets));
        const auto unit = decode(fromHex(golden.octets));
        ASSERT_TRUE(unit.ok()) << golden.octets << unit.error().message;
        EXPECT_EQ(*unit, golden.unit) << golden.octets;
    }
}

TEST(Session, everyUnitIsRefusedWithOneOctetMoreOrLess)
{
    for (const Golden &golden : goldenUnits()) {
        Octets octets = fromHex(golden.octets);
        octets.push_back(0);
        EXPECT_FALSE(decode(octets).ok()) << "too many: " << golden.octets;
        octets.resize(octets.size() - 2);
        EXPECT_FALSE(decode(octets).ok()) << "too few: " << golden.octets;
    }
}

TEST(Session, dataFollowsTheTokensThatAreGiven)
{
    const Octets octets = fromHex("01000100 6103");
    const auto unit = decode(octets);
    ASSERT_TRUE(unit.ok());
    const Octets payload = fromHex("6103");
    EXPECT_EQ(*unit, Unit(Data{payload}));
    EXPECT_EQ(toHex(encode(*unit)), packed("010001006103"));
    EXPECT_FALSE(decode(fromHex("010001")).ok());
    EXPECT_FALSE(decode(fromHex("01000900")).ok());
    EXPECT_FALSE(decode(fromHex("0100010319010100")).ok()) << "segments were not agreed";
}

TEST(Session, longUserDataTakesALongLength)
{
    const Unit unit = Connect{0, 2, duplex, std::nullopt, std::nullopt, Octets(600, 7)};
    const Octets octets = encode(unit);
    EXPECT_EQ(toHex(Bytes(octets).first(4)), "0dff0268");
    const auto again = decode(octets);
    ASSERT_TRUE(again.ok());
    EXPECT_EQ(*again, unit);
}

TEST(Session, absentParametersMeanVersionOneAndTheirDefaultRequirements)
{
    const auto unit = decode(fromHex("0d00"));
    ASSERT_TRUE(unit.ok());
    EXPECT_EQ(*unit, Unit(Connect{0, 1, 0x0349, std::nullopt, std::nullopt, {}}));
}

TEST(Session, aConnectionIsOpenedUsedAndFinished)
{
    Pair pair;
    const auto indication =
        pair.responder.receive(find<Send>(pair.initiator.connect({1}))->message);
    ASSERT_NE(find<ConnectIndication>(indication), nullptr);
    EXPECT_EQ(find<ConnectIndication>(indication)->userData, Octets{1});
    const auto confirm = pair.initiator.receive(find<Send>(pair.responder.accept({2}))->message);
    ASSERT_NE(find<ConnectConfirm>(confirm), nullptr);
    EXPECT_EQ(find<ConnectConfirm>(confirm)->userData, Octets{2});
    const Octets payload{3, 4};
    const auto sent = pair.initiator.send(payload);
    const auto data = pair.responder.receive(find<Send>(sent)->message);
    ASSERT_EQ(data.size(), 1U);
    EXPECT_EQ(data.front(), Action(DataIndication{payload}));
    const auto finish = pair.responder.receive(find<Send>(pair.initiator.finish({5}))->message);
    EXPECT_EQ(finish, Actions{FinishIndication{{5}}});
    EXPECT_EQ(pair.responder.state(), State::Closing);
    const auto end = pair.initiator.receive(find<Send>(pair.responder.disconnect({6}))->message);
    EXPECT_EQ(end, Actions{FinishConfirm{{6}}});
    EXPECT_EQ(pair.initiator.state(), State::Closed);
    EXPECT_EQ(pair.responder.state(), State::Closed);
}

TEST(Session, bothSidesMayFinishAtOnce)
{
    Pair pair;
    pair.open();
    const auto left = pair.initiator.finish({});
    const auto right = pair.responder.finish({});
    EXPECT_EQ(pair.initiator.receive(find<Send>(right)->message), Actions{FinishIndication{}});
    EXPECT_EQ(pair.responder.receive(find<Send>(left)->message), Actions{FinishIndication{}});
    const auto leftEnd = pair.initiator.disconnect({});
    const auto rightEnd = pair.responder.disconnect({});
    EXPECT_TRUE(pair.initiator.disconnect({}).empty());
    EXPECT_EQ(pair.initiator.receive(find<Send>(rightEnd)->message), Actions{FinishConfirm{}});
    EXPECT_EQ(pair.responder.receive(find<Send>(leftEnd)->message), Actions{FinishConfirm{}});
}

TEST(Session, requestsThatCannotBeServedAreRefused)
{
    struct Row
    {
        Connect request;
        std::uint8_t reason;
    };
    for (const Row &row : {Row{{0, 1, duplex, Octets{1}, Octets{0, 1}, {}}, refuseVersion},
                           Row{{0, 2, 0x0001, Octets{1}, Octets{0, 1}, {}}, refuseByProvider},
                           Row{{0, 2, duplex, Octets{1}, Octets{9}, {}}, refuseSelectorUnknown}}) {
        session::Connection responder(Role::Responder, {.checkSelector = true});
        const auto actions = responder.receive(encode(row.request));
        EXPECT_EQ(toHex(find<Send>(actions)->message), toHex(encode(Refuse{row.reason, {}})));
        EXPECT_NE(find<AbortIndication>(actions), nullptr);
        session::Connection initiator(Role::Initiator, {});
        initiator.connect({});
        EXPECT_EQ(initiator.receive(find<Send>(actions)->message),
                  (Actions{Refused{refusalText(row.reason), {}}}));
    }
}

TEST(Session, anAbortSaysWhoseItIs)
{
    for (const bool byUser : {true, false}) {
        Pair pair;
        pair.open();
        const auto actions =
            pair.initiator.receive(find<Send>(pair.responder.abort(byUser, {8}))->message);
        ASSERT_NE(find<AbortIndication>(actions), nullptr);
        EXPECT_EQ(find<AbortIndication>(actions)->byUser, byUser);
        EXPECT_EQ(find<AbortIndication>(actions)->userData, Octets{8});
        EXPECT_TRUE(pair.responder.abort(byUser, {}).empty());
    }
}

TEST(Session, aUnitThatDoesNotBelongToTheStateAbortsTheConnection)
{
    struct Row
    {
        bool initiator;
        bool open;
        Unit unit;
    };
    const Octets payload{1};
    for (const Row &row :
         {Row{true, false, Connect{}}, Row{true, false, Data{payload}}, Row{true, false, Finish{}},
          Row{true, true, Accept{}}, Row{true, true, Refuse{}}, Row{true, true, Disconnect{}},
          Row{true, true, NotFinished{}}, Row{true, true, AbortAccept{}},
          Row{false, true, Connect{}}, Row{false, true, Accept{}}}) {
        Pair pair;
        if (row.open)
            pair.open();
        else
            pair.initiator.connect({});
        session::Connection &end = row.initiator ? pair.initiator : pair.responder;
        const auto actions = end.receive(encode(row.unit));
        ASSERT_NE(find<Send>(actions), nullptr) << row.unit.index();
        EXPECT_EQ(find<Send>(actions)->message, encode(Abort{false, true, {}}));
        ASSERT_NE(find<AbortIndication>(actions), nullptr);
        EXPECT_EQ(end.state(), State::Closed);
        EXPECT_TRUE(end.receive(encode(row.unit)).empty());
    }
}

TEST(Session, everyRefusalIsASentence)
{
    for (unsigned i = 0; i < 256; ++i)
        EXPECT_EQ(refusalText(static_cast<std::uint8_t>(i)).english().back(), '.');
}
