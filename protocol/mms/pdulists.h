// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/objectname.h"
#include "mms/variableaccess.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// Named lists of variables, which IEC 61850 calls data sets: what mms/pduservices.h says of its
// structs holds here as well.

namespace mms {

/// Makes a named list of variables.
struct DefineNamedVariableListRequest
{
    static constexpr ber::Tag tag = ber::Tag::group(11);

    ObjectName name;
    std::vector<VariableAccess> members;

    static DefineNamedVariableListRequest read(ber::Reader &outer, const ber::Element &element);
    void write(ber::Writer &writer) const;
    std::string text() const;
    friend bool operator==(const DefineNamedVariableListRequest &,
                           const DefineNamedVariableListRequest &) = default;
};

/// The list was made.
struct DefineNamedVariableListResponse
{
    static constexpr ber::Tag tag = ber::Tag::context(11);

    static DefineNamedVariableListResponse read(ber::Reader &outer, const ber::Element &element);
    void write(ber::Writer &writer) const;
    std::string text() const;
    friend bool operator==(const DefineNamedVariableListResponse &,
                           const DefineNamedVariableListResponse &) = default;
};

/// Asks for the members of a named list.
struct GetNamedVariableListAttributesRequest
{
    static constexpr ber::Tag tag = ber::Tag::group(12);

    ObjectName name;

    static GetNamedVariableListAttributesRequest read(ber::Reader &outer,
                                                      const ber::Element &element);
    void write(ber::Writer &writer) const;
    std::string text() const;
    friend bool operator==(const GetNamedVariableListAttributesRequest &,
                           const GetNamedVariableListAttributesRequest &) = default;
};

/// The members of a named list.
struct GetNamedVariableListAttributesResponse
{
    static constexpr ber::Tag tag = ber::Tag::group(12);

    bool deletable = false;
    std::vector<VariableAccess> members;

    static GetNamedVariableListAttributesResponse read(ber::Reader &outer,
                                                       const ber::Element &element);
    void write(ber::Writer &writer) const;
    std::string text() const;
    friend bool operator==(const GetNamedVariableListAttributesResponse &,
                           const GetNamedVariableListAttributesResponse &) = default;
};

/// Deletes named lists.
struct DeleteNamedVariableListRequest
{
    static constexpr ber::Tag tag = ber::Tag::group(13);

    /// 0 the lists named here, 1 all of the association, 2 all of a domain, 3 all of the device.
    std::int32_t scopeOfDelete = 0;
    std::vector<ObjectName> names;
    std::optional<std::string> domain;

    static DeleteNamedVariableListRequest read(ber::Reader &outer, const ber::Element &element);
    void write(ber::Writer &writer) const;
    std::string text() const;
    friend bool operator==(const DeleteNamedVariableListRequest &,
                           const DeleteNamedVariableListRequest &) = default;
};

/// How many lists the request named, and how many of them are deleted.
struct DeleteNamedVariableListResponse
{
    static constexpr ber::Tag tag = ber::Tag::group(13);

    std::uint32_t matched = 0;
    std::uint32_t deleted = 0;

    static DeleteNamedVariableListResponse read(ber::Reader &outer, const ber::Element &element);
    void write(ber::Writer &writer) const;
    std::string text() const;
    friend bool operator==(const DeleteNamedVariableListResponse &,
                           const DeleteNamedVariableListResponse &) = default;
};

} // namespace mms
