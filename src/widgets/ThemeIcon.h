#pragma once

#include <QIcon>
#include <QRectF>
#include <QString>

/// Icons of the one family in :/res/icons, drawn from their SVG at exactly the size and scale asked for and
/// in colours of the theme, also after the theme changed. GUI thread.
namespace ThemeIcon {

/// Colours of an icon, as theme tokens.
struct Colors {
    QString normal = QStringLiteral("text");
    QString checked = normal;
    QString disabled = QStringLiteral("textDisabled");
};

/// Icon `name` (file name without folder and suffix). "back" and "chevron" point in reading direction.
QIcon Get(const QString& name, const Colors& colors = {});
QIcon Get(const QString& name, const QString& colorToken);

/// Where an icon is drawn in `rect`: centred, or in a wide one at its leading end. The space behind then
/// keeps the text that follows at a distance, which a button's style does not.
QRectF Square(const QRectF& rect);

} // namespace ThemeIcon
