#pragma once

#include <QString>
#include <QWidget>

/// An icon of the theme's family as a picture in a layout; it follows the theme. It says nothing to a screen
/// reader: what it means stands in words beside it.
class UIconLabel : public QWidget {
    Q_OBJECT

public:
    explicit UIconLabel(int size, QWidget* parent = nullptr);
    UIconLabel(int size, const QString& icon, const QString& colorToken, QWidget* parent = nullptr);

    void SetIcon(const QString& icon, const QString& colorToken);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_icon;
    QString m_colorToken;
};
