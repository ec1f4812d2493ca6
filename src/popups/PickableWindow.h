#pragma once

#include <QRect>
#include <QSet>
#include <QString>
#include <optional>
#include <qwindowdefs.h>
#include <vector>

class SystemDesktop;
class SystemProcesses;
class SystemPrograms;

/// What the system tells of windows and programs.
struct PopupSystem {
    const SystemDesktop& desktop;
    const SystemProcesses& processes;
    const SystemPrograms& programs;

    static PopupSystem Native();
};

/// What a program's file tells.
struct ProgramFacts {
    QString product;
    QString signer;
};

/// The publisher of this system's own software; an empty text is no publisher's.
struct OwnPublisher {
    QString fileSuffix; ///< with which the paths of its programs end
    std::vector<QString> signers;

    /// As the configuration has it.
    static OwnPublisher Configured();
};

/// A window of some program, as the picker sees it.
struct PickableWindow {
    WId id = 0;
    quint32 process = 0;
    QString path; ///< of the program
    QString title;
    QString className;
    QRect place; ///< in physical pixels of the whole desktop

    /// Every window that can be picked at all, the topmost first, but for `mask`.
    static std::vector<WId> Candidates(const PopupSystem& system, WId mask);
    /// Nothing when it is none that can be picked, or has gone.
    static std::optional<PickableWindow> Read(const PopupSystem& system, WId id);

    /// The keys (PopupWindow) of all windows on the screen, those that cannot be picked as well.
    static QSet<QString> KeysOnScreen();

    /// Whether no window of another program lies over a part of it.
    bool IsUncovered(const PopupSystem& system) const;

    QString FileName() const;
    /// Of the program.
    QString Directory() const;

    /// Whether its class is that of a part of the desktop or of another window.
    bool IsPart() const;
    /// Whether it may not be reported. `self` is the number of this process.
    bool IsRefused(const ProgramFacts& facts, const OwnPublisher& own, quint32 self) const;
};
