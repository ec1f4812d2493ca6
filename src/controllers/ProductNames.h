#pragma once

#include "platform/system/SystemPrograms.h"

#include <QDateTime>
#include <QHashFunctions>
#include <mutex>
#include <unordered_map>

/// The product names of programs' files, each read anew only when the file is another one than before. Any
/// thread that may wait.
class ProductNames {
public:
    explicit ProductNames(const SystemPrograms& programs) : m_programs(programs) {}

    QString NameOf(const QString& file);

private:
    struct Entry {
        qint64 size = 0;
        QDateTime changed;
        QString name;
    };

    const SystemPrograms& m_programs;
    std::mutex m_mutex;
    std::unordered_map<QString, Entry> m_entries;
};
