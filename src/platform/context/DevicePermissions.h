#pragma once

#include "platform/link/PipeKey.h"

#include <QObject>
#include <QTimer>
#include <array>
#include <string>
#include <vector>

/// What the organisation may do with this device: three switches, and which of them it holds, so that only it
/// changes them. Lives from start-up, is kept over starts, and is empty on a device that nobody has enrolled.
/// GUI thread.
class DevicePermissions : public QObject {
    Q_OBJECT

public:
    enum class Switch { Location, ScreenView, RemoteControl };
    static constexpr Switch AllSwitches[] = {Switch::Location, Switch::ScreenView, Switch::RemoteControl};

    /// Reads what an earlier start has kept in `file`, or else begins with what was granted at the enrolment;
    /// without a name nothing is kept.
    explicit DevicePermissions(const QString& file, QObject* parent = nullptr);
    /// Writes what is not written yet.
    ~DevicePermissions() override;

    /// The application object's; null when it has none.
    static DevicePermissions* OfApplication();

    /// Remote control is off while the screen cannot be seen.
    bool IsOn(Switch which) const;
    /// The organisation alone may change it.
    bool IsHeld(Switch which) const;
    /// The service's names of what the organisation holds, those of no switch as well; a hundred at most.
    const std::vector<std::string>& Held() const { return m_state.held; }
    /// The service has told anew since the link came up what is on and what is held: it is not of before.
    bool IsConfirmed() const;
    /// Whether the service's name for a permission means one of the switches.
    static bool IsSwitchName(const std::string& name);

    /// The user's change, which goes to the service at once; to switch the screen view off switches remote
    /// control off, too. False, and nothing has changed, when the service is not reached.
    bool Change(Switch which, bool on);

signals:
    void Changed();
    /// The organisation holds others than before.
    void HeldChanged();
    /// What the service has said is not what was known.
    void ChangedByService();

private:
    struct State {
        // By the user or the service, which may tell of remote control just before it tells of the view.
        std::array<bool, 3> told{};
        std::vector<std::string> held;
        bool operator==(const State& other) const { return told == other.told && held == other.held; }
    };

    bool& Told(Switch which) { return m_state.told[static_cast<std::size_t>(which)]; }
    bool Told(Switch which) const { return m_state.told[static_cast<std::size_t>(which)]; }
    void OnPipeDataReceived(PipeKey key, const std::string& body);
    /// Each is false for a body that cannot be used, which changes and confirms nothing.
    bool TakeHeld(const std::string& body);
    bool TakeSwitch(Switch which, const std::string& body);
    void TakeFromService(const State& state, std::size_t what);
    void Grant();
    void Set(State state);
    void Read();
    void WriteLater();
    void Write() const;

    const QString m_file;
    State m_state;
    std::array<bool, 4> m_confirmed{}; // each switch, and what is held
    QTimer m_writeTimer{this};
};
