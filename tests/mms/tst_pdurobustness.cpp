// SPDX-License-Identifier: Apache-2.0
#include "mms/pdu.h"

#include "osi/bytes.h"
#include "samples.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

using namespace mms;

namespace {

using Octets = std::vector<std::uint8_t>;
using Generator = std::mt19937;

std::size_t below(Generator &generator, std::size_t limit)
{
    return std::uniform_int_distribution<std::size_t>(0, limit - 1)(generator);
}

/// The function under test aborts when an input breaks a promise.
void run(const Octets &octets)
{
    // A copy of exact size, so that a sanitizer sees the first octet read beyond.
    const Octets exact(octets);
    LLVMFuzzerTestOneInput(exact.data(), exact.size());
}

std::vector<Octets> seeds()
{
    std::vector<Octets> result;
    for (const auto &sample : wiretest::samples())
        result.push_back(wiretest::fromHex(sample.hex));
    return result;
}

std::string anyText()
{
    return *rc::gen::arbitrary<std::string>();
}

BitString anyBits()
{
    BitString bits;
    const auto values = *rc::gen::arbitrary<std::vector<bool>>();
    for (std::size_t i = 0; i < values.size(); ++i)
        bits.set(i, values[i]);
    return bits;
}

Data anyData(int depth)
{
    const auto many = [depth] {
        std::vector<Data> children;
        for (int i = *rc::gen::inRange(0, 5); i > 0; --i)
            children.push_back(anyData(depth + 1));
        return children;
    };
    switch (*rc::gen::inRange(depth < 6 ? 0 : 2, 17)) {
    case 0:
        return Data::array(many());
    case 1:
        return Data::structure(many());
    case 2:
        return Data::boolean(*rc::gen::arbitrary<bool>());
    case 3:
        return Data::bitString(anyBits());
    case 4:
        return Data::integer(*rc::gen::arbitrary<std::int64_t>());
    case 5:
        return Data::unsignedInteger(*rc::gen::arbitrary<std::uint64_t>());
    case 6:
        return Data::float32(*rc::gen::arbitrary<float>());
    case 7:
        return Data::float64(*rc::gen::arbitrary<double>());
    case 8:
        return Data::octetString(*rc::gen::arbitrary<Octets>());
    case 9:
        return Data::visibleString(anyText());
    case 10:
        return Data::generalizedTime(anyText());
    case 11:
        return Data::binaryTime(
            {*rc::gen::arbitrary<std::uint32_t>(), *rc::gen::arbitrary<std::uint16_t>()});
    case 12:
        return Data::bcd(*rc::gen::arbitrary<std::uint32_t>());
    case 13:
        return Data::booleanArray(anyBits());
    case 14:
        return Data::objectIdentifier(
            std::vector<std::uint32_t>{1, 0, *rc::gen::arbitrary<std::uint32_t>()});
    case 15:
        return Data::mmsString(anyText());
    default:
        return Data::utcTime({*rc::gen::arbitrary<std::uint32_t>(),
                              *rc::gen::inRange<std::uint32_t>(0, 1U << 24),
                              *rc::gen::arbitrary<std::uint8_t>()});
    }
}

TypeDescription anyType(int depth)
{
    using T = TypeDescription;
    switch (*rc::gen::inRange(depth < 5 ? 0 : 2, 9)) {
    case 0:
        return T::array(*rc::gen::arbitrary<std::uint32_t>(), anyType(depth + 1));
    case 1: {
        std::vector<T::Component> components;
        for (int i = *rc::gen::inRange(0, 5); i > 0; --i)
            components.push_back({anyText(), anyType(depth + 1)});
        return T::structure(std::move(components));
    }
    case 2:
        return T::boolean();
    case 3:
        return T::bitString(*rc::gen::arbitrary<std::int32_t>());
    case 4:
        return T::integer(*rc::gen::arbitrary<std::uint8_t>());
    case 5:
        return T::float64();
    case 6:
        return T::visibleString(*rc::gen::arbitrary<std::int32_t>());
    case 7:
        return T::named(ObjectName::inDomain(anyText(), anyText()));
    default:
        return T::utcTime();
    }
}

std::vector<AlternateAccess> anyParts(int depth)
{
    std::vector<AlternateAccess> result;
    for (int i = *rc::gen::inRange(0, depth < 3 ? 3 : 1); i > 0; --i) {
        AlternateAccess access;
        switch (*rc::gen::inRange(0, 4)) {
        case 0:
            access = AlternateAccess::ofComponent(anyText());
            break;
        case 1:
            access = AlternateAccess::ofElement(*rc::gen::arbitrary<std::uint32_t>());
            break;
        case 2:
            access = AlternateAccess::ofElements(*rc::gen::arbitrary<std::uint32_t>(),
                                                 *rc::gen::arbitrary<std::uint32_t>());
            break;
        default:
            access = AlternateAccess::ofAllElements();
            break;
        }
        if (*rc::gen::arbitrary<bool>())
            access.name = anyText();
        access.parts = anyParts(depth + 1);
        result.push_back(std::move(access));
    }
    return result;
}

VariableAccessSpecification anyVariables()
{
    if (*rc::gen::inRange(0, 4) == 0)
        return ObjectName::ofAssociation(anyText());
    std::vector<VariableAccess> list;
    for (int i = *rc::gen::inRange(0, 5); i > 0; --i)
        list.push_back({ObjectName::inDomain(anyText(), anyText()), anyParts(0)});
    return list;
}

std::vector<AccessResult> anyResults()
{
    std::vector<AccessResult> results;
    for (int i = *rc::gen::inRange(0, 8); i > 0; --i) {
        if (*rc::gen::inRange(0, 4) == 0)
            results.emplace_back(static_cast<DataAccessError>(*rc::gen::arbitrary<std::int32_t>()));
        else
            results.emplace_back(anyData(0));
    }
    return results;
}

/// Written, read and written again, the PDU and its octets are the same.
void expectIdentity(const Pdu &pdu)
{
    const Octets written = encode(pdu);
    const auto read = decodePdu(written);
    RC_ASSERT(read.ok());
    RC_ASSERT(*read == pdu);
    RC_ASSERT(encode(*read) == written);
}

} // namespace

RC_GTEST_PROP(PduIdentity, ReadAnswersOfAnyValuesAreReadBackAsTheyWereWritten, ())
{
    expectIdentity(
        ConfirmedResponsePdu{*rc::gen::arbitrary<std::uint32_t>(), ReadResponse{{}, anyResults()}});
}

RC_GTEST_PROP(PduIdentity, ReportsOfAnyValuesAreReadBackAsTheyWereWritten, ())
{
    expectIdentity(UnconfirmedPdu{InformationReport{anyVariables(), anyResults()}});
}

RC_GTEST_PROP(PduIdentity, RequestsWithAnyPartsAreReadBackAsTheyWereWritten, ())
{
    const auto invokeId = *rc::gen::arbitrary<std::uint32_t>();
    expectIdentity(
        ConfirmedRequestPdu{invokeId, ReadRequest{*rc::gen::arbitrary<bool>(), anyVariables()}});
    expectIdentity(
        ConfirmedRequestPdu{invokeId, WriteRequest{anyVariables(), {anyData(0), anyData(0)}}});
}

RC_GTEST_PROP(PduIdentity, AnyTypesAreReadBackAsTheyWereWritten, ())
{
    expectIdentity(ConfirmedResponsePdu{
        1, GetVariableAccessAttributesResponse{*rc::gen::arbitrary<bool>(), {}, anyType(0)}});
}

TEST(PduRobustness, everyBeginningOfEverySampleIsHandled)
{
    for (const Octets &seed : seeds()) {
        for (std::size_t size = 0; size <= seed.size(); ++size)
            run({seed.begin(), seed.begin() + static_cast<std::ptrdiff_t>(size)});
    }
}

TEST(PduRobustness, everyOctetOfEverySampleMayHaveAnyValue)
{
    for (const Octets &seed : seeds()) {
        for (std::size_t i = 0; i < std::min<std::size_t>(seed.size(), 64); ++i) {
            Octets changed = seed;
            for (unsigned value = 0; value < 256; ++value) {
                changed[i] = static_cast<std::uint8_t>(value);
                run(changed);
            }
        }
    }
}

TEST(PduRobustness, severalChangedOctetsAreHandled)
{
    static constexpr std::uint8_t special[] = {0x00, 0x01, 0x7F, 0x80, 0x81, 0x82, 0x84, 0xFF,
                                               0x30, 0xA0, 0xA1, 0xA2, 0xBF, 0x1F, 0x19, 0x1A};
    const auto all = seeds();
    Generator generator(1);
    for (int i = 0; i < 200000; ++i) {
        Octets octets = all[below(generator, all.size())];
        for (std::size_t changes = below(generator, 5) + 1; changes > 0; --changes) {
            const std::size_t place = below(generator, octets.size());
            octets[place] = below(generator, 2) == 0
                                ? special[below(generator, std::size(special))]
                                : static_cast<std::uint8_t>(below(generator, 256));
        }
        run(octets);
    }
}

TEST(PduRobustness, piecesOfOneSampleInAnotherAreHandled)
{
    const auto all = seeds();
    Generator generator(2);
    for (int i = 0; i < 100000; ++i) {
        Octets octets = all[below(generator, all.size())];
        const Octets &other = all[below(generator, all.size())];
        const std::size_t from = below(generator, other.size());
        const std::size_t size = below(generator, other.size() - from) + 1;
        const auto piece = other.begin() + static_cast<std::ptrdiff_t>(from);
        const auto place =
            octets.begin() + static_cast<std::ptrdiff_t>(below(generator, octets.size()));
        octets.insert(place, piece, piece + static_cast<std::ptrdiff_t>(size));
        if (octets[1] < 0x80 && octets.size() < 130 && below(generator, 4) != 0)
            octets[1] = static_cast<std::uint8_t>(octets.size() - 2);
        run(octets);
    }
}
