#include "widgets/WebErrorText.h"

#include "platform/context/Text.h"

QString WebErrorText(WebError error) {
    switch (error) {
    case WebError::Cancelled:
        return Text("web_error_cancelled");
    case WebError::NotConfigured:
        return Text("web_error_not_configured");
    case WebError::Unreachable:
        return Text("web_error_unreachable");
    case WebError::NotTrusted:
        return Text("web_error_not_trusted");
    case WebError::NotAllowed:
        return Text("web_error_not_allowed");
    case WebError::TimedOut:
        return Text("web_error_timed_out");
    case WebError::Refused:
        return Text("web_error_refused");
    case WebError::BadAnswer:
        return Text("web_error_bad_answer");
    case WebError::File:
        return Text("web_error_file");
    case WebError::TooLarge:
        return Text("web_error_too_large");
    case WebError::None:
    case WebError::WrongDigest:
    case WebError::Internal:
        break;
    }
    return Text("web_error_other");
}
