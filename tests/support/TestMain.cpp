// Entry point of the Qt test programs: a real application object, off screen unless told otherwise, and
// a temporary folder, configuration and log of its own.
#include <QApplication>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <memory>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>

// Qt frees the recognizer of a scroller's gesture only with the process.
extern "C" __attribute__((visibility("default"))) const char* __lsan_default_suppressions() {
    return "leak:QScroller::grabGesture\n";
}
#endif

namespace {

std::unique_ptr<QApplication> MakeApplication(int& argc, char** argv) {
#ifdef __SANITIZE_ADDRESS__
    const __lsan::ScopedDisabler platformPluginKeepsItsScreen;
#endif
    return std::make_unique<QApplication>(argc, argv);
}

} // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);
    const QTemporaryDir folder;
    qputenv("VELMORA_RYX_CONFIG", folder.filePath(QStringLiteral("ryx.json")).toLocal8Bit());
    for (const char* name : {"TMPDIR", "XDG_RUNTIME_DIR"})
        qputenv(name, folder.path().toLocal8Bit());

    const auto application = MakeApplication(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
