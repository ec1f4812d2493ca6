// How long a pop-up is there before it is asked to close, beside a program that looks at the desktop every
// 250 ms; whether a thousand at once are all reported; and what ten thousand rules cost beside ten.
#include "PopupProgram.h"
#include "RunningProduct.h"
#include "controllers/PopupRules.h"
#include "support/PairedRun.h"

#include <QCoreApplication>
#include <chrono>
#include <cstdio>
#include <stdexcept>
#include <thread>

namespace {

constexpr char Title[] = "Pop-up that closes";
constexpr auto LookEvery = std::chrono::milliseconds(250);

double NanosecondsOfSearch(int count) {
    std::vector<PopupsTypeParams> list(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        list[static_cast<std::size_t>(i)].appName = "program" + std::to_string(i) + ".exe";
        list[static_cast<std::size_t>(i)].popName = "You have won!";
    }
    PopupRules rules;
    rules.Replace(std::move(list));
    constexpr int searches = 100'000;
    const PopupWindow last{
        QStringLiteral("PROGRAM%1.EXE").arg(count - 1), {}, QStringLiteral("You have won!"), {}};
    int found = 0;
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < searches; ++i)
        found += rules.FirstMatch(last).has_value();
    const std::chrono::duration<double, std::nano> time = std::chrono::steady_clock::now() - start;
    if (found != searches)
        throw std::runtime_error("the rule was not found");
    return time.count() / searches;
}

class Bench {
public:
    void Run() {
        PrintHeading();
        PrintRow(Compare(
            {"search in 10,000 rules, and in 10", "ns", 0, 0, 0, 1.5}, 15,
            [] { return NanosecondsOfSearch(10'000); }, [] { return NanosecondsOfSearch(10); }));
        if (!m_product.StartBoth() || !PopupProgram::TellRules(m_product))
            throw std::runtime_error("the product did not start");
        int turn = 0;
        std::chrono::steady_clock::time_point nextLook;
        PrintRow(Compare(
            {"shown to asked to close", "ms", 0, 0, 0, 0.02}, 15,
            [this] {
                Order("popups on");
                return TimeOfOne([] {});
            },
            [&] {
                Order("popups off");
                nextLook =
                    std::chrono::steady_clock::now() + LookEvery * (++turn % 5) / 5; // wherever it stands
                return TimeOfOne([&] {
                    std::this_thread::sleep_until(nextLook);
                    nextLook += LookEvery;
                    if (const auto popup = m_screen.Find(Title))
                        m_screen.Close(*popup);
                });
            }));
        Order("popups on");
        const int before = m_product.AgentLines("pop-up closed");
        m_popups.Tell("closes 1000");
        Await("the thousandth", [&] { return m_product.AgentLines("pop-up closed") >= before + 1000; });
        PrintRow({"reports of 1,000 at once", "", double(m_product.AgentLines("pop-up closed") - before),
                  1000, (m_product.AgentLines("pop-up closed") - before) / 1000.0, 1, true});
    }

private:
    template <class Condition>
    static void Await(const char* what, Condition condition) {
        if (!WaitUntil(condition, std::chrono::seconds(60)))
            throw std::runtime_error(std::string("this did not come: ") + what);
    }

    void Order(const std::string& command) {
        if (!m_product.Order(command))
            throw std::runtime_error("not done: " + command);
    }

    /// Milliseconds for which one pop-up was there, as it says itself.
    double TimeOfOne(const std::function<void()>& meanwhile) {
        const std::size_t before = m_popups.Output().size();
        m_popups.Tell("closes");
        std::size_t asked = std::string::npos;
        Await("the request to close", [&] {
            meanwhile();
            asked = m_popups.Output().find("asked", before);
            return asked != std::string::npos && m_popups.Output().find("closed", asked) != std::string::npos;
        });
        const std::string& said = m_popups.Output();
        return std::stod(said.substr(said.find("after ", asked) + 6));
    }

    Desktop m_screen;
    RunningProduct m_product{m_screen};
    PopupProgram m_popups{m_product};
};

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    try {
        Bench().Run();
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
