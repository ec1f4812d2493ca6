#include "app/UTrayIcon.h"

#include "app/TrayTone.h"
#include "platform/ProductConstants.h"
#include "platform/context/AppContextData.h"
#include "widgets/ThemeIcon.h"

UTrayIcon::UTrayIcon(QObject* parent)
    : QSystemTrayIcon(parent),
      m_state(m_menu.addAction(QString())),
      m_open(nullptr),
      m_messages(nullptr),
      m_report(nullptr),
      m_tone(new TrayTone(this)) {
    m_menu.setObjectName(QStringLiteral("trayMenu"));
    m_state->setEnabled(false);
    m_menu.addSeparator();
    m_open =
        m_menu.addAction(ThemeIcon::Get(QStringLiteral("open")), QString(), this, &UTrayIcon::OpenRequested);
    m_messages = m_menu.addAction(ThemeIcon::Get(QStringLiteral("message")), QString(), this,
                                  &UTrayIcon::MessagesRequested);
    m_report = m_menu.addAction(ThemeIcon::Get(QStringLiteral("feedback")), QString(), this,
                                &UTrayIcon::ReportRequested);
    m_menu.setDefaultAction(m_open);
    setContextMenu(&m_menu);
    setToolTip(QString::fromLatin1(Product::Name));
    setIcon(IconFor(m_tone->Name()));
    connect(m_tone, &TrayTone::Changed, this, [this] { setIcon(IconFor(m_tone->Name())); });
    connect(this, &QSystemTrayIcon::messageClicked, this, &UTrayIcon::OpenRequested);
    connect(AppContextData::Instance(), &AppContextData::Changed, this, [this](AppContextData::Field field) {
        if (field == AppContextData::Field::Linked)
            ShowLook();
    });
    Retranslate();
}

UTrayIcon::~UTrayIcon() = default;

void UTrayIcon::ShowStatus(IotStatus status) {
    m_status = status;
    ShowLook();
}

void UTrayIcon::ShowLook() {
    const StatusLook look = StatusLook::Of(m_status);
    if (look == m_look)
        return;
    m_look = look;
    m_state->setText(tr("tray_link_state").arg(look.words));
    m_state->setIcon(ThemeIcon::Get(look.icon));
}

void UTrayIcon::Retranslate() {
    ShowLook();
    m_open->setText(tr("Open"));
    m_messages->setText(tr("messages_title"));
    m_report->setText(tr("Report a problem"));
}

QIcon UTrayIcon::IconFor(const QString& tone) {
    return QIcon(QStringLiteral(":/res/%1/icons/desktop.ico").arg(tone));
}
