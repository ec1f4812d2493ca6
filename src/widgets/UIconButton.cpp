#include "widgets/UIconButton.h"

#include "widgets/ThemeIcon.h"

#include <QTextDocument>

UIconButton::UIconButton(const char* objectName, const QString& icon, int size, const QString& color) {
    setObjectName(QString::fromLatin1(objectName));
    setIcon(ThemeIcon::Get(icon, color));
    setIconSize({size, size});
}

void UIconButton::SetName(const QString& name) {
    setAccessibleName(name);
    setToolTip(Qt::convertFromPlainText(name, Qt::WhiteSpaceNormal));
}
