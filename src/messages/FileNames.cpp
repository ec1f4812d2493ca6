#include "messages/FileNames.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

namespace {

constexpr int MostCharacters = 120;
constexpr int MostBytes = 200; // file systems allow 255, and a number comes behind
constexpr int LongestSuffix = 16;
constexpr int MostNumbers = 1000;

bool IsPlain(QChar character) {
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Other_Format: // the direction's among them
    case QChar::Other_NotAssigned:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    default:
        return !QStringLiteral("<>:\"|?*").contains(character);
    }
}

QString WithoutEnds(QString name) {
    const auto goes = [](QChar character) { return character == QLatin1Char('.') || character.isSpace(); };
    while (!name.isEmpty() && goes(name.back()))
        name.chop(1);
    while (!name.isEmpty() && goes(name.front())) // a leading dot hides a file
        name.remove(0, 1);
    return name;
}

/// Whether Windows takes a name with this beginning for a device, whatever suffix follows.
bool IsDevice(const QString& name) {
    static const QRegularExpression devices(
        QStringLiteral(R"(^(CON|PRN|AUX|NUL|CONIN\$|CONOUT\$|(COM|LPT)[0-9¹²³])\s*(\.|$))"),
        QRegularExpression::CaseInsensitiveOption);
    return devices.match(name).hasMatch();
}

void Shorten(QString& text, int characters, int bytes) {
    while (text.size() > characters || text.toUtf8().size() > bytes)
        text.chop(text.size() > 1 && QChar(text.back()).isLowSurrogate() ? 2 : 1);
}

/// Where the suffix begins, with its dot; the length when there is none.
int SuffixStart(const QString& name) {
    const int dot = name.lastIndexOf(QLatin1Char('.'));
    return dot > 0 && name.size() - dot <= LongestSuffix ? dot : name.size();
}

/// Tries the name and its numbered ones in the folder until `act` takes one; a name in use is not tried.
template <class Act>
QString FirstFree(const QDir& folder, const QString& name, Act act) {
    const int suffix = SuffixStart(name);
    for (int number = 1; number < MostNumbers; ++number) {
        const QString wanted =
            number == 1
                ? name
                : QStringLiteral("%1 (%2)%3").arg(name.left(suffix)).arg(number).arg(name.mid(suffix));
        QString path = folder.filePath(wanted);
        const QFileInfo there(path);
        if (there.exists() || there.isSymLink())
            continue;
        if (act(path))
            return path;
        if (!QFileInfo::exists(path)) // another's file that has come meanwhile is no failure
            break;
    }
    return {};
}

} // namespace

QString FileNames::Safe(const QString& name) {
    QString safe;
    for (const QChar character : name.section(QRegularExpression(QStringLiteral("[/\\\\]")), -1))
        if (IsPlain(character))
            safe += character;
    safe = WithoutEnds(safe);
    const QString suffix = safe.mid(SuffixStart(safe));
    safe.chop(suffix.size());
    Shorten(safe, MostCharacters - suffix.size(), MostBytes - suffix.toUtf8().size());
    safe = WithoutEnds(safe) + suffix;
    if (safe.isEmpty())
        return QStringLiteral("file");
    return IsDevice(safe) ? QLatin1Char('_') + safe : safe;
}

bool FileNames::IsProgram(const QString& name) {
    static const QSet<QString> suffixes = [] {
        const QString all = QStringLiteral(
            "exe com scr pif bat cmd ps1 ps2 psm1 psd1 psc1 ps1xml vb vbs vbe js jse mjs ws wsf wsh wsc sct "
            "hta msi msp mst msc msu cpl dll ocx sys drv jar jnlp lnk url website reg inf ins isp scf job "
            "chm hlp mht mhtml html htm xhtml svg shb shs application appref-ms appcontent-ms cab cdxml "
            "settingcontent-ms library-ms search-ms searchconnector-ms theme themepack deskthemepack udl "
            "diagcab diagcfg diagpkg gadget appx appxbundle msix msixbundle appinstaller xbap xll xla xlam "
            "ppa ppam wll docm dotm xlsm xltm pptm potm slk iqy oqy one mde mdb ade adp accdb accde rdp wsb "
            "iso img vhd vhdx wim sh bash zsh csh ksh fish run bin out py pyc pyw pyz pl pm rb tcl lua php "
            "desktop service deb rpm apk appimage snap flatpak flatpakref");
        const QStringList list = all.split(QLatin1Char(' '));
        return QSet<QString>(list.begin(), list.end());
    }();
    const QString suffix = QFileInfo(name).suffix().toLower();
    return suffix.isEmpty() || suffixes.contains(suffix); // what it is cannot be told without one
}

QString FileNames::Place(const QString& file, const QString& name) {
    return FirstFree(QFileInfo(file).dir(), name,
                     [&file](const QString& path) { return QFile::rename(file, path); });
}

QString FileNames::Copy(const QString& file, const QString& target) {
    const QFileInfo info(target);
    return FirstFree(info.dir(), info.fileName(),
                     [&file](const QString& path) { return QFile::copy(file, path); });
}
