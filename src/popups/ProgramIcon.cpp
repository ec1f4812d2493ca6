#include "popups/ProgramIcon.h"

#include "widgets/ThemeIcon.h"

#include <QDir>
#include <QFileIconProvider>
#include <QFileInfo>

QIcon ProgramIcon(const QString& path) {
    const QFileInfo file(QDir::fromNativeSeparators(path));
    const QIcon icon =
        file.filePath().startsWith(QLatin1String("//")) ? QIcon() : QFileIconProvider().icon(file);
    return icon.isNull() ? ThemeIcon::Get(QStringLiteral("features")) : icon;
}
