// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QByteArray>

namespace drivertest {

/// An IED "IED" with logical devices "A" and "B", with a bit of everything that a device is
/// compared in with its file.
inline const QByteArray comparedIed =
    R"(<SCL xmlns="http://www.iec.ch/61850/2003/SCL" version="2007" revision="B">
<Header id="compared"/><IED name="IED" manufacturer="Maker" type="Relay"><AccessPoint name="S1"><Server>
<Authentication none="true"/>
<LDevice inst="A">
<LN0 lnClass="LLN0" inst="" lnType="LLN0_1">
<DataSet name="Both"><FCDA ldInst="A" lnClass="GGIO" lnInst="1" doName="Ind1" fc="ST"/><FCDA ldInst="A" lnClass="GGIO" lnInst="1" doName="Ind2" fc="ST"/></DataSet>
<DataSet name="Other"><FCDA ldInst="A" lnClass="GGIO" lnInst="1" doName="Ind1" fc="ST"/></DataSet>
<ReportControl name="brcb" rptID="first" datSet="Both" confRev="7" buffered="true" bufTime="100" indexed="false" intgPd="5000"><TrgOps dchg="true" qchg="true" gi="true"/><OptFields seqNum="true" entryID="true"/><RptEnabled max="1"/></ReportControl>
<ReportControl name="urcb" rptID="second" datSet="Both" confRev="7" indexed="false"><TrgOps dchg="true"/><OptFields/><RptEnabled max="1"/></ReportControl>
<DOI name="NamPlt"><DAI name="configRev"><Val>2026-1</Val></DAI></DOI>
<SettingControl numOfSGs="2" actSG="1"/>
</LN0>
<LN lnClass="GGIO" inst="1" lnType="GGIO_1"/>
<LN lnClass="GGIO" inst="2" lnType="GGIO_1"/>
<LN lnClass="PTOC" inst="1" lnType="PTOC_1"/>
<LN lnClass="LTRK" inst="1" lnType="LTRK_1"/>
</LDevice>
<LDevice inst="B">
<LN0 lnClass="LLN0" inst="" lnType="LLN0_1"/>
</LDevice>
</Server></AccessPoint></IED>
<DataTypeTemplates>
<LNodeType id="LLN0_1" lnClass="LLN0"><DO name="Mod" type="ENC_1"/><DO name="NamPlt" type="LPL_1"/></LNodeType>
<LNodeType id="GGIO_1" lnClass="GGIO"><DO name="Ind1" type="SPS_1"/><DO name="Ind2" type="SPS_1"/><DO name="AnIn1" type="MV_1"/></LNodeType>
<LNodeType id="PTOC_1" lnClass="PTOC"><DO name="StrVal" type="ASG_1"/><DO name="OpDlTmms" type="ING_1"/></LNodeType>
<LNodeType id="LTRK_1" lnClass="LTRK"><DO name="GocbTrk" type="GTS_1"/></LNodeType>
<DOType id="ENC_1" cdc="ENC"><DA name="stVal" bType="Enum" type="Mod_1" fc="ST" dchg="true"/><DA name="q" bType="Quality" fc="ST" qchg="true"/><DA name="t" bType="Timestamp" fc="ST"/></DOType>
<DOType id="LPL_1" cdc="LPL"><DA name="vendor" bType="VisString255" fc="DC"/><DA name="configRev" bType="VisString255" fc="DC"/></DOType>
<DOType id="SPS_1" cdc="SPS"><DA name="stVal" bType="BOOLEAN" fc="ST" dchg="true"/><DA name="q" bType="Quality" fc="ST" qchg="true"/><DA name="t" bType="Timestamp" fc="ST"/><DA name="d" bType="VisString255" fc="DC"/></DOType>
<DOType id="MV_1" cdc="MV"><DA name="mag" bType="Struct" type="Analogue_1" fc="MX" dchg="true"/><DA name="q" bType="Quality" fc="MX" qchg="true"/><DA name="t" bType="Timestamp" fc="MX"/></DOType>
<DOType id="ASG_1" cdc="ASG"><DA name="setMag" bType="Struct" type="Analogue_1" fc="SG"/></DOType>
<DOType id="ING_1" cdc="ING"><DA name="setVal" bType="INT32" fc="SE"/></DOType>
<DOType id="GTS_1" cdc="GTS"><DA name="dstAddress" bType="PhyComAddr" fc="SR"/></DOType>
<DAType id="Analogue_1"><BDA name="f" bType="FLOAT32"/></DAType>
<EnumType id="Mod_1"><EnumVal ord="1">on</EnumVal><EnumVal ord="2">on-blocked</EnumVal><EnumVal ord="5">off</EnumVal></EnumType>
</DataTypeTemplates></SCL>)";

} // namespace drivertest
