// The check of the network over one that the test makes up: each fault is found where it is.
#include "app/MainWindow.h"
#include "app/Pages.h"
#include "app/UMenu.h"
#include "gallery/Scenes.h"
#include "gallery/ScriptedProbe.h"
#include "pages/NetworkCheck.h"
#include "pages/UBodyNetwork.h"
#include "platform/context/AppConfigData.h"
#include "platform/context/AppContextData.h"
#include "platform/context/LanguageHelper.h"

#include <QClipboard>
#include <QLabel>
#include <QPushButton>
#include <QtTest>
#include <gtest/gtest.h>

namespace {

using Connection = NetworkProbe::Connection;

struct NetworkPage : testing::Test {
    NetworkPage() { LanguageHelper::Instance()->SetLanguage(QStringLiteral("en")); }

    /// A letter for each step, "+", "x" or "-" for one that was not checked, and the sentence of the failed
    /// one.
    std::string Story() {
        std::string story;
        QString words;
        for (const NetworkResult& result : check.Results()) {
            story += "._+x-"[static_cast<int>(result.state)];
            if (result.state == NetworkState::Failed && words.isEmpty())
                words = Page()
                            .findChildren<QLabel*>(QStringLiteral("networkStepSentence"))
                            .value(int(story.size()) - 1)
                            ->text();
        }
        return story + ' ' + words.toStdString();
    }
    std::string Finish() {
        EXPECT_TRUE(WaitFor([this] { return !check.IsRunning(); }));
        return Story();
    }
    UBodyNetwork& Page() { return *stage.Window().findChild<UBodyNetwork*>(); }
    std::string Verdict() {
        return Page().findChild<QLabel*>(QStringLiteral("networkVerdict"))->text().toStdString();
    }
    void Fire(const char* timer) {
        QMetaObject::invokeMethod(check.findChild<QTimer*>(QLatin1String(timer)), "timeout");
    }

    Stage stage{true};
    NetworkCheck& check = *NetworkCheck::OfApplication();
};

TEST_F(NetworkPage, NamesTheStepAtFaultAndChecksNothingBehindItButThePipe) {
    const QString server = QStringLiteral("device.school.example");
    const auto useProxy = [](ScriptedProbe& probe) {
        probe.proxy = QNetworkProxy(QNetworkProxy::HttpProxy, QStringLiteral("proxy"), 3128);
    };
    struct Case {
        const char* story;
        std::function<void(ScriptedProbe&)> spoil;
        const char* servers = "https://device.school.example/api";
    };
    const Case cases[] = {
        {"++++++++++ ", [](ScriptedProbe&) {}},
        {"x--------+ No network adapter is connected.", [](ScriptedProbe& probe) { probe.adapters.clear(); }},
        {"+x-------+ The network has given this device no address.",
         [](ScriptedProbe& probe) { probe.adapters[0].addresses.clear(); }},
        {"++x------+ No way out of this network is known.",
         [](ScriptedProbe& probe) { probe.gateways.clear(); }},
        {"+++x-----+ The proxy proxy:3128 does not answer.",
         [&](ScriptedProbe& probe) {
             useProxy(probe);
             probe.connections[QStringLiteral("proxy")] = Connection::Refused;
         }},
        {"++++++++++ ",
         [&](ScriptedProbe& probe) {
             useProxy(probe);
             probe.addresses.clear();
         }},
        {"+++++++x-+ The proxy does not let this device through to device.school.example:443.",
         [&](ScriptedProbe& probe) {
             useProxy(probe);
             probe.connections[server] = Connection::Silent;
         }},
        {"++++x----+ The name device.school.example could not be found.",
         [](ScriptedProbe& probe) { probe.addresses.clear(); }},
        {"+++++x---+ This network wants you to sign in first, at portal.",
         [](ScriptedProbe& probe) {
             probe.plain.redirect = QUrl(QStringLiteral("http://portal/"));
             probe.encrypted = {};
         }},
        {"++++++++++ ",
         [](ScriptedProbe& probe) {
             probe.plain.redirect = QUrl(QStringLiteral("https://www.school.example/"));
         }},
        {"+++++x---+ This network wants you to sign in first, at device.school.example.",
         [](ScriptedProbe& probe) {
             probe.encrypted.distrust = QStringLiteral("of login.cafe.example");
             probe.encrypted.isForOther = true;
         }},
        {"++++++-x-+ device.school.example:443 does not answer.",
         [](ScriptedProbe& probe) {
             probe.encrypted = {};
             probe.encrypted.isTls = true;
         }},
        {"++++++x--+ The clock of this device is off by 3 hours from the server’s.",
         [](ScriptedProbe& probe) { probe.now = probe.now.addSecs(-3 * 3600); }},
        {"++++++-x-+ device.school.example:443 refuses connections.",
         [&](ScriptedProbe& probe) {
             probe.encrypted = {};
             probe.connections[server] = Connection::Refused;
         }},
        {"++++++++x+ device.school.example could not prove who it is: self-signed",
         [](ScriptedProbe& probe) { probe.encrypted.distrust = QStringLiteral("self-signed"); }},
        {"+++------+ ", [](ScriptedProbe&) {}, ""},
        {"+++------+ ", [](ScriptedProbe&) {}, "ftp://device.school.example"},
        {"++++++-+-+ ", [](ScriptedProbe&) {}, "http://192.0.2.9:8080"},
    };
    for (const Case& row : cases) {
        stage.Network() = ScriptedProbe();
        row.spoil(stage.Network());
        AppConfigData::Instance()->webServer = row.servers;
        stage.Window().OpenNetworkPage();
        EXPECT_EQ(Finish(), row.story);
    }
}

TEST_F(NetworkPage, EachServerIsCheckedAndTheServiceIsTheOnlyOneToSayConnected) {
    AppConfigData& config = *AppConfigData::Instance();
    config.networkServers = {"https://second.example:8443"};
    stage.Receive(2, R"({"status": 2})");
    stage.Window().OpenNetworkPage();
    EXPECT_EQ(Finish(), "++++++++++++ ");
    EXPECT_EQ(Verdict(), "The check found nothing in the way. What the service says of the link to the "
                         "organisation: “Connected”.");
    stage.Network().connections[QStringLiteral("second.example")] = Connection::Silent;
    check.Start();
    EXPECT_EQ(Finish(), "+++++++++x-+ second.example:8443 does not answer.");
    config.networkServers.clear();
    EXPECT_NE(Verdict().find("failed at “Server”"), std::string::npos);
    EXPECT_NE(Verdict().find("“Connected”"), std::string::npos);

    AppContextData::Instance()->SetLinked(false); // nothing else is asked again
    EXPECT_EQ(Story(), "+++++++++x-x second.example:8443 does not answer.");
    EXPECT_EQ(Verdict().find("“Connected”"), std::string::npos) << Verdict();
    Page().findChild<QPushButton*>(QStringLiteral("textCopy"))->click();
    const std::string report = QGuiApplication::clipboard()->text().toStdString();
    EXPECT_NE(report.find("[Failed] Server: second.example:8443 does not answer."), std::string::npos)
        << report;
    EXPECT_NE(report.find("tell IT desk of the school"), std::string::npos) << report;
}

TEST_F(NetworkPage, AStepThatHangsEndsAfterItsTimeOrWhenTheUserWantsIt) {
    stage.Network().hangs = true;
    stage.Window().OpenNetworkPage();
    ASSERT_TRUE(WaitFor([this] { return Story() == "++++_..... "; }));
    Fire("networkStepTimer");
    EXPECT_EQ(Finish(), "++++x----+ There was no result within five seconds.");
    auto& button = *Page().findChild<QPushButton*>(QStringLiteral("networkStart"));
    button.click();
    ASSERT_TRUE(WaitFor([this] { return Story() == "++++_..... "; }));
    button.click();
    EXPECT_EQ(Story(), "++++------ ");
    EXPECT_EQ(Verdict(), "The check was cancelled.");
}

TEST_F(NetworkPage, AnAdapterThatChangesBeginsTheCheckAnewWhileThePageIsOpen) {
    stage.Window().OpenNetworkPage();
    Finish();
    int changes = 0;
    QObject::connect(&check, &NetworkCheck::Changed, &check, [&changes] { ++changes; });
    auto& watcher = *check.findChild<QFutureWatcherBase*>(QStringLiteral("networkAdapterLook"));
    const auto lookAndWait = [&] {
        Fire("networkAdapterTimer");
        EXPECT_TRUE(WaitFor([&] { return !watcher.isRunning(); }));
        Settle();
        return Finish();
    };
    lookAndWait();
    lookAndWait();
    EXPECT_EQ(changes, 0);
    stage.Network().adapters.clear();
    EXPECT_EQ(lookAndWait(), "x--------+ No network adapter is connected.");
    stage.Window().findChild<UMenu*>()->SwitchTo(PageIndex(PageId::Settings));
    EXPECT_FALSE(check.findChild<QTimer*>(QStringLiteral("networkAdapterTimer"))->isActive());
}

} // namespace
