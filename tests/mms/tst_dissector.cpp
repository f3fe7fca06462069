// SPDX-License-Identifier: Apache-2.0
// What tshark makes of captures of every PDU. Skipped where it is not installed.
#include "mms/samples.h"
#include "osi/pcapng.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <regex>
#include <set>
#include <sstream>

using namespace mms;
using wiretest::Sample;
using wiretest::samples;

namespace {

std::string outputOf(const std::string &command)
{
    std::string output;
    const std::unique_ptr<FILE, int (*)(FILE *)> pipe(popen(command.c_str(), "r"), pclose);
    std::array<char, 4096> buffer{};
    while (pipe) {
        const std::size_t count = std::fread(buffer.data(), 1, buffer.size(), pipe.get());
        if (count == 0)
            break;
        output.append(buffer.data(), count);
    }
    return output;
}

/// All samples in a capture, dissected: one text for each, in their order; empty without tshark.
class Dissector : public testing::Test
{
protected:
    void SetUp() override
    {
        if (outputOf("tshark --version 2>/dev/null").empty())
            GTEST_SKIP() << "tshark is not installed, so no other program can look at the PDUs.";
        std::string folder = (std::filesystem::temp_directory_path() / "dissector-XXXXXX").string();
        ASSERT_NE(mkdtemp(folder.data()), nullptr);
        const std::string capture = folder + "/capture.pcapng";
        Octets octets = osi::pcapng::fileHeader();
        for (const Sample &sample : samples()) {
            const Octets packet = osi::pcapng::packet(
                osi::Direction::Sent, std::chrono::system_clock::time_point(), encode(sample.pdu));
            octets.insert(octets.end(), packet.begin(), packet.end());
        }
        std::ofstream(capture, std::ios::binary)
            .write(reinterpret_cast<const char *>(octets.data()),
                   static_cast<std::streamsize>(octets.size()));
        std::istringstream lines(outputOf("tshark -V -r " + capture + " 2>/dev/null"));
        for (std::string line; std::getline(lines, line);) {
            if (line.starts_with("Frame "))
                m_texts.emplace_back();
            if (!m_texts.empty())
                m_texts.back() += line + '\n';
        }
        std::filesystem::remove_all(folder);
        ASSERT_EQ(m_texts.size(), samples().size());
    }

    std::vector<std::string> m_texts;
};

/// The first group of the first match; empty without a match.
std::string found(const std::string &text, const char *pattern)
{
    std::smatch match;
    return std::regex_search(text, match, std::regex(pattern)) ? match[1].str() : std::string();
}

} // namespace

TEST_F(Dissector, noPduIsMalformed)
{
    for (std::size_t i = 0; i < m_texts.size(); ++i) {
        for (const char *mark : {"[Malformed", "BER Error", "Expert Info", "Unknown"}) {
            EXPECT_EQ(m_texts[i].find(mark), std::string::npos)
                << samples()[i].name << ": " << m_texts[i];
        }
        EXPECT_NE(m_texts[i].find("\nMMS\n"), std::string::npos) << m_texts[i];
    }
}

TEST_F(Dissector, everyPduAndServiceHasTheNameThatTheTraceGivesIt)
{
    std::set<std::string> services;
    for (std::size_t i = 0; i < m_texts.size(); ++i) {
        std::istringstream words(toText(samples()[i].pdu));
        std::string name;
        std::string invokeId;
        std::string service;
        words >> name >> invokeId >> service;
        EXPECT_EQ(found(m_texts[i], R"(\nMMS\n    ([^\s:]+))"), name) << samples()[i].name;
        const bool isRequest = name == "confirmed-RequestPDU";
        if (!isRequest && name != "confirmed-ResponsePDU")
            continue;
        EXPECT_EQ(found(m_texts[i], R"(invokeID: (\d+))"), invokeId) << samples()[i].name;
        // What is not read further has a number in the trace.
        if (service == "service")
            continue;
        EXPECT_EQ(found(m_texts[i], isRequest ? R"(confirmedServiceRequest: (\S+) \()"
                                              : R"(confirmedServiceResponse: (\S+) \()"),
                  service)
            << samples()[i].name;
        services.insert(service);
    }
    EXPECT_EQ(services.size(), std::variant_size_v<RequestService> - 1);
}
