// SPDX-License-Identifier: Apache-2.0
// The program as somebody at a terminal meets it.
#include "mms/shorthand.h"
#include "osi/testcertificates.h"
#include "simulator/devicetest.h"
#include "simulator/program.h"

#include <filesystem>
#include <fstream>

using simtest::Caller;
using simtest::Program;

namespace {

const std::string fixtures = SCL_FIXTURES "/";
const std::string device = fixtures + "device.icd";

/// What a run that ends by itself says on standard error, behind the name of the program.
std::string complaintOf(const std::vector<std::string> &arguments, int expectedStatus)
{
    Program program(arguments);
    std::string text = program.errors();
    EXPECT_EQ(program.status(), expectedStatus) << text;
    EXPECT_EQ(std::ranges::count(text, '\n'), 1) << text;
    EXPECT_TRUE(text.starts_with("iedsim: ")) << text;
    if (text.ends_with('\n'))
        text.pop_back();
    return text.substr(std::min<std::size_t>(8, text.size()));
}

class Iedsim : public testing::Test
{
protected:
    /// A file that lives as long as the test.
    std::string file(const std::string &name, const std::string &content)
    {
        return m_files.file(name, content);
    }

    mms::Data read(Caller &caller, const std::string &domain, const std::string &item)
    {
        mms::ReadRequest request;
        request.variables = wiretest::variablesOf(domain, {item});
        const auto answer = caller.answer<mms::ReadResponse>(std::move(request));
        EXPECT_TRUE(answer.results.size() == 1 && answer.results[0].ok()) << item;
        return answer.results.size() == 1 && answer.results[0].ok() ? answer.results[0].data()
                                                                    : mms::Data();
    }

    wiretest::TestCertificates m_files;
    wiretest::Loop m_loop;
};

} // namespace

TEST_F(Iedsim, aDeviceIsServedUntilASignalEndsTheProgram)
{
    for (const int number : {SIGTERM, SIGINT}) {
        Program program({device, "--port", "0"});
        Caller caller(m_loop.executor(), program.port());
        ASSERT_TRUE(caller.isOpen());
        EXPECT_EQ(caller.names(mms::ObjectClass::Domain, {}),
                  (std::vector<std::string>{"BAY1CTRL", "FeederMeasurements"}));
        EXPECT_EQ(read(caller, "BAY1CTRL", "Q0CSWI1$ST$Pos$stVal"),
                  mms::Data::bitString(mms::BitString::fromText("10")));
        program.signal(number);
        EXPECT_EQ(program.lineWith("Ended"), "Ended.");
        EXPECT_EQ(program.status(), 0);
        EXPECT_EQ(program.errors(), "");
    }
}

TEST_F(Iedsim, iedsOfSeveralFilesListenSideBySide)
{
    Program program({device, DEMONSTRATION_FILE, "--port", "0"});
    const std::uint16_t first = program.port();
    const std::uint16_t second = program.port();
    EXPECT_NE(first, second);
    for (const std::uint16_t port : {first, second})
        EXPECT_TRUE(Caller(m_loop.executor(), port).isOpen());
}

TEST_F(Iedsim, severalIedsListenOnConsecutivePorts)
{
    for (int base = 23450; base < 23650; base += 10) {
        Program program({device, DEMONSTRATION_FILE, "--ied", "BAY1E1", "--ied", "BAY1", "--port",
                         std::to_string(base)});
        const std::string first = program.line();
        const std::string second = program.line();
        if (second.empty() || second == "Ended.")
            continue; // another program has one of the ports
        EXPECT_EQ(first, "BAY1E1 listens on 127.0.0.1 port " + std::to_string(base) + ".");
        EXPECT_EQ(second, "BAY1 listens on 127.0.0.1 port " + std::to_string(base + 1) + ".");
        return;
    }
    FAIL() << "no two ports were free";
}

TEST_F(Iedsim, blocksOfADeviceOfTheFirstEditionHaveNoOwner)
{
    const auto attributesOf = [this](const std::string &version) {
        const std::string path =
            file("bay" + version.substr(0, version.find('=')) + ".icd",
                 R"(<SCL xmlns="http://www.iec.ch/61850/2003/SCL" )" + version +
                     R"(><Header id="h"/><IED name="IED1"><AccessPoint name="S1"><Server>
<Authentication none="true"/><LDevice inst="LD"><LN0 lnClass="LLN0" inst="" lnType="L">
<ReportControl name="rcb" rptID="r" confRev="1" indexed="false"><TrgOps/><OptFields/>
<RptEnabled max="1"/></ReportControl></LN0></LDevice></Server></AccessPoint></IED>
<DataTypeTemplates><LNodeType id="L" lnClass="LLN0"/></DataTypeTemplates></SCL>)");
        Program program({path, "--port", "0"});
        Caller caller(m_loop.executor(), program.port());
        const auto names = caller.names(mms::ObjectClass::NamedVariable, "IED1LD");
        return std::ranges::count(names, "LLN0$RP$rcb$Owner");
    };
    EXPECT_EQ(attributesOf({}), 0);
    EXPECT_EQ(attributesOf(R"(version="2007" revision="B")"), 1);
}

TEST_F(Iedsim, theListTellsTheIedsOfAFile)
{
    Program program({"--list", device, fixtures + "report-instances.icd"});
    EXPECT_TRUE(program.line().starts_with("BAY1: 2 logical devices, 5 logical nodes, "));
    EXPECT_TRUE(program.line().starts_with("IED1: 1 logical devices"));
    EXPECT_EQ(program.line(), "");
    EXPECT_EQ(program.status(), 0);
}

TEST_F(Iedsim, mistakesOnTheCommandLineAreToldInOneLine)
{
    const std::vector<std::vector<std::string>> mistakes = {
        {},
        {device, "--nonsense"},
        {device, "--port", "70000"},
        {device, "--port", "-1"},
        {device, "--port", "abc"},
        {device, "--port"},
        {device, "--max-pdu", "64"},
        {device, "--max-associations", "0"},
        {device, "--max-half-open", "0"},
        {device, "--idle-limit", "-1"},
        {device, "--interval", "1", "--animate"},
        {device, "--interval", "100"},
        {device, "--all", "--ied", "BAY1"},
        {device, "--files-flat"},
        {device, "--odd", "nonsense"},
        {device, "--tls-pin", std::string(64, 'a')},
        {device, "--tls", "own.pem"},
        {device, "--tls", "own.pem,own.key"},
        {device, "--tls", ",,"},
        {device, "--password", "a", "--password-file", device},
        {device, "--password-file", "/nowhere/secret"},
    };
    for (const auto &arguments : mistakes)
        EXPECT_TRUE(complaintOf(arguments, 2).ends_with(". Try \"iedsim --help\"."));
}

TEST_F(Iedsim, whatCannotBeServedIsToldInOneLine)
{
    using Arguments = std::vector<std::string>;
    const auto complaint = [](Arguments arguments) { return complaintOf(arguments, 1); };
    EXPECT_EQ(complaint({"/nowhere/bay.icd"}),
              "The file \"/nowhere/bay.icd\" cannot be opened: No such file or directory.");
    EXPECT_EQ(complaint({SCL_FIXTURES}), "\"" SCL_FIXTURES "\" is a directory, not a file.");
    EXPECT_TRUE(complaint({fixtures + "not-well-formed.icd"})
                    .starts_with(fixtures + "not-well-formed.icd:"));
    EXPECT_FALSE(complaint({fixtures + "not-scl.xml"}).empty());
    EXPECT_EQ(complaint({device, "--ied", "BAY9"}),
              "no file describes an IED \"BAY9\"; --list tells which there are.");
    EXPECT_EQ(complaint({device, "--files", "/nowhere/records"}),
              "BAY1: The directory \"/nowhere/records\" cannot be served: No such file or "
              "directory.");
    EXPECT_EQ(complaint({device, "--faults", "/nowhere/script"}),
              "BAY1: The script of faults \"/nowhere/script\" cannot be read.");
    const std::string script = file("script", "delay 1s\nexplode\n");
    EXPECT_EQ(complaint({device, "--faults", script}),
              "BAY1: " + script + ": Line 2: \"explode\" is not a fault.");
    EXPECT_EQ(complaint({device, "--tls", "/nowhere/a,b,c"}),
              "BAY1: The file \"/nowhere/a\" with the own certificate cannot be opened: No such "
              "file or directory.");
    EXPECT_EQ(complaint({device, "--address", "300.1.2.3"}),
              "BAY1: \"300.1.2.3\" is not an address of a network interface.");
    EXPECT_EQ(complaint({device, "--port", "65535", "--ied", "BAY1", "--ied", "BAY1"}),
              "there are not enough ports behind 65535.");
}

TEST_F(Iedsim, aTakenPortIsTold)
{
    const wiretest::RawPeer other;
    const std::string port = std::to_string(other.port());
    EXPECT_EQ(complaintOf({device, "--port", port}, 1),
              "BAY1: Cannot listen on 127.0.0.1 port " + port + ": Address already in use.");
}

TEST_F(Iedsim, associationsAndFaultsAreTold)
{
    const std::string script = file("script", "refuse access-denied on identify nth 1\n");
    Program program({device, "--port", "0", "--faults", script});
    {
        Caller caller(m_loop.executor(), program.port());
        const mms::CallOutcome outcome = caller.call(mms::IdentifyRequest());
        const auto *error = std::get_if<mms::ServiceError>(&outcome);
        ASSERT_TRUE(error) << mms::failureText(outcome);
        EXPECT_EQ(error->errorClass, mms::ErrorClass::Access);
        EXPECT_TRUE(mms::answerOf<mms::IdentifyResponse>(caller.call(mms::IdentifyRequest())));
    }
    EXPECT_NE(program.lineWith("BAY1: association opened, 1 now"), "");
    EXPECT_NE(program.lineWith("BAY1: fault of line 1: refuse access-denied on identify nth 1"),
              "");
    EXPECT_NE(program.lineWith("BAY1: association closed, 0 left"), "");
}

TEST_F(Iedsim, aQuietProgramTellsOnlyWhereItListens)
{
    Program program({device, "--port", "0", "--quiet"});
    EXPECT_TRUE(Caller(m_loop.executor(), program.port()).isOpen());
    program.signal(SIGTERM);
    EXPECT_EQ(program.line(), "Ended.");
}

TEST_F(Iedsim, anAssociationBeyondTheLimitIsTurnedAwayAndTold)
{
    Program program({device, "--port", "0", "--max-associations", "1"});
    const std::uint16_t port = program.port();
    const Caller first(m_loop.executor(), port);
    EXPECT_TRUE(first.isOpen());
    EXPECT_FALSE(Caller(m_loop.executor(), port).isOpen());
    EXPECT_NE(program.lineWith("connection refused: There are 1 associations already"), "");
}

TEST_F(Iedsim, oneClientCannotTakeAllPlacesWithConnectionsThatAreNoAssociations)
{
    Program program({device, "--port", "0", "--max-half-open", "1"});
    const std::uint16_t port = program.port();
    wiretest::RawPeer silent;
    silent.connect(port);
    wiretest::RawPeer second;
    second.connect(port);
    EXPECT_TRUE(second.receive().empty());
    EXPECT_NE(program.lineWith("connection refused: The peer 127.0.0.1 has 1 connections"), "");
}

TEST_F(Iedsim, aClientThatSaysNothingForLongIsCutOff)
{
    Program program({device, "--port", "0", "--idle-limit", "1"});
    const Caller idle(m_loop.executor(), program.port());
    EXPECT_TRUE(idle.isOpen());
    EXPECT_NE(program.lineWith("association closed"), "");
}

TEST_F(Iedsim, whoDoesNotGiveThePasswordIsRefusedAndTold)
{
    Program program({device, "--port", "0", "--password-file", file("password", "secret\r\nmore")});
    const std::uint16_t port = program.port();
    EXPECT_FALSE(Caller(m_loop.executor(), port).isOpen());
    mms::AssociationOptions options;
    auto &authentication = options.link.stack.association.authentication.emplace();
    authentication.value = {'s', 'e', 'c', 'r', 'e', 't'};
    EXPECT_TRUE(Caller(m_loop.executor(), port, options).isOpen());
    EXPECT_NE(program.lineWith("connection refused: "), "");
}

TEST_F(Iedsim, filesOfADirectoryAreServed)
{
    const std::filesystem::path record = file("fault.txt", "it tripped");
    Program program({device, "--port", "0", "--files", record.parent_path().string()});
    Caller caller(m_loop.executor(), program.port());
    mms::FileOpenRequest open;
    open.name = {record.filename().string()};
    const auto opened = caller.answer<mms::FileOpenResponse>(open);
    const auto part = caller.answer<mms::FileReadResponse>(mms::FileReadRequest{opened.frsmId});
    EXPECT_EQ(std::string(part.data.begin(), part.data.end()), "it tripped");
}

TEST_F(Iedsim, withTlsOnlyACertificateOfATrustedAuthorityGetsIn)
{
    const auto authority = m_files.authority("Authority");
    const auto server = m_files.issue(authority, "IED");
    const auto client = m_files.issue(authority, "Client");
    Program program(
        {device, "--port", "0", "--tls",
         server.certificateFile + "," + server.keyFile + "," + authority.certificateFile});
    const std::uint16_t port = program.port();
    EXPECT_FALSE(Caller(m_loop.executor(), port).isOpen());
    mms::AssociationOptions options;
    options.link.tls = wiretest::TestCertificates::options(client, authority);
    EXPECT_TRUE(Caller(m_loop.executor(), port, options).isOpen());
}

TEST_F(Iedsim, measurementsMoveWhenAnimated)
{
    Program program({DEMONSTRATION_FILE, "--port", "0", "--animate", "--interval", "10"});
    Caller caller(m_loop.executor(), program.port());
    const std::string node = "BAY1E1MEAS";
    const std::string item = "MMXU1$MX$TotW$mag$f";
    const mms::Data first = read(caller, node, item);
    const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (read(caller, node, item) == first && !HasFailure())
        ASSERT_LT(std::chrono::steady_clock::now(), limit);
}

TEST_F(Iedsim, helpAndManualPageNameEveryOption)
{
    Program help({"--help"});
    const std::string text = help.output();
    EXPECT_EQ(help.status(), 0);
    Program manual({"--manual-page"});
    std::string page = manual.output();
    EXPECT_EQ(manual.status(), 0);
    EXPECT_TRUE(page.starts_with(".TH IEDSIM 1 "));
    std::erase(page, '\\');
    for (const char *option : {"--ied",
                               "--all",
                               "--list",
                               "--address",
                               "--port",
                               "--max-associations",
                               "--max-half-open",
                               "--idle-limit",
                               "--max-pdu",
                               "--password",
                               "--password-file",
                               "--tls",
                               "--tls-key-password-file",
                               "--tls-crl",
                               "--tls-pin",
                               "--animate",
                               "--seed",
                               "--interval",
                               "--no-events",
                               "--files",
                               "--files-read-only",
                               "--files-flat",
                               "--files-one-part",
                               "--files-keep",
                               "--faults",
                               "--help-faults",
                               "--odd",
                               "--help-odd",
                               "--quiet",
                               "--version"}) {
        EXPECT_NE(text.find(std::string(option)), std::string::npos) << option;
        EXPECT_NE(page.find(std::string(".B ") + option), std::string::npos) << option;
    }
}
