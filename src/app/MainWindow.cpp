#include "app/MainWindow.h"

#include "app/Rooms.h"
#include "app/UTrayIcon.h"
#include "entity/FileEntities.h"
#include "platform/context/AppContextData.h"
#include "platform/context/ProductConstants.h"
#include "platform/context/Theme.h"
#include "platform/link/ControllerRyx.h"
#include "platform/link/PipeClientService.h"
#include "ui_MainWindow.h"
#include "widgets/UExitButton.h"
#include "widgets/UToast.h"

#include <QCloseEvent>
#include <QScreen>
#include <QStyle>

namespace {

constexpr int NarrowestWithMenuNames = 900;
constexpr QSize SmallestWindow(600, 340);

// Results that pages report, and how they end. Named here so that each has its wording.
struct Result {
    const char* key;
    UToast::Kind kind;
};
constexpr Result Results[] = {
    {QT_TRANSLATE_NOOP("MainWindow", "usb_bind_success"), UToast::Kind::Success},
    {QT_TRANSLATE_NOOP("MainWindow", "usb_bind_failed"), UToast::Kind::Error},
};

} // namespace

MainWindow::MainWindow()
    // The exit button comes before the form, for it stands in the header: the Tab key goes there first.
    : m_ui(std::make_unique<Ui::MainWindow>()),
      m_exit(new UExitButton(this)),
      m_tray(new UTrayIcon(this)),
      m_toast(new UToast(this)) {
    m_ui->setupUi(this);
    m_formStyleSheet = styleSheet();
    Initialize();
    InitConnect();
}

MainWindow::~MainWindow() = default;

void MainWindow::Initialize() {
    const bool enrolled = AppContextData::Instance()->enrolled;
    m_ui->stack->setCurrentWidget(enrolled ? m_ui->mainPage : static_cast<QWidget*>(m_ui->launcher));
    FocusPage();
    // An enrolled device has a link, which counts as down until the service says more.
    if (enrolled)
        ShowStatus(IotStatus::Disconnected);
    m_ui->menu->SetLiveChannelVisible(false);
    m_ui->body->SwitchPage(m_ui->menu->Current());
    Rooms::FurnishFeedback(*m_ui->feedbackPage);

    m_exit->show();
    m_ui->header->ReserveEnd(m_exit->sizeHint().width());
    m_tray->show();

    setWindowTitle(QString::fromLatin1(Product::Name));
    setWindowIcon(m_tray->icon());
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
    connect(m_ui->menu, &UMenu::MenuChanged, this, &MainWindow::OnMenuChanged);
    connect(m_tray, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        if (reason == QSystemTrayIcon::Trigger)
            Open();
    });
    connect(m_tray, &UTrayIcon::OpenRequested, this, &MainWindow::Open);
    connect(m_tray, &UTrayIcon::ReportRequested, this, [this] {
        OpenFeedbackPage();
        Open();
    });
    connect(m_exit, &UExitButton::Exited, this, &QWidget::close);
    connect(m_ui->launcher, &ULauncher::EnrolRequested, this, [this] {
        ShowMainPage();
        m_ui->menu->SwitchTo(static_cast<int>(MenuEntry::Enrolment));
    });
    connect(m_ui->feedbackPage, &URoomPage::BackRequested, this, &MainWindow::LeaveFeedbackPage);
    connect(this, &RyxWindow::BindingBegan, this, [this] { m_ui->header->SetBusy(true); });
    connect(this, &RyxWindow::BindingEnded, this, [this] { m_ui->header->SetBusy(false); });
    connect(this, &RyxWindow::DeviceInfoChanged, m_ui->header, &UHeader::UpdateDevice);
    connect(Theme::Instance(), &Theme::Changed, this, &MainWindow::ApplyTheme);
}

void MainWindow::ConnectMainController() {
    auto* controller = qobject_cast<ControllerRyx*>(MainController());
    if (!controller)
        return;
    connect(controller, &ControllerRyx::IotStatusResponse, this, &MainWindow::OnIotStatus);
    connect(controller, &ControllerRyx::DisconnectWifiSsid, this, &MainWindow::OnDisconnectWifi);
    connect(controller, &ControllerRyx::SwitchChannelStatus, this, &MainWindow::OnSwitchChannel);
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
    if (AppContextData::Instance()->enrolled && !list.liveChannelList.empty())
        m_ui->menu->SetLiveChannelVisible(true);
}

void MainWindow::OnIotStatus(const IotStatusEntity& entity) {
    if (!IsKnownIotStatus(entity.status))
        return;
    const auto status = static_cast<IotStatus>(entity.status);
    ShowStatus(status);
    // Only an enrolled device has a link, so there is nothing left to launch.
    if (status != IotStatus::NotEnrolled && m_ui->stack->currentWidget() == m_ui->launcher)
        ShowMainPage();
}

void MainWindow::ShowStatus(IotStatus status) {
    m_ui->header->UpdateStatus(static_cast<int>(status));
    m_tray->ShowStatus(status);
    IotStatusChanged(status);
}

void MainWindow::OnDisconnectWifi(const std::string& ssid) {
    m_toast->SetKind(UToast::Kind::Warning);
    Notify(tr("toast_wifi_composition")
               .arg(tr("Unable to connect to"), QString::fromStdString(ssid),
                    tr("Please contact IT administrator")));
}

void MainWindow::OnSwitchChannel() {
    m_toast->SetKind(UToast::Kind::Info);
    Notify(tr("toast_channel_switched"));
}

void MainWindow::ShowResult(const QString& result) {
    UToast::Kind kind = UToast::Kind::Info;
    for (const Result& known : Results)
        if (result == QLatin1String(known.key))
            kind = known.kind;
    m_toast->SetKind(kind);
    Notify(tr(result.toUtf8().constData()));
}

void MainWindow::Notify(const QString& message) {
    // A toast in a window that nobody sees would be gone before it is read.
    if (!isVisible() || isMinimized()) {
        m_tray->showMessage(windowTitle(), message, windowIcon());
        return;
    }
    m_toast->SetMessage(message);
    m_toast->show();
}

void MainWindow::OnMenuChanged(int index) {
    m_ui->body->SwitchPage(index);
    if (m_ui->body->IsSwitchPage(index))
        return;
    // The feedback page stands beside the main page, so the menu stays where the body is.
    m_ui->menu->Select(m_ui->body->CurrentPage());
    if (index == static_cast<int>(MenuEntry::Feedback))
        OpenFeedbackPage();
}

void MainWindow::OpenNetworkPage() {
    ShowMainPage();
    m_ui->menu->SwitchTo(static_cast<int>(MenuEntry::Network));
}

void MainWindow::OpenFeedbackPage() {
    if (m_ui->stack->currentWidget() == m_ui->feedbackPage)
        return;
    m_beforeFeedback = m_ui->stack->currentWidget();
    m_ui->stack->setCurrentWidget(m_ui->feedbackPage);
}

void MainWindow::LeaveFeedbackPage() {
    m_ui->stack->setCurrentWidget(m_beforeFeedback);
}

void MainWindow::ShowMainPage() {
    m_ui->stack->setCurrentWidget(m_ui->mainPage);
}

// Where the keyboard starts: what one came for, and not the cross that was pressed last.
void MainWindow::FocusPage() {
    if (m_ui->stack->currentWidget() == m_ui->mainPage)
        m_ui->menu->FocusSelected();
    else
        m_ui->stack->currentWidget()->setFocus();
}

void MainWindow::Open() {
    if (isHidden()) {
        restoreGeometry(m_geometry); // some window managers would place it anew
        FocusPage();
        show();
    }
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (!AppContextData::Instance()->enrolled) {
        m_ui->stack->setCurrentWidget(m_ui->launcher);
        m_ui->menu->SwitchTo(0);
    }
    m_geometry = saveGeometry();
    hide();
    event->ignore();
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
