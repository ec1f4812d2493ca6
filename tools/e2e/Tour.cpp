// Plays the tour: a person's minute with the product, seen and done under a virtual X server.
//
//   ryx-tour FOLDER SCENARIO     writes a picture of each step to FOLDER; ends with 0 when every step was
//   seen
#include "LockScreen.h"
#include "MainPage.h"

#include <QCoreApplication>
#include <QDir>
#include <cstdio>
#include <functional>
#include <stdexcept>

namespace {

class Tour {
public:
    Tour(const QDir& folder, RunningProduct& product) : m_folder(folder), m_product(product) {}

    /// Tells whether the step was seen; after one that was not, the later ones are not tried.
    void Step(const char* what, const std::function<bool()>& isSeen, const char* picture = nullptr) {
        if (!m_allSeen)
            return;
        m_allSeen = isSeen();
        std::printf("%-8s %s\n", m_allSeen ? "seen" : "NOT SEEN", what);
        if (picture || !m_allSeen)
            SavePicture(picture ? picture : "not-seen.png");
        std::fflush(stdout);
    }
    bool AllSeen() const { return m_allSeen; }

private:
    void SavePicture(const char* name) {
        const QString path = m_folder.filePath(QLatin1String(name));
        const bool saved = m_product.Screen().Screenshot().save(path);
        m_allSeen = m_allSeen && saved;
        std::printf("         %s %s\n", saved ? "picture:" : "CANNOT WRITE", qPrintable(path));
    }

    QDir m_folder;
    RunningProduct& m_product;
    bool m_allSeen = true;
};

bool Play(const QDir& folder, const std::string& scenario) {
    Desktop screen(qgetenv(Steering::Display).toStdString());
    RunningProduct product(screen);
    const MainPage mainPage(product);
    LockScreen lock(product);
    Tour tour(folder, product);
    product.Configure("organisation", QLatin1String("Lakeside School"));

    tour.Step("The agent service listens", [&] { return product.StartAgent({"--scenario", scenario}); });
    tour.Step("The front end shows its window", [&] {
        product.StartFrontEnd();
        return screen.WaitForWindow(MainPage::Title);
    });
    tour.Step("The link is up: the front end asks the service for its context and for updates", [&] {
        return product.AgentSays("received 0 ContextRequest") &&
               product.AgentSays("received 12 OtaVersionInfo");
    });
    tour.Step("The header shows that the device is connecting",
              [&] { return mainPage.WaitForStatus(MainPage::Connecting); });
    tour.Step(
        "The header shows that the device is connected",
        [&] { return mainPage.WaitForStatus(MainPage::Connected); }, "1-window.png");
    tour.Step(
        "The service locks the screen: the lock covers everything and tells why",
        [&] { return product.AgentSays("was sent 33 ScreenLock") && lock.Wait(); }, "2-lock.png");
    tour.Step("A press of its button shows the six boxes", [&] { return lock.OpenPasswordBoxes(); });
    tour.Step(
        "Five digits are typed, and the sixth box waits",
        [&] {
            const auto first = lock.FocusedBox();
            screen.Type("12345");
            return WaitUntil([&] { return lock.FocusedBox() > first.value() + 300; });
        },
        "3-password.png");
    tour.Step("The sixth digit is typed: the service is told that the screen is unlocked", [&] {
        screen.Type("6");
        return product.AgentSays("received 35 ScreenUnlock");
    });
    tour.Step(
        "The desktop is back",
        [&] { return lock.WaitUntilGone() && mainPage.WaitForStatus(MainPage::Connected); }, "4-desktop.png");
    tour.Step("The service has seen all that its scenario expects", [&] {
        WaitUntil([&] { return !product.Agent().IsRunning(); });
        return product.Agent().Result() == 0;
    });
    if (!tour.AllSeen())
        std::printf("%s", product.Story().c_str());
    return tour.AllSeen();
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    if (argc != 3) {
        std::fprintf(stderr, "usage: ryx-tour FOLDER SCENARIO\n");
        return 2;
    }
    try {
        const QDir folder(QString::fromLocal8Bit(argv[1]));
        folder.mkpath(QStringLiteral("."));
        return Play(folder, argv[2]) ? 0 : 1;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
