// SPDX-License-Identifier: Apache-2.0
// Shared by the sources that transfer files; not for the folder's users.
#pragma once

#include "mms/serviceerror.h"
#include "mms/vocabulary.h"

#include <cstdint>
#include <optional>
#include <string>

namespace acsi {

/// The steps by which a peer gets a file from here, and what is told when one of them fails. Says
/// which request comes next, is given what became of it, and does nothing itself.
///
/// A file that exists is replaced by way of another name, so that one of the two versions is whole
/// at any time. Nothing is deleted after a request without an answer: what there is is looked for
/// then, and the end says what is there, or what is not known and which names to look at.
class UploadSteps
{
public:
    struct Request
    {
        enum class Kind : std::uint8_t {
            Open,   ///< and close it again, to see whether it is there
            List,   ///< the directory of the file, to see whether it is there
            Fetch,  ///< have the peer fetch the offered file as that name
            Delete, ///< the file
            Rename  ///< the file to newName
        };

        Kind kind = Kind::Open;
        std::string name;
        std::string newName;

        friend bool operator==(const Request &, const Request &) = default;
    };

    struct Answer
    {
        enum class Kind : std::uint8_t {
            Done,
            Refused, ///< by the peer, or it could not be asked
            Silent,  ///< nobody knows what the peer did
            Lost     ///< likewise, and nothing more can be asked
        };

        Kind kind = Kind::Done;
        mms::Text text; ///< why it was not done; one sentence
        /// Of a refusal.
        mms::ErrorClass errorClass = mms::ErrorClass::Others;
        std::int32_t code = 0;
        /// Of Fetch: the peer has opened the offered file, so that it may have a part of it.
        bool begun = false;
        /// Of Open and List, when they are done: octets of the file; none when it is not listed.
        std::optional<std::uint32_t> size;
    };

    /// @param size octets of the file that is offered
    UploadSteps(std::string name, std::uint32_t size);

    /// The name under which a file comes first that is to replace another one.
    static std::string temporaryName(const std::string &name);

    /// None when it is over.
    const std::optional<Request> &next() const { return m_next; }
    /// What became of next().
    void take(const Answer &answer);
    /// Once it is over.
    const mms::Result<void> &result() const { return m_result; }

private:
    /// Whether a file is there, as far as the peer tells.
    enum class Presence : std::uint8_t { There, Absent, Unclear, Silent, Lost };
    struct Found
    {
        Presence presence = Presence::Unclear;
        std::optional<std::uint32_t> size;
    };
    using Continuation = void (UploadSteps::*)(const Answer &answer);
    using FoundContinuation = void (UploadSteps::*)(const Found &found);

    void ask(Request::Kind kind, const std::string &name, Continuation then);
    void look(const std::string &name, FoundContinuation then);
    void opened(const Answer &answer);
    void listed(const Answer &answer);

    void nameFound(const Found &found);
    void newFetched(const Answer &answer);
    void newHalfDeleted(const Answer &answer);
    void newHalfFound(const Found &found);

    void temporaryFound(const Found &found);
    void temporaryFetched(const Answer &answer);
    void temporaryHalfDeleted(const Answer &answer);
    void temporaryHalfFound(const Found &found);
    void renamed(const Answer &answer);
    void temporaryFoundAfterRename(const Found &found);
    void nameFoundAfterRename(const Found &found);
    void oldDeleted(const Answer &answer);
    void oldFound(const Found &found);
    void fetchedAgain(const Answer &answer);
    void halfDeleted(const Answer &answer);
    void copyDeleted(const Answer &answer);
    void uselessCopyDeleted(const Answer &answer);

    void fetchedInPlace(const Answer &answer);
    void oldDeletedInPlace(const Answer &answer);
    void oldFoundInPlace(const Found &found);
    void fetchedLast(const Answer &answer);
    void lastHalfDeleted(const Answer &answer);

    void succeed();
    /// With what has failed, by m_failure, before it.
    void fail(const mms::Text &whatIsThere);
    void failWith(mms::Text message);
    mms::Text untouched() const;
    mms::Text newIsTemporary() const;

    std::string m_name;
    std::string m_temporary;
    std::uint32_t m_size;
    mms::Text m_failure; ///< of the step that decided the outcome
    std::optional<Request> m_next;
    Continuation m_then = nullptr;
    FoundContinuation m_found = nullptr;
    std::string m_lookedFor;
    mms::Result<void> m_result;
    bool m_oldIsSure = false; ///< the old file was seen
    bool m_oldIsGone = false; ///< deleted on the way
    bool m_temporaryIsOurs = false;
};

} // namespace acsi
