// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "workbench.h"

/// The driver of this process, with models read from SCL files.
Workbench::Driver makeEmbeddedDriver();
