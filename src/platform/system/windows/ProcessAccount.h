#pragma once

#include <QString>
#include <QStringList>
#include <optional>

#include <windows.h>

/// The text of a SID, such as "S-1-5-18"; empty when it is none. Any thread.
QString SidText(PSID sid);

/// The accounts (SIDs) with whose rights process `id` runs: its user and, where it has their full rights, the
/// administrators. Nothing when the caller may not read that, which is so for other users' processes unless
/// the caller is an administrator. Any thread.
std::optional<QStringList> AccountsOfProcess(DWORD id);

/// The name of this process's user: of an account of this computer the plain one, of others "DOMAIN\name";
/// empty when it cannot be told. Any thread.
QString OwnAccountName();
