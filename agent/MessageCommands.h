#pragma once

#include "Command.h"

class AgentServer;
class EventLog;
class QDir;
class WebService;

/// The commands with which an administrator's messages and files, clock and wallpaper are sent. Everything
/// given outlives them; `web` may be null: then no files are sent. Files are looked for in `folder`.
Commands MessageCommands(AgentServer& server, EventLog& log, WebService* web, const QDir& folder);
