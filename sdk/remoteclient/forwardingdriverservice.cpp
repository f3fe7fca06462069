// SPDX-License-Identifier: Apache-2.0
#include "forwardingdriverservice.h"

ForwardingDriverService::ForwardingDriverService() = default;

ForwardingDriverService::~ForwardingDriverService() = default;
