#include "platform/files/ZipUtility.h"

#include "platform/security/HashMask.h"
#include "platform/security/LogText.h"
#include "platform/system/SystemSession.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cstring>
#include <glog/logging.h>
#include <vector>
#include <zip.h>

namespace {

constexpr int CompressionLevel = 5; // 6 makes logs 2 % smaller and takes a fifth longer

/// What all files of one archive have in common.
struct Packing {
    const TaskControl& control;
    std::int64_t done = 0;
    std::int64_t total = 0;
};

/// A file that was opened, as long as it was then: it may be renamed, removed and written to meanwhile.
class OpenedFile {
public:
    explicit OpenedFile(const NamedFile& file)
        : m_file(file.path), m_name(file.name), m_masksHashes(file.masksHashes) {
        zip_stat_init(&m_facts);
        zip_error_init(&m_error);
        char probe = 0; // another program may have locked what it has left readable
        m_isReadable =
            SystemSession::Native().OpenShared(m_file) && (m_file.size() == 0 || m_file.getChar(&probe));
        m_size = m_file.size();
        m_facts.mtime = QFileInfo(file.path).lastModified().toSecsSinceEpoch();
        m_facts.valid = ZIP_STAT_MTIME; // a size would have to hold, but the file may be cut meanwhile
    }
    ~OpenedFile() { zip_error_fini(&m_error); }
    Q_DISABLE_COPY(OpenedFile)

    bool IsReadable() const { return m_isReadable; }
    QString Problem() const { return m_file.errorString(); }
    std::int64_t Size() const { return m_size; }

    /// Appends the file to the archive, which then reads from this object until it is closed.
    bool AddTo(zip_t* archive, Packing& packing) {
        m_packing = &packing;
        zip_source_t* source = zip_source_function(archive, &OpenedFile::Serve, this);
        if (!source)
            return false;
        const zip_int64_t index =
            zip_file_add(archive, m_name.toUtf8().constData(), source, ZIP_FL_ENC_UTF_8);
        if (index < 0) {
            zip_source_free(source);
            return false;
        }
        return zip_set_file_compression(archive, static_cast<zip_uint64_t>(index), ZIP_CM_DEFLATE,
                                        CompressionLevel) == 0;
    }

private:
    /// The library's questions to a source.
    static zip_int64_t Serve(void* self, void* data, zip_uint64_t size, zip_source_cmd_t command) {
        return static_cast<OpenedFile*>(self)->Serve(data, size, command);
    }

    zip_int64_t Serve(void* data, zip_uint64_t size, zip_source_cmd_t command) {
        switch (command) {
        case ZIP_SOURCE_OPEN:
            m_mask = HashMask();
            return m_file.seek(0) ? 0 : Fail(ZIP_ER_SEEK);
        case ZIP_SOURCE_READ:
            return Read(static_cast<char*>(data), static_cast<qint64>(size));
        case ZIP_SOURCE_STAT:
            std::memcpy(data, &m_facts, sizeof m_facts);
            return sizeof m_facts;
        case ZIP_SOURCE_ERROR:
            return zip_error_to_data(&m_error, data, size);
        case ZIP_SOURCE_CLOSE:
        case ZIP_SOURCE_FREE:
            return 0;
        case ZIP_SOURCE_SUPPORTS:
            return zip_source_make_command_bitmap(ZIP_SOURCE_OPEN, ZIP_SOURCE_READ, ZIP_SOURCE_CLOSE,
                                                  ZIP_SOURCE_STAT, ZIP_SOURCE_ERROR, ZIP_SOURCE_FREE, -1);
        default:
            return Fail(ZIP_ER_OPNOTSUPP);
        }
    }

    zip_int64_t Read(char* data, qint64 size) {
        if (m_packing->control.IsCancelled())
            return Fail(ZIP_ER_CANCELLED);
        const qint64 read = m_file.read(data, qMin(size, m_size - m_file.pos()));
        if (read < 0) {
            LOG(WARNING) << "ZipUtility::CreateZip packs the beginning of " << LogText(m_name) << ": "
                         << LogText(Problem());
            return 0;
        }
        if (m_masksHashes)
            m_mask.Apply(data, static_cast<std::size_t>(read));
        m_packing->done += read;
        m_packing->control.Tell(m_packing->done, m_packing->total);
        return read;
    }

    zip_int64_t Fail(int code) {
        zip_error_set(&m_error, code, 0);
        return -1;
    }

    QFile m_file;
    bool m_isReadable = false;
    QString m_name;
    bool m_masksHashes;
    HashMask m_mask;
    qint64 m_size = 0;
    zip_stat_t m_facts{};
    zip_error_t m_error{};
    Packing* m_packing = nullptr;
};

using OpenedFiles = std::vector<std::unique_ptr<OpenedFile>>;

/// Opens what can be opened; returns what went wrong, or an empty text.
std::string OpenFiles(const QVector<NamedFile>& files, OpenedFiles& opened) {
    for (const NamedFile& file : files) {
        auto candidate = std::make_unique<OpenedFile>(file);
        if (candidate->IsReadable()) {
            opened.push_back(std::move(candidate));
            continue;
        }
        std::string problem = LogText(file.name) + ": " + LogText(candidate->Problem());
        if (file.isNeeded)
            return problem;
        LOG(WARNING) << "ZipUtility::CreateZip leaves out " << problem;
    }
    return opened.empty() ? "there is nothing to pack" : std::string();
}

/// Writes the archive beside its place and renames it. Returns what went wrong; empty when nothing did.
std::string WriteArchive(const OpenedFiles& files, const QString& path, const TaskControl& control) {
    Packing packing{control};
    for (const auto& file : files)
        packing.total += file->Size();
    int code = 0;
    zip_t* archive = zip_open(path.toUtf8().constData(), ZIP_CREATE | ZIP_TRUNCATE, &code);
    if (!archive) {
        zip_error_t error;
        zip_error_init_with_code(&error, code);
        std::string words = LogText(std::string(zip_error_strerror(&error)));
        zip_error_fini(&error);
        return words;
    }
    bool whole = true;
    for (const auto& file : files)
        whole = whole && file->AddTo(archive, packing);
    if (whole && zip_close(archive) == 0)
        return {};
    std::string words = LogText(std::string(zip_strerror(archive)));
    zip_discard(archive);
    return words;
}

QString AbsolutePath(const std::wstring& path) {
    return QFileInfo(QDir::fromNativeSeparators(QString::fromStdWString(path))).absoluteFilePath();
}

} // namespace

bool ZipUtility::CreateZipFromDir(const std::wstring& directory, const std::wstring& zipPath,
                                  const TaskControl& control) {
    QVector<NamedFile> files = ListFiles(QString::fromStdWString(directory));
    const QString archive = AbsolutePath(zipPath);
    files.erase(std::remove_if(files.begin(), files.end(),
                               [&archive](const NamedFile& file) { return file.path == archive; }),
                files.end());
    return CreateZip(files, zipPath, control);
}

bool ZipUtility::CreateZip(const QVector<NamedFile>& files, const std::wstring& zipPath,
                           const TaskControl& control) {
    OpenedFiles opened;
    std::string problem = IsGuiThread() ? "called on the GUI thread" : OpenFiles(files, opened);
    if (problem.empty())
        problem = WriteArchive(opened, AbsolutePath(zipPath), control);
    LOG_IF(WARNING, !problem.empty()) << "ZipUtility::CreateZip failed: " << problem;
    return problem.empty();
}
