#include "EnrolmentStore.h"

#include "platform/context/AppConfigData.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

namespace {

/// As the front ends of all users must, whatever permissions this process gives its files by default.
constexpr QFile::Permissions EveryoneReads = QFile::ReadGroup | QFile::ReadOther;

QJsonArray List(const std::vector<std::string>& texts) {
    QJsonArray list;
    for (const std::string& text : texts)
        list.append(QString::fromStdString(text));
    return list;
}

} // namespace

std::optional<Enrolment> EnrolmentStore::Read() {
    AppConfigData data;
    data.Load(AppConfigData::DefaultPath());
    if (!data.enrolled)
        return std::nullopt;
    return Enrolment{data.schoolCode, data.adminAccount, data.deviceName, data.deviceTags,
                     data.permissionList};
}

QString EnrolmentStore::Write(const std::optional<Enrolment>& enrolment) {
    const QString path = QString::fromStdString(AppConfigData::DefaultPath());
    QFile old(path);
    QJsonObject keys;
    if (old.exists()) { // what stands there and cannot be read must not be lost
        if (!QFileInfo(old).isFile())
            return path + QStringLiteral(": it is no file");
        if (!old.open(QIODevice::ReadOnly))
            return path + QStringLiteral(": ") + old.errorString();
        QJsonParseError error{};
        keys = QJsonDocument::fromJson(old.readAll(), &error).object();
        if (error.error != QJsonParseError::NoError)
            return path + QStringLiteral(": ") + error.errorString();
    }
    old.close();
    keys[QLatin1String("enrolled")] = enrolment.has_value();
    for (const char* key : {"schoolCode", "adminAccount", "deviceName", "deviceTags", "permissionList"})
        keys.remove(QLatin1String(key));
    if (enrolment) {
        keys[QLatin1String("schoolCode")] = QString::fromStdString(enrolment->code);
        keys[QLatin1String("adminAccount")] = QString::fromStdString(enrolment->account);
        keys[QLatin1String("deviceName")] = QString::fromStdString(enrolment->name);
        keys[QLatin1String("deviceTags")] = List(enrolment->tags);
        keys[QLatin1String("permissionList")] = List(enrolment->permissions);
    }
    const QString folder = QFileInfo(path).path();
    if (!QFileInfo::exists(folder) && QDir().mkpath(folder))
        QFile::setPermissions(folder,
                              QFile::permissions(folder) | EveryoneReads | QFile::ExeGroup | QFile::ExeOther);
    QSaveFile file(path);
    const bool written = file.open(QIODevice::WriteOnly) && file.write(QJsonDocument(keys).toJson()) >= 0 &&
                         file.commit() &&
                         QFile::setPermissions(path, QFile::permissions(path) | EveryoneReads);
    return written ? QString() : path + QStringLiteral(": ") + file.errorString();
}
