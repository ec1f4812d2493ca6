#pragma once

#include "widgets/UFactsPage.h"

/// Facts that several pages show, in the language in use. GUI thread.
namespace CommonFacts {

PageFact DeviceName();

/// The state of the link to the organisation, as the window that `page` is in knows it.
PageFact LinkState(const QWidget* page);

PageFact Organisation();

/// The addresses of this device in its networks.
PageFact Addresses();
/// The organisation's name, or words for it where it has none.
QString Manager();

/// The text, or the word for "none" when it is empty.
QString OrNone(const QString& text);
QString OrNone(const std::string& utf8);

} // namespace CommonFacts
