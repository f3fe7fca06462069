// SPDX-License-Identifier: Apache-2.0
#include "driver/model/onlinemodel.h"
#include "support/memoryuse.h"

#include <QtCore/QDataStream>
#include <QtCore/QHash>
#include <QtTest/QtTest>

using mms::TypeDescription;

namespace {

using Type = TypeDescription;

/// An array of measured values, settings of which those in force are shown, and a status.
Type nodeType()
{
    const Type element = Type::structure(
        {{"mag", Type::structure({{"f", Type::float32()}})}, {"q", Type::bitString(-13)}});
    return Type::structure(
        {{"ST", Type::structure({{"Pos", Type::structure({{"stVal", Type::bitString(2)},
                                                          {"q", Type::bitString(-13)},
                                                          {"t", Type::utcTime()}})}})},
         {"MX", Type::structure({{"Har", Type::structure({{"har", Type::array(3, element)}})}})},
         {"SG", Type::structure({{"Lim", Type::structure({{"setMag", Type::float32()}})}})},
         {"SE", Type::structure({{"Lim", Type::structure({{"setMag", Type::float32()}})}})}});
}

acsi::ServerDescription describedServer(const std::vector<std::string> &nodes,
                                        const acsi::SharedType &type)
{
    acsi::ServerDescription server;
    for (const char *device : {"LD0", "LD1"}) {
        acsi::DeviceDescription description;
        description.name = device;
        for (const std::string &node : nodes)
            description.nodes.push_back({node, type, {}});
        server.devices.push_back(std::move(description));
    }
    return server;
}

/// All leaves of all nodes, in the order of their numbers.
std::vector<OnlineModel::Leaf> leavesOf(const OnlineModel &model)
{
    std::vector<OnlineModel::Leaf> leaves;
    for (const acsi::DeviceDescription &device : model.description().devices) {
        for (const acsi::NodeDescription &node : device.nodes) {
            for (const char *constraint : {"ST", "MX", "SG", "SE"}) {
                const acsi::Reference reference{
                    device.name, node.name, acsi::functionalConstraintFrom(constraint), {}};
                for (OnlineModel::Leaf &leaf : model.leavesOf(reference))
                    leaves.push_back(std::move(leaf));
            }
        }
    }
    return leaves;
}

} // namespace

class tst_OnlineModel : public QObject
{
    Q_OBJECT

private slots:
    void nodesOfOneTypeHaveAttributesOfTheirOwn();
    void nodesOfOneTypeAndOtherClassesAreShownByTheirClass();
    void equalTextsOfAModelAreKeptOnce();
    void anAttributeTakesLittleMemory();
    void theBytesAreThoseOfTheDeviceThatIsReadFromThem();
};

void tst_OnlineModel::nodesOfOneTypeHaveAttributesOfTheirOwn()
{
    const acsi::SharedType type(nodeType());
    const OnlineModel shared(describedServer({"LLN0", "XCBR1", "XCBR2"}, type), {}, nullptr);
    const std::vector<OnlineModel::Leaf> leaves = leavesOf(shared);
    QCOMPARE(shared.leafCount(), 6U * (3 + 6 + 1 + 1));
    QCOMPARE(leaves.size(), std::size_t(shared.leafCount()));
    for (std::uint32_t i = 0; i < leaves.size(); ++i) {
        const OnlineModel::Leaf &leaf = leaves[i];
        QCOMPARE(leaf.number, i);
        QCOMPARE(leaf.attribute, shared.device().findTag(leaf.reference));
        // Of the settings those in force are shown.
        QCOMPARE(leaf.attribute == nullptr, leaf.reference.contains(QLatin1String("$SE$")));
        if (leaf.attribute)
            QCOMPARE(leaf.attribute->reference, leaf.reference);
    }
}

void tst_OnlineModel::nodesOfOneTypeAndOtherClassesAreShownByTheirClass()
{
    const acsi::SharedType type(nodeType());
    const OnlineModel model(describedServer({"XCBR1", "Q1CSWI1"}, type), {}, nullptr);
    const LogicalNode *breaker = model.node(QStringLiteral("LD1"), QStringLiteral("XCBR1"));
    const LogicalNode *control = model.node(QStringLiteral("LD1"), QStringLiteral("Q1CSWI1"));
    QVERIFY(breaker && control);
    QCOMPARE(breaker->lnClass, QStringLiteral("XCBR"));
    QCOMPARE(control->lnClass, QStringLiteral("CSWI"));
    QCOMPARE(breaker->dataObjects.size(), 3);
    QCOMPARE(control->dataObjects.size(), 3);
    QCOMPARE(breaker->dataObjects.first()->type, QStringLiteral("DPC"));
}

void tst_OnlineModel::equalTextsOfAModelAreKeptOnce()
{
    // Of two types, each of which has a pattern of its own.
    acsi::ServerDescription server = describedServer({"XCBR1", "XCBR2"}, nodeType());
    Type other = nodeType();
    other.components.pop_back();
    server.devices[1].nodes[0].type = other;
    const OnlineModel model(std::move(server), {}, nullptr);
    QHash<QString, const QChar *> texts;
    for (const OnlineModel::Leaf &leaf : leavesOf(model)) {
        if (!leaf.attribute)
            continue;
        for (const QString *text :
             {&leaf.attribute->name, &leaf.attribute->fc, &leaf.attribute->basicType}) {
            const QChar *const known = texts.value(*text, text->constData());
            QVERIFY2(known == text->constData(), qPrintable(leaf.reference));
            texts.insert(*text, known);
        }
    }
    QVERIFY(texts.size() > 5);
}

void tst_OnlineModel::anAttributeTakesLittleMemory()
{
    constexpr int objects = 20;
    constexpr std::int64_t limit = 400; // octets, most of which are the reference and the node
    std::vector<Type::Component> data;
    for (int i = 1; i <= objects; ++i) {
        data.push_back({"Ind" + std::to_string(i), Type::structure({{"stVal", Type::boolean()},
                                                                    {"q", Type::bitString(-13)},
                                                                    {"t", Type::utcTime()},
                                                                    {"subEna", Type::boolean()}})});
    }
    const acsi::SharedType type(Type::structure({{"ST", Type::structure(std::move(data))}}));
    std::vector<std::string> nodes;
    for (int i = 1; i <= 150; ++i)
        nodes.push_back("GGIO" + std::to_string(i));
    const auto made = [&] { return OnlineModel(describedServer(nodes, type), {}, nullptr); };
    // What the first one leaves behind is not the second one's.
    QCOMPARE(made().leafCount(), 2U * 150 * objects * 4);
    const std::int64_t before = testsupport::memoryInUse();
    const OnlineModel model = made();
    const std::int64_t taken = testsupport::memoryInUse() - before;
    QVERIFY2(taken <= limit * model.leafCount(), qPrintable(QString::number(taken)));
}

void tst_OnlineModel::theBytesAreThoseOfTheDeviceThatIsReadFromThem()
{
    const OnlineModel model(describedServer({"LLN0", "MHAI1", "MHAI2"}, nodeType()),
                            QStringLiteral("IED"), nullptr);
    const QByteArray bytes = model.toBytes();
    PhysicalDevice read;
    QDataStream in(bytes);
    read.fromStream(in);
    QVERIFY(in.status() == QDataStream::Ok && in.atEnd());
    QByteArray again;
    QDataStream out(&again, QIODevice::WriteOnly);
    read.toStream(out);
    QCOMPARE(again, bytes);
    for (const OnlineModel::Leaf &leaf : leavesOf(model))
        QCOMPARE(read.findTag(leaf.reference) != nullptr, leaf.attribute != nullptr);
}

QTEST_APPLESS_MAIN(tst_OnlineModel)
#include "tst_onlinemodel.moc"
