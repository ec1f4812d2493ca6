#include "popups/ProgramIcon.h"

#include "widgets/ThemeIcon.h"

#include <QDir>
#include <QFileIconProvider>
#include <QFileInfo>

QIcon ProgramIcon::Own(const QString& path) {
    const QFileInfo file(QDir::fromNativeSeparators(path));
    return file.filePath().startsWith(QLatin1String("//")) ? QIcon() : QFileIconProvider().icon(file);
}

QIcon ProgramIcon::Shown(const QString& path) {
    const QIcon own = Own(path);
    return own.isNull() ? ThemeIcon::Get(QStringLiteral("features")) : own;
}
