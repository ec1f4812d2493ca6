// The link against a service in the same process, over a real pipe.
#include "entity/EnrollEntities.h"
#include "platform/link/ControllerBase.h"
#include "platform/link/PipeClientService.h"
#include "platform/link/PipeEventWatcher.h"
#include "platform/link/PipeReceiveEvent.h"
#include "platform/link/PipeTrust.h"
#include "support/FakeService.h"
#include "support/LogCapture.h"

#include <QSignalSpy>
#include <QtTest>
#include <gtest/gtest.h>

namespace {

template <class Condition>
bool Wait(Condition condition) {
    return QTest::qWaitFor(condition, 10000);
}

using Messages = std::vector<std::pair<int, std::string>>;

class RecordingController : public ControllerBase {
public:
    void OnConnectChanged(bool connected) override { changes.push_back(connected); }
    void OnPipeDataReceived(PipeKey key, const std::string& body) override {
        messages.emplace_back(static_cast<int>(key), body);
        if (act)
            act();
    }
    Messages messages;
    std::vector<bool> changes;
    std::function<void()> act;
};

/// Reads every body as a status, as a real receiver does.
class StatusReader : public QObject {
public:
    void OnPipeDataReceived(PipeKey, const std::string& body) {
        IotStatusEntity status;
        status.ReadFromString(body);
        read.push_back(status.status);
    }
    std::vector<int> read;
};

class PipeLink : public testing::Test {
protected:
    void SetUp() override {
        controller.SetService(&link);
        link.SetServer(service.Address());
        link.Start();
        ASSERT_TRUE(service.WaitForClient());
        ASSERT_TRUE(Wait([this] { return controller.changes.size() == 1; }));
    }
    bool WaitForMessages(std::size_t count) {
        return Wait([&] { return controller.messages.size() >= count; });
    }

    LogCapture log;
    FakeService service;
    PipeClientService link;
    RecordingController controller;
};

} // namespace

TEST_F(PipeLink, EveryWayOfReceivingSeesEveryMessageInOrder) {
    Messages bySignal;
    Messages byEvent;
    QObject watcherParent;
    QObject::connect(
        &link, &PipeClientService::DataReceived, &watcherParent,
        [&](PipeKey key, const std::string& body) { bySignal.emplace_back(static_cast<int>(key), body); });
    PipeEventWatcher watcher(&watcherParent, [&](PipeKey key, const std::string& body) {
        EXPECT_EQ(bySignal.size(), byEvent.size() + 1) << "the event comes after the signal";
        byEvent.emplace_back(static_cast<int>(key), body);
    });

    std::string stream; // merged frames, zero-length bodies and a partial frame at the end
    Messages sent;
    for (int i = 0; i < 1000; ++i) {
        sent.emplace_back(i, std::string(static_cast<std::size_t>(i % 7), 'b'));
        stream += RyxPackage::PackageData(static_cast<PipeKey>(i), sent.back().second);
    }
    service.Write(stream.substr(0, stream.size() - 5));
    ASSERT_TRUE(WaitForMessages(999));
    EXPECT_EQ(controller.messages.size(), 999u);
    service.Write(stream.substr(stream.size() - 5));
    ASSERT_TRUE(WaitForMessages(1000));
    EXPECT_EQ(controller.messages, sent);
    EXPECT_EQ(bySignal, sent);
    EXPECT_EQ(byEvent, sent);
}

TEST_F(PipeLink, SendsInEveryFormAndTellsTheTruth) {
    IotStatusEntity entity;
    entity.status = 5;
    EXPECT_TRUE(link.Send(PipeKey::ContextRequest));
    EXPECT_TRUE(link.Send(PipeKey::DisconnectWifi, std::string("Gäste")));
    EXPECT_TRUE(link.Send(PipeKey::IotStatusNotify, entity));
    EXPECT_TRUE(link.Send(RyxPackage::PackageData(PipeKey::LocationSetting, "{}")));
    EXPECT_TRUE(controller.Send(PipeKey::ScreenUnlock));
    EXPECT_FALSE(link.Send(std::string("no frame")));
    EXPECT_FALSE(link.Send(PipeKey::Binding, std::string(RyxPackage::MaxBodySize + 1, 'x')));

    const Messages expected{{0, ""}, {74, "Gäste"}, {2, entity.WriteToString()}, {76, "{}"}, {35, ""}};
    for (const auto& [key, body] : expected) {
        const FrameDecoder::Frame frame = service.Receive();
        EXPECT_EQ(static_cast<int>(frame.key), key);
        EXPECT_EQ(frame.body, body);
    }

    service.Drop();
    ASSERT_TRUE(Wait([this] { return controller.changes.size() == 2; }));
    EXPECT_FALSE(link.IsConnected());
    EXPECT_FALSE(link.Send(PipeKey::ContextRequest));
    RecordingController without;
    EXPECT_FALSE(without.Send(PipeKey::ContextRequest));
}

TEST_F(PipeLink, ReconnectsAfterADropInsideAFrame) {
    // In one write, so that when the whole one is there the cut one is, too: on Windows a server that drops
    // the pipe takes back what has not been read.
    service.Write(RyxPackage::PackageData(PipeKey::ContextReply, "whole") +
                  RyxPackage::PackageData(PipeKey::ContextReply, "cut off").substr(0, 12));
    ASSERT_TRUE(WaitForMessages(1));
    service.Drop();
    ASSERT_TRUE(Wait([this] { return controller.changes.size() == 3 && service.IsConnected(); }));
    EXPECT_EQ(controller.changes, (std::vector<bool>{true, false, true}));
    EXPECT_EQ(log.Count("inside a frame: 12 bytes of it had arrived"), 1);

    service.Send(PipeKey::ContextReply, "again"); // the cut frame must not swallow it
    ASSERT_TRUE(WaitForMessages(2));
    EXPECT_EQ(controller.messages, (Messages{{1, "whole"}, {1, "again"}}));
}

TEST_F(PipeLink, AFrameAboveTheLimitEndsTheConnection) {
    service.Send(PipeKey::ContextReply, "before");
    service.Write(std::string("\xff\xff\xff\x7f\x01\0\0\0garbage", 15));
    ASSERT_TRUE(Wait([this] { return service.Connections() == 2; }));
    EXPECT_EQ(log.Count("a frame claims 2147483647 bytes"), 1);
    EXPECT_EQ(controller.messages, (Messages{{1, "before"}}));
}

TEST_F(PipeLink, AReceiverThatThrowsIsLoggedAndKeepsNothingFromTheNext) {
    StatusReader first;
    StatusReader second;
    link.Subscribe(&first, &StatusReader::OnPipeDataReceived);
    link.Subscribe(&second, &StatusReader::OnPipeDataReceived);
    std::vector<int> byEvent;
    PipeEventWatcher thrower(&first, [](PipeKey, const std::string&) { throw std::runtime_error("filter"); });
    PipeEventWatcher next(&second,
                          [&](PipeKey key, const std::string&) { byEvent.push_back(static_cast<int>(key)); });
    controller.act = [] { throw 5; };
    RecordingController last;
    last.SetService(&link);

    service.Send(PipeKey::IotStatusNotify, R"({"status": {"a": 1}})");
    service.Send(PipeKey::IotStatusNotify, R"({"status": 4})");
    ASSERT_TRUE(Wait([&] { return byEvent.size() == 2; }));
    EXPECT_EQ(last.messages.size(), 2u);
    EXPECT_EQ(first.read, std::vector<int>{4});
    EXPECT_EQ(second.read, std::vector<int>{4});
    EXPECT_EQ(log.Count("key 2 (IotStatusNotify) refused by QObject: Value is not convertible to Int."), 2);
    EXPECT_EQ(log.Count("refused by QObject: filter"), 2);
    EXPECT_EQ(log.Count("refused by ControllerBase: unknown exception"), 2);
}

TEST_F(PipeLink, AFloodIsHeldBackLoggedAndDeliveredWhole) {
    const std::string body(RyxPackage::MaxBodySize, 'f');
    const int count = 5; // 80 MiB, well beyond what may wait
    bool entered = false;
    controller.act = [&] {
        if (std::exchange(entered, true))
            return;
        // A receiver that does not return to the event loop while everything else is sent.
        for (int i = 1; i < count; ++i)
            service.Send(static_cast<PipeKey>(i), body);
        EXPECT_TRUE(
            service.WriteUntil([&] { return log.Count("sends faster than messages are handled") == 1; }));
    };
    service.Send(static_cast<PipeKey>(0), body);
    ASSERT_TRUE(WaitForMessages(count));
    for (int i = 0; i < count; ++i) {
        EXPECT_EQ(controller.messages[static_cast<std::size_t>(i)].first, i);
        EXPECT_EQ(controller.messages[static_cast<std::size_t>(i)].second.size(), body.size());
    }
}

TEST_F(PipeLink, MessagesArriveInADialogThatAReceiverOpensAndKeepTheirOrderForAll) {
    bool entered = false;
    controller.act = [&] {
        if (std::exchange(entered, true))
            return;
        EXPECT_TRUE(WaitForMessages(3)) << "an event loop of the receiver's own";
    };
    RecordingController next;
    next.SetService(&link);
    struct Recorder : QObject {
        void OnPipeDataReceived(PipeKey key, const std::string& body) {
            messages.emplace_back(static_cast<int>(key), body);
        }
        Messages messages;
    } subscriber;
    link.Subscribe(&subscriber, &Recorder::OnPipeDataReceived);
    Messages byEvent;
    PipeEventWatcher watcher(&subscriber, [&](PipeKey key, const std::string& body) {
        byEvent.emplace_back(static_cast<int>(key), body);
    });
    service.Write(RyxPackage::PackageData(PipeKey::ContextReply, "1") +
                  RyxPackage::PackageData(PipeKey::ContextReply, "2") +
                  RyxPackage::PackageData(PipeKey::ContextReply, "3"));
    ASSERT_TRUE(Wait([&] { return byEvent.size() == 3; }));
    const Messages inOrder{{1, "1"}, {1, "2"}, {1, "3"}};
    EXPECT_EQ(controller.messages, inOrder);
    EXPECT_EQ(next.messages, inOrder);
    EXPECT_EQ(subscriber.messages, inOrder);
    EXPECT_EQ(byEvent, inOrder);
}

TEST_F(PipeLink, WhatLiesInTheSocketAtADropComesBeforeIt) {
    // The GUI thread is busy until the service has gone, so that reading has paused with frames left.
    const std::string body(RyxPackage::MaxBodySize, 'f');
    std::vector<std::size_t> arrivedAtChange;
    QObject::connect(&link, &PipeClientService::ConnectChanged,
                     [&] { arrivedAtChange.push_back(controller.messages.size()); });
    bool entered = false;
    controller.act = [&] {
        if (std::exchange(entered, true))
            return;
        for (int i = 0; i < 2; ++i)
            service.Send(PipeKey::ContextReply, body);
        for (int i = 0; i < 100; ++i)
            service.Send(PipeKey::ContextReply, "small");
        EXPECT_TRUE(service.WriteUntil([&] { return service.BytesToWrite() == 0; }));
        service.Drop();
        link.Send(PipeKey::ContextRequest); // to a service that has gone
    };
    service.Send(PipeKey::ContextReply, "first");
    ASSERT_TRUE(Wait([&] { return !arrivedAtChange.empty(); }));
    EXPECT_EQ(arrivedAtChange.front(), 103u);
}

TEST_F(PipeLink, AReceiverThatThrowsAtAChangeOfTheLinkIsLoggedToo) {
    struct Thrower : ControllerBase {
        void OnConnectChanged(bool) override { throw std::runtime_error("no"); }
    } thrower;
    thrower.SetService(&link);
    RecordingController last;
    last.SetService(&link);
    service.Drop();
    ASSERT_TRUE(Wait([&] { return last.changes.size() == 2; }));
    EXPECT_EQ(log.Count("disconnected refused by ControllerBase: no"), 1);
    EXPECT_EQ(log.Count("connected refused by ControllerBase: no"), 2);
}

TEST_F(PipeLink, AServiceThatStopsReadingIsNotFedForEver) {
    service.StopReading();
    const std::string body(RyxPackage::MaxBodySize, 'x');
    int sent = 0;
    while (sent < 10 && link.Send(PipeKey::Binding, body))
        ++sent;
    EXPECT_GE(sent, 2);
    EXPECT_LT(sent, 10);
}

TEST(PipeServerCheck, AnImpostorGetsNoByte) {
    struct Impostor : SystemPipe {
        qintptr Open(const QString& name, const Accepts& accepts) const override {
            return Native().Open(name, [&](PipePeer server) {
                server.owner = QStringLiteral("mallory");
                return accepts(server);
            });
        }
        QString AccountId(const QString& account) const override { return Native().AccountId(account); }
        QStringList SystemAccounts() const override { return Native().SystemAccounts(); }
        QStringList OwnAccounts() const override { return Native().OwnAccounts(); }
        QString CurrentAccount() const override { return Native().CurrentAccount(); }
    } impostor;
    LogCapture log;
    FakeService service;
    PipeClientService link(impostor);
    RecordingController controller;
    controller.SetService(&link);
    link.SetServer(service.Address());
    link.Start();
    ASSERT_TRUE(Wait([&] { return service.Connections() >= 2; })) << "it is tried again";
    EXPECT_FALSE(link.IsConnected());
    EXPECT_FALSE(link.Send(PipeKey::ContextRequest));
    EXPECT_TRUE(controller.changes.empty());
    EXPECT_EQ(service.ReceivedBytes(), 0u);
    EXPECT_EQ(log.Count(": it belongs to mallory; trusted: "), 1);
}

TEST(PipeServerCheck, TheOwnerDecidesAndTheProcessMustAgree) {
    const QStringList trusted{QStringLiteral("system"), QStringLiteral("administrators"),
                              QStringLiteral("agent")};
    constexpr const char* Hidden = nullptr; // whose process the caller may not look into
    const struct {
        const char* owner;
        const char* accounts;
        bool inSystemSession;
        const char* refusal;
    } cases[] = {
        {"system", Hidden, true, ""},
        {"administrators", Hidden, true, ""},
        {"administrators", "alice administrators", false, ""},
        {"agent", "agent", false, ""},
        {"administrators", "agent", true, ""}, // a child with fewer rights
        {"", Hidden, true, "nobody knows whom it belongs to"},
        {"mallory", Hidden, true, "it belongs to mallory"},
        {"mallory", "system", true, "it belongs to mallory"}, // whose process has a number used again
        {"system", "mallory users", false, "its process runs as mallory, users"}, // serves beside the service
        {"system", Hidden, false, "its process hides its account, in the session of a user"},
        {"agent", "mallory", true, "its process runs as mallory"},
    };
    for (const auto& row : cases) {
        PipePeer server{1, QLatin1String(row.owner), row.inSystemSession, std::nullopt};
        if (row.accounts)
            server.accounts = QString::fromLatin1(row.accounts).split(QLatin1Char(' '));
        EXPECT_EQ(PipeTrust::Refusal(server, trusted), QLatin1String(row.refusal)) << row.owner;
    }
}
