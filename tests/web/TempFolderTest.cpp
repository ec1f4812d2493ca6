#include "platform/context/AppConfigData.h"
#include "platform/context/RyxPath.h"

TEST(TempFolder, WhatIsADayOldGoesAndTheRestStays) {
    const QTemporaryDir folder;
    AppConfigData::Instance()->dataFolder = folder.path().toStdString();
    EXPECT_EQ(QDir(QString::fromStdWString(RyxPath::GetRyxLogDir())),
              QDir(folder.filePath(QStringLiteral("log"))))
        << "nobody has made one for all users, nor does the front end";
    const QDir temp(QString::fromStdWString(RyxPath::GetRyxTempDir()));
    ASSERT_EQ(temp.entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
    for (const int hours : {0, 23, 25, 1000}) {
        QFile file(temp.filePath(QString::number(hours)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.setFileTime(QDateTime::currentDateTime().addSecs(-3600 * hours),
                         QFileDevice::FileModificationTime);
    }
    RyxPath::RemoveOldTempFiles();
    QThreadPool::globalInstance()->waitForDone();
    EXPECT_EQ(temp.entryList(QDir::Files, QDir::Name),
              (QStringList{QStringLiteral("0"), QStringLiteral("23")}));
    const auto others = QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;
    if (QDir::separator() == QLatin1Char('/')) { // on Windows the user's folder is closed already
        EXPECT_FALSE(QFile::permissions(temp.path()) & others);
    }
    AppConfigData::Instance()->dataFolder.clear();
}
