#pragma once

#include <QLocale>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QVector>

class KeyTranslator;

/// The language in use. Texts are translation keys, and a key means the same wherever it is used: the
/// .ts files hold each key once, in one context, whoever's tr() or Text() asks for it. What a language
/// leaves out is shown in English. GUI thread.
class LanguageHelper : public QObject {
    Q_OBJECT

public:
    struct Entry {
        QString code; ///< such as "zh_CN"
        QString name; ///< in the language itself
    };

    static LanguageHelper* Instance();

    /// The shipped languages, English first.
    static QVector<Entry> Languages();

    /// The shipped language that suits the user's system best.
    static QString SystemLanguage();

    /// Changes the language of the running program: every widget gets a LanguageChange event, and the
    /// layout direction follows. An empty or unknown code means the system's language.
    void SetLanguage(const QString& code);

    /// Code of the language in use; before the first SetLanguage it is "en".
    QString Language() const { return m_language; }

    /// For dates and numbers in texts shown to the user.
    QLocale Locale() const { return QLocale(m_language); }

    /// A number of bytes in words, such as "1.4 MB".
    QString SizeText(qint64 bytes, int decimals = 1) const {
        return Locale().formattedDataSize(bytes, decimals, QLocale::DataSizeTraditionalFormat);
    }

signals:
    /// Another language is in use, and every widget has been told.
    void LanguageChanged();

private:
    LanguageHelper();
    ~LanguageHelper() override;

    QString m_language = QStringLiteral("en");
    QPointer<KeyTranslator> m_translator;
};
