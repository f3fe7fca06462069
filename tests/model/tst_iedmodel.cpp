// SPDX-License-Identifier: Apache-2.0
#include "devicebuilder.h"
#include "testtemplates.h"

#include "model/iedmodel.h"

#include <QtCore/QMimeData>
#include <QtCore/QTranslator>
#include <QtGui/QColor>
#include <QtGui/QImage>
#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QtTest>

#include <memory>

using namespace DeviceBuilder;

namespace {

QString s(const char *text)
{
    return QString::fromLatin1(text);
}

/// Translates every text of the model's context by putting it in brackets.
class BracketTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *sourceText, const char *, int) const override
    {
        return qstrcmp(context, "IEDModel") == 0 ? s("[%1]").arg(s(sourceText)) : QString();
    }
    bool isEmpty() const override { return false; }
};

/// The model as the generic tester can take it. The tester insists on two habits of other models
/// that this one is required not to have: an invalid index without flags, and children in the first
/// column only.
class ConventionalModel : public IEDModel
{
public:
    using IEDModel::IEDModel;

    Qt::ItemFlags flags(const QModelIndex &index) const override
    {
        return index.isValid() ? IEDModel::flags(index) : Qt::NoItemFlags;
    }
    int rowCount(const QModelIndex &parent = QModelIndex()) const override
    {
        return parent.column() > 0 ? 0 : IEDModel::rowCount(parent);
    }
};

MMSValue liveValue(const QString &reference, const QVariant &value)
{
    MMSValue live;
    live.reference = reference;
    live.value = value;
    return live;
}

} // namespace

class tst_IEDModel : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theGenericModelTestsHold();

    void anyRowWithoutAParentIsTheRoot();
    void rowsAndColumnsOutsideTheTreeAreInvalid();
    void theTopLevelHasNoParent();
    void aParentIsInTheFirstColumnAtItsOwnRow();
    void aSiblingIsTheSameAsByItsParent();
    void childrenAreCountedInEveryColumn();
    void thereAreAlwaysThreeColumns();
    void beforeADeviceTheTopRowIsEmpty();

    void namesAndTypesAreShown_data();
    void namesAndTypesAreShown();
    void onlyAttributesHaveAValue();
    void valuesAreShownByTheDevicesAndTheTemplatesTexts();
    void otherRolesAreInvalid();

    void nodesHaveTheIconOfTheirKind_data();
    void nodesHaveTheIconOfTheirKind();
    void attributesHaveTheIconOfTheirConstraint_data();
    void attributesHaveTheIconOfTheirConstraint();
    void anUnmappedConstraintHasANullIcon();
    void iconsAreInTheFirstColumnOnly();

    void coloursFollowTheMarks_data();
    void coloursFollowTheMarks();

    void headersNameTheColumns();
    void headersAndTheDeletableMarkAreTranslated();

    void valuesAreEditableByTheirConstraint_data();
    void valuesAreEditableByTheirConstraint();
    void onlyTheValueOfALeafIsEditable();
    void theTreeNeitherDragsNorDrops();

    void anEditRequestsAWriteAndThenStoresTheValue();
    void anUnconvertedEditIsRequestedButNotStored();
    void anEditThatChangesNothingRequestsNothing_data();
    void anEditThatChangesNothingRequestsNothing();
    void anEditLooksAtNothingButItsSteps();
    void anEditSurvivesTheWriterReplacingTheDevice();
    void anEditSurvivesTheWriterRebuildingTheTree();
    void anEditSurvivesTheWriterDeletingTheModel();

    void liveValuesAreStoredAndRepainted();
    void liveValuesKeepTheirOrder();
    void aLiveValueOfAnUnknownReferenceIsIgnored();
    void aLiveValueOfAStructuredAttributeRepaintsNothing();
    void liveValuesWithoutADeviceAreIgnored();

private:
    QModelIndex at(const char *reference, int column = 0) const
    {
        return m_model->indexForReference(s(reference)).siblingAtColumn(column);
    }
    DataAttribute *attribute(const char *reference) const
    {
        return m_device->findTag(s(reference));
    }
    DAO *addValue(const char *name, const char *fc, const char *basicType,
                  const QVariant &value = QVariant());

    std::unique_ptr<TestTemplates> m_templates;
    std::unique_ptr<PhysicalDevice> m_device;
    LogicalDevice *m_logicalDevice = nullptr;
    LogicalNode *m_zero = nullptr;
    LogicalNode *m_unit = nullptr;
    DataObject *m_dataObject = nullptr;
    std::unique_ptr<IEDModel> m_model;
};

/// An attribute of LD/GGIO1.AnIn1 with a reference like any other.
DAO *tst_IEDModel::addValue(const char *name, const char *fc, const char *basicType,
                            const QVariant &value)
{
    return addAttribute(m_dataObject->attributes, s(name), s(fc), s(basicType), value,
                        s("LD/GGIO1$%1$AnIn1$%2").arg(s(fc), s(name)));
}

void tst_IEDModel::init()
{
    m_templates = std::make_unique<TestTemplates>(
        "<DataTypeTemplate><EnumType id=\"Beh\"><EnumVal ord=\"1\">on</EnumVal></EnumType>"
        "</DataTypeTemplate>");
    m_device = std::make_unique<PhysicalDevice>();
    m_device->name = s("IED");
    addEnumeration(*m_device, s("Range"), {{0, s("normal")}, {1, s("high")}});
    m_logicalDevice = addLogicalDevice(*m_device, s("LD"));

    m_zero = addLogicalNode(m_logicalDevice, s("LLN0"), s("LLN0"));
    m_zero->settingGroup = new SettingGroupControl;
    m_zero->settingGroup->name = s("SGCB");
    m_zero->dataSetGroup->dataSets << newDataSet(s("Events"), 1, {s("LD/GGIO1$MX$AnIn1")});
    addReport(m_zero, s("report"), s("BR"));

    m_unit = addLogicalNode(m_logicalDevice, s("GGIO"), s("GGIO1"));
    m_dataObject = addDataObject(m_unit, s("AnIn1"), s("MV"));
    DAO *const magnitude = addValue("mag", "MX", "Struct");
    addAttribute(magnitude->children, s("f"), s("MX"), s("FLOAT32"), QVariant::fromValue(1.5f),
                 s("LD/GGIO1$MX$AnIn1$mag$f"));
    addValue("range", "MX", "Enum", 1)->attribute->enumTypeId = s("Range");
    addValue("mode", "CF", "Enum", 1)->attribute->enumTypeId = s("Beh");
    addValue("db", "CF", "INT32U", QVariant::fromValue(100u));
    addValue("d", "DC", "VisString255", s("text"));
    addValue("q", "MX", "Quality", s("0000000000000"));
    addValue("stVal", "ST", "BOOLEAN", true);
    addSubDataObject(m_dataObject->attributes, s("phsA"), s("CMV"));
    m_device->rebuildIndex();

    m_model = std::make_unique<IEDModel>(m_templates.get());
    m_model->setDevice(m_device.get());
}

void tst_IEDModel::cleanup()
{
    m_model.reset();
    m_device.reset();
    m_templates.reset();
}

void tst_IEDModel::theGenericModelTestsHold()
{
    ConventionalModel model(m_templates.get());
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setDevice(m_device.get());
    model.updateValues({liveValue(s("LD/GGIO1$ST$AnIn1$stVal"), false)});
    QVERIFY(model.insertDataSet(IEDModel::nodeAt(model.index(0, 0)), s("@New"),
                                {s("LD/GGIO1$MX$AnIn1")}));
    QVERIFY(model.removeDataSet(IEDModel::nodeAt(model.index(1, 0, model.index(0, 0)))));
    PhysicalDevice other;
    model.setDevice(&other);
    model.setDevice(nullptr);
    QCOMPARE(model.rowCount(), 1);
}

void tst_IEDModel::anyRowWithoutAParentIsTheRoot()
{
    const IEDNode *const root = IEDModel::nodeAt(m_model->index(0, 0));
    QVERIFY(root);
    for (const int row : {0, 1, 1000}) {
        for (const int column : {0, 1, 2}) {
            const QModelIndex index = m_model->index(row, column);
            QVERIFY(index.isValid());
            QCOMPARE(index.row(), row);
            QCOMPARE(index.column(), column);
            QCOMPARE(IEDModel::nodeAt(index), root);
        }
    }
}

void tst_IEDModel::rowsAndColumnsOutsideTheTreeAreInvalid()
{
    const QModelIndex root = m_model->index(0, 0);
    QVERIFY(!m_model->index(-1, 0).isValid());
    QVERIFY(!m_model->index(0, -1).isValid());
    QVERIFY(!m_model->index(0, 3).isValid());
    QVERIFY(m_model->index(0, 2, root).isValid());
    QVERIFY(!m_model->index(0, 3, root).isValid());
    QVERIFY(!m_model->index(1, 0, root).isValid());
    QVERIFY(!m_model->index(-1, 0, root).isValid());
}

void tst_IEDModel::theTopLevelHasNoParent()
{
    QVERIFY(!m_model->parent(QModelIndex()).isValid());
    QVERIFY(!m_model->parent(m_model->index(0, 0)).isValid());
    QVERIFY(!m_model->parent(m_model->index(3, 2)).isValid());
}

void tst_IEDModel::aParentIsInTheFirstColumnAtItsOwnRow()
{
    const QModelIndex root = m_model->index(0, 0);
    const QModelIndex logicalDevice = m_model->index(0, 0, root);
    const QModelIndex unit = m_model->index(1, 0, logicalDevice);
    QCOMPARE(m_model->parent(m_model->index(0, 2, root)), root);
    QCOMPARE(m_model->parent(m_model->index(1, 1, logicalDevice)), logicalDevice);
    QCOMPARE(m_model->parent(m_model->index(2, 1, unit)), unit);
    QCOMPARE(m_model->parent(m_model->index(2, 1, unit)).row(), 1);
}

void tst_IEDModel::aSiblingIsTheSameAsByItsParent()
{
    const QModelIndex parent = at("LD/GGIO1$MX$AnIn1");
    const QModelIndex first = m_model->index(0, 0, parent);
    for (int row = -1; row <= m_model->rowCount(parent); ++row) {
        for (int column = -1; column <= 3; ++column)
            QCOMPARE(first.sibling(row, column), m_model->index(row, column, parent));
    }
    QCOMPARE(m_model->sibling(0, 0, QModelIndex()), m_model->index(0, 0));
}

void tst_IEDModel::childrenAreCountedInEveryColumn()
{
    QCOMPARE(m_model->rowCount(), 1);
    for (const int column : {0, 1, 2}) {
        QCOMPARE(m_model->rowCount(m_model->index(0, column)), 1);
        QCOMPARE(m_model->rowCount(at("LD/GGIO1$MX$AnIn1", column)), 8);
        QCOMPARE(m_model->rowCount(at("LD/GGIO1$CF$AnIn1$db", column)), 0);
    }
}

void tst_IEDModel::thereAreAlwaysThreeColumns()
{
    QCOMPARE(m_model->columnCount(), 3);
    QCOMPARE(m_model->columnCount(m_model->index(0, 0)), 3);
    QCOMPARE(m_model->columnCount(at("LD/GGIO1$CF$AnIn1$db", 1)), 3);
    QCOMPARE(IEDModel(m_templates.get()).columnCount(), 3);
}

void tst_IEDModel::beforeADeviceTheTopRowIsEmpty()
{
    IEDModel model(m_templates.get());
    QCOMPARE(model.rowCount(), 1);
    for (const int column : {0, 1, 2}) {
        const QModelIndex top = model.index(0, column);
        QVERIFY(top.isValid());
        QVERIFY(!IEDModel::nodeAt(top));
        for (int role = 0; role <= Qt::UserRole; ++role)
            QVERIFY(!model.data(top, role).isValid());
        QCOMPARE(model.rowCount(top), 0);
        QVERIFY(!model.parent(top).isValid());
        QVERIFY(!model.index(0, 0, top).isValid());
        QCOMPARE(model.flags(top), Qt::ItemIsSelectable | Qt::ItemIsEnabled);
        QVERIFY(!model.setData(top, 1));
    }
}

void tst_IEDModel::namesAndTypesAreShown_data()
{
    QTest::addColumn<QString>("reference");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QVariant>("type");
    QTest::newRow("logical node") << "LD/GGIO1"
                                  << "GGIO1" << QVariant(s("GGIO"));
    QTest::newRow("data object") << "LD/GGIO1$MX$AnIn1"
                                 << "AnIn1" << QVariant(s("MV"));
    QTest::newRow("setting group") << "LD/LLN0$$SGCB"
                                   << "SGCB" << QVariant();
    QTest::newRow("attribute") << "LD/GGIO1$CF$AnIn1$db"
                               << "db" << QVariant(s("INT32U"));
    QTest::newRow("structured attribute") << "LD/GGIO1$MX$AnIn1$mag"
                                          << "mag" << QVariant(s("Struct"));
    QTest::newRow("sub data object") << "LD/GGIO1$$AnIn1$phsA"
                                     << "phsA" << QVariant(s("CMV"));
    QTest::newRow("data-set group") << "LD/LLN0$$DataSet"
                                    << "DataSet" << QVariant();
    QTest::newRow("data set") << "LD/LLN0$$DataSet$Events"
                              << "Events" << QVariant();
    QTest::newRow("report-control list") << "LD/LLN0$$ReportControl"
                                         << "ReportControl" << QVariant();
    QTest::newRow("report control block") << "LD/LLN0$$ReportControl$report"
                                          << "report" << QVariant();
}

void tst_IEDModel::namesAndTypesAreShown()
{
    QFETCH(QString, reference);
    const QModelIndex index = m_model->indexForReference(reference);
    QTEST(index.data().toString(), "name");
    QTEST(index.siblingAtColumn(2).data(), "type");

    const QModelIndex root = m_model->index(0, 0);
    QCOMPARE(root.data(), QVariant(s("IED")));
    QVERIFY(!m_model->index(0, 2).data().isValid());
    QCOMPARE(m_model->index(0, 0, root).data(), QVariant(s("LD")));
    QVERIFY(!m_model->index(0, 2, root).data().isValid());
    const QModelIndex member = m_model->index(0, 0, at("LD/LLN0$$DataSet$Events"));
    QCOMPARE(member.data(), QVariant(s("LD/GGIO1$MX$AnIn1")));
    QVERIFY(!member.sibling(0, 2).data().isValid());
}

void tst_IEDModel::onlyAttributesHaveAValue()
{
    for (const char *const reference :
         {"LD/GGIO1", "LD/GGIO1$MX$AnIn1", "LD/GGIO1$$AnIn1$phsA", "LD/LLN0$$SGCB",
          "LD/LLN0$$DataSet", "LD/LLN0$$DataSet$Events", "LD/LLN0$$ReportControl",
          "LD/LLN0$$ReportControl$report"}) {
        QVERIFY2(!at(reference, 1).data().isValid(), reference);
    }
    QVERIFY(!m_model->index(0, 1).data().isValid());
    QVERIFY(!m_model->index(0, 1, m_model->index(0, 0)).data().isValid());
    QVERIFY(!m_model->index(0, 1, at("LD/LLN0$$DataSet$Events")).data().isValid());
}

void tst_IEDModel::valuesAreShownByTheDevicesAndTheTemplatesTexts()
{
    QCOMPARE(at("LD/GGIO1$MX$AnIn1$range", 1).data(), QVariant(s("high")));
    QCOMPARE(at("LD/GGIO1$CF$AnIn1$mode", 1).data(), QVariant(s("on (1)")));
    QCOMPARE(at("LD/GGIO1$CF$AnIn1$db", 1).data(), QVariant::fromValue(100u));
    QCOMPARE(at("LD/GGIO1$DC$AnIn1$d", 1).data(), QVariant(s("text")));
    QCOMPARE(at("LD/GGIO1$MX$AnIn1$q", 1).data(), QVariant(s("Good Process")));
    QCOMPARE(at("LD/GGIO1$ST$AnIn1$stVal", 1).data(), QVariant(s("true")));
    QCOMPARE(at("LD/GGIO1$MX$AnIn1$mag$f", 1).data(), QVariant(1.5));
    QVERIFY(!at("LD/GGIO1$MX$AnIn1$mag", 1).data().isValid());
}

void tst_IEDModel::otherRolesAreInvalid()
{
    const QSet<int> answered = {Qt::DisplayRole, Qt::DecorationRole, Qt::ForegroundRole};
    for (int role = 0; role <= Qt::UserRole + 1; ++role) {
        for (const int column : {0, 1, 2}) {
            if (!answered.contains(role))
                QVERIFY(!at("LD/GGIO1$CF$AnIn1$db", column).data(role).isValid());
        }
    }
}

void tst_IEDModel::nodesHaveTheIconOfTheirKind_data()
{
    QTest::addColumn<QString>("reference");
    QTest::addColumn<QString>("type");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QString>("icon");
    QTest::newRow("logical node") << "LD/GGIO1"
                                  << "BR" << false << "LN";
    QTest::newRow("data object") << "LD/GGIO1$MX$AnIn1"
                                 << "BR" << false << "CDC";
    QTest::newRow("setting group") << "LD/LLN0$$SGCB"
                                   << "BR" << false << "CDC";
    QTest::newRow("sub data object") << "LD/GGIO1$$AnIn1$phsA"
                                     << "BR" << false << "CDC";
    QTest::newRow("data-set group") << "LD/LLN0$$DataSet"
                                    << "BR" << false << "DS";
    QTest::newRow("data set") << "LD/LLN0$$DataSet$Events"
                              << "BR" << false << "Data-Set";
    QTest::newRow("report-control list") << "LD/LLN0$$ReportControl"
                                         << "BR" << false << "CDC";
    const QString block = s("LD/LLN0$$ReportControl$report");
    QTest::newRow("buffered") << block << "BR" << false << "BR-d";
    QTest::newRow("buffered, enabled") << block << "BR" << true << "BR";
    QTest::newRow("unbuffered") << block << "RP" << false << "RP-d";
    QTest::newRow("unbuffered, enabled") << block << "RP" << true << "RP";
    QTest::newRow("without a type") << block << "" << false << "RP-d";
    QTest::newRow("without a type, enabled") << block << "" << true << "RP";
    QTest::newRow("other spelling") << block << "br" << true << "RP";
}

void tst_IEDModel::nodesHaveTheIconOfTheirKind()
{
    QFETCH(QString, reference);
    QFETCH(QString, type);
    QFETCH(bool, enabled);
    QFETCH(QString, icon);
    const auto image = [](const QVariant &decoration) {
        return decoration.value<QIcon>().pixmap(16).toImage();
    };
    const auto file = [](const QString &name) {
        return QIcon(s(":/850Ext/image/%1.png").arg(name)).pixmap(16).toImage();
    };
    m_zero->reportControls->blocks.first()->type = type;
    m_zero->reportControls->blocks.first()->enabled = enabled;
    const QVariant shown = m_model->indexForReference(reference).data(Qt::DecorationRole);
    QCOMPARE(shown.userType(), int(QMetaType::QIcon));
    QVERIFY(!image(shown).isNull());
    QCOMPARE(image(shown), file(icon));

    const QModelIndex root = m_model->index(0, 0);
    QCOMPARE(image(root.data(Qt::DecorationRole)), file(s("PD")));
    QCOMPARE(image(m_model->index(0, 0, root).data(Qt::DecorationRole)), file(s("LD")));
    const QModelIndex member = m_model->index(0, 0, at("LD/LLN0$$DataSet$Events"));
    QCOMPARE(image(member.data(Qt::DecorationRole)), file(s("CDC")));
}

void tst_IEDModel::attributesHaveTheIconOfTheirConstraint_data()
{
    QTest::addColumn<QString>("fc");
    for (const char *const fc : {"CF", "CO", "DC", "EX", "MX", "SG", "SP", "ST", "SV"})
        QTest::newRow(fc) << s(fc);
}

void tst_IEDModel::attributesHaveTheIconOfTheirConstraint()
{
    QFETCH(QString, fc);
    attribute("LD/GGIO1$CF$AnIn1$db")->fc = fc;
    const QIcon icon = at("LD/GGIO1$CF$AnIn1$db").data(Qt::DecorationRole).value<QIcon>();
    const QIcon expected(s(":/850Ext/image/%1.png").arg(fc.toLower()));
    QVERIFY(!icon.pixmap(16).isNull());
    QCOMPARE(icon.pixmap(16).toImage(), expected.pixmap(16).toImage());
}

void tst_IEDModel::anUnmappedConstraintHasANullIcon()
{
    for (const char *const fc : {"BL", "OR", "", "st"}) {
        attribute("LD/GGIO1$CF$AnIn1$db")->fc = s(fc);
        const QVariant icon = at("LD/GGIO1$CF$AnIn1$db").data(Qt::DecorationRole);
        QCOMPARE(icon.userType(), int(QMetaType::QIcon));
        QVERIFY(icon.value<QIcon>().isNull());
    }
}

void tst_IEDModel::iconsAreInTheFirstColumnOnly()
{
    for (const char *const reference : {"LD/GGIO1", "LD/GGIO1$CF$AnIn1$db"}) {
        QVERIFY(at(reference, 0).data(Qt::DecorationRole).isValid());
        QVERIFY(!at(reference, 1).data(Qt::DecorationRole).isValid());
        QVERIFY(!at(reference, 2).data(Qt::DecorationRole).isValid());
    }
}

void tst_IEDModel::coloursFollowTheMarks_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("mark");
    QTest::addColumn<QVariant>("color");
    const QVariant none;
    const QVariant red = QColor(Qt::red);
    const QVariant blue = QColor(Qt::blue);
    const QVariant magenta = QColor(Qt::magenta);
    const QVariant darkYellow = QColor(Qt::darkYellow);

    for (const char *const kind : {"logical device", "logical node", "data object", "attribute"}) {
        QTest::addRow("%s, absent", kind) << s(kind) << 0 << red;
        QTest::addRow("%s, present", kind) << s(kind) << 1 << none;
    }
    QTest::addRow("attribute state 0") << "attribute state" << 0 << red;
    QTest::addRow("attribute state 1") << "attribute state" << 1 << none;
    QTest::addRow("attribute state 2") << "attribute state" << 2 << none;
    QTest::addRow("sub data object state 0") << "sub data object" << 0 << red;
    QTest::addRow("sub data object state 1") << "sub data object" << 1 << none;
    const QVariant dataSet[] = {red, none, blue, magenta, none};
    const QVariant settingGroup[] = {red, none, blue, none, none};
    const QVariant member[] = {red, none, blue, darkYellow, none};
    for (int mark = 0; mark < 5; ++mark) {
        QTest::addRow("data set state %d", mark) << "data set" << mark << dataSet[mark];
        QTest::addRow("report state %d", mark) << "report" << mark << dataSet[mark];
        QTest::addRow("setting group state %d", mark)
            << "setting group" << mark << settingGroup[mark];
        QTest::addRow("member state %d", mark) << "member" << mark << member[mark];
    }
    for (const char *const kind : {"device", "data-set group", "report-control list"})
        QTest::addRow("%s", kind) << s(kind) << 0 << none;
}

void tst_IEDModel::coloursFollowTheMarks()
{
    QFETCH(QString, kind);
    QFETCH(int, mark);
    QModelIndex index;
    if (kind == s("logical device")) {
        m_logicalDevice->present = mark != 0;
        index = m_model->index(0, 0, m_model->index(0, 0));
    } else if (kind == s("logical node")) {
        m_unit->present = mark != 0;
        index = at("LD/GGIO1");
    } else if (kind == s("data object")) {
        m_dataObject->present = mark != 0;
        index = at("LD/GGIO1$MX$AnIn1");
    } else if (kind == s("attribute")) {
        attribute("LD/GGIO1$CF$AnIn1$db")->present = mark != 0;
        index = at("LD/GGIO1$CF$AnIn1$db");
    } else if (kind == s("attribute state")) {
        index = at("LD/GGIO1$CF$AnIn1$db");
        IEDModel::nodeAt(index)->dao()->state = quint32(mark);
    } else if (kind == s("sub data object")) {
        index = at("LD/GGIO1$$AnIn1$phsA");
        IEDModel::nodeAt(index)->dao()->state = quint32(mark);
    } else if (kind == s("data set")) {
        m_zero->dataSet(s("Events"))->state = quint8(mark);
        index = at("LD/LLN0$$DataSet$Events");
    } else if (kind == s("report")) {
        m_zero->reportControls->blocks.first()->state = quint8(mark);
        index = at("LD/LLN0$$ReportControl$report");
    } else if (kind == s("setting group")) {
        m_zero->settingGroup->state = mark;
        index = at("LD/LLN0$$SGCB");
    } else if (kind == s("member")) {
        m_zero->dataSet(s("Events"))->members.first()->state = quint8(mark);
        index = m_model->index(0, 0, at("LD/LLN0$$DataSet$Events"));
    } else if (kind == s("device")) {
        index = m_model->index(0, 0);
    } else if (kind == s("data-set group")) {
        index = at("LD/LLN0$$DataSet");
    } else if (kind == s("report-control list")) {
        index = at("LD/LLN0$$ReportControl");
    }
    QVERIFY(index.isValid());
    QFETCH(QVariant, color);
    for (const int column : {0, 1, 2}) {
        const QVariant shown = index.siblingAtColumn(column).data(Qt::ForegroundRole);
        QCOMPARE(shown.userType(), color.userType());
        QCOMPARE(shown, color);
    }
}

void tst_IEDModel::headersNameTheColumns()
{
    QCOMPARE(m_model->headerData(0, Qt::Horizontal), QVariant(s("Name")));
    QCOMPARE(m_model->headerData(1, Qt::Horizontal), QVariant(s("Value")));
    QCOMPARE(m_model->headerData(2, Qt::Horizontal), QVariant(s("type")));
    QVERIFY(!m_model->headerData(3, Qt::Horizontal).isValid());
    QVERIFY(!m_model->headerData(-1, Qt::Horizontal).isValid());
    QVERIFY(!m_model->headerData(0, Qt::Vertical).isValid());
    QVERIFY(!m_model->headerData(0, Qt::Horizontal, Qt::ToolTipRole).isValid());
}

void tst_IEDModel::headersAndTheDeletableMarkAreTranslated()
{
    BracketTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCOMPARE(m_model->headerData(0, Qt::Horizontal), QVariant(s("[Name]")));
    QCOMPARE(m_model->headerData(1, Qt::Horizontal), QVariant(s("[Value]")));
    QCOMPARE(m_model->headerData(2, Qt::Horizontal), QVariant(s("[type]")));
    m_zero->dataSet(s("Events"))->deletable = true;
    QCOMPARE(at("LD/LLN0$$DataSet$Events").data(), QVariant(s("Events[(Deletable)]")));

    QCOMPARE(at("LD/GGIO1$ST$AnIn1$stVal", 1).data(), QVariant(s("true")));
    attribute("LD/GGIO1$ST$AnIn1$stVal")->value = false;
    QCOMPARE(at("LD/GGIO1$ST$AnIn1$stVal", 1).data(), QVariant(s("False")));
    QCOMPARE(at("LD/GGIO1$MX$AnIn1$q", 1).data(), QVariant(s("Good Process")));
    attribute("LD/GGIO1$CF$AnIn1$mode")->value = 77;
    QCOMPARE(at("LD/GGIO1$CF$AnIn1$mode", 1).data(), QVariant(s("Not Represented")));
}

void tst_IEDModel::valuesAreEditableByTheirConstraint_data()
{
    QTest::addColumn<QString>("fc");
    QTest::addColumn<bool>("editable");
    for (const char *const fc : {"MX", "CO", "EX", "SP", "DC", "CF"})
        QTest::newRow(fc) << s(fc) << true;
    for (const char *const fc : {"ST", "SG", "SV", "SE", "OR", "BL", "", "mx"})
        QTest::addRow("'%s'", fc) << s(fc) << false;
}

void tst_IEDModel::valuesAreEditableByTheirConstraint()
{
    QFETCH(QString, fc);
    QFETCH(bool, editable);
    attribute("LD/GGIO1$CF$AnIn1$db")->fc = fc;
    const Qt::ItemFlags common = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    QCOMPARE(m_model->flags(at("LD/GGIO1$CF$AnIn1$db", 1)),
             editable ? common | Qt::ItemIsEditable : common);
    QCOMPARE(m_model->flags(at("LD/GGIO1$CF$AnIn1$db", 0)), common);
    QCOMPARE(m_model->flags(at("LD/GGIO1$CF$AnIn1$db", 2)), common);
}

void tst_IEDModel::onlyTheValueOfALeafIsEditable()
{
    const Qt::ItemFlags common = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    QCOMPARE(m_model->flags(QModelIndex()), common);
    QCOMPARE(m_model->flags(m_model->index(0, 1)), common);
    for (const char *const reference :
         {"LD/GGIO1", "LD/GGIO1$MX$AnIn1", "LD/GGIO1$$AnIn1$phsA", "LD/GGIO1$MX$AnIn1$mag",
          "LD/LLN0$$SGCB", "LD/LLN0$$DataSet$Events", "LD/LLN0$$ReportControl$report"}) {
        for (const int column : {0, 1, 2})
            QCOMPARE(m_model->flags(at(reference, column)), common);
    }
    QVERIFY(m_model->flags(at("LD/GGIO1$MX$AnIn1$mag$f", 1)) & Qt::ItemIsEditable);
}

void tst_IEDModel::theTreeNeitherDragsNorDrops()
{
    QVERIFY(!m_model->mimeData({at("LD/GGIO1")}));
    QCOMPARE(m_model->supportedDropActions(), Qt::DropActions(Qt::IgnoreAction));
    QMimeData data;
    data.setText(s("x"));
    QVERIFY(!m_model->dropMimeData(&data, Qt::CopyAction, 0, 0, m_model->index(0, 0)));
}

void tst_IEDModel::anEditRequestsAWriteAndThenStoresTheValue()
{
    const QModelIndex index = at("LD/GGIO1$CF$AnIn1$db", 1);
    QVariant storedWhenRequested;
    connect(m_model.get(), &IEDModel::needWriteValue, this,
            [&] { storedWhenRequested = attribute("LD/GGIO1$CF$AnIn1$db")->value; });
    QSignalSpy request(m_model.get(), &IEDModel::needWriteValue);
    QSignalSpy changed(m_model.get(), &IEDModel::dataChanged);

    QVERIFY(!m_model->setData(index, s("250")));
    QCOMPARE(request.count(), 1);
    QCOMPARE(request.first().at(0).toModelIndex(), index);
    QCOMPARE(request.first().at(1).userType(), int(QMetaType::UInt));
    QCOMPARE(request.first().at(1).toUInt(), 250u);
    QCOMPARE(storedWhenRequested, QVariant::fromValue(100u));
    QCOMPARE(attribute("LD/GGIO1$CF$AnIn1$db")->value, QVariant::fromValue(250u));
    QCOMPARE(changed.count(), 0);

    QVERIFY(!m_model->setData(index, s("250")));
    QCOMPARE(request.count(), 1);
}

void tst_IEDModel::anUnconvertedEditIsRequestedButNotStored()
{
    const QModelIndex index = at("LD/GGIO1$DC$AnIn1$d", 1);
    QSignalSpy request(m_model.get(), &IEDModel::needWriteValue);
    QVERIFY(!m_model->setData(index, s("other")));
    QCOMPARE(request.count(), 1);
    QCOMPARE(request.first().at(1), QVariant(s("other")));
    QCOMPARE(attribute("LD/GGIO1$DC$AnIn1$d")->value, QVariant(s("text")));
}

void tst_IEDModel::anEditThatChangesNothingRequestsNothing_data()
{
    QTest::addColumn<QString>("reference");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("role");
    const QString db = s("LD/GGIO1$CF$AnIn1$db");
    QTest::newRow("same value") << db << QVariant(s("100")) << int(Qt::EditRole);
    QTest::newRow("same enumeration")
        << "LD/GGIO1$MX$AnIn1$range" << QVariant(1) << int(Qt::EditRole);
    QTest::newRow("same text") << "LD/GGIO1$DC$AnIn1$d" << QVariant(s("text")) << int(Qt::EditRole);
    QTest::newRow("empty text") << db << QVariant(s("")) << int(Qt::EditRole);
    QTest::newRow("no value") << db << QVariant() << int(Qt::EditRole);
    QTest::newRow("display role") << db << QVariant(s("1")) << int(Qt::DisplayRole);
    QTest::newRow("user role") << db << QVariant(s("1")) << int(Qt::UserRole);
    QTest::newRow("sub data object")
        << "LD/GGIO1$$AnIn1$phsA" << QVariant(s("1")) << int(Qt::EditRole);
    QTest::newRow("data object") << "LD/GGIO1$MX$AnIn1" << QVariant(s("1")) << int(Qt::EditRole);
    QTest::newRow("data set") << "LD/LLN0$$DataSet$Events" << QVariant(s("1")) << int(Qt::EditRole);
    QTest::newRow("no index") << "" << QVariant(s("1")) << int(Qt::EditRole);
}

void tst_IEDModel::anEditThatChangesNothingRequestsNothing()
{
    QFETCH(QString, reference);
    QFETCH(QVariant, value);
    QFETCH(int, role);
    const QModelIndex index = m_model->indexForReference(reference);
    QSignalSpy request(m_model.get(), &IEDModel::needWriteValue);
    QVERIFY(!m_model->setData(index.siblingAtColumn(1), value, role));
    QCOMPARE(request.count(), 0);
    QCOMPARE(attribute("LD/GGIO1$CF$AnIn1$db")->value, QVariant::fromValue(100u));
}

void tst_IEDModel::anEditLooksAtNothingButItsSteps()
{
    QSignalSpy request(m_model.get(), &IEDModel::needWriteValue);
    QVERIFY(!m_model->setData(at("LD/GGIO1$ST$AnIn1$stVal", 1), 0));
    QVERIFY(!m_model->setData(at("LD/GGIO1$CF$AnIn1$db", 0), 7));
    QVERIFY(!m_model->setData(at("LD/GGIO1$MX$AnIn1$mag", 1), s("x")));
    QCOMPARE(request.count(), 3);
}

void tst_IEDModel::anEditSurvivesTheWriterReplacingTheDevice()
{
    connect(m_model.get(), &IEDModel::needWriteValue, this, [this] {
        m_model->setDevice(nullptr);
        m_device = std::make_unique<PhysicalDevice>();
        m_model->setDevice(m_device.get());
    });
    QVERIFY(!m_model->setData(at("LD/GGIO1$CF$AnIn1$db", 1), 7));
    QCOMPARE(m_model->rowCount(m_model->index(0, 0)), 0);
}

void tst_IEDModel::anEditSurvivesTheWriterRebuildingTheTree()
{
    connect(m_model.get(), &IEDModel::needWriteValue, this, [this] {
        m_model->insertDataSet(IEDModel::nodeAt(m_model->index(0, 0)), s("@New"), {});
    });
    QVERIFY(!m_model->setData(at("LD/GGIO1$CF$AnIn1$db", 1), 7));
    QCOMPARE(attribute("LD/GGIO1$CF$AnIn1$db")->value, QVariant::fromValue(7u));
}

void tst_IEDModel::anEditSurvivesTheWriterDeletingTheModel()
{
    const QModelIndex index = at("LD/GGIO1$CF$AnIn1$db", 1);
    connect(m_model.get(), &IEDModel::needWriteValue, this, [this] {
        m_model.reset();
        m_device.reset();
    });
    QVERIFY(!m_model->setData(index, 7));
    QVERIFY(!m_model);
}

void tst_IEDModel::liveValuesAreStoredAndRepainted()
{
    QSignalSpy changed(m_model.get(), &IEDModel::dataChanged);
    m_model->updateValues({liveValue(s("LD/GGIO1$ST$AnIn1$stVal"), false),
                           liveValue(s("LD/GGIO1$MX$AnIn1$mag$f"), QVariant::fromValue(9.0f))});
    QCOMPARE(attribute("LD/GGIO1$ST$AnIn1$stVal")->value, QVariant(false));
    QCOMPARE(at("LD/GGIO1$ST$AnIn1$stVal", 1).data(), QVariant(s("False")));
    QCOMPARE(at("LD/GGIO1$MX$AnIn1$mag$f", 1).data(), QVariant(9.0));
    QCOMPARE(changed.count(), 2);
    const QModelIndex expected[] = {at("LD/GGIO1$ST$AnIn1$stVal", 1),
                                    at("LD/GGIO1$MX$AnIn1$mag$f", 1)};
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(changed.at(i).at(0).toModelIndex(), expected[i]);
        QCOMPARE(changed.at(i).at(1).toModelIndex(), expected[i]);
        QVERIFY(changed.at(i).at(2).value<QVector<int>>().isEmpty());
    }
}

void tst_IEDModel::liveValuesKeepTheirOrder()
{
    QStringList shown;
    connect(m_model.get(), &IEDModel::dataChanged, this,
            [&shown](const QModelIndex &index) { shown << index.data().toString(); });
    const QString reference = s("LD/GGIO1$MX$AnIn1$range");
    m_model->updateValues({liveValue(reference, 0), liveValue(reference, 1)});
    QCOMPARE(shown, QStringList({s("normal"), s("high")}));
}

void tst_IEDModel::aLiveValueOfAnUnknownReferenceIsIgnored()
{
    QSignalSpy changed(m_model.get(), &IEDModel::dataChanged);
    m_model->updateValues({liveValue(s("LD/GGIO1$ST$AnIn1$absent"), 1), liveValue(QString(), 1),
                           liveValue(s("LD/GGIO1$CF$AnIn1$db"), QVariant::fromValue(5u))});
    QCOMPARE(changed.count(), 1);
    QCOMPARE(attribute("LD/GGIO1$CF$AnIn1$db")->value, QVariant::fromValue(5u));
}

void tst_IEDModel::aLiveValueOfAStructuredAttributeRepaintsNothing()
{
    QSignalSpy changed(m_model.get(), &IEDModel::dataChanged);
    m_model->updateValues({liveValue(s("LD/GGIO1$MX$AnIn1$mag"), s("{1.5}"))});
    QCOMPARE(changed.count(), 0);
    QCOMPARE(attribute("LD/GGIO1$MX$AnIn1$mag")->value, QVariant(s("{1.5}")));
}

void tst_IEDModel::liveValuesWithoutADeviceAreIgnored()
{
    m_model->setDevice(nullptr);
    QSignalSpy changed(m_model.get(), &IEDModel::dataChanged);
    m_model->updateValues({liveValue(s("LD/GGIO1$ST$AnIn1$stVal"), false)});
    QCOMPARE(changed.count(), 0);
    QCOMPARE(attribute("LD/GGIO1$ST$AnIn1$stVal")->value, QVariant(true));
}

QTEST_MAIN(tst_IEDModel)
#include "tst_iedmodel.moc"
