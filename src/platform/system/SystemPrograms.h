#pragma once

#include <QString>

/// What a program's file tells of itself. As it stands it tells nothing. Reads the file, which may take its
/// time: any thread that may wait.
class SystemPrograms {
public:
    virtual ~SystemPrograms() = default;

    /// The product's name in the version resource; empty when there is none.
    virtual QString GetProductName(const QString& /*file*/) const { return {}; }

    /// The subject of the first signature; empty when there is none. Whether the signature is good is not
    /// looked at.
    virtual QString GetSubjectName(const QString& /*file*/) const { return {}; }

    static const SystemPrograms& Native();
};
