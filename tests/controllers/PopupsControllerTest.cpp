#include "controllers/PopupsController.h"
#include "entity/EnrollEntities.h"
#include "platform/link/PipeClientService.h"
#include "platform/link/PipeSendEvent.h"
#include "support/FakeService.h"

#include <QtTest>
#include <gtest/gtest.h>
#include <thread>

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
        bool eventFilter(QObject* watched, QEvent* event) override {
            seen += watched == qApp && event->type() == PipeSendEvent::eventType();
            return false;
        }
        int seen = 0;
    } watcher;
    QCoreApplication::instance()->installEventFilter(&watcher);

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
