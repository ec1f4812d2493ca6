#pragma once

#include "platform/web/CheckNetwork.h"

class NetworkCheck;
class QWidget;

/// The check of the network in words, in the language in use. GUI thread.
namespace NetworkTexts {

QString Name(const NetworkResult& result);

/// What was found; one sentence, empty before the step.
QString Sentence(const NetworkResult& result);

/// What to do about a failure and whom to tell; empty for everything else.
QString Advice(const NetworkResult& result);

/// How long it took; empty when it did not.
QString Time(const NetworkResult& result);

/// What the service says of the link and what the check has found, as one picture; `page` is the one that
/// shows it.
QString Verdict(const NetworkCheck& check, const QWidget* page);

/// All of it as text for whoever helps.
QString Report(const NetworkCheck& check, const QWidget* page);

} // namespace NetworkTexts
