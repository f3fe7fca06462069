// SPDX-License-Identifier: Apache-2.0
#include "support/generatedscl.h"

namespace {

constexpr int leavesPerObject = 12;
constexpr int arrayElements = 16;
constexpr int leavesPerElement = 6;
constexpr int arraysPerNode = 8;

constexpr const char *flatTypes = R"(    <LNodeType id="GGIO_1" lnClass="GGIO">
      <DO name="Mod" type="ENC_Mod"/>
%objects%    </LNodeType>
    <DOType id="DPC_1" cdc="DPC">
      <DA name="origin" fc="ST" bType="Struct" type="Originator"/>
      <DA name="ctlNum" fc="ST" bType="INT8U"/>
      <DA name="stVal" fc="ST" bType="Dbpos" dchg="true"/>
      <DA name="q" fc="ST" bType="Quality" qchg="true"/>
      <DA name="t" fc="ST" bType="Timestamp"/>
      <DA name="subEna" fc="SV" bType="BOOLEAN"/>
      <DA name="subQ" fc="SV" bType="Quality"/>
      <DA name="ctlModel" fc="CF" bType="Enum" type="ctlModel"/>
      <DA name="sboTimeout" fc="CF" bType="INT32U"/>
      <DA name="d" fc="DC" bType="VisString255"/>
      <DA name="magnitude" fc="MX" bType="Struct" type="AnalogueValue"/>
    </DOType>
    <DAType id="Originator">
      <BDA name="orCat" bType="Enum" type="orCat"/>
    </DAType>
    <DAType id="AnalogueValue">
      <BDA name="f" bType="FLOAT32"/>
      <BDA name="i" bType="INT32"/>
    </DAType>
    <EnumType id="orCat">
      <EnumVal ord="0">not-supported</EnumVal>
      <EnumVal ord="2">station-control</EnumVal>
    </EnumType>
)";

constexpr const char *arrayTypes = R"(    <LNodeType id="MHAI_1" lnClass="MHAI">
      <DO name="Mod" type="ENC_Mod"/>
      <DO name="HA" type="HWYE_1"/>
    </LNodeType>
    <DOType id="HWYE_1" cdc="HWYE">
%arrays%      <DA name="numHar" fc="CF" bType="INT16U"><Val>16</Val></DA>
      <DA name="d" fc="DC" bType="VisString255"/>
    </DOType>
    <DOType id="CMV_1" cdc="CMV">
      <DA name="cVal" fc="MX" bType="Struct" type="Vector" dchg="true"/>
      <DA name="range" fc="MX" bType="Enum" type="range"/>
      <DA name="q" fc="MX" bType="Quality" qchg="true"/>
      <DA name="t" fc="MX" bType="Timestamp"/>
      <DA name="db" fc="CF" bType="INT32U"><Val>1000</Val></DA>
    </DOType>
    <DAType id="Vector">
      <BDA name="mag" bType="Struct" type="AnalogueValue"/>
      <BDA name="ang" bType="Struct" type="AnalogueValue"/>
    </DAType>
    <DAType id="AnalogueValue">
      <BDA name="f" bType="FLOAT32"/>
    </DAType>
    <EnumType id="range">
      <EnumVal ord="0">normal</EnumVal>
      <EnumVal ord="1">high</EnumVal>
    </EnumType>
)";

constexpr const char *commonTypes = R"(    <LNodeType id="LLN0_1" lnClass="LLN0">
      <DO name="Mod" type="ENC_Mod"/>
    </LNodeType>
    <DOType id="ENC_Mod" cdc="ENC">
      <DA name="stVal" fc="ST" bType="Enum" type="Mod" dchg="true"><Val>on</Val></DA>
      <DA name="q" fc="ST" bType="Quality" qchg="true"/>
      <DA name="t" fc="ST" bType="Timestamp"/>
      <DA name="ctlModel" fc="CF" bType="Enum" type="ctlModel"><Val>status-only</Val></DA>
    </DOType>
    <EnumType id="Mod">
      <EnumVal ord="1">on</EnumVal>
      <EnumVal ord="5">off</EnumVal>
    </EnumType>
    <EnumType id="ctlModel">
      <EnumVal ord="0">status-only</EnumVal>
      <EnumVal ord="4">sbo-with-enhanced-security</EnumVal>
    </EnumType>
)";

std::string withPart(std::string text, const std::string &mark, const std::string &part)
{
    text.replace(text.find(mark), mark.size(), part);
    return text;
}

std::string objectName(int number)
{
    return "DPCSO" + std::to_string(number + 1);
}

std::string flatNode(const std::string &inst, int objects)
{
    std::string text =
        "          <LN prefix=\"IO\" lnClass=\"GGIO\" inst=\"" + inst + "\" lnType=\"GGIO_1\">\n";
    for (int i = 0; i < objects; ++i) {
        text += "            <DOI name=\"" + objectName(i) +
                "\">\n"
                "              <DAI name=\"ctlModel\" sAddr=\"" +
                inst + "." + std::to_string(i) +
                "\">\n                <Val>sbo-with-enhanced-security</Val>\n"
                "              </DAI>\n"
                "              <DAI name=\"d\">\n                <Val>Point " +
                inst + "." + std::to_string(i) +
                "</Val>\n              </DAI>\n            </DOI>\n";
    }
    return text + "          </LN>\n";
}

std::string arrayNode(const std::string &inst)
{
    return "          <LN lnClass=\"MHAI\" inst=\"" + inst +
           "\" lnType=\"MHAI_1\">\n            <DOI name=\"HA\">\n"
           "              <DAI name=\"d\"><Val>Feeder " +
           inst + "</Val></DAI>\n            </DOI>\n          </LN>\n";
}

std::string zeroNode(const std::string &device, bool throughArrays)
{
    std::string members;
    for (int i = 1; i <= 10; ++i) {
        members +=
            "              <FCDA ldInst=\"" + device + "\" " +
            (throughArrays ? "lnClass=\"MHAI\" lnInst=\"" + std::to_string(i) +
                                 "\" doName=\"HA.har1(3)\" daName=\"cVal.mag.f\" fc=\"MX\"/>\n"
                           : "prefix=\"IO\" lnClass=\"GGIO\" lnInst=\"" + std::to_string(i) +
                                 "\" doName=\"DPCSO1\" daName=\"stVal\" fc=\"ST\"/>\n");
    }
    return "          <LN0 lnClass=\"LLN0\" inst=\"\" lnType=\"LLN0_1\">\n"
           "            <DataSet name=\"ds1\">\n" +
           members +
           "            </DataSet>\n"
           "            <ReportControl name=\"rcb\" datSet=\"ds1\" rptID=\"r\" confRev=\"1\" "
           "buffered=\"true\" bufTime=\"50\">\n"
           "              <TrgOps dchg=\"true\" qchg=\"true\" gi=\"true\"/>\n"
           "              <OptFields seqNum=\"true\" timeStamp=\"true\"/>\n"
           "              <RptEnabled max=\"4\"/>\n"
           "            </ReportControl>\n          </LN0>\n";
}

} // namespace

std::string GeneratedScl::text() const
{
    const int leavesPerNode =
        4 + (throughArrays ? arraysPerNode * arrayElements * leavesPerElement + 2
                           : objectsPerNode * leavesPerObject);
    std::string result = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                         "<SCL xmlns=\"http://www.iec.ch/61850/2003/SCL\" version=\"2007\" "
                         "revision=\"B\" release=\"4\">\n  <Header id=\"generated\"/>\n"
                         "  <IED name=\"GEN\">\n    <AccessPoint name=\"S1\">\n      <Server>\n"
                         "        <Authentication none=\"true\"/>\n";
    int leaves = 0;
    for (int device = 1; leaves < leafAttributes; ++device) {
        const std::string inst = "LD" + std::to_string(device);
        result += "        <LDevice inst=\"" + inst + "\">\n" + zeroNode(inst, throughArrays);
        leaves += 4;
        // The data set of each device names its first ten nodes.
        for (int node = 1; node <= nodesPerDevice && (leaves < leafAttributes || node <= 10);
             ++node) {
            const std::string number = std::to_string(node);
            result += throughArrays ? arrayNode(number) : flatNode(number, objectsPerNode);
            leaves += leavesPerNode;
        }
        result += "        </LDevice>\n";
    }
    result += "      </Server>\n    </AccessPoint>\n  </IED>\n  <DataTypeTemplates>\n";
    std::string parts;
    if (throughArrays) {
        for (int i = 1; i <= arraysPerNode; ++i)
            parts += "      <SDO name=\"har" + std::to_string(i) + "\" type=\"CMV_1\" count=\"" +
                     (i % 2 ? std::to_string(arrayElements) : std::string("numHar")) + "\"/>\n";
        result += withPart(arrayTypes, "%arrays%", parts);
    } else {
        for (int i = 0; i < objectsPerNode; ++i)
            parts += "      <DO name=\"" + objectName(i) + "\" type=\"DPC_1\"/>\n";
        result += withPart(flatTypes, "%objects%", parts);
    }
    return result + commonTypes + "  </DataTypeTemplates>\n</SCL>\n";
}
