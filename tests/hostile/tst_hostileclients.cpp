// SPDX-License-Identifier: Apache-2.0
// Clients that mean harm, against the simulator as a program of its own.
#include "mms/shorthand.h"
#include "simulator/devicetest.h"
#include "simulator/program.h"

#include <asio/connect.hpp>
#include <asio/read.hpp>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <random>

using namespace std::chrono_literals;
using mms::Octets;
using simtest::Caller;
using simtest::Program;

namespace {

/// What the program may grow by, whatever is done to it: what it may keep for its associations, and
/// what allocators and sanitizers keep.
constexpr std::size_t tolerableGrowth = std::size_t{64} << 20;

std::size_t residentOctets(pid_t process)
{
    std::ifstream file("/proc/" + std::to_string(process) + "/statm");
    std::size_t whole = 0;
    std::size_t resident = 0;
    file >> whole >> resident;
    return resident * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

/// A connection from another address of this machine than the honest client's, by hand.
class RawClient
{
public:
    explicit RawClient(std::uint16_t port)
        : m_socket(m_context)
    {
        using asio::ip::tcp;
        asio::error_code error;
        m_socket.open(tcp::v4());
        m_socket.bind({asio::ip::make_address("127.0.0.2"), 0});
        m_socket.connect({asio::ip::address_v4::loopback(), port}, error);
        m_isConnected = !error;
    }

    bool isConnected() const { return m_isConnected; }
    /// False once the other end has closed.
    bool send(mms::Bytes octets)
    {
        asio::error_code error;
        asio::write(m_socket, asio::buffer(octets.data(), octets.size()), error);
        return !error;
    }
    Octets receive()
    {
        Octets octets(64 * 1024);
        asio::error_code error;
        octets.resize(m_socket.read_some(asio::buffer(octets), error));
        return octets;
    }
    /// Waits until the other end closes; what it had said until then.
    std::size_t drain()
    {
        std::size_t size = 0;
        for (Octets octets = receive(); !octets.empty(); octets = receive())
            size += octets.size();
        return size;
    }
    /// Whether the other end has closed already.
    bool isClosed()
    {
        m_socket.non_blocking(true);
        std::uint8_t octet = 0;
        asio::error_code error;
        m_socket.read_some(asio::buffer(&octet, 1), error);
        m_socket.non_blocking(false);
        return error && error != asio::error::would_block;
    }

    /// Associates as an honest client would.
    bool associate(osi::Stack &stack, const mms::InitiateParameters &parameters = proposal())
    {
        send(stack.connect(mms::encode(mms::InitiateRequestPdu{parameters})).octets);
        while (!stack.isOpen() && !stack.isClosed()) {
            const Octets octets = receive();
            if (octets.empty())
                return false;
            send(stack.receive(octets).octets);
        }
        return stack.isOpen();
    }

    static mms::InitiateParameters proposal()
    {
        mms::InitiateParameters parameters;
        parameters.maxPduSize = 65000;
        parameters.maxOutstandingCalling = 5;
        parameters.maxOutstandingCalled = 5;
        parameters.nestingLevel = 10;
        parameters.parameters = mms::BitString::fromText("11110001");
        return parameters;
    }

private:
    asio::io_context m_context;
    asio::ip::tcp::socket m_socket;
    bool m_isConnected = false;
};

Octets packet(mms::Bytes payload)
{
    Octets octets;
    osi::appendTpkt(octets, payload);
    return octets;
}

} // namespace

/// The simulator with a few files, and an honest client that goes on reading all the time.
class HostileClients : public testing::Test
{
protected:
    void SetUp() override
    {
        const auto folder = std::filesystem::path(testing::TempDir()) / "hostileclients";
        std::filesystem::create_directories(folder);
        std::ofstream(folder / "record.dat") << std::string(1000, 'x');
        m_program = std::make_unique<Program>(
            std::vector<std::string>{STATION_FILE, "--port", "0", "--address", "127.0.0.1",
                                     "--quiet", "--files", folder.string()});
        m_port = m_program->port();
        m_honest = std::make_unique<Caller>(m_loop.executor(), m_port);
        ASSERT_TRUE(m_honest->isOpen());
        expectHonestService();
        m_before = residentOctets(m_program->processId());
    }

    void TearDown() override
    {
        expectHonestService();
        // The sanitizers keep what was freed.
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
        EXPECT_LT(residentOctets(m_program->processId()), m_before + tolerableGrowth);
#endif
        m_honest.reset();
        m_program->signal(SIGTERM);
        EXPECT_EQ(m_program->status(), 0);
    }

    void expectHonestService()
    {
        mms::ReadRequest request;
        request.variables = wiretest::variablesOf("BAY1E1IO", {"GGIO1$ST$Ind1$stVal"});
        const auto answer = m_honest->answer<mms::ReadResponse>(std::move(request));
        EXPECT_TRUE(answer.results.size() == 1 && answer.results[0].ok());
    }

    std::uint16_t port() const
    {
        return m_port;
    }

    wiretest::Loop m_loop;

private:
    std::unique_ptr<Program> m_program;
    std::uint16_t m_port = 0;
    std::unique_ptr<Caller> m_honest;
    std::size_t m_before = 0;
};

TEST_F(HostileClients, connectionsThatNeverSayAnythingTakeAFewPlacesOnly)
{
    std::vector<std::unique_ptr<RawClient>> flood;
    for (int i = 0; i < 400; ++i)
        flood.push_back(std::make_unique<RawClient>(port()));
    expectHonestService();
    // Those beyond the limit are closed at once, the others when their time is over.
    std::size_t closedAtOnce = 0;
    for (std::size_t i = 8; i < flood.size(); ++i)
        closedAtOnce += flood[i]->drain() == 0;
    EXPECT_EQ(closedAtOnce, flood.size() - 8);
    EXPECT_TRUE(Caller(m_loop.executor(), port()).isOpen());
    for (std::size_t i = 0; i < 8; ++i)
        EXPECT_EQ(flood[i]->drain(), 0U);
}

TEST_F(HostileClients, connectionsThatDripOrStopHalfwayAreCutOff)
{
    osi::Stack stack(osi::Stack::Role::Initiator, {});
    const Octets request = stack.connect(mms::encode(mms::InitiateRequestPdu{})).octets;
    std::vector<std::unique_ptr<RawClient>> halfway;
    for (int i = 0; i < 4; ++i) {
        halfway.push_back(std::make_unique<RawClient>(port()));
        // One half of them says nothing, the other nothing behind its request.
        EXPECT_TRUE(i % 2 == 0 || halfway.back()->send(request));
    }
    // An octet every now and then is no reason to wait longer.
    RawClient dripping(port());
    std::size_t sent = 0;
    const Octets endless = {3, 0, 0xff, 0xff};
    while (dripping.send({endless.data() + std::min<std::size_t>(sent, 3), 1}) && sent < 3000) {
        ++sent;
        std::this_thread::sleep_for(10ms);
    }
    EXPECT_LT(sent, 3000U);
    for (const auto &each : halfway)
        each->drain();
}

TEST_F(HostileClients, garbageEndsItsOwnConnection)
{
    std::minstd_rand random(61850);
    for (int i = 0; i < 300; ++i) {
        RawClient client(port());
        ASSERT_TRUE(client.isConnected());
        Octets octets(1 + random() % 3000);
        for (std::uint8_t &octet : octets)
            octet = static_cast<std::uint8_t>(random());
        client.send(octets);
        client.drain();
    }
}

TEST_F(HostileClients, messagesThatNeverEndAreCutOff)
{
    RawClient client(port());
    osi::Stack stack(osi::Stack::Role::Initiator, {});
    ASSERT_TRUE(client.associate(stack));
    Octets part(1000, 0x30);
    part[0] = 2;
    part[1] = 0xf0;
    part[2] = 0; // others follow
    std::size_t sent = 0;
    while (client.send(packet(part)) && sent < (std::size_t{64} << 20))
        sent += part.size();
    // What the network holds was taken besides what the limit allows.
    EXPECT_LT(sent, std::size_t{32} << 20);
}

TEST_F(HostileClients, aHugeAnnouncedPduIsRefused)
{
    for (const Octets &unit :
         {Octets{2, 0xf0, 0x80, 1, 0, 1, 0, 0x61, 0x84, 0x7f, 0xff, 0xff, 0xff, 0x30},
          Octets{2, 0xf0, 0x80, 1, 0,    1,    0,    0x61, 0x0f, 0x30, 0x0d, 2,
                 1, 3,    0xa0, 8, 0xa0, 0x84, 0x7f, 0xff, 0xff, 0xff, 2,    1}}) {
        RawClient client(port());
        osi::Stack stack(osi::Stack::Role::Initiator, {});
        ASSERT_TRUE(client.associate(stack));
        client.send(packet(unit));
        // An answer, or the end of the connection; never silence.
        EXPECT_TRUE(!client.receive().empty() || client.isClosed());
    }
}

TEST_F(HostileClients, proposalsOutsideAllSenseAreRefusedOrCutToSense)
{
    for (const std::int32_t size : {-1, 0, 1, 100, 999, 0x7fffffff}) {
        for (const int calls : {-32768, -1, 0, 32767}) {
            mms::InitiateParameters parameters = RawClient::proposal();
            parameters.maxPduSize = size;
            parameters.maxOutstandingCalling = static_cast<std::int16_t>(calls);
            parameters.maxOutstandingCalled = static_cast<std::int16_t>(calls);
            parameters.nestingLevel = static_cast<std::int8_t>(calls);
            RawClient client(port());
            osi::Stack stack(osi::Stack::Role::Initiator, {});
            client.associate(stack, parameters);
        }
    }
}

TEST_F(HostileClients, absurdRequestsAreAnsweredOrRefused)
{
    const std::string domain = "BAY1E1IO";
    const auto item = [&domain](const std::string &name) {
        return mms::VariableAccess{mms::ObjectName::inDomain(domain, name), {}};
    };
    const std::string longName(60000, 'x');
    std::vector<mms::RequestService> requests;
    mms::ReadRequest many;
    many.variables = std::vector<mms::VariableAccess>(2000, item("LLN0"));
    requests.emplace_back(many);
    mms::ReadRequest unknown;
    unknown.variables = mms::ObjectName::inDomain(domain, longName);
    requests.emplace_back(unknown);
    requests.emplace_back(mms::GetNameListRequest{mms::ObjectClass::NamedVariable,
                                                  mms::Scope::Domain, domain, longName});
    mms::GetVariableAccessAttributesRequest type;
    type.variable = mms::ObjectName::inDomain(domain, std::string(20000, '$'));
    requests.emplace_back(type);
    mms::WriteRequest write;
    write.variables = std::vector<mms::VariableAccess>(1500, item("LLN0$DC$NamPlt$d"));
    write.values = std::vector<mms::Data>(1500, mms::Data::boolean(true));
    requests.emplace_back(write);
    for (const char *name :
         {"../../../etc/passwd", "/etc/passwd", "..\\..\\x", "", "\x01\x1b[2J"}) {
        mms::FileOpenRequest open;
        open.name = {name};
        open.position = 0xffffffff;
        requests.emplace_back(open);
        mms::FileDeleteRequest remove;
        remove.name = {name};
        requests.emplace_back(remove);
        mms::ObtainFileRequest obtain;
        obtain.source = {name};
        obtain.destination = {name};
        requests.emplace_back(obtain);
    }
    mms::FileReadRequest read;
    read.frsmId = -1;
    requests.emplace_back(read);
    Caller caller(m_loop.executor(), port());
    ASSERT_TRUE(caller.isOpen());
    for (const mms::RequestService &request : requests) {
        const mms::CallOutcome outcome = caller.call(request);
        const auto *failure = std::get_if<mms::CallFailure>(&outcome);
        // Too long to be sent at all is this side's own refusal.
        EXPECT_TRUE(!failure || failure->kind == mms::CallFailure::Kind::TooLarge)
            << request.index() << ": " << mms::failureText(outcome);
    }
}

TEST_F(HostileClients, dataSetsAreMadeUpToTheLimitOnly)
{
    Caller caller(m_loop.executor(), port());
    ASSERT_TRUE(caller.isOpen());
    const mms::VariableAccess member{mms::ObjectName::inDomain("BAY1E1IO", "GGIO1$ST$Ind1$stVal"),
                                     {}};
    std::size_t made = 0;
    for (int i = 0; i < 400; ++i) {
        mms::DefineNamedVariableListRequest request;
        const std::string name = "made" + std::to_string(i);
        request.name = i % 2 == 0 ? mms::ObjectName::ofAssociation(name)
                                  : mms::ObjectName::inDomain("BAY1E1IO", "LLN0$" + name);
        request.members.assign(400, member);
        made +=
            mms::answerOf<mms::DefineNamedVariableListResponse>(caller.call(request)) != nullptr;
    }
    EXPECT_GT(made, 0U);
    EXPECT_LE(made, 150U);
    mms::DefineNamedVariableListRequest large;
    large.name = mms::ObjectName::inDomain("BAY1E1PROT", "LLN0$large");
    large.members.assign(1000, member);
    EXPECT_FALSE(mms::answerOf<mms::DefineNamedVariableListResponse>(caller.call(large)));
}

TEST_F(HostileClients, whoNeverReadsTheAnswersIsCutOff)
{
    RawClient client(port());
    osi::Stack stack(osi::Stack::Role::Initiator, {});
    ASSERT_TRUE(client.associate(stack));
    mms::ConfirmedRequestPdu request;
    request.request = mms::GetNameListRequest{
        mms::ObjectClass::NamedVariable, mms::Scope::Domain, "BAY1E1IO", {}};
    std::size_t sent = 0;
    constexpr std::size_t most = 100000;
    while (sent < most) {
        request.invokeId = static_cast<std::uint32_t>(++sent);
        if (!client.send(stack.send(mms::encode(request)).octets))
            break;
    }
    EXPECT_LT(sent, most);
}
