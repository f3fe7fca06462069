// SPDX-License-Identifier: Apache-2.0
// The class is all in the header; this file makes it a plug-in.
#include "fakeextension.h"
