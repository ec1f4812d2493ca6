#pragma once

#include "widgets/Spinner.h"

#include <QWidget>

/// A turning arc that says that something is being fetched or worked on. It turns while it is visible.
class ULoadingIndicator : public QWidget {
    Q_OBJECT

public:
    explicit ULoadingIndicator(QWidget* parent = nullptr);

    QSize sizeHint() const override { return {32, 32}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Retranslate();

    Spinner m_spinner{QStringLiteral("accent")};
};
