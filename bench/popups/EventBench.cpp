// What an event of another program's window costs that is no window's showing, as nearly all are not, beside
// a callback that does nothing (aim: 20 ns more at most).
#include "platform/system/windows/ShownWindows.h"
#include "support/PairedRun.h"

#include <chrono>

namespace {

void CALLBACK DoNothing(HWINEVENTHOOK, DWORD, HWND, LONG, LONG, DWORD, DWORD) {}

double NanosecondsOf(WINEVENTPROC callback) {
    constexpr int count = 10'000'000;
    const WINEVENTPROC volatile called = callback; // so that no call is left out
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < count; ++i)
        called(nullptr, EVENT_OBJECT_LOCATIONCHANGE, nullptr, OBJID_CURSOR, CHILDID_SELF, 0, 0);
    const std::chrono::duration<double, std::nano> time = std::chrono::steady_clock::now() - start;
    return time.count() / count;
}

} // namespace

int main() {
    PrintHeading();
    PrintRow(Compare(
        {"an event that is no showing", "ns"}, 15, [] { return NanosecondsOf(ShownWindows::OnEvent); },
        [] { return NanosecondsOf(DoNothing); }));
    return 0;
}
