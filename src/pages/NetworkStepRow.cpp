#include "pages/NetworkStepRow.h"

#include "pages/NetworkTexts.h"
#include "widgets/UIconLabel.h"
#include "widgets/ULoadingIndicator.h"
#include "widgets/UTextLabel.h"

#include <QGridLayout>
#include <QStackedLayout>

namespace {

constexpr int IconSize = 24;

struct Sign {
    const char* icon;
    const char* color;
};

Sign SignOf(NetworkState state) {
    switch (state) {
    case NetworkState::Passed:
        return {"success", "success"};
    case NetworkState::Failed:
        return {"error", "danger"};
    default:
        return {"skipped", "textMuted"};
    }
}

} // namespace

NetworkStepRow::NetworkStepRow()
    : m_sign(new QStackedLayout),
      m_icon(new UIconLabel(IconSize)),
      m_name(new UTextLabel("networkStepName")),
      m_time(new UTextLabel("networkStepTime")),
      m_sentence(new UTextLabel("networkStepSentence")),
      m_advice(new UTextLabel("networkAdvice")) {
    auto* loading = new ULoadingIndicator;
    loading->setFixedSize(IconSize, IconSize);
    m_sign->addWidget(m_icon);
    m_sign->addWidget(loading);
    m_time->setWordWrap(false);
    m_time->setAlignment(Qt::AlignTrailing | Qt::AlignTop);
    m_sentence->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 10, 0, 10);
    grid->setHorizontalSpacing(14);
    grid->setVerticalSpacing(2);
    grid->setColumnStretch(1, 1);
    grid->addLayout(m_sign, 0, 0, 2, 1, Qt::AlignTop);
    grid->addWidget(m_name, 0, 1);
    grid->addWidget(m_time, 0, 2);
    grid->addWidget(m_sentence, 1, 1, 1, 2);
    grid->addWidget(m_advice, 2, 1, 1, 2);
}

void NetworkStepRow::Show(const NetworkResult& result) {
    const Sign sign = SignOf(result.state);
    m_icon->SetIcon(QLatin1String(sign.icon), QLatin1String(sign.color));
    m_sign->setCurrentIndex(result.state == NetworkState::Running ? 1 : 0);
    m_name->setText(NetworkTexts::Name(result));
    m_time->setText(NetworkTexts::Time(result));
    m_sentence->setText(NetworkTexts::Sentence(result));
    m_advice->setText(NetworkTexts::Advice(result));
    m_advice->setVisible(!m_advice->text().isEmpty());
    setProperty("step", static_cast<int>(result.step));
    setProperty("state", static_cast<int>(result.state));
}
