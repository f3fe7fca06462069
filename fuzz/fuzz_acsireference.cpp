// SPDX-License-Identifier: Apache-2.0
#include "acsi/reference.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>

/// Read any text as a reference; whatever was read is printed, accessed and read again as the same
/// reference, and whatever cannot be read has an error.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char *>(data), size);
    const auto check = [](bool holds) {
        if (!holds)
            std::abort();
    };
    const auto first = acsi::parseReference(text);
    if (first) {
        const auto printed = acsi::parseReference(acsi::toText(*first));
        check(printed && *printed == *first);
        if (!first->node.empty()) {
            const auto item = acsi::parseReference(first->device, acsi::itemText(*first));
            check(item && *item == *first);
            const auto accessed = acsi::referenceOf(acsi::accessOf(*first));
            check(accessed && *accessed == *first);
        }
    } else {
        check(!first.error().message.empty());
    }
    return 0;
}
