// SPDX-License-Identifier: Apache-2.0
#include "driverconsolinterface.h"

DriverConsolInterface::~DriverConsolInterface() = default;
