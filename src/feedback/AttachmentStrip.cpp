#include "feedback/AttachmentStrip.h"

#include "platform/context/LanguageHelper.h"
#include "platform/context/RyxPath.h"
#include "widgets/AccessibleRole.h"
#include "widgets/GestureScrollArea.h"
#include "widgets/QFlowLayout.h"
#include "widgets/ThemeIcon.h"
#include "widgets/UTextButton.h"
#include "widgets/UTextLabel.h"

#include <QEvent>
#include <QFileDialog>
#include <QMap>
#include <QMimeData>
#include <QUrl>
#include <QVBoxLayout>
#include <algorithm>

namespace {

constexpr int ProgressMs = 100;
constexpr int MostRefusalsApart = 4;

} // namespace

AttachmentStrip::AttachmentStrip(const FeedbackBackend& backend, QWidget* parent)
    : QFrame(parent),
      m_backend(backend),
      m_add(new UTextButton),
      m_note(new UTextLabel("attachmentNote")),
      m_list(new QWidget),
      m_flow(new QFlowLayout(m_list, 0, 12, 12)),
      m_refusals(new UTextLabel("fieldError")) {
    setObjectName(QStringLiteral("attachmentStrip"));
    m_add->setObjectName(QStringLiteral("addAttachments"));
    m_add->setIcon(ThemeIcon::Get(QStringLiteral("attachment")));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(16, 16, 16, 16);
    column->setSpacing(10);
    column->addWidget(m_add, 0, Qt::AlignLeading);
    column->addWidget(m_note);
    column->addWidget(m_list);
    column->addWidget(m_refusals);
    m_list->hide();
    m_refusals->hide();

    m_progressTimer.setObjectName(QStringLiteral("attachmentProgressTimer"));
    m_progressTimer.setInterval(ProgressMs);
    connect(&m_progressTimer, &QTimer::timeout, this, &AttachmentStrip::ShowProgress);
    connect(m_add, &QPushButton::clicked, this, &AttachmentStrip::ChooseFiles);
    Retranslate();
}

bool AttachmentStrip::CanTake(const QMimeData& offer) {
    const QList<QUrl> urls = offer.urls();
    return std::any_of(urls.begin(), urls.end(), [](const QUrl& url) { return url.isLocalFile(); }) ||
           (offer.hasImage() && !offer.hasText());
}

void AttachmentStrip::Take(const QMimeData& offer) {
    QStringList paths;
    for (const QUrl& url : offer.urls())
        paths.append(url.isLocalFile() ? url.toLocalFile() : url.toDisplayString());
    if (paths.isEmpty())
        AddPicture(qvariant_cast<QImage>(offer.imageData()));
    else
        AddFiles(paths);
}

void AttachmentStrip::ChooseFiles() {
    auto* dialog = new QFileDialog(this, tr("attachment_choose"));
    dialog->setFileMode(QFileDialog::ExistingFiles);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QFileDialog::filesSelected, this, &AttachmentStrip::AddFiles);
    dialog->open();
}

void AttachmentStrip::AddFiles(const QStringList& paths) {
    Inspect(m_inspectors->Run([paths] { return AttachmentFile::Inspect(paths); },
                              AttachmentFile::Unreadable(paths)));
}

void AttachmentStrip::AddPicture(const QImage& picture) {
    const QString name = QStringLiteral("picture-%1.png").arg(++m_pictures);
    const QString folder = QString::fromStdWString(RyxPath::GetRyxTempDir());
    Inspect(m_inspectors->Run([=] { return AttachmentFile::Save(picture, name, folder); },
                              AttachmentFile::Unreadable({name})));
}

void AttachmentStrip::Inspect(const QFuture<QVector<AttachmentFile>>& inspection) {
    if (m_inspections++ == 0)
        m_refused.clear();
    auto* watcher = new QFutureWatcher<QVector<AttachmentFile>>(this);
    connect(watcher, &QFutureWatcherBase::finished, this, [this, watcher, list = m_listNumber] {
        watcher->deleteLater();
        if (list != m_listNumber)
            return;
        --m_inspections;
        for (const AttachmentFile& file : watcher->result())
            Add(file);
        GestureScrollArea::Reveal(m_list);
        ShowRefusals();
        if (!m_refused.isEmpty()) {
            GestureScrollArea::Reveal(m_refusals);
            AnnounceAlert(m_refusals);
        }
        emit Changed();
    });
    watcher->setFuture(inspection);
    emit Changed();
}

Refusal AttachmentStrip::Judge(const AttachmentFile& file) const {
    const auto isSame = [&](const AttachmentItem* item) { return item->File().identity == file.identity; };
    if (file.refusal != Refusal::None)
        return file.refusal;
    if (std::any_of(m_items.begin(), m_items.end(), isSame))
        return Refusal::Twice;
    return m_items.size() >= MostFiles ? Refusal::TooMany : Refusal::None;
}

void AttachmentStrip::Add(const AttachmentFile& file) {
    if (const Refusal why = Judge(file); why != Refusal::None) {
        m_refused.append({file.name, why});
        return;
    }
    auto* item = new AttachmentItem(file, m_backend, m_uploaders, m_list);
    QWidget* const before = m_items.isEmpty() ? m_add : m_items.constLast()->LastButton();
    m_items.append(item);
    m_flow->addWidget(item);
    m_list->show();
    setTabOrder(before, item->FirstButton());
    setTabOrder(item->FirstButton(), item->LastButton());
    m_progressTimer.start();
    connect(item, &AttachmentItem::StateChanged, this, &AttachmentStrip::Changed);
    connect(item, &AttachmentItem::StateChanged, &m_progressTimer, qOverload<>(&QTimer::start));
    connect(item, &AttachmentItem::RemoveRequested, this, [this, item] { Remove(item); });
}

void AttachmentStrip::Remove(AttachmentItem* item) {
    const int place = m_items.indexOf(item);
    TakeOut(item);
    if (m_items.isEmpty())
        m_add->setFocus();
    else
        m_items[qMin(place, m_items.size() - 1)]->LastButton()->setFocus();
    m_refused.clear(); // there is room again
    ShowRefusals();
    emit Changed();
}

void AttachmentStrip::TakeOut(AttachmentItem* item) {
    item->disconnect(this);
    item->Cancel();
    m_items.removeOne(item);
    m_flow->removeWidget(item);
    item->hide();
    item->deleteLater(); // one of its own buttons was pressed
    m_list->setVisible(!m_items.isEmpty());
}

bool AttachmentStrip::IsPending() const {
    return m_inspections > 0 || std::any_of(m_items.begin(), m_items.end(), [](const AttachmentItem* item) {
               return item->UploadState() == AttachmentItem::State::Pending;
           });
}

std::vector<FileDto> AttachmentStrip::Uploaded() const {
    std::vector<FileDto> files;
    for (const AttachmentItem* item : m_items)
        if (item->UploadState() == AttachmentItem::State::Uploaded)
            files.push_back(item->Uploaded());
    return files;
}

QStringList AttachmentStrip::Failed() const {
    QStringList names;
    for (const AttachmentItem* item : m_items)
        if (item->UploadState() == AttachmentItem::State::Failed)
            names.append(item->File().name);
    return names;
}

QStringList AttachmentStrip::Paths() const {
    QStringList paths;
    for (const AttachmentItem* item : m_items)
        paths.append(item->File().path);
    return paths;
}

void AttachmentStrip::Clear() {
    while (!m_items.isEmpty())
        TakeOut(m_items.constLast());
    ++m_listNumber;
    if (m_inspections > 0)
        m_inspectors.emplace(1);
    m_inspections = 0;
    m_pictures = 0;
    m_refused.clear();
    ShowRefusals();
    emit Changed();
}

void AttachmentStrip::SetLocked(bool locked) {
    m_add->setEnabled(!locked);
    m_list->setEnabled(!locked);
}

void AttachmentStrip::Stop(QDeadlineTimer deadline) {
    for (AttachmentItem* item : qAsConst(m_items))
        item->Cancel();
    m_uploaders.Join(deadline);
    m_inspectors->Join(deadline);
}

void AttachmentStrip::ShowProgress() {
    for (AttachmentItem* item : qAsConst(m_items))
        item->ShowProgress();
    if (!IsPending())
        m_progressTimer.stop();
}

void AttachmentStrip::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    QFrame::changeEvent(event);
}

void AttachmentStrip::Retranslate() {
    const LanguageHelper& language = *LanguageHelper::Instance();
    m_add->setText(tr("+ Add attachments (Optional)"));
    m_note->setText(
        tr("attachment_note")
            .arg(language.Locale().toString(MostFiles), language.SizeText(AttachmentFile::MostBytes, 0)));
    ShowRefusals();
}

void AttachmentStrip::ShowRefusals() {
    const QLocale locale = LanguageHelper::Instance()->Locale();
    const auto words = [&](Refusal why) {
        switch (why) {
        case Refusal::TooLarge:
            return tr("attachment_too_large")
                .arg(LanguageHelper::Instance()->SizeText(AttachmentFile::MostBytes, 0));
        case Refusal::TooMany:
            return tr("attachment_too_many").arg(locale.toString(MostFiles));
        case Refusal::Folder:
            return tr("attachment_folder");
        case Refusal::Empty:
            return tr("attachment_empty");
        case Refusal::Twice:
            return tr("attachment_twice");
        case Refusal::Unreadable:
        case Refusal::None:
            break;
        }
        return tr("attachment_unreadable");
    };
    QMap<Refusal, QStringList> names;
    QStringList lines;
    for (const Refused& refused : qAsConst(m_refused)) {
        names[refused.why].append(refused.name);
        lines.append(tr("attachment_refused").arg(refused.name, words(refused.why)));
    }
    if (lines.size() > MostRefusalsApart) {
        lines.clear();
        for (auto group = names.cbegin(); group != names.cend(); ++group)
            lines.append(tr("attachment_refused_together")
                             .arg(locale.createSeparatedList(group.value()), words(group.key())));
    }
    m_refusals->setText(lines.join(QLatin1Char('\n')));
    m_refusals->setVisible(!lines.isEmpty());
}
