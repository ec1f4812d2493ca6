#include "controllers/MainController.h"
#include "platform/context/AppContextData.h"
#include "platform/link/PipeClientService.h"
#include "support/FakeService.h"
#include "support/LogCapture.h"

#include <QSignalSpy>
#include <QtTest>
#include <gtest/gtest.h>

namespace {

class MainControllerTest : public testing::Test {
protected:
    MainControllerTest() {
        AppContextData::Instance()->Reset();
        controller.SetService(&link);
    }

    LogCapture log;
    PipeClientService link;
    MainController controller;
    AppContextData& context = *AppContextData::Instance();
};

} // namespace

TEST_F(MainControllerTest, EachConnectAsksForContextAndUpdateInTheirOrder) {
    FakeService service;
    link.SetServer(service.Address());
    link.Start();
    for (int connects = 0; connects < 2; ++connects) {
        ASSERT_TRUE(service.WaitForClient());
        EXPECT_EQ(service.Receive().key, PipeKey::ContextRequest);
        EXPECT_EQ(service.Receive().key, PipeKey::OtaVersionInfo);
        EXPECT_TRUE(context.Linked());
        service.Drop();
        ASSERT_TRUE(QTest::qWaitFor([this] { return !context.Linked(); }));
    }
}

TEST_F(MainControllerTest, KeepsWhatTheServicePushes) {
    link.Deliver(PipeKey::ContextReply, "context");
    link.Deliver(PipeKey::UnlockPasswordUpdate, "unlock-hash");
    link.Deliver(PipeKey::UnbindPasswordUpdate, "unbind-hash");
    link.Deliver(PipeKey::UnlockPasswordUpdate, "");
    link.Deliver(PipeKey::UnbindPasswordUpdate, "");
    EXPECT_EQ(context.ContextText(), "context");
    EXPECT_EQ(context.UnlockPassword(), "unlock-hash") << "an empty update keeps the password";
    EXPECT_EQ(context.UnbindPassword(), "unbind-hash");
    EXPECT_EQ(log.Count("MainController::ProcessPasswordUnlock Unlock password update: unlock-hash\n"), 1);
    EXPECT_EQ(log.Count("MainController::ProcessPasswordUnlock Unlock password update: \n"), 1);
    EXPECT_EQ(log.Count("MainController::ProcessPasswordUnbind Unbind password update: unbind-hash\n"), 1);

    link.Deliver(PipeKey::ContextReply, "");
    EXPECT_EQ(context.ContextText(), "") << "an empty context is a context";
}

TEST_F(MainControllerTest, TurnsDeviceMessagesIntoSignals) {
    QSignalSpy statuses(&controller, &ControllerRyx::IotStatusResponse);
    QSignalSpy wakes(&controller, &ControllerRyx::WakeUpServerReponse);
    QSignalSpy networks(&controller, &ControllerRyx::DisconnectWifiSsid);
    QSignalSpy channels(&controller, &ControllerRyx::SwitchChannelStatus);

    link.Deliver(PipeKey::IotStatusNotify, R"({"status": 5})");
    link.Deliver(PipeKey::IotStatusNotify, "not JSON");
    link.Deliver(PipeKey::WakeUpServer, R"({"wakeServerName": "lab", "isOnLine": true, "code": 3})");
    link.Deliver(PipeKey::DisconnectWifi, "Gäste WLAN");
    link.Deliver(PipeKey::SwitchChannel, "whatever");
    link.Deliver(PipeKey::ScreenLock, "{}");

    ASSERT_EQ(statuses.count(), 2);
    EXPECT_EQ(statuses[0][0].value<IotStatusEntity>().status, 5);
    EXPECT_EQ(statuses[1][0].value<IotStatusEntity>().status, 0) << "unreadable text gives the defaults";
    ASSERT_EQ(wakes.count(), 1);
    EXPECT_EQ(wakes[0][0].value<WakeServerInfo>().wakeServerName, "lab");
    ASSERT_EQ(networks.count(), 1);
    EXPECT_EQ(networks[0][0].value<std::string>(), "Gäste WLAN");
    EXPECT_EQ(channels.count(), 1);
}
