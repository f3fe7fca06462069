// SPDX-License-Identifier: Apache-2.0
#include "simulator/recordingclient.h"

#include "simulator/directoryfiles.h"

#include "mms/pdu.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <fstream>
#include <sstream>

namespace fs = std::filesystem;
using namespace mms;
using sim::DirectoryFiles;
using sim::FileOptions;

namespace {

using Outcome = std::variant<ResponseService, ServiceError>;

/// A client whose answers to the calls of the device are given by the test.
class FileClient : public simtest::RecordingClient
{
public:
    struct Call
    {
        RequestService request;
        Association::CallHandler handler;
    };

    void call(RequestService request, std::chrono::milliseconds,
              Association::CallHandler handler) override
    {
        calls.push_back({std::move(request), std::move(handler)});
    }

    /// Answers the call that waits longest, which must be of the type.
    template <typename Request>
    Request answer(CallOutcome outcome)
    {
        if (calls.empty() || !std::holds_alternative<Request>(calls.front().request)) {
            ADD_FAILURE() << "The device does not call this service.";
            return {};
        }
        Call call = std::move(calls.front());
        calls.pop_front();
        call.handler(std::move(outcome));
        return std::get<Request>(call.request);
    }

    std::deque<Call> calls;
};

Octets octetsOf(std::string_view text)
{
    return {text.begin(), text.end()};
}

class DirectoryFilesTest : public testing::Test
{
protected:
    DirectoryFilesTest()
    {
        const std::string pattern = (fs::temp_directory_path() / "tst_files.XXXXXX").string();
        std::vector<char> name(pattern.begin(), pattern.end());
        name.push_back('\0');
        m_outside = ::mkdtemp(name.data());
        m_root = m_outside / "served";
        fs::create_directories(m_root / "COMTRADE" / "old");
        put(m_root / "config.txt", "0123456789");
        put(m_root / "COMTRADE" / "a.cfg", "aa");
        put(m_root / "COMTRADE" / "old" / "b.cfg", "bbb");
        put(m_outside / "secret.txt", "secret");
    }
    ~DirectoryFilesTest() override { fs::remove_all(m_outside); }

    static void put(const fs::path &path, std::string_view text)
    {
        std::ofstream(path, std::ios::binary) << text;
    }
    static std::string contentOf(const fs::path &path)
    {
        std::ostringstream text;
        text << std::ifstream(path, std::ios::binary).rdbuf();
        return text.str();
    }

    DirectoryFiles &files()
    {
        if (!m_files) {
            m_options.directory = m_root;
            auto created = DirectoryFiles::create(m_options);
            EXPECT_TRUE(created.ok());
            m_files = *created;
        }
        return *m_files;
    }

    sim::FileService::Answer taking(std::optional<Outcome> &outcome)
    {
        return [&outcome](Outcome answer) {
            EXPECT_FALSE(outcome.has_value());
            outcome = std::move(answer);
        };
    }
    template <typename Request>
    Outcome ask(void (sim::FileService::*service)(sim::Peer &, const Request &,
                                                  sim::FileService::Answer),
                const Request &request, sim::Peer &client)
    {
        std::optional<Outcome> outcome;
        (files().*service)(client, request, taking(outcome));
        EXPECT_TRUE(outcome.has_value());
        return outcome.value_or(ServiceError{});
    }

    Outcome open(const FileName &name, std::uint32_t position = 0)
    {
        return ask(&sim::FileService::open, FileOpenRequest{name, position}, m_client);
    }
    Outcome remove(const FileName &name)
    {
        return ask(&sim::FileService::remove, FileDeleteRequest{name}, m_client);
    }
    Outcome rename(const FileName &from, const FileName &to)
    {
        return ask(&sim::FileService::rename, FileRenameRequest{from, to}, m_client);
    }
    std::optional<Outcome> &obtain(const FileName &destination)
    {
        m_obtained.reset();
        files().obtain(m_client, ObtainFileRequest{std::nullopt, {"local.bin"}, destination},
                       taking(m_obtained));
        return m_obtained;
    }

    static std::int32_t frsmIdOf(const Outcome &outcome)
    {
        const auto *service = std::get_if<ResponseService>(&outcome);
        const auto *opened = service ? std::get_if<FileOpenResponse>(service) : nullptr;
        EXPECT_NE(opened, nullptr);
        return opened ? opened->frsmId : -1;
    }
    static std::int32_t codeOf(const Outcome &outcome, ErrorClass errorClass = ErrorClass::File)
    {
        const auto *error = std::get_if<ServiceError>(&outcome);
        EXPECT_NE(error, nullptr);
        EXPECT_TRUE(!error || error->errorClass == errorClass);
        return error ? error->code : -1;
    }
    template <typename Response>
    static bool answers(const Outcome &outcome)
    {
        const auto *service = std::get_if<ResponseService>(&outcome);
        return service && std::holds_alternative<Response>(*service);
    }

    FileReadResponse read(std::int32_t frsmId)
    {
        const Outcome outcome = ask(&sim::FileService::read, FileReadRequest{frsmId}, m_client);
        EXPECT_TRUE(answers<FileReadResponse>(outcome));
        return answers<FileReadResponse>(outcome)
                   ? std::get<FileReadResponse>(std::get<ResponseService>(outcome))
                   : FileReadResponse{};
    }
    std::string wholeFile(const FileName &name)
    {
        const std::int32_t frsmId = frsmIdOf(open(name));
        std::string text;
        while (true) {
            const FileReadResponse block = read(frsmId);
            text.append(block.data.begin(), block.data.end());
            if (!block.moreFollows)
                break;
        }
        EXPECT_TRUE(answers<FileCloseResponse>(
            ask(&sim::FileService::close, FileCloseRequest{frsmId}, m_client)));
        return text;
    }

    FileDirectoryResponse page(const std::optional<FileName> &specification,
                               const std::optional<FileName> &after = {})
    {
        const Outcome outcome =
            ask(&sim::FileService::directory, FileDirectoryRequest{specification, after}, m_client);
        EXPECT_TRUE(answers<FileDirectoryResponse>(outcome));
        return answers<FileDirectoryResponse>(outcome)
                   ? std::get<FileDirectoryResponse>(std::get<ResponseService>(outcome))
                   : FileDirectoryResponse{};
    }
    std::vector<std::string> names(const std::optional<FileName> &specification)
    {
        std::vector<std::string> result;
        for (const DirectoryEntry &entry : page(specification).entries) {
            EXPECT_EQ(entry.name.size(), 1U);
            result.push_back(entry.name.front());
        }
        return result;
    }
    /// All names in the served directory, those that are not listed as well.
    std::vector<std::string> everything()
    {
        std::vector<std::string> result;
        for (const auto &entry : fs::recursive_directory_iterator(m_root))
            result.push_back(entry.path().lexically_relative(m_root).generic_string());
        std::ranges::sort(result);
        return result;
    }

    fs::path m_outside;
    fs::path m_root;
    FileOptions m_options;
    FileClient m_client;
    std::optional<Outcome> m_obtained;
    std::shared_ptr<DirectoryFiles> m_files;
};

using Names = std::vector<std::string>;

TEST_F(DirectoryFilesTest, aDirectoryThatDoesNotExistIsNotServed)
{
    m_options.directory = m_root / "missing";
    const auto missing = DirectoryFiles::create(m_options);
    ASSERT_FALSE(missing.ok());
    EXPECT_EQ(missing.error().message, "The directory \"" + (m_root / "missing").string() +
                                           "\" cannot be served: No such file or directory.");
    m_options.directory = m_root / "config.txt";
    const auto file = DirectoryFiles::create(m_options);
    ASSERT_FALSE(file.ok());
    EXPECT_EQ(file.error().message,
              "\"" + (m_root / "config.txt").string() + "\" is not a directory.");
}

TEST_F(DirectoryFilesTest, listsOneLevelWithCompleteNames)
{
    const Names root{"COMTRADE/", "config.txt"};
    EXPECT_EQ(names(std::nullopt), root);
    EXPECT_EQ(names(FileName{}), root);
    EXPECT_EQ(names(FileName{""}), root);
    EXPECT_EQ(names(FileName{"/"}), root);
    EXPECT_EQ(names(FileName{"\\"}), root);
    const Names comtrade{"COMTRADE/a.cfg", "COMTRADE/old/"};
    EXPECT_EQ(names(FileName{"COMTRADE"}), comtrade);
    EXPECT_EQ(names(FileName{"/COMTRADE/"}), comtrade);
    EXPECT_EQ(names(FileName{"\\COMTRADE\\"}), comtrade);
    EXPECT_EQ(names(FileName{"COMTRADE", "old"}), Names{"COMTRADE/old/b.cfg"});
    EXPECT_EQ(names(FileName{"config.txt"}), Names{"config.txt"});
}

TEST_F(DirectoryFilesTest, listsSizesAndTimesInUtc)
{
    using namespace std::chrono;
    const sys_time<milliseconds> stamp = sys_days(2021y / March / 4d) + 5h + 6min + 7s + 89ms;
    fs::last_write_time(m_root / "config.txt", fs::file_time_type::clock::from_sys(stamp));
    const FileDirectoryResponse root = page(std::nullopt);
    ASSERT_EQ(root.entries.size(), 2U);
    EXPECT_EQ(root.entries[0].attributes.size, 0U);
    EXPECT_EQ(root.entries[1].attributes.size, 10U);
    EXPECT_EQ(root.entries[1].attributes.lastModified, "20210304050607.089Z");
    EXPECT_FALSE(root.moreFollows);
}

TEST_F(DirectoryFilesTest, aFlatListingHasAllFilesBelowAndNoDirectories)
{
    m_options.flatListing = true;
    EXPECT_EQ(names(std::nullopt), (Names{"COMTRADE/a.cfg", "COMTRADE/old/b.cfg", "config.txt"}));
    EXPECT_EQ(names(FileName{"COMTRADE/old"}), Names{"COMTRADE/old/b.cfg"});
}

TEST_F(DirectoryFilesTest, longListingsComeInPagesThatFitThePduAndAreComplete)
{
    for (int i = 0; i < 300; ++i)
        put(m_root / "COMTRADE" / ("fault-" + std::to_string(1000 + i) + ".dat"), "x");
    m_client.longestPdu = 1000;
    Names all;
    std::optional<FileName> after;
    int pages = 0;
    bool moreFollows = true;
    while (moreFollows && pages < 1000) {
        const FileDirectoryResponse next = page(FileName{"COMTRADE"}, after);
        ASSERT_FALSE(next.entries.empty());
        EXPECT_LE(encode(ConfirmedResponsePdu{0xFFFFFFFF, next}).size(), 1000U);
        for (const DirectoryEntry &entry : next.entries)
            all.push_back(entry.name.front());
        after = next.entries.back().name;
        moreFollows = next.moreFollows;
        ++pages;
    }
    EXPECT_GT(pages, 10);
    EXPECT_EQ(all.size(), 302U);
    EXPECT_TRUE(std::ranges::is_sorted(all));
    EXPECT_EQ(std::ranges::adjacent_find(all), all.end());
}

TEST_F(DirectoryFilesTest, pagesGoOnBehindAFileThatVanishedAndBehindADirectory)
{
    EXPECT_EQ(page(std::nullopt, FileName{"COMTRADE/"}).entries.size(), 1U);
    EXPECT_EQ(page(std::nullopt, FileName{"COMTRADE"}).entries.size(), 1U);
    EXPECT_EQ(page(std::nullopt, FileName{"a-file-that-was"}).entries.size(), 1U);
    EXPECT_EQ(page(std::nullopt, FileName{"config.txt"}).entries.size(), 0U);
}

TEST_F(DirectoryFilesTest, readsFilesInBlocksThatFillThePdu)
{
    std::string content;
    for (int i = 0; i < 200000; ++i)
        content += static_cast<char>(i * 7 + i / 251);
    put(m_root / "big.bin", content);
    for (const std::size_t size : {1000U, 65000U, 100000U}) {
        m_client.longestPdu = size;
        const std::int32_t frsmId = frsmIdOf(open({"big.bin"}));
        const FileReadResponse block = read(frsmId);
        const std::size_t octets = encode(ConfirmedResponsePdu{0xFFFFFFFF, block}).size();
        EXPECT_LE(octets, size);
        EXPECT_GT(octets + 24, size);
        EXPECT_TRUE(block.moreFollows);
        EXPECT_TRUE(wholeFile({"big.bin"}) == content);
    }
}

TEST_F(DirectoryFilesTest, readsFromAPositionAndEmptyFiles)
{
    EXPECT_EQ(wholeFile({"/config.txt"}), "0123456789");
    const FileReadResponse rest = read(frsmIdOf(open({"config.txt"}, 7)));
    EXPECT_EQ(rest.data, octetsOf("789"));
    EXPECT_FALSE(rest.moreFollows);
    const FileReadResponse nothing = read(frsmIdOf(open({"config.txt"}, 10)));
    EXPECT_TRUE(nothing.data.empty());
    EXPECT_FALSE(nothing.moreFollows);
    EXPECT_EQ(codeOf(open({"config.txt"}, 11)), serviceerrors::filePositionInvalid);
    put(m_root / "empty", "");
    EXPECT_EQ(wholeFile({"empty"}), "");
}

TEST_F(DirectoryFilesTest, namesMayHaveSeveralPartsAndEitherSlash)
{
    for (const FileName &name :
         {FileName{"COMTRADE/old/b.cfg"}, FileName{"\\COMTRADE\\old\\b.cfg"},
          FileName{"COMTRADE", "old", "b.cfg"}, FileName{"COMTRADE/", "old/b.cfg"},
          FileName{"/./COMTRADE//old/b.cfg"}}) {
        EXPECT_EQ(wholeFile(name), "bbb");
    }
    EXPECT_EQ(codeOf(open({"comtrade/old/b.cfg"})), serviceerrors::fileNonExistent);
}

TEST_F(DirectoryFilesTest, peersWithOnePartNamesRefuseSeveral)
{
    m_options.onePartNames = true;
    EXPECT_EQ(codeOf(open({"COMTRADE", "a.cfg"})), serviceerrors::fileNameSyntaxError);
    EXPECT_EQ(wholeFile({"COMTRADE/a.cfg"}), "aa");
}

TEST_F(DirectoryFilesTest, nothingOutsideTheDirectoryCanBeReached)
{
    fs::create_symlink(m_outside / "secret.txt", m_root / "link.txt");
    fs::create_directory_symlink(m_outside, m_root / "out");
    fs::create_symlink(m_outside / "unborn.txt", m_root / "dangling.txt");
    fs::create_symlink("config.txt", m_root / "inner.txt");
    const FileName hostile[] = {{"../secret.txt"},
                                {"..", "secret.txt"},
                                {"..\\secret.txt"},
                                {"COMTRADE/../../secret.txt"},
                                {"link.txt"},
                                {"out/secret.txt"},
                                {"out"},
                                {"dangling.txt"},
                                {"/etc/passwd"},
                                {(m_outside / "secret.txt").string()},
                                {std::string("config.txt\0/../../secret.txt", 28)}};
    for (const FileName &name : hostile) {
        EXPECT_NE(codeOf(open(name)), -1) << name.front();
        EXPECT_NE(codeOf(remove(name)), -1) << name.front();
        EXPECT_NE(codeOf(rename(name, {"stolen.txt"})), -1) << name.front();
        EXPECT_TRUE(std::holds_alternative<ServiceError>(
            ask(&sim::FileService::directory, FileDirectoryRequest{name, {}}, m_client)))
            << name.front();
    }
    for (const FileName &name : {FileName{"../new.txt"}, FileName{"out/new.txt"}}) {
        EXPECT_NE(codeOf(rename({"config.txt"}, name)), -1);
        EXPECT_NE(codeOf(obtain(name).value()), -1);
    }
    EXPECT_EQ(names(std::nullopt), (Names{"COMTRADE/", "config.txt", "inner.txt"}));
    EXPECT_EQ(wholeFile({"inner.txt"}), "0123456789");
    EXPECT_EQ(contentOf(m_outside / "secret.txt"), "secret");
    EXPECT_FALSE(fs::exists(m_outside / "new.txt"));
    EXPECT_FALSE(fs::exists(m_outside / "unborn.txt"));
}

TEST_F(DirectoryFilesTest, fiveFilesMayBeOpenAtATimeForEachClient)
{
    std::int32_t last = 0;
    for (int i = 0; i < 5; ++i)
        last = frsmIdOf(open({"config.txt"}));
    EXPECT_EQ(codeOf(open({"config.txt"}), ErrorClass::Resource),
              serviceerrors::resourceCapabilityUnavailable);
    FileClient other;
    EXPECT_TRUE(answers<FileOpenResponse>(
        ask(&sim::FileService::open, FileOpenRequest{{"config.txt"}, 0}, other)));
    EXPECT_TRUE(answers<FileCloseResponse>(
        ask(&sim::FileService::close, FileCloseRequest{last}, m_client)));
    EXPECT_TRUE(answers<FileOpenResponse>(open({"config.txt"})));
    files().closed(m_client);
    EXPECT_TRUE(answers<FileOpenResponse>(open({"config.txt"})));
}

TEST_F(DirectoryFilesTest, openFilesBelongToTheirClient)
{
    const std::int32_t frsmId = frsmIdOf(open({"config.txt"}));
    FileClient other;
    EXPECT_EQ(codeOf(ask(&sim::FileService::read, FileReadRequest{frsmId}, other)), 0);
    EXPECT_EQ(codeOf(ask(&sim::FileService::close, FileCloseRequest{frsmId}, other)), 0);
    EXPECT_EQ(codeOf(ask(&sim::FileService::read, FileReadRequest{frsmId + 1}, m_client)), 0);
    EXPECT_EQ(read(frsmId).data.size(), 10U);
}

TEST_F(DirectoryFilesTest, aFileThatBecomesShorterEndsEarlier)
{
    put(m_root / "log.txt", std::string(3000, 'x'));
    m_client.longestPdu = 1000;
    const std::int32_t frsmId = frsmIdOf(open({"log.txt"}));
    EXPECT_TRUE(read(frsmId).moreFollows);
    fs::resize_file(m_root / "log.txt", 1000);
    EXPECT_FALSE(read(frsmId).moreFollows);
}

TEST_F(DirectoryFilesTest, deletesFilesButNoDirectoriesAndNoneThatAreInUse)
{
    EXPECT_EQ(codeOf(remove({"missing"})), serviceerrors::fileNonExistent);
    EXPECT_EQ(codeOf(remove({"COMTRADE"})), serviceerrors::fileAccessDenied);
    EXPECT_EQ(codeOf(remove({"/"})), serviceerrors::fileAccessDenied);
    const std::int32_t frsmId = frsmIdOf(open({"config.txt"}));
    EXPECT_EQ(codeOf(remove({"config.txt"})), serviceerrors::fileBusy);
    ask(&sim::FileService::close, FileCloseRequest{frsmId}, m_client);
    EXPECT_TRUE(answers<FileDeleteResponse>(remove({"config.txt"})));
    EXPECT_FALSE(fs::exists(m_root / "config.txt"));
}

TEST_F(DirectoryFilesTest, renamesToNamesThatAreFree)
{
    EXPECT_TRUE(answers<FileRenameResponse>(rename({"config.txt"}, {"COMTRADE\\new.txt"})));
    EXPECT_EQ(contentOf(m_root / "COMTRADE" / "new.txt"), "0123456789");
    EXPECT_EQ(codeOf(rename({"config.txt"}, {"x"})), serviceerrors::fileNonExistent);
    EXPECT_EQ(codeOf(rename({"COMTRADE/new.txt"}, {"COMTRADE/a.cfg"})),
              serviceerrors::fileDuplicateName);
    EXPECT_EQ(codeOf(rename({"COMTRADE/new.txt"}, {"missing/new.txt"})),
              serviceerrors::fileNonExistent);
    EXPECT_EQ(codeOf(rename({"/"}, {"x"})), serviceerrors::fileNonExistent);
}

TEST_F(DirectoryFilesTest, aReadOnlyDirectoryCanBeReadOnly)
{
    m_options.readOnly = true;
    EXPECT_EQ(wholeFile({"config.txt"}), "0123456789");
    EXPECT_EQ(codeOf(remove({"config.txt"})), serviceerrors::fileAccessDenied);
    EXPECT_EQ(codeOf(rename({"config.txt"}, {"x"})), serviceerrors::fileAccessDenied);
    EXPECT_EQ(codeOf(obtain({"x"}).value()), serviceerrors::fileAccessDenied);
}

TEST_F(DirectoryFilesTest, fetchesAFileFromTheClient)
{
    const auto &result = obtain({"/COMTRADE/new.bin"});
    EXPECT_EQ(m_client.answer<FileOpenRequest>(ResponseService(FileOpenResponse{17, {6, {}}})),
              (FileOpenRequest{{"local.bin"}, 0}));
    EXPECT_EQ(
        m_client.answer<FileReadRequest>(ResponseService(FileReadResponse{octetsOf("abc"), true}))
            .frsmId,
        17);
    EXPECT_FALSE(fs::exists(m_root / "COMTRADE" / "new.bin"));
    EXPECT_EQ(names(FileName{"COMTRADE"}), (Names{"COMTRADE/a.cfg", "COMTRADE/old/"}));
    EXPECT_EQ(names(std::nullopt), (Names{"COMTRADE/", "config.txt"}));
    m_client.answer<FileReadRequest>(ResponseService(FileReadResponse{octetsOf("def"), false}));
    EXPECT_FALSE(result.has_value());
    m_client.answer<FileCloseRequest>(ResponseService(FileCloseResponse()));
    ASSERT_TRUE(result.has_value());
    EXPECT_TRUE(answers<ObtainFileResponse>(*result));
    EXPECT_EQ(contentOf(m_root / "COMTRADE" / "new.bin"), "abcdef");
    EXPECT_TRUE(m_client.calls.empty());
}

TEST_F(DirectoryFilesTest, aFetchedFileReplacesTheOldOneOnlyWhenItIsComplete)
{
    const auto &result = obtain({"config.txt"});
    m_client.answer<FileOpenRequest>(ResponseService(FileOpenResponse{1, {}}));
    m_client.answer<FileReadRequest>(ResponseService(FileReadResponse{octetsOf("new"), true}));
    EXPECT_EQ(contentOf(m_root / "config.txt"), "0123456789");
    EXPECT_EQ(codeOf(remove({"config.txt"})), serviceerrors::fileBusy);
    m_client.answer<FileReadRequest>(ResponseService(FileReadResponse{{}, false}));
    EXPECT_EQ(contentOf(m_root / "config.txt"), "new");
    m_client.answer<FileCloseRequest>(CallFailure{
        CallFailure::Kind::TimedOut, mms::verbatim("The peer did not answer in time.")});
    ASSERT_TRUE(result.has_value());
    EXPECT_TRUE(answers<ObtainFileResponse>(*result));
}

TEST_F(DirectoryFilesTest, aFetchThatFailsLeavesNoHalfFile)
{
    const Names before = everything();
    m_options.maxFileSize = 100;
    const auto beginFetch = [this] {
        auto &result = obtain({"new.bin"});
        m_client.answer<FileOpenRequest>(ResponseService(FileOpenResponse{1, {}}));
        m_client.answer<FileReadRequest>(ResponseService(FileReadResponse{octetsOf("half"), true}));
        return &result;
    };
    const auto *result = beginFetch();
    m_client.answer<FileReadRequest>(
        ServiceError{ErrorClass::File, serviceerrors::fileAccessDenied, {}, {}, {}});
    m_client.answer<FileCloseRequest>(ResponseService(FileCloseResponse()));
    EXPECT_EQ(codeOf(result->value()), serviceerrors::fileAccessDenied);
    EXPECT_EQ(everything(), before);

    result = beginFetch();
    m_client.answer<FileReadRequest>(ResponseService(FileReadResponse{Octets(200, 'x'), false}));
    m_client.answer<FileCloseRequest>(ResponseService(FileCloseResponse()));
    EXPECT_EQ(codeOf(result->value()), serviceerrors::fileInsufficientSpace);
    EXPECT_EQ(everything(), before);

    result = beginFetch();
    m_client.answer<FileReadRequest>(ResponseService(FileReadResponse{{}, true}));
    m_client.answer<FileCloseRequest>(ResponseService(FileCloseResponse()));
    EXPECT_EQ(codeOf(result->value()), 0);
    EXPECT_EQ(everything(), before);

    beginFetch();
    files().closed(m_client);
    EXPECT_EQ(everything(), before);
    m_client.answer<FileReadRequest>(
        CallFailure{CallFailure::Kind::Lost, mms::verbatim("The association ended.")});
    EXPECT_FALSE(m_obtained.has_value());

    beginFetch();
    m_files.reset();
    EXPECT_EQ(everything(), before);
    m_client.answer<FileReadRequest>(ResponseService(FileReadResponse{octetsOf("x"), false}));
    EXPECT_FALSE(m_obtained.has_value());
    EXPECT_EQ(everything(), before);
}

TEST_F(DirectoryFilesTest, aClientThatRefusesToOpenEndsTheFetch)
{
    const auto &result = obtain({"new.bin"});
    m_client.answer<FileOpenRequest>(
        ServiceError{ErrorClass::File, serviceerrors::fileNonExistent, {}, {}, {}});
    EXPECT_EQ(codeOf(result.value()), serviceerrors::fileNonExistent);
    EXPECT_FALSE(fs::exists(m_root / "new.bin"));
}

TEST_F(DirectoryFilesTest, fetchesThatCannotSucceedAreRefusedAtOnce)
{
    m_options.keepExisting = true;
    EXPECT_EQ(codeOf(obtain({"config.txt"}).value()), serviceerrors::fileDuplicateName);
    EXPECT_EQ(codeOf(obtain({"COMTRADE"}).value()), serviceerrors::fileAccessDenied);
    EXPECT_EQ(codeOf(obtain({"missing/x"}).value()), serviceerrors::fileNonExistent);
    EXPECT_EQ(codeOf(obtain({".upload-x"}).value()), serviceerrors::fileNameSyntaxError);
    const Outcome foreign = ask(&sim::FileService::obtain,
                                ObtainFileRequest{ApplicationReference{}, {"a"}, {"b"}}, m_client);
    EXPECT_EQ(codeOf(foreign, ErrorClass::Access), serviceerrors::accessUnsupported);
    EXPECT_TRUE(m_client.calls.empty());
    std::optional<Outcome> first;
    files().obtain(m_client, ObtainFileRequest{std::nullopt, {"a"}, {"b"}}, taking(first));
    EXPECT_EQ(codeOf(obtain({"b"}).value()), serviceerrors::fileBusy);
    EXPECT_FALSE(first.has_value());
}

} // namespace
