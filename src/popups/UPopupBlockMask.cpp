#include "popups/UPopupBlockMask.h"

#include "entity/IotEntities.h"
#include "platform/ProductConstants.h"
#include "platform/application/WindowStack.h"
#include "platform/link/PipeClientService.h"
#include "platform/link/PipeReceiveEvent.h"
#include "platform/security/LogText.h"
#include "platform/system/SystemCapture.h"
#include "platform/system/SystemPrograms.h"
#include "platform/system/SystemWindows.h"
#include "popups/PopupPanel.h"
#include "popups/ProgramIcon.h"
#include "widgets/ReturnKey.h"
#include "widgets/UToast.h"

#include <QCoreApplication>
#include <QFile>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QTransform>
#include <QtMath>
#include <glog/logging.h>
#include <utility>

namespace {

constexpr int LookMs = 3000;
constexpr int ReplyMs = 15000;
constexpr int LateReplyMs = 45000;
constexpr int EndMs = 1500;
constexpr int IconSize = 32;
constexpr int Margin = 24;
constexpr QRgb Veil = qRgba(16, 24, 34, 90);

/// The screen's place in physical pixels. Qt rounds sizes, but not where a screen begins.
QRect PlaceOf(const QScreen& screen) {
    const QVector<QRect> places = SystemWindows::Native().ScreenPlaces();
    for (const QRect& place : places)
        if (place.topLeft() == screen.geometry().topLeft())
            return place;
    return {screen.geometry().topLeft(), screen.size() * screen.devicePixelRatio()};
}

/// A body that cannot be read is none.
bool IsSuccess(const std::string& body) {
    ErrorInfo reply;
    PipeClientService::Guard(PipeKey::PopupBlockResult, "UPopupBlockMask",
                             [&] { reply.ReadFromString(body); });
    return reply.code == "0";
}

} // namespace

UPopupBlockMask::UPopupBlockMask(const QScreen& screen, const PopupSystem& system, PopupReport::Upload upload)
    : QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint),
      m_system(system),
      m_uploadPicture(std::move(upload)),
      m_place(PlaceOf(screen)),
      m_isComposited(SystemCapture::Native().IsComposited()),
      m_toast(std::make_unique<UToast>(nullptr, UToast::WhenBusy::Replace)),
      m_preview(new QLabel(this)),
      m_panel(new PopupPanel(this)) {
    setObjectName(QStringLiteral("UPopupBlockMask"));
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setProperty("TopLevel", Level);
    SystemWindows::Native().PrepareCover(*this, Qt::black);
    WindowStack::Instance()->PushWindow(this);
    setGeometry(screen.geometry());
    m_desktop = const_cast<QScreen&>(screen).grabWindow(0, 0, 0, -1, -1);

    m_preview->setObjectName(QStringLiteral("pickerPreview"));
    m_preview->setScaledContents(true);
    m_preview->setAttribute(Qt::WA_TransparentForMouseEvents); // it can be picked again
    m_preview->hide();
    m_lookLimit.setObjectName(QStringLiteral("pickerLookLimit"));
    m_lookLimit.setSingleShot(true);
    m_lookLimit.setInterval(LookMs);
    m_replyTimer.setObjectName(QStringLiteral("popupReplyTimer"));
    m_replyTimer.setSingleShot(true);
    m_replyTimer.setInterval(ReplyMs);
    m_lateReplyTimer.setSingleShot(true);
    m_lateReplyTimer.setInterval(LateReplyMs);

    connect(m_panel, &PopupPanel::ReportPressed, this, &UPopupBlockMask::Report);
    connect(m_panel, &PopupPanel::CancelPressed, this, &UPopupBlockMask::Cancelled);
    connect(&m_capture, &PopupCapture::Finished, this, &UPopupBlockMask::OnLooked);
    connect(&m_facts, &QFutureWatcherBase::finished, this, &UPopupBlockMask::OnLooked);
    connect(&m_lookLimit, &QTimer::timeout, this, &UPopupBlockMask::EndLook);
    connect(&m_upload, &QFutureWatcherBase::finished, this, &UPopupBlockMask::Send);
    connect(&m_replyTimer, &QTimer::timeout, this, [this] {
        TellResult(false);
        m_lateReplyTimer.start();
    });
    QCoreApplication::instance()->installEventFilter(this);
    Retranslate();
}

UPopupBlockMask::~UPopupBlockMask() {
    m_cancellation.Cancel();
    m_uploader.Join(QDeadlineTimer(EndMs));
}

bool UPopupBlockMask::EnumWindowsCallback(WId window, UPopupBlockMask& mask) {
    const std::optional<PickableWindow> read = PickableWindow::Read(mask.m_system, window);
    if (!read)
        return true;
    const auto log = [&](const char* words) {
        LOG(INFO) << words << ", hwnd: 0x" << std::hex << read->id << std::dec << ", pid: " << read->process
                  << ", title: " << LogText(read->title) << ", class: " << LogText(read->className);
    };
    if (read->place == mask.m_place) {
        log("Hited window, full screen: ");
        return true;
    }
    if (!read->place.contains(qFloor(mask.m_click.x()), qFloor(mask.m_click.y())))
        return true;
    log("Hited window: ");
    mask.Pick(*read);
    return false;
}

void UPopupBlockMask::mousePressEvent(QMouseEvent* event) {
    if (m_busy || m_panel->geometry().contains(event->pos()))
        return;
    m_click = m_place.topLeft() + event->localPos() * devicePixelRatioF();
    SystemWindows::Native().Activate(*this); // so that its keys are its own
    for (const WId window : PickableWindow::Candidates(m_system, winId()))
        if (!EnumWindowsCallback(window, *this))
            break;
}

void UPopupBlockMask::keyPressEvent(QKeyEvent* event) {
    if (!PressFocusedButton(*this, *event))
        QWidget::keyPressEvent(event);
}

void UPopupBlockMask::Reset() {
    GiveUpLook();
    m_report = {};
    m_picked = {};
    m_preview->hide();
    m_panel->ShowHint();
    PlacePanel();
}

void UPopupBlockMask::Pick(const PickableWindow& window) {
    Reset();
    emit Picked();
    m_busy = true;
    m_picked = window;
    m_report.window = std::make_shared<TempPicture>();
    m_panel->ShowBusy();
    m_preview->setGeometry(FromPhysical(window.place & m_place));
    m_preview->setPixmap({});
    m_preview->show();
    m_capture.Start(window.id, m_report.window);
    m_facts.setFuture(m_reader->Run(
        [&programs = m_system.programs, path = window.path] {
            return ProgramFacts{programs.GetProductName(path), programs.GetSubjectName(path)};
        },
        {}));
    m_lookLimit.start();
}

// Both what the program's file tells and the picture are there, or what there will be of them.
void UPopupBlockMask::OnLooked() {
    if (m_busy && !m_capture.IsRunning() && m_facts.isFinished())
        EndLook();
}

// What is not there by now counts as missing: a window may hang, and a program may lie on a slow network.
void UPopupBlockMask::EndLook() {
    const ProgramFacts facts = m_facts.isFinished() ? m_facts.result() : ProgramFacts();
    if (m_capture.IsRunning())
        m_report.window = std::make_shared<TempPicture>(); // the other may be half of one
    GiveUpLook();
    ShowPicked(facts);
}

void UPopupBlockMask::GiveUpLook() {
    m_lookLimit.stop();
    m_capture.Cancel();
    if (m_facts.isRunning())
        m_reader.emplace(1);
    m_facts.setFuture({});
    m_busy = false;
}

void UPopupBlockMask::ShowPicked(const ProgramFacts& facts) {
    m_preview->setPixmap(Preview());
    if (m_picked.IsRefused(facts, OwnPublisher::Configured(),
                           static_cast<quint32>(QCoreApplication::applicationPid()))) {
        m_report = {};
        m_panel->ShowRefusal();
    } else {
        m_report.Describe(m_picked, facts);
        SaveIcon();
        m_panel->ShowWindow(ProgramIcon::Shown(m_picked.path).pixmap(IconSize, IconSize), m_picked.FileName(),
                            m_picked.title);
    }
    PlacePanel();
}

// Of the window's part on this screen: what another program makes reach beyond it may be of any size.
QPixmap UPopupBlockMask::Preview() const {
    const QRect& place = m_picked.place;
    const QRect seen = place & m_place;
    if (seen.isEmpty())
        return {};
    const QString& path = m_report.window->Path();
    if (m_capture.IsOfScreen())
        QFile::remove(path); // it shows this mask
    const QPixmap picture(path, "PNG");
    if (picture.isNull() && (m_capture.IsOfScreen() || !m_isComposited) && m_picked.IsUncovered(m_system)) {
        const QPixmap part = m_desktop.copy(seen.translated(-m_place.topLeft()));
        part.save(path, "PNG");
        return part;
    }
    return picture.copy(QTransform::fromScale(double(picture.width()) / place.width(),
                                              double(picture.height()) / place.height())
                            .mapRect(seen.translated(-place.topLeft())));
}

void UPopupBlockMask::SaveIcon() {
    auto icon = std::make_shared<TempPicture>();
    const QImage image = ProgramIcon::Own(m_picked.path).pixmap(IconSize, IconSize).toImage();
    if (image.scaled(IconSize, IconSize, Qt::KeepAspectRatio, Qt::SmoothTransformation)
            .save(icon->Path(), "PNG"))
        m_report.icon = std::move(icon);
}

void UPopupBlockMask::Report() {
    m_isReporting = true;
    m_toast->StandOnScreen(geometry());
    m_panel->SetReportEnabled(false);
    PopupReport report = std::exchange(m_report, {});
    emit Reporting();
    hide();
    m_cancellation = Cancellation();
    const UploadPopupsParams withoutPictures = report.params;
    m_upload.setFuture(m_uploader.Run(
        [report = std::move(report), upload = m_uploadPicture, cancellation = m_cancellation]() mutable {
            return PopupReport::UploadPictures(std::move(report), upload, cancellation);
        },
        withoutPictures));
}

void UPopupBlockMask::Send() {
    if (PipeClientService::Instance()->Send(PipeKey::PopupBlockResult, m_upload.result()))
        m_replyTimer.start();
    else
        TellResult(false);
}

bool UPopupBlockMask::eventFilter(QObject* watched, QEvent* event) {
    if (watched == QCoreApplication::instance() && event->type() == PipeReceiveEvent::eventType()) {
        const auto* message = static_cast<PipeReceiveEvent*>(event);
        if (message->Key() == PipeKey::PopupBlockResult) {
            m_lateReplyTimer.stop();
            if (m_replyTimer.isActive())
                TellResult(IsSuccess(message->Data()));
        }
    }
    return QWidget::eventFilter(watched, event);
}

void UPopupBlockMask::TellResult(bool ok) {
    m_replyTimer.stop();
    m_isReporting = false;
    m_toast->SetKind(ok ? NoticeKind::Success : NoticeKind::Error);
    m_toast->SetMessage(ok ? QStringLiteral("Reported successfully") : QStringLiteral("Failed to report"));
    m_toast->show();
}

void UPopupBlockMask::showEvent(QShowEvent* event) {
    m_panel->SetHint(tr("report_click_pop_ups_block"));
    PlacePanel();
    QWidget::showEvent(event);
}

void UPopupBlockMask::hideEvent(QHideEvent* event) {
    Reset();
    m_panel->SetReportEnabled(true);
    QWidget::hideEvent(event);
}

void UPopupBlockMask::resizeEvent(QResizeEvent* event) {
    PlacePanel();
    QWidget::resizeEvent(event);
}

void UPopupBlockMask::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (!m_isComposited)
        painter.drawPixmap(rect(), m_desktop);
    painter.fillRect(rect(), QColor::fromRgba(Veil));
}

void UPopupBlockMask::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    QWidget::changeEvent(event);
}

void UPopupBlockMask::Retranslate() {
    setWindowTitle(tr(Product::Name));
    m_panel->Retranslate();
}

QRect UPopupBlockMask::FromPhysical(const QRect& place) const {
    const double scale = devicePixelRatioF();
    return QRectF(QPointF(place.topLeft() - m_place.topLeft()) / scale, QSizeF(place.size()) / scale)
        .toAlignedRect();
}

// Below what was picked, or above it, or where both have no room over its lower part.
void UPopupBlockMask::PlacePanel() {
    m_panel->adjustSize();
    const QSize size = m_panel->size();
    QPoint place((width() - size.width()) / 2, Margin);
    if (!m_preview->isHidden()) {
        const QRect picked = m_preview->geometry();
        place.setX(qBound(Margin, picked.center().x() - size.width() / 2, width() - size.width() - Margin));
        const int below = picked.bottom() + Margin / 2;
        const int above = picked.top() - Margin / 2 - size.height();
        const int lowest = height() - size.height() - Margin;
        place.setY(below <= lowest ? below : above >= Margin ? above : lowest);
    }
    m_panel->move(place);
}
