// SPDX-License-Identifier: Apache-2.0
#include "simulator/manualclock.h"
#include "simulator/recordingclient.h"

#include "simulator/controlmachine.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;
using acsi::ControlModel;
using acsi::ControlRequest;
using mms::Data;
using sim::AddCause;

namespace {

/// A process that a test lets obey or not, and that notes what it is told.
class Process : public sim::ControlHost
{
public:
    sim::ControlSettings settings() override { return configuration; }
    AddCause check(const ControlRequest &) override { return forbidden; }
    void selected(bool selected) override { log += selected ? "select " : "deselect "; }
    void started(const ControlRequest &) override { log += "start "; }
    void finished(const ControlRequest &) override { log += "finish "; }
    void stopped(const ControlRequest &, AddCause cause) override
    {
        log += "stop" + std::to_string(static_cast<int>(cause)) + ' ';
    }
    void send(sim::Peer &client, mms::InformationReport report) override
    {
        const auto information = acsi::controlInformationFrom(report);
        ASSERT_TRUE(information.has_value());
        if (information->terminated) {
            ASSERT_EQ(acsi::toText(*information->terminated), "LD/CSWI1$CO$Pos");
            log += information->positive ? "term+ " : "term- ";
        }
        if (information->applError) {
            EXPECT_TRUE(information->applError->controlObject.starts_with("LD/CSWI1$CO$Pos$"));
            log += information->applError->controlObject.substr(16) + ":" +
                   std::to_string(information->applError->addCause) + ' ';
        }
        receiver = &client;
    }

    void sendLater(sim::Peer &client, mms::InformationReport report) override
    {
        log += "later ";
        send(client, std::move(report));
    }

    std::string take()
    {
        if (!log.empty())
            log.pop_back();
        return std::exchange(log, {});
    }

    sim::ControlSettings configuration;
    AddCause forbidden = AddCause::None;
    std::string log;
    const sim::Peer *receiver = nullptr;
};

class ControlMachineTest : public testing::Test
{
protected:
    explicit ControlMachineTest(ControlModel model = ControlModel::DirectNormal)
    {
        m_process.configuration.model = model;
        m_process.configuration.sboTimeout = 1s;
        m_process.configuration.operTimeout = 500ms;
        m_process.configuration.operatingTime = 100ms;
        m_request.value = Data::boolean(true);
        m_request.originator = {2, {1, 2}};
        m_request.ctlNum = 5;
    }

    void use(ControlModel model) { m_process.configuration.model = model; }

    // Each is "+" or "-", and what happened meanwhile.
    std::string selectByRead(sim::Peer &client) { return told(m_machine.select(client)); }
    std::string select(sim::Peer &client)
    {
        return told(!m_machine.selectWithValue(client, m_request));
    }
    std::string operate(sim::Peer &client)
    {
        return told(!m_machine.operate(client, m_request, Data::structure({Data::boolean(true)})));
    }
    std::string cancel(sim::Peer &client) { return told(!m_machine.cancel(client, m_request)); }

    std::string pass(std::chrono::milliseconds time)
    {
        for (std::chrono::milliseconds i{0}; i < time; ++i) {
            m_clock.advance(1ms);
            m_machine.advance();
        }
        return m_process.take();
    }

    simtest::ManualClock m_clock;
    Process m_process;
    simtest::RecordingClient m_client;
    simtest::RecordingClient m_other;
    ControlRequest m_request;
    sim::ControlMachine m_machine{"LD/CSWI1$CO$Pos", m_process, m_clock};

private:
    std::string told(bool ok)
    {
        const std::string log = m_process.take();
        return (ok ? "+" : "-") + (log.empty() ? log : " " + log);
    }
};

} // namespace

TEST_F(ControlMachineTest, statusOnlyObjectsCannotBeControlled)
{
    use(ControlModel::StatusOnly);
    EXPECT_EQ(selectByRead(m_client), "-");
    EXPECT_EQ(select(m_client), "- SBOw:1");
    EXPECT_EQ(operate(m_client), "- Oper:1");
    EXPECT_EQ(cancel(m_client), "- Cancel:18");
    EXPECT_EQ(m_process.receiver, &m_client);
}

TEST_F(ControlMachineTest, directControlMovesTheProcessWithoutATermination)
{
    EXPECT_EQ(operate(m_client), "+ start");
    EXPECT_TRUE(m_machine.isBusy());
    EXPECT_EQ(pass(99ms), "");
    EXPECT_EQ(pass(1ms), "finish");
    EXPECT_FALSE(m_machine.isBusy());
    EXPECT_EQ(operate(m_other), "+ start");
}

TEST_F(ControlMachineTest, whatTheProcessForbidsIsToldBeforeTheRefusal)
{
    m_process.forbidden = AddCause::BlockedByInterlocking;
    EXPECT_EQ(operate(m_client), "- Oper:10");
    use(ControlModel::SelectEnhanced);
    EXPECT_EQ(select(m_client), "- SBOw:10");
}

TEST_F(ControlMachineTest, noSecondControlWhileOneIsExecuted)
{
    operate(m_client);
    EXPECT_EQ(operate(m_client), "- Oper:12");
    EXPECT_EQ(operate(m_other), "- Oper:27");
    EXPECT_EQ(pass(100ms), "finish");
}

TEST_F(ControlMachineTest, enhancedControlIsTerminatedPositively)
{
    use(ControlModel::DirectEnhanced);
    EXPECT_EQ(operate(m_client), "+ start");
    EXPECT_EQ(pass(100ms), "finish term+");
    EXPECT_EQ(m_process.receiver, &m_client);
}

TEST_F(ControlMachineTest, aProcessThatDoesNotFollowIsTerminatedNegatively)
{
    use(ControlModel::DirectEnhanced);
    m_process.configuration.operatingTime.reset();
    EXPECT_EQ(operate(m_client), "+ start");
    EXPECT_EQ(pass(499ms), "");
    EXPECT_EQ(pass(1ms), "stop16 term- Oper:16");
    m_process.configuration.operatingTime = 600ms;
    EXPECT_EQ(operate(m_client), "+ start");
    EXPECT_EQ(pass(500ms), "stop16 term- Oper:16");
}

TEST_F(ControlMachineTest, selectionByReadBelongsToOneClient)
{
    use(ControlModel::SelectNormal);
    EXPECT_EQ(operate(m_client), "- Oper:18");
    EXPECT_EQ(selectByRead(m_client), "+ select");
    EXPECT_EQ(selectByRead(m_other), "-");
    EXPECT_EQ(operate(m_other), "- Oper:27");
    EXPECT_EQ(selectByRead(m_client), "+");
    EXPECT_EQ(operate(m_client), "+ deselect start");
    EXPECT_EQ(pass(100ms), "finish");
    EXPECT_EQ(operate(m_client), "- Oper:18");
    EXPECT_EQ(selectByRead(m_other), "+ select");
}

TEST_F(ControlMachineTest, selectionWithValueBelongsToOneClient)
{
    use(ControlModel::SelectEnhanced);
    EXPECT_EQ(selectByRead(m_client), "-");
    EXPECT_EQ(select(m_client), "+ select");
    EXPECT_EQ(select(m_other), "- SBOw:19");
    EXPECT_EQ(m_process.receiver, &m_other);
    EXPECT_EQ(operate(m_client), "+ deselect start");
    EXPECT_EQ(select(m_other), "- SBOw:12");
    EXPECT_EQ(pass(100ms), "finish term+");
}

TEST_F(ControlMachineTest, theWrongWayToSelectIsRefused)
{
    use(ControlModel::SelectNormal);
    EXPECT_EQ(select(m_client), "- SBOw:1");
    use(ControlModel::SelectEnhanced);
    EXPECT_EQ(selectByRead(m_client), "-");
    use(ControlModel::DirectEnhanced);
    EXPECT_EQ(selectByRead(m_client), "-");
    EXPECT_EQ(select(m_client), "- SBOw:1");
}

TEST_F(ControlMachineTest, anOperateThatDiffersFromTheSelectionIsRefusedAndEndsIt)
{
    use(ControlModel::SelectEnhanced);
    const ControlRequest selected = m_request;
    const auto refuses = [&](auto change) {
        m_request = selected;
        EXPECT_EQ(select(m_client), "+ select");
        change(m_request);
        EXPECT_EQ(operate(m_client), "- Oper:26 deselect");
        EXPECT_EQ(operate(m_client), "- Oper:18");
    };
    refuses([](ControlRequest &r) { r.value = Data::boolean(false); });
    refuses([](ControlRequest &r) { r.ctlNum = 6; });
    refuses([](ControlRequest &r) { r.originator.category = 3; });
    refuses([](ControlRequest &r) { r.originator.identification.push_back(1); });
    refuses([](ControlRequest &r) { r.test = true; });
    refuses([](ControlRequest &r) { r.synchrocheck = true; });
    refuses([](ControlRequest &r) { r.interlockCheck = true; });
    refuses([](ControlRequest &r) { r.operateTime = mms::UtcTime{1700000000, 0, 0}; });
    m_request = selected;
    EXPECT_EQ(select(m_client), "+ select");
    m_request.time.seconds = 1;
    EXPECT_EQ(operate(m_client), "+ deselect start");
}

TEST_F(ControlMachineTest, aSelectionEndsByItself)
{
    use(ControlModel::SelectNormal);
    selectByRead(m_client);
    EXPECT_EQ(pass(600ms), "");
    EXPECT_EQ(selectByRead(m_client), "+");
    EXPECT_EQ(pass(999ms), "");
    EXPECT_EQ(pass(1ms), "deselect");
    EXPECT_EQ(operate(m_client), "- Oper:18");
}

TEST_F(ControlMachineTest, aSelectionThatMayOperateOftenLastsBeyondTheOperation)
{
    use(ControlModel::SelectEnhanced);
    m_process.configuration.operateMany = true;
    select(m_client);
    EXPECT_EQ(operate(m_client), "+ start");
    EXPECT_EQ(pass(100ms), "finish term+");
    m_request.ctlNum = 6;
    EXPECT_EQ(operate(m_client), "+ start");
    EXPECT_EQ(pass(100ms), "finish term+");
    EXPECT_EQ(pass(999ms), "");
    EXPECT_EQ(pass(1ms), "deselect");
}

TEST_F(ControlMachineTest, cancellingEndsASelection)
{
    use(ControlModel::SelectNormal);
    selectByRead(m_client);
    EXPECT_EQ(cancel(m_other), "- Cancel:27");
    EXPECT_EQ(cancel(m_client), "+ deselect");
    EXPECT_EQ(cancel(m_client), "- Cancel:18");
}

TEST_F(ControlMachineTest, cancellingStopsAnOperation)
{
    use(ControlModel::DirectEnhanced);
    operate(m_client);
    EXPECT_EQ(cancel(m_client), "+ stop15 term- Oper:15");
    EXPECT_EQ(pass(200ms), "");
    EXPECT_EQ(operate(m_client), "+ start");
}

TEST_F(ControlMachineTest, cancellingStopsAnOperationOfAKeptSelection)
{
    use(ControlModel::SelectEnhanced);
    m_process.configuration.operateMany = true;
    select(m_client);
    operate(m_client);
    EXPECT_EQ(cancel(m_client), "+ stop15 term- Oper:15 deselect");
    EXPECT_EQ(operate(m_client), "- Oper:18");
}

TEST_F(ControlMachineTest, aCancelOfAnotherCommandThanTheOneThatRunsIsRefused)
{
    use(ControlModel::DirectEnhanced);
    operate(m_client);
    ControlRequest running = m_request;
    m_request.ctlNum = 6;
    EXPECT_EQ(cancel(m_client), "- Cancel:26");
    m_request = running;
    m_request.value = Data::boolean(false);
    EXPECT_EQ(cancel(m_client), "- Cancel:26");
    m_request = running;
    m_request.originator.category = 3;
    m_process.configuration.isStrict = true;
    EXPECT_EQ(cancel(m_client), "- Cancel:26");
    m_request = running;
    EXPECT_EQ(cancel(m_client), "+ stop15 term- Oper:15");
}

TEST_F(ControlMachineTest, aCancelRepeatsASelectionWithValue)
{
    use(ControlModel::SelectEnhanced);
    select(m_client);
    const ControlRequest selected = m_request;
    m_request.ctlNum = 9;
    EXPECT_EQ(cancel(m_client), "- Cancel:26");
    m_request = selected;
    EXPECT_EQ(cancel(m_client), "+ deselect");
}

TEST_F(ControlMachineTest, aDeviceMayBeUnableToCancelWhatItExecutes)
{
    use(ControlModel::DirectEnhanced);
    m_process.configuration.cancelsOperations = false;
    operate(m_client);
    EXPECT_EQ(cancel(m_client), "- Cancel:1");
    EXPECT_EQ(pass(100ms), "finish term+");
}

TEST_F(ControlMachineTest, aStrictDeviceWantsToKnowWhoOperates)
{
    m_request.originator.category = 0;
    EXPECT_EQ(operate(m_client), "+ start");
    pass(100ms);
    m_process.configuration.isStrict = true;
    EXPECT_EQ(operate(m_client), "- Oper:26");
}

TEST_F(ControlMachineTest, aCauseMayFollowTheAnswer)
{
    m_process.configuration.causes.followsAnswer = true;
    m_process.forbidden = AddCause::BlockedByInterlocking;
    EXPECT_EQ(operate(m_client), "- later Oper:10");
}

TEST_F(ControlMachineTest, aLostClientLosesItsSelection)
{
    use(ControlModel::SelectNormal);
    selectByRead(m_client);
    m_machine.closed(m_other);
    EXPECT_EQ(m_process.take(), "");
    m_machine.closed(m_client);
    EXPECT_EQ(m_process.take(), "deselect");
    EXPECT_EQ(selectByRead(m_other), "+ select");
}

TEST_F(ControlMachineTest, anOperationGoesOnWithoutItsClientButTellsNobody)
{
    use(ControlModel::DirectEnhanced);
    operate(m_client);
    m_machine.closed(m_client);
    EXPECT_EQ(operate(m_other), "- Oper:27");
    EXPECT_EQ(pass(100ms), "finish");
}

TEST_F(ControlMachineTest, anOperationForLaterStartsAtItsTime)
{
    use(ControlModel::DirectEnhanced);
    const auto now = m_clock.utcTime();
    m_request.operateTime = mms::UtcTime{now.seconds + 3, now.fraction, 0};
    EXPECT_EQ(operate(m_client), "+");
    EXPECT_TRUE(m_machine.isBusy());
    EXPECT_EQ(operate(m_client), "- Oper:12");
    EXPECT_EQ(pass(2999ms), "");
    EXPECT_EQ(pass(1ms), "start");
    EXPECT_EQ(pass(100ms), "finish term+");
}

TEST_F(ControlMachineTest, anOperationForLaterCanBeCancelledAndIsCheckedAgain)
{
    use(ControlModel::DirectEnhanced);
    m_request.operateTime = mms::UtcTime{m_clock.utcTime().seconds + 3, 0, 0};
    operate(m_client);
    EXPECT_EQ(cancel(m_client), "+ term- Oper:15");
    EXPECT_EQ(operate(m_client), "+");
    m_process.forbidden = AddCause::BlockedByMode;
    EXPECT_EQ(pass(3s), "term- Oper:8");
    EXPECT_EQ(operate(m_client), "- Oper:26");
}

TEST_F(ControlMachineTest, anOperationForLaterOfALostClientIsForgotten)
{
    m_request.operateTime = mms::UtcTime{m_clock.utcTime().seconds + 3, 0, 0};
    operate(m_client);
    m_machine.closed(m_client);
    EXPECT_EQ(pass(5s), "");
    EXPECT_FALSE(m_machine.isBusy());
}

TEST_F(ControlMachineTest, anOperateTimeOfZeroMeansNow)
{
    m_request.operateTime = mms::UtcTime{0, 0, 0};
    EXPECT_EQ(operate(m_client), "+ start");
}

TEST_F(ControlMachineTest, implausibleOriginatorsAreRefused)
{
    m_request.originator.category = 9;
    EXPECT_EQ(operate(m_client), "- Oper:26");
    m_request.originator.category = -1;
    EXPECT_EQ(operate(m_client), "- Oper:26");
    m_request.originator = {2, std::vector<std::uint8_t>(65)};
    EXPECT_EQ(operate(m_client), "- Oper:26");
    m_request.originator = {2, std::vector<std::uint8_t>(64)};
    EXPECT_EQ(operate(m_client), "+ start");
}
