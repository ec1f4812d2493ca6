#include "app/TrayTone.h"

#include "platform/context/Theme.h"

#include <QSettings>
#include <QSysInfo>

namespace {

constexpr int LookAgainMs = 5000;

bool IsWindows() {
    return QSysInfo::kernelType() == QLatin1String("winnt");
}

bool IsTrayDark() {
    if (!IsWindows())
        return Theme::Instance()->IsDesktopDark();
    // Windows tells programs of a change of its colours in a way that Qt does not pass on.
    const QSettings personalize(QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\"
                                               "CurrentVersion\\Themes\\Personalize"),
                                QSettings::NativeFormat);
    return personalize.value(QStringLiteral("SystemUsesLightTheme"), 1).toInt() == 0;
}

} // namespace

TrayTone::TrayTone(QObject* parent) : QObject(parent), m_dark(IsTrayDark()) {
    connect(&m_lookAgain, &QTimer::timeout, this, &TrayTone::Look);
    if (IsWindows())
        m_lookAgain.start(LookAgainMs);
}

void TrayTone::Look() {
    const bool dark = IsTrayDark();
    if (dark == m_dark)
        return;
    m_dark = dark;
    emit Changed();
}
