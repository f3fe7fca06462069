// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/pdu.h"

#include <string>
#include <vector>

namespace wiretest {

/// A PDU three times: as a value, as its octets and as the text of a trace.
struct Sample
{
    std::string name;
    mms::Pdu pdu;
    std::string hex;
    std::string text;
};

/// At least one of every PDU and service, each without its optional fields and with them.
const std::vector<Sample> &samples();

} // namespace wiretest
