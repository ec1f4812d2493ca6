#pragma once

#include <QTextEdit>

/// Where the user writes what has happened: plain text of any length. Files and pictures that are pasted into
/// it are handed on.
class DescriptionBox : public QTextEdit {
    Q_OBJECT

public:
    explicit DescriptionBox(QWidget* parent = nullptr);

signals:
    void AttachmentPasted(const QMimeData& offer);

protected:
    bool canInsertFromMimeData(const QMimeData* offer) const override;
    void insertFromMimeData(const QMimeData* offer) override;

private:
    void ShowScrollBar(qreal documentHeight);
};
