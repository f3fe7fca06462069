// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QtGlobal>

#if defined(DEVICEMODEL_LIBRARY)
#define DEVICEMODEL_EXPORT Q_DECL_EXPORT
#else
#define DEVICEMODEL_EXPORT Q_DECL_IMPORT
#endif
