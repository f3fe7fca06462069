// SPDX-License-Identifier: Apache-2.0
#include "acsi/uploadsteps.h"

#include <utility>

namespace acsi {

using wording::say;
using wording::sentences;

namespace {

using Answer = UploadSteps::Answer;
using Kind = UploadSteps::Request::Kind;

constexpr const char *temporaryEnding = ".upload";

bool isMissing(const Answer &answer)
{
    using namespace mms::serviceerrors;
    if (answer.kind != Answer::Kind::Refused)
        return false;
    switch (answer.errorClass) {
    case mms::ErrorClass::File:
        return answer.code == fileNonExistent;
    case mms::ErrorClass::Access:
        return answer.code == accessNonExistent;
    case mms::ErrorClass::Definition:
        return answer.code == definitionObjectUndefined;
    default:
        return false;
    }
}

bool isGone(const Answer &answer)
{
    return answer.kind == Answer::Kind::Done || isMissing(answer);
}

bool isDuplicate(const Answer &answer)
{
    return answer.kind == Answer::Kind::Refused && answer.errorClass == mms::ErrorClass::File &&
           answer.code == mms::serviceerrors::fileDuplicateName;
}

/// Whether the peer may take the same file under another name. One that has no room for it must not
/// be asked to delete the old file for it.
bool isAboutTheName(const Answer &answer)
{
    using namespace mms::serviceerrors;
    switch (answer.errorClass) {
    case mms::ErrorClass::File:
        return answer.code == 0 || answer.code == fileNameAmbiguous ||
               answer.code == fileNameSyntaxError || answer.code == fileAccessDenied ||
               answer.code == fileNonExistent;
    case mms::ErrorClass::Access:
    case mms::ErrorClass::Definition:
        return true;
    default:
        return false;
    }
}

bool hasNoAnswer(const Answer &answer)
{
    return answer.kind == Answer::Kind::Silent || answer.kind == Answer::Kind::Lost;
}

/// What a half file leaves; nothing when it is gone.
mms::Text afterDeleting(const Answer &answer, const std::string &name)
{
    if (isGone(answer))
        return {};
    if (hasNoAnswer(answer))
        return say("It is not known whether an incomplete %1 is left in the device.", name);
    return say("An incomplete %1 is left in the device.", name);
}

} // namespace

UploadSteps::UploadSteps(std::string name, std::uint32_t size)
    : m_name(std::move(name))
    , m_temporary(temporaryName(m_name))
    , m_size(size)
{
    look(m_name, &UploadSteps::nameFound);
}

std::string UploadSteps::temporaryName(const std::string &name)
{
    return name + temporaryEnding;
}

void UploadSteps::take(const Answer &answer)
{
    m_next.reset();
    (this->*m_then)(answer);
}

void UploadSteps::ask(Kind kind, const std::string &name, Continuation then)
{
    m_next = Request{kind, name, kind == Kind::Rename ? m_name : std::string()};
    m_then = then;
}

// Looking for a file

void UploadSteps::look(const std::string &name, FoundContinuation then)
{
    m_lookedFor = name;
    m_found = then;
    ask(Kind::Open, name, &UploadSteps::opened);
}

void UploadSteps::opened(const Answer &answer)
{
    // Only a file that the peer does not know is not there: it may be busy, or may not be read.
    if (answer.kind == Answer::Kind::Done)
        (this->*m_found)({Presence::There, answer.size});
    else if (isMissing(answer))
        (this->*m_found)({Presence::Absent, {}});
    else if (answer.kind == Answer::Kind::Refused)
        ask(Kind::List, m_lookedFor, &UploadSteps::listed);
    else {
        if (m_failure.empty())
            m_failure = answer.text;
        const bool isLost = answer.kind == Answer::Kind::Lost;
        (this->*m_found)({isLost ? Presence::Lost : Presence::Silent, {}});
    }
}

void UploadSteps::listed(const Answer &answer)
{
    if (answer.kind == Answer::Kind::Done) {
        (this->*m_found)({answer.size ? Presence::There : Presence::Absent, answer.size});
        return;
    }
    if (hasNoAnswer(answer) && m_failure.empty())
        m_failure = answer.text;
    const Presence presence = answer.kind == Answer::Kind::Lost     ? Presence::Lost
                              : answer.kind == Answer::Kind::Silent ? Presence::Silent
                                                                    : Presence::Unclear;
    (this->*m_found)({presence, {}});
}

// A file that is not there yet

void UploadSteps::nameFound(const Found &found)
{
    switch (found.presence) {
    case Presence::Absent:
        ask(Kind::Fetch, m_name, &UploadSteps::newFetched);
        break;
    case Presence::There:
    case Presence::Unclear:
        m_oldIsSure = found.presence == Presence::There;
        look(m_temporary, &UploadSteps::temporaryFound);
        break;
    case Presence::Silent:
    case Presence::Lost:
        fail(say("Nothing was changed on the device."));
        break;
    }
}

void UploadSteps::newFetched(const Answer &answer)
{
    m_failure = answer.text;
    if (answer.kind == Answer::Kind::Done)
        succeed();
    else if (answer.kind == Answer::Kind::Silent)
        look(m_name, &UploadSteps::newHalfFound);
    else if (answer.kind == Answer::Kind::Lost)
        newHalfFound({Presence::Lost, {}});
    else if (answer.begun)
        ask(Kind::Delete, m_name, &UploadSteps::newHalfDeleted);
    else
        fail({});
}

void UploadSteps::newHalfDeleted(const Answer &answer)
{
    fail(afterDeleting(answer, m_name));
}

void UploadSteps::newHalfFound(const Found &found)
{
    if (found.presence == Presence::There)
        fail(say("%1 is in the device and may be incomplete.", m_name));
    else if (found.presence == Presence::Absent)
        fail(say("%1 is not in the device.", m_name));
    else
        fail(say("It is not known whether the device has a part of the file: look at %1.", m_name));
}

// A file that replaces another one

void UploadSteps::temporaryFound(const Found &found)
{
    switch (found.presence) {
    case Presence::There:
        failWith(say(
            "%1 is in the device already, perhaps the only whole version that an upload before this one has left: save or delete it first. Nothing was changed on the device.",
            m_temporary));
        break;
    case Presence::Absent:
    case Presence::Unclear:
        m_temporaryIsOurs = found.presence == Presence::Absent;
        ask(Kind::Fetch, m_temporary, &UploadSteps::temporaryFetched);
        break;
    case Presence::Silent:
    case Presence::Lost:
        fail(say("Nothing was changed on the device."));
        break;
    }
}

void UploadSteps::temporaryFetched(const Answer &answer)
{
    m_failure = answer.text;
    switch (answer.kind) {
    case Answer::Kind::Done:
        ask(Kind::Rename, m_temporary, &UploadSteps::renamed);
        break;
    case Answer::Kind::Silent:
        look(m_temporary, &UploadSteps::temporaryHalfFound);
        break;
    case Answer::Kind::Lost:
        temporaryHalfFound({Presence::Lost, {}});
        break;
    case Answer::Kind::Refused:
        if (isDuplicate(answer))
            temporaryFound({Presence::There, {}});
        else if (!answer.begun && isAboutTheName(answer))
            ask(Kind::Fetch, m_name, &UploadSteps::fetchedInPlace);
        else if (!answer.begun)
            fail(untouched());
        else if (m_temporaryIsOurs)
            ask(Kind::Delete, m_temporary, &UploadSteps::temporaryHalfDeleted);
        else
            fail(sentences(untouched(), say("%1 may be in the device, incomplete.", m_temporary)));
        break;
    }
}

void UploadSteps::temporaryHalfDeleted(const Answer &answer)
{
    const mms::Text left = afterDeleting(answer, m_temporary);
    fail(sentences(untouched(), left));
}

void UploadSteps::temporaryHalfFound(const Found &found)
{
    if (found.presence == Presence::There)
        fail(
            sentences(untouched(), say("%1 is in the device and may be incomplete.", m_temporary)));
    else if (found.presence == Presence::Absent)
        fail(untouched());
    else
        fail(sentences(untouched(),
                       say("It is not known whether %1 is in the device.", m_temporary)));
}

void UploadSteps::renamed(const Answer &answer)
{
    m_failure = answer.text;
    switch (answer.kind) {
    case Answer::Kind::Done:
        succeed();
        break;
    case Answer::Kind::Silent:
        look(m_temporary, &UploadSteps::temporaryFoundAfterRename);
        break;
    case Answer::Kind::Lost:
        temporaryFoundAfterRename({Presence::Lost, {}});
        break;
    case Answer::Kind::Refused:
        m_oldIsSure = m_oldIsSure || isDuplicate(answer);
        if (m_oldIsGone)
            ask(Kind::Fetch, m_name, &UploadSteps::fetchedAgain);
        else if (m_oldIsSure)
            ask(Kind::Delete, m_name, &UploadSteps::oldDeleted);
        else
            fail(sentences(newIsTemporary(),
                           say("It is not known whether there is an old %1.", m_name)));
        break;
    }
}

void UploadSteps::temporaryFoundAfterRename(const Found &found)
{
    if (found.presence == Presence::There) {
        fail(sentences(newIsTemporary(),
                       m_oldIsGone ? say("The old file was deleted before.") : untouched()));
    } else if (found.presence == Presence::Absent) {
        look(m_name, &UploadSteps::nameFoundAfterRename);
    } else {
        fail(say("It is not known whether the file has its name: look at %1 and %2.", m_name,
                 m_temporary));
    }
}

void UploadSteps::nameFoundAfterRename(const Found &found)
{
    if (found.presence == Presence::There && found.size == m_size)
        succeed();
    else if (found.presence == Presence::Absent)
        fail(say("The device has neither %1 nor %2 any more.", m_name, m_temporary));
    else
        fail(say("It is not known whether the file was replaced: look at %1.", m_name));
}

void UploadSteps::oldDeleted(const Answer &answer)
{
    if (isGone(answer)) {
        m_oldIsGone = true;
        ask(Kind::Rename, m_temporary, &UploadSteps::renamed);
    } else if (answer.kind == Answer::Kind::Refused) {
        ask(Kind::Fetch, m_name, &UploadSteps::fetchedAgain);
    } else {
        m_failure = answer.text;
        if (answer.kind == Answer::Kind::Silent)
            look(m_name, &UploadSteps::oldFound);
        else
            oldFound({Presence::Lost, {}});
    }
}

void UploadSteps::oldFound(const Found &found)
{
    if (found.presence == Presence::Absent) {
        m_oldIsGone = true;
        ask(Kind::Rename, m_temporary, &UploadSteps::renamed);
    } else if (found.presence == Presence::There) {
        fail(sentences(newIsTemporary(), untouched()));
    } else {
        fail(sentences(newIsTemporary(),
                       say("It is not known whether the old %1 is still there.", m_name)));
    }
}

void UploadSteps::fetchedAgain(const Answer &answer)
{
    m_failure = answer.text;
    if (answer.kind == Answer::Kind::Done)
        ask(Kind::Delete, m_temporary, &UploadSteps::copyDeleted);
    else if (hasNoAnswer(answer))
        fail(sentences(newIsTemporary(), say("%1 may be incomplete.", m_name)));
    else if (answer.begun)
        ask(Kind::Delete, m_name, &UploadSteps::halfDeleted);
    else if (m_oldIsGone)
        fail(sentences(newIsTemporary(), say("The old file was deleted before.")));
    else if (m_temporaryIsOurs)
        ask(Kind::Delete, m_temporary, &UploadSteps::uselessCopyDeleted);
    else
        fail(sentences(newIsTemporary(), untouched()));
}

void UploadSteps::halfDeleted(const Answer &answer)
{
    const mms::Text left = afterDeleting(answer, m_name);
    fail(sentences(newIsTemporary(), left));
}

void UploadSteps::copyDeleted(const Answer &answer)
{
    if (isGone(answer)) {
        succeed();
        return;
    }
    failWith(
        hasNoAnswer(answer)
            ? say("%1 was replaced, but %2, a second copy of it, may be in the device still: delete it.",
                  m_name, m_temporary)
            : say("%1 was replaced, but %2, a second copy of it, is left: delete it.", m_name,
                  m_temporary));
}

void UploadSteps::uselessCopyDeleted(const Answer &answer)
{
    fail(isGone(answer) ? untouched() : sentences(untouched(), newIsTemporary()));
}

// Peers that take no other name

void UploadSteps::fetchedInPlace(const Answer &answer)
{
    m_failure = answer.text;
    if (answer.kind == Answer::Kind::Done)
        succeed();
    else if (answer.begun)
        fail(say("The file in the device may be incomplete: look at %1.", m_name));
    else if (hasNoAnswer(answer))
        fail(say("It is not known whether the old file is still whole: look at %1.", m_name));
    else if (isDuplicate(answer))
        ask(Kind::Delete, m_name, &UploadSteps::oldDeletedInPlace);
    else
        fail(untouched());
}

void UploadSteps::oldDeletedInPlace(const Answer &answer)
{
    if (isGone(answer)) {
        ask(Kind::Fetch, m_name, &UploadSteps::fetchedLast);
    } else if (answer.kind == Answer::Kind::Refused) {
        fail(untouched());
    } else {
        m_failure = answer.text;
        if (answer.kind == Answer::Kind::Silent)
            look(m_name, &UploadSteps::oldFoundInPlace);
        else
            oldFoundInPlace({Presence::Lost, {}});
    }
}

void UploadSteps::oldFoundInPlace(const Found &found)
{
    if (found.presence == Presence::Absent)
        ask(Kind::Fetch, m_name, &UploadSteps::fetchedLast);
    else if (found.presence == Presence::There)
        fail(untouched());
    else
        fail(say("It is not known whether the old file is still there: look at %1.", m_name));
}

void UploadSteps::fetchedLast(const Answer &answer)
{
    m_failure = answer.text;
    if (answer.kind == Answer::Kind::Done) {
        succeed();
    } else if (answer.kind == Answer::Kind::Refused && answer.begun) {
        ask(Kind::Delete, m_name, &UploadSteps::lastHalfDeleted);
    } else {
        mms::Text sentence = say("The old file had to be deleted before and is lost.");
        if (hasNoAnswer(answer))
            sentence = sentences(say("%1 may be incomplete.", m_name), sentence);
        fail(sentence);
    }
}

void UploadSteps::lastHalfDeleted(const Answer &answer)
{
    const mms::Text left = afterDeleting(answer, m_name);
    fail(sentences(left, say("The old file had to be deleted before and is lost.")));
}

// Endings

void UploadSteps::succeed()
{
    m_result = mms::Result<void>();
}

void UploadSteps::fail(const mms::Text &whatIsThere)
{
    failWith(sentences(say("%1: %2.", m_name, m_failure), whatIsThere));
}

void UploadSteps::failWith(mms::Text message)
{
    m_result = mms::Error{std::move(message), 0};
}

mms::Text UploadSteps::untouched() const
{
    return m_oldIsSure ? say("The old file is still there.") : say("%1 was not touched.", m_name);
}

mms::Text UploadSteps::newIsTemporary() const
{
    return say("The new file is in the device as %1.", m_temporary);
}

} // namespace acsi
