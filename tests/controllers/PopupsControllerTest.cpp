#include "controllers/PopupsController.h"
#include "entity/EnrollEntities.h"
#include "platform/link/PipeClientService.h"
#include "platform/link/PipeSendEvent.h"
#include "support/FakeService.h"

#include <QThread>
#include <QtTest>
#include <gtest/gtest.h>

TEST(PopupsController, SendsWhatOtherThreadsPostAndLetsOthersWatch) {
    FakeService service;
    PipeClientService link;
    PopupsController controller;
    controller.SetService(&link);
    link.SetServer(service.Address());
    link.Start();
    ASSERT_TRUE(service.WaitForClient());
    ASSERT_TRUE(QTest::qWaitFor([&] { return link.IsConnected(); }));

    struct Watcher : QObject {
        bool eventFilter(QObject*, QEvent* event) override {
            seen += event->type() == PipeSendEvent::eventType();
            return false;
        }
        int seen = 0;
    } watcher;
    PopupsController later; // a filter installed after another is asked before it
    QCoreApplication::instance()->installEventFilter(&watcher);

    IotStatusEntity entity;
    entity.status = 4;
    const std::unique_ptr<QThread> thread(QThread::create([entity]() mutable {
        QCoreApplication::postEvent(QCoreApplication::instance(),
                                    new PipeSendEvent(PipeKey::PopupDetected, entity));
    }));
    thread->start();
    const FrameDecoder::Frame frame = service.Receive();
    EXPECT_EQ(frame.key, PipeKey::PopupDetected);
    EXPECT_EQ(frame.body, entity.WriteToString());
    EXPECT_EQ(watcher.seen, 1);
    thread->wait();
}
