#include "platform/files/ZipUtility.h"

#include <QDirIterator>
#include <future>
#include <map>
#include <zip.h>

namespace {

struct Zip : testing::Test {
    void Write(const QString& name, const QByteArray& content,
               QIODevice::OpenMode mode = QIODevice::WriteOnly) const {
        const QString path = folder.filePath(QStringLiteral("logs/") + name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(mode));
        file.write(content);
    }
    bool Pack(const TaskControl& control = {}) const {
        const auto path = [this](const QString& name) { return folder.filePath(name).toStdWString(); };
        return std::async(std::launch::async,
                          [&] {
                              return ZipUtility::CreateZipFromDir(path(QStringLiteral("logs")), path(archive),
                                                                  control);
                          })
            .get();
    }
    std::map<QString, QByteArray> Entries() const {
        std::map<QString, QByteArray> entries;
        zip_t* zip = zip_open(folder.filePath(archive).toUtf8().constData(), ZIP_CHECKCONS, nullptr);
        for (zip_int64_t i = 0; zip && i < zip_get_num_entries(zip, 0); ++i) {
            QByteArray content(1000, '\0');
            zip_file_t* file = zip_fopen_index(zip, static_cast<zip_uint64_t>(i), 0);
            content.truncate(static_cast<int>(zip_fread(file, content.data(), 1000)));
            zip_fclose(file);
            entries[QString::fromUtf8(zip_get_name(zip, static_cast<zip_uint64_t>(i), ZIP_FL_ENC_GUESS))] =
                content;
        }
        if (zip)
            zip_discard(zip);
        return entries;
    }
    QStringList Left() const { return QDir(folder.path()).entryList(QDir::Files); }

    const QTemporaryDir folder;
    const QString archive = QStringLiteral("日誌.zip");
};

TEST_F(Zip, PacksWhatWasThereWhenItBegan) {
    std::map<QString, QByteArray> files = {{QStringLiteral("1-User.log"), "first"},
                                           {QStringLiteral("Ünter/日誌.log"), "second"},
                                           {QStringLiteral("Ünter/tief/leer.log"), ""},
                                           {QStringLiteral("y.log"), "will be cut"},
                                           {QStringLiteral("z.log"), "last"}};
    for (const auto& [name, content] : files)
        Write(name, content);
    // Somebody else's log; root reads it all the same.
    Write(QStringLiteral("closed.log"), "");
    QFile closed(folder.filePath(QStringLiteral("logs/closed.log")));
    closed.setPermissions({});
    if (closed.open(QIODevice::ReadOnly))
        files[QStringLiteral("closed.log")] = "";
    QFile::link(folder.filePath(QStringLiteral("logs/z.log")),
                folder.filePath(QStringLiteral("logs/link.lnk")));
    QFile::link(folder.path(), folder.filePath(QStringLiteral("logs/up.lnk")));

    TaskControl control;
    std::int64_t done = 0;
    control.onProgress = [&](std::int64_t now, std::int64_t total) {
        if (done == 0) { // the log goes on, its oldest file goes, and another begins anew
            Write(QStringLiteral("y.log"), "new");
            Write(QStringLiteral("z.log"), " line", QIODevice::Append);
            EXPECT_TRUE(QFile::remove(folder.filePath(QStringLiteral("logs/Ünter/日誌.log"))));
        }
        done = now;
        EXPECT_EQ(total, 26);
    };
    EXPECT_TRUE(Pack(control));
    EXPECT_EQ(done, 18);
    files[QStringLiteral("y.log")] = "new";
    EXPECT_EQ(Entries(), files);
    EXPECT_EQ(Left(), QStringList{archive});
}

TEST_F(Zip, AFailureLeavesWhatWasThereBefore) {
    EXPECT_FALSE(Pack()) << "a folder that is not there";
    QDir(folder.path()).mkpath(QStringLiteral("logs/empty"));
    EXPECT_FALSE(Pack()) << "a folder without files";
    EXPECT_EQ(Left(), QStringList());

    Write(QStringLiteral("a.log"), "before");
    ASSERT_TRUE(Pack());
    Write(QStringLiteral("a.log"), QByteArray(1000000, 'a'));
    TaskControl control;
    control.onProgress = [&](std::int64_t, std::int64_t) { control.cancellation.Cancel(); };
    EXPECT_FALSE(Pack(control));
    EXPECT_EQ(Left(), QStringList{archive});
    EXPECT_EQ(Entries().begin()->second, "before");
}

} // namespace
