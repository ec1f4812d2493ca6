#pragma once

#include "Command.h"

class AgentEnrolment;

/// The commands about enrolling and unenrolling the device; `enrolment` outlives them.
Commands EnrolmentCommands(AgentEnrolment& enrolment);
