// SPDX-License-Identifier: Apache-2.0
#include "tavrix/forwardingbackend.h"

#include <tavrix/middleware.h>
#include <tavrix/tavrix.h>

#include <QtTest/QtTest>

#include <algorithm>
#include <atomic>
#include <map>
#include <thread>
#include <vector>

namespace {

/// A middleware that says what it was asked for.
class WatchedBackend : public ForwardingBackend
{
public:
    WatchedBackend()
        : ForwardingBackend(&std::chrono::steady_clock::now)
    {
    }

    Tavrix::Result connect() override
    {
        return isReachable ? Tavrix::Success : Tavrix::MiddlewareUnavailable;
    }
    void ownerGone(Tavrix::Owner owner) override
    {
        ++ownersGone;
        ForwardingBackend::ownerGone(owner);
    }

    std::atomic<bool> isReachable{true};
    std::atomic<int> ownersGone{0};
};

/// What the factory of the scheme "watched" made, by address and domain.
std::map<std::pair<std::string, std::string>, std::shared_ptr<WatchedBackend>> made;
int refused = 0;

std::shared_ptr<Tavrix::EventBackend> makeWatched(const std::string &address,
                                                  const std::string &domain)
{
    if (address == "watched:nonsense") {
        ++refused;
        return nullptr;
    }
    return made[{address, domain}] = std::make_shared<WatchedBackend>();
}

std::shared_ptr<WatchedBackend> watched(const char *address, const char *domain = "")
{
    Tavrix::ConnectMid(address);
    return made[{address, domain}];
}

constexpr int noWait = 0;

unsigned int openNew(const char *name, const char *address = nullptr, const char *domain = nullptr)
{
    unsigned int port = 0;
    Tavrix::CreateEventBox(name, 100, 30000, address, domain);
    Tavrix::ConnectPortForRecv(name, port, address, domain);
    Tavrix::SetPersistent(name, false, address, domain);
    return port;
}

QByteArray received(unsigned int port, const char *address = nullptr)
{
    TavrixDataList list;
    const int result = Tavrix::ReceiveEventN(port, list, nullptr, noWait, 1, address);
    return result == 0 ? QByteArray(list.array[0]->GetRawValue()) : QByteArray::number(result);
}

} // namespace

class tst_MiddlewareChoice : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void boxesOfTwoMiddlewaresHaveNothingToDoWithEachOther();
    void aPortKnowsItsMiddleware();
    void aPortIsNotOpenAtAnotherAddress();
    void portsOfTwoMiddlewaresHaveDifferentNumbers();
    void theDomainReachesTheFactory();
    void anAddressIsOneMiddlewareHoweverOftenItIsUsed();
    void aThreadThatEndsIsToldToTheMiddlewaresThatItUsedAndToNoOther();
    void noAddressIsTheMiddlewareThatTheHostChose();
    void portsStayWithTheirMiddlewareWhenTheHostChoosesAnother();
    void anUnknownChoiceIsRefusedAndTheOldOneStays();
    void aMiddlewareThatDoesNotAnswerIsUnavailable();
    void aFactoryThatKnowsNoSuchAddressIsAskedAgain();
    void aSchemeIsRegisteredOnce();
};

void tst_MiddlewareChoice::initTestCase()
{
    QCOMPARE(Tavrix::RegisterMiddleware("watched", &makeWatched), 0);
}

void tst_MiddlewareChoice::cleanup()
{
    QCOMPARE(Tavrix::ChooseMiddleware(nullptr), 0);
}

void tst_MiddlewareChoice::boxesOfTwoMiddlewaresHaveNothingToDoWithEachOther()
{
    const unsigned int here = openNew("box");
    const unsigned int there = openNew("box", "watched:1");
    const unsigned int elsewhere = openNew("box", "watched:2");
    QCOMPARE(Tavrix::PostEvent("", "K", {"there"}, "watched:1"), 0);
    QCOMPARE(Tavrix::PostEvent("", "K", {"here"}), 0);
    QCOMPARE(received(here), "here");
    QCOMPARE(received(there), "there");
    QCOMPARE(received(elsewhere), "2000");
    for (const unsigned int port : {here, there, elsewhere}) {
        QCOMPARE(Tavrix::DisconnectPort(port), 0);
    }
}

void tst_MiddlewareChoice::aPortKnowsItsMiddleware()
{
    const unsigned int port = openNew("box", "watched:1");
    Tavrix::PostEvent("box", "K", {"x"}, "watched:1");
    QCOMPARE(received(port), "x");
    QCOMPARE(Tavrix::DisconnectPort(port), 0);
    QCOMPARE(Tavrix::DisconnectPort(port), 2001);
    QCOMPARE(received(port), "2001");
    unsigned int again = 0;
    QCOMPARE(Tavrix::ConnectPortForRecv("box", again, "watched:1"), 2001);
}

void tst_MiddlewareChoice::aPortIsNotOpenAtAnotherAddress()
{
    const unsigned int port = openNew("box", "watched:1");
    Tavrix::PostEvent("box", "K", {"x"}, "watched:1");
    QCOMPARE(received(port, "watched:2"), "2001");
    QCOMPARE(received(port, "watched:1"), "x");
    QCOMPARE(Tavrix::DisconnectPort(port), 0);
}

void tst_MiddlewareChoice::portsOfTwoMiddlewaresHaveDifferentNumbers()
{
    std::vector<unsigned int> ports{openNew("box"), openNew("box", "watched:1"),
                                    openNew("box", "watched:2")};
    std::sort(ports.begin(), ports.end());
    QVERIFY(std::adjacent_find(ports.begin(), ports.end()) == ports.end());
    for (const unsigned int port : ports) {
        QCOMPARE(Tavrix::DisconnectPort(port), 0);
    }
}

void tst_MiddlewareChoice::theDomainReachesTheFactory()
{
    const unsigned int port = openNew("box", "watched:1", "north");
    QVERIFY(made.count({"watched:1", "north"}) == 1);
    Tavrix::PostEvent("box", "K", {"north"}, "watched:1", "north");
    Tavrix::PostEvent("box", "K", {"none"}, "watched:1");
    QCOMPARE(received(port), "north");
    QCOMPARE(received(port), "2000");
    QCOMPARE(Tavrix::DisconnectPort(port), 0);

    QCOMPARE(Tavrix::ChooseMiddleware("watched:1"), 0);
    QCOMPARE(Tavrix::CreateEventBox("box", 1, 1, nullptr, "south"), 0);
    QVERIFY(made.count({"watched:1", "south"}) == 1);
}

void tst_MiddlewareChoice::anAddressIsOneMiddlewareHoweverOftenItIsUsed()
{
    const auto first = watched("watched:once");
    QVERIFY(first);
    QCOMPARE(watched("watched:once"), first);
    QCOMPARE(Tavrix::PostEvent("", "K", {}, "watched:once"), 0);
    QCOMPARE(watched("watched:once"), first);
}

void tst_MiddlewareChoice::aThreadThatEndsIsToldToTheMiddlewaresThatItUsedAndToNoOther()
{
    const auto used = watched("watched:used");
    const auto alsoUsed = watched("watched:also used");
    const auto other = watched("watched:other");
    unsigned int port = 0;
    std::thread([&] {
        openNew("box", "watched:used");
        port = openNew("box", "watched:also used");
        openNew("another", "watched:also used");
        openNew("box");
        Tavrix::PostEvent("box", "K", {"x"}, "watched:other");
    }).join();
    QCOMPARE(used->ownersGone.load(), 1);
    QCOMPARE(alsoUsed->ownersGone.load(), 1);
    QCOMPARE(other->ownersGone.load(), 0);
    QCOMPARE(received(port), "2001");
    QCOMPARE(Tavrix::DisconnectPort(port), 2001);
    for (const char *address : {"watched:used", "watched:also used", ""}) {
        QCOMPARE(Tavrix::ConnectPortForRecv("box", port, address), 2001);
    }
}

void tst_MiddlewareChoice::noAddressIsTheMiddlewareThatTheHostChose()
{
    QCOMPARE(Tavrix::ChooseMiddleware("watched:chosen"), 0);
    QCOMPARE(Tavrix::ConnectMid(nullptr), 0);
    const unsigned int port = openNew("chosen");
    unsigned int same = 0;
    QCOMPARE(Tavrix::ConnectPortForRecv("chosen", same, "watched:chosen"), 0);
    Tavrix::PostEvent("chosen", "K", {"x"});
    QCOMPARE(received(same), "x");

    QCOMPARE(Tavrix::ChooseMiddleware(nullptr), 0);
    unsigned int local = 0;
    QCOMPARE(Tavrix::ConnectPortForRecv("chosen", local), 2001);
    QCOMPARE(Tavrix::DisconnectPort(port), 0);
    QCOMPARE(Tavrix::DisconnectPort(same), 0);
}

void tst_MiddlewareChoice::portsStayWithTheirMiddlewareWhenTheHostChoosesAnother()
{
    const unsigned int port = openNew("box");
    Tavrix::PostEvent("box", "K", {"before"});
    QCOMPARE(Tavrix::ChooseMiddleware("watched:chosen"), 0);
    Tavrix::PostEvent("box", "K", {"after"});
    QCOMPARE(received(port), "before");
    QCOMPARE(received(port), "2000");
    QCOMPARE(Tavrix::DisconnectPort(port), 0);
}

void tst_MiddlewareChoice::anUnknownChoiceIsRefusedAndTheOldOneStays()
{
    QCOMPARE(Tavrix::ChooseMiddleware("watched:chosen"), 0);
    QCOMPARE(Tavrix::ChooseMiddleware("broker:1"), 2005);
    QCOMPARE(Tavrix::ChooseMiddleware(nullptr, "domain"), 2005);
    QCOMPARE(Tavrix::ChooseMiddleware(QByteArray("watched:" + QByteArray(248, 'x')).constData()),
             2005);
    const unsigned int port = openNew("still");
    unsigned int same = 0;
    QCOMPARE(Tavrix::ConnectPortForRecv("still", same, "watched:chosen"), 0);
    Tavrix::DisconnectPort(same);
    Tavrix::DisconnectPort(port);
}

void tst_MiddlewareChoice::aMiddlewareThatDoesNotAnswerIsUnavailable()
{
    const auto backend = watched("watched:away");
    backend->isReachable = false;
    QCOMPARE(Tavrix::ConnectMid("watched:away"), 2005);
    QCOMPARE(Tavrix::ChooseMiddleware("watched:away"), 0);
    QCOMPARE(Tavrix::ConnectMid(nullptr), 2005);
    backend->isReachable = true;
    QCOMPARE(Tavrix::ConnectMid(nullptr), 0);
}

void tst_MiddlewareChoice::aFactoryThatKnowsNoSuchAddressIsAskedAgain()
{
    refused = 0;
    QCOMPARE(Tavrix::ConnectMid("watched:nonsense"), 2005);
    QCOMPARE(Tavrix::PostEvent("box", "K", {}, "watched:nonsense"), 2005);
    QCOMPARE(refused, 2);
}

void tst_MiddlewareChoice::aSchemeIsRegisteredOnce()
{
    QCOMPARE(Tavrix::RegisterMiddleware("watched", &makeWatched), 2003);
    QCOMPARE(Tavrix::RegisterMiddleware("", &makeWatched), 2003);
    QCOMPARE(Tavrix::RegisterMiddleware(nullptr, &makeWatched), 2003);
    QCOMPARE(Tavrix::RegisterMiddleware("with:colon", &makeWatched), 2003);
    QCOMPARE(Tavrix::RegisterMiddleware(QByteArray(256, 'x').constData(), &makeWatched), 2003);
    QCOMPARE(Tavrix::RegisterMiddleware("none", {}), 2003);
    QCOMPARE(Tavrix::ConnectMid("none"), 2005);
}

QTEST_APPLESS_MAIN(tst_MiddlewareChoice)
#include "tst_middlewarechoice.moc"
