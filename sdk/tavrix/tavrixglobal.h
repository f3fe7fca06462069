// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QtGlobal>

#if defined(TAVRIX_LIBRARY)
#define TAVRIX_EXPORT Q_DECL_EXPORT
#else
#define TAVRIX_EXPORT Q_DECL_IMPORT
#endif
