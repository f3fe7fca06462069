// SPDX-License-Identifier: Apache-2.0
// The words of results and sentences, for all layers.
#pragma once

#include "wording/result.h"

namespace osi {

using wording::Error;
using wording::Result;
using wording::say;
using wording::Text;
using wording::verbatim;

} // namespace osi
