#pragma once

#include "Command.h"

class AgentSettings;

/// The commands about held settings, permission switches and live channels. `settings` outlives them.
Commands SettingsCommands(AgentSettings& settings);
