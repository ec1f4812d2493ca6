#pragma once

#include <vector>

class QWidget;

/// Where a page's entry stands in the menu, and where the page itself is shown.
enum class PagePlace {
    Upper,  ///< upper part of the menu; beside the menu
    Lower,  ///< lower part of the menu; beside the menu
    Window, ///< lower part of the menu; in place of menu and body, with a way back
};

/// A page of the product.
struct PageEntry {
    const char* id;
    const char* icon; ///< of the family in :/res/icons
    const char* name; ///< translation key
    PagePlace place;
    QWidget* (*make)(QWidget* parent); ///< null for a page that the window's form makes
};

/// The pages of the product, in the order of the menu. Elsewhere a page is known by its index here.
const std::vector<PageEntry>& Pages();

/// Index of the page with this id; the program ends if there is none.
int PageIndex(const char* id);

/// The ids that the shell itself needs.
namespace PageId {

inline constexpr char Enrolment[] = "enrolment";
inline constexpr char Features[] = "features";
inline constexpr char LiveChannels[] = "live";
inline constexpr char Network[] = "network";
inline constexpr char Settings[] = "settings";
inline constexpr char About[] = "about";
inline constexpr char Feedback[] = "feedback";

} // namespace PageId
