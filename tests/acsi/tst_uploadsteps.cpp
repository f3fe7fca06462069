// SPDX-License-Identifier: Apache-2.0
#include "acsi/uploadsteps.h"

#include <gtest/gtest.h>

#include <ostream>
#include <vector>

namespace acsi {

void PrintTo(const UploadSteps::Request &request, std::ostream *stream)
{
    constexpr const char *kinds[] = {"open", "list", "fetch", "delete", "rename"};
    *stream << kinds[static_cast<int>(request.kind)] << ' ' << request.name << ' '
            << request.newName;
}

} // namespace acsi

namespace {

using namespace acsi;
using Answer = UploadSteps::Answer;
using Request = UploadSteps::Request;
using Kind = Answer::Kind;

const Request openName{Request::Kind::Open, "f", {}};
const Request listName{Request::Kind::List, "f", {}};
const Request fetchName{Request::Kind::Fetch, "f", {}};
const Request deleteName{Request::Kind::Delete, "f", {}};
const Request openTemporary{Request::Kind::Open, "f.upload", {}};
const Request listTemporary{Request::Kind::List, "f.upload", {}};
const Request fetchTemporary{Request::Kind::Fetch, "f.upload", {}};
const Request deleteTemporary{Request::Kind::Delete, "f.upload", {}};
const Request renameTemporary{Request::Kind::Rename, "f.upload", "f"};

Answer done(std::optional<std::uint32_t> size = {})
{
    Answer answer;
    answer.size = size;
    return answer;
}

Answer refused(std::int32_t code, bool begun = false)
{
    Answer answer;
    answer.kind = Kind::Refused;
    answer.text = mms::say("Refused.");
    answer.errorClass = mms::ErrorClass::File;
    answer.code = code;
    answer.begun = begun;
    return answer;
}

Answer missing()
{
    return refused(mms::serviceerrors::fileNonExistent);
}

Answer other()
{
    return refused(0);
}

Answer silent(bool begun = false)
{
    Answer answer;
    answer.kind = Kind::Silent;
    answer.text = mms::say("Silence.");
    answer.begun = begun;
    return answer;
}

Answer lost()
{
    Answer answer;
    answer.kind = Kind::Lost;
    answer.text = mms::say("Lost.");
    return answer;
}

struct Step
{
    Request request;
    Answer answer;
};

/// How an upload of 100 octets as "f" ends whose steps are answered so: "ok" or the sentence.
std::string ending(const std::vector<Step> &script)
{
    UploadSteps steps("f", 100);
    for (const Step &step : script) {
        EXPECT_TRUE(steps.next().has_value());
        if (!steps.next())
            return "over too early";
        EXPECT_EQ(*steps.next(), step.request);
        steps.take(step.answer);
    }
    if (steps.next()) {
        ADD_FAILURE() << "goes on with " << testing::PrintToString(*steps.next());
        return "not over";
    }
    return steps.result().ok() ? "ok" : steps.result().error().message.english();
}

const std::vector<Step> temporaryStands = {
    {openName, done(50)}, {openTemporary, missing()}, {fetchTemporary, done()}};

std::string afterTemporary(const std::vector<Step> &more)
{
    std::vector<Step> script = temporaryStands;
    script.insert(script.end(), more.begin(), more.end());
    return ending(script);
}

} // namespace

TEST(UploadSteps, aNewFileIsFetchedAtOnce)
{
    EXPECT_EQ(ending({{openName, missing()}, {fetchName, done()}}), "ok");
}

TEST(UploadSteps, anExistingFileIsReplacedByRenaming)
{
    EXPECT_EQ(afterTemporary({{renameTemporary, done()}}), "ok");
    EXPECT_EQ(afterTemporary(
                  {{renameTemporary, refused(8)}, {deleteName, done()}, {renameTemporary, done()}}),
              "ok");
    EXPECT_EQ(afterTemporary({{renameTemporary, other()},
                              {deleteName, done()},
                              {renameTemporary, other()},
                              {fetchName, done()},
                              {deleteTemporary, done()}}),
              "ok");
}

TEST(UploadSteps, aFileThatCannotBeOpenedIsLookedForInTheList)
{
    // Refused for whatever reason is not "no such file".
    EXPECT_EQ(ending({{openName, other()},
                      {listName, done(50)},
                      {openTemporary, missing()},
                      {fetchTemporary, done()},
                      {renameTemporary, done()}}),
              "ok");
    EXPECT_EQ(ending({{openName, other()}, {listName, done()}, {fetchName, done()}}), "ok");
    EXPECT_EQ(ending({{openName, refused(6)},
                      {listName, refused(6)},
                      {openTemporary, other()},
                      {listTemporary, other()},
                      {fetchTemporary, done()},
                      {renameTemporary, refused(6)}}),
              "f: Refused. The new file is in the device as f.upload. It is not known whether "
              "there is an old f.");
}

TEST(UploadSteps, aLeftoverIsNotTouched)
{
    const std::string sentence =
        "f.upload is in the device already, perhaps the only whole version that an upload before "
        "this one has left: save or delete it first. Nothing was changed on the device.";
    EXPECT_EQ(ending({{openName, done(50)}, {openTemporary, done(70)}}), sentence);
    EXPECT_EQ(ending({{openName, done(50)}, {openTemporary, other()}, {listTemporary, done(70)}}),
              sentence);
    EXPECT_EQ(
        ending({{openName, done(50)}, {openTemporary, missing()}, {fetchTemporary, refused(8)}}),
        sentence);
}

TEST(UploadSteps, nothingIsDoneWhenThePeerDoesNotSayWhetherTheFileIsThere)
{
    EXPECT_EQ(ending({{openName, silent()}}), "f: Silence. Nothing was changed on the device.");
    EXPECT_EQ(ending({{openName, lost()}}), "f: Lost. Nothing was changed on the device.");
    EXPECT_EQ(ending({{openName, done(50)}, {openTemporary, silent()}}),
              "f: Silence. Nothing was changed on the device.");
}

TEST(UploadSteps, aHalfNewFileIsDeletedAfterARefusalOnly)
{
    EXPECT_EQ(ending({{openName, missing()}, {fetchName, refused(9)}}), "f: Refused.");
    EXPECT_EQ(ending({{openName, missing()}, {fetchName, refused(9, true)}, {deleteName, done()}}),
              "f: Refused.");
    EXPECT_EQ(
        ending({{openName, missing()}, {fetchName, refused(9, true)}, {deleteName, refused(6)}}),
        "f: Refused. An incomplete f is left in the device.");
    EXPECT_EQ(ending({{openName, missing()}, {fetchName, silent(true)}, {openName, done(30)}}),
              "f: Silence. f is in the device and may be incomplete.");
    EXPECT_EQ(ending({{openName, missing()}, {fetchName, silent()}, {openName, missing()}}),
              "f: Silence. f is not in the device.");
    EXPECT_EQ(ending({{openName, missing()}, {fetchName, silent(true)}, {openName, silent()}}),
              "f: Silence. It is not known whether the device has a part of the file: look at f.");
    EXPECT_EQ(ending({{openName, missing()}, {fetchName, lost()}}),
              "f: Lost. It is not known whether the device has a part of the file: look at f.");
}

TEST(UploadSteps, theOldFileStaysWhenTheNewOneDoesNotCome)
{
    const std::vector<Step> before = {{openName, done(50)}, {openTemporary, missing()}};
    const auto after = [&before](const std::vector<Step> &more) {
        std::vector<Step> script = before;
        script.insert(script.end(), more.begin(), more.end());
        return ending(script);
    };
    EXPECT_EQ(after({{fetchTemporary, refused(9)}}), "f: Refused. The old file is still there.");
    EXPECT_EQ(after({{fetchTemporary, refused(9, true)}, {deleteTemporary, done()}}),
              "f: Refused. The old file is still there.");
    EXPECT_EQ(after({{fetchTemporary, refused(9, true)}, {deleteTemporary, silent()}}),
              "f: Refused. The old file is still there. It is not known whether an incomplete "
              "f.upload is left in the device.");
    EXPECT_EQ(after({{fetchTemporary, silent(true)}, {openTemporary, done(20)}}),
              "f: Silence. The old file is still there. f.upload is in the device and may be "
              "incomplete.");
    EXPECT_EQ(after({{fetchTemporary, lost()}}),
              "f: Lost. The old file is still there. It is not known whether f.upload is in the "
              "device.");
}

TEST(UploadSteps, aRenameWithoutAnswerIsLookedAfter)
{
    EXPECT_EQ(afterTemporary(
                  {{renameTemporary, silent()}, {openTemporary, missing()}, {openName, done(100)}}),
              "ok");
    EXPECT_EQ(afterTemporary(
                  {{renameTemporary, silent()}, {openTemporary, missing()}, {openName, done(50)}}),
              "f: Silence. It is not known whether the file was replaced: look at f.");
    EXPECT_EQ(
        afterTemporary({{renameTemporary, silent()}, {openTemporary, done(100)}}),
        "f: Silence. The new file is in the device as f.upload. The old file is still there.");
    EXPECT_EQ(afterTemporary({{renameTemporary, silent()}, {openTemporary, silent()}}),
              "f: Silence. It is not known whether the file has its name: look at f and f.upload.");
    EXPECT_EQ(afterTemporary({{renameTemporary, lost()}}),
              "f: Lost. It is not known whether the file has its name: look at f and f.upload.");
}

TEST(UploadSteps, aDeleteWithoutAnswerIsLookedAfter)
{
    EXPECT_EQ(afterTemporary({{renameTemporary, refused(8)},
                              {deleteName, silent()},
                              {openName, missing()},
                              {renameTemporary, done()}}),
              "ok");
    EXPECT_EQ(
        afterTemporary(
            {{renameTemporary, refused(8)}, {deleteName, silent()}, {openName, done(50)}}),
        "f: Silence. The new file is in the device as f.upload. The old file is still there.");
    EXPECT_EQ(afterTemporary({{renameTemporary, refused(8)}, {deleteName, lost()}}),
              "f: Lost. The new file is in the device as f.upload. It is not known whether the old "
              "f is still there.");
}

TEST(UploadSteps, oneWholeVersionIsNamedWhenTheSecondTransferFails)
{
    const std::vector<Step> gone = {
        {renameTemporary, refused(8)}, {deleteName, done()}, {renameTemporary, refused(6)}};
    const auto after = [&gone](const std::vector<Step> &more) {
        std::vector<Step> script = gone;
        script.insert(script.end(), more.begin(), more.end());
        return afterTemporary(script);
    };
    EXPECT_EQ(after({{fetchName, refused(9)}}),
              "f: Refused. The new file is in the device as f.upload. The old file was deleted "
              "before.");
    EXPECT_EQ(after({{fetchName, refused(9, true)}, {deleteName, done()}}),
              "f: Refused. The new file is in the device as f.upload.");
    EXPECT_EQ(after({{fetchName, silent(true)}}),
              "f: Silence. The new file is in the device as f.upload. f may be incomplete.");
    EXPECT_EQ(after({{fetchName, done()}, {deleteTemporary, refused(6)}}),
              "f was replaced, but f.upload, a second copy of it, is left: delete it.");
    EXPECT_EQ(after({{fetchName, done()}, {deleteTemporary, lost()}}),
              "f was replaced, but f.upload, a second copy of it, may be in the device still: "
              "delete it.");
}

TEST(UploadSteps, aPeerThatTakesNoOtherNameReplacesInPlace)
{
    const std::vector<Step> before = {
        {openName, done(50)}, {openTemporary, missing()}, {fetchTemporary, refused(3)}};
    const auto after = [&before](const std::vector<Step> &more) {
        std::vector<Step> script = before;
        script.insert(script.end(), more.begin(), more.end());
        return ending(script);
    };
    EXPECT_EQ(after({{fetchName, done()}}), "ok");
    EXPECT_EQ(after({{fetchName, refused(8)}, {deleteName, done()}, {fetchName, done()}}), "ok");
    EXPECT_EQ(after({{fetchName, refused(9)}}), "f: Refused. The old file is still there.");
    EXPECT_EQ(after({{fetchName, refused(8)}, {deleteName, refused(6)}}),
              "f: Refused. The old file is still there.");
    EXPECT_EQ(after({{fetchName, silent(true)}}),
              "f: Silence. The file in the device may be incomplete: look at f.");
    EXPECT_EQ(after({{fetchName, lost()}}),
              "f: Lost. It is not known whether the old file is still whole: look at f.");
    EXPECT_EQ(after({{fetchName, refused(8)}, {deleteName, silent()}, {openName, done(50)}}),
              "f: Silence. The old file is still there.");
    EXPECT_EQ(
        after({{fetchName, refused(8)}, {deleteName, done()}, {fetchName, silent()}}),
        "f: Silence. f may be incomplete. The old file had to be deleted before and is lost.");
}

TEST(UploadSteps, theOldFileIsNotDeletedForAFileThatHasNoRoom)
{
    EXPECT_EQ(ending({{openName, done(50)},
                      {openTemporary, missing()},
                      {fetchTemporary, refused(mms::serviceerrors::fileInsufficientSpace)}}),
              "f: Refused. The old file is still there.");
}
