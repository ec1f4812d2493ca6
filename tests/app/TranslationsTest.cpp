#include "app/MainWindow.h"
#include "gallery/Scenes.h"
#include "platform/context/LanguageHelper.h"
#include "platform/context/Theme.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QRegularExpression>
#include <QSet>
#include <QSystemTrayIcon>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

namespace {

const QString Sources = QStringLiteral(RYX_SOURCES);

QString ReadText(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QSet<QString> Matches(const QString& text, const char* pattern) {
    QSet<QString> found;
    auto matches = QRegularExpression(QString::fromLatin1(pattern)).globalMatch(text);
    while (matches.hasNext())
        found.insert(matches.next().captured(1));
    return found;
}

/// Every text that the code or a form of the folder hands to translation.
QSet<QString> KeysInUse(const QString& folder) {
    QSet<QString> keys;
    QDirIterator files(folder, {QStringLiteral("*.cpp"), QStringLiteral("*.h"), QStringLiteral("*.ui")},
                       QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QString text = ReadText(files.next());
        text.remove(QRegularExpression(QStringLiteral("(?m)^\\s*//.*$|\"\\s*\n\\s*\"")));
        keys += Matches(text, R"re(\b(?:tr|Text|QT_TR_NOOP)\(\s*"([^"]+)")re");
        keys += Matches(text, R"re(\b(?:translate|QT_TRANSLATE_NOOP)\(\s*"\w*",\s*"([^"]+)")re");
        keys += Matches(text, R"re(<string>([^<]+)</string>)re");
    }
    return keys;
}

/// Adds the folder's texts in a language to those of the folders before it.
void ReadTexts(const QString& folder, const QString& language, QMap<QString, QString>& texts) {
    const QString path =
        QStringLiteral("%1/translations/%2_%3.ts").arg(folder, QFileInfo(folder).fileName(), language);
    const QSet<QString> used = KeysInUse(folder);
    QXmlStreamReader xml(ReadText(path));
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != QLatin1String("source"))
            continue;
        const QString key = xml.readElementText();
        SCOPED_TRACE((path + QLatin1Char(' ') + key).toStdString());
        EXPECT_TRUE(used.contains(key)) << "the folder does not use this key";
        EXPECT_FALSE(texts.contains(key)) << "the key stands twice";
        xml.readNextStartElement();
        EXPECT_TRUE(xml.attributes().isEmpty()) << "the text is unfinished";
        texts.insert(key, xml.readElementText());
        EXPECT_FALSE(texts[key].trimmed().isEmpty());
    }
}

TEST(Translations, AreCompleteAndBuiltInInEveryLanguageAndNotMore) {
    QMap<QString, QString> english;
    for (const LanguageHelper::Entry& language : LanguageHelper::Languages()) {
        SCOPED_TRACE(language.code.toStdString());
        QSet<QString> used;
        QMap<QString, QString> texts;
        for (const QFileInfo& folder : QDir(Sources).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            used += KeysInUse(folder.filePath());
            ReadTexts(folder.filePath(), language.code, texts);
        }
        ASSERT_GT(used.size(), 40) << "the sources were not found in " << Sources.toStdString();
        if (english.isEmpty())
            english = texts;
        LanguageHelper::Instance()->SetLanguage(language.code);
        for (const QString& key : used) {
            SCOPED_TRACE(key.toStdString());
            EXPECT_EQ(QCoreApplication::translate("AnyClass", key.toUtf8()), texts.value(key));
            EXPECT_EQ(Matches(texts.value(key), "%([0-9Ln])"), Matches(english.value(key), "%([0-9Ln])"));
        }
    }
    EXPECT_EQ(QCoreApplication::translate("AnyClass", "no such key"), QStringLiteral("no such key"));
    LanguageHelper::Instance()->SetLanguage(QStringLiteral("tlh"));
    EXPECT_EQ(LanguageHelper::Instance()->Language(), LanguageHelper::SystemLanguage());
    LanguageHelper::Instance()->SetLanguage(QStringLiteral("en"));
}

/// Every text that a person can see or hear in the window and in the tray's menu.
QStringList VisibleTexts(Stage& stage) {
    QStringList texts;
    for (const QLabel* label : stage.Window().findChildren<QLabel*>())
        if (label->objectName() != QLatin1String("headerDeviceName"))
            texts << label->text();
    for (QPushButton* button : stage.Window().findChildren<QPushButton*>())
        texts << QAccessible::queryAccessibleInterface(button)->text(QAccessible::Name);
    for (const QAction* action : stage.Window().findChild<QSystemTrayIcon*>()->contextMenu()->actions())
        texts << action->text();
    return texts.filter(QRegularExpression(QStringLiteral("\\p{L}")));
}

TEST(Translations, ChangeInTheRunningProgram) {
    Theme::Instance()->Apply(QStringLiteral("light"));
    LanguageHelper::Instance()->SetLanguage(QStringLiteral("en"));
    Stage stage(false);
    const QStringList english = VisibleTexts(stage);
    EXPECT_GT(english.size(), 20);

    LanguageHelper::Instance()->SetLanguage(QStringLiteral("ar"));
    Settle();
    EXPECT_EQ(stage.Window().layoutDirection(), Qt::RightToLeft);
    const QStringList arabic = VisibleTexts(stage);
    ASSERT_EQ(arabic.size(), english.size());
    for (int i = 0; i < english.size(); ++i)
        EXPECT_EQ(arabic[i] == english[i], english[i] == QLatin1String("Lecture hall 3"))
            << english[i].toStdString();

    LanguageHelper::Instance()->SetLanguage(QStringLiteral("en"));
    Settle();
    EXPECT_EQ(stage.Window().layoutDirection(), Qt::LeftToRight);
    EXPECT_EQ(VisibleTexts(stage), english);
}

} // namespace
