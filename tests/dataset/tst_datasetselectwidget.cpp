// SPDX-License-Identifier: Apache-2.0
#include "dataset/datasetselectwidget.h"
#include "model/devicebuilder.h"
#include "support/modaldriver.h"

#include <QtCore/QTranslator>
#include <QtGui/QHelpEvent>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolTip>
#include <QtWidgets/QTreeWidget>

#include <memory>

using namespace DeviceBuilder;

namespace {

/// A breaker, a measurement and a node without status or measurement, in two logical devices.
std::unique_ptr<PhysicalDevice> makeBay()
{
    auto device = std::make_unique<PhysicalDevice>();
    LogicalDevice *control = addLogicalDevice(*device, "BAYCTRL");
    LogicalNode *breaker = addLogicalNode(control, "XCBR", "XCBR1");

    DataObject *position = addDataObject(breaker, "Pos", "DPC");
    addAttribute(position->attributes, "stVal", "ST", "Dbpos");
    addAttribute(position->attributes, "q", "ST", "Quality");
    addAttribute(position->attributes, "t", "ST", "Timestamp");
    addAttribute(position->attributes, "ctlModel", "CF", "Enum");
    addAttribute(position->attributes, "d", "DC", "VisString255");

    // Measured and status values in one object.
    DataObject *counter = addDataObject(breaker, "SumSwARs", "BCR");
    addAttribute(counter->attributes, "mag", "MX", "FLOAT32");
    addAttribute(counter->attributes, "actVal", "ST", "INT64");
    addAttribute(counter->attributes, "q", "ST", "Quality");

    DataObject *blocked = addDataObject(breaker, "BlkOpn", "SPC");
    addAttribute(blocked->attributes, "stVal", "ST", "BOOLEAN");

    LogicalDevice *measurement = addLogicalDevice(*device, "BAYMEAS");
    LogicalNode *mmxu = addLogicalNode(measurement, "MMXU", "MMXU1");
    DataObject *current = addDataObject(mmxu, "A", "WYE");
    for (const char *phase : {"phsA", "phsB"}) {
        DAO *sub = addSubDataObject(current->attributes, phase, "CMV");
        DAO *value = addAttribute(sub->children, "cVal", "MX", "Struct");
        DAO *magnitude = addAttribute(value->children, "mag", "MX", "Struct");
        addAttribute(magnitude->children, "f", "MX", "FLOAT32");
        addAttribute(sub->children, "q", "MX", "Quality");
        addAttribute(sub->children, "db", "CF", "INT32U");
    }
    LogicalNode *settings = addLogicalNode(measurement, "PTOC", "PTOC1");
    DataObject *start = addDataObject(settings, "StrVal", "ASG");
    addAttribute(start->attributes, "setMag", "SG", "Struct");
    return device;
}

/// A language in which every text is much longer than in English.
class LongLanguage : public QTranslator
{
public:
    QString translate(const char * /*context*/, const char *text, const char * /*comment*/,
                      int /*n*/) const override
    {
        return QString::fromUtf8(text) + QStringLiteral(" und so weiter");
    }
    bool isEmpty() const override { return false; }
};

/// The tree as indented lines; "[ ]", "[x]" and "[-]" are check boxes.
void addLines(const QTreeWidgetItem *item, int depth, QStringList &lines)
{
    QString line(depth, QLatin1Char(' '));
    if (item->flags().testFlag(Qt::ItemIsUserCheckable)) {
        const Qt::CheckState state = item->checkState(0);
        line += state == Qt::Checked ? "[x]" : state == Qt::Unchecked ? "[ ]" : "[-]";
    } else if (item->data(0, Qt::CheckStateRole).isValid()) {
        line += "[?]";
    }
    lines << line + item->text(0);
    for (int row = 0; row < item->childCount(); ++row)
        addLines(item->child(row), depth + 1, lines);
}

} // namespace

class tst_DatasetSelectWidget : public QObject
{
    Q_OBJECT

private slots:
    void theDialogBearsTheNamesAndTextsThatHostsKnow();
    void longTranslationsAreShownWhole();
    void treeListsStatusAndMeasurementByConstraint();
    void objectOfBothConstraintsIsListedUnderEach();
    void nodeHasOneItemPerConstraintStatusFirst();
    void deviceWithoutSuchDataShowsDevicesAndNodesOnly();
    void emptyDeviceShowsAnEmptyTree();
    void attributeOfTheConstraintKeepsOnlyItsOwnBelow();

    void tickingAnObjectTicksEverythingBelow_data();
    void tickingAnObjectTicksEverythingBelow();
    void untickingOneOfThreeLeavesTheObjectPartial();
    void tickingTheLastOneCompletesTheObject();
    void untickingTheLastOneEmptiesTheObject();
    void tickingAPartialObjectTicksItAll();
    void nestedMarksClimbToTheObject();
    void marksNeverReachConstraintNodeOrDevice();
    void slotLeavesAPartialItemAlone();

    void wholeObjectIsOneMember();
    void partialObjectGivesItsTickedAttributes();
    void membersFollowTheTree();
    void onlyTheFirstSeparatorBecomesASlash();
    void emptyNamesKeepTheirPlaces();
    void nothingTickedGivesNoMember();

    void okWithoutMembersWarnsAlsoWhenThereIsAName();
    void okWithoutANameWarns();
    void okWithMembersAndNameAccepts();
    void nameIsTakenAsItIs();
    void okOnADeviceWithoutSuchDataWarns();
    void cancelAndEscapeReject();
    void enterInTheNameIsOk();
    void tabFollowsReadingOrder();
    void nameAndTreeHaveAccessibleNames();

    void itemsAreExplained_data();
    void itemsAreExplained();

private:
    enum class Way { Mouse, Keyboard };

    void open(std::unique_ptr<PhysicalDevice> device);
    void openBay() { open(makeBay()); }
    QTreeWidget *tree() const { return m_dialog->findChild<QTreeWidget *>("treeWidget"); }
    QLineEdit *nameEdit() const { return m_dialog->findChild<QLineEdit *>("lineEdit"); }
    QPushButton *button(QDialogButtonBox::StandardButton which) const
    {
        return m_dialog->findChild<QDialogButtonBox *>("buttonBox")->button(which);
    }
    QTreeWidgetItem *find(const QString &path) const;
    Qt::CheckState state(const QString &path) const { return find(path)->checkState(0); }
    void toggle(const QString &path, Way way = Way::Mouse);
    QStringList lines() const;
    ShownMessage pressOkAndReadWarning();

    std::unique_ptr<PhysicalDevice> m_device;
    std::unique_ptr<DatasetSelectWidget> m_dialog;
};

void tst_DatasetSelectWidget::open(std::unique_ptr<PhysicalDevice> device)
{
    m_device = std::move(device);
    m_dialog = std::make_unique<DatasetSelectWidget>(nullptr);
    m_dialog->setDevice(m_device.get());
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
}

QTreeWidgetItem *tst_DatasetSelectWidget::find(const QString &path) const
{
    QTreeWidgetItem *item = tree()->invisibleRootItem();
    for (const QString &name : path.split('/')) {
        QTreeWidgetItem *found = nullptr;
        for (int row = 0; row < item->childCount() && !found; ++row) {
            if (item->child(row)->text(0) == name)
                found = item->child(row);
        }
        if (!found)
            qFatal("The tree has no %s.", qPrintable(path));
        item = found;
    }
    return item;
}

void tst_DatasetSelectWidget::toggle(const QString &path, Way way)
{
    QTreeWidgetItem *item = find(path);
    tree()->scrollToItem(item);
    if (way == Way::Keyboard) {
        tree()->setFocus();
        tree()->setCurrentItem(item);
        QTest::keyClick(tree(), Qt::Key_Space);
        return;
    }
    QStyleOptionViewItem option;
    option.initFrom(tree());
    option.widget = tree();
    option.rect = tree()->visualItemRect(item);
    option.features = QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
    const QRect box =
        tree()->style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, tree());
    QTest::mouseClick(tree()->viewport(), Qt::LeftButton, {}, box.center());
}

QStringList tst_DatasetSelectWidget::lines() const
{
    QStringList result;
    for (int row = 0; row < tree()->topLevelItemCount(); ++row)
        addLines(tree()->topLevelItem(row), 0, result);
    return result;
}

ShownMessage tst_DatasetSelectWidget::pressOkAndReadWarning()
{
    ShownMessage message;
    ModalDriver driver({ModalDriver::pressInMessageBox(QMessageBox::Ok, &message)});
    QTest::mouseClick(button(QDialogButtonBox::Ok), Qt::LeftButton);
    if (!driver.finished())
        qFatal("No warning was shown.");
    return message;
}

void tst_DatasetSelectWidget::theDialogBearsTheNamesAndTextsThatHostsKnow()
{
    openBay();
    QCOMPARE(m_dialog->objectName(), "DatasetSelectWidget");
    QCOMPARE(m_dialog->windowTitle(), "Selete Datas");
    QVERIFY(!m_dialog->windowFlags().testFlag(Qt::WindowContextHelpButtonHint));
    QCOMPARE(m_dialog->size(), QSize(484, 307));
    QCOMPARE(m_dialog->findChild<QLabel *>("label")->text(), "DataSet Name : ");
    QCOMPARE(tree()->columnCount(), 1);
    QCOMPARE(tree()->headerItem()->text(0), "Name");
    QVERIFY(!tree()->isHeaderHidden());
    QCOMPARE(m_dialog->findChild<QDialogButtonBox *>("buttonBox")->standardButtons(),
             QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
}

void tst_DatasetSelectWidget::longTranslationsAreShownWhole()
{
    LongLanguage language;
    QCoreApplication::installTranslator(&language);
    openBay();
    const QList<QWidget *> texts = {m_dialog->findChild<QLabel *>("label"),
                                    button(QDialogButtonBox::Ok), button(QDialogButtonBox::Cancel)};
    for (const QWidget *text : texts)
        QVERIFY(text->width() >= text->sizeHint().width());
}

void tst_DatasetSelectWidget::treeListsStatusAndMeasurementByConstraint()
{
    openBay();
    QCOMPARE(lines(),
             QStringList({
                 "BAYCTRL",      " XCBR1",       "  ST",           "   [ ]Pos",      "    [ ]stVal",
                 "    [ ]q",     "    [ ]t",     "   [ ]SumSwARs", "    [ ]actVal",  "    [ ]q",
                 "   [ ]BlkOpn", "    [ ]stVal", "  MX",           "   [ ]SumSwARs", "    [ ]mag",
                 "BAYMEAS",      " MMXU1",       "  MX",           "   [ ]A",        "    [ ]phsA",
                 "     [ ]cVal", "      [ ]mag", "       [ ]f",    "     [ ]q",      "    [ ]phsB",
                 "     [ ]cVal", "      [ ]mag", "       [ ]f",    "     [ ]q",      " PTOC1",
             }));
}

void tst_DatasetSelectWidget::objectOfBothConstraintsIsListedUnderEach()
{
    openBay();
    QCOMPARE(find("BAYCTRL/XCBR1/ST/SumSwARs")->childCount(), 2);
    QCOMPARE(find("BAYCTRL/XCBR1/MX/SumSwARs")->childCount(), 1);
    toggle("BAYCTRL/XCBR1/MX/SumSwARs");
    QCOMPARE(state("BAYCTRL/XCBR1/ST/SumSwARs"), Qt::Unchecked);
    QCOMPARE(m_dialog->members(), QStringList("BAYCTRL/XCBR1$MX$SumSwARs"));
}

void tst_DatasetSelectWidget::nodeHasOneItemPerConstraintStatusFirst()
{
    auto device = std::make_unique<PhysicalDevice>();
    LogicalNode *node = addLogicalNode(addLogicalDevice(*device, "LD"), "GGIO", "GGIO1");
    // The object's own order of constraints does not count, that of the objects does.
    DataObject *both = addDataObject(node, "Both", "X");
    addAttribute(both->attributes, "m", "MX", "INT32");
    addAttribute(both->attributes, "s", "ST", "INT32");
    DataObject *status = addDataObject(node, "Status", "X");
    addAttribute(status->attributes, "s", "ST", "INT32");
    DataObject *measured = addDataObject(node, "Measured", "X");
    addAttribute(measured->attributes, "m", "MX", "INT32");
    open(std::move(device));
    QCOMPARE(lines(), QStringList({"LD", " GGIO1", "  ST", "   [ ]Both", "    [ ]s", "   [ ]Status",
                                   "    [ ]s", "  MX", "   [ ]Both", "    [ ]m", "   [ ]Measured",
                                   "    [ ]m"}));
}

void tst_DatasetSelectWidget::deviceWithoutSuchDataShowsDevicesAndNodesOnly()
{
    auto device = std::make_unique<PhysicalDevice>();
    LogicalNode *node = addLogicalNode(addLogicalDevice(*device, "LD"), "PTOC", "PTOC1");
    addAttribute(addDataObject(node, "StrVal", "ASG")->attributes, "setMag", "SG", "Struct");
    addDataObject(node, "Empty", "X");
    open(std::move(device));
    QCOMPARE(lines(), QStringList({"LD", " PTOC1"}));
}

void tst_DatasetSelectWidget::emptyDeviceShowsAnEmptyTree()
{
    open(std::make_unique<PhysicalDevice>());
    QCOMPARE(tree()->topLevelItemCount(), 0);
    QVERIFY(m_dialog->members().isEmpty());
}

void tst_DatasetSelectWidget::attributeOfTheConstraintKeepsOnlyItsOwnBelow()
{
    auto device = std::make_unique<PhysicalDevice>();
    LogicalNode *node = addLogicalNode(addLogicalDevice(*device, "LD"), "GGIO", "GGIO1");
    DataObject *object = addDataObject(node, "Mixed", "X");
    DAO *sub = addSubDataObject(object->attributes, "sub", "Y");
    addAttribute(sub->children, "s", "ST", "INT32");
    addAttribute(sub->children, "m", "MX", "INT32");
    addAttribute(sub->children, "c", "CF", "INT32");
    open(std::move(device));
    QCOMPARE(lines(), QStringList({"LD", " GGIO1", "  ST", "   [ ]Mixed", "    [ ]sub", "     [ ]s",
                                   "  MX", "   [ ]Mixed", "    [ ]sub", "     [ ]m"}));
}

void tst_DatasetSelectWidget::tickingAnObjectTicksEverythingBelow_data()
{
    QTest::addColumn<bool>("byKeyboard");
    QTest::newRow("mouse") << false;
    QTest::newRow("keyboard") << true;
}

void tst_DatasetSelectWidget::tickingAnObjectTicksEverythingBelow()
{
    QFETCH(bool, byKeyboard);
    const Way way = byKeyboard ? Way::Keyboard : Way::Mouse;
    openBay();
    toggle("BAYMEAS/MMXU1/MX/A", way);
    QCOMPARE(lines().filter("[x]").size(), 11);
    QCOMPARE(state("BAYMEAS/MMXU1/MX/A/phsB/cVal/mag/f"), Qt::Checked);
    toggle("BAYMEAS/MMXU1/MX/A/phsA", way);
    QCOMPARE(state("BAYMEAS/MMXU1/MX/A"), Qt::PartiallyChecked);
    QCOMPARE(state("BAYMEAS/MMXU1/MX/A/phsA/cVal/mag/f"), Qt::Unchecked);
    QCOMPARE(state("BAYMEAS/MMXU1/MX/A/phsB"), Qt::Checked);
    toggle("BAYMEAS/MMXU1/MX/A", way);
    toggle("BAYMEAS/MMXU1/MX/A", way);
    QVERIFY(lines().filter("[x]").isEmpty());
    QVERIFY(lines().filter("[-]").isEmpty());
}

void tst_DatasetSelectWidget::untickingOneOfThreeLeavesTheObjectPartial()
{
    openBay();
    toggle("BAYCTRL/XCBR1/ST/Pos");
    toggle("BAYCTRL/XCBR1/ST/Pos/q");
    QCOMPARE(state("BAYCTRL/XCBR1/ST/Pos"), Qt::PartiallyChecked);
    QCOMPARE(m_dialog->members(),
             QStringList({"BAYCTRL/XCBR1$ST$Pos$stVal", "BAYCTRL/XCBR1$ST$Pos$t"}));
}

void tst_DatasetSelectWidget::tickingTheLastOneCompletesTheObject()
{
    openBay();
    toggle("BAYCTRL/XCBR1/ST/Pos/stVal");
    toggle("BAYCTRL/XCBR1/ST/Pos/t");
    QCOMPARE(state("BAYCTRL/XCBR1/ST/Pos"), Qt::PartiallyChecked);
    toggle("BAYCTRL/XCBR1/ST/Pos/q");
    QCOMPARE(state("BAYCTRL/XCBR1/ST/Pos"), Qt::Checked);
    QCOMPARE(m_dialog->members(), QStringList("BAYCTRL/XCBR1$ST$Pos"));
}

void tst_DatasetSelectWidget::untickingTheLastOneEmptiesTheObject()
{
    openBay();
    toggle("BAYCTRL/XCBR1/ST/Pos/stVal");
    toggle("BAYCTRL/XCBR1/ST/Pos/stVal");
    QCOMPARE(state("BAYCTRL/XCBR1/ST/Pos"), Qt::Unchecked);
    QVERIFY(m_dialog->members().isEmpty());
}

void tst_DatasetSelectWidget::tickingAPartialObjectTicksItAll()
{
    openBay();
    toggle("BAYCTRL/XCBR1/ST/Pos/stVal");
    toggle("BAYCTRL/XCBR1/ST/Pos", Way::Keyboard);
    QCOMPARE(state("BAYCTRL/XCBR1/ST/Pos"), Qt::Checked);
    QCOMPARE(state("BAYCTRL/XCBR1/ST/Pos/t"), Qt::Checked);
}

void tst_DatasetSelectWidget::nestedMarksClimbToTheObject()
{
    openBay();
    const QString phase = "BAYMEAS/MMXU1/MX/A/phsA";
    toggle(phase + "/cVal/mag/f");
    QCOMPARE(state(phase + "/cVal/mag"), Qt::Checked);
    QCOMPARE(state(phase + "/cVal"), Qt::Checked);
    QCOMPARE(state(phase), Qt::PartiallyChecked);
    QCOMPARE(state("BAYMEAS/MMXU1/MX/A"), Qt::PartiallyChecked);
    toggle(phase + "/q");
    QCOMPARE(state(phase), Qt::Checked);
    QCOMPARE(state("BAYMEAS/MMXU1/MX/A"), Qt::PartiallyChecked);
    toggle("BAYMEAS/MMXU1/MX/A/phsB");
    QCOMPARE(state("BAYMEAS/MMXU1/MX/A"), Qt::Checked);
}

void tst_DatasetSelectWidget::marksNeverReachConstraintNodeOrDevice()
{
    openBay();
    toggle("BAYMEAS/MMXU1/MX/A");
    for (const char *path : {"BAYMEAS", "BAYMEAS/MMXU1", "BAYMEAS/MMXU1/MX"}) {
        QTreeWidgetItem *item = find(path);
        QVERIFY2(!item->data(0, Qt::CheckStateRole).isValid(), path);
        toggle(path, Way::Keyboard);
        QVERIFY2(!item->data(0, Qt::CheckStateRole).isValid(), path);
    }
    QCOMPARE(m_dialog->members(), QStringList("BAYMEAS/MMXU1$MX$A"));
}

void tst_DatasetSelectWidget::slotLeavesAPartialItemAlone()
{
    openBay();
    toggle("BAYCTRL/XCBR1/ST/Pos/stVal");
    const QStringList before = lines();
    m_dialog->slotItemChange(find("BAYCTRL/XCBR1/ST/Pos"), 0);
    QCOMPARE(lines(), before);
}

void tst_DatasetSelectWidget::wholeObjectIsOneMember()
{
    openBay();
    toggle("BAYMEAS/MMXU1/MX/A");
    QCOMPARE(m_dialog->members(), QStringList("BAYMEAS/MMXU1$MX$A"));
}

void tst_DatasetSelectWidget::partialObjectGivesItsTickedAttributes()
{
    openBay();
    toggle("BAYMEAS/MMXU1/MX/A/phsA/cVal/mag");
    toggle("BAYMEAS/MMXU1/MX/A/phsB");
    QCOMPARE(m_dialog->members(),
             QStringList({"BAYMEAS/MMXU1$MX$A$phsA$cVal", "BAYMEAS/MMXU1$MX$A$phsB"}));
}

void tst_DatasetSelectWidget::membersFollowTheTree()
{
    openBay();
    toggle("BAYMEAS/MMXU1/MX/A/phsB/q");
    toggle("BAYCTRL/XCBR1/MX/SumSwARs");
    toggle("BAYCTRL/XCBR1/ST/BlkOpn");
    toggle("BAYCTRL/XCBR1/ST/Pos/t");
    toggle("BAYCTRL/XCBR1/ST/Pos/stVal");
    QCOMPARE(m_dialog->members(),
             QStringList({"BAYCTRL/XCBR1$ST$Pos$stVal", "BAYCTRL/XCBR1$ST$Pos$t",
                          "BAYCTRL/XCBR1$ST$BlkOpn", "BAYCTRL/XCBR1$MX$SumSwARs",
                          "BAYMEAS/MMXU1$MX$A$phsB$q"}));
}

void tst_DatasetSelectWidget::onlyTheFirstSeparatorBecomesASlash()
{
    auto device = std::make_unique<PhysicalDevice>();
    LogicalNode *node = addLogicalNode(addLogicalDevice(*device, "A$B"), "GGIO", "GGIO1");
    addAttribute(addDataObject(node, "Ind", "SPS")->attributes, "har(3)", "ST", "INT32");
    open(std::move(device));
    toggle("A$B/GGIO1/ST/Ind/har(3)");
    QCOMPARE(m_dialog->members(), QStringList("A/B$GGIO1$ST$Ind"));
}

void tst_DatasetSelectWidget::emptyNamesKeepTheirPlaces()
{
    auto device = std::make_unique<PhysicalDevice>();
    LogicalNode *node = addLogicalNode(addLogicalDevice(*device, "LD"), "GGIO", "");
    DataObject *object = addDataObject(node, "", "X");
    addAttribute(object->attributes, "a", "ST", "INT32");
    addAttribute(object->attributes, "b", "ST", "INT32");
    open(std::move(device));
    toggle("LD//ST//b");
    QCOMPARE(m_dialog->members(), QStringList("LD/$ST$$b"));
}

void tst_DatasetSelectWidget::nothingTickedGivesNoMember()
{
    openBay();
    QVERIFY(m_dialog->members().isEmpty());
}

void tst_DatasetSelectWidget::okWithoutMembersWarnsAlsoWhenThereIsAName()
{
    openBay();
    QTest::keyClicks(nameEdit(), "Positions");
    const ShownMessage message = pressOkAndReadWarning();
    QCOMPARE(message.title, "Fail");
    QCOMPARE(message.text, "No data selected. can`t create dataset");
    QCOMPARE(message.icon, QMessageBox::Warning);
    QCOMPARE(message.buttons, QMessageBox::Ok);
    QCOMPARE(message.parent, m_dialog.get());
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(m_dialog->dataSetName(), "Positions");
}

void tst_DatasetSelectWidget::okWithoutANameWarns()
{
    openBay();
    toggle("BAYCTRL/XCBR1/ST/Pos");
    const ShownMessage message = pressOkAndReadWarning();
    QCOMPARE(message.title, "Fail");
    QCOMPARE(message.text, "Please input dataset name");
    QCOMPARE(message.icon, QMessageBox::Warning);
    QCOMPARE(message.buttons, QMessageBox::Ok);
    QCOMPARE(message.parent, m_dialog.get());
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(m_dialog->members(), QStringList("BAYCTRL/XCBR1$ST$Pos"));
}

void tst_DatasetSelectWidget::okWithMembersAndNameAccepts()
{
    openBay();
    QSignalSpy accepted(m_dialog.get(), &QDialog::accepted);
    toggle("BAYCTRL/XCBR1/ST/Pos");
    QTest::keyClicks(nameEdit(), "Positions");
    QTest::mouseClick(button(QDialogButtonBox::Ok), Qt::LeftButton);
    QCOMPARE(accepted.count(), 1);
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    QCOMPARE(m_dialog->dataSetName(), "Positions");
    QCOMPARE(m_dialog->members(), QStringList("BAYCTRL/XCBR1$ST$Pos"));
}

void tst_DatasetSelectWidget::nameIsTakenAsItIs()
{
    openBay();
    const QString odd = QString::fromUtf8(" @Störung/1.%1 ") + QString(200, 'x');
    toggle("BAYCTRL/XCBR1/ST/Pos");
    nameEdit()->setText(odd);
    QTest::mouseClick(button(QDialogButtonBox::Ok), Qt::LeftButton);
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    QCOMPARE(m_dialog->dataSetName(), odd);
}

void tst_DatasetSelectWidget::okOnADeviceWithoutSuchDataWarns()
{
    open(std::make_unique<PhysicalDevice>());
    QCOMPARE(pressOkAndReadWarning().text, "No data selected. can`t create dataset");
}

void tst_DatasetSelectWidget::cancelAndEscapeReject()
{
    openBay();
    QSignalSpy rejected(m_dialog.get(), &QDialog::rejected);
    QTest::mouseClick(button(QDialogButtonBox::Cancel), Qt::LeftButton);
    QCOMPARE(rejected.count(), 1);
    QVERIFY(!m_dialog->isVisible());
    m_dialog->show();
    QTest::keyClick(tree(), Qt::Key_Escape);
    QCOMPARE(rejected.count(), 2);
    QVERIFY(!m_dialog->isVisible());
}

void tst_DatasetSelectWidget::enterInTheNameIsOk()
{
    openBay();
    toggle("BAYCTRL/XCBR1/ST/Pos");
    QTest::keyClicks(nameEdit(), "Positions");
    QTest::keyClick(nameEdit(), Qt::Key_Return);
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
}

void tst_DatasetSelectWidget::tabFollowsReadingOrder()
{
    openBay();
    QCOMPARE(m_dialog->focusWidget(), nameEdit());
    QTest::keyClick(nameEdit(), Qt::Key_Tab);
    QCOMPARE(m_dialog->focusWidget(), tree());
    QTest::keyClick(tree(), Qt::Key_Tab);
    QVERIFY(qobject_cast<QPushButton *>(m_dialog->focusWidget()));
}

void tst_DatasetSelectWidget::nameAndTreeHaveAccessibleNames()
{
    openBay();
    QVERIFY(!nameEdit()->accessibleName().isEmpty());
    QVERIFY(!tree()->accessibleName().isEmpty());
}

void tst_DatasetSelectWidget::itemsAreExplained_data()
{
    QTest::addColumn<QStringList>("path");
    QTest::addColumn<QStringList>("expected");
    const QStringList breaker = {"BAYCTRL", "XCBR1"};
    const QStringList position = breaker + QStringList{"ST", "Pos"};
    QTest::newRow("logical device") << QStringList(breaker.mid(0, 1)) << QStringList();
    QTest::newRow("logical node") << breaker << QStringList{"<b>XCBR</b>", "breaker"};
    QTest::newRow("functional constraint") << QStringList(position.mid(0, 3)) << QStringList();
    QTest::newRow("data object") << position << QStringList{"<b>Pos</b>", "Data type: DPC"};
    QTest::newRow("attribute") << QStringList(position + QStringList{"stVal"})
                               << QStringList{"<b>stVal</b>", "Data type: Dbpos",
                                              "Functional constraint: ST", "2 = on"};
    QTest::newRow("structure in a sub data object")
        << QStringList{"BAYMEAS", "MMXU1", "MX", "A", "phsB", "cVal"}
        << QStringList{"<b>cVal</b>", "Data type: Vector"};
}

void tst_DatasetSelectWidget::itemsAreExplained()
{
    QFETCH(QStringList, path);
    QFETCH(QStringList, expected);
    open(makeBay());
    tree()->expandAll();
    QModelIndex index;
    for (const QString &name : qAsConst(path)) {
        const QModelIndexList found = tree()->model()->match(
            tree()->model()->index(0, 0, index), Qt::DisplayRole, name, 1, Qt::MatchExactly);
        QCOMPARE(found.size(), 1);
        index = found.constFirst();
    }
    tree()->scrollTo(index);
    const QPoint position = tree()->visualRect(index).center();
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
    QHelpEvent event(QEvent::ToolTip, position, tree()->viewport()->mapToGlobal(position));
    QCoreApplication::sendEvent(tree()->viewport(), &event);
    QCOMPARE(QToolTip::isVisible(), !expected.isEmpty());
    for (const QString &part : qAsConst(expected))
        QVERIFY2(QToolTip::text().contains(part), qPrintable(QToolTip::text()));
    QToolTip::hideText();
}

QTEST_MAIN(tst_DatasetSelectWidget)
#include "tst_datasetselectwidget.moc"
