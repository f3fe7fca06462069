// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/association.h"

namespace acsi {

/// What a discovery makes of an answer that is not the one it wanted.

/// The peer answers, but not the question.
bool isConfusion(const mms::CallOutcome &outcome);

/// There is no use in asking anything more.
bool endsDiscovery(const mms::CallOutcome &outcome);

/// Whether parts may be had of what is refused as a whole.
bool mayHaveParts(const mms::CallOutcome &outcome);

/// One sentence.
mms::Text whyUndescribed(const mms::CallOutcome &outcome);

} // namespace acsi
