#pragma once

#include "Command.h"

#include <QDir>

class AgentPopups;

/// The commands about pop-ups. `popups` and `folder`, in which their files are looked for, outlive them.
Commands PopupCommands(AgentPopups& popups, const QDir& folder);
