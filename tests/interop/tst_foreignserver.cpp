// SPDX-License-Identifier: Apache-2.0
// Our client against a server of the foreign stack, service by service.
#include "interop/jsondata.h"
#include "interop/matrix.h"
#include "interop/session.h"
#include "mms/shorthand.h"
#include "osi/testcertificates.h"

#include "acsi/discovery.h"

#include <asio/co_spawn.hpp>
#include <asio/detached.hpp>
#include <asio/post.hpp>

#include <QFile>
#include <QJsonArray>

#include <algorithm>
#include <set>

namespace {

using namespace interop;
using namespace mms;
using Errors = std::vector<std::optional<DataAccessError>>;

const std::string bay = "BAY1CTRL";

class ForeignServerTest : public MatrixTest
{
protected:
    void SetUp() override
    {
        MatrixTest::SetUp();
        if (IsSkipped() || HasFatalFailure())
            return;
        start({});
    }

    void start(QJsonObject options)
    {
        m_server = std::make_unique<ForeignServer>(sourceFile("bay.icd"), options);
        ASSERT_TRUE(m_server->peer().isReady()) << m_server->peer().failure().toStdString();
    }

    void connect(AssociationOptions options = {})
    {
        m_session = std::make_unique<Session>();
        const auto opened = m_session->connect(m_server->port(), std::move(options));
        ASSERT_TRUE(opened.ok()) << opened.error().message;
    }

    /// What the server itself holds.
    QJsonValue held(const char *reference, const char *constraint)
    {
        return m_server->peer().ask("get", {{"reference", reference}, {"fc", constraint}});
    }

    void change(const char *reference, const char *constraint, const QJsonValue &value)
    {
        const auto answer = m_server->peer().ask(
            "set", {{"reference", reference}, {"fc", constraint}, {"value", value}});
        EXPECT_TRUE(answer.toBool()) << m_server->peer().failure().toStdString();
    }

    void putFile(const char *name, const QByteArray &content)
    {
        QFile file(m_server->filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
    }

    QByteArray contentOf(const char *name)
    {
        QFile file(m_server->filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file");
    }

    std::string refusalOf(RequestService request)
    {
        const CallOutcome outcome = m_session->call(std::move(request));
        EXPECT_FALSE(std::holds_alternative<ResponseService>(outcome));
        return failureText(outcome).english();
    }

    /// All names, page after page.
    std::vector<std::string> names(ObjectClass objectClass, Scope scope, std::string domain = {})
    {
        return names(*m_session, objectClass, scope, std::move(domain));
    }

    static std::vector<std::string> names(Session &session, ObjectClass objectClass, Scope scope,
                                          std::string domain)
    {
        std::vector<std::string> all;
        for (bool more = true; more;) {
            std::optional<std::string> after;
            if (!all.empty())
                after = all.back();
            const auto page = session.ask<GetNameListResponse>(
                GetNameListRequest{objectClass, scope, domain, after});
            more = page.moreFollows && !page.names.empty();
            all.insert(all.end(), page.names.begin(), page.names.end());
        }
        return all;
    }

    std::unique_ptr<ForeignServer> m_server;
    std::unique_ptr<Session> m_session;
};

VariableAccessSpecification list(const std::vector<std::string> &items)
{
    return wiretest::variablesOf(bay, items);
}

Bytes bytesOf(const QByteArray &octets)
{
    return {reinterpret_cast<const std::uint8_t *>(octets.constData()),
            static_cast<std::size_t>(octets.size())};
}

asio::awaitable<void>
fetchDescription(asio::any_io_executor executor, std::uint16_t port,
                 std::function<void(Result<acsi::ServerDescription>)> finished)
{
    // Not as temporaries: GCC 12 does not keep them over a co_await.
    const std::string host = "127.0.0.1";
    const acsi::ClientOptions options;
    const acsi::DiscoveryOptions discovery;
    auto client = co_await acsi::Client::connect(executor, host, port, options);
    if (!client) {
        finished(client.error());
        co_return;
    }
    auto description = co_await acsi::discover(*client, discovery);
    co_await (*client)->close();
    finished(std::move(description));
}

osi::acse::Authentication password(std::string_view text)
{
    osi::acse::Authentication result;
    result.value.assign(text.begin(), text.end());
    return result;
}

} // namespace

TEST_F(ForeignServerTest, associatesAndNegotiates)
{
    row("Initiate");
    m_session = std::make_unique<Session>();
    const auto opened = m_session->connect(m_server->port());
    ASSERT_TRUE(opened.ok()) << opened.error().message;
    EXPECT_EQ(opened->maxPduSize, 65000);
    EXPECT_EQ(opened->maxOutstandingCalling, 5);
    EXPECT_TRUE(opened->supports(Service::Read));
    EXPECT_EQ(m_server->peer().ask("connections").toInt(), 1);
}

TEST_F(ForeignServerTest, answersStatus)
{
    row("Status");
    connect();
    const auto status = m_session->ask<StatusResponse>(StatusRequest());
    EXPECT_EQ(status.logicalStatus, 0);
    EXPECT_EQ(status.physicalStatus, 0);
}

TEST_F(ForeignServerTest, identifiesItself)
{
    row("Identify");
    connect();
    const auto who = m_session->ask<IdentifyResponse>(IdentifyRequest());
    EXPECT_EQ(who.vendor, "foreign");
    EXPECT_EQ(who.model, "bay");
    EXPECT_EQ(who.revision, "1.0");
}

TEST_F(ForeignServerTest, listsItsDomains)
{
    row("GetNameList: domains");
    connect();
    EXPECT_EQ(names(ObjectClass::Domain, Scope::Vmd),
              (std::vector<std::string>{"BAY1CTRL", "BAY1MANY"}));
}

TEST_F(ForeignServerTest, listsTheVariablesOfADomain)
{
    row("GetNameList: variables of a domain");
    connect();
    const auto found = names(ObjectClass::NamedVariable, Scope::Domain, bay);
    const std::set<std::string> set(found.begin(), found.end());
    EXPECT_EQ(set.size(), found.size());
    for (const char *name :
         {"LLN0", "LLN0$ST$Mod$stVal", "GGIO1$MX$AnIn1$mag$f", "LLN0$BR$brcbStates01$RptEna",
          "LLN0$SP$SGCB$ActSG", "CSWI1$CO$Pos$SBOw$origin$orIdent", "PTOC1$SE$StrVal$setMag$f"})
        EXPECT_TRUE(set.count(name)) << name;
}

TEST_F(ForeignServerTest, listsNamesPageAfterPage)
{
    row("GetNameList: continue after a name");
    AssociationOptions options;
    options.maxPduSize = 1000;
    connect(options);
    std::vector<std::string> all;
    int pages = 0;
    for (bool more = true; more; ++pages) {
        ASSERT_LT(pages, 100);
        std::optional<std::string> after;
        if (!all.empty())
            after = all.back();
        const auto page = m_session->ask<GetNameListResponse>(
            GetNameListRequest{ObjectClass::NamedVariable, Scope::Domain, bay, after});
        ASSERT_FALSE(page.names.empty());
        all.insert(all.end(), page.names.begin(), page.names.end());
        more = page.moreFollows;
    }
    EXPECT_GT(pages, 1);
    Session wide;
    ASSERT_TRUE(wide.connect(m_server->port()).ok());
    EXPECT_EQ(all, names(wide, ObjectClass::NamedVariable, Scope::Domain, bay));
}

TEST_F(ForeignServerTest, listsTheVariablesOfTheDevice)
{
    row("GetNameList: variables of the VMD");
    connect();
    const CallOutcome outcome =
        m_session->call(GetNameListRequest{ObjectClass::NamedVariable, Scope::Vmd, {}, {}});
    if (const auto *answer = answerOf<GetNameListResponse>(outcome)) {
        EXPECT_TRUE(answer->names.empty());
        worksBut("it has none");
    } else {
        EXPECT_TRUE(std::holds_alternative<ServiceError>(outcome));
        peerLacksIt(failureText(outcome).english());
    }
}

TEST_F(ForeignServerTest, listsItsNamedLists)
{
    row("GetNameList: named variable lists");
    connect();
    auto found = names(ObjectClass::NamedVariableList, Scope::Domain, bay);
    std::sort(found.begin(), found.end());
    EXPECT_EQ(found, (std::vector<std::string>{"LLN0$Measured", "LLN0$Settings", "LLN0$States"}));
    EXPECT_TRUE(names(ObjectClass::NamedVariableList, Scope::Vmd).empty());
    EXPECT_TRUE(names(ObjectClass::NamedVariableList, Scope::Association).empty());
}

TEST_F(ForeignServerTest, listsItsJournals)
{
    row("GetNameList: journals");
    connect();
    EXPECT_TRUE(names(ObjectClass::Journal, Scope::Domain, bay).empty());
    worksBut("it has none");
}

TEST_F(ForeignServerTest, describesTheTypeOfAVariable)
{
    row("GetVariableAccessAttributes");
    connect();
    const auto answer = m_session->ask<GetVariableAccessAttributesResponse>(
        GetVariableAccessAttributesRequest{ObjectName::inDomain(bay, "GGIO1$MX$AnIn1")});
    EXPECT_EQ(answer.type,
              TypeDescription::structure(
                  {{"mag", TypeDescription::structure({{"f", TypeDescription::float32()}})},
                   {"q", TypeDescription::bitString(-13)},
                   {"t", TypeDescription::utcTime()}}));
    const auto array = m_session->ask<GetVariableAccessAttributesResponse>(
        GetVariableAccessAttributesRequest{ObjectName::inDomain(bay, "MHAI1$SP$HA$factors")});
    EXPECT_EQ(array.type, TypeDescription::array(4, TypeDescription::float32()));
    const auto node = m_session->ask<GetVariableAccessAttributesResponse>(
        GetVariableAccessAttributesRequest{ObjectName::inDomain(bay, "CSWI1")});
    ASSERT_FALSE(node.type.components.empty());
    EXPECT_EQ(node.type.components.front().name, "ST");
}

TEST_F(ForeignServerTest, readsOneVariable)
{
    row("Read: one variable");
    connect();
    EXPECT_EQ(m_session->read(bay, "GGIO1$MX$AnIn1$mag$f"), AccessResult(Data::float32(1.5F)));
    const auto whole = m_session->read(bay, "GGIO1$MX$AnIn1");
    ASSERT_TRUE(whole.ok());
    ASSERT_EQ(whole.data().children().size(), 3U);
    EXPECT_EQ(whole.data().children()[1], Data::bitString(BitString(13)));
    EXPECT_EQ(m_session->read(bay, "GGIO1$MX$Nothing"),
              AccessResult(DataAccessError::ObjectNonExistent));
}

TEST_F(ForeignServerTest, readsAListOfVariables)
{
    row("Read: list of variables");
    connect();
    const auto answer = m_session->ask<ReadResponse>(ReadRequest{
        false,
        list({"GGIO1$MX$AnIn1$mag$f", "GGIO1$MX$Nothing", "GGIO1$ST$Ind1$stVal",
              "CSWI1$ST$Pos$stVal", "GGIO2$SP$All$i8", "GGIO2$SP$All$i16", "GGIO2$SP$All$i32",
              "GGIO2$SP$All$i64", "GGIO2$SP$All$u8", "GGIO2$SP$All$u16", "GGIO2$SP$All$u32",
              "GGIO2$SP$All$f64", "GGIO2$SP$All$vs255", "GGIO2$SP$All$us255"})});
    const std::vector<AccessResult> expected{
        Data::float32(1.5F),
        DataAccessError::ObjectNonExistent,
        Data::boolean(true),
        Data::bitString(BitString::fromText("01")),
        Data::integer(-100),
        Data::integer(-30000),
        Data::integer(-2000000000),
        Data::integer(-9000000000000000000),
        Data::unsignedInteger(200),
        Data::unsignedInteger(60000),
        Data::unsignedInteger(4000000000),
        Data::float64(3.25),
        Data::visibleString("plain text"),
        Data::mmsString("Gr\xc3\xbc\xc3\x9f"
                        "e"),
    };
    EXPECT_EQ(answer.results, expected);
}

TEST_F(ForeignServerTest, readsAHundredVariablesAtOnce)
{
    row("Read: 100 variables in one request");
    connect();
    const auto answer = m_session->ask<ReadResponse>(
        ReadRequest{false, list(std::vector<std::string>(100, "GGIO1$MX$AnIn1$mag$f"))});
    EXPECT_EQ(answer.results, std::vector<AccessResult>(100, Data::float32(1.5F)));
}

TEST_F(ForeignServerTest, readsANamedList)
{
    row("Read: named variable list");
    connect();
    const auto answer = m_session->ask<ReadResponse>(
        ReadRequest{false, ObjectName::inDomain(bay, "LLN0$Measured")});
    ASSERT_EQ(answer.results.size(), 3U);
    EXPECT_EQ(answer.results[2], AccessResult(Data::float32(1000000)));
    ASSERT_TRUE(answer.results[1].ok());
    EXPECT_EQ(answer.results[1].data().children().front(),
              Data::structure({Data::float32(-2.25F)}));
    const auto specified =
        m_session->ask<ReadResponse>(ReadRequest{true, ObjectName::inDomain(bay, "LLN0$Measured")});
    EXPECT_EQ(specified.results, answer.results);
}

TEST_F(ForeignServerTest, readsElementsOfAnArray)
{
    row("Read: elements of an array (alternate access)");
    connect();
    const auto written = m_session->ask<WriteResponse>(WriteRequest{
        list({"MHAI1$SP$HA$factors"}),
        {Data::array({Data::float32(1), Data::float32(2), Data::float32(3), Data::float32(4)})}});
    EXPECT_EQ(written.results, Errors{std::nullopt});
    EXPECT_EQ(m_session->readPart(bay, "MHAI1$SP$HA$factors", {AlternateAccess::ofElement(2)}),
              AccessResult(Data::float32(3)));
    EXPECT_EQ(m_session->readPart(bay, "MHAI1$SP$HA$factors", {AlternateAccess::ofElements(1, 2)}),
              AccessResult(Data::array({Data::float32(2), Data::float32(3)})));
}

TEST_F(ForeignServerTest, readsAComponent)
{
    row("Read: component of a structure (alternate access)");
    connect();
    const auto value = m_session->readPart(
        bay, "GGIO1$MX$AnIn1",
        {AlternateAccess::ofComponent("mag", {AlternateAccess::ofComponent("f")})});
    if (value.ok()) {
        EXPECT_EQ(value, AccessResult(Data::float32(1.5F)));
    } else {
        peerLacksIt(describe(value.error()).english());
    }
}

TEST_F(ForeignServerTest, writesOneVariableOfEveryType)
{
    row("Write: one variable");
    connect();
    UtcTime time{1614834367, 0x800000, 0x0A};
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
        {"f64", Data::float64(1e100)},
        {"vs64", Data::visibleString("new text")},
        {"us255", Data::mmsString("\xc3\xa4\xc3\xb6")},
        {"os64", Data::octetString(bytesOf(QByteArrayLiteral("octets")))},
        {"en", Data::integer(3)},
        {"db", Data::bitString(BitString::fromText("10"))},
        {"tim", Data::utcTime(time)},
        {"qual", Data::bitString(BitString::fromText("1100000000001"))},
    };
    for (const auto &[name, value] : values) {
        const std::string item = std::string("GGIO2$SP$All$") + name;
        const auto answer = m_session->ask<WriteResponse>(WriteRequest{list({item}), {value}});
        EXPECT_EQ(answer.results, Errors{std::nullopt}) << name;
        EXPECT_EQ(m_session->read(bay, item), AccessResult(value)) << name;
        const std::string reference = std::string("BAY1CTRL/GGIO2.All.") + name;
        EXPECT_EQ(held(reference.c_str(), "SP"), toJson(value)) << name;
    }
}

TEST_F(ForeignServerTest, writesAListOfVariables)
{
    row("Write: list of variables");
    connect();
    const auto answer = m_session->ask<WriteResponse>(
        WriteRequest{list({"GGIO2$SP$All$i32", "GGIO1$MX$AnIn1$mag$f", "GGIO2$SP$All$f32"}),
                     {Data::integer(5), Data::float32(5), Data::float32(6)}});
    EXPECT_EQ(answer.results,
              (Errors{std::nullopt, DataAccessError::ObjectAccessDenied, std::nullopt}));
    EXPECT_EQ(held("BAY1CTRL/GGIO2.All.i32", "SP"), toJson(Data::integer(5)));
    EXPECT_EQ(held("BAY1CTRL/GGIO2.All.f32", "SP"), toJson(Data::float32(6)));
}

TEST_F(ForeignServerTest, writesANamedList)
{
    row("Write: named variable list");
    connect();
    const auto answer = m_session->ask<WriteResponse>(WriteRequest{
        ObjectName::inDomain(bay, "LLN0$Settings"), {Data::integer(-7), Data::float32(0.75F)}});
    EXPECT_EQ(answer.results, (Errors{std::nullopt, std::nullopt}));
    EXPECT_EQ(held("BAY1CTRL/GGIO2.All.i32", "SP"), toJson(Data::integer(-7)));
    EXPECT_EQ(held("BAY1CTRL/GGIO2.All.f32", "SP"), toJson(Data::float32(0.75F)));
}

TEST_F(ForeignServerTest, writesElementsOfAnArray)
{
    row("Write: elements of an array (alternate access)");
    connect();
    const auto answer = m_session->ask<WriteResponse>(
        WriteRequest{std::vector<VariableAccess>{{ObjectName::inDomain(bay, "MHAI1$SP$HA$factors"),
                                                  {AlternateAccess::ofElement(1)}}},
                     {Data::float32(9)}});
    EXPECT_EQ(answer.results, Errors{std::nullopt});
    EXPECT_EQ(m_session->read(bay, "MHAI1$SP$HA$factors"),
              AccessResult(Data::array(
                  {Data::float32(0), Data::float32(9), Data::float32(0), Data::float32(0)})));
}

TEST_F(ForeignServerTest, keepsANamedListOfADomain)
{
    row("Define, Get, DeleteNamedVariableList: domain");
    connect();
    const auto name = ObjectName::inDomain(bay, "LLN0$dynamic");
    const std::vector<VariableAccess> members{
        {ObjectName::inDomain(bay, "GGIO1$MX$AnIn2$mag$f"), {}},
        {ObjectName::inDomain(bay, "GGIO1$ST$Ind1$stVal"), {}}};
    m_session->ask<DefineNamedVariableListResponse>(DefineNamedVariableListRequest{name, members});
    const auto attributes = m_session->ask<GetNamedVariableListAttributesResponse>(
        GetNamedVariableListAttributesRequest{name});
    EXPECT_TRUE(attributes.deletable);
    EXPECT_EQ(attributes.members, members);
    const auto values = m_session->ask<ReadResponse>(ReadRequest{false, name});
    EXPECT_EQ(values.results,
              (std::vector<AccessResult>{Data::float32(-2.25F), Data::boolean(true)}));
    const auto fixed = m_session->ask<GetNamedVariableListAttributesResponse>(
        GetNamedVariableListAttributesRequest{ObjectName::inDomain(bay, "LLN0$States")});
    EXPECT_FALSE(fixed.deletable);
    const auto deleted = m_session->ask<DeleteNamedVariableListResponse>(
        DeleteNamedVariableListRequest{0, {name}, {}});
    EXPECT_EQ(deleted.matched, 1U);
    EXPECT_EQ(deleted.deleted, 1U);
    EXPECT_FALSE(refusalOf(GetNamedVariableListAttributesRequest{name}).empty());
}

TEST_F(ForeignServerTest, keepsANamedListOfTheAssociation)
{
    row("Define, Get, DeleteNamedVariableList: association");
    connect();
    const auto name = ObjectName::ofAssociation("mine");
    const std::vector<VariableAccess> members{
        {ObjectName::inDomain(bay, "GGIO1$MX$AnIn2$mag$f"), {}}};
    m_session->ask<DefineNamedVariableListResponse>(DefineNamedVariableListRequest{name, members});
    EXPECT_EQ(names(ObjectClass::NamedVariableList, Scope::Association),
              std::vector<std::string>{"mine"});
    const auto attributes = m_session->ask<GetNamedVariableListAttributesResponse>(
        GetNamedVariableListAttributesRequest{name});
    EXPECT_EQ(attributes.members, members);
    const auto values = m_session->ask<ReadResponse>(ReadRequest{false, name});
    EXPECT_EQ(values.results, std::vector<AccessResult>{Data::float32(-2.25F)});
    Session other;
    ASSERT_TRUE(other.connect(m_server->port()).ok());
    EXPECT_FALSE(std::holds_alternative<ResponseService>(
        other.call(GetNamedVariableListAttributesRequest{name})));
    const auto deleted = m_session->ask<DeleteNamedVariableListResponse>(
        DeleteNamedVariableListRequest{0, {name}, {}});
    EXPECT_EQ(deleted.deleted, 1U);
}

TEST_F(ForeignServerTest, keepsANamedListOfTheDevice)
{
    row("Define, Get, DeleteNamedVariableList: VMD");
    connect();
    const auto name = ObjectName::ofVmd("everyones");
    const std::vector<VariableAccess> members{
        {ObjectName::inDomain(bay, "GGIO1$MX$AnIn2$mag$f"), {}}};
    m_session->ask<DefineNamedVariableListResponse>(DefineNamedVariableListRequest{name, members});
    EXPECT_EQ(names(ObjectClass::NamedVariableList, Scope::Vmd),
              std::vector<std::string>{"everyones"});
    const auto attributes = m_session->ask<GetNamedVariableListAttributesResponse>(
        GetNamedVariableListAttributesRequest{name});
    EXPECT_EQ(attributes.members, members);
    const auto deleted = m_session->ask<DeleteNamedVariableListResponse>(
        DeleteNamedVariableListRequest{0, {name}, {}});
    EXPECT_EQ(deleted.deleted, 1U);
}

TEST_F(ForeignServerTest, opensReadsAndClosesAFile)
{
    row("FileOpen, FileRead, FileClose");
    connect();
    QByteArray content;
    for (int i = 0; i < 100000; ++i)
        content.append(static_cast<char>(i % 251));
    putFile("record.dat", content);
    const auto file = m_session->ask<FileOpenResponse>(FileOpenRequest{{"record.dat"}, 0});
    EXPECT_EQ(file.attributes.size, 100000U);
    std::vector<std::uint8_t> read;
    for (bool more = true; more;) {
        const auto block = m_session->ask<FileReadResponse>(FileReadRequest{file.frsmId});
        ASSERT_FALSE(block.data.empty() && block.moreFollows);
        read.insert(read.end(), block.data.begin(), block.data.end());
        more = block.moreFollows;
    }
    EXPECT_TRUE(
        std::equal(read.begin(), read.end(), bytesOf(content).begin(), bytesOf(content).end()));
    m_session->ask<FileCloseResponse>(FileCloseRequest{file.frsmId});
    EXPECT_FALSE(refusalOf(FileReadRequest{file.frsmId}).empty());
    EXPECT_FALSE(refusalOf(FileOpenRequest{{"nothing.dat"}, 0}).empty());
}

TEST_F(ForeignServerTest, opensAFileAtAPosition)
{
    row("FileOpen at a position");
    connect();
    putFile("record.dat", "0123456789");
    const auto file = m_session->ask<FileOpenResponse>(FileOpenRequest{{"record.dat"}, 7});
    const auto block = m_session->ask<FileReadResponse>(FileReadRequest{file.frsmId});
    const std::string read(block.data.begin(), block.data.end());
    m_session->ask<FileCloseResponse>(FileCloseRequest{file.frsmId});
    if (read != "789") {
        EXPECT_EQ(read, "012");
        peerDefect("it sends as many octets as are left, but those from the start of the file");
    }
}

TEST_F(ForeignServerTest, listsFiles)
{
    row("FileDirectory");
    connect();
    putFile("one.txt", "1");
    putFile("two.txt", "22");
    const auto answer =
        m_session->ask<FileDirectoryResponse>(FileDirectoryRequest{std::nullopt, std::nullopt});
    std::map<std::string, std::uint32_t> sizes;
    for (const auto &entry : answer.entries) {
        ASSERT_EQ(entry.name.size(), 1U);
        sizes[entry.name.front()] = entry.attributes.size;
        EXPECT_TRUE(entry.attributes.lastModified.has_value());
    }
    EXPECT_EQ(sizes, (std::map<std::string, std::uint32_t>{{"one.txt", 1}, {"two.txt", 2}}));
}

TEST_F(ForeignServerTest, deletesAFile)
{
    row("FileDelete");
    connect();
    putFile("old.txt", "x");
    m_session->ask<FileDeleteResponse>(FileDeleteRequest{{"old.txt"}});
    EXPECT_EQ(contentOf("old.txt"), "no such file");
    const auto again = m_session->call(FileDeleteRequest{{"old.txt"}});
    ASSERT_TRUE(std::holds_alternative<ServiceError>(again));
    EXPECT_EQ(std::get<ServiceError>(again).errorClass, ErrorClass::File);
}

TEST_F(ForeignServerTest, renamesAFile)
{
    row("FileRename");
    connect();
    putFile("old.txt", "x");
    const auto outcome = m_session->call(FileRenameRequest{{"old.txt"}, {"new.txt"}});
    if (answerOf<FileRenameResponse>(outcome)) {
        EXPECT_EQ(contentOf("new.txt"), "x");
    } else {
        EXPECT_TRUE(std::holds_alternative<RejectPdu>(outcome));
        EXPECT_EQ(contentOf("old.txt"), "x");
        peerLacksIt(failureText(outcome).english());
    }
}

TEST_F(ForeignServerTest, refusesJournals)
{
    row("ReadJournal");
    connect();
    const auto outcome =
        m_session->call(ReadJournalRequest{ObjectName::inDomain(bay, "LLN0$GeneralLog"),
                                           BinaryTime{0, 1},
                                           BinaryTime{0, 30000},
                                           {},
                                           {}});
    ASSERT_TRUE(std::holds_alternative<ServiceError>(outcome));
    EXPECT_EQ(std::get<ServiceError>(outcome).errorClass, ErrorClass::Access);
    peerLacksIt("the wheel has no storage for logs; " + failureText(outcome).english());
}

TEST_F(ForeignServerTest, manyCallsAreOnTheWay)
{
    row("Five outstanding calls");
    connect();
    std::vector<wiretest::Awaited<CallOutcome>> outcomes(50);
    for (std::size_t i = 0; i < outcomes.size(); ++i) {
        m_session->association().call(
            ReadRequest{false,
                        list({i % 2 == 0 ? "GGIO1$MX$AnIn1$mag$f" : "GGIO1$MX$AnIn2$mag$f"})},
            std::chrono::seconds(10), outcomes[i].setter());
    }
    for (std::size_t i = 0; i < outcomes.size(); ++i) {
        const auto outcome = outcomes[i].get();
        const auto *answer = answerOf<ReadResponse>(outcome);
        ASSERT_NE(answer, nullptr) << failureText(outcome);
        EXPECT_EQ(answer->results.front(), AccessResult(Data::float32(i % 2 == 0 ? 1.5F : -2.25F)));
    }
}

TEST_F(ForeignServerTest, sendsInformationReports)
{
    row("InformationReport");
    connect();
    const std::string block = "LLN0$RP$urcbMeasured01$";
    const auto answer = m_session->ask<WriteResponse>(WriteRequest{
        list({block + "RptEna", block + "GI"}), {Data::boolean(true), Data::boolean(true)}});
    EXPECT_EQ(answer.results, (Errors{std::nullopt, std::nullopt}));
    const auto report = m_session->nextReport();
    ASSERT_TRUE(report.has_value());
    EXPECT_EQ(report->variables, VariableAccessSpecification(ObjectName::ofVmd("RPT")));
    ASSERT_FALSE(report->results.empty());
    EXPECT_EQ(report->results.front(), AccessResult(Data::visibleString("Measured")));
    EXPECT_NE(std::find(report->results.begin(), report->results.end(),
                        AccessResult(Data::float32(1000000))),
              report->results.end());
    change("BAY1CTRL/GGIO1.AnIn3.mag.f", "MX", QJsonObject{{"float", 17.5}});
    change("BAY1CTRL/GGIO1.AnIn1.mag.f", "MX", QJsonObject{{"float", 18.5}});
    bool arrived = false;
    while (!arrived) {
        const auto changed = m_session->nextReport();
        ASSERT_TRUE(changed.has_value());
        arrived = std::find(changed->results.begin(), changed->results.end(),
                            AccessResult(Data::float32(17.5F))) != changed->results.end();
    }
}

TEST_F(ForeignServerTest, concludesTheAssociation)
{
    row("Conclude and release");
    connect();
    wiretest::Awaited<Result<void>> concluded;
    m_session->association().conclude(concluded.setter());
    const auto result = concluded.get();
    EXPECT_TRUE(result.ok()) << result.error().message;
    EXPECT_EQ(m_session->closeReason(), "The association was released.");
}

TEST_F(ForeignServerTest, isAborted)
{
    row("Abort");
    connect();
    m_session->association().abort(mms::verbatim("The test has seen enough."));
    EXPECT_FALSE(m_session->closeReason().empty());
    int open = 1;
    for (int i = 0; i < 1000 && open != 0; ++i)
        open = m_server->peer().ask("connections").toInt();
    EXPECT_EQ(open, 0);
    connect();
    EXPECT_TRUE(m_session->read(bay, "GGIO1$MX$AnIn1$mag$f").ok());
}

TEST_F(ForeignServerTest, itsEndIsNoticed)
{
    row("The peer goes away");
    connect();
    m_server->peer().kill();
    EXPECT_FALSE(m_session->closeReason().empty());
}

TEST_F(ForeignServerTest, asksForAPassword)
{
    row("Password");
    start({{"password", "secret"}});
    AssociationOptions options;
    options.link.stack.association.authentication = password("secret");
    connect(options);
    EXPECT_TRUE(m_session->read(bay, "GGIO1$MX$AnIn1$mag$f").ok());
    options.link.stack.association.authentication = password("wrong");
    Session wrong;
    const auto refused = wrong.connect(m_server->port(), options);
    ASSERT_FALSE(refused.ok());
    EXPECT_FALSE(refused.error().message.empty());
    Session none;
    EXPECT_FALSE(none.connect(m_server->port()).ok());
}

TEST_F(ForeignServerTest, isCalledBySelectors)
{
    row("Selectors and titles");
    AssociationOptions options;
    options.link.stack.transport.localSelector = {0x00, 0x02};
    options.link.stack.session.localSelector = {0x00, 0x02};
    options.link.stack.presentation.localSelector = {0x00, 0x00, 0x00, 0x02};
    options.link.stack.association.own = {osi::acse::ObjectIdentifier{1, 3, 9999, 106}, 33};
    options.link.stack.association.peer = {osi::acse::ObjectIdentifier{1, 1, 1, 999}, 12};
    connect(options);
    EXPECT_TRUE(m_session->read(bay, "GGIO1$MX$AnIn1$mag$f").ok());
}

TEST_F(ForeignServerTest, fetchesAFile)
{
    row("ObtainFile");
    QByteArray content;
    for (int i = 0; i < 200000; ++i)
        content.append(static_cast<char>(i % 251));
    m_session = std::make_unique<Session>();
    std::vector<std::string> asked;
    int position = 0;
    m_session->serve([&](const std::shared_ptr<Association> &association, std::uint32_t invokeId,
                         const RequestService &request) {
        if (const auto *open = std::get_if<FileOpenRequest>(&request)) {
            asked = open->name;
            association->respond(
                invokeId,
                FileOpenResponse{7, {static_cast<std::uint32_t>(content.size()), std::nullopt}});
        } else if (std::holds_alternative<FileReadRequest>(request)) {
            const Bytes block = bytesOf(content).subspan(
                static_cast<std::size_t>(position),
                static_cast<std::size_t>(std::min(30000, content.size() - position)));
            position += static_cast<int>(block.size());
            association->respond(invokeId, FileReadResponse{{block.begin(), block.end()},
                                                            position < content.size()});
        } else {
            association->respond(invokeId, FileCloseResponse());
        }
    });
    const auto opened = m_session->connect(m_server->port());
    ASSERT_TRUE(opened.ok()) << opened.error().message;
    m_session->ask<ObtainFileResponse>(ObtainFileRequest{{}, {"here.dat"}, {"there.dat"}});
    EXPECT_EQ(asked, std::vector<std::string>{"here.dat"});
    EXPECT_EQ(contentOf("there.dat"), content);
}

TEST_F(ForeignServerTest, speaksTls)
{
    row("TLS with certificates of both sides");
    wiretest::TestCertificates certificates;
    const auto authority = certificates.authority("Utility");
    const auto server = certificates.issue(authority, "IED1");
    const auto client = certificates.issue(authority, "SCADA");
    start({{"tls", QJsonObject{{"certificate", QString::fromStdString(server.certificateFile)},
                               {"key", QString::fromStdString(server.keyFile)},
                               {"authority", QString::fromStdString(authority.certificateFile)}}}});
    AssociationOptions options;
    options.link.tls = wiretest::TestCertificates::options(client, authority);
    connect(options);
    EXPECT_EQ(m_session->read(bay, "GGIO1$MX$AnIn1$mag$f"), AccessResult(Data::float32(1.5F)));
    const auto stranger = certificates.authority("Stranger");
    options.link.tls = wiretest::TestCertificates::options(client, stranger);
    Session distrustful;
    const auto refused = distrustful.connect(m_server->port(), options);
    ASSERT_FALSE(refused.ok());
    EXPECT_FALSE(refused.error().message.empty());
}

TEST_F(ForeignServerTest, cancelIsToldOrNot)
{
    row("Cancel");
    m_session = std::make_unique<Session>();
    const auto opened = m_session->connect(m_server->port());
    ASSERT_TRUE(opened.ok());
    wiretest::Awaited<CallOutcome> outcome;
    // In one turn of the strand, so that no answer comes between the two.
    asio::post(m_session->association().strand(), [&] {
        const auto id = m_session->association().call(
            ReadRequest{false, list(std::vector<std::string>(500, "GGIO1$MX$AnIn1"))},
            std::chrono::seconds(10), outcome.setter());
        m_session->association().cancel(id);
    });
    const auto ended = outcome.get();
    const auto *failure = std::get_if<CallFailure>(&ended);
    ASSERT_NE(failure, nullptr);
    EXPECT_EQ(failure->kind, CallFailure::Kind::Cancelled);
    EXPECT_EQ(m_session->read(bay, "GGIO1$MX$AnIn1$mag$f"), AccessResult(Data::float32(1.5F)));
    if (!opened->supports(Service::Cancel))
        peerLacksIt("it does not offer the service; the call ends on our side");
    else
        worksBut("the association survives");
}

TEST_F(ForeignServerTest, isDiscovered)
{
    row("Discovery of logical devices and nodes");
    wiretest::Loop loop;
    wiretest::Awaited<Result<acsi::ServerDescription>> discovered;
    asio::co_spawn(loop.executor(),
                   fetchDescription(loop.executor(), m_server->port(), discovered.setter()),
                   asio::detached);
    const auto found = discovered.get();
    ASSERT_TRUE(found.ok()) << found.error().message;
    EXPECT_EQ(found.value().identity.vendor, "foreign");
    EXPECT_TRUE(found.value().refused.empty());
    ASSERT_EQ(found.value().devices.size(), 2U);
    std::vector<std::string> nodes;
    for (const auto &node : found.value().devices[1].nodes)
        nodes.push_back(node.name);
    std::sort(nodes.begin(), nodes.end());
    EXPECT_EQ(nodes, (std::vector<std::string>{"GGIO1", "GGIO10", "LLN0", "LPHD1"}));
    const auto &bayNodes = found.value().devices[0].nodes;
    const auto node = std::find_if(bayNodes.begin(), bayNodes.end(),
                                   [](const auto &each) { return each.name == "GGIO1"; });
    ASSERT_NE(node, bayNodes.end());
    const TypeDescription *value = acsi::typeBelow(node->type, "MX", "AnIn1$mag$f");
    ASSERT_NE(value, nullptr);
    EXPECT_EQ(*value, TypeDescription::float32());
    EXPECT_EQ(found.value().devices[0].dataSets.size(), 3U);
}

int main(int argc, char **argv)
{
    return interop::runMatrix(argc, argv, "server", "foreign-server");
}
