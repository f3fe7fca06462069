// SPDX-License-Identifier: Apache-2.0
#include "scl/reader.h"

#include "resolver.h"
#include "xmlparser.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <new>
#include <sys/stat.h>
#include <system_error>

namespace scl {

using wording::say;
namespace {

// Share of the progress that belongs to reading the bytes; the rest is resolving.
constexpr double parsingShare = 0.8;

ReadResult failed(XmlError error)
{
    ReadResult result;
    result.error = error.error;
    result.errorText = std::move(error.text);
    result.errorLine = error.line;
    return result;
}

ReadResult read(const ByteSource &source, std::uint64_t totalBytes, const ReadOptions &options)
{
    try {
        std::function<void(double)> parsing;
        std::function<void(double)> resolving;
        if (options.progress) {
            parsing = [&options](double share) { options.progress(share * parsingShare); };
            resolving = [&options](double share) {
                options.progress(parsingShare + share * (1.0 - parsingShare));
            };
        }
        ReadResult result;
        result.document = std::make_unique<Document>();
        XmlTree tree;
        XmlError error =
            parseXml(source, totalBytes, options, parsing, result.document->memory(), tree);
        if (error.error == ReadError::None)
            error = resolve(tree, options, resolving, *result.document);
        if (error.error != ReadError::None)
            return failed(std::move(error));
        return result;
    } catch (const std::bad_alloc &) {
        return failed(
            {ReadError::TooLarge, say("There is not enough memory to read the file."), 0});
    }
}

} // namespace

ReadResult readFile(const std::string &path, const ReadOptions &options)
{
    std::FILE *file = std::fopen(path.c_str(), "rbe");
    if (!file) {
        return failed({ReadError::CannotRead,
                       say("The file \"%1\" cannot be opened: %2.", path,
                           wording::ofSystem({errno, std::generic_category()})),
                       0});
    }
    const std::unique_ptr<std::FILE, int (*)(std::FILE *)> closer(file, &std::fclose);
    struct stat status = {};
    std::uint64_t size = 0;
    if (::fstat(::fileno(file), &status) == 0) {
        if (S_ISDIR(status.st_mode)) {
            return failed(
                {ReadError::CannotRead, say("\"%1\" is a directory, not a file.", path), 0});
        }
        size = status.st_size > 0 ? static_cast<std::uint64_t>(status.st_size) : 0;
    }
    if (size > options.maxBytes) {
        return failed(
            {ReadError::TooLarge, say("The file is larger than %1 bytes.", options.maxBytes), 0});
    }
    const ByteSource source = [file](char *buffer, std::size_t capacity) -> std::ptrdiff_t {
        const std::size_t got = std::fread(buffer, 1, capacity, file);
        return got == 0 && std::ferror(file) ? -1 : static_cast<std::ptrdiff_t>(got);
    };
    return read(source, size, options);
}

ReadResult readBytes(std::string_view bytes, const ReadOptions &options)
{
    std::string_view rest = bytes;
    const ByteSource source = [&rest](char *buffer, std::size_t capacity) {
        const std::size_t size = std::min(capacity, rest.size());
        if (size > 0)
            std::memcpy(buffer, rest.data(), size);
        rest.remove_prefix(size);
        return static_cast<std::ptrdiff_t>(size);
    };
    return read(source, bytes.size(), options);
}

} // namespace scl
