#pragma once

#include "Command.h"

class AgentUpdates;

/// The commands about updates of the front end. `updates` outlives them.
Commands UpdateCommands(AgentUpdates& updates);
