// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "wording/text.h"

#include <cstddef>
#include <optional>
#include <utility>
#include <variant>

namespace wording {

/// Why something could not be done: a sentence for the operator, and for bytes that could not be
/// read the offset of the first byte that is wrong, counted from the start of the input.
struct Error
{
    Text message;
    std::size_t offset = 0;

    friend bool operator==(const Error &, const Error &) = default;
};

/// A value or the error that took its place. value() may be called only when ok(), error() only
/// when not; neither throws.
template <typename T>
class [[nodiscard]] Result
{
public:
    Result(T value)
        : m_content(std::in_place_index<0>, std::move(value))
    {
    }
    Result(Error error)
        : m_content(std::in_place_index<1>, std::move(error))
    {
    }

    bool ok() const noexcept { return m_content.index() == 0; }
    explicit operator bool() const noexcept { return ok(); }

    T &value() &noexcept { return *std::get_if<0>(&m_content); }
    const T &value() const &noexcept { return *std::get_if<0>(&m_content); }
    T &&value() &&noexcept { return std::move(*std::get_if<0>(&m_content)); }

    T &operator*() &noexcept { return value(); }
    const T &operator*() const &noexcept { return value(); }
    T &&operator*() &&noexcept { return std::move(*this).value(); }
    T *operator->() noexcept { return &value(); }
    const T *operator->() const noexcept { return &value(); }

    const Error &error() const &noexcept { return *std::get_if<1>(&m_content); }
    Error &&error() &&noexcept { return std::move(*std::get_if<1>(&m_content)); }

private:
    std::variant<T, Error> m_content;
};

/// Success without a value, or an error.
template <>
class [[nodiscard]] Result<void>
{
public:
    Result() = default;
    Result(Error error)
        : m_error(std::move(error))
    {
    }

    bool ok() const noexcept { return !m_error.has_value(); }
    explicit operator bool() const noexcept { return ok(); }

    const Error &error() const &noexcept { return *m_error; }
    Error &&error() &&noexcept { return std::move(*m_error); }

private:
    std::optional<Error> m_error;
};

} // namespace wording
