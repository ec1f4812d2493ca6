#pragma once

#include "RunningProduct.h"

#include <QColor>

/// The main window, as a person sees it.
class MainPage {
public:
    static constexpr char Title[] = "Velmora RYX";

    /// Colours of the header's dot, by what the link's status is.
    static const QColor Connected, Connecting, Disconnected, NotEnrolled;

    explicit MainPage(const RunningProduct& product) : m_desktop(product.Screen()) {}

    bool ShowsStatus(const QColor& color) const;
    bool WaitForStatus(const QColor& color) const;

private:
    Desktop& m_desktop;
};
