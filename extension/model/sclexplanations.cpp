// SPDX-License-Identifier: Apache-2.0
#include "sclexplanations.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QHash>
#include <QtCore/QTranslator>
#include <QtCore/QXmlStreamReader>

namespace {

struct Type
{
    QString text;
    QHash<QString, SclExplanations::Member> members;
};

QString valueOf(const QXmlStreamAttributes &attributes, const char *name)
{
    return attributes.value(QLatin1String(name)).toString();
}

QString withoutInstanceNumber(const QString &name)
{
    int end = name.size();
    while (end > 0 && name.at(end - 1).isDigit())
        --end;
    return name.left(end);
}

QString withoutElementNumber(const QString &name)
{
    return name.left(name.indexOf(QLatin1Char('(')));
}

} // namespace

struct SclExplanations::Content
{
    QHash<QString, Type> classes;
    QHash<QString, Type> commonClasses;
    QHash<QString, Type> attributeTypes;
    QHash<QString, Enumeration> enumerations;
    QHash<QString, QString> dataObjectTexts; ///< by name, whatever the class
    QHash<QString, QString> attributeTexts;

    void read(QXmlStreamReader &xml);

private:
    Type readType(QXmlStreamReader &xml, QHash<QString, QString> &texts);
    QList<QPair<int, QString>> readValues(QXmlStreamReader &xml);
};

void SclExplanations::Content::read(QXmlStreamReader &xml)
{
    if (!xml.readNextStartElement() || xml.name() != QLatin1String("DataTypeTemplate"))
        return;
    while (xml.readNextStartElement()) {
        const QString id = valueOf(xml.attributes(), "id");
        if (xml.name() == QLatin1String("LNodeType")) {
            classes.insert(id, readType(xml, dataObjectTexts));
        } else if (xml.name() == QLatin1String("DOType")) {
            commonClasses.insert(id, readType(xml, attributeTexts));
        } else if (xml.name() == QLatin1String("DAType")) {
            attributeTypes.insert(id, readType(xml, attributeTexts));
        } else if (xml.name() == QLatin1String("EnumType")) {
            enumerations[id].values = readValues(xml);
        } else {
            if (xml.name() == QLatin1String("EnumDesc"))
                enumerations[id].text = valueOf(xml.attributes(), "desc");
            xml.skipCurrentElement();
        }
    }
}

Type SclExplanations::Content::readType(QXmlStreamReader &xml, QHash<QString, QString> &texts)
{
    Type type;
    type.text = valueOf(xml.attributes(), "desc");
    while (xml.readNextStartElement()) {
        const QXmlStreamAttributes attributes = xml.attributes();
        const QString name = valueOf(attributes, "name");
        QString &text = texts[name];
        if (text.isEmpty())
            text = valueOf(attributes, "desc");
        Member member;
        member.text = text;
        const QString basicType = valueOf(attributes, "bType");
        const QString typeName = valueOf(attributes, "type");
        if (basicType == QLatin1String("Enum")) {
            member.type = basicType;
            member.enumeration = typeName;
        } else {
            member.type = typeName.isEmpty() ? basicType : typeName;
            member.enumeration = valueOf(attributes, "enum");
        }
        member.presence = valueOf(attributes, "presence");
        member.transient = valueOf(attributes, "transient") == QLatin1String("true");
        type.members.insert(name, member);
        xml.skipCurrentElement();
    }
    return type;
}

QList<QPair<int, QString>> SclExplanations::Content::readValues(QXmlStreamReader &xml)
{
    QList<QPair<int, QString>> values;
    while (xml.readNextStartElement()) {
        const int ordinal = valueOf(xml.attributes(), "ord").toInt();
        values.append({ordinal, xml.readElementText(QXmlStreamReader::SkipChildElements)});
    }
    return values;
}

SclExplanations::SclExplanations()
    : SclExplanations(QStringLiteral(":/850Ext/model/61850Details EDITION 2.xml"))
{
}

SclExplanations::SclExplanations(const QString &path)
    : m_path(path)
{
}

SclExplanations::~SclExplanations() = default;

void SclExplanations::setLanguage(const QString &localeName)
{
    m_language = localeName;
    m_catalogue.reset();
}

const SclExplanations::Content &SclExplanations::content() const
{
    if (!m_content) {
        auto content = std::make_unique<Content>();
        QFile file(m_path);
        if (file.open(QIODevice::ReadOnly)) {
            QXmlStreamReader xml(&file);
            content->read(xml);
            if (xml.hasError())
                content = std::make_unique<Content>();
        }
        m_content = std::move(content);
    }
    return *m_content;
}

// The translator stays private: one that is installed would be asked for every text of the host.
QString SclExplanations::translated(const QString &sentence) const
{
    if (sentence.isEmpty() || m_language.isEmpty())
        return sentence;
    if (!m_catalogue) {
        auto catalogue = std::make_unique<QTranslator>();
        catalogue->load(QStringLiteral("explanations_") + m_language, QFileInfo(m_path).path());
        m_catalogue = std::move(catalogue);
    }
    const QString found = m_catalogue->translate("SclExplanations", sentence.toUtf8().constData());
    return found.isEmpty() ? sentence : found;
}

SclExplanations::Member SclExplanations::translated(Member member) const
{
    member.text = translated(member.text);
    return member;
}

QString SclExplanations::logicalNodeClass(const QString &lnClass) const
{
    return translated(content().classes.value(lnClass).text);
}

QString SclExplanations::commonDataClass(const QString &cdc) const
{
    return translated(content().commonClasses.value(cdc).text);
}

QString SclExplanations::attributeType(const QString &type) const
{
    return translated(content().attributeTypes.value(type).text);
}

SclExplanations::Enumeration SclExplanations::enumeration(const QString &id) const
{
    Enumeration enumeration = content().enumerations.value(id);
    enumeration.text = translated(enumeration.text);
    return enumeration;
}

SclExplanations::Member SclExplanations::dataObject(const QString &lnClass,
                                                    const QString &name) const
{
    const QHash<QString, Member> members = content().classes.value(lnClass).members;
    const QString plainName = withoutInstanceNumber(name);
    for (const QString &candidate : {name, plainName}) {
        const auto member = members.constFind(candidate);
        if (member != members.constEnd())
            return translated(*member);
    }
    Member elsewhere;
    elsewhere.text = content().dataObjectTexts.value(name);
    if (elsewhere.text.isEmpty())
        elsewhere.text = content().dataObjectTexts.value(plainName);
    return translated(elsewhere);
}

SclExplanations::Member SclExplanations::attribute(const QString &cdc,
                                                   const QStringList &path) const
{
    const Content &known = content();
    Member member;
    member.type = cdc;
    QString array;
    for (const QString &step : path) {
        const QString name = withoutElementNumber(step);
        if (!array.isEmpty() && name == array && name != step)
            continue;
        array = name;
        const bool isCommonClass = known.commonClasses.contains(member.type);
        const Type type = isCommonClass ? known.commonClasses.value(member.type)
                                        : known.attributeTypes.value(member.type);
        const auto found = type.members.constFind(name);
        if (found == type.members.constEnd()) {
            Member elsewhere;
            elsewhere.text = known.attributeTexts.value(withoutElementNumber(path.constLast()));
            return translated(elsewhere);
        }
        member = *found;
    }
    return translated(member);
}
