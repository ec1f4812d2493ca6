#include "pages/UAppearance.h"

#include "platform/application/RyxWindow.h"
#include "platform/context/AppHelper.h"
#include "platform/context/LanguageHelper.h"
#include "platform/context/Theme.h"
#include "widgets/UIconLabel.h"

#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QListView>
#include <QWheelEvent>

namespace {

/// Leaves the wheel to the page, which is scrolled with it.
class Box : public QComboBox {
protected:
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

QComboBox* MakeBox(const char* objectName, QLabel* label) {
    auto* box = new Box;
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
      m_textSizeLabel(new QLabel),
      m_language(MakeBox("languageBox", m_languageLabel)),
      m_theme(MakeBox("themeBox", m_themeLabel)),
      m_textSize(MakeBox("textSizeBox", m_textSizeLabel)) {
    setObjectName(QStringLiteral("card"));
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(24, 20, 24, 20);
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(16);
    grid->setColumnStretch(1, 1);
    const auto addRow = [grid](const char* icon, QLabel* label, QComboBox* box) {
        const int row = grid->rowCount();
        grid->addWidget(new UIconLabel(22, QLatin1String(icon), QStringLiteral("textMuted")), row, 0);
        grid->addWidget(label, row, 1);
        grid->addWidget(box, row, 2);
    };
    addRow("language", m_languageLabel, m_language);
    addRow("theme", m_themeLabel, m_theme);
    addRow("text", m_textSizeLabel, m_textSize);

    for (const LanguageHelper::Entry& language : LanguageHelper::Languages())
        m_language->addItem(language.name, language.code);
    for (const QString& theme : Theme::Choices())
        m_theme->addItem(QString(), theme);
    for (const int size : Theme::TextSizes())
        m_textSize->addItem(QString(), size);
    Retranslate();

    const auto onChosen = [this](QComboBox* box, const auto& choose) {
        connect(box, QOverload<int>::of(&QComboBox::activated), this, [this, box, choose](int index) {
            RyxWindow* window = RyxWindow::Of(this);
            if (!choose(box->itemData(index)) && window)
                window->Notify(NoticeKind::Warning, tr("settings_not_kept"));
        });
    };
    onChosen(m_language, [](const QVariant& code) { return AppHelper::ChooseLanguage(code.toString()); });
    onChosen(m_theme, [](const QVariant& name) { return AppHelper::ChooseTheme(name.toString()); });
    onChosen(m_textSize, [](const QVariant& percent) { return AppHelper::ChooseTextSize(percent.toInt()); });
    connect(LanguageHelper::Instance(), &LanguageHelper::LanguageChanged, this, &UAppearance::ShowChoices);
    connect(Theme::Instance(), &Theme::Changed, this, &UAppearance::ShowChoices);
    ShowChoices();
}

void UAppearance::ShowChoices() {
    m_language->setCurrentIndex(m_language->findData(LanguageHelper::Instance()->Language()));
    m_theme->setCurrentIndex(m_theme->findData(Theme::Instance()->Choice()));
    m_textSize->setCurrentIndex(m_textSize->findData(Theme::Instance()->TextSize()));
}

void UAppearance::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    QFrame::changeEvent(event);
}

void UAppearance::Retranslate() {
    m_languageLabel->setText(tr("settings_language"));
    m_themeLabel->setText(tr("settings_theme"));
    m_textSizeLabel->setText(tr("settings_text_size"));
    const QString themes[] = {tr("settings_theme_light"), tr("settings_theme_dark"),
                              tr("settings_theme_system")};
    const QString sizes[] = {tr("settings_text_normal"), tr("settings_text_large"),
                             tr("settings_text_larger")};
    for (int i = 0; i < 3; ++i) {
        m_theme->setItemText(i, themes[i]);
        m_textSize->setItemText(i, sizes[i]);
    }
    m_language->setAccessibleName(m_languageLabel->text());
    m_theme->setAccessibleName(m_themeLabel->text());
    m_textSize->setAccessibleName(m_textSizeLabel->text());
}
