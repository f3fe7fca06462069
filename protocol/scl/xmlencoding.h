// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "wording/text.h"

#include <expat.h>

#include <string_view>

namespace scl {

/// In which encoding to read a file, and what is to be said of that.
struct EncodingChoice
{
    const char *name = nullptr; ///< null leaves the choice to the declaration
    wording::Text remark;
};

/// @param head the first octets of the file, with the XML declaration if there is one
EncodingChoice chooseEncoding(std::string_view head);

/// Handler of the parser for encodings that it does not know by itself: windows-1252 and
/// ISO-8859-15.
int XMLCALL unknownEncoding(void *, const XML_Char *name, XML_Encoding *info);

} // namespace scl
