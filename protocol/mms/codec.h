// SPDX-License-Identifier: Apache-2.0
// Shared by the sources that read and write PDUs; not for the folder's users.
#pragma once

#include "mms/objectname.h"
#include "mms/serviceerror.h"
#include "mms/variableaccess.h"
#include "mms/vocabulary.h"

#include <string>
#include <string_view>
#include <vector>

namespace mms::codec {

using ber::Element;
using ber::Reader;
using ber::Tag;
using ber::Writer;

ObjectName readObjectName(Reader &reader);
void write(Writer &writer, const ObjectName &name);

/// An object name inside a group of its own.
ObjectName readObjectName(Reader &reader, Tag group, std::string_view what);
void write(Writer &writer, Tag group, const ObjectName &name);

Address readAddress(Reader &reader);
void write(Writer &writer, const Address &address);

VariableSpecification readVariableSpecification(Reader &reader);
void write(Writer &writer, const VariableSpecification &specification);

/// The members of a list, and the list's content.
std::vector<VariableAccess> readVariableList(Reader reader);
void write(Writer &writer, const std::vector<VariableAccess> &list);

VariableAccessSpecification readVariableAccessSpecification(Reader &reader);
void write(Writer &writer, const VariableAccessSpecification &specification);

/// The content of a service error.
ServiceError readServiceError(Reader reader);
void write(Writer &writer, const ServiceError &error);

/// The English of a sentence within the text of a trace.
inline std::string withoutFullStop(const Text &sentence)
{
    return sentence.english().substr(0, sentence.english().find_last_not_of('.') + 1);
}

/// A flag within the text of a trace.
inline std::string yesNo(const char *name, bool value)
{
    return std::string(name) + (value ? " true" : " false");
}

/// Elements separated by ", ".
template <typename Range, typename Function>
std::string joined(const Range &range, Function function)
{
    std::string result;
    bool first = true;
    for (const auto &element : range) {
        if (!first)
            result += ", ";
        first = false;
        result += function(element);
    }
    return result;
}

} // namespace mms::codec
