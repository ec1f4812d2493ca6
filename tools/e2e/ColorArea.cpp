#include "ColorArea.h"

ColorArea FindColor(const QImage& picture, const QColor& color) {
    ColorArea area;
    int left = picture.width(), top = picture.height(), right = -1, bottom = -1;
    const QRgb wanted = color.rgb() & RGB_MASK;
    for (int y = 0; y < picture.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            if ((line[x] & RGB_MASK) != wanted)
                continue;
            ++area.pixels;
            left = std::min(left, x);
            right = std::max(right, x);
            top = std::min(top, y);
            bottom = std::max(bottom, y);
        }
    }
    if (area.pixels > 0)
        area.bounds = QRect(QPoint(left, top), QPoint(right, bottom));
    return area;
}
