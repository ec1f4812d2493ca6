#include "app/ULauncher.h"

#include "platform/context/AppContextData.h"
#include "widgets/GestureScrollArea.h"
#include "widgets/UTextButton.h"
#include "widgets/UTextLabel.h"
#include "widgets/UThemePicture.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr int TextWidth = 540;
constexpr int NarrowestWithPicture = 960;

} // namespace

ULauncher::ULauncher(QWidget* parent)
    : QWidget(parent),
      m_title(new UTextLabel("launcherTitle")),
      m_sentence(new UTextLabel("launcherSentence")),
      m_noService(new UTextLabel("launcherNoService")),
      m_enrol(new UTextButton(UTextButton::Look::Primary)),
      m_picture(new UThemePicture(QStringLiteral("launcher"), {440, 360})) {
    m_enrol->setObjectName(QStringLiteral("launcherEnrol"));
    connect(m_enrol, &QPushButton::clicked, this, &ULauncher::EnrolRequested);

    auto* text = new QWidget;
    text->setMaximumWidth(TextWidth);
    auto* column = new QVBoxLayout(text);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(16);
    column->addStretch();
    column->addWidget(m_title);
    column->addWidget(m_sentence);
    column->addSpacing(8);
    for (size_t step = 0; step < m_steps.size(); ++step) {
        auto* number = new QLabel(QString::number(step + 1));
        number->setObjectName(QStringLiteral("stepNumber"));
        number->setFixedSize(36, 36);
        number->setAlignment(Qt::AlignCenter);
        m_steps[step] = new UTextLabel("stepText");
        auto* row = new QHBoxLayout;
        row->setSpacing(14);
        row->addWidget(number, 0, Qt::AlignTop);
        row->addWidget(m_steps[step], 1);
        column->addLayout(row);
    }
    column->addSpacing(16);
    column->addWidget(m_enrol, 0, Qt::AlignLeading);
    column->addWidget(m_noService);
    column->addStretch();

    auto* page = new QWidget;
    page->setObjectName(QStringLiteral("pageBackground"));
    auto* row = new QHBoxLayout(page);
    row->setContentsMargins(48, 32, 48, 32);
    row->setSpacing(48);
    row->addStretch(1);
    row->addWidget(text, 100);
    row->addWidget(m_picture, 60);
    row->addStretch(1);

    auto* scroll = new GestureScrollArea;
    scroll->setWidget(page);
    scroll->setWidgetResizable(true);
    scroll->setFocusPolicy(Qt::NoFocus);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(scroll);
    setFocusProxy(m_enrol);
    const auto follow = [this] { m_noService->setVisible(!AppContextData::Instance()->Linked()); };
    connect(AppContextData::Instance(), &AppContextData::Changed, this, follow);
    follow();
    Retranslate();
}

void ULauncher::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    QWidget::changeEvent(event);
}

void ULauncher::resizeEvent(QResizeEvent* event) {
    m_picture->setVisible(width() >= NarrowestWithPicture);
    QWidget::resizeEvent(event);
}

void ULauncher::Retranslate() {
    m_title->setText(tr("launcher_title"));
    m_sentence->setText(tr("launcher_sentence"));
    m_steps[0]->setText(tr("launcher_step_code"));
    m_steps[1]->setText(tr("launcher_step_enrol"));
    m_steps[2]->setText(tr("launcher_step_done"));
    m_enrol->setText(tr("launcher_button"));
    m_noService->setText(tr("launcher_no_service"));
    setAccessibleName(m_title->text());
}
