#pragma once

#include <QString>
#include <QStringList>

struct PipePeer;

namespace PipeTrust {

/// Why a program that trusts the accounts with these ids, and no other, does not trust who serves a pipe, in
/// words for the log; empty when it does. The pipe's owner decides. Besides, its process must run with the
/// rights of such an account, or, when nobody may know with whose, belong to no user's session.
QString Refusal(const PipePeer& server, const QStringList& trusted);

} // namespace PipeTrust
