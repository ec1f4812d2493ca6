#pragma once

#include "entity/AppEntities.h"
#include "entity/EnrollEntities.h"
#include "entity/IotEntities.h"
#include "entity/SettingsEntities.h"

#include <string>

/// The same bodies read and written with plain jsoncpp statements and no key table: what the table costs
/// shows against these.

void ReadByHand(const std::string& text, IotStatusEntity& status);
void ReadByHand(const std::string& text, SyncPopupsParams& policy);
void ReadByHand(const std::string& text, CertificateProperty& property);
void ReadByHand(const std::string& text, DevicePropertyInfo& info);

std::string WriteByHand(const IotStatusEntity& status);
std::string WriteByHand(const SyncPopupsParams& policy);
std::string WriteByHand(const CertificateProperty& property);
std::string WriteByHand(const DevicePropertyInfo& info);

/// Parses with the library's default settings.
Json::Value ParseBare(const std::string& text);
