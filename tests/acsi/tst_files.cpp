// SPDX-License-Identifier: Apache-2.0
#include "acsi/files.h"

#include "acsi/filepeer.h"

#include <future>

namespace {

using namespace acsi;
using namespace std::chrono_literals;
using Octets = acsitest::FilePeer::Octets;
using Names = std::vector<std::string>;

Octets content(std::size_t size, std::uint8_t seed = 1)
{
    Octets octets(size);
    for (std::size_t i = 0; i < size; ++i)
        octets[i] = static_cast<std::uint8_t>(i * 31U + i / 251U + seed);
    return octets;
}

class FilesTest : public acsitest::DeviceTest
{
protected:
    void start()
    {
        peer.join(*device);
        connect();
    }

    Names list(const std::string &directory)
    {
        const auto entries = run(listDirectory(client, directory));
        Names names;
        if (!entries)
            return {"error: " + entries.error().message.english()};
        for (const FileEntry &entry : *entries)
            names.push_back(entry.name);
        return names;
    }

    mms::Result<std::uint64_t> fetch(const std::string &name)
    {
        received.clear();
        return run(download(
            client, name,
            [this](std::span<const std::uint8_t> block) {
                received.insert(received.end(), block.begin(), block.end());
                return received.size() < stopAfter;
            },
            [this](std::uint32_t size) { announced = size; },
            [this](const mms::Text &reason) { notClosed = reason; }));
    }

    mms::Result<void> offer(const std::string &name, const Octets &octets)
    {
        FileSource source;
        source.size = static_cast<std::uint32_t>(octets.size());
        source.read = [&octets](std::uint64_t position,
                                std::span<std::uint8_t> block) -> mms::Result<std::size_t> {
            const auto first = octets.begin() + static_cast<std::ptrdiff_t>(position);
            std::copy_n(first, block.size(), block.begin());
            return block.size();
        };
        return run(upload(client, name, source));
    }

    Names namesOfPeer() const
    {
        Names names;
        for (const auto &[name, octets] : peer.files)
            names.push_back(name);
        return names;
    }

    acsitest::FilePeer peer;
    Octets received;
    std::size_t stopAfter = SIZE_MAX;
    std::uint32_t announced = 0;
    mms::Text notClosed;
    mms::Text otherFile;
};

} // namespace

TEST_F(FilesTest, aDirectoryIsListedPageByPage)
{
    for (int i = 0; i < 25; ++i)
        peer.files["f" + std::to_string(100 + i)] = content(3);
    peer.habits.pageSize = 10;
    start();
    const Names names = list("");
    ASSERT_EQ(names.size(), 25U);
    EXPECT_EQ(names.front(), "f100");
    EXPECT_EQ(names.back(), "f124");
    EXPECT_EQ(device->requestsOf<mms::FileDirectoryRequest>().size(), 3U);
}

TEST_F(FilesTest, aDirectoryIsListedWhateverThePeerCallsIt)
{
    peer.files = {{"a.txt", content(1)}, {"sub/b.txt", content(2)}, {"sub/deep/c", content(3)}};
    start();
    for (const char *name : {"sub/", "sub", "/sub/", "sub\\", "\\sub"}) {
        for (const bool flat : {false, true}) {
            for (const bool relative : {false, true}) {
                peer.habits.directoryNames = {{"sub", name}};
                peer.habits.flatListing = flat;
                peer.habits.relativeListing = relative;
                peer.habits.backslashes = flat;
                EXPECT_EQ(list(""), (Names{"a.txt", "sub/"})) << name << flat << relative;
                EXPECT_EQ(list("sub"), (Names{"b.txt", "deep/"})) << name << flat << relative;
            }
        }
    }
}

TEST_F(FilesTest, aDirectoryThatIsNotThereIsAnError)
{
    peer.files = {{"a.txt", content(1)}};
    start();
    EXPECT_EQ(list("nowhere").front().substr(0, 7), "error: ");
}

TEST_F(FilesTest, anEmptyDirectoryIsEmpty)
{
    start();
    EXPECT_EQ(list(""), Names{});
}

TEST_F(FilesTest, aPeerThatListsWithoutAnEndIsLeft)
{
    peer.files = {{"a", content(1)}};
    peer.habits.endlessListing = true;
    start();
    EXPECT_EQ(list(""), (Names{"error: The device lists its files without an end."}));
}

TEST_F(FilesTest, aDownloadGivesTheOctetsInOrderAndTheSizeFirst)
{
    peer.files["f"] = content(12345);
    start();
    const auto size = fetch("f");
    ASSERT_TRUE(size.ok()) << size.error().message;
    EXPECT_EQ(*size, 12345U);
    EXPECT_EQ(announced, 12345U);
    EXPECT_EQ(received, content(12345));
    EXPECT_EQ(peer.openFiles, 0U);
    EXPECT_EQ(peer.mostReadsOnTheWay, 1U);
}

TEST_F(FilesTest, aDownloadWithSeveralBlocksOnTheWayGivesTheSame)
{
    peer.files["f"] = content(123456);
    clientOptions.outstandingFileReads = 5;
    start();
    ASSERT_TRUE(fetch("f").ok());
    EXPECT_EQ(received, content(123456));
    EXPECT_EQ(peer.openFiles, 0U);
    EXPECT_GT(peer.mostReadsOnTheWay, 1U);
    EXPECT_LE(device->requestsOf<mms::FileReadRequest>().size(), 124U + 4U);
}

TEST_F(FilesTest, filesOfAnySizeComeWhole)
{
    start();
    for (const std::size_t size : {0, 1, 999, 1000, 1001, 2000, 5000}) {
        peer.files["f"] = content(size);
        ASSERT_TRUE(fetch("f").ok()) << size;
        EXPECT_EQ(received, content(size));
    }
}

TEST_F(FilesTest, aFileIsFoundWithAndWithoutASlashInFront)
{
    peer.files["f"] = content(10);
    peer.files["d/g"] = content(11);
    start();
    for (const char *prefix : {"", "/"}) {
        peer.habits.prefix = prefix;
        EXPECT_TRUE(fetch("f").ok()) << prefix;
        EXPECT_TRUE(fetch("/f").ok()) << prefix;
        EXPECT_TRUE(fetch("d/g").ok()) << prefix;
    }
    peer.habits.prefix = "\\";
    peer.habits.backslashes = true;
    EXPECT_TRUE(fetch("d/g").ok());
    EXPECT_EQ(received, content(11));
}

TEST_F(FilesTest, aFileThatIsNotThereIsNamed)
{
    start();
    const auto size = fetch("nothing.txt");
    ASSERT_FALSE(size.ok());
    EXPECT_EQ(size.error().message.english().find("nothing.txt: "), 0U);
}

TEST_F(FilesTest, aFileIsClosedWhenReadingItFails)
{
    peer.files["f"] = content(10000);
    peer.habits.readableBlocks = 3;
    clientOptions.outstandingFileReads = 4;
    start();
    const auto size = fetch("f");
    ASSERT_FALSE(size.ok());
    EXPECT_EQ(size.error().message.english().find("f: "), 0U);
    EXPECT_EQ(received.size(), 3000U);
    EXPECT_EQ(peer.openFiles, 0U);
}

TEST_F(FilesTest, aFileIsClosedWhenTheReceiverHasEnough)
{
    peer.files["f"] = content(10000);
    stopAfter = 2000;
    start();
    EXPECT_EQ(fetch("f").error().message, "f: Reading the file was stopped.");
    EXPECT_EQ(received.size(), 2000U);
    EXPECT_EQ(peer.openFiles, 0U);
}

TEST_F(FilesTest, emptyBlocksWithoutAnEndAreAnError)
{
    peer.files["f"] = content(10000);
    peer.habits.endlessEmptyBlocks = true;
    start();
    EXPECT_EQ(fetch("f").error().message,
              "f: The device sends empty blocks of the file without an end.");
    EXPECT_EQ(peer.openFiles, 0U);
}

TEST_F(FilesTest, aNewFileIsFetchedByThePeer)
{
    start();
    for (const std::size_t size : {0, 1, 200000}) {
        peer.files.clear();
        const Octets octets = content(size);
        const auto result = offer("d/new.txt", octets);
        ASSERT_TRUE(result.ok()) << result.error().message;
        EXPECT_EQ(namesOfPeer(), (Names{"d/new.txt"}));
        EXPECT_EQ(peer.files["d/new.txt"], octets);
    }
    EXPECT_EQ(peer.fetches, 3);
}

TEST_F(FilesTest, theNameOfAnUploadIsSpelledAsThePeerWants)
{
    peer.habits.prefix = "/";
    start();
    EXPECT_TRUE(offer("new.txt", content(5000)).ok());
    EXPECT_EQ(namesOfPeer(), (Names{"new.txt"}));
}

TEST_F(FilesTest, anExistingFileIsReplacedInOneTransferWhereThePeerRenames)
{
    for (const bool keepsExisting : {false, true}) {
        peer.files = {{"f", content(100, 1)}};
        peer.habits.keepsExisting = keepsExisting;
        if (!client)
            start();
        peer.fetches = 0;
        const Octets octets = content(5000, 2);
        const auto result = offer("f", octets);
        ASSERT_TRUE(result.ok()) << result.error().message;
        EXPECT_EQ(namesOfPeer(), (Names{"f"}));
        EXPECT_EQ(peer.files["f"], octets);
        EXPECT_EQ(peer.fetches, 1);
    }
}

TEST_F(FilesTest, anExistingFileIsReplacedWhereThePeerCannotRename)
{
    peer.files = {{"f", content(100, 1)}};
    peer.habits.keepsExisting = true;
    peer.habits.canRename = false;
    start();
    const Octets octets = content(5000, 2);
    const auto result = offer("f", octets);
    ASSERT_TRUE(result.ok()) << result.error().message;
    EXPECT_EQ(namesOfPeer(), (Names{"f"}));
    EXPECT_EQ(peer.files["f"], octets);
    EXPECT_EQ(peer.deleted, (Names{"f", "f.upload"}));
}

TEST_F(FilesTest, anExistingFileIsReplacedWhereThePeerTakesNoOtherName)
{
    for (const bool keepsExisting : {false, true}) {
        peer.files = {{"f", content(100, 1)}};
        peer.habits.forbidden = {"f.upload"};
        peer.habits.keepsExisting = keepsExisting;
        if (!client)
            start();
        const Octets octets = content(5000, 2);
        const auto result = offer("f", octets);
        ASSERT_TRUE(result.ok()) << result.error().message;
        EXPECT_EQ(namesOfPeer(), (Names{"f"}));
        EXPECT_EQ(peer.files["f"], octets);
    }
}

TEST_F(FilesTest, anUploadThatFailsLeavesTheOldFileAndNoHalfOne)
{
    peer.files = {{"f", content(100, 1)}};
    peer.habits.fetchLimit = 2000;
    start();
    const auto result = offer("f", content(200000, 2));
    ASSERT_FALSE(result.ok());
    EXPECT_NE(result.error().message.english().find("The old file is still there."),
              std::string::npos);
    EXPECT_EQ(namesOfPeer(), (Names{"f"}));
    EXPECT_EQ(peer.files["f"], content(100, 1));
}

TEST_F(FilesTest, anUploadThatFailsLeavesNoHalfNewFile)
{
    peer.habits.fetchLimit = 2000;
    start();
    EXPECT_FALSE(offer("f", content(200000)).ok());
    EXPECT_EQ(namesOfPeer(), Names{});
}

TEST_F(FilesTest, whatIsLeftIsSaidWhenTheNewFileCannotGetItsName)
{
    peer.files = {{"f", content(100, 1)}};
    peer.habits.canRename = false;
    peer.habits.fetchLimit = 2000;
    peer.habits.limitedFrom = 2;
    start();
    const auto result = offer("f", content(200000, 2));
    ASSERT_FALSE(result.ok());
    EXPECT_NE(result.error().message.english().find("The new file is in the device as f.upload."),
              std::string::npos);
    EXPECT_EQ(namesOfPeer(), (Names{"f.upload"}));
    EXPECT_EQ(peer.files["f.upload"], content(200000, 2));
}

TEST_F(FilesTest, aFileThatThePeerKeepsStaysAndSoDoesNothingElse)
{
    peer.files = {{"f", content(100, 1)}};
    peer.habits.keepsExisting = true;
    peer.habits.canRename = false;
    peer.habits.forbidden = {"f", "f.upload"};
    start();
    const auto result = offer("f", content(5000, 2));
    ASSERT_FALSE(result.ok());
    EXPECT_NE(result.error().message.english().find("The old file is still there."),
              std::string::npos);
    EXPECT_EQ(namesOfPeer(), (Names{"f"}));
    EXPECT_EQ(peer.files["f"], content(100, 1));
}

TEST_F(FilesTest, aSuccessWithoutTheWholeFileIsNone)
{
    peer.habits.fetchLimit = 1;
    peer.habits.claimsSuccessThen = true;
    serverOptions.maxPduSize = 1000;
    start();
    const auto result = offer("f", content(5000));
    ASSERT_FALSE(result.ok());
    EXPECT_EQ(result.error().message, "f: The device says that it has the file, but it has fetched "
                                      "only 936 of 5000 octets.");
    EXPECT_EQ(namesOfPeer(), Names{});
}

TEST_F(FilesTest, aPeerThatStopsFetchingIsNotWaitedForEndlessly)
{
    peer.habits.fetchLimit = 1;
    peer.habits.silentThen = true;
    clientOptions.callTimeout = 300ms;
    serverOptions.maxPduSize = 1000;
    start();
    const auto result = offer("f", content(5000));
    ASSERT_FALSE(result.ok());
    EXPECT_EQ(result.error().message,
              "f: The device has stopped fetching the file after 936 of 5000 octets. f is in the "
              "device and may be incomplete.");
    EXPECT_EQ(namesOfPeer(), (Names{"f"}));
}

TEST_F(FilesTest, aFileThatCannotBeReadHereSaysWhy)
{
    start();
    FileSource source;
    source.size = 5000;
    source.read = [](std::uint64_t, std::span<std::uint8_t>) -> mms::Result<std::size_t> {
        return mms::Error{mms::verbatim("The disk is gone."), 0};
    };
    EXPECT_EQ(run(upload(client, "f", source)).error().message, "f: The disk is gone.");
    source.read = [](std::uint64_t, std::span<std::uint8_t>) -> mms::Result<std::size_t> {
        return std::size_t{1};
    };
    EXPECT_EQ(run(upload(client, "f", source)).error().message,
              "f: The file became shorter while it was read.");
    EXPECT_EQ(namesOfPeer(), Names{});
}

TEST_F(FilesTest, theEndOfTheAssociationEndsAnUpload)
{
    peer.habits.fetchLimit = 1;
    peer.habits.silentThen = true;
    clientOptions.callTimeout = 1h;
    start();
    auto uploading = std::async(std::launch::async, [this] { return offer("f", content(200000)); });
    while (device->requestsOf<mms::ObtainFileRequest>().empty())
        std::this_thread::yield();
    device->association()->abort(mms::verbatim("The test wants it."));
    EXPECT_FALSE(uploading.get().ok());
}

TEST_F(FilesTest, otherFilesOfThisSideAreNotGiven)
{
    start();
    const Octets octets = content(100);
    device->intercept = [this](const auto &association, std::uint32_t invokeId,
                               mms::RequestService &request) {
        if (!std::holds_alternative<mms::ObtainFileRequest>(request))
            return false;
        mms::FileOpenRequest open;
        open.name = {"/etc/passwd"};
        association->call(open, 10s, [association, invokeId, this](const auto &outcome) {
            otherFile = mms::failureText(outcome);
            association->fail(invokeId, {mms::ErrorClass::File, 0, {}, {}, {}});
        });
        return true;
    };
    EXPECT_FALSE(offer("f", octets).ok());
    EXPECT_EQ(otherFile,
              mms::describe(mms::ServiceError{
                  mms::ErrorClass::File, mms::serviceerrors::fileNonExistent, {}, {}, {}}));
}

TEST_F(FilesTest, aFileThatThePeerMayNotOpenIsReplacedByWayOfTheOtherName)
{
    peer.files = {{"d/f", content(100, 1)}};
    peer.habits.refusedOpens = {{"d/f", 0}};
    peer.habits.directoryNames = {{"d", "d/"}};
    peer.habits.fetchLimit = 2000;
    start();
    const auto result = offer("d/f", content(200000, 2));
    ASSERT_FALSE(result.ok());
    EXPECT_NE(result.error().message.english().find("The old file is still there."),
              std::string::npos)
        << result.error().message;
    EXPECT_EQ(peer.files["d/f"], content(100, 1));
    peer.habits.fetchLimit = SIZE_MAX;
    peer.habits.keepsExisting = true;
    EXPECT_TRUE(offer("d/f", content(5000, 2)).ok());
    EXPECT_EQ(namesOfPeer(), (Names{"d/f"}));
    EXPECT_EQ(peer.files["d/f"], content(5000, 2));
}

TEST_F(FilesTest, aRenameThatIsNotAnsweredLosesNothing)
{
    peer.files = {{"f", content(100, 1)}};
    peer.habits.silentRename = true;
    peer.habits.keepsExisting = true;
    clientOptions.callTimeout = 300ms;
    start();
    const Octets octets = content(5000, 2);
    const auto result = offer("f", octets);
    // Refused at first, since the old file is there; then done without a word.
    EXPECT_TRUE(result.ok()) << result.error().message;
    EXPECT_EQ(namesOfPeer(), (Names{"f"}));
    EXPECT_EQ(peer.files["f"], octets);
    EXPECT_EQ(peer.deleted, (Names{"f"}));
}

TEST_F(FilesTest, aDeleteThatIsNotAnsweredLosesNothing)
{
    peer.files = {{"f", content(100, 1)}};
    peer.habits.silentDelete = true;
    peer.habits.keepsExisting = true;
    clientOptions.callTimeout = 300ms;
    start();
    const Octets octets = content(5000, 2);
    const auto result = offer("f", octets);
    EXPECT_TRUE(result.ok()) << result.error().message;
    EXPECT_EQ(namesOfPeer(), (Names{"f"}));
    EXPECT_EQ(peer.files["f"], octets);
}

TEST_F(FilesTest, aStalledReplacementDeletesNothing)
{
    peer.files = {{"f", content(100, 1)}};
    peer.habits.fetchLimit = 1;
    peer.habits.silentThen = true;
    clientOptions.callTimeout = 300ms;
    serverOptions.maxPduSize = 1000;
    start();
    const auto result = offer("f", content(5000, 2));
    ASSERT_FALSE(result.ok());
    EXPECT_EQ(result.error().message,
              "f: The device has stopped fetching the file after 936 of 5000 octets. The old file "
              "is still there. f.upload is in the device and may be incomplete.");
    EXPECT_EQ(peer.files["f"], content(100, 1));
    EXPECT_TRUE(peer.deleted.empty());
}

TEST_F(FilesTest, aFileThatIsCalledLikeAReplacementIsNotTouched)
{
    peer.files = {{"f", content(100, 1)}, {"f.upload", content(70, 3)}};
    start();
    const auto result = offer("f", content(5000, 2));
    ASSERT_FALSE(result.ok());
    EXPECT_EQ(result.error().message.english().find("f.upload is in the device already"), 0U)
        << result.error().message;
    EXPECT_EQ(peer.files["f"], content(100, 1));
    EXPECT_EQ(peer.files["f.upload"], content(70, 3));
    EXPECT_EQ(peer.fetches, 0);
}

TEST_F(FilesTest, anUploadOfWhichOnlyTheEndWasReadIsNoSuccess)
{
    peer.habits.fetchFrom = 4000;
    start();
    const auto result = offer("f", content(5000));
    ASSERT_FALSE(result.ok());
    EXPECT_EQ(result.error().message, "f: The device says that it has the file, but it has fetched "
                                      "only 0 of 5000 octets.");
}

TEST_F(FilesTest, aDownloadThatEndsTooEarlyIsAnError)
{
    peer.files["f"] = content(10000);
    peer.habits.endsAt = 4000;
    start();
    EXPECT_EQ(fetch("f").error().message, "f: the file ended after 4000 of 10000 octets.");
    EXPECT_EQ(peer.openFiles, 0U);
}

TEST_F(FilesTest, aFileThatIsOpenedTooLateIsClosed)
{
    peer.files["f"] = content(10);
    peer.habits.openDelay = 400ms;
    clientOptions.callTimeout = 100ms;
    start();
    EXPECT_EQ(fetch("f").error().message, "f: The peer did not answer in time.");
    const auto deadline = std::chrono::steady_clock::now() + 20s;
    while (device->requestsOf<mms::FileCloseRequest>().empty() &&
           std::chrono::steady_clock::now() < deadline)
        std::this_thread::yield();
    EXPECT_EQ(device->requestsOf<mms::FileCloseRequest>().size(), 1U);
}

TEST_F(FilesTest, aRefusedCloseIsTold)
{
    peer.files["f"] = content(10);
    peer.habits.refusesClose = true;
    start();
    EXPECT_TRUE(fetch("f").ok());
    EXPECT_FALSE(notClosed.empty());
    notClosed = {};
    peer.habits.refusesClose = false;
    EXPECT_TRUE(fetch("f").ok());
    EXPECT_TRUE(notClosed.empty());
}

TEST_F(FilesTest, emptyPagesDoNotEndAListing)
{
    for (int i = 0; i < 25; ++i)
        peer.files["f" + std::to_string(100 + i)] = content(3);
    peer.habits.pageSize = 10;
    peer.habits.emptyPages = 2;
    start();
    EXPECT_EQ(list("").size(), 25U);
    peer.habits.emptyPages = 1000000;
    EXPECT_EQ(list(""), (Names{"error: The device lists its files without an end."}));
}

TEST_F(FilesTest, namesInOtherOctetsAreKeptAndFound)
{
    // As a device with ISO 8859-1 writes them, and as this side shows them.
    peer.files = {{"St\xF6rung/\xFC.cfg", content(10)}};
    start();
    EXPECT_EQ(list(""), (Names{"St\xF6rung/"}));
    peer.habits.directoryNames = {{"St\xF6rung", "St\xF6rung/"}};
    EXPECT_EQ(list("St\xC3\xB6rung"), (Names{"\xFC.cfg"}));
    EXPECT_TRUE(fetch("St\xC3\xB6rung/\xC3\xBC.cfg").ok());
    EXPECT_EQ(received, content(10));
    EXPECT_TRUE(run(deleteFile(client, "St\xC3\xB6rung/\xC3\xBC.cfg")).ok());
    EXPECT_EQ(namesOfPeer(), Names{});
}

TEST_F(FilesTest, filesAreDeletedInTheSpellingOfThePeer)
{
    start();
    for (const char *prefix : {"", "/", "\\"}) {
        peer.habits.prefix = prefix;
        peer.habits.backslashes = *prefix == '\\';
        peer.files = {{"d/a", content(1)}, {"d/b", content(2)}};
        EXPECT_TRUE(run(deleteFile(client, "d/b")).ok()) << prefix;
        EXPECT_EQ(namesOfPeer(), (Names{"d/a"})) << prefix;
    }
}

TEST_F(FilesTest, refusalsNameTheFile)
{
    peer.files = {{"a", content(1)}};
    peer.habits.canDelete = false;
    start();
    EXPECT_EQ(run(deleteFile(client, "a")).error().message.english().find("a: "), 0U);
    EXPECT_EQ(device->requestsOf<mms::FileDeleteRequest>().size(), 1U);
}
