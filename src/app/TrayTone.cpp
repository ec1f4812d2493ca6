#include "app/TrayTone.h"

#include "platform/context/Theme.h"
#include "platform/system/SystemAppearance.h"

namespace {

constexpr int LookAgainMs = 5000;

bool IsTrayDark() {
    return SystemAppearance::Native().IsTaskbarDark().value_or(Theme::Instance()->IsDesktopDark());
}

} // namespace

TrayTone::TrayTone(QObject* parent) : QObject(parent), m_dark(IsTrayDark()) {
    connect(&m_lookAgain, &QTimer::timeout, this, &TrayTone::Look);
    if (SystemAppearance::Native().IsTaskbarDark())
        m_lookAgain.start(LookAgainMs);
}

void TrayTone::Look() {
    const bool dark = IsTrayDark();
    if (dark == m_dark)
        return;
    m_dark = dark;
    emit Changed();
}
