#include "widgets/BlankHint.h"

#include "platform/context/Theme.h"

#include <QLineEdit>
#include <QTextDocument>
#include <QTextEdit>
#include <QVariant>

void MarkBlank(QLineEdit* field) {
    const auto mark = [field] { Theme::SetProperty(field, "blank", field->text().isEmpty()); };
    QObject::connect(field, &QLineEdit::textChanged, field, mark);
    mark();
}

void MarkBlank(QTextEdit* field) {
    const auto mark = [field] { Theme::SetProperty(field, "blank", field->document()->isEmpty()); };
    QObject::connect(field, &QTextEdit::textChanged, field, mark);
    mark();
}
