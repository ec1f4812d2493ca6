#pragma once

#include "Command.h"

#include <QObject>
#include <set>

class WebService;

/// The commands about the web service, and what it was asked.
class WebCommands : public QObject {
    Q_OBJECT

public:
    /// `service` may be null: then the commands are refused.
    explicit WebCommands(WebService* service);

    /// This outlives them.
    Commands List();

signals:
    /// The web service was asked something.
    void Requested();

private:
    std::string Endpoint(const std::string& name) const;

    WebService* m_web;
    std::multiset<std::string> m_requests; // endpoints asked, and used by no expectation yet
};
