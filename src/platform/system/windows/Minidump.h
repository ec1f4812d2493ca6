#pragma once

#include <QByteArray>

#include <windows.h>

#include <dbghelp.h>

/// A minidump of another process that has crashed: its modules, the context of each thread, and of the stacks
/// what points into a module or a stack. Anything else that lies there, such as what a user has typed, is
/// left out. `crash` stands in that process. Threads that cannot be opened are left out; any thread.
QByteArray MakeMinidump(HANDLE process, const MINIDUMP_EXCEPTION_INFORMATION& crash);
