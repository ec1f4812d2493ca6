#include "feedback/LogFilesDialog.h"

#include "platform/context/LanguageHelper.h"
#include "platform/files/NamedFile.h"
#include "platform/security/HashMask.h"
#include "widgets/AccessibleRole.h"
#include "widgets/GestureScrollArea.h"
#include "widgets/UBackButton.h"
#include "widgets/UElidedLabel.h"
#include "widgets/UIconLabel.h"
#include "widgets/UTextButton.h"
#include "widgets/UTextLabel.h"

#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace {

constexpr int CardWidth = 760;
constexpr int LowestList = 60;
constexpr int AroundView = 230;          // margins, title and note
constexpr qint64 MostShown = 256 * 1024; // of a file, its end

/// As high as the window has room for, and no higher: the note above it wraps, and a card with a text that
/// wraps gets the height that it asks for.
class LogView : public QPlainTextEdit {
public:
    QSize sizeHint() const override { return {CardWidth, qMax(LowestList, window()->height() - AroundView)}; }
};

} // namespace

LogFilesDialog::LogFilesDialog(const QString& folder, const QString& deviceName, QWidget* parent)
    : UOverlay(parent),
      m_deviceName(deviceName),
      m_title(new UTextLabel("dialogTitle")),
      m_content(new UTextLabel("dialogContent")),
      m_close(new UTextButton(UTextButton::Look::Primary)),
      m_back(new UBackButton),
      m_viewTitle(new UElidedLabel),
      m_viewNote(new UTextLabel("dialogContent")),
      m_view(new LogView) {
    QVBoxLayout* column = MakeCard(CardWidth);
    column->addWidget(m_listPart = MakeList(folder));
    column->addWidget(m_viewPart = MakeView());
    m_viewPart->hide();
    Retranslate();
}

QWidget* LogFilesDialog::MakeList(const QString& folder) {
    auto* rows = new QWidget;
    auto* rowsColumn = new QVBoxLayout(rows);
    rowsColumn->setContentsMargins(0, 0, 0, 0);
    rowsColumn->setSpacing(4);
    for (const NamedFile& file : ListFiles(folder))
        AddRow(*rowsColumn, file);
    rowsColumn->addStretch();

    auto* area = new GestureScrollArea;
    area->setWidget(rows);
    rows->setAutoFillBackground(false); // the card's shows
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    area->setMinimumHeight(LowestList);
    auto* list = new QWidget;
    auto* column = new QVBoxLayout(list);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(12);
    column->addWidget(m_title);
    column->addWidget(m_content);
    column->addWidget(area, 1);
    column->addWidget(m_close, 0, Qt::AlignTrailing);
    connect(m_close, &QPushButton::clicked, this, &LogFilesDialog::Close);
    return list;
}

void LogFilesDialog::AddRow(QVBoxLayout& rows, const NamedFile& file) {
    const qint64 bytes = QFileInfo(file.path).size();
    ++m_files;
    m_bytes += bytes;
    auto* name = new UElidedLabel;
    name->SetElideMode(Qt::ElideMiddle);
    name->SetText(file.name);
    auto* size = new QLabel;
    size->setObjectName(QStringLiteral("logFileSize"));
    size->setProperty("bytes", bytes);
    size->setTextFormat(Qt::PlainText);
    auto* open = new UTextButton(UTextButton::Look::Plain);
    open->setObjectName(QStringLiteral("logFileOpen"));
    open->setProperty("fileName", file.name);
    connect(open, &QPushButton::clicked, this, [this, file, open] {
        m_opened = open;
        ShowFile(file);
    });
    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    row->addWidget(new UIconLabel(24, QStringLiteral("file"), QStringLiteral("textMuted")));
    row->addWidget(name, 1);
    row->addWidget(size);
    row->addWidget(open);
    rows.addLayout(row);
}

QWidget* LogFilesDialog::MakeView() {
    m_viewTitle->setObjectName(QStringLiteral("dialogTitle"));
    m_viewTitle->SetElideMode(Qt::ElideMiddle);
    m_view->setObjectName(QStringLiteral("logFileView"));
    m_view->setReadOnly(true);
    m_view->setTabChangesFocus(true);
    m_view->setLayoutDirection(Qt::LeftToRight); // as a log is, in every language
    auto* head = new QHBoxLayout;
    head->setSpacing(12);
    head->addWidget(m_back);
    head->addWidget(m_viewTitle, 1);
    auto* view = new QWidget;
    auto* column = new QVBoxLayout(view);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(12);
    column->addLayout(head);
    column->addWidget(m_viewNote);
    column->addWidget(m_view, 1);
    connect(m_back, &QPushButton::clicked, this, &LogFilesDialog::ShowList);
    return view;
}

void LogFilesDialog::ShowFile(const NamedFile& named) {
    QFile file(named.path);
    m_isReadable = file.open(QIODevice::ReadOnly);
    const bool isCut = m_isReadable && file.size() > MostShown && file.seek(file.size() - MostShown);
    m_viewTitle->SetText(named.name);
    QByteArray text = m_isReadable ? file.read(MostShown) : QByteArray();
    m_isText = !text.contains('\0');
    if (!m_isText)
        text.clear();
    m_viewNote->setVisible(isCut || !m_isReadable || !m_isText);
    if (isCut) // whose first line is but the end of one
        text.remove(0, text.indexOf('\n') + 1);
    HashMask().Apply(text.data(), static_cast<std::size_t>(text.size()));
    m_view->setPlainText(QString::fromUtf8(text));
    m_view->setAccessibleName(named.name);
    m_view->setVisible(m_isReadable);
    m_listPart->hide();
    m_viewPart->show();
    m_view->moveCursor(QTextCursor::End);
    (m_isReadable ? static_cast<QWidget*>(m_view) : m_back)->setFocus();
    Retranslate();
}

void LogFilesDialog::ShowList() {
    m_viewPart->hide();
    m_listPart->show();
    m_opened->setFocus();
}

void LogFilesDialog::Presented() {
    m_close->setFocus(Qt::PopupFocusReason);
    AnnounceAlert(this);
}

void LogFilesDialog::Close() {
    hide();
    deleteLater();
}

void LogFilesDialog::Dismiss() {
    if (m_viewPart->isHidden())
        Close();
    else
        ShowList();
}

void LogFilesDialog::resizeEvent(QResizeEvent* event) {
    m_view->updateGeometry();
    UOverlay::resizeEvent(event);
}

void LogFilesDialog::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    UOverlay::changeEvent(event);
}

void LogFilesDialog::Retranslate() {
    const LanguageHelper& language = *LanguageHelper::Instance();
    const QString title = tr("log_files_title");
    setAccessibleName(title);
    m_title->setText(title);
    m_content->setText(m_files == 0 ? tr("log_files_none")
                                    : tr("log_files_content")
                                          .arg(m_deviceName, language.Locale().toString(m_files),
                                               language.SizeText(m_bytes)));
    m_viewNote->setText(!m_isReadable ? tr("log_files_unreadable")
                        : !m_isText   ? tr("log_files_no_text")
                                      : tr("log_files_end_only").arg(language.SizeText(MostShown)));
    m_close->setText(tr("button_ok"));
    for (auto* size : findChildren<QLabel*>(QStringLiteral("logFileSize")))
        size->setText(language.SizeText(size->property("bytes").toLongLong()));
    for (auto* open : findChildren<UTextButton*>(QStringLiteral("logFileOpen"))) {
        open->setText(tr("log_files_open"));
        open->setAccessibleName(tr("log_files_open_name").arg(open->property("fileName").toString()));
    }
}
