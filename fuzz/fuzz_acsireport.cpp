// SPDX-License-Identifier: Apache-2.0
#include "acsi/report.h"
#include "mms/pdu.h"

#include <cstdint>
#include <cstdlib>

/// Read any octets as a PDU and what it informs about as a report; whatever was read is written and
/// read again as the same report, and whatever cannot be read has an error in words.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto pdu = mms::decodePdu(mms::Bytes(data, size));
    if (!pdu)
        return 0;
    const auto *unconfirmed = std::get_if<mms::UnconfirmedPdu>(&*pdu);
    const auto *information =
        unconfirmed ? std::get_if<mms::InformationReport>(&unconfirmed->service) : nullptr;
    if (!information)
        return 0;
    const auto first = acsi::decodeReport(*information);
    if (!first) {
        if (first.error().message.empty())
            std::abort();
        return 0;
    }
    const auto second = acsi::decodeReport(acsi::encodeReport(*first));
    if (!second || !(*second == *first))
        std::abort();
    acsi::ReportAssembler assembler;
    const auto whole = assembler.take(*first, {});
    if (whole.has_value() == (first->subSqNum != 0 || first->moreSegmentsFollow))
        std::abort();
    return 0;
}
