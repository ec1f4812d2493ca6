#pragma once

#include <QString>
#include <QVector>

/// A file and the name it goes by, in a list or in an archive.
struct NamedFile {
    QString name; ///< with "/" between folders
    QString path;
    bool isNeeded = false;    ///< an archive without it is none
    bool masksHashes = false; ///< packed with stars for the hashes of passwords (HashMask)
};

/// Every file of `folder` and of the folders below it, hidden ones too, ordered by names, which are relative
/// to `folder`. Links are followed nowhere. Any thread.
QVector<NamedFile> ListFiles(const QString& folder);
