#include "pages/UTextExport.h"

#include "platform/application/Clock.h"
#include "platform/application/RyxWindow.h"
#include "platform/context/RyxPath.h"
#include "widgets/UTextButton.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLocale>
#include <QSaveFile>

namespace {

void Notify(const QWidget* widget, NoticeKind kind, const QString& text) {
    if (RyxWindow* window = RyxWindow::Of(widget))
        window->Notify(kind, text);
}

} // namespace

UTextExport::UTextExport(std::function<QString()> text, const QString& name)
    : m_text(std::move(text)), m_name(name), m_copy(new UTextButton), m_save(new UTextButton) {
    m_copy->setObjectName(QStringLiteral("textCopy"));
    m_save->setObjectName(QStringLiteral("textSave"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(12);
    row->addWidget(m_copy);
    row->addWidget(m_save);
    connect(m_copy, &QPushButton::clicked, this, &UTextExport::Copy);
    connect(m_save, &QPushButton::clicked, this, &UTextExport::ChooseFile);
    connect(&m_saving, &QFutureWatcherBase::finished, this, &UTextExport::OnSaved);
    Retranslate();
}

void UTextExport::Copy() {
    QApplication::clipboard()->setText(m_text());
    Notify(this, NoticeKind::Success, tr("text_copied"));
}

void UTextExport::ChooseFile() {
    if (m_saving.isRunning())
        return;
    const QString folder = QString::fromStdWString(RyxPath::GetDocumentsDir());
    const QString name =
        QStringLiteral("%1-%2.txt")
            .arg(m_name, QLocale::c().toString(Clock::System().Now(), QStringLiteral("yyyyMMddhhmmss")));
    auto* dialog = new QFileDialog(this, tr("text_save"), QDir(folder).filePath(name),
                                   tr("text_save_type") + QStringLiteral(" (*.txt)"));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("txt"));
    dialog->setOption(
        QFileDialog::DontConfirmOverwrite); // which would take an event loop; nothing is replaced
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QFileDialog::fileSelected, this, &UTextExport::Save);
    dialog->open();
}

// A drive may be slow.
void UTextExport::Save(const QString& file) {
    m_file = file;
    const auto save = [file, text = m_text().toUtf8()] {
        if (QFile::exists(file))
            return Outcome::Exists;
        QSaveFile target(file);
        const bool isSaved =
            target.open(QIODevice::WriteOnly) && target.write(text) == text.size() && target.commit();
        return isSaved ? Outcome::Saved : Outcome::Failed;
    };
    m_saving.setFuture(m_workers.Run(save, Outcome::Failed));
}

void UTextExport::OnSaved() {
    const QString name = QFileInfo(m_file).fileName();
    switch (m_saving.result()) {
    case Outcome::Saved:
        return Notify(this, NoticeKind::Success, tr("text_saved").arg(name));
    case Outcome::Failed:
        return Notify(this, NoticeKind::Error, tr("text_not_saved").arg(name));
    case Outcome::Exists: // a question would lie below the dialog that the buttons may be in
        Notify(this, NoticeKind::Warning, tr("text_exists").arg(name));
        return ChooseFile();
    }
}

void UTextExport::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    QWidget::changeEvent(event);
}

void UTextExport::Retranslate() {
    m_copy->setText(tr("text_copy"));
    m_save->setText(tr("text_save"));
}
