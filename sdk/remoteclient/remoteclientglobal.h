// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QtGlobal>

#if defined(REMOTECLIENT_LIBRARY)
#define REMOTECLIENT_EXPORT Q_DECL_EXPORT
#else
#define REMOTECLIENT_EXPORT Q_DECL_IMPORT
#endif
