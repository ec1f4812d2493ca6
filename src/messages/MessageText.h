#pragma once

#include <QTextBrowser>
#include <QUrl>

/// A text from outside, exactly as it was sent: markup is shown and not followed, each paragraph has its own
/// direction, and all of it can be selected. Addresses of web pages in it can be chosen.
class MessageText : public QTextBrowser {
    Q_OBJECT

public:
    explicit MessageText(QWidget* parent = nullptr);

    void SetText(const QString& text);

    /// A line or two; it scrolls, and takes the room that is left.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    /// The user wants to see this page; its address is http or https.
    void AddressChosen(const QUrl& address);
};
