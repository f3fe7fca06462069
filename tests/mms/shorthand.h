// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/datacodec.h"
#include "mms/typedescription.h"
#include "mms/variableaccess.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace wiretest {

/// Octets that are one value and nothing else.
inline mms::Result<mms::Data> decodeData(osi::Bytes bytes)
{
    osi::ber::Input input(bytes, {});
    osi::ber::Reader reader = input.reader();
    mms::Data data = mms::DataCodec::readNext(reader);
    reader.expectEnd("Data");
    return input.finish(std::move(data));
}

/// Octets that are one type and nothing else.
inline mms::Result<mms::TypeDescription> decodeTypeDescription(osi::Bytes bytes)
{
    osi::ber::Input input(bytes, {});
    osi::ber::Reader reader = input.reader();
    mms::TypeDescription type = mms::TypeCodec::readNext(reader);
    reader.expectEnd("TypeSpecification");
    return input.finish(std::move(type));
}

inline std::vector<std::uint8_t> encode(const mms::Data &data)
{
    osi::ber::Writer writer;
    mms::DataCodec::write(writer, data);
    return writer.take();
}

inline std::vector<std::uint8_t> encode(const mms::TypeDescription &type)
{
    osi::ber::Writer writer;
    mms::TypeCodec::write(writer, type);
    return writer.take();
}

/// Variables of one domain.
inline mms::VariableAccessSpecification variablesOf(std::string_view domain,
                                                    const std::vector<std::string> &items)
{
    std::vector<mms::VariableAccess> list;
    for (const std::string &item : items)
        list.push_back({mms::ObjectName::inDomain(domain, item), {}});
    return list;
}

} // namespace wiretest
