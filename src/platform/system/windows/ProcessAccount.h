#pragma once

#include "platform/system/SystemPipe.h"

/// The account that the token of process `id` names; an empty account when the caller may not read it,
/// which is so for other users' processes unless the caller is an administrator. Any thread.
PipePeer AccountOfToken(quint32 id);

/// The account that the service running in process `id` was set up with, which every user may ask for;
/// an empty account when the process runs no service. Any thread.
PipePeer AccountOfService(quint32 id);
