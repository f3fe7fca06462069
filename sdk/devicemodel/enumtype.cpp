// SPDX-License-Identifier: Apache-2.0
#include "enumtype.h"

EnumType::~EnumType() = default;
