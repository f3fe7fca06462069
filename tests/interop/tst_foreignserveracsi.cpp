// SPDX-License-Identifier: Apache-2.0
// The services of IEC 61850, by our client, against a server of the foreign stack.
#include "interop/jsondata.h"
#include "interop/matrix.h"
#include "mms/loopback.h"

#include "acsi/control.h"
#include "acsi/dataset.h"
#include "acsi/files.h"
#include "acsi/reportblock.h"
#include "acsi/settinggroup.h"

#include <asio/co_spawn.hpp>
#include <asio/detached.hpp>

#include <QFile>

#include <condition_variable>
#include <deque>
#include <mutex>

namespace {

using namespace interop;
using namespace acsi;
using mms::Data;
using mms::Result;

/// Hands the outcome of a coroutine to a handler.
template <typename T>
asio::awaitable<void> forward(asio::awaitable<T> work, std::function<void(T)> handler)
{
    handler(co_await std::move(work));
}

Reference reference(const char *text)
{
    auto result = parseReference(text);
    EXPECT_TRUE(result.ok()) << text;
    return result.ok() ? *result : Reference();
}

mms::VariableAccess variable(const char *text)
{
    return accessOf(reference(text));
}

class ForeignServerAcsiTest : public MatrixTest
{
protected:
    void SetUp() override
    {
        MatrixTest::SetUp();
        if (IsSkipped() || HasFatalFailure())
            return;
        m_server = std::make_unique<ForeignServer>(sourceFile("bay.icd"));
        ASSERT_TRUE(m_server->peer().isReady()) << m_server->peer().failure().toStdString();
        m_client = connect();
        ASSERT_NE(m_client, nullptr);
    }

    void TearDown() override
    {
        if (m_client)
            asio::post(m_client->strand(),
                       [client = m_client] { client->abort(mms::verbatim("The test is over.")); });
        MatrixTest::TearDown();
    }

    std::shared_ptr<ChangingClient> connect()
    {
        const std::string host = "127.0.0.1";
        const ClientOptions options;
        auto client = run(Client::connect(m_loop.executor(), host, m_server->port(), options));
        EXPECT_TRUE(client.ok()) << client.error().message;
        return client.ok() ? *client : nullptr;
    }

    /// Runs a coroutine in the thread of the client and waits for its outcome.
    template <typename T>
    T run(asio::awaitable<T> work)
    {
        wiretest::Awaited<T> outcome;
        asio::co_spawn(m_loop.executor(), forward<T>(std::move(work), outcome.setter()),
                       asio::detached);
        return outcome.get();
    }

    QJsonValue held(const char *object, const char *constraint)
    {
        return m_server->peer().ask("get", {{"reference", object}, {"fc", constraint}});
    }

    void change(const char *object, const char *constraint, const QJsonValue &value)
    {
        const auto answer = m_server->peer().ask(
            "set", {{"reference", object}, {"fc", constraint}, {"value", value}});
        EXPECT_TRUE(answer.toBool()) << m_server->peer().failure().toStdString();
    }

    /// From now on reports are kept for nextReport().
    void listen()
    {
        m_client->addInformationHandler([this](const mms::InformationReport &information) {
            if (!isReport(information))
                return false;
            auto report = decodeReport(information);
            EXPECT_TRUE(report.ok()) << report.error().message;
            if (report.ok()) {
                const std::lock_guard lock(m_mutex);
                m_reports.push_back(std::move(*report));
                m_changed.notify_all();
            }
            return true;
        });
    }

    std::optional<Report> nextReport()
    {
        std::unique_lock lock(m_mutex);
        if (!m_changed.wait_for(lock, std::chrono::seconds(10),
                                [this] { return !m_reports.empty(); }))
            return {};
        Report report = std::move(m_reports.front());
        m_reports.pop_front();
        return report;
    }

    std::shared_ptr<ControlObject> object(const char *text, ControlModel model)
    {
        auto opened = run(ControlObject::open(m_client, reference(text)));
        EXPECT_TRUE(opened.ok()) << opened.error().message;
        if (!opened.ok())
            return nullptr;
        EXPECT_EQ((*opened)->model(), model);
        return *opened;
    }

    static ControlRequest switchOn()
    {
        ControlRequest request;
        request.value = Data::boolean(true);
        request.originator.category = 3;
        request.originator.identification = {'o', 'p'};
        request.ctlNum = 1;
        return request;
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<Report> m_reports;
    wiretest::Loop m_loop;
    std::unique_ptr<ForeignServer> m_server;
    std::shared_ptr<ChangingClient> m_client;
};

} // namespace

TEST_F(ForeignServerAcsiTest, keepsDataSets)
{
    row("Data sets");
    const auto fixed =
        run(dataSetDirectory(m_client, mms::ObjectName::inDomain("BAY1CTRL", "LLN0$Measured")));
    ASSERT_TRUE(fixed.ok()) << fixed.error().message;
    EXPECT_FALSE(fixed.value().deletable);
    EXPECT_EQ(fixed.value().members,
              (std::vector<mms::VariableAccess>{variable("BAY1CTRL/GGIO1$MX$AnIn1"),
                                                variable("BAY1CTRL/GGIO1$MX$AnIn2"),
                                                variable("BAY1CTRL/GGIO1$MX$AnIn3$mag$f")}));
    for (const char *text : {"BAY1CTRL/LLN0$mine", "@mine"}) {
        const auto name = dataSetName("BAY1CTRL", text);
        ASSERT_TRUE(name.ok()) << name.error().message;
        const std::vector<mms::VariableAccess> members{variable("BAY1CTRL/GGIO1$ST$Ind1$stVal")};
        const auto created = run(createDataSet(m_client, *name, members));
        EXPECT_TRUE(created.ok()) << created.error().message;
        const auto values = run(m_client->readList(*name));
        ASSERT_TRUE(values.ok()) << values.error().message;
        EXPECT_EQ(values.value(), std::vector<mms::AccessResult>{Data::boolean(true)});
        const auto deleted = run(deleteDataSet(m_client, *name));
        EXPECT_TRUE(deleted.ok()) << deleted.error().message;
        EXPECT_FALSE(run(dataSetDirectory(m_client, *name)).ok());
    }
    EXPECT_FALSE(
        run(deleteDataSet(m_client, mms::ObjectName::inDomain("BAY1CTRL", "LLN0$Measured"))).ok());
}

TEST_F(ForeignServerAcsiTest, reportsOverAnUnbufferedBlock)
{
    row("Unbuffered report control block");
    listen();
    const Reference block = reference("BAY1CTRL/LLN0$RP$urcbMeasured01");
    ReportSettings settings;
    settings.bufTm = 20;
    settings.generalInterrogation = true;
    const auto enabled = run(enableReportBlock(m_client, block, settings));
    ASSERT_TRUE(enabled.ok()) << enabled.error().message;
    EXPECT_EQ(enabled.value().datSet, "BAY1CTRL/LLN0$Measured");
    EXPECT_EQ(enabled.value().confRev, 3U);
    const auto first = nextReport();
    ASSERT_TRUE(first.has_value());
    EXPECT_EQ(first->rptId, "Measured");
    EXPECT_EQ(first->datSet, "BAY1CTRL/LLN0$Measured");
    EXPECT_EQ(first->dataSetSize, 3U);
    ASSERT_EQ(first->members.size(), 3U);
    EXPECT_EQ(first->members[2].value, mms::AccessResult(Data::float32(1000000)));
    EXPECT_EQ(first->members[2].reference, "BAY1CTRL/GGIO1$MX$AnIn3$mag$f");
    ASSERT_TRUE(first->members[2].reason.has_value());
    EXPECT_TRUE(first->members[2].reason->generalInterrogation);
    change("BAY1CTRL/GGIO1.AnIn3.mag.f", "MX", QJsonObject{{"float", 12.5}});
    const auto second = nextReport();
    ASSERT_TRUE(second.has_value());
    ASSERT_EQ(second->members.size(), 1U);
    EXPECT_EQ(second->members[0].index, 2U);
    EXPECT_EQ(second->members[0].value, mms::AccessResult(Data::float32(12.5F)));
    EXPECT_TRUE(second->members[0].reason->dataChange);
    EXPECT_EQ(second->sqNum, *first->sqNum + 1);
    const auto other = connect();
    ASSERT_NE(other, nullptr);
    const auto taken = run(enableReportBlock(other, block, {}));
    EXPECT_FALSE(taken.ok());
    const auto disabled = run(disableReportBlock(m_client, block));
    EXPECT_TRUE(disabled.ok()) << disabled.error().message;
    const auto free = run(readReportBlock(m_client, block));
    ASSERT_TRUE(free.ok());
    EXPECT_FALSE(free.value().rptEna);
    asio::post(other->strand(), [other] { other->abort(mms::verbatim("The test is over.")); });
}

TEST_F(ForeignServerAcsiTest, resumesABufferedBlock)
{
    row("Buffered report control block");
    listen();
    const Reference block = reference("BAY1CTRL/LLN0$BR$brcbStates01");
    ReportSettings settings;
    settings.bufTm = 0;
    auto enabled = run(enableReportBlock(m_client, block, settings));
    ASSERT_TRUE(enabled.ok()) << enabled.error().message;
    EXPECT_TRUE(enabled.value().buffered);
    change("BAY1CTRL/GGIO1.Ind2.stVal", "ST", true);
    const auto first = nextReport();
    ASSERT_TRUE(first.has_value());
    ASSERT_EQ(first->members.size(), 1U);
    EXPECT_EQ(first->members[0].value, mms::AccessResult(Data::boolean(true)));
    EXPECT_EQ(first->entryId.size(), 8U);
    const auto disabled = run(disableReportBlock(m_client, block));
    EXPECT_TRUE(disabled.ok()) << disabled.error().message;
    change("BAY1CTRL/GGIO1.Ind2.stVal", "ST", false);
    settings.bufTm = std::nullopt;
    settings.resumeAfter = first->entryId;
    enabled = run(enableReportBlock(m_client, block, settings));
    ASSERT_TRUE(enabled.ok()) << enabled.error().message;
    const auto missed = nextReport();
    ASSERT_TRUE(missed.has_value());
    ASSERT_EQ(missed->members.size(), 1U);
    EXPECT_EQ(missed->members[0].value, mms::AccessResult(Data::boolean(false)));
    EXPECT_NE(missed->entryId, first->entryId);
}

TEST_F(ForeignServerAcsiTest, isOperatedDirectly)
{
    row("Control: direct, normal security");
    const auto control = object("BAY1CTRL/GGIO1$CO$SPCSO1", ControlModel::DirectNormal);
    ASSERT_NE(control, nullptr);
    const auto done = run(control->operate(m_client, switchOn()));
    EXPECT_TRUE(done.ok) << done.message;
    EXPECT_EQ(held("BAY1CTRL/GGIO1.SPCSO1.stVal", "ST"), QJsonValue(true));
}

TEST_F(ForeignServerAcsiTest, isSelectedBeforeItIsOperated)
{
    row("Control: select before operate, normal security");
    const auto control = object("BAY1CTRL/GGIO1$CO$SPCSO2", ControlModel::SelectNormal);
    ASSERT_NE(control, nullptr);
    EXPECT_FALSE(run(control->operate(m_client, switchOn())).ok);
    auto done = run(control->select(m_client, switchOn()));
    EXPECT_TRUE(done.ok) << done.message;
    done = run(control->cancel(m_client, switchOn()));
    EXPECT_TRUE(done.ok) << done.message;
    done = run(control->select(m_client, switchOn()));
    EXPECT_TRUE(done.ok) << done.message;
    done = run(control->operate(m_client, switchOn()));
    EXPECT_TRUE(done.ok) << done.message;
    EXPECT_EQ(held("BAY1CTRL/GGIO1.SPCSO2.stVal", "ST"), QJsonValue(true));
}

TEST_F(ForeignServerAcsiTest, terminatesADirectCommand)
{
    row("Control: direct, enhanced security");
    const auto control = object("BAY1CTRL/GGIO1$CO$SPCSO3", ControlModel::DirectEnhanced);
    ASSERT_NE(control, nullptr);
    const auto done = run(control->operate(m_client, switchOn()));
    EXPECT_TRUE(done.ok) << done.message;
    EXPECT_EQ(held("BAY1CTRL/GGIO1.SPCSO3.stVal", "ST"), QJsonValue(true));
}

TEST_F(ForeignServerAcsiTest, terminatesASelectedCommand)
{
    row("Control: select before operate, enhanced security");
    const auto control = object("BAY1CTRL/CSWI1$CO$Pos", ControlModel::SelectEnhanced);
    ASSERT_NE(control, nullptr);
    auto done = run(control->select(m_client, switchOn()));
    EXPECT_TRUE(done.ok) << done.message;
    done = run(control->operate(m_client, switchOn()));
    EXPECT_TRUE(done.ok) << done.message;
    EXPECT_EQ(held("BAY1CTRL/CSWI1.Pos.stVal", "ST"), (QJsonObject{{"bits", "10"}}));
}

TEST_F(ForeignServerAcsiTest, saysWhyACommandIsRefused)
{
    row("Control: refusal with additional cause");
    const auto control = object("BAY1CTRL/CSWI1$CO$Pos", ControlModel::SelectEnhanced);
    ASSERT_NE(control, nullptr);
    ControlRequest request = switchOn();
    request.interlockCheck = true;
    const auto refused = run(control->select(m_client, request));
    EXPECT_FALSE(refused.ok);
    ASSERT_TRUE(refused.applError.has_value()) << refused.message;
    EXPECT_EQ(refused.applError->addCause, 10) << "blocked by interlocking";
}

TEST_F(ForeignServerAcsiTest, switchesAndEditsSettingGroups)
{
    row("Setting groups");
    const Reference block = reference("BAY1CTRL/LLN0$SP$SGCB");
    const auto groups = run(readSettingGroupBlock(m_client, block));
    ASSERT_TRUE(groups.ok()) << groups.error().message;
    EXPECT_EQ(groups.value().numOfSG, 3U);
    EXPECT_EQ(groups.value().actSG, 1U);
    auto done = run(selectActiveGroup(m_client, block, 2));
    EXPECT_TRUE(done.ok()) << done.error().message;
    auto value = run(m_client->readOne(variable("BAY1CTRL/PTOC1$SG$StrVal$setMag$f")));
    ASSERT_TRUE(value.ok()) << value.error().message;
    EXPECT_EQ(*value, Data::float32(2));
    done = run(selectEditGroup(m_client, block, 3));
    EXPECT_TRUE(done.ok()) << done.error().message;
    value = run(m_client->readOne(variable("BAY1CTRL/PTOC1$SE$OpDlTmms$setVal")));
    ASSERT_TRUE(value.ok()) << value.error().message;
    EXPECT_EQ(*value, Data::integer(300));
    const auto written =
        run(m_client->writeOne(variable("BAY1CTRL/PTOC1$SE$OpDlTmms$setVal"), Data::integer(333)));
    EXPECT_TRUE(written.ok()) << written.error().message;
    done = run(confirmEdit(m_client, block));
    EXPECT_TRUE(done.ok()) << done.error().message;
    done = run(selectActiveGroup(m_client, block, 3));
    EXPECT_TRUE(done.ok()) << done.error().message;
    value = run(m_client->readOne(variable("BAY1CTRL/PTOC1$SG$OpDlTmms$setVal")));
    ASSERT_TRUE(value.ok()) << value.error().message;
    EXPECT_EQ(*value, Data::integer(333));
}

int main(int argc, char **argv)
{
    return interop::runMatrix(argc, argv, "server", "foreign-server-acsi");
}
