// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QtGlobal>

#if defined(PROPERTYBROWSER_LIBRARY)
#define PROPERTYBROWSER_EXPORT Q_DECL_EXPORT
#else
#define PROPERTYBROWSER_EXPORT Q_DECL_IMPORT
#endif
