// Who may change a file, as its access list tells.
#include "platform/system/windows/AccessList.h"
#include "platform/system/windows/AccessRights.h"

#include <gtest/gtest.h>

TEST(WindowsRights, TellWhoElseMayChangeAFile) {
    const std::pair<const wchar_t*, const char*> cases[] = {
        {L"O:SYD:P(A;;FA;;;SY)(A;;FA;;;BA)(A;;0x1200A9;;;BU)(A;;FA;;;OW)", ""},
        {L"O:BAD:(A;;FA;;;BA)(A;OICIIO;FA;;;CO)(A;;FR;;;WD)", ""},
        {L"O:BUD:(A;;FA;;;SY)", "belongs to S-1-5-32-545"},
        {L"O:SYD:(A;;0x1200A9;;;BU)(A;CI;0x116;;;BU)", "may be changed by S-1-5-32-545"}, // as in ProgramData
        {L"O:SYD:(A;;WD;;;AU)", "may be changed by S-1-5-11"},
        {L"O:SYD:(D;;FA;;;AU)(A;;SD;;;AU)", "may be changed by S-1-5-11"},
        {L"O:SY", "may be changed by everybody"}};
    for (const auto& [text, why] : cases) {
        const auto list = MakeAccessList(text);
        ASSERT_TRUE(list);
        EXPECT_EQ(RightsIn(list.get()).WhyNotTrusted(), why) << QString::fromWCharArray(text).toStdString();
    }
}
