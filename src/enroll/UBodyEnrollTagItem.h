#pragma once

#include <QFrame>

class UElidedLabel;
class UIconButton;

/// One tag, with a button that takes it away. GUI thread.
class UBodyEnrollTagItem : public QFrame {
    Q_OBJECT

public:
    explicit UBodyEnrollTagItem(const QString& tag, QWidget* parent = nullptr);

    QString Tag() const;

    /// Where Tab leads to.
    QWidget* FocusPlace() const;

    /// Only a tag that is enabled can be taken away; its property "enable" says so to the style sheet.
    void SetEnable(bool enable);

signals:
    /// The user wants the tag away; whoever made it has to delete it.
    void RemoveItem(UBodyEnrollTagItem* item);

protected:
    void changeEvent(QEvent* event) override;

private:
    void UpdateMargins();
    void LanguageChanges();

    UElidedLabel* m_text;
    UIconButton* m_remove;
};
