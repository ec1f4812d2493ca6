// Who may change a file, as its access list tells, and the folders that an installer makes.
#include "platform/system/windows/AccessList.h"
#include "platform/system/windows/AccessRights.h"
#include "platform/system/windows/setup/SharedFolders.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
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

TEST(WindowsRights, AFolderThatIsThereIsTakenOverWithoutWhatOthersMayHaveConfigured) {
    const QTemporaryDir temp;
    QDir folder(temp.filePath(QStringLiteral("Velmora RYX")));
    const auto make = [&] { return MakeSharedFolders(folder.path().toStdWString()); };
    const auto write = [&](const char* name) {
        EXPECT_TRUE(QFile(folder.filePath(QLatin1String(name))).open(QIODevice::WriteOnly));
    };
    const auto trusted = [&] { return FileRights::Of(folder.path().toStdWString()).WhyNotTrusted().empty(); };
    EXPECT_TRUE(make() && trusted() && QDir(folder.filePath(QStringLiteral("log"))).removeRecursively());
    write("ryx.json");
    write("log"); // where a folder belongs
    EXPECT_TRUE(make() && trusted() && folder.exists(QStringLiteral("ryx.json")));
    write("log/1-User.log");
    const auto everybody = MakeAccessList(L"D:P(A;OICI;FA;;;WD)");
    EXPECT_TRUE(folder.remove(QStringLiteral("ryx.json")) && folder.mkpath(QStringLiteral("ryx.json/x")));
    SetFileSecurityW(folder.path().toStdWString().c_str(), DACL_SECURITY_INFORMATION, everybody.get());
    EXPECT_FALSE(trusted());
    EXPECT_TRUE(make() && trusted() && folder.exists(QStringLiteral("log/1-User.log")));
    EXPECT_FALSE(folder.exists(QStringLiteral("ryx.json")));
}
