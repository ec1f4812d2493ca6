#pragma once

#include "platform/link/PipeKey.h"

#include <QObject>
#include <functional>
#include <string>

/// Hands every PipeReceiveEvent of the application object to a handler on the GUI thread and lets the
/// event go on to other watchers. What the handler throws is logged and kept from them.
class PipeEventWatcher : public QObject {
public:
    using Handler = std::function<void(PipeKey key, const std::string& body)>;

    /// `parent` owns the watcher; its class name is the one logged.
    PipeEventWatcher(QObject* parent, Handler handler);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Handler m_handler;
};
