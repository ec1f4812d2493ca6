#pragma once

#include "widgets/UTextButton.h"

/// Leads back to where the user came from.
class UBackButton : public UTextButton {
    Q_OBJECT

public:
    explicit UBackButton(QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void Retranslate();
};
