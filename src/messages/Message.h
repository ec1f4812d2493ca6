#pragma once

#include "entity/FileEntities.h"

#include <QDateTime>
#include <QString>

enum class MessageState { New, Read, Withdrawn };

/// One message of the administrator, with or without a file.
struct Message {
    int id = 0;          ///< in this user's history; 0: not there yet
    int operationId = 0; ///< in the service's records; 0: it has none
    QDateTime received;
    MessageState state = MessageState::New;
    bool isEmergency = false;
    bool mayBeClosed = true;
    int seconds = 0; ///< of each showing; 0: until it is closed
    int showings = 1;
    QString text;
    FileInfoParams file; ///< without an address: none
    QString savedAs;     ///< path of the file; empty until it is there

    bool HasFile() const { return !file.url.empty(); }
};
