// Entry point of the Qt test programs: a real application object, off screen unless told otherwise, and
// a temporary folder, configuration and log of its own.
#include "support/LogCapture.h"

#include <QApplication>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);
    const QTemporaryDir folder;
    qputenv("VELMORA_RYX_CONFIG", folder.filePath(QStringLiteral("ryx.json")).toLocal8Bit());
    qputenv("TMPDIR", folder.path().toLocal8Bit());

    QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
