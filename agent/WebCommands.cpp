#include "WebCommands.h"

#include "WebService.h"

#include <algorithm>
#include <regex>

namespace {

WebFault Fault(const std::string& text) {
    const std::map<std::string, WebFault::Kind>& kinds = WebFault::Names();
    static const std::regex status("[45][0-9]{2}");
    const auto [name, value] = SplitFirst(text);
    WebFault fault;
    if (const auto kind = kinds.find(name); kind != kinds.end())
        fault.kind = kind->second;
    else if (std::regex_match(name, status))
        fault = {WebFault::Status, 0, std::stoi(name), {}};
    else
        Refuse("wants a fault instead of \"" + name + '"');
    const bool isOnce = fault.kind == WebFault::Half && (value == "once" || value == "anew");
    if (fault.kind == WebFault::Redirect || fault.kind == WebFault::Text || isOnce)
        fault.text = value;
    else if (fault.kind == WebFault::Slow || fault.kind == WebFault::Drip)
        fault.seconds = Seconds(value, 1);
    else
        RefuseArguments(value);
    return fault;
}

} // namespace

WebCommands::WebCommands(WebService* service) : m_web(service) {
    if (m_web)
        connect(
            m_web, &WebService::Requested, this,
            [this](const QString& endpoint) {
                m_requests.insert(endpoint.toStdString());
                emit Requested();
            },
            Qt::QueuedConnection);
}

std::string WebCommands::Endpoint(const std::string& name) const {
    const std::vector<std::string>& names = WebService::Endpoints();
    if (!m_web)
        Refuse("wants ryx-agent --web");
    if (std::find(names.begin(), names.end(), name) == names.end())
        Refuse("wants an endpoint instead of \"" + name + '"');
    return name;
}

Commands WebCommands::List() {
    return {
        {"web", "ENDPOINT FAULT [VALUE]",
         "what the web service does wrong: ok, slow S, drip S, 400 to 599, half [once|anew], wrong, empty, "
         "large, huge, redirect [URL], gone, answer TEXT",
         [this](const std::string& arguments) {
             const auto [endpoint, fault] = SplitFirst(arguments);
             return Act(
                 [this, name = Endpoint(endpoint), what = Fault(fault)] { m_web->SetFault(name, what); });
         }},
        {"web-upload", "put|form [no-notice]", "how the file store wants its files; with a notice otherwise",
         [this](const std::string& arguments) {
             const auto [way, notice] = SplitFirst(arguments);
             if (!m_web || (way != "put" && way != "form") || (!notice.empty() && notice != "no-notice"))
                 Refuse("wants ryx-agent --web, and put or form");
             return Act([this, manner = UploadManner{way == "form", notice.empty()}] {
                 m_web->Store().SetManner(manner);
             });
         }},
        {"wait-web", "ENDPOINT [SECONDS]", "until the web service was asked there (at most 10 s)",
         [this](const std::string& arguments) {
             const auto [endpoint, seconds] = SplitFirst(arguments);
             return Expect(Seconds(seconds, DefaultWaitSeconds), [this, name = Endpoint(endpoint)] {
                 const auto found = m_requests.find(name);
                 if (found == m_requests.end())
                     return false;
                 m_requests.erase(found);
                 return true;
             });
         }}};
}
