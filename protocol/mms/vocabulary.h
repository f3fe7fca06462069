// SPDX-License-Identifier: Apache-2.0
// The words that MMS takes over from the layers below it.
#pragma once

#include "osi/ber.h"
#include "osi/tpkt.h"

namespace mms {

namespace ber = osi::ber;

using osi::BitString;
using osi::Bytes;
using osi::Octets;
using wording::Error;
using wording::Result;
using wording::say;
using wording::Text;
using wording::verbatim;

} // namespace mms
