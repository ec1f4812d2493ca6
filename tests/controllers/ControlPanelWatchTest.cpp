#include "controllers/ControlPanelWatch.h"
#include "support/LogCapture.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>

namespace {

constexpr ProcessIdentity ControlPanel{7, 70};

/// The desktop as a row of letters, the highest window first. Folder windows: C and D are the Control
/// Panel's, c is C hidden, k is C cloaked, F is another Explorer's. Other windows have the facts that the
/// test changes.
struct ScriptedDesktop : SystemDesktop, SystemProcesses {
    std::vector<WId> Windows() const {
        std::vector<WId> windows;
        for (const char letter : row)
            windows.push_back(static_cast<WId>(letter == 'c' || letter == 'k' ? 'C' : letter));
        return windows;
    }
    WId NextWindow(const char* className, WId after) const override {
        EXPECT_STREQ(className, "CabinetWClass");
        const std::vector<WId> all = Windows();
        const auto next = after == 0 ? all.begin() : std::find(all.begin(), all.end(), after) + 1;
        return next == all.end() ? 0 : *next;
    }
    std::optional<std::vector<WId>> TopLevelWindows() const override {
        return canList ? std::optional(Windows()) : std::nullopt;
    }
    quint32 LastError() const override { return 99; }
    quint32 ProcessOf(WId window) const override { return window == 'F' ? 8 : ControlPanel.id; }
    bool IsOwnRoot(WId) const override { return Ask("root") && facts.at("root"); }
    Style GetWindowStyle(WId) const override {
        Ask("style");
        return {!facts.at("child"), !facts.at("disabled")};
    }
    ExStyle GetWindowExStyle(WId) const override { return {!facts.at("activation"), !facts.at("tool")}; }
    bool IsDesktopOrShell(WId) const override { return Ask("desktop") && !facts.at("desktop"); }
    std::string ClassOf(WId) const override {
        return Ask("class") && facts.at("class") ? "CabinetWClass" : "WorkerW";
    }
    std::optional<QRect> GetWindowGeometry(WId) const override {
        Ask("size");
        return !facts.at("readable")
                   ? std::nullopt
                   : std::optional(facts.at("size") ? QRect(9, 9, 0, 5) : QRect(9, 9, 0, 0));
    }
    bool IsCloaked(WId) const override { return Ask("cloaked") && (row == "k" || !facts.at("cloaked")); }
    bool IsVisible(WId) const override { return Ask("visible") && row != "c" && facts.at("visible"); }

    ProcessIdentity Identify(quint32) const override { return alive; }
    Terminated Terminate(const ProcessIdentity& process) const override {
        EXPECT_EQ(process, ControlPanel);
        ++terminations;
        return result;
    }

    bool Ask(const char* fact) const {
        asked += std::string(fact) + ' ';
        return true;
    }

    std::string row;
    bool canList = true;
    std::map<std::string, bool> facts{{"root", true},       {"child", true},    {"disabled", true},
                                      {"activation", true}, {"tool", true},     {"desktop", true},
                                      {"class", true},      {"readable", true}, {"size", true},
                                      {"cloaked", true},    {"visible", true}};
    ProcessIdentity alive = ControlPanel;
    Terminated result{Ending::Done};
    mutable int terminations = 0;
    mutable std::string asked;
};

struct ControlPanelWatchTest : testing::Test {
    void Pass(const std::string& row) {
        desktop.row = row;
        watch.Pass();
    }
    LogCapture log;
    ScriptedDesktop desktop;
    ControlPanelWatch watch{desktop, desktop};
};

TEST_F(ControlPanelWatchTest, EndsTheProcessOnceWhenAWindowThatWasSeenIsNoLongerThere) {
    struct Case {
        std::vector<const char*> passes;
        int endsIn; ///< index of the pass that ends the process; -1: none does
    };
    for (const Case& c : std::vector<Case>{{{"C", "C", "", ""}, 2},
                                           {{"FC", "CF", "F", "F"}, 2},
                                           {{"C", "c"}, 1},
                                           {{"C", "k"}, 1},
                                           {{"", "c", "k", "", "C", ""}, 5},
                                           {{"CD", "D", "FD", "F"}, 3},
                                           {{"F", "", "F"}, -1}}) {
        watch.SetProcess(ControlPanel);
        desktop.terminations = 0;
        for (int i = 0; i < static_cast<int>(c.passes.size()); ++i) {
            Pass(c.passes[static_cast<std::size_t>(i)]);
            EXPECT_EQ(desktop.terminations, c.endsIn >= 0 && i >= c.endsIn) << c.passes.front() << ' ' << i;
        }
        EXPECT_EQ(watch.HasProcess(), c.endsIn < 0);
    }
    EXPECT_EQ(log.Count("m_destroy is:1\n"), 6);
    EXPECT_EQ(log.Count("DestroyThread pid7\n"), 6);
}

TEST_F(ControlPanelWatchTest, AWindowIsRealByFactsAskedInOrderAndNoFurtherThanNeeded) {
    const std::string all = "root style desktop class size cloaked visible ";
    for (const auto& [fact, lastAsked] : std::map<std::string, std::string>{{"root", "root"},
                                                                            {"child", "style"},
                                                                            {"disabled", "style"},
                                                                            {"activation", "style"},
                                                                            {"tool", "style"},
                                                                            {"desktop", "desktop"},
                                                                            {"class", "class"},
                                                                            {"readable", "size"},
                                                                            {"size", "size"},
                                                                            {"cloaked", "cloaked"},
                                                                            {"visible", "visible"},
                                                                            {"", "visible"}}) {
        const auto facts = desktop.facts;
        if (!fact.empty())
            desktop.facts[fact] = false;
        watch.SetProcess(ControlPanel);
        desktop.asked.clear();
        desktop.terminations = 0;
        Pass("C");
        EXPECT_EQ(desktop.asked, all.substr(0, all.find(lastAsked) + lastAsked.size() + 1)) << fact;
        desktop.facts = facts;
        Pass("");
        EXPECT_EQ(desktop.terminations, fact.empty()) << fact;
    }
    EXPECT_EQ(log.Count("Get Window Frame Rect Info Call Error, Error Code: {}99\n"), 1);
}

TEST_F(ControlPanelWatchTest, WhatFailsIsLoggedOnceAndChangesNothing) {
    using Ending = SystemProcesses::Ending;
    watch.SetProcess(ControlPanel);
    Pass("C");
    desktop.canList = false;
    Pass("C");
    Pass("");
    EXPECT_EQ(log.Count("Enum Window Error, Error Code:{}99\n"), 1);
    EXPECT_EQ(desktop.terminations, 0);
    desktop.canList = true;
    for (const Ending ending : {Ending::NotOpened, Ending::NotTerminated}) {
        desktop.result = {ending, 5};
        Pass("");
        Pass("");
    }
    EXPECT_EQ(desktop.terminations, 4);
    for (const char* line : {"m_destroy is:1\n", "Open Process Failed5\n", "TerminateProcess Failed5\n"})
        EXPECT_EQ(log.Count(line), 1) << line;

    watch.Rearm();
    Pass("");
    Pass("");
    EXPECT_EQ(log.Count("m_destroy is:0\n"), 1);
    EXPECT_EQ(desktop.terminations, 4) << "the window has to be seen again";
    Pass("C");
    desktop.alive = {ControlPanel.id, 71}; // the number has gone to another process
    Pass("");
    EXPECT_EQ(desktop.terminations, 4);
    EXPECT_FALSE(watch.HasProcess());
}

} // namespace
