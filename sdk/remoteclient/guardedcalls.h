// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "controllercallguard.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QStringList>

#include <optional>
#include <type_traits>

/// The "in" arguments of a call by their type, in their order.
struct CallArguments
{
    QStringList texts;
    QByteArray bytes;
    QVariant value;

    void add(const QString &text) { texts << text; }
    void add(const QByteArray &given) { bytes = given; }
    void add(int number) { value = number; }
    void add(const QList<SGCBValue> &values);
    void add(const QStringList &) {}
    void add(const ReportBlock &) {}

    /// Arguments that the driver fills say nothing of the request.
    template <typename Argument>
    void addIn(Argument &argument)
    {
        if constexpr (std::is_const_v<Argument> || std::is_arithmetic_v<Argument>)
            add(argument);
    }
};

/// What a guard is told of an operation; nothing of one that changes nothing.
std::optional<GuardedCall> guardedCall(const char *operation, const CallArguments &arguments);
