// SPDX-License-Identifier: Apache-2.0
// Only the type of a structure tells the order of what is in it; names come in the order that the
// device likes. Values that are read whole are compared leaf by leaf with those of the device.
#include "acsi/scripteddevice.h"
#include "driver/simulatedstation.h"

#include "acsi/client.h"
#include "acsi/discovery.h"
#include "driver/model/onlinemodel.h"

#include <asio/co_spawn.hpp>
#include <asio/use_future.hpp>

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <deque>

using namespace drivertest;
using acsi::FunctionalConstraint;

namespace {

constexpr FunctionalConstraint readConstraints[] = {
    FunctionalConstraint::ST, FunctionalConstraint::MX, FunctionalConstraint::SP,
    FunctionalConstraint::SG, FunctionalConstraint::CF, FunctionalConstraint::DC,
    FunctionalConstraint::EX, FunctionalConstraint::BL, FunctionalConstraint::SV,
    FunctionalConstraint::BR, FunctionalConstraint::RP};

QString text(const std::string &utf8)
{
    return QString::fromStdString(utf8);
}

/// A value of the leaf's type that few others have.
std::optional<mms::Data> distinctValue(const mms::Data &present, std::uint32_t number)
{
    using Kind = mms::Data::Kind;
    switch (present.kind()) {
    case Kind::Boolean:
        return mms::Data::boolean(number % 2 != 0);
    case Kind::Integer:
        return mms::Data::integer(number % 127);
    case Kind::Unsigned:
        return mms::Data::unsignedInteger(number % 255);
    case Kind::UtcTime:
        return mms::Data::utcTime({number, 0, 0});
    case Kind::BitString: {
        mms::BitString bits(present.size());
        for (std::size_t i = 0; i < bits.size(); ++i)
            bits.set(i, ((number >> (i % 16)) & 1U) != 0);
        return mms::Data::bitString(bits);
    }
    case Kind::VisibleString:
        return mms::Data::visibleString("v" + std::to_string(number % 1000));
    default:
        return std::nullopt;
    }
}

/// Values of which hardly two are the same, so that one under another's name is noticed.
void giveDistinctValues(SimulatedIed &ied)
{
    ied.act([](sim::Device &device) {
        sim::Model &model = device.model();
        const sim::Model::Batch batch(model);
        for (sim::Leaf leaf = 0; leaf < model.leafCount(); ++leaf) {
            const sim::Part part = model.leafPart(leaf);
            const bool isData =
                part.fc() == FunctionalConstraint::ST || part.fc() == FunctionalConstraint::MX ||
                part.fc() == FunctionalConstraint::DC || part.fc() == FunctionalConstraint::EX;
            if (!isData)
                continue;
            if (const mms::Data *number = &model.value(leaf);
                number->kind() == mms::Data::Kind::FloatingPoint) {
                model.set(leaf, number->size() > 5 ? mms::Data::float64(leaf)
                                                   : mms::Data::float32(static_cast<float>(leaf)));
            } else if (auto value = distinctValue(*number, leaf)) {
                if (!sim::Model::check(part, *value))
                    model.set(leaf, std::move(*value));
            }
        }
    });
}

/// Every leaf as a client that asks for it alone gets it, by "LD/LN$FC$...".
QHash<QString, mms::Data> singleReads(SimulatedIed &ied)
{
    QHash<QString, mms::Data> values;
    ied.act([&](sim::Device &device) {
        sim::Model &model = device.model();
        simtest::RecordingClient client;
        for (sim::Leaf leaf = 0; leaf < model.leafCount(); ++leaf) {
            const sim::Part part = model.leafPart(leaf);
            const sim::Model::LogicalNode &node = model.logicalNodes()[part.logicalNode()];
            const std::string_view domain = model.domains()[node.domain].name;
            const mms::AccessResult value = device.access().read(client, part);
            if (value.ok())
                values.insert(text(std::string(domain) + '/' + model.itemName(part)), value.data());
        }
    });
    return values;
}

struct Comparison
{
    int compared = 0;
    int inParts = 0; ///< structures of nodes' constraints that were not told whole
    QStringList wrong;
};

/// Discovers the device and reads it as largely as its model and the PDU allow.
asio::awaitable<void> compare(std::uint16_t port, int pduSize,
                              const QHash<QString, mms::Data> &expected, Comparison &result)
{
    acsi::ClientOptions options;
    options.callTimeout = std::chrono::seconds(30);
    options.association.maxPduSize = pduSize;
    const auto connected = co_await acsi::Client::connect(co_await asio::this_coro::executor,
                                                          "127.0.0.1", port, options);
    if (!connected) {
        result.wrong.append(text(connected.error().message.english()));
        co_return;
    }
    const std::shared_ptr<acsi::Client> client = *connected;
    auto description = co_await acsi::discover(client);
    if (!description) {
        result.wrong.append(text(description.error().message.english()));
        co_return;
    }
    const OnlineModel model(std::move(*description), "IED", nullptr);

    std::deque<acsi::Reference> wanted;
    for (const acsi::DeviceDescription &device : model.description().devices) {
        for (const acsi::NodeDescription &node : device.nodes) {
            for (const FunctionalConstraint constraint : readConstraints) {
                const acsi::Reference whole{device.name, node.name, constraint, {}};
                const auto parts = model.readableParts(whole);
                result.inParts += !parts.empty() && !model.isWholeKnown(whole);
                wanted.insert(wanted.end(), parts.begin(), parts.end());
            }
        }
    }
    QSet<QString> seen;
    while (!wanted.empty()) {
        std::vector<acsi::Reference> references;
        for (; !wanted.empty() && references.size() < 500; wanted.pop_front())
            references.push_back(wanted.front());
        std::vector<mms::VariableAccess> variables;
        for (const acsi::Reference &reference : references)
            variables.push_back(acsi::accessOf(reference));
        const auto values = co_await client->read(std::move(variables));
        if (!values) {
            result.wrong.append(text(values.error().message.english()));
            co_return;
        }
        for (std::size_t i = 0; i < references.size(); ++i) {
            const mms::AccessResult &value = (*values)[i];
            const mms::TypeDescription *type = model.type(references[i]);
            if (!value.ok() && type && type->kind == mms::TypeDescription::Kind::Structure) {
                // Too large for an answer.
                for (const auto &component : type->components) {
                    acsi::Reference part = references[i];
                    part.path.push_back({component.name, std::nullopt});
                    wanted.push_back(std::move(part));
                }
                continue;
            }
            if (!value.ok() && type && type->kind == mms::TypeDescription::Kind::Array) {
                for (std::uint32_t element = 0; element < type->elementCount; ++element) {
                    acsi::Reference part = references[i];
                    part.path.back().element = element;
                    wanted.push_back(std::move(part));
                }
                continue;
            }
            if (!value.ok()) {
                result.wrong.append(text(acsi::toText(references[i]) + " cannot be read"));
                continue;
            }
            const bool fits =
                model.forEachLeaf(references[i], value.data(), [&](const OnlineModel::Leaf &leaf) {
                    ++result.compared;
                    seen.insert(leaf.reference);
                    // Buffers fill as time goes by.
                    const bool isOfTheBuffer = leaf.reference.endsWith("$EntryID") ||
                                               leaf.reference.endsWith("$TimeofEntry");
                    if (!isOfTheBuffer && !(expected.value(leaf.reference) == *leaf.data))
                        result.wrong.append(leaf.reference);
                });
            if (!fits)
                result.wrong.append(text(acsi::toText(references[i]) + " does not fit"));
        }
    }
    for (auto each = expected.cbegin(); each != expected.cend(); ++each) {
        const auto reference = acsi::parseReference(each.key().toStdString());
        const bool isRead =
            reference &&
            std::ranges::find(readConstraints, reference->constraint) != std::end(readConstraints);
        if (isRead && !seen.contains(each.key()))
            result.wrong.append(each.key() + " is missing");
    }
    co_await client->close();
}

Comparison compared(SimulatedIed &ied, int pduSize)
{
    giveDistinctValues(ied);
    const QHash<QString, mms::Data> expected = singleReads(ied);
    Comparison result;
    asio::io_context context;
    auto done =
        asio::co_spawn(context, compare(ied.port(), pduSize, expected, result), asio::use_future);
    context.run();
    done.get();
    return result;
}

/// A file of one node with @p count objects whose names are in no order.
QByteArray manyObjects(int count)
{
    QByteArray objects;
    for (int i = 0; i < count; ++i) {
        const int name = static_cast<int>(i * 7919LL % count);
        objects += QStringLiteral("<DO name=\"Obj%1\" type=\"MV\"/>").arg(name).toLatin1();
    }
    return "<SCL xmlns=\"http://www.iec.ch/61850/2003/SCL\" version=\"2007\" revision=\"B\">"
           "<Header id=\"names\"/><IED name=\"MANY\"><AccessPoint name=\"S1\"><Server>"
           "<Authentication none=\"true\"/><LDevice inst=\"LD\">"
           "<LN0 lnClass=\"LLN0\" inst=\"\" lnType=\"LLN0\"/>"
           "<LN lnClass=\"GGIO\" inst=\"1\" lnType=\"GGIO\"/></LDevice></Server></AccessPoint>"
           "</IED><DataTypeTemplates>"
           "<LNodeType id=\"LLN0\" lnClass=\"LLN0\"><DO name=\"NamPlt\" type=\"LPL\"/></LNodeType>"
           "<LNodeType id=\"GGIO\" lnClass=\"GGIO\">" +
           objects +
           "</LNodeType><DOType id=\"LPL\" cdc=\"LPL\">"
           "<DA name=\"vendor\" bType=\"VisString255\" fc=\"DC\"/></DOType>"
           "<DOType id=\"MV\" cdc=\"MV\">"
           "<DA name=\"mag\" bType=\"Struct\" type=\"Mag\" fc=\"MX\"/>"
           "<DA name=\"q\" bType=\"Quality\" fc=\"MX\"/>"
           "<DA name=\"t\" bType=\"Timestamp\" fc=\"MX\"/></DOType>"
           "<DAType id=\"Mag\"><BDA name=\"i\" bType=\"INT32\"/><BDA name=\"f\" "
           "bType=\"FLOAT32\"/></DAType></DataTypeTemplates></SCL>";
}

QString written(const QTemporaryDir &folder, const QByteArray &content)
{
    const QString path = folder.filePath("odd.scd");
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(path));
    return path;
}

sim::DeviceOptions ordered(bool inTypeOrder)
{
    sim::DeviceOptions options;
    options.oddities.namesInTypeOrder = inTypeOrder;
    return options;
}

QString firstOf(const QStringList &lines)
{
    return QStringLiteral("%1 wrong:\n%2")
        .arg(lines.size())
        .arg(QStringList(lines.mid(0, 20)).join(QLatin1Char('\n')));
}

} // namespace

/// A device made of tables that serves on loopback.
class TableDevice
{
public:
    TableDevice()
        : m_work(asio::make_work_guard(m_context))
        , m_thread([this] { m_context.run(); })
    {
    }
    ~TableDevice()
    {
        if (m_server)
            m_server->stop();
        m_server.reset();
        m_work.reset();
        m_thread.join();
        // They keep the association, which must not outlive the context it runs in.
        tables.reset();
    }

    void serve()
    {
        mms::ServerOptions options;
        options.address = "127.0.0.1";
        options.port = 0;
        m_server = mms::Server::create(m_context.get_executor(), options, tables);
        const auto port = m_server->start();
        if (!port)
            qFatal("%s", port.error().message.english().c_str());
        configuration.number = 1;
        configuration.name = "TABLES";
        configuration.host = "127.0.0.1";
        configuration.port = *port;
    }

    std::shared_ptr<acsitest::ScriptedDevice> tables = std::make_shared<acsitest::ScriptedDevice>();
    DeviceConfiguration configuration;

private:
    asio::io_context m_context;
    asio::executor_work_guard<asio::io_context::executor_type> m_work;
    std::shared_ptr<mms::Server> m_server;
    std::thread m_thread;
};

mms::TypeDescription indication()
{
    return mms::TypeDescription::structure(
        {{"ST", mms::TypeDescription::structure(
                    {{"Ind", mms::TypeDescription::structure(
                                 {{"stVal", mms::TypeDescription::boolean()}})}})}});
}

class tst_OddNames : public QObject
{
    Q_OBJECT

private slots:
    void valuesKeepTheirNamesWhateverTheOrderOfTheNames_data();
    void valuesKeepTheirNamesWhateverTheOrderOfTheNames();
    void theDriverPollsWhatWasDescribedInParts();
    void anArrayOfEnormousCountIsLeftOutAndTold();
    void moreLogicalDevicesThanAnyDeviceHasAreLeftOutAndTold();
    void readingNamesWithoutEndEndsWhenNobodyWantsIt_data();
    void readingNamesWithoutEndEndsWhenNobodyWantsIt();
    void everyLeafOfTheFolderHasItsOwnValue_data();
    void everyLeafOfTheFolderHasItsOwnValue();
};

void tst_OddNames::valuesKeepTheirNamesWhateverTheOrderOfTheNames_data()
{
    QTest::addColumn<int>("pduSize");
    QTest::addColumn<bool>("inTypeOrder");
    for (const int size : {1000, 8000, 65000}) {
        for (const bool order : {false, true}) {
            QTest::newRow(qPrintable(QStringLiteral("%1 %2").arg(size).arg(order)))
                << size << order;
        }
    }
}

void tst_OddNames::valuesKeepTheirNamesWhateverTheOrderOfTheNames()
{
    QFETCH(int, pduSize);
    QFETCH(bool, inTypeOrder);
    QTemporaryDir folder;
    SimulatedIed ied(written(folder, manyObjects(1400)), {}, {}, ordered(inTypeOrder));
    const Comparison result = compared(ied, pduSize);
    QVERIFY2(result.wrong.isEmpty(), qPrintable(firstOf(result.wrong)));
    QCOMPARE(result.compared, 1400 * 4 + 1);
    QVERIFY(result.inParts > 0);
}

void tst_OddNames::theDriverPollsWhatWasDescribedInParts()
{
    QTemporaryDir folder;
    SimulatedIed ied(written(folder, manyObjects(400)));
    giveDistinctValues(ied);
    Listener listener;
    ServedDriver driver(listener.options());
    DeviceConfiguration configuration = configurationFor(ied);
    configuration.maxPduSize = 2000;
    driver.setDevice(configuration);
    driver.connectDevice(1);
    for (const int number : {0, 7, 199, 399}) {
        const QString reference = QStringLiteral("MANYLD/GGIO1$MX$Obj%1$mag$i").arg(number);
        const auto expected =
            ied.value("MANYLD", reference.section(QLatin1Char('/'), 1).toStdString()).toInteger();
        QVERIFY(listener.waitForValue(reference, QVariant(static_cast<int>(*expected))));
    }
    QString error;
    listener.clear();
    QCOMPARE(driver.readVariable(1, "MANYLD", {"GGIO1$MX"}, error), OperationSucceeded);
    QVERIFY(listener.waitForReferences(400 * 4, PublishCause::Read));
    QCOMPARE(listener.value("MANYLD/GGIO1$MX$Obj10$mag$i").value.toInt(),
             static_cast<int>(*ied.value("MANYLD", "GGIO1$MX$Obj10$mag$i").toInteger()));
}

void tst_OddNames::anArrayOfEnormousCountIsLeftOutAndTold()
{
    TableDevice device;
    mms::TypeDescription type = indication();
    type.components.front().type.components.push_back(
        {"Har", mms::TypeDescription::structure(
                    {{"har", mms::TypeDescription::array(4294967295U,
                                                         mms::TypeDescription::float32())}})});
    device.tables->domains["LD"].nodes["GGIO1"] = type;
    device.tables->values["LD/GGIO1$ST$Ind"] = mms::Data::structure({mms::Data::boolean(true)});
    device.serve();
    Listener listener;
    ServedDriver driver(listener.options());
    driver.setDevice(device.configuration);
    driver.connectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Online));
    QVERIFY2(driver.status(1).reason.contains("LD/GGIO1$ST$Har$har is larger"),
             qPrintable(driver.status(1).reason));
    QVERIFY(listener.waitForValue("LD/GGIO1$ST$Ind$stVal", QVariant(true)));
}

void tst_OddNames::moreLogicalDevicesThanAnyDeviceHasAreLeftOutAndTold()
{
    TableDevice device;
    device.tables->pageSize = 2000;
    for (int i = 0; i < 100000; ++i)
        device.tables->domains["LD" + std::to_string(i)].nodes["LLN0"] = indication();
    device.serve();
    Listener listener;
    ServedDriver driver(listener.options());
    driver.setDevice(device.configuration);
    driver.connectDevice(1);
    QTRY_VERIFY_WITH_TIMEOUT(driver.status(1).state == DeviceState::Online, 60000);
    QVERIFY2(driver.status(1).reason.contains("more than 1,000 logical devices"),
             qPrintable(driver.status(1).reason));
    QByteArray bytes;
    QString error;
    QCOMPARE(driver.getIEDModel(1, bytes, error), OperationSucceeded);
    QCOMPARE(deviceFrom(bytes)->logicalDevices.size(), 1000);
}

void tst_OddNames::readingNamesWithoutEndEndsWhenNobodyWantsIt_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("disconnect") << 0;
    QTest::newRow("cancel") << 1;
    QTest::newRow("remove") << 2;
}

void tst_OddNames::readingNamesWithoutEndEndsWhenNobodyWantsIt()
{
    QFETCH(int, way);
    TableDevice device;
    std::atomic<int> pages = 0;
    device.tables->domains["LD"].nodes["LLN0"] = indication();
    device.tables->intercept = [&pages](const auto &association, std::uint32_t invokeId,
                                        mms::RequestService &request) {
        const auto *list = std::get_if<mms::GetNameListRequest>(&request);
        if (!list || list->objectClass != mms::ObjectClass::NamedVariable)
            return false;
        association->respond(
            invokeId, mms::GetNameListResponse{{"LLN0$ST$Ind" + std::to_string(++pages)}, true});
        return true;
    };
    device.serve();
    Listener listener;
    ServedDriver driver(listener.options());
    driver.setDevice(device.configuration);
    driver.connectDevice(1);
    QTRY_VERIFY_WITH_TIMEOUT(pages > 50, 20000);
    if (way == 0)
        driver.disconnectDevice(1);
    else if (way == 1)
        driver.cancelReading(1);
    else
        driver.removeDevice(1);
    if (way != 2)
        QVERIFY(listener.waitForState(1, DeviceState::Disconnected));
    // Whatever was on the way has been answered; nothing more is asked.
    int before = -1;
    QTRY_VERIFY_WITH_TIMEOUT(std::exchange(before, int(pages)) == pages, 20000);
}

void tst_OddNames::everyLeafOfTheFolderHasItsOwnValue_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("ied");
    QTest::addColumn<int>("pduSize");
    QTest::addColumn<bool>("inTypeOrder");
#ifdef SCL_FOLDER
    // All sizes in both orders take minutes and are asked for.
    const bool isFull = qEnvironmentVariableIsSet("EVERY_PDU_SIZE");
    const std::vector<std::pair<int, bool>> few = {{1000, false}, {8000, true}};
    std::vector<std::pair<int, bool>> all;
    for (const int size : {1000, 2000, 8000, 16000, 65000}) {
        all.emplace_back(size, false);
        all.emplace_back(size, true);
    }
    const QFileInfoList files = QDir(QStringLiteral(SCL_FOLDER)).entryInfoList(QDir::Files);
    for (const QFileInfo &file : files) {
        if (file.suffix() == QLatin1String("md"))
            continue;
        const scl::ReadResult read = SclImport::readFile(file.filePath());
        QVERIFY2(read.document, qPrintable(file.fileName()));
        for (const scl::Ied &each : read.document->ieds) {
            const QString name = text(std::string(each.name));
            for (const auto &[size, order] : isFull ? all : few) {
                QTest::newRow(qPrintable(QStringLiteral("%1 %2 %3 %4")
                                             .arg(file.fileName(), name)
                                             .arg(size)
                                             .arg(order ? "types" : "sorted")))
                    << file.filePath() << name << size << order;
            }
        }
    }
#endif
}

void tst_OddNames::everyLeafOfTheFolderHasItsOwnValue()
{
#ifndef SCL_FOLDER
    QSKIP("The folder of files of real devices is not there.");
#else
    QFETCH(QString, path);
    QFETCH(QString, ied);
    QFETCH(int, pduSize);
    QFETCH(bool, inTypeOrder);
    SimulatedIed simulated(path, ied, {}, ordered(inTypeOrder));
    const Comparison result = compared(simulated, pduSize);
    QVERIFY2(result.wrong.isEmpty(), qPrintable(firstOf(result.wrong)));
#endif
}

QTEST_GUILESS_MAIN(tst_OddNames)
#include "tst_oddnames.moc"
