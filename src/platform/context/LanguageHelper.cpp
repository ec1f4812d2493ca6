#include "platform/context/LanguageHelper.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>
#include <algorithm>
#include <glog/logging.h>

namespace {

constexpr char Context[] = "Ryx";

QString TranslationFile(const QString& code) {
    return QStringLiteral(":/res/translations/ryx_%1.qm").arg(code);
}

bool LoadInto(QTranslator& translator, const QString& code) {
    const bool loaded = translator.load(TranslationFile(code));
    LOG_IF(ERROR, !loaded) << "There is no translation for " << code.toStdString();
    return loaded;
}

} // namespace

/// One installed translator for all of them: changing the language is then one event and not several.
class KeyTranslator : public QTranslator {
public:
    explicit KeyTranslator(QObject* parent) : QTranslator(parent) {
        LoadInto(m_english, QStringLiteral("en"));
    }

    void SetLanguage(const QString& code) {
        LoadInto(m_chosen, code);
        m_rightToLeft = QLocale(code).textDirection() == Qt::RightToLeft;
        // Texts of Qt's own widgets, such as the menu of a line edit; where they are not installed, English.
        if (!m_qt.load(QStringLiteral("qtbase_") + code,
                       QLibraryInfo::location(QLibraryInfo::TranslationsPath))) {
            m_qt.load(nullptr, 0);
        }
    }

    bool isEmpty() const override { return false; }

    QString translate(const char* context, const char* key, const char* disambiguation,
                      int n) const override {
        // With every change of language, Qt asks this way how to lay out.
        if (qstrcmp(key, "QT_LAYOUT_DIRECTION") == 0)
            return m_rightToLeft ? QStringLiteral("RTL") : QStringLiteral("LTR");
        QString text = m_chosen.translate(Context, key, disambiguation, n);
        if (text.isNull())
            text = m_english.translate(Context, key, disambiguation, n);
        if (text.isNull())
            text = m_qt.translate(context, key, disambiguation, n);
        return text;
    }

private:
    QTranslator m_english;
    QTranslator m_chosen;
    QTranslator m_qt;
    bool m_rightToLeft = false;
};

LanguageHelper::LanguageHelper() = default;
LanguageHelper::~LanguageHelper() = default;

LanguageHelper* LanguageHelper::Instance() {
    static LanguageHelper helper;
    return &helper;
}

QVector<LanguageHelper::Entry> LanguageHelper::Languages() {
    return {
        {QStringLiteral("en"), QStringLiteral("English")},
        {QStringLiteral("de"), QStringLiteral("Deutsch")},
        {QStringLiteral("fr"), QStringLiteral("Français")},
        {QStringLiteral("es"), QStringLiteral("Español")},
        {QStringLiteral("zh_CN"), QStringLiteral("简体中文")},
        {QStringLiteral("ja"), QStringLiteral("日本語")},
        {QStringLiteral("ar"), QStringLiteral("العربية")},
    };
}

QString LanguageHelper::SystemLanguage() {
    const QVector<Entry> shipped = Languages();
    for (const QString& wanted : QLocale::system().uiLanguages()) {
        const QLocale::Language language = QLocale(wanted).language();
        const auto match = std::find_if(shipped.begin(), shipped.end(), [&](const Entry& entry) {
            return QLocale(entry.code).language() == language;
        });
        if (match != shipped.end())
            return match->code;
    }
    return shipped.constFirst().code;
}

void LanguageHelper::SetLanguage(const QString& code) {
    const QVector<Entry> shipped = Languages();
    const bool known =
        std::any_of(shipped.begin(), shipped.end(), [&](const Entry& entry) { return entry.code == code; });
    m_language = known ? code : SystemLanguage();

    const bool first = !m_translator;
    if (first)
        m_translator = new KeyTranslator(qApp);
    m_translator->SetLanguage(m_language);
    if (first) {
        QCoreApplication::installTranslator(m_translator);
    } else {
        QEvent event(QEvent::LanguageChange);
        QCoreApplication::sendEvent(qApp, &event);
    }
    emit LanguageChanged();
}
