// SPDX-License-Identifier: Apache-2.0
#include "explanationtips.h"

#include "sclexplanations.h"

#include <QtCore/QLocale>
#include <QtGui/QHelpEvent>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QToolTip>

namespace {

constexpr int mostValues = 24;

using Values = QList<QPair<int, QString>>;

QString nameLine(const QString &name, const QString &explanation)
{
    const QString bold = QStringLiteral("<b>%1</b>").arg(name.toHtmlEscaped());
    return explanation.isEmpty() ? bold
                                 : bold + QStringLiteral("<br/>") + explanation.toHtmlEscaped();
}

QString labelled(const QString &label, const QString &text)
{
    return QStringLiteral("<br/>%1 %2").arg(label.toHtmlEscaped(), text.toHtmlEscaped());
}

QString typeLine(const QString &type, const QString &explanation)
{
    if (type.isEmpty())
        return {};
    QString text = type;
    if (!explanation.isEmpty())
        text += QStringLiteral(" \u2013 ") + explanation;
    return labelled(ExplanationTips::tr("Data type:"), text);
}

QString presenceLine(const SclExplanations::Member &member)
{
    if (member.presence.isEmpty())
        return {};
    QString text;
    if (member.presence == QLatin1String("M") || member.presence == QLatin1String("Mmulti"))
        text = ExplanationTips::tr("mandatory");
    else if (member.presence == QLatin1String("O") ||
             member.presence.startsWith(QLatin1String("Omulti")))
        text = ExplanationTips::tr("optional");
    else
        text = ExplanationTips::tr("conditional (%1)").arg(member.presence);
    QString line = labelled(ExplanationTips::tr("Presence:"), text);
    if (member.transient)
        line += labelled(ExplanationTips::tr("Transient:"),
                         ExplanationTips::tr("true only for a moment"));
    return line;
}

QString valuesLine(const Values &values)
{
    if (values.isEmpty())
        return {};
    QStringList texts;
    for (const auto &value : values.mid(0, mostValues))
        texts << QStringLiteral("%1 = %2").arg(QString::number(value.first), value.second);
    if (values.size() > mostValues)
        texts << QStringLiteral("\u2026");
    return labelled(ExplanationTips::tr("Values:"), texts.join(QStringLiteral(", ")));
}

QString enumerationLines(const SclExplanations &explanations, const QString &id,
                         const QMap<QString, EnumType> &deviceEnumerations)
{
    const SclExplanations::Enumeration known = explanations.enumeration(id);
    Values values = known.values;
    const auto ofDevice = deviceEnumerations.constFind(id);
    if (ofDevice != deviceEnumerations.constEnd()) {
        values.clear();
        for (auto value = ofDevice->values.begin(); value != ofDevice->values.end(); ++value)
            values.append({value.key(), value.value()});
    }
    if (values.isEmpty())
        return {};
    return labelled(ExplanationTips::tr("Enumeration:"),
                    known.text.isEmpty() ? id : id + QStringLiteral(" \u2013 ") + known.text) +
           valuesLine(values);
}

} // namespace

QString logicalNodeTip(const SclExplanations &explanations, const QString &lnClass)
{
    const QString explanation = explanations.logicalNodeClass(lnClass);
    return explanation.isEmpty() ? QString() : nameLine(lnClass, explanation);
}

QString dataObjectTip(const SclExplanations &explanations, const DataObjectPlace &place)
{
    const SclExplanations::Member known = explanations.dataObject(place.lnClass, place.name);
    const QString type = place.type.isEmpty() ? known.type : place.type;
    const QString typeText = explanations.commonDataClass(type);
    if (known.text.isEmpty() && typeText.isEmpty())
        return {};
    return nameLine(place.name, known.text) + typeLine(type, typeText) + presenceLine(known) +
           enumerationLines(explanations, known.enumeration, {});
}

QString attributeTip(const SclExplanations &explanations, const AttributePlace &place,
                     const QMap<QString, EnumType> &deviceEnumerations)
{
    const SclExplanations::Member object =
        explanations.dataObject(place.dataObject.lnClass, place.dataObject.name);
    const QString cdc = place.dataObject.type.isEmpty() ? object.type : place.dataObject.type;
    const SclExplanations::Member known = explanations.attribute(cdc, place.path);

    // A structure is better named by its attribute type than by the word for all of them.
    const bool isNamed = !place.type.isEmpty() && place.type != QLatin1String("Struct");
    const QString type = isNamed || known.type.isEmpty() ? place.type : known.type;
    QString typeText = explanations.attributeType(type);
    if (typeText.isEmpty())
        typeText = explanations.commonDataClass(type);

    QString enumeration = place.enumeration;
    if (enumeration.isEmpty()) {
        if (type != QLatin1String("Enum"))
            enumeration = type;
        else
            enumeration = known.enumeration.isEmpty() ? object.enumeration : known.enumeration;
    }

    const QString values = enumerationLines(explanations, enumeration, deviceEnumerations);
    if (known.text.isEmpty() && typeText.isEmpty() && values.isEmpty())
        return {};
    QString tip = nameLine(place.path.constLast(), known.text) + typeLine(type, typeText);
    if (!place.constraint.isEmpty())
        tip += labelled(ExplanationTips::tr("Functional constraint:"), place.constraint);
    return tip + presenceLine(known) + values;
}

QString windowLanguage()
{
    // A host may lack the catalogue of its locale: tips do not speak another language than the
    // window around them.
    const QString english = QStringLiteral("Data type:");
    return ExplanationTips::tr("Data type:") == english ? QString() : QLocale::system().name();
}

ExplanationTips::ExplanationTips(QAbstractItemView *view, Text text)
    : QObject(view)
    , m_view(view)
    , m_text(std::move(text))
{
    view->viewport()->installEventFilter(this);
}

bool ExplanationTips::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto *const help = static_cast<const QHelpEvent *>(event);
        const QModelIndex index = m_view->indexAt(help->pos());
        const QString text = index.isValid() ? m_text(index) : QString();
        if (!text.isEmpty()) {
            QToolTip::showText(help->globalPos(), text, m_view->viewport(),
                               m_view->visualRect(index));
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}
