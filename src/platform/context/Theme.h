#pragma once

#include <QColor>
#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <QVector>

class QWidget;

/// The look in use: named tokens (colours, sizes, radii, type) and the style sheet made of them.
///
/// The tokens stand in :/res/qss/tokens.json (the same in every theme) and :/res/<theme>/tokens.json; the
/// style sheet is every :/res/qss/*.qss in name order, with each @token@ replaced by its value. GUI thread.
class Theme : public QObject {
    Q_OBJECT

public:
    static Theme* Instance();

    /// Names of the themes, which are also the names of their resource folders.
    static QStringList Names();

    /// Applies a theme to the whole application: one of Names(), or "system" for whichever the desktop looks
    /// like, also after it changes. An empty or unknown name means "light".
    void Apply(const QString& name);

    /// What Apply understands: Names() and "system".
    static QStringList Choices() { return Names() + QStringList(QStringLiteral("system")); }
    /// The one in force.
    QString Choice() const { return m_followsDesktop ? QStringLiteral("system") : m_name; }
    QString Name() const { return m_name; }

    /// Sizes of text to choose from, in percent.
    static QVector<int> TextSizes() { return {100, 115, 130}; }
    /// Sets the size of all text; one that is not to choose means 100.
    void SetTextSize(int percent);
    int TextSize() const { return m_textSize; }
    bool IsDark() const { return m_name == QLatin1String("dark"); }

    /// Whether the desktop itself is dark, as far as it told Qt when the first theme was applied.
    bool IsDesktopDark() const { return m_desktopDark; }

    /// Colour of a token; an unknown name or one that is no colour gives an invalid colour.
    QColor Color(const QString& token) const { return QColor(m_tokens.value(token)); }

    /// Length of a token such as "48px", in device-independent pixels; 0 when it is no length.
    int Length(const QString& token) const;

    /// Font families of the language in use, in order of preference.
    QStringList FontFamilies(const QString& language) const;

    /// A style sheet with its @token@s replaced; the names of unknown tokens are added to `unknown`.
    QString Resolve(const QString& sheet, QStringList* unknown = nullptr) const;

    /// Sets a dynamic property that style sheet rules select by, and restyles the widget at once.
    static void SetProperty(QWidget* widget, const char* name, const QVariant& value);

signals:
    /// Another theme is in use; colours taken before are stale.
    void Changed();

private:
    Theme();
    bool LooksDark() const;
    void ApplyName(const QString& name);
    void ReadTokens();
    void ApplyPalette() const;
    void ApplyFont() const;

    QString m_name;
    bool m_desktopDark = false;
    bool m_followsDesktop = false;
    int m_textSize = 100;
    QTimer m_lookAgain;
    QHash<QString, QString> m_tokens;
};
