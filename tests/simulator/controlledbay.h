// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/describedied.h"

namespace simtest {

/// A bay with everything that acts: a switch with its controller, interlocking and synchrocheck,
/// one object of every controllable class in every control model, report control blocks of both
/// kinds, measurements, and settings in three groups.
inline DescribedIed controlledBay()
{
    return {
        R"(<LN0 lnClass="LLN0" inst="" lnType="LLN0_1">
  <DataSet name="Positions">
    <FCDA ldInst="LD" lnClass="CSWI" lnInst="1" doName="Pos" fc="ST"/>
    <FCDA ldInst="LD" lnClass="XCBR" lnInst="1" doName="Pos" daName="stVal" fc="ST"/>
    <FCDA ldInst="LD" lnClass="XCBR" lnInst="1" doName="Pos" daName="q" fc="ST"/>
  </DataSet>
  <DataSet name="Values">
    <FCDA ldInst="LD" lnClass="MMXU" lnInst="1" doName="Hz" daName="mag.f" fc="MX"/>
    <FCDA ldInst="LD" lnClass="MMXU" lnInst="1" doName="Hz" daName="q" fc="MX"/>
  </DataSet>
  <ReportControl name="urcb" rptID="u" datSet="Positions" confRev="1" indexed="true">
    <TrgOps dchg="true" qchg="true"/><OptFields seqNum="true" reasonCode="true" dataRef="true"/><RptEnabled max="2"/>
  </ReportControl>
  <ReportControl name="brcb" rptID="b" datSet="Positions" confRev="4" buffered="true" bufTime="0">
    <TrgOps dchg="true" period="true"/><OptFields seqNum="true" entryID="true" bufOvfl="true" timeStamp="true" dataSet="true" configRef="true"/>
    <RptEnabled max="1"/>
  </ReportControl>
  <ReportControl name="meas" rptID="m" datSet="Values" confRev="1" indexed="false" bufTime="100" intgPd="1000">
    <TrgOps dchg="true" period="true"/><OptFields seqNum="true" reasonCode="true"/><RptEnabled max="1"/>
  </ReportControl>
  <SettingControl numOfSGs="3" actSG="2" resvTms="30"/>
</LN0>
<LN lnClass="CSWI" inst="1" lnType="CSWI_1"><DOI name="Pos"><DAI name="ctlModel"><Val>sbo-with-enhanced-security</Val></DAI></DOI></LN>
<LN lnClass="XCBR" inst="1" lnType="XCBR_1"><DOI name="Pos"><DAI name="ctlModel"><Val>status-only</Val></DAI></DOI></LN>
<LN lnClass="CILO" inst="1" lnType="CILO_1"/>
<LN lnClass="RSYN" inst="1" lnType="RSYN_1"/>
<LN lnClass="MMXU" inst="1" lnType="MMXU_1"/>
<LN lnClass="GGIO" inst="1" lnType="GGIO_1">
  <DOI name="SPCSO2"><DAI name="ctlModel"><Val>sbo-with-normal-security</Val></DAI></DOI>
  <DOI name="SPCSO3"><DAI name="ctlModel"><Val>direct-with-enhanced-security</Val></DAI></DOI>
</LN>
<LN lnClass="ATCC" inst="1" lnType="ATCC_1"/>
<LN lnClass="PTOC" inst="1" lnType="PTOC_1">
  <DOI name="StrVal"><SDI name="setMag"><DAI name="f"><Val sGroup="1">1.5</Val><Val sGroup="2">2.5</Val><Val sGroup="3">3.5</Val></DAI></SDI></DOI>
</LN>)",
        R"(<LNodeType id="LLN0_1" lnClass="LLN0"><DO name="Mod" type="Mode"/><DO name="Beh" type="Behaviour"/><DO name="Loc" type="State"/></LNodeType>
<LNodeType id="CSWI_1" lnClass="CSWI"><DO name="Mod" type="Mode"/><DO name="Beh" type="Behaviour"/><DO name="Pos" type="Switch"/></LNodeType>
<LNodeType id="XCBR_1" lnClass="XCBR"><DO name="Beh" type="Behaviour"/><DO name="Pos" type="Switch"/><DO name="BlkCls" type="State"/></LNodeType>
<LNodeType id="CILO_1" lnClass="CILO"><DO name="EnaOpn" type="State"/><DO name="EnaCls" type="State"/></LNodeType>
<LNodeType id="RSYN_1" lnClass="RSYN"><DO name="Rel" type="State"/></LNodeType>
<LNodeType id="MMXU_1" lnClass="MMXU"><DO name="Hz" type="Measured"/></LNodeType>
<LNodeType id="GGIO_1" lnClass="GGIO"><DO name="SPCSO1" type="Single"/><DO name="SPCSO2" type="Single"/><DO name="SPCSO3" type="Single"/>
<DO name="ISCSO1" type="Number"/><DO name="AnOut1" type="SetPoint"/></LNodeType>
<LNodeType id="ATCC_1" lnClass="ATCC"><DO name="TapChg" type="Tap"/><DO name="TapPos" type="Step"/></LNodeType>
<LNodeType id="PTOC_1" lnClass="PTOC"><DO name="StrVal" type="Setting"/></LNodeType>
<DOType id="Mode" cdc="ENC">
  <DA name="Oper" fc="CO" bType="Struct" type="OperMode"/>
  <DA name="stVal" fc="ST" bType="Enum" type="Mod" dchg="true"/><DA name="q" fc="ST" bType="Quality" qchg="true"/>
  <DA name="t" fc="ST" bType="Timestamp"/><DA name="ctlModel" fc="CF" bType="Enum" type="CtlModel"/>
</DOType>
<DOType id="Behaviour" cdc="ENS">
  <DA name="stVal" fc="ST" bType="Enum" type="Mod" dchg="true"/><DA name="q" fc="ST" bType="Quality" qchg="true"/>
  <DA name="t" fc="ST" bType="Timestamp"/>
</DOType>
<DOType id="State" cdc="SPS">
  <DA name="stVal" fc="ST" bType="BOOLEAN" dchg="true"/><DA name="q" fc="ST" bType="Quality" qchg="true"/>
  <DA name="t" fc="ST" bType="Timestamp"/>
</DOType>
<DOType id="Switch" cdc="DPC">
  <DA name="SBO" fc="CO" bType="VisString129"/><DA name="SBOw" fc="CO" bType="Struct" type="OperPoint"/>
  <DA name="Oper" fc="CO" bType="Struct" type="OperPoint"/><DA name="Cancel" fc="CO" bType="Struct" type="CancelPoint"/>
  <DA name="origin" fc="ST" bType="Struct" type="Originator"/><DA name="ctlNum" fc="ST" bType="INT8U"/>
  <DA name="stVal" fc="ST" bType="Dbpos" dchg="true"/><DA name="q" fc="ST" bType="Quality" qchg="true"/>
  <DA name="t" fc="ST" bType="Timestamp"/><DA name="stSeld" fc="ST" bType="BOOLEAN" dchg="true"/>
  <DA name="ctlModel" fc="CF" bType="Enum" type="CtlModel"/><DA name="sboTimeout" fc="CF" bType="INT32U"/>
</DOType>
<DOType id="Single" cdc="SPC">
  <DA name="SBO" fc="CO" bType="VisString129"/><DA name="Oper" fc="CO" bType="Struct" type="OperTimed"/>
  <DA name="Cancel" fc="CO" bType="Struct" type="CancelPoint"/>
  <DA name="stVal" fc="ST" bType="BOOLEAN" dchg="true"/><DA name="q" fc="ST" bType="Quality" qchg="true"/>
  <DA name="t" fc="ST" bType="Timestamp"/><DA name="ctlModel" fc="CF" bType="Enum" type="CtlModel"/>
  <DA name="sboTimeout" fc="CF" bType="INT32U"/>
</DOType>
<DOType id="Number" cdc="INC">
  <DA name="Oper" fc="CO" bType="Struct" type="OperNumber"/>
  <DA name="stVal" fc="ST" bType="INT32" dchg="true"/><DA name="q" fc="ST" bType="Quality" qchg="true"/>
  <DA name="t" fc="ST" bType="Timestamp"/><DA name="ctlModel" fc="CF" bType="Enum" type="CtlModel"/>
  <DA name="minVal" fc="CF" bType="INT32"><Val>-10</Val></DA><DA name="maxVal" fc="CF" bType="INT32"><Val>10</Val></DA>
</DOType>
<DOType id="SetPoint" cdc="APC">
  <DA name="Oper" fc="CO" bType="Struct" type="OperAnalogue"/>
  <DA name="mxVal" fc="MX" bType="Struct" type="Analogue" dchg="true"/><DA name="q" fc="MX" bType="Quality" qchg="true"/>
  <DA name="t" fc="MX" bType="Timestamp"/><DA name="ctlModel" fc="CF" bType="Enum" type="CtlModel"/>
</DOType>
<DOType id="Tap" cdc="BSC">
  <DA name="Oper" fc="CO" bType="Struct" type="OperStep"/>
  <DA name="valWTr" fc="ST" bType="Struct" type="ValWithTrans" dchg="true"/><DA name="q" fc="ST" bType="Quality" qchg="true"/>
  <DA name="t" fc="ST" bType="Timestamp"/><DA name="persistent" fc="CF" bType="BOOLEAN"/>
  <DA name="ctlModel" fc="CF" bType="Enum" type="CtlModel"/>
</DOType>
<DOType id="Step" cdc="ISC">
  <DA name="Oper" fc="CO" bType="Struct" type="OperTap"/>
  <DA name="valWTr" fc="ST" bType="Struct" type="ValWithTrans" dchg="true"/><DA name="q" fc="ST" bType="Quality" qchg="true"/>
  <DA name="t" fc="ST" bType="Timestamp"/><DA name="ctlModel" fc="CF" bType="Enum" type="CtlModel"/>
</DOType>
<DOType id="Measured" cdc="MV">
  <DA name="mag" fc="MX" bType="Struct" type="Analogue" dchg="true"/><DA name="q" fc="MX" bType="Quality" qchg="true"/>
  <DA name="t" fc="MX" bType="Timestamp"/>
</DOType>
<DOType id="Setting" cdc="ASG"><DA name="setMag" fc="SG" bType="Struct" type="Analogue"/></DOType>
<DAType id="Originator"><BDA name="orCat" bType="Enum" type="OrCat"/><BDA name="orIdent" bType="Octet64"/></DAType>
<DAType id="OperPoint"><BDA name="ctlVal" bType="BOOLEAN"/><BDA name="origin" bType="Struct" type="Originator"/><BDA name="ctlNum" bType="INT8U"/><BDA name="T" bType="Timestamp"/><BDA name="Test" bType="BOOLEAN"/><BDA name="Check" bType="Check"/></DAType>
<DAType id="OperTimed"><BDA name="ctlVal" bType="BOOLEAN"/><BDA name="operTm" bType="Timestamp"/><BDA name="origin" bType="Struct" type="Originator"/><BDA name="ctlNum" bType="INT8U"/><BDA name="T" bType="Timestamp"/><BDA name="Test" bType="BOOLEAN"/><BDA name="Check" bType="Check"/></DAType>
<DAType id="CancelPoint"><BDA name="ctlVal" bType="BOOLEAN"/><BDA name="origin" bType="Struct" type="Originator"/><BDA name="ctlNum" bType="INT8U"/><BDA name="T" bType="Timestamp"/><BDA name="Test" bType="BOOLEAN"/></DAType>
<DAType id="OperMode"><BDA name="ctlVal" bType="Enum" type="Mod"/><BDA name="origin" bType="Struct" type="Originator"/><BDA name="ctlNum" bType="INT8U"/><BDA name="T" bType="Timestamp"/><BDA name="Test" bType="BOOLEAN"/><BDA name="Check" bType="Check"/></DAType>
<DAType id="OperNumber"><BDA name="ctlVal" bType="INT32"/><BDA name="origin" bType="Struct" type="Originator"/><BDA name="ctlNum" bType="INT8U"/><BDA name="T" bType="Timestamp"/><BDA name="Test" bType="BOOLEAN"/><BDA name="Check" bType="Check"/></DAType>
<DAType id="OperTap"><BDA name="ctlVal" bType="INT8"/><BDA name="origin" bType="Struct" type="Originator"/><BDA name="ctlNum" bType="INT8U"/><BDA name="T" bType="Timestamp"/><BDA name="Test" bType="BOOLEAN"/><BDA name="Check" bType="Check"/></DAType>
<DAType id="OperStep"><BDA name="ctlVal" bType="Tcmd"/><BDA name="origin" bType="Struct" type="Originator"/><BDA name="ctlNum" bType="INT8U"/><BDA name="T" bType="Timestamp"/><BDA name="Test" bType="BOOLEAN"/><BDA name="Check" bType="Check"/></DAType>
<DAType id="OperAnalogue"><BDA name="ctlVal" bType="Struct" type="Analogue"/><BDA name="origin" bType="Struct" type="Originator"/><BDA name="ctlNum" bType="INT8U"/><BDA name="T" bType="Timestamp"/><BDA name="Test" bType="BOOLEAN"/><BDA name="Check" bType="Check"/></DAType>
<DAType id="Analogue"><BDA name="f" bType="FLOAT32"/></DAType>
<DAType id="ValWithTrans"><BDA name="posVal" bType="INT8"/><BDA name="transInd" bType="BOOLEAN"/></DAType>
<EnumType id="Mod"><EnumVal ord="1">on</EnumVal><EnumVal ord="2">on-blocked</EnumVal><EnumVal ord="3">test</EnumVal><EnumVal ord="4">test/blocked</EnumVal><EnumVal ord="5">off</EnumVal></EnumType>
<EnumType id="OrCat"><EnumVal ord="0">not-supported</EnumVal><EnumVal ord="1">bay-control</EnumVal><EnumVal ord="2">station-control</EnumVal><EnumVal ord="3">remote-control</EnumVal></EnumType>
<EnumType id="CtlModel"><EnumVal ord="0">status-only</EnumVal><EnumVal ord="1">direct-with-normal-security</EnumVal><EnumVal ord="2">sbo-with-normal-security</EnumVal><EnumVal ord="3">direct-with-enhanced-security</EnumVal><EnumVal ord="4">sbo-with-enhanced-security</EnumVal></EnumType>)"};
}

} // namespace simtest
