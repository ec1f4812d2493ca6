#pragma once

#include "enroll/TagRules.h"

#include <QVector>
#include <QWidget>
#include <string>
#include <vector>

class QFlowLayout;
class QLabel;
class UBodyEnrollTagAdd;
class UBodyEnrollTagItem;

/// The tag area of the enrolment page: the tags, and below them the field for the next one, which says why it
/// refuses a tag. GUI thread; texts are UTF-8.
class UBodyEnrollTags : public QWidget {
    Q_OBJECT

public:
    explicit UBodyEnrollTags(QWidget* parent = nullptr);

    /// The tags in their order.
    std::vector<std::string> Tags() const;

    void TagsListDelete();
    /// Shows these tags in place of those before, as they are: what is known to the service is not checked.
    void ChangeTags(const std::vector<std::string>& tags);

    /// Whether the user may add and remove tags; without that the field is not shown.
    void SetAllEditAble(bool editable);

    /// Adds what the user has typed, unless it breaks a rule: then the field says which.
    void OnAddTagSgl(const QString& tag);
    void OnRemoveItem(UBodyEnrollTagItem* item);

    /// Takes back the message of the last refusal, if there is one.
    void ClearError() { SetRefusal(TagRules::Refusal::None); }

protected:
    void changeEvent(QEvent* event) override;

private:
    QStringList Texts() const;
    void AddItem(const QString& tag);
    void PutIntoTabOrder(const UBodyEnrollTagItem& item);
    void SetRefusal(TagRules::Refusal refusal);
    void LanguageChanges();

    bool m_editable = true;
    TagRules::Refusal m_refusal = TagRules::Refusal::None;
    QVector<UBodyEnrollTagItem*> m_items;
    QWidget* m_area;
    QFlowLayout* m_flow;
    UBodyEnrollTagAdd* m_add;
    QLabel* m_error;
};
