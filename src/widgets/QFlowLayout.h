#pragma once

#include <QLayout>
#include <QList>
#include <QStyle>

/// Places its items in reading direction and wraps them onto new rows, like words in a paragraph. One pass
/// over the items measures or moves them all.
class QFlowLayout : public QLayout {
    Q_OBJECT

public:
    /// `margin` goes to all four sides. A spacing of -1 leaves the choice to the style.
    explicit QFlowLayout(QWidget* parent = nullptr, int margin = 0, int hSpacing = -1, int vSpacing = -1);
    ~QFlowLayout() override;

    void addItem(QLayoutItem* item) override;
    int count() const override;
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;

    int horizontalSpacing() const;
    int verticalSpacing() const;

    Qt::Orientations expandingDirections() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;
    QSize minimumSize() const override;
    QSize sizeHint() const override;
    void setGeometry(const QRect& rect) override;

private:
    enum class Pass { Measure, Move };
    /// Returns the height that the items take within `rect`, contents margins included.
    int LayOut(const QRect& rect, Pass pass) const;
    int SmartSpacing(QStyle::PixelMetric metric) const;
    int StyleGap(const QLayoutItem& item, Qt::Orientation orientation) const;

    QList<QLayoutItem*> m_items;
    int m_horizontalSpacing;
    int m_verticalSpacing;
};
