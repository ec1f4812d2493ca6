#pragma once

#include "platform/web/CheckNetwork.h"

#include <QWidget>

class QLabel;
class QStackedLayout;
class UIconLabel;

/// One step of the check of the network: a sign, what was found, how long it took, and what to do. GUI
/// thread.
class NetworkStepRow : public QWidget {
    Q_OBJECT

public:
    NetworkStepRow();

    void Show(const NetworkResult& result);

private:
    QStackedLayout* m_sign;
    UIconLabel* m_icon;
    QLabel* m_name;
    QLabel* m_time;
    QLabel* m_sentence;
    QLabel* m_advice;
};
