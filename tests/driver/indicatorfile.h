// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QFile>
#include <QtCore/QString>

namespace drivertest {

/// An IED of nothing but indications: GGIO1 to GGIOn with Ind1 to Indm each in the logical device
/// "<name>LD", a data set "Set<i>" for each node, and blocks for each set: unbuffered "urcb<i>"
/// and, unless it is to have none, buffered "brcb<i>".
class IndicatorFile
{
public:
    IndicatorFile(QByteArray name, int nodes, int perNode, bool hasBuffered = true)
        : m_name(std::move(name))
        , m_nodes(nodes)
        , m_perNode(perNode)
        , m_hasBuffered(hasBuffered)
    {
    }

    int size() const { return m_nodes * m_perNode; }
    QByteArray domain() const { return m_name + "LD"; }
    /// Of an indication, counted from 0: "GGIO1$ST$Ind1".
    QByteArray item(int index) const
    {
        return "GGIO" + QByteArray::number(index / m_perNode + 1) + "$ST$Ind" +
               QByteArray::number(index % m_perNode + 1);
    }
    QString reference(int index) const { return QString::fromLatin1(domain() + '/' + item(index)); }

    bool write(const QString &path) const
    {
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(text()) > 0;
    }

    QByteArray text() const
    {
        QByteArray sets;
        QByteArray blocks;
        QByteArray nodes;
        QByteArray objects;
        for (int i = 1; i <= m_perNode; ++i)
            objects += "<DO name=\"Ind" + QByteArray::number(i) + "\" type=\"SPS_1\"/>";
        for (int node = 1; node <= m_nodes; ++node) {
            const QByteArray number = QByteArray::number(node);
            sets += "<DataSet name=\"Set" + number + "\">";
            for (int i = 1; i <= m_perNode; ++i) {
                sets += "<FCDA ldInst=\"LD\" lnClass=\"GGIO\" lnInst=\"" + number +
                        "\" doName=\"Ind" + QByteArray::number(i) + "\" fc=\"ST\"/>";
            }
            sets += "</DataSet>";
            blocks += block("urcb" + number, "Set" + number, false);
            if (m_hasBuffered)
                blocks += block("brcb" + number, "Set" + number, true);
            nodes += "<LN lnClass=\"GGIO\" inst=\"" + number + "\" lnType=\"GGIO_1\"/>";
        }
        return "<SCL xmlns=\"http://www.iec.ch/61850/2003/SCL\" version=\"2007\" revision=\"B\">"
               "<Header id=\"indications\"/><IED name=\"" +
               m_name +
               "\"><AccessPoint name=\"S1\"><Server><Authentication none=\"true\"/>"
               "<LDevice inst=\"LD\"><LN0 lnClass=\"LLN0\" inst=\"\" lnType=\"LLN0_1\">" +
               sets + blocks + "</LN0>" + nodes +
               "</LDevice></Server></AccessPoint></IED><DataTypeTemplates>"
               "<LNodeType id=\"LLN0_1\" lnClass=\"LLN0\"><DO name=\"NamPlt\" type=\"LPL_1\"/>"
               "</LNodeType><LNodeType id=\"GGIO_1\" lnClass=\"GGIO\">" +
               objects +
               "</LNodeType>"
               "<DOType id=\"LPL_1\" cdc=\"LPL\"><DA name=\"configRev\" bType=\"VisString255\" "
               "fc=\"DC\"><Val>1</Val></DA></DOType>"
               "<DOType id=\"SPS_1\" cdc=\"SPS\"><DA name=\"stVal\" bType=\"BOOLEAN\" fc=\"ST\" "
               "dchg=\"true\"/><DA name=\"q\" bType=\"Quality\" fc=\"ST\" qchg=\"true\"/>"
               "<DA name=\"t\" bType=\"Timestamp\" fc=\"ST\"/></DOType></DataTypeTemplates></SCL>";
    }

private:
    static QByteArray block(const QByteArray &name, const QByteArray &set, bool buffered)
    {
        return "<ReportControl name=\"" + name + "\" rptID=\"" + name + "\" datSet=\"" + set +
               "\" confRev=\"1\" buffered=\"" + (buffered ? "true" : "false") +
               "\" indexed=\"false\"><TrgOps dchg=\"true\" qchg=\"true\" gi=\"true\"/>"
               "<OptFields seqNum=\"true\" timeStamp=\"true\" dataSet=\"true\" reasonCode=\"true\" "
               "entryID=\"" +
               (buffered ? "true" : "false") + "\"/><RptEnabled max=\"1\"/></ReportControl>";
    }

    QByteArray m_name;
    int m_nodes;
    int m_perNode;
    bool m_hasBuffered;
};

} // namespace drivertest
