#pragma once

#include <QString>

/// The socket that stands for a pipe: that of the product's service in the folder that its unit makes, when
/// it is there, all others in the temporary folder. A path stays what it is.
QString PipePath(const QString& pipeName);
