#pragma once

#include <QString>
#include <QWidget>

/// A drawing of the theme's own, :/res/<theme>/images/<name>.svg, as large as fits; it follows the theme.
class UThemePicture : public QWidget {
    Q_OBJECT

public:
    UThemePicture(const QString& name, const QSize& preferredSize, QWidget* parent = nullptr);

    QSize sizeHint() const override { return m_preferredSize; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_name;
    QSize m_preferredSize;
};
