#pragma once

#include <QString>
#include <QUrl>

/// Whom the user may ask for help, as the configuration says. GUI thread.
struct SupportContact {
    QString name;
    QString telephone;
    QString mail; ///< an address; empty when the configured text is none
    QUrl page;    ///< https or http; empty when it is neither

    static SupportContact Configured();

    bool IsKnown() const { return !(name + telephone + mail).isEmpty() || !page.isEmpty(); }
    /// What is known, on one line.
    QString Line() const;
};
