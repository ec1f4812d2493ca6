#include "SettingsCommands.h"

#include "AgentSettings.h"

namespace {

PipeKey SwitchKey(const std::string& name) {
    if (name == "location")
        return PipeKey::LocationSetting;
    if (name == "screen-view")
        return PipeKey::ScreenShotSetting;
    if (name != "remote-control")
        Refuse("wants location, screen-view or remote-control");
    return PipeKey::ScreenNotifySetting;
}

bool IsOn(const std::string& text) {
    if (text != "on" && text != "off")
        Refuse("wants on or off");
    return text == "on";
}

} // namespace

Commands SettingsCommands(AgentSettings& settings) {
    return {{"hold", "[NAME...]",
             "hold these settings, so that the user cannot change them (77 SettingPermission)",
             [&settings](const std::string& arguments) {
                 return Act([&settings, names = Words(arguments)] { settings.Hold(names); });
             }},
            {"switch", "location|screen-view|remote-control on|off",
             "set what the organisation may do (76, 53, 52)",
             [&settings](const std::string& arguments) {
                 const auto [name, state] = SplitFirst(arguments);
                 return Act(
                     [&settings, key = SwitchKey(name), isOn = IsOn(state)] { settings.Switch(key, isOn); });
             }},
            {"channel", "URL NAME", "offer one more live channel (46 LiveChannelList)",
             [&settings](const std::string& arguments) {
                 const auto [url, name] = SplitFirst(arguments);
                 if (name.empty())
                     Refuse("wants an address and a name");
                 return Act([&settings, url = url, name = name] { settings.AddChannel(name, url); });
             }},
            {"no-channels", "", "offer no live channels (46 LiveChannelList)",
             [&settings](const std::string& arguments) {
                 RefuseArguments(arguments);
                 return Act([&settings] { settings.RemoveChannels(); });
             }}};
}
