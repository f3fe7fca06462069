// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "scl/reader.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace simtest {

/// An SCL document of one IED "IED1" with one logical device "LD" from the parts that tests differ
/// in: the logical nodes with the IED's services, and the types.
class DescribedIed
{
public:
    DescribedIed(const std::string &nodes, const std::string &types)
        : m_result(scl::readBytes(
              "<SCL xmlns=\"http://www.iec.ch/61850/2003/SCL\" version=\"2007\" revision=\"B\">"
              "<Header id=\"test\"/><IED name=\"IED1\" manufacturer=\"Maker\" type=\"Relay\" "
              "configVersion=\"2.1\"><AccessPoint name=\"S1\"><Server>"
              "<Authentication none=\"true\"/><LDevice inst=\"LD\">" +
              nodes + "</LDevice></Server></AccessPoint></IED><DataTypeTemplates>" + types +
              "</DataTypeTemplates></SCL>"))
    {
        EXPECT_TRUE(m_result.document) << m_result.errorText;
        if (m_result.document) {
            for (const scl::Finding &finding : m_result.document->findings)
                ADD_FAILURE() << finding.text;
        }
    }

    const scl::Ied &operator*() const { return m_result.document->ieds.front(); }
    const scl::Document &document() const { return *m_result.document; }

private:
    scl::ReadResult m_result;
};

/// A breaker, a measurement with harmonics in an array, and settings in two groups, with a data set
/// and all kinds of control blocks.
inline DescribedIed bay()
{
    return {
        R"(<LN0 lnClass="LLN0" inst="" lnType="LLN0_1">
  <DataSet name="Positions">
    <FCDA ldInst="LD" lnClass="XCBR" lnInst="1" doName="Pos" fc="ST"/>
    <FCDA ldInst="LD" lnClass="MHAI" lnInst="1" doName="HA.phsAHar" daName="cVal.mag.f" fc="MX" ix="2"/>
  </DataSet>
  <ReportControl name="urcb" rptID="u" datSet="Positions" confRev="1">
    <TrgOps dchg="true"/><OptFields/><RptEnabled max="2"/>
  </ReportControl>
  <ReportControl name="brcb" rptID="b" datSet="Positions" confRev="1" buffered="true" indexed="false">
    <TrgOps dchg="true"/><OptFields/><RptEnabled max="1"/>
  </ReportControl>
  <LogControl name="lcb" logName="Events" datSet="Positions"><TrgOps dchg="true"/></LogControl>
  <DOI name="NamPlt"><DAI name="d"><Val>Bay</Val></DAI></DOI>
  <SettingControl numOfSGs="2" actSG="1"/>
  <Log name="Events"/>
  <GSEControl name="gcb" appID="trip" datSet="Positions" confRev="3"/>
</LN0>
<LN lnClass="XCBR" inst="1" lnType="XCBR_1">
  <DOI name="Pos"><DAI name="ctlModel" valKind="RO"><Val>sbo-with-enhanced-security</Val></DAI>
  <DAI name="d"><Val>Breaker</Val></DAI></DOI>
</LN>
<LN lnClass="XCBR" inst="10" lnType="XCBR_1"/>
<LN lnClass="MHAI" inst="1" lnType="MHAI_1">
  <DOI name="HA"><SDI name="phsAHar" ix="1"><SDI name="cVal"><SDI name="mag"><DAI name="f"><Val>4.5</Val></DAI>
  </SDI></SDI></SDI></DOI>
</LN>
<LN lnClass="PTOC" inst="1" lnType="PTOC_1">
  <DOI name="StrVal"><SDI name="setMag"><DAI name="f"><Val sGroup="1">1.5</Val><Val sGroup="2">2.5</Val></DAI>
  </SDI></DOI>
</LN>)",
        R"(<LNodeType id="LLN0_1" lnClass="LLN0"><DO name="Mod" type="ENC_1"/><DO name="NamPlt" type="LPL_1"/></LNodeType>
<LNodeType id="XCBR_1" lnClass="XCBR"><DO name="Pos" type="DPC_1"/></LNodeType>
<LNodeType id="MHAI_1" lnClass="MHAI"><DO name="HA" type="HWYE_1"/></LNodeType>
<LNodeType id="PTOC_1" lnClass="PTOC"><DO name="StrVal" type="ASG_1"/></LNodeType>
<DOType id="ENC_1" cdc="ENC">
  <DA name="stVal" fc="ST" bType="Enum" type="Mod" dchg="true"/>
  <DA name="q" fc="ST" bType="Quality" qchg="true"/>
  <DA name="t" fc="ST" bType="Timestamp"/>
  <DA name="ctlModel" fc="CF" bType="Enum" type="CtlModel"/>
</DOType>
<DOType id="LPL_1" cdc="LPL">
  <DA name="vendor" fc="DC" bType="VisString255"/>
  <DA name="swRev" fc="DC" bType="VisString255"/>
  <DA name="d" fc="DC" bType="VisString255"/>
</DOType>
<DOType id="DPC_1" cdc="DPC">
  <DA name="SBOw" fc="CO" bType="Struct" type="Oper_1"/>
  <DA name="Oper" fc="CO" bType="Struct" type="Oper_1"/>
  <DA name="stVal" fc="ST" bType="Dbpos" dchg="true" dupd="true"/>
  <DA name="q" fc="ST" bType="Quality" qchg="true"/>
  <DA name="t" fc="ST" bType="Timestamp"/>
  <DA name="subEna" fc="SV" bType="BOOLEAN"/>
  <DA name="blkEna" fc="BL" bType="BOOLEAN"/>
  <DA name="ctlModel" fc="CF" bType="Enum" type="CtlModel"/>
  <DA name="sboTimeout" fc="CF" bType="INT32U" dchg="true"/>
  <DA name="d" fc="DC" bType="VisString255"/>
</DOType>
<DOType id="HWYE_1" cdc="HWYE">
  <SDO name="phsAHar" type="CMV_1" count="numHar"/>
  <DA name="numHar" fc="CF" bType="INT16U"><Val>3</Val></DA>
</DOType>
<DOType id="CMV_1" cdc="CMV">
  <DA name="cVal" fc="MX" bType="Struct" type="Vector_1" dchg="true"/>
  <DA name="q" fc="MX" bType="Quality" qchg="true"/>
  <DA name="t" fc="MX" bType="Timestamp"/>
</DOType>
<DOType id="ASG_1" cdc="ASG">
  <DA name="setMag" fc="SG" bType="Struct" type="Analogue_1"/>
  <DA name="setMag2" fc="SP" bType="Struct" type="Analogue_1"/>
</DOType>
<DAType id="Oper_1">
  <BDA name="ctlVal" bType="BOOLEAN"/>
  <BDA name="T" bType="Timestamp"/>
  <BDA name="Check" bType="Check"/>
</DAType>
<DAType id="Vector_1"><BDA name="mag" bType="Struct" type="Analogue_1"/></DAType>
<DAType id="Analogue_1"><BDA name="f" bType="FLOAT32"/></DAType>
<EnumType id="Mod"><EnumVal ord="1">on</EnumVal><EnumVal ord="5">off</EnumVal></EnumType>
<EnumType id="CtlModel"><EnumVal ord="0">status-only</EnumVal><EnumVal ord="1">direct-with-normal-security</EnumVal>
<EnumVal ord="4">sbo-with-enhanced-security</EnumVal></EnumType>)"};
}

} // namespace simtest
