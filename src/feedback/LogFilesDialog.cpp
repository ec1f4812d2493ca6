#include "feedback/LogFilesDialog.h"

#include "platform/context/LanguageHelper.h"
#include "widgets/AccessibleRole.h"
#include "widgets/GestureScrollArea.h"
#include "widgets/UBackButton.h"
#include "widgets/UElidedLabel.h"
#include "widgets/UIconLabel.h"
#include "widgets/UTextButton.h"
#include "widgets/UTextLabel.h"

#include <QDir>
#include <QDirIterator>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

constexpr int CardWidth = 760;
constexpr int LowestList = 60;
constexpr qint64 MostShown = 256 * 1024; // of a file, its end

QString SizeText(qint64 bytes) {
    return LanguageHelper::Instance()->Locale().formattedDataSize(bytes, 1,
                                                                  QLocale::DataSizeTraditionalFormat);
}

} // namespace

LogFilesDialog::LogFilesDialog(const QString& folder, const QString& deviceName, QWidget* parent)
    : UOverlay(parent),
      m_folder(folder),
      m_deviceName(deviceName),
      m_grid(new QGridLayout(this)),
      m_stack(new QStackedWidget),
      m_title(new UTextLabel("alertTitle")),
      m_content(new UTextLabel("alertContent")),
      m_close(new UTextButton(UTextButton::Look::Primary)),
      m_back(new UBackButton),
      m_viewTitle(new UElidedLabel),
      m_viewNote(new UTextLabel("alertContent")),
      m_view(new QPlainTextEdit) {
    auto* card = new QFrame;
    card->setObjectName(QStringLiteral("alertCard"));
    card->setMaximumWidth(CardWidth);
    m_stack->addWidget(MakeList());
    m_stack->addWidget(MakeView());
    auto* column = new QVBoxLayout(card);
    column->setContentsMargins(28, 24, 28, 24);
    column->addWidget(m_stack);
    m_grid->setContentsMargins(12, 12, 12, 12);
    m_grid->setColumnStretch(0, 1);
    m_grid->setColumnStretch(1, 100);
    m_grid->setColumnStretch(2, 1);
    m_grid->setRowStretch(0, 1);
    m_grid->setRowStretch(2, 1);
    m_grid->addWidget(card, 1, 1);
    Retranslate();
}

QWidget* LogFilesDialog::MakeList() {
    auto* rows = new QWidget;
    auto* rowsColumn = new QVBoxLayout(rows);
    rowsColumn->setContentsMargins(0, 0, 0, 0);
    rowsColumn->setSpacing(4);
    QDirIterator files(m_folder, QDir::Files | QDir::Hidden | QDir::NoSymLinks, QDirIterator::Subdirectories);
    QStringList paths;
    while (files.hasNext())
        paths.append(files.next());
    paths.sort();
    for (const QString& path : qAsConst(paths))
        AddRow(*rowsColumn, path);
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

void LogFilesDialog::AddRow(QVBoxLayout& rows, const QString& path) {
    const QFileInfo info(path);
    ++m_files;
    m_bytes += info.size();
    auto* name = new UElidedLabel;
    name->SetElideMode(Qt::ElideMiddle);
    name->SetText(QDir(m_folder).relativeFilePath(path));
    auto* size = new QLabel;
    size->setObjectName(QStringLiteral("logFileSize"));
    size->setProperty("bytes", info.size());
    size->setTextFormat(Qt::PlainText);
    auto* open = new UTextButton(UTextButton::Look::Plain);
    open->setObjectName(QStringLiteral("logFileOpen"));
    open->setProperty("fileName", name->Text());
    connect(open, &QPushButton::clicked, this, [this, path, open] {
        m_opened = open;
        ShowFile(path);
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
    m_viewTitle->setObjectName(QStringLiteral("alertTitle"));
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

void LogFilesDialog::ShowFile(const QString& path) {
    QFile file(path);
    const bool readable = file.open(QIODevice::ReadOnly);
    const bool isCut = readable && file.size() > MostShown && file.seek(file.size() - MostShown);
    m_viewTitle->SetText(QDir(m_folder).relativeFilePath(path));
    m_viewNote->setText(readable ? tr("log_files_end_only").arg(SizeText(MostShown))
                                 : tr("log_files_unreadable"));
    m_viewNote->setVisible(isCut || !readable);
    m_view->setPlainText(readable ? QString::fromUtf8(file.read(MostShown)) : QString());
    m_view->setAccessibleName(m_viewTitle->Text());
    m_stack->setCurrentIndex(1);
    m_grid->setRowStretch(1, 100); // as high as there is room
    m_view->moveCursor(QTextCursor::End);
    m_view->setFocus();
}

void LogFilesDialog::ShowList() {
    m_stack->setCurrentIndex(0);
    m_grid->setRowStretch(1, 0);
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

void LogFilesDialog::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape)
        UOverlay::keyPressEvent(event);
    else if (m_stack->currentIndex() == 0)
        Close();
    else
        ShowList();
}

void LogFilesDialog::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    UOverlay::changeEvent(event);
}

void LogFilesDialog::Retranslate() {
    const QString title = tr("log_files_title");
    setAccessibleName(title);
    m_title->setText(title);
    m_content->setText(m_files == 0
                           ? tr("log_files_none")
                           : tr("log_files_content")
                                 .arg(m_deviceName, LanguageHelper::Instance()->Locale().toString(m_files),
                                      SizeText(m_bytes)));
    m_close->setText(tr("button_ok"));
    for (auto* size : findChildren<QLabel*>(QStringLiteral("logFileSize")))
        size->setText(SizeText(size->property("bytes").toLongLong()));
    for (auto* open : findChildren<UTextButton*>(QStringLiteral("logFileOpen"))) {
        open->setText(tr("log_files_open"));
        open->setAccessibleName(tr("log_files_open_name").arg(open->property("fileName").toString()));
    }
}
