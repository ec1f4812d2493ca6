#include "platform/security/LogText.h"

namespace {

constexpr int MostCharacters = 500;

/// Also what changes lines or their direction without being a control character in the strict sense.
bool IsControl(QChar character) {
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}

} // namespace

std::string LogText(const QString& text) {
    QString line = text.left(MostCharacters);
    if (!line.isEmpty() && text.size() > MostCharacters && line.at(line.size() - 1).isHighSurrogate())
        line.chop(1);
    for (QChar& character : line)
        if (IsControl(character))
            character = QChar::ReplacementCharacter;
    if (text.size() > MostCharacters)
        line += QStringLiteral("…");
    return line.toStdString();
}

std::string LogText(const std::string& utf8) {
    return LogText(QString::fromStdString(utf8));
}
