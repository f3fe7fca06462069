// SPDX-License-Identifier: Apache-2.0
#include "driverservice.h"

DriverService::~DriverService() = default;
