#include "platform/context/Theme.h"

#include "widgets/ThemeIcon.h"
#include "widgets/UIconLabel.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QPainter>
#include <QSignalSpy>
#include <QSvgRenderer>
#include <QtTest>
#include <cmath>
#include <gtest/gtest.h>

namespace {

QJsonObject Tokens(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError) << path.toStdString();
    return document.object();
}

TEST(ThemeTokens, AreTheSameInEveryTheme) {
    const QStringList light = Tokens(QStringLiteral(":/res/light/tokens.json")).keys();
    for (const QString& theme : Theme::Names())
        EXPECT_EQ(Tokens(QStringLiteral(":/res/%1/tokens.json").arg(theme)).keys(), light)
            << theme.toStdString();
}

TEST(ThemeTokens, OfTheStyleSheetAreAllKnown) {
    const QDir folder(QStringLiteral(":/res/qss"));
    const QStringList sheets = folder.entryList({QStringLiteral("*.qss")});
    EXPECT_FALSE(sheets.isEmpty());
    for (const QString& theme : Theme::Names()) {
        Theme::Instance()->Apply(theme);
        for (const QString& name : sheets) {
            QFile sheet(folder.filePath(name));
            ASSERT_TRUE(sheet.open(QIODevice::ReadOnly));
            QStringList unknown;
            const QString resolved = Theme::Instance()->Resolve(QString::fromUtf8(sheet.readAll()), &unknown);
            EXPECT_TRUE(unknown.isEmpty())
                << name.toStdString() << ": " << unknown.join(QLatin1Char(' ')).toStdString();
            EXPECT_FALSE(resolved.contains(QLatin1Char('@'))) << name.toStdString();
            const int opened = resolved.count(QLatin1Char('{'));
            EXPECT_EQ(opened, resolved.count(QLatin1Char('}'))) << name.toStdString();
        }
    }
}

double Luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double Contrast(const QColor& a, const QColor& b) {
    const double x = Luminance(a), y = Luminance(b);
    return (std::max(x, y) + 0.05) / (std::min(x, y) + 0.05);
}

TEST(ThemeTokens, TextStandsOutFromItsGround) {
    struct Pair {
        const char* text;
        const char* ground;
        double least;
    };
    constexpr double Text = 4.5, Graphic = 3.0;
    const Pair pairs[] = {
        {"text", "window", Text},
        {"text", "surface", Text},
        {"text", "raised", Text},
        {"text", "hover", Text},
        {"text", "pressed", Text},
        {"textMuted", "window", Text},
        {"textMuted", "surface", Text},
        {"textMuted", "raised", Text},
        {"accentText", "accent", Text},
        {"accentText", "accentHover", Text},
        {"accentText", "accentPressed", Text},
        {"accentSoftText", "accentSoft", Text},
        {"dangerText", "danger", Text},
        {"dangerText", "dangerHover", Text},
        {"toastText", "toast", Text},
        {"lockText", "lockBackground", Text},
        {"lockText", "lockSurface", Text},
        {"lockAccentText", "lockAccent", Text},
        {"focus", "window", Graphic},
        {"focus", "surface", Graphic},
        {"focus", "raised", Graphic},
        {"borderStrong", "window", Graphic},
        {"danger", "window", Graphic},
        {"toastInfo", "toast", Graphic},
        {"toastSuccess", "toast", Graphic},
        {"toastWarning", "toast", Graphic},
        {"toastError", "toast", Graphic},
        {"lockAccent", "lockBackground", Graphic},
        {"lockBorder", "lockBackground", Graphic},
    };
    for (const QString& theme : Theme::Names()) {
        Theme::Instance()->Apply(theme);
        for (const Pair& pair : pairs) {
            const QColor text = Theme::Instance()->Color(QLatin1String(pair.text));
            const QColor ground = Theme::Instance()->Color(QLatin1String(pair.ground));
            ASSERT_TRUE(text.isValid() && ground.isValid()) << pair.text << ' ' << pair.ground;
            EXPECT_GE(Contrast(text, ground), pair.least)
                << theme.toStdString() << ": " << pair.text << " on " << pair.ground;
        }
    }
}

TEST(ThemeChange, ReachesWidgetsThatAreOnScreen) {
    Theme::Instance()->Apply(QStringLiteral("light"));
    UIconLabel icon(24, QStringLiteral("theme"), QStringLiteral("text"));
    icon.show();
    QLabel label(QStringLiteral("text"));
    label.show();
    const QImage lightIcon = icon.grab().toImage();
    QSignalSpy changed(Theme::Instance(), &Theme::Changed);

    Theme::Instance()->Apply(QStringLiteral("dark"));
    EXPECT_EQ(changed.count(), 1);
    EXPECT_TRUE(Theme::Instance()->IsDark());
    EXPECT_NE(icon.grab().toImage(), lightIcon);
    EXPECT_EQ(label.palette().color(QPalette::WindowText), Theme::Instance()->Color(QStringLiteral("text")));

    Theme::Instance()->Apply(QStringLiteral("no such theme"));
    EXPECT_EQ(Theme::Instance()->Name(), QStringLiteral("light"));
    EXPECT_EQ(icon.grab().toImage(), lightIcon);
}

TEST(ThemeProperty, RestylesAtOnce) {
    Theme::Instance()->Apply(QStringLiteral("light"));
    QFrame dot;
    dot.setObjectName(QStringLiteral("statusDot"));
    dot.resize(18, 18);
    dot.show();
    const auto middle = [&] { return dot.grab().toImage().pixelColor(9, 9).name(); };
    EXPECT_EQ(middle(), QStringLiteral("#57606a"));
    for (const auto& [state, color] :
         {std::pair{"connected", "#1a7f37"}, std::pair{"connecting", "#9a6700"},
          std::pair{"disconnected", "#cf222e"}, std::pair{"notEnrolled", "#57606a"}}) {
        Theme::SetProperty(&dot, "state", QString::fromLatin1(state));
        EXPECT_EQ(middle(), QString::fromLatin1(color)) << state;
    }
}

TEST(Icons, AreAllDrawableOneColourAndMadeForRecolouring) {
    Theme::Instance()->Apply(QStringLiteral("light"));
    const QDir folder(QStringLiteral(":/res/icons"));
    const QStringList files = folder.entryList(QDir::Files);
    EXPECT_GE(files.size(), 20);
    for (const QString& name : files) {
        SCOPED_TRACE(name.toStdString());
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray drawing = file.readAll();
        EXPECT_TRUE(QSvgRenderer(drawing).isValid());
        EXPECT_EQ(drawing.count('#'), drawing.count("\"#000\""));
        EXPECT_TRUE(drawing.contains("viewBox=\"0 0 24 24\""));
        EXPECT_TRUE(drawing.contains("stroke-width=\"1.75\""));

        const QColor accent = Theme::Instance()->Color(QStringLiteral("accent"));
        const QImage image = ThemeIcon::Get(name.section(QLatin1Char('.'), 0, 0), QStringLiteral("accent"))
                                 .pixmap(QSize(96, 96))
                                 .toImage();
        int drawn = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixelColor(x, y) == accent)
                    ++drawn;
        EXPECT_GT(drawn, 100);
    }
}

// Blown-up pixels repeat in blocks; a drawing made for the size does not.
TEST(Icons, AreDrawnForEveryScale) {
    Theme::Instance()->Apply(QStringLiteral("light"));
    for (const int percent : {125, 150, 200, 250, 300}) {
        const int side = 24 * percent / 100;
        const QIcon icon = ThemeIcon::Get(QStringLiteral("settings"));
        const QImage sharp = icon.pixmap(QSize(side, side)).toImage();
        ASSERT_EQ(sharp.size(), QSize(side, side));
        const QImage blownUp = icon.pixmap(QSize(24, 24)).toImage().scaled(side, side);
        EXPECT_NE(sharp, blownUp) << percent;
    }
}

TEST(Icons, OfDirectionPointInReadingDirection) {
    Theme::Instance()->Apply(QStringLiteral("light"));
    // How much of the drawing is on the left side, in hundredths.
    const auto leftShare = [](const char* name) {
        const QImage image = ThemeIcon::Get(QString::fromLatin1(name)).pixmap(QSize(48, 48)).toImage();
        int left = 0, all = 0;
        for (int y = 0; y < 48; ++y)
            for (int x = 0; x < 48; ++x) {
                all += qAlpha(image.pixel(x, y));
                left += x < 24 ? qAlpha(image.pixel(x, y)) : 0;
            }
        return left * 100 / all;
    };
    const int settings = leftShare("settings");
    EXPECT_GT(leftShare("back"), 55);
    QApplication::setLayoutDirection(Qt::RightToLeft);
    EXPECT_LT(leftShare("back"), 45);
    EXPECT_EQ(leftShare("settings"), settings);
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

TEST(Icons, OfTheTrayDifferByTone) {
    const QIcon light(QStringLiteral(":/res/light/icons/desktop.ico"));
    const QIcon dark(QStringLiteral(":/res/dark/icons/desktop.ico"));
    for (const QIcon& icon : {light, dark})
        for (const int size : {16, 24, 32, 48, 256})
            EXPECT_TRUE(icon.availableSizes().contains(QSize(size, size))) << size;
    EXPECT_NE(light.pixmap(16, 16).toImage(), dark.pixmap(16, 16).toImage());
}

} // namespace
