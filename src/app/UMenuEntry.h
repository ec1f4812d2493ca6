#pragma once

#include <QPushButton>

/// One entry of the menu: icon, name, and at its end a mark when there is something to know about it.
class UMenuEntry : public QPushButton {
    Q_OBJECT

public:
    UMenuEntry(const QString& icon, QWidget* parent);

    /// Shows the icon alone; the name is then the tool tip.
    void SetCompact(bool compact);

    void SetName(const QString& name);

    /// An icon at the end and what it means; an empty icon takes it away.
    void SetMark(const QString& icon, const QString& meaning);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void nextCheckState() override;
    void paintEvent(QPaintEvent* event) override;

private:
    void UpdateToolTip();

    QString m_icon;
    QString m_name;
    QString m_mark;
    QString m_markMeaning;
    bool m_compact = false;
};
