#include "platform/context/Theme.h"

#include "widgets/ThemeIcon.h"
#include "widgets/UIconLabel.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QSvgRenderer>
#include <cmath>
#include <set>

namespace {

QByteArray Contents(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

QStringList Tokens(const QString& theme) {
    return QJsonDocument::fromJson(Contents(QStringLiteral(":/res/%1/tokens.json").arg(theme)))
        .object()
        .keys();
}

QImage Icon(const char* name, int side, const char* color = "text") {
    return ThemeIcon::Get(QString::fromLatin1(name), QString::fromLatin1(color))
        .pixmap(QSize(side, side))
        .toImage();
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

class ThemeTest : public testing::Test {
protected:
    void SetUp() override { theme.Apply(QStringLiteral("light")); }

    Theme& theme = *Theme::Instance();
};

TEST_F(ThemeTest, TokensAreTheSameInEveryThemeAndAllThatAStyleSheetNames) {
    const QStringList light = Tokens(QStringLiteral("light"));
    EXPECT_FALSE(light.isEmpty());
    const QDir folder(QStringLiteral(":/res/qss"));
    for (const QString& name : Theme::Names()) {
        EXPECT_EQ(Tokens(name), light) << name.toStdString();
        theme.Apply(name);
        for (const QString& sheet : folder.entryList({QStringLiteral("*.qss")})) {
            QStringList unknown;
            const QString resolved =
                theme.Resolve(QString::fromUtf8(Contents(folder.filePath(sheet))), &unknown);
            EXPECT_EQ(unknown, QStringList()) << sheet.toStdString();
            EXPECT_FALSE(resolved.contains(QLatin1Char('@'))) << sheet.toStdString();
            EXPECT_EQ(resolved.count(QLatin1Char('{')), resolved.count(QLatin1Char('}')))
                << sheet.toStdString();
        }
    }
}

TEST_F(ThemeTest, TextStandsOutFromItsGround) {
    constexpr double Text = 4.5, Graphic = 3.0;
    const struct {
        const char* texts;
        const char* grounds;
        double least;
    } table[] = {
        {"text", "window surface raised hover pressed", Text},
        {"textMuted", "window surface raised", Text},
        {"accentText", "accent accentHover accentPressed", Text},
        {"accentSoftText", "accentSoft", Text},
        {"dangerText", "danger dangerHover", Text},
        {"toastText", "toast", Text},
        {"lockText", "lockBackground lockSurface", Text},
        {"lockAccentText", "lockAccent", Text},
        {"focus", "window surface raised", Graphic},
        {"borderStrong danger", "window", Graphic},
        {"toastInfo toastSuccess toastWarning toastError", "toast", Graphic},
        {"lockAccent lockBorder", "lockBackground", Graphic},
    };
    for (const QString& name : Theme::Names()) {
        theme.Apply(name);
        for (const auto& [texts, grounds, least] : table)
            for (const QString& text : QString::fromLatin1(texts).split(QLatin1Char(' ')))
                for (const QString& ground : QString::fromLatin1(grounds).split(QLatin1Char(' '))) {
                    SCOPED_TRACE(
                        qPrintable(name + QStringLiteral(": ") + text + QStringLiteral(" on ") + ground));
                    ASSERT_TRUE(theme.Color(text).isValid() && theme.Color(ground).isValid());
                    EXPECT_GE(Contrast(theme.Color(text), theme.Color(ground)), least);
                }
    }
}

TEST_F(ThemeTest, AChangeReachesWidgetsThatAreOnScreen) {
    UIconLabel icon(24, QStringLiteral("theme"), QStringLiteral("text"));
    icon.show();
    QLabel label(QStringLiteral("text"));
    label.show();
    const QImage lightIcon = icon.grab().toImage();
    QSignalSpy changed(&theme, &Theme::Changed);

    theme.Apply(QStringLiteral("dark"));
    EXPECT_EQ(changed.count(), 1);
    EXPECT_NE(icon.grab().toImage(), lightIcon);
    EXPECT_EQ(label.palette().color(QPalette::WindowText), theme.Color(QStringLiteral("text")));
    theme.Apply(QStringLiteral("no such theme"));
    EXPECT_EQ(theme.Name(), QStringLiteral("light"));
    EXPECT_EQ(icon.grab().toImage(), lightIcon);

    QFrame dot;
    dot.setObjectName(QStringLiteral("statusDot"));
    dot.resize(18, 18);
    dot.show();
    std::set<QRgb> colors;
    for (const char* state : {"connected", "connecting", "disconnected", "notEnrolled"}) {
        Theme::SetProperty(&dot, "state", QString::fromLatin1(state));
        colors.insert(dot.grab().toImage().pixel(9, 9));
    }
    EXPECT_EQ(colors.size(), 4u) << "a property restyles at once";
}

TEST_F(ThemeTest, IconsAreDrawnInTheColourAskedForAndAtEveryScale) {
    const QRgb accent = theme.Color(QStringLiteral("accent")).rgba();
    const QStringList files = QDir(QStringLiteral(":/res/icons")).entryList(QDir::Files);
    EXPECT_FALSE(files.isEmpty());
    for (const QString& name : files) {
        SCOPED_TRACE(name.toStdString());
        const QByteArray drawing = Contents(QStringLiteral(":/res/icons/") + name);
        EXPECT_TRUE(QSvgRenderer(drawing).isValid());
        EXPECT_EQ(drawing.count('#'), drawing.count("\"#000\"")) << "one colour, made to be replaced";
        const QImage image = Icon(qPrintable(name.section(QLatin1Char('.'), 0, 0)), 96, "accent");
        const auto* pixels = reinterpret_cast<const QRgb*>(image.constBits());
        EXPECT_GT(std::count(pixels, pixels + image.width() * image.height(), accent), 100);
    }
    // Blown-up pixels repeat in blocks; a drawing made for the size does not.
    for (const int side : {30, 36, 48, 60, 72}) {
        ASSERT_EQ(Icon("settings", side).size(), QSize(side, side));
        EXPECT_NE(Icon("settings", side), Icon("settings", 24).scaled(side, side)) << side;
    }
}

TEST_F(ThemeTest, IconsOfDirectionPointInReadingDirectionAndThoseOfTheTrayDifferByTone) {
    // How much more of the drawing is on the left side than on the right.
    const auto leaning = [](const char* name) {
        const QImage halves = Icon(name, 48).scaled(2, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        return qAlpha(halves.pixel(0, 0)) - qAlpha(halves.pixel(1, 0));
    };
    const int settings = leaning("settings");
    EXPECT_GT(leaning("back"), 5);
    QApplication::setLayoutDirection(Qt::RightToLeft);
    EXPECT_LT(leaning("back"), -5);
    EXPECT_EQ(leaning("settings"), settings);
    QApplication::setLayoutDirection(Qt::LeftToRight);

    const QIcon light(QStringLiteral(":/res/light/icons/desktop.ico")),
        dark(QStringLiteral(":/res/dark/icons/desktop.ico"));
    for (const int size : {16, 24, 32, 48, 256}) {
        EXPECT_EQ(light.pixmap(size, size).width(), size);
        EXPECT_NE(light.pixmap(size, size).toImage(), dark.pixmap(size, size).toImage()) << size;
    }
}

} // namespace
