#pragma once

/// The rooms of the product, in the order of the menu.
enum class MenuEntry {
    Enrolment = 0,
    Features,
    LiveChannels,
    Network,
    Settings,
    About,
    Feedback,
};

inline constexpr int MenuEntryCount = static_cast<int>(MenuEntry::Feedback) + 1;
