#include "platform/context/DevicePermissions.h"

#include "entity/EnrollEntities.h"
#include "entity/JsonText.h"
#include "entity/SettingsEntities.h"
#include "platform/context/AppContextData.h"
#include "platform/files/JsonFile.h"
#include "platform/link/PipeClientService.h"
#include "platform/link/RyxPackage.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <algorithm>
#include <glog/logging.h>
#include <utility>

namespace {

constexpr qint64 LargestFile = 64 * 1024;
constexpr int WriteAfterMs = 1000;   // a burst is written once
constexpr std::size_t HeldPlace = 3; // behind the switches
constexpr std::size_t MostHeld = 100;
constexpr std::size_t LongestName = 100;

/// A switch as the service and the file know it.
struct SwitchKey {
    PipeKey key;
    const char* name;
    const char* otherName; ///< of the service's, too
};

constexpr SwitchKey SwitchKeys[] = {{PipeKey::LocationSetting, "location", nullptr},
                                    {PipeKey::ScreenShotSetting, "screen", "screenshot"},
                                    {PipeKey::ScreenNotifySetting, "remoteControl", nullptr}};

const SwitchKey& KeyOf(DevicePermissions::Switch which) {
    return SwitchKeys[static_cast<std::size_t>(which)];
}

bool IsNameOf(const SwitchKey& key, const std::string& name) {
    return name == key.name || (key.otherName && name == key.otherName);
}

bool IsNamed(DevicePermissions::Switch which, const std::vector<std::string>& names) {
    return std::any_of(names.begin(), names.end(),
                       [&](const std::string& name) { return IsNameOf(KeyOf(which), name); });
}

bool Report(DevicePermissions::Switch which, bool on) {
    DeviceSettingNotify state;
    state.status = on;
    return PipeClientService::Instance()->Send(
        RyxPackage::PackageData(KeyOf(which).key, state.WriteToString()));
}

} // namespace

DevicePermissions::DevicePermissions(const QString& file, QObject* parent) : QObject(parent), m_file(file) {
    m_writeTimer.setSingleShot(true);
    m_writeTimer.setInterval(WriteAfterMs);
    connect(&m_writeTimer, &QTimer::timeout, this, &DevicePermissions::Write);
    Read();
    PipeClientService::Instance()->Subscribe(this, &DevicePermissions::OnPipeDataReceived);
    connect(AppContextData::Instance(), &AppContextData::Changed, this, [this](AppContextData::Field field) {
        if (field == AppContextData::Field::PermissionList) {
            Grant();
        } else if (field == AppContextData::Field::Enrolled) {
            Set(AppContextData::Instance()->Enrolled() ? m_state : State());
            WriteLater();
        } else if (field == AppContextData::Field::Linked) {
            m_confirmed.fill(false);
            emit Changed();
        }
    });
}

DevicePermissions::~DevicePermissions() {
    if (m_writeTimer.isActive())
        Write();
}

DevicePermissions* DevicePermissions::OfApplication() {
    return QCoreApplication::instance()->findChild<DevicePermissions*>(QString(), Qt::FindDirectChildrenOnly);
}

bool DevicePermissions::IsOn(Switch which) const {
    return Told(which) && (which != Switch::RemoteControl || Told(Switch::ScreenView));
}

bool DevicePermissions::IsHeld(Switch which) const {
    // Switching the view off would switch off what the user may not.
    if (which == Switch::ScreenView && IsOn(Switch::RemoteControl) && IsHeld(Switch::RemoteControl))
        return true;
    return IsNamed(which, m_state.held);
}

bool DevicePermissions::IsConfirmed() const {
    bool isConfirmed =
        m_confirmed != decltype(m_confirmed){} && (m_state.held.empty() || m_confirmed[HeldPlace]);
    for (std::size_t place = 0; place < m_state.told.size(); ++place)
        isConfirmed &= m_confirmed[place] || !m_state.told[place];
    return isConfirmed;
}

bool DevicePermissions::IsSwitchName(const std::string& name) {
    return std::any_of(std::begin(SwitchKeys), std::end(SwitchKeys),
                       [&](const SwitchKey& key) { return IsNameOf(key, name); });
}

bool DevicePermissions::Change(Switch which, bool on) {
    if (!Report(which, on))
        return false;
    State state = m_state;
    state.told[static_cast<std::size_t>(which)] = on;
    if (which == Switch::ScreenView) { // who switches it on has said nothing of remote control
        state.told[static_cast<std::size_t>(Switch::RemoteControl)] = on && IsOn(Switch::RemoteControl);
        if (!on)
            Report(Switch::RemoteControl, false);
    }
    Set(state);
    return true;
}

void DevicePermissions::OnPipeDataReceived(PipeKey key, const std::string& body) {
    bool isUsed = key != PipeKey::SettingPermission || TakeHeld(body);
    for (const Switch which : AllSwitches)
        isUsed &= key != KeyOf(which).key || TakeSwitch(which, body);
    LOG_IF(WARNING, !isUsed) << "DevicePermissions::OnPipeDataReceived cannot use the body of key "
                             << static_cast<int>(key);
}

bool DevicePermissions::TakeHeld(const std::string& body) {
    const auto json = ParseJsonObject(body);
    // An empty list is written as null.
    if (!json || !json->isMember("keyList") || !((*json)["keyList"].isArray() || (*json)["keyList"].isNull()))
        return false;
    PermissionInfo info;
    info.ReadFromJson(*json);
    State state = m_state;
    state.held.clear();
    for (const std::string& name : info.keyList)
        if (state.held.size() < MostHeld && name.size() <= LongestName)
            state.held.push_back(name);
    TakeFromService(state, HeldPlace);
    return true;
}

bool DevicePermissions::TakeSwitch(Switch which, const std::string& body) {
    DeviceSettingNotify notice;
    if (!ReadObject(notice, body))
        return false;
    State state = m_state;
    state.told[static_cast<std::size_t>(which)] = notice.status;
    if (which == Switch::ScreenView && !notice.status)
        state.told[static_cast<std::size_t>(Switch::RemoteControl)] = false;
    TakeFromService(state, static_cast<std::size_t>(which));
    return true;
}

void DevicePermissions::TakeFromService(const State& state, std::size_t what) {
    const bool isNew = !(state == m_state);
    m_confirmed[what] = true;
    Set(state);
    if (isNew)
        emit ChangedByService();
}

// What an enrolment brings. Nothing is held before the service says so.
void DevicePermissions::Grant() {
    const std::vector<std::string>& granted = AppContextData::Instance()->PermissionList();
    State state;
    for (const Switch which : AllSwitches)
        state.told[static_cast<std::size_t>(which)] = IsNamed(which, granted);
    m_confirmed.fill(AppContextData::Instance()->Linked());
    Set(state);
}

void DevicePermissions::Set(State state) {
    const State before = std::exchange(m_state, std::move(state));
    if (!(before == m_state))
        WriteLater();
    if (before.held != m_state.held)
        emit HeldChanged();
    emit Changed();
}

void DevicePermissions::Read() {
    if (!AppContextData::Instance()->Enrolled())
        return;
    const QJsonDocument document = JsonFile::Read(m_file, LargestFile);
    if (!document.isObject()) {
        JsonFile::SetAside(m_file);
        return Grant();
    }
    const QJsonObject json = document.object();
    for (const Switch which : AllSwitches)
        Told(which) = json[QLatin1String(KeyOf(which).name)].toBool();
    for (const auto& name : json[QStringLiteral("held")].toArray())
        m_state.held.push_back(name.toString().toStdString());
}

void DevicePermissions::WriteLater() {
    if (!m_file.isEmpty() && !m_writeTimer.isActive())
        m_writeTimer.start();
}

// What is told of a device that nobody manages, as an enrolment begins or by mistake, is not kept.
void DevicePermissions::Write() const {
    const State state = AppContextData::Instance()->Enrolled() ? m_state : State();
    QJsonArray held;
    for (const std::string& name : state.held)
        held.append(QString::fromStdString(name));
    QJsonObject json{{QStringLiteral("held"), held}};
    for (const Switch which : AllSwitches)
        json.insert(QLatin1String(KeyOf(which).name), state.told[static_cast<std::size_t>(which)]);
    JsonFile::Write(m_file, QJsonDocument(json));
}
