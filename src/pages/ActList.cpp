#include "pages/ActList.h"

#include "platform/context/LanguageHelper.h"
#include "widgets/LateUpdate.h"
#include "widgets/UTextButton.h"
#include "widgets/UTextLabel.h"

#include <QEvent>
#include <QFrame>
#include <QGridLayout>

namespace {

constexpr int RowsAtFirst = 8;

QString Words(const ActHistory::Record& record) {
    using Act = ActHistory::Act;
    switch (record.act) {
    case Act::Locked:
        return ActList::tr("act_locked");
    case Act::Unlocked:
        return ActList::tr("act_unlocked");
    case Act::Message:
        return ActList::tr("act_message");
    case Act::WindowsClosed:
        return ActList::tr("act_windows").arg(LanguageHelper::Instance()->Locale().toString(record.times));
    case Act::Clock:
        return ActList::tr("act_clock");
    case Act::Wallpaper:
        return ActList::tr("act_wallpaper");
    case Act::Permissions:
        return ActList::tr("act_permissions");
    case Act::Unenrolled:
        break;
    }
    return ActList::tr("act_unenrolled");
}

} // namespace

ActList::ActList(const ActHistory& history, QWidget* parent)
    : QWidget(parent),
      m_history(history),
      m_title(new UTextLabel("sectionTitle")),
      m_empty(new UTextLabel("pageNote")),
      m_card(new QFrame),
      m_rows(new QGridLayout(m_card)),
      m_older(new UTextButton(UTextButton::Look::Plain)) {
    m_card->setObjectName(QStringLiteral("card"));
    m_older->setObjectName(QStringLiteral("actsOlder"));
    m_rows->setContentsMargins(24, 12, 24, 12);
    m_rows->setHorizontalSpacing(16);
    m_rows->setVerticalSpacing(8);
    m_rows->setColumnStretch(1, 1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    column->addWidget(m_title);
    column->addWidget(m_empty);
    column->addWidget(m_card);
    column->addWidget(m_older, 0, Qt::AlignLeading);
    connect(m_older, &QPushButton::clicked, this, [this] {
        m_showsAll = true;
        ShowAll();
    });
    auto* update = new LateUpdate(this, [this] { ShowAll(); });
    connect(&m_history, &ActHistory::Changed, update, &LateUpdate::Ask);
    ShowAll();
}

void ActList::ShowAll() {
    while (QLayoutItem* item = m_rows->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    const auto count = static_cast<int>(m_history.Records().size());
    const int shown = m_showsAll ? count : qMin(count, RowsAtFirst);
    for (int row = 0; row < shown; ++row) {
        const ActHistory::Record& record = m_history.Records()[static_cast<std::size_t>(row)];
        auto* time =
            new QLabel(LanguageHelper::Instance()->Locale().toString(record.time, QLocale::ShortFormat));
        time->setObjectName(QStringLiteral("factLabel"));
        auto* words = new UTextLabel("actWords");
        words->setText(Words(record));
        m_rows->addWidget(time, row, 0, Qt::AlignTop);
        m_rows->addWidget(words, row, 1);
    }
    m_title->setText(tr("acts_title"));
    m_empty->setText(tr("acts_none"));
    m_empty->setVisible(count == 0);
    m_card->setVisible(count > 0);
    m_older->setText(tr("acts_older").arg(LanguageHelper::Instance()->Locale().toString(count - shown)));
    m_older->setVisible(count > shown);
}

void ActList::showEvent(QShowEvent* event) {
    ShowAll();
    QWidget::showEvent(event);
}

void ActList::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        ShowAll();
    QWidget::changeEvent(event);
}
