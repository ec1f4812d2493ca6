#pragma once

#include <QLabel>

/// One line of text of any length, such as a name given by a user: what does not fit is cut with an
/// ellipsis, and the tool tip then has all of it.
class UElidedLabel : public QLabel {
    Q_OBJECT

public:
    explicit UElidedLabel(QWidget* parent = nullptr);

    void SetText(const QString& text);
    QString Text() const { return m_text; }
    /// Where a text is cut that does not fit; at its end at first.
    void SetElideMode(Qt::TextElideMode mode) { m_elideMode = mode; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Align();
    void Elide();

    QString m_text;
    Qt::TextElideMode m_elideMode = Qt::ElideRight;
};
