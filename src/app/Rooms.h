#pragma once

#include "app/MenuEntry.h"

class QWidget;
class URoomPage;

/// The rooms of the product: the one place that says which page stands in which.
namespace Rooms {

/// Makes the page of a menu entry; null for one whose page does not stand in the body (feedback).
QWidget* Make(MenuEntry entry, QWidget* parent);

/// Fills the feedback page of the window's stack.
void FurnishFeedback(URoomPage& page);

} // namespace Rooms
