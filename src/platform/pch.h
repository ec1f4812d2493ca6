#pragma once

// Headers that most sources of the platform and of the front end include.
#include <QApplication>
#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QLocalSocket>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <QWidget>
#include <glog/logging.h>
#include <json/json.h>
#include <memory>
#include <string>
#include <vector>
