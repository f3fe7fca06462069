// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "xmltree.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory_resource>

namespace scl {

/// Gives up to `size` further bytes of the file; 0 at its end, negative on a read error.
using ByteSource = std::function<std::ptrdiff_t(char *buffer, std::size_t size)>;

/// Parses what @p source gives into @p tree.
/// @param totalBytes size of the file for the progress; 0 when it is not known
/// @param progress called with 0 … 1, may be empty
XmlError parseXml(const ByteSource &source, std::uint64_t totalBytes, const ReadOptions &options,
                  const std::function<void(double)> &progress, std::pmr::memory_resource &memory,
                  XmlTree &tree);

} // namespace scl
