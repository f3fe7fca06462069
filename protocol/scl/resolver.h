// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "xmltree.h"

namespace scl {

/// Fills @p document from the elements of a file. Returns the error that makes the file unusable,
/// if any; what can be lived with becomes a finding of the document.
XmlError resolve(const XmlTree &tree, const ReadOptions &options,
                 const std::function<void(double)> &progress, Document &document);

} // namespace scl
