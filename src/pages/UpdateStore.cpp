#include "pages/UpdateStore.h"

#include "entity/JsonText.h"
#include "platform/context/AppContextData.h"
#include "platform/link/PipeClientService.h"

#include <QCoreApplication>
#include <utility>

namespace {

constexpr int StallMs = 60000;

} // namespace

UpdateStore::UpdateStore(const Clock& clock, QObject* parent) : QObject(parent), m_clock(clock) {
    m_stallTimer.setObjectName(QStringLiteral("updateStallTimer"));
    m_stallTimer.setSingleShot(true);
    m_stallTimer.setInterval(StallMs);
    connect(&m_stallTimer, &QTimer::timeout, this, [this] {
        m_hasStalled = true;
        emit Changed();
    });
    PipeClientService::Instance()->Subscribe(this, &UpdateStore::OnPipeDataReceived);
    const AppContextData* context = AppContextData::Instance();
    connect(context, &AppContextData::Changed, this, [this, context](AppContextData::Field field) {
        if (field == AppContextData::Field::Enrolled && !context->Enrolled()) {
            Clear();
        } else if (field == AppContextData::Field::Linked) {
            m_isOld |= m_told.isValid() && !context->Linked();
            emit Changed();
        }
    });
}

UpdateStore* UpdateStore::OfApplication() {
    return QCoreApplication::instance()->findChild<UpdateStore*>(QString(), Qt::FindDirectChildrenOnly);
}

bool UpdateStore::WantsAttention() const {
    return MayChoose() && !m_isPostponed &&
           (m_state == State::Available || m_state == State::Ready || m_state == State::Failed);
}

bool UpdateStore::Ask() const {
    return PipeClientService::Instance()->Send(PipeKey::OtaVersionInfo);
}

bool UpdateStore::RequestUpdate() {
    const bool goesOn =
        m_state == State::Requested || m_state == State::Downloading || m_state == State::Ready;
    if (!m_version.hasUpdate || (goesOn && !m_hasStalled))
        return false;
    OtaUpdateDataRequest request;
    request.isNeedUpdate = true;
    request.apkUrl = m_version.downloadUrl;
    request.fileMd5 = m_version.fileMd5;
    request.versionCode = m_version.versionCode;
    if (!PipeClientService::Instance()->Send(PipeKey::OtaUpdateRequest, request))
        return false;
    m_progress = {};
    m_isPostponed = false;
    Enter(State::Requested);
    return true;
}

void UpdateStore::Postpone() {
    if (m_version.isForceUpdate)
        return;
    m_isPostponed = true;
    emit Changed();
}

void UpdateStore::OnPipeDataReceived(PipeKey key, const std::string& body) {
    OtaUpdateVersionInfo version;
    OtaDownloadProgressInfo progress;
    if (key == PipeKey::OtaVersionInfo && ReadObject(version, body, "hasUpdate"))
        OnVersion(version);
    else if (key == PipeKey::OtaDownloadProgress && ReadObject(progress, body, "finish"))
        OnProgress(progress);
}

void UpdateStore::OnVersion(const OtaUpdateVersionInfo& version) {
    const bool isSame = version.versionCode == m_version.versionCode;
    const bool isUnderWay = m_state == State::Requested || m_state == State::Downloading ||
                            m_state == State::Ready || m_state == State::Failed;
    // What is under way goes on when the service only tells of it again.
    const bool goesOn = version.hasUpdate && isUnderWay && (isSame || !m_version.hasUpdate);
    m_isPostponed = m_isPostponed && isSame && !version.isForceUpdate;
    m_version = version;
    m_told = m_clock.Now();
    m_isOld = false;
    if (goesOn)
        emit Changed();
    else
        Enter(version.hasUpdate ? State::Available : State::UpToDate);
}

void UpdateStore::OnProgress(const OtaDownloadProgressInfo& progress) {
    const OtaDownloadProgressInfo before = std::exchange(m_progress, progress);
    m_told = m_clock.Now();
    m_isOld = false;
    const bool moves = m_state != State::Downloading || progress.progress != before.progress ||
                       progress.dlcurrent != before.dlcurrent;
    if (progress.finish)
        Enter(progress.success ? State::Ready : State::Failed);
    else if (moves)
        Enter(State::Downloading);
    else
        emit Changed();
}

void UpdateStore::Enter(State state) {
    m_state = state;
    m_hasStalled = false;
    if (state == State::Requested || state == State::Downloading)
        m_stallTimer.start();
    else
        m_stallTimer.stop();
    emit Changed();
}

void UpdateStore::Clear() {
    m_version = {};
    m_progress = {};
    m_told = {};
    m_isOld = m_isPostponed = false;
    Enter(State::Unknown);
}
