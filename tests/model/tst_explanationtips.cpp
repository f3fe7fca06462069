// SPDX-License-Identifier: Apache-2.0
#include "model/explanationtips.h"
#include "model/sclexplanations.h"

#include <QtCore/QTranslator>
#include <QtGui/QHelpEvent>
#include <QtGui/QStandardItemModel>
#include <QtTest/QtTest>
#include <QtWidgets/QToolTip>
#include <QtWidgets/QTreeView>

namespace {

const DataObjectPlace breakerPosition = {"XCBR", "Pos", "DPC"};
const DataObjectPlace behaviour = {"LLN0", "Beh", "ENS"};

QMap<QString, EnumType> deviceEnumerations()
{
    EnumType type;
    type.id = QStringLiteral("OwnModes");
    type.values = {{7, QStringLiteral("standby")}, {3, QStringLiteral("<running>")}};
    return {{type.id, type}};
}

/// A language in which every text stands in brackets.
class BracketTranslator : public QTranslator
{
public:
    QString translate(const char *, const char *text, const char *, int) const override
    {
        return QStringLiteral("[%1]").arg(QString::fromUtf8(text));
    }
    bool isEmpty() const override { return false; }
};

bool sendTipRequest(QTreeView &view, const QModelIndex &index)
{
    const QPoint position = view.visualRect(index).center();
    QHelpEvent event(QEvent::ToolTip, position, view.viewport()->mapToGlobal(position));
    return QCoreApplication::sendEvent(view.viewport(), &event);
}

} // namespace

class tst_ExplanationTips : public QObject
{
    Q_OBJECT

private slots:
    void aLogicalNodeIsExplainedByItsClass();
    void aDataObjectShowsMeaningTypeAndPresence();
    void aTransientDataObjectSaysSo();
    void aConditionIsShownByItsCode();
    void anAttributeShowsMeaningTypeAndConstraint();
    void aStructureIsNamedByItsAttributeType();
    void aSubDataObjectIsExplainedByItsCommonDataClass();
    void theDevicesOwnEnumerationHolds();
    void enumeratedValuesFollowTheDataObject();
    void codedValuesAreListed();
    void aLongEnumerationIsCutOff();
    void whatNobodyKnowsHasNoTip();
    void textFromTheDeviceIsNoMarkup();
    void tipsSpeakTheLanguageOfTheWindows();
    void theTipAppearsBesideTheItem();
    void anItemWithoutATextIsLeftToTheView();

private:
    const SclExplanations m_explanations;
};

void tst_ExplanationTips::aLogicalNodeIsExplainedByItsClass()
{
    const QString tip = logicalNodeTip(m_explanations, "XCBR");
    QVERIFY(tip.contains("<b>XCBR</b>"));
    QVERIFY(tip.contains(m_explanations.logicalNodeClass("XCBR").toHtmlEscaped()));
}

void tst_ExplanationTips::aDataObjectShowsMeaningTypeAndPresence()
{
    const QString tip = dataObjectTip(m_explanations, breakerPosition);
    QVERIFY(tip.contains("<b>Pos</b>"));
    QVERIFY(tip.contains(m_explanations.dataObject("XCBR", "Pos").text.toHtmlEscaped()));
    QVERIFY(tip.contains(
        QString("Data type: DPC \u2013 " + m_explanations.commonDataClass("DPC")).toHtmlEscaped()));
    QVERIFY(tip.contains("Presence: mandatory"));
    QVERIFY(
        dataObjectTip(m_explanations, {"XCBR", "CBOpCap", "ENS"}).contains("Presence: optional"));
}

void tst_ExplanationTips::aTransientDataObjectSaysSo()
{
    QVERIFY(dataObjectTip(m_explanations, {"LPHD", "PwrUp", "SPS"}).contains("Transient:"));
    QVERIFY(!dataObjectTip(m_explanations, breakerPosition).contains("Transient:"));
}

void tst_ExplanationTips::aConditionIsShownByItsCode()
{
    QVERIFY(dataObjectTip(m_explanations, {"CSWI", "LocSta", "SPC"})
                .contains("Presence: conditional (OF(Loc))"));
}

void tst_ExplanationTips::anAttributeShowsMeaningTypeAndConstraint()
{
    const QString tip =
        attributeTip(m_explanations, {breakerPosition, {"q"}, "Quality", "ST", {}}, {});
    QVERIFY(tip.contains("<b>q</b>"));
    QVERIFY(tip.contains("can be trusted"));
    QVERIFY(tip.contains("Data type: Quality"));
    QVERIFY(tip.contains("Functional constraint: ST"));
    QVERIFY(!tip.contains("Values:"));
}

void tst_ExplanationTips::aStructureIsNamedByItsAttributeType()
{
    const QString tip =
        attributeTip(m_explanations, {breakerPosition, {"origin"}, "Struct", "ST", {}}, {});
    QVERIFY(tip.contains("Data type: Originator"));
    QVERIFY(tip.contains(m_explanations.attributeType("Originator").toHtmlEscaped()));
}

void tst_ExplanationTips::aSubDataObjectIsExplainedByItsCommonDataClass()
{
    const QString tip =
        attributeTip(m_explanations, {{"MMXU", "A", "WYE"}, {"phsA"}, "CMV", {}, {}}, {});
    QVERIFY(tip.contains("Data type: CMV"));
    QVERIFY(tip.contains(m_explanations.commonDataClass("CMV").toHtmlEscaped()));
    QVERIFY(!tip.contains("Functional constraint:"));
}

void tst_ExplanationTips::theDevicesOwnEnumerationHolds()
{
    const QString tip = attributeTip(
        m_explanations, {behaviour, {"stVal"}, "Enum", "ST", "OwnModes"}, deviceEnumerations());
    QVERIFY(tip.contains("Enumeration: OwnModes"));
    QVERIFY(tip.contains("Values: 3 = &lt;running&gt;, 7 = standby"));
    QVERIFY(!tip.contains("test/blocked"));
}

void tst_ExplanationTips::enumeratedValuesFollowTheDataObject()
{
    const QString tip = attributeTip(m_explanations, {behaviour, {"stVal"}, "Enum", "ST", {}},
                                     deviceEnumerations());
    QVERIFY(tip.contains("Enumeration: BehaviourModeKind"));
    QVERIFY(tip.contains("4 = test/blocked"));
    QVERIFY(dataObjectTip(m_explanations, behaviour).contains("4 = test/blocked"));
    const QString model =
        attributeTip(m_explanations, {breakerPosition, {"ctlModel"}, "Enum", "CF", {}}, {});
    QVERIFY(model.contains("Enumeration: CtlModelKind"));
    QVERIFY(model.contains("0 = status-only"));
}

void tst_ExplanationTips::codedValuesAreListed()
{
    const QString tip =
        attributeTip(m_explanations, {breakerPosition, {"stVal"}, "Dbpos", "ST", {}}, {});
    QVERIFY(tip.contains("Values: 0 = intermediate-state, 1 = off, 2 = on, 3 = bad-state"));
}

void tst_ExplanationTips::aLongEnumerationIsCutOff()
{
    const QString tip = attributeTip(
        m_explanations, {{"MMXU", "TotW", "MV"}, {"units", "SIUnit"}, "Enum", "CF", {}}, {});
    QVERIFY(tip.contains("Enumeration: SIUnitKind"));
    QVERIFY(tip.endsWith("\u2026"));
    QCOMPARE(tip.count(" = "), 24);
}

void tst_ExplanationTips::whatNobodyKnowsHasNoTip()
{
    QVERIFY(logicalNodeTip(m_explanations, "QQQQ").isEmpty());
    QVERIFY(dataObjectTip(m_explanations, {"QQQQ", "Qqqq", "QQQ"}).isEmpty());
    QVERIFY(attributeTip(m_explanations, {{"QQQQ", "Qqqq", "QQQ"}, {"own"}, "INT32", "ST", {}}, {})
                .isEmpty());
}

void tst_ExplanationTips::textFromTheDeviceIsNoMarkup()
{
    const QString tip =
        attributeTip(m_explanations, {breakerPosition, {"<i>own"}, "Enum", "<b>", "OwnModes"},
                     deviceEnumerations());
    QVERIFY(tip.contains("&lt;i&gt;own"));
    QVERIFY(!tip.contains("<i>"));
    QVERIFY(tip.contains("Functional constraint: &lt;b&gt;"));
}

void tst_ExplanationTips::tipsSpeakTheLanguageOfTheWindows()
{
    QCOMPARE(windowLanguage(), QString());
    BracketTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    const QString language = windowLanguage();
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(language, QLocale::system().name());
}

void tst_ExplanationTips::theTipAppearsBesideTheItem()
{
    QStandardItemModel model;
    model.appendRow(new QStandardItem("first"));
    model.appendRow(new QStandardItem("second"));
    QTreeView view;
    view.setModel(&model);
    QModelIndex asked;
    new ExplanationTips(&view, [&asked](const QModelIndex &index) {
        asked = index;
        return QStringLiteral("<b>%1</b> explained").arg(index.data().toString());
    });
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QVERIFY(sendTipRequest(view, model.index(1, 0)));
    QCOMPARE(asked, model.index(1, 0));
    QVERIFY(QToolTip::isVisible());
    QCOMPARE(QToolTip::text(), QStringLiteral("<b>second</b> explained"));
    QVERIFY(sendTipRequest(view, model.index(0, 0)));
    QCOMPARE(QToolTip::text(), QStringLiteral("<b>first</b> explained"));
    QToolTip::hideText();
}

void tst_ExplanationTips::anItemWithoutATextIsLeftToTheView()
{
    QStandardItemModel model;
    auto *const item = new QStandardItem("item");
    item->setToolTip("from the model");
    model.appendRow(item);
    QTreeView view;
    view.setModel(&model);
    new ExplanationTips(&view, [](const QModelIndex &) { return QString(); });
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    sendTipRequest(view, model.index(0, 0));
    QCOMPARE(QToolTip::text(), QStringLiteral("from the model"));
    QToolTip::hideText();
}

QTEST_MAIN(tst_ExplanationTips)
#include "tst_explanationtips.moc"
