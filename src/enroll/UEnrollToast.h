#pragma once

#include "widgets/UToast.h"

/// Tells how an enrolment goes: the latest message replaces the one before, and the tray tells while nobody
/// sees the window. GUI thread.
class UEnrollToast : public UToast {
    Q_OBJECT

public:
    /// The one toast of the window that `widget` is in, made when it is first needed.
    static UEnrollToast* Of(QWidget* widget);

    /// `text` is plain text in the language in use.
    void Tell(Kind kind, const QString& text);

private:
    explicit UEnrollToast(QWidget* window);
};
