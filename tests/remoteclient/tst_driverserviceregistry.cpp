// SPDX-License-Identifier: Apache-2.0
#include "support/recordingdriverservice.h"

#include <remoteclient/driverserviceregistry.h>
#include <remoteclient/iec61850controllerinterface.h>

#include <QtTest/QtTest>

#include <atomic>
#include <future>
#include <thread>
#include <vector>

class tst_DriverServiceRegistry : public QObject
{
    Q_OBJECT

private slots:
    void aServiceIsFoundAtItsAddressOnly()
    {
        const auto service = std::make_shared<RecordingDriverService>();
        const DriverServiceRegistration registration(QStringLiteral("test:a"), service);
        QCOMPARE(DriverServiceRegistry::find(QStringLiteral("test:a")), service);
        QVERIFY(!DriverServiceRegistry::find(QStringLiteral("test:A")));
        QVERIFY(!DriverServiceRegistry::find(QString()));
    }

    void aLaterServiceReplacesTheEarlierOne()
    {
        const auto earlier = std::make_shared<RecordingDriverService>();
        const auto later = std::make_shared<RecordingDriverService>();
        const DriverServiceRegistration first(QStringLiteral("test:a"), earlier);
        const DriverServiceRegistration second(QStringLiteral("test:a"), later);
        QCOMPARE(DriverServiceRegistry::find(QStringLiteral("test:a")), later);
        QCOMPARE(earlier.use_count(), 1L);
    }

    void aRemovedServiceIsForgottenAndReleased()
    {
        std::weak_ptr<RecordingDriverService> watched;
        {
            const auto service = std::make_shared<RecordingDriverService>();
            watched = service;
            DriverServiceRegistry::add(QStringLiteral("test:a"), service);
        }
        QVERIFY(!watched.expired());
        DriverServiceRegistry::remove(QStringLiteral("test:a"));
        QVERIFY(watched.expired());
        QVERIFY(!DriverServiceRegistry::find(QStringLiteral("test:a")));
        DriverServiceRegistry::remove(QStringLiteral("test:a"));
    }

    void aServiceRemovedDuringACallAnswersItStill()
    {
        std::promise<void> entered;
        std::promise<void> removed;
        auto service = std::make_shared<RecordingDriverService>();
        service->setAnswer(QStringLiteral("deleteFile"), OperationFailed, QStringLiteral("busy"));
        service->setOnCall([&](const RecordingDriverService::Call &) {
            entered.set_value();
            removed.get_future().wait();
        });
        const std::weak_ptr<RecordingDriverService> watched = service;
        DriverServiceRegistry::add(QStringLiteral("test:a"), std::move(service));

        OperationResult result = OperationSucceeded;
        QString error;
        std::thread caller([&] {
            IEC61850ControllerInterface controller;
            controller.setLocation(QStringLiteral("test:a"), 1);
            result = controller.deleteFile(1, QStringLiteral("f"), error);
        });
        entered.get_future().wait();
        DriverServiceRegistry::remove(QStringLiteral("test:a"));
        QVERIFY(!watched.expired());
        removed.set_value();
        caller.join();
        QCOMPARE(result, OperationFailed);
        QCOMPARE(error, QStringLiteral("busy"));
        QVERIFY(watched.expired());
    }

    void manyThreadsAddFindAndRemove()
    {
        constexpr int rounds = 2000;
        std::atomic<int> foundOwn{0};
        std::atomic<int> foundShared{0};
        const auto shared = std::make_shared<RecordingDriverService>();
        const DriverServiceRegistration registration(QStringLiteral("test:shared"), shared);
        std::vector<std::thread> threads;
        for (int number = 0; number < 4; ++number) {
            threads.emplace_back([&, number] {
                const QString address = QStringLiteral("test:%1").arg(number);
                const QString contested = QStringLiteral("test:contested");
                const auto own = std::make_shared<RecordingDriverService>();
                for (int i = 0; i < rounds; ++i) {
                    DriverServiceRegistry::add(address, own);
                    DriverServiceRegistry::add(contested, own);
                    foundOwn += DriverServiceRegistry::find(address) == own;
                    foundShared +=
                        DriverServiceRegistry::find(QStringLiteral("test:shared")) == shared;
                    DriverServiceRegistry::find(contested);
                    DriverServiceRegistry::remove(contested);
                    DriverServiceRegistry::remove(address);
                }
            });
        }
        for (std::thread &thread : threads)
            thread.join();
        QCOMPARE(foundOwn.load(), 4 * rounds);
        QCOMPARE(foundShared.load(), 4 * rounds);
        QVERIFY(!DriverServiceRegistry::find(QStringLiteral("test:0")));
        QVERIFY(!DriverServiceRegistry::find(QStringLiteral("test:contested")));
    }
};

QTEST_APPLESS_MAIN(tst_DriverServiceRegistry)
#include "tst_driverserviceregistry.moc"
