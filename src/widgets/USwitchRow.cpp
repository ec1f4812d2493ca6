#include "widgets/USwitchRow.h"

#include "widgets/UIconLabel.h"
#include "widgets/USwitch.h"
#include "widgets/UTextLabel.h"

#include <QVBoxLayout>

USwitchRow::USwitchRow(QWidget* parent)
    : QFrame(parent),
      m_switch(new USwitch),
      m_lock(new UIconLabel(22, QStringLiteral("lock"), QStringLiteral("textMuted"))),
      m_title(new UTextLabel("switchTitle")),
      m_tip(new UTextLabel("switchTip")) {
    auto* texts = new QVBoxLayout;
    texts->setSpacing(4);
    texts->addStretch();
    texts->addWidget(m_title);
    texts->addWidget(m_tip);
    texts->addStretch();
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 4, 0, 4);
    row->setSpacing(16);
    row->addLayout(texts, 1);
    row->addWidget(m_lock);
    row->addWidget(m_switch);
    m_lock->hide();
    connect(m_switch, &USwitch::clicked, this, [this](bool on) {
        if (m_switch->IsHeld())
            emit HeldPressed();
        else
            emit Switched(on);
    });
}

void USwitchRow::SetTexts(const QString& title, const QString& tip) {
    m_title->setText(title);
    m_tip->setText(tip);
    m_tip->setVisible(!tip.isEmpty());
    m_switch->setAccessibleName(title);
    m_switch->setAccessibleDescription(tip);
}

void USwitchRow::SetHeld(bool held) {
    m_switch->SetHeld(held);
    m_switch->update();
    m_lock->setVisible(held);
}

bool USwitchRow::IsOn() const {
    return m_switch->isChecked();
}

void USwitchRow::SetOn(bool on) {
    m_switch->setChecked(on);
}
