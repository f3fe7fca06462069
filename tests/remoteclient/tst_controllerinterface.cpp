// SPDX-License-Identifier: Apache-2.0
#include "support/recordingdriverservice.h"

#include <remoteclient/controllercaller.h>
#include <remoteclient/iec61850controllerinterface.h>

#include <QtTest/QtTest>

#include <functional>

namespace {

using Controller = IEC61850ControllerInterface;

/// What a call may be given and may give back; every text differs from every other.
struct Arguments
{
    QString a = QStringLiteral("first");
    QString b = QStringLiteral("second");
    QString c = QStringLiteral("third");
    QString d = QStringLiteral("fourth");
    QStringList texts{QStringLiteral("one"), QStringLiteral("two")};
    QByteArray bytes = QByteArrayLiteral("bytes");
    ReportBlock block;
    QList<SGCBValue> settings{{QStringLiteral("StrVal"), 1.5}};

    QByteArray outBytes;
    QList<NameVaildValue> list;
    QList<MMSFileEntry> files;
    ReportBlock outBlock;
    SGCB sgcb;
    QList<SGCBValue> outSettings;
};

using Call = std::function<OperationResult(Controller &, long, Arguments &, QString &)>;

struct Operation
{
    const char *name;
    QVariantList arguments;
    Call call;
};

QVector<Operation> operations()
{
    const Arguments x;
    const QVariantList a{x.a};
    const QVariantList ab{x.a, x.b};
    const QVariantList abc{x.a, x.b, x.c};
    const QVariantList abBytes{x.a, x.b, x.bytes};
    // clang-format off
    return {
        {"getIEDModel", {}, [](Controller &k, long n, Arguments &o, QString &e) { return k.getIEDModel(n, o.outBytes, e); }},
        {"getServerDirectory", {}, [](Controller &k, long n, Arguments &o, QString &e) { return k.getServerDirectory(n, o.list, e); }},
        {"getLogicalDeviceDirectory", a, [](Controller &k, long n, Arguments &o, QString &e) { return k.getLogicalDeviceDirectory(n, o.a, o.list, e); }},
        {"getLogicalNodeDirectory", ab, [](Controller &k, long n, Arguments &o, QString &e) { return k.getLogicalNodeDirectory(n, o.a, o.b, o.list, e); }},
        {"getDataDirectory", ab, [](Controller &k, long n, Arguments &o, QString &e) { return k.getDataDirectory(n, o.a, o.b, o.list, e); }},
        {"getDataSetList", a, [](Controller &k, long n, Arguments &o, QString &e) { return k.getDataSetList(n, o.a, o.list, e); }},
        {"getDataSetDirectory", ab, [](Controller &k, long n, Arguments &o, QString &e) { return k.getDataSetDirectory(n, o.a, o.b, o.list, e); }},
        {"getXRCB", abc, [](Controller &k, long n, Arguments &o, QString &e) { return k.getXRCB(n, o.a, o.b, o.c, o.list, e); }},
        {"getSGCBBlock", a, [](Controller &k, long n, Arguments &o, QString &e) { return k.getSGCBBlock(n, o.a, o.list, e); }},
        {"readVariable", {x.a, x.texts}, [](Controller &k, long n, Arguments &o, QString &e) { return k.readVariable(n, o.a, o.texts, e); }},
        {"readDataSetValue", ab, [](Controller &k, long n, Arguments &o, QString &e) { return k.readDataSetValue(n, o.a, o.b, e); }},
        {"writeVariable", abBytes, [](Controller &k, long n, Arguments &o, QString &e) { return k.writeVariable(n, o.a, o.b, o.bytes, e); }},
        {"writeValue", {x.a, x.b, x.c, x.bytes}, [](Controller &k, long n, Arguments &o, QString &e) { return k.writeValue(n, o.a, o.b, o.c, o.bytes, e); }},
        {"selectObject", abBytes, [](Controller &k, long n, Arguments &o, QString &e) { return k.selectObject(n, o.a, o.b, o.bytes, e); }},
        {"controlObject", abBytes, [](Controller &k, long n, Arguments &o, QString &e) { return k.controlObject(n, o.a, o.b, o.bytes, e); }},
        {"cancelObject", abBytes, [](Controller &k, long n, Arguments &o, QString &e) { return k.cancelObject(n, o.a, o.b, o.bytes, e); }},
        {"createDataSet", {x.a, x.b, x.c, 1}, [](Controller &k, long n, Arguments &o, QString &e) { return k.createDataSet(n, o.a, o.b, o.c, 1, e); }},
        {"deleteDataSet", ab, [](Controller &k, long n, Arguments &o, QString &e) { return k.deleteDataSet(n, o.a, o.b, e); }},
        {"getFileDirectory", ab, [](Controller &k, long n, Arguments &o, QString &e) { return k.getFileDirectory(n, o.a, o.b, o.files, e); }},
        {"getFile", a, [](Controller &k, long n, Arguments &o, QString &e) { return k.getFile(n, o.a, o.outBytes, e); }},
        {"deleteFile", a, [](Controller &k, long n, Arguments &o, QString &e) { return k.deleteFile(n, o.a, e); }},
        {"writeFile", ab, [](Controller &k, long n, Arguments &o, QString &e) { return k.writeFile(n, o.a, o.b, e); }},
        {"getBRCBValues", ab, [](Controller &k, long n, Arguments &o, QString &e) { return k.getBRCBValues(n, o.a, o.b, o.outBlock, e); }},
        {"enableReportBlock", {x.a, x.b, x.c, x.d, QVariant::fromValue(x.block)}, [](Controller &k, long n, Arguments &o, QString &e) { return k.enableReportBlock(n, o.a, o.b, o.c, o.d, o.block, e); }},
        {"getSGCB", a, [](Controller &k, long n, Arguments &o, QString &e) { return k.getSGCB(n, o.a, o.sgcb, e); }},
        {"getSGCBValue", ab, [](Controller &k, long n, Arguments &o, QString &e) { return k.getSGCBValue(n, o.a, o.b, o.outSettings, e); }},
        {"setSGCBValues", {x.a, QVariant::fromValue(x.settings)}, [](Controller &k, long n, Arguments &o, QString &e) { return k.setSGCBValues(n, o.a, o.settings, e); }},
        {"selectEditSG", {x.a, 3}, [](Controller &k, long n, Arguments &o, QString &e) { return k.selectEditSG(n, o.a, 3, e); }},
        {"selectActiveSG", {x.a, 4}, [](Controller &k, long n, Arguments &o, QString &e) { return k.selectActiveSG(n, o.a, 4, e); }},
    };
    // clang-format on
}

/// Records are compared by the one field that the test fills.
QVariant comparable(const QVariant &argument)
{
    if (argument.userType() == qMetaTypeId<ReportBlock>())
        return argument.value<ReportBlock>().rptId;
    if (argument.userType() == qMetaTypeId<QList<SGCBValue>>())
        return argument.value<QList<SGCBValue>>().value(0).name;
    return argument;
}

QVariantList comparable(const QVariantList &arguments)
{
    QVariantList result;
    for (const QVariant &argument : arguments)
        result << comparable(argument);
    return result;
}

} // namespace

class tst_ControllerInterface : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_service = std::make_shared<RecordingDriverService>();
        m_registration =
            std::make_unique<DriverServiceRegistration>(QStringLiteral("test:driver"), m_service);
    }

    void cleanup() { m_registration.reset(); }

    void everyOperationForwardsItsArgumentsInOrder_data() { addOperations(); }
    void everyOperationForwardsItsArgumentsInOrder()
    {
        const Operation operation = this->operation();
        Controller controller;
        controller.setLocation(QStringLiteral("test:driver"), 1);
        Arguments arguments;
        arguments.block.rptId = QStringLiteral("report id");
        QString error;
        QCOMPARE(operation.call(controller, 4711, arguments, error), OperationSucceeded);

        const QList<RecordingDriverService::Call> calls = m_service->calls();
        QCOMPARE(calls.size(), 1);
        QCOMPARE(calls.first().operation, QString::fromLatin1(operation.name));
        QCOMPARE(calls.first().deviceNo, 4711L);
        QVariantList expected = operation.arguments;
        if (calls.first().operation == QLatin1String("enableReportBlock"))
            expected.last() = QVariant::fromValue(arguments.block);
        QCOMPARE(comparable(calls.first().arguments), comparable(expected));
    }

    void everyOperationGivesBackTheDriversResultAndText_data() { addOperations(); }
    void everyOperationGivesBackTheDriversResultAndText()
    {
        const Operation operation = this->operation();
        const auto result = static_cast<OperationResult>(77);
        m_service->setAnswer(QString::fromLatin1(operation.name), result,
                             QStringLiteral("The device refused it"));
        Controller controller;
        controller.setLocation(QStringLiteral("test:driver"), 1);
        Arguments arguments;
        QString error;
        QCOMPARE(operation.call(controller, 1, arguments, error), result);
        QCOMPARE(error, QStringLiteral("The device refused it"));
    }

    void withoutADriverEveryOperationSaysUnreachable_data() { addOperations(); }
    void withoutADriverEveryOperationSaysUnreachable()
    {
        const Operation operation = this->operation();
        Controller controller;
        controller.setLocation(QStringLiteral("test:nobody"), 1);
        Arguments arguments;
        QString error;
        QCOMPARE(static_cast<int>(operation.call(controller, 1, arguments, error)), 10001);
        QVERIFY(error.contains(QStringLiteral("test:nobody")));
        QVERIFY(m_service->calls().isEmpty());
    }

    void aSuccessfulCallLeavesNoTextOfAnEarlierFailure()
    {
        Controller controller;
        controller.setLocation(QStringLiteral("test:driver"), 1);
        QString error = QStringLiteral("from before");
        QCOMPARE(controller.deleteFile(1, QStringLiteral("f"), error), OperationSucceeded);
        QVERIFY(error.isEmpty());
    }

    void aCallSaysWhichControllerItCameThrough()
    {
        QList<quint64> callers;
        m_service->setOnCall([&callers](const RecordingDriverService::Call &) {
            callers << ControllerCaller::current();
        });
        QString error;
        {
            Controller one;
            Controller other;
            for (Controller *each : {&one, &other, &one}) {
                each->setLocation(QStringLiteral("test:driver"), 1);
                each->deleteFile(1, QStringLiteral("f"), error);
            }
        }
        // The next one may stand at the same place in memory.
        Controller later;
        later.setLocation(QStringLiteral("test:driver"), 1);
        later.deleteFile(1, QStringLiteral("f"), error);
        QCOMPARE(callers.size(), 4);
        QCOMPARE(callers.at(0), callers.at(2));
        QCOMPARE(QSet<quint64>(callers.cbegin(), callers.cend()).size(), 3);
        QVERIFY(!callers.contains(0));
        QCOMPARE(ControllerCaller::current(), quint64(0));
    }

    void abortCloseHasNoText()
    {
        Controller controller;
        controller.setLocation(QStringLiteral("test:driver"), 1);
        m_service->setAnswer(QStringLiteral("abortClose"), OperationNotConnected);
        QCOMPARE(controller.abortClose(9), OperationNotConnected);
        QCOMPARE(m_service->calls().size(), 1);
        QCOMPARE(m_service->calls().first().operation, QStringLiteral("abortClose"));
        QCOMPARE(m_service->calls().first().deviceNo, 9L);
        controller.setLocation(QStringLiteral("test:nobody"), 1);
        QCOMPARE(controller.abortClose(9), OperationDriverUnreachable);
    }

    void whatTheDriverFillsInComesBack()
    {
        m_service->model = QByteArrayLiteral("model");
        m_service->fileContent = QByteArrayLiteral("content");
        m_service->directories[QStringLiteral("getDataSetList")] = {
            {QStringLiteral("LLN0$ds"), true, 5}};
        m_service->fileEntries = {MMSFileEntry{}};
        m_service->reportBlock.rptId = QStringLiteral("report id");
        m_service->settingGroupBlock.numOfSG = 4;
        m_service->settings[QStringLiteral("SE")] = {{QStringLiteral("StrVal"), 2.5}};
        Controller controller;
        controller.setLocation(QStringLiteral("test:driver"), 1);
        Arguments out;
        QString error;

        controller.getIEDModel(1, out.outBytes, error);
        QCOMPARE(out.outBytes, QByteArrayLiteral("model"));
        controller.getFile(1, out.a, out.outBytes, error);
        QCOMPARE(out.outBytes, QByteArrayLiteral("content"));
        controller.getDataSetList(1, out.a, out.list, error);
        QCOMPARE(out.list.value(0).name, QStringLiteral("LLN0$ds"));
        controller.getFileDirectory(1, out.a, out.b, out.files, error);
        QCOMPARE(out.files.size(), 1);
        controller.getBRCBValues(1, out.a, out.b, out.outBlock, error);
        QCOMPARE(out.outBlock.rptId, QStringLiteral("report id"));
        controller.getSGCB(1, out.a, out.sgcb, error);
        QCOMPARE(int(out.sgcb.numOfSG), 4);
        controller.getSGCBValue(1, out.a, QStringLiteral("SE"), out.outSettings, error);
        QCOMPARE(out.outSettings.value(0).value, QVariant(2.5));
    }

    void theDriverIsLookedUpAtEachCall()
    {
        Controller controller;
        controller.setLocation(QStringLiteral("test:late"), 1);
        QString error;
        QCOMPARE(controller.deleteFile(1, QStringLiteral("f"), error), OperationDriverUnreachable);
        {
            const DriverServiceRegistration late(QStringLiteral("test:late"), m_service);
            QCOMPARE(controller.deleteFile(1, QStringLiteral("f"), error), OperationSucceeded);
        }
        QCOMPARE(controller.deleteFile(1, QStringLiteral("f"), error), OperationDriverUnreachable);
    }

    void aFailedCallIsNotRepeated()
    {
        m_service->setAnswer(QStringLiteral("deleteFile"), OperationFailed, QStringLiteral("no"));
        Controller controller;
        controller.setLocation(QStringLiteral("test:driver"), 1);
        QString error;
        controller.deleteFile(1, QStringLiteral("f"), error);
        QCOMPARE(m_service->calls().size(), 1);
    }

    void aControllerWithoutALocationReachesNoDriver()
    {
        Controller controller;
        QString error;
        QCOMPARE(controller.deleteFile(1, QStringLiteral("f"), error), OperationDriverUnreachable);
    }

private:
    static void addOperations()
    {
        QTest::addColumn<int>("index");
        const QVector<Operation> all = operations();
        for (int i = 0; i < all.size(); ++i)
            QTest::newRow(all.at(i).name) << i;
    }

    static Operation operation()
    {
        QFETCH(int, index);
        return operations().at(index);
    }

    std::shared_ptr<RecordingDriverService> m_service;
    std::unique_ptr<DriverServiceRegistration> m_registration;
};

QTEST_APPLESS_MAIN(tst_ControllerInterface)
#include "tst_controllerinterface.moc"
