// SPDX-License-Identifier: Apache-2.0
#include "simulator/directoryfiles.h"

#include "simulator/fileerrors.h"
#include "simulator/fileupload.h"

#include "mms/pdu.h"

#include <algorithm>
#include <array>
#include <limits>
#include <random>
#include <utility>

namespace sim {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view temporaryPrefix = ".upload-";

/// "20210304050607.123Z"
std::string generalizedTime(fs::file_time_type time)
{
    using namespace std::chrono;
    const auto stamp = floor<milliseconds>(fs::file_time_type::clock::to_sys(time));
    const auto day = floor<days>(stamp);
    const year_month_day date(day);
    const hh_mm_ss clock(stamp - day);
    std::array<char, 40> text{};
    const int size = std::snprintf(
        text.data(), text.size(), "%04d%02u%02u%02ld%02ld%02ld.%03ldZ",
        static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
        static_cast<unsigned>(date.day()), static_cast<long>(clock.hours().count()),
        static_cast<long>(clock.minutes().count()), static_cast<long>(clock.seconds().count()),
        static_cast<long>(clock.subseconds().count()));
    return {text.data(), static_cast<std::size_t>(std::max(size, 0))};
}

/// Octets of a file that fit into one answer.
std::size_t blockSize(std::size_t pduSize)
{
    static const std::size_t around =
        mms::encode(mms::ConfirmedResponsePdu{std::numeric_limits<std::uint32_t>::max(),
                                              mms::FileReadResponse{{}, false}})
            .size();
    // Three lengths around the octets take one octet in an empty answer, and up to five.
    const std::size_t lengthGrows = pduSize < 0x100 ? 1 : pduSize < 0x10000 ? 2 : 4;
    const std::size_t taken = around + 3 * lengthGrows;
    return pduSize > taken ? pduSize - taken : 1;
}

} // namespace

mms::Result<std::shared_ptr<DirectoryFiles>> DirectoryFiles::create(FileOptions options)
{
    std::error_code error;
    const std::string name = options.directory.string();
    options.directory = fs::canonical(options.directory, error);
    if (error)
        return mms::Error{
            mms::say("The directory \"%1\" cannot be served: %2.", name, wording::ofSystem(error)),
            0};
    if (!fs::is_directory(options.directory, error))
        return mms::Error{mms::say("\"%1\" is not a directory.", name), 0};
    return std::shared_ptr<DirectoryFiles>(new DirectoryFiles(std::move(options)));
}

DirectoryFiles::DirectoryFiles(FileOptions options)
    : m_options(std::move(options))
    , m_token((std::uint64_t{std::random_device()()} << 32U) | std::random_device()())
{
}

DirectoryFiles::~DirectoryFiles()
{
    for (const auto &upload : std::exchange(m_uploads, {}))
        upload->abandon();
}

std::optional<std::string> DirectoryFiles::cleanName(const mms::FileName &name) const
{
    if (m_options.onePartNames && name.size() > 1)
        return std::nullopt;
    std::string text;
    for (const std::string &part : name)
        text += (text.empty() ? "" : "/") + part;
    std::ranges::replace(text, '\\', '/');
    if (text.find('\0') != std::string::npos)
        return std::nullopt;
    std::string result;
    for (std::size_t begin = 0; begin <= text.size();) {
        const std::size_t end = std::min(text.find('/', begin), text.size());
        const std::string_view part = std::string_view(text).substr(begin, end - begin);
        if (part == ".." || part.starts_with(temporaryPrefix))
            return std::nullopt;
        if (!part.empty() && part != ".") {
            if (!result.empty())
                result += '/';
            result += part;
        }
        begin = end + 1;
    }
    return result;
}

std::variant<DirectoryFiles::Place, mms::ServiceError>
DirectoryFiles::placeOf(const mms::FileName &name) const
{
    auto clean = cleanName(name);
    if (!clean)
        return fileError(mms::serviceerrors::fileNameSyntaxError);
    fs::path path = m_options.directory / *clean;
    if (!isInside(path))
        return fileError(mms::serviceerrors::fileNonExistent);
    return Place{std::move(*clean), std::move(path)};
}

bool DirectoryFiles::isInside(const fs::path &path) const
{
    std::error_code error;
    const fs::path real = fs::weakly_canonical(path, error);
    if (error)
        return false;
    const auto [rootEnd, end] = std::ranges::mismatch(m_options.directory, real);
    return rootEnd == m_options.directory.end();
}

bool DirectoryFiles::isBusy(const fs::path &path) const
{
    return std::ranges::any_of(m_open,
                               [&path](const auto &entry) { return entry.second.path == path; }) ||
           std::ranges::any_of(m_uploads,
                               [&path](const auto &upload) { return upload->path() == path; });
}

std::size_t DirectoryFiles::openFilesOf(const Peer &client) const
{
    const auto open = std::ranges::count_if(
        m_open, [&client](const auto &entry) { return entry.second.client == &client; });
    const auto uploads = std::ranges::count_if(
        m_uploads, [&client](const auto &upload) { return upload->client() == &client; });
    return static_cast<std::size_t>(open + uploads);
}

std::optional<mms::FileAttributes> DirectoryFiles::attributesOf(const fs::path &path) const
{
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (error || !(fs::is_regular_file(status) || fs::is_directory(status)))
        return std::nullopt;
    mms::FileAttributes attributes;
    if (fs::is_regular_file(status)) {
        const std::uintmax_t size = fs::file_size(path, error);
        if (error)
            return std::nullopt;
        attributes.size = static_cast<std::uint32_t>(
            std::min<std::uintmax_t>(size, std::numeric_limits<std::uint32_t>::max()));
    }
    const auto time = fs::last_write_time(path, error);
    if (!error) {
        std::string text = generalizedTime(time);
        constexpr std::size_t withoutSeconds = 12;
        if (m_options.oddities.shortTimes)
            text = text.substr(0, withoutSeconds) + 'Z';
        attributes.lastModified = std::move(text);
    }
    return attributes;
}

void DirectoryFiles::open(Peer &client, const mms::FileOpenRequest &request, Answer answer)
{
    const auto found = placeOf(request.name);
    if (const auto *error = std::get_if<mms::ServiceError>(&found)) {
        answer(*error);
        return;
    }
    const fs::path &path = std::get<Place>(found).path;
    const auto attributes = attributesOf(path);
    std::error_code ignored;
    if (!attributes) {
        answer(fileError(mms::serviceerrors::fileNonExistent));
        return;
    }
    if (fs::is_directory(path, ignored)) {
        answer(fileError(mms::serviceerrors::fileAccessDenied, "it is a directory"));
        return;
    }
    if (m_options.oddities.unreadableFiles) {
        answer(fileError(0));
        return;
    }
    if (request.position > attributes->size) {
        answer(fileError(mms::serviceerrors::filePositionInvalid));
        return;
    }
    if (openFilesOf(client) >= m_options.maxOpen) {
        answer(tooManyOpen());
        return;
    }
    OpenFile file{&client, path, File(std::fopen(path.c_str(), "rb")),
                  attributes->size - request.position};
    if (!file.file) {
        answer(fileError(lastError()));
        return;
    }
    // Blocks go from the system into the answer without a copy between.
    std::setvbuf(file.file.get(), nullptr, _IONBF, 0);
    if (std::fseek(file.file.get(), static_cast<long>(request.position), SEEK_SET) != 0) {
        answer(fileError(lastError()));
        return;
    }
    if (m_options.oddities.cutFiles)
        file.left /= 2;
    ++m_lastId;
    m_open.emplace(m_lastId, std::move(file));
    answer(mms::ResponseService(mms::FileOpenResponse{m_lastId, *attributes}));
}

void DirectoryFiles::read(Peer &client, const mms::FileReadRequest &request, Answer answer)
{
    const auto found = m_open.find(request.frsmId);
    if (found == m_open.end() || found->second.client != &client) {
        answer(fileError(0, "no such open file"));
        return;
    }
    OpenFile &file = found->second;
    mms::FileReadResponse response;
    const std::size_t wanted =
        static_cast<std::size_t>(std::min<std::uint64_t>(file.left, blockSize(client.pduSize())));
    response.data.resize(wanted);
    const std::size_t got = std::fread(response.data.data(), 1, wanted, file.file.get());
    if (got < wanted && std::ferror(file.file.get()) != 0) {
        answer(fileError(lastError()));
        return;
    }
    response.data.resize(got);
    // A file that became shorter meanwhile ends earlier.
    file.left = got < wanted ? 0 : file.left - got;
    response.moreFollows = file.left != 0;
    answer(mms::ResponseService(std::move(response)));
}

void DirectoryFiles::close(Peer &client, const mms::FileCloseRequest &request, Answer answer)
{
    const auto found = m_open.find(request.frsmId);
    if (found == m_open.end() || found->second.client != &client) {
        answer(fileError(0, "no such open file"));
        return;
    }
    m_open.erase(found);
    if (m_options.oddities.refusedClose)
        answer(fileError(0));
    else
        answer(mms::ResponseService(mms::FileCloseResponse()));
}

std::set<std::string> DirectoryFiles::namesBelow(const Place &place) const
{
    std::set<std::string> names;
    const auto add = [this, &names](const fs::directory_entry &entry) {
        const std::string name = entry.path().filename().string();
        std::error_code ignored;
        const fs::file_status status = entry.status(ignored);
        const bool isDirectory = fs::is_directory(status);
        if (name.starts_with(temporaryPrefix) || !(isDirectory || fs::is_regular_file(status)) ||
            (isDirectory && m_options.flatListing) ||
            (entry.is_symlink(ignored) && !isInside(entry.path()))) {
            return;
        }
        const std::string complete =
            entry.path().lexically_relative(m_options.directory).generic_string();
        names.insert(isDirectory ? complete + '/' : complete);
    };
    std::error_code error;
    const auto gather = [&error, &add](auto iterator) {
        for (; !error && iterator != end(iterator); iterator.increment(error))
            add(*iterator);
    };
    constexpr auto options = fs::directory_options::skip_permission_denied;
    if (m_options.flatListing)
        gather(fs::recursive_directory_iterator(place.path, options, error));
    else
        gather(fs::directory_iterator(place.path, options, error));
    return names;
}

void DirectoryFiles::directory(Peer &client, const mms::FileDirectoryRequest &request,
                               Answer answer)
{
    const auto found = placeOf(request.specification.value_or(mms::FileName()));
    if (const auto *error = std::get_if<mms::ServiceError>(&found)) {
        answer(*error);
        return;
    }
    const Place &place = std::get<Place>(found);
    std::error_code ignored;
    std::set<std::string> names;
    if (fs::is_directory(place.path, ignored)) {
        names = namesBelow(place);
    } else if (attributesOf(place.path)) {
        names.insert(place.name);
    } else {
        answer(fileError(mms::serviceerrors::fileNonExistent));
        return;
    }
    if (m_options.oddities.emptyPages && !std::exchange(m_lastPageWasEmpty, !m_lastPageWasEmpty)) {
        mms::FileDirectoryResponse empty;
        empty.moreFollows = true;
        answer(mms::ResponseService(std::move(empty)));
        return;
    }
    auto next = names.begin();
    if (request.continueAfter) {
        // A directory comes before what is in it, whether its slash was sent back or not.
        const auto after = cleanName(*request.continueAfter).value_or(std::string());
        next = names.upper_bound(after);
        if (next != names.end() && *next == after + '/')
            ++next;
    }
    // The tags, lengths, sizes and times of an entry, and what is around all of them.
    constexpr std::size_t entryOctets = 52;
    constexpr std::size_t pageOctets = 40;
    std::size_t used = pageOctets;
    mms::FileDirectoryResponse response;
    for (; next != names.end(); ++next) {
        used += next->size() + entryOctets;
        if (used > client.pduSize() && !response.entries.empty()) {
            response.moreFollows = true;
            break;
        }
        // What vanished since is left out.
        if (auto attributes = attributesOf(m_options.directory / *next))
            response.entries.push_back({{*next}, std::move(*attributes)});
    }
    answer(mms::ResponseService(std::move(response)));
}

void DirectoryFiles::remove(Peer &, const mms::FileDeleteRequest &request, Answer answer)
{
    const auto found = placeOf(request.name);
    if (const auto *error = std::get_if<mms::ServiceError>(&found)) {
        answer(*error);
        return;
    }
    const fs::path &path = std::get<Place>(found).path;
    std::error_code error;
    if (!attributesOf(path))
        answer(fileError(mms::serviceerrors::fileNonExistent));
    else if (m_options.readOnly || fs::is_directory(path, error))
        answer(fileError(mms::serviceerrors::fileAccessDenied));
    else if (isBusy(path))
        answer(fileError(mms::serviceerrors::fileBusy));
    else if (!fs::remove(path, error))
        answer(fileError(error));
    else
        answer(mms::ResponseService(mms::FileDeleteResponse()));
}

void DirectoryFiles::rename(Peer &, const mms::FileRenameRequest &request, Answer answer)
{
    const auto from = placeOf(request.currentName);
    const auto to = placeOf(request.newName);
    for (const auto *place : {&from, &to}) {
        if (const auto *error = std::get_if<mms::ServiceError>(place)) {
            answer(*error);
            return;
        }
    }
    const Place &source = std::get<Place>(from);
    const Place &target = std::get<Place>(to);
    std::error_code error;
    if (!attributesOf(source.path) || source.name.empty())
        answer(fileError(mms::serviceerrors::fileNonExistent));
    else if (m_options.readOnly)
        answer(fileError(mms::serviceerrors::fileAccessDenied));
    else if (target.name.empty() || fs::exists(fs::symlink_status(target.path, error)))
        answer(fileError(mms::serviceerrors::fileDuplicateName));
    else if (isBusy(source.path) || isBusy(target.path))
        answer(fileError(mms::serviceerrors::fileBusy));
    else if (fs::rename(source.path, target.path, error); error)
        answer(fileError(error));
    else
        answer(mms::ResponseService(mms::FileRenameResponse()));
}

void DirectoryFiles::obtain(Peer &client, const mms::ObtainFileRequest &request, Answer answer)
{
    const auto found = placeOf(request.destination);
    if (const auto *error = std::get_if<mms::ServiceError>(&found)) {
        answer(*error);
        return;
    }
    const Place &place = std::get<Place>(found);
    const auto existing = attributesOf(place.path);
    std::error_code ignored;
    if (request.sourceServer)
        answer(mms::ServiceError{
            mms::ErrorClass::Access, mms::serviceerrors::accessUnsupported, {}, {}, {}});
    else if (m_options.readOnly || fs::is_directory(place.path, ignored))
        answer(fileError(mms::serviceerrors::fileAccessDenied));
    else if (existing && m_options.keepExisting)
        answer(fileError(mms::serviceerrors::fileDuplicateName));
    else if (!fs::is_directory(place.path.parent_path(), ignored))
        answer(fileError(mms::serviceerrors::fileNonExistent, "there is no such directory"));
    else if (isBusy(place.path))
        answer(fileError(mms::serviceerrors::fileBusy));
    else if (openFilesOf(client) >= m_options.maxOpen)
        answer(tooManyOpen());
    else {
        const auto upload = std::make_shared<FileUpload>(
            client, FileUpload::Limits{m_options.callTimeout, m_options.maxFileSize}, place.path,
            temporaryPath(),
            [this, path = place.path,
             answer = std::move(answer)](const std::optional<mms::ServiceError> &failure) {
                // No second one may be on its way to the same place.
                std::erase_if(m_uploads,
                              [&path](const auto &each) { return each->path() == path; });
                if (failure)
                    answer(*failure);
                else
                    answer(mms::ResponseService(mms::ObtainFileResponse()));
            });
        m_uploads.insert(upload);
        upload->start(request.source);
    }
}

fs::path DirectoryFiles::temporaryPath()
{
    return m_options.directory / (std::string(temporaryPrefix) + std::to_string(m_token) + "-" +
                                  std::to_string(++m_lastTemporary));
}

void DirectoryFiles::closed(Peer &client)
{
    std::erase_if(m_open, [&client](const auto &entry) { return entry.second.client == &client; });
    std::erase_if(m_uploads, [&client](const auto &upload) {
        if (upload->client() != &client)
            return false;
        upload->abandon();
        return true;
    });
}

} // namespace sim
