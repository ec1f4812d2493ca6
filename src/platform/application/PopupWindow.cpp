#include "platform/application/PopupWindow.h"

#include <QVector>

namespace {

constexpr QChar Separator; // in no window's texts

/// Character by character, so that the language of the system takes no part.
QString Folded(const QString& text) {
    QVector<uint> characters = text.toUcs4();
    for (uint& character : characters)
        character = QChar::toCaseFolded(character);
    return QString::fromUcs4(characters.constData(), characters.size());
}

} // namespace

PopupWindow PopupWindow::Of(const PopupsTypeParams& rule) {
    return {QString::fromStdString(rule.appName), QString::fromStdString(rule.popClassName),
            QString::fromStdString(rule.popName), QString::fromStdString(rule.popProductName)};
}

QString PopupWindow::Key() const {
    return Folded(program + Separator + className + Separator + title);
}

QString PopupWindow::Identity() const {
    return Key() + Separator + Folded(productName);
}
