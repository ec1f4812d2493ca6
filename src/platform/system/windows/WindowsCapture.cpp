#include "platform/system/SystemCapture.h"

#include "platform/system/windows/Handles.h"

#include <algorithm>

namespace {

#ifndef PW_RENDERFULLCONTENT
constexpr UINT PW_RENDERFULLCONTENT = 2;
#endif

/// A picture that the system can draw on.
class Canvas {
public:
    explicit Canvas(const QSize& size) : m_size(size), m_context(CreateCompatibleDC(nullptr)) {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = size.width();
        info.bmiHeader.biHeight = -size.height(); // the topmost line first
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        m_bitmap = CreateDIBSection(m_context, &info, DIB_RGB_COLORS, &m_pixels, nullptr, 0);
        m_before = SelectObject(m_context, m_bitmap);
    }
    ~Canvas() {
        SelectObject(m_context, m_before);
        DeleteObject(m_bitmap);
        DeleteDC(m_context);
    }
    Q_DISABLE_COPY(Canvas)

    HDC Context() const { return m_context; }
    QImage Image() const {
        GdiFlush();
        return m_pixels ? QImage(static_cast<const uchar*>(m_pixels), m_size.width(), m_size.height(),
                                 QImage::Format_RGB32)
                              .copy()
                        : QImage();
    }

private:
    const QSize m_size;
    const HDC m_context;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_before = nullptr;
    void* m_pixels = nullptr;
};

bool IsInOneColor(const QImage& image) {
    const QRgb color = image.pixel(0, 0);
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        if (std::any_of(line, line + image.width(),
                        [color](QRgb pixel) { return ((pixel ^ color) & 0xFFFFFF) != 0; }))
            return false;
    }
    return true;
}

class WindowsCapture final : public SystemCapture {
public:
    Picture Take(WId window) const override {
        RECT place{};
        if (!IsWindow(Handle(window)) || IsIconic(Handle(window)) || !GetWindowRect(Handle(window), &place) ||
            IsRectEmpty(&place))
            return {Result::NoWindow, {}};
        const QRect rect = ToRect(place);
        const Canvas canvas(rect.size());
        const bool drawn = PrintWindow(Handle(window), canvas.Context(), PW_RENDERFULLCONTENT) != FALSE;
        QImage image = canvas.Image();
        Result result = Result::Done;
        // Some programs draw nothing when they are asked, and say that they have.
        if (!image.isNull() && (!drawn || IsInOneColor(image))) {
            const HDC screen = GetDC(nullptr);
            if (BitBlt(canvas.Context(), 0, 0, rect.width(), rect.height(), screen, rect.x(), rect.y(),
                       SRCCOPY))
                image = canvas.Image();
            result = Result::OfScreen;
            ReleaseDC(nullptr, screen);
        }
        return {image.isNull() ? Result::NotPossible : result, image};
    }

    bool IsComposited() const override {
        BOOL enabled = FALSE;
        return SUCCEEDED(DwmIsCompositionEnabled(&enabled)) && enabled;
    }
};

} // namespace

const SystemCapture& SystemCapture::Native() {
    static const WindowsCapture capture;
    return capture;
}
