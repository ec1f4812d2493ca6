#pragma once

#include <QLabel>

/// A paragraph of plain text: nothing in it is taken for markup, for it may come from elsewhere, and it
/// wraps.
class UTextLabel : public QLabel {
public:
    explicit UTextLabel(const char* objectName, QWidget* parent = nullptr) : QLabel(parent) {
        setObjectName(QString::fromLatin1(objectName));
        setTextFormat(Qt::PlainText);
        setWordWrap(true);
    }
};
