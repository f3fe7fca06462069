// SPDX-License-Identifier: Apache-2.0
// The client of the foreign stack against our simulated IED, service by service.
#include "interop/jsondata.h"
#include "interop/matrix.h"
#include "mms/loopback.h"
#include "osi/testcertificates.h"
#include "scl/reader.h"
#include "simulator/device.h"
#include "simulator/directoryfiles.h"

#include <asio/post.hpp>

#include <QDeadlineTimer>
#include <QFile>
#include <QJsonArray>

#include <algorithm>

namespace {

using namespace interop;
using mms::Data;

const QString bay = "BAY1CTRL";

class ForeignClientTest : public MatrixTest
{
protected:
    void SetUp() override
    {
        MatrixTest::SetUp();
        if (IsSkipped() || HasFatalFailure())
            return;
        auto read = scl::readFile(sourceFile("bay.icd").toStdString());
        ASSERT_TRUE(read.document) << read.errorText;
        m_document = std::move(read.document);
        sim::FileOptions files;
        files.directory = m_files.path().toStdString();
        auto service = sim::DirectoryFiles::create(files);
        ASSERT_TRUE(service.ok()) << service.error().message;
        m_options.files = *service;
        m_options.server.address = "127.0.0.1";
        m_options.server.port = 0;
        m_options.identity = {"simulated", "bay", "2.0"};
    }

    void TearDown() override
    {
        m_client.reset();
        if (m_device) {
            m_device->stop();
            const sim::Device::Strand strand = m_device->strand();
            asio::post(strand, [device = std::move(m_device)] {});
        }
        MatrixTest::TearDown();
    }

    void start()
    {
        m_device = sim::Device::create(m_loop.executor(), m_document->ieds.front(), m_options);
        const auto port = m_device->start();
        ASSERT_TRUE(port.ok()) << port.error().message;
        m_port = *port;
    }

    /// The foreign client, connected to the simulated IED.
    void connect(QJsonObject options = {})
    {
        if (!m_device)
            start();
        m_client = std::make_unique<ForeignPeer>(ForeignPeer::Role::Client);
        ASSERT_TRUE(m_client->isReady()) << m_client->failure().toStdString();
        options.insert("port", m_port);
        const QJsonValue connected = m_client->ask("connect", options);
        noteWhatIsMissing(*m_client);
        EXPECT_TRUE(connected.toBool()) << m_client->failure().toStdString();
    }

    void noteWhatIsMissing(const ForeignPeer &peer)
    {
        if (peer.failure().startsWith("the peer has no call for"))
            peerHasNoCall();
    }

    QJsonValue ask(const char *command, const QJsonObject &arguments = {})
    {
        QJsonValue answer = m_client->ask(QString::fromLatin1(command), arguments);
        noteWhatIsMissing(*m_client);
        EXPECT_FALSE(answer.isUndefined()) << command << ": " << m_client->failure().toStdString();
        return answer;
    }

    std::string refusal(const char *command, const QJsonObject &arguments)
    {
        EXPECT_TRUE(m_client->ask(QString::fromLatin1(command), arguments).isUndefined());
        noteWhatIsMissing(*m_client);
        return m_client->failure().toStdString();
    }

    /// Runs @p action in the strand of the device and waits for what it gives.
    template <typename Action>
    auto inDevice(Action action)
    {
        wiretest::Awaited<decltype(action(*m_device))> result;
        asio::post(m_device->strand(),
                   [this, action, set = result.setter()] { set(action(*m_device)); });
        return result.get();
    }

    /// What the device itself holds.
    QJsonValue held(const std::string &item)
    {
        return inDevice([item](sim::Device &device) {
            const sim::Part part = device.model().find("BAY1CTRL", item);
            return part.isValid() ? toJson(device.model().value(part)) : QJsonValue();
        });
    }

    /// Whether the device comes to hold a value within ten seconds: its processes take time.
    bool becomes(const std::string &item, const QJsonValue &value)
    {
        const QDeadlineTimer deadline(10000);
        while (held(item) != value) {
            if (deadline.hasExpired())
                return false;
        }
        return true;
    }

    void change(const std::string &item, const Data &value)
    {
        EXPECT_TRUE(inDevice([item, value](sim::Device &device) {
            const sim::Part part = device.model().find("BAY1CTRL", item);
            if (part.isValid())
                device.model().set(part, value);
            return part.isValid();
        }));
    }

    void putFile(const char *name, const QByteArray &content)
    {
        QFile file(m_files.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
    }

    QByteArray contentOf(const char *name)
    {
        QFile file(m_files.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file");
    }

    /// Operates an object of a control model that needs no select, or that is selected.
    QJsonObject control(const char *object, const char *step, const QJsonObject &more = {})
    {
        QJsonObject arguments = more;
        arguments.insert("reference", QString(bay + '/' + object));
        arguments.insert("step", step);
        return ask("control", arguments).toObject();
    }

    std::shared_ptr<const scl::Document> m_document;
    QTemporaryDir m_files;
    sim::DeviceOptions m_options;
    wiretest::Loop m_loop;
    std::shared_ptr<sim::Device> m_device;
    std::uint16_t m_port = 0;
    std::unique_ptr<ForeignPeer> m_client;
};

QJsonObject item(const char *name)
{
    return {{"domain", bay}, {"item", name}};
}

QJsonArray texts(std::initializer_list<const char *> list)
{
    QJsonArray result;
    for (const char *text : list)
        result.append(text);
    return result;
}

} // namespace

TEST_F(ForeignClientTest, associatesWithOurDevice)
{
    row("Initiate");
    connect();
    EXPECT_EQ(ask("state").toInt(), 2);
}

TEST_F(ForeignClientTest, asksForTheStatus)
{
    row("Status");
    connect();
    EXPECT_EQ(ask("status").toArray(), (QJsonArray{0, 0}));
}

TEST_F(ForeignClientTest, asksForTheIdentity)
{
    row("Identify");
    connect();
    EXPECT_EQ(ask("identify").toArray(), texts({"simulated", "bay", "2.0"}));
}

TEST_F(ForeignClientTest, listsDomains)
{
    row("GetNameList: domains");
    connect();
    EXPECT_EQ(ask("domains").toArray(), texts({"BAY1CTRL", "BAY1MANY"}));
}

TEST_F(ForeignClientTest, listsTheVariablesOfADomain)
{
    row("GetNameList: variables of a domain");
    connect();
    const QJsonArray found = ask("variables", {{"domain", bay}}).toArray();
    for (const char *name :
         {"LLN0", "LLN0$ST$Mod$stVal", "GGIO1$MX$AnIn1$mag$f", "LLN0$BR$brcbStates01$RptEna",
          "LLN0$SP$SGCB$ActSG", "CSWI1$CO$Pos$SBOw$origin$orIdent", "PTOC1$SE$StrVal$setMag$f"})
        EXPECT_TRUE(found.contains(name)) << name;
}

TEST_F(ForeignClientTest, listsNamesPageAfterPage)
{
    row("GetNameList: continue after a name");
    m_options.server.association.maxPduSize = 1000;
    connect();
    const QJsonArray found = ask("variables", {{"domain", bay}}).toArray();
    EXPECT_GT(found.size(), 200);
    const auto expected = inDevice([](sim::Device &device) {
        const auto page =
            device.model().variableNames(*device.model().findDomain("BAY1CTRL"), {}, 1000000);
        return page ? page->names : std::vector<std::string>();
    });
    ASSERT_EQ(static_cast<std::size_t>(found.size()), expected.size());
    for (int i = 0; i < found.size(); ++i)
        EXPECT_EQ(found[i].toString().toStdString(), expected[static_cast<std::size_t>(i)]);
}

TEST_F(ForeignClientTest, listsTheVariablesOfTheDevice)
{
    row("GetNameList: variables of the VMD");
    connect();
    EXPECT_EQ(ask("variables").toArray(), QJsonArray());
    worksBut("it has none");
}

TEST_F(ForeignClientTest, listsNamedLists)
{
    row("GetNameList: named variable lists");
    connect();
    EXPECT_EQ(ask("lists", {{"scope", "domain"}, {"domain", bay}}).toArray(),
              texts({"LLN0$Measured", "LLN0$Settings", "LLN0$States"}));
    EXPECT_EQ(ask("lists", {{"scope", "association"}}).toArray(), QJsonArray());
    EXPECT_EQ(ask("lists", {{"scope", "vmd"}}).toArray(), QJsonArray());
}

TEST_F(ForeignClientTest, listsJournals)
{
    row("GetNameList: journals");
    connect();
    EXPECT_EQ(ask("journals", {{"domain", bay}}).toArray(), QJsonArray());
    worksBut("it has none");
}

TEST_F(ForeignClientTest, asksForTypes)
{
    row("GetVariableAccessAttributes");
    connect();
    for (const char *name : {"GGIO1$MX$AnIn1", "GGIO2", "CSWI1", "MHAI1", "LLN0"}) {
        const auto type = inDevice(
            [name](sim::Device &device) { return device.model().find("BAY1CTRL", name).type(); });
        EXPECT_EQ(ask("type", item(name)), toJson(type)) << name;
    }
}

TEST_F(ForeignClientTest, readsOneVariable)
{
    row("Read: one variable");
    connect();
    EXPECT_EQ(ask("read", item("GGIO1$MX$AnIn1$mag$f")), toJson(Data::float32(1.5F)));
    EXPECT_EQ(ask("read", item("GGIO2$SP")), held("GGIO2$SP"));
    EXPECT_EQ(ask("read", item("GGIO1$MX$Nothing")), (QJsonValue(QJsonObject{{"error", 10}})));
}

TEST_F(ForeignClientTest, readsAListOfVariables)
{
    row("Read: list of variables");
    connect();
    const QJsonArray values =
        ask("readmany", {{"domain", bay},
                         {"items", texts({"GGIO1$MX$AnIn1$mag$f", "GGIO1$ST$Nothing",
                                          "GGIO1$ST$Ind1$stVal", "CSWI1$ST$Pos$stVal"})}})
            .toObject()
            .value("array")
            .toArray();
    EXPECT_EQ(values, (QJsonArray{toJson(Data::float32(1.5F)), QJsonObject{{"error", 10}}, true,
                                  QJsonObject{{"bits", "01"}}}));
}

TEST_F(ForeignClientTest, readsAHundredVariablesAtOnce)
{
    row("Read: 100 variables in one request");
    connect();
    QJsonArray items;
    QJsonArray expected;
    for (int i = 0; i < 100; ++i) {
        items.append("GGIO1$MX$AnIn2$mag$f");
        expected.append(toJson(Data::float32(-2.25F)));
    }
    EXPECT_EQ(ask("readmany", {{"domain", bay}, {"items", items}}).toObject().value("array"),
              QJsonValue(expected));
}

TEST_F(ForeignClientTest, readsANamedList)
{
    row("Read: named variable list");
    connect();
    EXPECT_EQ(ask("readlist", {{"domain", bay}, {"name", "LLN0$Measured"}})
                  .toObject()
                  .value("array")
                  .toArray(),
              (QJsonArray{held("GGIO1$MX$AnIn1"), held("GGIO1$MX$AnIn2"),
                          toJson(Data::float32(1000000))}));
}

TEST_F(ForeignClientTest, readsElementsOfAnArray)
{
    row("Read: elements of an array (alternate access)");
    connect();
    change("MHAI1$SP$HA$factors",
           Data::array({Data::float32(1), Data::float32(2), Data::float32(3), Data::float32(4)}));
    QJsonObject one = item("MHAI1$SP$HA$factors");
    one.insert("element", 2);
    EXPECT_EQ(ask("read", one), toJson(Data::float32(3)));
    QJsonObject some = one;
    some.insert("element", 1);
    some.insert("count", 2);
    EXPECT_EQ(ask("read", some), toJson(Data::array({Data::float32(2), Data::float32(3)})));
}

TEST_F(ForeignClientTest, readsAComponent)
{
    row("Read: component of a structure (alternate access)");
    connect();
    QJsonObject component = item("GGIO1$MX$AnIn1");
    component.insert("component", "mag$f");
    EXPECT_EQ(ask("read", component), toJson(Data::float32(1.5F)));
    QJsonObject ofElement = item("MHAI1$MX$HA$har");
    ofElement.insert("element", 3);
    ofElement.insert("component", "cVal$mag$f");
    EXPECT_EQ(ask("read", ofElement), toJson(Data::float32(0)));
}

TEST_F(ForeignClientTest, writesOneVariableOfEveryType)
{
    row("Write: one variable");
    connect();
    const std::vector<std::pair<const char *, Data>> values{
        {"flag", Data::boolean(true)},
        {"i8", Data::integer(-8)},
        {"i16", Data::integer(-1600)},
        {"i32", Data::integer(-320000)},
        {"i64", Data::integer(-6400000000000)},
        {"u8", Data::unsignedInteger(250)},
        {"u16", Data::unsignedInteger(65000)},
        {"u32", Data::unsignedInteger(4100000000)},
        {"f32", Data::float32(-0.125F)},
        {"vs64", Data::visibleString("new text")},
        {"us255", Data::mmsString("\xc3\xa4\xc3\xb6")},
        {"en", Data::integer(3)},
        {"db", Data::bitString(mms::BitString::fromText("10"))},
        {"tim", Data::utcTime({1614834367, 0x800000, 0x0A})},
        {"qual", Data::bitString(mms::BitString::fromText("1100000000001"))},
    };
    std::string missing;
    for (const auto &[name, value] : values) {
        const std::string variable = std::string("GGIO2$SP$All$") + name;
        QJsonObject arguments = item(variable.c_str());
        arguments.insert("value", toJson(value));
        // A client need not be able to write every type.
        if (m_client->ask("write", arguments).isUndefined() &&
            m_client->failure().startsWith("the peer has no call for")) {
            missing += missing.empty() ? name : std::string(", ") + name;
            continue;
        }
        EXPECT_EQ(held(variable), toJson(value))
            << name << ": " << m_client->failure().toStdString();
    }
    if (!missing.empty())
        worksBut("the peer has no call for " + missing);
    QJsonObject measured = item("GGIO1$MX$AnIn1$mag$f");
    measured.insert("value", toJson(Data::float32(7)));
    EXPECT_EQ(refusal("write", measured), "data access error 3");
}

TEST_F(ForeignClientTest, writesAListOfVariables)
{
    row("Write: list of variables");
    connect();
    const QJsonValue results =
        ask("writemany",
            {{"domain", bay},
             {"items", texts({"GGIO2$SP$All$i32", "GGIO1$MX$AnIn1$mag$f", "GGIO2$SP$All$f32"})},
             {"values", QJsonArray{toJson(Data::integer(5)), toJson(Data::float32(5)),
                                   toJson(Data::float32(6))}}});
    EXPECT_EQ(results.toArray(), (QJsonArray{QJsonValue(), 3, QJsonValue()}));
    EXPECT_EQ(held("GGIO2$SP$All$i32"), toJson(Data::integer(5)));
    EXPECT_EQ(held("GGIO2$SP$All$f32"), toJson(Data::float32(6)));
}

TEST_F(ForeignClientTest, writesANamedList)
{
    row("Write: named variable list");
    connect();
    const QJsonValue results =
        ask("writelist",
            {{"domain", bay},
             {"name", "LLN0$Settings"},
             {"values", QJsonArray{toJson(Data::integer(-7)), toJson(Data::float32(0.75F))}}});
    EXPECT_EQ(results.toArray(), (QJsonArray{QJsonValue(), QJsonValue()}));
    EXPECT_EQ(held("GGIO2$SP$All$i32"), toJson(Data::integer(-7)));
}

TEST_F(ForeignClientTest, writesElementsOfAnArray)
{
    row("Write: elements of an array (alternate access)");
    connect();
    QJsonObject arguments = item("MHAI1$SP$HA$factors");
    arguments.insert("element", 1);
    arguments.insert("count", 2);
    arguments.insert("value", toJson(Data::array({Data::float32(8), Data::float32(9)})));
    EXPECT_TRUE(ask("write", arguments).toBool());
    EXPECT_EQ(held("MHAI1$SP$HA$factors"),
              toJson(Data::array(
                  {Data::float32(0), Data::float32(8), Data::float32(9), Data::float32(0)})));
}

TEST_F(ForeignClientTest, keepsANamedListOfADomain)
{
    row("Define, Get, DeleteNamedVariableList: domain");
    connect();
    const QJsonArray members{texts({"BAY1CTRL", "GGIO1$MX$AnIn2$mag$f"}),
                             texts({"BAY1CTRL", "GGIO1$ST$Ind1$stVal"})};
    const QJsonObject name{{"domain", bay}, {"name", "LLN0$dynamic"}};
    QJsonObject definition = name;
    definition.insert("members", members);
    EXPECT_TRUE(ask("define", definition).toBool());
    EXPECT_EQ(ask("members", name), (QJsonObject{{"deletable", true}, {"members", members}}));
    EXPECT_EQ(ask("readlist", name).toObject().value("array").toArray(),
              (QJsonArray{toJson(Data::float32(-2.25F)), true}));
    EXPECT_TRUE(ask("delete", name).toBool());
    EXPECT_FALSE(refusal("members", name).empty());
    EXPECT_FALSE(ask("members", {{"domain", bay}, {"name", "LLN0$States"}})
                     .toObject()
                     .value("deletable")
                     .toBool());
}

TEST_F(ForeignClientTest, keepsANamedListOfTheAssociation)
{
    row("Define, Get, DeleteNamedVariableList: association");
    connect();
    const QJsonArray members{texts({"BAY1CTRL", "GGIO1$MX$AnIn2$mag$f"})};
    EXPECT_TRUE(ask("define", {{"name", "mine"}, {"members", members}}).toBool());
    EXPECT_EQ(ask("lists", {{"scope", "association"}}).toArray(), texts({"mine"}));
    EXPECT_EQ(ask("members", {{"name", "mine"}}),
              (QJsonObject{{"deletable", true}, {"members", members}}));
    EXPECT_EQ(ask("readlist", {{"name", "mine"}}).toObject().value("array").toArray(),
              QJsonArray{toJson(Data::float32(-2.25F))});
    EXPECT_TRUE(ask("delete", {{"name", "mine"}}).toBool());
}

TEST_F(ForeignClientTest, isRefusedANamedListOfTheDevice)
{
    row("Define, Get, DeleteNamedVariableList: VMD");
    connect();
    const QJsonArray members{texts({"BAY1CTRL", "GGIO1$MX$AnIn2$mag$f"})};
    const std::string reason =
        refusal("define", {{"scope", "vmd"}, {"name", "everyones"}, {"members", members}});
    EXPECT_FALSE(reason.empty());
    worksBut("our simulated IED refuses them (" + reason + ")");
}

TEST_F(ForeignClientTest, opensReadsAndClosesAFile)
{
    row("FileOpen, FileRead, FileClose");
    connect();
    QByteArray content;
    for (int i = 0; i < 100000; ++i)
        content.append(static_cast<char>(i % 251));
    putFile("record.dat", content);
    const QJsonObject file = ask("fileopen", {{"file", "record.dat"}}).toObject();
    EXPECT_EQ(file.value("size").toInt(), 100000);
    QByteArray read;
    for (bool more = true; more;) {
        const QJsonObject block = ask("fileread", {{"state", file.value("state")}}).toObject();
        read += QByteArray::fromHex(block.value("octets").toString().toLatin1());
        more = block.value("more").toBool();
    }
    EXPECT_EQ(read, content);
    EXPECT_TRUE(ask("fileclose", {{"state", file.value("state")}}).toBool());
    EXPECT_EQ(refusal("fileopen", {{"file", "nothing.dat"}}), "file-file-non-existent");
}

TEST_F(ForeignClientTest, opensAFileAtAPosition)
{
    row("FileOpen at a position");
    connect();
    putFile("record.dat", "0123456789");
    const QJsonObject file = ask("fileopen", {{"file", "record.dat"}, {"position", 7}}).toObject();
    EXPECT_EQ(
        ask("fileread", {{"state", file.value("state")}}).toObject().value("octets").toString(),
        "373839");
}

TEST_F(ForeignClientTest, listsFiles)
{
    row("FileDirectory");
    connect();
    putFile("one.txt", "1");
    putFile("two.txt", "22");
    std::map<QString, int> sizes;
    for (const QJsonValue &entry : ask("files").toArray())
        sizes[entry.toArray()[0].toString()] = entry.toArray()[1].toInt();
    EXPECT_EQ(sizes, (std::map<QString, int>{{"one.txt", 1}, {"two.txt", 2}}));
}

TEST_F(ForeignClientTest, deletesAFile)
{
    row("FileDelete");
    connect();
    putFile("old.txt", "x");
    EXPECT_TRUE(ask("filedelete", {{"file", "old.txt"}}).toBool());
    EXPECT_EQ(contentOf("old.txt"), "no such file");
    EXPECT_EQ(refusal("filedelete", {{"file", "old.txt"}}), "file-file-non-existent");
}

TEST_F(ForeignClientTest, renamesAFile)
{
    row("FileRename");
    connect();
    putFile("old.txt", "x");
    EXPECT_TRUE(ask("filerename", {{"file", "old.txt"}, {"to", "new.txt"}}).toBool());
    EXPECT_EQ(contentOf("new.txt"), "x");
    EXPECT_EQ(contentOf("old.txt"), "no such file");
}

TEST_F(ForeignClientTest, offersAFile)
{
    row("ObtainFile");
    QTemporaryDir own;
    const QByteArray content(200000, 'u');
    QFile file(own.filePath("upload.dat"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(content), content.size());
    file.close();
    connect({{"filestore", own.path() + '/'}});
    EXPECT_TRUE(
        ask("obtain", {{"source", "upload.dat"}, {"destination", "received.dat"}}).toBool());
    EXPECT_EQ(contentOf("received.dat"), content);
}

TEST_F(ForeignClientTest, readsAJournal)
{
    row("ReadJournal");
    connect();
    const std::string reason = refusal(
        "journal", {{"domain", bay}, {"name", "LLN0$GeneralLog"}, {"from", 0}, {"to", 1000}});
    EXPECT_NE(reason.find("non-existent"), std::string::npos) << reason;
    worksBut("of a journal that does not exist it is told so");
}

TEST_F(ForeignClientTest, manyCallsAreOnTheWay)
{
    row("Five outstanding calls");
    connect();
    const QJsonValue values = ask(
        "readtogether",
        {{"domain", bay},
         {"items", texts({"GGIO1$MX$AnIn1$mag$f", "GGIO1$MX$AnIn2$mag$f", "GGIO1$MX$AnIn3$mag$f",
                          "GGIO2$SP$All$f32", "GGIO1$ST$Ind1$stVal"})}});
    EXPECT_EQ(values.toArray(),
              (QJsonArray{toJson(Data::float32(1.5F)), toJson(Data::float32(-2.25F)),
                          toJson(Data::float32(1000000)), toJson(Data::float32(0.5F)), true}));
}

TEST_F(ForeignClientTest, hearsInformationReports)
{
    row("InformationReport");
    connect();
    EXPECT_TRUE(ask("listen").toBool());
    QJsonObject enable = item("LLN0$RP$urcbMeasured01$RptEna");
    enable.insert("value", true);
    EXPECT_TRUE(ask("write", enable).toBool());
    QJsonObject interrogate = item("LLN0$RP$urcbMeasured01$GI");
    interrogate.insert("value", true);
    EXPECT_TRUE(ask("write", interrogate).toBool());
    const QJsonArray heard = ask("reports", {{"count", 1}}).toArray();
    ASSERT_EQ(heard.size(), 1);
    EXPECT_EQ(heard[0].toObject().value("name"), "RPT");
    EXPECT_EQ(heard[0].toObject().value("value").toObject().value("array").toArray()[0],
              (QJsonObject{{"text", "Measured"}}));
}

TEST_F(ForeignClientTest, concludesTheAssociation)
{
    row("Conclude and release");
    connect();
    EXPECT_TRUE(ask("conclude").toBool());
    EXPECT_TRUE(ask("awaitclosed").toBool());
}

TEST_F(ForeignClientTest, abortsTheAssociation)
{
    row("Abort");
    connect();
    EXPECT_TRUE(ask("abort").toBool());
    connect();
    EXPECT_EQ(ask("read", item("GGIO1$MX$AnIn1$mag$f")), toJson(Data::float32(1.5F)));
}

TEST_F(ForeignClientTest, noticesThatTheDeviceGoesAway)
{
    row("The peer goes away");
    connect();
    m_device->stop();
    EXPECT_TRUE(ask("awaitclosed").toBool());
}

TEST_F(ForeignClientTest, givesAPassword)
{
    row("Password");
    osi::acse::Authentication password;
    password.value = {'s', 'e', 'c', 'r', 'e', 't'};
    m_options.server.association.link.stack.association.authentication = password;
    connect({{"password", "secret"}});
    EXPECT_EQ(ask("read", item("GGIO1$MX$AnIn1$mag$f")), toJson(Data::float32(1.5F)));
    ForeignPeer wrong(ForeignPeer::Role::Client);
    EXPECT_TRUE(wrong.ask("connect", {{"port", m_port}, {"password", "wrong"}}).isUndefined());
    ForeignPeer none(ForeignPeer::Role::Client);
    EXPECT_TRUE(none.ask("connect", {{"port", m_port}}).isUndefined());
}

TEST_F(ForeignClientTest, callsBySelectors)
{
    row("Selectors and titles");
    auto &stack = m_options.server.association.link.stack;
    stack.transport.localSelector = {0x00, 0x07};
    stack.session.localSelector = {0x00, 0x08};
    stack.presentation.localSelector = {0x00, 0x00, 0x00, 0x09};
    stack.transport.checkSelector = true;
    stack.session.checkSelector = true;
    stack.presentation.checkSelector = true;
    connect(
        {{"selectors",
          QJsonObject{{"presentation", "00000009"}, {"session", "0008"}, {"transport", "0007"}}},
         {"title", "1.1.1.999"},
         {"qualifier", 12}});
    EXPECT_EQ(ask("read", item("GGIO1$MX$AnIn1$mag$f")), toJson(Data::float32(1.5F)));
    ForeignPeer other(ForeignPeer::Role::Client);
    EXPECT_TRUE(other.ask("connect", {{"port", m_port}}).isUndefined());
}

TEST_F(ForeignClientTest, speaksTls)
{
    row("TLS with certificates of both sides");
    wiretest::TestCertificates certificates;
    const auto authority = certificates.authority("Utility");
    const auto server = certificates.issue(authority, "IED1");
    const auto client = certificates.issue(authority, "SCADA");
    m_options.server.association.link.tls = wiretest::TestCertificates::options(server, authority);
    const auto identity = [&](const wiretest::TestCertificates::Identity &own,
                              const wiretest::TestCertificates::Identity &trusted) {
        return QJsonObject{{"certificate", QString::fromStdString(own.certificateFile)},
                           {"key", QString::fromStdString(own.keyFile)},
                           {"authority", QString::fromStdString(trusted.certificateFile)}};
    };
    connect({{"tls", identity(client, authority)}});
    EXPECT_EQ(ask("read", item("GGIO1$MX$AnIn1$mag$f")), toJson(Data::float32(1.5F)));
    const auto stranger = certificates.authority("Stranger");
    const auto intruder = certificates.issue(stranger, "SCADA");
    ForeignPeer other(ForeignPeer::Role::Client);
    EXPECT_TRUE(other.ask("connect", {{"port", m_port}, {"tls", identity(intruder, authority)}})
                    .isUndefined());
}

TEST_F(ForeignClientTest, discoversTheDevice)
{
    row("Discovery of logical devices and nodes");
    connect();
    EXPECT_EQ(ask("devices").toArray(), texts({"BAY1CTRL", "BAY1MANY"}));
    QJsonArray nodes = ask("nodes", {{"device", "BAY1MANY"}}).toArray();
    EXPECT_EQ(nodes.size(), 4);
    for (const char *node : {"LLN0", "LPHD1", "GGIO1", "GGIO10"})
        EXPECT_TRUE(nodes.contains(node)) << node;
    EXPECT_EQ(ask("object", {{"reference", "BAY1CTRL/GGIO1.AnIn1"}, {"fc", "MX"}}),
              held("GGIO1$MX$AnIn1"));
}

TEST_F(ForeignClientTest, hearsReportsOfAnUnbufferedBlock)
{
    row("Unbuffered report control block");
    connect();
    const QJsonObject block{{"reference", "BAY1CTRL/LLN0.RP.urcbMeasured01"}};
    const QJsonObject values = ask("block", block).toObject();
    EXPECT_EQ(values.value("rptId"), "Measured");
    EXPECT_EQ(values.value("dataSet"), "BAY1CTRL/LLN0$Measured");
    EXPECT_EQ(values.value("confRev").toInt(), 3);
    EXPECT_EQ(values.value("bufTm").toInt(), 50);
    EXPECT_TRUE(ask("enable", block).toBool());
    EXPECT_TRUE(ask("interrogate", block).toBool());
    const QJsonObject first = ask("reports", {{"count", 1}}).toArray()[0].toObject();
    EXPECT_EQ(first.value("rptId"), "Measured");
    EXPECT_EQ(first.value("confRev").toInt(), 3);
    EXPECT_EQ(first.value("dataSet"), "BAY1CTRL/LLN0$Measured");
    EXPECT_EQ(first.value("reasons").toArray(), (QJsonArray{16, 16, 16}));
    EXPECT_EQ(first.value("references").toArray(),
              texts({"BAY1CTRL/GGIO1$MX$AnIn1", "BAY1CTRL/GGIO1$MX$AnIn2",
                     "BAY1CTRL/GGIO1$MX$AnIn3$mag$f"}));
    change("GGIO1$MX$AnIn3$mag$f", Data::float32(12.5F));
    const QJsonObject second = ask("reports", {{"count", 1}}).toArray()[0].toObject();
    EXPECT_EQ(second.value("sqNum").toInt(), first.value("sqNum").toInt() + 1);
    EXPECT_EQ(second.value("reasons").toArray(), (QJsonArray{0, 0, 1}));
    EXPECT_EQ(second.value("values").toObject().value("array").toArray()[2],
              toJson(Data::float32(12.5F)));
    ForeignPeer other(ForeignPeer::Role::Client);
    ASSERT_TRUE(other.ask("connect", {{"port", m_port}}).toBool());
    EXPECT_TRUE(other.ask("enable", block).isUndefined());
    EXPECT_TRUE(ask("disable", block).toBool());
}

TEST_F(ForeignClientTest, hearsReportsOfABufferedBlock)
{
    row("Buffered report control block");
    connect();
    const QJsonObject block{{"reference", "BAY1CTRL/LLN0.BR.brcbStates01"}};
    EXPECT_EQ(ask("block", block).toObject().value("rptId"), "States");
    EXPECT_TRUE(ask("enable", block).toBool());
    change("CSWI1$ST$Pos$stVal", Data::bitString(mms::BitString::fromText("10")));
    QJsonObject report;
    for (bool changed = false; !changed;) {
        const QJsonArray heard = ask("reports", {{"count", 1}}).toArray();
        ASSERT_FALSE(heard.isEmpty());
        report = heard.last().toObject();
        changed = report.value("reasons").toArray()[2] == 1;
    }
    EXPECT_EQ(report.value("values").toObject().value("array").toArray()[2],
              (QJsonObject{{"bits", "10"}}));
    EXPECT_EQ(report.value("entryId").toObject().value("octets").toString().size(), 16);
    EXPECT_TRUE(ask("disable", block).toBool());
}

TEST_F(ForeignClientTest, operatesDirectly)
{
    row("Control: direct, normal security");
    connect();
    EXPECT_TRUE(control("GGIO1.SPCSO1", "operate", {{"value", true}}).value("done").toBool());
    EXPECT_TRUE(becomes("GGIO1$ST$SPCSO1$stVal", true));
}

TEST_F(ForeignClientTest, selectsBeforeOperating)
{
    row("Control: select before operate, normal security");
    connect();
    EXPECT_FALSE(control("GGIO1.SPCSO2", "operate", {{"value", true}}).value("done").toBool());
    EXPECT_TRUE(control("GGIO1.SPCSO2", "select").value("done").toBool());
    EXPECT_TRUE(control("GGIO1.SPCSO2", "operate", {{"value", true}}).value("done").toBool());
    EXPECT_TRUE(becomes("GGIO1$ST$SPCSO2$stVal", true));
    EXPECT_TRUE(control("GGIO1.SPCSO2", "select").value("done").toBool());
    EXPECT_TRUE(control("GGIO1.SPCSO2", "cancel").value("done").toBool());
}

TEST_F(ForeignClientTest, operatesDirectlyWithEnhancedSecurity)
{
    row("Control: direct, enhanced security");
    connect();
    EXPECT_TRUE(control("GGIO1.SPCSO3", "operate", {{"value", true}}).value("done").toBool());
    EXPECT_EQ(ask("reports", {{"count", 1}}).toArray(), texts({"termination"}));
    EXPECT_EQ(held("GGIO1$ST$SPCSO3$stVal"), QJsonValue(true));
}

TEST_F(ForeignClientTest, selectsWithAValueBeforeOperating)
{
    row("Control: select before operate, enhanced security");
    connect();
    const QJsonObject on{{"value", true}};
    EXPECT_TRUE(control("CSWI1.Pos", "selectwithvalue", on).value("done").toBool());
    EXPECT_TRUE(control("CSWI1.Pos", "operate", on).value("done").toBool());
    EXPECT_EQ(ask("reports", {{"count", 1}}).toArray(), texts({"termination"}));
    EXPECT_EQ(held("CSWI1$ST$Pos$stVal"), (QJsonObject{{"bits", "10"}}));
}

TEST_F(ForeignClientTest, isToldWhyAControlIsRefused)
{
    row("Control: refusal with additional cause");
    connect();
    const QJsonObject refused = control("CSWI1.Pos", "operate", {{"value", true}});
    EXPECT_FALSE(refused.value("done").toBool());
    EXPECT_EQ(refused.value("addCause").toInt(), 18) << "object not selected";
}

TEST_F(ForeignClientTest, switchesAndEditsSettingGroups)
{
    row("Setting groups");
    connect();
    const auto write = [this](const char *name, const QJsonValue &value) {
        QJsonObject arguments = item(name);
        arguments.insert("value", value);
        EXPECT_TRUE(ask("write", arguments).toBool()) << name;
    };
    EXPECT_EQ(ask("read", item("PTOC1$SG$StrVal$setMag$f")), toJson(Data::float32(1)));
    write("LLN0$SP$SGCB$ActSG", toJson(Data::unsignedInteger(2)));
    EXPECT_EQ(ask("read", item("PTOC1$SG$StrVal$setMag$f")), toJson(Data::float32(2)));
    write("LLN0$SP$SGCB$EditSG", toJson(Data::unsignedInteger(3)));
    EXPECT_EQ(ask("read", item("PTOC1$SE$OpDlTmms$setVal")), toJson(Data::integer(300)));
    write("PTOC1$SE$OpDlTmms$setVal", toJson(Data::integer(333)));
    write("LLN0$SP$SGCB$CnfEdit", true);
    write("LLN0$SP$SGCB$ActSG", toJson(Data::unsignedInteger(3)));
    EXPECT_EQ(ask("read", item("PTOC1$SG$OpDlTmms$setVal")), toJson(Data::integer(333)));
}

TEST_F(ForeignClientTest, downloadsAndUploadsFiles)
{
    row("File download and upload");
    QTemporaryDir own;
    const QByteArray content(300000, 'd');
    QFile file(own.filePath("new.dat"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(content), content.size());
    file.close();
    connect({{"filestore", own.path() + '/'}});
    putFile("old.dat", content);
    EXPECT_EQ(QByteArray::fromHex(ask("getfile", {{"file", "old.dat"}}).toString().toLatin1()),
              content);
    EXPECT_TRUE(ask("setfile", {{"source", "new.dat"}, {"destination", "uploaded.dat"}}).toBool());
    EXPECT_EQ(contentOf("uploaded.dat"), content);
}

int main(int argc, char **argv)
{
    return interop::runMatrix(argc, argv, "client", "foreign-client");
}
