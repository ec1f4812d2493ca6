#include "app/Pages.h"

#include "enroll/UBodyEnroll.h"
#include "pages/UBodyAbout.h"
#include "pages/UBodyLiveChannel.h"
#include "pages/UBodyNetwork.h"
#include "pages/UBodySetting.h"
#include "popups/UBodyFeaturesPopups.h"

#include <algorithm>
#include <cstring>
#include <glog/logging.h>

namespace {

template <class Page>
QWidget* Make(QWidget* parent) {
    return new Page(parent);
}

} // namespace

const std::vector<PageEntry>& Pages() {
    // clang-format off
    static const std::vector<PageEntry> pages{
        {PageId::Enrolment, "enrolment", QT_TRANSLATE_NOOP("UMenu", "menu_enrolment"), PagePlace::Upper, Make<UBodyEnroll>},
        {PageId::Features, "features", QT_TRANSLATE_NOOP("UMenu", "menu_features"), PagePlace::Upper, Make<UBodyFeaturesPopups>},
        {PageId::LiveChannels, "live", QT_TRANSLATE_NOOP("UMenu", "menu_live_channels"), PagePlace::Upper, Make<UBodyLiveChannel>},
        {PageId::Network, "network", QT_TRANSLATE_NOOP("UMenu", "menu_network"), PagePlace::Upper, Make<UBodyNetwork>},
        {PageId::Settings, "settings", QT_TRANSLATE_NOOP("UMenu", "menu_settings"), PagePlace::Upper, Make<UBodySetting>},
        {PageId::About, "about", QT_TRANSLATE_NOOP("UMenu", "menu_about"), PagePlace::Lower, Make<UBodyAbout>},
        {PageId::Feedback, "feedback", QT_TRANSLATE_NOOP("UMenu", "menu_feedback"), PagePlace::Window, nullptr},
    };
    // clang-format on
    return pages;
}

int PageIndex(const char* id) {
    const auto page = std::find_if(Pages().begin(), Pages().end(),
                                   [id](const PageEntry& entry) { return std::strcmp(entry.id, id) == 0; });
    CHECK(page != Pages().end()) << "There is no page " << id;
    return static_cast<int>(page - Pages().begin());
}
