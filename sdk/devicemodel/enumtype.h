// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "devicemodelglobal.h"

#include <QtCore/QMap>
#include <QtCore/QString>

/// An enumeration of the device: texts by ordinal. An empty id means "no such enumeration".
class DEVICEMODEL_EXPORT EnumType
{
public:
    EnumType() = default;
    EnumType(const EnumType &) = default;
    EnumType &operator=(const EnumType &) = default;
    virtual ~EnumType();

    QString id;
    QMap<int, QString> values;
};
