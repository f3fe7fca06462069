// SPDX-License-Identifier: Apache-2.0
#include "control/controlco.h"

#include "model/iednode.h"
#include "model/testtemplates.h"
#include "support/modaldriver.h"

#include <devicemodel/physicaldevice.h>

#include <QtGui/QAccessible>
#include <QtTest/QtTest>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolTip>

#include <memory>

namespace {

using Entries = ControlCo::Entries;

template <typename Widget>
Widget *find(const QWidget &dialog, const char *name)
{
    auto *const widget = dialog.findChild<Widget *>(QLatin1String(name));
    if (!widget)
        qFatal("The dialog has no %s", name);
    return widget;
}

/// The entries of a list as "text=code", the current one marked by a star.
QStringList offeredBy(const QWidget &dialog, const char *name)
{
    const auto *const list = find<QComboBox>(dialog, name);
    QStringList offered;
    for (int index = 0; index < list->count(); ++index) {
        const QVariant code = list->itemData(index, Qt::UserRole);
        const QString mark = index == list->currentIndex() ? QStringLiteral("*") : QString();
        offered << mark + list->itemText(index) + QLatin1Char('=') + code.toString();
    }
    return offered;
}

void choose(const QWidget &dialog, const char *name, const QString &text)
{
    auto *const list = find<QComboBox>(dialog, name);
    if (list->findText(text) < 0)
        qFatal("%s does not offer %s", name, qPrintable(text));
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Home);
    while (list->currentText() != text)
        QTest::keyClick(list, Qt::Key_Down);
}

DAO *newAttribute(const QString &name, const QString &basicType, const QVariant &value,
                  const QString &enumTypeId = {})
{
    auto *const dao = new DAO;
    dao->attribute = new DataAttribute;
    dao->attribute->name = name;
    dao->attribute->basicType = basicType;
    dao->attribute->value = value;
    dao->attribute->enumTypeId = enumTypeId;
    return dao;
}

DAO *newStructure(const QString &name)
{
    auto *const dao = new DAO;
    dao->subDataObject = new SubDataObject{name, QString()};
    return dao;
}

/// A data object Q0CSWI1.Pos in its device and in the tree of nodes.
class ControllableObject
{
public:
    ControllableObject()
        : m_root(&m_device)
    {
        auto *const logicalDevice = new LogicalDevice;
        logicalDevice->name = QStringLiteral("BCU1CTRL");
        m_device.logicalDevices << logicalDevice;
        auto *const logicalNode = new LogicalNode;
        logicalNode->name = QStringLiteral("Q0CSWI1");
        logicalDevice->logicalNodes << logicalNode;
        m_dataObject = new DataObject;
        m_dataObject->name = QStringLiteral("Pos");
        logicalNode->dataObjects << m_dataObject;

        auto *const deviceNode = new IEDNode(logicalDevice, &m_root);
        node = new IEDNode(m_dataObject, new IEDNode(logicalNode, deviceNode));
    }

    ControllableObject &withStVal(const QString &basicType, const QVariant &value,
                                  const QString &enumTypeId = {})
    {
        m_dataObject->attributes << newAttribute(QStringLiteral("stVal"), basicType, value,
                                                 enumTypeId);
        return *this;
    }

    ControllableObject &withCtlVal(const QString &basicType, const QVariant &value = {},
                                   const QString &enumTypeId = {})
    {
        DAO *const oper = newStructure(QStringLiteral("Oper"));
        oper->children << newAttribute(QStringLiteral("ctlVal"), basicType, value, enumTypeId);
        m_dataObject->attributes << oper;
        return *this;
    }

    ControllableObject &with(DAO *dao)
    {
        m_dataObject->attributes << dao;
        return *this;
    }

    IEDNode *node;

private:
    PhysicalDevice m_device;
    IEDNode m_root;
    DataObject *m_dataObject;
};

} // namespace

class tst_ControlCo : public QObject
{
    Q_OBJECT

private slots:
    void theFormBearsTheNamesAndTextsThatHostsKnow();
    void theObjectIsNamedByItsLogicalNode();
    void ofSeveralEntriesOfOneCodeTheLastIsCurrent();
    void aNodeThatIsNoDataObjectLeavesTheValuesEmpty();

    void theCurrentValueIsReadableThoughItCannotBeChosen();
    void checkOffersItsListFirstEntryCurrent();
    void categoryStartsAtItsFourthEntry();
    void aShortCategoryListHasNoCurrentEntry_data();
    void aShortCategoryListHasNoCurrentEntry();
    void theTestFlagStartsAtFalse();
    void aLockedCheckSendsItsFirstEntry();
    void emptyListsGiveZeros();

    void listValuesOfTheStatusAreShown_data();
    void listValuesOfTheStatusAreShown();
    void otherValuesOfTheStatusAreShownAsNumbers_data();
    void otherValuesOfTheStatusAreShownAsNumbers();
    void theStatusCanNeverBeChanged();
    void anObjectWithoutStatusShowsAnEmptyList_data();
    void anObjectWithoutStatusShowsAnEmptyList();

    void listValuesOfTheControlAreOffered_data();
    void listValuesOfTheControlAreOffered();
    void otherControlValuesAreTyped_data();
    void otherControlValuesAreTyped();
    void anObjectWithoutControlValueOffersNone_data();
    void anObjectWithoutControlValueOffersNone();

    void aDoublePointOffersFalseAndTrue();
    void anIntegerObjectTakesTheTypedNumber_data();
    void anIntegerObjectTakesTheTypedNumber();
    void aNumericStatusTakesTheControlValueFromTheHiddenText_data();
    void aNumericStatusTakesTheControlValueFromTheHiddenText();
    void textsOfTheDeviceAreShownLiterally();

    void everyChoiceReachesTheRequest();
    void codesAreCutToEightBits();
    void theRequestLeavesReferenceAndControlModelToTheCaller();
    void okAcceptsAndCancelRejects_data();
    void okAcceptsAndCancelRejects();
    void theDecimalMarkOfTheLocaleIsAPoint();
    void anUnreadableTextIsToldAndEnterDoesNotTakeIt_data();
    void anUnreadableTextIsToldAndEnterDoesNotTakeIt();
    void theTabKeyFollowsTheReadingOrder();
    void everyEntryFieldHasAnAccessibleName();

private:
    std::unique_ptr<ControlCo> dialogFor(const ControllableObject &object, bool lockCheck = false);

    SclTemplateStore m_templates;
};

std::unique_ptr<ControlCo> tst_ControlCo::dialogFor(const ControllableObject &object,
                                                    bool lockCheck)
{
    auto dialog = std::make_unique<ControlCo>(
        object.node, &m_templates, m_templates.entries(QStringLiteral("Check")),
        m_templates.entries(QStringLiteral("orCat")), lockCheck, nullptr);
    dialog->show();
    return dialog;
}

void tst_ControlCo::theFormBearsTheNamesAndTextsThatHostsKnow()
{
    const ControllableObject object;
    const ControlCo dialog(object.node, &m_templates, {}, {}, false, nullptr);
    QCOMPARE(dialog.objectName(), QStringLiteral("ControlCo"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Control"));
    QCOMPARE(dialog.size(), QSize(359, 222));
    QVERIFY(!(dialog.windowFlags() & Qt::WindowContextHelpButtonHint));
    QCOMPARE(find<QGroupBox>(dialog, "groupBox")->title(), QStringLiteral("Control Object"));
    QCOMPARE(find<QLabel>(dialog, "label")->text(), QStringLiteral("Data Obj :"));

    QStringList labels;
    for (const QLabel *label : dialog.findChildren<QLabel *>())
        labels << label->text();
    for (const char *text :
         {"Current Value :", "Control Value :", "Test :", "Category :", "Check :", "..."}) {
        QVERIFY2(labels.contains(QString::fromLatin1(text)), text);
    }
    QCOMPARE(find<QDialogButtonBox>(dialog, "buttonBox")->standardButtons(),
             QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
}

void tst_ControlCo::theObjectIsNamedByItsLogicalNode()
{
    const ControllableObject object;
    const auto dialog = dialogFor(object);
    QCOMPARE(find<QLabel>(*dialog, "objname")->text(), QStringLiteral("Q0CSWI1.Pos"));
}

void tst_ControlCo::ofSeveralEntriesOfOneCodeTheLastIsCurrent()
{
    const TestTemplates templates(R"(<DataTypeTemplate><EnumType id="Odd">
        <EnumVal ord="3">a</EnumVal><EnumVal ord="1">b</EnumVal><EnumVal ord="1">c</EnumVal>
        <EnumVal ord="2">d</EnumVal></EnumType></DataTypeTemplate>)");
    ControllableObject object;
    object.withStVal(QStringLiteral("Enum"), 1, QStringLiteral("Odd"))
        .withCtlVal(QStringLiteral("Enum"), 1, QStringLiteral("Odd"));
    const ControlCo dialog(object.node, &templates, {}, {}, false, nullptr);
    QCOMPARE(find<QComboBox>(dialog, "stVal")->currentIndex(), 2);
    QCOMPARE(find<QComboBox>(dialog, "ctrValue")->currentIndex(), 2);
}

void tst_ControlCo::aNodeThatIsNoDataObjectLeavesTheValuesEmpty()
{
    const ControllableObject object;
    const ControlCo dialog(object.node->parent, &m_templates, {}, {}, false, nullptr);
    QCOMPARE(find<QLabel>(dialog, "objname")->text(), QStringLiteral(".Q0CSWI1"));
    QVERIFY(offeredBy(dialog, "stVal").isEmpty());
    QVERIFY(offeredBy(dialog, "ctrValue").isEmpty());
    QCOMPARE(dialog.getControlBlock().controlValue, 0.0);
}

void tst_ControlCo::theCurrentValueIsReadableThoughItCannotBeChosen()
{
    ControllableObject object;
    object.withStVal(QStringLiteral("BOOLEAN"), true);
    const ControlCo dialog(object.node, &m_templates, {}, {}, false, nullptr);
    const auto *const list = find<QComboBox>(dialog, "stVal");
    QVERIFY(!list->isEnabled());
    for (const QPalette::ColorRole role : {QPalette::Text, QPalette::ButtonText}) {
        const QPalette palette = list->palette();
        const double background = palette.color(QPalette::Disabled, QPalette::Button).lightnessF();
        const QColor &text = palette.color(QPalette::Disabled, role);
        const double shown = text.lightnessF() * text.alphaF() + background * (1 - text.alphaF());
        QVERIFY2(qAbs(background - shown) > 0.6, qPrintable(QString::number(shown)));
    }
}

void tst_ControlCo::checkOffersItsListFirstEntryCurrent()
{
    const ControllableObject object;
    const Entries list = {{3, QStringLiteral("both")}, {0, QStringLiteral("none")}};
    const ControlCo dialog(object.node, &m_templates, list, {}, false, nullptr);
    QCOMPARE(offeredBy(dialog, "check"),
             (QStringList{QStringLiteral("*both=3"), QStringLiteral("none=0")}));
    QVERIFY(find<QComboBox>(dialog, "check")->isEnabled());
    QCOMPARE(dialog.getControlBlock().check, static_cast<quint8>(3));
}

void tst_ControlCo::categoryStartsAtItsFourthEntry()
{
    const ControllableObject object;
    const Entries list = {{8, QStringLiteral("a")},
                          {7, QStringLiteral("b")},
                          {6, QStringLiteral("c")},
                          {5, QStringLiteral("d")},
                          {4, QStringLiteral("e")}};
    const ControlCo dialog(object.node, &m_templates, {}, list, false, nullptr);
    QCOMPARE(offeredBy(dialog, "category"),
             (QStringList{QStringLiteral("a=8"), QStringLiteral("b=7"), QStringLiteral("c=6"),
                          QStringLiteral("*d=5"), QStringLiteral("e=4")}));
    QCOMPARE(dialog.getControlBlock().orCat, static_cast<quint8>(5));
}

void tst_ControlCo::aShortCategoryListHasNoCurrentEntry_data()
{
    QTest::addColumn<int>("entries");
    for (int entries = 0; entries < 4; ++entries)
        QTest::addRow("%d entries", entries) << entries;
}

void tst_ControlCo::aShortCategoryListHasNoCurrentEntry()
{
    QFETCH(int, entries);
    const ControllableObject object;
    Entries list;
    for (int code = 1; code <= entries; ++code)
        list.append({code, QString::number(code)});
    const ControlCo dialog(object.node, &m_templates, {}, list, false, nullptr);
    QCOMPARE(find<QComboBox>(dialog, "category")->count(), entries);
    QCOMPARE(find<QComboBox>(dialog, "category")->currentIndex(), -1);
    QCOMPARE(dialog.getControlBlock().orCat, static_cast<quint8>(0));
}

void tst_ControlCo::theTestFlagStartsAtFalse()
{
    const ControllableObject object;
    const auto dialog = dialogFor(object);
    QCOMPARE(offeredBy(*dialog, "test"),
             (QStringList{QStringLiteral("*False=0"), QStringLiteral("true=1")}));
}

void tst_ControlCo::aLockedCheckSendsItsFirstEntry()
{
    const ControllableObject object;
    const Entries list = {{2, QStringLiteral("first")}, {1, QStringLiteral("second")}};
    ControlCo dialog(object.node, &m_templates, list, {}, true, nullptr);
    dialog.show();
    auto *const check = find<QComboBox>(dialog, "check");
    QVERIFY(!check->isEnabled());
    QTest::mouseClick(check, Qt::LeftButton);
    QVERIFY(!QApplication::activePopupWidget());
    QTest::keyClick(check, Qt::Key_Down);
    QCOMPARE(dialog.getControlBlock().check, static_cast<quint8>(2));
}

void tst_ControlCo::emptyListsGiveZeros()
{
    const ControllableObject object;
    const ControlCo dialog(object.node, &m_templates, {}, {}, false, nullptr);
    const ControlBlock block = dialog.getControlBlock();
    QCOMPARE(block.check, static_cast<quint8>(0));
    QCOMPARE(block.orCat, static_cast<quint8>(0));
    QCOMPARE(block.test, static_cast<quint8>(0));
    QCOMPARE(block.controlValue, 0.0);
}

void tst_ControlCo::listValuesOfTheStatusAreShown_data()
{
    QTest::addColumn<QString>("basicType");
    QTest::addColumn<QString>("enumTypeId");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QStringList>("offered");

    const QStringList positions = {QStringLiteral("intermediate-state=0"), QStringLiteral("off=1"),
                                   QStringLiteral("on=2"), QStringLiteral("bad-state=3")};
    const auto current = [](QStringList entries, int index) {
        entries[index].prepend(QLatin1Char('*'));
        return entries;
    };
    const QStringList booleans = {QStringLiteral("False=0"), QStringLiteral("true=1")};
    const QString none;
    QTest::newRow("double point") << QStringLiteral("Dbpos") << none << QVariant(2)
                                  << current(positions, 2);
    QTest::newRow("value of another number type")
        << QStringLiteral("Dbpos") << none << QVariant(qulonglong(1)) << current(positions, 1);
    QTest::newRow("no such code") << QStringLiteral("Dbpos") << none << QVariant(9)
                                  << current(positions, 0);
    QTest::newRow("no value") << QStringLiteral("Dbpos") << none << QVariant()
                              << current(positions, 0);
    QTest::newRow("double point with a type of its own")
        << QStringLiteral("Dbpos") << QStringLiteral("Tcmd") << QVariant(1)
        << QStringList{QStringLiteral("stop=0"), QStringLiteral("*lower=1"),
                       QStringLiteral("higher=2"), QStringLiteral("reserved=3")};
    QTest::newRow("enumeration") << QStringLiteral("Enum") << QStringLiteral("Dbpos") << QVariant(3)
                                 << current(positions, 3);
    QTest::newRow("check") << QStringLiteral("Check") << none << QVariant(1)
                           << QStringList{QStringLiteral("no-check=0"),
                                          QStringLiteral("*interlock-check=1"),
                                          QStringLiteral("synchrocheck=2"),
                                          QStringLiteral("synchrocheck and interlock-check=3")};
    QTest::newRow("enumeration without a type")
        << QStringLiteral("Enum") << none << QVariant(1) << QStringList();
    QTest::newRow("enumeration of an unknown type")
        << QStringLiteral("Enum") << QStringLiteral("noSuchType") << QVariant(1) << QStringList();
    QTest::newRow("boolean, true")
        << QStringLiteral("BOOLEAN") << none << QVariant(true) << current(booleans, 1);
    QTest::newRow("boolean, false")
        << QStringLiteral("BOOLEAN") << none << QVariant(false) << current(booleans, 0);
    QTest::newRow("boolean, any other number")
        << QStringLiteral("BOOLEAN") << none << QVariant(-7) << current(booleans, 1);
    QTest::newRow("boolean without a value")
        << QStringLiteral("BOOLEAN") << none << QVariant() << current(booleans, 0);
}

void tst_ControlCo::listValuesOfTheStatusAreShown()
{
    QFETCH(QString, basicType);
    QFETCH(QString, enumTypeId);
    QFETCH(QVariant, value);
    ControllableObject object;
    object.withStVal(basicType, value, enumTypeId);
    const auto dialog = dialogFor(object);
    QTEST(offeredBy(*dialog, "stVal"), "offered");
    QVERIFY(find<QComboBox>(*dialog, "stVal")->isVisible());
    QVERIFY(find<QLabel>(*dialog, "stValDisp")->isHidden());
}

void tst_ControlCo::otherValuesOfTheStatusAreShownAsNumbers_data()
{
    QTest::addColumn<QString>("basicType");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("shown");
    QTest::newRow("INT32") << QStringLiteral("INT32") << QVariant(-12) << QStringLiteral("-12");
    QTest::newRow("six digits") << QStringLiteral("INT32") << QVariant(1234567)
                                << QStringLiteral("1.23457e+06");
    QTest::newRow("FLOAT32") << QStringLiteral("FLOAT32") << QVariant(2.5F)
                             << QStringLiteral("2.5");
    QTest::newRow("Tcmd") << QStringLiteral("Tcmd") << QVariant(1) << QStringLiteral("1");
    QTest::newRow("other case") << QStringLiteral("boolean") << QVariant(true)
                                << QStringLiteral("1");
    QTest::newRow("no number") << QStringLiteral("VisString255")
                               << QVariant(QStringLiteral("%1 open")) << QStringLiteral("0");
    QTest::newRow("no value") << QStringLiteral("INT8") << QVariant() << QStringLiteral("0");
}

void tst_ControlCo::otherValuesOfTheStatusAreShownAsNumbers()
{
    QFETCH(QString, basicType);
    QFETCH(QVariant, value);
    ControllableObject object;
    object.withStVal(basicType, value);
    const auto dialog = dialogFor(object);
    QVERIFY(find<QComboBox>(*dialog, "stVal")->isHidden());
    QVERIFY(find<QLabel>(*dialog, "stValDisp")->isVisible());
    QTEST(find<QLabel>(*dialog, "stValDisp")->text(), "shown");
}

void tst_ControlCo::theStatusCanNeverBeChanged()
{
    ControllableObject object;
    object.withStVal(QStringLiteral("Dbpos"), 1);
    const auto dialog = dialogFor(object);
    auto *const status = find<QComboBox>(*dialog, "stVal");
    QVERIFY(!status->isEnabled());
    QTest::mouseClick(status, Qt::LeftButton);
    QVERIFY(!QApplication::activePopupWidget());
    QCOMPARE(status->currentIndex(), 1);
}

void tst_ControlCo::anObjectWithoutStatusShowsAnEmptyList_data()
{
    QTest::addColumn<bool>("structure");
    QTest::newRow("no stVal") << false;
    QTest::newRow("stVal is no attribute") << true;
}

void tst_ControlCo::anObjectWithoutStatusShowsAnEmptyList()
{
    QFETCH(bool, structure);
    ControllableObject object;
    if (structure)
        object.with(newStructure(QStringLiteral("stVal")));
    const auto dialog = dialogFor(object);
    QVERIFY(find<QComboBox>(*dialog, "stVal")->isVisible());
    QVERIFY(!find<QComboBox>(*dialog, "stVal")->isEnabled());
    QCOMPARE(find<QComboBox>(*dialog, "stVal")->count(), 0);
    QVERIFY(find<QLabel>(*dialog, "stValDisp")->isHidden());
}

void tst_ControlCo::listValuesOfTheControlAreOffered_data()
{
    listValuesOfTheStatusAreShown_data();
}

void tst_ControlCo::listValuesOfTheControlAreOffered()
{
    QFETCH(QString, basicType);
    QFETCH(QString, enumTypeId);
    QFETCH(QVariant, value);
    QFETCH(QStringList, offered);
    ControllableObject object;
    object.withCtlVal(basicType, value, enumTypeId);
    const auto dialog = dialogFor(object);
    QCOMPARE(offeredBy(*dialog, "ctrValue"), offered);
    QVERIFY(find<QComboBox>(*dialog, "ctrValue")->isVisible());
    QVERIFY(find<QComboBox>(*dialog, "ctrValue")->isEnabled());
    QVERIFY(find<QLineEdit>(*dialog, "ctrEdit")->isHidden());

    for (const QString &entry : qAsConst(offered)) {
        const QStringList parts = QString(entry).remove(QLatin1Char('*')).split(QLatin1Char('='));
        choose(*dialog, "ctrValue", parts.first());
        QCOMPARE(dialog->getControlBlock().controlValue, parts.last().toDouble());
    }
}

void tst_ControlCo::otherControlValuesAreTyped_data()
{
    QTest::addColumn<QString>("basicType");
    for (const char *type : {"INT32", "INT8", "FLOAT32", "Tcmd", "VisString64", ""})
        QTest::newRow(type) << QString::fromLatin1(type);
}

void tst_ControlCo::otherControlValuesAreTyped()
{
    QFETCH(QString, basicType);
    ControllableObject object;
    object.withCtlVal(basicType, 44);
    const auto dialog = dialogFor(object);
    auto *const editor = find<QLineEdit>(*dialog, "ctrEdit");
    QVERIFY(editor->isVisible());
    QCOMPARE(editor->text(), QString());
    QVERIFY(find<QComboBox>(*dialog, "ctrValue")->isHidden());
    QTest::keyClicks(editor, QStringLiteral("-17.25"));
    QCOMPARE(dialog->getControlBlock().controlValue, -17.25);
}

void tst_ControlCo::anObjectWithoutControlValueOffersNone_data()
{
    QTest::addColumn<int>("present");
    QTest::newRow("no Oper") << 0;
    QTest::newRow("Oper without ctlVal") << 1;
    QTest::newRow("ctlVal is no attribute") << 2;
}

void tst_ControlCo::anObjectWithoutControlValueOffersNone()
{
    QFETCH(int, present);
    ControllableObject object;
    object.withStVal(QStringLiteral("BOOLEAN"), true);
    if (present > 0) {
        DAO *const oper = newStructure(QStringLiteral("Oper"));
        if (present > 1)
            oper->children << newStructure(QStringLiteral("ctlVal"));
        object.with(oper);
    }
    const auto dialog = dialogFor(object);
    QVERIFY(find<QComboBox>(*dialog, "ctrValue")->isVisible());
    QCOMPARE(find<QComboBox>(*dialog, "ctrValue")->count(), 0);
    QVERIFY(find<QLineEdit>(*dialog, "ctrEdit")->isHidden());
    QCOMPARE(dialog->getControlBlock().controlValue, 0.0);
}

void tst_ControlCo::aDoublePointOffersFalseAndTrue()
{
    ControllableObject object;
    object.withStVal(QStringLiteral("Dbpos"), 2).withCtlVal(QStringLiteral("BOOLEAN"), false);
    const auto dialog = dialogFor(object);
    QCOMPARE(find<QComboBox>(*dialog, "stVal")->currentText(), QStringLiteral("on"));
    QCOMPARE(offeredBy(*dialog, "ctrValue"),
             (QStringList{QStringLiteral("*False=0"), QStringLiteral("true=1")}));
}

void tst_ControlCo::anIntegerObjectTakesTheTypedNumber_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("value");
    QTest::newRow("integer") << QStringLiteral("12") << 12.0;
    QTest::newRow("exponent") << QStringLiteral("1e3") << 1000.0;
    QTest::newRow("no number") << QStringLiteral("abc") << 0.0;
    QTest::newRow("number and more") << QStringLiteral("12abc") << 0.0;
    QTest::newRow("comma") << QStringLiteral("1,5") << 0.0;
    QTest::newRow("too large") << QStringLiteral("1e999") << 0.0;
    QTest::newRow("nothing") << QString() << 0.0;
}

void tst_ControlCo::anIntegerObjectTakesTheTypedNumber()
{
    QFETCH(QString, typed);
    ControllableObject object;
    object.withStVal(QStringLiteral("INT32"), 7).withCtlVal(QStringLiteral("INT32"));
    const auto dialog = dialogFor(object);
    QCOMPARE(find<QLabel>(*dialog, "stValDisp")->text(), QStringLiteral("7"));
    QTest::keyClicks(find<QLineEdit>(*dialog, "ctrEdit"), typed);
    QTEST(dialog->getControlBlock().controlValue, "value");
}

void tst_ControlCo::aNumericStatusTakesTheControlValueFromTheHiddenText_data()
{
    QTest::addColumn<QString>("ctlValType");
    QTest::newRow("BOOLEAN") << QStringLiteral("BOOLEAN");
    QTest::newRow("Dbpos") << QStringLiteral("Dbpos");
}

void tst_ControlCo::aNumericStatusTakesTheControlValueFromTheHiddenText()
{
    QFETCH(QString, ctlValType);
    ControllableObject object;
    object.withStVal(QStringLiteral("INT32"), 1).withCtlVal(ctlValType, 1);
    const auto dialog = dialogFor(object);
    QVERIFY(find<QComboBox>(*dialog, "ctrValue")->isVisible());
    QVERIFY(find<QLineEdit>(*dialog, "ctrEdit")->isHidden());
    QCOMPARE(find<QComboBox>(*dialog, "ctrValue")->currentIndex(), 1);
    QCOMPARE(dialog->getControlBlock().controlValue, 0.0);
}

void tst_ControlCo::textsOfTheDeviceAreShownLiterally()
{
    ControllableObject object;
    object.node->dataObject()->name = QStringLiteral("<b>%1</b>");
    const auto dialog = dialogFor(object);
    QCOMPARE(find<QLabel>(*dialog, "objname")->text(), QStringLiteral("Q0CSWI1.<b>%1</b>"));
    QCOMPARE(find<QLabel>(*dialog, "objname")->textFormat(), Qt::PlainText);
}

void tst_ControlCo::everyChoiceReachesTheRequest()
{
    ControllableObject object;
    object.withStVal(QStringLiteral("BOOLEAN"), false).withCtlVal(QStringLiteral("BOOLEAN"));
    ControlCo dialog(object.node, &m_templates, m_templates.entries(QStringLiteral("Check")),
                     m_templates.entries(QStringLiteral("orCat")), false, nullptr);
    ModalDriver driver({[](QWidget *window) {
        choose(*window, "ctrValue", QStringLiteral("true"));
        choose(*window, "test", QStringLiteral("true"));
        choose(*window, "category", QStringLiteral("maintenance"));
        choose(*window, "check", QStringLiteral("synchrocheck"));
        QTest::mouseClick(
            find<QDialogButtonBox>(*window, "buttonBox")->button(QDialogButtonBox::Ok),
            Qt::LeftButton);
    }});
    QCOMPARE(dialog.exec(), static_cast<int>(QDialog::Accepted));
    QVERIFY(driver.finished());
    const ControlBlock block = dialog.getControlBlock();
    QCOMPARE(block.controlValue, 1.0);
    QCOMPARE(block.test, static_cast<quint8>(1));
    QCOMPARE(block.orCat, static_cast<quint8>(7));
    QCOMPARE(block.check, static_cast<quint8>(2));
}

void tst_ControlCo::codesAreCutToEightBits()
{
    const ControllableObject object;
    const Entries check = {{0x1ff, QStringLiteral("a")}};
    const Entries category = {{0, QString()}, {0, QString()}, {0, QString()}, {-2, QString()}};
    const ControlCo dialog(object.node, &m_templates, check, category, false, nullptr);
    QCOMPARE(dialog.getControlBlock().check, static_cast<quint8>(0xff));
    QCOMPARE(dialog.getControlBlock().orCat, static_cast<quint8>(0xfe));
}

void tst_ControlCo::theRequestLeavesReferenceAndControlModelToTheCaller()
{
    ControllableObject object;
    object.withCtlVal(QStringLiteral("BOOLEAN"), true)
        .with(newAttribute(QStringLiteral("ctlModel"), QStringLiteral("Enum"), 4));
    const auto dialog = dialogFor(object);
    const ControlBlock block = dialog->getControlBlock();
    QCOMPARE(block.objectReference, QString());
    QCOMPARE(block.controlModel, static_cast<quint8>(0));
    QCOMPARE(block.controlValue, 1.0);
}

void tst_ControlCo::okAcceptsAndCancelRejects_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<int>("result");
    QTest::newRow("OK") << static_cast<int>(QDialogButtonBox::Ok)
                        << static_cast<int>(QDialog::Accepted);
    QTest::newRow("Cancel") << static_cast<int>(QDialogButtonBox::Cancel)
                            << static_cast<int>(QDialog::Rejected);
    QTest::newRow("Escape") << 0 << static_cast<int>(QDialog::Rejected);
}

void tst_ControlCo::okAcceptsAndCancelRejects()
{
    QFETCH(int, button);
    ControllableObject object;
    object.withCtlVal(QStringLiteral("INT32"));
    ControlCo dialog(object.node, &m_templates, {}, {}, false, nullptr);
    ModalDriver driver({[button](QWidget *window) {
        // Whatever was typed, OK takes it.
        QTest::keyClicks(find<QLineEdit>(*window, "ctrEdit"), QStringLiteral("no number"));
        if (button == 0) {
            QTest::keyClick(window, Qt::Key_Escape);
            return;
        }
        const auto *const box = find<QDialogButtonBox>(*window, "buttonBox");
        QTest::mouseClick(box->button(static_cast<QDialogButtonBox::StandardButton>(button)),
                          Qt::LeftButton);
    }});
    QTEST(dialog.exec(), "result");
    QVERIFY(driver.finished());
}

void tst_ControlCo::theDecimalMarkOfTheLocaleIsAPoint()
{
    QLocale::setDefault(QLocale(QStringLiteral("de_DE")));
    ControllableObject object;
    object.withCtlVal(QStringLiteral("FLOAT32"));
    const auto dialog = dialogFor(object);
    auto *const editor = find<QLineEdit>(*dialog, "ctrEdit");
    QTest::keyClicks(editor, QStringLiteral("95,5"));
    QLocale::setDefault(QLocale::c());
    QCOMPARE(editor->text(), QStringLiteral("95.5"));
    QCOMPARE(dialog->getControlBlock().controlValue, 95.5);
    QCOMPARE(dialog->faultOfTypedValue(), QString());
}

void tst_ControlCo::anUnreadableTextIsToldAndEnterDoesNotTakeIt_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("sentence");
    QTest::newRow("a comma")
        << QStringLiteral("FLOAT32") << QStringLiteral("95,5")
        << QStringLiteral("A number with a decimal point is needed, such as 0.25 or 1e-3.");
    QTest::newRow("letters") << QStringLiteral("INT32") << QStringLiteral("abc")
                             << QStringLiteral(
                                    "A whole number from -2147483648 to 2147483647 is needed.");
    QTest::newRow("a fraction for an integer")
        << QStringLiteral("INT8") << QStringLiteral("1.5")
        << QStringLiteral("A whole number from -128 to 127 is needed.");
    QTest::newRow("too large")
        << QStringLiteral("FLOAT32") << QStringLiteral("1e39")
        << QStringLiteral("The number is too large: the data type ends at 3.4028235e38.");
}

void tst_ControlCo::anUnreadableTextIsToldAndEnterDoesNotTakeIt()
{
    QFETCH(QString, type);
    QFETCH(QString, text);
    QFETCH(QString, sentence);
    ControllableObject object;
    object.withCtlVal(type);
    const auto dialog = dialogFor(object);
    auto *const editor = find<QLineEdit>(*dialog, "ctrEdit");
    QSignalSpy finished(dialog.get(), &QDialog::finished);

    QTest::keyClicks(editor, text);
    QCOMPARE(editor->text(), text);
    QTest::keyClick(editor, Qt::Key_Return);
    QCOMPARE(finished.count(), 0);
    QCOMPARE(QToolTip::text(), sentence);
    QCOMPARE(dialog->faultOfTypedValue(), sentence);

    editor->selectAll();
    QTest::keyClicks(editor, QStringLiteral("12"));
    QCOMPARE(dialog->faultOfTypedValue(), QString());
    QTest::keyClick(editor, Qt::Key_Return);
    QCOMPARE(finished.count(), 1);
}

void tst_ControlCo::theTabKeyFollowsTheReadingOrder()
{
    ControllableObject object;
    object.withStVal(QStringLiteral("Dbpos"), 2).withCtlVal(QStringLiteral("BOOLEAN"));
    const auto dialog = dialogFor(object);
    dialog->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
    auto *const first = find<QWidget>(*dialog, "ctrValue");
    QCOMPARE(dialog->focusWidget(), first);
    QStringList names;
    while (names.size() < 4) {
        names << dialog->focusWidget()->objectName();
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(names, (QStringList{QStringLiteral("ctrValue"), QStringLiteral("test"),
                                 QStringLiteral("category"), QStringLiteral("check")}));
    QVERIFY(qobject_cast<QPushButton *>(dialog->focusWidget()));
}

void tst_ControlCo::everyEntryFieldHasAnAccessibleName()
{
    const ControllableObject object;
    const auto dialog = dialogFor(object);
    for (const char *name :
         {"stVal", "stValDisp", "ctrValue", "ctrEdit", "test", "category", "check"}) {
        QAccessibleInterface *accessible =
            QAccessible::queryAccessibleInterface(find<QWidget>(*dialog, name));
        QVERIFY(accessible);
        QVERIFY2(!accessible->text(QAccessible::Name).isEmpty(), name);
    }
}

QTEST_MAIN(tst_ControlCo)
#include "tst_controlco.moc"
