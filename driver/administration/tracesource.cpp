// SPDX-License-Identifier: Apache-2.0
#include "tracesource.h"

TraceSource::~TraceSource() = default;
