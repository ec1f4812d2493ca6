#include "app/MainWindow.h"

#include "app/Navigator.h"
#include "app/Pages.h"
#include "app/UTrayIcon.h"
#include "entity/FileEntities.h"
#include "pages/LiveChannels.h"
#include "pages/NetworkCheck.h"
#include "platform/ProductConstants.h"
#include "platform/application/WindowStack.h"
#include "platform/context/AppContextData.h"
#include "platform/context/Theme.h"
#include "platform/link/ControllerRyx.h"
#include "platform/link/PipeClientService.h"
#include "popups/PopupHistory.h"
#include "ui_MainWindow.h"
#include "widgets/ReturnKey.h"
#include "widgets/UExitButton.h"

#include <QCloseEvent>
#include <QScreen>
#include <QStyle>

namespace {

constexpr int NarrowestWithMenuNames = 900;
constexpr QSize SmallestWindow(600, 340);

} // namespace

MainWindow::MainWindow()
    // The exit button comes before the form, for it stands in the header: the Tab key goes there first.
    : m_ui(std::make_unique<Ui::MainWindow>()),
      m_exit(new UExitButton(this)),
      m_tray(new UTrayIcon(this)),
      m_notifier(*this, *m_tray) {
    m_ui->setupUi(this);
    m_formStyleSheet = styleSheet();
    Initialize();
    InitConnect();
}

MainWindow::~MainWindow() = default;

void MainWindow::Initialize() {
    m_navigator = new Navigator(
        {m_ui->stack, m_ui->mainPage, m_ui->launcher, m_ui->feedbackPage, m_ui->menu, m_ui->body}, this);
    m_navigator->Focus();
    // An enrolled device has a link, which counts as down until the service says more.
    if (AppContextData::Instance()->Enrolled()) {
        IotStatusEntity disconnected;
        disconnected.status = static_cast<int>(IotStatus::Disconnected);
        OnIotStatus(disconnected);
    }
    m_ui->menu->SetLiveChannelVisible(false);

    m_exit->show();
    m_ui->header->ReserveEnd(m_exit->sizeHint().width());
    m_tray->show();

    setWindowTitle(QString::fromLatin1(Product::Name));
    QApplication::setWindowIcon(m_tray->icon()); // messages and their list have it, too
    setMinimumSize(SmallestWindow);
    FitScreen();
    ApplyTheme();
}

// At 150 % and more, many a screen is smaller than the form.
void MainWindow::FitScreen() {
    const QSize room = screen()->availableSize();
    const int titleBar = style()->pixelMetric(QStyle::PM_TitleBarHeight);
    resize(size().boundedTo({room.width(), room.height() - titleBar}));
}

void MainWindow::InitConnect() {
    PipeClientService::Instance()->Subscribe(this, &MainWindow::OnPipeDataReceived);
    ConnectMainController();
    connect(m_tray, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        if (reason == QSystemTrayIcon::Trigger)
            Open();
    });
    connect(m_tray, &UTrayIcon::OpenRequested, this, &MainWindow::Open);
    connect(m_tray, &UTrayIcon::ReportRequested, this, [this] {
        OpenFeedbackPage();
        Open();
    });
    connect(m_tray, &UTrayIcon::MessagesRequested, this, &MainWindow::MessagesRequested);
    connect(m_exit, &UExitButton::Exited, this, &QWidget::close);
    connect(m_ui->launcher, &ULauncher::EnrolRequested, this, &MainWindow::OpenEnrolmentPage);
    connect(m_ui->feedbackPage, &UFeedback::Left, m_navigator, &Navigator::GoBack);
    connect(this, &RyxWindow::BindingBegan, this, [this] { m_ui->header->SetBusy(true); });
    connect(this, &RyxWindow::BindingEnded, this, [this] { m_ui->header->SetBusy(false); });
    connect(Theme::Instance(), &Theme::Changed, this, &MainWindow::ApplyTheme);
    if (const LiveChannels* channels = LiveChannels::OfApplication())
        connect(channels, &LiveChannels::Vanished, this,
                [this](const QString& name) { Notify(NoticeKind::Warning, tr("live_vanished").arg(name)); });
    if (const PopupHistory* history = PopupHistory::OfApplication())
        connect(history, &PopupHistory::Noticed, this, [this](const QString& text) {
            const int page = PageIndex(PageId::Features);
            if (isActiveWindow() && m_ui->menu->isVisible() && m_ui->menu->Current() == page)
                return; // it is there to be seen
            m_notifier.Notify(NoticeKind::Info, text, [this, page] {
                m_navigator->GoTo(page);
                Open();
            });
        });
}

void MainWindow::ConnectMainController() {
    auto* controller = qobject_cast<ControllerRyx*>(MainController());
    if (!controller)
        return;
    connect(controller, &ControllerRyx::IotStatusResponse, this, &MainWindow::OnIotStatus);
    connect(controller, &ControllerRyx::DisconnectWifiSsid, this, &MainWindow::OnDisconnectWifi);
    connect(controller, &ControllerRyx::SwitchChannelStatus, this,
            [this] { Notify(NoticeKind::Info, tr("toast_channel_switched")); });
}

// The form's white is the light theme's; any other theme's own background takes its place.
void MainWindow::ApplyTheme() {
    setStyleSheet(Theme::Instance()->IsDark() ? QString() : m_formStyleSheet);
}

void MainWindow::OnPipeDataReceived(PipeKey key, const std::string& body) {
    if (key != PipeKey::LiveChannelList)
        return;
    LiveChannelListRequest list;
    list.ReadFromString(body);
    if (AppContextData::Instance()->Enrolled() && !list.liveChannelList.empty())
        m_ui->menu->SetLiveChannelVisible(true);
}

void MainWindow::OnIotStatus(const IotStatusEntity& entity) {
    const auto status = static_cast<IotStatus>(entity.status);
    m_ui->header->UpdateStatus(entity.status);
    IotStatusChanged(status);
    if (!IsKnownIotStatus(entity.status))
        return;
    m_tray->ShowStatus(status);
    // Only an enrolled device has a link.
    AppContextData::Instance()->SetEnrolled(status != IotStatus::NotEnrolled);
}

void MainWindow::OnDisconnectWifi(const std::string& ssid) {
    Notify(NoticeKind::Warning, tr("toast_wifi_composition")
                                    .arg(tr("Unable to connect to"), QString::fromStdString(ssid),
                                         tr("Please contact IT administrator")));
}

void MainWindow::Notify(NoticeKind kind, const QString& text) {
    m_notifier.Notify(kind, text);
}

void MainWindow::OpenNetworkPage() {
    m_navigator->GoTo(PageIndex(PageId::Network));
    if (NetworkCheck* check = NetworkCheck::OfApplication())
        check->Start();
}

void MainWindow::OpenEnrolmentPage() {
    m_navigator->GoTo(PageIndex(PageId::Enrolment));
    if (!WindowStack::Instance()->IsLocked())
        Open();
}

void MainWindow::OpenFeedbackPage() {
    m_navigator->GoTo(PageIndex(PageId::Feedback));
}

void MainWindow::Open() {
    if (isHidden()) {
        restoreGeometry(m_geometry); // some window managers would place it anew
        m_navigator->Focus();
        show();
    }
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (!AppContextData::Instance()->Enrolled())
        m_navigator->StartAnew();
    m_geometry = saveGeometry();
    hide();
    event->ignore();
}

void MainWindow::keyPressEvent(QKeyEvent* event) {
    if (!PressFocusedButton(*this, *event))
        RyxWindow::keyPressEvent(event);
}

void MainWindow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        m_tray->Retranslate();
        PlaceExitButton();
    } else if (event->type() == QEvent::LayoutDirectionChange) {
        PlaceExitButton();
    }
    RyxWindow::changeEvent(event);
}

void MainWindow::resizeEvent(QResizeEvent* event) {
    m_ui->menu->SetCompact(width() < NarrowestWithMenuNames);
    PlaceExitButton();
    RyxWindow::resizeEvent(event);
}

void MainWindow::PlaceExitButton() {
    const QSize size = m_exit->sizeHint();
    const QRect place(width() - size.width() - 16, (m_ui->header->height() - size.height()) / 2, size.width(),
                      size.height());
    m_exit->setGeometry(QStyle::visualRect(layoutDirection(), rect(), place));
    m_exit->raise();
}
