// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "acsi/scripteddevice.h"

#include <map>
#include <set>
#include <string>
#include <vector>

namespace acsitest {

/// The file services of a device, with the habits of one or another real device. Belongs to the
/// strand of the association; a test looks at it when nothing is on the way.
class FilePeer
{
public:
    using Octets = std::vector<std::uint8_t>;
    using AssociationPointer = std::shared_ptr<mms::Association>;

    struct Habits
    {
        /// Names are known with this before them only.
        std::string prefix;
        /// What a directory must be called, by its plain name; others as they are.
        std::map<std::string, std::string> directoryNames;
        bool backslashes = false;
        bool flatListing = false;
        bool relativeListing = false;
        std::size_t pageSize = 1000;
        bool endlessListing = false;
        std::size_t blockSize = 1000;
        bool endlessEmptyBlocks = false;
        /// Blocks before the read fails.
        std::size_t readableBlocks = 1000000;
        bool keepsExisting = false;
        bool canRename = true;
        bool canDelete = true;
        /// Names that nothing may be fetched as.
        std::set<std::string> forbidden;
        /// Octets after which it stops fetching, and what it does then.
        std::size_t fetchLimit = SIZE_MAX;
        bool silentThen = false;
        bool claimsSuccessThen = false;
        /// Only of the fetches from this one on, counted from 1.
        int limitedFrom = 1;
        /// Where it begins to fetch.
        std::uint32_t fetchFrom = 0;
        /// Codes of class FILE with which files that are there are refused.
        std::map<std::string, std::int32_t> refusedOpens;
        /// Renames and deletes files, but does not say so.
        bool silentRename = false;
        bool silentDelete = false;
        /// Pages without an entry before those of a listing.
        int emptyPages = 0;
        /// Octets after which files that are read end.
        std::size_t endsAt = SIZE_MAX;
        bool refusesClose = false;
        /// After which a file is opened.
        std::chrono::milliseconds openDelay{0};
    };

    Habits habits;
    std::map<std::string, Octets> files; ///< with '/' between directories
    std::size_t openFiles = 0;
    std::size_t readsOnTheWay = 0;
    std::size_t mostReadsOnTheWay = 0;
    std::vector<std::string> deleted;
    int fetches = 0;

    /// Makes @p device serve the files.
    void join(ScriptedDevice &device)
    {
        device.intercept = [this](const AssociationPointer &association, std::uint32_t invokeId,
                                  mms::RequestService &request) {
            return std::visit([&](const auto &each) { return serve(association, invokeId, each); },
                              request);
        };
    }

private:
    struct Open
    {
        std::string name;
        std::size_t position = 0;
        std::size_t blocks = 0;
    };

    struct Fetch
    {
        AssociationPointer association;
        std::uint32_t invokeId = 0;
        std::string source;
        std::string target;
        std::int32_t frsmId = 0;
        Octets octets;
        std::size_t limit = 0;
    };

    template <typename Request>
    bool serve(const AssociationPointer &, std::uint32_t, const Request &)
    {
        return false;
    }

    static mms::ServiceError fileError(std::int32_t code)
    {
        return {mms::ErrorClass::File, code, {}, {}, {}};
    }

    /// Nothing for a name that is not spelled as the device wants it.
    std::optional<std::string> plain(const mms::FileName &name) const
    {
        if (name.size() != 1 || name[0].rfind(habits.prefix, 0) != 0)
            return std::nullopt;
        std::string result = name[0].substr(habits.prefix.size());
        const char wrong = habits.backslashes ? '/' : '\\';
        const char right = habits.backslashes ? '\\' : '/';
        if (result.find(wrong) != std::string::npos || result.rfind(right, 0) == 0)
            return std::nullopt;
        std::ranges::replace(result, '\\', '/');
        return result;
    }

    std::string spelled(std::string name) const
    {
        if (habits.backslashes)
            std::ranges::replace(name, '/', '\\');
        return habits.prefix + name;
    }

    bool serve(const AssociationPointer &association, std::uint32_t invokeId,
               const mms::FileDirectoryRequest &request)
    {
        std::string prefix;
        if (request.specification) {
            bool known = false;
            for (const auto &[name, wanted] : habits.directoryNames) {
                if (wanted == request.specification->front()) {
                    prefix = name + '/';
                    known = true;
                }
            }
            if (!known) {
                association->fail(invokeId, fileError(mms::serviceerrors::fileNonExistent));
                return true;
            }
        }
        std::vector<std::string> names;
        for (const auto &[name, octets] : files) {
            if (name.rfind(prefix, 0) != 0)
                continue;
            const std::size_t slash = name.find('/', prefix.size());
            std::string shown =
                habits.flatListing || slash == std::string::npos ? name : name.substr(0, slash + 1);
            if (std::ranges::find(names, shown) == names.end())
                names.push_back(std::move(shown));
        }
        const auto asSent = [&](const std::string &name) {
            return spelled(habits.relativeListing ? name.substr(prefix.size()) : name);
        };
        mms::FileDirectoryResponse response;
        if (m_emptyPages++ < habits.emptyPages) {
            response.moreFollows = true;
            association->respond(invokeId, response);
            return true;
        }
        auto next = names.begin();
        if (request.continueAfter && !habits.endlessListing) {
            next = std::ranges::find_if(names, [&](const std::string &name) {
                return asSent(name) == request.continueAfter->front();
            });
            if (next != names.end())
                ++next;
        }
        for (; next != names.end() && response.entries.size() < habits.pageSize; ++next) {
            mms::DirectoryEntry entry;
            entry.name = {asSent(*next)};
            if (const auto file = files.find(*next); file != files.end()) {
                entry.attributes.size = static_cast<std::uint32_t>(file->second.size());
                entry.attributes.lastModified = "20210304050607.123Z";
            }
            response.entries.push_back(std::move(entry));
        }
        response.moreFollows = next != names.end() || habits.endlessListing;
        if (response.moreFollows)
            m_emptyPages = 0;
        association->respond(invokeId, response);
        return true;
    }

    bool serve(const AssociationPointer &association, std::uint32_t invokeId,
               const mms::FileOpenRequest &request)
    {
        const auto name = plain(request.name);
        const auto found = name ? files.find(*name) : files.end();
        if (found == files.end()) {
            association->fail(invokeId, fileError(mms::serviceerrors::fileNonExistent));
            return true;
        }
        if (const auto refusal = habits.refusedOpens.find(*name);
            refusal != habits.refusedOpens.end()) {
            association->fail(invokeId, fileError(refusal->second));
            return true;
        }
        mms::FileOpenResponse response;
        response.frsmId = ++m_lastId;
        response.attributes.size = static_cast<std::uint32_t>(found->second.size());
        m_open[m_lastId] = {*name, request.position, 0};
        ++openFiles;
        const auto timer =
            std::make_shared<asio::steady_timer>(association->strand(), habits.openDelay);
        timer->async_wait([timer, association, invokeId, response](const std::error_code &) {
            association->respond(invokeId, response);
        });
        return true;
    }

    bool serve(const AssociationPointer &association, std::uint32_t invokeId,
               const mms::FileReadRequest &request)
    {
        ++readsOnTheWay;
        mostReadsOnTheWay = std::max(mostReadsOnTheWay, readsOnTheWay);
        // What has come already is counted before the first of it is answered.
        asio::post(association->strand(), [this, association, invokeId, request] {
            --readsOnTheWay;
            answerRead(association, invokeId, request);
        });
        return true;
    }

    void answerRead(const AssociationPointer &association, std::uint32_t invokeId,
                    const mms::FileReadRequest &request)
    {
        const auto found = m_open.find(request.frsmId);
        if (found == m_open.end()) {
            association->fail(invokeId, fileError(mms::serviceerrors::fileNonExistent));
            return;
        }
        Open &open = found->second;
        mms::FileReadResponse response;
        if (habits.endlessEmptyBlocks) {
            association->respond(invokeId, response);
            return;
        }
        const Octets &octets = files[open.name];
        if (open.blocks++ >= habits.readableBlocks || open.position > octets.size()) {
            association->fail(invokeId, fileError(mms::serviceerrors::fileAccessDenied));
            return;
        }
        const std::size_t end = std::min(octets.size(), habits.endsAt);
        const std::size_t count = std::min(habits.blockSize, end - open.position);
        const auto first = octets.begin() + static_cast<std::ptrdiff_t>(open.position);
        response.data.assign(first, first + static_cast<std::ptrdiff_t>(count));
        open.position += count;
        response.moreFollows = open.position < end;
        if (!response.moreFollows)
            open.position = SIZE_MAX;
        association->respond(invokeId, response);
    }

    bool serve(const AssociationPointer &association, std::uint32_t invokeId,
               const mms::FileCloseRequest &request)
    {
        if (habits.refusesClose) {
            association->fail(invokeId, fileError(0));
            return true;
        }
        openFiles -= m_open.erase(request.frsmId);
        association->respond(invokeId, mms::FileCloseResponse{});
        return true;
    }

    bool serve(const AssociationPointer &association, std::uint32_t invokeId,
               const mms::FileDeleteRequest &request)
    {
        const auto name = plain(request.name);
        if (!name || files.count(*name) == 0) {
            association->fail(invokeId, fileError(mms::serviceerrors::fileNonExistent));
        } else if (!habits.canDelete) {
            association->fail(invokeId, fileError(mms::serviceerrors::fileAccessDenied));
        } else {
            files.erase(*name);
            deleted.push_back(*name);
            if (habits.silentDelete)
                return true;
            association->respond(invokeId, mms::FileDeleteResponse{});
        }
        return true;
    }

    bool serve(const AssociationPointer &association, std::uint32_t invokeId,
               const mms::FileRenameRequest &request)
    {
        if (!habits.canRename) {
            association->reject(invokeId, mms::rejectcodes::requestUnrecognizedService);
            return true;
        }
        const auto from = plain(request.currentName);
        const auto to = plain(request.newName);
        if (!from || !to || files.count(*from) == 0) {
            association->fail(invokeId, fileError(mms::serviceerrors::fileNonExistent));
        } else if (files.count(*to) != 0) {
            association->fail(invokeId, fileError(mms::serviceerrors::fileDuplicateName));
        } else {
            files[*to] = std::move(files[*from]);
            files.erase(*from);
            if (habits.silentRename)
                return true;
            association->respond(invokeId, mms::FileRenameResponse{});
        }
        return true;
    }

    bool serve(const AssociationPointer &association, std::uint32_t invokeId,
               const mms::ObtainFileRequest &request)
    {
        const auto target = plain(request.destination);
        if (!target) {
            association->fail(invokeId, fileError(mms::serviceerrors::fileNameSyntaxError));
        } else if (habits.forbidden.count(*target) != 0) {
            association->fail(invokeId, fileError(mms::serviceerrors::fileAccessDenied));
        } else if (habits.keepsExisting && files.count(*target) != 0) {
            association->fail(invokeId, fileError(mms::serviceerrors::fileDuplicateName));
        } else {
            ++fetches;
            auto fetch = std::make_shared<Fetch>();
            fetch->association = association;
            fetch->invokeId = invokeId;
            fetch->source = request.source.front();
            fetch->target = *target;
            fetch->limit = fetches >= habits.limitedFrom ? habits.fetchLimit : SIZE_MAX;
            mms::FileOpenRequest open;
            open.name = request.source;
            open.position = habits.fetchFrom;
            call(fetch, open, [this, fetch](const mms::CallOutcome &outcome) {
                if (const auto *opened = mms::answerOf<mms::FileOpenResponse>(outcome)) {
                    fetch->frsmId = opened->frsmId;
                    fetchBlock(fetch);
                } else {
                    fetch->association->fail(fetch->invokeId,
                                             fileError(mms::serviceerrors::fileNonExistent));
                }
            });
        }
        return true;
    }

    void call(const std::shared_ptr<Fetch> &fetch, mms::RequestService request,
              std::function<void(const mms::CallOutcome &)> handler)
    {
        fetch->association->call(std::move(request), std::chrono::seconds(10), std::move(handler));
    }

    void fetchBlock(const std::shared_ptr<Fetch> &fetch)
    {
        // As devices do that write what they get at once.
        files[fetch->target] = fetch->octets;
        if (fetch->octets.size() >= fetch->limit) {
            if (habits.claimsSuccessThen)
                fetch->association->respond(fetch->invokeId, mms::ObtainFileResponse{});
            else if (!habits.silentThen)
                fetch->association->fail(fetch->invokeId,
                                         fileError(mms::serviceerrors::fileInsufficientSpace));
            return;
        }
        mms::FileReadRequest read;
        read.frsmId = fetch->frsmId;
        call(fetch, read, [this, fetch](const mms::CallOutcome &outcome) {
            const auto *block = mms::answerOf<mms::FileReadResponse>(outcome);
            if (!block) {
                fetch->association->fail(fetch->invokeId,
                                         fileError(mms::serviceerrors::fileAccessDenied));
                return;
            }
            fetch->octets.insert(fetch->octets.end(), block->data.begin(), block->data.end());
            if (block->moreFollows) {
                fetchBlock(fetch);
                return;
            }
            files[fetch->target] = fetch->octets;
            mms::FileCloseRequest close;
            close.frsmId = fetch->frsmId;
            call(fetch, close, [fetch](const mms::CallOutcome &) {
                fetch->association->respond(fetch->invokeId, mms::ObtainFileResponse{});
            });
        });
    }

    std::map<std::int32_t, Open> m_open;
    int m_emptyPages = 0;
    std::int32_t m_lastId = 0;
};

} // namespace acsitest
