// Every event in every state: what the page is asked, and which state follows.
#include "enroll/EnrollStateMachine.h"
#include "enroll/EnrollPage.h"
#include "platform/application/UsbDetector.h"
#include "platform/link/PipeClientService.h"

#include <gtest/gtest.h>
#include <map>

namespace {

/// Remembers what it is asked, and answers as it is told to.
struct FakePage : EnrollPage {
    bool InvokeBinding() override { return Note("bind"); }
    bool InvokeEnrollComplete(const std::string& body) override { return Note("bound " + body); }
    bool InvokeUnEnrollComplete(const std::string& body, bool requested) override {
        return Note((requested ? "unbound " : "noticed ") + body);
    }
    bool InvokeAutoEnroll(const std::string& body) override { return Note("auto " + body); }
    void InvokeBindingUI() override { Note("BindingUI"); }
    void InvokeNoBindUI() override { Note("NoBindUI"); }
    void InvokeDisConnectedUI() override { Note("DisConnectedUI"); }
    void InvokeConnected() override { Note("unbind?"); }
    void InvokeDisConnected() override { Note("connect?"); }
    void InvokeDeviceNameChanged(const std::string& body) override { Note("name " + body); }
    void InvokeDeviceTagsChanged(const std::string& body) override { Note("tags " + body); }
    void InvokeAdminAccountChanged(const std::string& body) override { Note("account " + body); }
    void InvokeUsbArrived(const QString& drive, bool mayEnroll) override {
        Note("arrived " + drive.toStdString() + (mayEnroll ? " may" : ""));
    }
    void InvokeUsbRemoved(const QString& drive) override { Note("removed " + drive.toStdString()); }
    void InvokeWindowHided() override { Note("hidden"); }

    bool Note(const std::string& what) {
        asked += asked.empty() ? what : ", " + what;
        return answer;
    }
    std::string asked;
    bool answer = true;
};

struct NoDrives : SystemDrives {
    QVector<SystemDrive> Drives() const override { return {}; }
    std::unique_ptr<Watch> WatchDrives(std::function<void()>) const override { return nullptr; }
};

enum State { NoEnrollYet, Enrolling, UnEnrolling, Connected, DisConnected, Connecting, Last };

const EnrollStateBase& StateOf(int state) {
    static const EnrollStateBase* const states[] = {
        &EnrollStates::NoEnrollYet(), &EnrollStates::Enrolling(),    &EnrollStates::UnEnrolling(),
        &EnrollStates::Connected(),   &EnrollStates::DisConnected(), &EnrollStates::Connecting()};
    return *states[state];
}

struct Outcome {
    std::string asked = {};
    int next = Last; ///< Last: the state stays
};

struct Machine : testing::Test {
    /// The event in every state and with both answers of the page; states without an outcome do nothing.
    void Expect(const std::string& event, const std::function<void()>& tell,
                const std::map<int, Outcome>& onTrue, const std::map<int, Outcome>& onFalse) {
        for (const bool answer : {true, false})
            for (int state = 0; state < Last; ++state) {
                SCOPED_TRACE(event + " in " + std::to_string(state) + (answer ? "" : " refused"));
                machine.SetState(StateOf(state));
                page.asked.clear();
                page.answer = answer;
                tell();
                const auto& outcomes = answer ? onTrue : onFalse;
                const auto found = outcomes.find(state);
                const Outcome outcome = found == outcomes.end() ? Outcome() : found->second;
                EXPECT_EQ(page.asked, outcome.asked);
                EXPECT_EQ(&machine.State(), &StateOf(outcome.next == Last ? state : outcome.next));
            }
    }
    void Expect(const std::string& event, const std::function<void()>& tell,
                const std::map<int, Outcome>& outcomes) {
        Expect(event, tell, outcomes, outcomes);
    }

    FakePage page;
    const NoDrives drives{};
    UsbDetector detector{drives, nullptr};
    EnrollStateMachine machine{page, detector};
};

TEST_F(Machine, AnswersEveryEventInEveryState) {
    Expect("bind", [&] { machine.BindPressed(); }, {{NoEnrollYet, {"bind", Enrolling}}},
           {{NoEnrollYet, {"bind"}}});
    Expect("reconnect", [&] { machine.ReconnectPressed(); }, {{DisConnected, {"connect?"}}});
    Expect("unbind", [&] { machine.UnbindPressed(); }, {{Connected, {"unbind?"}}});
    Expect("enter", [&] { machine.Enter(); },
           {{NoEnrollYet, {"NoBindUI"}},
            {Connected, {"BindingUI"}},
            {DisConnected, {"DisConnectedUI"}},
            {Connecting, {"DisConnectedUI"}}});
    Expect("hidden", [&] { machine.PageHidden(); }, {{NoEnrollYet, {"hidden"}}});
    Expect(
        "arrived", [&] { emit detector.UsbArrived(QStringLiteral("E:/")); },
        {{NoEnrollYet, {"arrived E:/ may"}}, {Connected, {"arrived E:/"}}, {DisConnected, {"arrived E:/"}}});
    std::map<int, Outcome> everywhere;
    for (int state = 0; state < Last; ++state)
        everywhere[state] = {"removed E:/"};
    Expect(
        "removed", [&] { emit detector.UsbRemoved(QStringLiteral("E:/")); }, everywhere);
}

TEST_F(Machine, FollowsTheServicesMessages) {
    for (int key = -1; key <= 12; ++key) {
        if (key == 2)
            continue;
        std::map<int, Outcome> onTrue, onFalse;
        if (key == 3) {
            onTrue = {{Enrolling, {"bound b, BindingUI", Connected}},
                      {UnEnrolling, {"unbound b, NoBindUI", NoEnrollYet}}};
            onFalse = {{Enrolling, {"bound b", NoEnrollYet}}, {UnEnrolling, {"unbound b", Connected}}};
        } else if (key == 4) {
            onTrue = {{Connected, {"noticed b", NoEnrollYet}}};
            onFalse = {{Connected, {"noticed b"}}};
        } else if (key >= 5 && key <= 7) {
            const char* const asked[] = {"name b", "tags b", "account b"};
            onTrue = onFalse = {{Connected, {asked[key - 5]}}};
        } else if (key == 9) {
            onTrue = onFalse = {{NoEnrollYet, {"auto b"}}};
        }
        Expect(
            "key " + std::to_string(key),
            [&] { PipeClientService::Instance()->Deliver(static_cast<PipeKey>(key), "b"); }, onTrue, onFalse);
    }
    const std::map<int, Outcome> entered{{0, {"NoBindUI", NoEnrollYet}},
                                         {2, {"BindingUI", Connected}},
                                         {4, {"DisConnectedUI", DisConnected}},
                                         {5, {"DisConnectedUI", Connecting}}};
    for (int status = 0; status <= 6; ++status) {
        std::map<int, Outcome> outcomes;
        if (const auto found = entered.find(status); found != entered.end())
            for (int state = 0; state < Last; ++state)
                outcomes[state] = found->second;
        const std::string body = "{\"status\": " + std::to_string(status) + "}";
        Expect(
            "status " + body, [&] { PipeClientService::Instance()->Deliver(PipeKey::IotStatusNotify, body); },
            outcomes);
    }
}

} // namespace
