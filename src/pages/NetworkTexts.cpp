#include "pages/NetworkTexts.h"

#include "pages/NetworkCheck.h"
#include "pages/SupportContact.h"
#include "platform/application/RyxWindow.h"
#include "platform/context/AppConfigData.h"
#include "platform/context/AppContextData.h"
#include "platform/context/LanguageHelper.h"
#include "platform/context/Text.h"
#include "widgets/CommonFacts.h"
#include "widgets/StatusLook.h"

#include <algorithm>

namespace {

struct Wording {
    NetworkFinding finding;
    const char* sentence;
    const char* advice = nullptr; ///< of a failure
};

constexpr Wording Wordings[] = {
    {NetworkFinding::AdapterUp, QT_TRANSLATE_NOOP("", "network_adapter_up")},
    {NetworkFinding::AdapterNone, QT_TRANSLATE_NOOP("", "network_adapter_none"),
     QT_TRANSLATE_NOOP("", "network_adapter_none_advice")},
    {NetworkFinding::AddressFound, QT_TRANSLATE_NOOP("", "network_address_found")},
    {NetworkFinding::AddressNone, QT_TRANSLATE_NOOP("", "network_address_none"),
     QT_TRANSLATE_NOOP("", "network_address_none_advice")},
    {NetworkFinding::GatewayFound, QT_TRANSLATE_NOOP("", "network_gateway_found")},
    {NetworkFinding::GatewayNone, QT_TRANSLATE_NOOP("", "network_gateway_none"),
     QT_TRANSLATE_NOOP("", "network_gateway_none_advice")},
    {NetworkFinding::ProxyNone, QT_TRANSLATE_NOOP("", "network_proxy_none")},
    {NetworkFinding::ProxyReached, QT_TRANSLATE_NOOP("", "network_proxy_reached")},
    {NetworkFinding::ProxyNotFound, QT_TRANSLATE_NOOP("", "network_proxy_not_found"),
     QT_TRANSLATE_NOOP("", "network_proxy_advice")},
    {NetworkFinding::ProxyNotReached, QT_TRANSLATE_NOOP("", "network_proxy_not_reached"),
     QT_TRANSLATE_NOOP("", "network_proxy_advice")},
    {NetworkFinding::NameFound, QT_TRANSLATE_NOOP("", "network_name_found")},
    {NetworkFinding::NameNotNeeded, QT_TRANSLATE_NOOP("", "network_name_not_needed")},
    {NetworkFinding::NameByProxy, QT_TRANSLATE_NOOP("", "network_name_by_proxy")},
    {NetworkFinding::NameNotFound, QT_TRANSLATE_NOOP("", "network_name_not_found"),
     QT_TRANSLATE_NOOP("", "network_name_advice")},
    {NetworkFinding::SignInNone, QT_TRANSLATE_NOOP("", "network_sign_in_none")},
    {NetworkFinding::SignInNeeded, QT_TRANSLATE_NOOP("", "network_sign_in_needed"),
     QT_TRANSLATE_NOOP("", "network_sign_in_advice")},
    {NetworkFinding::ClockRight, QT_TRANSLATE_NOOP("", "network_clock_right")},
    {NetworkFinding::ClockWrong, QT_TRANSLATE_NOOP("", "network_clock_wrong"),
     QT_TRANSLATE_NOOP("", "network_clock_advice")},
    {NetworkFinding::ClockUnknown, QT_TRANSLATE_NOOP("", "network_clock_unknown")},
    {NetworkFinding::ServerReached, QT_TRANSLATE_NOOP("", "network_server_reached")},
    {NetworkFinding::ServerRefused, QT_TRANSLATE_NOOP("", "network_server_refused"),
     QT_TRANSLATE_NOOP("", "network_server_advice")},
    {NetworkFinding::ServerSilent, QT_TRANSLATE_NOOP("", "network_server_silent"),
     QT_TRANSLATE_NOOP("", "network_server_advice")},
    {NetworkFinding::ServerByProxy, QT_TRANSLATE_NOOP("", "network_server_by_proxy"),
     QT_TRANSLATE_NOOP("", "network_server_by_proxy_advice")},
    {NetworkFinding::CertificateGood, QT_TRANSLATE_NOOP("", "network_certificate_good")},
    {NetworkFinding::CertificateBad, QT_TRANSLATE_NOOP("", "network_certificate_bad"),
     QT_TRANSLATE_NOOP("", "network_certificate_advice")},
    {NetworkFinding::CertificateUnread, QT_TRANSLATE_NOOP("", "network_certificate_unread"),
     QT_TRANSLATE_NOOP("", "network_certificate_advice")},
    {NetworkFinding::CertificateNone, QT_TRANSLATE_NOOP("", "network_certificate_none")},
    {NetworkFinding::PipeUp, QT_TRANSLATE_NOOP("", "network_pipe_up")},
    {NetworkFinding::PipeDown, QT_TRANSLATE_NOOP("", "network_pipe_down"),
     QT_TRANSLATE_NOOP("", "network_pipe_advice")},
    {NetworkFinding::NoServer, QT_TRANSLATE_NOOP("", "network_no_server")},
    {NetworkFinding::Skipped, QT_TRANSLATE_NOOP("", "network_skipped")},
    {NetworkFinding::Cancelled, QT_TRANSLATE_NOOP("", "network_cancelled")},
    {NetworkFinding::TimedOut, QT_TRANSLATE_NOOP("", "network_timed_out"),
     QT_TRANSLATE_NOOP("", "network_timed_out_advice")},
};

constexpr const char* Names[] = {
    QT_TRANSLATE_NOOP("", "network_step_adapter"),     QT_TRANSLATE_NOOP("", "network_step_address"),
    QT_TRANSLATE_NOOP("", "network_step_gateway"),     QT_TRANSLATE_NOOP("", "network_step_proxy"),
    QT_TRANSLATE_NOOP("", "network_step_name"),        QT_TRANSLATE_NOOP("", "network_step_sign_in"),
    QT_TRANSLATE_NOOP("", "network_step_clock"),       QT_TRANSLATE_NOOP("", "network_step_server"),
    QT_TRANSLATE_NOOP("", "network_step_certificate"), QT_TRANSLATE_NOOP("", "network_step_pipe"),
};

constexpr const char* States[] = {
    QT_TRANSLATE_NOOP("", "network_state_waiting"),     QT_TRANSLATE_NOOP("", "network_state_running"),
    QT_TRANSLATE_NOOP("", "network_state_passed"),      QT_TRANSLATE_NOOP("", "network_state_failed"),
    QT_TRANSLATE_NOOP("", "network_state_not_checked"),
};

const Wording* Find(NetworkFinding finding) {
    const auto found = std::find_if(std::begin(Wordings), std::end(Wordings),
                                    [finding](const Wording& wording) { return wording.finding == finding; });
    return found == std::end(Wordings) ? nullptr : found;
}

bool Has(const NetworkCheck& check, NetworkFinding finding) {
    return std::any_of(check.Results().begin(), check.Results().end(),
                       [finding](const NetworkResult& result) { return result.finding == finding; });
}

/// A time in the largest unit that leaves two of it.
QString Span(qint64 minutes) {
    constexpr qint64 Hour = 60, Day = 24 * Hour;
    const QLocale locale = LanguageHelper::Instance()->Locale();
    if (minutes >= 2 * Day)
        return Text("network_days").arg(locale.toString(minutes / Day));
    return minutes >= 2 * Hour ? Text("network_hours").arg(locale.toString(minutes / Hour))
                               : Text("network_minutes").arg(locale.toString(minutes));
}

QString Moment(const QDateTime& time) {
    return LanguageHelper::Instance()->Locale().toString(time, QLocale::ShortFormat);
}

} // namespace

QString NetworkTexts::Name(const NetworkResult& result) {
    return Text(Names[static_cast<int>(result.step)]);
}

QString NetworkTexts::Sentence(const NetworkResult& result) {
    const Wording* wording = Find(result.finding);
    if (!wording)
        return Text(States[static_cast<int>(result.state)]);
    // All at once: a value may itself hold what looks like a place for one.
    const QString first = result.finding == NetworkFinding::ClockWrong
                              ? Span(result.values.value(0).toLongLong())
                              : result.values.value(0);
    const QString second = result.values.value(1);
    const QString text = Text(wording->sentence);
    return result.values.size() > 1  ? text.arg(first, second)
           : result.values.isEmpty() ? text
                                     : text.arg(first);
}

QString NetworkTexts::Advice(const NetworkResult& result) {
    const Wording* wording = Find(result.finding);
    if (!wording || !wording->advice)
        return {};
    const bool isOurProxy = result.step == NetworkStep::Proxy && !AppConfigData::Instance()->webProxy.empty();
    const SupportContact contact = SupportContact::Configured();
    return Text(isOurProxy ? QT_TRANSLATE_NOOP("", "network_proxy_own_advice") : wording->advice) +
           QLatin1Char(' ') +
           (contact.IsKnown() ? Text("network_tell_support").arg(contact.Line())
                              : Text("network_tell_administrator"));
}

QString NetworkTexts::Time(const NetworkResult& result) {
    if (result.state != NetworkState::Passed && result.state != NetworkState::Failed)
        return {};
    const double seconds = static_cast<double>(result.milliseconds) / 1000;
    return Text("network_seconds").arg(LanguageHelper::Instance()->Locale().toString(seconds, 'f', 1));
}

// One source says what the link is: the service. What the check has found is told beside it, as the check's.
QString NetworkTexts::Verdict(const NetworkCheck& check, const QWidget* page) {
    if (check.IsRunning() || check.Results().isEmpty())
        return Text("network_verdict_running");
    if (Has(check, NetworkFinding::Cancelled))
        return Text("network_verdict_cancelled");
    const NetworkResult* failure = check.Failure();
    const QString found = failure ? Text("network_check_failed").arg(Name(*failure))
                          : Has(check, NetworkFinding::NoServer) ? Text("network_check_no_server")
                                                                 : Text("network_check_passed");
    if (!AppContextData::Instance()->Linked())
        return found + QLatin1Char(' ') + Text("network_link_unknown");
    const QString said =
        found + QLatin1Char(' ') + Text("network_link_said").arg(StatusLook::InWindowOf(page).words);
    const RyxWindow* window = RyxWindow::Of(page);
    const bool isOdd = failure && window && window->KnownLinkStatus() == IotStatus::Connected;
    return isOdd ? said + QLatin1Char(' ') + Text("network_link_other_way") : said;
}

QString NetworkTexts::Report(const NetworkCheck& check, const QWidget* page) {
    const PageFact device = CommonFacts::DeviceName();
    const PageFact link = CommonFacts::LinkState(page);
    QString text = QStringLiteral("%1: %2\n%3\n%4: %5\n%6\n\n")
                       .arg(device.label, device.value, Moment(check.Began()), link.label, link.value,
                            Verdict(check, page));
    for (const NetworkResult& result : check.Results()) {
        text += QStringLiteral("[%1] %2: %3")
                    .arg(Text(States[static_cast<int>(result.state)]), Name(result), Sentence(result));
        const QString time = Time(result);
        const QString advice = Advice(result);
        text += (time.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(time)) + QLatin1Char('\n') +
                (advice.isEmpty() ? QString() : QStringLiteral("    %1\n").arg(advice));
    }
    return text;
}
