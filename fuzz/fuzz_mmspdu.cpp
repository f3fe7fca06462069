// SPDX-License-Identifier: Apache-2.0
#include "mms/pdu.h"

#include <cstdint>
#include <cstdlib>

/// Read any octets as one PDU; whatever was read is written and read again as the same PDU, and
/// whatever cannot be read has an error within the input.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const mms::Bytes bytes(data, size);
    const auto head = mms::peekPdu(bytes);
    const auto first = mms::decodePdu(bytes);
    if (!first) {
        if (first.error().message.empty() || first.error().offset > size)
            std::abort();
        return 0;
    }
    if (!head || head->type != first->index() || mms::toText(*first).empty())
        std::abort();
    const auto written = mms::encode(*first);
    const auto second = mms::decodePdu(written);
    if (!second || !(*second == *first) || mms::encode(*second) != written)
        std::abort();
    return 0;
}
