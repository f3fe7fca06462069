// SPDX-License-Identifier: Apache-2.0
#include "simulator/fileerrors.h"

#include <cerrno>
#include <utility>

namespace sim {

mms::ServiceError fileError(std::int32_t code)
{
    return {mms::ErrorClass::File, code, {}, {}, {}};
}

mms::ServiceError fileError(std::int32_t code, std::string description)
{
    return {mms::ErrorClass::File, code, {}, std::move(description), {}};
}

mms::ServiceError tooManyOpen()
{
    return {mms::ErrorClass::Resource,
            mms::serviceerrors::resourceCapabilityUnavailable,
            {},
            "too many open files",
            {}};
}

mms::ServiceError fileError(const std::error_code &error)
{
    using namespace mms::serviceerrors;
    std::int32_t code = 0;
    if (error == std::errc::no_such_file_or_directory)
        code = fileNonExistent;
    else if (error == std::errc::permission_denied || error == std::errc::read_only_file_system ||
             error == std::errc::is_a_directory || error == std::errc::not_a_directory)
        code = fileAccessDenied;
    else if (error == std::errc::filename_too_long || error == std::errc::invalid_argument)
        code = fileNameSyntaxError;
    else if (error == std::errc::no_space_on_device)
        code = fileInsufficientSpace;
    return fileError(code, error.message());
}

std::error_code lastError()
{
    return {errno, std::generic_category()};
}

} // namespace sim
