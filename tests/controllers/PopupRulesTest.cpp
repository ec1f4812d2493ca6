#include "controllers/PopupRules.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace {

bool IsSame(const PopupsTypeParams& one, const PopupsTypeParams& other) {
    const auto same = [&](std::string PopupsTypeParams::*field) {
        return QString::fromStdString(one.*field)
                   .compare(QString::fromStdString(other.*field), Qt::CaseInsensitive) == 0;
    };
    return same(&PopupsTypeParams::appName) && same(&PopupsTypeParams::popProductName) &&
           same(&PopupsTypeParams::popClassName) && same(&PopupsTypeParams::popName);
}

TEST(PopupRules, MatchAsASearchThroughTheListDoesAlsoAfterChanges) {
    std::mt19937 random(7); // NOLINT(cert-msc51-cpp): the same each time
    // Few values, so that rules meet often; the signer tells them apart.
    const std::vector<std::string> words{"", "", "a.exe", "A.EXE", "Ärger", "äRGER", "ДОМ", "дом", "ß", "ss"};
    const auto makeRule = [&] {
        PopupsTypeParams rule;
        for (const auto field : {&PopupsTypeParams::appName, &PopupsTypeParams::popClassName,
                                 &PopupsTypeParams::popName, &PopupsTypeParams::popProductName})
            rule.*field = words[random() % (field == &PopupsTypeParams::popName ? 3 : words.size())];
        rule.popSignName = std::to_string(random());
        return rule;
    };
    std::vector<PopupsTypeParams> list;
    const auto find = [&](const PopupsTypeParams& rule) {
        return std::find_if(list.begin(), list.end(), [&](const auto& other) { return IsSame(other, rule); });
    };
    PopupRules rules;
    int matches = 0;
    for (int step = 0; step < 4000; ++step) {
        if (step % 400 == 0) {
            list.clear();
            std::generate_n(std::back_inserter(list), step / 20, makeRule);
            rules.Replace(std::vector<PopupsTypeParams>(list));
        }
        const PopupsTypeParams change = makeRule();
        const bool isEnabled = random() % 3 != 0;
        rules.Change(change, isEnabled);
        if (const auto found = find(change); found != list.end())
            list.erase(found);
        if (isEnabled)
            list.push_back(change);

        const PopupsTypeParams wanted = makeRule();
        const PopupWindow window{
            QString::fromStdString(wanted.appName), QString::fromStdString(wanted.popClassName),
            QString::fromStdString(wanted.popName), QString::fromStdString(wanted.popProductName)};
        const auto expected = find(wanted);
        const auto found = rules.FirstMatch(window);
        ASSERT_EQ(found ? found->popSignName : "", expected != list.end() ? expected->popSignName : "")
            << step;
        matches += found.has_value();
        EXPECT_TRUE(!found || rules.MayMatch(window));
    }
    EXPECT_GT(matches, 300);
}

} // namespace
