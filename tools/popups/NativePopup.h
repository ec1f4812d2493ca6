#pragma once

#include <QByteArray>
#include <qwindowdefs.h>

/// What a pop-up of this program has to do beyond Qt to be like those of other programs.
namespace NativePopup {

/// Tells other programs that the window is shown, where the system forgets it.
void TellShown(WId window);

/// Whether a native event asks the window to close and its sender waits until it has.
bool IsCloseRequest(const QByteArray& eventType, void* message);

} // namespace NativePopup
