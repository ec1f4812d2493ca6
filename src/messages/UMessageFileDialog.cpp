#include "messages/UMessageFileDialog.h"

#include "messages/FileNames.h"
#include "messages/MessageFilePanel.h"
#include "messages/MessageText.h"
#include "platform/application/WindowStack.h"
#include "platform/context/LanguageHelper.h"
#include "platform/context/Theme.h"
#include "widgets/AccessibleRole.h"
#include "widgets/GestureScrollArea.h"
#include "widgets/QFlowLayout.h"
#include "widgets/ReturnKey.h"
#include "widgets/UIconLabel.h"
#include "widgets/UTextButton.h"
#include "widgets/UTextLabel.h"

#include <QCloseEvent>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QScreen>
#include <QVBoxLayout>
#include <QVariant>
#include <algorithm>
#include <glog/logging.h>

namespace {

constexpr int TopLevel = 2;
constexpr int SecondMs = 1000;
constexpr QSize WantedSize(760, 560);
constexpr int AddressHeight = 96;
constexpr int MostCharacters = 100000; // of a text; more than anybody reads

QString TextOf(const MessageRequest& request) {
    const QString text = QString::fromStdString(request.text);
    return text.size() <= MostCharacters ? text : text.left(MostCharacters) + QStringLiteral(" …");
}

} // namespace

UMessageFileDialog::UMessageFileDialog(MessageHistory& history, MessageFiles& files, const Clock& clock)
    : m_history(history), m_files(files), m_clock(clock) {
    setObjectName(QStringLiteral("UMessageFileDialog"));
    m_second.setObjectName(QStringLiteral("messageTimer"));
    m_second.setInterval(SecondMs);
    connect(&m_second, &QTimer::timeout, this, &UMessageFileDialog::OnSecond);
    connect(&m_files, &MessageFiles::Changed, this, &UMessageFileDialog::OnFileChanged);
    connect(&m_history, &MessageHistory::Removed, this, &UMessageFileDialog::Drop);
}

void UMessageFileDialog::Initialization() {
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowCloseButtonHint | Qt::WindowStaysOnTopHint);
    setAttribute(Qt::WA_StyledBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setProperty("TopLevel", TopLevel);
    SetAccessibleRole(this, QAccessible::AlertMessage);
    m_text = new MessageText;
    m_file = new MessageFilePanel(m_files);
    m_addressPanel = MakeAddressPanel();
    // What the screen has no room for is scrolled; the button stays.
    auto* content = new QWidget;
    auto* parts = new QVBoxLayout(content);
    parts->setContentsMargins(0, 0, 0, 0);
    parts->setSpacing(16);
    parts->addWidget(MakeHead());
    parts->addWidget(m_text, 2);
    parts->addWidget(m_file, 1);
    parts->addWidget(m_addressPanel);
    auto* scroll = new GestureScrollArea;
    scroll->setWidget(content);
    scroll->setWidgetResizable(true);
    scroll->setFocusPolicy(Qt::NoFocus);
    m_note = new UTextLabel("messageNote");
    m_count = new QLabel;
    m_count->setObjectName(QStringLiteral("messageCount"));
    m_ok = new UTextButton(UTextButton::Look::Primary);
    m_ok->setObjectName(QStringLiteral("okButton"));
    auto* foot = new QHBoxLayout;
    foot->setSpacing(16);
    foot->addWidget(m_note, 1);
    foot->addWidget(m_count);
    foot->addWidget(m_ok);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(28, 24, 28, 24);
    column->setSpacing(16);
    column->addWidget(scroll, 1);
    column->addLayout(foot);
    connect(m_ok, &QPushButton::clicked, this, &UMessageFileDialog::CloseCurrent);
    connect(m_text, &MessageText::AddressChosen, this, &UMessageFileDialog::ShowAddress);
    connect(Theme::Instance(), &Theme::Changed, this, &UMessageFileDialog::LanguageChanges);
    WindowStack::Instance()->PushWindow(this);
}

QWidget* UMessageFileDialog::MakeHead() {
    m_icon = new UIconLabel(36);
    m_title = new UTextLabel("messageTitle");
    m_time = new UTextLabel("messageTime");
    auto* words = new QVBoxLayout;
    words->setSpacing(2);
    words->addWidget(m_title);
    words->addWidget(m_time);
    auto* head = new QWidget;
    auto* row = new QHBoxLayout(head);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(16);
    row->addWidget(m_icon, 0, Qt::AlignTop);
    row->addLayout(words, 1);
    return head;
}

QFrame* UMessageFileDialog::MakeAddressPanel() {
    auto* panel = new QFrame;
    panel->setObjectName(QStringLiteral("messageAddress"));
    panel->setProperty("card", true);
    m_addressTitle = new UTextLabel("messageAddressTitle");
    m_addressText = new QPlainTextEdit;
    m_addressText->setObjectName(QStringLiteral("messageAddressText"));
    m_addressText->setReadOnly(true);
    m_addressText->setTabChangesFocus(true);
    m_addressText->setWordWrapMode(QTextOption::WrapAnywhere);
    m_addressText->setLayoutDirection(Qt::LeftToRight);
    m_addressText->setFixedHeight(AddressHeight);
    m_addressBack = new UTextButton(UTextButton::Look::Secondary);
    m_addressOpen = new UTextButton(UTextButton::Look::Secondary);
    m_addressOpen->setObjectName(QStringLiteral("openAddressButton"));
    auto* buttons = new QFlowLayout(nullptr, 0, 12, 8);
    buttons->addWidget(m_addressBack);
    buttons->addWidget(m_addressOpen);
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(16, 12, 16, 12);
    column->addWidget(m_addressTitle);
    column->addWidget(m_addressText);
    column->addLayout(buttons);
    panel->hide();
    connect(m_addressBack, &QPushButton::clicked, panel, &QWidget::hide);
    connect(m_addressOpen, &QPushButton::clicked, panel, [this, panel] {
        panel->hide();
        QDesktopServices::openUrl(m_address);
    });
    return panel;
}

void UMessageFileDialog::SetDataRequest(const MessageRequest& request, const FileInfoParams& file) {
    if (request.Withdraws()) {
        Withdraw(request.operationId);
        return;
    }
    Replace(request.operationId);
    Message message;
    message.operationId = request.operationId;
    message.received = m_clock.Now();
    message.isEmergency = request.IsEmergency();
    message.mayBeClosed = request.MayBeClosed();
    message.seconds = std::max(0, request.playDuration);
    message.showings = std::max(1, request.loopTime);
    if (request.HasText())
        message.text = TextOf(request);
    message.file = file;
    const MessageQueue::Turn* turn = m_queue.Current();
    message.id = m_history.Add(message, turn ? turn->id : 0);
    m_files.Fetch(message.id);
    Enqueue(message);
    ShowCurrent();
}

void UMessageFileDialog::ShowUnread() {
    const std::vector<Message> messages = m_history.Messages();
    for (const Message& message : messages) {
        if (message.state != MessageState::New || m_queue.Contains(message.id))
            continue;
        m_files.Fetch(message.id);
        Enqueue(message);
    }
    ShowCurrent();
}

void UMessageFileDialog::ShowAgain(int id) {
    const Message* message = m_history.Find(id);
    if (!message)
        return;
    if (!m_queue.Contains(id) || message->mayBeClosed) { // else it stays until its turns are over
        MessageQueue::Turn turn;
        turn.id = id;
        turn.isEmergency = message->isEmergency && message->state == MessageState::New;
        turn.isAgain = true;
        m_queue.Remove(id);
        m_queue.Add(turn);
        if (!message->savedAs.isEmpty())
            m_files.Fetch(id);
    }
    ShowCurrent();
    if (isVisible()) {
        raise();
        activateWindow();
    }
}

void UMessageFileDialog::Enqueue(const Message& message) {
    MessageQueue::Turn turn;
    turn.id = message.id;
    turn.isEmergency = message.isEmergency;
    turn.seconds = message.seconds;
    turn.showings = message.showings;
    m_queue.Add(turn);
}

void UMessageFileDialog::Drop(int id) {
    m_queue.Remove(id);
    m_files.Forget(id);
}

void UMessageFileDialog::Withdraw(int operationId) {
    const std::vector<Message> messages = m_history.Messages();
    for (const Message& message : messages) {
        if (operationId == 0 || message.operationId != operationId ||
            message.state == MessageState::Withdrawn)
            continue;
        m_history.SetState(message.id, MessageState::Withdrawn);
        Drop(message.id);
    }
    ShowCurrent();
}

void UMessageFileDialog::Replace(int operationId) {
    const std::vector<Message> messages = m_history.Messages();
    for (const Message& message : messages) {
        if (operationId != 0 && message.operationId == operationId)
            m_history.Remove(message.id);
    }
}

void UMessageFileDialog::OnSecond() {
    m_isFresh = false;
    if (WindowStack::Instance()->IsLocked())
        return;
    if (isVisible() && !isMinimized())
        if (const auto over = m_queue.PassSecond())
            MarkRead(*over);
    ShowCurrent();
}

// Under a lock nothing is shown; the timer looks again each second.
void UMessageFileDialog::ShowCurrent() {
    const MessageQueue::Turn* turn = m_queue.Current();
    const Message* message = turn ? m_history.Find(turn->id) : nullptr;
    if (!message) {
        m_second.stop();
        m_shown = 0;
        m_files.LookAt(0);
        hide();
        return;
    }
    if (!m_second.isActive())
        m_second.start();
    if (WindowStack::Instance()->IsLocked())
        return;
    if (!m_text)
        Initialization();
    const bool isNew = m_shown != message->id;
    if (isNew) {
        m_addressPanel->hide();
        m_isFresh = true;
        m_second.start();
    }
    m_shown = message->id;
    if (isNew || !isVisible())
        Fill(*message);
    ShowCount();
    if (!isVisible()) {
        PlaceOnScreen(); // the screens may have changed
        show();
    }
    setWindowState(windowState() & ~Qt::WindowMinimized);
    if (isNew) {
        raise();
        AnnounceAlert(this);
    }
}

void UMessageFileDialog::ShowCount() {
    m_count->setText(
        tr("message_count").arg(LanguageHelper::Instance()->Locale().toString(m_queue.Waiting())));
    m_count->setVisible(m_queue.Waiting() > 0);
}

void UMessageFileDialog::Fill(const Message& message) {
    const QString title = message.isEmergency ? tr("message_title_emergency") : tr("message_title");
    setWindowTitle(title);
    setAccessibleName(title);
    setAccessibleDescription(
        message.text.isEmpty() ? FileNames::Safe(QString::fromStdString(message.file.name)) : message.text);
    m_icon->SetIcon(message.isEmergency ? QStringLiteral("warning") : QStringLiteral("message"),
                    message.isEmergency ? QStringLiteral("danger") : QStringLiteral("accent"));
    m_title->setText(title);
    Theme::SetProperty(m_title, "emergency", message.isEmergency);
    m_time->setText(LanguageHelper::Instance()->Locale().toString(message.received, QLocale::ShortFormat));
    m_text->SetText(message.text);
    m_text->setAccessibleName(title);
    m_text->setVisible(!message.text.isEmpty());
    m_file->setVisible(message.HasFile());
    m_files.LookAt(message.HasFile() ? message.id : 0);
    if (message.HasFile())
        m_file->SetMessage(message);
    m_note->setText(MayBeClosed() ? QString() : tr("message_kept_open"));
    m_ok->setText(tr("button_ok"));
    m_ok->setVisible(MayBeClosed());
    m_addressTitle->setText(tr("message_address_title"));
    m_addressText->setAccessibleName(m_addressTitle->text());
    m_addressOpen->setText(tr("message_address_open"));
    m_addressBack->setText(tr("button_back"));
}

void UMessageFileDialog::ShowAddress(const QUrl& address) {
    m_address = address;
    m_addressText->setPlainText(QString::fromLatin1(address.toEncoded()));
    m_addressPanel->show();
    GestureScrollArea::Reveal(m_addressPanel);
    m_addressBack->setFocus();
}

void UMessageFileDialog::PlaceOnScreen() {
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    const QSize size = WantedSize.boundedTo(room.size() * 9 / 10);
    setGeometry(QRect(room.center() - QPoint(size.width(), size.height()) / 2, size));
}

bool UMessageFileDialog::MayBeClosed() const {
    const MessageQueue::Turn* turn = m_queue.Current();
    const Message* message = turn ? m_history.Find(turn->id) : nullptr;
    return !message || message->mayBeClosed || turn->isAgain;
}

void UMessageFileDialog::CloseCurrent() {
    const MessageQueue::Turn* turn = m_queue.Current();
    if (!turn || m_isFresh || !MayBeClosed())
        return;
    const int id = turn->id;
    m_queue.Remove(id);
    MarkRead(id);
    ShowCurrent();
}

// While its file is on its way a message stays new: it comes back when that fails, and at the next start.
void UMessageFileDialog::MarkRead(int id) {
    const Message* message = m_history.Find(id);
    if (message && message->state == MessageState::New && m_files.Of(id).stage != MessageFile::Stage::Loading)
        m_history.SetState(id, MessageState::Read);
}

void UMessageFileDialog::OnFileChanged(int id) {
    const Message* message = m_history.Find(id);
    if (!message || message->state != MessageState::New || m_queue.Contains(id))
        return;
    if (m_files.Of(id).stage == MessageFile::Stage::Failed) {
        Enqueue(*message);
        ShowCurrent();
    } else {
        MarkRead(id);
    }
}

void UMessageFileDialog::closeEvent(QCloseEvent* event) {
    event->ignore(); // it goes when nothing is left to show
    CloseCurrent();
}

void UMessageFileDialog::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && m_addressPanel->isVisible())
        m_addressPanel->hide();
    else if (event->key() == Qt::Key_Escape)
        CloseCurrent();
    else if (!PressFocusedButton(*this, *event))
        QWidget::keyPressEvent(event);
}

void UMessageFileDialog::LanguageChanges() {
    const Message* message = isVisible() ? m_history.Find(m_shown) : nullptr;
    if (!message)
        return;
    Fill(*message);
    ShowCount();
}

void UMessageFileDialog::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        LanguageChanges();
    QWidget::changeEvent(event);
}
