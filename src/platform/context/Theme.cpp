#include "platform/context/Theme.h"

#include "platform/context/LanguageHelper.h"
#include "platform/system/SystemAppearance.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFont>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPalette>
#include <QRegularExpression>
#include <QStyle>
#include <QWidget>
#include <glog/logging.h>
#include <utility>

namespace {

constexpr int LookAgainMs = 5000;

QByteArray ReadResource(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        LOG(ERROR) << "There is no resource " << path.toStdString();
    return file.readAll();
}

void AddTokens(const QString& path, QHash<QString, QString>& tokens) {
    const QJsonObject table = QJsonDocument::fromJson(ReadResource(path)).object();
    for (auto token = table.begin(); token != table.end(); ++token)
        tokens.insert(token.key(), token.value().toString());
}

QString ReadStyleSheets() {
    const QDir folder(QStringLiteral(":/res/qss"));
    QString all;
    for (const QString& name : folder.entryList({QStringLiteral("*.qss")}, QDir::Files, QDir::Name)) {
        all += QString::fromUtf8(ReadResource(folder.filePath(name)));
    }
    return all;
}

} // namespace

Theme::Theme() {
    connect(&m_lookAgain, &QTimer::timeout, this, [this] {
        if (LooksDark() != IsDark())
            Apply(Choice());
    });
}

Theme* Theme::Instance() {
    static Theme theme;
    return &theme;
}

QStringList Theme::Names() {
    return {QStringLiteral("light"), QStringLiteral("dark")};
}

void Theme::Apply(const QString& name) {
    if (m_name.isEmpty())
        m_desktopDark = QApplication::palette().color(QPalette::Window).lightness() < 128;
    m_followsDesktop = name == QLatin1String("system");
    if (m_followsDesktop && SystemAppearance::Native().AreProgramsDark())
        m_lookAgain.start(LookAgainMs);
    else
        m_lookAgain.stop();
    if (m_followsDesktop)
        ApplyName(LooksDark() ? QStringLiteral("dark") : QStringLiteral("light"));
    else
        ApplyName(Names().contains(name) ? name : Names().constFirst());
}

bool Theme::LooksDark() const {
    return SystemAppearance::Native().AreProgramsDark().value_or(m_desktopDark);
}

void Theme::SetTextSize(int percent) {
    const int before = std::exchange(m_textSize, TextSizes().contains(percent) ? percent : 100);
    if (m_textSize != before && !m_name.isEmpty())
        ApplyName(m_name);
}

void Theme::ApplyName(const QString& name) {
    m_name = name;
    ReadTokens();

    // One base style on every system, so that the style sheet has the same ground to stand on.
    if (QApplication::style()->objectName() != QLatin1String("fusion"))
        QApplication::setStyle(QStringLiteral("Fusion"));
    ApplyPalette();
    ApplyFont();
    connect(LanguageHelper::Instance(), &LanguageHelper::LanguageChanged, this, &Theme::ApplyFont,
            Qt::UniqueConnection);

    QStringList unknown;
    const QString sheet = Resolve(ReadStyleSheets(), &unknown);
    for (const QString& token : unknown)
        LOG(ERROR) << "The style sheet uses the unknown token " << token.toStdString();
    qApp->setStyleSheet(sheet);
    emit Changed();
}

void Theme::ReadTokens() {
    m_tokens = {{QStringLiteral("theme"), m_name}};
    AddTokens(QStringLiteral(":/res/qss/tokens.json"), m_tokens);
    AddTokens(QStringLiteral(":/res/%1/tokens.json").arg(m_name), m_tokens);
    for (const char* name : {"fontSmall", "fontBody", "fontLarge", "fontTitle", "fontHero"}) {
        QString& size = m_tokens[QLatin1String(name)];
        size = QStringLiteral("%1px").arg(Length(QLatin1String(name)) * m_textSize / 100);
    }
}

int Theme::Length(const QString& token) const {
    const QString value = m_tokens.value(token);
    return value.endsWith(QLatin1String("px")) ? value.leftRef(value.size() - 2).toInt() : 0;
}

QStringList Theme::FontFamilies(const QString& language) const {
    const QString common = m_tokens.value(QStringLiteral("fontFamilies"));
    const QString own = m_tokens.value(QStringLiteral("fontFamilies_") + language);
    return (own + QLatin1Char(',') + common).split(QLatin1Char(','), Qt::SkipEmptyParts);
}

QString Theme::Resolve(const QString& sheet, QStringList* unknown) const {
    static const QRegularExpression placeholder(QStringLiteral("@(\\w+)@"));
    QString resolved;
    int copied = 0;
    auto matches = placeholder.globalMatch(sheet);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        resolved += sheet.midRef(copied, match.capturedStart() - copied);
        const auto token = m_tokens.constFind(match.captured(1));
        if (token != m_tokens.constEnd()) {
            resolved += *token;
        } else if (unknown) {
            unknown->append(match.captured(1));
        }
        copied = match.capturedEnd();
    }
    return resolved + sheet.midRef(copied);
}

void Theme::SetProperty(QWidget* widget, const char* name, const QVariant& value) {
    if (widget->property(name) == value)
        return;
    widget->setProperty(name, value);
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
    widget->update();
}

// What no rule of the style sheet reaches: menus of line edits, selections, tool tips, links.
void Theme::ApplyPalette() const {
    QPalette palette;
    const auto set = [&](QPalette::ColorRole role, const char* token) {
        palette.setColor(role, Color(QLatin1String(token)));
    };
    set(QPalette::Window, "window");
    set(QPalette::WindowText, "text");
    set(QPalette::Base, "window");
    set(QPalette::AlternateBase, "surface");
    set(QPalette::Text, "text");
    set(QPalette::Button, "surface");
    set(QPalette::ButtonText, "text");
    set(QPalette::ToolTipBase, "toast");
    set(QPalette::ToolTipText, "toastText");
    set(QPalette::Highlight, "accent");
    set(QPalette::HighlightedText, "accentText");
    set(QPalette::Link, "accent");
    set(QPalette::LinkVisited, "accent");
    set(QPalette::PlaceholderText, "textMuted");
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, Color(QStringLiteral("textDisabled")));
    }
    QApplication::setPalette(palette);
}

void Theme::ApplyFont() const {
    QFont font;
    font.setFamilies(FontFamilies(LanguageHelper::Instance()->Language()));
    font.setPixelSize(Length(QStringLiteral("fontBody")));
    QApplication::setFont(font);
}
