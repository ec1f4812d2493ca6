// A person points at a window of another program and reports it.
#include "ColorArea.h"
#include "EndToEndFixture.h"
#include "PopupsPage.h"

namespace {

const QRect Place(800, 250, 300, 200); // within the main window

class PopupPickerEndToEndTest : public EndToEndTest {
protected:
    /// With a web service that stores, or does wrong as told.
    bool StartWithStore(const std::string& fault) {
        const std::string store = product.Folder() + "/store";
        if (!product.StartAgent({"--web", "0", "--web-folder", product.PathForPrograms(store)}))
            return false;
        const std::string said = product.Agent().Output();
        const auto address = said.find("http://");
        product.Configure("webServer",
                          QString::fromStdString(said.substr(address, said.find(',', address) - address)));
        product.Configure("enrolled", true);
        product.Tell("bodies on");
        product.Tell("web upload " + fault);
        product.StartFrontEnd();
        return mainPage.WaitForStatus(MainPage::Connected);
    }
    QStringList TemporaryFiles() {
        return QDir(QString::fromStdString(product.Folder() + "/data/temp"))
            .entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    }

    PopupsPage page{product};
};

TEST_F(PopupPickerEndToEndTest, ReportsAWindowWithItsPicturesOrWithout) {
    for (const char* fault : {"ok", "500"}) {
        SCOPED_TRACE(fault);
        ASSERT_TRUE(StartWithStore(fault));
        foreign.emplace_back(product, "Offer of the day", Place);
        ASSERT_TRUE(screen->WaitForWindow("Offer of the day"));
        if (!product.HasLauncher()) { // Wine gives the mask no focus before it is clicked
            ASSERT_TRUE(page.OpenPicker());
            screen->Press("Escape");
            ASSERT_TRUE(WaitUntil([&] { return !page.IsPicking() && screen->Find(MainPage::Title); }));
        }
        ASSERT_TRUE(page.OpenPicker());
        screen->Click(Place.center());
        ASSERT_TRUE(page.Report());
        EXPECT_TRUE(product.WaitForLog("Hited window: , hwnd: 0x"));
        EXPECT_TRUE(
            product.AgentSays(std::string(fault) == "ok" ? "\"popFileKey\" : \"1" : "\"popFileKey\" : \"\""));
        EXPECT_EQ(TemporaryFiles(), QStringList());
        foreign.clear();
        product.FrontEnd().Kill();
        product.Agent().Kill();
    }
}

TEST_F(PopupPickerEndToEndTest, SurvivesAWindowThatVanishes) {
    ASSERT_TRUE(StartBoth());
    foreign.emplace_back(product, "Offer of the day", Place);
    ASSERT_TRUE(screen->WaitForWindow("Offer of the day"));
    ASSERT_TRUE(page.OpenPicker());
    screen->Click(Place.center());
    EXPECT_TRUE(WaitUntil([this] { return page.OffersReport(); }));
    foreign.clear(); // what was picked goes
    ASSERT_TRUE(page.Report());
    EXPECT_TRUE(product.AgentSays("PopupBlockResult"));
    EXPECT_TRUE(WaitUntil([this] { return TemporaryFiles().isEmpty(); }));
    product.Tell("send ScreenLock {}");
    EXPECT_TRUE(lock.Wait());
}

TEST_F(PopupPickerEndToEndTest, TakesThePictureOfACoveredWindowAndReplacesNoFile) {
    if (product.HasLauncher())
        GTEST_SKIP() << "the window has another number for the programs";
    ASSERT_TRUE(StartBoth());
    const unsigned long below = screen->ShowWindow("Below", Place, false);
    ASSERT_TRUE(screen->WaitForWindow("Below"));
    screen->Activate(screen->Find(MainPage::Title).value());
    ASSERT_TRUE(WaitUntil([] { return screen->TopmostTitle() == MainPage::Title; }));
    const QString path = QString::fromStdString(product.Folder() + "/picture.png");
    const auto capture = [&](unsigned long window) {
        ChildProcess program;
        product.Start(program, {"RYX_E2E_CAPTURE", "ryx-capture"},
                      {std::to_string(window), path.toStdString()});
        WaitUntil([&] { return program.Result().has_value(); });
        return program.Result().value_or(-1);
    };
    EXPECT_EQ(capture(below), 0);
    EXPECT_EQ(FindColor(QImage(path), QColor(Qt::magenta)).pixels, Place.width() * Place.height());
    EXPECT_EQ(capture(below), 4);
    QFile::remove(path);
    screen->DestroyWindow(below);
    EXPECT_EQ(capture(below), 2);
    EXPECT_FALSE(QFile::exists(path));
}

} // namespace
