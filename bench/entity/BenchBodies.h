#pragma once

#include "entity/AppEntities.h"
#include "entity/EnrollEntities.h"
#include "entity/SettingsEntities.h"

#include <string>

/// Bodies of the size and the texture that a device sees, the smallest and the largest of its day.

IotStatusEntity BrokerStatus();
/// 1,000 rules.
SyncPopupsParams PopupRules();
/// 50 certificates.
CertificateProperty Certificates();
/// The same as the service sends it.
std::string ReceivedCertificates();
DevicePropertyInfo Inventory();
