// SPDX-License-Identifier: Apache-2.0
#include "mms/pdu.h"

#include "osi/bytes.h"
#include "samples.h"

#include <gtest/gtest.h>

#include <set>

using namespace mms;
using wiretest::fromHex;
using wiretest::packed;
using wiretest::Sample;
using wiretest::toHex;

namespace {

class PduSamples : public testing::TestWithParam<Sample>
{
};

std::string errorOf(std::string_view hex)
{
    const auto result = decodePdu(fromHex(hex));
    return result ? std::string() : result.error().message.english();
}

} // namespace

TEST_P(PduSamples, theValueIsWrittenAsItsOctets)
{
    EXPECT_EQ(toHex(encode(GetParam().pdu)), packed(GetParam().hex));
}

TEST_P(PduSamples, theOctetsAreReadAsTheValue)
{
    const auto result = decodePdu(fromHex(GetParam().hex));
    ASSERT_TRUE(result) << result.error().message;
    EXPECT_TRUE(*result == GetParam().pdu) << toText(*result);
}

TEST_P(PduSamples, oneOctetTooManyIsAnError)
{
    auto bytes = fromHex(GetParam().hex);
    bytes.push_back(0);
    const auto result = decodePdu(bytes);
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().message, "Something stands behind the end of MMSpdu.");
    EXPECT_EQ(result.error().offset, bytes.size() - 1);
}

TEST_P(PduSamples, everyTruncationIsAnError)
{
    const auto bytes = fromHex(GetParam().hex);
    for (std::size_t size = 0; size < bytes.size(); ++size)
        EXPECT_FALSE(decodePdu(Bytes(bytes).first(size))) << size;
}

TEST_P(PduSamples, theTextOfATraceSaysEverything)
{
    EXPECT_EQ(toText(GetParam().pdu), GetParam().text);
}

TEST_P(PduSamples, theHeadIsFoundWithoutReadingTheRest)
{
    const auto head = peekPdu(fromHex(GetParam().hex));
    ASSERT_TRUE(head);
    EXPECT_EQ(head->type, GetParam().pdu.index());
    if (const auto *request = std::get_if<ConfirmedRequestPdu>(&GetParam().pdu)) {
        EXPECT_EQ(head->invokeId, request->invokeId);
        EXPECT_TRUE(head->service);
    } else if (const auto *response = std::get_if<ConfirmedResponsePdu>(&GetParam().pdu)) {
        EXPECT_EQ(head->invokeId, response->invokeId);
        EXPECT_TRUE(head->service);
    } else if (const auto *reject = std::get_if<RejectPdu>(&GetParam().pdu)) {
        EXPECT_EQ(head->invokeId, reject->invokeId);
        EXPECT_FALSE(head->service);
    }
}

INSTANTIATE_TEST_SUITE_P(Mms, PduSamples, testing::ValuesIn(wiretest::samples()),
                         [](const auto &sample) { return sample.param.name; });

TEST(Pdu, samplesShowEveryPduAndEveryService)
{
    std::set<std::size_t> pdus;
    std::set<std::size_t> requests;
    std::set<std::size_t> responses;
    for (const Sample &sample : wiretest::samples()) {
        pdus.insert(sample.pdu.index());
        if (const auto *request = std::get_if<ConfirmedRequestPdu>(&sample.pdu))
            requests.insert(request->request.index());
        if (const auto *response = std::get_if<ConfirmedResponsePdu>(&sample.pdu))
            responses.insert(response->response.index());
    }
    EXPECT_EQ(pdus.size(), std::variant_size_v<Pdu>);
    EXPECT_EQ(requests.size(), std::variant_size_v<RequestService>);
    EXPECT_EQ(responses.size(), std::variant_size_v<ResponseService>);
}

TEST(Pdu, anInnerElementBeyondTheEndOfThePduIsAnError)
{
    int checked = 0;
    for (const Sample &sample : wiretest::samples()) {
        auto bytes = fromHex(sample.hex);
        const bool isGroup = (bytes[0] & 0x20U) != 0;
        if (!isGroup || bytes[1] >= 0x80)
            continue;
        bytes.pop_back();
        --bytes[1];
        EXPECT_FALSE(decodePdu(bytes)) << sample.name;
        ++checked;
    }
    EXPECT_GT(checked, 50);
}

TEST(Pdu, indefiniteLengthsAroundThePduAreAccepted)
{
    int checked = 0;
    for (const Sample &sample : wiretest::samples()) {
        const auto bytes = fromHex(sample.hex);
        const bool isGroup = (bytes[0] & 0x20U) != 0;
        if (!isGroup)
            continue;
        const std::size_t headerSize = bytes[1] < 0x80 ? 2 : 2 + (bytes[1] & 0x7FU);
        std::vector<std::uint8_t> indefinite = {bytes[0], 0x80};
        indefinite.insert(indefinite.end(), bytes.begin() + static_cast<std::ptrdiff_t>(headerSize),
                          bytes.end());
        indefinite.insert(indefinite.end(), {0, 0});
        const auto result = decodePdu(indefinite);
        ASSERT_TRUE(result) << sample.name << ": " << result.error().message;
        EXPECT_TRUE(*result == sample.pdu) << sample.name;
        ++checked;
    }
    EXPECT_GT(checked, 50);
}

TEST(Pdu, anAbsentMoreFollowsOfANameListMeansThatMoreFollows)
{
    const auto result = decodePdu(fromHex("a10c 020101 a107 a005 1a03 4c4430"));
    ASSERT_TRUE(result);
    const auto &list = std::get<GetNameListResponse>(std::get<1>(*result).response);
    EXPECT_EQ(list.names, std::vector<std::string>{"LD0"});
    EXPECT_TRUE(list.moreFollows);
}

TEST(Pdu, anAbsentMoreFollowsOfAFileReadMeansThatMoreFollows)
{
    const auto result = decodePdu(fromHex("a109 020101 bf49 03 800161"));
    ASSERT_TRUE(result) << result.error().message;
    EXPECT_TRUE(std::get<FileReadResponse>(std::get<1>(*result).response).moreFollows);
}

TEST(Pdu, anAbsentMoreFollowsOfADirectoryMeansTheEnd)
{
    const auto result = decodePdu(fromHex("a10a 020101 bf4d 04 a002 3000"));
    ASSERT_TRUE(result);
    EXPECT_FALSE(std::get<FileDirectoryResponse>(std::get<1>(*result).response).moreFollows);
}

TEST(Pdu, aDirectoryIsReadWithAndWithoutTheTagOfItsList)
{
    const auto with =
        decodePdu(fromHex("a117 020101 bf4d 11 a00f 300d 300b a003 190161 a1 04 80 0203e8"));
    const auto without =
        decodePdu(fromHex("a115 020101 bf4d 0f a00d 300b a003 190161 a1 04 80 0203e8"));
    ASSERT_TRUE(with) << with.error().message;
    ASSERT_TRUE(without) << without.error().message;
    EXPECT_TRUE(*with == *without);
    const auto &directory = std::get<FileDirectoryResponse>(std::get<1>(*without).response);
    ASSERT_EQ(directory.entries.size(), 1U);
    EXPECT_EQ(directory.entries[0].name, FileName{"a"});
    EXPECT_EQ(directory.entries[0].attributes.size, 1000U);
}

TEST(Pdu, anAnswerOfAnUnknownServiceKeepsItsInvokeId)
{
    const auto unknown = decodePdu(fromHex("a108 020109 bf55 02 0500"));
    ASSERT_TRUE(unknown) << unknown.error().message;
    const auto &pdu = std::get<ConfirmedResponsePdu>(*unknown);
    EXPECT_EQ(pdu.invokeId, 9U);
    EXPECT_TRUE(std::holds_alternative<UnknownService>(pdu.response));
}

TEST(Pdu, aMalformedAnswerCanStillBeMatchedToItsCall)
{
    const auto bytes = fromHex("a10a 020109 a405 a103 8302ff");
    EXPECT_FALSE(decodePdu(bytes));
    const auto head = peekPdu(bytes);
    ASSERT_TRUE(head);
    EXPECT_EQ(head->type, 1U);
    EXPECT_EQ(head->invokeId, 9U);
    EXPECT_EQ(head->service, 4U);
}

TEST(Pdu, whatIsNoPduIsSaid)
{
    EXPECT_EQ(errorOf(""), "The message is empty.");
    EXPECT_EQ(errorOf("0101ff"), "The message is no MMS PDU.");
    EXPECT_EQ(errorOf("ae00"), "The message is no MMS PDU.");
    EXPECT_EQ(errorOf("8000"), "The message is no MMS PDU.");
    EXPECT_EQ(errorOf("8b0100"), "An element that is empty by definition has content.");
    EXPECT_FALSE(peekPdu(fromHex("0101ff")));
    EXPECT_FALSE(peekPdu(fromHex("ae00")));
    EXPECT_FALSE(peekPdu({}));
}

TEST(Pdu, whatIsMissingOrUnknownIsNamed)
{
    EXPECT_EQ(errorOf("a000"), "The element invokeID is missing.");
    EXPECT_EQ(errorOf("a003020105"), "The element ConfirmedServiceRequest is missing.");
    EXPECT_EQ(errorOf("a0060201050101ff"), "An element stands where a service belongs.");
    EXPECT_EQ(errorOf("a0090201053000a4028000"), "Modifiers of a request are not supported.");
    EXPECT_EQ(errorOf("a0050201058400"), "");
    EXPECT_EQ(errorOf("a007020105a402a100"),
              "The element variableAccessSpecification is missing or of an unknown kind.");
    EXPECT_EQ(errorOf("a305a003a00100"), "The message ends within an element.");
    EXPECT_EQ(errorOf("a4038c0100"), "The element rejectReason is missing or of an unknown kind.");
    EXPECT_EQ(errorOf("a205800105a200"), "The element errorClass is missing.");
    EXPECT_EQ(errorOf("a20a800105a205a0038d0100"),
              "The element errorClass is missing or of an unknown kind.");
}

TEST(Pdu, anErrorNamesTheFirstOctetThatIsWrong)
{
    // The third value of a read answer is a boolean of two octets.
    const auto result = decodePdu(fromHex("a111 020105 a40c a10a 8301ff 850105 8302ffff"));
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().message, "A boolean has not one octet.");
    EXPECT_EQ(result.error().offset, 17U);
}

TEST(Pdu, nestingOfValuesIsLimited)
{
    for (const std::size_t depth : {29U, 30U}) {
        Data value = Data::integer(1);
        for (std::size_t level = 0; level < depth; ++level)
            value = Data::structure({value});
        const auto bytes = encode(Pdu(ConfirmedResponsePdu{1, ReadResponse{{}, {value}}}));
        const auto result = decodePdu(bytes);
        if (depth == 29) {
            EXPECT_TRUE(result);
        } else {
            ASSERT_FALSE(result);
            EXPECT_EQ(result.error().message, "The elements are nested too deeply.");
        }
    }
}

TEST(Pdu, aTypeAsDeepAsTheModelAllowsIsRead)
{
    // Node, constraint, object, sub-object, array, element, value, magnitude.
    TypeDescription type = TypeDescription::float32();
    for (const char *name : {"f", "mag", "cVal"})
        type = TypeDescription::structure({{name, type}});
    type = TypeDescription::array(16, type);
    for (const char *name : {"phsAHar", "HA", "MX"})
        type = TypeDescription::structure({{name, type}});
    const Pdu pdu = ConfirmedResponsePdu{1, GetVariableAccessAttributesResponse{false, {}, type}};
    const auto result = decodePdu(encode(pdu));
    ASSERT_TRUE(result) << result.error().message;
    EXPECT_TRUE(*result == pdu);
}

TEST(Pdu, theNumberOfElementsIsLimited)
{
    const std::vector<AccessResult> values(100, Data::boolean(true));
    const auto bytes = encode(Pdu(ConfirmedResponsePdu{1, ReadResponse{{}, values}}));
    EXPECT_TRUE(decodePdu(bytes, ber::Limits{.count = 100}));
    const auto refused = decodePdu(bytes, ber::Limits{.count = 99});
    ASSERT_FALSE(refused);
    EXPECT_EQ(refused.error().message, "The message holds more elements than allowed.");
}

TEST(Pdu, anInvokeIdOf32BitsIsKept)
{
    const Pdu pdu = ConfirmedRequestPdu{4294967295U, IdentifyRequest{}};
    EXPECT_EQ(toHex(encode(pdu)), "a009020500ffffffff8200");
    const auto withoutZero = decodePdu(fromHex("a0080204ffffffff8200"));
    ASSERT_TRUE(withoutZero);
    EXPECT_TRUE(*withoutZero == pdu);
}

TEST(Pdu, initiateTellsWhatTheOtherSideSupports)
{
    InitiateParameters parameters;
    parameters.services.set(static_cast<std::size_t>(Service::FileOpen));
    parameters.parameters.set(static_cast<std::size_t>(Parameter::AlternateAccess));
    EXPECT_TRUE(parameters.supports(Service::FileOpen));
    EXPECT_FALSE(parameters.supports(Service::FileRead));
    EXPECT_TRUE(parameters.supports(Parameter::AlternateAccess));
    EXPECT_FALSE(parameters.supports(Parameter::Addresses));
}

TEST(Pdu, servicesSupportedOfFewerBitsAreReadAsTheyAre)
{
    const auto result = decodePdu(fromHex("a813 810105 820105 a40b 800101 8102 0580 8202 03e8"));
    ASSERT_TRUE(result) << result.error().message;
    const auto &parameters = std::get<InitiateRequestPdu>(*result).parameters;
    EXPECT_TRUE(parameters.supports(Service::Read));
    EXPECT_FALSE(parameters.supports(Service::FileOpen));
    EXPECT_FALSE(parameters.maxPduSize);
}

TEST(Pdu, emptyAnswersAreTakenInEitherForm)
{
    const auto created = decodePdu(fromHex("a106 0202012c ab00"));
    ASSERT_TRUE(created) << created.error().message;
    EXPECT_TRUE(std::holds_alternative<DefineNamedVariableListResponse>(
        std::get<ConfirmedResponsePdu>(*created).response));
    const auto other = decodePdu(fromHex("a109 0202012c ab03800101"));
    ASSERT_TRUE(other) << other.error().message;
    EXPECT_FALSE(std::holds_alternative<DefineNamedVariableListResponse>(
        std::get<ConfirmedResponsePdu>(*other).response));
}

TEST(Pdu, rejectsAreExplained)
{
    EXPECT_EQ(describe(RejectPdu{7, RejectedPdu::ConfirmedRequest, 1}),
              "The device rejects a request (unrecognized-service).");
    EXPECT_EQ(describe(RejectPdu{{}, RejectedPdu::PduError, 77}),
              "The device rejects a message that it cannot read (77).");
}

TEST(ServiceErrors, areExplainedWithWhatTheDeviceAdds)
{
    ServiceError error;
    error.errorClass = ErrorClass::Access;
    error.code = serviceerrors::accessDenied;
    EXPECT_EQ(describe(error), "Access to the object is denied.");
    error.code = 99;
    error.additionalCode = 5;
    error.additionalDescription = "locked";
    EXPECT_EQ(describe(error),
              "The object cannot be accessed (error 99, additional code 5, \"locked\").");
    error = {};
    error.errorClass = ErrorClass::Resource;
    EXPECT_EQ(describe(error), "The device has not the resources for this.");
}
