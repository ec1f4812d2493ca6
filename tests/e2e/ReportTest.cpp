// A problem that is reported: what arrives at the web service, and what stays behind on the device.
#include "EndToEndFixture.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <chrono>

namespace {

TEST_F(EndToEndTest, AReportArrivesWithTheLogAndAFailedOneLeavesNothingBehind) {
    const std::string store = product.Folder() + "/store";
    ASSERT_TRUE(product.StartAgent({"--web", "0", "--web-folder", product.PathForPrograms(store)}));
    const std::string said = product.Agent().Output();
    const auto address = said.find("http://");
    ASSERT_NE(address, std::string::npos) << said;
    product.Configure("webServer",
                      QString::fromStdString(said.substr(address, said.find(',', address) - address)));
    product.Configure("enrolled", true);
    const auto press = [](const char* key, int times) {
        for (int i = 0; i < times; ++i)
            screen->Press(key);
    };
    const auto openPage = [&] {
        product.StartFrontEnd();
        EXPECT_TRUE(mainPage.WaitForStatus(MainPage::Connected));
        press("Tab", 5);
        press("space", 1);
        press("Tab", 1);
    };
    const auto temporaryFiles = [this] {
        return QDir(QString::fromStdString(product.Folder() + "/data/temp"))
            .entryList(QDir::AllEntries | QDir::NoDotAndDotDot)
            .size();
    };
    if (!product.HasLauncher()) { // a report on its way does not keep the program from ending
        openPage();
        screen->Type("broken");
        press("Tab", 4);
        product.Tell("web upload slow 60");
        press("space", 1);
        ASSERT_TRUE(product.AgentSays("bytes: slow"));
        ::kill(product.FrontEnd().Id(), SIGTERM);
        EXPECT_TRUE(WaitUntil([&] { return product.FrontEnd().Result() == 0; }, std::chrono::seconds(3)));
        EXPECT_EQ(temporaryFiles(), 0);
        product.Tell("web upload ok");
    }
    const std::string attachment = product.Folder() + "/seen.txt";
    QFile seen(QString::fromStdString(attachment));
    ASSERT_TRUE(seen.open(QIODevice::WriteOnly) && seen.write("a black screen") > 0 && seen.flush());
    openPage();
    screen->Type("cut");
    screen->Press("a", {"Control_L"});
    screen->Press("x", {"Control_L"});
    EXPECT_TRUE(WaitUntil([] { return screen->ClipboardText() == "cut"; })) << "for other programs";
    screen->Type("broken");
    press("Tab", 1);
    press("space", 1);
    ASSERT_TRUE(screen->WaitForWindow("Choose attachments"));
    const bool attaches = !product.HasLauncher(); // Wine's own dialog is opened and closed
    if (attaches)
        screen->Type(attachment);
    press(attaches ? "Return" : "Escape", 1);
    EXPECT_TRUE(screen->WaitForNoWindow("Choose attachments"));
    ASSERT_TRUE(!attaches || product.AgentSays("/file/downloadUrl 0 bytes: 200"));
    const QRect page = screen->Find(MainPage::Title)->place;
    screen->Click({page.center().x(), page.top() + 30}); // the window has the keyboard again
    press("Tab", attaches ? 4 : 3);
    product.Tell("web log 500");
    press("space", 1);
    EXPECT_TRUE(product.WaitForLog("UFeedback::ReportLog NotifyDeviceLogUpload failed."));
    EXPECT_EQ(temporaryFiles(), 0);
    product.Tell("web log ok");
    ASSERT_TRUE(WaitUntil([&] { // until the dialog is there, whose first button tries again
        screen->Press("Return");
        return product.AgentLines("web feedback kept") > 0;
    }));
    EXPECT_TRUE(WaitUntil([&] { return temporaryFiles() == 0; }));
    QFile document(QString::fromStdString(store + "/feedback-1.json"));
    ASSERT_TRUE(document.open(QIODevice::ReadOnly));
    const QByteArray sent = document.readAll();
    EXPECT_TRUE(sent.contains("\"content\": \"broken\"") && sent.contains("seen.txt") == attaches)
        << sent.constData();
    const QDir kept(QString::fromStdString(store));
    EXPECT_EQ(kept.entryList({QStringLiteral("*-seen.txt")}).size(), attaches ? 1 : 0)
        << "a retry uploads it once more";
    const QStringList logs = kept.entryList({QStringLiteral("*-RYXLOG-*.zip")});
    EXPECT_GE(logs.size(), 2);
    for (const QString& log : logs) // libzip's own tool tests it
        EXPECT_EQ(QProcess::execute(QStringLiteral("zipcmp"),
                                    {QStringLiteral("-tq"), kept.filePath(log), kept.filePath(log)}),
                  0);
}

} // namespace
