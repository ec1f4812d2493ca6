#pragma once

#include "RunningProduct.h"

#include <QColor>

/// The page of the pop-ups and the picker that it opens, as a person sees them in the light theme.
class PopupsPage {
public:
    explicit PopupsPage(const RunningProduct& product) : m_desktop(product.Screen()) {}

    /// Opens the page from the menu, and from it the picker.
    bool OpenPicker();
    bool IsPicking() const;
    /// Waits for the button that reports what was picked, and presses it.
    bool Report();
    bool OffersReport() const;
    /// The window under the click is one that cannot be reported.
    bool Refuses() const;

private:
    int Pixels(const QColor& color) const;

    Desktop& m_desktop;
};
