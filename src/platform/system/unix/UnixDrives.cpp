#include "platform/system/unix/UnixDrives.h"

#include <QFile>
#include <QSocketNotifier>
#include <algorithm>
#include <glog/logging.h>

namespace {

constexpr const char* PluggedInFolders[] = {"/media/", "/run/media/", "/mnt/"};
// A server that is away would keep whoever looks into them waiting.
constexpr const char* NetworkTypes[] = {"nfs", "nfs4", "cifs", "smb3", "fuse.sshfs", "9p", "autofs"};

/// Spaces and the like stand in the table as a backslash and three octal digits.
QString Unescape(const QByteArray& field) {
    QByteArray text;
    for (int i = 0; i < field.size(); ++i) {
        bool isNumber = false;
        const int code = field[i] == '\\' ? field.mid(i + 1, 3).toInt(&isNumber, 8) : 0;
        text += isNumber ? static_cast<char>(code) : field[i];
        i += isNumber ? 3 : 0;
    }
    return QFile::decodeName(text);
}

bool IsPluggedIn(const QString& folder, const QByteArray& type) {
    return std::any_of(std::begin(PluggedInFolders), std::end(PluggedInFolders),
                       [&](const char* place) { return folder.startsWith(QLatin1String(place)); }) &&
           std::find(std::begin(NetworkTypes), std::end(NetworkTypes), type) == std::end(NetworkTypes);
}

class MountWatch final : public SystemDrives::Watch {
public:
    MountWatch(const QString& mountTable, std::function<void()> changed) : m_table(mountTable) {
        if (!m_table.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
            return;
        // The table can be read at any time; that it has changed is an exceptional condition of the file.
        m_notifier = std::make_unique<QSocketNotifier>(m_table.handle(), QSocketNotifier::Exception);
        QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), std::move(changed));
    }
    bool IsUsable() const { return m_notifier != nullptr; }

private:
    QFile m_table;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace

// A line of the table: number, parent, device, root, folder, options, any more of them, "-", type, source, …
QVector<SystemDrive> UnixDrives::Drives() const {
    QVector<SystemDrive> drives;
    QFile table(m_mountTable);
    if (!table.open(QIODevice::ReadOnly))
        return drives;
    for (const QByteArray& line : table.readAll().split('\n')) {
        const QList<QByteArray> fields = line.split(' ');
        const int separator = fields.indexOf("-", 6);
        if (separator < 0)
            continue;
        const SystemDrive drive{Unescape(fields[4]), fields[0].toULongLong()};
        if (!IsPluggedIn(drive.root, fields.value(separator + 1)))
            continue;
        // What is mounted over another hides it.
        drives.erase(std::remove_if(drives.begin(), drives.end(),
                                    [&](const SystemDrive& below) { return below.root == drive.root; }),
                     drives.end());
        drives.append(drive);
    }
    return drives;
}

std::unique_ptr<SystemDrives::Watch> UnixDrives::WatchDrives(std::function<void()> changed) const {
    auto watch = std::make_unique<MountWatch>(m_mountTable, std::move(changed));
    if (watch->IsUsable())
        return watch;
    LOG(ERROR) << "UnixDrives::WatchDrives cannot read " << m_mountTable.toStdString();
    return nullptr;
}

const SystemDrives& SystemDrives::Native() {
    static const UnixDrives drives;
    return drives;
}
