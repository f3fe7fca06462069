// SPDX-License-Identifier: Apache-2.0
// Shared by the sources that transfer files; not for the folder's users.
#pragma once

#include "acsi/files.h"
#include "mms/pdu.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace acsi {

/// One part with '/' between directories and none at the beginning, whatever the peer sends.
std::string plainName(const mms::FileName &name);
std::string plainName(std::string_view name);

/// How peers may want a file to be called: first as given, then with and without a leading
/// separator, then with the other separator; then the same in the octets of ISO 8859-1.
std::vector<std::string> spellingsOf(const std::string &name);
/// The same for a directory; nothing stands for the root.
std::vector<std::optional<std::string>> directorySpellingsOf(const std::string &directory);

/// Whether another spelling may help.
bool isUnknownName(const mms::CallOutcome &outcome);

/// What is directly in a directory, from what a peer says is below it.
std::vector<FileEntry> oneLevel(const std::string &directory,
                                const std::vector<mms::DirectoryEntry> &entries);

} // namespace acsi
