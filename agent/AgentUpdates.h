#pragma once

#include "AgentService.h"
#include "entity/UpdateEntities.h"

#include <QTimer>

/// Updates of the front end as the agent service knows them: offers a version, and downloads it when the
/// front end's user asks for it (key 13), well or badly.
class AgentUpdates : public QObject {
    Q_OBJECT

public:
    /// What becomes of a request for the update. Unsized: the progress does not know the size in all.
    enum class Course { Normal, Unsized, Stall, Fail, None };

    AgentUpdates(AgentServer& server, AgentService& service);

    /// Offers this version, and tells of it; one without a version code means that there is none.
    void Offer(const OtaUpdateVersionInfo& version);
    /// Changes the notes of the version that is offered, and tells of it.
    void SetNotes(const std::string& notes);
    void SetCourse(Course course) { m_course = course; }

    /// Tells how far a download has come, or how it has ended.
    void TellProgress(int percent);
    void TellEnd(bool success);

private:
    void Begin();
    void GoOn();
    void Tell();

    AgentServer& m_server;
    AgentService& m_service;
    OtaUpdateVersionInfo m_version;
    Course m_course = Course::Normal;
    int m_percent = 0;
    QTimer m_timer{this};
};
