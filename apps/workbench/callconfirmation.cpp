// SPDX-License-Identifier: Apache-2.0
#include "callconfirmation.h"

#include "driver/model/valueconversion.h"

#include <QtCore/QLocale>
#include <QtCore/QMetaObject>
#include <QtCore/QStringList>
#include <QtCore/QThread>

namespace {

constexpr int longestText = 200;

QString translated(const char *text)
{
    return QCoreApplication::translate("CallConfirmation", text);
}

QString operationText(const QString &operation)
{
    static const QHash<QString, const char *> texts = {
        {QStringLiteral("selectObject"), QT_TRANSLATE_NOOP("CallConfirmation", "Select")},
        {QStringLiteral("controlObject"), QT_TRANSLATE_NOOP("CallConfirmation", "Operate")},
        {QStringLiteral("writeVariable"), QT_TRANSLATE_NOOP("CallConfirmation", "Write a value")},
        {QStringLiteral("writeValue"), QT_TRANSLATE_NOOP("CallConfirmation", "Write a value")},
        {QStringLiteral("createDataSet"),
         QT_TRANSLATE_NOOP("CallConfirmation", "Create a data set")},
        {QStringLiteral("deleteDataSet"),
         QT_TRANSLATE_NOOP("CallConfirmation", "Delete a data set")},
        {QStringLiteral("deleteFile"), QT_TRANSLATE_NOOP("CallConfirmation", "Delete a file")},
        {QStringLiteral("writeFile"), QT_TRANSLATE_NOOP("CallConfirmation", "Send a file")},
        {QStringLiteral("enableReportBlock"),
         QT_TRANSLATE_NOOP("CallConfirmation", "Configure a report control block")},
        {QStringLiteral("setSGCBValues"), QT_TRANSLATE_NOOP("CallConfirmation", "Write settings")},
        {QStringLiteral("selectEditSG"),
         QT_TRANSLATE_NOOP("CallConfirmation", "Choose a setting group to edit")},
        {QStringLiteral("selectActiveSG"),
         QT_TRANSLATE_NOOP("CallConfirmation", "Make a setting group the active one")},
    };
    const char *const text = texts.value(operation);
    return text ? translated(text) : operation;
}

QString categoryText(int category)
{
    static const char *const texts[] = {
        QT_TRANSLATE_NOOP("CallConfirmation", "not supported"),
        QT_TRANSLATE_NOOP("CallConfirmation", "bay control"),
        QT_TRANSLATE_NOOP("CallConfirmation", "station control"),
        QT_TRANSLATE_NOOP("CallConfirmation", "remote control"),
        QT_TRANSLATE_NOOP("CallConfirmation", "automatic bay"),
        QT_TRANSLATE_NOOP("CallConfirmation", "automatic station"),
        QT_TRANSLATE_NOOP("CallConfirmation", "automatic remote"),
        QT_TRANSLATE_NOOP("CallConfirmation", "maintenance"),
        QT_TRANSLATE_NOOP("CallConfirmation", "process"),
    };
    const bool isKnown = category >= 0 && category < int(std::size(texts));
    return isKnown ? QStringLiteral("%1 (%2)").arg(translated(texts[category])).arg(category)
                   : QString::number(category);
}

QString checkText(int check)
{
    switch (check) {
    case 0:
        return translated(QT_TRANSLATE_NOOP("CallConfirmation", "none"));
    case 1:
        return translated(QT_TRANSLATE_NOOP("CallConfirmation", "interlocking"));
    case 2:
        return translated(QT_TRANSLATE_NOOP("CallConfirmation", "synchrocheck"));
    case 3:
        return translated(QT_TRANSLATE_NOOP("CallConfirmation", "synchrocheck and interlocking"));
    default:
        return QString::number(check);
    }
}

QString positionText(const QString &ordinal)
{
    static const QHash<QString, QString> texts = {
        {QStringLiteral("0"), QStringLiteral("intermediate-state")},
        {QStringLiteral("1"), QStringLiteral("off")},
        {QStringLiteral("2"), QStringLiteral("on")},
        {QStringLiteral("3"), QStringLiteral("bad-state")}};
    return texts.value(ordinal, ordinal);
}

QString truthText(bool truth)
{
    return truth ? QStringLiteral("true") : QStringLiteral("false");
}

QString knownText(const CallConfirmation::KnownValue &known)
{
    if (known.value.isEmpty())
        return {};
    if (known.basicType == QLatin1String("Dbpos"))
        return positionText(known.value);
    if (known.basicType == QLatin1String("BOOLEAN"))
        return truthText(known.value != QLatin1String("0") &&
                         known.value != QLatin1String("false"));
    return known.value;
}

QString numberText(double number)
{
    return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

/// A control value as the object shows its state.
QString commandText(double value, const QString &statusType)
{
    if (statusType == QLatin1String("Dbpos"))
        return value != 0 ? QStringLiteral("on") : QStringLiteral("off");
    if (statusType == QLatin1String("BOOLEAN"))
        return truthText(value != 0);
    return numberText(value);
}

QString valueText(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::Bool:
        return truthText(value.toBool());
    case QMetaType::Float:
        return ValueConversion::text(value);
    case QMetaType::Double:
        return numberText(value.toDouble());
    default:
        return value.toString();
    }
}

QString change(const QString &before, const QString &after)
{
    return before.isEmpty() ? after : QStringLiteral("%1 \u2192 %2").arg(before, after);
}

/// "CSWI1$CO$Pos" as "CSWI1.Pos".
QString objectText(const GuardedCall &call)
{
    QStringList parts = call.object.split(QLatin1Char('$'));
    if (call.isControl && parts.size() > 2)
        parts.removeAt(1);
    return call.isControl ? parts.join(QLatin1Char('.')) : call.object;
}

/// Where the state of a control object is, the likeliest first.
QStringList statusReferences(const GuardedCall &call)
{
    const QStringList parts = call.object.split(QLatin1Char('$'));
    if (parts.size() < 3)
        return {};
    const QString node = call.logicalDevice + QLatin1Char('/') + parts.first();
    const QString object = QStringList(parts.mid(2)).join(QLatin1Char('$'));
    QStringList references;
    for (const char *const status : {"$ST$%1$stVal", "$ST$%1$valWTr$posVal", "$MX$%1$mxVal$f",
                                     "$MX$%1$mxVal$i", "$MX$%1$mag$f"}) {
        references << node + QString::fromLatin1(status).arg(object);
    }
    return references;
}

QString oneLine(const QString &text)
{
    const QString line = text.left(longestText + 1).simplified();
    return text.size() > longestText ? line.left(longestText) + QStringLiteral("…") : line;
}

} // namespace

CallConfirmation::Question CallConfirmation::question(const GuardedCall &call) const
{
    Question question;
    question.operation = operationText(call.operation);
    const auto add = [&question](const QString &label, const QString &text) {
        if (!text.isEmpty())
            question.rows.append({label, oneLine(text)});
    };
    add(tr("Device:"), m_deviceName ? m_deviceName(call.deviceNo) : QString::number(call.deviceNo));
    add(tr("Logical device:"), call.logicalDevice);
    add(tr("Object:"), objectText(call));

    const auto known = [&](const QStringList &references) {
        return m_lookup && !references.isEmpty() ? m_lookup(call.deviceNo, references)
                                                 : KnownValue();
    };
    if (!call.isControl) {
        const QString before =
            call.operation == QLatin1String("writeVariable")
                ? knownText(known({call.logicalDevice + QLatin1Char('/') + call.object}))
                : QString();
        add(tr("Value:"), change(before, valueText(call.newValue)));
        return question;
    }

    const ControlBlock &control = call.control;
    const bool isSelect = call.operation == QLatin1String("selectObject");
    constexpr int selectNormal = 2;
    constexpr int selectEnhanced = 4;
    const KnownValue status = known(statusReferences(call));
    if (isSelect && control.controlModel == selectNormal) {
        add(tr("Current value:"), knownText(status));
        return question;
    }
    // What goes with an operate after such a select was said with the select.
    if (!isSelect && control.controlModel == selectEnhanced) {
        add(tr("Value:"), change(knownText(status), tr("as selected")));
        return question;
    }
    add(tr("Value:"),
        change(knownText(status), commandText(control.controlValue, status.basicType)));
    add(tr("Originator category:"), categoryText(control.orCat));
    add(tr("Checks:"), checkText(control.check));
    add(tr("Test:"), control.test != 0 ? tr("yes") : tr("no"));
    return question;
}

QString CallConfirmation::refusal(const GuardedCall &call)
{
    const bool isAsked = call.kind != GuardedCall::Withdrawal && m_scope != Nothing &&
                         (m_scope == Everything || call.kind == GuardedCall::Command);
    if (!isAsked)
        return {};
    bool confirmed = false;
    const auto ask = [&] { confirmed = m_ask && m_ask(question(call)); };
    if (QThread::currentThread() == QCoreApplication::instance()->thread())
        ask();
    else
        QMetaObject::invokeMethod(QCoreApplication::instance(), ask, Qt::BlockingQueuedConnection);
    return confirmed ? QString() : tr("Nothing was sent, since it was not confirmed.");
}
