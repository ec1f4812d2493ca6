#include "controllers/PopupsController.h"
#include "entity/EnrollEntities.h"
#include "platform/link/PipeClientService.h"
#include "platform/link/PipeSendEvent.h"
#include "support/FakeService.h"

#include <QDir>
#include <QtTest>
#include <future>
#include <gtest/gtest.h>
#include <list>
#include <thread>

namespace {

enum : WId { Plain = 1, Foreign, Invisible, Disabled, Child, Unreadable, Hanging };

/// Windows of one program, but for Foreign. What is done to them is told in the order in which the
/// application object hears of it.
struct FakeSystem : SystemDesktop, SystemProcesses, SystemPrograms {
    void Tell(const std::string& event) const {
        QMetaObject::invokeMethod(
            qApp, [this, event] { story += event + ' '; }, Qt::QueuedConnection);
    }
    Watch WatchShown(const std::function<void(WId)>& callback) const override {
        shown = callback;
        ++watches;
        return &watches;
    }
    void EndWatch(Watch watch) const override {
        EXPECT_EQ(watch, &watches);
        shown = nullptr;
    }
    void Close(WId window) const override {
        Tell("close" + std::to_string(window));
        if (window == Hanging)
            answer.wait();
    }
    void RequestClose(WId window) const override { Tell("request" + std::to_string(window)); }
    quint32 ProcessOf(WId window) const override { return static_cast<quint32>(window); }
    Style GetWindowStyle(WId window) const override { return {window == Child, false}; }
    QString GetWindowClassName(WId) const override { return QStringLiteral("Klasse"); }
    QString GetWindowTitle(WId) const override { return QString::fromUtf8("GEWONNEN Ä"); }
    bool IsVisible(WId window) const override { return window != Invisible; }
    bool IsEnabled(WId window) const override { return window != Disabled; }
    QString GetProcessFilePath(quint32 process) const override {
        if (process == Unreadable)
            return {};
        return process == Foreign ? QStringLiteral("/opt/foreign") : QStringLiteral("/opt/spiel/Spiel.exe");
    }
    QString GetProductName(const QString& file) const override {
        EXPECT_EQ(file, QStringLiteral("/opt/spiel/Spiel.exe"));
        EXPECT_NE(QThread::currentThread(), qApp->thread());
        Tell("read");
        return QStringLiteral("Produkt");
    }

    mutable std::function<void(WId)> shown;
    mutable int watches = 0;
    mutable std::string story;
    std::promise<void> release;
    std::shared_future<void> answer = release.get_future().share();
};

struct FixedClock : Clock {
    QDateTime Now() const override { return QDateTime::fromMSecsSinceEpoch(1700000000123); }
};

class Popups : public testing::Test, public QObject {
protected:
    Popups() {
        controller.SetService(&link);
        qApp->installEventFilter(this);
    }
    ~Popups() override { link.Deliver(PipeKey::DeviceUnenrolled, ""); } // or the next test has the rules

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == qApp && event->type() == PipeSendEvent::eventType()) {
            last.ReadFromString(static_cast<PipeSendEvent*>(event)->Data());
            system.story += last.popSignName + ' ';
        }
        return false;
    }
    /// A policy with rules that match the program's windows but for the product, and that differ in their
    /// signers.
    void Sync(bool hasOne, bool enable, const std::vector<std::pair<std::string, std::string>>& rules) {
        SyncPopupsParams policy;
        policy.popStatus = true;
        policy.hasOne = hasOne;
        policy.enable = enable;
        for (const auto& [signer, product] : rules) {
            PopupsTypeParams rule;
            rule.appName = "sPIEL.exe";
            rule.popClassName = "KLASSE";
            rule.popName = "gewonnen ä";
            rule.popProductName = product;
            rule.popSignName = signer;
            rule.popDirectory = "elsewhere";
            policy.popupsDetails.push_back(rule);
        }
        link.Deliver(PipeKey::PopupPolicy, policy.WriteToString());
    }
    /// What comes of a window that is shown.
    void Expect(WId window, const std::string& story) {
        system.shown(window);
        EXPECT_TRUE(QTest::qWaitFor([&] { return system.story.size() >= story.size(); }));
        EXPECT_EQ(std::exchange(system.story, {}), story);
    }
    int Count(const char* event) const { return QByteArray::fromStdString(system.story).count(event); }

    // Threads may know them for longer than the test lasts.
    inline static std::list<FakeSystem> systems;
    inline static const FixedClock clock;
    FakeSystem& system = systems.emplace_back();
    UploadPopupsParams last; // reported
    PipeClientService link;
    PopupsController controller{system, system, system, clock};
};

TEST_F(Popups, AreReportedAndClosedByTheFirstRuleOfTheListInForce) {
    link.Deliver(PipeKey::DeviceUnenrolled, "");
    Sync(true, true, {}); // a change without an element
    ASSERT_TRUE(system.shown);
    Sync(false, false, {{"W", "other"}, {"A", "pRODUKT"}, {"B", "Produkt"}});
    EXPECT_EQ(system.watches, 1) << "hooked once";
    for (const WId window : {Foreign, Invisible, Disabled, Child, Unreadable})
        system.shown(window);
    Expect(Plain, "read A close1 ");
    EXPECT_EQ(last.type, 1);
    EXPECT_EQ(last.popProductName, "pRODUKT");
    EXPECT_EQ(
        last.popDirectory,
        QDir::toNativeSeparators(QFileInfo(QStringLiteral("/opt/spiel")).absoluteFilePath()).toStdString());
    EXPECT_EQ(last.updateTime, 1700000000123);
    EXPECT_EQ(last.popFileKey + last.appFileKey, "");

    Sync(true, true, {{"C", "PRODUKT"}, {"D", "PRODUKT"}}); // in A's place, at the end
    Expect(Plain, "B close1 ");
    Sync(true, false, {{"", "produkt"}});
    Sync(true, false, {{"", "unknown"}});
    link.Deliver(PipeKey::PopupPolicy, R"({"popStatus": []})"); // of the wrong type
    Expect(Plain, "C close1 ");
}

TEST_F(Popups, AreLeftAloneOnceBlockingIsOff) {
    const auto off = [this](PipeKey key, const char* body) {
        Sync(false, false, {{"A", "produkt"}});
        const auto late = system.shown;
        link.Deliver(key, body);
        EXPECT_FALSE(system.shown) << body;
        late(Plain); // on its way already
    };
    off(PipeKey::PopupPolicy, R"({"popStatus": false, "hasOne": true})");
    off(PipeKey::PopupPolicy, "not JSON");
    off(PipeKey::DeviceUnenrolled, "");
    Sync(true, true, {{"B", "produkt"}});
    EXPECT_EQ(system.watches, 4);
    Expect(Plain, "read B close1 ");
}

TEST_F(Popups, ThatDoNotAnswerHoldNobodyUp) {
    Sync(false, false, {{"A", "produkt"}});
    for (int i = 0; i < 40; ++i)
        system.shown(Hanging);
    system.shown(Plain);
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return Count("close7") + Count("request7") == 40 && Count("request1") == 1; }));
    EXPECT_EQ(Count("close7"), 32);
    EXPECT_EQ(Count("A "), 41);
    system.release.set_value();
    for (int i = 0; i < 1000; ++i)
        system.shown(Plain);
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return Count("A ") == 1041 && Count("close1") + Count("request1") == 1001; }));
}

} // namespace

TEST(PopupsController, SendsWhatOtherThreadsPostAndLetsOthersWatch) {
    struct Watcher : QObject {
        bool eventFilter(QObject* watched, QEvent* event) override {
            seen += watched == qApp && event->type() == PipeSendEvent::eventType();
            return false;
        }
        int seen = 0;
    } watcher;
    QCoreApplication::instance()->installEventFilter(
        &watcher); // before the controller: filters work the last one first
    FakeService service;
    PipeClientService link;
    PopupsController controller;
    controller.SetService(&link);
    link.SetServer(service.Address());
    link.Start();
    ASSERT_TRUE(service.WaitForClient());
    ASSERT_TRUE(QTest::qWaitFor([&] { return link.IsConnected(); }));

    IotStatusEntity entity;
    entity.status = 4;
    // Posted to another object it is none of the controller's business.
    QObject other;
    PipeSendEvent elsewhere(PipeKey::Binding, entity);
    QCoreApplication::sendEvent(&other, &elsewhere);
    std::thread thread([entity]() mutable {
        QCoreApplication::postEvent(QCoreApplication::instance(),
                                    new PipeSendEvent(PipeKey::PopupDetected, entity));
    });
    const FrameDecoder::Frame frame = service.Receive();
    EXPECT_EQ(frame.key, PipeKey::PopupDetected);
    EXPECT_EQ(frame.body, entity.WriteToString());
    EXPECT_EQ(watcher.seen, 1);
    thread.join();
}
