// SPDX-License-Identifier: Apache-2.0
#include "driveradministration.h"

DriverAdministration::~DriverAdministration() = default;
