#include "pages/UAppearance.h"

#include "platform/context/LanguageHelper.h"
#include "platform/context/Theme.h"
#include "widgets/UIconLabel.h"

#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QListView>

namespace {

QComboBox* MakeBox(const char* objectName, QLabel* label) {
    auto* box = new QComboBox;
    box->setObjectName(QString::fromLatin1(objectName));
    // The style sheet reaches the rows of a list view of our own, but not those of the built-in popup.
    box->setView(new QListView(box));
    box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    box->setMinimumWidth(200);
    label->setBuddy(box);
    label->setTextFormat(Qt::PlainText);
    return box;
}

} // namespace

UAppearance::UAppearance(QWidget* parent)
    : QFrame(parent),
      m_languageLabel(new QLabel),
      m_themeLabel(new QLabel),
      m_language(MakeBox("languageBox", m_languageLabel)),
      m_theme(MakeBox("themeBox", m_themeLabel)) {
    setObjectName(QStringLiteral("card"));
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(24, 20, 24, 20);
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(16);
    grid->setColumnStretch(1, 1);
    grid->addWidget(new UIconLabel(22, QStringLiteral("language"), QStringLiteral("textMuted")), 0, 0);
    grid->addWidget(m_languageLabel, 0, 1);
    grid->addWidget(m_language, 0, 2);
    grid->addWidget(new UIconLabel(22, QStringLiteral("theme"), QStringLiteral("textMuted")), 1, 0);
    grid->addWidget(m_themeLabel, 1, 1);
    grid->addWidget(m_theme, 1, 2);

    for (const LanguageHelper::Entry& language : LanguageHelper::Languages())
        m_language->addItem(language.name, language.code);
    for (const QString& theme : Theme::Names())
        m_theme->addItem(QString(), theme);
    Retranslate();

    connect(m_language, QOverload<int>::of(&QComboBox::activated), this, [this](int index) {
        LanguageHelper::Instance()->SetLanguage(m_language->itemData(index).toString());
    });
    connect(m_theme, QOverload<int>::of(&QComboBox::activated), this,
            [this](int index) { Theme::Instance()->Apply(m_theme->itemData(index).toString()); });
    const auto follow = [this] {
        m_language->setCurrentIndex(m_language->findData(LanguageHelper::Instance()->Language()));
        m_theme->setCurrentIndex(m_theme->findData(Theme::Instance()->Name()));
    };
    connect(LanguageHelper::Instance(), &LanguageHelper::LanguageChanged, this, follow);
    connect(Theme::Instance(), &Theme::Changed, this, follow);
    follow();
}

void UAppearance::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    QFrame::changeEvent(event);
}

void UAppearance::Retranslate() {
    m_languageLabel->setText(tr("settings_language"));
    m_themeLabel->setText(tr("settings_theme"));
    m_theme->setItemText(m_theme->findData(QStringLiteral("light")), tr("settings_theme_light"));
    m_theme->setItemText(m_theme->findData(QStringLiteral("dark")), tr("settings_theme_dark"));
    m_language->setAccessibleName(m_languageLabel->text());
    m_theme->setAccessibleName(m_themeLabel->text());
}
