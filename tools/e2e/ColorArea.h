#pragma once

#include <QColor>
#include <QImage>
#include <QRect>

/// Pixels of exactly one colour: how many there are, and what they span.
struct ColorArea {
    int pixels = 0;
    QRect bounds;
};

/// Looks for the colour in the whole picture.
ColorArea FindColor(const QImage& picture, const QColor& color);
