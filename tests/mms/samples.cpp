// SPDX-License-Identifier: Apache-2.0
#include "samples.h"

namespace wiretest {

using namespace mms;

namespace {

using Parts = std::vector<AlternateAccess>;
using Variables = std::vector<VariableAccess>;

Variables oneVariable(const char *item)
{
    return {{ObjectName::inDomain("LD0", item), {}}};
}

InitiateParameters parameters(bool withOptions)
{
    InitiateParameters result;
    result.maxOutstandingCalling = 5;
    result.maxOutstandingCalled = 5;
    if (withOptions) {
        result.maxPduSize = 65000;
        result.nestingLevel = 10;
    }
    result.parameters = BitString::fromText("11110001000");
    for (const Service service :
         {Service::Status, Service::GetNameList, Service::Identify, Service::Read, Service::Write,
          Service::InformationReport, Service::Conclude})
        result.services.set(static_cast<std::size_t>(service));
    return result;
}

Data everyKindOfValue()
{
    const BitString bits = BitString::fromText("0100000000001");
    return Data::structure(
        {Data::array({Data::integer(1), Data::integer(-129)}), Data::boolean(true),
         Data::bitString(bits), Data::integer(-1), Data::unsignedInteger(4294967295U),
         Data::float32(1.5F), Data::float64(-0.1),
         Data::octetString(std::vector<std::uint8_t>{0xCA, 0xFE}), Data::visibleString("text"),
         Data::generalizedTime("20210304050607.123Z"), Data::binaryTime({18367123, 13577}),
         Data::binaryTime({18367123, {}}), Data::bcd(42), Data::booleanArray(bits),
         Data::objectIdentifier(std::vector<std::uint32_t>{1, 0, 9506, 2, 1}),
         Data::mmsString("a \"text\" of more than eight octets\n"),
         Data::utcTime({1614834367, 0x800000, 0x4A})});
}

TypeDescription everyKindOfType()
{
    using T = TypeDescription;
    return T::structure(
        {{"Mod",
          T::structure({{"stVal", T::boolean()}, {"q", T::bitString(-13)}, {"t", T::utcTime()}})},
         {"har", T::array(16, T::float32())},
         {"i", T::integer(32)},
         {"u", T::unsignedInteger(16)},
         {"d", T::float64()},
         {"o", T::octetString(-64)},
         {"v", T::visibleString(-255)},
         {"m", T::mmsString(-255)},
         {"e", T::binaryTime(true)}});
}

JournalEntry journalEntry()
{
    JournalEntry entry;
    entry.id = {0, 0, 0, 1};
    entry.time = {18367123, 13577};
    JournalEntry::Record record;
    record.event = JournalEvent{ObjectName::inDomain("LD0", "LLN0$LT$Log"), 2};
    record.variables = {{"LD0/GGIO1$ST$Ind1$stVal", Data::boolean(true)},
                        {"ReasonCode", Data::bitString(BitString::fromText("010000"))}};
    entry.content = record;
    return entry;
}

ServiceError fullError()
{
    ServiceError error;
    error.errorClass = ErrorClass::File;
    error.code = serviceerrors::fileNonExistent;
    error.additionalCode = -7;
    error.additionalDescription = "no such file";
    error.serviceSpecific = RawElement{ber::Tag::context(9), {1}};
    return error;
}

ServiceError plainError(ErrorClass errorClass, std::int32_t code)
{
    ServiceError error;
    error.errorClass = errorClass;
    error.code = code;
    return error;
}

std::vector<Sample> makeSamples()
{
    std::vector<Sample> result;
    const auto add = [&](const char *name, Pdu pdu, const char *hex, const char *text) {
        result.push_back({name, std::move(pdu), hex, text});
    };
    const auto request = [&](const char *name, RequestService service, const char *hex,
                             const char *text) {
        add(name, ConfirmedRequestPdu{5, std::move(service)}, hex, text);
    };
    const auto response = [&](const char *name, ResponseService service, const char *hex,
                              const char *text) {
        add(name, ConfirmedResponsePdu{300, std::move(service)}, hex, text);
    };

    add("initiateRequest", InitiateRequestPdu{parameters(true)},
        "a826800300fde881010582010583010aa416800101810305f100820c03ec0000000000000000"
        "0110",
        "initiate-RequestPDU PDU size 65000, outstanding calls 5 and 5, nesting level 10, version 1, parameters '11110001000'B, services '1110110000000000000000000000000000000000000000000000000000000000000000000000000100010'B");
    add("initiateRequestWithoutOptions", InitiateRequestPdu{parameters(false)},
        "a81e810105820105a416800101810305f100820c03ec00000000000000000110",
        "initiate-RequestPDU outstanding calls 5 and 5, version 1, parameters '11110001000'B, services '1110110000000000000000000000000000000000000000000000000000000000000000000000000100010'B");
    add("initiateResponse", InitiateResponsePdu{parameters(true)},
        "a926800300fde881010582010583010aa416800101810305f100820c03ec0000000000000000"
        "0110",
        "initiate-ResponsePDU PDU size 65000, outstanding calls 5 and 5, nesting level 10, version 1, parameters '11110001000'B, services '1110110000000000000000000000000000000000000000000000000000000000000000000000000100010'B");
    add("initiateError", InitiateErrorPdu{plainError(ErrorClass::Initiate, 3)}, "aa05a003880103",
        "initiate-ErrorPDU initiate: max-services-outstanding-calling-insufficient");
    add("concludeRequest", ConcludeRequestPdu{}, "8b00", "conclude-RequestPDU");
    add("concludeResponse", ConcludeResponsePdu{}, "8c00", "conclude-ResponsePDU");
    add("concludeError", ConcludeErrorPdu{plainError(ErrorClass::Conclude, 1)}, "ad05a003890101",
        "conclude-ErrorPDU conclude: further-communication-required");
    add("cancelRequest", CancelRequestPdu{200}, "850200c8", "cancel-RequestPDU 200");
    add("cancelResponse", CancelResponsePdu{200}, "860200c8", "cancel-ResponsePDU 200");
    add("cancelError", CancelErrorPdu{200, plainError(ErrorClass::Cancel, 1)},
        "a70b800200c8a105a0038a0101", "cancel-ErrorPDU 200 cancel: invoke-id-unknown");
    add("reject", RejectPdu{7, RejectedPdu::ConfirmedRequest, rejectcodes::requestInvalidArgument},
        "a406800107810104", "rejectPDU 7 confirmed-requestPDU: invalid-argument");
    add("rejectWithoutInvokeId", RejectPdu{{}, RejectedPdu::PduError, rejectcodes::pduInvalid},
        "a403850101", "rejectPDU pdu-error: invalid-pdu");
    add("confirmedError",
        ConfirmedErrorPdu{5, {}, plainError(ErrorClass::Access, serviceerrors::accessNonExistent)},
        "a20a800105a205a003870102", "confirmed-ErrorPDU 5 access: object-non-existent");
    add("confirmedErrorWithOptions", ConfirmedErrorPdu{5, 1, fullError()},
        "a223800105810101a21ba0038b01078101f9820c6e6f20737563682066696c65a303890101",
        "confirmed-ErrorPDU 5 modifier 1 file: file-non-existent, additional code -7, \"no such file\"");
    request("statusRequest", StatusRequest{true}, "a0060201058001ff",
            "confirmed-RequestPDU 5 status extended derivation true");
    response("statusResponse", StatusResponse{0, 1, {}}, "a10c0202012ca006800100810101",
             "confirmed-ResponsePDU 300 status logical status 0, physical status 1");
    response(
        "statusResponseWithDetail", StatusResponse{0, 0, BitString::fromText("1010")},
        "a1100202012ca00a800100810100820204a0",
        "confirmed-ResponsePDU 300 status logical status 0, physical status 0, local detail '1010'B");
    request("identifyRequest", IdentifyRequest{}, "a0050201058200",
            "confirmed-RequestPDU 5 identify");
    response(
        "identifyResponse", IdentifyResponse{"Vendor", "Model", "1.0", {}},
        "a11a0202012ca214800656656e646f7281054d6f64656c8203312e30",
        "confirmed-ResponsePDU 300 identify vendor \"Vendor\", model \"Model\", revision \"1.0\"");
    response(
        "identifyResponseWithSyntaxes",
        IdentifyResponse{"Vendor", "Model", "1.0", {{1, 0, 9506, 2, 1}}},
        "a1230202012ca21d800656656e646f7281054d6f64656c8203312e30a307060528ca220201",
        "confirmed-ResponsePDU 300 identify vendor \"Vendor\", model \"Model\", revision \"1.0\", syntax 1.0.9506.2.1");
    request("getNameListRequestOfVmd", GetNameListRequest{ObjectClass::Domain, Scope::Vmd, {}, {}},
            "a00e020105a109a003800109a1028000",
            "confirmed-RequestPDU 5 getNameList domain of the VMD");
    request("getNameListRequestOfDomain",
            GetNameListRequest{ObjectClass::NamedVariable, Scope::Domain, "LD0", "LLN0$ST"},
            "a01a020105a115a003800100a10581034c443082074c4c4e30245354",
            "confirmed-RequestPDU 5 getNameList namedVariable of domain \"LD0\" after \"LLN0$ST\"");
    request("getNameListRequestOfAssociation",
            GetNameListRequest{ObjectClass::NamedVariableList, Scope::Association, {}, {}},
            "a00e020105a109a003800102a1028200",
            "confirmed-RequestPDU 5 getNameList namedVariableList of the association");
    response("getNameListResponse", GetNameListResponse{{"LD0", "LD1"}, false},
             "a1150202012ca10fa00a1a034c44301a034c4431810100",
             "confirmed-ResponsePDU 300 getNameList {\"LD0\", \"LD1\"}, more follows false");
    response("getNameListResponseWithMore", GetNameListResponse{{"LD0"}, true},
             "a1100202012ca10aa0051a034c44308101ff",
             "confirmed-ResponsePDU 300 getNameList {\"LD0\"}, more follows true");
    request("getVariableAccessAttributesRequest",
            GetVariableAccessAttributesRequest{ObjectName::inDomain("LD0", "LLN0")},
            "a014020105a60fa00da10b1a034c44301a044c4c4e30",
            "confirmed-RequestPDU 5 getVariableAccessAttributes LD0/LLN0");
    request("getVariableAccessAttributesRequestOfAddress",
            GetVariableAccessAttributesRequest{Address{Address::Kind::Symbolic, 0, "sym"}},
            "a00c020105a607a105810373796d",
            "confirmed-RequestPDU 5 getVariableAccessAttributes address \"sym\"");
    response(
        "getVariableAccessAttributesResponse",
        GetVariableAccessAttributesResponse{false, {}, everyKindOfType()},
        "a181a50202012ca6819e800100a28198a28195a18192302b80034d6f64a124a222a120300b80"
        "05737456616ca10283003008800171a1038401f33007800174a102910030168003686172a10f"
        "a10d810110a208a7060201200201083008800169a1038501203008800175a103860110300d80"
        "0164a108a70602014002010b300880016fa1038901c03009800176a1048a02ff01300980016d"
        "a1049002ff013008800165a1038c01ff",
        "confirmed-ResponsePDU 300 getVariableAccessAttributes deletable false, {Mod: {stVal: boolean, q: bit-string(-13), t: utc-time}, har: [16] floating-point(32), i: integer(32), u: unsigned(16), d: floating-point(64), o: octet-string(-64), v: visible-string(-255), m: mMSString(-255), e: binary-time with date}");
    response(
        "getVariableAccessAttributesResponseWithAddress",
        GetVariableAccessAttributesResponse{true, Address{Address::Kind::Numeric, 1000, {}},
                                            TypeDescription::named(ObjectName::ofVmd("T"))},
        "a1160202012ca6108001ffa104800203e8a205a003800154",
        "confirmed-ResponsePDU 300 getVariableAccessAttributes deletable true, address 1000, type T");
    request("readRequest", ReadRequest{false, oneVariable("LLN0$ST$Mod")},
            "a021020105a41ca11aa0183016a014a1121a034c44301a0b4c4c4e30245354244d6f64",
            "confirmed-RequestPDU 5 read LD0/LLN0$ST$Mod");
    request("readRequestOfList", ReadRequest{true, ObjectName::inDomain("LD0", "LLN0$ds1")},
            "a01d020105a4188001ffa113a111a10f1a034c44301a084c4c4e3024647331",
            "confirmed-RequestPDU 5 read list LD0/LLN0$ds1, with specification");
    request("readRequestOfElements",
            ReadRequest{
                false,
                Variables{{ObjectName::inDomain("LD0", "MHAI1$MX$HA"),
                           {AlternateAccess::ofComponent(
                               "phsAHar", {AlternateAccess::ofElement(
                                              3, {AlternateAccess::ofComponent("mag")})})}},
                          {ObjectName::ofVmd("v"),
                           {AlternateAccess::ofElements(2, 4), AlternateAccess::ofAllElements()}}}},
            "a04f020105a44aa148a0463031a014a1121a034c44301a0b4d48414931244d58244841a519a0"
            "17800770687341486172300ca00a810103300581036d61673011a003800176a50aa306800102"
            "8101048400",
            "confirmed-RequestPDU 5 read LD0/MHAI1$MX$HA.phsAHar(3).mag, v{(2..5), (*)}");
    request("readRequestOfAddresses",
            ReadRequest{false, Variables{{Address{Address::Kind::Unconstrained, 0, "ab"}, {}},
                                         {InvalidatedVariable{}, {}}}},
            "a015020105a410a10ea00c3006a1048202616230028400",
            "confirmed-RequestPDU 5 read address \"ab\", invalidated");
    response(
        "readResponse", ReadResponse{{}, {everyKindOfValue(), DataAccessError::ObjectNonExistent}},
        "a181a80202012ca481a1a1819ea28198a1078501018502ff7f8301ff84030340088501ff8605"
        "00ffffffff8705083fc0000087090bbfb999999999999a8902cafe8a04746578748b13323032"
        "31303330343035303630372e3132335a8c060118429335098c04011842938d012a8e03034008"
        "8f0528ca22020190236120227465787422206f66206d6f7265207468616e206569676874206f"
        "63746574730a910860406abf8000004a80010a",
        "confirmed-ResponsePDU 300 read {[1, -129], true, '0100000000001'B, -1, 4294967295, 1.5, -0.1, 'cafe'H, \"text\", \"20210304050607.123Z\", 2021-03-04T05:06:07.123Z, 05:06:07.123, 42, '0100000000001'B, 1.0.9506.2.1, \"a \\\"text\\\" of more than eight octets\\x0a\", 2021-03-04T05:06:07.500000Z clock-failure}, failure: The object does not exist");
    response("readResponseWithSpecification",
             ReadResponse{ObjectName::ofAssociation("ds"), {Data::boolean(false)}},
             "a1130202012ca40da006a10482026473a103830100",
             "confirmed-ResponsePDU 300 read list @ds = false");
    request("writeRequest", WriteRequest{oneVariable("LLN0$CF$Mod$ctlModel"), {Data::integer(1)}},
            "a02d020105a528a021301fa01da11b1a034c44301a144c4c4e30244346244d6f642463746c4d"
            "6f64656ca003850101",
            "confirmed-RequestPDU 5 write LD0/LLN0$CF$Mod$ctlModel = 1");
    response("writeResponse", WriteResponse{{std::nullopt, DataAccessError::ObjectAccessDenied}},
             "a10b0202012ca5058100800103",
             "confirmed-ResponsePDU 300 write success, failure: Access to the object is denied");
    add("informationReport",
        UnconfirmedPdu{InformationReport{ObjectName::ofVmd("RPT"),
                                         {Data::visibleString("LD0/LLN0$RP$urcb01"),
                                          Data::bitString(BitString::fromText("0111110000")),
                                          DataAccessError::HardwareFault}}},
        "a327a025a1058003525054a01c8a124c44302f4c4c4e30245250247572636230318403067c00"
        "800101",
        "unconfirmed-PDU informationReport list RPT = \"LD0/LLN0$RP$urcb01\", '0111110000'B, failure: The device reports a hardware fault");
    add("unknownUnconfirmedService",
        UnconfirmedPdu{UnknownService{{ber::Tag::group(1), {0x80, 0x01, 0x00, 0x81, 0x01, 0x00}}}},
        "a308a106800100810100", "unconfirmed-PDU unsolicitedStatus '800100810100'H");
    request(
        "defineNamedVariableListRequest",
        DefineNamedVariableListRequest{ObjectName::ofAssociation("ds"), oneVariable("LLN0$ST$Mod")},
        "a023020105ab1e82026473a0183016a014a1121a034c44301a0b4c4c4e30245354244d6f64",
        "confirmed-RequestPDU 5 defineNamedVariableList @ds = {LD0/LLN0$ST$Mod}");
    response("defineNamedVariableListResponse", DefineNamedVariableListResponse{},
             "a1060202012c8b00", "confirmed-ResponsePDU 300 defineNamedVariableList");
    request("getNamedVariableListAttributesRequest",
            GetNamedVariableListAttributesRequest{ObjectName::inDomain("LD0", "LLN0$ds1")},
            "a016020105ac11a10f1a034c44301a084c4c4e3024647331",
            "confirmed-RequestPDU 5 getNamedVariableListAttributes LD0/LLN0$ds1");
    response(
        "getNamedVariableListAttributesResponse",
        GetNamedVariableListAttributesResponse{true, oneVariable("LLN0$ST$Mod")},
        "a1230202012cac1d8001ffa1183016a014a1121a034c44301a0b4c4c4e30245354244d6f64",
        "confirmed-ResponsePDU 300 getNamedVariableListAttributes deletable true, {LD0/LLN0$ST$Mod}");
    request("deleteNamedVariableListRequest",
            DeleteNamedVariableListRequest{
                0, {ObjectName::inDomain("LD0", "LLN0$ds1"), ObjectName::ofVmd("v")}, {}},
            "a01b020105ad16a114a10f1a034c44301a084c4c4e3024647331800176",
            "confirmed-RequestPDU 5 deleteNamedVariableList scope 0, LD0/LLN0$ds1, v");
    request("deleteNamedVariableListRequestOfDomain", DeleteNamedVariableListRequest{2, {}, "LD0"},
            "a00d020105ad0880010282034c4430",
            "confirmed-RequestPDU 5 deleteNamedVariableList scope 2, domain \"LD0\"");
    response("deleteNamedVariableListResponse", DeleteNamedVariableListResponse{2, 1},
             "a10c0202012cad06800102810101",
             "confirmed-ResponsePDU 300 deleteNamedVariableList 2 matched, 1 deleted");
    request("fileOpenRequest", FileOpenRequest{{"COMTRADE/a.cfg"}, 0},
            "a01b020105bf4815a010190e434f4d54524144452f612e636667810100",
            "confirmed-RequestPDU 5 fileOpen \"COMTRADE/a.cfg\" at 0");
    response(
        "fileOpenResponse", FileOpenResponse{1, {100000, "20210304050607.123Z"}},
        "a1260202012cbf481f800101a11a80030186a0811332303231303330343035303630372e3132"
        "335a",
        "confirmed-ResponsePDU 300 fileOpen frsm 1, 100000 octets, modified \"20210304050607.123Z\"");
    response("fileOpenResponseWithoutTime", FileOpenResponse{1, {0, {}}},
             "a10f0202012cbf4808800101a103800100",
             "confirmed-ResponsePDU 300 fileOpen frsm 1, 0 octets");
    request("fileReadRequest", FileReadRequest{200}, "a0080201059f490200c8",
            "confirmed-RequestPDU 5 fileRead frsm 200");
    response("fileReadResponse", FileReadResponse{{1, 2, 3}, false},
             "a10f0202012cbf49088003010203810100",
             "confirmed-ResponsePDU 300 fileRead 3 octets, more follows false");
    request("fileCloseRequest", FileCloseRequest{-1}, "a0070201059f4a01ff",
            "confirmed-RequestPDU 5 fileClose frsm -1");
    response("fileCloseResponse", FileCloseResponse{}, "a1070202012c9f4a00",
             "confirmed-ResponsePDU 300 fileClose");
    request("fileRenameRequest", FileRenameRequest{{"a"}, {"b"}},
            "a010020105bf4b0aa003190161a103190162",
            "confirmed-RequestPDU 5 fileRename \"a\" to \"b\"");
    response("fileRenameResponse", FileRenameResponse{}, "a1070202012c9f4b00",
             "confirmed-ResponsePDU 300 fileRename");
    request("fileDeleteRequest", FileDeleteRequest{{"a"}}, "a009020105bf4c03190161",
            "confirmed-RequestPDU 5 fileDelete \"a\"");
    response("fileDeleteResponse", FileDeleteResponse{}, "a1070202012c9f4c00",
             "confirmed-ResponsePDU 300 fileDelete");
    request("fileDirectoryRequest", FileDirectoryRequest{}, "a006020105bf4d00",
            "confirmed-RequestPDU 5 fileDirectory all");
    request("fileDirectoryRequestToContinue",
            FileDirectoryRequest{FileName{"COMTRADE"}, FileName{"COMTRADE", "a.cfg"}},
            "a025020105bf4d1fa00a1908434f4d5452414445a1111908434f4d54524144451905612e6366"
            "67",
            "confirmed-RequestPDU 5 fileDirectory \"COMTRADE\" after \"COMTRADE\", \"a.cfg\"");
    response(
        "fileDirectoryResponse",
        FileDirectoryResponse{{{{"a.cfg"}, {1000, "20210304050607Z"}}, {{"b.dat"}, {5, {}}}}, true},
        "a1400202012cbf4d39a03430323020a0071905612e636667a115800203e8810f323032313033"
        "30343035303630375a300ea0071905622e646174a1038001058101ff",
        "confirmed-ResponsePDU 300 fileDirectory {\"a.cfg\" (1000 octets, modified \"20210304050607Z\"), \"b.dat\" (5 octets)}, more follows true");
    response("fileDirectoryResponseWithoutFiles", FileDirectoryResponse{},
             "a10b0202012cbf4d04a0023000",
             "confirmed-ResponsePDU 300 fileDirectory {}, more follows false");
    request("obtainFileRequest", ObtainFileRequest{{}, {"local.cfg"}, {"remote.cfg"}},
            "a021020105bf2e1ba10b19096c6f63616c2e636667a20c190a72656d6f74652e636667",
            "confirmed-RequestPDU 5 obtainFile \"local.cfg\" to \"remote.cfg\"");
    response("obtainFileResponse", ObtainFileResponse{}, "a1070202012c9f2e00",
             "confirmed-ResponsePDU 300 obtainFile");
    request(
        "readJournalRequest",
        ReadJournalRequest{
            ObjectName::inDomain("LD0", "LLN0$Log"), BinaryTime{0, 13577}, 100, {}, {}},
        "a028020105bf4122a011a10f1a034c44301a084c4c4e30244c6f67a1088006000000003509a2"
        "03810164",
        "confirmed-RequestPDU 5 readJournal LD0/LLN0$Log from 2021-03-04T00:00:00.000Z, 100 entries");
    request(
        "readJournalRequestToContinue",
        ReadJournalRequest{ObjectName::inDomain("LD0", "LLN0$Log"), std::vector<std::uint8_t>{1},
                           BinaryTime{1, 13577}, std::vector<std::string>{"tag"},
                           JournalPosition{{2, 13577}, {9}}},
        "a03c020105bf4136a011a10f1a034c44301a084c4c4e30244c6f67a103810101a20880060000"
        "00013509a4051a03746167a50b8006000000023509810109",
        "confirmed-RequestPDU 5 readJournal LD0/LLN0$Log from '01'H to 2021-03-04T00:00:00.001Z, only \"tag\", after '09'H at 2021-03-04T00:00:00.002Z");
    response(
        "readJournalResponse", ReadJournalResponse{{journalEntry()}, true},
        "a1750202012cbf416ea0693067800400000001a1023000a25b8006011842933509a251a019a0"
        "14a1121a034c44301a0b4c4c4e30244c54244c6f67810102a134301e80174c44302f4747494f"
        "3124535424496e643124737456616ca1038301ff3012800a526561736f6e436f6465a1048402"
        "02408101ff",
        "confirmed-ResponsePDU 300 readJournal {'00000001'H at 2021-03-04T05:06:07.123Z, event LD0/LLN0$LT$Log state 2: {\"LD0/GGIO1$ST$Ind1$stVal\" = true, \"ReasonCode\" = '010000'B}}, more follows true");
    response(
        "readJournalResponseWithAnnotation",
        ReadJournalResponse{{{{1}, {}, {0, 0}, std::string("note")}}, false},
        "a1220202012cbf411ba0193017800101a1023000a20e800600000000000083046e6f7465",
        "confirmed-ResponsePDU 300 readJournal {'01'H at 1984-01-01T00:00:00.000Z: \"note\"}, more follows false");
    request("unknownRequest", UnknownService{{ber::Tag::context(37), {0x4C, 0x44, 0x30}}},
            "a0090201059f25034c4430", "confirmed-RequestPDU 5 service 37 '4c4430'H");
    response("unknownResponse", UnknownService{{ber::Tag::context(21), {}}}, "a1060202012c9500",
             "confirmed-ResponsePDU 300 service 21 ''H");
    return result;
}

} // namespace

const std::vector<Sample> &samples()
{
    static const std::vector<Sample> all = makeSamples();
    return all;
}

} // namespace wiretest
