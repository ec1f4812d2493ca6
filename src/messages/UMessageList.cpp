#include "messages/UMessageList.h"

#include "messages/FileNames.h"
#include "messages/MessageHistory.h"
#include "platform/context/LanguageHelper.h"
#include "widgets/UTextLabel.h"

#include <QEvent>
#include <QListWidget>
#include <QScroller>
#include <QVBoxLayout>

namespace {

constexpr QSize FirstSize(640, 520);
constexpr int MostOfText = 200;

const char* StateKey(MessageState state) {
    switch (state) {
    case MessageState::New:
        return QT_TRANSLATE_NOOP("", "message_state_new");
    case MessageState::Read:
        return QT_TRANSLATE_NOOP("", "message_state_read");
    case MessageState::Withdrawn:
        break;
    }
    return QT_TRANSLATE_NOOP("", "message_state_withdrawn");
}

/// One line: the beginning of the text, else the file's name.
QString Words(const Message& message) {
    const QString text = message.text.left(MostOfText).simplified();
    return text.isEmpty() ? FileNames::Safe(QString::fromStdString(message.file.name)) : text;
}

} // namespace

UMessageList::UMessageList(const MessageHistory& history)
    : m_history(history), m_list(new QListWidget), m_none(new UTextLabel("messageNone")) {
    setObjectName(QStringLiteral("UMessageList"));
    setAttribute(Qt::WA_StyledBackground);
    resize(FirstSize);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setTextElideMode(Qt::ElideRight);
    QScroller::grabGesture(m_list->viewport(), QScroller::TouchGesture);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(20, 20, 20, 20);
    column->addWidget(m_none);
    column->addWidget(m_list, 1);
    connect(&m_history, &MessageHistory::Changed, this, &UMessageList::Fill);
    const auto choose = [this](const QListWidgetItem* item) {
        emit Chosen(item->data(Qt::UserRole).toInt());
    };
    connect(m_list, &QListWidget::itemClicked, this, choose);
    connect(m_list, &QListWidget::itemActivated, this, choose);
    Fill();
}

void UMessageList::Fill() {
    const QString title = tr("messages_title");
    setWindowTitle(title);
    m_list->setAccessibleName(title);
    m_none->setText(tr("messages_none"));
    m_none->setVisible(m_history.Messages().empty());
    m_list->setVisible(!m_history.Messages().empty());
    const QListWidgetItem* current = m_list->currentItem();
    const int currentId = current ? current->data(Qt::UserRole).toInt() : 0;
    m_list->clear();
    for (const Message& message : m_history.Messages()) {
        const QString time =
            LanguageHelper::Instance()->Locale().toString(message.received, QLocale::ShortFormat);
        auto* item = new QListWidgetItem(
            QStringLiteral("%1 · %2\n%3").arg(time, tr(StateKey(message.state)), Words(message)));
        item->setData(Qt::UserRole, message.id);
        m_list->insertItem(0, item);
        if (message.id == currentId)
            m_list->setCurrentItem(item);
    }
    if (m_list->currentRow() < 0)
        m_list->setCurrentRow(0);
}

void UMessageList::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        Fill();
    QWidget::changeEvent(event);
}
