// Renders every scene in each theme, in English and Arabic, at the scale that QT_SCALE_FACTOR sets:
//
//   ryx-gallery FOLDER [SCENE...]   makes the pictures, <theme>-<language>-<percent>/<scene>.png
//   ryx-gallery --index FOLDER      writes index.html over all pictures found
#include "gallery/Scenes.h"
#include "platform/context/LanguageHelper.h"
#include "platform/context/Theme.h"

#include <QApplication>
#include <QDir>
#include <QPixmap>
#include <QTextStream>
#include <QWidget>
#include <cstdio>

namespace {

bool TakePicture(const Scene& scene, const QString& folder) {
    Stage stage(scene.enrolled);
    scene.play(stage);
    Settle();
    const QString path = QStringLiteral("%1/%2.png").arg(folder, scene.name);
    const bool saved = stage.Subject().grab().save(path);
    if (QWidget* popup = QApplication::activePopupWidget())
        popup->close();
    if (!saved)
        std::fprintf(stderr, "could not write %s\n", qPrintable(path));
    return saved;
}

bool TakeAllPictures(const QString& target, const QStringList& wanted) {
    bool all = true;
    int pictures = 0;
    for (const QString& theme : Theme::Names()) {
        for (const QString& language : {QStringLiteral("en"), QStringLiteral("ar")}) {
            Theme::Instance()->Apply(theme);
            LanguageHelper::Instance()->SetLanguage(language);
            const QString folder = QStringLiteral("%1/%2-%3-%4")
                                       .arg(target, theme, language)
                                       .arg(qRound(qApp->devicePixelRatio() * 100));
            QDir().mkpath(folder);
            for (const Scene& scene : AllScenes()) {
                if (!wanted.isEmpty() && !wanted.contains(scene.name))
                    continue;
                all = TakePicture(scene, folder) && all;
                ++pictures;
            }
        }
    }
    std::printf("%d pictures at %d %%\n", pictures, qRound(qApp->devicePixelRatio() * 100));
    return all;
}

bool WriteIndex(const QString& target) {
    QFile file(target + QStringLiteral("/index.html"));
    if (!file.open(QIODevice::WriteOnly))
        return false;
    const QStringList folders = QDir(target).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    QTextStream page(&file);
    page.setCodec("UTF-8");
    page << "<!DOCTYPE html>\n<html lang=\"en\">\n<meta charset=\"utf-8\">\n<title>Velmora RYX "
            "gallery</title>\n"
            "<style>body{font:16px sans-serif;margin:24px;background:#d8dde3}"
            "figure{display:inline-block;margin:8px;vertical-align:top}"
            "img{max-width:620px;border:1px solid #888}figcaption{font-size:14px}</style>\n";
    for (const Scene& scene : AllScenes()) {
        page << "<h2>" << scene.name << "</h2>\n";
        for (const QString& folder : folders) {
            const QString path = folder + QLatin1Char('/') + scene.name + QStringLiteral(".png");
            if (QFile::exists(target + QLatin1Char('/') + path))
                page << "<figure><a href=\"" << path << "\"><img loading=\"lazy\" src=\"" << path
                     << "\" alt=\"" << scene.name << "\"></a><figcaption>" << folder
                     << "</figcaption></figure>\n";
        }
    }
    return true;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    QStringList arguments = application.arguments().mid(1);
    const bool index = arguments.removeAll(QStringLiteral("--index")) > 0;
    if (arguments.isEmpty()) {
        std::fprintf(stderr, "ryx-gallery [--index] FOLDER [SCENE...]\n");
        return 2;
    }
    const QString target = arguments.takeFirst();
    return (index ? WriteIndex(target) : TakeAllPictures(target, arguments)) ? 0 : 1;
}
