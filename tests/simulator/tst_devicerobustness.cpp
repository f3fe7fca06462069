// SPDX-License-Identifier: Apache-2.0
#include "mms/samples.h"
#include "mms/shorthand.h"
#include "simulator/controlledbay.h"
#include "simulator/devicetest.h"

#include "acsi/report.h"
#include "simulator/directoryfiles.h"

#include <atomic>
#include <filesystem>
#include <fstream>
#include <random>

using namespace std::chrono_literals;
using simtest::Caller;

namespace {

constexpr int requests = 6000;
const std::string domain = "IED1LD";

/// Requests that a device may meet: sound ones, ones for what does not exist, and broken ones.
class Requests
{
public:
    Requests(std::uint32_t seed, std::vector<std::string> names)
        : m_generator(seed)
        , m_names(std::move(names))
    {
    }

    mms::RequestService next()
    {
        mms::RequestService request = sound();
        if (below(3) != 0)
            return request;
        mms::Octets octets = mms::encode(mms::ConfirmedRequestPdu{1, request});
        for (std::size_t changes = 1 + below(3); changes > 0; --changes)
            octets[below(octets.size())] = static_cast<std::uint8_t>(below(256));
        const auto changed = mms::decodePdu(octets);
        const auto *pdu = changed ? std::get_if<mms::ConfirmedRequestPdu>(&*changed) : nullptr;
        return pdu ? pdu->request : request;
    }

private:
    std::size_t below(std::size_t limit)
    {
        return std::uniform_int_distribution<std::size_t>(0, limit - 1)(m_generator);
    }

    mms::RequestService sound()
    {
        switch (below(12)) {
        case 0:
        case 1:
            return mms::ReadRequest{below(4) == 0, variables()};
        case 2:
        case 3:
        case 4: {
            mms::WriteRequest request{variables(), {}};
            const auto *list = std::get_if<std::vector<mms::VariableAccess>>(&request.variables);
            for (std::size_t i = list ? list->size() : 3; i > 0; --i)
                request.values.push_back(value(3));
            return request;
        }
        case 5:
            return mms::GetVariableAccessAttributesRequest{variable()};
        case 6: {
            mms::DefineNamedVariableListRequest request{listName(), {}};
            for (std::size_t i = below(6); i > 0; --i)
                request.members.push_back(access());
            return request;
        }
        case 7:
            return mms::GetNamedVariableListAttributesRequest{listName()};
        case 8:
            return mms::DeleteNamedVariableListRequest{
                static_cast<std::int32_t>(below(4)), {listName()}, std::nullopt};
        case 9: {
            mms::GetNameListRequest request{static_cast<mms::ObjectClass>(below(12)),
                                            static_cast<mms::Scope>(below(3)),
                                            domain,
                                            {}};
            if (below(2) == 0)
                request.continueAfter = m_names[below(m_names.size())];
            return request;
        }
        case 10:
            return file();
        default: {
            const auto &sample = wiretest::samples()[below(wiretest::samples().size())].pdu;
            const auto *pdu = std::get_if<mms::ConfirmedRequestPdu>(&sample);
            return pdu ? pdu->request : mms::RequestService(mms::StatusRequest());
        }
        }
    }

    mms::RequestService file()
    {
        const auto name = [this] {
            const std::vector<mms::FileName> names{
                {"record.txt"}, {"\\record.txt"}, {"sub", "x"}, {"../record.txt"}, {""}, {}};
            return names[below(names.size())];
        };
        const auto id = static_cast<std::int32_t>(below(8));
        switch (below(7)) {
        case 0:
            return mms::FileOpenRequest{name(), static_cast<std::uint32_t>(below(100))};
        case 1:
            return mms::FileReadRequest{id};
        case 2:
            return mms::FileCloseRequest{id};
        case 3:
            return mms::FileDeleteRequest{name()};
        case 4:
            return mms::FileRenameRequest{name(), name()};
        case 5:
            return mms::ObtainFileRequest{std::nullopt, name(), name()};
        default:
            return mms::FileDirectoryRequest{name(), std::nullopt};
        }
    }

    mms::ObjectName variable()
    {
        std::string item = m_names[below(m_names.size())];
        if (below(8) == 0)
            item.resize(below(item.size() + 1));
        return below(20) == 0 ? mms::ObjectName::ofVmd(item)
                              : mms::ObjectName::inDomain(domain, item);
    }

    mms::ObjectName listName()
    {
        const std::string item = "LLN0$List" + std::to_string(below(4));
        switch (below(4)) {
        case 0:
            return mms::ObjectName::inDomain(domain, "LLN0$Positions");
        case 1:
            return mms::ObjectName::ofAssociation(item);
        default:
            return mms::ObjectName::inDomain(domain, item);
        }
    }

    mms::VariableAccess access()
    {
        mms::VariableAccess access{variable(), {}};
        if (below(8) == 0)
            access.parts.push_back(mms::AlternateAccess::ofComponent(
                "stVal", {mms::AlternateAccess::ofElements(static_cast<std::uint32_t>(below(4)),
                                                           static_cast<std::uint32_t>(below(4)))}));
        return access;
    }

    mms::VariableAccessSpecification variables()
    {
        if (below(8) == 0)
            return listName();
        std::vector<mms::VariableAccess> list;
        for (std::size_t i = 1 + below(3); i > 0; --i)
            list.push_back(access());
        return list;
    }

    mms::Data value(std::size_t depth)
    {
        switch (below(depth > 0 ? 10 : 8)) {
        case 0:
            return mms::Data::boolean(true);
        case 1:
            return mms::Data::boolean(false);
        case 2:
            return mms::Data::integer(static_cast<std::int64_t>(below(7)) - 1);
        case 3:
            return mms::Data::unsignedInteger(below(100));
        case 4:
            return mms::Data::float32(static_cast<float>(below(100)));
        case 5:
            return mms::Data::bitString(mms::BitString(below(14)));
        case 6:
            return mms::Data::visibleString(mms::toText(listName()));
        case 7:
            return mms::Data::octetString(std::vector<std::uint8_t>(below(10), 1));
        case 8:
            return command();
        default: {
            std::vector<mms::Data> members(below(4));
            for (mms::Data &member : members)
                member = value(depth - 1);
            return mms::Data::structure(std::move(members));
        }
        }
    }

    /// As the objects of the bay want it.
    mms::Data command()
    {
        return mms::Data::structure(
            {mms::Data::boolean(below(2) == 0),
             mms::Data::structure({mms::Data::integer(static_cast<std::int64_t>(below(4))),
                                   mms::Data::octetString(std::vector<std::uint8_t>{1})}),
             mms::Data::unsignedInteger(below(256)), mms::Data::utcTime({}),
             mms::Data::boolean(below(4) == 0), mms::Data::bitString(mms::BitString(2))});
    }

    std::mt19937 m_generator;
    std::vector<std::string> m_names;
};

/// Whether a value has the form of its type.
bool fits(const mms::Data &data, const mms::TypeDescription &type)
{
    using Kind = mms::TypeDescription::Kind;
    if (type.kind == Kind::Structure) {
        if (data.kind() != mms::Data::Kind::Structure || data.size() != type.components.size())
            return false;
        for (std::size_t i = 0; i < data.size(); ++i) {
            if (!fits(data.children()[i], type.components[i].type))
                return false;
        }
        return true;
    }
    return data.kind() != mms::Data::Kind::Structure && data.kind() != mms::Data::Kind::Array;
}

class DeviceRobustness : public testing::Test
{
protected:
    ~DeviceRobustness() override { std::filesystem::remove_all(m_directory); }

    sim::DeviceOptions options()
    {
        sim::DeviceOptions options = simtest::localOptions();
        std::filesystem::create_directories(m_directory);
        std::ofstream(m_directory / "record.txt") << "A record of a fault.";
        sim::FileOptions files;
        files.directory = m_directory;
        const auto service = sim::DirectoryFiles::create(files);
        EXPECT_TRUE(service.ok());
        if (service)
            options.files = *service;
        return options;
    }

    mms::Association::Handlers handlers()
    {
        mms::Association::Handlers handlers;
        handlers.report = [this](mms::InformationReport report) {
            if (acsi::isReport(report) && !acsi::decodeReport(std::move(report)))
                ++m_brokenReports;
        };
        return handlers;
    }

    std::filesystem::path m_directory =
        std::filesystem::temp_directory_path() /
        ("devicerobustness-" + std::to_string(std::random_device{}()));
    std::atomic<int> m_brokenReports{0};
    wiretest::Loop m_loop;
    simtest::DescribedIed m_ied = simtest::controlledBay();
    simtest::RunningDevice m_running{m_loop.executor(), *m_ied, options()};
};

} // namespace

TEST_F(DeviceRobustness, everyRequestIsAnsweredAndTheModelStaysWhole)
{
    for (std::uint32_t seed = 1; seed <= 3; ++seed) {
        Caller first(m_loop.executor(), m_running.port, {}, handlers());
        Caller second(m_loop.executor(), m_running.port, {}, handlers());
        Requests generator(seed, first.names(mms::ObjectClass::NamedVariable, domain));
        for (int i = 0; i < requests / 3; ++i) {
            const mms::RequestService request = generator.next();
            const mms::CallOutcome outcome = (i % 3 == 0 ? second : first).call(request);
            const auto *failure = std::get_if<mms::CallFailure>(&outcome);
            ASSERT_TRUE(!failure || failure->kind == mms::CallFailure::Kind::TooLarge)
                << failure->message << "\n"
                << mms::toText(mms::ConfirmedRequestPdu{1, request});
        }
    }
    EXPECT_EQ(m_brokenReports, 0);

    Caller caller(m_loop.executor(), m_running.port);
    for (const std::string &name : caller.names(mms::ObjectClass::NamedVariable, domain)) {
        if (name.find('$') != std::string::npos)
            continue;
        const auto type = caller.answer<mms::GetVariableAccessAttributesResponse>(
            mms::GetVariableAccessAttributesRequest{mms::ObjectName::inDomain(domain, name)});
        const auto values = caller.answer<mms::ReadResponse>(
            mms::ReadRequest{false, wiretest::variablesOf(domain, {name})});
        ASSERT_EQ(values.results.size(), 1U);
        ASSERT_TRUE(values.results[0].ok()) << name;
        EXPECT_TRUE(fits(values.results[0].data(), type.type)) << name;
    }
}
