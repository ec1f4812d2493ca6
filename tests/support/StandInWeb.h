#pragma once

#include "AgentEnrolment.h"
#include "CommandInterpreter.h"
#include "WebService.h"
#include "platform/web/RyxWebClient.h"

#include <QTemporaryDir>
#include <chrono>
#include <gtest/gtest.h>
#include <sstream>

/// The stand-in web service at a free port, told what to do by its commands, and a client of it.
struct StandInWeb {
    StandInWeb() {
        EXPECT_EQ(service.Listen(0), QString());
        settings.server = QString::fromStdString(service.Address());
        settings.retryPause = std::chrono::milliseconds(10);
        client.Configure(settings);
    }
    void Tell(const std::string& command) {
        interpreter.Add(command);
        EXPECT_EQ(lines.str().find("error"), std::string::npos) << lines.str();
    }

    const QTemporaryDir store;
    std::ostringstream lines;
    EventLog log{lines};
    WebService service{log, store.path()};
    AgentServer server{log};
    AgentService agent{server};
    AgentEnrolment enrolment{server, agent, log};
    CommandInterpreter interpreter{server, agent, enrolment, log, &service};
    WebSettings settings;
    RyxWebClient client;
};
