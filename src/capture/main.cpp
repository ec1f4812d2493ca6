// ryx-capture WINDOW FILE: writes a picture of a window, given by its number in decimal or as 0x..., as PNG.
// With OfScreen it shows what is on the screen there, with whatever covers the window.
// It is a program of its own because a window that hangs may keep it waiting for ever. For the same reason it
// writes the record of a front end that has crashed, where the system wants another process for that.
#include "platform/context/ProcessEnvironment.h"
#include "platform/system/SystemCapture.h"
#include "platform/system/SystemCrash.h"

#include <QFile>
#include <QGuiApplication>

namespace {

enum ExitCode { Done, Usage, NoWindow, NotPossible, FileFailed, OfScreen = SystemCapture::OfScreenExit };

bool Write(const QImage& picture, const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::NewOnly | QIODevice::WriteOnly)) // never over a file that is there
        return false;
    if (picture.save(&file, "PNG") && file.flush())
        return true;
    file.remove();
    return false;
}

} // namespace

int main(int argc, char** argv) {
    ProcessEnvironment::Close();
    if (SystemCrash::Native().WriteRecord())
        return Done;
    QGuiApplication::setAttribute(Qt::AA_DisableHighDpiScaling);
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    bool isNumber = false;
    const WId window = arguments.value(1).toULongLong(&isNumber, 0);
    if (arguments.size() != 3 || !isNumber)
        return Usage;
    const SystemCapture::Picture picture = SystemCapture::Native().Take(window);
    switch (picture.result) {
    case SystemCapture::Result::Done:
        return Write(picture.image, arguments[2]) ? Done : FileFailed;
    case SystemCapture::Result::OfScreen:
        return Write(picture.image, arguments[2]) ? OfScreen : FileFailed;
    case SystemCapture::Result::NoWindow:
        return NoWindow;
    case SystemCapture::Result::NotPossible:
        break;
    }
    return NotPossible;
}
