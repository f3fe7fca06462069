// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <CLI/CLI.hpp>

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>
#include <string>
#include <utility>
#include <vector>

// What the descriptions of options and commands share.

inline QString text(const std::string &bytes)
{
    return QString::fromStdString(bytes);
}

inline QStringList texts(const std::vector<std::string> &list)
{
    QStringList result;
    for (const std::string &each : list)
        result.append(text(each));
    return result;
}

/// The value of an option, nothing when it was not given.
inline std::optional<QString> optionalText(const CLI::Option *option, const std::string &value)
{
    return option->count() > 0 ? std::optional(text(value)) : std::nullopt;
}

/// A check that does not show in the help: the option's text says the range.
inline CLI::Validator unnamed(CLI::Validator check)
{
    return check.description({});
}
