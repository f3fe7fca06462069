// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/data.h"
#include "mms/objectname.h"
#include "mms/typedescription.h"
#include "mms/variableaccess.h"

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

// Requests and answers of confirmed services as plain structs. Each has the same four members:
// - tag: its element in the PDU,
// - read(): from that element, which was the next of the reader @a outer; errors are in the input,
// - write(): the content of that element,
// - text(): for traces, without the name of the service.
// Plain values may be copied and moved between threads.

namespace mms {

/// Asks for the state of the device.
struct StatusRequest
{
    static constexpr ber::Tag tag = ber::Tag::context(0);

    bool extendedDerivation = false;

    static StatusRequest read(ber::Reader &outer, const ber::Element &element);
    void write(ber::Writer &writer) const;
    std::string text() const;
    friend bool operator==(const StatusRequest &, const StatusRequest &) = default;
};

/// The logical and physical state of the device.
struct StatusResponse
{
    static constexpr ber::Tag tag = ber::Tag::group(0);

    /// 0 state changes allowed, 1 no state changes allowed, 2 limited services permitted, 3 support
    /// services allowed.
    std::int32_t logicalStatus = 0;
    /// 0 operational, 1 partially operational, 2 inoperable, 3 needs commissioning.
    std::int32_t physicalStatus = 0;
    std::optional<BitString> localDetail;

    static StatusResponse read(ber::Reader &outer, const ber::Element &element);
    void write(ber::Writer &writer) const;
    std::string text() const;
    friend bool operator==(const StatusResponse &, const StatusResponse &) = default;
};

/// Asks who made the device.
struct IdentifyRequest
{
    static constexpr ber::Tag tag = ber::Tag::context(2);

    static IdentifyRequest read(ber::Reader &outer, const ber::Element &element);
    void write(ber::Writer &writer) const;
    std::string text() const;
    friend bool operator==(const IdentifyRequest &, const IdentifyRequest &) = default;
};

/// Who made the device.
struct IdentifyResponse
{
    static constexpr ber::Tag tag = ber::Tag::group(2);

    std::string vendor;
    std::string model;
    std::string revision;
    /// Object identifiers of abstract syntaxes.
    std::vector<std::vector<std::uint32_t>> abstractSyntaxes;

    static IdentifyResponse read(ber::Reader &outer, const ber::Element &element);
    void write(ber::Writer &writer) const;
    std::string text() const;
    friend bool operator==(const IdentifyResponse &, const IdentifyResponse &) = default;
};

/// Asks for the names of the objects of a class in a scope.
struct GetNameListRequest
{
    static constexpr ber::Tag tag = ber::Tag::group(1);

    ObjectClass objectClass = ObjectClass::Domain;
    Scope scope = Scope::Vmd;
    /// Empty unless the scope is a domain.
    std::string domain;
    /// The last name of the page before.
    std::optional<std::string> continueAfter;

    static GetNameListRequest read(ber::Reader &outer, const ber::Element &element);
    void write(ber::Writer &writer) const;
    std::string text() const;
    friend bool operator==(const GetNameListRequest &, const GetNameListRequest &) = default;
};

/// One page of names.
struct GetNameListResponse
{
    static constexpr ber::Tag tag = ber::Tag::group(1);

    std::vector<std::string> names;
    /// True as well when the device does not say.
    bool moreFollows = true;

    static GetNameListResponse read(ber::Reader &outer, const ber::Element &element);
    void write(ber::Writer &writer) const;
    std::string text() const;
    friend bool operator==(const GetNameListResponse &, const GetNameListResponse &) = default;
};

/// Asks for the type of a variable.
struct GetVariableAccessAttributesRequest
{
    static constexpr ber::Tag tag = ber::Tag::group(6);

    /// A name or an address.
    std::variant<ObjectName, Address> variable;

    static GetVariableAccessAttributesRequest read(ber::Reader &outer, const ber::Element &element);
    void write(ber::Writer &writer) const;
    std::string text() const;
    friend bool operator==(const GetVariableAccessAttributesRequest &,
                           const GetVariableAccessAttributesRequest &) = default;
};

/// The type of a variable.
struct GetVariableAccessAttributesResponse
{
    static constexpr ber::Tag tag = ber::Tag::group(6);

    bool deletable = false;
    std::optional<Address> address;
    TypeDescription type;

    static GetVariableAccessAttributesResponse read(ber::Reader &outer,
                                                    const ber::Element &element);
    void write(ber::Writer &writer) const;
    std::string text() const;
    friend bool operator==(const GetVariableAccessAttributesResponse &,
                           const GetVariableAccessAttributesResponse &) = default;
};

/// Asks for values.
struct ReadRequest
{
    static constexpr ber::Tag tag = ber::Tag::group(4);

    /// Whether the answer shall repeat the variables.
    bool specificationWithResult = false;
    VariableAccessSpecification variables;

    static ReadRequest read(ber::Reader &outer, const ber::Element &element);
    void write(ber::Writer &writer) const;
    std::string text() const;
    friend bool operator==(const ReadRequest &, const ReadRequest &) = default;
};

/// A result for each variable.
struct ReadResponse
{
    static constexpr ber::Tag tag = ber::Tag::group(4);

    std::optional<VariableAccessSpecification> variables;
    std::vector<AccessResult> results;

    static ReadResponse read(ber::Reader &outer, const ber::Element &element);
    void write(ber::Writer &writer) const;
    std::string text() const;
    friend bool operator==(const ReadResponse &, const ReadResponse &) = default;
};

/// Writes a value into each variable.
struct WriteRequest
{
    static constexpr ber::Tag tag = ber::Tag::group(5);

    VariableAccessSpecification variables;
    std::vector<Data> values;

    static WriteRequest read(ber::Reader &outer, const ber::Element &element);
    void write(ber::Writer &writer) const;
    std::string text() const;
    friend bool operator==(const WriteRequest &, const WriteRequest &) = default;
};

/// A result for each variable.
struct WriteResponse
{
    static constexpr ber::Tag tag = ber::Tag::group(5);

    /// None where the value was written.
    std::vector<std::optional<DataAccessError>> results;

    static WriteResponse read(ber::Reader &outer, const ber::Element &element);
    void write(ber::Writer &writer) const;
    std::string text() const;
    friend bool operator==(const WriteResponse &, const WriteResponse &) = default;
};

/// Values that a device sends unasked. It has the members of a service's request; its element is
/// one of the unconfirmed PDU.
struct InformationReport
{
    static constexpr ber::Tag tag = ber::Tag::group(0);

    VariableAccessSpecification variables;
    std::vector<AccessResult> results;

    static InformationReport read(ber::Reader &outer, const ber::Element &element);
    void write(ber::Writer &writer) const;
    std::string text() const;
    friend bool operator==(const InformationReport &, const InformationReport &) = default;
};

} // namespace mms
