#include "app/MainWindow.h"
#include "app/UMenuEntry.h"
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
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QString::fromUtf8(file.readAll());
}

void CollectKeys(const QString& text, const char* pattern, QSet<QString>& keys) {
    auto matches = QRegularExpression(QString::fromLatin1(pattern)).globalMatch(text);
    while (matches.hasNext())
        keys.insert(matches.next().captured(1));
}

/// Every text that the code or a form hands to translation.
QSet<QString> KeysInUse() {
    QSet<QString> keys;
    QDirIterator files(Sources, {QStringLiteral("*.cpp"), QStringLiteral("*.h"), QStringLiteral("*.ui")},
                       QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        QString text = ReadText(path);
        if (path.endsWith(QLatin1String(".ui"))) {
            CollectKeys(text, R"re(<string>([^<]+)</string>)re", keys);
            continue;
        }
        text.remove(QRegularExpression(QStringLiteral("(?m)^\\s*//.*$")));
        CollectKeys(text, R"re(\b(?:tr|QT_TR_NOOP)\(\s*"([^"]+)")re", keys);
        CollectKeys(text, R"re(\b(?:translate|QT_TRANSLATE_NOOP)\(\s*"\w+",\s*"([^"]+)")re", keys);
    }
    return keys;
}

struct Message {
    QString text;
    bool finished = true;
};

QMap<QString, Message> ReadTranslations(const QString& language) {
    const QString path = Sources + QStringLiteral("/resources/translations/ryx_%1.ts").arg(language);
    QMap<QString, Message> messages;
    const QByteArray content = ReadText(path).toUtf8();
    QXmlStreamReader xml(content);
    QString key;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        if (xml.name() == QLatin1String("source")) {
            key = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            const bool finished = !xml.attributes().hasAttribute(QStringLiteral("type"));
            EXPECT_FALSE(messages.contains(key))
                << key.toStdString() << " stands twice in " << path.toStdString();
            messages.insert(key, {xml.readElementText(), finished});
        }
    }
    EXPECT_FALSE(xml.hasError()) << path.toStdString() << ": " << xml.errorString().toStdString();
    return messages;
}

QSet<QString> Placeholders(const QString& text) {
    QSet<QString> found;
    CollectKeys(text, "%([0-9Ln])", found);
    return found;
}

TEST(Translations, AreCompleteInEveryLanguageAndNotMore) {
    const QSet<QString> used = KeysInUse();
    ASSERT_GT(used.size(), 40) << "the sources were not found in " << Sources.toStdString();
    const QMap<QString, Message> english = ReadTranslations(QStringLiteral("en"));
    for (const LanguageHelper::Entry& language : LanguageHelper::Languages()) {
        SCOPED_TRACE(language.code.toStdString());
        const QMap<QString, Message> messages = ReadTranslations(language.code);
        for (const QString& key : used)
            EXPECT_TRUE(messages.contains(key)) << "missing: " << key.toStdString();
        for (auto message = messages.begin(); message != messages.end(); ++message) {
            SCOPED_TRACE(message.key().toStdString());
            EXPECT_TRUE(used.contains(message.key())) << "no code uses this key";
            EXPECT_TRUE(message->finished);
            EXPECT_FALSE(message->text.trimmed().isEmpty());
            EXPECT_EQ(Placeholders(message->text), Placeholders(english.value(message.key()).text));
        }
    }
}

TEST(Translations, AreBuiltInAndFoundFromEveryClass) {
    for (const LanguageHelper::Entry& language : LanguageHelper::Languages()) {
        LanguageHelper::Instance()->SetLanguage(language.code);
        EXPECT_EQ(LanguageHelper::Instance()->Language(), language.code);
        const QMap<QString, Message> messages = ReadTranslations(language.code);
        for (auto message = messages.begin(); message != messages.end(); ++message)
            EXPECT_EQ(QCoreApplication::translate("AnyClass", message.key().toUtf8()), message->text);
    }
    LanguageHelper::Instance()->SetLanguage(QStringLiteral("en"));
    EXPECT_EQ(QCoreApplication::translate("AnyClass", "no such key"), QStringLiteral("no such key"));
}

TEST(Translations, UnknownLanguageIsTheSystems) {
    LanguageHelper::Instance()->SetLanguage(QStringLiteral("tlh"));
    EXPECT_EQ(LanguageHelper::Instance()->Language(), LanguageHelper::SystemLanguage());
    LanguageHelper::Instance()->SetLanguage(QStringLiteral("en"));
}

/// Every text that a person can see or hear in the window and in the tray's menu.
QMap<QString, QString> VisibleTexts(Stage& stage) {
    QMap<QString, QString> texts;
    int number = 0;
    const auto add = [&](const QObject& object, const QString& text) {
        texts.insert(QStringLiteral("%1 %2 %3")
                         .arg(++number, 3)
                         .arg(QString::fromLatin1(object.metaObject()->className()), object.objectName()),
                     text);
    };
    for (const QLabel* label : stage.Window().findChildren<QLabel*>())
        if (label->objectName() != QLatin1String("headerDeviceName") && !label->text().isEmpty())
            add(*label, label->text());
    for (QPushButton* button : stage.Window().findChildren<QPushButton*>())
        add(*button, QAccessible::queryAccessibleInterface(button)->text(QAccessible::Name));
    for (const QAction* action : stage.Window().findChild<QSystemTrayIcon*>()->contextMenu()->actions())
        if (!action->isSeparator())
            add(*action, action->text());
    return texts;
}

bool HasLetters(const QString& text) {
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
}

TEST(Translations, ChangeInTheRunningProgram) {
    Theme::Instance()->Apply(QStringLiteral("light"));
    LanguageHelper::Instance()->SetLanguage(QStringLiteral("en"));
    Stage stage(false);
    const QMap<QString, QString> english = VisibleTexts(stage);
    EXPECT_GT(english.size(), 20);

    LanguageHelper::Instance()->SetLanguage(QStringLiteral("ar"));
    Settle();
    EXPECT_EQ(stage.Window().layoutDirection(), Qt::RightToLeft);
    const QMap<QString, QString> arabic = VisibleTexts(stage);
    ASSERT_EQ(arabic.keys(), english.keys());
    for (auto text = english.begin(); text != english.end(); ++text) {
        const bool translatable = HasLetters(*text) && *text != QLatin1String("Lecture hall 3");
        EXPECT_EQ(arabic.value(text.key()) != *text, translatable) << text.key().toStdString();
    }

    LanguageHelper::Instance()->SetLanguage(QStringLiteral("en"));
    Settle();
    EXPECT_EQ(stage.Window().layoutDirection(), Qt::LeftToRight);
    EXPECT_EQ(VisibleTexts(stage), english);
}

} // namespace
