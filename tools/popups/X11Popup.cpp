#include "NativePopup.h"

void NativePopup::TellShown(WId) {}

bool NativePopup::IsCloseRequest(const QByteArray&, void*) {
    return false;
}
