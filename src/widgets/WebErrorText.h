#pragma once

#include "platform/web/RyxWebClient.h"

#include <QString>

/// A sentence that tells a user why a call failed, in the language in use. GUI thread.
QString WebErrorText(WebError error);
