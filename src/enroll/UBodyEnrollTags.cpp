#include "enroll/UBodyEnrollTags.h"

#include "enroll/UBodyEnrollTagAdd.h"
#include "enroll/UBodyEnrollTagItem.h"
#include "platform/context/Text.h"
#include "widgets/AccessibleRole.h"
#include "widgets/GestureScrollArea.h"
#include "widgets/QFlowLayout.h"
#include "widgets/UTextLabel.h"

#include <QEvent>
#include <QVBoxLayout>
#include <glog/logging.h>

namespace {

QString Words(TagRules::Refusal refusal) {
    switch (refusal) {
    case TagRules::Refusal::None:
        break;
    case TagRules::Refusal::Blank:
        return Text("tag_refused_blank");
    case TagRules::Refusal::Duplicate:
        return Text("tag_refused_duplicate");
    case TagRules::Refusal::TooLong:
        return Text("tag_refused_too_long").arg(TagRules::LongestTag);
    case TagRules::Refusal::ListTooLong:
        return Text("list too long").arg(TagRules::MostTags);
    }
    return {};
}

} // namespace

UBodyEnrollTags::UBodyEnrollTags(QWidget* parent)
    : QWidget(parent),
      m_area(new QWidget),
      m_flow(new QFlowLayout(m_area, 0, 8, 8)),
      m_add(new UBodyEnrollTagAdd),
      m_error(new UTextLabel("fieldError")) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    column->addWidget(m_area);
    column->addWidget(m_add);
    column->addWidget(m_error);
    m_area->hide();
    m_error->hide();
    connect(m_add, &UBodyEnrollTagAdd::AddTagSgl, this, &UBodyEnrollTags::OnAddTagSgl);
    connect(m_add, &UBodyEnrollTagAdd::Edited, this, &UBodyEnrollTags::ClearError);
}

QStringList UBodyEnrollTags::Texts() const {
    QStringList texts;
    for (const UBodyEnrollTagItem* item : m_items)
        texts.append(item->Tag());
    return texts;
}

std::vector<std::string> UBodyEnrollTags::Tags() const {
    std::vector<std::string> tags;
    for (const QString& text : Texts())
        tags.push_back(text.toStdString());
    return tags;
}

void UBodyEnrollTags::TagsListDelete() {
    qDeleteAll(m_items);
    m_items.clear();
    m_area->hide();
    ClearError();
}

void UBodyEnrollTags::ChangeTags(const std::vector<std::string>& tags) {
    if (tags == Tags()) { // a list may be long, and comes again with each status
        ClearError();
        return;
    }
    TagsListDelete();
    for (const std::string& tag : tags)
        AddItem(QString::fromStdString(tag));
}

void UBodyEnrollTags::AddItem(const QString& tag) {
    auto* item = new UBodyEnrollTagItem(tag);
    item->SetEnable(m_editable);
    connect(item, &UBodyEnrollTagItem::RemoveItem, this, &UBodyEnrollTags::OnRemoveItem);
    m_flow->addWidget(item);
    PutIntoTabOrder(*item);
    m_items.append(item);
    m_area->show();
}

// After the tags before it, and so before the field, which was made earlier. Only what takes the focus can be
// named there.
void UBodyEnrollTags::PutIntoTabOrder(const UBodyEnrollTagItem& item) {
    m_area->setFocusPolicy(Qt::TabFocus);
    setTabOrder(m_items.isEmpty() ? m_area : m_items.last()->FocusPlace(), item.FocusPlace());
    m_area->setFocusPolicy(Qt::NoFocus);
}

void UBodyEnrollTags::SetAllEditAble(bool editable) {
    m_editable = editable;
    m_add->SetEnable(editable);
    m_add->setVisible(editable);
    for (UBodyEnrollTagItem* item : qAsConst(m_items))
        item->SetEnable(editable);
    if (!editable) {
        m_add->Clear();
        ClearError();
    }
}

void UBodyEnrollTags::OnAddTagSgl(const QString& tag) {
    const TagRules::Refusal refusal = TagRules::Check(tag, Texts());
    SetRefusal(refusal);
    if (refusal == TagRules::Refusal::ListTooLong)
        LOG(INFO) << "UBodyEnrollTags::OnAddTagSgl list too long";
    if (refusal != TagRules::Refusal::None)
        return;
    AddItem(tag);
    m_add->Clear();
}

// The button that was clicked is the item's, which must outlive the click.
void UBodyEnrollTags::OnRemoveItem(UBodyEnrollTagItem* item) {
    if (m_items.removeAll(item) == 0)
        return;
    item->hide();
    item->deleteLater();
    m_area->setVisible(!m_items.isEmpty());
    ClearError();
    m_add->FocusField();
}

void UBodyEnrollTags::SetRefusal(TagRules::Refusal refusal) {
    m_refusal = refusal;
    LanguageChanges();
    m_error->setVisible(refusal != TagRules::Refusal::None);
    m_add->SetError(refusal != TagRules::Refusal::None);
    if (refusal == TagRules::Refusal::None)
        return;
    GestureScrollArea::Reveal(m_error);
    AnnounceAlert(m_error);
}

void UBodyEnrollTags::LanguageChanges() {
    m_error->setText(Words(m_refusal));
}

void UBodyEnrollTags::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        LanguageChanges();
    QWidget::changeEvent(event);
}
