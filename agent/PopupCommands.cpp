#include "PopupCommands.h"

#include "AgentPopups.h"

#include <QFile>
#include <map>
#include <sstream>

namespace {

/// The rules of a file that holds a policy, as key 50 brings it.
std::vector<PopupsTypeParams> Rules(const std::string& name, const QDir& folder) {
    QFile file(folder.filePath(QString::fromStdString(name)));
    if (name.empty() || !file.open(QIODevice::ReadOnly))
        Refuse("cannot read \"" + name + "\": " + file.errorString().toStdString());
    SyncPopupsParams policy;
    try {
        policy.ReadFromString(file.readAll().toStdString());
    } catch (const Json::Exception& error) {
        Refuse("finds no rules in \"" + name + "\": " + error.what());
    }
    if (policy.popupsDetails.empty())
        Refuse("finds no rules in \"" + name + '"');
    return policy.popupsDetails;
}

/// Program, title, class and product, with bars between them; what is missing is empty.
PopupsTypeParams Rule(const std::string& text) {
    PopupsTypeParams rule;
    std::istringstream fields(text);
    for (std::string* field : {&rule.appName, &rule.popName, &rule.popClassName, &rule.popProductName}) {
        std::getline(fields, *field, '|');
        *field = Trimmed(*field);
    }
    if (rule.appName.empty())
        Refuse("wants PROGRAM | TITLE | CLASS | PRODUCT");
    return rule;
}

template <class Choice>
Choice Choose(const std::string& text, const std::map<std::string, Choice>& choices) {
    const auto choice = choices.find(text);
    if (choice != choices.end())
        return choice->second;
    std::string names;
    for (const auto& [name, value] : choices)
        names += (names.empty() ? "" : ", ") + name;
    Refuse("wants one of: " + names);
}

} // namespace

Commands PopupCommands(AgentPopups& popups, const QDir& folder) {
    using Reply = AgentPopups::Reply;
    return {{"popups", "on|off", "have pop-ups closed by the rules, or left alone (50 PopupPolicy)",
             [&popups](const std::string& arguments) {
                 const bool isOn = Choose<bool>(arguments, {{"on", true}, {"off", false}});
                 return Act([&popups, isOn] { popups.Switch(isOn); });
             }},
            {"popup-rules", "FILE", "take the rules of the policy in this file in place of those before",
             [&popups, &folder](const std::string& arguments) {
                 return Act([&popups, rules = Rules(arguments, folder)] { popups.SetRules(rules); });
             }},
            {"popup-rule", "add|remove PROGRAM | TITLE | CLASS | PRODUCT", "change one rule",
             [&popups](const std::string& arguments) {
                 const auto [how, fields] = SplitFirst(arguments);
                 const bool isAdded = Choose<bool>(how, {{"add", true}, {"remove", false}});
                 return Act([&popups, rule = Rule(fields), isAdded] { popups.Change(rule, isAdded); });
             }},
            {"popup-reports", "success|failure|none", "how the reports of users are answered from now on",
             [&popups](const std::string& arguments) {
                 const Reply reply = Choose<Reply>(
                     arguments,
                     {{"success", Reply::Success}, {"failure", Reply::Failure}, {"none", Reply::None}});
                 return Act([&popups, reply] { popups.SetReply(reply); });
             }}};
}
