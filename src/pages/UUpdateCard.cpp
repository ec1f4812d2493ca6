#include "pages/UUpdateCard.h"

#include "pages/UpdateStore.h"
#include "platform/application/RyxWindow.h"
#include "platform/context/AppContextData.h"
#include "platform/context/LanguageHelper.h"
#include "platform/context/ShownText.h"
#include "widgets/UFactsPage.h"
#include "widgets/UIconLabel.h"
#include "widgets/UTextButton.h"
#include "widgets/UTextLabel.h"

#include <QApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QProgressBar>
#include <QShowEvent>
#include <cmath>

namespace {

constexpr int MostOfNotes = 4000;
constexpr int MostOfName = 80;

using State = UpdateStore::State;

/// The number may be anything.
qint64 Bytes(double value) {
    constexpr double Most = 1e15;
    return std::isfinite(value) ? static_cast<qint64>(qBound(0.0, value, Most)) : 0;
}

} // namespace

UUpdateCard::UUpdateCard(UpdateStore& store)
    : m_store(store),
      m_icon(new UIconLabel(28)),
      m_title(new UTextLabel("sectionTitle")),
      m_state(new UTextLabel("updateState")),
      m_age(new UTextLabel("pageNote")),
      m_progress(new QProgressBar),
      m_notes(new UTextLabel("updateNotes")),
      m_update(new UTextButton(UTextButton::Look::Primary)),
      m_later(new UTextButton),
      m_check(new UTextButton) {
    setObjectName(QStringLiteral("card"));
    m_progress->setTextVisible(false);
    m_update->setObjectName(QStringLiteral("updateNow"));
    m_later->setObjectName(QStringLiteral("updateLater"));
    m_check->setObjectName(QStringLiteral("updateCheck"));
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(12);
    buttons->addWidget(m_update);
    buttons->addWidget(m_later);
    buttons->addWidget(m_check);
    buttons->addStretch();
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(24, 16, 24, 16);
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(8);
    grid->setColumnStretch(1, 1);
    grid->addWidget(m_icon, 0, 0, Qt::AlignTop);
    grid->addWidget(m_title, 0, 1);
    grid->addWidget(m_state, 1, 1);
    grid->addWidget(m_progress, 2, 1);
    grid->addWidget(m_notes, 3, 1);
    grid->addWidget(m_age, 4, 1);
    grid->addLayout(buttons, 5, 1);

    const auto tell = [this](bool sent) {
        RyxWindow* window = RyxWindow::Of(this);
        if (!sent && window)
            window->Notify(NoticeKind::Warning, tr("update_no_service"));
    };
    connect(m_update, &QPushButton::clicked, this, [this, tell] { tell(m_store.RequestUpdate()); });
    connect(m_check, &QPushButton::clicked, this, [this, tell] { tell(m_store.Ask()); });
    connect(m_later, &QPushButton::clicked, &m_store, &UpdateStore::Postpone);
    connect(&m_store, &UpdateStore::Changed, this, &UUpdateCard::Show);
    // An unenrolment has emptied the store.
    connect(AppContextData::Instance(), &AppContextData::Changed, this, [this](AppContextData::Field field) {
        if (field == AppContextData::Field::Enrolled && isVisible())
            m_store.Ask();
    });
    Show();
}

// The answer to the question at the link's coming up may have come before anybody listened.
void UUpdateCard::showEvent(QShowEvent* event) {
    if (!event->spontaneous())
        m_store.Ask();
    QFrame::showEvent(event);
}

void UUpdateCard::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        Show();
    QFrame::changeEvent(event);
}

QString UUpdateCard::VersionWords() const {
    const OtaUpdateVersionInfo& version = m_store.Version();
    const QString name = ShownName(version.versionCode, MostOfName);
    QString words =
        version.fileSize > 0
            ? tr("update_available_size").arg(name, LanguageHelper::Instance()->SizeText(version.fileSize))
            : tr("update_available").arg(name);
    if (!m_store.MayChoose())
        words += QLatin1Char(' ') + tr("update_silent");
    else if (version.isForceUpdate)
        words += QLatin1Char(' ') + tr("update_forced");
    return words;
}

QString UUpdateCard::StateWords() const {
    const LanguageHelper& language = *LanguageHelper::Instance();
    const OtaDownloadProgressInfo& progress = m_store.Progress();
    const bool isLinked = AppContextData::Instance()->Linked();
    switch (m_store.Current()) {
    case State::Unknown:
        return isLinked ? tr("update_unknown") : tr("update_no_service");
    case State::UpToDate:
        return tr("update_up_to_date");
    case State::Available:
        return VersionWords();
    case State::Requested:
        return m_store.HasStalled() ? tr("update_no_answer") : tr("update_requested");
    case State::Downloading: {
        const QString done =
            progress.dltotal > 0
                ? tr("update_percent").arg(language.Locale().toString(qBound(0, progress.progress, 100)))
                : tr("update_bytes").arg(language.SizeText(Bytes(progress.dlcurrent)));
        return m_store.HasStalled() ? done + QLatin1Char('\n') + tr("update_stalled") : done;
    }
    case State::Ready:
        return tr("update_ready");
    case State::Failed:
        break;
    }
    return tr("update_failed");
}

void UUpdateCard::ShowProgress() {
    const OtaDownloadProgressInfo& progress = m_store.Progress();
    const bool isKnown = m_store.Current() == State::Downloading && progress.dltotal > 0;
    m_progress->setVisible(isKnown);
    if (isKnown)
        m_progress->setValue(qBound(0, progress.progress, 100));
}

void UUpdateCard::Show() {
    const State state = m_store.Current();
    const bool isOver = state == State::Failed || m_store.HasStalled();
    const bool isOffer = state == State::Available && m_store.MayChoose();
    const bool mayRetry = isOver && m_store.Version().hasUpdate && m_store.MayChoose();
    const bool isUnderWay = state == State::Requested || state == State::Downloading;
    // Stays where it is, for a second press must not meet what moves into its place.
    const bool isPressed = isUnderWay && !isOver && m_store.Version().hasUpdate && m_store.MayChoose();
    const bool hasFocus = isAncestorOf(QApplication::focusWidget());
    m_icon->SetIcon(isOver                     ? QStringLiteral("warning")
                    : state == State::UpToDate ? QStringLiteral("success")
                                               : QStringLiteral("update"),
                    isOver                     ? QStringLiteral("warning")
                    : state == State::UpToDate ? QStringLiteral("success")
                                               : QStringLiteral("accent"));
    m_title->setText(tr("update_title"));
    m_state->setText(StateWords());
    const QString told = LanguageHelper::Instance()->Locale().toString(m_store.Told(), QLocale::ShortFormat);
    m_age->setText((m_store.IsOld() ? tr("update_old") : tr("update_told")).arg(told));
    m_age->setVisible(m_store.Told().isValid());
    m_notes->setText(
        ShownText(QString::fromStdString(m_store.Version().updateDesc).left(MostOfNotes)).trimmed());
    m_notes->setAlignment(UFactsPage::ValueAlignment(this));
    m_notes->setVisible(m_store.Version().hasUpdate && !m_notes->text().isEmpty());
    m_progress->setAccessibleName(m_title->text());
    ShowProgress();
    m_update->setVisible(isOffer || mayRetry || isPressed);
    m_update->setEnabled(!isPressed);
    m_update->setText(mayRetry ? tr("update_retry") : tr("update_now"));
    m_later->setVisible(isOffer && !m_store.Version().isForceUpdate && !m_store.IsPostponed());
    m_later->setText(tr("update_later"));
    m_check->setVisible(!m_update->isVisibleTo(this) && (!isUnderWay || isOver));
    m_check->setText(tr("update_check"));
    if (hasFocus && !isAncestorOf(QApplication::focusWidget()))
        setFocus();
}
