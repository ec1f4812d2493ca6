#include "messages/MessageFilePanel.h"

#include "messages/FileNames.h"
#include "platform/context/LanguageHelper.h"
#include "platform/context/Theme.h"
#include "widgets/QFlowLayout.h"
#include "widgets/UElidedLabel.h"
#include "widgets/UIconLabel.h"
#include "widgets/UTextButton.h"
#include "widgets/UTextLabel.h"
#include "widgets/WebErrorText.h"

#include <QDesktopServices>
#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QProgressBar>
#include <QUrl>
#include <QVBoxLayout>

namespace {

/// Takes the room that is left, whatever the size of its picture.
class Picture : public QLabel {
public:
    Picture() {
        setObjectName(QStringLiteral("messagePicture"));
        setAlignment(Qt::AlignCenter);
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
    }
    QSize sizeHint() const override { return {1, 160}; }
    QSize minimumSizeHint() const override { return sizeHint(); }
};

/// The path with places where a line may be broken: a long name must not make the window wide.
QString Breakable(const QString& path) {
    constexpr int piece = 24;
    QString text;
    for (int i = 0; i < path.size(); ++i) {
        text += path[i];
        if (!path[i].isHighSurrogate() && (i % piece == piece - 1 || path[i] == QDir::separator()))
            text += QChar(0x200B);
    }
    return text;
}

QString Latest(const MessageFile& file) {
    return file.copy.path.isEmpty() ? file.outcome.path : file.copy.path;
}

} // namespace

MessageFilePanel::MessageFilePanel(MessageFiles& files, QWidget* parent)
    : QFrame(parent),
      m_files(files),
      m_name(new UElidedLabel),
      m_status(new UTextLabel("messageFileStatus")),
      m_progress(new QProgressBar),
      m_picture(new Picture) {
    setProperty("card", true);
    m_name->setObjectName(QStringLiteral("messageFileName"));
    m_name->SetElideMode(Qt::ElideMiddle);
    m_progress->setTextVisible(false);

    auto* head = new QHBoxLayout;
    head->setSpacing(12);
    head->addWidget(new UIconLabel(24, QStringLiteral("file"), QStringLiteral("textMuted")));
    head->addWidget(m_name, 1);
    auto* buttons = new QFlowLayout(nullptr, 0, 12, 8);
    m_open = AddButton(*buttons, "openFileButton", QT_TR_NOOP("message_file_open"), &MessageFilePanel::Open);
    m_saveAs =
        AddButton(*buttons, "saveAsButton", QT_TR_NOOP("message_file_save_as"), &MessageFilePanel::SaveAs);
    m_showInFolder = AddButton(*buttons, "showInFolderButton", QT_TR_NOOP("message_file_show"),
                               &MessageFilePanel::ShowInFolder);
    m_cancel =
        AddButton(*buttons, "cancelFileButton", QT_TR_NOOP("message_file_cancel"), &MessageFilePanel::Cancel);
    m_again =
        AddButton(*buttons, "fetchFileButton", QT_TR_NOOP("message_file_again"), &MessageFilePanel::Fetch);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(16, 12, 16, 12);
    column->setSpacing(8);
    column->addWidget(m_picture, 1);
    column->addLayout(head);
    column->addWidget(m_status);
    column->addWidget(m_progress);
    column->addLayout(buttons);
    column->addStretch();
    connect(&m_files, &MessageFiles::Changed, this, [this](int id) {
        if (id == m_id)
            Show();
    });
}

UTextButton* MessageFilePanel::AddButton(QLayout& row, const char* name, const char* key,
                                         void (MessageFilePanel::*act)()) {
    auto* button = new UTextButton(UTextButton::Look::Secondary);
    button->setObjectName(QLatin1String(name));
    button->setProperty("textKey", QByteArray(key));
    connect(button, &QPushButton::clicked, this, act);
    row.addWidget(button);
    return button;
}

void MessageFilePanel::SetMessage(const Message& message) {
    m_id = message.id;
    m_hasDigest = !QString::fromStdString(message.file.md5).trimmed().isEmpty();
    m_name->SetText(FileNames::Safe(QString::fromStdString(message.file.name)));
    Show();
}

QString MessageFilePanel::FailureText(const FileFetchOutcome& outcome) {
    if (outcome.diskFull)
        return tr("message_file_disk_full");
    switch (outcome.error) {
    case WebError::WrongDigest:
        return tr("message_file_wrong");
    case WebError::File:
        return tr("message_file_unwritable");
    default:
        return WebErrorText(outcome.error);
    }
}

QString MessageFilePanel::StatusText(const MessageFile& file) const {
    switch (file.stage) {
    case MessageFile::Stage::Absent:
        return tr("message_file_absent");
    case MessageFile::Stage::Loading:
        return tr("message_file_loading").arg(LanguageHelper::Instance()->Locale().toString(file.percent));
    case MessageFile::Stage::Failed:
        return FailureText(file.outcome);
    case MessageFile::Stage::Saved:
        break;
    }
    if (file.copy.error != WebError::None)
        return FailureText(file.copy);
    const QString saved = tr("message_file_saved").arg(Breakable(QDir::toNativeSeparators(Latest(file))));
    return m_hasDigest ? saved : saved + QLatin1Char(' ') + tr("message_file_unverified");
}

void MessageFilePanel::Show() {
    const MessageFile file = m_files.Of(m_id);
    const bool saved = file.stage == MessageFile::Stage::Saved;
    const bool loading = file.stage == MessageFile::Stage::Loading;
    m_status->setText(StatusText(file));
    Theme::SetProperty(m_status, "failed",
                       file.stage == MessageFile::Stage::Failed || file.copy.error != WebError::None);
    m_progress->setVisible(loading);
    m_progress->setValue(file.percent);
    m_progress->setAccessibleName(m_name->Text());
    m_cancel->setVisible(loading);
    m_again->setVisible(!saved && !loading && file.outcome.error != WebError::NotAllowed);
    m_showInFolder->setVisible(saved);
    m_saveAs->setVisible(saved);
    m_open->setVisible(saved && !FileNames::IsProgram(file.outcome.path));
    for (auto* button : findChildren<UTextButton*>())
        button->setText(tr(button->property("textKey").toByteArray().constData()));
    m_image = file.picture;
    m_picture->setVisible(!m_image.isNull());
    m_picture->setAccessibleName(m_name->Text());
    ShowPicture();
}

void MessageFilePanel::ShowPicture() {
    if (m_image.isNull() || m_picture->size().isEmpty())
        return;
    const qreal scale = devicePixelRatioF();
    const QSize room = m_picture->size() * scale;
    const QSize size = m_image.size().boundedTo(m_image.size().scaled(room, Qt::KeepAspectRatio));
    QPixmap picture =
        QPixmap::fromImage(m_image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    picture.setDevicePixelRatio(scale);
    m_picture->setPixmap(picture);
}

void MessageFilePanel::Open() {
    QDesktopServices::openUrl(QUrl::fromLocalFile(m_files.Of(m_id).outcome.path));
}

void MessageFilePanel::ShowInFolder() {
    QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(Latest(m_files.Of(m_id))).path()));
}

void MessageFilePanel::SaveAs() {
    auto* dialog = new QFileDialog(this, tr("message_file_save_as"), m_files.Of(m_id).outcome.path);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setOption(QFileDialog::DontConfirmOverwrite); // nothing is overwritten
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QFileDialog::fileSelected, this,
            [this, id = m_id](const QString& target) { m_files.CopyTo(id, target); });
    dialog->open();
}

void MessageFilePanel::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange && m_id)
        Show();
    QFrame::changeEvent(event);
}

void MessageFilePanel::resizeEvent(QResizeEvent* event) {
    QFrame::resizeEvent(event);
    QMetaObject::invokeMethod(this, &MessageFilePanel::ShowPicture, Qt::QueuedConnection);
}
